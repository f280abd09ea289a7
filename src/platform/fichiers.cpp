// Files read whole and written in one step, and the encodings of their text.
#include "fichiers.h"

#include "erreurs.h"
#include "raisons.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tessarel {

namespace {

// Length of the UTF-8 sequence that starts at `i`, 0 when it is none (overlong forms and surrogates
// included).
std::size_t LongueurUtf8(std::string_view s, std::size_t i) {
    const auto octet = [&](std::size_t k) -> unsigned {
        return k < s.size() ? static_cast<unsigned char>(s[k]) : 0U;
    };
    const auto suite = [&](std::size_t k) { return (octet(k) & 0xC0U) == 0x80U; };
    const unsigned a = octet(i);
    if (a < 0x80) return 1;
    if (a >= 0xC2 && a <= 0xDF) return suite(i + 1) ? 2 : 0;
    if (a >= 0xE0 && a <= 0xEF) {
        if (!suite(i + 1) || !suite(i + 2)) return 0;
        if (a == 0xE0 && octet(i + 1) < 0xA0) return 0;
        if (a == 0xED && octet(i + 1) > 0x9F) return 0;
        return 3;
    }
    if (a >= 0xF0 && a <= 0xF4) {
        if (!suite(i + 1) || !suite(i + 2) || !suite(i + 3)) return 0;
        if (a == 0xF0 && octet(i + 1) < 0x90) return 0;
        if (a == 0xF4 && octet(i + 1) > 0x8F) return 0;
        return 4;
    }
    return 0;
}

// Where the run of plain ASCII that starts at `i` ends, to within a few bytes before it.
std::size_t FinAscii(std::string_view s, std::size_t i) {
    constexpr std::uint64_t bitsHauts = 0x8080808080808080U;
    std::uint64_t mot = 0;
    for (; i + sizeof mot <= s.size(); i += sizeof mot) {
        std::memcpy(&mot, s.data() + i, sizeof mot);
        if ((mot & bitsHauts) != 0) break;
    }
    return i;
}

// Windows-1252 between 0x80 and 0x9F; the five unused codes keep their number.
constexpr std::array<std::uint16_t, 32> Cp1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void AjouterUtf8(std::string& sortie, unsigned code) {
    if (code < 0x80) {
        sortie += static_cast<char>(code);
    } else if (code < 0x800) {
        sortie += static_cast<char>(0xC0U | (code >> 6U));
        sortie += static_cast<char>(0x80U | (code & 0x3FU));
    } else {
        sortie += static_cast<char>(0xE0U | (code >> 12U));
        sortie += static_cast<char>(0x80U | ((code >> 6U) & 0x3FU));
        sortie += static_cast<char>(0x80U | (code & 0x3FU));
    }
}

char MinusculeAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

std::string LireFichierEntier(const std::string& chemin) {
    return LireDebutFichier(chemin, SIZE_MAX);
}

std::string LireDebutFichier(const std::string& chemin, std::size_t nombre) {
    // Non-blocking: opening a pipe that nobody writes to must not hang.
    const int fd = ::open(chemin.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) {
        const int code = errno;
        throw FauteFichier(code == ENOENT ? NumeroErreur::FichierIntrouvable : NumeroErreur::AccesRefuse,
                           chemin, RaisonSysteme(code));
    }
    struct Fermeture {
        int fd;
        ~Fermeture() { ::close(fd); }
    } fermeture{fd};
    struct stat infos {};
    if (::fstat(fd, &infos) != 0) throw FauteFichier(NumeroErreur::AccesRefuse, chemin, RaisonSysteme(errno));
    if (S_ISDIR(infos.st_mode)) throw FauteFichier(NumeroErreur::AccesRefuse, chemin, RaisonSysteme(EISDIR));
    if (!S_ISREG(infos.st_mode))
        throw FauteFichier(NumeroErreur::AccesRefuse, chemin,
                           SelonLangue("ce n'est pas un fichier ordinaire", "it is not a regular file"));
    std::string octets(std::min(static_cast<std::size_t>(infos.st_size), nombre), '\0');
    std::size_t lus = 0;
    while (lus < nombre) {
        if (lus == octets.size()) {
            // The size may have grown since, or be unknown (0) for some file systems.
            std::array<char, 4096> suite;
            const ssize_t n = ::read(fd, suite.data(), suite.size());
            if (n < 0 && errno == EINTR) continue;
            if (n < 0) throw FauteFichier(NumeroErreur::AccesRefuse, chemin, RaisonSysteme(errno));
            if (n == 0) break;
            octets.append(suite.data(), std::min(static_cast<std::size_t>(n), nombre - lus));
            lus = octets.size();
            continue;
        }
        const ssize_t n = ::read(fd, octets.data() + lus, octets.size() - lus);
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) throw FauteFichier(NumeroErreur::AccesRefuse, chemin, RaisonSysteme(errno));
        if (n == 0) break;
        lus += static_cast<std::size_t>(n);
    }
    octets.resize(lus);
    return octets;
}

std::string EnUtf8(std::string octets) {
    bool valide = true;
    for (std::size_t i = FinAscii(octets, 0); i < octets.size() && valide; i = FinAscii(octets, i)) {
        const std::size_t n = LongueurUtf8(octets, i);
        valide = n != 0;
        i += n;
    }
    if (valide) {
        if (octets.starts_with("\xEF\xBB\xBF")) octets.erase(0, 3);
        return octets;
    }
    return Windows1252EnUtf8(octets);
}

std::string Windows1252EnUtf8(std::string_view octets) {
    std::string sortie;
    sortie.reserve(octets.size() + octets.size() / 8);
    for (const char c : octets) {
        const auto octet = static_cast<unsigned char>(c);
        AjouterUtf8(sortie, octet >= 0x80 && octet < 0xA0 ? Cp1252[octet - 0x80U] : octet);
    }
    return sortie;
}

std::string EnWindows1252(std::string_view utf8) {
    std::string sortie;
    for (std::size_t i = 0; i < utf8.size();) {
        const std::size_t n = LongueurUtf8(utf8, i);
        unsigned code = n == 1 ? static_cast<unsigned char>(utf8[i]) : 0;
        if (n >= 2) {
            code = static_cast<unsigned char>(utf8[i]) & (0xFFU >> (n + 1));
            for (std::size_t j = 1; j < n; ++j)
                code = (code << 6U) | (static_cast<unsigned char>(utf8[i + j]) & 0x3FU);
        }
        const auto haut = std::ranges::find(Cp1252, code);
        if (haut != Cp1252.end())
            sortie += static_cast<char>(0x80 + (haut - Cp1252.begin()));
        else
            sortie +=
                n != 0 && (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) ? static_cast<char>(code) : '?';
        i += n != 0 ? n : 1;
    }
    return sortie;
}

void EcrireFichierAtomique(const std::string& chemin, std::string_view octets) {
    EcritureAtomique ecriture(chemin);
    ecriture.Ecrire(octets);
    ecriture.Valider();
}

EcritureAtomique::EcritureAtomique(std::string chemin) : m_chemin(std::move(chemin)) {
    if (DossierExiste(m_chemin))
        throw FauteFichier(NumeroErreur::EcritureImpossible, m_chemin, RaisonSysteme(EISDIR));
    // A link is followed: its target is replaced, not the link.
    std::error_code ec;
    const auto vrai = std::filesystem::weakly_canonical(m_chemin, ec);
    if (!ec && std::filesystem::is_symlink(m_chemin, ec)) m_chemin = vrai.string();
    if (FichierExiste(m_chemin) && ::access(m_chemin.c_str(), W_OK) != 0)
        throw FauteFichier(NumeroErreur::EcritureImpossible, m_chemin, RaisonSysteme(errno));
    std::string modele = m_chemin + ".XXXXXX";
    const int fd = ::mkostemp(modele.data(), O_CLOEXEC);
    if (fd < 0) throw FauteFichier(NumeroErreur::EcritureImpossible, m_chemin, RaisonSysteme(errno));
    m_provisoire = modele;
    // The permissions of the file replaced, else those a new file would get.
    struct stat infos {};
    const mode_t masque = ::umask(0);
    ::umask(masque);
    const mode_t droits =
        ::stat(m_chemin.c_str(), &infos) == 0 ? (infos.st_mode & 07777U) : (0666U & ~masque);
    (void)::fchmod(fd, droits);
    m_fichier = ::fdopen(fd, "wb");
    if (m_fichier == nullptr) {
        const int code = errno;
        ::close(fd);
        Echouer(RaisonSysteme(code));
    }
    (void)std::setvbuf(m_fichier, nullptr, _IOFBF, std::size_t{1} << 18U);
}

EcritureAtomique::~EcritureAtomique() {
    Abandonner();
}

void EcritureAtomique::Abandonner() {
    if (m_fichier != nullptr) std::fclose(m_fichier);
    m_fichier = nullptr;
    if (!m_provisoire.empty()) ::unlink(m_provisoire.c_str());
    m_provisoire.clear();
}

void EcritureAtomique::Echouer(const std::string& raison) {
    Abandonner();
    throw FauteFichier(NumeroErreur::EcritureImpossible, m_chemin, raison);
}

void EcritureAtomique::Ecrire(std::string_view octets) {
    if (m_fichier == nullptr)
        throw FauteInterne(
            SelonLangue("écriture dans un fichier déjà fermé : ", "writing to a file already closed: ") +
            m_chemin);
    if (std::fwrite(octets.data(), 1, octets.size(), m_fichier) != octets.size())
        Echouer(RaisonSysteme(errno));
}

void EcritureAtomique::Valider() {
    if (m_fichier == nullptr)
        throw FauteInterne(
            SelonLangue("écriture dans un fichier déjà fermé : ", "writing to a file already closed: ") +
            m_chemin);
    if (std::fflush(m_fichier) != 0 || ::fsync(::fileno(m_fichier)) != 0) Echouer(RaisonSysteme(errno));
    const int ferme = std::fclose(std::exchange(m_fichier, nullptr));
    if (ferme != 0) Echouer(RaisonSysteme(errno));
    if (std::rename(m_provisoire.c_str(), m_chemin.c_str()) != 0) Echouer(RaisonSysteme(errno));
    m_provisoire.clear();
    // The new name itself must reach the disk; a folder that can't be flushed is no failure of the file.
    const std::string dossier = DossierDuChemin(m_chemin);
    const int fd = ::open(dossier.empty() ? "." : dossier.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        (void)::fsync(fd);
        ::close(fd);
    }
}

bool FichierExiste(const std::string& chemin) {
    std::error_code ec;
    return std::filesystem::exists(chemin, ec) && !std::filesystem::is_directory(chemin, ec);
}

bool DossierExiste(const std::string& chemin) {
    std::error_code ec;
    return std::filesystem::is_directory(chemin, ec);
}

bool MemeFichier(const std::string& a, const std::string& b) {
    std::error_code ec;
    return a == b || (std::filesystem::equivalent(a, b, ec) && !ec);
}

void CreerDossier(const std::string& chemin) {
    if (DossierExiste(chemin)) return;
    if (::mkdir(chemin.c_str(), 0777) != 0)
        throw FauteFichier(NumeroErreur::EcritureImpossible, chemin, RaisonSysteme(errno));
}

std::string DossierDuChemin(const std::string& chemin) {
    const auto i = chemin.find_last_of(SeparateurChemin);
    if (i == std::string::npos) return "";
    return i == 0 ? std::string(1, SeparateurChemin) : chemin.substr(0, i);
}

std::string NomDuChemin(const std::string& chemin) {
    const auto i = chemin.find_last_of(SeparateurChemin);
    return i == std::string::npos ? chemin : chemin.substr(i + 1);
}

std::string ExtensionMinuscule(const std::string& chemin) {
    const std::string nom = NomDuChemin(chemin);
    const auto i = nom.find_last_of('.');
    return i == std::string::npos ? "" : EnMinuscules(nom.substr(i + 1));
}

std::string JoindreChemin(const std::string& dossier, const std::string& nom) {
    if (dossier.empty() || dossier.back() == SeparateurChemin) return dossier + nom;
    return dossier + SeparateurChemin + nom;
}

std::string EnMinuscules(std::string_view texte) {
    std::string sortie(texte);
    for (char& c : sortie) c = MinusculeAscii(c);
    return sortie;
}

bool EgalSansCasse(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (MinusculeAscii(a[i]) != MinusculeAscii(b[i])) return false;
    return true;
}

std::string_view Rogner(std::string_view texte) {
    constexpr std::string_view blancs = " \t\r\n";
    const auto debut = texte.find_first_not_of(blancs);
    if (debut == std::string_view::npos) return {};
    return texte.substr(debut, texte.find_last_not_of(blancs) - debut + 1);
}

std::vector<std::string_view> Decouper(std::string_view texte, std::string_view separateur) {
    std::vector<std::string_view> pieces;
    for (;;) {
        const auto i = texte.find(separateur);
        pieces.push_back(texte.substr(0, i));
        if (i == std::string_view::npos) return pieces;
        texte.remove_prefix(i + separateur.size());
    }
}

} // namespace tessarel
