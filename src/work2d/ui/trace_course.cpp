// The place of the wire on the drawing while the machine cuts.
#include "work2d/ui/trace_course.h"

#include "ui/canevas.h"
#include "work2d/dessin_outils.h"

#include <algorithm>
#include <span>

namespace tessarel {

namespace {

// The eye sees no more; the link has the rest of the time.
constexpr Instant EntreDeuxTraces = std::chrono::milliseconds(50);

} // namespace

void TraceCourse::Commencer(const Sequence& sequence, GenreDecoupe genre, bool reprise) {
    m_chemin.clear();
    m_chemin.reserve(sequence.Points.size());
    for (const PointProfil& p : sequence.Points) m_chemin.push_back({p.X, p.Y});
    if (!reprise) {
        m_faits.clear();
        m_fil.reset();
    }
    m_passes = 0;
    m_retour = genre == GenreDecoupe::Retour;
    m_enDecoupe = false;
    m_attendue.reset();
    MontrerFaits();
    MontrerFil();
}

bool TraceCourse::Avancer(const AvanceeDecoupe& avancee) {
    const bool decoupe = avancee.phase != PhaseDecoupe::Chauffe;
    const Instant maintenant = Maintenant();
    const bool change = decoupe != m_enDecoupe;
    m_enDecoupe = decoupe;
    if (!change && maintenant - m_dernierTrace < EntreDeuxTraces) {
        m_attendue = avancee;
        return false;
    }
    m_dernierTrace = maintenant;
    MontrerAvancee(avancee);
    return true;
}

std::optional<AvanceeDecoupe> TraceCourse::Rattraper() {
    const std::optional<AvanceeDecoupe> attendue = m_attendue;
    if (attendue) MontrerAvancee(*attendue);
    return attendue;
}

void TraceCourse::MontrerAvancee(const AvanceeDecoupe& avancee) {
    m_attendue.reset();
    if (avancee.phase == PhaseDecoupe::Chauffe) return;
    Passer(avancee.NumSalveCourante);
    Dessin dessin;
    DessinerSegmentEnCours(dessin, {avancee.XDebut, avancee.YDebut}, {avancee.X1, avancee.Y1});
    m_canevas.Montrer(Canevas::CoucheOutil, std::move(dessin));
}

void TraceCourse::Arreter(std::int32_t numero, PointDessin fil) {
    Passer(numero);
    m_faits.push_back(fil);
    m_canevas.Prolonger(Canevas::CoucheSelection, std::span(&fil, 1));
    m_fil = fil;
    MontrerFil();
}

// Frame k goes from vertex k - 1 to vertex k, counted from 1.
void TraceCourse::Passer(std::int32_t numero) {
    const auto passes = std::min(static_cast<std::size_t>(std::max(numero - 1, 0)), m_chemin.size());
    if (passes <= m_passes) return;
    const auto neufs = std::span(m_chemin).subspan(m_passes, passes - m_passes);
    m_faits.insert(m_faits.end(), neufs.begin(), neufs.end());
    m_passes = passes;
    m_canevas.Prolonger(Canevas::CoucheSelection, neufs);
}

// No segment is under way: the ring alone.
void TraceCourse::MontrerFil() {
    Dessin dessin;
    if (m_fil) DessinerSegmentEnCours(dessin, *m_fil, *m_fil);
    m_canevas.Montrer(Canevas::CoucheOutil, std::move(dessin));
}

void TraceCourse::MontrerFaits() {
    Dessin dessin;
    if (m_retour) DessinerTrajetRetour(dessin, m_chemin);
    DessinerDejaCoupe(dessin, m_faits); // the last one: it grows
    m_canevas.Montrer(Canevas::CoucheSelection, std::move(dessin));
}

void TraceCourse::Effacer() {
    m_chemin.clear();
    m_faits.clear();
    m_passes = 0;
    m_fil.reset();
    for (const Canevas::Couche couche : {Canevas::CoucheSelection, Canevas::CoucheOutil})
        m_canevas.Montrer(couche, {});
}

} // namespace tessarel
