// The arithmetic of the transform box.
#include "work2d/transformations.h"

#include "platform/nombres.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tessarel {

namespace {

// Settled: the angles of the workshop are counted with these.
constexpr double Pi = 3.14159265358979;
constexpr double DeuxPi = 6.28318530717958;
constexpr double DemiTourEnDegres = 180;

constexpr double PasAngleRond = Pi / 12; // 15 degrees

struct Poignee {
    std::string_view nom;
    int x; // -1 left, 0 middle, 1 right
    int y; // -1 bottom, 0 middle, 1 top
};
constexpr std::array<Poignee, 8> Poignees = {{{"HG", -1, 1},
                                              {"HM", 0, 1},
                                              {"HD", 1, 1},
                                              {"MG", -1, 0},
                                              {"MD", 1, 0},
                                              {"BG", -1, -1},
                                              {"BM", 0, -1},
                                              {"BD", 1, -1}}};

Poignee TrouverPoignee(std::string_view nom) {
    for (const Poignee& p : Poignees) {
        if (p.nom == nom) return p;
    }
    return {"", 0, 0};
}

double Place(double bas, double haut, int cote) {
    if (cote == 0) return (bas + haut) / 2;
    return cote < 0 ? bas : haut;
}

PointDessin Place(const Sequence& boite, const Poignee& poignee) {
    return {Place(boite.XMin, boite.XMax, poignee.x), Place(boite.YMin, boite.YMax, poignee.y)};
}

bool FacteurPossible(float facteur) {
    return std::isfinite(facteur) && facteur != 0;
}

// New distance from the fixed point over the old one; with `rond` the side of the box becomes whole.
float Facteur(double fixe, double depart, double pas, double cote, bool rond) {
    const double facteur = (depart + pas - fixe) / (depart - fixe);
    if (!rond || !(cote > 0)) return EnSimple(facteur);
    return EnSimple(Arrondi(facteur * cote) / cote);
}

// The step that takes a side from `bord` to a whole millimetre near `bord + pas`.
double PasRond(float bord, double pas) {
    return Arrondi(bord + pas) - bord;
}

} // namespace

bool SansEffet(const Transformation& transformation) {
    switch (transformation.genre) {
    case GenreTransformation::Deplacement:
        return transformation.dx == 0 && transformation.dy == 0;
    case GenreTransformation::Echelle:
        return transformation.facteurX == 1 && transformation.facteurY == 1;
    case GenreTransformation::Rotation:
        return transformation.angle == 0;
    case GenreTransformation::Ajustement:
        return transformation.facteur == 1 && transformation.dx == 0 && transformation.dy == 0;
    case GenreTransformation::Miroir:
    case GenreTransformation::Sens:
        break;
    }
    return false;
}

PointDessin Transformer(PointDessin p, const Transformation& t) {
    switch (t.genre) {
    case GenreTransformation::Deplacement:
        return {p.X + t.dx, p.Y + t.dy};
    case GenreTransformation::Echelle:
        return {t.fixe.X + (p.X - t.fixe.X) * t.facteurX, t.fixe.Y + (p.Y - t.fixe.Y) * t.facteurY};
    case GenreTransformation::Rotation: {
        const double c = std::cos(t.angle);
        const double s = std::sin(t.angle);
        const double x = p.X - t.fixe.X;
        const double y = p.Y - t.fixe.Y;
        return {t.fixe.X + x * c - y * s, t.fixe.Y + x * s + y * c};
    }
    case GenreTransformation::Miroir:
        return t.axe == AxeMiroir::X ? PointDessin{2 * t.fixe.X - p.X, p.Y}
                                     : PointDessin{p.X, 2 * t.fixe.Y - p.Y};
    case GenreTransformation::Ajustement:
        return {(p.X - t.fixe.X) * t.facteur + t.fixe.X + t.dx,
                (p.Y - t.fixe.Y) * t.facteur + t.fixe.Y + t.dy};
    case GenreTransformation::Sens:
        break;
    }
    return p;
}

namespace {

template <typename Deplacer>
void PourChacun(std::span<PointProfil> points, Deplacer deplacer) {
    for (PointProfil& p : points) deplacer(p);
}

void Tourner(std::span<PointProfil> points, const Transformation& t) {
    const double c = std::cos(t.angle);
    const double s = std::sin(t.angle);
    PourChacun(points, [&](PointProfil& p) {
        const double x = p.X - t.fixe.X;
        const double y = p.Y - t.fixe.Y;
        p.X = t.fixe.X + x * c - y * s;
        p.Y = t.fixe.Y + x * s + y * c;
    });
}

} // namespace

void TransformerPoints(std::span<PointProfil> points, const Transformation& t) {
    switch (t.genre) {
    case GenreTransformation::Deplacement:
        PourChacun(points, [&](PointProfil& p) {
            p.X += t.dx;
            p.Y += t.dy;
        });
        break;
    case GenreTransformation::Echelle:
        PourChacun(points, [&](PointProfil& p) {
            p.X = t.fixe.X + (p.X - t.fixe.X) * t.facteurX;
            p.Y = t.fixe.Y + (p.Y - t.fixe.Y) * t.facteurY;
        });
        break;
    case GenreTransformation::Rotation:
        Tourner(points, t);
        break;
    case GenreTransformation::Miroir:
        if (t.axe == AxeMiroir::X) {
            PourChacun(points, [&](PointProfil& p) { p.X = 2 * t.fixe.X - p.X; });
        } else {
            PourChacun(points, [&](PointProfil& p) { p.Y = 2 * t.fixe.Y - p.Y; });
        }
        break;
    case GenreTransformation::Sens:
        std::reverse(points.begin(), points.end());
        break;
    case GenreTransformation::Ajustement:
        PourChacun(points, [&](PointProfil& p) {
            p.X = (p.X - t.fixe.X) * t.facteur + t.fixe.X + t.dx;
            p.Y = (p.Y - t.fixe.Y) * t.facteur + t.fixe.Y + t.dy;
        });
        break;
    }
}

MatriceDessin EnMatrice(const Transformation& t) {
    MatriceDessin m;
    const PointDessin origine = Transformer({0, 0}, t);
    const PointDessin x = Transformer({1, 0}, t);
    const PointDessin y = Transformer({0, 1}, t);
    m.xx = x.X - origine.X;
    m.yx = x.Y - origine.Y;
    m.xy = y.X - origine.X;
    m.yy = y.Y - origine.Y;
    m.dx = origine.X;
    m.dy = origine.Y;
    return m;
}

bool TransformationPossible(const Sequence& boite, const Transformation& transformation) {
    const auto tient = [&](double x, double y) {
        const PointDessin p = Transformer({x, y}, transformation);
        return std::abs(p.X) <= LimiteCoordonnee && std::abs(p.Y) <= LimiteCoordonnee;
    };
    return tient(boite.XMin, boite.YMin) && tient(boite.XMin, boite.YMax) && tient(boite.XMax, boite.YMin) &&
           tient(boite.XMax, boite.YMax);
}

PointDessin MilieuBoite(const Sequence& boite) {
    return Place(boite, {"", 0, 0});
}

PointDessin PlacePoignee(const Sequence& boite, std::string_view HandleCourant) {
    return Place(boite, TrouverPoignee(HandleCourant));
}

std::string_view PoigneeOpposee(std::string_view HandleCourant) {
    const Poignee poignee = TrouverPoignee(HandleCourant);
    for (const Poignee& p : Poignees) {
        if (!poignee.nom.empty() && p.x == -poignee.x && p.y == -poignee.y) return p.nom;
    }
    return "";
}

std::optional<Transformation> EchelleParPoignee(const Sequence& boite, std::string_view HandleCourant,
                                                double dx, double dy, TouchesGeste touches) {
    const Poignee poignee = TrouverPoignee(HandleCourant);
    if (poignee.nom.empty()) return std::nullopt;
    const PointDessin depart = Place(boite, poignee);
    Transformation t;
    t.genre = GenreTransformation::Echelle;
    t.fixe = touches.ctrl ? MilieuBoite(boite) : Place(boite, {"", -poignee.x, -poignee.y});
    const bool surX = poignee.x != 0 && boite.Largeur > 0;
    const bool surY = poignee.y != 0 && boite.Hauteur > 0;
    if (surX) t.facteurX = Facteur(t.fixe.X, depart.X, dx, boite.Largeur, touches.alt);
    if (surY) t.facteurY = Facteur(t.fixe.Y, depart.Y, dy, boite.Hauteur, touches.alt);
    if (touches.maj && (surX || surY)) {
        const bool largeur = surX && (!surY || std::abs(dx) >= std::abs(dy));
        t.facteurX = t.facteurY = largeur ? t.facteurX : t.facteurY;
    }
    if (!surX && !surY) return std::nullopt;
    if (!FacteurPossible(t.facteurX) || !FacteurPossible(t.facteurY)) return std::nullopt;
    if (!TransformationPossible(boite, t)) return std::nullopt;
    return t;
}

Transformation DeplacementParGeste(const Sequence& boite, double dx, double dy, TouchesGeste touches) {
    if (touches.maj) (std::abs(dx) >= std::abs(dy) ? dy : dx) = 0;
    // Round values are those of the place reached, so that paths can be laid on whole millimetres.
    if (touches.alt && dx != 0) dx = PasRond(boite.XMin, dx);
    if (touches.alt && dy != 0) dy = PasRond(boite.YMin, dy);
    return Deplacement(dx, dy);
}

double AngleSouris(double x, double y, double xc, double yc) {
    const double dx = x - xc;
    const double dy = y - yc;
    if (dx == 0) return dy < 0 ? Pi + Pi / 2 : Pi / 2; // no slope there
    const double angle = std::atan(dy / dx);
    if (dx < 0) return angle + Pi;
    return angle < 0 ? angle + DeuxPi : angle;
}

GesteRotation CommencerRotation(const Sequence& boite, PointDessin souris) {
    GesteRotation geste;
    geste.centre = MilieuBoite(boite);
    geste.angleMemorise = AngleSouris(souris.X, souris.Y, geste.centre.X, geste.centre.Y);
    return geste;
}

Transformation SuivreRotation(GesteRotation& geste, PointDessin souris, TouchesGeste touches) {
    const double angle = AngleSouris(souris.X, souris.Y, geste.centre.X, geste.centre.Y);
    geste.total += angle - geste.angleMemorise;
    geste.angleMemorise = angle;
    Transformation t;
    t.genre = GenreTransformation::Rotation;
    t.fixe = geste.centre;
    t.angle = touches.alt ? Arrondi(geste.total / PasAngleRond) * PasAngleRond : geste.total;
    return t;
}

std::optional<Transformation> EchelleSaisie(const Sequence& boite, int cote, double taille,
                                            std::string_view pointFixe, bool proportions) {
    const double ancienne = cote == 0 ? boite.Largeur : boite.Hauteur;
    if (!(ancienne > 0) || taille == 0 || !std::isfinite(taille)) return std::nullopt;
    Transformation t;
    t.genre = GenreTransformation::Echelle;
    t.fixe = PlacePoignee(boite, pointFixe);
    const float facteur = EnSimple(taille / ancienne);
    if (cote == 0 || proportions) t.facteurX = facteur;
    if (cote != 0 || proportions) t.facteurY = facteur;
    if (!FacteurPossible(facteur)) return std::nullopt;
    return t;
}

Transformation Rotation(PointDessin centre, double degres) {
    Transformation t;
    t.genre = GenreTransformation::Rotation;
    t.fixe = centre;
    t.angle = degres * Pi / DemiTourEnDegres;
    return t;
}

Transformation Deplacement(double dx, double dy) {
    Transformation t;
    t.dx = dx;
    t.dy = dy;
    return t;
}

Transformation Miroir(const Sequence& boite, AxeMiroir axe) {
    Transformation t;
    t.genre = GenreTransformation::Miroir;
    t.fixe = MilieuBoite(boite);
    t.axe = axe;
    return t;
}

} // namespace tessarel
