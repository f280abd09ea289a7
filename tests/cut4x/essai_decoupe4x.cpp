// The whole computation: placing, mirror, tools, passage, and what a failure leaves.
#include "app/settings/parametres.h"
#include "cut4x/controle4x.h"
#include "cut4x/decoupe4x.h"
#include "cut4x/decoupe_courante4x.h"
#include "cut4x/fautes_d4x.h"
#include "cut4x/placement4x.h"

#include "cut4x/outils_d4x.h"

#include <algorithm>
#include <cmath>

using namespace tessarel;
using namespace tessarel::essais;

TEST(Passage4x, EcartementPlusLargeQueLePlateau) {
    const TableMachine table = Machine4axes();
    const auto possible = [&](float ecartement) {
        return PasserEnDecoupe(Projet({{0, 0}, {9, 9}}, {{0, 0}, {9, 9}}, ecartement), true, table);
    };
    EXPECT_TRUE(possible(800).DecoupePossible);
    EXPECT_TRUE(possible(800.00006F).DecoupePossible); // 6.1e-5 over in 32 bits
    const PassageD4X refus = possible(800.0002F);
    EXPECT_FALSE(refus.DecoupePossible);
    EXPECT_EQ(refus.raison, "Découpe impossible, l'écartement est plus large que la table.\r\n"
                            "Retournez dans l'onglet Conception 4 axes,\r\n"
                            "l'outil Profil Intermédiaire permet de découper en deux fois.");
    EXPECT_EQ(refus.titre, "Projet impossible à découper");
}

TEST(Passage4x, NombresDePointsDifferents) {
    const PassageD4X refus =
        PasserEnDecoupe(Projet({{0, 0}, {9, 9}, {0, 1}}, {{0, 0}, {9, 9}}), true, Machine4axes());
    EXPECT_FALSE(refus.DecoupePossible);
    EXPECT_EQ(refus.raison, "Découpe impossible, les deux côtés n'ont pas le même nombre de points.\r\n"
                            "Retournez dans l'onglet Conception 4 axes,\r\n"
                            "l'outil de Synchronisation Optimale permet de corriger cela.");
}

TEST(Passage4x, SansProjetRienNEstDit) {
    const PassageD4X passage = PasserEnDecoupe(Coin(), false, Machine4axes());
    EXPECT_FALSE(passage.DecoupePossible);
    EXPECT_EQ(passage.raison, "");
}

TEST(Passage4x, EcartementNulOuProfilSansSegmentSontRefuses) {
    const TableMachine table = Machine4axes();
    for (const float ecartement : {0.0F, -1.0F})
        EXPECT_FALSE(PasserEnDecoupe(Projet({{0, 0}, {9, 9}}, {{0, 0}, {9, 9}}, ecartement), true, table)
                         .DecoupePossible);
    const PassageD4X seul = PasserEnDecoupe(Projet({{0, 0}}, {{0, 0}}), true, table);
    EXPECT_FALSE(seul.DecoupePossible);
    EXPECT_EQ(seul.titre, "Projet impossible à découper");
    EXPECT_FALSE(PasserEnDecoupe(Projet({}, {}), true, table).DecoupePossible);
}

TEST(Passage4x, OrigineEnHautRefusee) {
    BoitesEnregistrees boites;
    TableMachine table = Machine4axes();
    EXPECT_TRUE(MachineAcceptee4axes(table));
    table.OrigineEnHaut = true;
    EXPECT_FALSE(MachineAcceptee4axes(table));
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].titre, "Opération impossible");
}

TEST(Placement4x, LePiedDuBlocEtSonPremierBoutVontOuIlEstDit) {
    Poste p;
    p.parametres.OffsetBlocY = 2;
    p.parametres.CoteDecalage = CoteDecalageD4X::Aucun;
    p.Calculer();
    // Root low at -5: foot at -15. Trailing ends at -10 (root) and 10 (tip): shift by +10 + 20.
    AttendrePoints(p.decoupe.PairePositionnee.E.Points, {{30, 17}, {130, 27}, {30, 12}});
    AttendrePoints(p.decoupe.PairePositionnee.S.Points, {{50, 17}, {110, 23}, {50, 14}});
    EXPECT_EQ(p.decoupe.blocE.Xbf, 20);
    EXPECT_EQ(p.decoupe.blocE.Xba, 140);
    EXPECT_EQ(p.decoupe.blocE.Ybas, 2);
    EXPECT_EQ(p.decoupe.blocE.Yhaut, 42);
    EXPECT_EQ(p.decoupe.blocS.Xbf, 40);
    EXPECT_EQ(p.decoupe.blocS.Xba, 120);
    EXPECT_EQ(p.decoupe.PairePositionnee.E.Points[0].Z, 600);
    EXPECT_EQ(p.decoupe.PairePositionnee.S.Points[0].Z, 100);
    // The stored pair is as it was.
    EXPECT_EQ(p.projet, Coin());
}

TEST(Placement4x, SymetrieEchangeLesCotesEtGardeLePied) {
    Poste p;
    p.parametres.symetrie = true;
    p.parametres.CoteDecalage = CoteDecalageD4X::Aucun;
    p.projet.E.MargeBf = 7;
    p.projet.S.MargeBa = 12;
    p.projet.E.Points[1].Drapeaux = 8;
    CalculerExtremesCPX(p.projet);
    p.Calculer();
    // Ends at -7 and 10: shift 27; feet at -15 whoever the root is.
    AttendrePoints(p.decoupe.PairePositionnee.E.Points, {{47, 15}, {107, 21}, {47, 12}});
    AttendrePoints(p.decoupe.PairePositionnee.S.Points, {{27, 15}, {127, 25}, {27, 10}});
    EXPECT_EQ(p.decoupe.PairePositionnee.S.Points[1].Drapeaux, 8);
    EXPECT_EQ(p.decoupe.PairePositionnee.E.MargeBa, 12);
    EXPECT_EQ(p.decoupe.PairePositionnee.S.MargeBf, 7);
    // 10 and the 2 mm by which the tip lies higher.
    EXPECT_EQ(p.decoupe.PairePositionnee.DistProfilDessousE, 12);
    EXPECT_NEAR(p.decoupe.blocE.Ybas, 0, 1e-9);
}

TEST(Decoupe4x, SansDecalageLeProfilEstSuiviPointParPoint) {
    Poste p;
    p.parametres.CoteDecalage = CoteDecalageD4X::Aucun;
    p.Calculer();
    AttendrePoints(p.decoupe.PaireBloc.E, {{0, -5},
                                           {0, 15},
                                           {15, 15},
                                           {30, 15},
                                           {30, 15},
                                           {130, 25},
                                           {30, 10},
                                           {30, 10},
                                           {15, 10},
                                           {0, 10},
                                           {0, -5}});
    ASSERT_EQ(p.decoupe.PaireChariots.S.size(), 11U);
    EXPECT_EQ(p.decoupe.PaireChariots.E[0].Z, 1000);
    EXPECT_EQ(p.decoupe.maximumParcourir, 11);
    // Low point at 10, half a kerf below it.
    EXPECT_EQ(p.decoupe.coteE.haut.Y, 9.5);
    EXPECT_EQ(p.decoupe.coteE.bas.Y, 0);
}

TEST(Decoupe4x, EncoreUneFoisDonneLaMemeChose) {
    Poste p;
    p.Calculer();
    const PaireD4X bloc = p.decoupe.PaireBloc;
    const PaireD4X chariots = p.decoupe.PaireChariots;
    for (int i = 0; i < 3; ++i) p.Calculer();
    EXPECT_EQ(p.decoupe.PaireBloc.E, bloc.E);
    EXPECT_EQ(p.decoupe.PaireBloc.S, bloc.S);
    EXPECT_EQ(p.decoupe.PaireChariots.E, chariots.E);
    EXPECT_EQ(p.decoupe.PaireChariots.S, chariots.S);
}

TEST(Decoupe4x, DecalageImpossibleLaisseLaPaireEtEteintLaDecoupe) {
    BoitesEnregistrees boites;
    Poste p;
    p.projet = Projet({{0, 0}, {100, 10}, {100, 10}, {0, -5}}, {{20, 0}, {80, 6}, {81, 6}, {20, -3}});
    p.Calculer();
    EXPECT_FALSE(p.decoupe.DecoupePossible);
    EXPECT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(p.decoupe.PaireBloc.E.size(), 4U);
    EXPECT_TRUE(p.decoupe.PaireChariots.E.empty());
    // It stays off, without a word, until a project arrives anew.
    CalculerDecoupeD4X(p.Contexte(), p.decoupe);
    EXPECT_FALSE(p.decoupe.DecoupePossible);
    EXPECT_EQ(boites.boites.size(), 1U);
    p.parametres.CoteDecalage = CoteDecalageD4X::Aucun;
    p.Calculer();
    EXPECT_TRUE(p.decoupe.DecoupePossible);
}

TEST(Decoupe4x, PaireQuiNEstPasUnePaireEstUneFauteNommee) {
    Poste p;
    p.projet = Projet({{0, 0}, {1, 1}}, {{0, 0}});
    p.decoupe.DecoupePossible = true;
    EXPECT_THROW(CalculerDecoupeD4X(p.Contexte(), p.decoupe), FauteProcedureD4X);
}

TEST(Decoupe4x, DresserCoupeLesDeuxBouts) {
    Poste p;
    p.parametres.chkDresser = true;
    p.Calculer();
    // Block 20 to 140 (E), 40 to 120 (S), top at 40; half kerf 0.5; 40 + 30 + 15 = 85. Entry and exit at 85.
    const std::vector<PointProfil>& e = p.decoupe.PaireBloc.E;
    AttendrePoints({e.begin() + 4, e.begin() + 10},
                   {{19.5, 85}, {19.5, 0}, {19.5, 85}, {140.5, 85}, {140.5, 0}, {140.5, 85}});
    const std::vector<PointProfil>& s = p.decoupe.PaireBloc.S;
    AttendrePoints({s.begin() + 4, s.begin() + 10},
                   {{39.5, 85}, {39.5, 0}, {39.5, 85}, {120.5, 85}, {120.5, 0}, {120.5, 85}});
    for (std::size_t i = 4; i < 10; ++i) EXPECT_EQ(e[i].Rapide, i == 6) << i;
    EXPECT_EQ(e[5].Z, 600);
    EXPECT_EQ(e.size(), 14U);
    EXPECT_FALSE(p.decoupe.PaireChariots.E.empty());
}

TEST(Decoupe4x, SurfacerPasseJusteAuDessusDuBloc) {
    Poste p;
    p.parametres.chkDresser = p.parametres.chkSurfacer = true;
    p.parametres.OffsetBlocX = 0.5F; // no more than half the kerf: along the end
    p.Calculer();
    const std::vector<PointProfil>& e = p.decoupe.PaireBloc.E;
    AttendrePoints({e.begin() + 4, e.begin() + 10},
                   {{0.5, 40.5}, {0.5, 0}, {0.5, 40.5}, {121, 40.5}, {121, 0}, {121, 40.5}});
    for (std::size_t i = 4; i < 10; ++i) EXPECT_FALSE(e[i].Rapide) << i;
}

TEST(Decoupe4x, GuillotineSansProjet) {
    Poste p;
    p.parametres.chkGuillotine = p.parametres.chkMonteeRapide = true;
    p.parametres.hauteurGuillotine = 100;
    p.parametres.angleGuillotine = 45;
    CalculerDecoupeD4X(p.Contexte(), p.decoupe);
    for (const auto* liste : {&p.decoupe.PaireBloc.E, &p.decoupe.PaireBloc.S, &p.decoupe.PaireChariots.E,
                              &p.decoupe.PaireChariots.S})
        AttendrePoints(*liste, {{0, -5}, {0, 0}, {100, 100}, {0, 0}, {0, -5}}, 1e-6);
    const std::vector<PointProfil>& e = p.decoupe.PaireBloc.E;
    EXPECT_EQ(e[2].Drapeaux, DrapeauArret);
    EXPECT_FALSE(e[0].Rapide);
    EXPECT_TRUE(e[1].Rapide);
    EXPECT_FALSE(e[2].Rapide);
    EXPECT_FALSE(e[3].Rapide);
    EXPECT_EQ(e[0].Z, 900);
    EXPECT_EQ(p.decoupe.PaireBloc.S[0].Z, 100);
    EXPECT_EQ(p.decoupe.PaireBloc.Ecartement, 800);
    // 141.42 mm in rapid at 20 mm/s, back at 4.
    EXPECT_NEAR(p.decoupe.PaireChariots.S[1].Duree, std::sqrt(2.0) * 5, 1e-5);
    EXPECT_NEAR(p.decoupe.PaireChariots.S[2].Duree, std::sqrt(2.0) * 25, 1e-5);
}

TEST(Decoupe4x, GuillotineSansRangementATroisPointsEtDroiteA90) {
    Poste p;
    p.table.DistanceRangementFilSousOrigine = 0;
    p.parametres.chkGuillotine = true;
    p.parametres.hauteurGuillotine = 60;
    CalculerDecoupeD4X(p.Contexte(), p.decoupe);
    AttendrePoints(p.decoupe.PaireChariots.E, {{0, 0}, {0, 60}, {0, 0}}, 1e-9);
    EXPECT_EQ(ControlerDecoupeD4X(p.Contexte(), p.decoupe), 1);
}

// 103.8 mm times the tangent of 20.7 degrees is 39.22275152: a height or an angle cut to 32 bits would print
// 39.2227 in a move.
TEST(Decoupe4x, GuillotineTelleQueSaisie) {
    Poste p;
    p.parametres.chkGuillotine = true;
    p.parametres.hauteurGuillotine = 103.8;
    p.parametres.angleGuillotine = 69.3;
    CalculerDecoupeD4X(p.Contexte(), p.decoupe);
    EXPECT_NEAR(p.decoupe.PaireBloc.E[2].X, 39.2227515223, 1e-9);
    EXPECT_EQ(p.decoupe.PaireBloc.E[2].Y, 103.8);
}

TEST(Decoupe4x, GuillotineAvecProjetSurLesFacesDuBloc) {
    Poste p;
    p.parametres.chkGuillotine = true;
    p.parametres.hauteurGuillotine = 60;
    p.Calculer();
    EXPECT_EQ(p.decoupe.PaireBloc.Ecartement, 500);
    EXPECT_EQ(p.decoupe.PaireBloc.E[0].Z, 600);
    AttendrePoints(p.decoupe.PaireChariots.E, {{0, -5}, {0, 0}, {0, 60}, {0, 0}, {0, -5}}, 1e-9);
}

TEST(Decoupe4x, GuillotineCoucheeNEstPasGardeeMaisRefuseeParLesCourses) {
    BoitesEnregistrees boites;
    Poste p;
    p.parametres.chkGuillotine = true;
    p.parametres.hauteurGuillotine = 60;
    p.parametres.angleGuillotine = 0;
    CalculerDecoupeD4X(p.Contexte(), p.decoupe);
    EXPECT_GT(p.decoupe.PaireBloc.E[2].X, 1e12);
    EXPECT_LE(ControlerDecoupeD4X(p.Contexte(), p.decoupe), -1);
}

TEST(Decoupe4x, SansProjetNiGuillotineRienNEstFait) {
    BoitesEnregistrees boites;
    Poste p;
    p.parametres.chkDresser = true;
    CalculerDecoupeD4X(p.Contexte(), p.decoupe);
    EXPECT_TRUE(p.decoupe.PaireBloc.E.empty());
    EXPECT_TRUE(p.decoupe.PaireChariots.E.empty());
    EXPECT_TRUE(boites.boites.empty());
}

TEST(Decoupe4x, TropDePointsPourLeCurseur) {
    BoitesEnregistrees boites;
    Coordonnees rond;
    const auto remplir = [&](std::size_t n) {
        rond.clear();
        for (std::size_t i = 0; i < n; ++i)
            rond.emplace_back(200 + 150 * std::cos(0.00019 * static_cast<double>(i)),
                              150 + 140 * std::sin(0.00019 * static_cast<double>(i)));
    };
    Poste p;
    p.parametres.CoteDecalage = CoteDecalageD4X::Aucun;
    remplir(32759); // with entry and exit 32767
    p.projet = Projet(rond, rond);
    p.Calculer();
    EXPECT_EQ(p.decoupe.maximumParcourir, 32767);
    EXPECT_TRUE(boites.boites.empty());
    remplir(32760);
    p.projet = Projet(rond, rond);
    p.Calculer();
    EXPECT_EQ(p.decoupe.maximumParcourir, 32767);
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].titre, "Trop de points");
    EXPECT_EQ(boites.boites[0].icone, IconeBoite::Information);
    EXPECT_TRUE(p.decoupe.DecoupePossible);
}

TEST(Decoupe4x, CheminRetourneEtCoteOpposeDonnentLaMemeForme) {
    Coordonnees e;
    Coordonnees s;
    for (int i = 0; i <= 60; ++i) {
        const double a = 0.1 * i;
        e.emplace_back(100 + 90 * std::cos(a), 30 * std::sin(a));
        s.emplace_back(110 + 50 * std::cos(a), 20 * std::sin(a));
    }
    for (const AlgorithmeDecalageD4X algorithme :
         {AlgorithmeDecalageD4X::Simple, AlgorithmeDecalageD4X::Variable}) {
        Poste aller;
        aller.projet = Projet(e, s);
        aller.parametres.TypeAlgorithmeDecalage = algorithme;
        aller.parametres.CoteDecalage = CoteDecalageD4X::Gauche;
        aller.Calculer();
        Poste retour = aller;
        std::ranges::reverse(retour.projet.E.Points);
        std::ranges::reverse(retour.projet.S.Points);
        CalculerExtremesCPX(retour.projet);
        retour.parametres.CoteDecalage = CoteDecalageD4X::Droite;
        retour.Calculer();
        const PaireD4X& a = aller.decoupe.PaireBloc;
        const PaireD4X& b = retour.decoupe.PaireBloc;
        ASSERT_EQ(a.E.size(), b.E.size());
        const std::size_t n = aller.decoupe.nombreProfil;
        // The corner table takes the offset with its sign: inside a bend it trims to the mitre on one side
        // and less on the other, here by 0.1 rad x (1/2 - 1/π) of the offset.
        const double tolerance = algorithme == AlgorithmeDecalageD4X::Simple ? 1e-3 : 0.04;
        for (std::size_t i = 0; i < n; ++i) {
            EXPECT_NEAR(a.E[4 + i].X, b.E[3 + n - i].X, tolerance) << i;
            EXPECT_NEAR(a.S[4 + i].Y, b.S[3 + n - i].Y, tolerance) << i;
        }
    }
}

TEST(Parametres4x, EtatDuDemarrage) {
    const TableMachine table = Machine4axes();
    const ParametresDecoupe4axes p = ParametresDecoupe4axesInitiaux(table);
    EXPECT_EQ(p.EpaisseurLests, 30);
    EXPECT_EQ(p.OffsetBlocX, 5);
    EXPECT_EQ(p.OffsetBlocY, 0);
    EXPECT_EQ(p.OffsetBlocZ, 800);
    EXPECT_EQ(p.ZSaumon, 900);
    EXPECT_EQ(p.ZEmplanture, 900);
    EXPECT_EQ(p.CoteDecalage, CoteDecalageD4X::Gauche);
    EXPECT_EQ(p.TypeAlgorithmeDecalage, AlgorithmeDecalageD4X::Variable);
    TableINI = table;
    InitialiserParametresDecoupe4axes();
    EXPECT_EQ(ParametresD4X, p);
}

TEST(Parametres4x, AlignementsEnZ) {
    const TableMachine table = Machine4axes();
    ParametresDecoupe4axes p;
    const auto aligner = [&](AlignementZ alignement) {
        p.TypePositionZ = alignement;
        p.OffsetBlocZ = 77;
        AppliquerAlignementZ(500, table, p);
    };
    aligner(AlignementZ::Bord1);
    EXPECT_EQ(p.OffsetBlocZ, 0);
    EXPECT_EQ(p.ZSaumon, 100);
    EXPECT_EQ(p.ZEmplanture, 600);
    aligner(AlignementZ::Bord2);
    EXPECT_EQ(p.OffsetBlocZ, 300);
    EXPECT_EQ(p.ZSaumon, 400);
    EXPECT_EQ(p.ZEmplanture, 900);
    aligner(AlignementZ::Centre);
    EXPECT_EQ(p.OffsetBlocZ, 150);
    EXPECT_EQ(p.ZSaumon, 250);
    aligner(AlignementZ::Saisi);
    EXPECT_EQ(p.OffsetBlocZ, 77);
    EXPECT_EQ(p.ZSaumon, 177);
    EXPECT_EQ(p.ZEmplanture, 677);
}

TEST(Parametres4x, AllerRetourAvecUnProjet) {
    Projet4axes projet;
    projet.Ecartement = 500;
    projet.TypeEntree = 1;
    projet.TypeApprocheBF = 2;
    projet.TypeSortie = 2;
    projet.TypeRetourBF = 1;
    projet.SortieIntermediaire = 2;
    projet.CurseurSortieIntermediaire = 17;
    projet.CurseurSortieIntermediaire2 = 42;
    projet.TypePositionZ = 3;
    projet.CoteDecalage = 1;
    projet.TypeAlgorithmeDecalage = 0;
    projet.EpaisseurLests = 25.4;
    projet.OffsetBlocX = 10.1;
    projet.OffsetBlocY = 3.3;
    projet.OffsetBlocZ = 12.7;
    ParametresDecoupe4axes parametres;
    ReprendreParametresProjet(projet, Machine4axes(), parametres);
    EXPECT_EQ(parametres.ZSaumon, 112.7F);
    Projet4axes rendu;
    ReporterParametresProjet(parametres, rendu);
    EXPECT_EQ(rendu.TypeEntree, 1);
    EXPECT_EQ(rendu.TypeApprocheBF, 2);
    EXPECT_EQ(rendu.TypeSortie, 2);
    EXPECT_EQ(rendu.TypeRetourBF, 1);
    EXPECT_EQ(rendu.SortieIntermediaire, 2);
    EXPECT_EQ(rendu.CurseurSortieIntermediaire, 17);
    EXPECT_EQ(rendu.CurseurSortieIntermediaire2, 42);
    EXPECT_EQ(rendu.TypePositionZ, 3);
    EXPECT_EQ(rendu.CoteDecalage, 1);
    EXPECT_EQ(rendu.TypeAlgorithmeDecalage, 0);
    EXPECT_EQ(rendu.EpaisseurLests, 25.4);
    EXPECT_EQ(rendu.OffsetBlocX, 10.1);
    EXPECT_EQ(rendu.OffsetBlocY, 3.3);
    EXPECT_EQ(rendu.OffsetBlocZ, 12.7);
    // Any other alignment wins over the file.
    projet.TypePositionZ = 2;
    ReprendreParametresProjet(projet, Machine4axes(), parametres);
    EXPECT_EQ(parametres.OffsetBlocZ, 150);
}

TEST(DecoupeCourante4x, NeFaitRienHorsDeSonOnglet) {
    TableINI = Machine4axes();
    DecoupeCourante = Mousse();
    InitialiserParametresDecoupe4axes();
    ParametresD4X.TypePositionZ = AlignementZ::Centre;
    DecoupeCouranteD4X = {};
    const ProjetCPX projet = Coin();
    EXPECT_EQ(ArriverEnDecoupe(projet, true), "");
    EXPECT_EQ(ParametresD4X.ZSaumon, 250);
    const std::string onglet = Parametres.OngletActif;
    Parametres.OngletActif = "C4X";
    CalculerDecoupeD4X(projet);
    EXPECT_TRUE(DecoupeCouranteD4X.PaireChariots.E.empty());
    Parametres.OngletActif = "D4X";
    CalculerDecoupeD4X(projet);
    EXPECT_EQ(DecoupeCouranteD4X.PaireChariots.E.size(), 12U);
    Parametres.OngletActif = onglet;
    EXPECT_EQ(ArriverEnDecoupe(Projet({{0, 0}, {9, 9}}, {{0, 0}, {9, 9}}, 900), true),
              "Découpe impossible, l'écartement est plus large que la table.\r\n"
              "Retournez dans l'onglet Conception 4 axes,\r\n"
              "l'outil Profil Intermédiaire permet de découper en deux fois.");
    EXPECT_FALSE(DecoupeCouranteD4X.DecoupePossible);
}
