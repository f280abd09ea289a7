// Frames byte for byte, the bytes worked out by hand, and the builder held against its rule on random moves.
#include "link/salves.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

using namespace tessarel;

namespace {

// 50 kHz, slope 6, 400 x 32 steps for 40 mm: 320 steps/mm on all axes.
TableMachine Machine320() {
    TableMachine table;
    table.Frequence = 50000;
    table.PenteAcceleration = 6;
    table.PasParTour = {12800, 12800, 12800, 12800, 0};
    table.MmParTour = {40, 40, 40, 40};
    return table;
}

Salve Construire(float depart, float cible, float fin, const PasAxes& pas,
                 const TableMachine& table = Machine320()) {
    return ConstruireSalve(ParametresDeSalve(table), depart, cible, fin, pas);
}

std::vector<int> Octets(const Salve& salve) {
    return {salve.octets.begin(), salve.octets.begin() + TailleSalve};
}

std::vector<int> Nuls() {
    return std::vector<int>(TailleSalve, 0);
}

// Steps 13 to 16 of the rule as they are told, level by level.
struct Attendue {
    int depart = 0;
    int fin = 0;
    std::uint32_t deceleration = 0;
    float duree = 0;
};

int NiveauParParcours(int f, double periode) {
    int meilleur = 0;
    for (int k = 1; k < NiveauxRampe; ++k)
        if (std::abs(TableRampe(k, f) - periode) < std::abs(TableRampe(meilleur, f) - periode)) meilleur = k;
    return meilleur;
}

Attendue RampeSelonLaRegle(const TableMachine& table, double depart, double cible, double fin, double nbrt) {
    const int f = table.Frequence / 10000;
    const double p = std::pow(2.0, table.PenteAcceleration + 9);
    Attendue r;
    r.depart = NiveauParParcours(f, cible / depart * (6000000.0 / table.Frequence));
    r.fin = NiveauParParcours(f, cible / fin * (6000000.0 / table.Frequence));
    double s1 = 0;
    double s2 = 0;
    int k = std::min(r.depart, r.fin);
    for (; k <= 254; ++k) {
        if (k >= r.depart) s1 += p / (2.0 * TableRampe(k, f));
        if (k >= r.fin) s2 += p / (2.0 * TableRampe(k, f));
        if (s1 + s2 > nbrt) break;
    }
    r.deceleration = static_cast<std::uint32_t>(static_cast<std::int64_t>(nbrt - std::floor(s2)));
    r.duree = static_cast<float>((k - r.depart) * p / 12000000 + (k - r.fin) * p / 12000000 +
                                 std::max(0.0, (nbrt - s1 - s2) / table.Frequence));
    return r;
}

} // namespace

TEST(Salve, SansRampe) {
    // 3200 steps = 10 mm at 4 mm/s: 2.5 s, 125000 ticks = 0x0001E848; 6400 = 0x1900. Four directions forward.
    std::vector<int> attendu = Nuls();
    attendu[0] = 0x0F;
    attendu[1] = 0x48;
    attendu[2] = 0xE8;
    attendu[3] = 0x01;
    attendu[6] = 0x19;
    const Salve salve = Construire(4, 4, 4, {3200, 0, 0, 0});
    EXPECT_EQ(Octets(salve), attendu);
    EXPECT_EQ(salve.Duree, 2.5F);
    EXPECT_EQ(salve.Statut, 1);
    EXPECT_EQ(NBRtDeSalve(salve), 125000U);
}

TEST(Salve, SensEtPasDeChaqueAxe) {
    // X1 -320 and Y1 +640: 1 and 2 mm, 2.23607 mm; X2 0 counts as forward; Y2 -1 is 0.003125 mm.
    // 2.23607 / 4 x 50000 = 27950.85: 27951 = 0x6D2F. Flags Y1 + X2 = 6. 640 = 0x280, 1280 = 0x500, 0, 2.
    std::vector<int> attendu = Nuls();
    attendu[0] = 0x06;
    attendu[1] = 0x2F;
    attendu[2] = 0x6D;
    attendu[5] = 0x80;
    attendu[6] = 0x02;
    attendu[10] = 0x05;
    attendu[17] = 0x02;
    EXPECT_EQ(Octets(Construire(4, 4, 4, {-320, 640, 0, -1})), attendu);
}

TEST(Salve, LeBoutLePlusLongDonneLeTemps) {
    // End 2 goes 3 and 4 mm: 5 mm at 4 mm/s, 62500 ticks; end 1 goes 1 mm in the same time.
    EXPECT_EQ(NBRtDeSalve(Construire(4, 4, 4, {320, 0, 960, -1280})), 62500U);
    // Only end 2 moves.
    const Salve salve = Construire(4, 4, 4, {0, 0, 960, -1280});
    EXPECT_EQ(NBRtDeSalve(salve), 62500U);
    EXPECT_EQ(LireOctets32(salve.octets, 5), 0U);
    EXPECT_EQ(LireOctets32(salve.octets, 9), 0U);
    EXPECT_EQ(LireOctets32(salve.octets, 13), 1920U);
    EXPECT_EQ(LireOctets32(salve.octets, 17), 2560U);
    EXPECT_EQ(LireOctets32(salve.octets, 21), 0U);
    EXPECT_EQ(salve.octets[0], 7);
}

TEST(Salve, ChaqueAxeASesConstantes) {
    TableMachine table = Machine320();
    table.MmParTour = {40, 20, 80, 10};
    // 12800 steps: 40, 20, 80, 10 mm; end 1 44.72136, end 2 80.62258: / 10 x 50000 = 403112.9
    EXPECT_EQ(NBRtDeSalve(Construire(10, 10, 10, {12800, 12800, 12800, 12800}, table)), 403113U);
}

TEST(Salve, LesLongueursSontSimples) {
    // 32 steps = 0.1 mm, which in 32 bits is a little more: 1250 ticks become 1251.
    EXPECT_EQ(NBRtDeSalve(Construire(4, 4, 4, {32, 0, 0, 0})), 1251U);
    EXPECT_EQ(NBRtDeSalve(Construire(4, 4, 4, {16, 0, 0, 0})), 626U); // 0.05, likewise: 625
    // So is each coordinate: 4.715625 and 7.053125 mm become 4.71562481 and 7.05312490, and the length of
    // both 8.48431969 in place of 8.48432064: 106054 ticks, not 106055.
    EXPECT_EQ(NBRtDeSalve(Construire(4, 4, 4, {1509, 2257, 0, 0})), 106054U);
    EXPECT_EQ(NBRtDeSalve(Construire(4, 4, 4, {40, 0, 0, 0})), 1563U); // 0.125 exactly: 1562.5
}

TEST(Salve, DeuxRampesEntieres) {
    // 1280 steps = 4 mm at 8 mm/s: 25000 ticks = 0x61A8. 8/6 x 120 = 160 stands at level 191 = 0xBF. The 64
    // levels up to 254 take 7629.9 ticks each way: 25000 - 7629 = 17371 = 0x43DB.
    std::vector<int> attendu = Nuls();
    attendu[0] = 0x2F;
    attendu[1] = 0xA8;
    attendu[2] = 0x61;
    attendu[6] = 0x0A;
    attendu[25] = attendu[26] = 0xBF;
    attendu[27] = 0xDB;
    attendu[28] = 0x43;
    const Salve salve = Construire(6, 8, 6, {1280, 0, 0, 0});
    EXPECT_EQ(Octets(salve), attendu);
    // 2 x 64 x 32768 / 12000000 + (25000 - 2 x 7629.9087) / 50000
    EXPECT_NEAR(salve.Duree, 0.349525333 + 0.194803651, 1e-6);
}

TEST(Salve, UnSegmentCourtArreteLaMonteeAvantLeSommet) {
    // 25 steps = 0.078125 mm at 8 mm/s: 488.3, 489 ticks. Levels 191, 192, 193 (160, 159, 158) take
    // 102.4 + 103.044 + 103.696 = 309.14 ticks a ramp; two ramps pass 489 at 193. 489 - 309 = 180 = 0xB4.
    const Salve salve = Construire(6, 8, 6, {25, 0, 0, 0});
    EXPECT_EQ(NBRtDeSalve(salve), 489U);
    EXPECT_EQ(salve.octets[25], 191);
    EXPECT_EQ(salve.octets[26], 191);
    EXPECT_EQ(LireOctets32(salve.octets, 27), 180U);
    // Twice two levels, no plateau: 4 x 32768 / 12000000.
    EXPECT_NEAR(salve.Duree, 0.0109226667, 1e-8);
}

TEST(Salve, LaDecelerationPeutTomberAvantLeDebut) {
    // 2 steps = 0.00625 mm at 8 mm/s: 39.06, 40 ticks; level 191 alone takes 102.4: 40 - 102 = -62.
    const Salve salve = Construire(6, 8, 6, {2, 0, 0, 0});
    EXPECT_EQ(NBRtDeSalve(salve), 40U);
    EXPECT_EQ(LireOctets32(salve.octets, 27), 0xFFFFFFC2U);
    EXPECT_EQ(salve.Duree, 0);
    EXPECT_EQ(salve.Statut, 1);
}

TEST(Salve, RampeAuDepartSeulement) {
    // The end's ratio is 1: period 120, levels 254 and 255 both have it, the lower counts: one level, 136.53
    // ticks.
    const Salve salve = Construire(6, 8, 8, {1280, 0, 0, 0});
    EXPECT_EQ(salve.octets[0], 0x2F);
    EXPECT_EQ(salve.octets[25], 191);
    EXPECT_EQ(salve.octets[26], 254);
    EXPECT_EQ(LireOctets32(salve.octets, 27), 25000U - 136U);
    // 64 + 1 levels, then (25000 - 7629.9087 - 136.5333) / 50000.
    EXPECT_NEAR(salve.Duree, 0.177493333 + 0.344671159, 1e-6);
}

TEST(Salve, RampeALaFinSeulement) {
    const Salve salve = Construire(8, 8, 4, {1280, 0, 0, 0});
    EXPECT_EQ(salve.octets[0], 0x2F);
    EXPECT_EQ(salve.octets[25], 254);
    // 2 x 120 = 240; level 127 has 6000000 / (24901.96 + 45.96) = 240.50, 240: the first level at 240.
    EXPECT_EQ(salve.octets[26], 127);
}

TEST(Salve, CibleSousLesDeuxAutresNAPasDeRampe) {
    const Salve salve = Construire(8, 4, 6, {1280, 0, 0, 0});
    EXPECT_EQ(salve.octets[0], 0x0F);
    EXPECT_EQ(salve.octets[25], 0);
    EXPECT_EQ(salve.octets[26], 0);
    EXPECT_EQ(LireOctets32(salve.octets, 27), 0U);
    EXPECT_EQ(salve.Duree, 1); // 4 mm at 4 mm/s: NBRt / frequency
}

TEST(Salve, DepartAPleineAllureEstPresDuSommetEtDepartTresLentPresDeZero) {
    EXPECT_GE(Construire(7.999F, 8, 6, {1280, 0, 0, 0}).octets[25], 250);
    EXPECT_LE(Construire(0.02F, 8, 6, {1280, 0, 0, 0}).octets[25], 1);
}

TEST(Salve, SansAucunPasDureUnTick) {
    std::vector<int> attendu = Nuls();
    attendu[1] = 1;
    const Salve salve = Construire(0, 0, 0, {0, 0, 0, 0}); // speeds are not looked at
    EXPECT_EQ(Octets(salve), attendu);
    EXPECT_EQ(salve.Statut, 1);
}

TEST(Salve, UnAxeSansPasParTourNeCompteNiMillimetresNiPas) {
    TableMachine table = Machine320();
    table.PasParTour[AxeX2] = 0;
    const Salve salve = Construire(4, 4, 4, {320, 0, 99999, 0}, table);
    EXPECT_EQ(salve.Statut, 1);
    EXPECT_EQ(NBRtDeSalve(salve), 12500U); // 1 mm at 4 mm/s
    EXPECT_EQ(LireOctets32(salve.octets, 13), 0U);
    EXPECT_EQ(NBRtDeSalve(Construire(4, 4, 4, {0, 0, -5, 0}, table)), 1U); // nothing left to move
}

TEST(Salve, FrequenceHorsDesCinqEstRefusee) {
    for (const std::int32_t f : {0, -10000, 5000, 9999, 15000, 50001, 60000, 100000}) {
        TableMachine table = Machine320();
        table.Frequence = f;
        table.PenteAcceleration = 16; // the frequency is looked at first
        const Salve salve = Construire(4, 4, 4, {0, 0, 0, 0}, table);
        EXPECT_EQ(salve.Statut, 100) << f;
        EXPECT_EQ(Octets(salve), Nuls()) << f;
    }
    for (const std::int32_t f : {10000, 20000, 30000, 40000, 50000}) {
        TableMachine table = Machine320();
        table.Frequence = f;
        const Salve salve = Construire(4, 4, 4, {320, 0, 0, 0}, table);
        EXPECT_EQ(salve.Statut, 1) << f;
        EXPECT_EQ(NBRtDeSalve(salve), static_cast<std::uint32_t>(f / 4)) << f;
    }
}

TEST(Salve, PenteAuDessusDeQuinzeEstRefuseeMemeSansPas) {
    TableMachine table = Machine320();
    table.PenteAcceleration = 16;
    EXPECT_EQ(Construire(4, 4, 4, {0, 0, 0, 0}, table).Statut, 101);
    table.PenteAcceleration = 15;
    EXPECT_EQ(Construire(4, 8, 4, {320, 0, 0, 0}, table).Statut, 1);
}

TEST(Salve, UneVitesseNulleEstRefusee) {
    const float nulle = 0.000009F;
    for (const auto& [d, c, f] : {std::array{nulle, 4.0F, 4.0F}, std::array{4.0F, nulle, 4.0F},
                                  std::array{4.0F, 4.0F, nulle}, std::array{4.0F, 4.0F, -nulle}}) {
        const Salve salve = Construire(d, c, f, {320, 0, 0, 0});
        EXPECT_EQ(salve.Statut, 102);
        EXPECT_EQ(Octets(salve), Nuls());
    }
}

TEST(Salve, UnCalculImpossibleEstDit) {
    const float pasUnNombre = std::numeric_limits<float>::quiet_NaN();
    // 0.0001 mm/s over 100 m: 5e13 ticks.
    for (const Salve& salve :
         {Construire(0.0001F, 0.0001F, 0.0001F, {32000000, 0, 0, 0}), Construire(4, -4, 4, {320, 0, 0, 0}),
          Construire(pasUnNombre, 4, 4, {320, 0, 0, 0}), Construire(4, pasUnNombre, 4, {320, 0, 0, 0}),
          Construire(4, 4, 4, {std::numeric_limits<std::int32_t>::min(), 0, 0, 0})}) {
        EXPECT_EQ(salve.Statut, -400);
        EXPECT_EQ(Octets(salve), Nuls());
    }
}

TEST(Salve, LesPasLesPlusGrandsPassent) {
    const Salve salve = Construire(1000, 1000, 1000, {2147483647, 0, 0, 0});
    EXPECT_EQ(salve.Statut, 1);
    EXPECT_EQ(LireOctets32(salve.octets, 5), 4294967294U);
}

TEST(Salve, LaRampeSuitLaRegleAuHasard) {
    std::mt19937 hasard(33);
    std::uniform_int_distribution<std::int32_t> pas(-40000, 40000);
    std::uniform_real_distribution<double> exposant(-4, 6);
    int avecRampe = 0;
    for (int i = 0; i < 30000; ++i) {
        TableMachine table = Machine320();
        table.Frequence = 10000 * (1 + i % 5);
        table.PenteAcceleration = static_cast<std::uint8_t>(i % 16);
        const auto vitesse = [&] { return static_cast<float>(std::exp2(exposant(hasard))); };
        const float depart = vitesse();
        const float cible = vitesse();
        const float fin = i % 3 == 0 ? depart : vitesse();
        const std::int32_t reduction = i % 7 == 0 ? 1000 : 1; // short segments too
        const PasAxes trajet = {pas(hasard) / reduction, pas(hasard) / reduction, pas(hasard) / reduction,
                                pas(hasard) / reduction};
        const Salve salve = Construire(depart, cible, fin, trajet, table);
        if ((salve.octets[0] & SalveRampe) == 0) continue;
        ++avecRampe;
        const Attendue a = RampeSelonLaRegle(table, depart, cible, fin, NBRtDeSalve(salve));
        ASSERT_EQ(salve.octets[25], a.depart) << i;
        ASSERT_EQ(salve.octets[26], a.fin) << i;
        ASSERT_EQ(LireOctets32(salve.octets, 27), a.deceleration) << i;
        ASSERT_EQ(salve.Duree, a.duree) << i;
    }
    EXPECT_GT(avecRampe, 10000);
}

TEST(SalveTempo, EstUnePauseQuiChauffe) {
    // 2 s at 50 kHz: 100000 = 0x000186A0; 65 x 2.55 = 165.75: 166 = 0xA6. One tick and no direction are what
    // the builder gives without steps.
    std::vector<int> attendu = Nuls();
    attendu[0] = 0x40;
    attendu[1] = 0xA0;
    attendu[2] = 0x86;
    attendu[3] = 0x01;
    attendu[25] = 0xA6;
    const Salve salve = ConstruireSalveTempo(ParametresDeSalve(Machine320()), 2, 65);
    EXPECT_EQ(Octets(salve), attendu);
    EXPECT_EQ(salve.Statut, 1);
}

TEST(SalveTempo, LePourcentNEstPasArrondiAvantEtLesDemisVontAuPair) {
    const ParametresSalve p = ParametresDeSalve(Machine320());
    EXPECT_EQ(ConstruireSalveTempo(p, 1, 65.4F).octets[25], 167); // 166.77; 65 would give 166
    EXPECT_EQ(ConstruireSalveTempo(p, 1, 10).octets[25], 26);     // 25.5
    EXPECT_EQ(ConstruireSalveTempo(p, 1, 30).octets[25], 76);     // 76.5
    EXPECT_EQ(ConstruireSalveTempo(p, 1, 0).octets[25], 0);
    EXPECT_EQ(ConstruireSalveTempo(p, 1, 100).octets[25], 255);
    EXPECT_EQ(ConstruireSalveTempo(p, 1, 250).octets[25], 255); // never wraps
    EXPECT_EQ(ConstruireSalveTempo(p, 1, -3).octets[25], 0);
    EXPECT_EQ(ConstruireSalveTempo(p, 1, std::numeric_limits<float>::quiet_NaN()).octets[25], 0);
}

TEST(SalveTempo, LaPlusLongueTientDansLesTicks) {
    const ParametresSalve p = ParametresDeSalve(Machine320());
    EXPECT_EQ(NBRtDeSalve(ConstruireSalveTempo(p, 32767, 50)), 1638350000U);
    EXPECT_EQ(NBRtDeSalve(ConstruireSalveTempo(p, 0, 50)), 0U);
    EXPECT_EQ(ConstruireSalveTempo(p, -1, 50).Statut, -400);
}

TEST(SalveTampon, CommandePuisTrenteEtUnOctets) {
    Salve salve = Construire(6, 8, 6, {1280, 0, 0, 0});
    salve.octets[31] = 0xEE; // spare, must not go out
    Tampon tampon;
    tampon.fill(0x55);
    EXPECT_EQ(ChargerSalveEtDuree(tampon, salve), 25000);
    EXPECT_EQ(tampon[0], 0);
    EXPECT_EQ(tampon[1], 68);
    EXPECT_EQ(tampon[2], 0x2F);
    EXPECT_EQ(tampon[3], 0xA8);
    EXPECT_EQ(tampon[27], 191);
    EXPECT_EQ(tampon[29], 0xDB);
    for (std::size_t i = 33; i < tampon.size(); ++i) EXPECT_EQ(tampon[i], 0) << i;
    ChargerSalveDansTampon(tampon, ConstruireSalveFin());
    EXPECT_EQ(tampon[1], 68);
    EXPECT_EQ(tampon[2], 128);
    for (std::size_t i = 3; i < tampon.size(); ++i) EXPECT_EQ(tampon[i], 0) << i;
}
