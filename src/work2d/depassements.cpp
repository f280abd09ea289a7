// Clips a path to the useful zone of the machine: one pass for each border, then corners, then the vertices
// outside.
#include "work2d/depassements.h"

#include "paths/geometrie.h"
#include "platform/nombres.h"

#include <algorithm>
#include <array>

namespace tessarel {

namespace {

// Room for that many crossings spares most paths a second allocation.
constexpr std::size_t CroisementsUsuels = 64;

// A vertex under way. The marks are kept beside the point: `Drapeaux` of a drawing may hold anything.
struct Sommet {
    PointProfil point;
    std::uint8_t bord = 0; // border crossed here, 0 on the path's own vertices
    bool surBord = false;  // the crossing found this vertex itself on the border
};

struct Bord {
    CodeBord code;
    bool vertical;
    float x0, y0, x1, y1;
};

bool EstDehors(const PointProfil& p, const ZoneUtile& zone) {
    const float x = EnSimple(p.X);
    const float y = EnSimple(p.Y);
    return x < zone.xMin || x > zone.xMax || y < zone.yMin || y > zone.yMax;
}

// Strictly on either side of the line that holds the border: nothing else can cross it properly.
bool SontDePartEtDAutre(const PointProfil& p, const PointProfil& q, const Bord& bord) {
    const float ligne = bord.vertical ? bord.x0 : bord.y0;
    const float cp = EnSimple(bord.vertical ? p.X : p.Y);
    const float cq = EnSimple(bord.vertical ? q.X : q.Y);
    return (cp < ligne && cq > ligne) || (cp > ligne && cq < ligne);
}

bool Traverse(const std::vector<Sommet>& source, const Bord& bord) {
    return std::adjacent_find(source.begin(), source.end(), [&](const Sommet& p, const Sommet& q) {
               return SontDePartEtDAutre(p.point, q.point, bord);
           }) != source.end();
}

// Copies the path with a vertex put in at each proper crossing of one border; what was put in is stepped
// over. The crossing keeps its place along the border; across it, it stands on the border to the last bit, so
// that no rounding leaves the zone.
void PasserBord(const std::vector<Sommet>& source, std::vector<Sommet>& resultat, const Bord& bord) {
    resultat.clear();
    bool surBord = false;
    for (std::size_t i = 0; i < source.size(); ++i) {
        resultat.push_back(source[i]);
        resultat.back().surBord |= surBord;
        surBord = false;
        if (i + 1 == source.size() || !SontDePartEtDAutre(source[i].point, source[i + 1].point, bord))
            continue;
        const PointProfil& p = source[i].point;
        const PointProfil& q = source[i + 1].point;
        float x = 0;
        float y = 0;
        const Croisement code = IntersectionSegments(EnSimple(p.X), EnSimple(p.Y), EnSimple(q.X),
                                                     EnSimple(q.Y), bord.x0, bord.y0, bord.x1, bord.y1, x, y);
        if (code == Croisement::Propre) {
            Sommet croisement;
            croisement.point.X = bord.vertical ? bord.x0 : x;
            croisement.point.Y = bord.vertical ? y : bord.y0;
            croisement.point.Drapeaux = bord.code;
            croisement.point.Vitesse = q.Vitesse;
            croisement.bord = bord.code;
            resultat.push_back(croisement);
        } else if (code == Croisement::DebutA) {
            resultat.back().surBord = true;
        } else if (code == Croisement::FinA) {
            surBord = true;
        }
    }
}

// The corner that two adjacent borders share; false for borders that share none.
bool CoinCommun(std::uint8_t a, std::uint8_t b, const ZoneUtile& zone, PointProfil& coin) {
    const auto sont = [&](CodeBord u, CodeBord v) { return (a == u && b == v) || (a == v && b == u); };
    if (sont(BordHaut, BordDroit)) {
        coin.X = zone.xMax;
        coin.Y = zone.yMax;
    } else if (sont(BordDroit, BordBas)) {
        coin.X = zone.xMax;
        coin.Y = zone.yMin;
    } else if (sont(BordBas, BordGauche)) {
        coin.X = zone.xMin;
        coin.Y = zone.yMin;
    } else if (sont(BordGauche, BordHaut)) {
        coin.X = zone.xMin;
        coin.Y = zone.yMax;
    } else {
        return false;
    }
    return true;
}

// Keeps what lies in the zone. Between two successive crossings with nothing but outside vertices between
// them the path follows the edge of the zone, which puts their common corner in. Crossings always stay.
bool GarderDedans(const std::vector<Sommet>& sommets, const ZoneUtile& zone,
                  std::vector<PointProfil>& gardes) {
    bool retire = false;
    std::uint8_t sorti = 0;  // border of the crossing that was the last vertex kept, 0 otherwise
    bool vuDehors = false;   // outside vertices since then
    float vitesseDehors = 0; // of the last of them
    gardes.clear();
    for (const Sommet& s : sommets) {
        if (s.bord == 0 && !s.surBord && EstDehors(s.point, zone)) {
            retire = true;
            vuDehors = true;
            vitesseDehors = s.point.Vitesse;
            continue;
        }
        PointProfil coin;
        if (s.bord != 0 && sorti != 0 && vuDehors && CoinCommun(sorti, s.bord, zone, coin)) {
            coin.Vitesse = vitesseDehors;
            gardes.push_back(coin);
        }
        gardes.push_back(s.point);
        sorti = s.bord;
        vuDehors = false;
    }
    return retire;
}

} // namespace

ZoneUtile ZoneUtileMachine(const TableMachine& table) {
    return {table.MargeOrigineBloc, EnSimple(table.CourseX), table.MargeFilPlateau, EnSimple(table.CourseY)};
}

bool ControleDepassementTS2D(Sequence& sequence, const TableMachine& table) {
    const ZoneUtile zone = ZoneUtileMachine(table);
    if (std::none_of(sequence.Points.begin(), sequence.Points.end(),
                     [&](const PointProfil& p) { return EstDehors(p, zone); }))
        return false;

    const std::array<Bord, 4> bords = {{
        {BordGauche, true, zone.xMin, zone.yMin, zone.xMin, zone.yMax},
        {BordDroit, true, zone.xMax, zone.yMin, zone.xMax, zone.yMax},
        {BordBas, false, zone.xMin, zone.yMin, zone.xMax, zone.yMin},
        {BordHaut, false, zone.xMin, zone.yMax, zone.xMax, zone.yMax},
    }};
    std::vector<Sommet> sommets(sequence.Points.size());
    std::vector<Sommet> suivants;
    suivants.reserve(sommets.size() + CroisementsUsuels);
    for (std::size_t i = 0; i < sommets.size(); ++i) sommets[i].point = sequence.Points[i];
    for (const Bord& bord : bords) {
        if (!Traverse(sommets, bord)) continue;
        PasserBord(sommets, suivants, bord);
        sommets.swap(suivants);
    }
    const bool depassement = GarderDedans(sommets, zone, sequence.Points);
    CalculerBornesSequence(sequence);
    return depassement;
}

} // namespace tessarel
