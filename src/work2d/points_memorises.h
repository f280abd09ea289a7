// Points that the states of undo share: runs of points held once, and what was done to them since.
//
// A point is taken in once, into a reserve that never changes. A state is a list of runs of such points, each
// with the transformations that brought it where the state has it; a run may be read backwards. What a deed
// leaves alone is the same run again, an inserted point is a run of its own between two halves.
//
// clang-format off
//    reserve A    a0 a1 a2 a3 a4 a5 a6 a7                       reserve B    b0
//
//    state 1      [ a0 .................. a7 ]
//    state 2      [ a0 .................. a7 ] moved            one more deed on the same run
//    state 3      [ a0 a1 a2 ] moved [ b0 ] [ a3 .. a7 ] moved  a point inserted
//    state 4      ... [ a7 .. a3 ] moved [ b0 ] ...             reversed: runs in the other order, backwards
// clang-format on
#pragma once

#include "paths/points.h"
#include "platform/dessin.h"
#include "work2d/transformations.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace tessarel {

struct ReservePoints {
    std::vector<PointDessin> places;  // X and Y, where all other fields are those of a new point
    std::vector<PointProfil> entiers; // whole records, where they are not
};

// Transformations played one after the other, the oldest at the end of the chain. The same points and the
// same chain always give the same bits.
struct SuiteTransformations {
    std::shared_ptr<const SuiteTransformations> avant;
    Transformation transformation;
    int profondeur = 1; // transformations in the chain
};

struct TronconPoints {
    std::uint32_t reserve = 0; // rank in `reserves`
    std::uint32_t suite = 0;   // rank in `suites`
    std::uint32_t debut = 0;   // lowest place in the reserve
    std::int32_t nombre = 0;   // of points; negative: read from the highest place down
    friend bool operator==(const TronconPoints&, const TronconPoints&) = default;
};

// All points of a state, path after path.
struct PointsMemorises {
    std::vector<std::shared_ptr<const ReservePoints>> reserves;
    std::vector<std::shared_ptr<const SuiteTransformations>> suites; // null: as in the reserve
    std::vector<TronconPoints> troncons;
    friend bool operator==(const PointsMemorises&, const PointsMemorises&) = default;
};

// Longest chain of transformations before points are held whole again: what going back may have to replay.
inline constexpr int ProfondeurMaxi = 16;

// Runs that a path of so many points may be held in; past that it is held whole again.
std::size_t TronconsPermis(std::size_t points);

// True when every field of the two is the same, bit for bit: also the sign of a zero.
bool MemesBits(const PointProfil& a, const PointProfil& b);

// Reads the points of a state by their place in it, from 0. A block is brought in at a time and kept, so that
// what was done to points is played once for a block, however short the paths in it.
class LecteurPoints {
public:
    explicit LecteurPoints(const PointsMemorises& points);

    [[nodiscard]] std::size_t Nombre() const { return m_debuts.back(); }
    // Points from `place` on, as many of `nombre` as stand in one block: at least one when there is one.
    // Valid until the next call.
    std::span<const PointProfil> Lire(std::size_t place, std::size_t nombre);
    // The same of those right before `fin`.
    std::span<const PointProfil> LireAvant(std::size_t fin, std::size_t nombre);
    // One point, whatever block is at hand; there must be one at `place`.
    [[nodiscard]] PointProfil Point(std::size_t place) const;
    // The runs that hold `nombre` points from `place` on, added to `troncons`.
    void Extraire(std::size_t place, std::size_t nombre, std::vector<TronconPoints>& troncons) const;
    [[nodiscard]] const PointsMemorises& Source() const { return m_points; }

private:
    void Charger(std::size_t place);
    [[nodiscard]] std::size_t TronconDe(std::size_t place) const;
    [[nodiscard]] bool EstDansBloc(std::size_t place) const;

    const PointsMemorises& m_points;
    std::vector<std::size_t> m_debuts; // place of the first point of each run, and of the end
    std::vector<PointProfil> m_bloc;
    std::size_t m_debutBloc = 0;
    std::size_t m_dansBloc = 0; // points that stand in the block
};

// Puts the points of a new state together, path after path, from those of the one before and from what has to
// be held anew.
class EcrivainPoints {
public:
    // `source` may be null: there is no state before; else it must outlive this. `transformation`: what
    // Transformer adds.
    EcrivainPoints(const LecteurPoints* source, const std::optional<Transformation>& transformation);

    // Points of the source as they stand there.
    void Partager(std::size_t place, std::size_t nombre);
    // Points of the source with the transformation on top; a reversal turns their order. False, and nothing
    // is added, where the chain would become too long.
    bool Transformer(std::size_t place, std::size_t nombre);
    // Points held anew. They are read when Finir is called, and must stand until then.
    void Tenir(std::span<const PointProfil> points);
    PointsMemorises Finir();

private:
    void Ajouter(TronconPoints troncon);
    std::uint32_t Reserve(std::uint32_t rang);
    std::uint32_t Suite(std::uint32_t rang);
    std::uint32_t SuiteAllongee(std::uint32_t rang);

    const LecteurPoints* m_source;
    std::optional<Transformation> m_transformation;
    PointsMemorises m_faits;
    // Ranks that the tables of the source have become here.
    std::vector<std::uint32_t> m_reserves;
    std::vector<std::uint32_t> m_suites;
    std::vector<std::uint32_t> m_suitesAllongees;
    std::optional<std::uint32_t> m_sansSuite;
    // What is held anew: reserves to be filled, one for each kind of record.
    struct Nouveaux {
        std::optional<std::uint32_t> reserve;
        std::vector<std::span<const PointProfil>> points;
        std::size_t nombre = 0;
    };
    Nouveaux m_places;
    Nouveaux m_entiers;
    std::vector<TronconPoints> m_extraits;
};

} // namespace tessarel
