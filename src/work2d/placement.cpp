// The block of a machine and the placing of paths in it.
#include "work2d/placement.h"

#include "app/texts/textes_programme.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"
#include "work2d/affichage.h"

#include <algorithm>

namespace tessarel {

namespace {

// The default block takes this part of the room, in whole centimetres.
constexpr double PartBlocParDefaut = 0.8;
constexpr double Centimetre = 10;
// Least side of a block that is sized on the paths (mm).
constexpr float CoteMinimal = 10;

double CentimetresEntiers(double place) {
    return PartieEntiere(place * PartBlocParDefaut / Centimetre) * Centimetre;
}

bool OntDesPoints(const std::vector<Sequence>& sequences) {
    return std::any_of(sequences.begin(), sequences.end(),
                       [](const Sequence& s) { return !s.Points.empty(); });
}

template <typename Deplacer>
void DeplacerPoints(std::vector<Sequence>& sequences, Deplacer deplacer) {
    for (Sequence& sequence : sequences) {
        for (PointProfil& point : sequence.Points) deplacer(point);
        CalculerBornesSequence(sequence);
    }
}

// The factor that fits the framing into the room; 0 where there is none.
double CalculerFacteur(const Etendue& cadre, double placeX, double placeY) {
    const double largeur = static_cast<double>(cadre.XMax) - cadre.XMin;
    const double hauteur = static_cast<double>(cadre.YMax) - cadre.YMin;
    if (largeur > 0 && hauteur > 0) return std::min(placeX / largeur, placeY / hauteur);
    if (largeur > 0) return placeX / largeur;
    if (hauteur > 0) return placeY / hauteur;
    return 0;
}

void AjusterTaille(std::vector<Sequence>& sequences, const Bloc& bloc, const ReglesPlacement& regles,
                   float& coeffTransf) {
    const Etendue cadre = CadrageSequences(sequences);
    if (cadre.XMax <= cadre.XMin && cadre.YMax <= cadre.YMin) {
        AfficherExclamation(Texte(TexteProgramme::PasDeCoefficient), "");
        return;
    }
    const double facteur =
        CalculerFacteur(cadre, bloc.BlocX - 2.0 * regles.margeX, bloc.BlocY - 2.0 * regles.margeY);
    if (!(facteur > 0)) { // would crush the paths to a point or turn them over
        AfficherExclamation(Texte(TexteProgramme::MargesPlusGrandesQueLeBloc),
                            Texte(TexteProgramme::TitreOperationImpossible));
        return;
    }
    const double x0 = cadre.XMin;
    const double y0 = cadre.YMin;
    DeplacerPoints(sequences, [=](PointProfil& p) {
        p.X = (p.X - x0) * facteur + x0;
        p.Y = (p.Y - y0) * facteur + y0;
    });
    coeffTransf = EnSimple(coeffTransf * facteur);
}

} // namespace

Bloc BlocParDefaut(const TableMachine& table) {
    return {EnSimple(CentimetresEntiers(static_cast<double>(table.CourseX) - table.MargeFilBloc)),
            EnSimple(CentimetresEntiers(static_cast<double>(table.CourseY) - table.MargeFilBloc))};
}

Bloc LimiterBlocSaisi(Bloc bloc, const TableMachine& table) {
    const double limiteX = static_cast<double>(table.CourseX) - table.MargeFilBloc - table.MargeOrigineBloc;
    const double limiteY = static_cast<double>(table.CourseY) - table.MargeFilBloc;
    if (bloc.BlocX > limiteX) bloc.BlocX = EnSimple(limiteX);
    if (bloc.BlocY > limiteY) bloc.BlocY = EnSimple(limiteY);
    return bloc;
}

Bloc LimiterBlocOuvert(Bloc bloc, const TableMachine& table) {
    // Deliberate: the margin at the origin counts in the test and not in the new value, so that a block
    // between the two grows. Stored projects open as they always did.
    const double limiteX = static_cast<double>(table.CourseX) - table.MargeFilBloc;
    const double limiteY = static_cast<double>(table.CourseY) - table.MargeFilBloc;
    if (limiteX - table.MargeOrigineBloc < bloc.BlocX) bloc.BlocX = EnSimple(limiteX);
    if (limiteY < bloc.BlocY) bloc.BlocY = EnSimple(limiteY);
    return bloc;
}

std::optional<PointDessin> AjusterAuBloc(std::vector<Sequence>& sequences, const Bloc& bloc,
                                         const ReglesPlacement& regles, const TableMachine& table,
                                         float& coeffTransf) {
    PointDessin deplacement{0, 0};
    if (!OntDesPoints(sequences)) return deplacement;
    if (regles.ajuster)
        AjusterTaille(sequences, bloc, regles, coeffTransf);
    else
        coeffTransf = 1;
    if (regles.centrerX) {
        const Etendue cadre = CadrageSequences(sequences);
        const double milieu = (static_cast<double>(cadre.XMin) + cadre.XMax) / 2;
        const double pas = bloc.BlocX / 2.0 + table.MargeOrigineBloc - milieu;
        DeplacerPoints(sequences, [=](PointProfil& p) { p.X += pas; });
        deplacement.X = pas;
    }
    if (regles.centrerY) {
        const Etendue cadre = CadrageSequences(sequences);
        const double milieu = (static_cast<double>(cadre.YMin) + cadre.YMax) / 2;
        const double pas = bloc.BlocY / 2.0 - milieu;
        DeplacerPoints(sequences, [=](PointProfil& p) { p.Y += pas; });
        deplacement.Y = pas;
    }
    if (regles.ajuster) return std::nullopt;
    return deplacement;
}

BlocPlace BlocAuto(std::vector<Sequence>& sequences, const ReglesPlacement& regles, const TableMachine& table,
                   float& coeffTransf) {
    const ZoneVisible zone = CalculerZoneVisible(sequences, table);
    const Bloc bloc = {std::max(zone.ZoneVisibleXMax - zone.ZoneVisibleXMin, CoteMinimal),
                       std::max(zone.ZoneVisibleYMax - zone.ZoneVisibleYMin, CoteMinimal)};
    return {bloc, AjusterAuBloc(sequences, bloc, regles, table, coeffTransf)};
}

} // namespace tessarel
