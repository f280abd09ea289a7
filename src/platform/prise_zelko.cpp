// The listening side of the socket, on epoll.
#include "prise_zelko.h"

#include "erreurs.h"
#include "fichiers.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/timerfd.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace tessarel {

namespace {

// What may lie there when a client has gone and another knocks.
constexpr int PaquetsAvantDepart = 256;
// A program at work sends again within this time; one that has paused is waited for with all else.
constexpr std::chrono::microseconds AttenteRafale{1000};
// Other work of the caller, and a second client, wait no longer than this for their turn.
constexpr std::chrono::milliseconds DureeRafale{5};

[[noreturn]] void Refuser(const std::string& chemin, const std::string& raison) {
    throw FauteFichier(NumeroErreur::AccesRefuse, chemin, raison);
}

sockaddr_un Adresse(const std::string& chemin) {
    sockaddr_un adresse{};
    adresse.sun_family = AF_UNIX;
    if (chemin.empty() || chemin.size() >= sizeof adresse.sun_path)
        Refuser(chemin,
                SelonLangue("ce chemin ne convient pas à une prise", "this path does not suit a socket"));
    std::memcpy(adresse.sun_path, chemin.c_str(), chemin.size() + 1);
    return adresse;
}

int NouvellePrise(const std::string& chemin) {
    const int fd = ::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (fd < 0) Refuser(chemin, RaisonSysteme(errno));
    return fd;
}

// Makes room for a new socket file: one that nobody listens on any more goes away.
void LibererChemin(const std::string& chemin, const sockaddr_un& adresse) {
    struct stat infos {};
    if (::lstat(chemin.c_str(), &infos) != 0) return;
    if (!S_ISSOCK(infos.st_mode))
        Refuser(chemin, SelonLangue("un fichier qui n'est pas une prise porte ce nom",
                                    "a file that is no socket has this name"));
    const int fd = NouvellePrise(chemin);
    const int joint = ::connect(fd, reinterpret_cast<const sockaddr*>(&adresse), sizeof adresse); // NOLINT
    const int erreur = errno;
    ::close(fd);
    if (joint == 0 || erreur != ECONNREFUSED)
        Refuser(chemin, SelonLangue("une autre interface virtuelle y est déjà branchée",
                                    "another virtual interface is plugged in there already"));
    ::unlink(chemin.c_str());
}

bool EstDeCetUtilisateur(int fd) {
    ucred pair{};
    socklen_t taille = sizeof pair;
    return ::getsockopt(fd, SOL_SOCKET, SO_PEERCRED, &pair, &taille) == 0 &&
           (pair.uid == ::geteuid() || pair.uid == 0);
}

} // namespace

PriseZelko::PriseZelko(std::string chemin, Traitement traiter, std::function<void(std::size_t)> ecarte)
    : m_chemin(std::move(chemin)), m_traiter(std::move(traiter)), m_ecarte(std::move(ecarte)),
      m_guet(::epoll_create1(EPOLL_CLOEXEC)),
      m_reveil(::timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC | TFD_NONBLOCK)) {
    try {
        if (m_guet < 0 || m_reveil < 0) Refuser(m_chemin, RaisonSysteme(errno));
        Guetter(m_reveil);
        Ecouter();
    } catch (...) {
        ::close(m_guet);
        ::close(m_reveil);
        throw;
    }
}

PriseZelko::~PriseZelko() {
    CesserDEcouter();
    ::close(m_reveil);
    ::close(m_guet);
}

void PriseZelko::Guetter(int descripteur) {
    epoll_event e{};
    e.events = EPOLLIN;
    e.data.fd = descripteur;
    if (::epoll_ctl(m_guet, EPOLL_CTL_ADD, descripteur, &e) != 0) Refuser(m_chemin, RaisonSysteme(errno));
}

void PriseZelko::Ecouter() {
    const sockaddr_un adresse = Adresse(m_chemin);
    LibererChemin(m_chemin, adresse);
    const int fd = NouvellePrise(m_chemin);
    // Of the owner alone from its first moment.
    const mode_t masque = ::umask(S_IRWXG | S_IRWXO | S_IXUSR);
    const int lie = ::bind(fd, reinterpret_cast<const sockaddr*>(&adresse), sizeof adresse); // NOLINT
    const int erreur = errno;
    ::umask(masque);
    struct stat infos {};
    if (lie != 0 || ::listen(fd, 1) != 0 || ::lstat(m_chemin.c_str(), &infos) != 0) {
        const int code = lie != 0 ? erreur : errno;
        ::close(fd);
        Refuser(m_chemin, RaisonSysteme(code));
    }
    m_noeud = infos.st_ino;
    m_ecoute = fd;
    Guetter(fd);
}

void PriseZelko::CesserDEcouter() {
    Raccrocher();
    if (m_ecoute < 0) return;
    ::close(m_ecoute);
    m_ecoute = -1;
    // Another box may have taken the place since.
    struct stat infos {};
    if (::lstat(m_chemin.c_str(), &infos) == 0 && S_ISSOCK(infos.st_mode) && infos.st_ino == m_noeud)
        ::unlink(m_chemin.c_str());
}

void PriseZelko::Brancher(bool branchee) {
    if (branchee == Branchee()) return;
    branchee ? Ecouter() : CesserDEcouter();
}

void PriseZelko::Raccrocher() {
    if (m_client < 0) return;
    ::close(m_client);
    m_client = -1;
    m_tardives.clear(); // they were for that client
    ReglerReveil();
}

// A second client is hung up on at once: it sees that the box is taken.
void PriseZelko::Accueillir() {
    const int fd = ::accept4(m_ecoute, nullptr, nullptr, SOCK_CLOEXEC);
    if (fd < 0) return;
    if (m_client >= 0 || !EstDeCetUtilisateur(fd)) {
        ::close(fd);
        return;
    }
    timeval attente{};
    attente.tv_usec = static_cast<suseconds_t>(AttenteRafale.count());
    ::setsockopt(fd, SOL_SOCKET, SO_RCVTIMEO, &attente, sizeof attente);
    m_client = fd;
    Guetter(fd);
}

void PriseZelko::Rendre(const ReponsePrise& reponse) {
    if (m_client < 0) return;
    const ssize_t n = ::send(m_client, reponse.octets.data(), reponse.taille, MSG_NOSIGNAL | MSG_DONTWAIT);
    if (n < 0) Raccrocher(); // gone, or it has stopped reading
}

void PriseZelko::ReglerReveil() {
    itimerspec reglage{};
    if (!m_tardives.empty()) {
        const auto ns = m_tardives.front().quand.time_since_epoch().count();
        constexpr long long parSeconde = 1000000000;
        reglage.it_value.tv_sec = static_cast<time_t>(ns / parSeconde);
        reglage.it_value.tv_nsec = static_cast<long>(ns % parSeconde);
    }
    ::timerfd_settime(m_reveil, TFD_TIMER_ABSTIME, &reglage, nullptr);
}

void PriseZelko::RendreLesTardives() {
    const auto maintenant = std::chrono::steady_clock::now();
    while (!m_tardives.empty() && m_tardives.front().quand <= maintenant) {
        const ReponsePrise reponse = m_tardives.front().reponse;
        m_tardives.pop_front();
        Rendre(reponse);
    }
    ReglerReveil();
}

// One packet, if there is one; false when there is none, or no client any more.
bool PriseZelko::LireUn(bool attendre) {
    Tampon tampon = {};
    const int drapeaux = MSG_TRUNC | (attendre ? 0 : MSG_DONTWAIT);
    const ssize_t n = ::recv(m_client, tampon.data(), tampon.size(), drapeaux);
    if (n < 0 && (errno == EINTR || errno == EAGAIN || errno == EWOULDBLOCK)) return false;
    if (n <= 0) {
        Raccrocher();
        return false;
    }
    if (static_cast<std::size_t>(n) != tampon.size()) {
        if (m_ecarte) m_ecarte(static_cast<std::size_t>(n));
        return true;
    }
    const ReponsePrise reponse = m_traiter(tampon);
    if (reponse.sort == ReponsePrise::Sort::Raccroche) Raccrocher();
    if (reponse.sort == ReponsePrise::Sort::Rendue) RendreOuRetarder(reponse);
    return m_client >= 0;
}

// Replies keep their order: behind a late one all wait.
void PriseZelko::RendreOuRetarder(const ReponsePrise& reponse) {
    if (reponse.retard.count() <= 0 && m_tardives.empty()) {
        Rendre(reponse);
        return;
    }
    auto quand = std::chrono::steady_clock::now() + reponse.retard;
    if (!m_tardives.empty()) quand = std::max(quand, m_tardives.back().quand);
    m_tardives.push_back({quand, reponse});
    ReglerReveil();
}

// While exchanges follow one another the next one is waited for in the socket itself, which is the shorter
// way.
void PriseZelko::LireEnRafale() {
    const auto fin = std::chrono::steady_clock::now() + DureeRafale;
    while (m_tardives.empty() && LireUn(true) && std::chrono::steady_clock::now() < fin) {
    }
}

bool PriseZelko::Servir(std::chrono::milliseconds attente) {
    std::array<epoll_event, 3> evenements;
    const int n = ::epoll_wait(m_guet, evenements.data(), static_cast<int>(evenements.size()),
                               static_cast<int>(attente.count()));
    bool nouveau = false;
    bool paquet = false;
    for (int i = 0; i < n; ++i) {
        const int fd = evenements[static_cast<std::size_t>(i)].data.fd;
        if (fd == m_reveil) {
            std::uint64_t fois = 0;
            if (::read(m_reveil, &fois, sizeof fois) > 0) RendreLesTardives();
        } else if (fd == m_client) {
            paquet = true;
            if (LireUn(false) && attente.count() > 0) LireEnRafale();
        } else if (fd == m_ecoute) {
            nouveau = true;
        }
    }
    // Last, so that a client that has hung up makes room for the one that comes back.
    if (!nouveau || m_ecoute < 0) return paquet;
    for (int i = 0; i < PaquetsAvantDepart && m_client >= 0 && LireUn(false); ++i) {
    }
    Accueillir();
    return paquet;
}

} // namespace tessarel
