// The place of the wire on the drawing while the machine cuts.
#pragma once

#include "platform/dessin.h"
#include "platform/horloge.h"
#include "work2d/decoupe_interface.h"

#include <cstddef>
#include <vector>

namespace tessarel {

class Canevas;

// Draws over the path, which is left as it is: what is already cut in one layer, which grows, and in another
// the segment under way and the wire. A step paints again what has moved, and no more.
class TraceCourse {
public:
    explicit TraceCourse(Canevas& canevas) : m_canevas(canevas) {}

    // A new run along `sequence`; `reprise`: what was cut before stays on the drawing. The way of a return is
    // drawn, as it is no part of the path.
    void Commencer(const Sequence& sequence, GenreDecoupe genre, bool reprise);
    // True when it was time to show it; what is not shown counts with the next one.
    bool Avancer(const AvanceeDecoupe& avancee);
    void Effacer();

    [[nodiscard]] const std::vector<PointDessin>& DejaCoupe() const { return m_faits; }

private:
    void MontrerFaits();

    Canevas& m_canevas;
    std::vector<PointDessin> m_chemin; // of this run
    std::vector<PointDessin> m_faits;  // vertices that the wire has passed, of all runs since the start
    std::size_t m_passes = 0;          // of this run's vertices
    bool m_retour = false;
    bool m_enDecoupe = false;
    Instant m_dernierTrace{};
};

} // namespace tessarel
