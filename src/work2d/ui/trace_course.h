// The place of the wire on the drawing while the machine cuts.
#pragma once

#include "platform/dessin.h"
#include "platform/horloge.h"
#include "work2d/decoupe_interface.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace tessarel {

class Canevas;

// Draws over the path, which is left as it is: what is already cut in one layer, which grows, and in another
// the segment under way and the wire. A step paints again what has moved, and no more.
class TraceCourse {
public:
    explicit TraceCourse(Canevas& canevas) : m_canevas(canevas) {}

    // A new run along `sequence`; `reprise`: what was cut before stays on the drawing, and the wire where it
    // stopped. The way of a return is drawn, as it is no part of the path.
    void Commencer(const Sequence& sequence, GenreDecoupe genre, bool reprise);
    // True when it was time to show it; what is not shown counts with the next one.
    bool Avancer(const AvanceeDecoupe& avancee);
    // Shows the last one that was not, where there is one, and gives it.
    std::optional<AvanceeDecoupe> Rattraper();
    // The run stands in frame `numero`, the wire at `fil`, mm. It stays there until one that goes on moves
    // it.
    void Arreter(std::int32_t numero, PointDessin fil);
    void Effacer();

    [[nodiscard]] const std::vector<PointDessin>& DejaCoupe() const { return m_faits; }

private:
    void MontrerFaits();
    void MontrerFil();
    void Passer(std::int32_t numero);
    void MontrerAvancee(const AvanceeDecoupe& avancee);

    Canevas& m_canevas;
    std::vector<PointDessin> m_chemin; // of this run
    std::vector<PointDessin>
        m_faits; // where the wire has passed: vertices and stops of all runs since the start
    std::optional<PointDessin> m_fil; // where it stands, while it does not move
    std::size_t m_passes = 0;         // of this run's vertices
    bool m_retour = false;
    bool m_enDecoupe = false;
    Instant m_dernierTrace{};
    std::optional<AvanceeDecoupe> m_attendue; // not shown yet
};

} // namespace tessarel
