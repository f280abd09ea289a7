// The virtual box held against the bytes of the wire: every command, its reply, and the status block.
#include "outils_boite/boite_virtuelle.h"
#include "outils_boite/trames.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <initializer_list>
#include <string>

using namespace tessarel;
using namespace tessarel::simulateur;
using namespace tessarel::essais;
using namespace std::chrono_literals;

namespace {

// 10 kHz, so that a tick of full rate is 100 microseconds.
TableMachine MachineLente() {
    TableMachine t;
    LireMachine("(Defaut)", t);
    t.Nom = "LENTE";
    t.Frequence = 10000;
    return t;
}

struct Poste : BoiteVirtuelle {
    Poste() : BoiteVirtuelle() {
        PreparerMachine(MachineLente());
        PasParEchange = 0ms;
    }
    Tampon Envoyer(const Tampon& commande) {
        Tampon t = commande;
        EXPECT_EQ(Zelko_Send(t), 1);
        return t;
    }
    Tampon Envoyer(std::initializer_list<int> octets) {
        Tampon t = {};
        std::size_t i = 1;
        for (const int o : octets) t[i++] = static_cast<std::uint8_t>(o);
        return Envoyer(t);
    }
    Tampon Envoyer(const TrameEssai& trame) { return Envoyer(EnTampon(trame)); }
    Tampon Statut() { return Envoyer({'I', 0, 0}); }
};

std::uint32_t Ticks(const Tampon& t) {
    return t[13] | t[14] << 8U | t[15] << 16U | static_cast<std::uint32_t>(t[16]) << 24U;
}
int Numero(const Tampon& t) {
    return t[4] | t[5] << 8 | t[6] << 16;
}

} // namespace

TEST(BoiteCommandes, UneBoiteAuReposDitTermineeSansCause) {
    Poste p;
    const Tampon r = p.Statut();
    EXPECT_EQ(r[1], 'I');
    EXPECT_EQ(Numero(r), 0);
    EXPECT_EQ(r[7], 0);
    EXPECT_EQ(r[8], 0);
    EXPECT_EQ(r[12], 2);
    EXPECT_EQ(Ticks(r), 0U);
}

TEST(BoiteCommandes, LaChauffeEstRepeteeEnQuatrieme) {
    Poste p;
    Tampon r = p.Envoyer({'P', 1, 166});
    EXPECT_EQ(r[2], 1);
    EXPECT_EQ(r[4], 166);
    EXPECT_EQ(p.Statut()[7], 16);
    r = p.Envoyer({'P', 0, 0});
    EXPECT_EQ(r[2], 0);
    EXPECT_EQ(r[4], 0);
    EXPECT_EQ(p.Statut()[7], 0);
    ASSERT_EQ(p.boite.HistoireChauffe().size(), 2U);
    EXPECT_EQ(p.boite.HistoireChauffe()[0].pwm, 166);
    EXPECT_EQ(p.boite.HistoireChauffe()[1].pwm, 0);
}

TEST(BoiteCommandes, LeMaximumDeLaTableBorneLeFilPasLaReponse) {
    Poste p; // 80 % of 255 is 204
    EXPECT_EQ(p.Envoyer({'P', 1, 255})[4], 255);
    EXPECT_EQ(p.boite.Etat().pwmFil, 204);
}

TEST(BoiteCommandes, UneListeVaDuPremierAuDernierPas) {
    Poste p;
    p.Envoyer({'B', 0, 0});
    p.Envoyer({'B', 1, 0});
    Tampon r = p.Envoyer(TrameEssai{.drapeaux = 64, .ticks = 1000, .niveauDepart = 100});
    EXPECT_EQ(r[1], 'D');
    EXPECT_EQ(r[2], 1);
    EXPECT_EQ(r[12], 0);
    r = p.Envoyer(TrameEssai{.drapeaux = 1 | 2 | 8, .ticks = 2000, .pas = {400, 0, 200, 2000}});
    EXPECT_EQ(r[2], 1);
    r = p.Envoyer({'D', 128, 0});
    EXPECT_EQ(r[2], 1);
    EXPECT_EQ(p.boite.Etat().salvesEnFile, 3U);
    EXPECT_EQ(p.Statut()[7], 0) << "the pause has not begun";

    p.Envoyer({'B', 128, 0});
    r = p.Statut();
    EXPECT_EQ(Numero(r), 1);
    EXPECT_EQ(Ticks(r), 999U);
    EXPECT_EQ(r[7], 16);
    EXPECT_EQ(r[12], 0);
    p.Attendre(99900us); // 999 of the pause's ticks
    r = p.Statut();
    EXPECT_EQ(Numero(r), 1);
    EXPECT_EQ(Ticks(r), 0U);
    p.Attendre(100us);
    r = p.Statut();
    EXPECT_EQ(Numero(r), 2);
    EXPECT_EQ(Ticks(r), 1999U);
    // 500 of 2000 ticks: a quarter of each axis, X2 backwards.
    p.Attendre(50ms);
    r = p.Statut();
    EXPECT_EQ(Ticks(r), 1499U);
    EXPECT_EQ(p.boite.Position(), (PositionPas{100, 0, -50, 500}));
    p.Attendre(149900us);
    EXPECT_EQ(p.Statut()[12], 0);
    EXPECT_EQ(p.boite.Position(), (PositionPas{400, 0, -200, 1999}));
    p.Attendre(100us);
    r = p.Statut();
    EXPECT_EQ(r[12], 2 | 128);
    EXPECT_EQ(Numero(r), 2) << "the end mark has no number";
    EXPECT_EQ(Ticks(r), 0U);
    EXPECT_EQ(p.boite.Position(), (PositionPas{400, 0, -200, 2000}));
    EXPECT_EQ(p.Statut()[7], 16) << "the end of a list leaves the heat as it is";
}

TEST(BoiteCommandes, UneListeDeSaSeulePauseFinitAuNumeroUn) {
    Poste p;
    p.Envoyer({'B', 1, 0});
    p.Envoyer(TrameEssai{.drapeaux = 64, .ticks = 10, .niveauDepart = 50});
    p.Envoyer({'D', 128, 0});
    p.Envoyer({'B', 128, 0});
    p.Attendre(1s);
    const Tampon r = p.Statut();
    EXPECT_EQ(r[12], 130);
    EXPECT_EQ(Numero(r), 1);
}

TEST(BoiteCommandes, UnePauseDeZeroTickRegleLaChauffe) {
    Poste p;
    p.Envoyer({'B', 1, 0});
    p.Envoyer(TrameEssai{.drapeaux = 64, .ticks = 0, .niveauDepart = 50});
    p.Envoyer(TrameEssai{.drapeaux = 15, .ticks = 100, .pas = {10, 0, 0, 0}});
    p.Envoyer({'B', 128, 0});
    const Tampon r = p.Statut();
    EXPECT_EQ(Numero(r), 2);
    EXPECT_EQ(p.boite.Etat().pwmFil, 50);
}

TEST(BoiteCommandes, UneFilePleineRefuse) {
    Poste p;
    p.boite.FixerCapaciteFile(3);
    p.Envoyer({'B', 1, 0});
    const TrameEssai trame{.drapeaux = 15, .ticks = 100, .pas = {100, 0, 0, 0}};
    for (int i = 0; i < 3; ++i) EXPECT_EQ(p.Envoyer(trame)[2], 1);
    EXPECT_EQ(p.Envoyer(trame)[2], 0);
    EXPECT_EQ(p.Envoyer({'D', 128, 0})[2], 0) << "the end mark takes a place too";
    p.Envoyer({'B', 128, 0}); // takes the first out
    EXPECT_EQ(p.Envoyer(trame)[2], 1);
    EXPECT_EQ(p.Envoyer(trame)[2], 0);
    p.Attendre(10ms);
    EXPECT_EQ(p.Envoyer({'D', 128, 0})[2], 1);
    p.Attendre(1s);
    EXPECT_EQ(p.Statut()[12], 130);
    EXPECT_EQ(p.boite.Position()[0], 400);
    EXPECT_EQ(p.boite.Comptes().salvesAcceptees, 4U);
    EXPECT_EQ(p.boite.Comptes().salvesFinies, 4U);
}

TEST(BoiteCommandes, HorsDUneListeOuverteAucuneSalveNEstPrise) {
    Poste p;
    const TrameEssai trame{.drapeaux = 15, .ticks = 100, .pas = {100, 0, 0, 0}};
    EXPECT_EQ(p.Envoyer(trame)[2], 0);
    p.Envoyer({'B', 1, 0});
    EXPECT_EQ(p.Envoyer({'D', 128, 0})[2], 1);
    EXPECT_EQ(p.Envoyer(trame)[2], 0) << "after the end mark";
    p.Envoyer({'B', 0, 0});
    EXPECT_EQ(p.Envoyer(trame)[2], 0);
    p.Envoyer({'B', 128, 0});
    p.Attendre(1s);
    EXPECT_EQ(p.boite.Position(), PositionPas{});
}

TEST(BoiteCommandes, SArreteSurPlaceEtLeDit) {
    Poste p;
    p.Envoyer({'P', 1, 100});
    p.Envoyer({'B', 1, 0});
    p.Envoyer(TrameEssai{.drapeaux = 15, .ticks = 1000, .pas = {500, 1000, 0, 0}});
    p.Envoyer({'D', 128, 0});
    p.Envoyer({'B', 128, 0});
    p.Attendre(40ms); // 400 ticks
    p.Envoyer({'S', 0, 0});
    p.Attendre(1s);
    const Tampon r = p.Statut();
    EXPECT_EQ(r[12], 2 | 4);
    EXPECT_EQ(Numero(r), 1);
    EXPECT_EQ(Ticks(r), 599U); // (1000 - 599 - 1) / 1000 of the way
    EXPECT_EQ(p.boite.Position(), (PositionPas{200, 400, 0, 0}));
    EXPECT_EQ(r[7], 16) << "S leaves the heat as it is";
    p.Envoyer({'B', 0, 0});
    EXPECT_EQ(p.Statut()[12], 2);
}

TEST(BoiteCommandes, LaFileVideAttendLaSalveSuivante) {
    Poste p;
    p.Envoyer({'B', 1, 0});
    p.Envoyer({'B', 128, 0});
    p.Attendre(1s);
    EXPECT_EQ(p.Statut()[12], 0);
    p.Envoyer(TrameEssai{.drapeaux = 15, .ticks = 10, .pas = {10, 0, 0, 0}});
    p.Attendre(500us);
    EXPECT_EQ(p.Statut()[4], 1);
    EXPECT_EQ(p.boite.Position()[0], 5) << "the time of waiting does not count";
    EXPECT_EQ(p.boite.Comptes().famines, 1U);
}

TEST(BoiteCommandes, LesSwitchsDeLaTableSontDits) {
    Poste p;
    EXPECT_EQ(p.Envoyer({'O', 0, 0})[2], 0);
    TableMachine t = MachineLente();
    t.SwitchsActifs = true;
    p.PreparerMachine(t);
    EXPECT_EQ(p.Envoyer({'O', 0, 0})[2], 2);
    EXPECT_EQ(p.Envoyer({'O', 1, 0})[2], 2);
}

TEST(BoiteCommandes, LesMoteursSEteignentApresLeurDelai) {
    Poste p;
    EXPECT_FALSE(p.boite.Etat().moteurs);
    p.Envoyer({'M', 3, 2});
    p.Envoyer({'M', 1, 0});
    p.Attendre(1900ms);
    p.Statut();
    EXPECT_TRUE(p.boite.Etat().moteurs);
    p.Attendre(200ms);
    p.Statut();
    EXPECT_FALSE(p.boite.Etat().moteurs);
    p.Envoyer({'M', 3, 0});
    p.Envoyer({'M', 1, 0});
    p.Attendre(1h);
    p.Statut();
    EXPECT_TRUE(p.boite.Etat().moteurs) << "delay 0 is never";
    p.Envoyer({'M', 0, 0});
    EXPECT_FALSE(p.boite.Etat().moteurs);
}

TEST(BoiteCommandes, UneMemoireSeRelitOctetParOctet) {
    Poste p;
    Tampon t = {};
    t[1] = 'T';
    t[2] = 4;
    t[3] = 1;
    for (std::size_t i = 4; i <= 33; ++i) t[i] = static_cast<std::uint8_t>(100 + i);
    p.Envoyer(t);
    const Tampon r = p.Envoyer({'T', 3, 1});
    for (std::size_t i = 4; i <= 33; ++i) EXPECT_EQ(r[i], 100 + i) << i;
    EXPECT_EQ(r[34], 0);
    p.Envoyer({'T', 7, 1});
    EXPECT_EQ(p.boite.Memoires()[1].parties[1][0], 0xFF) << "part 2 was never written";
    t[2] = 6;
    p.Envoyer(t);
    t[2] = 8;
    p.Envoyer(t);
    EXPECT_EQ(p.boite.Memoires()[1].parties[1][0], 104);
    EXPECT_EQ(p.boite.Memoires()[1].parties[2][29], 133);
    EXPECT_EQ(p.Envoyer({'T', 3, 2})[4], 0xFF) << "a memory never written is blank";
}

TEST(BoiteCommandes, UneTableViergeNeFaitRienTourner) {
    Poste p;
    p.Envoyer({'T', 1, 2});
    p.Envoyer({'B', 1, 0});
    p.Envoyer(TrameEssai{.drapeaux = 15, .ticks = 10, .pas = {10, 0, 0, 0}});
    p.Envoyer({'B', 128, 0});
    p.Attendre(1s);
    EXPECT_EQ(p.Statut()[12], 2);
    EXPECT_EQ(p.boite.Position(), PositionPas{});
    EXPECT_GT(p.boite.Comptes().anomalies, 0U);
}

TEST(BoiteCommandes, LaTableDUneMachineALesOctetsDuFil) {
    // "(Defaut)": 32 micro-steps of 400 per turn of 40 mm are 320 a mm; 6 and 10 mm/s are 1920 and 3200
    // steps/s.
    Poste p;
    TableMachine t;
    LireMachine("(Defaut)", t);
    const MemoireBoite m = MemoireDeMachine(t);
    const Partie un = {'(', 'D', 'e', 'f', 'a', 'u', 't', ')', 5, 9, 6,   10, 16, 0, 0,
                       129, 1,   131, 3,   130, 66,  132, 68,  5, 6, 204, 1,  4,  4, 0};
    EXPECT_EQ(m.parties[0], un);
    const Partie deux = {64, 1,   64, 1, 64, 1,   64, 1,   0,  0,   128, 7,   128, 7, 128,
                         7,  128, 7,  0, 0,  128, 12, 128, 12, 128, 12,  128, 12,  0, 0};
    EXPECT_EQ(m.parties[1], deux);
    EXPECT_EQ(m.parties[2], Partie{});
    const TableRam ram = LireTable(m);
    EXPECT_EQ(ram.nom, "(Defaut)");
    EXPECT_EQ(ram.frequence, 5);
    EXPECT_EQ(ram.pente, 6);
    EXPECT_EQ(ram.pwmMax, 204);
    EXPECT_EQ(ram.delaiMoteurs, 1);
    EXPECT_FALSE(ram.switchs);
    EXPECT_EQ(ram.pasParMm, (std::array<int, 4>{320, 320, 320, 320}));
    EXPECT_EQ(ram.axePresent, (std::array<bool, 4>{true, true, true, true}));
}

TEST(BoiteCommandes, LesAxesSansSortieSontReconnus) {
    TableMachine t;
    LireMachine("QT2d v12", t);
    const TableRam ram = LireTable(MemoireDeMachine(t));
    EXPECT_EQ(ram.axePresent, (std::array<bool, 4>{true, true, false, true}));
    EXPECT_TRUE(ram.switchs);
    EXPECT_EQ(ram.pasOrigine, (std::array<int, 4>{1600, 1600, 1600, 1600}));
}

TEST(BoiteCommandes, UneCommandeInconnueEstNoteeEtSansEffet) {
    Poste p;
    p.Envoyer({'Z', 1, 2});
    p.Envoyer({'T', 9, 0});
    p.Envoyer({'T', 1, 3});
    p.Envoyer({'T', 3, 255});
    EXPECT_EQ(p.boite.Comptes().anomalies, 4U);
    EXPECT_EQ(p.boite.Ram().nom, "LENTE");
}
