// The search for the folder of the socket.
#include "adresse_zelko.h"

#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstdlib>

namespace tessarel {

namespace {

constexpr const char* NomPrise = "/zelko.sock";

// A folder in which nobody else can have put a socket: heat and motion go where this leads.
bool EstSur(const std::string& dossier) {
    struct stat infos {};
    if (::lstat(dossier.c_str(), &infos) != 0) return false;
    return S_ISDIR(infos.st_mode) && infos.st_uid == ::geteuid() &&
           (infos.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

} // namespace

std::string DossierZelko(bool creer) {
    // The user's own word counts as it stands; who listens there is looked at when it is connected to.
    const char* variable = std::getenv("XDG_RUNTIME_DIR"); // NOLINT: read before any other thread exists
    if (variable != nullptr && *variable == '/') return variable;
    const std::string utilisateur = std::to_string(::geteuid());
    std::string ordinaire = "/run/user/" + utilisateur;
    if (EstSur(ordinaire)) return ordinaire;
    const std::string dernier = "/tmp/tessarel-" + utilisateur;
    if (creer) ::mkdir(dernier.c_str(), S_IRWXU); // one that exists already is looked at all the same
    return EstSur(dernier) ? dernier : "";
}

std::string AdresseZelko(bool creer) {
    const std::string dossier = DossierZelko(creer);
    const std::string chemin = dossier + NomPrise;
    return !dossier.empty() && chemin.size() < sizeof(sockaddr_un::sun_path) ? chemin : "";
}

} // namespace tessarel
