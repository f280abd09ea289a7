// Speeds, durations and the projection of the wire to the carriages.
#include "cut4x/fautes_d4x.h"
#include "cut4x/mesures_segments.h"
#include "cut4x/vitesses4x.h"

#include "cut4x/outils_d4x.h"

#include <cmath>
#include <random>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

// Block of 500 mm at edge 1: P2 = S + 1.8 (E - S), P1 = E + 1.2 (S - E).
struct Chariots : Poste {
    Chariots(const Coordonnees& e, const Coordonnees& s) {
        decoupe.DecoupePossible = true;
        decoupe.PaireBloc.Ecartement = 500;
        decoupe.PaireBloc.E = Points(e);
        decoupe.PaireBloc.S = Points(s);
    }
    void Rapide(std::size_t i) { decoupe.PaireBloc.E[i].Rapide = decoupe.PaireBloc.S[i].Rapide = true; }
    Chariots& Faire() {
        CalculerVitessesEtChariotsD4X(Contexte(), decoupe);
        return *this;
    }
    [[nodiscard]] const PointProfil& E(std::size_t i) const { return decoupe.PaireBloc.E[i]; }
    [[nodiscard]] const PointProfil& S(std::size_t i) const { return decoupe.PaireBloc.S[i]; }
    [[nodiscard]] const PointProfil& P2(std::size_t i) const { return decoupe.PaireChariots.E[i]; }
    [[nodiscard]] const PointProfil& P1(std::size_t i) const { return decoupe.PaireChariots.S[i]; }
};

} // namespace

TEST(Vitesses4x, LeCotePlusLongTientLaVitesseEtDonneLaDuree) {
    Chariots c({{0, 0}, {40, 0}}, {{0, 0}, {20, 0}});
    c.Faire();
    EXPECT_EQ(c.E(0).Vitesse, 4);
    EXPECT_EQ(c.S(0).Vitesse, 2);
    EXPECT_EQ(c.E(0).Duree, 10);
    EXPECT_EQ(c.S(0).Duree, 10);
    EXPECT_DOUBLE_EQ(c.P2(1).X, 56);
    EXPECT_DOUBLE_EQ(c.P1(1).X, 16);
    EXPECT_FLOAT_EQ(c.P2(0).Vitesse, 5.6F);
    EXPECT_FLOAT_EQ(c.P1(0).Vitesse, 1.6F);
    EXPECT_FLOAT_EQ(c.P2(0).Vx, 5.6F);
    EXPECT_FLOAT_EQ(c.P1(0).Vx, 1.6F);
    EXPECT_EQ(c.P2(0).Vy, 0);
    EXPECT_EQ(c.P2(0).Z, 1000);
    EXPECT_EQ(c.P1(0).Z, 0);
    EXPECT_EQ(c.decoupe.PaireChariots.Ecartement, 1000);
}

TEST(Vitesses4x, LeSaumonPlusLongMeneAussi) {
    Chariots c({{0, 0}, {0, 10}}, {{0, 0}, {0, 40}});
    c.Faire();
    EXPECT_EQ(c.S(0).Vitesse, 4);
    EXPECT_EQ(c.E(0).Vitesse, 1);
    EXPECT_EQ(c.E(0).Duree, 10);
    // P2 = 40 - 54 = -14, P1 = 10 + 36 = 46.
    EXPECT_DOUBLE_EQ(c.P2(1).Y, -14);
    EXPECT_DOUBLE_EQ(c.P1(1).Y, 46);
    EXPECT_FLOAT_EQ(c.P2(0).Vitesse, 1.4F);
    EXPECT_FLOAT_EQ(c.P1(0).Vy, 4.6F);
}

TEST(Vitesses4x, SegmentSansLongueurDesDeuxCotesGardeDuTempsNulEtResteLa) {
    Chariots c({{5, 5}, {5, 5}, {10, 5}}, {{5, 5}, {5, 5}, {10, 5}});
    c.Faire();
    EXPECT_EQ(c.decoupe.PaireChariots.E.size(), 3U);
    EXPECT_EQ(c.E(0).Vitesse, 0);
    EXPECT_EQ(c.S(0).Duree, 0);
    EXPECT_EQ(c.P1(0).Vx, 0);
    EXPECT_EQ(c.P2(0).Vitesse, 0);
}

TEST(Vitesses4x, SaumonImmobile) {
    Chariots c({{0, 0}, {8, 0}}, {{0, 0}, {0, 0}});
    c.Faire();
    EXPECT_EQ(c.E(0).Vitesse, 4);
    EXPECT_EQ(c.E(0).Duree, 2);
    EXPECT_EQ(c.S(0).Vitesse, 0);
    EXPECT_EQ(c.S(0).Duree, 0);
    EXPECT_FLOAT_EQ(c.P2(0).Vitesse, 7.2F);
    EXPECT_EQ(c.P1(0).Vitesse, 0);
    // P1 moves by -1.6 and has no time for it: its speeds are 0.
    EXPECT_DOUBLE_EQ(c.P1(1).X, -1.6);
    EXPECT_EQ(c.P1(0).Vx, 0);
}

TEST(Vitesses4x, EmplantureImmobileLaDureeDeSEstCelleDeLaLongueurDeE) {
    Chariots c({{0, 0}, {0, 0}}, {{0, 0}, {10, 0}});
    c.Faire();
    EXPECT_EQ(c.S(0).Vitesse, 4);
    EXPECT_EQ(c.E(0).Vitesse, 0);
    EXPECT_EQ(c.S(0).Duree, 0);
    EXPECT_EQ(c.P2(0).Vitesse, 0);
    EXPECT_FLOAT_EQ(c.P1(0).Vitesse, 4.8F);
    EXPECT_EQ(c.P1(0).Vx, 0);

    Chariots presque({{0, 0}, {0.000008, 0}}, {{0, 0}, {10, 0}});
    presque.Faire();
    EXPECT_FLOAT_EQ(presque.S(0).Duree, 0.000002F);
    EXPECT_EQ(presque.E(0).Duree, 0);
    EXPECT_NEAR(presque.P1(0).Vx, 12 / 0.000002, 10);
}

TEST(Vitesses4x, RapideEstLuSurLEmplantureSeule) {
    Chariots c({{0, 0}, {40, 0}}, {{0, 0}, {40, 0}});
    c.decoupe.PaireBloc.E[0].Rapide = true;
    c.Faire();
    EXPECT_EQ(c.E(0).Vitesse, 20);
    EXPECT_EQ(c.E(0).Duree, 2);
    Chariots s({{0, 0}, {40, 0}}, {{0, 0}, {40, 0}});
    s.decoupe.PaireBloc.S[0].Rapide = true;
    s.Faire();
    EXPECT_EQ(s.E(0).Vitesse, 4);
}

TEST(Vitesses4x, LimiteDuRapideSurLAxeLePlusVite) {
    Chariots c({{0, 0}, {30, 40}}, {{0, 0}, {30, 40}});
    c.table.VmaxAvecAccXY = 10;
    c.Rapide(0);
    c.Faire();
    // 50 mm at 20 mm/s: 2.5 s, 12 and 16 mm/s; Y comes down to 10.
    EXPECT_EQ(c.E(0).Duree, 2.5F);
    EXPECT_EQ(c.P1(0).Duree, 4);
    EXPECT_EQ(c.P1(0).Vx, 7.5F);
    EXPECT_EQ(c.P1(0).Vy, 10);
    EXPECT_EQ(c.P1(0).Vitesse, 12.5F);
    // Equal speeds: Y counts as the larger.
    Chariots egal({{0, 0}, {30, 30}}, {{0, 0}, {30, 30}});
    egal.table.VmaxAvecAccXY = 10;
    egal.Rapide(0);
    egal.Faire();
    EXPECT_EQ(egal.P2(0).Vy, 10);
    EXPECT_FLOAT_EQ(egal.P2(0).Vx, 10);
}

TEST(Vitesses4x, LesDeuxListesSontLimiteesChacunePourSoi) {
    // 40 against 20: P2 goes 56 at 28 mm/s, P1 16 at 8.
    Chariots c({{0, 0}, {40, 0}}, {{0, 0}, {20, 0}});
    c.table.VmaxAvecAccXY = 14;
    c.Rapide(0);
    c.Faire();
    EXPECT_FLOAT_EQ(c.P2(0).Duree, 4);
    EXPECT_EQ(c.P2(0).Vx, 14);
    EXPECT_EQ(c.P1(0).Duree, 2);
    EXPECT_FLOAT_EQ(c.P1(0).Vx, 8);
    EXPECT_LT(c.P1(0).Vx, c.table.VmaxAvecAccXY);
}

TEST(Vitesses4x, LaLimiteNeTouchePasCeQuiNEstPasRapide) {
    Chariots c({{0, 0}, {40, 0}}, {{0, 0}, {20, 0}});
    c.table.VmaxAvecAccXY = 2;
    c.Faire();
    EXPECT_FLOAT_EQ(c.P2(0).Vx, 5.6F);
}

TEST(Vitesses4x, LeDernierPointEstArrete) {
    Chariots c({{0, 0}, {40, 0}}, {{0, 0}, {20, 0}});
    c.Faire();
    EXPECT_EQ(c.P2(1).Vitesse, 0);
    EXPECT_EQ(c.P2(1).Vx, 0);
    EXPECT_EQ(c.P1(1).Vy, 0);
}

TEST(Vitesses4x, EcartementOuVitesseNulsSontUneFauteNommee) {
    Chariots c({{0, 0}, {40, 0}}, {{0, 0}, {20, 0}});
    c.decoupe.PaireBloc.Ecartement = 0;
    try {
        c.Faire();
        FAIL() << "no fault";
    } catch (const FauteProcedureD4X& faute) {
        EXPECT_EQ(faute.Procedure(), "CalculerDecoupeD4X");
        EXPECT_EQ(faute.Numero(), NumeroErreur::DivisionParZero);
    }
    Chariots v({{0, 0}, {40, 0}}, {{0, 0}, {20, 0}});
    v.matiere.Vitesse = 0;
    EXPECT_THROW(v.Faire(), FauteProcedureD4X);
}

TEST(Vitesses4x, LesLimitesLaissentLeRangementDeCote) {
    Chariots c({{-9, -9}, {10, 20}, {30, 5}, {-9, 99}}, {{-9, -9}, {10, 20}, {30, 5}, {-9, 99}});
    c.Faire();
    EXPECT_EQ(c.decoupe.bornesChariots, (BornesD4X{10, 5, 30, 20}));
}

// The duration of a segment is the same on both sides, carriage points lie on the wire's line, and the faster
// end at the block runs at the cutting speed.
TEST(Vitesses4x, ProprietesSurDesPairesAuHasard) {
    std::mt19937 hasard(11);
    std::uniform_real_distribution<double> lieu(5, 250);
    for (int tour = 0; tour < 30; ++tour) {
        Coordonnees e;
        Coordonnees s;
        for (int i = 0; i < 40; ++i) {
            e.emplace_back(lieu(hasard), lieu(hasard));
            s.emplace_back(lieu(hasard), lieu(hasard));
        }
        Chariots c(e, s);
        c.Faire();
        for (std::size_t i = 0; i + 1 < e.size(); ++i) {
            EXPECT_EQ(c.E(i).Duree, c.S(i).Duree);
            EXPECT_EQ(c.P2(i).Duree, c.P1(i).Duree);
            EXPECT_EQ(std::max(c.E(i).Vitesse, c.S(i).Vitesse), 4);
            // Face E at 600 of 1000 along the wire, face S at 100.
            EXPECT_NEAR(c.P1(i).X + 0.6 * (c.P2(i).X - c.P1(i).X), c.E(i).X, 1e-9);
            EXPECT_NEAR(c.P1(i).Y + 0.1 * (c.P2(i).Y - c.P1(i).Y), c.S(i).Y, 1e-9);
            EXPECT_NEAR(std::hypot(c.P2(i).Vx, c.P2(i).Vy), c.P2(i).Vitesse, 1e-4);
            EXPECT_NEAR(c.P1(i).Vitesse * c.P1(i).Duree, LongueurSegment(c.P1(i), c.P1(i + 1)), 1e-3);
        }
    }
}
