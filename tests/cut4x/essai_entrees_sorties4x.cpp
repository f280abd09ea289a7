// Entries, exits and intermediate exits: every type, every condition, every rapid flag.
#include "cut4x/entrees_sorties4x.h"

#include "cut4x/outils_d4x.h"

using namespace tessarel;
using namespace tessarel::essais;

namespace {

using Liste = std::array<PointProfil, PointsEntreeSortie>;

// A path that rises from the trailing edge by 0.1 and comes back to it rising by 0.05 (S: 0.1, 0.05 too),
// laid on faces 20 to 140 (E) and 30 to 110 (S); parking at -5, clear of the weights at 40 + 30 + 15 = 85.
struct Trajets : Poste {
    Trajets() {
        decoupe.DecoupePossible = true;
        decoupe.PairePositionnee = projet;
        decoupe.blocE = {20, 140, 0, 40};
        decoupe.blocS = {30, 110, 0, 40};
        decoupe.PaireBloc.E = Points({{30, 12}, {130, 22}, {30, 27}});
        decoupe.PaireBloc.S = Points({{40, 10}, {100, 16}, {40, 19}});
        parametres.ZSaumon = 100;
        parametres.ZEmplanture = 600;
    }
    void Faire() { CalculerEntreesSortiesD4X(Contexte(), decoupe); }
};

void AttendreListe(const Liste& liste, const Coordonnees& lieux, const std::vector<bool>& rapides) {
    for (std::size_t i = 0; i < liste.size(); ++i) {
        EXPECT_NEAR(liste[i].X, lieux[i].first, 1e-5) << "point " << i;
        EXPECT_NEAR(liste[i].Y, lieux[i].second, 1e-5) << "point " << i;
        EXPECT_EQ(liste[i].Rapide, rapides[i]) << "point " << i;
    }
}

constexpr bool R = true;
constexpr bool L = false;

} // namespace

TEST(EntreesSorties4x, ApprocheHorizontale) {
    Trajets t;
    t.Faire();
    AttendreListe(t.decoupe.entree.E, {{0, -5}, {0, 12}, {15, 12}, {30, 12}, {30, 12}}, {R, L, L, L, L});
    AttendreListe(t.decoupe.entree.S, {{0, -5}, {0, 10}, {25, 10}, {40, 10}, {40, 10}}, {R, L, L, L, L});
    for (const PointProfil& p : t.decoupe.entree.E) EXPECT_EQ(p.Z, 600);
    for (const PointProfil& p : t.decoupe.sortie.S) EXPECT_EQ(p.Z, 100);
}

TEST(EntreesSorties4x, BlocDresseRendLApprocheRapideSiUneFaceEstAssezLoin) {
    Trajets t;
    t.parametres.chkBlocDresse = true;
    t.Faire();
    EXPECT_TRUE(t.decoupe.entree.E[1].Rapide);
    EXPECT_TRUE(t.decoupe.entree.S[1].Rapide);
    t.decoupe.blocE.Xbf = 5.9;
    t.Faire();
    EXPECT_TRUE(t.decoupe.entree.E[1].Rapide);
    t.decoupe.blocS.Xbf = 5.9;
    t.Faire();
    EXPECT_FALSE(t.decoupe.entree.E[1].Rapide);
    EXPECT_FALSE(t.decoupe.entree.S[1].Rapide);
}

TEST(EntreesSorties4x, BlocAMoinsDeSixConfondAEtB) {
    Trajets t;
    t.decoupe.blocE.Xbf = 5.999;
    t.decoupe.blocS.Xbf = 6;
    t.Faire();
    EXPECT_EQ(t.decoupe.entree.E[2].X, 0);
    EXPECT_EQ(t.decoupe.entree.S[2].X, 1);
}

TEST(EntreesSorties4x, OffsetXSousUnMillimetreOteLeRapideAuxBouts) {
    Trajets t;
    t.parametres.OffsetBlocX = 0.999F;
    for (const int type : {0, 1, 2}) {
        t.parametres.TypeEntree = t.parametres.TypeSortie = static_cast<TypeEntreeD4X>(type);
        t.Faire();
        EXPECT_FALSE(t.decoupe.entree.E[0].Rapide);
        EXPECT_FALSE(t.decoupe.sortie.E[3].Rapide);
    }
    t.parametres.OffsetBlocX = 1;
    for (const int type : {0, 1, 2}) {
        t.parametres.TypeEntree = t.parametres.TypeSortie = static_cast<TypeEntreeD4X>(type);
        t.Faire();
        EXPECT_TRUE(t.decoupe.entree.S[0].Rapide);
        EXPECT_TRUE(t.decoupe.sortie.S[3].Rapide);
        EXPECT_FALSE(t.decoupe.sortie.S[4].Rapide);
    }
}

TEST(EntreesSorties4x, ApprocheAligneeAvecLePremierSegment) {
    Trajets t;
    t.parametres.TypeApprocheBF = TypeApprocheD4X::PremierSegment;
    t.Faire();
    // 10 mm at a slope of 0.1 on both sides.
    AttendreListe(t.decoupe.entree.E, {{0, -5}, {0, 11}, {15, 11}, {20, 11}, {30, 12}}, {R, L, L, L, L});
    AttendreListe(t.decoupe.entree.S, {{0, -5}, {0, 9}, {25, 9}, {30, 9}, {40, 10}}, {R, L, L, L, L});
}

TEST(EntreesSorties4x, ApprocheParalleleAuDernierSegment) {
    Trajets t;
    t.parametres.TypeApprocheBF = TypeApprocheD4X::DernierSegment;
    t.Faire();
    AttendreListe(t.decoupe.entree.E, {{0, -5}, {0, 12.5}, {15, 12.5}, {20, 12.5}, {30, 12}},
                  {R, L, L, L, L});
}

TEST(EntreesSorties4x, SegmentQuiDescendEnvoieLeFilParLOrigine) {
    Trajets t;
    t.parametres.TypeApprocheBF = TypeApprocheD4X::PremierSegment;
    t.parametres.chkBlocDresse = true;
    t.decoupe.PaireBloc.S[1].Y = 9.999;
    t.Faire();
    // One side is enough for both; A keeps the rule of a horizontal approach.
    AttendreListe(t.decoupe.entree.E, {{0, -5}, {0, 0}, {0, 0}, {0, 0}, {30, 12}}, {R, R, L, L, L});
    AttendreListe(t.decoupe.entree.S, {{0, -5}, {0, 0}, {0, 0}, {0, 0}, {40, 10}}, {R, R, L, L, L});
}

TEST(EntreesSorties4x, ConditionsDesApprochesLeLongDUnSegment) {
    const auto possible = [](auto changer) {
        Trajets t;
        t.parametres.TypeApprocheBF = TypeApprocheD4X::PremierSegment;
        changer(t);
        t.Faire();
        return t.decoupe.entree.E[2].X != 0;
    };
    EXPECT_TRUE(possible([](Trajets&) {}));
    EXPECT_TRUE(possible([](Trajets& t) { t.decoupe.PaireBloc.E[1].Y = 12; })); // flat: 0 is allowed
    EXPECT_FALSE(possible([](Trajets& t) { t.decoupe.PaireBloc.E[1].X = 30; }));
    EXPECT_FALSE(possible([](Trajets& t) { t.decoupe.PairePositionnee.E.MargeBf = 0.1F; }));
    EXPECT_FALSE(possible([](Trajets& t) { t.decoupe.PairePositionnee.S.MargeBf = 0.1F; }));
    EXPECT_TRUE(possible([](Trajets& t) { t.decoupe.PairePositionnee.S.MargeBf = 0.11F; }));
    // tan 1.222 = 2.7488: 2.74 passes, 2.76 does not.
    EXPECT_TRUE(possible([](Trajets& t) { t.decoupe.PaireBloc.E[1] = Points({{130, 286}})[0]; }));
    EXPECT_FALSE(possible([](Trajets& t) { t.decoupe.PaireBloc.E[1] = Points({{130, 288}})[0]; }));
    const auto parLaFin = [&](auto changer) {
        return possible([&](Trajets& t) {
            t.parametres.TypeApprocheBF = TypeApprocheD4X::DernierSegment;
            changer(t);
        });
    };
    EXPECT_TRUE(parLaFin([](Trajets&) {}));
    EXPECT_FALSE(parLaFin([](Trajets& t) { t.decoupe.PaireBloc.S[2].Y = 15.9; }));
    EXPECT_FALSE(parLaFin([](Trajets& t) { t.decoupe.PaireBloc.S[2].X = 100; }));
}

TEST(EntreesSorties4x, RetoursParLeBordDeFuite) {
    Trajets t;
    t.parametres.chkBlocDresse = true;
    t.decoupe.blocS.Xbf = 5;
    t.Faire();
    AttendreListe(t.decoupe.sortie.E, {{30, 27}, {30, 27}, {15, 27}, {0, 27}, {0, -5}}, {L, L, R, R, L});
    // B is rapid on a side whose own face is far enough.
    AttendreListe(t.decoupe.sortie.S, {{40, 19}, {40, 19}, {0, 19}, {0, 19}, {0, -5}}, {L, L, L, R, L});
    t.decoupe.blocS.Xbf = 30;
    t.parametres.TypeRetourBF = TypeApprocheD4X::PremierSegment;
    t.Faire();
    AttendreListe(t.decoupe.sortie.E, {{30, 27}, {20, 26}, {15, 26}, {0, 26}, {0, -5}}, {L, L, R, R, L});
    t.parametres.TypeRetourBF = TypeApprocheD4X::DernierSegment;
    t.Faire();
    AttendreListe(t.decoupe.sortie.E, {{30, 27}, {20, 27.5}, {15, 27.5}, {0, 27.5}, {0, -5}},
                  {L, L, R, R, L});
    t.decoupe.PaireBloc.E[2].Y = 20;
    t.Faire();
    AttendreListe(t.decoupe.sortie.S, {{40, 19}, {0, 0}, {0, 0}, {0, 0}, {0, -5}}, {L, L, R, R, L});
}

TEST(EntreesSorties4x, ParDessusEtVersLeHaut) {
    Trajets t;
    t.parametres.TypeEntree = t.parametres.TypeSortie = TypeEntreeD4X::Dessus;
    t.Faire();
    AttendreListe(t.decoupe.entree.E, {{0, -5}, {0, 85}, {0, 85}, {30, 85}, {30, 12}}, {R, R, R, L, L});
    AttendreListe(t.decoupe.entree.S, {{0, -5}, {0, 85}, {0, 85}, {40, 85}, {40, 10}}, {R, R, R, L, L});
    AttendreListe(t.decoupe.sortie.E, {{30, 27}, {30, 85}, {30, 85}, {0, 85}, {0, -5}}, {L, R, R, R, L});
}

TEST(EntreesSorties4x, HauteurLimiteeALaCourseNEstPlusRapide) {
    Trajets t;
    t.parametres.TypeEntree = t.parametres.TypeSortie = TypeEntreeD4X::Dessus;
    t.table.CourseY = 84;
    t.Faire();
    AttendreListe(t.decoupe.entree.E, {{0, -5}, {0, 84}, {0, 84}, {30, 84}, {30, 12}}, {R, L, L, L, L});
    AttendreListe(t.decoupe.sortie.E, {{30, 27}, {30, 84}, {30, 84}, {0, 84}, {0, -5}}, {L, L, L, R, L});
    t.table.CourseY = 85; // just reached is not limited
    t.Faire();
    EXPECT_TRUE(t.decoupe.entree.E[1].Rapide);
}

TEST(EntreesSorties4x, ParLeBordDAttaque) {
    Trajets t;
    t.parametres.TypeEntree = t.parametres.TypeSortie = TypeEntreeD4X::BordDAttaque;
    t.Faire();
    AttendreListe(t.decoupe.entree.E, {{0, -5}, {0, 85}, {155, 85}, {155, 12}, {30, 12}}, {R, R, L, L, L});
    AttendreListe(t.decoupe.entree.S, {{0, -5}, {0, 85}, {125, 85}, {125, 10}, {40, 10}}, {R, R, L, L, L});
    AttendreListe(t.decoupe.sortie.E, {{30, 27}, {155, 27}, {155, 85}, {0, 85}, {0, -5}}, {L, L, R, R, L});
    t.parametres.chkBlocDresse = true;
    t.table.CourseX = 150;
    t.table.CourseY = 80;
    t.Faire();
    AttendreListe(t.decoupe.entree.E, {{0, -5}, {0, 80}, {150, 80}, {150, 12}, {30, 12}}, {R, L, R, L, L});
    AttendreListe(t.decoupe.sortie.E, {{30, 27}, {150, 27}, {150, 80}, {0, 80}, {0, -5}}, {L, R, L, R, L});
}

TEST(EntreesSorties4x, LesBoutsNeSontPasDoubles) {
    Trajets t;
    t.Faire();
    AjouterEntreesSortiesD4X(t.decoupe);
    AttendrePoints(t.decoupe.PaireBloc.E, {{0, -5},
                                           {0, 12},
                                           {15, 12},
                                           {30, 12},
                                           {30, 12},
                                           {130, 22},
                                           {30, 27},
                                           {30, 27},
                                           {15, 27},
                                           {0, 27},
                                           {0, -5}});
    EXPECT_EQ(t.decoupe.PaireBloc.S.size(), 11U);
    EXPECT_EQ(t.decoupe.premierProfil, 4U);
    EXPECT_EQ(t.decoupe.nombreProfil, 3U);
}

TEST(EntreesSorties4x, UneSortieIntermediaireAuPremierCurseur) {
    Trajets t;
    t.parametres.CoteDecalage = CoteDecalageD4X::Aucun;
    t.parametres.SortieIntermediaire = SortieIntermediaireD4X::Une;
    t.parametres.CurseurSortieIntermediaire = 2;
    t.parametres.CurseurSortieIntermediaire2 = 1;
    t.decoupe.PaireBloc.E[1].Drapeaux = 32;
    t.Faire();
    AjouterEntreesSortiesD4X(t.decoupe);
    AjouterSortiesIntermediaires(t.parametres, t.decoupe);
    const auto& e = t.decoupe.PaireBloc.E;
    ASSERT_EQ(e.size(), 13U);
    // Point 2 is number 6 of the path; 10 mm beyond the face at 140, back to a copy with its flags.
    EXPECT_EQ(e[5].X, 130);
    EXPECT_EQ(e[6].X, 150);
    EXPECT_EQ(e[6].Y, 22);
    EXPECT_EQ(e[6].Z, 600);
    EXPECT_EQ(e[6].Drapeaux, DrapeauArret);
    EXPECT_EQ(e[7], e[5]);
    EXPECT_EQ(e[7].Drapeaux, 32);
    EXPECT_EQ(e[8].X, 30);
    const auto& s = t.decoupe.PaireBloc.S;
    EXPECT_EQ(s[6].X, 120);
    EXPECT_EQ(s[6].Y, 16);
}

TEST(EntreesSorties4x, DeuxSortiesSontOrdonneesEtEgalesSeSuivent) {
    Trajets t;
    t.parametres.CoteDecalage = CoteDecalageD4X::Aucun;
    t.parametres.SortieIntermediaire = SortieIntermediaireD4X::Deux;
    t.parametres.CurseurSortieIntermediaire = 3;
    t.parametres.CurseurSortieIntermediaire2 = 2;
    t.Faire();
    AjouterEntreesSortiesD4X(t.decoupe);
    Trajets egaux = t;
    AjouterSortiesIntermediaires(t.parametres, t.decoupe);
    const auto& e = t.decoupe.PaireBloc.E;
    ASSERT_EQ(e.size(), 15U);
    EXPECT_EQ(e[6].Drapeaux, DrapeauArret);
    EXPECT_EQ(e[6].Y, 22);
    EXPECT_EQ(e[8].X, 30); // point 3, number 7 + 2
    EXPECT_EQ(e[9].Drapeaux, DrapeauArret);
    EXPECT_EQ(e[9].Y, 27);

    egaux.parametres.CurseurSortieIntermediaire = 2;
    AjouterSortiesIntermediaires(egaux.parametres, egaux.decoupe);
    const auto& f = egaux.decoupe.PaireBloc.E;
    EXPECT_EQ(f[6].Drapeaux, DrapeauArret);
    EXPECT_EQ(f[8].Drapeaux, DrapeauArret);
    EXPECT_EQ(f[7].X, 130);
    EXPECT_EQ(f[9].X, 130);
}

TEST(EntreesSorties4x, LeDecalageVariableDoubleLIndiceDesSorties) {
    Poste poste;
    poste.parametres.SortieIntermediaire = SortieIntermediaireD4X::Deux;
    poste.parametres.CurseurSortieIntermediaire = 1;
    poste.parametres.CurseurSortieIntermediaire2 = 2;
    poste.Calculer();
    // 3 points make 4, with 4 before and 4 after: 12, and two exits of 2. Stops at numbers 2x1+3+1, 2x2+5+1.
    const auto& e = poste.decoupe.PaireBloc.E;
    ASSERT_EQ(e.size(), 16U);
    for (std::size_t i = 0; i < e.size(); ++i)
        EXPECT_EQ(e[i].Drapeaux == DrapeauArret, i == 5 || i == 9) << i;
    EXPECT_EQ(poste.decoupe.PaireBloc.S[5].Drapeaux, DrapeauArret);
}

TEST(EntreesSorties4x, CurseurHorsDuProfilVautLePointLePlusProche) {
    for (const std::int32_t curseur : {0, -5, 4, 1000000000}) {
        Trajets t;
        t.parametres.CoteDecalage = CoteDecalageD4X::Aucun;
        t.parametres.SortieIntermediaire = SortieIntermediaireD4X::Une;
        t.parametres.CurseurSortieIntermediaire = curseur;
        t.Faire();
        AjouterEntreesSortiesD4X(t.decoupe);
        AjouterSortiesIntermediaires(t.parametres, t.decoupe);
        ASSERT_EQ(t.decoupe.PaireBloc.E.size(), 13U);
        EXPECT_EQ(t.decoupe.PaireBloc.E[curseur < 1 ? 5 : 7].Drapeaux, DrapeauArret);
    }
}
