// The wire heated by hand in the 2D window, on the virtual machine: what its own record says after every way
// to light it, to change it, to put it out, to leave it alone, and to lose the box.
#include "app/texts/textes_programme.h"
#include "fenetres/images.h"
#include "fenetres/poste_machine.h"
#include "fenetres/poste_manuel.h"
#include "link/liste_salves.h"
#include "platform/signaux_fin.h"
#include "ui/boites_qt.h"
#include "ui/fin_demandee.h"
#include "ui/theme.h"
#include "work2d/ui/libelles_2d.h"

#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTimer>
#include <csignal>

using namespace tessarel;
using namespace tessarel::essais;
using namespace std::chrono_literals;

namespace {

// 60 % is 153 on the wire, 40 % is 102.
constexpr int Pourcent = 60;
constexpr int Octet = 153;

struct Chauffe : Manuel {
    explicit Chauffe(const char* machine = "(Defaut)", Langue langue = Langue::Francais)
        : Manuel(machine, langue) {
        poste.Trouver<QScrollBar>("hscChauffeFilManuel").setValue(Pourcent);
    }
    void Allumer() { poste.Cliquer<QToolButton>("optChauffe_1"); }
    void Couper() { poste.Cliquer<QToolButton>("optChauffe_0"); }
    [[nodiscard]] int SurLeFil() const { return virtuelle.boite->Etat().pwmFil; }
    // What the page says.
    [[nodiscard]] bool MontreChaud() const {
        return poste.Trouver<QToolButton>("optChauffe_1").isChecked() && SigneVisible() &&
               poste.Trouver<QLabel>("lblFilChaud").text() == QStringLiteral("FIL CHAUD") &&
               poste.Trouver<QPushButton>("optAnnulerHome").isEnabled();
    }
    [[nodiscard]] bool MontreFroid() const {
        return poste.Trouver<QToolButton>("optChauffe_0").isChecked() && !SigneVisible() &&
               poste.Trouver<QProgressBar>("progrbarChauffeManu").isHidden() &&
               !poste.Trouver<QTimer>("TimerClignotement").isActive();
    }
    [[nodiscard]] bool SigneVisible() const { return !poste.Trouver<QLabel>("lblFilChaud").isHidden(); }
    // The watch over the wire looks every few milliseconds.
    void VeillerVite() const { poste.Trouver<QTimer>("TimerClignotement").setInterval(5); }
    [[nodiscard]] QMessageBox* Alerte() const {
        auto* alerte = poste.fenetre->findChild<QMessageBox*>(QStringLiteral("alerteInterface"));
        return alerte != nullptr && alerte->isVisible() ? alerte : nullptr;
    }
    // What went out since the `n`-th command, of heat: the byte of each, 0 for off.
    [[nodiscard]] std::vector<int> Envoyees(std::size_t n) const {
        std::vector<int> octets;
        for (std::size_t i = n; i < virtuelle.commandes.size(); ++i) {
            const Tampon& t = virtuelle.commandes[i];
            if (t[1] == CommandeChauffe) octets.push_back(t[2] == 0 ? 0 : t[3]);
        }
        return octets;
    }
};

} // namespace

class EssaiChauffeManuelle2D : public QObject {
    Q_OBJECT
private slots:
    void init() { AppliquerTheme(Theme::Clair); }

    void AllumerEnvoieLOctet();
    void CouperEstConfirme();
    void LaBarreCommandeLeFilAllume();
    void LaBarreNAllumePasUnFilFroid();
    void LesTouches();
    void LeSigneClignote();
    void LeDecompte();
    void LeDecompteDeLaV10SuitSaTable();
    void SurManuLUtilisateurDecide();
    void SurOffEstRefuse();
    void SansInterfaceRienNeChauffe();
    void QuitterCoupe_data();
    void QuitterCoupe();
    void LaFlecheLacheeRenvoieLaChauffe();
    void LaBarrePendantUneFleche();
    void StopPendantUneFlecheCoupe();
    void FermerPendantUneFlecheCoupe();
    void UnInterrupteurPendantUneFlecheCoupeAvantDeLeDire();
    void UneProcedureBougeFilFroid();
    void LaDecoupeQuiSuitPartFroide();
    void LaMachineQuiCoupeEstVue();
    void DebrancheeLAlerteParaitEtLeRetourRefroidit();
    void AbandonneeLeFilResteIncertain();
    void FermerPendantQueLaBoiteSeTaitAttend();
    void UneReponsePerdueNeLaissePasChaud();
    void Images_data();
    void Images();
    void LeSignalDeFinCoupe(); // last: the signal stays received
};

void EssaiChauffeManuelle2D::AllumerEnvoieLOctet() {
    Chauffe chauffe;
    QVERIFY(chauffe.MontreFroid());
    QCOMPARE(chauffe.poste.Trouver<QLabel>("lblValeurChauffeManuel").text(), QStringLiteral("60 %"));
    QVERIFY(!chauffe.poste.Trouver<QPushButton>("optAnnulerHome").isEnabled());
    chauffe.Allumer();
    QCOMPARE(chauffe.SurLeFil(), Octet);
    QCOMPARE(int(chauffe.virtuelle.boite->HistoireChauffe().back().pwm), Octet);
    QVERIFY(chauffe.MontreChaud());
    chauffe.Allumer(); // on already: nothing more goes out
    QCOMPARE(chauffe.virtuelle.Compter(CommandeChauffe, 1), std::size_t(1));
    QCOMPARE(chauffe.poste.NombreBoites(), std::size_t(0));
}

void EssaiChauffeManuelle2D::CouperEstConfirme() {
    Chauffe chauffe;
    chauffe.Allumer();
    const std::size_t avant = chauffe.virtuelle.commandes.size();
    chauffe.Couper();
    QVERIFY(chauffe.Envoyees(avant) == std::vector<int>{0});
    QCOMPARE(chauffe.SurLeFil(), 0);
    QVERIFY(chauffe.MontreFroid());
    QVERIFY(!chauffe.poste.Trouver<QPushButton>("optAnnulerHome").isEnabled());
}

void EssaiChauffeManuelle2D::LaBarreCommandeLeFilAllume() {
    Chauffe chauffe;
    chauffe.Allumer();
    auto& barre = chauffe.poste.Trouver<QScrollBar>("hscChauffeFilManuel");
    barre.setValue(40);
    QCOMPARE(chauffe.SurLeFil(), 102);
    barre.setFocus();
    QTest::keyClick(&barre, Qt::Key_Right);
    QCOMPARE(barre.value(), 41);
    QCOMPARE(chauffe.SurLeFil(), 105); // 41 x 2.55 = 104.55
    QCOMPARE(barre.maximum(), int(TableINI.ChauffeMaxiSur100));
    QVERIFY(chauffe.MontreChaud());
}

void EssaiChauffeManuelle2D::LaBarreNAllumePasUnFilFroid() {
    Chauffe chauffe;
    chauffe.poste.Trouver<QScrollBar>("hscChauffeFilManuel").setValue(45);
    chauffe.Allumer();
    chauffe.Couper();
    chauffe.poste.Trouver<QScrollBar>("hscChauffeFilManuel").setValue(50);
    QCOMPARE(chauffe.SurLeFil(), 0);
    QCOMPARE(chauffe.virtuelle.Compter(CommandeChauffe, 1), std::size_t(1));
}

void EssaiChauffeManuelle2D::LesTouches() {
    Chauffe chauffe;
    // A button that is reached by its keys is seen to go down before it acts.
    QTest::keyClick(chauffe.poste.fenetre.get(), Qt::Key_H, Qt::ControlModifier);
    QTRY_VERIFY_WITH_TIMEOUT(chauffe.MontreChaud(), 1000);
    QTest::keyClick(chauffe.poste.fenetre.get(), Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_VERIFY_WITH_TIMEOUT(chauffe.MontreFroid(), 1000);
    chauffe.Allumer();
    QTest::keyClick(chauffe.poste.fenetre.get(), Qt::Key_Escape); // Stop acts at once
    QCOMPARE(chauffe.SurLeFil(), 0);
    QVERIFY(chauffe.MontreFroid());
}

void EssaiChauffeManuelle2D::LeSigneClignote() {
    Chauffe chauffe;
    chauffe.Allumer();
    auto& signe = chauffe.poste.Trouver<QLabel>("lblFilChaud");
    const auto fond = [&signe] { return signe.grab().toImage().pixelColor(8, signe.height() / 2); };
    const QColor pleine = fond();
    QCOMPARE(pleine, CouleurFil());
    QTRY_VERIFY_WITH_TIMEOUT(fond() != pleine, 2000);
    QTRY_COMPARE_WITH_TIMEOUT(fond(), pleine, 2000);
    chauffe.Couper();
    QVERIFY(!chauffe.SigneVisible());
}

void EssaiChauffeManuelle2D::LeDecompte() {
    Chauffe chauffe;
    TableINI.TempoChauffe = 10;
    chauffe.Allumer();
    auto& barre = chauffe.poste.Trouver<QProgressBar>("progrbarChauffeManu");
    auto& temps = chauffe.poste.Trouver<QTimer>("TimerTempoChauffeManu");
    QVERIFY(barre.isVisible());
    QCOMPARE(barre.format(), QStringLiteral("Chauffe 10/10 s"));
    chauffe.virtuelle.Attendre(4s);
    QTRY_COMPARE_WITH_TIMEOUT(barre.format(), QStringLiteral("Chauffe 6/10 s"), 1000);
    QVERIFY(std::abs(barre.value() - 400) <= 20); // an exchange or two have passed meanwhile
    QVERIFY(temps.isActive());
    chauffe.virtuelle.Attendre(6s);
    QTRY_COMPARE_WITH_TIMEOUT(barre.format(), QStringLiteral("Fil à température"), 1000);
    QCOMPARE(barre.value(), barre.maximum());
    QVERIFY(!temps.isActive());
    QVERIFY(chauffe.MontreChaud());
}

void EssaiChauffeManuelle2D::LeDecompteDeLaV10SuitSaTable() {
    Chauffe chauffe("QT2d v10");
    chauffe.Allumer(); // 60 % takes 25 s on that machine
    QCOMPARE(chauffe.poste.Trouver<QProgressBar>("progrbarChauffeManu").format(),
             QStringLiteral("Chauffe 25/25 s"));
    chauffe.Couper();
    chauffe.poste.Trouver<QScrollBar>("hscChauffeFilManuel").setValue(45);
    chauffe.Allumer();
    QCOMPARE(chauffe.poste.Trouver<QProgressBar>("progrbarChauffeManu").format(),
             QStringLiteral("Chauffe 20/20 s"));
}

void EssaiChauffeManuelle2D::SurManuLUtilisateurDecide() {
    Chauffe chauffe;
    chauffe.virtuelle.boite->FixerCommutateurs({.chauffeManu = true});
    chauffe.poste.boites.reponses = {ReponseBoite::Non};
    chauffe.Allumer();
    QCOMPARE(chauffe.poste.DerniereBoite().titre, std::string("Attention à la position des interrupteurs"));
    QVERIFY(chauffe.poste.DerniereBoite().texte.starts_with(
        "L'interrupteur de chauffe PC/MANU est sur MANU, ce qui signifie que vous gérez la valeur de la "
        "chauffe manuellement."));
    QVERIFY(chauffe.poste.DerniereBoite().texte.ends_with("Confirmez-vous ce choix?"));
    QCOMPARE(chauffe.virtuelle.Compter(CommandeChauffe, 1), std::size_t(0));
    QVERIFY(chauffe.MontreFroid());
    chauffe.poste.boites.reponses = {ReponseBoite::Oui};
    chauffe.Allumer();
    QCOMPARE(chauffe.virtuelle.boite->Etat().pwmCommande, std::uint8_t(Octet));
    QVERIFY(chauffe.MontreChaud()); // the knob rules: the program can't know how hot
    chauffe.Couper();
    QCOMPARE(chauffe.poste.DerniereBoite().titre, Texte(TexteProgramme::FilChaudSurManuTitre));
    QVERIFY(!chauffe.MontreFroid());
}

void EssaiChauffeManuelle2D::SurOffEstRefuse() {
    Chauffe chauffe;
    chauffe.virtuelle.boite->FixerCommutateurs({.chauffeEteinte = true});
    chauffe.Allumer();
    QCOMPARE(chauffe.poste.DerniereBoite().texte,
             std::string("L'interrupteur de chauffe ON/OFF doit être mis sur ON"));
    QVERIFY(chauffe.MontreFroid());
    QCOMPARE(chauffe.virtuelle.Compter(CommandeChauffe, 1), std::size_t(0));
}

void EssaiChauffeManuelle2D::SansInterfaceRienNeChauffe() {
    Chauffe chauffe;
    chauffe.virtuelle.boite->Brancher(false); // not noticed yet
    chauffe.Allumer();
    QCOMPARE(chauffe.poste.DerniereBoite().texte, std::string("Pas d'interface détectée"));
    QVERIFY(chauffe.MontreFroid());
    chauffe.poste.Cliquer<QToolButton>("cmdRafraichirUsbTS2D");
    chauffe.Allumer(); // known by now
    QCOMPARE(chauffe.poste.DerniereBoite().texte, std::string("Pas d'interface détectée"));
    QCOMPARE(chauffe.poste.DerniereBoite().titre, std::string("Désactivation des mouvements"));
    QVERIFY(chauffe.MontreFroid());
    QCOMPARE(chauffe.virtuelle.Compter(CommandeChauffe, 1), std::size_t(0));
}

void EssaiChauffeManuelle2D::QuitterCoupe_data() {
    QTest::addColumn<QString>("geste");
    for (const char* geste : {"fermer la page", "fermer la fenetre", "nouveau projet", "ouvrir un dessin",
                              "machine", "matieres", "interface", "stop"})
        QTest::addRow("%s", geste) << QString::fromLatin1(geste);
}
void EssaiChauffeManuelle2D::QuitterCoupe() {
    QFETCH(QString, geste);
    Chauffe chauffe;
    chauffe.Allumer();
    QCOMPARE(chauffe.SurLeFil(), Octet);
    int surLeFil = -1; // when the other window opens
    for (auto signal : {&frmTessarel2D::ParametrerMachine, &frmTessarel2D::GererMatieres})
        connect(chauffe.poste.fenetre.get(), signal, this, [&] { surLeFil = chauffe.SurLeFil(); });
    if (geste == QStringLiteral("fermer la page")) {
        chauffe.poste.Cliquer<QPushButton>("cmdFermerManuel");
        QVERIFY(chauffe.poste.Trouver<QPushButton>("cmdDecouper").isVisible());
    } else if (geste == QStringLiteral("fermer la fenetre")) {
        QVERIFY(chauffe.poste.fenetre->close());
    } else if (geste == QStringLiteral("nouveau projet")) {
        chauffe.poste.Cliquer<QToolButton>("cmdNouveauProjetTS2D");
    } else if (geste == QStringLiteral("ouvrir un dessin")) {
        chauffe.poste.Deposer({chauffe.poste.Fichier("rectangle.txt", RectangleTexte)});
        QVERIFY(chauffe.poste.Trouver<QPushButton>("cmdDecouper").isVisible());
    } else if (geste == QStringLiteral("stop")) {
        chauffe.poste.Cliquer<QPushButton>("optAnnulerHome");
    } else {
        const char* nom = geste == QStringLiteral("machine")    ? "cmdParametresMachine"
                          : geste == QStringLiteral("matieres") ? "cmdMatieres"
                                                                : "cmdRafraichirUsbTS2D";
        chauffe.poste.Cliquer<QToolButton>(nom);
        QCOMPARE(surLeFil, geste == QStringLiteral("interface") ? -1 : 0);
    }
    QCOMPARE(chauffe.SurLeFil(), 0);
    QVERIFY(chauffe.MontreFroid());
    QCOMPARE(chauffe.poste.NombreBoites(), std::size_t(0));
}

void EssaiChauffeManuelle2D::LaFlecheLacheeRenvoieLaChauffe() {
    Chauffe chauffe;
    chauffe.Allumer();
    const std::size_t avant = chauffe.virtuelle.commandes.size();
    chauffe.Tenir("optGoManuel_4", 60);
    QVERIFY(chauffe.Position()[AxeX1] > 0);
    QVERIFY(chauffe.Envoyees(avant) == std::vector<int>{Octet});
    QCOMPARE(int(chauffe.virtuelle.commandes.back()[1]), int(CommandeChauffe));
    QCOMPARE(chauffe.SurLeFil(), Octet);
    QVERIFY(chauffe.MontreChaud());
}

void EssaiChauffeManuelle2D::LaBarrePendantUneFleche() {
    Chauffe chauffe;
    chauffe.Allumer();
    auto& fleche = chauffe.poste.Trouver<QToolButton>("optGoManuel_4");
    auto& barre = chauffe.poste.Trouver<QScrollBar>("hscChauffeFilManuel");
    int tours = 0;
    int pendant = 0;
    chauffe.virtuelle.SurPompe = [&] {
        if (++tours == 20) barre.setValue(40);
        if (tours == 30) pendant = chauffe.SurLeFil();
        if (tours == 40) QTest::mouseRelease(&fleche, Qt::LeftButton);
    };
    QTest::mousePress(&fleche, Qt::LeftButton);
    chauffe.virtuelle.SurPompe = {};
    QCOMPARE(pendant, 102);
    QCOMPARE(chauffe.SurLeFil(), 102);
}

void EssaiChauffeManuelle2D::StopPendantUneFlecheCoupe() {
    Chauffe chauffe;
    chauffe.Allumer();
    auto& fleche = chauffe.poste.Trouver<QToolButton>("optGoManuel_4");
    int tours = 0;
    chauffe.virtuelle.SurPompe = [&] {
        if (++tours == 30) chauffe.poste.Cliquer<QPushButton>("optAnnulerHome");
    };
    QTest::mousePress(&fleche, Qt::LeftButton);
    chauffe.virtuelle.SurPompe = {};
    QTest::mouseRelease(&fleche, Qt::LeftButton);
    QVERIFY(tours >= 30);
    QCOMPARE(chauffe.SurLeFil(), 0);
    QVERIFY(chauffe.MontreFroid());
    QVERIFY(chauffe.AuRepos());
}

void EssaiChauffeManuelle2D::FermerPendantUneFlecheCoupe() {
    Chauffe chauffe;
    chauffe.Allumer();
    auto& fleche = chauffe.poste.Trouver<QToolButton>("optGoManuel_4");
    int tours = 0;
    chauffe.virtuelle.SurPompe = [&] {
        if (++tours == 30) QVERIFY(!chauffe.poste.fenetre->close());
    };
    QTest::mousePress(&fleche, Qt::LeftButton);
    chauffe.virtuelle.SurPompe = {};
    QVERIFY(tours >= 30);
    QCOMPARE(chauffe.SurLeFil(), 0); // before the window is gone, not by its end
    QApplication::processEvents();
    QVERIFY(!chauffe.poste.fenetre->isVisible());
}

void EssaiChauffeManuelle2D::UnInterrupteurPendantUneFlecheCoupeAvantDeLeDire() {
    Chauffe chauffe("QT2d v12"); // whose switches are active
    chauffe.Allumer();
    auto& fleche = chauffe.poste.Trouver<QToolButton>("optGoManuel_4");
    int auMoment = -1; // on the wire when the box comes up
    const AfficheurBoite enregistreur = InstallerAfficheurBoite({});
    InstallerAfficheurBoite([&](const Boite& boite) {
        if (auMoment < 0) auMoment = chauffe.SurLeFil();
        return enregistreur(boite);
    });
    int tours = 0;
    chauffe.virtuelle.SurPompe = [&] {
        if (++tours == 30) chauffe.virtuelle.boite->FixerCommutateurs({.finCourseForcee = true});
    };
    QTest::mousePress(&fleche, Qt::LeftButton);
    chauffe.virtuelle.SurPompe = {};
    QTest::mouseRelease(&fleche, Qt::LeftButton);
    InstallerAfficheurBoite(enregistreur);
    QVERIFY(chauffe.poste.DerniereBoite().texte.starts_with(
        "La boucle des interrupteurs de fin de course est ouverte."));
    QCOMPARE(auMoment, 0);
    QCOMPARE(chauffe.SurLeFil(), 0);
    QVERIFY(chauffe.MontreFroid());
}

void EssaiChauffeManuelle2D::UneProcedureBougeFilFroid() {
    Chauffe chauffe("QT2d v12");
    for (const char* nom : {"cmdRetourOrigine", "cmdPlierLePortique", "optHomeX", "optHomeY"}) {
        chauffe.Allumer();
        const int chaude = chauffe.SurLeFil();
        QVERIFY(chaude > 0);
        const std::size_t avant = chauffe.virtuelle.commandes.size();
        chauffe.poste.boites.reponses = {ReponseBoite::Oui};
        chauffe.poste.Cliquer<QPushButton>(nom);
        const auto est = [](std::uint8_t code) { return [code](const Tampon& t) { return t[1] == code; }; };
        const auto debut = chauffe.virtuelle.commandes.begin() + static_cast<std::ptrdiff_t>(avant);
        const auto fin = chauffe.virtuelle.commandes.end();
        const auto trame = std::find_if(debut, fin, est(CommandeSalve));
        QVERIFY2(trame != fin, nom);
        QVERIFY2(std::find_if(debut, trame, est(CommandeChauffe)) != trame, nom);
        QCOMPARE(chauffe.SurLeFil(), 0);
        QVERIFY(chauffe.MontreFroid());
    }
}

void EssaiChauffeManuelle2D::LaDecoupeQuiSuitPartFroide() {
    Chauffe chauffe;
    chauffe.Allumer();
    chauffe.poste.Deposer({chauffe.poste.Fichier("rectangle.txt", RectangleTexte)});
    QCOMPARE(chauffe.SurLeFil(), 0);
    chauffe.poste.Cliquer<QPushButton>("cmdDecouper");
    chauffe.poste.Cliquer<QPushButton>("cmdLancerLaDecoupeTS2D");
    QCOMPARE(chauffe.poste.DerniereBoite().titre, std::string("machine disponible"));
    // Lit by hand, put out, lit by the pause of the cut, put out at its end.
    using Cause = simulateur::NoteChauffe::Cause;
    const auto& histoire = chauffe.virtuelle.boite->HistoireChauffe();
    QCOMPARE(histoire.size(), std::size_t(4));
    QCOMPARE(int(histoire[0].pwm), Octet);
    QCOMPARE(int(histoire[1].pwm), 0);
    QVERIFY(histoire[2].cause == Cause::Pause && histoire[2].pwm > 0);
    QCOMPARE(int(histoire[3].pwm), 0);
}

void EssaiChauffeManuelle2D::LaMachineQuiCoupeEstVue() {
    Chauffe chauffe;
    chauffe.Allumer();
    chauffe.VeillerVite();
    QTest::qWait(60);
    QVERIFY(chauffe.MontreChaud());
    chauffe.virtuelle.boite->AppuyerStop();
    QTRY_VERIFY_WITH_TIMEOUT(chauffe.MontreFroid(), 2000);
    QCOMPARE(chauffe.poste.Trouver<QLabel>("lblEtatManuel").text(),
             QStringLiteral("La machine a coupé la chauffe"));
    QVERIFY(chauffe.virtuelle.Compter(CommandeChauffe, 0) > 0); // it must not come back
    QCOMPARE(chauffe.poste.NombreBoites(), std::size_t(0));
    QVERIFY(MouvementsActifs);
}

void EssaiChauffeManuelle2D::DebrancheeLAlerteParaitEtLeRetourRefroidit() {
    Chauffe chauffe;
    chauffe.Allumer();
    chauffe.VeillerVite();
    chauffe.virtuelle.boite->Brancher(false);
    bool alerte = false;
    bool signe = false;
    chauffe.virtuelle.SurPompe = [&] {
        if (chauffe.Alerte() == nullptr) return;
        alerte = true;
        signe = chauffe.SigneVisible();
        QCOMPARE(chauffe.SurLeFil(), Octet); // the box goes on by itself
        chauffe.virtuelle.boite->Brancher(true);
    };
    QTRY_VERIFY_WITH_TIMEOUT(alerte && chauffe.Alerte() == nullptr, 5000);
    chauffe.virtuelle.SurPompe = {};
    QVERIFY(signe);
    QCOMPARE(chauffe.SurLeFil(), 0);
    QVERIFY(chauffe.MontreFroid());
    QCOMPARE(chauffe.poste.NombreBoites(), std::size_t(0));
    QVERIFY(!MouvementsActifs); // it may be another box
    chauffe.Allumer();          // which is looked at anew
    QVERIFY(chauffe.MontreChaud());
}

void EssaiChauffeManuelle2D::AbandonneeLeFilResteIncertain() {
    Chauffe chauffe;
    chauffe.Allumer();
    chauffe.VeillerVite();
    chauffe.virtuelle.boite->Brancher(false);
    chauffe.virtuelle.SurPompe = [&] {
        if (QMessageBox* alerte = chauffe.Alerte())
            QTest::mouseClick(alerte->button(QMessageBox::Ok), Qt::LeftButton);
    };
    QTRY_VERIFY_WITH_TIMEOUT(chauffe.poste.NombreBoites() > 0, 5000);
    chauffe.virtuelle.SurPompe = {};
    QCOMPARE(chauffe.poste.NombreBoites(), std::size_t(1));
    QVERIFY(chauffe.poste.DerniereBoite().icone == IconeBoite::Critique);
    QVERIFY(chauffe.poste.DerniereBoite().texte.starts_with("Attention, la chauffe n'est pas coupée!"));
    QCOMPARE(chauffe.poste.Trouver<QLabel>("lblFilChaud").text(), QStringLiteral("FIL PEUT-ÊTRE CHAUD"));
    QVERIFY(chauffe.SigneVisible());
    QVERIFY(chauffe.poste.Trouver<QTimer>("TimerClignotement").isActive());
    QCOMPARE(chauffe.SurLeFil(), Octet);
    // The cable is back: nobody has to ask.
    chauffe.virtuelle.boite->Brancher(true);
    QTRY_COMPARE_WITH_TIMEOUT(chauffe.SurLeFil(), 0, 2000);
    QTRY_VERIFY_WITH_TIMEOUT(chauffe.MontreFroid(), 2000);
    QCOMPARE(chauffe.poste.Trouver<QLabel>("lblEtatManuel").text(),
             QStringLiteral("Chauffe coupée, l'interface le confirme"));
    QCOMPARE(chauffe.poste.NombreBoites(), std::size_t(1));
}

void EssaiChauffeManuelle2D::FermerPendantQueLaBoiteSeTaitAttend() {
    Chauffe chauffe;
    chauffe.Allumer();
    chauffe.virtuelle.boite->Brancher(false);
    int tours = 0;
    chauffe.virtuelle.SurPompe = [&] {
        if (++tours == 3) chauffe.poste.fenetre->close(); // asked a second time
        QVERIFY(chauffe.poste.fenetre->isVisible());
        if (chauffe.Alerte() != nullptr) chauffe.virtuelle.boite->Brancher(true);
    };
    QVERIFY(chauffe.poste.fenetre->close());
    chauffe.virtuelle.SurPompe = {};
    QVERIFY(tours > 3);
    QCOMPARE(chauffe.SurLeFil(), 0);
    QCOMPARE(chauffe.poste.NombreBoites(), std::size_t(0));
    QVERIFY(!chauffe.poste.fenetre->isVisible());
}

void EssaiChauffeManuelle2D::UneReponsePerdueNeLaissePasChaud() {
    using simulateur::Panne;
    for (const Panne panne : {Panne::CommandePerdue, Panne::ReponsePerdue, Panne::ReponseCorrompue}) {
        for (std::uint64_t n = 1; n <= 6; ++n) {
            Chauffe chauffe;
            simulateur::PanneProgrammee programmee;
            programmee.panne = panne;
            programmee.echange = chauffe.virtuelle.boite->Comptes().echanges + n;
            chauffe.virtuelle.boite->Programmer(programmee);
            chauffe.Allumer();
            chauffe.poste.Trouver<QScrollBar>("hscChauffeFilManuel").setValue(40);
            chauffe.Couper();
            QCOMPARE(chauffe.SurLeFil(), 0);
            QVERIFY(chauffe.MontreFroid());
        }
    }
}

void EssaiChauffeManuelle2D::Images_data() {
    RangeesImages();
}
void EssaiChauffeManuelle2D::Images() {
    Chauffe chauffe("(Defaut)", ReglerRangeeImage());
    TableINI.TempoChauffe = 20;
    chauffe.Allumer();
    chauffe.poste.Trouver<QTimer>("TimerClignotement").setInterval(60'000); // its full face
    chauffe.virtuelle.Attendre(8s);
    QTest::qWait(250);
    QVERIFY(DefautsLibelles(*chauffe.poste.fenetre, LibellesTessarel2D()).empty());
    const QStringList coupes = MotsCoupes(*chauffe.poste.fenetre);
    QVERIFY2(coupes.isEmpty(), qPrintable(coupes.join(u' ')));
    QVERIFY(SauverImageRangee(*chauffe.poste.fenetre, QStringLiteral("frmTessarel2D-fil-chaud-")));
}

void EssaiChauffeManuelle2D::LeSignalDeFinCoupe() {
    EcouterSignauxDeFin(SecondSigint::Compte);
    Chauffe chauffe;
    const GardienDeFin gardien;
    chauffe.Allumer();
    QCOMPARE(chauffe.SurLeFil(), Octet);
    std::raise(SIGTERM);
    QTRY_VERIFY_WITH_TIMEOUT(!chauffe.poste.fenetre->isVisible(), 5000);
    QCOMPARE(chauffe.SurLeFil(), 0);
    QVERIFY(chauffe.MontreFroid());
}

QTEST_MAIN(EssaiChauffeManuelle2D)
#include "essai_chauffe_manuelle_2d.moc"
