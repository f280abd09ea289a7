// Undo and redo of 2D work: a stack of states that share what did not change between them.
//
// A state holds every path of the project, and costs what the deed changed: a transformed path is held as the
// transformation, a path with one point more as its two halves and that point (work2d/points_memorises.h).
//
//    PileTransformations   [ 1 ][ 2 ][ 3 ][ 4 ]
//                                      ^ NbTransf = 3: what TableauSequences shows
//
// MemoriserTransformation keeps the state that is about to change and moves on by one; the state that the
// deed then makes is taken up at the next call, or when the user goes back from it.
#pragma once

#include "work2d/etat_memorise.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace tessarel {

struct Historique2D {
    std::vector<EtatTransformations> PileTransformations;
    float NbTransf = 1;     // position in the stack from 1; 32 bits, rounded where it is an index
    bool aReprendre = true; // the state at the top is newer than what the stack holds of it
    // What the last MemoriserTransformation dropped, until it is known that its deed changed something.
    std::vector<EtatTransformations> ecartes;
    std::optional<Transformation> derniere; // what made it, when one transformation of the selection did
};

// Keeps the state before a deed; states after NbTransf are dropped. To be called before anything changes.
void MemoriserTransformation(Historique2D& historique, std::span<const Sequence> TableauSequences, Bloc bloc,
                             float coeffTransf);
// Says what the deed just done made of the paths that it changed, or of those it copied. A word on how to
// hold it in less room: it is checked, never trusted. Insertions, cuts and removals need no word.
void AnnoncerTransformation(Historique2D& historique, const Transformation& transformation);

// After a deed that may have changed nothing: the kept state is no step then, and is taken off again; the
// states that MemoriserTransformation dropped for it come back.
void OublierMemorisation(Historique2D& historique, std::span<const Sequence> TableauSequences, Bloc bloc);

bool PeutAnnuler(const Historique2D& historique);
bool PeutRefaire(const Historique2D& historique);

// Back (0) or forward (1); false at the end of the stack. The arguments are read, where the state they show
// has not been taken up, then filled with the state gone to. A position below 0 shows the told box and
// empties paths and stack.
enum class SensHistorique : int { Arriere = 0, Avant = 1 };
bool cmdUndoTS2D(Historique2D& historique, SensHistorique sens, std::vector<Sequence>& TableauSequences,
                 Bloc& bloc, float& coeffTransf);

// Bytes of all states, what they share counted once.
std::size_t MemoireHistorique(const Historique2D& historique);

} // namespace tessarel
