// The bar: "[######........] 3/7 name", redrawn in place.
#include "progression.h"

#include "platform/flux_standards.h"

#include <algorithm>

namespace tessarel::lot {

namespace {

constexpr int LargeurBarre = 24;

bool g_barreVisible = false;

void Dessiner(int pleins, const std::string& texte) {
    const std::string barre = std::string(static_cast<std::size_t>(pleins), '#') +
                              std::string(static_cast<std::size_t>(LargeurBarre - pleins), '.');
    // Never waited for: a terminal held up by a key must not hold up the machine.
    EcrireErreurSansAttendre("\r\033[K[" + barre + "] " + texte);
    g_barreVisible = true;
}

} // namespace

Progression::Progression(int etapes)
    : m_etapes(std::max(etapes, 1)), m_terminal(ErreurStandardRedessinable()) {}

Progression::~Progression() {
    Effacer();
}

void Progression::Etape(const std::string& nom) {
    if (!m_terminal) return;
    const int pleins = LargeurBarre * std::min(m_faites, m_etapes) / m_etapes;
    ++m_faites;
    Dessiner(pleins,
             std::to_string(std::min(m_faites, m_etapes)) + "/" + std::to_string(m_etapes) + " " + nom);
}

void Progression::Montrer(double part, const std::string& texte) {
    if (!ErreurStandardRedessinable()) return;
    Dessiner(static_cast<int>(LargeurBarre * std::clamp(part, 0.0, 1.0)), texte);
}

void Progression::Effacer() {
    if (!g_barreVisible) return;
    EcrireErreurSansAttendre("\r\033[K");
    g_barreVisible = false;
}

} // namespace tessarel::lot
