// A 2D cut made ready for the machine: its frames, its duration, and the path that is left after a stop.
#pragma once

#include "link/liste_salves.h"
#include "work2d/decoupe2d.h"
#include "work2d/resume.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tessarel {

// Duration of a cut that could not be computed, s.
inline constexpr float DureeIncalculable = -1;

// Frames and positions in steps of the path, into `liste`; returns the duration of its segments together, s,
// or DureeIncalculable when the machine's ratios give no step count or a segment can't be run, or is slower
// than a wire may cut. `depart`: steps of the four axes where the wire stands on the first vertex; without,
// those of the vertex.
float CalculerSalvesEtDuree(const Sequence& SequenceDecoupe, std::int16_t tempo, float chauffe,
                            const TableMachine& table, ListeDeDecoupe& liste,
                            const std::optional<PasAxes>& depart = {});

struct DecoupePreparee {
    bool possible = false;                 // false: the box was shown, there is nothing to run
    std::int16_t TempoChauffeCourante = 0; // s
    ListeDeDecoupe liste;
    ResumeDecoupe2D resume;
};

// The end of each assembly: heating time, frames, summary. `depart` as above.
DecoupePreparee PreparerDecoupeTS2D(const Decoupe2D& decoupe, const OptionsDecoupe2D& options,
                                    const TableMachine& table, const std::string& nomMatiere,
                                    const std::optional<PasAxes>& depart = {});

// Way back after a stop.
enum class TrajetRetour : int {
    Direct = 0,   // straight to the origin
    ParLeBord = 1 // along the table to X = 0 first, then to the origin
};

// What is left of the path after a stop in frame `k` at `position` (steps): from the stop point on. What is
// left of the segment is not rapid, and goes at `vitesse`, mm/s, as all that is not. `k` is 2 to the number
// of vertices; another is a broken invariant.
Sequence SequenceDeReprise(const Sequence& SequenceDecoupe, std::int32_t k, const PasAxes& position,
                           float vitesse, const TableMachine& table);

// The way from the stop point to the origin at `vitesse`, mm/s. A stop on the first two segments goes
// straight back in one segment.
Sequence SequenceDeRetour(std::int32_t k, const PasAxes& position, TrajetRetour trajet, float vitesse,
                          const TableMachine& table);

} // namespace tessarel
