// The run of the box: frames one after the other, tick by tick in the eyes of the machine, in one computation
// each here; and what stops them.
#include "link/simulateur/boite.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tessarel::simulateur {

namespace {

constexpr std::uint32_t Jamais = std::numeric_limits<std::uint32_t>::max();
constexpr bool EstY(std::size_t axe) {
    return axe % 2 == 1;
}

} // namespace

void BoiteZelko::AvancerJusqua(std::uint64_t horloge) {
    while (m_etatFile == EtatFile::EnMarche) {
        if (!m_enCours && !CommencerSalve()) break;
        if (!m_pannes.empty()) SuivreMarche();
        if (m_etatFile != EtatFile::EnMarche) break;
        if (m_deroulement.Ticks() >= m_salve.ticks) {
            FinirSalve();
            continue;
        }
        if (m_horloge >= horloge) break;
        m_horloge += m_deroulement.Avancer(horloge - m_horloge, TickNotable());
        VerifierBoucles();
    }
    m_horloge = std::max(m_horloge, horloge);
}

// What a command has made possible at this very moment.
void BoiteZelko::Enchainer() {
    AvancerJusqua(m_horloge);
}

// False when there is none to run: the queue is empty, or the list has ended.
bool BoiteZelko::CommencerSalve() {
    if (m_enFile == 0) {
        if (!m_famine) {
            ++m_comptes.famines;
            Noter(Evenement::Famine);
        }
        m_famine = true;
        return false;
    }
    m_famine = false;
    const SalveBoite suivante = m_file[m_tete];
    m_tete = (m_tete + 1) % m_file.size();
    --m_enFile;
    if (suivante.EstFinDeListe()) {
        Arreter(FinMouvement::FinDeListe);
        return false;
    }
    m_salve = suivante;
    m_deroulement.Preparer(m_salve, m_ram.frequence, m_ram.pente);
    m_enCours = true;
    ++m_numero;
    Noter(Evenement::DebutSalve, m_numero);
    ChercherOuvertures();
    VerifierBoucles();
    if (m_etatFile != EtatFile::EnMarche) return false;
    if (m_salve.EstPause()) ChaufferA(m_salve.niveauDepart, NoteChauffe::Cause::Pause);
    for (std::size_t a = 0; a < NombreAxes; ++a)
        if (m_salve.ticks > 0 && m_salve.Pas(a) > m_salve.ticks)
            Noter(Evenement::VitesseImpossible, static_cast<std::int64_t>(a));
    return true;
}

void BoiteZelko::FinirSalve() {
    const PositionPas fin = Position();
    for (std::size_t a = 0; a < NombreAxes; ++a)
        m_comptes.pas[a] += static_cast<std::uint64_t>(std::abs(fin[a] - m_base[a]));
    m_base = fin;
    m_enCours = false;
    ++m_comptes.salvesFinies;
    NoterPoint(PointTrajet::Genre::FinSalve);
}

// Ends run or filling where things are: number and ticks stay readable, the rest of the list is thrown away.
void BoiteZelko::Arreter(FinMouvement fin) {
    const PositionPas ici = Position();
    for (std::size_t a = 0; a < NombreAxes; ++a)
        m_comptes.pas[a] += static_cast<std::uint64_t>(std::abs(ici[a] - m_base[a]));
    const bool marchait = m_etatFile == EtatFile::EnMarche;
    m_base = ici;
    m_enCours = false;
    m_etatFile = EtatFile::Repos;
    m_enFile = 0;
    m_fin = fin;
    if (marchait) {
        m_horlogeMouvement = m_horloge;
        NoterPoint(PointTrajet::Genre::Arret, fin);
        if (m_moteursAEteindre) AllumerMoteurs(false);
    }
    Noter(Evenement::Fin, static_cast<std::int64_t>(fin));
}

// Next tick of the frame at which more happens than steps.
std::uint32_t BoiteZelko::TickNotable() const {
    std::uint32_t tick = m_salve.ticks;
    if (m_ram.switchs) {
        tick = std::min(tick, m_tickFinCourse);
        if (!m_modeOrigine) tick = std::min(tick, m_tickOrigine);
    }
    if (!m_pannes.empty()) tick = std::min(tick, TickPanne());
    return std::max(tick, m_deroulement.Ticks() + 1);
}

// First ticks of the frame at which an axis passes its origin or its limit switch.
void BoiteZelko::ChercherOuvertures() {
    m_tickOrigine = Jamais;
    m_tickFinCourse = Jamais;
    if (m_salve.ticks == 0) return;
    for (std::size_t a = 0; a < NombreAxes; ++a) {
        const std::uint32_t pas = m_salve.Pas(a);
        if (!m_borne[a] || pas == 0) continue;
        // Towards the origin, which lies at the low end but for a Y with its origin at the top.
        const int versOrigine = m_mecanique.origineEnHaut && EstY(a) ? 1 : -1;
        const bool origine = m_salve.Sens(a) == versOrigine;
        const std::int64_t distance = (origine ? m_borneOrigine[a] : m_borneFin[a]) - m_base[a];
        const std::int64_t duPas = distance * m_salve.Sens(a) + 1; // the first step beyond
        if (duPas < 1 || duPas > pas) continue;
        std::uint32_t& tick = origine ? m_tickOrigine : m_tickFinCourse;
        tick =
            std::min(tick, TickDuPas(m_salve.doublePas[a], static_cast<std::uint32_t>(duPas), m_salve.ticks));
    }
}

// Stops a run whose loop is open. On the last tick of a frame the next one finds it open at its start, so
// that number and ticks left tell the place exactly.
void BoiteZelko::VerifierBoucles() {
    if (m_etatFile != EtatFile::EnMarche || !m_ram.switchs) return;
    if (m_enCours && m_salve.ticks > 0 && m_deroulement.Ticks() >= m_salve.ticks) return;
    if (FinCourseOuverte()) {
        Arreter(FinMouvement::InterrupteurFinCourse);
    } else if (!m_modeOrigine && OrigineOuverte()) {
        Arreter(FinMouvement::InterrupteurOrigine);
    }
}

void BoiteZelko::CalculerBornes() {
    for (std::size_t a = 0; a < NombreAxes; ++a) {
        const double pasParMm = m_ram.pasParMm[a];
        const double course = EstY(a) ? m_mecanique.courseY : m_mecanique.courseX;
        const std::int64_t bout = std::llround(course * pasParMm);
        const std::int64_t marge = std::llround(m_mecanique.margeFinDeCourse * pasParMm);
        const bool enHaut = m_mecanique.origineEnHaut && EstY(a);
        m_borne[a] = m_ram.switchs && m_ram.axePresent[a] && m_ram.pasParMm[a] > 0;
        m_borneOrigine[a] = enHaut ? bout + m_ram.pasOrigine[a] : -m_ram.pasOrigine[a];
        m_borneFin[a] = enHaut ? -marge : bout + marge;
    }
    if (m_enCours) ChercherOuvertures();
}

bool BoiteZelko::OrigineOuverte() const {
    if (m_commutateurs.origineForcee) return true;
    const PositionPas p = Position();
    for (std::size_t a = 0; a < NombreAxes; ++a) {
        const bool enHaut = m_mecanique.origineEnHaut && EstY(a);
        if (m_borne[a] && (enHaut ? p[a] > m_borneOrigine[a] : p[a] < m_borneOrigine[a])) return true;
    }
    return false;
}

bool BoiteZelko::FinCourseOuverte() const {
    if (m_commutateurs.finCourseForcee) return true;
    const PositionPas p = Position();
    for (std::size_t a = 0; a < NombreAxes; ++a) {
        const bool enHaut = m_mecanique.origineEnHaut && EstY(a);
        if (m_borne[a] && (enHaut ? p[a] < m_borneFin[a] : p[a] > m_borneFin[a])) return true;
    }
    return false;
}

void BoiteZelko::NoterPoint(PointTrajet::Genre genre, FinMouvement fin) {
    if (m_trajet.size() == TrajetMax) {
        m_trajet.erase(m_trajet.begin(), m_trajet.begin() + TrajetMax / 2);
        m_trajetOublies += TrajetMax / 2;
    }
    m_trajet.push_back({genre, fin, m_pwmFil, m_numero, m_deroulement.Ticks(), Position()});
    m_dejaBouge = true;
}

} // namespace tessarel::simulateur
