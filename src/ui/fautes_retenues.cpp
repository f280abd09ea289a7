// Keeps a fault from the handler in which it arose to the loop that let the handler run.
#include "ui/fautes_retenues.h"

#include <utility>

namespace tessarel {

namespace {

struct Retenue {
    std::exception_ptr faute;
    OrigineFaute origine;
};

int g_tours = 0;    // turns under way, one inside another
Retenue g_attend;   // kept in one of them
Retenue g_derniere; // thrown last
std::function<void()> g_suite;

class Tour {
public:
    Tour() { ++g_tours; }
    ~Tour() { --g_tours; }
    Tour(const Tour&) = delete;
    Tour& operator=(const Tour&) = delete;
};

} // namespace

void PasserEvenements(const std::function<void()>& passer) {
    {
        const Tour tour;
        passer();
    }
    if (!g_attend.faute) return;
    g_derniere = std::exchange(g_attend, {});
    std::rethrow_exception(g_derniere.faute);
}

bool RetenirFaute(const std::exception_ptr& faute, OrigineFaute origine) {
    if (g_tours == 0) return false;
    if (!g_attend.faute) g_attend = {faute, std::move(origine)};
    return true;
}

OrigineFaute OrigineDe(const std::exception_ptr& faute, const OrigineFaute& defaut) {
    return g_derniere.faute && faute == g_derniere.faute ? g_derniere.origine : defaut;
}

void DireApresLaFaute(std::function<void()> dire) {
    g_suite = std::move(dire);
}

void DireLaSuiteDeLaFaute() {
    if (const auto dire = std::exchange(g_suite, {})) dire();
}

} // namespace tessarel
