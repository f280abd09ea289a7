// Runs of selected points shifted to the right of the walk.
//
// Each segment of the run is shifted by the distance along its right-hand normal; neighbours are then brought
// together where their lines cross:
//
//        o----------o            run, walked left to right, then down
//        .          |\           .
//        o-------x  |            x: crossing of the shifted lines, the new joint (d > 0)
//                |  |
//                o  o
#include "decaler.h"

#include "design4x/boites_cpx.h"
#include "design4x/selection.h"
#include "paths/geometrie.h"
#include "platform/nombres.h"

#include <cmath>
#include <cstddef>
#include <vector>

namespace tessarel {

namespace {

// Points nearer than this on both axes give no direction, and the ends of a run nearer than this close it,
// mm.
constexpr float DistanceConfondus = 0.01F;

bool Proches(const PointProfil& a, const PointProfil& b) {
    constexpr double limite = DistanceConfondus;
    return std::abs(b.X - a.X) < limite && std::abs(b.Y - a.Y) < limite;
}

bool Egaux(const PointProfil& a, const PointProfil& b) {
    return a.X == b.X && a.Y == b.Y;
}

struct Place {
    double X = 0;
    double Y = 0;
};

// A segment of the run, shifted.
struct SegmentDecale {
    Place debut;
    Place fin;
};

enum class ResultatSuite { Rien, Decalee, Confondus };

// Works on runs [debut, fin) of `points`; its arrays are kept from run to run.
class DecaleurSuites {
public:
    DecaleurSuites(std::vector<PointProfil>& points, double distance)
        : m_points(points), m_distance(distance) {}

    ResultatSuite Decaler(std::size_t debut, std::size_t fin) {
        m_sommets.clear();
        m_segments.clear();
        for (std::size_t i = debut; i < fin; ++i)
            if (i == debut || !Egaux(m_points[i], m_points[i - 1])) m_sommets.push_back(i);
        if (m_sommets.size() < 2) return ResultatSuite::Rien;
        for (std::size_t k = 0; k + 1 < m_sommets.size(); ++k) {
            const PointProfil& a = m_points[m_sommets[k]];
            const PointProfil& b = m_points[m_sommets[k + 1]];
            if (Proches(a, b)) return ResultatSuite::Confondus;
            m_segments.push_back(Decaler(a, b));
        }
        Joindre(Proches(m_points[m_sommets.front()], m_points[m_sommets.back()]));
        Ecrire(debut, fin);
        return ResultatSuite::Decalee;
    }

private:
    [[nodiscard]] SegmentDecale Decaler(const PointProfil& a, const PointProfil& b) const {
        const double longueur = std::sqrt((b.X - a.X) * (b.X - a.X) + (b.Y - a.Y) * (b.Y - a.Y));
        const double dx = m_distance * ((b.Y - a.Y) / longueur);
        const double dy = m_distance * ((a.X - b.X) / longueur);
        return {{a.X + dx, a.Y + dy}, {b.X + dx, b.Y + dy}};
    }

    // Where the lines of two segments cross, through 32 bits; `repli` when they are parallel.
    static Place Joint(const SegmentDecale& avant, const SegmentDecale& apres, Place repli) {
        float x = 0;
        float y = 0;
        const Croisement code =
            IntersectionSegments(EnSimple(avant.debut.X), EnSimple(avant.debut.Y), EnSimple(avant.fin.X),
                                 EnSimple(avant.fin.Y), EnSimple(apres.debut.X), EnSimple(apres.debut.Y),
                                 EnSimple(apres.fin.X), EnSimple(apres.fin.Y), x, y);
        return code == Croisement::Parallele ? repli : Place{x, y};
    }

    // Places of the vertices: shifted ends, crossings between, and one crossing for both ends of a closed
    // run.
    void Joindre(bool ferme) {
        m_places.clear();
        m_places.push_back(m_segments.front().debut);
        for (std::size_t k = 0; k + 1 < m_segments.size(); ++k)
            m_places.push_back(Joint(m_segments[k], m_segments[k + 1], m_segments[k].fin));
        m_places.push_back(m_segments.back().fin);
        if (ferme) {
            m_places.back() = Joint(m_segments.back(), m_segments.front(), m_places.back());
            m_places.front() = Joint(m_segments.back(), m_segments.front(), m_places.front());
        }
    }

    // A point that repeats the one before follows it.
    void Ecrire(std::size_t debut, std::size_t fin) {
        std::size_t k = 0;
        for (std::size_t i = debut; i < fin; ++i) {
            if (k + 1 < m_sommets.size() && m_sommets[k + 1] == i) ++k;
            m_points[i].X = m_places[k].X;
            m_points[i].Y = m_places[k].Y;
        }
    }

    std::vector<PointProfil>& m_points;
    double m_distance;
    std::vector<std::size_t> m_sommets; // indices of the run's points that differ from the one before
    std::vector<SegmentDecale> m_segments;
    std::vector<Place> m_places;
};

ResultatSuite DecalerProfil(std::vector<PointProfil>& points, double distance) {
    DecaleurSuites decaleur(points, distance);
    ResultatSuite resultat = ResultatSuite::Rien;
    for (std::size_t i = 0; i < points.size();) {
        std::size_t fin = i;
        while (fin < points.size() && Porte(points[fin], DrapeauOutil)) ++fin;
        if (fin > i) {
            const ResultatSuite suite = decaleur.Decaler(i, fin);
            if (suite == ResultatSuite::Confondus) return suite;
            if (suite == ResultatSuite::Decalee) resultat = suite;
        }
        i = fin + 1;
    }
    return resultat;
}

} // namespace

bool txtDecaler(ProjetCPX& projet, double distance) {
    const ResultatSuite emplanture = DecalerProfil(projet.E.Points, distance);
    const ResultatSuite saumon = emplanture == ResultatSuite::Confondus
                                     ? ResultatSuite::Rien
                                     : DecalerProfil(projet.S.Points, distance);
    CalculerExtremesCPX(projet);
    if (emplanture == ResultatSuite::Confondus) BoiteArret(MessageConfondusE);
    if (saumon == ResultatSuite::Confondus) BoiteArret(MessageConfondusS);
    if (emplanture == ResultatSuite::Confondus || saumon == ResultatSuite::Confondus) return false;
    return emplanture == ResultatSuite::Decalee || saumon == ResultatSuite::Decalee;
}

} // namespace tessarel
