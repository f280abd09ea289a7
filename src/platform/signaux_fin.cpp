// Signal handlers that only set a flag.
#include "signaux_fin.h"

#include <csignal>
#include <initializer_list>
#include <unistd.h>

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

void (*secoursDuPlantage)() = nullptr;

// The handler of each of these signals is the system's own again by now: a crash in here ends the program.
[[maybe_unused]] void Planter(int signal) {
    constexpr unsigned secondesAuPlus = 3;
    ::alarm(secondesAuPlus);
    secoursDuPlantage();
    std::raise(signal);
}

} // namespace

void EcouterPlantages(void (*secours)()) {
#ifndef __SANITIZE_ADDRESS__ // which tells of a crash itself
    secoursDuPlantage = secours;
    // A place of its own: the usual one may have overflowed.
    static char place[65536];
    stack_t pile{};
    pile.ss_sp = place;
    pile.ss_size = sizeof place;
    ::sigaltstack(&pile, nullptr);
    struct sigaction planter {};
    planter.sa_handler = Planter;
    planter.sa_flags = static_cast<int>(SA_RESETHAND | SA_NODEFER | SA_ONSTACK);
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT})
        ::sigaction(signal, &planter, nullptr);
#else
    static_cast<void>(secours);
#endif
}

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
