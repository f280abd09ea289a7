// The recycle bin as the free desktops agreed on it: files/ holds what was thrown away, info/ where from and
// when.
#include "corbeille.h"

#include "dossiers.h"
#include "erreurs.h"
#include "fichiers.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace tessarel {

namespace {

constexpr int TentativesNom = 10000;        // names tried before a bin counts as unusable
constexpr std::size_t LongueurNomMax = 200; // bytes, so that number and ".trashinfo" fit in the usual 255

// One bin, with the folder that the paths in its notes start from; empty: they are whole.
struct Corbeille {
    std::string dossier;
    std::string racine;
};

std::string CorbeillePersonnelle() {
    const char* base = std::getenv("XDG_DATA_HOME");
    const std::string donnees = base != nullptr && base[0] == SeparateurChemin
                                    ? std::string(base)
                                    : JoindreChemin(DossierPersonnel(), ".local/share");
    return JoindreChemin(donnees, "Trash");
}

// Only the user looks into a bin, so its folders are made for no one else.
bool CreerDossierPrive(const std::string& chemin) {
    if (::mkdir(chemin.c_str(), 0700) != 0 && errno != EEXIST) return false;
    struct stat infos {};
    // A link, or another user's folder, would send the file where that one wants it.
    return ::lstat(chemin.c_str(), &infos) == 0 && S_ISDIR(infos.st_mode) && infos.st_uid == ::getuid();
}

bool PreparerCorbeille(const std::string& dossier) {
    return CreerDossierPrive(dossier) && CreerDossierPrive(JoindreChemin(dossier, "files")) &&
           CreerDossierPrive(JoindreChemin(dossier, "info"));
}

// The top of the volume that holds `dossier`, which must be a real path.
std::string SommetVolume(std::string dossier) {
    struct stat ici {};
    if (::lstat(dossier.c_str(), &ici) != 0) return "";
    while (dossier != "/") {
        const std::string parent = DossierDuChemin(dossier);
        struct stat audessus {};
        if (::lstat(parent.c_str(), &audessus) != 0 || audessus.st_dev != ici.st_dev) break;
        dossier = parent;
    }
    return dossier;
}

// The bin that an administrator set up for all users counts only with the sticky bit, and never as a link.
bool CorbeilleCommuneSure(const std::string& dossier) {
    struct stat infos {};
    return ::lstat(dossier.c_str(), &infos) == 0 && S_ISDIR(infos.st_mode) && (infos.st_mode & S_ISVTX) != 0;
}

Corbeille CorbeilleDuVolume(const std::string& dossier) {
    const std::string sommet = SommetVolume(dossier);
    if (sommet.empty()) return {};
    const std::string utilisateur = std::to_string(::getuid());
    const std::string commune = JoindreChemin(sommet, ".Trash");
    if (CorbeilleCommuneSure(commune)) {
        Corbeille corbeille{JoindreChemin(commune, utilisateur), sommet};
        if (PreparerCorbeille(corbeille.dossier)) return corbeille;
    }
    Corbeille corbeille{JoindreChemin(sommet, ".Trash-" + utilisateur), sommet};
    return PreparerCorbeille(corbeille.dossier) ? corbeille : Corbeille{};
}

// A path as the notes hold it: bytes that an address takes as they are, all others as %XX.
std::string EnAdresse(std::string_view chemin) {
    constexpr std::string_view tels = "-_.~/";
    std::string adresse;
    for (const char c : chemin) {
        const bool simple = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
        if (simple || tels.find(c) != std::string_view::npos) {
            adresse += c;
        } else {
            std::array<char, 4> code{};
            std::snprintf(code.data(), code.size(), "%%%02X",
                          static_cast<unsigned>(static_cast<unsigned char>(c)));
            adresse += code.data();
        }
    }
    return adresse;
}

std::string DateHeure() {
    const std::time_t maintenant = std::time(nullptr);
    std::tm heure{};
    ::localtime_r(&maintenant, &heure);
    std::array<char, 32> texte{};
    std::strftime(texte.data(), texte.size(), "%Y-%m-%dT%H:%M:%S", &heure);
    return texte.data();
}

std::string Note(const Corbeille& corbeille, const std::string& chemin) {
    std::string_view depuis = chemin;
    if (!corbeille.racine.empty()) {
        depuis.remove_prefix(corbeille.racine.size());
        if (depuis.starts_with(SeparateurChemin)) depuis.remove_prefix(1);
    }
    return "[Trash Info]\nPath=" + EnAdresse(depuis) + "\nDeletionDate=" + DateHeure() + "\n";
}

// A name for the bin: "profil.dxf", then "profil.2.dxf", "profil.3.dxf".
std::string NomDeRang(const std::string& nom, int rang) {
    const std::size_t point = nom.rfind('.');
    const bool avecExtension = point != std::string::npos && point > 0 && nom.size() - point < 16;
    const std::string extension = avecExtension ? nom.substr(point) : "";
    std::string souche = avecExtension ? nom.substr(0, point) : nom;
    if (souche.size() > LongueurNomMax) {
        std::size_t fin = LongueurNomMax;
        while (fin > 0 && (static_cast<unsigned char>(souche[fin]) & 0xC0U) == 0x80U) --fin;
        souche.resize(fin);
    }
    return rang == 1 ? souche + extension : souche + "." + std::to_string(rang) + extension;
}

// Writes a note under a name that is free; false with errno EEXIST when the name is taken.
bool EcrireNote(const std::string& chemin, const std::string& texte) {
    const int fd = ::open(chemin.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (fd < 0) return false;
    const bool ecrit = ::write(fd, texte.data(), texte.size()) == static_cast<ssize_t>(texte.size());
    const bool ferme = ::close(fd) == 0;
    if (ecrit && ferme) return true;
    ::unlink(chemin.c_str());
    errno = ENOSPC;
    return false;
}

// Into the place of no one: what a bin holds is never replaced. Other volumes give EXDEV.
bool Deplacer(const std::string& source, const std::string& cible) {
    if (::renameat2(AT_FDCWD, source.c_str(), AT_FDCWD, cible.c_str(), RENAME_NOREPLACE) == 0) return true;
    if (errno != EINVAL && errno != ENOSYS) return false;
    // File systems that don't know the flag.
    struct stat infos {};
    if (::lstat(cible.c_str(), &infos) == 0) {
        errno = EEXIST;
        return false;
    }
    return ::rename(source.c_str(), cible.c_str()) == 0;
}

// Across volumes: the copy is complete and on disk before the file goes.
bool Recopier(const std::string& source, const std::string& cible) {
    struct stat infos {};
    if (::lstat(cible.c_str(), &infos) == 0) {
        errno = EEXIST;
        return false;
    }
    try {
        EcrireFichierAtomique(cible, LireFichierEntier(source));
    } catch (const Faute&) {
        errno = EIO;
        return false;
    }
    if (::unlink(source.c_str()) == 0) return true;
    const int code = errno;
    ::unlink(cible.c_str());
    errno = code;
    return false;
}

using MiseEnPlace = bool (*)(const std::string&, const std::string&);

// The note comes first, as agreed: it takes the name, and is taken back when the file doesn't follow.
bool Jeter(const Corbeille& corbeille, const std::string& chemin, MiseEnPlace placer) {
    if (corbeille.dossier.empty()) return false;
    const std::string nom = NomDuChemin(chemin);
    const std::string note = Note(corbeille, chemin);
    for (int rang = 1; rang <= TentativesNom; ++rang) {
        const std::string choisi = NomDeRang(nom, rang);
        const std::string info = JoindreChemin(corbeille.dossier, "info/" + choisi + ".trashinfo");
        if (!EcrireNote(info, note)) {
            if (errno == EEXIST) continue;
            return false;
        }
        if (placer(chemin, JoindreChemin(corbeille.dossier, "files/" + choisi))) return true;
        const int code = errno;
        ::unlink(info.c_str());
        if (code != EEXIST) return false;
    }
    return false;
}

} // namespace

bool FichierDansCorbeille(const std::string& chemin) {
    struct stat infos {};
    if (::lstat(chemin.c_str(), &infos) != 0 || S_ISDIR(infos.st_mode)) return false;
    std::error_code ec;
    // The real folder, but the file's own name: a link is thrown away itself.
    const std::string relatif = DossierDuChemin(chemin);
    const auto dossier = std::filesystem::canonical(relatif.empty() ? "." : relatif, ec);
    if (ec) return false;
    const std::string reel = JoindreChemin(dossier.string(), NomDuChemin(chemin));

    Corbeille personnelle{CorbeillePersonnelle(), ""};
    std::filesystem::create_directories(DossierDuChemin(personnelle.dossier), ec);
    if (!PreparerCorbeille(personnelle.dossier)) personnelle = {};
    if (Jeter(personnelle, reel, Deplacer)) return true;
    if (Jeter(CorbeilleDuVolume(dossier.string()), reel, Deplacer)) return true;
    return S_ISREG(infos.st_mode) && Jeter(personnelle, reel, Recopier);
}

} // namespace tessarel
