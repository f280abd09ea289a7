// The lock of the single instance, on a file of this user.
#include "instance.h"

#include "fichiers.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <unistd.h>

namespace tessarel {

std::string FichierVerrouInstance() {
    const char* dossier = std::getenv("XDG_RUNTIME_DIR");
    if (dossier != nullptr && *dossier == SeparateurChemin && DossierExiste(dossier))
        return JoindreChemin(dossier, "tessarel.lock");
    std::error_code ec;
    const auto temporaire = std::filesystem::temp_directory_path(ec);
    return JoindreChemin(ec ? "/tmp" : temporaire.string(),
                         "tessarel-" + std::to_string(::getuid()) + ".lock");
}

VerrouInstance::VerrouInstance(const std::string& fichier) {
    // No link is followed: anyone may put one in the temporary folder.
    m_fichier = ::open(fichier.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (m_fichier < 0) return;
    int pris = 0;
    do {
        pris = ::flock(m_fichier, LOCK_EX | LOCK_NB);
    } while (pris != 0 && errno == EINTR);
    m_seule = pris == 0 || errno != EWOULDBLOCK;
}

// The file stays: taking it away would let a second instance lock a new one beside the old.
VerrouInstance::~VerrouInstance() {
    if (m_fichier >= 0) ::close(m_fichier);
}

} // namespace tessarel
