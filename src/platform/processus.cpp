// Child processes of the system, limited and never left behind.
#include "processus.h"

#include "erreurs.h"
#include "fichiers.h"
#include "raisons.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tessarel {

namespace {

// How often the clocks are looked at, ms.
constexpr int PasSurveillance = 20;
// Largest file that a child may write: its own scratch files only.
constexpr rlim_t FichierMax = 64U << 20U;

// A file descriptor that closes itself.
class Descripteur {
public:
    explicit Descripteur(int fd = -1) : m_fd(fd) {}
    ~Descripteur() { Fermer(); }
    Descripteur(const Descripteur&) = delete;
    Descripteur& operator=(const Descripteur&) = delete;
    void Fermer() {
        if (m_fd >= 0) close(m_fd);
        m_fd = -1;
    }
    [[nodiscard]] int Valeur() const { return m_fd; }

private:
    int m_fd;
};

// A child and its group: killed and reaped at the end of the object's life if not before.
class Enfant {
public:
    explicit Enfant(pid_t pid) : m_pid(pid), m_attentes("/proc/" + std::to_string(pid) + "/schedstat") {}
    ~Enfant() { Recueillir(); }
    Enfant(const Enfant&) = delete;
    Enfant& operator=(const Enfant&) = delete;

    // True once it has ended; it stays to be reaped, so that its number cannot become another's.
    [[nodiscard]] bool Fini() const {
        siginfo_t info{};
        return waitid(P_PID, static_cast<id_t>(m_pid), &info, WEXITED | WNOHANG | WNOWAIT) == 0 &&
               info.si_pid == m_pid;
    }
    // Seconds of the processor used so far.
    [[nodiscard]] double Secondes() const {
        clockid_t horloge{};
        timespec t{};
        if (clock_getcpuclockid(m_pid, &horloge) != 0 || clock_gettime(horloge, &t) != 0) return 0;
        return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_nsec) * 1e-9;
    }
    // Seconds that it could have run and the processor was another's; 0 where the system does not tell.
    [[nodiscard]] double Attendues() const {
        const Descripteur compte(open(m_attentes.c_str(), O_RDONLY | O_CLOEXEC));
        if (compte.Valeur() < 0) return 0;
        std::array<char, 96> texte{}; // nanoseconds run, nanoseconds waited, turns
        const ssize_t n = read(compte.Valeur(), texte.data(), texte.size() - 1);
        unsigned long long couru = 0;
        unsigned long long attendu = 0;
        if (n <= 0 || std::sscanf(texte.data(), "%llu %llu", &couru, &attendu) != 2) return 0;
        return static_cast<double>(attendu) * 1e-9;
    }
    // Kills what is left of the group and gives the wait status.
    int Recueillir() {
        if (m_pid <= 0) return m_statut;
        kill(-m_pid, SIGKILL);
        kill(m_pid, SIGKILL);
        while (waitpid(m_pid, &m_statut, 0) < 0 && errno == EINTR) {
        }
        m_pid = -1;
        return m_statut;
    }

private:
    pid_t m_pid;
    std::string m_attentes; // the file in which the system counts its waits
    int m_statut = 0;
};

[[noreturn]] void Echouer(const std::string& programme, int code) {
    throw FauteFichier(NumeroErreur::FichierIntrouvable, programme, RaisonSysteme(code));
}

// A file without a name that holds the input, at its start.
int OuvrirEntree(const std::string& programme, std::span<const std::string_view> entree) {
    const int fd = memfd_create("entree", MFD_CLOEXEC);
    if (fd < 0) Echouer(programme, errno);
    for (std::string_view morceau : entree) {
        while (!morceau.empty()) {
            const ssize_t n = write(fd, morceau.data(), morceau.size());
            if (n < 0 && errno == EINTR) continue;
            if (n <= 0) {
                const int code = errno;
                close(fd);
                Echouer(programme, code);
            }
            morceau.remove_prefix(static_cast<std::size_t>(n));
        }
    }
    lseek(fd, 0, SEEK_SET);
    return fd;
}

void Limiter(int ressource, rlim_t valeur) {
    const rlimit limite{valeur, valeur};
    setrlimit(static_cast<__rlimit_resource>(ressource), &limite);
}

// In the child, between fork and exec: calls of the system only, no memory taken.
[[noreturn]] void DevenirProgramme(char* const* arguments, char* const* milieu, int entree, int sortie,
                                   int temoin, const LimitesProcessus& limites) {
    setpgid(0, 0);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    Limiter(RLIMIT_AS, limites.octetsMemoire);
    Limiter(RLIMIT_CPU, static_cast<rlim_t>(std::ceil(limites.secondes)) + 1);
    Limiter(RLIMIT_CORE, 0);
    Limiter(RLIMIT_FSIZE, FichierMax);
    const int nul = open("/dev/null", O_WRONLY);
    const bool pret = nul >= 0 && chdir("/") == 0 && dup2(entree, 0) == 0 && dup2(sortie, 1) == 1 &&
                      dup2(nul, 2) == 2 && close_range(3, ~0U, CLOSE_RANGE_CLOEXEC) == 0;
    if (pret) execve(arguments[0], arguments, milieu);
    const int code = errno;
    // The parent takes silence for success; if even this fails it sees status 127.
    [[maybe_unused]] const ssize_t n = write(temoin, &code, sizeof code);
    _exit(127);
}

// Waits for the child to be the program; the number of the failure otherwise.
int AttendreDepart(int temoin) {
    int code = 0;
    ssize_t n = 0;
    do n = read(temoin, &code, sizeof code);
    while (n < 0 && errno == EINTR);
    return n == static_cast<ssize_t>(sizeof code) ? code : 0;
}

std::vector<char*> EnTableau(std::vector<std::string>& textes) {
    std::vector<char*> tableau;
    for (std::string& t : textes) tableau.push_back(t.data());
    tableau.push_back(nullptr);
    return tableau;
}

pid_t Demarrer(const std::vector<std::string>& commande, std::span<const std::string_view> entree,
               const LimitesProcessus& limites, int sortie) {
    const Descripteur source(OuvrirEntree(commande.front(), entree));
    std::array<int, 2> tube{};
    if (pipe2(tube.data(), O_CLOEXEC) != 0) Echouer(commande.front(), errno);
    const Descripteur temoin(tube[0]);
    Descripteur temoinEnfant(tube[1]);
    std::vector<std::string> textes = commande;
    // Nothing of the user's environment steers the program, and it has no folder for scratch files: some give
    // leave to read and write there whatever else they forbid.
    std::vector<std::string> reglages = {"PATH=/usr/local/bin:/usr/bin:/bin",
                                         "LC_ALL=C",
                                         "HOME=/dev/null",
                                         "TMPDIR=/dev/null",
                                         "TEMP=/dev/null",
                                         "TMP=/dev/null"};
    const std::vector<char*> arguments = EnTableau(textes);
    const std::vector<char*> milieu = EnTableau(reglages);
    const pid_t pid = fork();
    if (pid < 0) Echouer(commande.front(), errno);
    if (pid == 0)
        DevenirProgramme(arguments.data(), milieu.data(), source.Valeur(), sortie, temoinEnfant.Valeur(),
                         limites);
    setpgid(pid, pid);
    temoinEnfant.Fermer();
    if (const int code = AttendreDepart(temoin.Valeur()); code != 0) {
        while (waitpid(pid, nullptr, 0) < 0 && errno == EINTR) {
        }
        Echouer(commande.front(), code);
    }
    return pid;
}

// Hands over the output until it ends or a limit is reached.
FinProcessus Suivre(const Enfant& enfant, int sortie, const LimitesProcessus& limites,
                    const std::function<void(std::string_view)>& recevoir) {
    using Horloge = std::chrono::steady_clock;
    const auto debut = Horloge::now();
    // What the child waited for a processor is not held against it.
    const auto tropTard = [&] {
        const double passees = std::chrono::duration<double>(Horloge::now() - debut).count();
        const double limite = limites.secondes * RapportHorloge;
        return passees > limite && passees - enfant.Attendues() > limite;
    };
    std::vector<char> tampon(1U << 16U);
    std::size_t octets = 0;
    bool ouverte = true;
    while (ouverte || !enfant.Fini()) {
        if (enfant.Secondes() > limites.secondes || tropTard()) return FinProcessus::TempsDepasse;
        pollfd attente{ouverte ? sortie : -1, POLLIN, 0};
        // A closed output leaves only the end to wait for, which is near.
        if (poll(&attente, 1, ouverte ? PasSurveillance : 1) <= 0) continue;
        const ssize_t n = read(sortie, tampon.data(), tampon.size());
        if (n < 0 && errno == EINTR) continue;
        ouverte = n > 0;
        if (!ouverte) continue;
        octets += static_cast<std::size_t>(n);
        if (octets > limites.octetsSortie) return FinProcessus::SortieTropLongue;
        recevoir({tampon.data(), static_cast<std::size_t>(n)});
    }
    return FinProcessus::Terminee;
}

} // namespace

std::string TrouverProgramme(const std::string& nom) {
    const char* chemins = std::getenv("PATH");
    if (chemins == nullptr) return "";
    for (const std::string_view dossier : Decouper(chemins, ":")) {
        // A relative folder would depend on where the program was started.
        if (!dossier.starts_with('/')) continue;
        std::string chemin = JoindreChemin(std::string(dossier), nom);
        if (!DossierExiste(chemin) && access(chemin.c_str(), X_OK) == 0) return chemin;
    }
    return "";
}

ResultatProcessus ExecuterProcessus(const std::vector<std::string>& commande,
                                    std::span<const std::string_view> entree, const LimitesProcessus& limites,
                                    const std::function<void(std::string_view)>& recevoir) {
    std::array<int, 2> tube{};
    if (pipe2(tube.data(), O_CLOEXEC) != 0) Echouer(commande.front(), errno);
    const Descripteur sortie(tube[0]);
    Descripteur sortieEnfant(tube[1]);
    Enfant enfant(Demarrer(commande, entree, limites, sortieEnfant.Valeur()));
    sortieEnfant.Fermer();
    ResultatProcessus resultat;
    resultat.fin = Suivre(enfant, sortie.Valeur(), limites, recevoir);
    const int statut = enfant.Recueillir();
    if (resultat.fin != FinProcessus::Terminee) return resultat;
    if (WIFEXITED(statut))
        resultat.statut = WEXITSTATUS(statut);
    else
        resultat.fin = FinProcessus::Tombee;
    return resultat;
}

} // namespace tessarel
