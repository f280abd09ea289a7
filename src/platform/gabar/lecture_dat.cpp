// DAT reader: profile tables of many hands, brought to one polyline round the profile.
#include "lecture.h"

#include "messages.h"
#include "platform/erreurs.h"
#include "table_dat.h"

#include <algorithm>
#include <fmt/format.h>

namespace tessarel {

namespace {

// A table of unit chord would not survive the thinning of points: it comes in at this chord, mm.
constexpr double CordeMm = 100;
constexpr double LargeurUniteMin = 0.5;
constexpr double LargeurUniteMax = 1.5;
constexpr double HauteurUniteMax = 1;

std::vector<Point2> Copier(const std::vector<LigneDat>& lignes, std::size_t debut, std::size_t fin) {
    std::vector<Point2> points;
    points.reserve(fin - debut);
    for (std::size_t i = debut; i < fin; ++i) points.push_back(lignes[i].p);
    return points;
}

// Ranges of lines with the same value of `membre`.
std::vector<std::pair<std::size_t, std::size_t>> Plages(const std::vector<LigneDat>& lignes,
                                                        int LigneDat::*membre) {
    std::vector<std::pair<std::size_t, std::size_t>> plages;
    for (std::size_t debut = 0; debut < lignes.size();) {
        std::size_t fin = debut + 1;
        while (fin < lignes.size() && lignes[fin].*membre == lignes[debut].*membre) ++fin;
        plages.emplace_back(debut, fin);
        debut = fin;
    }
    return plages;
}

void NoterForme(FormeDat forme, RapportLecture& rapport) {
    switch (forme) {
    case FormeDat::Tour:
        rapport.notes.push_back(Bilingue("table d'un seul tenant (Selig)", "single loop of points (Selig)"));
        break;
    case FormeDat::DeuxAvants:
        rapport.notes.push_back(
            Bilingue("deux surfaces depuis le bord d'attaque (Lednicer), mises bout à bout",
                     "two surfaces from the leading edge (Lednicer), joined end to end"));
        break;
    case FormeDat::DeuxArrieres:
        rapport.notes.push_back(Bilingue("deux surfaces depuis le bord de fuite, mises bout à bout",
                                         "two surfaces from the trailing edge, joined end to end"));
        break;
    case FormeDat::Aucune:
        rapport.notes.push_back(Bilingue("pas la forme d'un profil : points gardés dans l'ordre du fichier",
                                         "not shaped like an airfoil: points kept in file order"));
        break;
    }
}

// The profile of the file: the first table that goes round one, else all lines together; what is no profile
// comes as it stands, parted at its blank lines.
std::vector<std::vector<Point2>> TrouverTraces(const TableDat& table, RapportLecture& rapport) {
    const auto tableaux = Plages(table.lignes, &LigneDat::tableau);
    std::vector<std::pair<std::size_t, std::size_t>> candidats = tableaux;
    if (tableaux.size() > 1) candidats.emplace_back(0, table.lignes.size());
    for (const auto& [debut, fin] : candidats) {
        const std::vector<Point2> points = Copier(table.lignes, debut, fin);
        const FormeTrouvee forme = TrouverForme(points, debut == 0 ? table.dessus : 0);
        if (forme.forme == FormeDat::Aucune) continue;
        NoterForme(forme.forme, rapport);
        if (fin - debut < table.lignes.size())
            rapport.notes.push_back(Bilingue(
                fmt::format("{} points hors du profil laissés", table.lignes.size() - (fin - debut)),
                fmt::format("{} points outside the airfoil skipped", table.lignes.size() - (fin - debut))));
        return {EnTour(points, forme)};
    }
    NoterForme(FormeDat::Aucune, rapport);
    std::vector<std::vector<Point2>> traces;
    for (const auto& [debut, fin] : Plages(table.lignes, &LigneDat::bloc))
        traces.push_back(Copier(table.lignes, debut, fin));
    return traces;
}

double FacteurCorde(const std::vector<std::vector<Point2>>& traces) {
    Point2 bas = traces[0][0];
    Point2 haut = bas;
    for (const auto& trace : traces) {
        for (const Point2 p : trace) {
            bas = {std::min(bas.X, p.X), std::min(bas.Y, p.Y)};
            haut = {std::max(haut.X, p.X), std::max(haut.Y, p.Y)};
        }
    }
    const double largeur = haut.X - bas.X;
    const bool unite =
        largeur >= LargeurUniteMin && largeur <= LargeurUniteMax && haut.Y - bas.Y < HauteurUniteMax;
    return unite ? CordeMm / largeur : 1;
}

} // namespace

void LireDat(std::vector<PointSimple>& points, std::string texte, const std::string& chemin,
             RapportLecture& rapport) {
    if (texte.find('\0') != std::string::npos)
        throw FauteLecture(chemin, 0, Bilingue("ce n'est pas un fichier texte", "this is not a text file"));
    if (texte.find('\n') == std::string::npos) std::replace(texte.begin(), texte.end(), '\r', '\n');
    const TableDat table = LireTableDat(texte, chemin);
    const auto traces = TrouverTraces(table, rapport);
    const double facteur = FacteurCorde(traces);
    if (table.comptes && table.dessus + table.dessous != table.lignes.size())
        rapport.notes.push_back(Bilingue(fmt::format("{} + {} points annoncés, {} trouvés", table.dessus,
                                                     table.dessous, table.lignes.size()),
                                         fmt::format("{} + {} points declared, {} found", table.dessus,
                                                     table.dessous, table.lignes.size())));
    if (table.illisibles > 0)
        rapport.notes.push_back(Bilingue(fmt::format("{} lignes sans point laissées", table.illisibles),
                                         fmt::format("{} lines without a point skipped", table.illisibles)));
    if (facteur != 1)
        rapport.notes.push_back(Bilingue("corde de 1 mise à 100 mm", "unit chord scaled to 100 mm"));
    for (std::size_t i = 0; i < traces.size(); ++i) {
        for (const Point2 p : traces[i]) {
            PointSimple s;
            s.X = static_cast<float>(p.X * facteur);
            s.Y = static_cast<float>(p.Y * facteur);
            s.CodeSequence = CodePolyligne(i, traces.size());
            points.push_back(s);
        }
    }
    rapport.lus["DAT"] = static_cast<int>(traces.size());
}

} // namespace tessarel
