// Undo and redo of 2D work: a stack of states that share what did not change between them.
//
// A state holds every path of the project. The points of a path that two states have alike stand in memory
// once. A path that one transformation turned into the next is held as that transformation: played again on
// the same points it gives the same bits, so a hundred moves of a large project cost a few copies of it.
//
//    PileTransformations   [ 1 ][ 2 ][ 3 ][ 4 ]
//                                      ^ NbTransf = 3: what TableauSequences shows
//
// MemoriserTransformation keeps the state that is about to change and moves on by one; the state that the
// deed then makes is taken up at the next call, or when the user goes back from it.
#pragma once

#include "paths/points.h"
#include "work2d/placement.h"
#include "work2d/transformations.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace tessarel {

// Points that states share. Either held whole, or as another's with a transformation on top.
struct PointsPartages {
    std::vector<PointDessin> places;  // X and Y, where all other fields are those of a new point
    std::vector<PointProfil> entiers; // whole records, where they are not
    std::shared_ptr<const PointsPartages> source;
    Transformation transformation;
    std::size_t nombre = 0;
    int profondeur = 0; // transformations to play from the nearest points held whole
};

struct SequenceMemorisee {
    std::shared_ptr<const PointsPartages> points;
    Sequence bornes; // the rest of the record; its Points are empty
};

// What undo gives back: the paths, and the block that they are placed in.
struct EtatTransformations {
    std::vector<SequenceMemorisee> sequences;
    Bloc bloc;
    float coeffTransf = 1;
};

struct Historique2D {
    std::vector<EtatTransformations> PileTransformations;
    float NbTransf = 1;     // position in the stack from 1; 32 bits, rounded where it is an index
    bool aReprendre = true; // the state at the top is newer than what the stack holds of it
    // What the last MemoriserTransformation dropped, until it is known that its deed changed something.
    std::vector<EtatTransformations> ecartes;
    std::optional<Transformation> derniere; // what made it, when one transformation of the selection did
};

// Longest chain of transformations before points are held whole again: what going back may have to replay.
inline constexpr int ProfondeurMaxi = 16;

// Keeps the state before a deed; states after NbTransf are dropped. To be called before anything changes.
void MemoriserTransformation(Historique2D& historique, std::span<const Sequence> TableauSequences, Bloc bloc,
                             float coeffTransf);
// Says that the deed just done was this transformation of the selected paths. A word on how to hold it in
// less room: it is checked, never trusted.
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
