// Reading of the interpreter's lines.
#include "traces_eps.h"

#include "courbes.h"
#include "messages.h"
#include "platform/erreurs.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <fmt/format.h>
#include <span>

namespace tessarel {

namespace {

constexpr double MmParMillieme = MmParPoint / 1000;
// A line of the interpreter's is far shorter; what is longer is the file's own output.
constexpr std::size_t LigneMax = 200;
// Kinds of passed-over things that the report tells apart.
constexpr std::size_t GenresMax = 50;

[[noreturn]] void RefuserCoordonnee(const std::string& chemin) {
    throw FauteLecture(chemin, 0,
                       Bilingue("une coordonnée du dessin est hors limites, le maximum est de 280 m",
                                "a coordinate of the drawing is out of range, the limit is 280 m"));
}

// The numbers behind the letter as millimetres; false when they are not `nombre` numbers.
bool LireNombres(std::string_view champs, std::span<double> mm, const std::string& chemin) {
    for (double& v : mm) {
        while (champs.starts_with(' ')) champs.remove_prefix(1);
        if (champs.starts_with('?')) RefuserCoordonnee(chemin);
        std::int32_t milliemes = 0;
        const auto r = std::from_chars(champs.data(), champs.data() + champs.size(), milliemes);
        if (r.ec != std::errc()) return false;
        champs.remove_prefix(static_cast<std::size_t>(r.ptr - champs.data()));
        v = milliemes * MmParMillieme;
    }
    return champs.find_first_not_of(' ') == std::string_view::npos;
}

void AjouterPoint(TracesEps& t, Point2 p, const std::string& chemin) {
    PointSimple s;
    s.X = static_cast<float>(p.X);
    s.Y = static_cast<float>(p.Y);
    t.courant = p;
    if (t.points.size() > t.debut && t.points.back().X == s.X && t.points.back().Y == s.Y) return;
    if (t.points.size() >= PointsMaxDessin)
        throw FauteLecture(chemin, 0,
                           Bilingue(fmt::format("le dessin donne plus de {} points", PointsMaxDessin),
                                    fmt::format("the drawing has more than {} points", PointsMaxDessin)));
    t.points.push_back(s);
}

// A subpath without length, the dot of a round pen, is no path to cut.
void FinirSousChemin(TracesEps& t) {
    if (!t.enCours) return;
    t.enCours = false;
    if (t.points.size() < t.debut + 2) {
        t.points.resize(t.debut);
        return;
    }
    t.debuts.push_back(static_cast<std::uint32_t>(t.debut));
    ++t.rapport.lus[std::string(t.operateur)];
}

void CommencerSousChemin(TracesEps& t, Point2 p, const std::string& chemin) {
    FinirSousChemin(t);
    t.enCours = true;
    t.debut = t.points.size();
    t.premier = p;
    AjouterPoint(t, p, chemin);
}

// Chords of equal parameter steps: a cubic leaves its chord by at most an eighth of the greatest second
// derivative times the square of the step.
void TracerCubique(TracesEps& t, Point2 a, Point2 b, Point2 c, const std::string& chemin) {
    const Point2 d = t.courant;
    const double fleche = std::max(std::hypot(d.X - 2 * a.X + b.X, d.Y - 2 * a.Y + b.Y),
                                   std::hypot(a.X - 2 * b.X + c.X, a.Y - 2 * b.Y + c.Y));
    const double nombre = std::ceil(std::sqrt(6.0 / 8.0 * fleche / ErreurCorde));
    for (double i = 1; i < nombre; ++i) {
        const double u = i / nombre;
        const double v = 1 - u;
        const double k0 = v * v * v;
        const double k1 = 3 * v * v * u;
        const double k2 = 3 * v * u * u;
        const double k3 = u * u * u;
        AjouterPoint(t,
                     {k0 * d.X + k1 * a.X + k2 * b.X + k3 * c.X, k0 * d.Y + k1 * a.Y + k2 * b.Y + k3 * c.Y},
                     chemin);
    }
    AjouterPoint(t, c, chemin);
}

// A line or a curve; behind a closed subpath it begins a new one where that closed.
void Prolonger(TracesEps& t, char genre, std::string_view champs, const std::string& chemin) {
    std::array<double, 6> n{};
    if (!LireNombres(champs, std::span(n).first(genre == 'l' ? 2 : 6), chemin)) return;
    if (!t.enCours) CommencerSousChemin(t, t.courant, chemin);
    if (genre == 'l')
        AjouterPoint(t, {n[0], n[1]}, chemin);
    else
        TracerCubique(t, {n[0], n[1]}, {n[2], n[3]}, {n[4], n[5]}, chemin);
}

void Fermer(TracesEps& t, const std::string& chemin) {
    if (!t.enCours) return;
    AjouterPoint(t, t.premier, chemin);
    FinirSousChemin(t);
}

std::string_view NomOperateur(char lettre) {
    switch (lettre) {
    case 'F':
        return "fill";
    case 'E':
        return "eofill";
    case 'R':
        return "rectangle";
    default:
        return "stroke";
    }
}

void Compter(RapportLecture& rapport, std::string_view genre) {
    const std::string nom = Citation(genre);
    if (rapport.ignores.size() < GenresMax || rapport.ignores.contains(nom)) ++rapport.ignores[nom];
}

void AvalerLigne(TracesEps& t, std::string_view ligne, const std::string& chemin) {
    if (ligne == "fin") {
        t.complet = true;
    } else if (ligne == "?") {
        Compter(t.rapport, "path");
    } else if (ligne == "h") {
        Fermer(t, chemin);
    } else if (ligne == "S" || ligne == "F" || ligne == "E" || ligne == "R") {
        FinirSousChemin(t);
        t.operateur = NomOperateur(ligne.front());
    } else if (ligne.starts_with("! ")) {
        t.erreur = Citation(ligne.substr(2));
    } else if (ligne.starts_with("i ")) {
        Compter(t.rapport, ligne.substr(2));
    } else if (ligne.starts_with("l ") || ligne.starts_with("c ")) {
        Prolonger(t, ligne.front(), ligne.substr(2), chemin);
    } else if (ligne.starts_with("m ")) {
        std::array<double, 2> n{};
        if (LireNombres(ligne.substr(2), n, chemin)) CommencerSousChemin(t, {n[0], n[1]}, chemin);
    }
}

} // namespace

void AvalerTraces(TracesEps& traces, std::string_view morceau, const std::string& chemin) {
    for (;;) {
        const std::size_t fin = morceau.find('\n');
        if (fin == std::string_view::npos) break;
        std::string_view ligne = morceau.substr(0, fin);
        if (!traces.reste.empty()) {
            // Past the limit the line is nobody's: its head alone is kept, to be passed over.
            traces.reste += ligne.substr(0, LigneMax);
            ligne = traces.reste;
        }
        if (ligne.size() <= LigneMax) AvalerLigne(traces, ligne, chemin);
        traces.reste.clear();
        morceau.remove_prefix(fin + 1);
    }
    if (traces.reste.size() <= LigneMax) traces.reste += morceau.substr(0, LigneMax + 1);
}

void TerminerTraces(TracesEps& traces) {
    FinirSousChemin(traces);
    const std::size_t nombre = traces.debuts.size();
    for (std::size_t i = 0; i < nombre; ++i) {
        const std::size_t fin = i + 1 < nombre ? traces.debuts[i + 1] : traces.points.size();
        const auto code = CodePolyligne(i, nombre);
        for (std::size_t k = traces.debuts[i]; k < fin; ++k) traces.points[k].CodeSequence = code;
    }
}

} // namespace tessarel
