// Child processes: what they get and give, and how they are stopped.
#include "platform/processus.h"

#include "outils/dossiers.h"
#include "outils/processeur.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <sched.h>
#include <stdexcept>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using namespace tessarel;

namespace {

LimitesProcessus Limites(double secondes = 5) {
    LimitesProcessus l;
    l.secondes = secondes;
    l.octetsSortie = 1U << 20U;
    l.octetsMemoire = std::size_t{1} << 30U;
    return l;
}

struct Execution {
    ResultatProcessus resultat;
    std::string sortie;
};

Execution Executer(const std::vector<std::string>& commande, std::string_view entree,
                   const LimitesProcessus& limites) {
    Execution e;
    const std::array<std::string_view, 1> morceaux = {entree};
    e.resultat = ExecuterProcessus(commande, morceaux, limites, [&](std::string_view m) { e.sortie += m; });
    return e;
}

double Duree(const std::function<void()>& travail) {
    const auto debut = std::chrono::steady_clock::now();
    travail();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count();
}

// All on one processor, where others never stop counting, for as long as it lives.
class ProcesseurOccupe {
public:
    explicit ProcesseurOccupe(int occupants) {
        sched_getaffinity(0, sizeof m_avant, &m_avant);
        int premier = 0;
        while (!CPU_ISSET(premier, &m_avant)) ++premier;
        cpu_set_t un;
        CPU_ZERO(&un);
        CPU_SET(premier, &un);
        sched_setaffinity(0, sizeof un, &un);
        for (int i = 0; i < occupants; ++i) {
            const pid_t pid = fork();
            if (pid == 0)
                for (volatile unsigned compte = 0;;) compte = compte + 1;
            m_occupants.push_back(pid);
        }
    }
    ~ProcesseurOccupe() {
        for (const pid_t pid : m_occupants) kill(pid, SIGKILL);
        for (const pid_t pid : m_occupants) waitpid(pid, nullptr, 0);
        sched_setaffinity(0, sizeof m_avant, &m_avant);
    }
    ProcesseurOccupe(const ProcesseurOccupe&) = delete;
    ProcesseurOccupe& operator=(const ProcesseurOccupe&) = delete;

private:
    cpu_set_t m_avant{};
    std::vector<pid_t> m_occupants;
};

} // namespace

TEST(Processus, LEntreeArriveEtLaSortieRevient) {
    const std::array<std::string_view, 3> morceaux = {"un ", "", "deux"};
    std::string sortie;
    const auto r =
        ExecuterProcessus({"/bin/cat"}, morceaux, Limites(), [&](std::string_view m) { sortie += m; });
    EXPECT_EQ(r.fin, FinProcessus::Terminee);
    EXPECT_EQ(r.statut, 0);
    EXPECT_EQ(sortie, "un deux");
}

TEST(Processus, LesArgumentsPassentSansInterprete) {
    const std::string retors = "a' \"b\" $(touch x); é\n*";
    EXPECT_EQ(Executer({"/usr/bin/printf", "%s", retors}, "", Limites()).sortie, retors);
}

TEST(Processus, LeStatutEstCeluiDuProgramme) {
    EXPECT_EQ(Executer({"/bin/sh", "-c", "exit 7"}, "", Limites()).resultat.statut, 7);
}

TEST(Processus, UnSignalNEstPasUneFin) {
    EXPECT_EQ(Executer({"/bin/sh", "-c", "kill -SEGV $$"}, "", Limites()).resultat.fin, FinProcessus::Tombee);
}

TEST(Processus, LaBoucleSansFinEstArretee) {
    const double avant = essais::SecondesDesEnfants();
    EXPECT_EQ(Executer({"/bin/sh", "-c", "while :; do :; done"}, "", Limites(0.2)).resultat.fin,
              FinProcessus::TempsDepasse);
    EXPECT_LT(essais::SecondesDesEnfants() - avant, 1); // by the processor: the clock is anybody's
}

// With a twentieth of a processor the work takes twenty times as long, by the clock twice what it may.
TEST(Processus, LAttenteDuProcesseurNEstPasComptee) {
    if (!FichierExiste("/proc/self/schedstat")) GTEST_SKIP() << "this system does not count waits";
    const std::vector<std::string> travail = {"/bin/sh", "-c",
                                              "i=0; while [ $i -lt 60000 ]; do i=$((i+1)); done"};
    const double avant = essais::SecondesDesEnfants();
    ASSERT_EQ(Executer(travail, "", Limites()).resultat.fin, FinProcessus::Terminee);
    const double secondes = 4 * (essais::SecondesDesEnfants() - avant);
    const ProcesseurOccupe occupe(20);
    FinProcessus fin{};
    const double duree = Duree([&] { fin = Executer(travail, "", Limites(secondes)).resultat.fin; });
    EXPECT_EQ(fin, FinProcessus::Terminee);
    EXPECT_GT(duree, secondes * RapportHorloge); // else nothing was tried
}

TEST(Processus, LAttenteSansFinEstArreteeParLHorloge) {
    EXPECT_EQ(Executer({"/bin/sleep", "60"}, "", Limites(0.05)).resultat.fin, FinProcessus::TempsDepasse);
}

TEST(Processus, LaSortieFermeeNeFaitPasAttendrePlusLongtemps) {
    EXPECT_EQ(Executer({"/bin/sh", "-c", "exec >&-; sleep 60"}, "", Limites(0.05)).resultat.fin,
              FinProcessus::TempsDepasse);
}

TEST(Processus, LaSortieSansFinEstArretee) {
    LimitesProcessus l = Limites();
    l.octetsSortie = 100000;
    const Execution e = Executer({"/bin/sh", "-c", "while :; do echo bavard; done"}, "", l);
    EXPECT_EQ(e.resultat.fin, FinProcessus::SortieTropLongue);
    EXPECT_LE(e.sortie.size(), 100000U);
}

TEST(Processus, LaMemoireEstLimitee) {
    LimitesProcessus l = Limites();
    l.octetsMemoire = 64U << 20U;
    // One block of 256 MiB.
    const Execution e =
        Executer({"/bin/dd", "if=/dev/zero", "of=/dev/null", "bs=268435456", "count=1"}, "", l);
    EXPECT_NE(e.resultat.statut, 0);
}

TEST(Processus, LeGroupeEntierTombeAvecLEnfant) {
    // The grandchild says its number, then sleeps; it keeps no hold of the output.
    const Execution e = Executer({"/bin/sh", "-c", "sleep 60 >/dev/null & echo $!"}, "", Limites());
    EXPECT_EQ(e.resultat.fin, FinProcessus::Terminee);
    const pid_t petitEnfant = std::stoi(e.sortie);
    // Killed, it may still wait for its reaper for a moment.
    for (int i = 0; i < 200 && kill(petitEnfant, 0) == 0; ++i)
        Executer({"/bin/sleep", "0.01"}, "", Limites());
    EXPECT_NE(kill(petitEnfant, 0), 0);
}

TEST(Processus, UneFauteDuReceveurArreteLEnfant) {
    const std::array<std::string_view, 0> rien = {};
    const double duree = Duree([&] {
        EXPECT_THROW(ExecuterProcessus({"/bin/sh", "-c", "echo x; sleep 60"}, rien, Limites(20),
                                       [](std::string_view) { throw std::runtime_error("assez"); }),
                     std::runtime_error);
    });
    EXPECT_LT(duree, 20);
}

TEST(Processus, CeQuiNeDemarrePasLeDit) {
    const std::array<std::string_view, 0> rien = {};
    EXPECT_THROW(ExecuterProcessus({"/absent/programme"}, rien, Limites(), [](std::string_view) {}),
                 FauteFichier);
}

TEST(Processus, UnProgrammeSeTrouveParLesDossiersDuChemin) {
    const essais::DossierProvisoire dossier;
    const std::string ancien = std::getenv("PATH");
    EcrireFichierAtomique(dossier.Fichier("outil"), "#!/bin/sh\n");
    setenv("PATH", ("relatif:" + dossier.Chemin()).c_str(), 1);
    EXPECT_EQ(TrouverProgramme("outil"), ""); // not executable
    ASSERT_EQ(chmod(dossier.Fichier("outil").c_str(), 0755), 0);
    EXPECT_EQ(TrouverProgramme("outil"), dossier.Fichier("outil"));
    EXPECT_EQ(TrouverProgramme("absent"), "");
    setenv("PATH", ancien.c_str(), 1);
}
