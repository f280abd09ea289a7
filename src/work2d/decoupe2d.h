// The road of a 2D cut: from the paths placed on the table to the one path that the wire follows.
#pragma once

#include "machine/table_machine.h"
#include "paths/points.h"

#include <cstdint>
#include <span>
#include <string>

namespace tessarel {

enum class CoteDecalage2D : int { Aucun = 0, Gauche = 1, Droite = 2 };

// What the cut tab and the settings say of a cut.
struct OptionsDecoupe2D {
    float BlocX = 0; // mm
    float BlocY = 0;
    int TypeEntree = 0; // 0 origin side, 1 from above, 2 far side
    int TypeSortie = 0;
    bool approcheRapide = false;
    bool retourRapide = false;
    CoteDecalage2D decalage = CoteDecalage2D::Aucun;
    bool modeExpert = false;
    float vitesseMatiere = 0;    // mm/s, used in Expert mode
    float saigneeMatiere = 0;    // SaigneeVD, used in Expert mode
    float chauffe = 0;           // percent
    float distNettoyage = 0.02F; // mm
};

// Speed and kerf in force: the machine's in Normal mode, the material's in Expert mode.
float VitesseEnVigueur(const OptionsDecoupe2D& options, const TableMachine& table);
float SaigneeEnVigueur(const OptionsDecoupe2D& options, const TableMachine& table);
// Signed offset distance: half the kerf, positive to the right of the direction of travel.
float DistanceDecalage(const OptionsDecoupe2D& options, const TableMachine& table);

// All that an assembly makes. `decalagePossible` is false when two consecutive points were too close for an
// offset: the box was shown and SequenceDecalee is empty.
struct Decoupe2D {
    Sequence SequenceAssemblee;
    Sequence SequenceDecalee;
    Sequence TrajetEntreeProvisoire;
    Sequence TrajetSortieProvisoire;
    Sequence TrajetEntree;
    Sequence TrajetSortie;
    Sequence SequenceDecoupe;
    bool DepassementDetecte = false;
    bool decalagePossible = true;
};

// The whole road, in the told order. FauteDepassement when a path counts more than PointsMaxDecoupe points.
Decoupe2D AssemblerDecoupe2D(std::span<const Sequence> sequences, const OptionsDecoupe2D& options,
                             const TableMachine& table);

} // namespace tessarel
