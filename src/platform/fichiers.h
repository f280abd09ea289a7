// Whole-file reads, writes that never leave a part behind, and the text encodings of users' files. Paths are
// UTF-8 strings with the system's own separator.
#pragma once

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace tessarel {

inline constexpr char SeparateurChemin = '/';

// The bytes of a file. FauteFichier when it is absent, a folder, no regular file (a pipe, a device) or
// unreadable; the fault names the file and the reason.
std::string LireFichierEntier(const std::string& chemin);

// The first bytes of a file, at most `nombre`; the same faults.
std::string LireDebutFichier(const std::string& chemin, std::size_t nombre);

// The same text as UTF-8: taken as it is when the bytes are valid UTF-8 (a byte-order mark is dropped), else
// read as Windows-1252. Moves when nothing has to change.
std::string EnUtf8(std::string octets);
// Characters of one byte each, where the bytes are known to be such: Windows-1252 to UTF-8 and back; what has
// no place there becomes '?'.
std::string Windows1252EnUtf8(std::string_view octets);
std::string EnWindows1252(std::string_view utf8);

// Puts `octets` in the place of the file in one step: written beside it, flushed to the disk, then moved over
// it. FauteFichier on any failure, with the old file untouched and nothing left beside it.
void EcrireFichierAtomique(const std::string& chemin, std::string_view octets);

// The same for a file that is made piece by piece. Until Valider() returns, the target is as it was; an
// object destroyed without it removes its piece.
class EcritureAtomique {
public:
    explicit EcritureAtomique(std::string chemin);
    ~EcritureAtomique();
    EcritureAtomique(const EcritureAtomique&) = delete;
    EcritureAtomique& operator=(const EcritureAtomique&) = delete;

    void Ecrire(std::string_view octets);
    void Valider();

private:
    void Abandonner();
    [[noreturn]] void Echouer(const std::string& raison);

    std::string m_chemin;
    std::string m_provisoire;
    std::FILE* m_fichier = nullptr;
};

bool FichierExiste(const std::string& chemin);
bool DossierExiste(const std::string& chemin);
// True when both name the same existing file, or are the same text.
bool MemeFichier(const std::string& a, const std::string& b);
// Creates one folder (its parent must exist); FauteFichier when it can't.
void CreerDossier(const std::string& chemin);

// Pieces of a path: "a/b/c.DXF" gives "a/b", "c.DXF", "dxf" (lower case, no point).
std::string DossierDuChemin(const std::string& chemin);
std::string NomDuChemin(const std::string& chemin);
std::string ExtensionMinuscule(const std::string& chemin);
// Folder and name with one separator between them.
std::string JoindreChemin(const std::string& dossier, const std::string& nom);

// ASCII letters only, as keys and extensions are compared.
std::string EnMinuscules(std::string_view texte);
bool EgalSansCasse(std::string_view a, std::string_view b);
std::string_view Rogner(std::string_view texte);
std::vector<std::string_view> Decouper(std::string_view texte, std::string_view separateur);

} // namespace tessarel
