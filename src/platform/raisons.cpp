// Reasons of faults in the language in use, and the system's error numbers in words.
#include "raisons.h"

#include <cerrno>
#include <cstring>

namespace tessarel {
namespace {

bool enAnglais = false;

struct RaisonConnue {
    int code;
    const char* francais;
    const char* english;
};

// Those that a user can meet, and mend. The others keep the system's own words.
constexpr RaisonConnue RAISONS[] = {
    {ENOENT, "fichier ou dossier introuvable", "no such file or folder"},
    {EACCES, "accès refusé", "access denied"},
    {EPERM, "opération non permise", "operation not permitted"},
    {ENOSPC, "il n'y a plus de place sur le disque", "no space left on the disk"},
    {EDQUOT, "le quota de disque est dépassé", "disk quota exceeded"},
    {EFBIG, "le fichier est trop grand", "the file is too large"},
    {EROFS, "le disque est en lecture seule", "the disk is read-only"},
    {EISDIR, "c'est un dossier", "it is a folder"},
    {ENOTDIR, "une partie du chemin n'est pas un dossier", "part of the path is not a folder"},
    {EEXIST, "le nom existe déjà", "the name already exists"},
    {ENAMETOOLONG, "le nom est trop long", "the name is too long"},
    {ELOOP, "trop de liens symboliques", "too many symbolic links"},
    {EMFILE, "trop de fichiers ouverts", "too many open files"},
    {ENFILE, "trop de fichiers ouverts", "too many open files"},
    {EIO, "erreur de lecture ou d'écriture du disque", "disk read or write error"},
    {EBUSY, "fichier ou périphérique occupé", "file or device busy"},
    {ENOMEM, "pas assez de mémoire", "not enough memory"},
};

} // namespace

void DireRaisonsEnAnglais(bool anglais) {
    enAnglais = anglais;
}

bool RaisonsEnAnglais() {
    return enAnglais;
}

const char* SelonLangue(const char* francais, const char* english) {
    return enAnglais ? english : francais;
}

std::string RaisonSysteme(int code) {
    for (const RaisonConnue& raison : RAISONS) {
        if (raison.code == code) return SelonLangue(raison.francais, raison.english);
    }
    return std::strerror(code);
}

} // namespace tessarel
