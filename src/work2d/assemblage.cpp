// Joins the paths into one, and entry, cut path and exit into what the wire follows; conducts the whole road.
#include "work2d/assemblage.h"

#include "app/texts/textes_programme.h"
#include "paths/geometrie.h"
#include "platform/erreurs.h"
#include "platform/nombres.h"
#include "work2d/decalage.h"
#include "work2d/depassements.h"
#include "work2d/entrees_sorties.h"
#include "work2d/vitesses.h"

#include <cmath>

namespace tessarel {

float VitesseEnVigueur(const OptionsDecoupe2D& options, const TableMachine& table) {
    return options.modeExpert ? options.vitesseMatiere : table.VitesseDecoupeParDefaut;
}

float SaigneeEnVigueur(const OptionsDecoupe2D& options, const TableMachine& table) {
    return options.modeExpert ? options.saigneeMatiere : table.SaigneeVDParDefaut;
}

float DistanceDecalage(const OptionsDecoupe2D& options, const TableMachine& table) {
    const double moitie = std::abs(SaigneeEnVigueur(options, table)) / 2.0;
    switch (options.decalage) {
    case CoteDecalage2D::Gauche:
        return EnSimple(-moitie);
    case CoteDecalage2D::Droite:
        return EnSimple(moitie);
    case CoteDecalage2D::Aucun:
        break;
    }
    return 0;
}

void VerifierNombrePoints(std::size_t points) {
    if (points > PointsMaxDecoupe)
        throw FauteDepassement(TexteRempli(TexteProgramme::TrajetTropLong,
                                           {std::to_string(points), std::to_string(PointsMaxDecoupe)}));
}

Sequence AssemblageSequencesTransfPourDecoupe(std::span<const Sequence> TableauSequences,
                                              float distNettoyage) {
    Sequence assemblee = ConcatenerSequences(TableauSequences);
    std::vector<PointSimple> simples(assemblee.Points.size());
    for (std::size_t i = 0; i < simples.size(); ++i) {
        simples[i].X = EnSimple(assemblee.Points[i].X);
        simples[i].Y = EnSimple(assemblee.Points[i].Y);
    }
    const auto gardes = static_cast<std::size_t>(ReductionPointsAlignes(simples, distNettoyage));
    // Deliberate: only the coordinates move to their new rank, marks stay at theirs. Nothing in 2D reads the
    // marks of a drawing.
    assemblee.Points.resize(gardes);
    for (std::size_t i = 0; i < gardes; ++i) {
        assemblee.Points[i].X = simples[i].X;
        assemblee.Points[i].Y = simples[i].Y;
        assemblee.Points[i].Rapide = false;
    }
    CalculerBornesSequence(assemblee);
    return assemblee;
}

Sequence AssemblageSequenceDecoupe(const Sequence& TrajetEntree, const Sequence& SequenceDecalee,
                                   const Sequence& TrajetSortie) {
    Sequence decoupe;
    decoupe.Points.reserve(TrajetEntree.Points.size() + SequenceDecalee.Points.size() +
                           TrajetSortie.Points.size());
    decoupe.Points = TrajetEntree.Points;
    for (const Sequence* suite : {&SequenceDecalee, &TrajetSortie}) {
        if (suite->Points.empty()) continue;
        decoupe.Points.insert(decoupe.Points.end(), suite->Points.begin() + 1, suite->Points.end());
    }
    CalculerBornesSequence(decoupe);
    return decoupe;
}

Decoupe2D AssemblerDecoupe2D(std::span<const Sequence> sequences, const OptionsDecoupe2D& options,
                             const TableMachine& table) {
    Decoupe2D decoupe;
    decoupe.SequenceAssemblee = AssemblageSequencesTransfPourDecoupe(sequences, options.distNettoyage);
    if (decoupe.SequenceAssemblee.Points.empty()) return decoupe;
    VerifierNombrePoints(decoupe.SequenceAssemblee.Points.size());

    TrajetsBloc provisoires = CreationTrajetsEntreeSortie(decoupe.SequenceAssemblee, options, table);
    decoupe.TrajetEntreeProvisoire = std::move(provisoires.entree);
    decoupe.TrajetSortieProvisoire = std::move(provisoires.sortie);

    const float vitesse = VitesseEnVigueur(options, table);
    decoupe.SequenceDecalee =
        DecalerSequenceTS2D(decoupe.SequenceAssemblee, DistanceDecalage(options, table), vitesse);
    decoupe.decalagePossible = !decoupe.SequenceDecalee.Points.empty();
    decoupe.DepassementDetecte = ControleDepassementTS2D(decoupe.SequenceDecalee, table);
    if (decoupe.SequenceDecalee.Points.empty()) return decoupe; // no offset, or nothing inside the zone

    TrajetsBloc trajets = CreationTrajetsDecales(decoupe.SequenceDecalee, options, table);
    decoupe.TrajetEntree = std::move(trajets.entree);
    decoupe.TrajetSortie = std::move(trajets.sortie);
    decoupe.SequenceDecoupe =
        AssemblageSequenceDecoupe(decoupe.TrajetEntree, decoupe.SequenceDecalee, decoupe.TrajetSortie);
    VerifierNombrePoints(decoupe.SequenceDecoupe.Points.size());
    AppliquerVitesses(decoupe.SequenceDecoupe, vitesse, table.VitesseRapide);
    return decoupe;
}

} // namespace tessarel
