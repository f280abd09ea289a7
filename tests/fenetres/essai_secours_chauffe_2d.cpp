// A hot wire and what the machine does to it in the same instant: an arrow that is let go, a bar that is
// touched and a question that stands must not leave it lit.
#include "fenetres/poste_manuel.h"
#include "link/commandes.h"
#include "ui/boites_qt.h"
#include "ui/theme.h"

#include <QLabel>
#include <QMessageBox>
#include <QTimer>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

struct Secours : Manuel {
    explicit Secours(const char* machine = "(Defaut)") : Manuel(machine) {
        poste.Trouver<QScrollBar>("hscChauffeFilManuel").setValue(60);
        poste.Cliquer<QToolButton>("optChauffe_1");
    }
    // Holds an arrow; at the 30th turn of the pump `geste`, with the release right before or after it.
    void Fleche(const std::function<void()>& geste, bool lacheeAvant) {
        auto& fleche = poste.Trouver<QToolButton>("optGoManuel_4");
        int tours = 0;
        virtuelle.SurPompe = [&] {
            if (++tours != 30) return;
            if (lacheeAvant) QTest::mouseRelease(&fleche, Qt::LeftButton);
            geste();
            if (!lacheeAvant) QTest::mouseRelease(&fleche, Qt::LeftButton);
        };
        QTest::mousePress(&fleche, Qt::LeftButton);
        virtuelle.SurPompe = {};
        QVERIFY(tours >= 30);
    }
    [[nodiscard]] int SurLeFil() const { return virtuelle.boite->Etat().pwmFil; }
    [[nodiscard]] bool SigneVisible() const { return !poste.Trouver<QLabel>("lblFilChaud").isHidden(); }
    [[nodiscard]] QString Etat() const { return poste.Trouver<QLabel>("lblEtatManuel").text(); }
    [[nodiscard]] std::size_t Allumages() const { return virtuelle.Compter(CommandeChauffe, 1); }
};

} // namespace

class EssaiSecoursChauffe2D : public QObject {
    Q_OBJECT
private slots:
    void init() { AppliquerTheme(Theme::Clair); }

    void LeBoutonStopALInstantDuRelachement_data();
    void LeBoutonStopALInstantDuRelachement();
    void LInterrupteurALInstantDuRelachement();
    void LaBarreApresLeBoutonStop();
    void LaQuestionAttendFilFroid();
    void UneBoiteAttendFilFroid();
    void UneCoupureAbandonneeSeRattrape();
    void StopRenonceALaChauffeSansReponse();
};

void EssaiSecoursChauffe2D::LeBoutonStopALInstantDuRelachement_data() {
    QTest::addColumn<bool>("lacheeAvant");
    QTest::addRow("arrow first") << true;
    QTest::addRow("button first") << false;
}
void EssaiSecoursChauffe2D::LeBoutonStopALInstantDuRelachement() {
    QFETCH(bool, lacheeAvant);
    Secours secours;
    secours.Fleche([&] { secours.virtuelle.boite->AppuyerStop(); }, lacheeAvant);
    QCOMPARE(secours.SurLeFil(), 0);
    QCOMPARE(secours.Allumages(), std::size_t(1));
    QVERIFY(!secours.SigneVisible());
    QCOMPARE(secours.poste.NombreBoites(), std::size_t(1));
    QVERIFY(secours.poste.DerniereBoite().texte.find("STOP") != std::string::npos);
    QVERIFY(secours.AuRepos());
}

void EssaiSecoursChauffe2D::LInterrupteurALInstantDuRelachement() {
    Secours secours("QT2d v12"); // whose switches are active
    secours.Fleche([&] { secours.virtuelle.boite->FixerCommutateurs({.finCourseForcee = true}); }, true);
    QCOMPARE(secours.SurLeFil(), 0);
    QVERIFY(secours.poste.DerniereBoite().texte.starts_with(
        "La boucle des interrupteurs de fin de course est ouverte."));
    QVERIFY(!secours.SigneVisible());
}

void EssaiSecoursChauffe2D::LaBarreApresLeBoutonStop() {
    Secours secours;
    secours.virtuelle.boite->AppuyerStop();
    QCOMPARE(secours.SurLeFil(), 0);
    secours.poste.Trouver<QScrollBar>("hscChauffeFilManuel").setValue(40);
    QCOMPARE(secours.SurLeFil(), 0);
    QCOMPARE(secours.Allumages(), std::size_t(1));
    QVERIFY(!secours.SigneVisible());
    QCOMPARE(secours.Etat(), QStringLiteral("La machine a coupé la chauffe"));
}

void EssaiSecoursChauffe2D::LaQuestionAttendFilFroid() {
    Secours secours("QT2d v12");
    for (const char* nom : {"cmdRetourOrigine", "cmdPlierLePortique", "optHomeX", "optHomeY"}) {
        secours.poste.Cliquer<QToolButton>("optChauffe_1");
        QVERIFY(secours.SurLeFil() > 0);
        int auMoment = -1; // on the wire when the question comes up
        const AfficheurBoite enregistreur = InstallerAfficheurBoite({});
        InstallerAfficheurBoite([&](const Boite& boite) {
            auMoment = secours.SurLeFil();
            return enregistreur(boite);
        });
        secours.poste.Cliquer<QPushButton>(nom); // No
        InstallerAfficheurBoite(enregistreur);
        QCOMPARE(auMoment, 0);
        QVERIFY(!secours.SigneVisible());
    }
}

// A box that the window system shows, whoever opens it.
void EssaiSecoursChauffe2D::UneBoiteAttendFilFroid() {
    Secours secours;
    InstallerBoitesQt();
    int auMoment = -1; // on the wire while the box stands
    QTimer lecteur;
    connect(&lecteur, &QTimer::timeout, [&] {
        if (QWidget* boite = QApplication::activeModalWidget()) {
            auMoment = secours.SurLeFil();
            boite->close();
        }
    });
    lecteur.start(5);
    QVERIFY(secours.SurLeFil() > 0);
    secours.poste.Cliquer<QToolButton>("cmdAide");
    QCOMPARE(auMoment, 0);
    QVERIFY(!secours.SigneVisible());
}

// Given up elsewhere than on this page: nobody has to ask for it again.
void EssaiSecoursChauffe2D::UneCoupureAbandonneeSeRattrape() {
    Manuel manuel;
    EnvoyerChauffe(ValeurPWM(60));
    manuel.virtuelle.boite->Brancher(false);
    CouperChauffe({[] { return true; }, [] {}});
    QVERIFY(CoupureEnSuspens);
    QCOMPARE(manuel.poste.NombreBoites(), std::size_t(1));
    auto& temps = manuel.poste.Trouver<QTimer>("TimerRattrapage");
    QVERIFY(temps.isActive());
    temps.setInterval(5);
    QTest::qWait(50);
    QCOMPARE(int(manuel.virtuelle.boite->Etat().pwmFil), 153);
    QCOMPARE(manuel.poste.NombreBoites(), std::size_t(1)); // without a word
    manuel.virtuelle.boite->Brancher(true);
    QTRY_COMPARE_WITH_TIMEOUT(int(manuel.virtuelle.boite->Etat().pwmFil), 0, 2000);
    QVERIFY(!CoupureEnSuspens);
    QTRY_COMPARE(manuel.poste.NombreBoites(), std::size_t(2));
    QCOMPARE(manuel.poste.DerniereBoite().titre, std::string("Interface retrouvée"));
    QTest::qWait(30);
    QCOMPARE(manuel.poste.NombreBoites(), std::size_t(2));
}

// The very first heat, which the box does not confirm: the mouse reaches Stop.
void EssaiSecoursChauffe2D::StopRenonceALaChauffeSansReponse() {
    Manuel manuel;
    simulateur::PanneProgrammee panne;
    panne.panne = simulateur::Panne::ReponsePerdue;
    panne.commande = CommandeChauffe;
    panne.fois = 4; // one more and the heat is given up by itself
    manuel.virtuelle.boite->Programmer(panne);
    auto& stop = manuel.poste.Trouver<QPushButton>("optAnnulerHome");
    bool permis = false;
    manuel.virtuelle.SurPompe = [&] {
        if (permis || manuel.virtuelle.Compter(CommandeChauffe, 1) != 1) return;
        permis = stop.isEnabled();
        QTest::mouseClick(&stop, Qt::LeftButton);
    };
    manuel.poste.Trouver<QScrollBar>("hscChauffeFilManuel").setValue(60);
    manuel.poste.Cliquer<QToolButton>("optChauffe_1");
    manuel.virtuelle.SurPompe = {};
    QVERIFY(permis);
    QCOMPARE(manuel.virtuelle.Compter(CommandeChauffe, 1), std::size_t(1));
    QCOMPARE(int(manuel.virtuelle.boite->Etat().pwmFil), 0);
    QVERIFY(manuel.AuRepos());
}

QTEST_MAIN(EssaiSecoursChauffe2D)
#include "essai_secours_chauffe_2d.moc"
