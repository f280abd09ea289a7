// Blocks, layers, units, paper space: what stands where, and what is left out.
#include "outils/dessins.h"

#include <gtest/gtest.h>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

// A block "B" with its base at (1,1): one line from (1,1) to (3,1).
constexpr const char* BlocB =
    "0 SECTION|2 BLOCKS|0 BLOCK|8 0|2 B|70 0|10 1|20 1|30 0|0 LINE|8 0|10 1|20 1|11 3|21 1|"
    "0 ENDBLK|8 0|0 ENDSEC";

std::string Calques(std::string_view calques) {
    return "0 SECTION|2 TABLES|0 TABLE|2 LAYER|70 9" + std::string(calques) + "|0 ENDTAB|0 ENDSEC";
}

std::string Unite(int insunits) {
    return "0 SECTION|2 HEADER|9 $ACADVER|1 AC1015|9 $INSUNITS|70 " + std::to_string(insunits) +
           "|9 $MEASUREMENT|70 0|0 ENDSEC";
}

} // namespace

TEST(DxfBlocs, UneInsertionPlaceLaBase) {
    const auto d = LireTexte(DxfAvecEntites("0 INSERT|8 0|2 B|10 10|20 20", BlocB));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(EnTexte(d.polylignes[0]), "10,20 12,20");
    EXPECT_EQ(d.rapport.lus.at("LINE"), 1);
    EXPECT_FALSE(d.rapport.lus.contains("INSERT"));
}

TEST(DxfBlocs, LEchelleLaRotationEtLaMiseEnMiroir) {
    // Scaled by 2 in X, turned by a quarter: the line of 2 along X becomes one of 4 along Y.
    const auto tourne = LireTexte(DxfAvecEntites("0 INSERT|2 B|10 10|20 20|41 2|42 3|50 90", BlocB));
    EXPECT_EQ(EnTexte(tourne.polylignes[0]), "10,20 10,24");
    const auto mire = LireTexte(DxfAvecEntites("0 INSERT|2 B|10 10|20 20|41 -1", BlocB));
    EXPECT_EQ(EnTexte(mire.polylignes[0]), "10,20 8,20");
    const auto extrude = LireTexte(DxfAvecEntites("0 INSERT|2 B|10 10|20 20|210 0|220 0|230 -1", BlocB));
    EXPECT_EQ(EnTexte(extrude.polylignes[0]), "-10,20 -12,20");
}

TEST(DxfBlocs, UnReseauRepeteParRangeesTourneAvecLInsertion) {
    // 2 columns 5 apart, 2 rows 7 apart, all turned by a quarter: columns go up, rows go left.
    const auto d = LireTexte(DxfAvecEntites("0 INSERT|2 B|10 0|20 0|70 2|71 2|44 5|45 7|50 90", BlocB));
    ASSERT_EQ(d.polylignes.size(), 4U);
    EXPECT_EQ(EnTexte(d.polylignes[0]), "0,0 0,2");
    EXPECT_EQ(EnTexte(d.polylignes[1]), "0,5 0,7");
    EXPECT_EQ(EnTexte(d.polylignes[2]), "-7,0 -7,2");
    EXPECT_EQ(EnTexte(d.polylignes[3]), "-7,5 -7,7");
}

TEST(DxfBlocs, DesBlocsImbriquesComposentLeursPlaces) {
    const std::string blocs = std::string(BlocB).substr(0, std::string(BlocB).rfind("|0 ENDSEC")) +
                              "|0 BLOCK|2 C|10 0|20 0|0 INSERT|2 b|10 5|20 0|41 2|42 2|0 ENDBLK|0 ENDSEC";
    const auto d = LireTexte(DxfAvecEntites("0 INSERT|2 C|10 100|20 0|50 90", blocs));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(EnTexte(d.polylignes[0]), "100,5 100,9");
}

TEST(DxfBlocs, UnCercleEtireDevientUneEllipseFine) {
    const std::string blocs =
        "0 SECTION|2 BLOCKS|0 BLOCK|2 R|10 0|20 0|0 CIRCLE|10 0|20 0|40 1|0 ENDBLK|0 ENDSEC";
    const auto d = LireTexte(DxfAvecEntites("0 INSERT|2 R|10 0|20 0|41 100|42 10", blocs));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_FLOAT_EQ(d.etendue.XMax, 100);
    EXPECT_FLOAT_EQ(d.etendue.YMax, 10);
    // The flattening is that of the drawing, not of the block: a radius of 100 needs 222 chords, 224 by
    // quarters.
    EXPECT_EQ(d.polylignes[0].size(), 225U);
}

TEST(DxfBlocs, UnBlocAbsentEstSignaleEtLeResteSeLit) {
    const auto d = LireTexte(DxfAvecEntites("0 INSERT|2 ABSENT|10 0|20 0|0 LINE|10 0|20 0|11 1|21 1", BlocB));
    ASSERT_EQ(d.polylignes.size(), 1U);
    bool signale = false;
    for (const std::string& note : d.rapport.notes)
        signale = signale || note.find("ABSENT") != std::string::npos;
    EXPECT_TRUE(signale);
}

TEST(DxfCalques, UnCalqueEteintOuGeleNEstPasLu) {
    const std::string calques =
        Calques("|0 LAYER|2 vu|70 0|62 7|0 LAYER|2 ETEINT|70 0|62 -7|0 LAYER|2 GELE|70 1|62 7");
    const auto d =
        LireTexte(DxfAvecEntites("0 LINE|8 vu|10 0|20 0|11 1|21 0|0 LINE|8 eteint|10 5|20 0|11 6|21 0|"
                                 "0 LINE|8 GELE|10 8|20 0|11 9|21 0",
                                 calques));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(EnTexte(d.polylignes[0]), "0,0 1,0");
    EXPECT_EQ(d.rapport.couches.size(), 1U);
}

TEST(DxfCalques, LeCalqueZeroDUnBlocEstCeluiDeLInsertion) {
    const std::string avant = Calques("|0 LAYER|2 ETEINT|70 0|62 -7") +
                              "|0 SECTION|2 BLOCKS|0 BLOCK|2 B|10 0|20 0|0 LINE|8 0|10 0|20 0|11 1|21 0|"
                              "0 LINE|8 PROPRE|10 5|20 5|11 6|21 6|0 ENDBLK|0 ENDSEC";
    // Layer "0" of the block is hidden with the insertion, the block's own layer stays.
    const auto d = LireTexte(DxfAvecEntites("0 INSERT|8 ETEINT|2 B|10 0|20 0", avant));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(EnTexte(d.polylignes[0]), "5,5 6,6");
    EXPECT_EQ(d.rapport.couches.at("PROPRE"), 1);
}

TEST(DxfCalques, UnCalqueGeleCacheToutSonBloc) {
    const auto d = LireTexte(DxfAvecEntites("0 INSERT|8 GELE|2 B|10 0|20 0|0 LINE|8 0|10 0|20 0|11 7|21 7",
                                            Calques("|0 LAYER|2 GELE|70 1|62 7") + "|" + BlocB));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(EnTexte(d.polylignes[0]), "0,0 7,7");
}

TEST(DxfCalques, LEspacePapierEtLInvisibleRestentDehors) {
    const auto d =
        LireTexte(DxfAvecEntites("0 LINE|8 0|67 1|10 0|20 0|11 1|21 0|0 LINE|8 0|60 1|10 5|20 0|11 6|21 "
                                 "0|0 LINE|8 0|67 0|60 0|10 8|20 0|11 9|21 0"));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(EnTexte(d.polylignes[0]), "8,0 9,0");
}

TEST(DxfUnites, LesPoucesLesCentimetresEtLesMetresDeviennentDesMillimetres) {
    const auto largeur = [](int unite) {
        return LireTexte(DxfAvecEntites("0 LINE|10 0|20 0|11 2|21 0", Unite(unite))).etendue.XMax;
    };
    EXPECT_FLOAT_EQ(largeur(0), 2.0F);
    EXPECT_FLOAT_EQ(largeur(1), 50.8F);
    EXPECT_FLOAT_EQ(largeur(2), 609.6F);
    EXPECT_FLOAT_EQ(largeur(4), 2.0F);
    EXPECT_FLOAT_EQ(largeur(5), 20.0F);
    EXPECT_FLOAT_EQ(largeur(6), 2000.0F);
    EXPECT_FLOAT_EQ(largeur(9), 0.0508F);
    EXPECT_FLOAT_EQ(largeur(10), 1828.8F);
    EXPECT_FLOAT_EQ(largeur(13), 0.002F);
    EXPECT_FLOAT_EQ(largeur(14), 200.0F);
    EXPECT_FLOAT_EQ(largeur(21), 609.60122F);
    EXPECT_FLOAT_EQ(largeur(99), 2.0F);
}

TEST(DxfUnites, LaCordeSeMesureEnMillimetres) {
    // A circle of radius 1 m: 2 pi / (4 asin(sqrt(0.01 / 2000))) = 702.5 chords, made 704.
    const auto d = LireTexte(DxfAvecEntites("0 CIRCLE|10 0|20 0|40 1", Unite(6)));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(d.polylignes[0].size(), 705U);
    EXPECT_FLOAT_EQ(d.etendue.XMax, 1000);
}
