// The sections of a 4-axis cut between its stop points: points in motor steps and frames of the interface.
#pragma once

#include "cut4x/decoupe4x.h"
#include "link/salves.h"
#include "paths/gcode.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tessarel {

// One point of one end of the wire.
struct PointPasD4X {
    std::int32_t X = 0; // absolute position, steps
    std::int32_t Y = 0;
    float Vitesse = 0;   // mm/s, of the segment that starts here
    bool Rapide = false; // likewise
    float Duree = 0;     // s, likewise
    friend bool operator==(const PointPasD4X&, const PointPasD4X&) = default;
};

// One stretch between two stop points, which belong to both of their stretches. The rotary axis stays at 0
// and has no points.
struct TronconD4X {
    std::vector<PointPasD4X> PointsChariot1;
    std::vector<PointPasD4X> PointsChariot2;
    std::size_t PremierPoint = 0;     // index in PaireChariots, from 0
    std::vector<Salve> TableauSalves; // heating pause, one frame per segment, end mark
    float DureeCumulee = 0;           // s from the start of the cut to the end of this stretch
};

// Points `premier` to `dernier` of a path, both of them in it.
struct EtendueTroncon {
    std::size_t premier = 0;
    std::size_t dernier = 0;
    friend bool operator==(const EtendueTroncon&, const EtendueTroncon&) = default;
};
// Where the stop points of the E list part the path. A stop at the first or at the last point parts nothing.
std::vector<EtendueTroncon> EtenduesTroncons(const PaireD4X& chariots);

// Results of PreparerSalvesD4X.
inline constexpr int PreparationBonne = 1;
inline constexpr int PreparationArretee = 0; // by a frame that can't be built; told by a box
inline constexpr int PreparationAnnulee = -100;
inline constexpr int PreparationSansDecoupe = -101;
inline constexpr int PreparationRefusee = -102; // by the limit checks, whose result stands in `controle`

struct PreparationD4X {
    int Resultat = PreparationArretee;
    int controle = 1; // of ControlerDecoupeD4X: from -100 down the caller steps the wire through all points
    std::vector<TronconD4X> TronconsD4X;
    std::int32_t NombreSegmentsTotal = 0; // points of the path
    ResumeGcode resume;                   // duration, speed and heat
};

// Checks the limits and builds all sections. For a run of the machine it asks at the end whether to start; an
// `Export` asks nothing.
PreparationD4X PreparerSalvesD4X(const ContexteD4X& contexte, const DecoupeD4X& decoupe, bool Export);

} // namespace tessarel
