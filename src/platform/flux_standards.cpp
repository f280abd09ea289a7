// Standard streams: closed ones, broken pipes, a full disk behind a redirection.
#include "platform/flux_standards.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessarel {

void PreparerFlux() {
    for (const int fd : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        while (::fcntl(fd, F_GETFD) == -1 && errno == EBADF)
            // The lowest free number is taken, which is `fd` or one below it.
            if (::open("/dev/null", O_RDWR) < 0) break;
    (void)std::signal(SIGPIPE, SIG_IGN);
    (void)std::signal(SIGXFSZ, SIG_IGN);
}

bool EcrireSortie(std::string_view texte) {
    while (!texte.empty()) {
        const ssize_t n = ::write(STDOUT_FILENO, texte.data(), texte.size());
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) return errno == EPIPE;
        texte.remove_prefix(static_cast<std::size_t>(n));
    }
    return true;
}

namespace {

// Standard error opened once more: what is set on the stream itself holds for the shell too, which shares it.
// A file never waits, and has one place only to write at.
int ErreurSansAttente() {
    struct stat genre = {};
    if (::fstat(STDERR_FILENO, &genre) != 0 || !(S_ISCHR(genre.st_mode) || S_ISFIFO(genre.st_mode)))
        return STDERR_FILENO;
    static const int fd = ::open("/proc/self/fd/2", O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    return fd < 0 ? STDERR_FILENO : fd;
}

} // namespace

std::size_t EcrireErreurSansAttendre(std::string_view texte) {
    const int fd = ErreurSansAttente();
    std::size_t ecrits = 0;
    while (ecrits < texte.size()) {
        pollfd place = {fd, POLLOUT, 0};
        if (::poll(&place, 1, 0) <= 0 || (place.revents & POLLOUT) == 0) break;
        const ssize_t n = ::write(fd, texte.data() + ecrits, texte.size() - ecrits);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) break;
        ecrits += static_cast<std::size_t>(n);
    }
    return ecrits;
}

bool ErreurStandardRedessinable() {
    const char* genre = std::getenv("TERM");
    return ::isatty(STDERR_FILENO) == 1 && genre != nullptr && std::string_view(genre) != "dumb";
}

} // namespace tessarel
