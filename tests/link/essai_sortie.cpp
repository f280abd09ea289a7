// A process that ends from within while a wire is hot, each time another one: what it still sent.
#include "link/sortie.h"

#include "link/commandes.h"
#include "link/echange.h"
#include "platform/signaux_fin.h"
#include "platform/zelkocom.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

using namespace tessarel;

namespace {

struct Fin {
    std::string commandes; // one letter for each, "p" for heat off
    std::string erreurs;   // standard error
    int statut = 0;        // as waitpid gives it
};

std::string Vider(int tube) {
    std::string lu;
    char octets[4096];
    for (ssize_t n = 0; (n = ::read(tube, octets, sizeof octets)) > 0;)
        lu.append(octets, static_cast<std::size_t>(n));
    ::close(tube);
    return lu;
}

// Runs `suite` in another process, before a box that echoes the heat until it is deaf.
Fin DansUnAutre(const std::function<void(bool& sourde)>& suite) {
    int commandes[2] = {};
    int erreurs[2] = {};
    if (::pipe(commandes) != 0 || ::pipe(erreurs) != 0) return {};
    const pid_t enfant = ::fork();
    if (enfant == 0) {
        ::dup2(erreurs[1], STDERR_FILENO);
        static bool sourde = false;
        static int fil = -1;
        RemplacerZelkoCom({VersionMinimaleZelko, [] { return ZelkoBranchee; },
                           [](Tampon& t) {
                               const char lettre = t[1] == CommandeChauffe && t[2] == 0 ? 'p' : char(t[1]);
                               if (fil >= 0 && ::write(fil, &lettre, 1) != 1) ::_exit(70);
                               if (sourde) return std::int32_t{-203};
                               if (t[1] == CommandeChauffe) t[4] = t[2] == 0 ? 0 : t[3];
                               return ResultatZelkoSucces;
                           }});
        MouvementsActifs = true;
        CouperChauffe(); // what this process was left hot by another case
        fil = commandes[1];
        suite(sourde);
        ::_exit(71);
    }
    ::close(commandes[1]);
    ::close(erreurs[1]);
    Fin fin;
    fin.commandes = Vider(commandes[0]);
    fin.erreurs = Vider(erreurs[0]);
    ::waitpid(enfant, &fin.statut, 0);
    return fin;
}

} // namespace

TEST(Sortie, UnFilChaudSEteint) {
    const Fin fin = DansUnAutre([](bool&) {
        EnvoyerChauffe(153);
        std::exit(1); // as the window system does when the display is gone
    });
    EXPECT_EQ(fin.commandes, "PSp");
    EXPECT_EQ(fin.erreurs, "");
    EXPECT_TRUE(WIFEXITED(fin.statut) && WEXITSTATUS(fin.statut) == 1);
}

TEST(Sortie, UneFileEnMarcheSArrete) {
    const Fin fin = DansUnAutre([](bool&) {
        EnvoiBytes(CommandeFile, FileLancer, 0);
        std::exit(1);
    });
    EXPECT_EQ(fin.commandes, "BSp");
}

TEST(Sortie, RienNePartPourUnFilFroid) {
    EXPECT_EQ(DansUnAutre([](bool&) { std::exit(0); }).commandes, "");
    EXPECT_EQ(DansUnAutre([](bool&) {
                  EnvoyerChauffe(153);
                  CouperChauffe();
                  std::exit(0);
              }).commandes,
              "Pp");
}

TEST(Sortie, UneBoiteMuetteSeDit) {
    const Fin fin = DansUnAutre([](bool& sourde) {
        EnvoyerChauffe(153);
        sourde = true;
        std::exit(1);
    });
    EXPECT_EQ(fin.commandes, "PSpSpSpSpSp");
    EXPECT_NE(fin.erreurs.find("la chauffe n'est pas coupée"), std::string::npos) << fin.erreurs;
}

#ifndef __SANITIZE_ADDRESS__
TEST(Sortie, UnPlantageEteintDAbord) {
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT}) {
        const Fin fin = DansUnAutre([signal](bool&) {
            EcouterPlantages([] { EteindreEnSortant(); });
            EnvoyerChauffe(153);
            std::raise(signal);
        });
        EXPECT_EQ(fin.commandes, "PSp") << signal;
        EXPECT_TRUE(WIFSIGNALED(fin.statut) && WTERMSIG(fin.statut) == signal) << signal;
    }
}

TEST(Sortie, UnPlantageDuSecoursFinitToutDeMeme) {
    const Fin fin = DansUnAutre([](bool&) {
        EcouterPlantages([] { std::raise(SIGSEGV); });
        std::raise(SIGSEGV);
    });
    EXPECT_TRUE(WIFSIGNALED(fin.statut) && WTERMSIG(fin.statut) == SIGSEGV);
}
#endif
