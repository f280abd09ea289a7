// Nothing takes a hot wire out of reach: no menu, no drop, no fault of a handler, no box that was closed, and
// no window that is.
#include "app/ui/application.h"
#include "fenetres/banc_surete.h"
#include "platform/erreurs.h"
#include "ui/theme.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QScrollBar>
#include <QToolButton>

using namespace tessarel;
using namespace tessarel::essais;

class EssaiSureteCourse : public QObject {
    Q_OBJECT
private slots:
    void init() { AppliquerTheme(Theme::Clair); }

    void UnMenuNeSuspendPasLaCourse_data();
    void UnMenuNeSuspendPasLaCourse();
    void UnMenuOuvertSeFermeAuDepart();
    void UnDepotEnPleineCourseNePrendRien();
    void UneFauteArreteDAbord();
    void UneFauteDevantUneBoiteMuetteSeDitUneFois_data();
    void UneFauteDevantUneBoiteMuetteSeDitUneFois();
    void UneFautePendantLOrigineArrete();
    void UneFautePendantUnMouvementArrete();
    void ApresUneDecoupeLesCommandesSontCommeAvant();
    void LAlerteFermeeParSaCroixRevient();
    void FermerPendantLesVerificationsNeLancePas();
};

void EssaiSureteCourse::UnMenuNeSuspendPasLaCourse_data() {
    QTest::addColumn<QString>("controle");
    for (const char* nom : {"hscChauffePendantDecoupe", "hscDecoupe"})
        QTest::addRow("%s", nom) << QString::fromLatin1(nom);
}

void EssaiSureteCourse::UnMenuNeSuspendPasLaCourse() {
    QFETCH(QString, controle);
    Banc banc;
    FermeurDeMenus menus;
    std::size_t pendant = 1;
    banc.Quand(SEGMENT3, [&] {
        auto* visible = banc.poste.fenetre->findChild<QWidget*>(controle);
        QVERIFY2(visible != nullptr, qPrintable(controle));
        const std::size_t avant = banc.virtuelle.commandes.size();
        QContextMenuEvent menu(QContextMenuEvent::Mouse, {3, 3}, visible->mapToGlobal(QPoint(3, 3)));
        QApplication::sendEvent(visible, &menu);
        pendant = banc.virtuelle.commandes.size() - avant;
    });
    banc.Lancer();
    QVERIFY(banc.fait);
    QVERIFY(!menus.ouvert);
    QCOMPARE(pendant, std::size_t(0));
    QCOMPARE(banc.poste.DerniereBoite().titre, std::string("machine disponible"));
}

void EssaiSureteCourse::UnMenuOuvertSeFermeAuDepart() {
    Banc banc;
    QMenu menu(banc.poste.fenetre.get());
    menu.addAction(QStringLiteral("-"));
    menu.popup(banc.poste.fenetre->mapToGlobal(QPoint(50, 50)));
    QVERIFY(QApplication::activePopupWidget() != nullptr);
    bool ouvert = false;
    banc.virtuelle.SurPompe = [&] { ouvert = ouvert || QApplication::activePopupWidget() != nullptr; };
    banc.poste.Trouver<QPushButton>("cmdLancerLaDecoupeTS2D").click();
    QVERIFY(banc.Parti());
    QVERIFY(!ouvert);
}

void EssaiSureteCourse::UnDepotEnPleineCourseNePrendRien() {
    Banc banc;
    const std::string autre = banc.poste.Fichier("autre.txt", DeuxTracesTexte);
    const std::size_t traces = banc.poste.fenetre->Espace().TableauSequences.size();
    banc.Quand(SEGMENT3, [&] {
        banc.poste.Deposer({autre});
        // One that had been let in before the start.
        QMimeData donnees;
        donnees.setUrls({QUrl::fromLocalFile(QString::fromStdString(autre))});
        QDropEvent depot({400, 300}, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(banc.poste.fenetre.get(), &depot);
    });
    banc.Lancer();
    QVERIFY(banc.fait);
    QCOMPARE(banc.poste.fenetre->Espace().TableauSequences.size(), traces);
    QVERIFY(banc.poste.fenetre->DecoupeOuverte());
}

// A timer's fault in mid-run, as the application meets it; what the wire did when its box came.
void EssaiSureteCourse::UneFauteArreteDAbord() {
    Banc banc;
    QTimer minuterie;
    minuterie.setObjectName(QStringLiteral("TimerFilm"));
    minuterie.setSingleShot(true);
    connect(&minuterie, &QTimer::timeout, [] { throw FauteDepassement("trop de points"); });
    banc.Quand(SEGMENT3, [&] {
        QVERIFY(banc.Chaud());
        minuterie.start(0);
    });
    bool froid = false;
    AfficheurBoite enregistreur = InstallerAfficheurBoite({});
    InstallerAfficheurBoite([&](const Boite& boite) {
        froid = banc.FroidEtImmobile();
        return enregistreur(boite);
    });
    banc.Lancer();
    InstallerAfficheurBoite(enregistreur);
    QVERIFY(banc.fait);
    QVERIFY2(banc.EchangesAvantArret() <= 2, qPrintable(QString::number(banc.EchangesAvantArret())));
    QCOMPARE(banc.poste.NombreBoites(), std::size_t(2));
    QVERIFY(
        QString::fromStdString(banc.poste.boites.boites[0].texte)
            .startsWith(QStringLiteral("Erreur 6 (trop de points) à la ligne 0, de la procédure TimerFilm")));
    QCOMPARE(banc.poste.DerniereBoite().titre, std::string("Arrêt dans la zone utile"));
    QVERIFY(froid);
    QVERIFY(banc.FroidEtImmobile());
    QVERIFY(!banc.poste.fenetre->Course().enCours);
    QVERIFY(banc.poste.Trouver<QToolButton>("cmdOuvrirFichierTS2D").isEnabled());
    QVERIFY(banc.poste.Trouver<QPushButton>("cmdLancerLaDecoupeTS2D").isVisible());
}

// A fault and a box that is gone: whoever passes the fault on finds it looked after.
void EssaiSureteCourse::UneFauteDevantUneBoiteMuetteSeDitUneFois_data() {
    QTest::addColumn<bool>("fleche");
    QTest::addRow("a cut") << false;
    QTest::addRow("an arrow") << true;
}
void EssaiSureteCourse::UneFauteDevantUneBoiteMuetteSeDitUneFois() {
    QFETCH(bool, fleche);
    constexpr std::size_t essais = 5; // of the rescue
    Banc banc("(Defaut)", std::chrono::milliseconds(5));
    if (fleche) {
        banc.poste.Trouver<QPushButton>("cmdAnnulerDecoupe").click();
        banc.poste.Cliquer<QToolButton>("cmdDeplacementsManuels");
        banc.poste.Trouver<QScrollBar>("hscChauffeFilManuel").setValue(60);
        banc.poste.Cliquer<QToolButton>("optChauffe_1");
    }
    bool fait = false;
    std::size_t arrets = 0;
    banc.virtuelle.SurPompe = [&] {
        if (fait || !banc.Chaud() || banc.virtuelle.boite->Etat().file != simulateur::EtatFile::EnMarche)
            return;
        fait = true;
        arrets = banc.virtuelle.Compter(CommandeArret, 0);
        banc.virtuelle.boite->Brancher(false);
        QTimer::singleShot(0, [] { throw FauteDepassement("trop"); });
    };
    if (fleche)
        QTest::mousePress(&banc.poste.Trouver<QToolButton>("optGoManuel_4"), Qt::LeftButton);
    else
        banc.Lancer();
    banc.virtuelle.SurPompe = {};
    QVERIFY(fait);
    QCOMPARE(banc.virtuelle.Compter(CommandeArret, 0) - arrets, essais);
    QCOMPARE(std::ranges::count(banc.poste.boites.boites, TextesDoubles(40, 2), &Boite::titre), 1);
    QCOMPARE(banc.poste.NombreBoites(), std::size_t(2)); // that one, and the fault's own
    QVERIFY(CoupureEnSuspens);
    QVERIFY(banc.Chaud());
}

void EssaiSureteCourse::UneFautePendantLOrigineArrete() {
    Banc banc("QT2d v12");
    QVERIFY(TableINI.OrigineAutomatique);
    int tours = 0;
    banc.virtuelle.SurPompe = [&] {
        if (++tours != 20) return;
        banc.depuis = banc.virtuelle.commandes.size();
        QTimer::singleShot(0, [] { throw FauteDepassement("trop"); });
    };
    banc.Lancer();
    QVERIFY(tours >= 20);
    QVERIFY2(banc.EchangesAvantArret() <= 3, qPrintable(QString::number(banc.EchangesAvantArret())));
    QVERIFY(banc.FroidEtImmobile());
    QVERIFY(!banc.poste.fenetre->Course().enCours);
    QVERIFY(QString::fromStdString(banc.poste.DerniereBoite().texte)
                .startsWith(QStringLiteral("Erreur 6 (trop)")));
}

void EssaiSureteCourse::UneFautePendantUnMouvementArrete() {
    Banc banc("(Defaut)", std::chrono::milliseconds(5));
    banc.poste.Trouver<QPushButton>("cmdAnnulerDecoupe").click();
    banc.poste.Cliquer<QToolButton>("cmdDeplacementsManuels");
    auto& fleche = banc.poste.Trouver<QToolButton>("optGoManuel_4");
    int tours = 0;
    banc.virtuelle.SurPompe = [&] {
        if (++tours != 40) return;
        banc.depuis = banc.virtuelle.commandes.size();
        QTimer::singleShot(0, [] { throw FauteDepassement("trop"); });
    };
    QTest::mousePress(&fleche, Qt::LeftButton);
    banc.virtuelle.SurPompe = {};
    QTest::mouseRelease(&fleche, Qt::LeftButton);
    QVERIFY(banc.EchangesAvantArret() <= 3);
    QVERIFY(banc.FroidEtImmobile());
    QVERIFY(!banc.poste.fenetre->Course().enCours);
    QVERIFY(fleche.isEnabled());
}

void EssaiSureteCourse::ApresUneDecoupeLesCommandesSontCommeAvant() {
    Poste2D poste;
    BoiteDesFenetres virtuelle(std::chrono::milliseconds(100));
    virtuelle.Memoriser(TableINI);
    poste.OuvrirFenetre();
    const auto permises = [&poste] {
        QStringList noms;
        for (const auto* bouton : poste.fenetre->findChildren<QToolButton*>())
            if (bouton->isEnabled()) noms << bouton->objectName();
        return noms;
    };
    // No file was opened yet: there is no report.
    poste.Cliquer<QToolButton>("cmdDeplacementsManuels");
    const QStringList avantMouvement = permises();
    QVERIFY(!avantMouvement.contains(QStringLiteral("cmdRapportOuverture")));
    int tours = 0;
    auto& fleche = poste.Trouver<QToolButton>("optGoManuel_4");
    virtuelle.SurPompe = [&] {
        if (++tours == 10) QTest::mouseRelease(&fleche, Qt::LeftButton);
    };
    QTest::mousePress(&fleche, Qt::LeftButton);
    virtuelle.SurPompe = {};
    QVERIFY(tours >= 10);
    QCOMPARE(permises(), avantMouvement);
    poste.Deposer({poste.Fichier("triangle.txt", TriangleTexte)});
    for (const char* regle : {"chkCentrer_1", "chkCentrer_2"}) poste.Cliquer<QCheckBox>(regle);
    poste.Cliquer<QPushButton>("cmdDecouper");
    const QStringList avantDecoupe = permises();
    QVERIFY(!avantDecoupe.contains(QStringLiteral("cmdBibliotheque")));
    poste.Cliquer<QPushButton>("cmdLancerLaDecoupeTS2D");
    QCOMPARE(poste.DerniereBoite().titre, std::string("machine disponible"));
    QCOMPARE(permises(), avantDecoupe);
}

void EssaiSureteCourse::LAlerteFermeeParSaCroixRevient() {
    Banc banc;
    int alertes = 0;
    banc.virtuelle.SurPompe = [&] {
        if (banc.Avertissement().startsWith(SEGMENT3)) banc.virtuelle.boite->Brancher(false);
        for (QMessageBox* alerte : banc.Alertes()) {
            ++alertes;
            alerte->close();
        }
        if (alertes > 50) qFatal("the run does not end");
    };
    banc.Lancer();
    // One while it cuts, one while it waits for the stop, one while the heat is to go off: each a Stop.
    QVERIFY2(alertes >= 2, qPrintable(QString::number(alertes)));
    QVERIFY(!banc.poste.fenetre->Course().enCours);
    QVERIFY(std::ranges::any_of(banc.poste.boites.boites,
                                [](const Boite& b) { return b.icone == IconeBoite::Critique; }));
}

void EssaiSureteCourse::FermerPendantLesVerificationsNeLancePas() {
    Banc banc("QT2d v12");
    // The box is gone: that is said, and the window is closed while the message stands there.
    AfficheurBoite enregistreur = InstallerAfficheurBoite({});
    bool fermee = false;
    InstallerAfficheurBoite([&](const Boite& boite) {
        if (!fermee) {
            fermee = true;
            banc.poste.fenetre->close();
        }
        return enregistreur(boite);
    });
    banc.virtuelle.boite->Brancher(false);
    banc.poste.boites.reponses = {ReponseBoite::Ok, ReponseBoite::Non}; // the drawing is not saved
    banc.Lancer();
    InstallerAfficheurBoite(enregistreur);
    QVERIFY(fermee);
    QVERIFY(!banc.Parti());
    QTRY_VERIFY(!banc.poste.fenetre->isVisible()); // once the check is over
}

int main(int argc, char** argv) {
    ApplicationTessarel application(argc, argv);
    EssaiSureteCourse essai;
    return QTest::qExec(&essai, argc, argv);
}

#include "essai_surete_course.moc"
