// Draws the slice test step by step.
#include "dessin_tranches.h"

#include "app/texts/textes_programme.h"
#include "platform/crayon.h"
#include "platform/nombres.h"

#include <algorithm>
#include <numbers>

namespace tessarel {

namespace {

struct Tons {
    Couleur mousse;
    Couleur bordMousse;
    Couleur tranche;
    Couleur saignee; // the ground seen through the cut
    Couleur plateau;
    Couleur cote;
    Couleur texte;
    Couleur trajet;
};
constexpr Tons TonsClairs = {{255, 236, 190}, {186, 140, 58}, {255, 214, 128}, {255, 255, 255},
                             {150, 158, 170}, {70, 90, 120},  {40, 46, 56},    {120, 130, 145}};
constexpr Tons TonsSombres = {{120, 108, 80},  {214, 172, 92},  {160, 134, 74},  {42, 48, 56},
                              {120, 128, 140}, {160, 185, 220}, {230, 234, 240}, {150, 160, 175}};
constexpr Couleur CouleurFilChaud = {232, 89, 12};

// Places, mm of the picture; the wire starts at the foot of the foam, on its left.
constexpr double Depart = 8;
constexpr double Passe = 84;   // stands for dimension 0
constexpr double Tranche = 15; // for dimension 1
constexpr double Montee = 44;  // for dimension 2
constexpr double BasFil = 8;
constexpr CadreDessin Mousse = {22, 78, 4, 62};
constexpr CadreDessin Cadre = {-16, 118, -14, 74};
constexpr double DemiSaignee = 0.9;
constexpr DimensionsTranches DimensionsImage = {Passe, Tranche, Montee};

constexpr Masque MasqueCote = "#####0.##";

std::string Cote(const char* nom, double valeur) {
    return std::string(nom) + " = " + PointVersSeparateur(FormaterNombre(valeur, MasqueCote)) + " mm";
}

// Corners of the path, the start among them.
std::vector<PointDessin> Trajet(std::span<const std::size_t> mouvements, double fraction) {
    std::vector<PointDessin> points = {{Depart, BasFil}};
    for (std::size_t i = 0; i < mouvements.size(); ++i) {
        const DeplacementFil d = DeplacementTranche(mouvements[i], DimensionsImage);
        const double part = i + 1 == mouvements.size() ? std::clamp(fraction, 0.0, 1.0) : 1;
        points.push_back({points.back().X + d.X * part, points.back().Y + d.Y * part});
    }
    return points;
}

void DessinerDecor(Crayon& crayon, const Tons& tons) {
    crayon.Encre(tons.plateau).Plein({Cadre.XMin + 4, 112, 0, 4});
    crayon.Encre(tons.mousse).Plein(Mousse);
    crayon.Encre(tons.bordMousse, 1.5F).Rectangle(Mousse);
}

// What lies between two cuts is a slice.
void DessinerTranchesObtenues(Crayon& crayon, const Tons& tons, std::vector<double> coupes) {
    std::ranges::sort(coupes);
    for (std::size_t i = 0; i + 1 < coupes.size(); ++i) {
        crayon.Encre(tons.tranche).Plein({Mousse.XMin, Mousse.XMax, coupes[i], coupes[i + 1]});
        crayon.Encre(tons.texte)
            .Texte({(Mousse.XMin + Mousse.XMax) / 2, (coupes[i] + coupes[i + 1]) / 2}, "E", 13);
    }
}

// Heights at which a pass went through the whole foam.
std::vector<double> CoupesEntieres(std::span<const PointDessin> trajet) {
    std::vector<double> coupes;
    for (std::size_t i = 0; i + 1 < trajet.size(); ++i) {
        const auto [x0, x1] = std::minmax(trajet[i].X, trajet[i + 1].X);
        const double y = trajet[i].Y;
        const bool dedans = y > Mousse.YMin && y < Mousse.YMax;
        const bool dejaFaite =
            std::ranges::any_of(coupes, [y](double autre) { return std::abs(autre - y) < DemiSaignee; });
        if (dedans && x0 <= Mousse.XMin && x1 >= Mousse.XMax && !dejaFaite) coupes.push_back(y);
    }
    return coupes;
}

void DessinerSaignees(Crayon& crayon, const Tons& tons, std::span<const PointDessin> trajet) {
    for (std::size_t i = 0; i + 1 < trajet.size(); ++i) {
        const auto [x0, x1] = std::minmax(trajet[i].X, trajet[i + 1].X);
        const auto [y0, y1] = std::minmax(trajet[i].Y, trajet[i + 1].Y);
        const CadreDessin saignee = {
            std::max(x0 - DemiSaignee, Mousse.XMin), std::min(x1 + DemiSaignee, Mousse.XMax),
            std::max(y0 - DemiSaignee, Mousse.YMin), std::min(y1 + DemiSaignee, Mousse.YMax)};
        if (saignee.XMin < saignee.XMax && saignee.YMin < saignee.YMax)
            crayon.Encre(tons.saignee).Plein(saignee);
    }
}

void DessinerFil(Crayon& crayon, const Tons& tons, std::span<const PointDessin> trajet) {
    crayon.Encre(tons.trajet, 1, true).Ligne(trajet);
    for (std::size_t i = 0; i + 1 < trajet.size(); ++i) {
        const double dx = trajet[i + 1].X - trajet[i].X;
        const double dy = trajet[i + 1].Y - trajet[i].Y;
        if (std::hypot(dx, dy) < 2) continue;
        crayon.Encre(tons.trajet)
            .Fleche({trajet[i].X + 0.6 * dx, trajet[i].Y + 0.6 * dy}, std::atan2(dy, dx));
    }
    // Seen end on: the wire is a glowing point.
    Couleur halo = CouleurFilChaud;
    halo.opacite = 70;
    crayon.Encre(halo).Disque(trajet.back(), 3);
    crayon.Encre(CouleurFilChaud).Disque(trajet.back(), 1.4);
}

// A dimension line with its two arrows.
void DessinerCoteX(Crayon& crayon, double x0, double x1, double y) {
    crayon.Ligne({{x0, y}, {x1, y}});
    crayon.Fleche({x0, y}, std::numbers::pi, 7);
    crayon.Fleche({x1, y}, 0, 7);
}
void DessinerCoteY(Crayon& crayon, double x, double y0, double y1) {
    crayon.Ligne({{x, y0}, {x, y1}});
    crayon.Fleche({x, y0}, -std::numbers::pi / 2, 7);
    crayon.Fleche({x, y1}, std::numbers::pi / 2, 7);
}

void DessinerCotes(Crayon& crayon, const Tons& tons, const DimensionsTranches& dimensions) {
    const double haut = BasFil + Montee;
    const double droite = Depart + Passe;
    crayon.Encre(tons.cote, 1.2F);
    DessinerCoteX(crayon, Depart, droite, -5);
    crayon.Texte({(Depart + droite) / 2, -10}, Cote("X", dimensions[0]), 12);
    DessinerCoteY(crayon, -2, BasFil, haut);
    crayon.Texte({-2, haut + 7}, Cote("H", dimensions[2]), 12);
    DessinerCoteY(crayon, 99, haut - Tranche, haut);
    crayon.Texte({99, haut + 7}, Cote("Y", dimensions[1]), 12);
    crayon.Encre(tons.cote, 1, true);
    for (const double y : {haut, haut - Tranche, haut - 2 * Tranche})
        crayon.Ligne({{Mousse.XMax, y}, {102, y}});
}

} // namespace

PointDessin FilSurLImage(std::span<const std::size_t> mouvements, double fraction) {
    return Trajet(mouvements, fraction).back();
}

CadreDessin CadreTranches() {
    return Cadre;
}

Dessin DessinerTranches(const VueTranches& vue) {
    Dessin dessin;
    Crayon crayon(dessin);
    const Tons& tons = vue.Sombre ? TonsSombres : TonsClairs;
    const std::vector<PointDessin> trajet = Trajet(vue.Mouvements, vue.Fraction);
    DessinerDecor(crayon, tons);
    DessinerTranchesObtenues(crayon, tons, CoupesEntieres(trajet));
    DessinerSaignees(crayon, tons, trajet);
    DessinerCotes(crayon, tons, vue.Dimensions);
    DessinerFil(crayon, tons, trajet);
    return dessin;
}

} // namespace tessarel
