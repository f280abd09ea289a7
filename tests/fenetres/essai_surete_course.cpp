// A hot wire never runs out of reach: keys that come late, menus, faults of handlers, buttons that are held,
// double clicks, while the real application lets its events run between two exchanges.
#include "app/ui/application.h"
#include "fenetres/boite_des_fenetres.h"
#include "fenetres/poste_2d.h"
#include "platform/erreurs.h"
#include "ui/canevas.h"
#include "ui/pompe_qt.h"
#include "ui/theme.h"

#include <QCheckBox>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>
#include <QToolButton>
#include <QWindow>

#include <algorithm>
#include <utility>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

constexpr const char* TriangleTexte = "Triangle\r\n0.0:0.0\r\n4.0:0.0\r\n2.0:3.0\r\n0.0:0.0\r\n";

// The desktop program's own pump, with a place to act in before each turn.
class PompeDuProgramme {
public:
    explicit PompeDuProgramme(BoiteDesFenetres& virtuelle) {
        InstallerPompeQt();
        Pompe qt = InstallerPompe({});
        InstallerPompe([&virtuelle, qt = std::move(qt)] {
            if (virtuelle.SurPompe) virtuelle.SurPompe();
            qt();
        });
    }
};

// A drawing in its block, the cut page open, the machine in memory 1 of the box.
struct Banc {
    explicit Banc(const char* machine = "(Defaut)", Instant parEchange = std::chrono::milliseconds(100))
        : virtuelle(parEchange), pompe(virtuelle) {
        ChargerMachine(machine);
        virtuelle.Memoriser(TableINI);
        poste.OuvrirFenetre();
        poste.Deposer({poste.Fichier("triangle.txt", TriangleTexte)});
        for (const char* regle : {"chkCentrer_1", "chkCentrer_2"}) poste.Cliquer<QCheckBox>(regle);
        poste.Cliquer<QPushButton>("cmdDecouper");
    }
    void Lancer() {
        poste.Cliquer<QPushButton>("cmdLancerLaDecoupeTS2D");
        virtuelle.SurPompe = {};
    }
    [[nodiscard]] QString Avertissement() const {
        return poste.Trouver<QLabel>("lblAvertissementDecoupe").text();
    }
    // Runs `geste` once in the first turn of a segment of the cut, or as soon as the words begin so.
    void Quand(const QString& debut, std::function<void()> geste) {
        fait = false;
        virtuelle.SurPompe = [this, debut, geste = std::move(geste)] {
            if (fait || !Avertissement().startsWith(debut)) return;
            fait = true;
            depuis = virtuelle.commandes.size();
            geste();
        };
    }
    // Exchanges from the gesture to the first S; the number of all there were where none was sent.
    [[nodiscard]] std::size_t EchangesAvantArret() const {
        const auto debut = virtuelle.commandes.begin() + static_cast<std::ptrdiff_t>(depuis);
        const auto arret = std::find_if(debut, virtuelle.commandes.end(),
                                        [](const Tampon& t) { return t[1] == CommandeArret; });
        return static_cast<std::size_t>(arret - debut);
    }
    [[nodiscard]] bool Parti() const { return virtuelle.Compter(CommandeFile, 128) > 0; }
    [[nodiscard]] bool Chaud() const { return virtuelle.boite->Etat().pwmCommande > 0; }
    [[nodiscard]] bool FroidEtImmobile() const {
        return !Chaud() && virtuelle.boite->Etat().file == simulateur::EtatFile::Repos;
    }
    [[nodiscard]] bool Arretee() const {
        return poste.fenetre->Course().arretee && poste.Trouver<QWidget>("pctRepriseDecoupe").isVisible();
    }
    [[nodiscard]] std::vector<QMessageBox*> Alertes() const {
        std::vector<QMessageBox*> visibles;
        for (auto* alerte : poste.fenetre->findChildren<QMessageBox*>(QStringLiteral("alerteInterface")))
            if (alerte->isVisible()) visibles.push_back(alerte);
        return visibles;
    }
    Poste2D poste;
    BoiteDesFenetres virtuelle;
    PompeDuProgramme pompe;
    bool fait = false;
    std::size_t depuis = 0;
};

const QString SEGMENT3 = QStringLiteral("Découpe segment n°3/");

// Closes what opens a loop of its own, so that a test ends; true when there was one.
class FermeurDeMenus {
public:
    FermeurDeMenus() {
        QObject::connect(&m_temps, &QTimer::timeout, &m_temps, [this] {
            while (QWidget* menu = QApplication::activePopupWidget()) {
                ouvert = true;
                if (!menu->close()) break;
            }
        });
        m_temps.start(100);
    }
    bool ouvert = false;

private:
    QTimer m_temps;
};

} // namespace

class EssaiSureteCourse : public QObject {
    Q_OBJECT
private slots:
    void init() { AppliquerTheme(Theme::Clair); }

    void EchapJusteApresLeDepartArreteAuLieuDeFermer();
    void UneToucheTardiveNOuvreRienPendantLaCourse_data();
    void UneToucheTardiveNOuvreRienPendantLaCourse();
    void UneToucheNePassePasDerriereUnDialogue();
    void UneToucheNePassePasDerriereUnMenu();
    void LesTouchesDesAutresCommandesSontMortes();
    void UnMenuNeSuspendPasLaCourse_data();
    void UnMenuNeSuspendPasLaCourse();
    void UnMenuOuvertSeFermeAuDepart();
    void UnDepotEnPleineCourseNePrendRien();
    void UneFauteArreteDAbord();
    void UneFautePendantLOrigineArrete();
    void UneFautePendantUnMouvementArrete();
    void StopAgitDesQuIlEstEnfonce_data();
    void StopAgitDesQuIlEstEnfonce();
    void EchapAgitOuQueSoitLeClavier();
    void EchapTenuNeComptePasDeuxFois();
    void EchapArreteAussiAvecUnApercuMontre();
    void EspaceQuiArreteNeReprendPas();
    void EspaceQuiArreteLaChauffeNeRelancePas();
    void ApresUneDecoupeLesCommandesSontCommeAvant();
    void LAlerteFermeeParSaCroixRevient();
    void LeSecondClicDuDepartNArretePas();
    void UnClicSuivantArreteBien();
    void FermerPendantLesVerificationsNeLancePas();
};

void EssaiSureteCourse::EchapJusteApresLeDepartArreteAuLieuDeFermer() {
    Banc banc;
    QTest::keyClick(banc.poste.fenetre.get(), Qt::Key_Return, Qt::ControlModifier);
    QTest::qWait(50);
    bool pageDeLaCourse = true;
    banc.virtuelle.SurPompe = [&] {
        if (banc.poste.fenetre->Course().enCours)
            pageDeLaCourse = pageDeLaCourse && banc.poste.Trouver<QPushButton>("cmdSTOP").isVisible();
    };
    QTest::keyClick(banc.poste.fenetre.get(), Qt::Key_Escape);
    QTRY_VERIFY_WITH_TIMEOUT(!banc.poste.boites.boites.empty(), 10000);
    QTRY_VERIFY(!banc.poste.fenetre->Course().enCours);
    QVERIFY(pageDeLaCourse);
    QVERIFY(banc.poste.fenetre->DecoupeOuverte());
    QCOMPARE(banc.poste.DerniereBoite().titre, std::string("Arrêt pendant la chauffe"));
    QVERIFY(banc.virtuelle.boite->Position() == simulateur::PositionPas{});
    QVERIFY(banc.FroidEtImmobile());
}

void EssaiSureteCourse::UneToucheTardiveNOuvreRienPendantLaCourse_data() {
    QTest::addColumn<int>("touche");
    QTest::addColumn<int>("modificateurs");
    QTest::addRow("machine") << int(Qt::Key_F8) << 0;
    QTest::addRow("help") << int(Qt::Key_F1) << 0;
    QTest::addRow("open") << int(Qt::Key_O) << int(Qt::ControlModifier);
    QTest::addRow("library") << int(Qt::Key_L) << int(Qt::ControlModifier);
}
void EssaiSureteCourse::UneToucheTardiveNOuvreRienPendantLaCourse() {
    QFETCH(int, touche);
    QFETCH(int, modificateurs);
    Banc banc;
    QSignalSpy reglages(banc.poste.fenetre.get(), &frmTessarel2D::ParametrerMachine);
    QSignalSpy matieres(banc.poste.fenetre.get(), &frmTessarel2D::GererMatieres);
    const bool bibliotheque = banc.poste.Trouver<QToolButton>("cmdBibliotheque").isChecked();
    FermeurDeMenus menus;
    QElapsedTimer temps;
    bool enCours = false;
    banc.virtuelle.SurPompe = [&] {
        // Long enough for the second key to fire, were it to.
        if (!enCours) temps.start();
        enCours = true;
        if (temps.elapsed() < 130) QTest::qSleep(5);
    };
    QTest::keyClick(banc.poste.fenetre.get(), Qt::Key_Return, Qt::ControlModifier);
    QTest::qWait(50);
    QTest::keyClick(banc.poste.fenetre.get(), Qt::Key(touche), Qt::KeyboardModifiers(modificateurs));
    QTRY_VERIFY_WITH_TIMEOUT(enCours && !banc.poste.fenetre->Course().enCours, 10000);
    QTest::qWait(150);
    QCOMPARE(reglages.count() + matieres.count(), 0);
    QVERIFY(banc.poste.demandes.empty());
    QVERIFY(!menus.ouvert);
    QCOMPARE(banc.poste.Trouver<QToolButton>("cmdBibliotheque").isChecked(), bibliotheque);
    QCOMPARE(banc.poste.NombreBoites(), std::size_t(1));
    QCOMPARE(banc.poste.DerniereBoite().titre, std::string("machine disponible"));
    QVERIFY(banc.poste.fenetre->DecoupeOuverte());
    // After the run the key is alive again.
    if (touche == Qt::Key_F8) {
        QTest::keyClick(banc.poste.fenetre.get(), Qt::Key_F8);
        QTRY_COMPARE(reglages.count(), 1);
    }
}

void EssaiSureteCourse::UneToucheNePassePasDerriereUnDialogue() {
    Banc banc;
    QTest::keyClick(banc.poste.fenetre.get(), Qt::Key_Return, Qt::ControlModifier);
    QDialog dialogue(banc.poste.fenetre.get());
    QTimer::singleShot(300, &dialogue, &QDialog::accept);
    dialogue.exec(); // as the box of another command that came first
    QTest::qWait(150);
    QVERIFY(!banc.Parti());
    QVERIFY(!banc.poste.fenetre->Course().enCours);
    QVERIFY(!banc.poste.Trouver<QPushButton>("cmdLancerLaDecoupeTS2D").isDown());
}

void EssaiSureteCourse::UneToucheNePassePasDerriereUnMenu() {
    Banc banc;
    QTest::keyClick(banc.poste.fenetre.get(), Qt::Key_Return, Qt::ControlModifier);
    bool ouvert = false;
    QTimer::singleShot(300, [&ouvert] {
        QWidget* menu = QApplication::activePopupWidget();
        ouvert = menu != nullptr && menu->close();
    });
    QTest::keyClick(banc.poste.fenetre.get(), Qt::Key_R, Qt::ControlModifier); // opens at once, and waits
    QTest::qWait(200);
    QVERIFY(ouvert);
    QVERIFY(!banc.Parti());
    QVERIFY(!banc.poste.fenetre->Course().enCours);
}

void EssaiSureteCourse::LesTouchesDesAutresCommandesSontMortes() {
    Banc banc;
    const std::size_t traces = banc.poste.fenetre->Espace().TableauSequences.size();
    banc.Quand(SEGMENT3, [&] {
        const std::vector<std::pair<Qt::Key, Qt::KeyboardModifiers>> touches = {
            {Qt::Key_S, Qt::ControlModifier}, {Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier},
            {Qt::Key_A, Qt::ControlModifier}, {Qt::Key_Delete, Qt::NoModifier},
            {Qt::Key_Z, Qt::ControlModifier}, {Qt::Key_F9, Qt::NoModifier}};
        for (const auto& [touche, avec] : touches) QTest::keyClick(banc.poste.fenetre.get(), touche, avec);
    });
    banc.Lancer();
    QVERIFY(banc.fait);
    QVERIFY(banc.poste.demandes.empty());
    QCOMPARE(banc.poste.fenetre->Espace().TableauSequences.size(), traces);
    QCOMPARE(banc.poste.DerniereBoite().titre, std::string("machine disponible"));
}

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
    QCOMPARE(banc.poste.NombreBoites(), std::size_t(1));
    QVERIFY(
        QString::fromStdString(banc.poste.DerniereBoite().texte)
            .startsWith(QStringLiteral("Erreur 6 (trop de points) à la ligne 0, de la procédure TimerFilm")));
    QVERIFY(froid);
    QVERIFY(banc.FroidEtImmobile());
    QVERIFY(!banc.poste.fenetre->Course().enCours);
    QVERIFY(banc.poste.Trouver<QToolButton>("cmdOuvrirFichierTS2D").isEnabled());
    QVERIFY(banc.poste.Trouver<QPushButton>("cmdLancerLaDecoupeTS2D").isVisible());
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

void EssaiSureteCourse::StopAgitDesQuIlEstEnfonce_data() {
    QTest::addColumn<bool>("souris");
    QTest::addRow("mouse, held") << true;
    QTest::addRow("Escape") << false;
}
void EssaiSureteCourse::StopAgitDesQuIlEstEnfonce() {
    QFETCH(bool, souris);
    Banc banc;
    auto& stop = banc.poste.Trouver<QPushButton>("cmdSTOP");
    banc.Quand(SEGMENT3, [&] {
        if (souris)
            QTest::mousePress(&stop, Qt::LeftButton);
        else
            QTest::keyClick(banc.poste.fenetre.get(), Qt::Key_Escape);
    });
    banc.Lancer();
    QVERIFY(banc.fait);
    QCOMPARE(banc.EchangesAvantArret(), std::size_t(0)); // the pump had its turn: the next word is S
    QVERIFY(banc.Arretee());
    QVERIFY(banc.FroidEtImmobile());
    if (souris) QTest::mouseRelease(&stop, Qt::LeftButton);
}

void EssaiSureteCourse::EchapAgitOuQueSoitLeClavier() {
    Banc banc;
    // A second owner of the key would make it ambiguous, and nobody would hear it.
    QPushButton autre(banc.poste.fenetre.get());
    autre.setShortcut(Qt::Key_Escape);
    autre.show();
    banc.Quand(SEGMENT3, [&] {
        auto& curseur = banc.poste.Trouver<QScrollBar>("hscChauffePendantDecoupe");
        curseur.setFocus();
        QTest::keyClick(&curseur, Qt::Key_Escape);
    });
    banc.Lancer();
    QVERIFY(banc.fait);
    QCOMPARE(banc.EchangesAvantArret(), std::size_t(0));
    QVERIFY(banc.Arretee());
}

void EssaiSureteCourse::EchapTenuNeComptePasDeuxFois() {
    Banc banc;
    int repetitions = 0;
    // A second Stop gives up a box that does not answer: one that is held must not.
    banc.virtuelle.SurPompe = [&] {
        if (!banc.Avertissement().startsWith(SEGMENT3)) return;
        if (repetitions == 0) {
            banc.virtuelle.boite->Brancher(false);
            QTest::keyPress(banc.poste.fenetre.get(), Qt::Key_Escape);
        } else if (repetitions < 30) {
            QKeyEvent encore(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), true);
            QApplication::sendEvent(QApplication::focusWidget() == nullptr ? banc.poste.fenetre.get()
                                                                           : QApplication::focusWidget(),
                                    &encore);
        } else if (repetitions == 30) {
            banc.virtuelle.boite->Brancher(true);
        }
        ++repetitions;
        if (repetitions > 5000) qFatal("the run does not end");
    };
    banc.Lancer();
    QVERIFY(repetitions > 30);
    QVERIFY(banc.Arretee());
    QVERIFY(banc.FroidEtImmobile());
}

void EssaiSureteCourse::EchapArreteAussiAvecUnApercuMontre() {
    Banc banc("QT2d v12", std::chrono::milliseconds(20));
    banc.poste.Trouver<QPushButton>("cmdAnnulerDecoupe").click();
    banc.poste.Cliquer<QToolButton>("cmdDeplacementsManuels");
    // Looked at after the page was opened.
    const QByteArray chemin = QByteArray::fromStdString(banc.poste.dossier.Fichier("triangle.txt"));
    QWidget* bibliotheque = &banc.poste.Trouver<QWidget>("TreeBibliothequeTS2D");
    while (!bibliotheque->inherits("tessarel::PanneauBibliotheque"))
        bibliotheque = bibliotheque->parentWidget();
    QVERIFY(QMetaObject::invokeMethod(bibliotheque, "FichierRegarde", Q_ARG(QByteArray, chemin)));
    QVERIFY(banc.poste.Trouver<QWidget>("bandeauApercu").isVisible());
    banc.poste.boites.reponses = {ReponseBoite::Oui};
    int tours = 0;
    banc.virtuelle.SurPompe = [&] {
        if (++tours == 20) QTest::keyClick(banc.poste.fenetre.get(), Qt::Key_Escape);
    };
    banc.poste.Cliquer<QPushButton>("cmdRetourOrigine");
    QVERIFY(tours >= 20);
    QCOMPARE(banc.poste.DerniereBoite().texte, std::string("L'opération a été annulée."));
    QVERIFY(banc.FroidEtImmobile());
}

void EssaiSureteCourse::EspaceQuiArreteNeReprendPas() {
    Banc banc;
    banc.Quand(SEGMENT3, [&] {
        QVERIFY(banc.poste.Trouver<QPushButton>("cmdSTOP").hasFocus());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    });
    banc.Lancer();
    QVERIFY(banc.Arretee());
    const std::size_t echanges = banc.virtuelle.commandes.size();
    for (const Qt::Key touche : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape}) {
        QVERIFY(QApplication::focusWidget() != nullptr);
        QTest::keyClick(QApplication::focusWidget(), touche);
    }
    QTest::qWait(150);
    QCOMPARE(banc.virtuelle.commandes.size(), echanges);
    QVERIFY(banc.Arretee());
}

void EssaiSureteCourse::EspaceQuiArreteLaChauffeNeRelancePas() {
    Banc banc;
    banc.Quand(QStringLiteral("Chauffe "),
               [&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space); });
    banc.Lancer();
    QCOMPARE(banc.poste.DerniereBoite().titre, std::string("Arrêt pendant la chauffe"));
    const std::size_t echanges = banc.virtuelle.commandes.size();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QTest::qWait(150);
    QCOMPARE(banc.virtuelle.commandes.size(), echanges);
    QVERIFY(banc.poste.fenetre->DecoupeOuverte());
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

void EssaiSureteCourse::LeSecondClicDuDepartNArretePas() {
    Banc banc;
    auto& depart = banc.poste.Trouver<QPushButton>("cmdLancerLaDecoupeTS2D");
    const QPoint place = depart.mapTo(banc.poste.fenetre.get(), depart.rect().center());
    QString dessous;
    banc.Quand(QStringLiteral("Mise"), [&] {
        QWidget* controle = banc.poste.fenetre->childAt(place);
        dessous = controle == nullptr ? QString() : controle->objectName();
        // As the window system sends it: the second press of a pair that began on the launch button.
        QMouseEvent second(QEvent::MouseButtonDblClick, controle->rect().center(),
                           controle->mapToGlobal(controle->rect().center()), Qt::LeftButton, Qt::LeftButton,
                           Qt::NoModifier);
        QApplication::sendEvent(controle, &second);
        QTest::mouseRelease(controle, Qt::LeftButton);
    });
    banc.Lancer();
    QVERIFY(banc.fait);
    QCOMPARE(dessous, QStringLiteral("cmdSTOP")); // else there is nothing to try
    QCOMPARE(banc.poste.DerniereBoite().titre, std::string("machine disponible"));
}

void EssaiSureteCourse::UnClicSuivantArreteBien() {
    Banc banc;
    auto& stop = banc.poste.Trouver<QPushButton>("cmdSTOP");
    banc.Quand(SEGMENT3, [&] {
        QTest::mousePress(&stop, Qt::LeftButton);
        QTest::mouseRelease(&stop, Qt::LeftButton);
    });
    banc.Lancer();
    QVERIFY(banc.Arretee());
    // A double click on Stop: its second press belongs to no button that comes to stand there.
    auto& reprendre = banc.poste.Trouver<QPushButton>("cmdRepriseDecoupe");
    const std::size_t echanges = banc.virtuelle.commandes.size();
    QMouseEvent second(QEvent::MouseButtonDblClick, reprendre.rect().center(),
                       reprendre.mapToGlobal(reprendre.rect().center()), Qt::LeftButton, Qt::LeftButton,
                       Qt::NoModifier);
    QApplication::sendEvent(&reprendre, &second);
    QTest::mouseRelease(&reprendre, Qt::LeftButton);
    QCOMPARE(banc.virtuelle.commandes.size(), echanges);
    QTest::mouseClick(&reprendre, Qt::LeftButton);
    QVERIFY(banc.virtuelle.commandes.size() > echanges);
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
