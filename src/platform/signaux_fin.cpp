// Signal handlers that only set a flag.
#include "signaux_fin.h"

#include <csignal>
#include <initializer_list>

namespace tessarel {

namespace {

volatile std::sig_atomic_t demandee = 0;

void Noter(int signal) {
    if (demandee != 0 && signal == SIGINT) {
        std::signal(signal, SIG_DFL);
        std::raise(signal);
    }
    demandee = 1;
}

} // namespace

void EcouterSignauxDeFin() {
    struct sigaction action {};
    action.sa_handler = Noter; // without SA_RESTART: a wait ends
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) ::sigaction(signal, &action, nullptr);
}

bool FinDemandee() {
    return demandee != 0;
}

} // namespace tessarel
