// Signal handlers that only set a flag.
#include "signaux_fin.h"

#include <csignal>
#include <initializer_list>

namespace tessarel {

namespace {

volatile std::sig_atomic_t recus = 0;
volatile std::sig_atomic_t secondTermine = 1;

void Noter(int signal) {
    if (recus != 0 && signal == SIGINT && secondTermine != 0) {
        std::signal(signal, SIG_DFL);
        std::raise(signal);
    }
    recus = recus + 1;
}

} // namespace

void EcouterSignauxDeFin(SecondSigint second) {
    secondTermine = second == SecondSigint::Termine ? 1 : 0;
    struct sigaction action {};
    action.sa_handler = Noter; // without SA_RESTART: a wait ends
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) ::sigaction(signal, &action, nullptr);
}

bool FinDemandee() {
    return recus != 0;
}

int SignauxDeFinRecus() {
    return recus;
}

} // namespace tessarel
