// Kerf law and both offsets: sides, corners, ends, flags, refusals.
#include "cut4x/decalage4x.h"
#include "cut4x/fautes_d4x.h"
#include "cut4x/saignee.h"

#include "cut4x/outils_d4x.h"

#include <cmath>
#include <random>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

constexpr double Pi4x = 3.14159265358979;

// The offset alone on a pair whose block does not move it.
struct Decaleur : Poste {
    Decaleur(const Coordonnees& e, const Coordonnees& s, CoteDecalageD4X cote = CoteDecalageD4X::Gauche) {
        projet = Projet(e, s);
        parametres.CoteDecalage = cote;
        decoupe.DecoupePossible = true;
        decoupe.PairePositionnee = projet;
        decoupe.PaireBloc.E = projet.E.Points;
        decoupe.PaireBloc.S = projet.S.Points;
    }
    void Simple() { DecalageSimple(Contexte(), decoupe); }
    void Variable() { DecalageVariable(Contexte(), decoupe); }
};

std::vector<PointProfil> DecaleSimple(const Coordonnees& chemin, float decalage) {
    std::vector<PointProfil> points = Points(chemin);
    std::vector<PointProfil> tampon;
    EXPECT_TRUE(DecalerTrajectoireD4Xsimple(decalage, points, CoteProfil::Emplanture, tampon));
    return points;
}

std::vector<PointProfil> DecaleVariable(const Coordonnees& chemin, const std::vector<float>& decalages) {
    std::vector<PointProfil> points = Points(chemin);
    for (std::size_t i = 0; i < decalages.size(); ++i) points[i].Decalage = decalages[i];
    std::vector<PointProfil> tampon;
    DecalerTrajectoireD4Xvariable(1, points, tampon);
    return points;
}

void AttendreBoite(const BoitesEnregistrees& boites, const std::string& texte) {
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].texte, texte);
    EXPECT_EQ(boites.boites[0].titre, "Calcul impossible");
    EXPECT_EQ(boites.boites[0].icone, IconeBoite::Critique);
}

const std::string FinBoite =
    "\r\nImpossible de définir un décalage. Retournez dans l'onglet Conception 4 axes pour corriger.";

} // namespace

TEST(Saignee, DroiteParLesDeuxPointsDEtalonnageSansLimite) {
    EXPECT_DOUBLE_EQ(Saignee(4, Mousse()), 1);
    EXPECT_DOUBLE_EQ(Saignee(2, Mousse()), 2);
    EXPECT_DOUBLE_EQ(Saignee(1, Mousse()), 2.5);
    EXPECT_DOUBLE_EQ(Saignee(0, Mousse()), 3);
    // At rest the line may fall below zero, and stays as it is.
    EXPECT_DOUBLE_EQ(Saignee(0, {65, 4, 3, 1}), -1);
}

TEST(Saignee, ConstanteQuandLesDeuxSontEgales) {
    const ValeursDecoupe constante = {65, 4, 1.5F, 1.5F};
    for (const double v : {0.0, 1.0, 2.0, 4.0}) EXPECT_DOUBLE_EQ(Saignee(v, constante), 1.5);
}

TEST(DecalageSimple, CoteLentTroisFoisPlusCourtSurLaDroiteProlongee) {
    // 30 against 10: the tip runs at 4/3, Kerf(4/3) = 3 - 2/3, half of it 7/6.
    Decaleur d({{0, 0}, {30, 0}}, {{0, 0}, {10, 0}});
    d.Simple();
    AttendrePoints(d.decoupe.PaireBloc.E, {{0, 0.5}, {30, 0.5}});
    AttendrePoints(d.decoupe.PaireBloc.S, {{0, 7.0 / 6}, {10, 7.0 / 6}}, 1e-6);
    EXPECT_TRUE(d.decoupe.DecoupePossible);
}

TEST(DecalageSimple, LeSaumonPlusLongEstLaReference) {
    Decaleur d({{0, 0}, {20, 0}}, {{0, 0}, {40, 0}}, CoteDecalageD4X::Droite);
    d.Simple();
    AttendrePoints(d.decoupe.PaireBloc.E, {{0, -1}, {20, -1}}); // Kerf(2) = 2
    AttendrePoints(d.decoupe.PaireBloc.S, {{0, -0.5}, {40, -0.5}});
}

TEST(DecalageSimple, CoinPointuSansLimiteEtNombreDePointsGarde) {
    // A right angle, wire to the left of a turn to the right: the tip stands off by 1 in both directions.
    AttendrePoints(DecaleSimple({{0, 0}, {10, 0}, {10, -10}}, -1), {{0, 1}, {11, 1}, {11, -10}}, 1e-6);
    // 11.4 degrees: the mitre reaches 10 times the offset.
    const auto pointe = DecaleSimple({{0, 0}, {100, 10}, {0, 20}}, 1);
    EXPECT_NEAR(pointe[1].X, 100 + std::sqrt(101.0), 1e-4);
    EXPECT_NEAR(pointe[1].Y, 10, 1e-4);
}

TEST(DecalageSimple, UnDemiTourDonneLePointMoyen) {
    AttendrePoints(DecaleSimple({{0, 0}, {10, 0}, {0, 0}}, 1), {{0, -1}, {10, 0}, {0, 1}});
}

TEST(DecalageSimple, ZeroLaisseLeCheminMemeAvecDesPointsConfondus) {
    BoitesEnregistrees boites;
    AttendrePoints(DecaleSimple({{0, 0}, {0, 0}, {10, 3}}, 0), {{0, 0}, {0, 0}, {10, 3}});
    EXPECT_TRUE(boites.boites.empty());
}

TEST(DecalageSimple, SegmentEntreDeuxPointsSansDecalageResteSurLaLigne) {
    std::vector<PointProfil> points = Points({{0, 0}, {10, 0}, {10, 10}, {20, 10}});
    points[1].Drapeaux = points[2].Drapeaux = DrapeauSansDecalage;
    std::vector<PointProfil> tampon;
    ASSERT_TRUE(DecalerTrajectoireD4Xsimple(1, points, CoteProfil::Emplanture, tampon));
    // Only the middle segment lies between two marked points: its line x = 10 crosses y = -1 and y = 9.
    AttendrePoints(points, {{0, -1}, {10, -1}, {10, 9}, {20, 9}}, 1e-6);
}

TEST(DecalageSimple, PointsConfondusDuCoteSaumonSontDits) {
    BoitesEnregistrees boites;
    Decaleur d({{0, 0}, {10, 0}, {20, 0}}, {{0, 0}, {10, 0}, {10.0005, 0.0005}});
    d.Simple();
    EXPECT_FALSE(d.decoupe.DecoupePossible);
    AttendreBoite(boites, "Les points 2 et 3 du côté Saumon sont confondus." + FinBoite);
}

TEST(DecalageSimple, PointsConfondusDuCoteEmplantureSontDits) {
    BoitesEnregistrees boites;
    Decaleur d({{0, 0}, {0, 0}, {20, 0}}, {{0, 0}, {10, 0}, {20, 0}});
    d.Simple();
    EXPECT_FALSE(d.decoupe.DecoupePossible);
    AttendreBoite(boites, "Les points 1 et 2 du côté Emplanture sont confondus ou quasiment confondus (d < "
                          "0.001mm)." +
                              FinBoite);
}

TEST(DecalageSimple, DrapeauxDeLaPaireEnregistreeMemeEnSymetrie) {
    Decaleur d({{0, 0}, {10, 0}}, {{0, 0}, {10, 0}});
    d.projet.E.Points[1].Drapeaux = 8;
    d.projet.S.Points[1].Drapeaux = 4;
    // The positioned pair is mirrored: its sides carry each other's flags.
    std::swap(d.decoupe.PaireBloc.E, d.decoupe.PaireBloc.S);
    d.Simple();
    EXPECT_EQ(d.decoupe.PaireBloc.E[1].Drapeaux, 8);
    EXPECT_EQ(d.decoupe.PaireBloc.S[1].Drapeaux, 4);
}

TEST(DecalageVariable, MemeCoteGeometriqueQueLeSimple) {
    for (const CoteDecalageD4X cote : {CoteDecalageD4X::Gauche, CoteDecalageD4X::Droite}) {
        Decaleur simple({{0, 0}, {30, 40}}, {{0, 0}, {15, 20}}, cote);
        Decaleur variable = simple;
        simple.Simple();
        variable.Variable();
        ASSERT_EQ(variable.decoupe.PaireBloc.E.size(), 2U);
        for (std::size_t i = 0; i < 2; ++i) {
            EXPECT_NEAR(simple.decoupe.PaireBloc.E[i].X, variable.decoupe.PaireBloc.E[i].X, 1e-6);
            EXPECT_NEAR(simple.decoupe.PaireBloc.S[i].Y, variable.decoupe.PaireBloc.S[i].Y, 1e-6);
        }
    }
}

TEST(DecalageVariable, UnDecalageParSegmentEtParCote) {
    // First segment 20 against 10, second 10 against 30.
    Decaleur d({{0, 0}, {20, 0}, {20, 10}}, {{0, 0}, {10, 0}, {10, 30}});
    d.Variable();
    const PaireD4X& paire = d.decoupe.PaireBloc;
    ASSERT_EQ(paire.E.size(), 4U);
    ASSERT_EQ(paire.S.size(), 4U);
    EXPECT_FLOAT_EQ(paire.E[0].Decalage, 0.5F);
    EXPECT_FLOAT_EQ(paire.E[1].Decalage, 0.5F);
    EXPECT_FLOAT_EQ(paire.E[2].Decalage, 7.0F / 6); // Kerf(4 x 10/30) / 2
    EXPECT_FLOAT_EQ(paire.S[0].Decalage, 1);        // Kerf(2) / 2
    EXPECT_FLOAT_EQ(paire.S[2].Decalage, 0.5F);
}

TEST(DecalageVariable, LigneDroiteEcarteeDUnDemiMilliemeDeChaqueCote) {
    AttendrePoints(DecaleVariable({{0, 0}, {10, 0}, {20, 0}}, {0.5F, 0.5F}),
                   {{0, 0.5}, {9.9995, 0.5}, {10.0005, 0.5}, {20, 0.5}});
}

TEST(DecalageVariable, AngleRentrantCoupeLesDeuxSegmentsALeurCroisement) {
    // Turn to the left, wire inside: A = B = -0.5, the ends meet at (9.5, 0.5) and are pulled apart.
    AttendrePoints(DecaleVariable({{0, 0}, {10, 0}, {10, 10}}, {0.5F, 0.5F}),
                   {{0, 0.5}, {9.4995, 0.5}, {9.5, 0.5005}, {9.5, 10}}, 1e-6);
}

TEST(DecalageVariable, AngleSaillantAllongeEtPoseUnLien) {
    // Turn to the right by 45 degrees, wire outside: θ = 3π/4, A = B = 0.25 x 0.5.
    const double r = std::sqrt(0.5);
    const auto points = DecaleVariable({{0, 0}, {10, 0}, {20, -10}}, {0.5F, 0.5F});
    AttendrePoints(points,
                   {{0, 0.5},
                    {10.125, 0.5},
                    {10 + 0.5 * r - 0.125 * r, 0.5 * r + 0.125 * r},
                    {20 + 0.5 * r, -10 + 0.5 * r}},
                   1e-6);
}

TEST(DecalageVariable, AngleDroitSaillantTombeDuCoteQueLesSimplesDisent) {
    // Directions 0 and 3π/2 in 32 bits: θ a little above π/2, third row, A = B = 0.25.
    AttendrePoints(DecaleVariable({{0, 0}, {10, 0}, {10, -10}}, {0.5F, 0.5F}),
                   {{0, 0.5}, {10.25, 0.5}, {10.5, 0.25}, {10.5, -10}}, 1e-6);
    // Directions π and π/2: θ a little below, second row, A = ki, B = 0.
    AttendrePoints(DecaleVariable({{0, 0}, {-10, 0}, {-10, 10}}, {0.5F, 0.5F}),
                   {{0, -0.5}, {-10.5, -0.5}, {-10.5, 0}, {-10.5, 10}}, 1e-6);
}

TEST(DecalageVariable, DemiTourProlongeDuDecalageDuVoisinEtNonEnPointe) {
    for (const double y : {0.0, 1e-7, -1e-7}) {
        const auto points = DecaleVariable({{0, 0}, {100, 0}, {0, y}}, {0.5F, 0.25F});
        ASSERT_EQ(points.size(), 4U);
        EXPECT_NEAR(points[1].X, 100.25, 1e-5); // A = kj
        EXPECT_NEAR(points[2].X, 100.5, 1e-5);  // B = ki
    }
}

TEST(DecalageVariable, AnglesDuCoin) {
    EXPECT_DOUBLE_EQ(AngleCoin(1, 1), Pi4x);
    EXPECT_NEAR(AngleCoin(0, 1), Pi4x + 1, 1e-12);
    EXPECT_NEAR(AngleCoin(1, 0), Pi4x - 1, 1e-12);
    EXPECT_NEAR(AngleCoin(0, 6), 6 - Pi4x, 1e-6); // π + 6 is more than a turn
    EXPECT_NEAR(AngleCoin(6, 0.5F), 3 * Pi4x - 5.5, 1e-6);
    // Within 0.0001 of 0 and of a full turn: straight back.
    EXPECT_EQ(AngleCoin(0, static_cast<float>(Pi4x)), 0);
    EXPECT_EQ(AngleCoin(static_cast<float>(Pi4x), 0), 0);
    EXPECT_EQ(AngleCoin(0, static_cast<float>(Pi4x - 0.00009)), 0);
    EXPECT_NE(AngleCoin(0, static_cast<float>(Pi4x - 0.00011)), 0);
}

TEST(DecalageVariable, ChaqueRangDeLaTableDesCoins) {
    const auto coin = [](double theta, double ki, double kj) { return ProlongementsCoin(theta, ki, kj, {}); };
    const auto attendre = [&](double theta, double ki, double kj, double A, double B) {
        const Prolongements p = coin(theta, ki, kj);
        EXPECT_NEAR(p.A, A, 1e-9) << theta;
        EXPECT_NEAR(p.B, B, 1e-9) << theta;
    };
    attendre(0, 1, 2, 2, 1);
    attendre(Pi4x / 8, 1, 2, 1.75, 1.25);
    attendre(Pi4x / 4, 1, 2, 1.5, 1.5);
    attendre(3 * Pi4x / 8, 1, 2, 1.25, 0.75); // q 3/4, s 1/2: B = 3 x 0.25
    attendre(Pi4x / 2, 1, 2, 1, 0);
    attendre(3 * Pi4x / 4, 1, 2, 0.25, 0.5);
    attendre(Pi4x, 1, 2, 0, 0);
    const double t675 = 1 + std::sqrt(2.0);
    attendre(5 * Pi4x / 4, 1, 2, -1 / t675, -2 / t675);
    attendre(3 * Pi4x / 2, 1, 2, -1, -2);
    attendre(7 * Pi4x / 4, 1, 2, -1.5 * t675, -2 * t675); // the lesser offset takes the mean
    attendre(7 * Pi4x / 4, 2, 1, -2 * t675, -1.5 * t675);
    attendre(7 * Pi4x / 4, 1, 1, -t675, -t675);
}

TEST(DecalageVariable, AngleHorsDeTouteMesureEstDitEtGardeLeCoinPrecedent) {
    BoitesEnregistrees boites;
    const Prolongements p = ProlongementsCoin(7, 1, 2, {0.25, 0.75});
    EXPECT_EQ(p.A, 0.25);
    EXPECT_EQ(p.B, 0.75);
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].texte, "Erreur, l'angle est supérieur à 360°, il vaut :401.07°");
    EXPECT_EQ(boites.boites[0].titre, "");
    EXPECT_EQ(boites.boites[0].icone, IconeBoite::Critique);
}

TEST(DecalageVariable, SansDecalageDUnSeulCoteEtCoinsAvecCeluiDuVoisin) {
    Decaleur d({{0, 0}, {10, 0}, {20, 0}}, {{0, 0}, {10, 0}, {20, 0}});
    d.decoupe.PaireBloc.E[0].Drapeaux = d.decoupe.PaireBloc.E[1].Drapeaux = DrapeauSansDecalage;
    d.Variable();
    EXPECT_EQ(d.decoupe.PaireBloc.E[0].Decalage, 0);
    EXPECT_EQ(d.decoupe.PaireBloc.E[2].Decalage, 0.5F);
    EXPECT_EQ(d.decoupe.PaireBloc.S[0].Decalage, 0.5F);
    // Straight on: nothing grows; the step from 0 to 0.5 is a link across.
    AttendrePoints(d.decoupe.PaireBloc.E, {{0, 0}, {10, 0}, {10, 0.5}, {20, 0.5}});
}

TEST(DecalageVariable, LeBalayageNommeLEmplanturePourLesDeuxCotes) {
    BoitesEnregistrees boites;
    Decaleur d({{0, 0}, {10, 0}, {20, 0}}, {{0, 0}, {10, 0}, {10, 0}});
    d.Variable();
    EXPECT_FALSE(d.decoupe.DecoupePossible);
    AttendreBoite(boites, "Les points 2 et 3 du côté Emplanture sont confondus ou quasiment confondus (d < "
                          "0.001mm)." +
                              FinBoite);
}

TEST(DecalageVariable, UnMilliemeJustePasse) {
    BoitesEnregistrees boites;
    Decaleur d({{0, 0}, {0.001, 0}, {20, 0}}, {{0, 0}, {10, 0}, {20, 0}});
    d.Variable();
    EXPECT_TRUE(d.decoupe.DecoupePossible);
    Decaleur trop({{0, 0}, {0.0009, 0}, {20, 0}}, {{0, 0}, {10, 0}, {20, 0}});
    trop.Variable();
    EXPECT_FALSE(trop.decoupe.DecoupePossible);
    EXPECT_EQ(boites.boites.size(), 1U);
}

TEST(DecalageVariable, SaigneeNulleFinitEnPlantageDesTroisPoints) {
    Decaleur d({{0, 0}, {10, 0}, {20, 5}}, {{0, 0}, {10, 0}, {20, 5}});
    d.matiere.SaigneeVD = 0;
    try {
        d.Variable();
        FAIL() << "no fault";
    } catch (const FauteProcedureD4X& faute) {
        EXPECT_EQ(faute.Procedure(), "DecalageVariable");
        EXPECT_EQ(faute.Numero(), NumeroErreur::IndiceHorsBornes);
    }
    // Two points: the only new index, 2, exists, and the path stays as drawn.
    Decaleur deux({{0, 0}, {10, 0}}, {{0, 0}, {10, 0}});
    deux.matiere.SaigneeVD = 0;
    deux.Variable();
    AttendrePoints(deux.decoupe.PaireBloc.E, {{0, 0}, {10, 0}});
}

TEST(DecalageVariable, DrapeauxAuBoutDuSegmentQuiArrive) {
    Decaleur d({{0, 0}, {10, 0}, {20, 0}}, {{0, 0}, {10, 0}, {20, 0}});
    d.projet.E.Points[0].Drapeaux = 1;
    d.projet.E.Points[1].Drapeaux = 8;
    d.projet.E.Points[2].Drapeaux = 32;
    d.Variable();
    const auto& e = d.decoupe.PaireBloc.E;
    EXPECT_EQ(e[0].Drapeaux, 1);
    EXPECT_EQ(e[1].Drapeaux, 8);
    EXPECT_EQ(e[2].Drapeaux, 0);
    EXPECT_EQ(e[3].Drapeaux, 32);
}

TEST(DecalageVariable, CoteBasseDuPointLePlusBas) {
    Decaleur d({{0, 5}, {10, 5}, {20, 4}}, {{0, 5}, {10, 5}, {20, 4}}, CoteDecalageD4X::Droite);
    d.parametres.OffsetBlocY = 2;
    d.Variable();
    const PointProfil& bas = d.decoupe.PaireBloc.E.back();
    EXPECT_EQ(d.decoupe.coteE.haut.X, bas.X);
    EXPECT_DOUBLE_EQ(d.decoupe.coteE.haut.Y, bas.Y - 0.5);
    EXPECT_EQ(d.decoupe.coteE.bas.Y, 2);
}

TEST(DecalageVariable, CheminRetourneEtCoteOpposeDonnentLaMemeForme) {
    std::mt19937 hasard(4);
    std::uniform_real_distribution<double> pas(2, 9);
    std::uniform_real_distribution<double> virage(-0.7, 0.7);
    for (int tour = 0; tour < 50; ++tour) {
        std::vector<PointProfil> chemin = Points({{0, 0}});
        double angle = 0.3;
        for (int i = 0; i < 30; ++i) {
            PointProfil p = chemin.back();
            angle += virage(hasard);
            const double l = pas(hasard);
            p.X += l * std::cos(angle);
            p.Y += l * std::sin(angle);
            chemin.push_back(p);
        }
        std::vector<PointProfil> retourne(chemin.rbegin(), chemin.rend());
        for (PointProfil& p : chemin) p.Decalage = 0.5F;
        for (PointProfil& p : retourne) p.Decalage = -0.5F;
        std::vector<PointProfil> tampon;
        DecalerTrajectoireD4Xvariable(1, chemin, tampon);
        DecalerTrajectoireD4Xvariable(1, retourne, tampon);
        ASSERT_EQ(chemin.size(), retourne.size());
        for (std::size_t i = 0; i < chemin.size(); ++i) {
            // Corners mirrored in the wire's side leave other links: the shifted lines are the same.
            const PointProfil& p = chemin[i];
            const std::size_t j = (chemin.size() - 1 - i) / 2 * 2;
            const double dx = retourne[j + 1].X - retourne[j].X;
            const double dy = retourne[j + 1].Y - retourne[j].Y;
            const double ecart =
                ((p.X - retourne[j].X) * dy - (p.Y - retourne[j].Y) * dx) / std::hypot(dx, dy);
            EXPECT_NEAR(ecart, 0, 1e-5) << tour << " " << i;
        }
    }
}
