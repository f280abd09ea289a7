// The road of a 4-axis cut: from the designed pair of profiles to the two lists that the carriages follow.
//
// Axes, mm: X from the trailing edge (BF, small X) to the leading edge (BA); Y above the table top; Z along
// the wire, from 0 in the plane of carriage 1 to EcartementY1Y2 in that of carriage 2. Side S (Saumon) faces
// carriage 1, side E (Emplanture) carriage 2. There is no rotary motion: the fifth axis stays at 0.
#pragma once

#include "cut4x/parametres_decoupe4x.h"
#include "design4x/projet_cpx.h"
#include "machine/matieres.h"

#include <array>
#include <cstdint>
#include <vector>

namespace tessarel {

// A path of both wire ends, point by point: E[i] and S[i] are the two ends at one instant. Vitesse, Vx, Vy,
// Rapide, Duree and Decalage of a point belong to the segment that starts there.
struct PaireD4X {
    std::vector<PointProfil> E;
    std::vector<PointProfil> S;
    float Ecartement = 0; // between the planes of the two lists, mm
};

// Box of points, mm.
struct BornesD4X {
    double Xmin = 0;
    double Ymin = 0;
    double Xmax = 0;
    double Ymax = 0;
    friend bool operator==(const BornesD4X&, const BornesD4X&) = default;
};

// A face of the block as it stands on the table, mm.
struct FaceBloc {
    double Xbf = 0; // trailing edge end
    double Xba = 0; // leading edge end
    double Ybas = 0;
    double Yhaut = 0;
};
// From the closed outline of a face as CalculerExtremesCPX draws it.
FaceBloc FaceDuBloc(const std::array<PointEspace, 5>& contour);

// Dimension of the lowest point of a side: from the foam left under it down to the wedge. Drawn only.
struct CoteBasse {
    PointEspace haut;
    PointEspace bas;
};

inline constexpr std::size_t PointsEntreeSortie = 5;
struct ListeEntreeSortie {
    std::array<PointProfil, PointsEntreeSortie> E;
    std::array<PointProfil, PointsEntreeSortie> S;
};

// Working room that a computation leaves to the next, so that none is asked for anew.
struct TamponsD4X {
    std::vector<PointProfil> chemin;
};

// What a computation makes, and the one state that outlives it: DecoupePossible.
struct DecoupeD4X {
    // The project has a pair that can be cut: set when a project arrives (PasserEnDecoupe), cleared by an
    // offset that fails, and not set again by a later computation.
    bool DecoupePossible = false;
    ProjetCPX PairePositionnee; // the stored pair, mirrored if asked, on the table
    FaceBloc blocE;             // of the positioned pair
    FaceBloc blocS;
    PaireD4X PaireBloc;     // at the two faces of the block, entry and exit included
    PaireD4X PaireChariots; // at the planes of the carriages
    BornesD4X bornesChariots;
    // What lies between entry and exit inside PaireBloc: the first point, and how many; 0 for the guillotine.
    std::size_t premierProfil = 0;
    std::size_t nombreProfil = 0;
    CoteBasse coteE;
    CoteBasse coteS;
    ListeEntreeSortie entree;
    ListeEntreeSortie sortie;
    std::int32_t maximumParcourir = 1; // of hscParcourir
    TamponsD4X tampons;
};

// The records that a computation reads.
struct ContexteD4X {
    const ProjetCPX& Projet; // the stored pair, its extremes computed; never changed
    const ParametresDecoupe4axes& Parametres;
    const ValeursDecoupe& Matiere; // cutting speed strictly positive
    const TableMachine& Table;
};

// The whole computation. PaireBloc, PaireChariots and what follows from them are rebuilt; their room is kept
// from call to call. Boxes tell of an offset that fails and of a path too long for the cursor. A run-time
// fault leaves as FauteProcedureD4X, the project untouched.
void CalculerDecoupeD4X(const ContexteD4X& contexte, DecoupeD4X& decoupe);

} // namespace tessarel
