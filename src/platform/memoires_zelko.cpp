// Memories of the virtual box to and from JSON: the only source that knows the JSON library here.
#include "memoires_zelko.h"

#include "erreurs.h"
#include "fichiers.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <optional>

namespace tessarel {

namespace {

// A file looks like
//   { "format": "zelko-memoires", "version": 1,
//     "memoires": [ { "partie1": "28 44 ...", "partie2": "...", "partie3": "..." }, null, null ] }
// with 30 bytes in hexadecimal a part; null is a memory never written.
using Json = nlohmann::ordered_json;

constexpr const char* NomFormat = "zelko-memoires";
constexpr int VersionFormat = 1;
constexpr const char* NomsParties[] = {"partie1", "partie2", "partie3"};
constexpr std::uint8_t Vierge = 0xFF;

OctetsMemoire MemoireVierge() {
    OctetsMemoire memoire;
    for (auto& partie : memoire) partie.fill(Vierge);
    return memoire;
}

std::string EnHexa(const std::array<std::uint8_t, OctetsParPartie>& octets) {
    constexpr const char* chiffres = "0123456789abcdef";
    std::string texte;
    for (const std::uint8_t o : octets) {
        if (!texte.empty()) texte += ' ';
        texte += chiffres[o >> 4];
        texte += chiffres[o & 15];
    }
    return texte;
}

std::optional<unsigned> Chiffre(char c) {
    if (c >= '0' && c <= '9') return static_cast<unsigned>(c - '0');
    if (c >= 'a' && c <= 'f') return static_cast<unsigned>(c - 'a' + 10);
    if (c >= 'A' && c <= 'F') return static_cast<unsigned>(c - 'A' + 10);
    return std::nullopt;
}

// False when the text is not exactly 30 bytes in hexadecimal, blanks between them or not.
bool DepuisHexa(const std::string& texte, std::array<std::uint8_t, OctetsParPartie>& octets) {
    std::size_t n = 0;
    for (std::size_t i = 0; i < texte.size();) {
        if (texte[i] == ' ') {
            ++i;
            continue;
        }
        if (i + 1 >= texte.size() || n == octets.size()) return false;
        const auto haut = Chiffre(texte[i]);
        const auto bas = Chiffre(texte[i + 1]);
        if (!haut || !bas) return false;
        octets[n++] = static_cast<std::uint8_t>(*haut << 4U | *bas);
        i += 2;
    }
    return n == octets.size();
}

[[noreturn]] void Refuser(const std::string& fichier, const std::string& raison, long ligne = 0) {
    throw FauteLecture(fichier, ligne, raison);
}

Json Analyser(const std::string& fichier, const std::string& texte) {
    try {
        return Json::parse(texte);
    } catch (const nlohmann::json::parse_error& e) {
        const std::size_t fin = std::min(e.byte == 0 ? 0 : e.byte - 1, texte.size());
        const auto lignes = std::count(texte.begin(), texte.begin() + static_cast<std::ptrdiff_t>(fin), '\n');
        Refuser(fichier, SelonLangue("ce n'est pas du JSON", "this is not JSON"), lignes + 1);
    } catch (const nlohmann::json::exception&) { // a number that no number can hold
        Refuser(fichier, SelonLangue("ce n'est pas du JSON", "this is not JSON"));
    }
}

OctetsMemoire LireMemoire(const std::string& fichier, const Json& objet, std::size_t numero) {
    const std::string laquelle = SelonLangue("mémoire ", "memory ") + std::to_string(numero);
    OctetsMemoire memoire = MemoireVierge();
    if (objet.is_null()) return memoire;
    for (std::size_t p = 0; p < memoire.size(); ++p) {
        const std::string ou = laquelle + ", " + NomsParties[p] + SelonLangue(" : ", ": ");
        if (!objet.is_object() || !objet.contains(NomsParties[p]) || !objet[NomsParties[p]].is_string() ||
            !DepuisHexa(objet[NomsParties[p]].get<std::string>(), memoire[p])) {
            Refuser(fichier, ou + SelonLangue("30 octets en hexadécimal attendus",
                                              "30 bytes in hexadecimal expected"));
        }
    }
    return memoire;
}

} // namespace

OctetsMemoires AnalyserMemoiresZelko(const std::string& texte, const std::string& fichier) {
    const Json json = Analyser(fichier, texte);
    if (!json.is_object() || json.value("format", Json()) != NomFormat)
        Refuser(fichier, SelonLangue("ce n'est pas un fichier de mémoires de l'interface",
                                     "this is not a file of the interface's memories"));
    if (json.value("version", Json()) != VersionFormat)
        Refuser(fichier, SelonLangue("version inconnue : 1 attendue", "unknown version: 1 expected"));
    OctetsMemoires memoires;
    const Json liste = json.value("memoires", Json());
    if (!liste.is_array() || liste.size() != memoires.size())
        Refuser(fichier, SelonLangue("trois mémoires attendues", "three memories expected"));
    for (std::size_t i = 0; i < memoires.size(); ++i) memoires[i] = LireMemoire(fichier, liste[i], i);
    return memoires;
}

std::string ComposerMemoiresZelko(const OctetsMemoires& memoires) {
    Json liste = Json::array();
    for (const OctetsMemoire& memoire : memoires) {
        if (memoire == MemoireVierge()) {
            liste.push_back(nullptr);
            continue;
        }
        Json objet;
        for (std::size_t p = 0; p < memoire.size(); ++p) objet[NomsParties[p]] = EnHexa(memoire[p]);
        liste.push_back(objet);
    }
    Json json;
    json["format"] = NomFormat;
    json["version"] = VersionFormat;
    json["memoires"] = liste;
    return json.dump(2) + "\n";
}

OctetsMemoires LireMemoiresZelko(const std::string& fichier) {
    // A file of three memories is a thousand bytes; anything far larger is another file.
    constexpr std::size_t raisonnable = 1U << 16U;
    return AnalyserMemoiresZelko(LireDebutFichier(fichier, raisonnable), fichier);
}

void EcrireMemoiresZelko(const std::string& fichier, const OctetsMemoires& memoires) {
    EcrireFichierAtomique(fichier, ComposerMemoiresZelko(memoires));
}

} // namespace tessarel
