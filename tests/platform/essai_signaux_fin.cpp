// Signals that would end or halt a program while a wire is hot: each in a process of its own.
#include "platform/flux_standards.h"
#include "platform/signaux_fin.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace tessarel {
namespace {

// What became of a process that ran `suite` and gave back its number of signals: -1 when it was halted or
// ended by a signal instead.
template <typename Suite>
int DansUnAutre(const Suite& suite) {
    const pid_t enfant = ::fork();
    if (enfant == 0) {
        ::setpgid(0, 0); // whatever halts it halts nobody else
        suite();
        std::_Exit(SignauxDeFinRecus());
    }
    int statut = 0;
    if (::waitpid(enfant, &statut, WUNTRACED) != enfant) return -1;
    if (WIFSTOPPED(statut)) {
        ::kill(enfant, SIGKILL);
        ::waitpid(enfant, &statut, 0);
        return -1;
    }
    return WIFEXITED(statut) ? WEXITSTATUS(statut) : -1;
}

TEST(SignauxFin, UnSignalDeFinEstCompte) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGTSTP})
        EXPECT_EQ(DansUnAutre([signal] {
                      EcouterSignauxDeFin(SecondSigint::Compte, Suspension::Notee);
                      std::raise(signal);
                      std::raise(signal);
                  }),
                  2)
            << signal;
}

TEST(SignauxFin, LeTerminalDUnAutreNArreteRien) {
    for (const int signal : {SIGTTIN, SIGTTOU, SIGPIPE, SIGTSTP})
        EXPECT_EQ(DansUnAutre([signal] {
                      EcouterSignauxDeFin(SecondSigint::Compte, Suspension::Ignoree);
                      std::raise(signal);
                  }),
                  0)
            << signal;
}

TEST(SignauxFin, SansFilAMenagerToutResteOrdinaire) {
    for (const int signal : {SIGQUIT, SIGPIPE})
        EXPECT_EQ(DansUnAutre([signal] {
                      EcouterSignauxDeFin();
                      std::raise(signal);
                  }),
                  -1)
            << signal;
    EXPECT_EQ(DansUnAutre([] {
                  EcouterSignauxDeFin();
                  std::raise(SIGINT);
                  std::raise(SIGINT); // the second ends it
              }),
              -1);
}

// A pipe that is full: what it does not take is not waited for, and the next one that reads finds no hole.
TEST(FluxStandards, UneErreurQueNulNeLitNeFaitPasAttendre) {
    int tube[2] = {};
    ASSERT_EQ(::pipe(tube), 0);
    const int lu = DansUnAutre([&tube] {
        ::alarm(10); // were it to wait
        ::dup2(tube[1], STDERR_FILENO);
        const std::string ligne(1000, 'x');
        std::size_t ecrits = 0, dernier = 0;
        do {
            dernier = EcrireErreurSansAttendre(ligne);
            ecrits += dernier;
        } while (dernier > 0 && ecrits < 10'000'000);
        if (ecrits < 1000 || ecrits >= 10'000'000) std::_Exit(101);
        std::string place(ecrits, ' ');
        ::fcntl(tube[0], F_SETFL, O_NONBLOCK);
        if (::read(tube[0], place.data(), place.size()) != static_cast<ssize_t>(ecrits)) std::_Exit(102);
        if (EcrireErreurSansAttendre("suite") != 5) std::_Exit(103);
        // Whoever shares the stream finds it as it was.
        if ((::fcntl(STDERR_FILENO, F_GETFL) & O_NONBLOCK) != 0) std::_Exit(104);
    });
    EXPECT_EQ(lu, 0);
    ::close(tube[0]);
    ::close(tube[1]);
}

} // namespace
} // namespace tessarel
