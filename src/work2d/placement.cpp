// The block of a machine and the placing of paths in it.
#include "work2d/placement.h"

#include "app/texts/textes_programme.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"
#include "work2d/affichage.h"

#include <algorithm>
#include <optional>

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

void Appliquer(std::vector<Sequence>& sequences, const Transformation& transformation) {
    for (Sequence& sequence : sequences) {
        TransformerPoints(sequence.Points, transformation);
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

// The scaling that fits the paths into the block; nothing after a box that says why.
std::optional<Transformation> CalculerAjustement(const std::vector<Sequence>& sequences, const Bloc& bloc,
                                                 const ReglesPlacement& regles) {
    const Etendue cadre = CadrageSequences(sequences);
    if (cadre.XMax <= cadre.XMin && cadre.YMax <= cadre.YMin) {
        AfficherExclamation(Texte(TexteProgramme::PasDeCoefficient), "");
        return std::nullopt;
    }
    Transformation ajustement;
    ajustement.genre = GenreTransformation::Ajustement;
    ajustement.fixe = {cadre.XMin, cadre.YMin};
    ajustement.facteur =
        CalculerFacteur(cadre, bloc.BlocX - 2.0 * regles.margeX, bloc.BlocY - 2.0 * regles.margeY);
    if (!(ajustement.facteur > 0)) { // would crush the paths to a point or turn them over
        AfficherExclamation(Texte(TexteProgramme::MargesPlusGrandesQueLeBloc),
                            Texte(TexteProgramme::TitreOperationImpossible));
        return std::nullopt;
    }
    return ajustement;
}

// The move that brings the middle of the paths to that of the block, on the axes that are to be centred.
Transformation CalculerCentrage(const std::vector<Sequence>& sequences, const Bloc& bloc,
                                const ReglesPlacement& regles, const TableMachine& table) {
    const Etendue cadre = CadrageSequences(sequences);
    const double milieuX = (static_cast<double>(cadre.XMin) + cadre.XMax) / 2;
    const double milieuY = (static_cast<double>(cadre.YMin) + cadre.YMax) / 2;
    return Deplacement(regles.centrerX ? bloc.BlocX / 2.0 + table.MargeOrigineBloc - milieuX : 0,
                       regles.centrerY ? bloc.BlocY / 2.0 - milieuY : 0);
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

Transformation AjusterAuBloc(std::vector<Sequence>& sequences, const Bloc& bloc,
                             const ReglesPlacement& regles, const TableMachine& table, float& coeffTransf) {
    Transformation faite;
    if (!OntDesPoints(sequences)) return faite;
    if (!regles.ajuster) {
        coeffTransf = 1;
    } else if (const auto ajustement = CalculerAjustement(sequences, bloc, regles)) {
        faite = *ajustement;
        Appliquer(sequences, faite);
        coeffTransf = EnSimple(coeffTransf * faite.facteur);
    }
    if (!regles.centrerX && !regles.centrerY) return faite;
    const Transformation centrage = CalculerCentrage(sequences, bloc, regles, table);
    Appliquer(sequences, centrage);
    faite.dx = centrage.dx;
    faite.dy = centrage.dy;
    return faite;
}

BlocPlace BlocAuto(std::vector<Sequence>& sequences, const ReglesPlacement& regles, const TableMachine& table,
                   float& coeffTransf) {
    const ZoneVisible zone = CalculerZoneVisible(sequences, table);
    const Bloc bloc = {std::max(zone.ZoneVisibleXMax - zone.ZoneVisibleXMin, CoteMinimal),
                       std::max(zone.ZoneVisibleYMax - zone.ZoneVisibleYMin, CoteMinimal)};
    return {bloc, AjusterAuBloc(sequences, bloc, regles, table, coeffTransf)};
}

} // namespace tessarel
