// Limit checks: what fails, in which order it is told, and the results.
#include "cut4x/controle4x.h"

#include "cut4x/outils_d4x.h"

using namespace tessarel;
using namespace tessarel::essais;

namespace {

const std::string Courses = "Découpe impossible, les courses de la machine sont dépassées, contrôlez le "
                            "placement du bloc en X, Y, Z (essayez le bouton Auto).";
const std::string Vitesses =
    "Découpe impossible, les vitesses limite de la machine sont dépassées au niveau des chariots : les "
    "segments qui posent problème sont représentés en gras.\r\n\r\nListe des points qui posent problème "
    ":\r\n";
const std::string Fil =
    "Découpe impossible, la longueur maxi du fil indiquée dans les paramètres machine est dépassée.";

// A path that passes every check, at block and carriages alike; parking first and last.
struct Controle : Poste {
    Controle() {
        decoupe.DecoupePossible = true;
        decoupe.PaireBloc.E = decoupe.PaireBloc.S =
            Points({{0, -5}, {0, 10}, {100, 10}, {100, 50}, {0, 50}, {0, -5}});
        decoupe.PaireChariots = decoupe.PaireBloc;
        for (PointProfil& p : decoupe.PaireChariots.E) p.Z = 1000;
    }
    [[nodiscard]] std::vector<PointProfil>& P2() { return decoupe.PaireChariots.E; }
    [[nodiscard]] std::vector<PointProfil>& P1() { return decoupe.PaireChariots.S; }
    int Faire() { return ControlerDecoupeD4X(Contexte(), decoupe); }
    void Attendre(int resultat, const std::string& texte) {
        BoitesEnregistrees boites;
        EXPECT_EQ(Faire(), resultat);
        ASSERT_EQ(boites.boites.size(), 1U);
        EXPECT_EQ(boites.boites[0].texte, texte);
        EXPECT_EQ(boites.boites[0].titre, "Opération annulée");
        EXPECT_EQ(boites.boites[0].icone, IconeBoite::Critique);
    }
};

} // namespace

TEST(Controle4x, ToutVaBien) {
    BoitesEnregistrees boites;
    Controle c;
    EXPECT_EQ(c.Faire(), 1);
    EXPECT_TRUE(boites.boites.empty());
}

TEST(Controle4x, SousLaMargeDuPlateauArreteLeControle) {
    Controle c;
    c.decoupe.PaireBloc.S[2].Y = 0.99;
    c.P2()[2].X = 9999; // not looked at any more
    c.Attendre(-1, "Découpe impossible, le trajet du fil au niveau du bloc descend plus bas que la marge "
                   "Fil/Plateau des paramètres de la machine.");
    // Squaring and guillotine go down to the plateau.
    c.P2()[2].X = 100;
    c.parametres.chkDresser = true;
    EXPECT_EQ(c.Faire(), 1);
    c.parametres.chkDresser = false;
    c.parametres.chkGuillotine = true;
    EXPECT_EQ(c.Faire(), 1);
    c.parametres.chkGuillotine = false;
    c.decoupe.PaireBloc.S[2].Y = 1; // the margin itself is allowed
    EXPECT_EQ(c.Faire(), 1);
}

TEST(Controle4x, CoursesDansLaTolerance) {
    const auto tenues = [](double x, double y) {
        BoitesEnregistrees boites;
        Controle c;
        c.table.LongueurMaxiFil = 2000;
        c.P1()[2].X = x;
        c.P1()[2].Y = y;
        return c.Faire() == 1;
    };
    EXPECT_TRUE(tenues(-0.000009, 10));
    EXPECT_FALSE(tenues(-0.000011, 10));
    EXPECT_TRUE(tenues(600.000009, 10));
    EXPECT_FALSE(tenues(600.000011, 10));
    EXPECT_FALSE(tenues(10, -0.000011));
    EXPECT_TRUE(tenues(10, 300.000009));
    EXPECT_FALSE(tenues(10, 300.000011));
}

TEST(Controle4x, LeRangementSousLOrigineNEstPasUneSortieDeCourse) {
    Controle c;
    c.P1().front().Y = c.P1().back().Y = -200;
    c.P2().front().X = -50;
    EXPECT_EQ(c.Faire(), 1);
}

TEST(Controle4x, CoursesSeules) {
    Controle c;
    c.table.LongueurMaxiFil = 2000;
    c.P2()[2].X = 601;
    c.Attendre(-1, Courses);
}

TEST(Controle4x, VitessesSeulesAvecLeurListe) {
    Controle c;
    c.P2()[1].Vx = 10.5F;
    c.P1()[1].Vy = 12.25F;
    c.P2()[2].Vx = 30; // rapid: the other limit
    c.P2()[2].Rapide = true;
    c.P1()[3].Vx = 30.5F;
    c.P2()[3].Rapide = true;
    c.Attendre(-11, Vitesses + "Vdécoupe - E(2) à 10.5mm/s en X et 0mm/s en Y\r\n"
                               "Vdécoupe - S(2) à 0mm/s en X et 12.25mm/s en Y\r\n"
                               "Vrapide - S(4) à 30.5mm/s en X et 0mm/s en Y\r\n");
}

TEST(Controle4x, VitesseDansLaTolerance) {
    Controle c;
    c.P2()[1].Vx = 10.00001F; // 9.5e-6 above in 32 bits
    EXPECT_EQ(c.Faire(), 1);
}

TEST(Controle4x, FilSeulDonneMoinsCent) {
    Controle c;
    c.table.LongueurMaxiFil = 999;
    c.Attendre(-100, Fil);
    c.table.LongueurMaxiFil = 1000;
    EXPECT_EQ(c.Faire(), 1);
}

TEST(Controle4x, ToutEnsembleDansUneSeuleBoite) {
    Controle c;
    c.P2()[2].X = 601;
    c.table.LongueurMaxiFil = 999;
    c.Attendre(-101, Courses + Fil);
    c.P2()[1].Vx = 11;
    c.Attendre(-111, Courses + Vitesses + "Vdécoupe - E(2) à 11mm/s en X et 0mm/s en Y\r\n" + Fil);
    c.P2()[2].X = 100;
    c.Attendre(-111, Vitesses + "Vdécoupe - E(2) à 11mm/s en X et 0mm/s en Y\r\n" + Fil);
}

TEST(Controle4x, LeConstatMontreLesSegmentsCoupables) {
    Controle c;
    c.P1()[3].Vx = 11;
    const ConstatD4X constat = ConstaterDecoupeD4X(c.Contexte(), c.decoupe);
    ASSERT_EQ(constat.tropRapides.size(), 1U);
    EXPECT_EQ(constat.tropRapides[0].indice, 3U);
    EXPECT_FALSE(constat.tropRapides[0].emplanture);
}

TEST(Controle4x, LimitesDUnePaireTropCourtePartentDeZero) {
    PaireD4X paire;
    paire.E = paire.S = Points({{10, 10}, {20, 20}});
    EXPECT_EQ(LimitesSequencesD4X(paire), BornesD4X{});
    paire.E = paire.S = Points({{1, 1}, {20, 30}, {9, 9}});
    EXPECT_EQ(LimitesSequencesD4X(paire), (BornesD4X{20, 30, 20, 30}));
    paire.S = Points({{5, 5}});
    EXPECT_EQ(LimitesSequencesD4X(paire), (BornesD4X{0, 0, 20, 30}));
}
