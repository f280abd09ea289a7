// Speeds and durations of the segments of a cut.
#include "work2d/vitesses.h"

#include "outils_decoupe.h"
#include "platform/erreurs.h"

using namespace tessarel;
using namespace tessarel::essais;

TEST(Vitesses, LaVitesseDUnSommetEstCelleDuSegmentQuiYFinit) {
    Sequence chemin = Chemin({{0, 0}, {0, 10}, {10, 10}, {20, 10}});
    chemin.Points[0].Rapide = true;
    chemin.Points[2].Rapide = true;
    AppliquerVitesses(chemin, 4, 8);
    EXPECT_EQ(chemin.Points[0].Vitesse, 4) << "no segment ends at the first vertex";
    EXPECT_EQ(chemin.Points[1].Vitesse, 8);
    EXPECT_EQ(chemin.Points[2].Vitesse, 4);
    EXPECT_EQ(chemin.Points[3].Vitesse, 8);
}

TEST(Vitesses, UneDecoupeNeConnaitQueDeuxVitesses) {
    OptionsDecoupe2D options = OptionsEssai();
    options.modeExpert = true;
    options.vitesseMatiere = 2.5F;
    options.approcheRapide = options.retourRapide = true;
    options.TypeEntree = options.TypeSortie = 2;
    const std::vector<Sequence> sequences = {CarreDe20()};
    const Decoupe2D decoupe = AssemblerDecoupe2D(sequences, options, MachineEssai());
    ASSERT_EQ(decoupe.SequenceDecoupe.Points.size(), 13U);
    const std::vector<float> attendues = {2.5, 8, 8, 8, 2.5, 2.5, 2.5, 2.5, 2.5, 2.5, 8, 8, 8};
    for (std::size_t i = 0; i < attendues.size(); ++i)
        EXPECT_EQ(decoupe.SequenceDecoupe.Points[i].Vitesse, attendues[i]) << "point " << i;
}

TEST(Durees, ChaqueSegmentALaSienneEtLePremierPartDeZero) {
    Sequence chemin = Chemin({{0, 200}, {30, 200}, {30, 160}}); // origin at the top
    chemin.Points[1].Rapide = true;
    const auto durees = ChronometrerSegments(chemin, 4, 8);
    ASSERT_TRUE(durees);
    EXPECT_EQ((*durees)[0], 0);
    EXPECT_FLOAT_EQ((*durees)[1], 50.55937F); // sqrt(30*30 + 200*200) / 4, from (0, 0)
    EXPECT_EQ((*durees)[2], 5);
}

TEST(Durees, SousCinqCentiemesLaDecoupeEstRefusee) {
    Sequence chemin = Chemin({{0, 0}, {0, 10}, {10, 10}});
    EXPECT_TRUE(ChronometrerSegments(chemin, 0.05F, 8));
    EXPECT_FALSE(ChronometrerSegments(chemin, 0.0499F, 8));
    EXPECT_FALSE(ChronometrerSegments(chemin, -4, 8));
    EXPECT_TRUE(ChronometrerSegments(chemin, 4, 0)) << "a rapid speed that nothing uses does not count";
    chemin.Points[1].Rapide = true;
    EXPECT_FALSE(ChronometrerSegments(chemin, 4, 0));
}

TEST(Durees, LeTotalSArronditAChaqueAddition) {
    // Under half a second nothing is added, however many there are.
    EXPECT_EQ(DureeTotale(std::vector<float>(1000, 0.4F), 2), 2);
    EXPECT_EQ(DureeTotale(std::vector<float>(11, 0.6F), 2), 12);
    // Halves to even: 2 + 0.5 stays 2, 3 + 0.5 becomes 4.
    EXPECT_EQ(DureeTotale(std::vector<float>{0, 0.5F}, 2), 2);
    EXPECT_EQ(DureeTotale(std::vector<float>{0, 0.5F}, 3), 4);
    EXPECT_EQ(DureeTotale(std::vector<float>{0, 2.5F, 5, 5, 2.5F}, 2), 16); // 4, 9, 14, 16.5 -> 16
    EXPECT_EQ(DureeTotale(std::vector<float>{}, 2), 2);
}

TEST(Durees, UnTotalQuiNeTientPasLeveLaFaute) {
    EXPECT_THROW(DureeTotale(std::vector<float>{0, 2e9F, 2e9F}, 2), FauteDepassement);
}
