// Crossing of two selected segments, on the root and on the tip.
#include "intersection.h"

#include "app/texts/textes.h"
#include "paths/geometrie.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"

#include <algorithm>
#include <cmath>

namespace tessarel {

namespace {

// A segment shorter than this on both axes has no direction, mm.
constexpr float LongueurMinSegment = 0.01F;
constexpr std::size_t PointsAChoisir = 4;
constexpr int MessagesPlantageIntersection = 88;

// Rows of what is said on one side.
struct RangeesCote {
    int pasQuatrePoints;
    int pointsConfondus;
    int paralleles;
    int neSeTouchentPas;
    int pointSuperpose;
};
constexpr RangeesCote RangeesEmplanture = {15, 17, 19, 20, 21};
constexpr RangeesCote RangeesSaumon = {16, 18, 22, 23, 24};

using Profil = std::vector<PointProfil>;

IssueIntersection Refuser(int rangee) {
    AfficherCritique(TextesMessages(rangee), TitresMessages(rangee));
    return IssueIntersection::Refusee;
}

// Indices of the selected points; one more than wanted is enough to know.
std::vector<std::size_t> PointsChoisis(const Profil& points) {
    std::vector<std::size_t> choisis;
    for (std::size_t i = 0; i < points.size() && choisis.size() <= PointsAChoisir; ++i)
        if ((points[i].Drapeaux & DrapeauOutil) != 0) choisis.push_back(i);
    return choisis;
}

bool SegmentAUneLongueur(const Profil& points, std::size_t debut) {
    return std::fabs(points[debut + 1].X - points[debut].X) >= LongueurMinSegment ||
           std::fabs(points[debut + 1].Y - points[debut].Y) >= LongueurMinSegment;
}

Croisement Croiser(const Profil& p, std::size_t a, std::size_t b, float& x, float& y) {
    return IntersectionSegments(EnSimple(p[a].X), EnSimple(p[a].Y), EnSimple(p[a + 1].X),
                                EnSimple(p[a + 1].Y), EnSimple(p[b].X), EnSimple(p[b].Y),
                                EnSimple(p[b + 1].X), EnSimple(p[b + 1].Y), x, y);
}

void InsererApres(Profil& points, std::size_t i, float x, float y) {
    PointProfil nouveau;
    nouveau.X = x;
    nouveau.Y = y;
    nouveau.Z = points[i].Z;
    points.insert(points.begin() + static_cast<std::ptrdiff_t>(i) + 1, nouveau);
}

IssueIntersection TraiterProfil(Profil& points, const RangeesCote& rangees) {
    const std::vector<std::size_t> choisis = PointsChoisis(points);
    if (choisis.empty()) return IssueIntersection::RienChoisi;
    if (choisis.size() != PointsAChoisir || choisis[1] != choisis[0] + 1 || choisis[3] != choisis[2] + 1)
        return Refuser(rangees.pasQuatrePoints);
    const std::size_t a = choisis[0];
    const std::size_t b = choisis[2];
    if (!SegmentAUneLongueur(points, a) || !SegmentAUneLongueur(points, b))
        return Refuser(rangees.pointsConfondus);
    float x = 0;
    float y = 0;
    switch (Croiser(points, a, b, x, y)) {
    case Croisement::Parallele:
        return Refuser(rangees.paralleles);
    case Croisement::HorsSegments:
        return Refuser(rangees.neSeTouchentPas);
    case Croisement::Propre:
        InsererApres(points, b, x, y);
        return IssueIntersection::Faite;
    case Croisement::DebutA:
    case Croisement::FinA:
        InsererApres(points, b, x, y);
        break;
    case Croisement::DebutB:
    case Croisement::FinB:
        InsererApres(points, a, x, y);
        break;
    }
    AfficherInformation(TextesMessages(rangees.pointSuperpose), TitresMessages(rangees.pointSuperpose));
    return IssueIntersection::Faite;
}

} // namespace

IssueIntersection cmdIntersection(ProjetCPX& projet) {
    IssueIntersection issue = IssueIntersection::RienChoisi;
    try {
        issue = TraiterProfil(projet.E.Points, RangeesEmplanture);
        issue = std::max(issue, TraiterProfil(projet.S.Points, RangeesSaumon));
    } catch (const std::exception&) {
        issue = Refuser(MessagesPlantageIntersection);
    }
    CalculerExtremesCPX(projet);
    return issue;
}

} // namespace tessarel
