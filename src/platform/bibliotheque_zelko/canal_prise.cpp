// The socket of the virtual box, on the side that connects.
#include "canal_prise.h"

#include "platform/adresse_zelko.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <string>

namespace tessarel {

namespace {

// A listener that has a client already closes the door at once: long enough to see that.
constexpr int AttenteRefusMs = 20;

// Whoever listens may move a machine: it must be the user himself, or the system.
bool EstDeConfiance(int prise) {
    ucred pair{};
    socklen_t taille = sizeof pair;
    return ::getsockopt(prise, SOL_SOCKET, SO_PEERCRED, &pair, &taille) == 0 &&
           (pair.uid == ::geteuid() || pair.uid == 0);
}

void LimiterAttentes(int prise) {
    const auto secondes = std::chrono::floor<std::chrono::seconds>(DelaiReponse);
    timeval delai{};
    delai.tv_sec = static_cast<time_t>(secondes.count());
    delai.tv_usec = static_cast<suseconds_t>(std::chrono::microseconds(DelaiReponse - secondes).count());
    ::setsockopt(prise, SOL_SOCKET, SO_SNDTIMEO, &delai, sizeof delai);
    ::setsockopt(prise, SOL_SOCKET, SO_RCVTIMEO, &delai, sizeof delai);
}

bool SansPersonne(int erreur) {
    return erreur == ENOENT || erreur == ECONNREFUSED || erreur == ENOTDIR;
}

// The connection made without waiting: a listener whose queue is full would keep us for ever.
std::int32_t Connecter(int& prise) {
    const std::string chemin = AdresseZelko();
    if (chemin.empty()) return CanalIntrouvable;
    sockaddr_un adresse{};
    adresse.sun_family = AF_UNIX;
    std::memcpy(adresse.sun_path, chemin.c_str(), chemin.size() + 1);
    const int fd = ::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (fd < 0) return CanalFerme;
    if (::connect(fd, reinterpret_cast<const sockaddr*>(&adresse), sizeof adresse) !=
        0) { // NOLINT: the API's way
        const int erreur = errno;
        ::close(fd);
        return SansPersonne(erreur) ? CanalIntrouvable : CanalFerme;
    }
    if (!EstDeConfiance(fd)) {
        ::close(fd);
        return CanalFerme;
    }
    // From here on the waits are bounded by the socket itself, which spares a poll on each exchange.
    const int drapeaux = ::fcntl(fd, F_GETFL);
    ::fcntl(fd, F_SETFL, drapeaux & ~O_NONBLOCK);
    LimiterAttentes(fd);
    prise = fd;
    return CanalSucces;
}

} // namespace

void CanalPrise::Fermer() {
    if (m_prise >= 0) ::close(m_prise);
    m_prise = -1;
}

// Throws away what lies in the socket unasked, so that it is never taken for a reply. One who never stops
// talking is no box.
bool CanalPrise::EstVivante() {
    if (m_prise < 0) return false;
    constexpr int bavardage = 1000;
    Rapport rebut;
    for (int i = 0; i < bavardage; ++i) {
        const ssize_t n = ::recv(m_prise, rebut.data(), rebut.size(), MSG_DONTWAIT);
        if (n == 0) return false;
        if (n < 0 && errno != EINTR) return errno == EAGAIN || errno == EWOULDBLOCK;
    }
    return false;
}

std::int32_t CanalPrise::Ouvrir() {
    if (EstVivante()) return CanalSucces;
    Fermer();
    return Connecter(m_prise);
}

bool CanalPrise::Presente() {
    if (EstVivante()) return true;
    Fermer();
    if (Connecter(m_prise) != CanalSucces) return false;
    pollfd attente{m_prise, POLLRDHUP, 0};
    if (::poll(&attente, 1, AttenteRefusMs) <= 0) return true;
    Fermer();
    return false;
}

std::int32_t CanalPrise::Recevoir(Rapport& rapport, Horodatage fin) {
    Rapport reponse;
    ssize_t n = ::recv(m_prise, reponse.data(), reponse.size(), MSG_TRUNC);
    // A signal starts the wait of the socket anew: from then on the rest of it is counted here.
    while (n < 0 && (errno == EINTR || errno == EAGAIN)) {
        const int reste = MillisecondesJusqua(fin);
        if (reste == 0) return CanalReception;
        pollfd attente{m_prise, POLLIN, 0};
        ::poll(&attente, 1, reste);
        n = ::recv(m_prise, reponse.data(), reponse.size(), MSG_TRUNC | MSG_DONTWAIT);
    }
    if (n <= 0) return CanalReception;
    if (static_cast<std::size_t>(n) != reponse.size()) return CanalIncoherent;
    rapport = reponse;
    return CanalSucces;
}

std::int32_t CanalPrise::Echanger(Rapport& rapport) {
    const std::int32_t ouverture = Ouvrir();
    if (ouverture != CanalSucces) return ouverture;
    const Horodatage fin = std::chrono::steady_clock::now() + DelaiReponse;
    ssize_t n = 0;
    do n = ::send(m_prise, rapport.data(), rapport.size(), MSG_NOSIGNAL);
    while (n < 0 && errno == EINTR);
    const std::int32_t resultat =
        n == static_cast<ssize_t>(rapport.size()) ? Recevoir(rapport, fin) : CanalEnvoi;
    // Whatever comes after a failure belongs to the failed exchange: it goes down with the connection.
    if (resultat != CanalSucces) Fermer();
    return resultat;
}

} // namespace tessarel
