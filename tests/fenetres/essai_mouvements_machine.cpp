// The test moves of the parameter window with the virtual box: increments, positions, speeds, stops, heat,
// and a wire that is cold when the window closes.
#include "app/texts/textes_programme.h"
#include "fenetres/boite_des_fenetres.h"
#include "fenetres/images.h"
#include "fenetres/poste_machine.h"
#include "machine/ui/frmParametresTables.h"
#include "machine/ui/libelles_parametres.h"
#include "ui/theme.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QRadioButton>
#include <QScrollBar>
#include <QTimer>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

void Taper(const QWidget& fenetre, const char* champ, const QString& texte) {
    auto& saisie = Controle<QLineEdit>(fenetre, champ);
    saisie.setFocus();
    saisie.selectAll();
    QTest::keyClicks(&saisie, texte);
}

// The machine in memory 1, the page of the moves open.
struct Essais {
    explicit Essais(Langue langue = Langue::Francais) : poste(langue) {
        virtuelle.Memoriser(TableINI);
        fenetre = std::make_unique<frmParametresTables>();
        Exposer(*fenetre);
        if (!MouvementsActifs) qFatal("moves are not enabled");
        Cliquer(*fenetre, "optReglagesVersManu_1");
    }
    [[nodiscard]] simulateur::PositionPas Position() const { return virtuelle.boite->Position(); }
    PosteMachine poste;
    BoiteDesFenetres virtuelle;
    std::unique_ptr<frmParametresTables> fenetre;
};

} // namespace

class EssaiMouvementsMachine : public QObject {
    Q_OBJECT
private slots:
    void init() { AppliquerTheme(Theme::Clair); }

    void LesIncrementsDeplacentLesChariots();
    void LesValeursVontALaPosition();
    void UneVitesseIncorrecteEstRefusee();
    void StopArreteLeMouvement();
    void LeBoutonStopDeLaMachineCoupeLaChauffe();
    void LesMoteursSeCoupent();
    void CouperPendantUnMouvementBaisseLaChauffePuisLaConfirme();
    void CouperLesMoteursPendantUnMouvementLArreteDAbord();
    void UnArretSansReponseSeDit();
    void ToucherLaBarreApresLaCoupureNeRallumePas();
    void RallumerPendantLeMouvementReprendLaCoupure();
    void RienNeSeMeleAUneChauffeDemandee();
    void LaChauffeSuitSesBoutons();
    void UneChauffeSansEchoEstCoupeePuisDite();
    void ChangerDeReglagesCommenceFilFroid_data();
    void ChangerDeReglagesCommenceFilFroid();
    void FermerAvecLeFilChaudLeRefroidit();
    void FermerAvecLaBoiteDebrancheePrevient();
    void Images_data();
    void Images();
};

void EssaiMouvementsMachine::LesIncrementsDeplacentLesChariots() {
    Essais essai;
    Taper(*essai.fenetre, "txtIncrements_0", QStringLiteral("10"));
    Taper(*essai.fenetre, "txtIncrements_3", QStringLiteral("2,5"));
    Cliquer(*essai.fenetre, "cmdGoIncrements");
    QCOMPARE(essai.Position()[AxeX1], 3200); // 320 steps per mm
    QCOMPARE(essai.Position()[AxeY1], 0);
    QCOMPARE(essai.Position()[AxeY2], 800);
    QCOMPARE(Controle<QLabel>(*essai.fenetre, "lblEtatMouvement").text(),
             QStringLiteral("Mouvement terminé"));
    QCOMPARE(Controle<QLabel>(*essai.fenetre, "lblPosition_0").text(), QStringLiteral("10.0 mm"));
    Cliquer(*essai.fenetre, "optMMPas_1");
    Taper(*essai.fenetre, "txtIncrements_0", QStringLiteral("-200"));
    Taper(*essai.fenetre, "txtIncrements_3", QStringLiteral("0"));
    Cliquer(*essai.fenetre, "cmdGoIncrements");
    QCOMPARE(essai.Position()[AxeX1], 3000);
    QVERIFY(essai.poste.boites.boites.empty());
}

void EssaiMouvementsMachine::LesValeursVontALaPosition() {
    Essais essai;
    Cliquer(*essai.fenetre, "chkMvtValeurs1egal2");
    QVERIFY(!Controle<QWidget>(*essai.fenetre, "txtValeurs_2").isEnabled());
    Taper(*essai.fenetre, "txtValeurs_0", QStringLiteral("5"));
    Taper(*essai.fenetre, "txtValeurs_1", QStringLiteral("3"));
    Cliquer(*essai.fenetre, "cmdGoValeurs");
    QCOMPARE(essai.Position()[AxeX1], 1600);
    QCOMPARE(essai.Position()[AxeX2], 1600);
    QCOMPARE(essai.Position()[AxeY2], 960);
    Taper(*essai.fenetre, "txtValeurs_0", QStringLiteral("4"));
    Cliquer(*essai.fenetre, "cmdGoValeurs");
    QCOMPARE(essai.Position()[AxeX1], 1280);
    QCOMPARE(essai.Position()[AxeY1], 960);
    Cliquer(*essai.fenetre, "cmdRemiseAZero");
    QCOMPARE(Controle<QLabel>(*essai.fenetre, "lblPosition_0").text(), QStringLiteral("0.0 mm"));
}

void EssaiMouvementsMachine::UneVitesseIncorrecteEstRefusee() {
    Essais essai;
    Taper(*essai.fenetre, "txtIncrements_0", QStringLiteral("10"));
    for (const char* vitesse : {"vite", "-1", "10.5"}) {
        essai.poste.boites.boites.clear();
        Taper(*essai.fenetre, "txtVitesseChoisieParam", QString::fromLatin1(vitesse));
        Cliquer(*essai.fenetre, "cmdGoIncrements");
        QCOMPARE(essai.poste.boites.boites.size(), std::size_t(1));
        QCOMPARE(essai.poste.DerniereBoite().texte, std::string("Valeur de Vitesse incorrecte"));
    }
    QCOMPARE(essai.Position()[AxeX1], 0);
    QCOMPARE(essai.virtuelle.Compter(CommandeFile, 128), std::size_t(0));
}

void EssaiMouvementsMachine::StopArreteLeMouvement() {
    Essais essai;
    Cliquer(*essai.fenetre, "optChauffeParam_1");
    Taper(*essai.fenetre, "txtIncrements_0", QStringLiteral("100"));
    int pompages = 0;
    bool cadresFermes = false;
    essai.virtuelle.SurPompe = [&] {
        if (++pompages != 40) return;
        cadresFermes = !Controle<QWidget>(*essai.fenetre, "frameChoixMachine").isEnabled();
        Cliquer(*essai.fenetre, "cmdStopIncrements");
    };
    Cliquer(*essai.fenetre, "cmdGoIncrements");
    essai.virtuelle.SurPompe = {};
    QVERIFY(cadresFermes);
    QCOMPARE(int(essai.virtuelle.boite->Etat().pwmCommande), 0); // a wire that stands melts on
    QVERIFY(Controle<QRadioButton>(*essai.fenetre, "optChauffeParam_0").isChecked());
    QVERIFY(essai.Position()[AxeX1] > 0);
    QVERIFY(essai.Position()[AxeX1] < 32000);
    QCOMPARE(Controle<QLabel>(*essai.fenetre, "lblEtatMouvement").text(), QStringLiteral("Mouvement arrêté"));
    const double montre =
        Controle<QLabel>(*essai.fenetre, "lblPosition_0").text().section(u' ', 0, 0).toDouble();
    QVERIFY(std::abs(montre - essai.Position()[AxeX1] / 320.0) < 0.5);
    QVERIFY(Controle<QWidget>(*essai.fenetre, "frameChoixMachine").isEnabled());
    QVERIFY(essai.poste.boites.boites.empty());
}

void EssaiMouvementsMachine::LeBoutonStopDeLaMachineCoupeLaChauffe() {
    Essais essai;
    Cliquer(*essai.fenetre, "optChauffeParam_1");
    QVERIFY(essai.virtuelle.boite->Etat().pwmFil > 0);
    Taper(*essai.fenetre, "txtIncrements_0", QStringLiteral("100"));
    int pompages = 0;
    essai.virtuelle.SurPompe = [&] {
        if (++pompages == 40) essai.virtuelle.boite->AppuyerStop();
    };
    Cliquer(*essai.fenetre, "cmdGoIncrements");
    essai.virtuelle.SurPompe = {};
    QCOMPARE(int(essai.virtuelle.boite->Etat().pwmFil), 0);
    QVERIFY(Controle<QRadioButton>(*essai.fenetre, "optChauffeParam_0").isChecked());
    QCOMPARE(essai.poste.DerniereBoite().texte,
             std::string("Arrêt chauffe et mouvements par appui sur bouton STOP de la machine."));
    QCOMPARE(essai.poste.DerniereBoite().titre, std::string("Arrêt d'urgence"));
}

void EssaiMouvementsMachine::CouperPendantUnMouvementBaisseLaChauffePuisLaConfirme() {
    Essais essai;
    Cliquer(*essai.fenetre, "optChauffeParam_1");
    Taper(*essai.fenetre, "txtIncrements_0", QStringLiteral("100"));
    int pompages = 0;
    std::size_t avant = 0;
    int ensuite = -1;
    essai.virtuelle.SurPompe = [&] {
        ++pompages;
        if (pompages == 40) {
            avant = essai.virtuelle.commandes.size();
            Cliquer(*essai.fenetre, "optChauffeParam_0");
            // The handler sets a flag; no exchange starts inside another.
            QCOMPARE(essai.virtuelle.commandes.size(), avant);
        }
        if (pompages == 45) ensuite = essai.virtuelle.boite->Etat().pwmCommande;
    };
    Cliquer(*essai.fenetre, "cmdGoIncrements");
    essai.virtuelle.SurPompe = {};
    QCOMPARE(ensuite, 0);
    QCOMPARE(essai.Position()[AxeX1], 32000); // the move goes on
    QCOMPARE(essai.virtuelle.Compter(CommandeChauffe, 0), std::size_t(1));
    QVERIFY(Controle<QRadioButton>(*essai.fenetre, "optChauffeParam_0").isChecked());
}

void EssaiMouvementsMachine::UnArretSansReponseSeDit() {
    Essais essai;
    Taper(*essai.fenetre, "txtIncrements_0", QStringLiteral("100"));
    int pompages = 0;
    essai.virtuelle.SurPompe = [&] {
        if (++pompages == 40) {
            essai.virtuelle.boite->Brancher(false);
            Cliquer(*essai.fenetre, "cmdStopIncrements");
        }
        for (auto* alerte : essai.fenetre->findChildren<QMessageBox*>(QStringLiteral("alerteInterface")))
            if (alerte->isVisible()) QTest::mouseClick(alerte->button(QMessageBox::Ok), Qt::LeftButton);
    };
    Cliquer(*essai.fenetre, "cmdGoIncrements");
    essai.virtuelle.SurPompe = {};
    // After what is told of the heat, which the box did not confirm either.
    QCOMPARE(essai.poste.DerniereBoite().texte, Texte(TexteProgramme::MarcheAbandonnee));
    QVERIFY(essai.poste.DerniereBoite().icone == IconeBoite::Critique);
    QCOMPARE(Controle<QLabel>(*essai.fenetre, "lblEtatMouvement").text(),
             QStringLiteral("Arrêt non confirmé par l'interface"));
}

void EssaiMouvementsMachine::ToucherLaBarreApresLaCoupureNeRallumePas() {
    Essais essai;
    Cliquer(*essai.fenetre, "optChauffeParam_1");
    Taper(*essai.fenetre, "txtIncrements_0", QStringLiteral("100"));
    int pompages = 0;
    essai.virtuelle.SurPompe = [&] {
        ++pompages;
        if (pompages == 40) Cliquer(*essai.fenetre, "optChauffeParam_0");
        if (pompages == 50) Controle<QScrollBar>(*essai.fenetre, "hscChauffeParam").setValue(30);
    };
    Cliquer(*essai.fenetre, "cmdGoIncrements");
    essai.virtuelle.SurPompe = {};
    QVERIFY(pompages > 60);
    QCOMPARE(essai.virtuelle.Compter(CommandeChauffe, 1) - essai.virtuelle.Compter(CommandeChauffe, 0),
             std::size_t(1)); // on, off through the run's own P 1 0, then P 0 0
    QVERIFY(std::ranges::none_of(essai.virtuelle.commandes, [](const Tampon& t) {
        return t[1] == CommandeChauffe && t[3] == 76; // 30 %
    }));
    QCOMPARE(int(essai.virtuelle.boite->Etat().pwmCommande), 0);
    QVERIFY(Controle<QRadioButton>(*essai.fenetre, "optChauffeParam_0").isChecked());
}

void EssaiMouvementsMachine::RallumerPendantLeMouvementReprendLaCoupure() {
    Essais essai;
    Cliquer(*essai.fenetre, "optChauffeParam_1");
    Controle<QScrollBar>(*essai.fenetre, "hscChauffeParam").setValue(20);
    Taper(*essai.fenetre, "txtIncrements_0", QStringLiteral("100"));
    int pompages = 0;
    int entre = -1;
    int rallumee = -1;
    essai.virtuelle.SurPompe = [&] {
        ++pompages;
        if (pompages == 40) Cliquer(*essai.fenetre, "optChauffeParam_0");
        if (pompages == 50) {
            entre = essai.virtuelle.boite->Etat().pwmCommande;
            Cliquer(*essai.fenetre, "optChauffeParam_1");
        }
        if (pompages == 55) rallumee = essai.virtuelle.boite->Etat().pwmCommande;
        if (pompages == 60) Controle<QScrollBar>(*essai.fenetre, "hscChauffeParam").setValue(40);
    };
    Cliquer(*essai.fenetre, "cmdGoIncrements");
    essai.virtuelle.SurPompe = {};
    QCOMPARE(entre, 0);
    QCOMPARE(rallumee, 51);                                        // 20 %
    QCOMPARE(int(essai.virtuelle.boite->Etat().pwmCommande), 102); // 40 %
    QVERIFY(Controle<QRadioButton>(*essai.fenetre, "optChauffeParam_1").isChecked());
    QVERIFY(Controle<QLabel>(*essai.fenetre, "lblWarningChauffe").isVisible());
}

void EssaiMouvementsMachine::RienNeSeMeleAUneChauffeDemandee() {
    Essais essai;
    simulateur::PanneProgrammee panne; // P goes out again and again
    panne.panne = simulateur::Panne::CommandePerdue;
    panne.commande = CommandeChauffe;
    panne.echange = 1;
    panne.fois = 3;
    essai.virtuelle.boite->Programmer(panne);
    const std::string machine = TableINI.Nom;
    std::size_t avant = 0;
    std::size_t apres = 0;
    int pompages = 0;
    essai.virtuelle.SurPompe = [&] {
        if (++pompages != 1) return;
        avant = essai.virtuelle.commandes.size();
        for (const char* bouton : {"cmdRafraichirUsb", "cmdValider_0", "cmdValider_1", "cmdNouvelleTable"})
            Cliquer(*essai.fenetre, bouton);
        auto& machines = Controle<QComboBox>(*essai.fenetre, "comboMachines");
        emit machines.activated(machines.currentIndex() == 0 ? 1 : 0);
        apres = essai.virtuelle.commandes.size();
    };
    Cliquer(*essai.fenetre, "optChauffeParam_1");
    essai.virtuelle.SurPompe = {};
    QVERIFY(avant > 0);
    QCOMPARE(apres, avant);
    QCOMPARE(TableINI.Nom, machine);
    QVERIFY(essai.poste.boites.boites.empty());
    QVERIFY(essai.virtuelle.boite->Etat().pwmCommande > 0);
}

void EssaiMouvementsMachine::CouperLesMoteursPendantUnMouvementLArreteDAbord() {
    Essais essai;
    Taper(*essai.fenetre, "txtIncrements_0", QStringLiteral("100"));
    int pompages = 0;
    essai.virtuelle.SurPompe = [&] {
        if (++pompages == 40) Cliquer(*essai.fenetre, "cmdMoteursOff");
    };
    Cliquer(*essai.fenetre, "cmdGoIncrements");
    essai.virtuelle.SurPompe = {};
    QVERIFY(essai.Position()[AxeX1] < 32000);
    QCOMPARE(essai.virtuelle.Compter(CommandeMoteurs, 0), std::size_t(1));
    const auto& envois = essai.virtuelle.commandes;
    const auto rang = [&envois](std::uint8_t code) {
        return std::ranges::find_if(envois, [code](const Tampon& t) { return t[1] == code; }) -
               envois.begin();
    };
    QVERIFY(rang(CommandeArret) < rang(CommandeMoteurs));
    QVERIFY(essai.poste.boites.boites.empty());
}

void EssaiMouvementsMachine::LesMoteursSeCoupent() {
    Essais essai;
    Cliquer(*essai.fenetre, "cmdMoteursOff");
    QCOMPARE(essai.virtuelle.Compter(CommandeMoteurs, 0), std::size_t(1));
}

void EssaiMouvementsMachine::LaChauffeSuitSesBoutons() {
    Essais essai;
    auto& chauffe = Controle<QScrollBar>(*essai.fenetre, "hscChauffeParam");
    QCOMPARE(chauffe.maximum(), 80);
    chauffe.setValue(20);
    QCOMPARE(int(essai.virtuelle.boite->Etat().pwmCommande), 0);
    Cliquer(*essai.fenetre, "optChauffeParam_1");
    QCOMPARE(int(essai.virtuelle.boite->Etat().pwmCommande), 51);
    QVERIFY(Controle<QLabel>(*essai.fenetre, "lblWarningChauffe").isVisible());
    chauffe.setValue(40);
    QCOMPARE(int(essai.virtuelle.boite->Etat().pwmCommande), 102);
    Cliquer(*essai.fenetre, "optChauffeParam_0");
    QCOMPARE(int(essai.virtuelle.boite->Etat().pwmCommande), 0);
    QVERIFY(!Controle<QLabel>(*essai.fenetre, "lblWarningChauffe").isVisible());
    // The box's own switches forbid it.
    simulateur::Commutateurs manu;
    manu.chauffeManu = true;
    essai.virtuelle.boite->FixerCommutateurs(manu);
    Cliquer(*essai.fenetre, "optChauffeParam_1");
    QCOMPARE(essai.poste.DerniereBoite().texte, TextesMessages(107));
    QVERIFY(Controle<QRadioButton>(*essai.fenetre, "optChauffeParam_0").isChecked());
}

void EssaiMouvementsMachine::UneChauffeSansEchoEstCoupeePuisDite() {
    Essais essai;
    // The status asked before the heat gets through; the heat is not answered for until it is given up.
    simulateur::PanneProgrammee panne;
    panne.panne = simulateur::Panne::ReponsePerdue;
    panne.echange = essai.virtuelle.boite->Comptes().echanges + 2;
    panne.fois = 5;
    essai.virtuelle.boite->Programmer(panne);
    Cliquer(*essai.fenetre, "optChauffeParam_1");
    QCOMPARE(essai.virtuelle.boite->Etat().pwmCommande, std::uint8_t(0));
    QCOMPARE(essai.poste.boites.boites.size(), std::size_t(1));
    const std::string& texte = essai.poste.boites.boites[0].texte;
    QVERIFY(texte.starts_with("Erreur -203"));
    QVERIFY(texte.ends_with("EnvoyerChauffe"));
}

void EssaiMouvementsMachine::ChangerDeReglagesCommenceFilFroid_data() {
    QTest::addColumn<QString>("geste");
    for (const char* geste :
         {"comboMachines", "cmdValider_0", "cmdRafraichirUsb", "cmdNouvelleTable", "cmdEffacerTable"})
        QTest::addRow("%s", geste) << QString::fromLatin1(geste);
}
// The other machine is in the box as well, and proposes another heat: it must not reach a wire that was lit
// for this one.
void EssaiMouvementsMachine::ChangerDeReglagesCommenceFilFroid() {
    QFETCH(QString, geste);
    Essais essai;
    const std::string machine = TableINI.Nom;
    ChargerMachine("QT4X-m1");
    simulateur::MemoiresBoite memoires = essai.virtuelle.boite->Memoires();
    memoires[1] = simulateur::MemoireDeMachine(TableINI);
    essai.virtuelle.boite->EcrireMemoires(memoires);
    ChargerMachine(machine);
    Controle<QScrollBar>(*essai.fenetre, "hscChauffeParam").setValue(20);
    Cliquer(*essai.fenetre, "optChauffeParam_1");
    QCOMPARE(int(essai.virtuelle.boite->Etat().pwmFil), 51);
    essai.virtuelle.commandes.clear();
    QTimer fermeur; // the name of a new machine is asked
    connect(&fermeur, &QTimer::timeout, [] {
        if (auto* demande = qobject_cast<QDialog*>(QApplication::activeModalWidget())) demande->reject();
    });
    fermeur.start(20);
    if (geste == QStringLiteral("comboMachines")) {
        auto& machines = Controle<QComboBox>(*essai.fenetre, "comboMachines");
        emit machines.activated(machines.findText(QStringLiteral("QT4X-m1")));
        QCOMPARE(TableINI.Nom, std::string("QT4X-m1"));
        QVERIFY(MouvementsActifs);
    } else {
        Controle<QWidget>(*essai.fenetre, qPrintable(geste)).setEnabled(true); // a built-in machine stays
        Cliquer(*essai.fenetre, qPrintable(geste));
    }
    QCOMPARE(int(essai.virtuelle.boite->Etat().pwmFil), 0);
    QCOMPARE(essai.virtuelle.Compter(CommandeChauffe, 1), std::size_t(0));
    QVERIFY(!essai.virtuelle.commandes.empty());
    QCOMPARE(int(essai.virtuelle.commandes.front()[1]), int(CommandeChauffe)); // before all else
    QVERIFY(!Controle<QLabel>(*essai.fenetre, "lblWarningChauffe").isVisible());
}

void EssaiMouvementsMachine::FermerAvecLeFilChaudLeRefroidit() {
    Essais essai;
    Cliquer(*essai.fenetre, "optChauffeParam_1");
    QVERIFY(essai.virtuelle.boite->Etat().pwmCommande > 0);
    simulateur::PanneProgrammee panne; // the first two answers are lost
    panne.panne = simulateur::Panne::CommandePerdue;
    panne.commande = CommandeChauffe;
    panne.echange = 1;
    panne.fois = 2;
    essai.virtuelle.boite->Programmer(panne);
    Cliquer(*essai.fenetre, "cmdQuitter");
    QVERIFY(!essai.fenetre->isVisible());
    QCOMPARE(int(essai.virtuelle.boite->Etat().pwmCommande), 0);
    QVERIFY(essai.poste.boites.boites.empty());
}

void EssaiMouvementsMachine::FermerAvecLaBoiteDebrancheePrevient() {
    Essais essai;
    Cliquer(*essai.fenetre, "optChauffeParam_1");
    essai.virtuelle.boite->Brancher(false);
    QString alerte;
    essai.virtuelle.SurPompe = [&] {
        auto* boite = essai.fenetre->findChild<QMessageBox*>(QStringLiteral("alerteInterface"));
        if (boite == nullptr || !alerte.isEmpty()) return;
        alerte = boite->text();
        QTest::mouseClick(boite->button(QMessageBox::Ok), Qt::LeftButton);
    };
    Cliquer(*essai.fenetre, "cmdQuitter");
    essai.virtuelle.SurPompe = {};
    QVERIFY(alerte.startsWith(QStringLiteral("La chauffe ne répond pas")));
    QVERIFY(essai.poste.DerniereBoite().texte.starts_with("Attention, la chauffe n'est pas coupée!"));
    QCOMPARE(essai.poste.DerniereBoite().titre, std::string("Problème de communication avec la machine"));
    QVERIFY(essai.poste.DerniereBoite().icone == IconeBoite::Critique);
}

void EssaiMouvementsMachine::Images_data() {
    RangeesImages();
}
void EssaiMouvementsMachine::Images() {
    Essais essai(ReglerRangeeImage());
    QVERIFY(DefautsLibelles(*essai.fenetre, LibellesParametresTables()).empty());
    Taper(*essai.fenetre, "txtIncrements_0", QStringLiteral("10"));
    Cliquer(*essai.fenetre, "cmdGoIncrements");
    Cliquer(*essai.fenetre, "optChauffeParam_1");
    QApplication::processEvents();
    QVERIFY2(MotsCoupes(*essai.fenetre).isEmpty(), qPrintable(MotsCoupes(*essai.fenetre).join(u' ')));
    QVERIFY(SauverImageRangee(*essai.fenetre, QStringLiteral("frmParametresTables-essais-")));
}

QTEST_MAIN(EssaiMouvementsMachine)
#include "essai_mouvements_machine.moc"
