// From DXF entities to pieces of path.
#include "dxf_dessin.h"

#include <cmath>
#include <numbers>

namespace tessarel {

namespace {

constexpr double Degre = std::numbers::pi / 180.0;
constexpr double DeuxPi = 2 * std::numbers::pi;

// Flags of POLYLINE and LWPOLYLINE.
constexpr std::int32_t PolyligneFermee = 1;
constexpr std::int32_t PolyligneEspace = 8;
constexpr std::int32_t PolyligneMaille = 16 | 64;

// Sweep counter-clockwise from one angle to the other, a whole turn when they are the same.
double Balayage(double debut, double fin) {
    double balayage = std::fmod(fin - debut, DeuxPi);
    if (balayage <= 1e-12) balayage += DeuxPi;
    return balayage;
}

bool TracerArcDxf(const Plume& plume, const EntiteDxf& e) {
    const double rayon = std::abs(e.r40);
    if (rayon == 0) return false;
    const double debut = e.r50 * Degre;
    TracerArc(plume, e.p0, rayon, debut, Balayage(debut, e.r51 * Degre));
    return FinirPiece(plume.assemblage, false);
}

bool TracerCercleDxf(const Plume& plume, const EntiteDxf& e) {
    const double rayon = std::abs(e.r40);
    if (rayon == 0) return false;
    TracerCercle(plume, e.p0, rayon);
    return FinirPiece(plume.assemblage, true);
}

bool TracerEllipseDxf(const Plume& plume, const EntiteDxf& e) {
    const Point3& grand = e.p1;
    if (grand.X == 0 && grand.Y == 0 && grand.Z == 0) return false;
    const Point3 normale = Unitaire(e.extrusion);
    Point3 petit = ProduitVectoriel(normale, grand);
    petit = {petit.X * e.r40, petit.Y * e.r40, petit.Z * e.r40};
    // Absent parameters are those of the whole ellipse.
    const double debut = e.a41 ? e.r41 : 0;
    const double balayage = e.a42 ? Balayage(debut, e.r42) : DeuxPi;
    TracerEllipse(plume, e.p0, grand, petit, debut, balayage);
    return FinirPiece(plume.assemblage, false);
}

// `hauteur` is that of the whole polyline, for vertices that have none of their own: a flat polyline says it
// in one place or in both, and only a tilted placement sees it.
bool TracerSommets(const Plume& plume, const EntiteDxf& e, double hauteur) {
    if (e.sommets.empty()) return false;
    const bool fermee = (e.drapeaux & PolyligneFermee) != 0;
    const bool bombee = (e.drapeaux & PolyligneEspace) == 0;
    const auto place = [&](const SommetDxf& s) { return Point3{s.p.X, s.p.Y, s.p.Z != 0 ? s.p.Z : hauteur}; };
    const SommetDxf* avant = nullptr;
    for (const SommetDxf& s : e.sommets) {
        const Point3 p = place(s);
        if (avant != nullptr && bombee && avant->renflement != 0) {
            TracerRenflement(plume, place(*avant), p, avant->renflement);
        } else {
            Poser(plume, p.X, p.Y, p.Z);
        }
        avant = &s;
    }
    const SommetDxf& dernier = e.sommets.back();
    if (fermee && bombee && dernier.renflement != 0)
        TracerRenflement(plume, place(dernier), place(e.sommets.front()), dernier.renflement);
    return FinirPiece(plume.assemblage, fermee);
}

// Entities of the plane stand in the coordinates of their extrusion.
Transformation PlacementPlan(const EntiteDxf& e, const Transformation& placement) {
    return Composer(placement, DepuisExtrusion(e.extrusion));
}

} // namespace

bool TracerEntite(DessinDxf& dessin, const EntiteDxf& e, const Transformation& placement) {
    Assemblage& a = dessin.assemblage;
    a.entite = e.type;
    a.ligne = e.ligne;
    CommencerPiece(a);
    switch (e.genre) {
    case GenreEntite::Ligne: {
        const Plume plume{a, placement};
        Poser(plume, e.p0.X, e.p0.Y, e.p0.Z);
        Poser(plume, e.p1.X, e.p1.Y, e.p1.Z);
        return FinirPiece(a, false);
    }
    case GenreEntite::Arc:
        return TracerArcDxf({a, PlacementPlan(e, placement)}, e);
    case GenreEntite::Cercle:
        return TracerCercleDxf({a, PlacementPlan(e, placement)}, e);
    case GenreEntite::Ellipse:
        return TracerEllipseDxf({a, placement}, e);
    case GenreEntite::PolyligneLegere:
        return TracerSommets({a, PlacementPlan(e, placement)}, e, e.elevation);
    case GenreEntite::Polyligne:
        if ((e.drapeaux & PolyligneMaille) != 0) return false;
        if ((e.drapeaux & PolyligneEspace) != 0) return TracerSommets({a, placement}, e, 0);
        return TracerSommets({a, PlacementPlan(e, placement)}, e, e.p0.Z);
    case GenreEntite::Spline:
        TracerSpline({a, placement}, e.spline);
        return FinirPiece(a, false);
    default:
        return false;
    }
}

} // namespace tessarel
