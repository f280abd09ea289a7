// Where the block stands on the table: typed positions with their limits, and the automatic choices.
#pragma once

#include "cut4x/decoupe4x.h"

#include <string>

namespace tessarel {

// What is left between the block and edge 2 of the plateau, mm: txtPositionBloc(3).
double DistanceZ2(const ProjetCPX& projet, const TableMachine& table,
                  const ParametresDecoupe4axes& parametres);

// The two Z boxes, which select the alignment "Saisi": distance to edge 1, or to edge 2. One beyond the
// plateau is brought back to it, with its box.
void SaisirZ1(double z1, const ProjetCPX& projet, const TableMachine& table,
              ParametresDecoupe4axes& parametres);
void SaisirZ2(double z2, const ProjetCPX& projet, const TableMachine& table,
              ParametresDecoupe4axes& parametres);

// On arrival in the window: a typed position that reaches beyond the plateau becomes the alignment to edge 2,
// with its box. ZSaumon and ZEmplanture are up to date afterwards.
void VerifierPositionZ(const ProjetCPX& projet, const TableMachine& table,
                       ParametresDecoupe4axes& parametres);

// cmdPositionnementAutomatique: X 10 and Y 0, then moved so that the carriages stay at 0 or above. Computes
// the cut anew and gives the parameters that it was computed with.
ParametresDecoupe4axes PositionAutomatiqueXY(const ContexteD4X& contexte, DecoupeD4X& decoupe);

// cmdPlacementAutoBlocZ: the whole-mm position, from 0 to the width of the plateau, where the heights that
// the two carriages travel differ least; the first of equals. The cut is computed.
int PlacementAutoBlocZ(const ContexteD4X& contexte, const DecoupeD4X& decoupe);

// cmdMemoBloc: the block's dimensions as a text of several lines. Side 1 faces carriage 1.
std::string TexteMemoBloc(const DecoupeD4X& decoupe);

} // namespace tessarel
