// The place of the wire on the drawing while the machine cuts.
#include "work2d/ui/trace_course.h"

#include "ui/canevas.h"
#include "work2d/dessin_outils.h"

#include <algorithm>

namespace tessarel {

namespace {

// The eye sees no more; the link has the rest of the time.
constexpr Instant EntreDeuxTraces = std::chrono::milliseconds(40);
// The layer of what is cut costs as much as it has points.
constexpr Instant EntreDeuxCouches = std::chrono::milliseconds(500);
// Until so many are waiting it need not be renewed.
constexpr std::size_t PointsEnAttente = 64;

} // namespace

void TraceCourse::Commencer(const Sequence& sequence, GenreDecoupe genre, bool reprise) {
    m_chemin.clear();
    m_chemin.reserve(sequence.Points.size());
    for (const PointProfil& p : sequence.Points) m_chemin.push_back({p.X, p.Y});
    if (!reprise) m_faits.clear();
    m_passes = 0;
    m_retour = genre == GenreDecoupe::Retour;
    m_enDecoupe = false;
    m_canevas.Montrer(Canevas::CoucheOutil, {});
    MontrerFaits();
}

bool TraceCourse::Avancer(const AvanceeDecoupe& avancee) {
    const bool decoupe = avancee.phase != PhaseDecoupe::Chauffe;
    const Instant maintenant = Maintenant();
    const bool change = decoupe != m_enDecoupe;
    m_enDecoupe = decoupe;
    if (!change && maintenant - m_dernierTrace < EntreDeuxTraces) return false;
    m_dernierTrace = maintenant;
    if (!decoupe) return true;
    // Frame k goes from vertex k - 1 to vertex k, counted from 1.
    const auto passes =
        std::min(static_cast<std::size_t>(std::max(avancee.NumSalveCourante - 1, 0)), m_chemin.size());
    for (; m_passes < passes; ++m_passes) m_faits.push_back(m_chemin[m_passes]);
    if (m_faits.size() - m_montres > PointsEnAttente && maintenant - m_derniereCouche >= EntreDeuxCouches) {
        m_derniereCouche = maintenant;
        MontrerFaits();
    }
    Dessin dessin;
    const std::size_t premier = m_montres == 0 ? 0 : m_montres - 1;
    DessinerDejaCoupe(dessin, std::span(m_faits).subspan(std::min(premier, m_faits.size())));
    DessinerSegmentEnCours(dessin, {avancee.XDebut, avancee.YDebut}, {avancee.X1, avancee.Y1});
    m_canevas.Montrer(Canevas::CoucheOutil, std::move(dessin));
    return true;
}

void TraceCourse::MontrerFaits() {
    Dessin dessin;
    DessinerDejaCoupe(dessin, m_faits);
    if (m_retour) DessinerTrajetRetour(dessin, m_chemin);
    m_montres = m_faits.size();
    m_canevas.Montrer(Canevas::CoucheSelection, std::move(dessin));
}

void TraceCourse::Effacer() {
    m_chemin.clear();
    m_faits.clear();
    m_passes = m_montres = 0;
    for (const Canevas::Couche couche : {Canevas::CoucheSelection, Canevas::CoucheOutil})
        m_canevas.Montrer(couche, {});
}

} // namespace tessarel
