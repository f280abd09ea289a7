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

void EcouterSignauxDeFin(SecondSigint second, Suspension suspension) {
    recus = 0;
    secondTermine = second == SecondSigint::Termine ? 1 : 0;
    struct sigaction noter {};
    noter.sa_handler = Noter; // without SA_RESTART: a wait ends
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) ::sigaction(signal, &noter, nullptr);
    struct sigaction ignorer {};
    ignorer.sa_handler = SIG_IGN;
    if (second == SecondSigint::Compte) {
        ::sigaction(SIGQUIT, &noter, nullptr);
        for (const int signal : {SIGPIPE, SIGTTIN, SIGTTOU}) ::sigaction(signal, &ignorer, nullptr);
    }
    if (suspension != Suspension::Ordinaire)
        ::sigaction(SIGTSTP, suspension == Suspension::Notee ? &noter : &ignorer, nullptr);
}

bool FinDemandee() {
    return recus != 0;
}

int SignauxDeFinRecus() {
    return recus;
}

} // namespace tessarel
