// The clip to the useful zone: each border, each corner, and what must hold for any path.
#include "work2d/depassements.h"

#include "outils_decoupe.h"
#include "paths/geometrie.h"

#include <algorithm>
#include <cmath>
#include <random>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

// A place and the code of the border crossed there. A crossing lies exactly on its border; along it, it has
// what 32 bits leave.
struct Borne {
    double x = 0;
    double y = 0;
    int code = 0;
    friend bool operator==(const Borne& a, const Borne& b) {
        return std::abs(a.x - b.x) < 1e-4 && std::abs(a.y - b.y) < 1e-4 && a.code == b.code;
    }
};
std::ostream& operator<<(std::ostream& flux, const Borne& b) {
    return flux << '(' << b.x << ", " << b.y << " : " << b.code << ')';
}
using Liste = std::vector<Borne>;

Liste Bornes(const Sequence& sequence) {
    Liste liste;
    for (const PointProfil& p : sequence.Points) liste.push_back({p.X, p.Y, p.Drapeaux});
    return liste;
}

// Zone of MachineEssai: X 5 to 300, Y 1 to 200.
struct Tronque {
    Liste bornes;
    bool depassement = false;
};
Tronque Tronquer(std::initializer_list<Lieu> lieux) {
    Sequence sequence = Chemin(lieux);
    const bool depassement = ControleDepassementTS2D(sequence, MachineEssai());
    return {Bornes(sequence), depassement};
}

} // namespace

TEST(Depassements, ToutDedansResteInchangeSansDrapeau) {
    Sequence sequence = Chemin({{10.123456789, 10}, {100, 150}, {290, 20}});
    sequence.Points[1].Drapeaux = 2; // marks of a drawing are no crossings
    sequence.Points[2].Drapeaux = 3;
    const Sequence avant = sequence;
    EXPECT_FALSE(ControleDepassementTS2D(sequence, MachineEssai()));
    EXPECT_EQ(sequence, avant);
}

TEST(Depassements, UnSommetExactementSurUnBordReste) {
    const Tronque t = Tronquer({{50, 100}, {50, 200}, {300, 200}, {300, 1}, {5, 1}, {5, 50}});
    EXPECT_FALSE(t.depassement);
    EXPECT_EQ(t.bornes.size(), 6U);
}

TEST(Depassements, UnSommetSurLeBordDAbordDehorsEnsuiteRestePourLeChemin) {
    const Tronque t = Tronquer({{50, 100}, {50, 200}, {50, 250}, {60, 250}, {60, 200}, {60, 100}});
    EXPECT_TRUE(t.depassement);
    EXPECT_EQ(t.bornes, (Liste{{50, 100}, {50, 200}, {60, 200}, {60, 100}}));
}

TEST(Depassements, DeuxFoisParDessusEnleveCeQuiEstEntre) {
    const Tronque t = Tronquer({{50, 100}, {50, 250}, {100, 250}, {100, 100}});
    EXPECT_TRUE(t.depassement);
    EXPECT_EQ(t.bornes, (Liste{{50, 100, 0}, {50, 200, 2}, {100, 200, 2}, {100, 100, 0}}));
}

TEST(Depassements, LesQuatreCoinsDansLesDeuxSens) {
    // Out over one border, back over its neighbour.
    EXPECT_EQ(Tronquer({{200, 100}, {200, 250}, {350, 250}, {350, 100}, {210, 100}}).bornes,
              (Liste{{200, 100}, {200, 200, 2}, {300, 200}, {300, 100, 3}, {210, 100}}));
    EXPECT_EQ(Tronquer({{210, 100}, {350, 100}, {350, 250}, {200, 250}, {200, 100}}).bornes,
              (Liste{{210, 100}, {300, 100, 3}, {300, 200}, {200, 200, 2}, {200, 100}}));
    EXPECT_EQ(Tronquer({{200, 100}, {350, 100}, {350, -50}, {200, -50}, {200, 90}}).bornes,
              (Liste{{200, 100}, {300, 100, 3}, {300, 1}, {200, 1, 4}, {200, 90}}));
    EXPECT_EQ(Tronquer({{200, 90}, {200, -50}, {350, -50}, {350, 100}, {200, 100}}).bornes,
              (Liste{{200, 90}, {200, 1, 4}, {300, 1}, {300, 100, 3}, {200, 100}}));
    EXPECT_EQ(Tronquer({{50, 100}, {50, -50}, {-50, -50}, {-50, 90}, {50, 90}}).bornes,
              (Liste{{50, 100}, {50, 1, 4}, {5, 1}, {5, 90, 1}, {50, 90}}));
    EXPECT_EQ(Tronquer({{50, 90}, {-50, 90}, {-50, -50}, {50, -50}, {50, 100}}).bornes,
              (Liste{{50, 90}, {5, 90, 1}, {5, 1}, {50, 1, 4}, {50, 100}}));
    EXPECT_EQ(Tronquer({{50, 100}, {-50, 100}, {-50, 250}, {50, 250}, {50, 110}}).bornes,
              (Liste{{50, 100}, {5, 100, 1}, {5, 200}, {50, 200, 2}, {50, 110}}));
    EXPECT_EQ(Tronquer({{50, 110}, {50, 250}, {-50, 250}, {-50, 100}, {50, 100}}).bornes,
              (Liste{{50, 110}, {50, 200, 2}, {5, 200}, {5, 100, 1}, {50, 100}}));
}

TEST(Depassements, UneCordeQuiTraverseLeCoinDeLaZoneNeGagnePasDeCoin) {
    // Both ends outside: in over the left, out over the top, the path between lies inside.
    const Tronque t = Tronquer({{0, 150}, {100, 250}});
    EXPECT_TRUE(t.depassement);
    EXPECT_EQ(t.bornes, (Liste{{5, 155, 1}, {50, 200, 2}}));
}

TEST(Depassements, ApresUneSortieUneCordeDuCoinResteUneCorde) {
    const Tronque t = Tronquer({{200, 100}, {350, 100}, {350, 140}, {240, 250}, {240, 100}});
    EXPECT_EQ(t.bornes,
              (Liste{{200, 100}, {300, 100, 3}, {300, 190, 3}, {290, 200, 2}, {240, 200, 2}, {240, 100}}));
}

TEST(Depassements, EntreDeuxBordsOpposesIlNYAPasDeCoin) {
    const Tronque t = Tronquer({{100, 100}, {-50, 100}, {-50, 300}, {350, 300}, {350, 90}, {200, 90}});
    EXPECT_EQ(t.bornes, (Liste{{100, 100}, {5, 100, 1}, {300, 90, 3}, {200, 90}}));
}

TEST(Depassements, UnSegmentPeutTraverserToutElaZone) {
    EXPECT_EQ(Tronquer({{-95, 50}, {400, 50}}).bornes, (Liste{{5, 50, 1}, {300, 50, 3}}));
    EXPECT_EQ(Tronquer({{50, 300}, {50, -100}}).bornes, (Liste{{50, 200, 2}, {50, 1, 4}}));
}

TEST(Depassements, ToutDehorsNeLaisseRien) {
    const Tronque t = Tronquer({{400, 50}, {450, 60}, {400, 250}});
    EXPECT_TRUE(t.depassement);
    EXPECT_TRUE(t.bornes.empty());
    // Round the zone without a touch of it.
    EXPECT_TRUE(Tronquer({{-10, -10}, {-10, 210}, {310, 210}, {310, -10}}).bornes.empty());
}

TEST(Depassements, UnBoutDehorsEstRameneAuBord) {
    EXPECT_EQ(Tronquer({{100, 250}, {100, 100}, {100, 60}}).bornes,
              (Liste{{100, 200, 2}, {100, 100}, {100, 60}}));
    EXPECT_EQ(Tronquer({{100, 60}, {100, 100}, {-90, 100}}).bornes,
              (Liste{{100, 60}, {100, 100}, {5, 100, 1}}));
}

TEST(Depassements, UneSequenceVideResteVide) {
    Sequence vide;
    EXPECT_FALSE(ControleDepassementTS2D(vide, MachineEssai()));
    EXPECT_TRUE(vide.Points.empty());
}

TEST(Depassements, UnBoutAUnDernierChiffreDuBordGardeSonSegment) {
    // The end is the next single after the travel: in 32 bits the crossing may fall on the end itself.
    std::mt19937_64 hasard(57);
    std::uniform_real_distribution<float> marge(0.1F, 30);
    int surLeBout = 0;
    for (int course = 100; course < 3000; ++course) {
        TableMachine table = MachineEssai();
        table.CourseX = course;
        table.CourseY = 200 + course % 317;
        table.MargeFilPlateau = marge(hasard);
        const float apres = std::nextafter(static_cast<float>(course), 1e6F);
        Sequence chemin = Chemin({{marge(hasard) + 5, 100}, {apres, 150}});
        ControleDepassementTS2D(chemin, table);
        ASSERT_EQ(chemin.Points.size(), 2U) << course;
        EXPECT_NEAR(chemin.Points[1].X, course, 1e-3);
        surLeBout += chemin.Points[1].Drapeaux == 0 ? 1 : 0;
    }
    EXPECT_GT(surLeBout, 0);
}

namespace {

void Inserer(std::vector<PointProfil>& points, std::size_t apres, float x, float y, std::uint16_t code) {
    PointProfil p;
    p.X = x;
    p.Y = y;
    p.Drapeaux = code;
    points.insert(points.begin() + static_cast<std::ptrdiff_t>(apres) + 1, p);
}

// The four passes as they are told: one array that grows in place.
std::vector<PointProfil> CroiserEnPlace(std::vector<PointProfil> points, const ZoneUtile& z) {
    const float bords[4][5] = {{z.xMin, z.yMin, z.xMin, z.yMax, BordGauche},
                               {z.xMax, z.yMin, z.xMax, z.yMax, BordDroit},
                               {z.xMin, z.yMin, z.xMax, z.yMin, BordBas},
                               {z.xMin, z.yMax, z.xMax, z.yMax, BordHaut}};
    for (const auto& b : bords) {
        for (std::size_t i = 0; i + 1 < points.size(); ++i) {
            float x = 0;
            float y = 0;
            const Croisement c = IntersectionSegments(
                b[0], b[1], b[2], b[3], static_cast<float>(points[i].X), static_cast<float>(points[i].Y),
                static_cast<float>(points[i + 1].X), static_cast<float>(points[i + 1].Y), x, y);
            if (c == Croisement::Propre) {
                Inserer(points, i, x, y, static_cast<std::uint16_t>(b[4]));
                ++i;
            }
        }
    }
    return points;
}

Sequence PromenadeLarge(std::mt19937_64& hasard, int points) {
    std::uniform_real_distribution<float> x(-100, 400);
    std::uniform_real_distribution<float> y(-100, 300);
    Sequence chemin;
    for (int i = 0; i < points; ++i) {
        PointProfil p;
        p.X = x(hasard);
        p.Y = y(hasard);
        chemin.Points.push_back(p);
    }
    CalculerBornesSequence(chemin);
    return chemin;
}

} // namespace

TEST(Depassements, LesCroisementsSontCeuxDuTableauQuiGranditEnPlace) {
    std::mt19937_64 hasard(55);
    for (int essai = 0; essai < 300; ++essai) {
        Sequence chemin = PromenadeLarge(hasard, 25);
        Liste attendus;
        for (const PointProfil& p : CroiserEnPlace(chemin.Points, ZoneUtileMachine(MachineEssai())))
            if (p.Drapeaux != 0) attendus.push_back({p.X, p.Y, p.Drapeaux});
        ControleDepassementTS2D(chemin, MachineEssai());
        Liste obtenus;
        for (const PointProfil& p : chemin.Points)
            if (p.Drapeaux != 0) obtenus.push_back({p.X, p.Y, p.Drapeaux});
        EXPECT_EQ(obtenus, attendus) << "essai " << essai;
    }
}

TEST(Depassements, LeCheminTronqueResteDansLaZoneEtGardeTousLesPointsDuDedans) {
    std::mt19937_64 hasard(56);
    const ZoneUtile z = ZoneUtileMachine(MachineEssai());
    const auto dedans = [&](const PointProfil& p) {
        return p.X >= z.xMin && p.X <= z.xMax && p.Y >= z.yMin && p.Y <= z.yMax;
    };
    for (int essai = 0; essai < 300; ++essai) {
        Sequence chemin = PromenadeLarge(hasard, 25);
        std::vector<Lieu> attendus;
        for (const PointProfil& p : chemin.Points)
            if (dedans(p)) attendus.push_back({p.X, p.Y});
        const bool tous = attendus.size() == chemin.Points.size();
        EXPECT_EQ(ControleDepassementTS2D(chemin, MachineEssai()), !tous);
        std::size_t suivant = 0;
        for (const PointProfil& p : chemin.Points) {
            EXPECT_TRUE(dedans(p)) << p.X << ", " << p.Y;
            if (suivant < attendus.size() && Lieu{p.X, p.Y} == attendus[suivant]) ++suivant;
        }
        EXPECT_EQ(suivant, attendus.size()) << "essai " << essai;
        const Sequence unefois = chemin;
        EXPECT_FALSE(ControleDepassementTS2D(chemin, MachineEssai())) << "clipping twice changes nothing";
        EXPECT_EQ(chemin, unefois);
    }
}
