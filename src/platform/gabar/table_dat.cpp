// Profile tables: lines to points, and the order of the points.
#include "table_dat.h"

#include "messages.h"
#include "platform/erreurs.h"
#include "platform/nombres.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fmt/format.h>

namespace tessarel {

namespace {

bool EstSeparateur(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == ',' || c == ';';
}

// A line cut at blanks, tabs, commas and semicolons. Only the head counts, the rest is told by `mots`.
struct MotsLigne {
    std::array<std::string_view, 3> tete;
    std::size_t mots = 0;
};

MotsLigne CouperLigne(std::string_view ligne) {
    MotsLigne m;
    std::size_t i = 0;
    for (;;) {
        while (i < ligne.size() && EstSeparateur(ligne[i])) ++i;
        if (i == ligne.size()) return m;
        const std::size_t debut = i;
        while (i < ligne.size() && !EstSeparateur(ligne[i])) ++i;
        if (m.mots < m.tete.size()) m.tete[m.mots] = ligne.substr(debut, i - debut);
        ++m.mots;
    }
}

bool EstNombre(std::string_view mot, double& valeur) {
    return !mot.empty() && LireTeteNumerique(mot, valeur) == mot.size() && std::isfinite(valeur);
}

bool EstCompte(double valeur) {
    return valeur >= 3 && valeur <= 1e6 && valeur == std::floor(valeur);
}

// The first line of numbers tells how many points each surface has, and is no point itself.
void ReconnaitreComptes(TableDat& table) {
    if (table.lignes.size() < 4) return;
    const LigneDat& premiere = table.lignes.front();
    if (!EstCompte(premiere.p.X) || !EstCompte(premiere.p.Y)) return;
    double xMax = 0;
    for (std::size_t i = 1; i < table.lignes.size(); ++i) xMax = std::max(xMax, table.lignes[i].p.X);
    const bool somme = premiere.p.X + premiere.p.Y == static_cast<double>(table.lignes.size() - 1);
    if (!somme && !(premiere.p.X > 1.5 * xMax)) return;
    table.comptes = true;
    table.dessus = static_cast<std::size_t>(premiere.p.X);
    table.dessous = static_cast<std::size_t>(premiere.p.Y);
    table.lignes.erase(table.lignes.begin());
}

[[noreturn]] void Refuser(const std::string& chemin, long ligne, const char* francais, const char* anglais) {
    throw FauteLecture(chemin, ligne, Bilingue(francais, anglais));
}

void VerifierPoint(const std::string& chemin, long ligne, Point2 p) {
    if (!(std::abs(p.X) <= CoordonneeMax && std::abs(p.Y) <= CoordonneeMax))
        Refuser(chemin, ligne, "coordonnée hors limites", "coordinate out of range");
}

} // namespace

TableDat LireTableDat(const std::string& texte, const std::string& chemin) {
    TableDat table;
    int tableau = 0;
    int bloc = 0;
    long ligne = 0;
    for (std::size_t debut = 0; debut < texte.size();) {
        const std::size_t fin = std::min(texte.find('\n', debut), texte.size());
        const MotsLigne m = CouperLigne(std::string_view(texte).substr(debut, fin - debut));
        debut = fin + 1;
        ++ligne;
        if (m.mots == 0) {
            ++bloc;
            continue;
        }
        Point2 p;
        if (!EstNombre(m.tete[0], p.X)) {
            ++tableau;
            ++bloc;
            continue;
        }
        if (m.mots < 2 || !EstNombre(m.tete[1], p.Y)) {
            // "1.0000 ......" or "2032 title": no break in the table, and no point.
            ++table.illisibles;
            continue;
        }
        double troisieme = 0;
        if (m.mots > 3 || (m.mots == 3 && EstNombre(m.tete[2], troisieme) && troisieme != 0))
            Refuser(chemin, ligne, "ce n'est pas une table de profil : deux colonnes X Y attendues",
                    "not an airfoil table: two columns X Y were expected");
        VerifierPoint(chemin, ligne, p);
        if (table.lignes.size() >= PointsMaxDessin)
            Refuser(chemin, ligne, "trop de points", "too many points");
        table.lignes.push_back({p, ligne, tableau, bloc});
    }
    ReconnaitreComptes(table);
    if (table.lignes.size() < 3)
        Refuser(chemin, 0, "ce n'est pas une table de profil : moins de trois points",
                "not an airfoil table: fewer than three points");
    return table;
}

namespace {

// Points where X turns back by more than a tenth of the width: the ends of the surfaces.
std::vector<std::size_t> TrouverRetours(const std::vector<Point2>& points, double largeur) {
    const double seuil = largeur / 10;
    std::vector<std::size_t> retours;
    std::size_t bas = 0;
    std::size_t haut = 0;
    int sens = 0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (points[i].X < points[bas].X) bas = i;
        if (points[i].X >= points[haut].X) haut = i;
        if (sens >= 0 && points[haut].X - points[i].X > seuil) {
            if (sens > 0) retours.push_back(haut);
            sens = -1;
            bas = i;
        } else if (sens <= 0 && points[i].X - points[bas].X > seuil) {
            if (sens < 0) retours.push_back(bas);
            sens = 1;
            haut = i;
        }
    }
    return retours;
}

} // namespace

FormeTrouvee TrouverForme(const std::vector<Point2>& points, std::size_t dessusAnnonce) {
    const auto [min, max] =
        std::minmax_element(points.begin(), points.end(), [](Point2 a, Point2 b) { return a.X < b.X; });
    const double gauche = min->X;
    const double largeur = max->X - gauche;
    if (points.size() < 3 || !(largeur > 0)) return {};
    const auto place = [&](std::size_t i) { return (points[i].X - gauche) / largeur; };
    const std::size_t dernier = points.size() - 1;
    const std::vector<std::size_t> retours = TrouverRetours(points, largeur);
    if (retours.size() == 1) {
        // Both ends on the side away from the turn.
        const bool tourne = place(retours[0]) < 0.1 ? place(0) > 0.5 && place(dernier) > 0.5
                                                    : place(0) < 0.5 && place(dernier) < 0.5;
        return {tourne ? FormeDat::Tour : FormeDat::Aucune, 0};
    }
    if (retours.size() != 2) return {};
    // Three legs, of which the middle one is the single step from one surface to the other.
    const std::size_t coupure = retours[0] + 1;
    const bool avants = place(0) < 0.5 && place(dernier) > 0.5;
    const bool arrieres = place(0) > 0.5 && place(dernier) < 0.5;
    const bool unPas = std::abs(place(coupure) - place(retours[0])) > 0.5;
    if ((!avants && !arrieres) || !unPas) return {};
    const bool annonce = dessusAnnonce > 0 && dessusAnnonce <= dernier &&
                         std::abs(place(dessusAnnonce) - place(dessusAnnonce - 1)) > 0.5;
    return {avants ? FormeDat::DeuxAvants : FormeDat::DeuxArrieres, annonce ? dessusAnnonce : coupure};
}

std::vector<Point2> EnTour(const std::vector<Point2>& points, const FormeTrouvee& forme) {
    std::vector<Point2> tour = points;
    if (forme.forme != FormeDat::DeuxAvants && forme.forme != FormeDat::DeuxArrieres) return tour;
    const auto coupure = tour.begin() + static_cast<std::ptrdiff_t>(forme.coupure);
    if (forme.forme == FormeDat::DeuxAvants) {
        std::reverse(tour.begin(), coupure);
    } else {
        std::reverse(coupure, tour.end());
    }
    // The point that both surfaces give stands once.
    if (coupure->X == (coupure - 1)->X && coupure->Y == (coupure - 1)->Y) tour.erase(coupure);
    return tour;
}

} // namespace tessarel
