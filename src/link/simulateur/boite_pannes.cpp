// When the faults on demand strike, and what they do.
#include "link/simulateur/boite.h"

#include <algorithm>
#include <limits>

namespace tessarel::simulateur {

void BoiteZelko::Programmer(const PanneProgrammee& panne) {
    Actualiser();
    PanneSuivie suivie;
    suivie.reglage = panne;
    m_pannes.push_back(suivie);
    // Numbers of exchanges count from the making of the box; one that is past strikes the next.
    if (panne.echange == 0 && panne.salve == 0) Activer(m_pannes.back(), m_comptes.echanges + 1);
    std::erase_if(m_pannes, [](const PanneSuivie& p) { return p.finie; });
    Enchainer();
}

void BoiteZelko::OublierPannes() {
    Actualiser();
    for (PanneSuivie& p : m_pannes)
        if (p.active) Cesser(p);
    m_pannes.clear();
}

bool BoiteZelko::EnMarcheJusqua(const PanneProgrammee& p) const {
    return m_etatFile == EtatFile::EnMarche &&
           (m_numero > p.salve ||
            (m_numero == p.salve && m_deroulement.Ticks() >= std::min(p.tick, m_salve.ticks)));
}

// `premier` is the first exchange that it strikes, where it strikes exchanges.
void BoiteZelko::Activer(PanneSuivie& p, std::uint64_t premier) {
    p.active = true;
    p.depuis = m_dernier;
    p.restants = p.reglage.fois;
    p.retablieA = premier + p.reglage.retablieApresEchanges;
    if (EstPanneDEchange(p.reglage.panne)) return;
    Noter(Evenement::PanneSurvient, static_cast<std::int64_t>(p.reglage.panne));
    Appliquer(p.reglage.panne, true);
    const bool durable = p.reglage.retablieApresEchanges > 0 || p.reglage.retablieApres > Instant{0};
    if (p.reglage.panne == Panne::BoutonStop || !durable) p.finie = true; // nothing more to follow
}

void BoiteZelko::Cesser(PanneSuivie& p) {
    p.finie = true;
    if (EstPanneDEchange(p.reglage.panne)) return;
    Appliquer(p.reglage.panne, false);
    Noter(Evenement::PanneCesse, static_cast<std::int64_t>(p.reglage.panne));
}

void BoiteZelko::Appliquer(Panne panne, bool survient) {
    Commutateurs c = m_commutateurs;
    switch (panne) {
    case Panne::Debranchement:
        m_branchee = !survient;
        return;
    case Panne::CoupureCourant:
        ChangerTension(!survient);
        return;
    case Panne::BoutonStop:
        SubirStop();
        return;
    case Panne::OrigineOuverte:
        c.origineForcee = survient;
        break;
    case Panne::FinCourseOuverte:
        c.finCourseForcee = survient;
        break;
    case Panne::ChauffeManu:
        c.chauffeManu = survient;
        break;
    case Panne::ChauffeEteinte:
        c.chauffeEteinte = survient;
        break;
    default:
        return;
    }
    ChangerCommutateurs(c);
}

// One more exchange begins: counts it, wakes what waited for its number, ends what was to last until here.
void BoiteZelko::SuivreEchange(std::uint8_t commande) {
    ++m_comptes.echanges;
    if (m_pannes.empty()) return;
    for (PanneSuivie& p : m_pannes) {
        const PanneProgrammee& r = p.reglage;
        if (p.active) {
            if (!EstPanneDEchange(r.panne) && r.retablieApresEchanges > 0 &&
                m_comptes.echanges >= p.retablieA)
                Cesser(p);
            continue;
        }
        const bool concerne = r.commande == 0 || r.commande == commande;
        if (concerne) ++p.vus;
        const std::uint64_t vus = r.commande == 0 ? m_comptes.echanges : p.vus;
        if (r.echange > 0 ? concerne && vus >= r.echange : EnMarcheJusqua(r)) Activer(p, m_comptes.echanges);
    }
    std::erase_if(m_pannes, [](const PanneSuivie& p) { return p.finie; });
}

// Faults that wait for a place in the run.
void BoiteZelko::SuivreMarche() {
    for (std::size_t i = 0; i < m_pannes.size(); ++i) {
        PanneSuivie& p = m_pannes[i];
        if (!p.active && p.reglage.echange == 0 && EnMarcheJusqua(p.reglage))
            Activer(p, m_comptes.echanges + 1);
    }
    std::erase_if(m_pannes, [](const PanneSuivie& p) { return p.finie; });
}

void BoiteZelko::SuivreTemps() {
    for (PanneSuivie& p : m_pannes)
        if (p.active && p.reglage.retablieApres > Instant{0} &&
            m_dernier - p.depuis >= p.reglage.retablieApres)
            Cesser(p);
    std::erase_if(m_pannes, [](const PanneSuivie& p) { return p.finie; });
}

// Next tick of the frame under way at which one strikes.
std::uint32_t BoiteZelko::TickPanne() const {
    std::uint32_t tick = std::numeric_limits<std::uint32_t>::max();
    for (const PanneSuivie& p : m_pannes) {
        const PanneProgrammee& r = p.reglage;
        if (!p.active && r.echange == 0 && r.salve == m_numero && r.tick > m_deroulement.Ticks())
            tick = std::min(tick, r.tick);
    }
    return tick;
}

// True when this exchange is struck by this kind of fault; tells its settings.
bool BoiteZelko::FrappeEchange(Panne panne, std::uint8_t commande, PanneProgrammee* reglage) {
    const auto p = std::ranges::find_if(m_pannes, [&](const PanneSuivie& s) {
        return s.active && s.reglage.panne == panne &&
               (s.reglage.commande == 0 || s.reglage.commande == commande);
    });
    if (p == m_pannes.end()) return false;
    if (reglage != nullptr) *reglage = p->reglage;
    Noter(Evenement::PanneSurvient, static_cast<std::int64_t>(panne));
    if (p->restants > 0 && --p->restants == 0) m_pannes.erase(p);
    return true;
}

} // namespace tessarel::simulateur
