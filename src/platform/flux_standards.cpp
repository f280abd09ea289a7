// Standard streams: closed ones, broken pipes, a full disk behind a redirection.
#include "platform/flux_standards.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
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

bool ErreurStandardRedessinable() {
    const char* genre = std::getenv("TERM");
    return ::isatty(STDERR_FILENO) == 1 && genre != nullptr && std::string_view(genre) != "dumb";
}

} // namespace tessarel
