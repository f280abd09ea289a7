// A cut on the virtual machine from the 2D window, button by button: heating, cutting, stop, resume, return,
// giving up, a box that is lost, a window that is closed meanwhile. After each the box's own record says that
// the wire is cold, or the user was told.
#include "fenetres/coupe_2d.h"
#include "fenetres/poste_machine.h"
#include "ui/theme.h"
#include "work2d/ui/trace_course.h"

#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QToolButton>

#include <algorithm>

using namespace tessarel;
using namespace tessarel::essais;

class EssaiCourse2D : public QObject {
    Q_OBJECT
private slots:
    void init() { AppliquerTheme(Theme::Clair); }

    void UneDecoupeVaAuBout();
    void PendantLaDecoupeRienDAutreNEstAPortee();
    void StopPendantLaChauffe();
    void LaChauffeSuitLeCurseur();
    void UnCurseurLacheEnvoieUneFois_data();
    void UnCurseurLacheEnvoieUneFois();
    void LeResumeDitLaChauffeDuCurseur();
    void RepriseApresStop();
    void StopPendantLaChauffeDeLaReprise();
    void RetourApresStop_data();
    void RetourApresStop();
    void StopPendantLeRetour();
    void AbandonApresStop();
    void LaBoitePerdueEstDite();
    void LeBoutonDeLaMachineArrete();
    void SansInterfaceLaDecoupeEstRefusee();
    void FermerEnPleineDecoupe();
    void FermerApresUnStop();
    void SansCorrespondanceOnPeutOuvrirLesReglages();
    void LInterfaceSeRafraichit();
};

void EssaiCourse2D::UneDecoupeVaAuBout() {
    Coupe coupe;
    QStringList vus;
    int pwm = 0;
    std::size_t traces = 0;
    bool barre = false;
    QStringList restes;
    coupe.virtuelle.SurPompe = [&] {
        const QString mot = coupe.Avertissement();
        if (vus.isEmpty() || vus.back() != mot) vus << mot;
        pwm = std::max(pwm, int(coupe.virtuelle.boite->Etat().pwmCommande));
        traces = std::max(traces, coupe.poste.fenetre->TraceMachine().DejaCoupe().size());
        const auto& chauffe = coupe.poste.Trouver<QProgressBar>("progrbarChauffe");
        const auto& decoupe = coupe.poste.Trouver<QProgressBar>("progrbarDecoupe");
        if (decoupe.isVisible() && (restes.isEmpty() || restes.back() != decoupe.text()))
            restes << decoupe.text();
        barre = barre || (chauffe.isVisible() && chauffe.value() > 500);
    };
    coupe.Lancer();
    coupe.virtuelle.SurPompe = {};
    const auto sommets = coupe.poste.fenetre->DecoupeMontree().SequenceDecoupe.Points.size();
    const QString tempo = QString::number(TempoChauffePourChauffe(0, TableINI));
    QVERIFY(vus.contains(QStringLiteral("Mise en température du fil")));
    QVERIFY2(vus.contains(QStringLiteral("Chauffe 1/%1").arg(tempo)), qPrintable(vus.join(u'|')));
    for (std::size_t k = 2; k <= sommets; ++k)
        QVERIFY2(vus.contains(QStringLiteral("Découpe segment n°%1/%2").arg(k).arg(sommets)),
                 qPrintable(vus.join(u'|')));
    QVERIFY(barre);
    const auto deux = restes.indexOf(QStringLiteral("Temps restant : 2 min. 0 s."));
    const auto une = restes.indexOf(QStringLiteral("Temps restant : 1 min. 0 s."));
    QVERIFY2(deux > 0 && une == deux + 60, qPrintable(restes.join(u'|'))); // second by second
    QVERIFY(pwm > 0);
    QCOMPARE(traces, sommets - 1);
    QCOMPARE(coupe.poste.NombreBoites(), std::size_t(1));
    QCOMPARE(coupe.poste.DerniereBoite().texte,
             std::string("Découpe terminée, fil en position de repos, chauffe coupée."));
    QCOMPARE(coupe.poste.DerniereBoite().titre, std::string("machine disponible"));
    QVERIFY(coupe.FilFroid());
    QVERIFY(coupe.virtuelle.boite->Comptes().pas == coupe.PasVoulus());
    QVERIFY(coupe.virtuelle.boite->Position() == simulateur::PositionPas{});
    QVERIFY(coupe.AuRepos());
    coupe.poste.Cliquer<QPushButton>("cmdAnnulerDecoupe");
    QVERIFY(coupe.poste.fenetre->Course().preparee.liste.salves.empty());
    QVERIFY(coupe.poste.fenetre->DecoupeMontree().SequenceDecoupe.Points.empty());
}

void EssaiCourse2D::PendantLaDecoupeRienDAutreNEstAPortee() {
    Coupe coupe;
    const std::size_t avant = coupe.poste.fenetre->Espace().TableauSequences.size();
    coupe.Quand(QStringLiteral("Découpe segment n°3/"), [&] {
        for (const char* nom : {"cmdNouveauProjetTS2D", "cmdOuvrirFichierTS2D", "cmdParametresMachine",
                                "cmdMatieres", "cmdAide", "cmdRafraichirUsbTS2D", "cmdSimulation"})
            QVERIFY2(!coupe.poste.Trouver<QToolButton>(nom).isEnabled(), nom);
        QVERIFY(!coupe.poste.Trouver<QPushButton>("cmdAnnulerDecoupe").isEnabled());
        QVERIFY(!coupe.poste.Trouver<QWidget>("frameDecalage").isVisible());
        QVERIFY(coupe.poste.Trouver<QPushButton>("cmdSTOP").isEnabled());
        coupe.poste.Deposer({coupe.poste.Fichier("autre.txt", DeuxTracesTexte)});
    });
    coupe.Lancer();
    QVERIFY(coupe.fait);
    QCOMPARE(coupe.poste.fenetre->Espace().TableauSequences.size(), avant);
    QVERIFY(coupe.AuRepos());
}

void EssaiCourse2D::StopPendantLaChauffe() {
    Coupe coupe;
    coupe.StopQuand(QStringLiteral("Chauffe "));
    coupe.Lancer();
    QVERIFY(coupe.fait);
    QCOMPARE(coupe.poste.DerniereBoite().titre, std::string("Arrêt pendant la chauffe"));
    QCOMPARE(
        coupe.poste.DerniereBoite().texte,
        std::string("Le bouton Stop a été appuyé avant le début du mouvement.\r\nLa chauffe est coupée."));
    QVERIFY(coupe.FilFroid());
    QVERIFY(coupe.virtuelle.boite->Position() == simulateur::PositionPas{});
    QVERIFY(coupe.AuRepos());
    QVERIFY(
        coupe.poste.Trouver<QLabel>("lblInformationDecoupe").text().startsWith(QStringLiteral("Vitesse")));
}

void EssaiCourse2D::LaChauffeSuitLeCurseur() {
    Coupe coupe;
    std::size_t avant = 0;
    coupe.Quand(QStringLiteral("Découpe segment n°3/"), [&] {
        auto& curseur = coupe.poste.Trouver<QScrollBar>("hscChauffePendantDecoupe");
        QVERIFY(curseur.isVisible());
        QCOMPARE(curseur.maximum(), 2 * TableINI.ChauffeMaxiSur100);
        curseur.setValue(51);
        QCOMPARE(coupe.poste.Trouver<QLabel>("lblChauffePendantDecoupe").text(), QStringLiteral("25.5 %"));
        avant = coupe.virtuelle.Compter(CommandeChauffe, 1);
    });
    int pwm = -1;
    const auto geste = coupe.virtuelle.SurPompe;
    coupe.virtuelle.SurPompe = [&] {
        geste();
        if (coupe.Avertissement().startsWith(QStringLiteral("Découpe segment n°4/")))
            pwm = coupe.virtuelle.boite->Etat().pwmCommande;
    };
    coupe.Lancer();
    QVERIFY(coupe.fait);
    QCOMPARE(pwm, 65); // 25.5 x 2.55 = 65.025
    QCOMPARE(coupe.virtuelle.Compter(CommandeChauffe, 1), avant + 1);
    QVERIFY(coupe.FilFroid());
}

void EssaiCourse2D::UnCurseurLacheEnvoieUneFois_data() {
    QTest::addColumn<int>("pixels"); // that the hand moves it
    QTest::addRow("where it was") << 0;
    QTest::addRow("elsewhere") << 25;
}
// Let go where it was, the heat goes out once more: that is how a user makes sure. Let go elsewhere, it has
// gone out with the last change already.
void EssaiCourse2D::UnCurseurLacheEnvoieUneFois() {
    QFETCH(int, pixels);
    Coupe coupe;
    auto& curseur = coupe.poste.Trouver<QScrollBar>("hscChauffePendantDecoupe");
    QStyleOptionSlider option;
    QPointF main;
    const auto souris = [&](QEvent::Type genre, Qt::MouseButton bouton, Qt::MouseButtons tenus) {
        QMouseEvent evenement(genre, main, curseur.mapToGlobal(main), bouton, tenus, Qt::NoModifier);
        QApplication::sendEvent(&curseur, &evenement);
    };
    const auto envois = [&] { return coupe.virtuelle.Compter(CommandeChauffe, 1); };
    int debut = 0;
    std::size_t avant = 0;
    std::size_t tenu = 0;
    std::size_t lache = 0;
    int tours = 0; // of the loop, since the segment began
    coupe.virtuelle.SurPompe = [&] {
        if (!coupe.Avertissement().startsWith(QStringLiteral("Découpe segment n°3/"))) return;
        ++tours;
        if (tours == 1) {
            curseur.setSliderPosition(debut = curseur.maximum() / 2);
        } else if (tours == 5) {
            avant = envois();
            option.initFrom(&curseur);
            option.orientation = Qt::Horizontal;
            option.subControls = QStyle::SC_All;
            option.minimum = curseur.minimum();
            option.maximum = curseur.maximum();
            option.sliderPosition = option.sliderValue = curseur.value();
            option.pageStep = curseur.pageStep();
            main = curseur.style()
                       ->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &curseur)
                       .center();
            souris(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
            QVERIFY(curseur.isSliderDown());
            main += QPointF(pixels, 0);
            souris(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton);
        } else if (tours == 9) {
            QCOMPARE(curseur.value() != debut, pixels != 0);
            tenu = envois();
            souris(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
        } else if (tours == 13) {
            lache = envois();
        }
    };
    coupe.Lancer();
    QVERIFY(tours >= 13);
    QCOMPARE(tenu, avant + (pixels != 0 ? 1 : 0));
    QCOMPARE(lache, avant + 1);
    QVERIFY(coupe.FilFroid());
}

// One heat is said, and not the starting one above the slider's.
void EssaiCourse2D::LeResumeDitLaChauffeDuCurseur() {
    Coupe coupe;
    const auto resume = [&] { return coupe.poste.Trouver<QLabel>("lblResumeCourse").text(); };
    const auto curseur = [&] { return coupe.poste.Trouver<QLabel>("lblChauffePendantDecoupe").text(); };
    QString depart;
    coupe.Quand(QStringLiteral("Découpe segment n°3/"), [&] {
        depart = resume();
        QVERIFY2(depart.contains(QStringLiteral("Chauffe : %1 - ").arg(curseur().remove(u' '))),
                 qPrintable(depart));
        coupe.poste.Trouver<QScrollBar>("hscChauffePendantDecoupe").setValue(51);
        QCOMPARE(curseur(), QStringLiteral("25.5 %"));
        QVERIFY2(resume().contains(QStringLiteral("\nChauffe : 25.5% - Décalage : ")), qPrintable(resume()));
        QCOMPARE(resume().section(u'\n', 0, 0), depart.section(u'\n', 0, 0));
        QCOMPARE(resume().section(u'\n', 2), depart.section(u'\n', 2));
    });
    const auto geste = coupe.virtuelle.SurPompe;
    coupe.virtuelle.SurPompe = [&] {
        geste();
        if (coupe.Avertissement().startsWith(QStringLiteral("Découpe segment n°4/")))
            coupe.poste.Cliquer<QPushButton>("cmdSTOP");
    };
    coupe.Lancer();
    QVERIFY(coupe.fait && coupe.Arretee());
    QVERIFY(resume().contains(QStringLiteral("Chauffe : 25.5% - ")));
    // The next cut begins with its own heat.
    coupe.virtuelle.SurPompe = {};
    coupe.poste.Cliquer<QPushButton>("cmdAnnulerReprise");
    coupe.poste.Cliquer<QPushButton>("cmdDecouper");
    coupe.Quand(QStringLiteral("Découpe segment n°3/"), [&] { QCOMPARE(resume(), depart); });
    coupe.Lancer();
    QVERIFY(coupe.fait);
}

void EssaiCourse2D::RepriseApresStop() {
    Coupe coupe;
    const auto voulus = coupe.PasVoulus();
    coupe.Arreter();
    QVERIFY(coupe.fait);
    QVERIFY(coupe.poste.Trouver<QWidget>("pctRepriseDecoupe").isVisible());
    QCOMPARE(coupe.poste.Trouver<QLabel>("lblNumSegmentStop").text(),
             QStringLiteral("Arrêt sur le segment n° 4"));
    QVERIFY(!coupe.poste.Trouver<QPushButton>("cmdSTOP").isEnabled());
    QVERIFY(coupe.FilFroid());
    QVERIFY(coupe.virtuelle.boite->Comptes().pas != voulus);
    QCOMPARE(coupe.poste.NombreBoites(), std::size_t(0));
    coupe.poste.Cliquer<QPushButton>("cmdRepriseDecoupe");
    QCOMPARE(coupe.poste.DerniereBoite().titre, std::string("machine disponible"));
    QVERIFY(coupe.FilFroid());
    QVERIFY(coupe.virtuelle.boite->Comptes().pas == voulus); // each part once
    QVERIFY(coupe.virtuelle.boite->Position() == simulateur::PositionPas{});
    QVERIFY(coupe.AuRepos());
    // The next launch cuts the whole path again.
    coupe.Lancer();
    QCOMPARE(coupe.virtuelle.boite->Comptes().pas[AxeX1], 2 * voulus[AxeX1]);
}

void EssaiCourse2D::StopPendantLaChauffeDeLaReprise() {
    Coupe coupe;
    const auto voulus = coupe.PasVoulus();
    coupe.Arreter();
    coupe.StopQuand(QStringLiteral("Chauffe "));
    coupe.poste.Cliquer<QPushButton>("cmdRepriseDecoupe");
    QVERIFY(coupe.fait);
    QCOMPARE(coupe.poste.DerniereBoite().titre, std::string("Arrêt pendant la chauffe"));
    QVERIFY(coupe.FilFroid());
    // The wire still stands in the foam: the operator decides again, at the same stop.
    QVERIFY(coupe.poste.Trouver<QWidget>("pctRepriseDecoupe").isVisible());
    QCOMPARE(coupe.poste.Trouver<QLabel>("lblNumSegmentStop").text(),
             QStringLiteral("Arrêt sur le segment n° 4"));
    coupe.virtuelle.SurPompe = {};
    coupe.poste.Cliquer<QPushButton>("cmdRepriseDecoupe");
    QVERIFY(coupe.virtuelle.boite->Comptes().pas == voulus);
    QVERIFY(coupe.AuRepos());
}

void EssaiCourse2D::RetourApresStop_data() {
    QTest::addColumn<int>("trajet");
    QTest::addRow("straight") << 0;
    QTest::addRow("along the table") << 1;
}
void EssaiCourse2D::RetourApresStop() {
    QFETCH(int, trajet);
    Coupe coupe;
    coupe.Arreter();
    const auto arret = coupe.virtuelle.boite->Position();
    QVERIFY(arret[AxeX1] != 0 && arret[AxeY1] != 0);
    coupe.poste.Cliquer<QRadioButton>(trajet == 0 ? "optTrajetRetour_0" : "optTrajetRetour_1");
    std::vector<PointProfil> chemin;
    int aCoteDuBord = 0; // looks at a wire that is neither at the height of the stop nor at X = 0
    coupe.virtuelle.SurPompe = [&] {
        QVERIFY(!coupe.poste.Trouver<QPushButton>("cmdSTOP").isVisible());
        if (!coupe.Avertissement().startsWith(QStringLiteral("Découpe segment n°"))) return;
        chemin = coupe.poste.fenetre->Course().decoupe.SequenceDecoupe.Points;
        const auto position = coupe.virtuelle.boite->Position();
        if (position[AxeX1] != 0 && position[AxeY1] != arret[AxeY1]) ++aCoteDuBord;
    };
    coupe.poste.Cliquer<QPushButton>("cmdLancerRetourApresStop");
    coupe.virtuelle.SurPompe = {};
    QVERIFY(coupe.virtuelle.boite->Position() == simulateur::PositionPas{});
    const double x = MillimetresDePas(TableINI, AxeX1, double(arret[AxeX1]));
    const double y = MillimetresDePas(TableINI, AxeY1, double(arret[AxeY1]));
    QCOMPARE(chemin.size(), std::size_t(3));
    QCOMPARE(chemin[0].X, x);
    QCOMPARE(chemin[0].Y, y);
    QCOMPARE(chemin[1].X, trajet == 1 ? 0.0 : x / 2);
    QCOMPARE(chemin[1].Y, trajet == 1 ? y : y / 2);
    QCOMPARE(chemin[2].X, 0.0);
    QCOMPARE(chemin[2].Y, 0.0);
    if (trajet == 1)
        QCOMPARE(aCoteDuBord, 0);
    else
        QVERIFY(aCoteDuBord > 10);
    QCOMPARE(coupe.poste.DerniereBoite().texte, TextesDoubles(44, 1));
    QVERIFY(coupe.FilFroid());
    QVERIFY(coupe.AuRepos());
}

void EssaiCourse2D::StopPendantLeRetour() {
    Coupe coupe;
    coupe.Arreter();
    coupe.Quand(QStringLiteral("Découpe segment n°2/3"),
                [&] { coupe.poste.Cliquer<QPushButton>("cmdStopRetourApresReprise"); });
    coupe.poste.Cliquer<QPushButton>("cmdLancerRetourApresStop");
    QVERIFY(coupe.fait);
    coupe.virtuelle.SurPompe = {};
    QVERIFY(coupe.FilFroid());
    QVERIFY(coupe.poste.Trouver<QWidget>("pctRepriseDecoupe").isVisible());
    coupe.poste.Cliquer<QPushButton>("cmdRepriseDecoupe");
    QVERIFY(coupe.virtuelle.boite->Position() == simulateur::PositionPas{});
    QCOMPARE(coupe.poste.DerniereBoite().texte, TextesDoubles(44, 1));
    QVERIFY(coupe.AuRepos());
}

void EssaiCourse2D::AbandonApresStop() {
    Coupe coupe;
    coupe.Arreter();
    coupe.poste.Cliquer<QPushButton>("cmdAnnulerReprise");
    QCOMPARE(coupe.poste.DerniereBoite().texte,
             std::string("Attention, le fil n'est pas à sa position de repos."));
    QCOMPARE(coupe.poste.DerniereBoite().titre, std::string("Arrêt dans la zone utile"));
    QVERIFY(coupe.FilFroid());
    QVERIFY(!coupe.poste.fenetre->DecoupeOuverte());
    QVERIFY(coupe.poste.fenetre->DecoupeMontree().SequenceDecoupe.Points.empty());
    QVERIFY(coupe.poste.fenetre->Course().decoupe.SequenceDecoupe.Points.empty());
    QVERIFY(coupe.poste.fenetre->Course().preparee.liste.salves.empty());
    QVERIFY(coupe.poste.Trouver<QToolButton>("cmdOuvrirFichierTS2D").isEnabled());
    coupe.poste.Cliquer<QPushButton>("cmdDecouper");
    QVERIFY(coupe.AuRepos());
}

void EssaiCourse2D::LaBoitePerdueEstDite() {
    Coupe coupe;
    QString alerte;
    coupe.virtuelle.SurPompe = [&] {
        if (coupe.Avertissement().startsWith(QStringLiteral("Découpe segment n°4/")))
            coupe.virtuelle.boite->Brancher(false);
        auto* boite = coupe.poste.fenetre->findChild<QMessageBox*>(QStringLiteral("alerteInterface"));
        if (boite == nullptr || !boite->isVisible()) {
            if (!alerte.isEmpty()) coupe.poste.Trouver<QPushButton>("cmdSTOP").click();
            return;
        }
        alerte = boite->text();
        QTest::mouseClick(boite->button(QMessageBox::Ok), Qt::LeftButton);
    };
    coupe.Lancer();
    coupe.virtuelle.SurPompe = {};
    QVERIFY(alerte.startsWith(QStringLiteral("L'interface ne répond plus.")));
    QVERIFY(coupe.Dit(IconeBoite::Critique));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!coupe.poste.fenetre->Course().enCours);
    QVERIFY(coupe.poste.fenetre->findChild<QMessageBox*>(QStringLiteral("alerteInterface")) == nullptr);
}

void EssaiCourse2D::LeBoutonDeLaMachineArrete() {
    Coupe coupe;
    coupe.Quand(QStringLiteral("Découpe segment n°4/"), [&] { coupe.virtuelle.boite->AppuyerStop(); });
    coupe.Lancer();
    QVERIFY(coupe.fait);
    QVERIFY(coupe.FilFroid());
    QVERIFY(coupe.poste.Trouver<QWidget>("pctRepriseDecoupe").isVisible());
    QCOMPARE(coupe.poste.DerniereBoite().texte, TextesDoubles(48, 1));
}

void EssaiCourse2D::SansInterfaceLaDecoupeEstRefusee() {
    Coupe coupe;
    coupe.virtuelle.boite->Brancher(false);
    coupe.Lancer();
    QCOMPARE(coupe.poste.DerniereBoite().texte, std::string("Pas d'interface détectée"));
    QVERIFY(coupe.AuRepos());
    QCOMPARE(coupe.poste.Trouver<QToolButton>("cmdRafraichirUsbTS2D").text(),
             QStringLiteral("Pas d'interface"));
}

void EssaiCourse2D::FermerEnPleineDecoupe() {
    Coupe coupe;
    coupe.poste.boites.reponses = {ReponseBoite::Ok, ReponseBoite::Non};
    coupe.Quand(QStringLiteral("Découpe segment n°4/"), [&] { QVERIFY(!coupe.poste.fenetre->close()); });
    coupe.Lancer();
    QVERIFY(coupe.fait);
    QVERIFY(coupe.FilFroid());
    QCOMPARE(coupe.poste.boites.boites.front().titre, std::string("Arrêt dans la zone utile"));
    coupe.virtuelle.SurPompe = {};
    QApplication::processEvents();
    QVERIFY(!coupe.poste.fenetre->isVisible());
}

void EssaiCourse2D::FermerApresUnStop() {
    Coupe coupe;
    coupe.Arreter();
    coupe.poste.boites.reponses = {ReponseBoite::Non};
    QVERIFY(coupe.poste.fenetre->close());
    QCOMPARE(coupe.poste.DerniereBoite().titre, std::string("Arrêt dans la zone utile"));
    QVERIFY(coupe.FilFroid());
}

void EssaiCourse2D::SansCorrespondanceOnPeutOuvrirLesReglages() {
    Coupe coupe;
    const TableMachine enCours = TableINI;
    TableMachine autre = enCours;
    autre.PenteAcceleration = 3;
    coupe.virtuelle.Memoriser(autre);
    TableINI = enCours; // the program keeps its own
    const QSignalSpy reglages(coupe.poste.fenetre.get(), &frmTessarel2D::ParametrerMachine);
    coupe.poste.boites.reponses = {ReponseBoite::Non, ReponseBoite::Oui};
    coupe.Lancer();
    QCOMPARE(reglages.count(), 0);
    coupe.Lancer();
    QCOMPARE(reglages.count(), 1);
    QCOMPARE(
        coupe.poste.DerniereBoite().texte,
        std::string("Pas de correspondance entre la table en mémoire et les tables de l'interface\r\n\r\n"
                    "Voulez-vous ouvrir la fenêtre de paramétrage?"));
    QVERIFY(coupe.AuRepos());
    QCOMPARE(coupe.virtuelle.Compter(CommandeChauffe, 1), std::size_t(0));
}

void EssaiCourse2D::LInterfaceSeRafraichit() {
    Coupe coupe;
    auto& bouton = coupe.poste.Trouver<QToolButton>("cmdRafraichirUsbTS2D");
    QCOMPARE(bouton.text(), QStringLiteral("Pas d'interface"));
    coupe.poste.Cliquer<QToolButton>("cmdRafraichirUsbTS2D");
    QCOMPARE(bouton.text(), QStringLiteral("Mouvements activés"));
    coupe.virtuelle.boite->EcrireMemoires({});
    coupe.poste.Cliquer<QToolButton>("cmdRafraichirUsbTS2D");
    QCOMPARE(bouton.text(), QStringLiteral("Mouvements désactivés"));
    coupe.virtuelle.boite->Brancher(false);
    coupe.poste.Cliquer<QToolButton>("cmdRafraichirUsbTS2D");
    QCOMPARE(bouton.text(), QStringLiteral("Pas d'interface"));
}

QTEST_MAIN(EssaiCourse2D)
#include "essai_course_2d.moc"
