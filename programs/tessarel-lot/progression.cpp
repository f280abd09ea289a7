// The bar: "[######........] 3/7 name", redrawn in place.
#include "progression.h"

#include "platform/flux_standards.h"

#include <algorithm>
#include <cstdio>

namespace tessarel::lot {

namespace {

constexpr int LargeurBarre = 24;

bool g_barreVisible = false;

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
    const std::string barre = std::string(static_cast<std::size_t>(pleins), '#') +
                              std::string(static_cast<std::size_t>(LargeurBarre - pleins), '.');
    std::fprintf(stderr, "\r\033[K[%s] %d/%d %s", barre.c_str(), std::min(m_faites, m_etapes), m_etapes,
                 nom.c_str());
    std::fflush(stderr);
    g_barreVisible = true;
}

void Progression::Effacer() {
    if (!g_barreVisible) return;
    std::fputs("\r\033[K", stderr);
    std::fflush(stderr);
    g_barreVisible = false;
}

} // namespace tessarel::lot
