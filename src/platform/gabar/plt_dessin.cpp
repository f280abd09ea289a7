// Strokes, figures and polygons of the pen.
#include "plt_dessin.h"

#include "messages.h"
#include "platform/erreurs.h"

#include <algorithm>
#include <cmath>
#include <fmt/format.h>
#include <numbers>

namespace tessarel {

namespace {

constexpr double Degre = std::numbers::pi / 180.0;

Assemblage& Cible(DessinPlt& d) {
    return d.polygone ? d.tampon : d.assemblage;
}

void CompterTrace(DessinPlt& d, GenrePlt genre) {
    ++d.lus[static_cast<std::size_t>(genre)];
    if (d.plumeEnCours == nullptr) ChoisirPlume(d, 1);
    ++*d.plumeEnCours;
}

// Ends a piece of the drawing; one of a single spot is no path for a wire.
void FinirPiecePlt(DessinPlt& d, bool fermer, GenrePlt genre) {
    Assemblage& a = d.assemblage;
    if (a.points.size() - a.debutPiece < 2) {
        a.points.resize(a.debutPiece);
        ++d.points;
    } else if (FinirPiece(a, fermer)) {
        CompterTrace(d, genre);
    }
}

void OuvrirContour(DessinPlt& d) {
    CommencerPiece(d.tampon);
    const bool seul = d.contours.size() == d.debutSousPolygone;
    if (!seul) d.contours.back().seul = false;
    d.contours.push_back({d.tampon.debutPiece, seul});
}

void PoserIci(DessinPlt& d) {
    const Point2 p = Projeter(d.repere.mm, d.ici.X, d.ici.Y, 0);
    AjouterPoint(Cible(d), p.X, p.Y);
}

// Draws to a place, the pen being down.
void Tracer(DessinPlt& d, double x, double y) {
    if (!d.pieceOuverte) {
        if (d.polygone) {
            OuvrirContour(d);
        } else {
            CommencerPiece(d.assemblage);
        }
        d.pieceOuverte = true;
        PoserIci(d);
    }
    d.ici = {x, y};
    PoserIci(d);
}

// More turns than one go over the same circle.
double ReduireBalayage(double degres) {
    if (!(std::abs(degres) > 360)) return degres;
    return std::copysign(360.0, degres) + std::fmod(degres, 360.0);
}

// The points of an arc behind its first, given as its vector from the centre.
template <typename Poser>
void ParcourirArc(const Assemblage& a, const Transformation& mm, Point2 centre, Point2 v, double degres,
                  Poser poser) {
    const double balayage = degres * Degre;
    const double rayon = std::hypot(v.X, v.Y);
    std::size_t n = NombreCordes(a, rayon * EtirementMaximal(mm), balayage);
    if (std::abs(degres) == 360) n = (n + 3) / 4 * 4; // so that a circle reaches its quadrants
    for (std::size_t i = 1; i <= n; ++i) {
        const double angle = balayage * (static_cast<double>(i) / static_cast<double>(n));
        const double c = std::cos(angle);
        const double s = std::sin(angle);
        poser(centre.X + v.X * c - v.Y * s, centre.Y + v.X * s + v.Y * c);
    }
}

} // namespace

void CommencerDessinPlt(DessinPlt& d, const std::string& chemin) {
    d.assemblage.chemin = &chemin;
    d.tampon.chemin = &chemin;
    Initialiser(d);
}

void Initialiser(DessinPlt& d) {
    FinirTrait(d);
    const Point2 page = d.repere.page;
    d.repere = {};
    d.repere.page = page;
    CalculerRepere(d.repere);
    d.ici = {};
    d.baissee = false;
    d.relatif = false;
    d.polygone = false;
}

void ChoisirPlume(DessinPlt& d, int numero) {
    d.plumeEnCours = &d.parPlume[fmt::format("SP{}", numero)];
}

void FinirTrait(DessinPlt& d) {
    if (!d.pieceOuverte) return;
    d.pieceOuverte = false;
    if (!d.polygone) FinirPiecePlt(d, false, GenrePlt::Plume);
}

void Avancer(DessinPlt& d, double x, double y) {
    if (d.baissee) {
        Tracer(d, x, y);
    } else {
        d.ici = {x, y};
    }
}

void Sauter(DessinPlt& d, double x, double y) {
    FinirTrait(d);
    d.ici = {x, y};
}

void Lever(DessinPlt& d) {
    FinirTrait(d);
    d.baissee = false;
}

void Baisser(DessinPlt& d) {
    d.baissee = true;
}

void SuivreArc(DessinPlt& d, Point2 centre, double degres) {
    const Point2 v{d.ici.X - centre.X, d.ici.Y - centre.Y};
    const double balayage = ReduireBalayage(degres);
    if (d.baissee) {
        ParcourirArc(Cible(d), d.repere.mm, centre, v, balayage,
                     [&](double x, double y) { Tracer(d, x, y); });
        return;
    }
    const double angle = balayage * Degre;
    d.ici = {centre.X + v.X * std::cos(angle) - v.Y * std::sin(angle),
             centre.Y + v.X * std::sin(angle) + v.Y * std::cos(angle)};
}

void SuivreArcParPoints(DessinPlt& d, Point2 milieu, Point2 fin) {
    const Point2 m{milieu.X - d.ici.X, milieu.Y - d.ici.Y};
    const Point2 f{fin.X - d.ici.X, fin.Y - d.ici.Y};
    if (f.X == 0 && f.Y == 0) {
        // The end on the start: a whole circle, of which the point between is the far side.
        SuivreArc(d, {d.ici.X + m.X / 2, d.ici.Y + m.Y / 2}, 360);
        return;
    }
    const double produit = m.X * f.Y - m.Y * f.X;
    const double mm = m.X * m.X + m.Y * m.Y;
    const double ff = f.X * f.X + f.Y * f.Y;
    if (std::abs(produit) <= 1e-12 * (mm + ff)) {
        Avancer(d, milieu.X, milieu.Y);
        Avancer(d, fin.X, fin.Y);
        return;
    }
    const Point2 centre{(f.Y * mm - m.Y * ff) / (2 * produit), (m.X * ff - f.X * mm) / (2 * produit)};
    // Angle from the start to the end as seen from the centre, on the side of the point between.
    double angle = std::atan2((-centre.X) * (f.Y - centre.Y) - (-centre.Y) * (f.X - centre.X),
                              (-centre.X) * (f.X - centre.X) + (-centre.Y) * (f.Y - centre.Y));
    if (produit > 0 && angle < 0) angle += 2 * std::numbers::pi;
    if (produit < 0 && angle > 0) angle -= 2 * std::numbers::pi;
    SuivreArc(d, {d.ici.X + centre.X, d.ici.Y + centre.Y}, angle / Degre);
    // The rounding of the way round does not move the end.
    d.ici = fin;
}

void SuivreBezier(DessinPlt& d, Point2 c1, Point2 c2, Point2 fin) {
    const Point2 p = d.ici;
    const double k = EtirementMaximal(d.repere.mm);
    const double courbure = std::max(std::hypot(p.X - 2 * c1.X + c2.X, p.Y - 2 * c1.Y + c2.Y),
                                     std::hypot(c1.X - 2 * c2.X + fin.X, c1.Y - 2 * c2.Y + fin.Y));
    // n equal steps stay within 6 courbure / (8 n^2) of the curve.
    const double nombre = std::ceil(std::sqrt(0.75 * courbure * k / ErreurCorde));
    // A curve too great for the drawing is refused at its end point.
    const int n = nombre >= 1 && nombre < static_cast<double>(PointsMaxDessin) ? static_cast<int>(nombre) : 1;
    for (int i = 1; i < n && d.baissee; ++i) {
        const double t = static_cast<double>(i) / n;
        const double u = 1 - t;
        const double a = u * u * u;
        const double b = 3 * u * u * t;
        const double c = 3 * u * t * t;
        const double e = t * t * t;
        Tracer(d, a * p.X + b * c1.X + c * c2.X + e * fin.X, a * p.Y + b * c1.Y + c * c2.Y + e * fin.Y);
    }
    Avancer(d, fin.X, fin.Y);
}

void TracerCerclePlt(DessinPlt& d, double rayon) {
    FinirTrait(d);
    if (rayon == 0) return;
    if (d.polygone) {
        OuvrirContour(d);
    } else {
        CommencerPiece(d.assemblage);
    }
    TracerCercle({Cible(d), d.repere.mm}, {d.ici.X, d.ici.Y, 0}, std::abs(rayon));
    if (!d.polygone) FinirPiecePlt(d, true, GenrePlt::Cercle);
}

void TracerRectangle(DessinPlt& d, Point2 coin, GenrePlt genre) {
    FinirTrait(d);
    CommencerPiece(d.assemblage);
    const Plume plume{d.assemblage, d.repere.mm};
    Poser(plume, d.ici.X, d.ici.Y, 0);
    Poser(plume, coin.X, d.ici.Y, 0);
    Poser(plume, coin.X, coin.Y, 0);
    Poser(plume, d.ici.X, coin.Y, 0);
    Poser(plume, d.ici.X, d.ici.Y, 0);
    FinirPiecePlt(d, true, genre);
}

void TracerSecteur(DessinPlt& d, double rayon, double debut, double balayage, GenrePlt genre) {
    FinirTrait(d);
    CommencerPiece(d.assemblage);
    const Plume plume{d.assemblage, d.repere.mm};
    // A negative radius turns the reference direction round.
    const Point2 v{rayon * std::cos(debut * Degre), rayon * std::sin(debut * Degre)};
    const bool tour = std::abs(balayage) >= 360;
    if (!tour) Poser(plume, d.ici.X, d.ici.Y, 0);
    Poser(plume, d.ici.X + v.X, d.ici.Y + v.Y, 0);
    ParcourirArc(d.assemblage, d.repere.mm, d.ici, v, tour ? std::copysign(360.0, balayage) : balayage,
                 [&](double x, double y) { Poser(plume, x, y, 0); });
    FinirPiecePlt(d, true, genre);
}

void OuvrirPolygone(DessinPlt& d) {
    FinirTrait(d);
    // Buffers filled and never drawn count too, or a short file could keep the reader busy for hours.
    d.pointsTampons += d.tampon.points.size();
    if (d.pointsTampons > PointsMaxDessin)
        throw FauteLecture(*d.tampon.chemin, d.tampon.ligne,
                           Bilingue(fmt::format("les polygones ont plus de {} points", PointsMaxDessin),
                                    fmt::format("the polygons have more than {} points", PointsMaxDessin)));
    d.polygone = true;
    d.polygoneTrace = false;
    d.tampon.points.clear();
    d.contours.clear();
    d.debutSousPolygone = 0;
}

void FermerSousPolygone(DessinPlt& d) {
    if (!d.polygone) return;
    d.pieceOuverte = false;
    d.debutSousPolygone = d.contours.size();
}

void FermerPolygone(DessinPlt& d) {
    if (!d.polygone) return;
    d.pieceOuverte = false;
    d.polygone = false;
}

void TracerPolygone(DessinPlt& d, GenrePlt genre) {
    FinirTrait(d);
    int& compte = d.lus[static_cast<std::size_t>(genre)];
    if (d.polygoneTrace) {
        // Edged after it was filled: the same paths, under the name of the edge.
        if (genre == GenrePlt::Contour && d.genreTrace == GenrePlt::Remplissage) {
            compte += d.contoursTraces;
            d.lus[static_cast<std::size_t>(d.genreTrace)] -= d.contoursTraces;
            d.genreTrace = genre;
        }
        return;
    }
    const int avant = compte;
    for (std::size_t i = 0; i < d.contours.size(); ++i) {
        const std::size_t debut = d.contours[i].debut;
        const std::size_t fin = i + 1 < d.contours.size() ? d.contours[i + 1].debut : d.tampon.points.size();
        CommencerPiece(d.assemblage);
        for (std::size_t k = debut; k < fin; ++k)
            AjouterPoint(d.assemblage, d.tampon.points[k].X, d.tampon.points[k].Y);
        const bool fermer = fin - debut >= 3 && (genre == GenrePlt::Remplissage || d.contours[i].seul);
        FinirPiecePlt(d, fermer, genre);
    }
    d.polygoneTrace = true;
    d.genreTrace = genre;
    d.contoursTraces = compte - avant;
}

} // namespace tessarel
