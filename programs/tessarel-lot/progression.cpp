// The bar: "[######........] 3/7 name", redrawn in place.
#include "progression.h"

#include "platform/flux_standards.h"

#include <algorithm>
#include <cstdio>

namespace tessarel::lot {

namespace {

constexpr int LargeurBarre = 24;

bool g_barreVisible = false;

void Dessiner(int pleins, const std::string& texte) {
    const std::string barre = std::string(static_cast<std::size_t>(pleins), '#') +
                              std::string(static_cast<std::size_t>(LargeurBarre - pleins), '.');
    std::fprintf(stderr, "\r\033[K[%s] %s", barre.c_str(), texte.c_str());
    std::fflush(stderr);
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
    std::fputs("\r\033[K", stderr);
    std::fflush(stderr);
    g_barreVisible = false;
}

} // namespace tessarel::lot
