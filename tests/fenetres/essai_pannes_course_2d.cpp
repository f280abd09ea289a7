// A short cut from the 2D window with every exchange of it broken in turn, in every way, and stopped at every
// exchange: the wire ends cold or a loud box said that it may not be, the carriages stand where the path is,
// the window is idle or asks how to go on, and what follows works.
#include "fenetres/coupe_2d.h"
#include "ui/boites_qt.h"

#include <algorithm>
#include <string>

using namespace tessarel;
using namespace tessarel::essais;
using simulateur::Panne;

namespace {

// With switches but no homing, and a queue so short that frames go out all along the run.
ReglagesCoupe Atelier() {
    ReglagesCoupe reglages;
    reglages.machine = "Atelier";
    reglages.regler = [](TableMachine& table) {
        table.SwitchsActifs = true;
        table.TempoChauffe = 20;
    };
    reglages.parEchange = std::chrono::seconds(5); // a cut of a few minutes in as many dozens of exchanges
    reglages.capaciteFile = 3;
    return reglages;
}

struct Casse : Coupe {
    Casse() : Coupe(Atelier()), voulus(PasVoulus()) {
        poste.fenetre->setUpdatesEnabled(false); // hundreds of runs: nobody looks at them
    }
    // Everything that was broken is well again, the box found again, and the wire at the origin.
    void Reparer() {
        virtuelle.SurPompe = {};
        virtuelle.boite->OublierPannes();
        virtuelle.boite->FixerCommutateurs({});
        virtuelle.boite->MettreSousTension(true);
        virtuelle.boite->Brancher(true);
        poste.Cliquer<QToolButton>("cmdRafraichirUsbTS2D");
        QVERIFY(Froid());
        poste.boites.boites.clear();
        virtuelle.boite->PoserChariots({});
        PartirDIci();
    }
    // By the box's own record: whatever heats it, and nothing moves.
    [[nodiscard]] bool Froid() const {
        const auto etat = virtuelle.boite->Etat();
        return etat.pwmFil == 0 && etat.file != simulateur::EtatFile::EnMarche;
    }
    // What the box counts from here on.
    void PartirDIci() {
        depart = virtuelle.boite->Comptes().pas;
        virtuelle.SurPompe = [this] { RenoncerSiMuet(); };
    }
    [[nodiscard]] std::array<std::uint64_t, 4> PasFaits() const {
        auto pas = virtuelle.boite->Comptes().pas;
        for (std::size_t axe = 0; axe < pas.size(); ++axe) pas[axe] -= depart[axe];
        return pas;
    }
    [[nodiscard]] bool Terminee() const {
        return std::ranges::any_of(poste.boites.boites,
                                   [](const Boite& b) { return b.titre == "machine disponible"; });
    }
    [[nodiscard]] bool OuLaFenetreLeDit() const {
        const PasAxes& dite = poste.fenetre->Course().arret.PositionStop.pas;
        const auto position = virtuelle.boite->Position();
        for (const Axe axe : {AxeX1, AxeY1, AxeX2, AxeY2})
            if (dite[axe] != position[axe]) return false;
        return true;
    }
    // All of it, each part once, and the wire at its rest position.
    [[nodiscard]] bool ToutEstCoupe() const {
        return PasFaits() == voulus && virtuelle.boite->Position() == simulateur::PositionPas{};
    }
    // One of the two boxes that say that the wire may be hot, or is; the other critical ones say nothing of
    // it.
    [[nodiscard]] bool DitChaud() const {
        return std::ranges::any_of(poste.boites.boites, [](const Boite& b) {
            return b.icone == IconeBoite::Critique &&
                   (b.titre == "Problème de communication avec la machine" ||
                    b.titre == "Le fil est encore chaud");
        });
    }
    // What must hold after any run.
    void Verifier(const std::string& ou) {
        QVERIFY2(Froid() || DitChaud(), ou.c_str());
        QVERIFY2(AuRepos() || Arretee(), ou.c_str());
        QVERIFY2(Arretee() || poste.NombreBoites() > 0, ou.c_str());
        QVERIFY2(Alerte() == nullptr, ou.c_str());
        if (Terminee()) QVERIFY2(ToutEstCoupe(), ou.c_str());
        if (Arretee()) QVERIFY2(OuLaFenetreLeDit(), ou.c_str());
    }
    // Goes on after a stop, each way in turn; a machine that was without power has lost its place.
    void Suivre(std::uint64_t n, bool placeConnue, const std::string& ou) {
        if (!Arretee()) return;
        virtuelle.boite->OublierPannes();
        virtuelle.boite->FixerCommutateurs({});
        virtuelle.boite->Brancher(true);
        if (n % 3 == 0) {
            poste.Cliquer<QPushButton>("cmdAnnulerReprise");
            QVERIFY2(poste.DerniereBoite().titre == "Arrêt dans la zone utile", ou.c_str());
            QVERIFY2(!poste.fenetre->DecoupeOuverte(), ou.c_str());
            poste.Cliquer<QPushButton>("cmdDecouper");
        } else if (n % 3 == 1) {
            poste.Cliquer<QPushButton>("cmdRepriseDecoupe");
            QVERIFY2(Terminee(), ou.c_str());
            QVERIFY2(!placeConnue || ToutEstCoupe(), ou.c_str());
        } else {
            poste.Cliquer<QPushButton>("cmdLancerRetourApresStop");
            QVERIFY2(poste.DerniereBoite().texte == TextesDoubles(44, 1), ou.c_str());
            QVERIFY2(!placeConnue || virtuelle.boite->Position() == simulateur::PositionPas{}, ou.c_str());
        }
        QVERIFY2(AuRepos() && FilFroid(), ou.c_str());
    }

    std::array<std::uint64_t, 4> voulus;
    std::array<std::uint64_t, 4> depart = {};
};

} // namespace

class EssaiPannesCourse2D : public QObject {
    Q_OBJECT
private slots:
    void ChaquePanneAChaqueEchange_data();
    void ChaquePanneAChaqueEchange();
    void StopAChaqueEchangePuisReprise();
    void UnInterrupteurSOuvre_data();
    void UnInterrupteurSOuvre();
    void SurManuLeFilChaudEstDit();
    void LeCableSortPendantUnStop_data();
    void LeCableSortPendantUnStop();
    void AbandonSansCable();
    void ApresUneCoupureDeCourantLaSuiteRechargeLaTable();
};

void EssaiPannesCourse2D::ChaquePanneAChaqueEchange_data() {
    QTest::addColumn<int>("panne");
    QTest::addColumn<int>("duree"); // exchanges; 0 is to the end
    QTest::addRow("command lost") << int(Panne::CommandePerdue) << 0;
    QTest::addRow("reply lost") << int(Panne::ReponsePerdue) << 0;
    QTest::addRow("reply late") << int(Panne::ReponseTardive) << 0;
    QTest::addRow("reply corrupt") << int(Panne::ReponseCorrompue) << 0;
    QTest::addRow("reply short") << int(Panne::ReponseCourte) << 0;
    QTest::addRow("frame refused") << int(Panne::SalveRefusee) << 0;
    QTest::addRow("unplugged") << int(Panne::Debranchement) << 0;
    QTest::addRow("unplugged a while") << int(Panne::Debranchement) << 9;
    QTest::addRow("power cut") << int(Panne::CoupureCourant) << 9;
    QTest::addRow("STOP of the machine") << int(Panne::BoutonStop) << 0;
    QTest::addRow("origin switch") << int(Panne::OrigineOuverte) << 0;
    QTest::addRow("origin switch a while") << int(Panne::OrigineOuverte) << 4;
    QTest::addRow("limit switch") << int(Panne::FinCourseOuverte) << 0;
    QTest::addRow("heat on MANU") << int(Panne::ChauffeManu) << 0;
    QTest::addRow("heat on OFF") << int(Panne::ChauffeEteinte) << 0;
}
void EssaiPannesCourse2D::ChaquePanneAChaqueEchange() {
    QFETCH(int, panne);
    QFETCH(int, duree);
    const auto laquelle = static_cast<Panne>(panne);
    Casse c;
    c.PartirDIci();
    const auto avant = c.virtuelle.boite->Comptes().echanges;
    c.Lancer();
    QVERIFY(c.Terminee());
    c.Verifier("without a fault");
    auto echanges = c.virtuelle.boite->Comptes().echanges - avant;
    QVERIFY(echanges > 40);
    if (laquelle == Panne::ChauffeManu)
        --echanges; // after the last question a hand on the switch is nobody's fault
    for (std::uint64_t n = 1; n <= echanges; ++n) {
        c.Reparer();
        simulateur::PanneProgrammee reglage;
        reglage.panne = laquelle;
        reglage.echange = c.virtuelle.boite->Comptes().echanges + n;
        reglage.retablieApresEchanges = static_cast<std::uint64_t>(duree);
        c.virtuelle.boite->Programmer(reglage);
        c.Lancer();
        const std::string ou = "exchange " + std::to_string(n);
        c.Verifier(ou);
        c.Suivre(n, laquelle != Panne::CoupureCourant, ou);
        if (QTest::currentTestFailed()) return;
    }
}

void EssaiPannesCourse2D::StopAChaqueEchangePuisReprise() {
    Casse c;
    bool fini = false;
    int enDecoupe = 0;
    for (std::uint64_t n = 1; !fini; ++n) {
        c.Reparer();
        const auto arret = c.virtuelle.boite->Comptes().echanges + n;
        bool presse = false;
        c.virtuelle.SurPompe = [&] {
            if (presse || c.virtuelle.boite->Comptes().echanges < arret) return;
            presse = true;
            if (c.poste.Trouver<QPushButton>("cmdSTOP").isEnabled()) c.poste.Cliquer<QPushButton>("cmdSTOP");
        };
        c.Lancer();
        fini = !presse;
        const std::string ou = "stop after exchange " + std::to_string(n);
        c.Verifier(ou);
        if (c.Arretee()) ++enDecoupe;
        c.virtuelle.SurPompe = {};
        c.Suivre(1, true, ou);
        if (QTest::currentTestFailed()) return;
    }
    QVERIFY(enDecoupe > 20);
}

void EssaiPannesCourse2D::UnInterrupteurSOuvre_data() {
    QTest::addColumn<int>("panne");
    QTest::addColumn<int>("salve");
    QTest::addColumn<int>("rangee");
    QTest::addRow("origin, heating") << int(Panne::OrigineOuverte) << 1 << 26;
    QTest::addRow("origin, cutting") << int(Panne::OrigineOuverte) << 4 << 26;
    QTest::addRow("limit, heating") << int(Panne::FinCourseOuverte) << 1 << 27;
    QTest::addRow("limit, cutting") << int(Panne::FinCourseOuverte) << 4 << 27;
}
void EssaiPannesCourse2D::UnInterrupteurSOuvre() {
    QFETCH(int, panne);
    QFETCH(int, salve);
    QFETCH(int, rangee);
    Casse c;
    simulateur::PanneProgrammee reglage;
    reglage.panne = static_cast<Panne>(panne);
    reglage.salve = static_cast<std::uint32_t>(salve);
    reglage.tick = 20000;
    c.virtuelle.boite->Programmer(reglage);
    c.Lancer();
    QCOMPARE(c.poste.NombreBoites(), std::size_t(1));
    QCOMPARE(c.poste.DerniereBoite().texte, TextesDoubles(rangee, 1));
    QCOMPARE(c.poste.DerniereBoite().titre, std::string("Sortie des courses"));
    QVERIFY(c.Froid() && c.AuRepos());
    const auto& resume = c.poste.Trouver<QLabel>("lblInformationDecoupe");
    QVERIFY(resume.isVisible() && resume.text().startsWith(QStringLiteral("Vitesse : ")));
    // While it is open nothing begins.
    const auto acceptees = c.virtuelle.boite->Comptes().salvesAcceptees;
    c.Lancer();
    QCOMPARE(c.poste.DerniereBoite().titre, std::string("Impossible de faire la procédure."));
    QCOMPARE(c.virtuelle.boite->Comptes().salvesAcceptees, acceptees);
    QVERIFY(c.AuRepos());
    c.Reparer();
    c.Lancer();
    QVERIFY(c.Terminee() && c.ToutEstCoupe());
}

void EssaiPannesCourse2D::SurManuLeFilChaudEstDit() {
    Casse c;
    simulateur::Commutateurs manu;
    manu.chauffeManu = true;
    c.virtuelle.boite->FixerCommutateurs(manu);
    c.PartirDIci();
    c.Lancer();
    QVERIFY(!c.Froid());
    QCOMPARE(c.poste.NombreBoites(), std::size_t(2));
    QCOMPARE(c.poste.boites.boites[0].titre, std::string("Le fil est encore chaud"));
    QVERIFY(c.poste.boites.boites[0].icone == IconeBoite::Critique);
    // Nothing says that the heat is off.
    QCOMPARE(c.poste.boites.boites[1].texte, std::string("Découpe terminée, fil en position de repos."));
    QVERIFY(c.ToutEstCoupe());
    // Before the first movement as well.
    c.poste.boites.boites.clear();
    c.StopQuand(QStringLiteral("Mise en température"));
    c.Lancer();
    QVERIFY(c.fait);
    QCOMPARE(c.poste.NombreBoites(), std::size_t(1));
    QCOMPARE(c.poste.boites.boites[0].titre, std::string("Le fil est encore chaud"));
    QVERIFY(c.AuRepos());
}

void EssaiPannesCourse2D::LeCableSortPendantUnStop_data() {
    QTest::addColumn<bool>("retour");
    QTest::addRow("resume") << false;
    QTest::addRow("return") << true;
}
void EssaiPannesCourse2D::LeCableSortPendantUnStop() {
    QFETCH(bool, retour);
    const char* suite = retour ? "cmdLancerRetourApresStop" : "cmdRepriseDecoupe";
    Casse c;
    c.PartirDIci();
    c.Arreter();
    QVERIFY(c.Arretee() && c.Froid());
    c.virtuelle.boite->Brancher(false);
    auto& liaison = c.poste.Trouver<QToolButton>("cmdRafraichirUsbTS2D");
    for (const bool rafraichir : {false, true}) {
        if (rafraichir) c.poste.Cliquer<QToolButton>("cmdRafraichirUsbTS2D");
        c.poste.Cliquer<QPushButton>(suite);
        QCOMPARE(c.poste.DerniereBoite().texte, std::string("Pas d'interface détectée"));
        QCOMPARE(c.poste.DerniereBoite().titre, std::string("Désactivation des mouvements"));
        QCOMPARE(liaison.text(), QStringLiteral("Pas d'interface"));
        QVERIFY(c.Arretee() && c.OuLaFenetreLeDit());
        QCOMPARE(c.poste.Trouver<QLabel>("lblNumSegmentStop").text(),
                 QStringLiteral("Arrêt sur le segment n° 4"));
    }
    c.virtuelle.boite->Brancher(true);
    const simulateur::MemoiresBoite memoires = c.virtuelle.boite->Memoires();
    c.virtuelle.boite->EcrireMemoires({}); // another box than before
    c.poste.Cliquer<QPushButton>(suite);
    QVERIFY(
        c.poste.DerniereBoite().texte.starts_with("Pas de correspondance entre la table en mémoire")); // No
    QVERIFY(c.Arretee());
    c.virtuelle.boite->EcrireMemoires(memoires);
    c.poste.Cliquer<QToolButton>("cmdRafraichirUsbTS2D");
    QCOMPARE(liaison.text(), QStringLiteral("Mouvements activés"));
    QVERIFY(c.Arretee());
    c.poste.Cliquer<QPushButton>(suite);
    QVERIFY(c.virtuelle.boite->Position() == simulateur::PositionPas{});
    QVERIFY(retour || c.ToutEstCoupe());
    QVERIFY(c.AuRepos() && c.Froid());
}

void EssaiPannesCourse2D::AbandonSansCable() {
    Casse c;
    c.Arreter();
    c.PartirDIci();
    c.virtuelle.boite->Brancher(false);
    c.poste.Cliquer<QPushButton>("cmdAnnulerReprise");
    QVERIFY(c.DitChaud()); // the heat-off could not be confirmed
    QCOMPARE(c.poste.DerniereBoite().titre, std::string("Arrêt dans la zone utile"));
    QVERIFY(!c.poste.fenetre->DecoupeOuverte() && !c.poste.fenetre->Course().arretee);
    c.virtuelle.boite->Brancher(true);
    c.poste.Cliquer<QToolButton>("cmdRafraichirUsbTS2D");
    QCOMPARE(c.poste.DerniereBoite().titre, std::string("Interface retrouvée"));
    QVERIFY(c.Froid());
}

// The memory that a power-on loads is another machine's.
void EssaiPannesCourse2D::ApresUneCoupureDeCourantLaSuiteRechargeLaTable() {
    Casse c;
    TableMachine lente = TableINI;
    lente.Nom = "Lente";
    lente.Frequence = 10000;
    c.virtuelle.boite->EcrireMemoires(
        {simulateur::MemoireDeMachine(lente), simulateur::MemoireDeMachine(TableINI)});
    c.PartirDIci();
    c.Arreter();
    QVERIFY(c.Arretee());
    c.virtuelle.boite->MettreSousTension(false);
    c.virtuelle.boite->MettreSousTension(true);
    QCOMPARE(c.virtuelle.boite->Ram().frequence, 1);
    c.poste.Cliquer<QPushButton>("cmdRepriseDecoupe");
    QCOMPARE(c.virtuelle.boite->Ram().frequence, 5);
    QVERIFY(c.Terminee() && c.ToutEstCoupe());
}

QTEST_MAIN(EssaiPannesCourse2D)
#include "essai_pannes_course_2d.moc"
