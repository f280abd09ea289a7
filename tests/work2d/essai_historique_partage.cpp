// What each deed of the workshop makes undo hold: the runs of points of the state after it.
#include "atelier_essai.h"
#include "outils/boites.h"

#include <gtest/gtest.h>

#include <set>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

// Takes up what the deed made; what the state of that holds.
const PointsMemorises& Etat(AtelierEssai& a) {
    a.Memoriser();
    return *a.historique.PileTransformations.back().points;
}

// Points that stand in memory, each counted once, over all states.
std::size_t PointsTenus(const AtelierEssai& a) {
    std::set<const ReservePoints*> vues;
    std::size_t points = 0;
    for (const EtatTransformations& etat : a.historique.PileTransformations) {
        for (const auto& reserve : etat.points->reserves)
            if (vues.insert(reserve.get()).second) points += reserve->places.size() + reserve->entiers.size();
    }
    return points;
}

void RevenirAuDepart(AtelierEssai& a, const std::vector<Sequence>& depart) {
    while (a.Arriere()) {
    }
    EXPECT_TRUE(essais::MemesBits(a.sequences, depart));
}

} // namespace

TEST(HistoriquePartage, UnAjustementEtSonCentrageSontUneSeuleTransformation) {
    AtelierEssai a = AvecContours(3, 300);
    const auto depart = a.sequences;
    a.Placer({200, 120}, {true, true, true, 5, 5});
    const PointsMemorises& etat = Etat(a);
    EXPECT_EQ(PointsTenus(a), 300U);
    ASSERT_EQ(etat.troncons.size(), 1U) << "of three paths in one run";
    ASSERT_EQ(etat.suites.size(), 1U);
    EXPECT_EQ(etat.suites[0]->profondeur, 1);
    EXPECT_EQ(etat.suites[0]->transformation.genre, GenreTransformation::Ajustement);
    RevenirAuDepart(a, depart);
    EXPECT_EQ(a.bloc.BlocX, 100);
    EXPECT_EQ(a.coeff, 1);
}

TEST(HistoriquePartage, UneInsertionTientUnSeulPoint) {
    AtelierEssai a = AvecContours(3, 300);
    const auto depart = a.sequences;
    a.Inserer(1, 40, {3, 4});
    const PointsMemorises& etat = Etat(a);
    EXPECT_EQ(PointsTenus(a), 301U);
    EXPECT_EQ(etat.troncons.size(), 3U) << "before, the point, after";
    RevenirAuDepart(a, depart);
}

TEST(HistoriquePartage, UneInsertionAuBordTientUnSeulPoint) {
    for (const std::size_t segment : {0U, 98U}) {
        AtelierEssai a = AvecContours(1, 100);
        const auto depart = a.sequences;
        a.Inserer(0, segment, {3, 4});
        Etat(a);
        EXPECT_EQ(PointsTenus(a), 101U);
        RevenirAuDepart(a, depart);
    }
}

TEST(HistoriquePartage, UneCoupeNeTientAucunPointDePlus) {
    for (const std::size_t sommet : {1U, 20U, 50U, 98U}) {
        AtelierEssai a = AvecContours(3, 300);
        const auto depart = a.sequences;
        a.Couper(1, sommet);
        ASSERT_EQ(a.sequences.size(), 4U);
        Etat(a);
        // A half of a point or two is too short to be worth a run.
        EXPECT_EQ(PointsTenus(a), sommet == 1 || sommet == 98 ? 302U : 300U) << sommet;
        RevenirAuDepart(a, depart);
    }
}

TEST(HistoriquePartage, UnSommetRetireNeTientAucunPointDePlus) {
    AtelierEssai a = AvecContours(2, 200);
    const auto depart = a.sequences;
    a.Retirer(0, 50);
    EXPECT_EQ(Etat(a).troncons.size(), 2U) << "before, and after together with the next path";
    EXPECT_EQ(PointsTenus(a), 200U);
    RevenirAuDepart(a, depart);
}

TEST(HistoriquePartage, UneCopieNeTientAucunPointDePlus) {
    AtelierEssai a = AvecContours(4, 400);
    a.sequences[0].Selection = a.sequences[2].Selection = 0;
    const auto depart = a.sequences;
    a.Dupliquer(); // of paths 1 and 3
    ASSERT_EQ(a.sequences.size(), 6U);
    EXPECT_EQ(a.sequences[5].Points[7].X, a.sequences[3].Points[7].X + 30);
    Etat(a);
    a.Dupliquer();
    Etat(a);
    EXPECT_EQ(PointsTenus(a), 400U);
    RevenirAuDepart(a, depart);
}

TEST(HistoriquePartage, UneInversionNeTientAucunPointDePlus) {
    AtelierEssai a = AvecContours(4, 400);
    const auto depart = a.sequences;
    a.Inverser();
    EXPECT_EQ(Etat(a).troncons.size(), 4U);
    a.Inverser();
    EXPECT_EQ(Etat(a).troncons.size(), 1U);
    EXPECT_EQ(PointsTenus(a), 400U);
    RevenirAuDepart(a, depart);
}

TEST(HistoriquePartage, CeQuiResteApresUneSuppressionEstPartage) {
    AtelierEssai a = AvecContours(5, 500);
    for (const std::size_t i : {1U, 2U, 4U}) a.sequences[i].Selection = 0;
    const auto depart = a.sequences;
    a.Supprimer(); // paths 0 and 3
    EXPECT_EQ(Etat(a).troncons.size(), 2U);
    EXPECT_EQ(PointsTenus(a), 500U);
    RevenirAuDepart(a, depart);
}

TEST(HistoriquePartage, UnTraceTransformePuisInserePuisInverseGardeSesPoints) {
    AtelierEssai a = AvecContours(1, 1000);
    const auto depart = a.sequences;
    a.Transformer(Rotation({1, 2}, 30));
    a.Inserer(0, 500, {9, 9});
    a.Inverser();
    a.Placer({150, 90}, {true, false, true, 5, 5});
    a.Couper(0, 700);
    a.Transformer(Miroir(CalculerBoiteSelection(a.sequences), AxeMiroir::Y));
    const auto fin = a.sequences;
    Etat(a);
    EXPECT_EQ(PointsTenus(a), 1001U);
    RevenirAuDepart(a, depart);
    for (int i = 0; i < 6; ++i) ASSERT_TRUE(a.Avant());
    EXPECT_TRUE(essais::MemesBits(a.sequences, fin));
}

TEST(HistoriquePartage, UnCheminCourtEstTenuEntier) {
    AtelierEssai a;
    a.sequences = {CarreDe20()}; // five points
    a.Inserer(0, 1, {30, 40});
    Etat(a);
    EXPECT_EQ(PointsTenus(a), 5U + 6U);
}

TEST(HistoriquePartage, UnCheminTropMorceleEstTenuDeNouveau) {
    AtelierEssai a = AvecContours(1, 1000);
    const auto depart = a.sequences;
    for (std::size_t i = 0; i < 40; ++i) {
        a.Inserer(0, 20 * i + 5, {static_cast<double>(i), 99});
        EXPECT_LE(Etat(a).troncons.size(), 64U);
        EXPECT_TRUE(a.Arriere());
        EXPECT_TRUE(a.Avant());
    }
    EXPECT_GT(PointsTenus(a), 2000U);
    EXPECT_LT(PointsTenus(a), 2200U) << "once";
    RevenirAuDepart(a, depart);
}

TEST(HistoriquePartage, LesPetitsTracesSontTenusDUnTenantApresUneLongueSuite) {
    AtelierEssai a = AvecContours(50, 500);
    for (int i = 0; i < ProfondeurMaxi; ++i) a.Transformer(Deplacement(0.1, 0));
    Etat(a);
    EXPECT_EQ(PointsTenus(a), 500U);
    a.Transformer(Deplacement(0.1, 0));
    EXPECT_EQ(Etat(a).troncons.size(), 1U);
    EXPECT_EQ(PointsTenus(a), 1000U);
}

TEST(HistoriquePartage, UnRetourPuisUneAutreSelectionGardeLaTransformation) {
    AtelierEssai a = AvecContours(2, 200);
    const auto depart = a.sequences;
    a.Transformer(Rotation({0, 0}, 10));
    a.Transformer(Rotation({0, 0}, 20));
    a.Arriere();
    a.sequences[1].Selection = 0;
    a.Transformer(Deplacement(1, 1));
    Etat(a);
    EXPECT_EQ(PointsTenus(a), 200U);
    EXPECT_TRUE(a.Arriere()); // from the step that Etat began
    EXPECT_TRUE(a.Arriere());
    EXPECT_EQ(a.sequences[1].Selection, 0) << "the selection the user had made there";
    EXPECT_TRUE(a.Arriere());
    EXPECT_TRUE(essais::MemesBits(a.sequences, depart));
}

TEST(HistoriquePartage, LesZerosNegatifsReviennent) {
    AtelierEssai a;
    a.sequences = {Chemin({{-0.0, 0}, {10, -0.0}, {0, 20}})};
    a.sequences[0].Selection = SelectionSequence;
    const auto depart = a.sequences;
    a.Transformer(Deplacement(0, 1)); // makes a zero of the one below it
    a.Transformer(Deplacement(0, -1));
    RevenirAuDepart(a, depart);
}

TEST(HistoriquePartage, DesBornesQuiNeSontPasCellesDesPointsReviennent) {
    AtelierEssai a;
    a.sequences = {CarreDe20()};
    a.sequences[0].XMax = 77; // stale
    const auto depart = a.sequences;
    a.Inserer(0, 1, {30, 40});
    EXPECT_EQ(a.sequences[0].XMax, 40);
    RevenirAuDepart(a, depart);
    EXPECT_EQ(a.sequences[0].XMax, 77);
}

TEST(HistoriquePartage, UneAnnonceDUneAutreActionNeTrompePas) {
    AtelierEssai a = AvecContours(2, 200);
    const auto depart = a.sequences;
    a.Memoriser();
    TransformerSelection(a.sequences, Deplacement(1, 0));
    AnnoncerTransformation(a.historique, Rotation({0, 0}, 90));
    const auto fin = a.sequences;
    Etat(a);
    EXPECT_EQ(PointsTenus(a), 400U);
    RevenirAuDepart(a, depart);
    EXPECT_TRUE(a.Avant());
    EXPECT_TRUE(essais::MemesBits(a.sequences, fin));
}

TEST(HistoriquePartage, UneAnnonceDInversionEstVerifieeAussi) {
    AtelierEssai a = AvecContours(1, 200);
    const auto depart = a.sequences;
    Transformation sens;
    sens.genre = GenreTransformation::Sens;
    a.Memoriser();
    TransformerSelection(a.sequences, Deplacement(1, 0));
    AnnoncerTransformation(a.historique, sens);
    const auto fin = a.sequences;
    RevenirAuDepart(a, depart);
    EXPECT_TRUE(a.Avant());
    EXPECT_TRUE(essais::MemesBits(a.sequences, fin));
}

// The same point many times over: what begins and what ends alike must not be counted twice.
TEST(HistoriquePartage, DesPointsConfondusNeSontPasComptesDeuxFois) {
    AtelierEssai a;
    a.sequences.resize(1);
    a.sequences[0].Points.resize(100);
    CalculerBornesSequence(a.sequences[0]);
    const auto depart = a.sequences;
    a.Retirer(0, 50);
    Etat(a);
    EXPECT_EQ(PointsTenus(a), 100U);
    a.sequences[0].Points.insert(a.sequences[0].Points.begin() + 10, 3, PointProfil());
    const auto fin = a.sequences;
    Etat(a);
    EXPECT_EQ(PointsTenus(a), 103U);
    RevenirAuDepart(a, depart);
    while (a.Avant()) {
    }
    EXPECT_TRUE(essais::MemesBits(a.sequences, fin));
}

TEST(HistoriquePartage, LesTablesInchangeesSontCellesDAvant) {
    AtelierEssai a = AvecContours(3, 300);
    a.Transformer(Deplacement(1, 0));
    a.Transformer(Deplacement(0, 1));
    a.Memoriser();
    a.bloc.BlocX = 300;
    Etat(a);
    const auto& pile = a.historique.PileTransformations;
    ASSERT_EQ(pile.size(), 4U);
    EXPECT_EQ(pile[0].longueurs, pile[1].longueurs);
    EXPECT_EQ(pile[0].selections, pile[1].selections);
    EXPECT_NE(pile[1].points, pile[2].points);
    EXPECT_EQ(pile[2].points, pile[3].points) << "only the block is another";
}

TEST(HistoriquePartage, UnProjetVideSeMemoriseEtRevient) {
    AtelierEssai a;
    a.Memoriser();
    a.sequences = {CarreDe20(), Sequence()};
    const auto fin = a.sequences;
    a.Supprimer(); // nothing selected
    EXPECT_TRUE(a.Arriere());
    EXPECT_TRUE(a.Arriere());
    EXPECT_TRUE(a.sequences.empty());
    EXPECT_TRUE(a.Avant());
    EXPECT_TRUE(essais::MemesBits(a.sequences, fin));
}
