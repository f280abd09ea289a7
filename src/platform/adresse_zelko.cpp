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

std::string Dossier(bool creer) {
    const char* variable = std::getenv("XDG_RUNTIME_DIR"); // NOLINT: read before any other thread exists
    if (variable != nullptr && *variable == '/') return variable;
    const std::string utilisateur = std::to_string(::geteuid());
    const std::string ordinaire = "/run/user/" + utilisateur;
    if (EstSur(ordinaire)) return ordinaire;
    const std::string dernier = "/tmp/tessarel-" + utilisateur;
    if (creer) ::mkdir(dernier.c_str(), S_IRWXU); // one that exists already is looked at below
    return dernier;
}

} // namespace

std::string AdresseZelko(bool creer) {
    const std::string dossier = Dossier(creer);
    const std::string chemin = dossier + NomPrise;
    return EstSur(dossier) && chemin.size() < sizeof(sockaddr_un::sun_path) ? chemin : "";
}

} // namespace tessarel
