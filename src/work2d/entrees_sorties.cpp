// Entry and exit of a 2D cut. An exit is an entry walked backwards, so that one routine draws both.
#include "work2d/entrees_sorties.h"

#include <algorithm>

namespace tessarel {

namespace {

// Rapid travel toward the block needs that much room left beyond its stopping point (mm): settled.
constexpr double PlaceApresArret = 4;
// First step down from an origin at the top when there is no room for a rapid descent (mm): settled.
constexpr double PremierPasDescente = 0.1;

enum TypeTrajet { CoteOrigine = 0, ParDessus = 1, CoteOppose = 2 };

// What the ways are drawn from.
struct Reperes {
    double m = 0;     // MargeFilBloc
    double o = 0;     // MargeOrigineBloc
    double haut = 0;  // height that clears the block, at most the travel
    double large = 0; // abscissa beyond the block, at most the travel
    double sur = 0;   // the height that clears the block, unlimited
    double courseY = 0;
    bool hautLimite = false;
    bool largeLimite = false;
    bool origineEnHaut = false;
};

Reperes CalculerReperes(const OptionsDecoupe2D& options, const TableMachine& table) {
    Reperes r;
    r.m = table.MargeFilBloc;
    r.o = table.MargeOrigineBloc;
    r.courseY = table.CourseY;
    r.sur = options.BlocY + r.m;
    r.hautLimite = r.sur > table.CourseY;
    r.haut = r.hautLimite ? table.CourseY : r.sur;
    const double large = options.BlocX + r.o + r.m;
    r.largeLimite = large > table.CourseX;
    r.large = r.largeLimite ? table.CourseX : large;
    r.origineEnHaut = table.OrigineEnHaut;
    return r;
}

// A way from the origin to a contact point; `rapide` belongs to the segment that starts at the point.
struct Etape {
    double x = 0;
    double y = 0;
    bool rapide = false;
};
using Voie = std::vector<Etape>;

Voie VoieOrigineEnBas(int type, const PointProfil& contact, bool rapide, const Reperes& r) {
    const bool dessus = rapide && !r.hautLimite;
    switch (type) {
    case ParDessus:
        return {{0, 0, rapide}, {0, r.haut, dessus}, {contact.X, r.haut, false}};
    case CoteOppose:
        return {{0, 0, rapide},
                {0, r.haut, dessus},
                {r.large, r.haut, rapide && !r.largeLimite},
                {r.large, contact.Y, false}};
    default:
        break;
    }
    if (rapide && r.m + PlaceApresArret <= r.o)
        return {{0, 0, true}, {0, contact.Y, true}, {r.o - r.m, contact.Y, false}};
    return {{0, 0, rapide}, {0, contact.Y, false}};
}

// No rapid travel below the height that clears the block: along the top only when the top lies above it, down
// to it only when 4 mm are left.
Voie VoieOrigineEnHaut(int type, const PointProfil& contact, bool rapide, const Reperes& r) {
    const bool leLongDuHaut = rapide && !r.hautLimite;
    const bool descente = rapide && r.sur + PlaceApresArret <= r.courseY;
    if (type != ParDessus && type != CoteOppose) {
        const double arret = descente ? r.sur : r.courseY - PremierPasDescente;
        return {{0, r.courseY, descente}, {0, arret, false}, {0, contact.Y, false}};
    }
    const double x = type == ParDessus ? contact.X : r.large;
    Voie voie = {{0, r.courseY, leLongDuHaut}, {x, r.courseY, descente}};
    if (descente) voie.push_back({x, r.sur, false});
    if (type == CoteOppose) voie.push_back({x, contact.Y, false});
    return voie;
}

Voie TracerVoie(int type, const PointProfil& contact, bool rapide, const Reperes& r) {
    return r.origineEnHaut ? VoieOrigineEnHaut(type, contact, rapide, r)
                           : VoieOrigineEnBas(type, contact, rapide, r);
}

PointProfil SommetEn(double x, double y, bool rapide) {
    PointProfil sommet;
    sommet.X = x;
    sommet.Y = y;
    sommet.Rapide = rapide;
    return sommet;
}

Sequence EntreeDepuis(const Voie& voie, const PointProfil& premier) {
    Sequence entree;
    for (const Etape& e : voie) entree.Points.push_back(SommetEn(e.x, e.y, e.rapide));
    entree.Points.push_back(premier);
    entree.Points.back().Rapide = false;
    CalculerBornesSequence(entree);
    return entree;
}

// Backwards, a segment starts where it ended: each flag moves to the other end of its segment.
Sequence SortieDepuis(const Voie& voie, const PointProfil& dernier) {
    Sequence sortie;
    sortie.Points.push_back(dernier);
    sortie.Points.back().Rapide = voie.back().rapide;
    for (std::size_t i = voie.size(); i-- > 0;)
        sortie.Points.push_back(SommetEn(voie[i].x, voie[i].y, i > 0 && voie[i - 1].rapide));
    CalculerBornesSequence(sortie);
    return sortie;
}

TrajetsBloc CreerTrajets(const Sequence& chemin, const OptionsDecoupe2D& options, const Reperes& r,
                         bool approcheRapide, bool retourRapide) {
    if (chemin.Points.empty()) return {};
    const PointProfil& premier = chemin.Points.front();
    const PointProfil& dernier = chemin.Points.back();
    return {EntreeDepuis(TracerVoie(options.TypeEntree, premier, approcheRapide, r), premier),
            SortieDepuis(TracerVoie(options.TypeSortie, dernier, retourRapide, r), dernier)};
}

} // namespace

TrajetsBloc CreationTrajetsDecales(const Sequence& SequenceDecalee, const OptionsDecoupe2D& options,
                                   const TableMachine& table) {
    return CreerTrajets(SequenceDecalee, options, CalculerReperes(options, table), options.approcheRapide,
                        options.retourRapide);
}

TrajetsBloc CreationTrajetsEntreeSortie(const Sequence& SequenceAssemblee, const OptionsDecoupe2D& options,
                                        const TableMachine& table) {
    Reperes r = CalculerReperes(options, table);
    r.haut = r.sur;
    return CreerTrajets(SequenceAssemblee, options, r, false, false);
}

} // namespace tessarel
