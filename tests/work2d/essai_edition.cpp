// The deeds on the paths of a project: duplicate, delete, cut in two, insert a point.
#include "work2d/edition.h"

#include "app/texts/textes.h"
#include "outils/boites.h"
#include "outils_decoupe.h"
#include "work2d/selection.h"

#include <limits>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

std::vector<Sequence> DeuxDontUneChoisie() {
    std::vector<Sequence> s = {CarreDe20(), Chemin({{0, 0}, {10, 5}})};
    s[1].Selection = SelectionSequence;
    return s;
}

} // namespace

TEST(Edition, TransformerNeToucheQueLaSelection) {
    std::vector<Sequence> s = DeuxDontUneChoisie();
    EXPECT_EQ(TransformerSelection(s, Deplacement(3, -4)), 1U);
    EXPECT_EQ(s[0], CarreDe20());
    EXPECT_EQ(Lieux(s[1]), (std::vector<Lieu>{{3, -4}, {13, 1}}));
    EXPECT_EQ(s[1].XMin, 3);
    EXPECT_EQ(s[1].YMax, 1);
}

TEST(Edition, DupliquerAjouteA30Et30EtSelectionneLesCopies) {
    std::vector<Sequence> s = DeuxDontUneChoisie();
    EXPECT_EQ(DupliquerSelection(s), 1U);
    ASSERT_EQ(s.size(), 3U);
    EXPECT_EQ(Lieux(s[2]), (std::vector<Lieu>{{30, 30}, {40, 35}}));
    EXPECT_EQ(s[2].XMin, 30);
    EXPECT_FALSE(EstSelectionnee(s[1]));
    EXPECT_TRUE(EstSelectionnee(s[2]));
}

TEST(Edition, DupliquerDeuxFoisEloigneLaSecondeCopieDeLaPremiere) {
    std::vector<Sequence> s = DeuxDontUneChoisie();
    DupliquerSelection(s);
    DupliquerSelection(s);
    ASSERT_EQ(s.size(), 4U);
    EXPECT_EQ(Lieux(s[3]), (std::vector<Lieu>{{60, 60}, {70, 65}}));
    EXPECT_EQ(CompterSelections(s), 1U);
}

TEST(Edition, DupliquerRienNeFaitRien) {
    std::vector<Sequence> s = {CarreDe20()};
    EXPECT_EQ(DupliquerSelection(s), 0U);
    EXPECT_EQ(s, std::vector<Sequence>{CarreDe20()});
}

TEST(Edition, InverserRetourneLOrdreDesPoints) {
    std::vector<Sequence> s = DeuxDontUneChoisie();
    s[1].Points[0].Drapeaux = 4;
    Transformation sens;
    sens.genre = GenreTransformation::Sens;
    TransformerSelection(s, sens);
    EXPECT_EQ(Lieux(s[1]), (std::vector<Lieu>{{10, 5}, {0, 0}}));
    EXPECT_EQ(s[1].Points[1].Drapeaux, 4);
}

TEST(Edition, SupprimerEnleveLaSelection) {
    std::vector<Sequence> s = DeuxDontUneChoisie();
    EXPECT_EQ(SupprimerSelection(s), 1U);
    EXPECT_EQ(s, std::vector<Sequence>{CarreDe20()});
    EXPECT_EQ(SupprimerSelection(s), 0U);
}

TEST(Coupure, SepareAuSommetQueLesDeuxGardent) {
    std::vector<Sequence> s = {CarreDe20(), Chemin({{0, 0}, {10, 5}})};
    EXPECT_TRUE(CouperSequence(s, 0, 2));
    ASSERT_EQ(s.size(), 3U);
    EXPECT_EQ(Lieux(s[0]), (std::vector<Lieu>{{20, 20}, {20, 40}, {40, 40}}));
    EXPECT_EQ(Lieux(s[1]), (std::vector<Lieu>{{40, 40}, {40, 20}, {20, 20}}));
    EXPECT_EQ(s[1].YMin, 20);
    EXPECT_EQ(Lieux(s[2]), (std::vector<Lieu>{{0, 0}, {10, 5}}));
}

TEST(Coupure, UnMorceauCoupeNeGardeQueSaPlace) {
    std::vector<Sequence> s(1);
    s[0].Points.resize(1000);
    EXPECT_TRUE(CouperSequence(s, 0, 3));
    EXPECT_LT(s[0].Points.capacity(), 100U);
    EXPECT_LT(s[1].Points.capacity(), 1100U);
}

TEST(Coupure, RefuseLePremierEtLeDernierPoint) {
    ChargerMessages(Langue::Francais);
    BoitesEnregistrees boites;
    std::vector<Sequence> s = {CarreDe20()};
    EXPECT_FALSE(CouperSequence(s, 0, 0));
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].texte,
              "Vous avez coupé sur le premier point d'un profil, impossible de couper à cet endroit.");
    EXPECT_EQ(boites.boites[0].titre, "Opération impossible");
    EXPECT_FALSE(CouperSequence(s, 0, 4));
    ASSERT_EQ(boites.boites.size(), 2U);
    EXPECT_EQ(boites.boites[1].texte,
              "Vous avez coupé sur le dernier point d'un profil, impossible de couper à cet endroit.");
    EXPECT_EQ(boites.boites[1].titre, "Opération impossible");
    EXPECT_EQ(s, std::vector<Sequence>{CarreDe20()});
    EXPECT_FALSE(CouperSequence(s, 0, 99));
    EXPECT_FALSE(CouperSequence(s, 3, 1));
    EXPECT_EQ(boites.boites.size(), 2U);
}

TEST(Insertion, PoseLePointEntreLesDeuxBouts) {
    Sequence s = CarreDe20();
    EXPECT_TRUE(InsererPoint(s, 1, {30, 40}));
    EXPECT_EQ(Lieux(s), (std::vector<Lieu>{{20, 20}, {20, 40}, {30, 40}, {40, 40}, {40, 20}, {20, 20}}));
    EXPECT_TRUE(InsererPoint(s, 4, {30, 10}));
    EXPECT_EQ(s.YMin, 10) << "bounds follow";
}

TEST(Insertion, RefuseUnBoutEtCeQuiNExistePas) {
    Sequence s = CarreDe20();
    EXPECT_FALSE(InsererPoint(s, 1, {20, 40}));
    EXPECT_FALSE(InsererPoint(s, 1, {40, 40}));
    EXPECT_FALSE(InsererPoint(s, 4, {30, 20}));
    EXPECT_FALSE(InsererPoint(s, 0, {std::numeric_limits<double>::quiet_NaN(), 0}));
    EXPECT_EQ(s, CarreDe20());
    Sequence vide;
    EXPECT_FALSE(InsererPoint(vide, 0, {1, 1}));
}

TEST(Source, MiroirEtSensTouchentTousLesTraces) {
    std::vector<Sequence> s = {Chemin({{0, 0}, {10, 5}}), Chemin({{20, 0}, {40, 1}})};
    MiroirFichierSource(s);
    EXPECT_EQ(Lieux(s[0]), (std::vector<Lieu>{{40, 0}, {30, 5}}));
    EXPECT_EQ(Lieux(s[1]), (std::vector<Lieu>{{20, 0}, {0, 1}}));
    EXPECT_EQ(s[1].XMax, 20);
    InverserSensSequences(s);
    EXPECT_EQ(Lieux(s[0]), (std::vector<Lieu>{{30, 5}, {40, 0}}));
    MiroirFichierSource({});
}
