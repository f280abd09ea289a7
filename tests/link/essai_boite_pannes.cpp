// The faults of the virtual box: each strikes where it was told to, does what it should, and ends.
#include "outils_boite/boite_virtuelle.h"
#include "outils_boite/trames.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <initializer_list>
#include <vector>

using namespace tessarel;
using namespace tessarel::simulateur;
using namespace tessarel::essais;
using namespace std::chrono_literals;

namespace {

// 10 kHz and switches 1 mm (320 steps) beyond an origin; travel 10 x 10 mm.
TableMachine MachineAvecSwitchs() {
    TableMachine t;
    LireMachine("(Defaut)", t);
    t.Frequence = 10000;
    t.SwitchsActifs = true;
    t.MmToOrigine = {1, 1, 1, 1};
    t.CourseX = 10;
    t.CourseY = 10;
    CalculerChampsDerives(t);
    return t;
}

struct Poste : BoiteVirtuelle {
    Poste() : BoiteVirtuelle() {
        PreparerMachine(MachineAvecSwitchs());
        PasParEchange = 0ms;
    }
    // The result; the reply is kept.
    std::int32_t Envoyer(std::initializer_list<int> octets) {
        reponse = {};
        std::size_t i = 1;
        for (const int o : octets) reponse[i++] = static_cast<std::uint8_t>(o);
        return Zelko_Send(reponse);
    }
    std::int32_t Envoyer(const TrameEssai& trame) {
        reponse = EnTampon(trame);
        return Zelko_Send(reponse);
    }
    // Runs these frames with their end mark; nothing of the time has passed yet.
    void Lancer(const std::vector<TrameEssai>& trames) {
        Envoyer({'B', 0, 0});
        Envoyer({'B', 1, 0});
        for (const TrameEssai& t : trames) Envoyer(t);
        Envoyer({'D', 128, 0});
        Envoyer({'B', 128, 0});
    }
    int Fin() {
        Envoyer({'I', 0, 0});
        return reponse[12];
    }
    std::uint32_t Ticks() {
        Envoyer({'I', 0, 0});
        return reponse[13] | reponse[14] << 8U | reponse[15] << 16U |
               static_cast<std::uint32_t>(reponse[16]) << 24U;
    }
    Tampon reponse = {};
};

const TrameEssai QUATRE_CENTS{.drapeaux = 15, .ticks = 1000, .pas = {400, 200, 400, 200}};

} // namespace

TEST(BoitePannes, UneCommandePerdueNEstPasFaite) {
    Poste p;
    p.boite.Programmer({.panne = Panne::CommandePerdue, .echange = 2});
    EXPECT_EQ(p.Envoyer({'P', 1, 10}), 1);
    EXPECT_EQ(p.Envoyer({'P', 1, 20}), -202);
    EXPECT_EQ(p.reponse[3], 20) << "the buffer is left alone";
    EXPECT_EQ(p.boite.Etat().pwmCommande, 10);
    EXPECT_EQ(p.Envoyer({'P', 1, 30}), 1);
}

TEST(BoitePannes, UneReponsePerdueEstFaite) {
    Poste p;
    p.boite.Programmer({.panne = Panne::ReponsePerdue, .echange = 1, .fois = 2});
    EXPECT_EQ(p.Envoyer({'P', 1, 10}), -203);
    EXPECT_EQ(p.boite.Etat().pwmCommande, 10);
    EXPECT_EQ(p.Envoyer({'P', 1, 20}), -203);
    EXPECT_EQ(p.Envoyer({'P', 1, 30}), 1);
    EXPECT_FALSE(p.boite.PannesEnAttente());
}

TEST(BoitePannes, UnePanneComptePourSaCommandeSeule) {
    Poste p;
    p.boite.Programmer({.panne = Panne::ReponsePerdue, .echange = 2, .commande = 'P'});
    EXPECT_EQ(p.Envoyer({'P', 1, 10}), 1);
    EXPECT_EQ(p.Envoyer({'I', 0, 0}), 1);
    EXPECT_EQ(p.Envoyer({'I', 0, 0}), 1);
    EXPECT_EQ(p.Envoyer({'P', 0, 0}), -203);
    EXPECT_EQ(p.Envoyer({'P', 0, 0}), 1);
    p.boite.Programmer({.panne = Panne::ReponsePerdue, .echange = 2, .commande = 'O'});
    for (int i = 0; i < 3; ++i) EXPECT_EQ(p.Envoyer({'I', 0, 0}), 1);
    EXPECT_EQ(p.Envoyer({'O', 0, 0}), 1) << "the first of its kind";
    EXPECT_EQ(p.Envoyer({'O', 0, 0}), -203);
}

TEST(BoitePannes, SansNombreToutesLesReponsesSuivantesSePerdent) {
    Poste p;
    p.boite.Programmer({.panne = Panne::ReponsePerdue, .echange = 1, .fois = 0});
    for (int i = 0; i < 50; ++i) EXPECT_EQ(p.Envoyer({'I', 0, 0}), -203);
    p.boite.OublierPannes();
    EXPECT_EQ(p.Envoyer({'I', 0, 0}), 1);
}

TEST(BoitePannes, UneReponseTardivePrendSonTempsEtNePasseQuAvantUneSeconde) {
    Poste p;
    p.boite.Programmer({.panne = Panne::ReponseTardive, .echange = 1, .retard = 400ms});
    p.boite.Programmer({.panne = Panne::ReponseTardive, .echange = 2, .retard = 1500ms});
    EXPECT_EQ(p.Envoyer({'P', 1, 77}), 1);
    EXPECT_EQ(p.reponse[4], 77);
    EXPECT_EQ(p.Temps(), Instant(400ms));
    EXPECT_EQ(p.Envoyer({'P', 1, 78}), -203);
    EXPECT_EQ(p.Temps(), Instant(1400ms)) << "nobody waits longer than a second";
    EXPECT_EQ(p.boite.Etat().pwmCommande, 78);
}

TEST(BoitePannes, UneReponseCorrompueChangeLaCommandeRepetee) {
    Poste p;
    p.boite.Programmer({.panne = Panne::ReponseCorrompue, .echange = 1});
    EXPECT_EQ(p.Envoyer({'P', 1, 10}), 1) << "no checksum on the wire";
    EXPECT_NE(p.reponse[1], 'P');
    EXPECT_NE(p.reponse[4], 10);
    EXPECT_EQ(p.boite.Etat().pwmCommande, 10);
    p.boite.Programmer({.panne = Panne::ReponseCorrompue, .echange = 2});
    Tampon t = {};
    t[1] = 'I';
    const Reponse r = p.boite.Traiter(t);
    EXPECT_EQ(r.sort, SortReponse::Corrompue);
    EXPECT_EQ(r.octets[0], 0);
    EXPECT_NE(r.octets[1], 'I');
    p.boite.Programmer({.panne = Panne::ReponseCourte, .echange = 3});
    EXPECT_EQ(p.Envoyer({'P', 1, 10}), -204);
}

TEST(BoitePannes, UneSalveRefuseeRevientSansEtrePerdue) {
    Poste p;
    p.Envoyer({'B', 1, 0});
    p.boite.Programmer({.panne = Panne::SalveRefusee, .echange = 2, .commande = 'D', .fois = 3});
    int acceptees = 0;
    int envois = 0;
    while (acceptees < 4) {
        p.Envoyer(acceptees < 3 ? QUATRE_CENTS : TrameEssai{.drapeaux = 128});
        acceptees += p.reponse[2];
        ++envois;
    }
    EXPECT_EQ(envois, 7);
    p.Envoyer({'B', 128, 0});
    p.Attendre(1s);
    EXPECT_EQ(p.Fin(), 130);
    EXPECT_EQ(p.boite.Position(), (PositionPas{1200, 600, 1200, 600}));
}

TEST(BoitePannes, LeBoutonStopArreteAuTickDitEtCoupeLaChauffe) {
    Poste p;
    p.Lancer({{.drapeaux = 64, .ticks = 10, .niveauDepart = 90}, QUATRE_CENTS, QUATRE_CENTS});
    p.boite.Programmer({.panne = Panne::BoutonStop, .salve = 3, .tick = 250});
    p.Attendre(1s);
    EXPECT_EQ(p.Fin(), 2 | 64);
    EXPECT_EQ(p.reponse[4], 3);
    EXPECT_EQ(p.reponse[7], 0);
    EXPECT_EQ(p.Ticks(), 749U);
    EXPECT_EQ(p.boite.Position(), (PositionPas{500, 250, 500, 250}));
}

TEST(BoitePannes, UneBoucleOuverteArreteSaufEnModeOrigine) {
    Poste p;
    p.Lancer({QUATRE_CENTS});
    p.boite.Programmer({.panne = Panne::OrigineOuverte, .salve = 1, .tick = 500, .retablieApresEchanges = 2});
    p.Attendre(1s);
    EXPECT_EQ(p.Fin(), 2 | 16);
    EXPECT_EQ(p.reponse[8], 2);
    EXPECT_EQ(p.boite.Position()[0], 200);
    EXPECT_EQ(p.Fin(), 2 | 16);
    EXPECT_EQ(p.reponse[8], 2);
    p.Fin();
    EXPECT_EQ(p.reponse[8], 0) << "closed again after two exchanges";

    p.Envoyer({'O', 1, 0});
    p.boite.Programmer({.panne = Panne::OrigineOuverte});
    p.Lancer({QUATRE_CENTS});
    p.Attendre(1s);
    EXPECT_EQ(p.Fin(), 130);
    p.boite.Programmer({.panne = Panne::FinCourseOuverte});
    p.Lancer({QUATRE_CENTS});
    p.Attendre(1s);
    EXPECT_EQ(p.Fin(), 2 | 32) << "the limit stops in both modes";
    EXPECT_EQ(p.boite.Position()[0], 600);
    EXPECT_EQ(p.reponse[8], 2 | 4);
}

TEST(BoitePannes, LaBoucleDOrigineSOuvreAuPremierPasAuDela) {
    Poste p;
    // Backwards from the origin: the switches open at step 321 of 1000, one per tick. They are counted at
    // half steps: step 321 at tick 321 (320.5 rounded up).
    p.Lancer({{.drapeaux = 0, .ticks = 1000, .pas = {1000, 0, 0, 0}}});
    p.Attendre(1s);
    EXPECT_EQ(p.Fin(), 2 | 16);
    EXPECT_EQ(p.reponse[8], 2);
    EXPECT_EQ(p.boite.Position()[0], -321);
    EXPECT_EQ(p.Ticks(), 1000U - 1 - 321);
    // In normal mode nothing goes from there, not even back.
    p.Lancer({{.drapeaux = 15, .ticks = 10, .pas = {10, 0, 0, 0}}});
    p.Attendre(1s);
    EXPECT_EQ(p.Fin(), 2 | 16);
    EXPECT_EQ(p.boite.Position()[0], -321);
    EXPECT_EQ(p.Ticks(), 9U);
    // In homing mode it does, and the loop closes.
    p.Envoyer({'O', 1, 0});
    p.Lancer({{.drapeaux = 15, .ticks = 10, .pas = {1, 0, 0, 0}}});
    p.Attendre(1s);
    EXPECT_EQ(p.Fin(), 130);
    EXPECT_EQ(p.reponse[8], 0);
    EXPECT_EQ(p.boite.Position()[0], -320);
}

TEST(BoitePannes, LaFinDeCourseSOuvreAuBoutDuTrajet) {
    Poste p; // 10 mm of travel and 5 mm more
    p.Lancer({{.drapeaux = 15, .ticks = 10000, .pas = {0, 0, 0, 10000}}});
    p.Attendre(10s);
    EXPECT_EQ(p.Fin(), 2 | 32);
    EXPECT_EQ(p.reponse[8], 4);
    EXPECT_EQ(p.boite.Position(), (PositionPas{0, 0, 0, 15 * 320 + 1}));
}

TEST(BoitePannes, AvecLOrigineEnHautLaBoucleYEstALAutreBout) {
    Poste p;
    TableMachine t = MachineAvecSwitchs();
    t.OrigineEnHaut = true;
    p.PreparerMachine(t);
    EXPECT_EQ(p.boite.Position(), (PositionPas{0, 3200, 0, 3200}));
    p.Lancer({{.drapeaux = 15, .ticks = 1000, .pas = {0, 1000, 0, 0}}});
    p.Attendre(1s);
    EXPECT_EQ(p.Fin(), 2 | 16);
    EXPECT_EQ(p.boite.Position()[1], 3200 + 321);
}

TEST(BoitePannes, SansSwitchsDansLaTableRienNArrete) {
    Poste p;
    TableMachine t = MachineAvecSwitchs();
    t.SwitchsActifs = false;
    p.PreparerMachine(t);
    p.Lancer({{.drapeaux = 0, .ticks = 10000, .pas = {10000, 0, 0, 0}}});
    p.Attendre(1s);
    EXPECT_EQ(p.Fin(), 130);
    EXPECT_EQ(p.boite.Position()[0], -10000);
    EXPECT_EQ(p.reponse[8], 0);
}

TEST(BoitePannes, LesCommutateursDeChauffeSeLisentEtCommandentLeFil) {
    Poste p;
    p.Envoyer({'P', 1, 50});
    p.boite.FixerBoutonChauffe(30);
    p.boite.FixerCommutateurs({.chauffeManu = true});
    p.Fin();
    EXPECT_EQ(p.reponse[8], 1);
    EXPECT_EQ(p.boite.Etat().pwmFil, 30);
    p.Envoyer({'P', 0, 0});
    EXPECT_EQ(p.reponse[4], 0);
    p.Fin();
    EXPECT_EQ(p.reponse[7], 16) << "on MANU the knob heats, whatever the program says";
    p.boite.FixerCommutateurs({.chauffeManu = true, .chauffeEteinte = true});
    p.Fin();
    EXPECT_EQ(p.reponse[8], 9);
    EXPECT_EQ(p.reponse[7], 0);
    p.boite.FixerCommutateurs({});
    p.Fin();
    EXPECT_EQ(p.reponse[8], 0);
    EXPECT_EQ(p.boite.Etat().pwmFil, 0);
}

TEST(BoitePannes, DebrancheeLaBoiteContinueEtSeRetrouve) {
    Poste p;
    p.Lancer({QUATRE_CENTS, QUATRE_CENTS});
    const std::uint64_t n = p.boite.Comptes().echanges;
    p.boite.Programmer({.panne = Panne::Debranchement, .echange = n + 1, .retablieApresEchanges = 3});
    p.Attendre(10ms);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(p.Envoyer({'I', 0, 0}), -200) << i;
        EXPECT_NE(Zelko_IsConnected(), 1);
    }
    p.Attendre(100ms);
    EXPECT_EQ(p.Envoyer({'I', 0, 0}), 1);
    EXPECT_EQ(p.reponse[4], 2);
    EXPECT_EQ(Zelko_IsConnected(), 1);
    EXPECT_EQ(p.boite.Position()[0], 440);
}

TEST(BoitePannes, UneCoupureDeCourantOublieToutSaufLesMemoires) {
    Poste p;
    p.Lancer({{.drapeaux = 64, .ticks = 10, .niveauDepart = 90}, QUATRE_CENTS});
    p.boite.Programmer({.panne = Panne::CoupureCourant, .salve = 2, .tick = 500, .retablieApres = 2s});
    p.Attendre(1s);
    EXPECT_EQ(p.Envoyer({'I', 0, 0}), -200);
    EXPECT_EQ(p.boite.Etat().pwmFil, 0);
    EXPECT_FALSE(p.boite.Etat().moteurs);
    EXPECT_EQ(p.boite.Position()[0], 200);
    p.Attendre(3s);
    EXPECT_EQ(p.Fin(), 2);
    EXPECT_EQ(p.reponse[4], 0);
    EXPECT_EQ(p.reponse[7], 0);
    EXPECT_EQ(p.boite.Ram().nom, "(Defaut)") << "memory 0 is loaded";
}

TEST(BoitePannes, ChauffeManuSurvientEnCoursDeSalve) {
    Poste p;
    p.Lancer({QUATRE_CENTS});
    p.boite.Programmer({.panne = Panne::ChauffeManu, .salve = 1, .tick = 10});
    p.Fin();
    EXPECT_EQ(p.reponse[8], 0);
    p.Attendre(1ms);
    p.Fin();
    EXPECT_EQ(p.reponse[8], 1);
    EXPECT_EQ(p.boite.Etat().pwmFil, 128);
    EXPECT_EQ(p.reponse[12], 0) << "the run goes on";
}
