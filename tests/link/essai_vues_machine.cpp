// Pictures of the virtual machine: places in mm, what is foam and what is air.
#include "link/simulateur/vues_machine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

using namespace tessarel;
using namespace tessarel::simulateur;

namespace {

TableRam Table(bool x2Present = true) {
    TableRam t;
    t.frequence = 5;
    t.pasParMm = {100, 200, 100, 200};
    t.axePresent = {true, true, x2Present, true};
    return t;
}

PointTrajet Coin(std::uint8_t pwm, std::int64_t x, std::int64_t y,
                 PointTrajet::Genre genre = PointTrajet::Genre::FinSalve) {
    PointTrajet c;
    c.genre = genre;
    c.pwm = pwm;
    c.pas = {x * 100, y * 200, x * 100, y * 200};
    return c;
}

} // namespace

TEST(VuesMachine, LesPasDonnentDesMillimetres) {
    const PlacesChariots p = PlacesEnMm({250, -400, 1000, 3000}, Table());
    EXPECT_DOUBLE_EQ(p.bout1.X, 2.5);
    EXPECT_DOUBLE_EQ(p.bout1.Y, -2);
    EXPECT_DOUBLE_EQ(p.bout2.X, 10);
    EXPECT_DOUBLE_EQ(p.bout2.Y, 15);
    EXPECT_DOUBLE_EQ(PlacesEnMm({1, 1, 1, 1}, TableRam{}).bout1.X, 0) << "no table, no millimetres";
}

TEST(VuesMachine, UnAxeSansSortieSuitCeluiDeLAutreBout) {
    const PlacesChariots p = PlacesEnMm({250, 0, 0, 0}, Table(false));
    EXPECT_DOUBLE_EQ(p.bout2.X, 2.5);
}

TEST(VuesMachine, LeFilEstDroitDUnChariotALAutre) {
    const PlacesChariots p = {{0, 10}, {100, 30}};
    EXPECT_DOUBLE_EQ(PointDuFil(p, 130, 520).X, 25);
    EXPECT_DOUBLE_EQ(PointDuFil(p, 130, 520).Y, 15);
    EXPECT_DOUBLE_EQ(PointDuFil(p, 0, 0).Y, 10);
}

TEST(VuesMachine, UnSegmentSeCoupeAuxBordsDuRectangle) {
    const CadreDessin r = {10, 30, 0, 10};
    const auto part = PartDansRectangle({0, 5}, {40, 5}, r);
    ASSERT_TRUE(part);
    EXPECT_DOUBLE_EQ(part->first, 0.25);
    EXPECT_DOUBLE_EQ(part->second, 0.75);
    EXPECT_FALSE(PartDansRectangle({0, 11}, {40, 11}, r));
    EXPECT_FALSE(PartDansRectangle({0, 5}, {9, 5}, r));
    EXPECT_FALSE(PartDansRectangle({0, 0}, {9, 100}, r));
    const auto dedans = PartDansRectangle({12, 5}, {12, 5}, r);
    ASSERT_TRUE(dedans);
    EXPECT_DOUBLE_EQ(dedans->second, 1);
}

TEST(VuesMachine, LaTraceSauteCeQuiEstPousseALaMain) {
    SceneMachine scene;
    scene.ram = Table();
    scene.bloc = {.x = 1000, .y = 1000}; // far away
    const std::vector<PointTrajet> trajet = {Coin(9, 0, 0, PointTrajet::Genre::Depart), Coin(9, 10, 0),
                                             Coin(9, 50, 50, PointTrajet::Genre::Depart), Coin(0, 60, 50)};
    const Dessin d = DessinerTrace(scene, trajet);
    double longueur = 0;
    for (const TraitDessin& t : d.traits)
        for (std::uint32_t i = 1; i < t.nombre; ++i)
            longueur += std::abs(d.points[t.premier + i].X - d.points[t.premier + i - 1].X);
    EXPECT_DOUBLE_EQ(longueur, 2 * (10 + 10)) << "two faces, two moves, no jump";
    EXPECT_TRUE(DessinerTrace(scene, {}).traits.empty());
}

TEST(VuesMachine, UneTraceTresLongueGardeSaFin) {
    SceneMachine scene;
    scene.ram = Table();
    std::vector<PointTrajet> trajet;
    for (std::size_t i = 0; i < CoinsDessines + 1000; ++i)
        trajet.push_back(Coin(0, static_cast<std::int64_t>(i), static_cast<std::int64_t>(i % 2)));
    const Dessin d = DessinerTrace(scene, trajet);
    double xMin = 1e9;
    for (const PointDessin& p : d.points) xMin = std::min(xMin, p.X);
    EXPECT_DOUBLE_EQ(xMin, 1000);
}

TEST(VuesMachine, LeFilPasseDeLAcierAuJaune) {
    EXPECT_EQ(CouleurDuFil(0, false), (Couleur{0x5B, 0x67, 0x75}));
    EXPECT_EQ(CouleurDuFil(0, true), (Couleur{0xA9, 0xB4, 0xC1}));
    EXPECT_EQ(CouleurDuFil(1, false), (Couleur{0xFF, 0xC2, 0x3D}));
    EXPECT_EQ(CouleurDuFil(7, true), (Couleur{0xFF, 0xC2, 0x3D}));
}
