// Child processes of the end-to-end tests.
#include "bout_en_bout/executer.h"

#include "outils/dossiers.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace tessarel::essais {

namespace {

void Rediriger(const char* chemin, int drapeaux, int vers) {
    const int fd = ::open(chemin, drapeaux, 0600);
    if (fd < 0 || ::dup2(fd, vers) < 0) ::_exit(126);
    ::close(fd);
}

// The child: its own process group, so that what it starts can be ended with it.
[[noreturn]] void DevenirScript(const std::string& script, const std::string& dossier,
                                const std::string& prive) {
    ::setpgid(0, 0);
    Rediriger("/dev/null", O_RDONLY, STDIN_FILENO);
    Rediriger((prive + "/sortie").c_str(), O_WRONLY | O_CREAT | O_TRUNC, STDOUT_FILENO);
    Rediriger((prive + "/erreurs").c_str(), O_WRONLY | O_CREAT | O_TRUNC, STDERR_FILENO);
    if (::chdir(dossier.c_str()) != 0) ::_exit(126);
    const char* chemins = std::getenv("PATH");
    ::setenv("PATH",
             (std::string(TESSAREL_BIN) + ":" + (chemins != nullptr ? chemins : "/usr/bin:/bin")).c_str(), 1);
    ::setenv("HOME", prive.c_str(), 1);
    ::setenv("XDG_CONFIG_HOME", (prive + "/config").c_str(), 1);
    ::setenv("XDG_RUNTIME_DIR", prive.c_str(), 1);
    ::setenv("XDG_DOCUMENTS_DIR", prive.c_str(), 1);
    ::setenv("LC_ALL", "C.UTF-8", 1);
    ::setenv("TERM", "dumb", 1);
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ::unsetenv("DISPLAY");
    ::unsetenv("WAYLAND_DISPLAY");
    ::execl("/bin/sh", "sh", "-eu", "-c", script.c_str(), static_cast<char*>(nullptr));
    ::_exit(126);
}

int Attendre(pid_t enfant, int secondes) {
    const auto limite = std::chrono::steady_clock::now() + std::chrono::seconds(secondes);
    int etat = 0;
    for (;;) {
        const pid_t fini = ::waitpid(enfant, &etat, WNOHANG);
        if (fini == enfant) return WIFEXITED(etat) ? WEXITSTATUS(etat) : 128 + WTERMSIG(etat);
        if (fini < 0 && errno != EINTR) throw std::runtime_error("waitpid");
        if (std::chrono::steady_clock::now() > limite) {
            ::kill(-enfant, SIGKILL);
            ::waitpid(enfant, &etat, 0);
            return -1;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
}

} // namespace

Execution Executer(const std::string& script, const std::string& dossier, int secondes) {
    const DossierProvisoire prive;
    const pid_t enfant = ::fork();
    if (enfant < 0) throw std::runtime_error("fork");
    if (enfant == 0) DevenirScript(script, dossier, prive.Chemin());
    Execution execution;
    execution.statut = Attendre(enfant, secondes);
    execution.sortie = LireTout(prive.Fichier("sortie"));
    execution.erreurs = LireTout(prive.Fichier("erreurs"));
    return execution;
}

bool ProgrammePresent(const std::string& nom) {
    const DossierProvisoire dossier;
    return Executer("command -v " + nom, dossier.Chemin()).statut == 0;
}

std::string LireTout(const std::string& chemin) {
    std::ifstream fichier(chemin, std::ios::binary);
    if (!fichier) throw std::runtime_error("unreadable: " + chemin);
    std::ostringstream contenu;
    contenu << fichier.rdbuf();
    return contenu.str();
}

void EcrireTout(const std::string& chemin, const std::string& contenu) {
    std::ofstream fichier(chemin, std::ios::binary);
    fichier << contenu;
    if (!fichier.flush()) throw std::runtime_error("not writable: " + chemin);
}

} // namespace tessarel::essais
