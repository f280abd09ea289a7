// What the 2D window frames.
#include "work2d/affichage.h"

#include "outils_decoupe.h"

using namespace tessarel;
using namespace tessarel::essais;

namespace {

CadreDessin ToutVoir(const std::vector<Sequence>& sequences) {
    return CadreToutVoir(CalculerZoneVisible(sequences, MachineEssai()), MachineEssai());
}

} // namespace

TEST(ZoneVisible, EntoureLesTracesOuLaTableSansEux) {
    const std::vector<Sequence> deux = {CarreDe20(), Chemin({{-5, 100}, {7.5, 110}})};
    EXPECT_EQ(CalculerZoneVisible(deux, MachineEssai()), (ZoneVisible{-5, 40, 20, 110}));
    EXPECT_EQ(CalculerZoneVisible({}, MachineEssai()), (ZoneVisible{0, 300, 0, 200}));
    const std::vector<Sequence> vide(2);
    EXPECT_EQ(CalculerZoneVisible(vide, MachineEssai()), (ZoneVisible{0, 300, 0, 200}));
}

TEST(CadreToutVoir, SeTientSurLaTable) {
    const CadreDessin dedans = ToutVoir({CarreDe20()});
    EXPECT_EQ(dedans.XMin, 20);
    EXPECT_EQ(dedans.YMax, 40);
    const CadreDessin deborde = ToutVoir({Chemin({{-50, -20}, {400, 500}})});
    EXPECT_EQ(deborde.XMin, 0);
    EXPECT_EQ(deborde.XMax, 300);
    EXPECT_EQ(deborde.YMin, 0);
    EXPECT_EQ(deborde.YMax, 200);
}

TEST(CadreToutVoir, ACoteDeLaTableIlMontreLesTraces) {
    const CadreDessin cadre = ToutVoir({Chemin({{400, 50}, {450, 60}})});
    EXPECT_EQ(cadre.XMin, 400);
    EXPECT_EQ(cadre.XMax, 450);
    EXPECT_EQ(cadre.YMin, 50);
}

TEST(CadreToutVoir, UnPointSeulAQuelqueChoseAutourDeLui) {
    const CadreDessin cadre = ToutVoir({Chemin({{100, 50}})});
    EXPECT_EQ(cadre.XMin, 97.5);
    EXPECT_EQ(cadre.XMax, 102.5);
    EXPECT_EQ(cadre.YMin, 47.5);
    EXPECT_EQ(cadre.YMax, 52.5);
}
