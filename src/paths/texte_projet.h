// The text of a project file as sections and keys, with the reading rules of settings files: sections and
// keys match without regard to case, the first of a name counts, order is of no weight, what is absent is
// empty.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tessarel {

// Takes the next "key=value" line off the front of `corps`; false when there is none left. Both are without
// blanks at their ends. Lines without '=' are passed over; a comment has a key that begins with ';', which no
// key of a project does.
inline bool LigneSuivante(std::string_view& corps, std::string_view& cle, std::string_view& valeur) {
    const auto blanc = [](char c) { return c == ' ' || c == '\t' || c == '\r'; };
    const auto rogner = [&](std::string_view t) {
        while (!t.empty() && blanc(t.front())) t.remove_prefix(1);
        while (!t.empty() && blanc(t.back())) t.remove_suffix(1);
        return t;
    };
    while (!corps.empty()) {
        const std::size_t fin = corps.find('\n');
        const std::string_view ligne = rogner(corps.substr(0, fin));
        corps.remove_prefix(fin == std::string_view::npos ? corps.size() : fin + 1);
        const std::size_t egal = ligne.find('=');
        if (egal == std::string_view::npos) continue;
        cle = rogner(ligne.substr(0, egal));
        valeur = rogner(ligne.substr(egal + 1));
        return true;
    }
    return false;
}

class TexteProjet {
public:
    // `octets` as the file holds them, in any of the encodings of users' files; `chemin` is named in faults.
    TexteProjet(std::string octets, std::string chemin);

    // All views given out point into the text and live as long as this object.
    TexteProjet(const TexteProjet&) = delete;
    TexteProjet& operator=(const TexteProjet&) = delete;

    [[nodiscard]] bool Contient(std::string_view section) const;
    // What stands below the header of a section, up to the next; empty when it is absent.
    [[nodiscard]] std::string_view Corps(std::string_view section) const;
    // Number of sections named `prefixe` and a whole number from 1 to `maximum` in decimal digits.
    [[nodiscard]] std::size_t CompterNumerotees(std::string_view prefixe, std::uint32_t maximum) const;

    // A value without its quotes, cut at the first NUL and at 255 characters; empty when absent.
    [[nodiscard]] std::string_view Valeur(std::string_view section, std::string_view cle) const;
    // The same without the cut at 255 characters.
    [[nodiscard]] std::string_view ValeurEntiere(std::string_view section, std::string_view cle) const;

    // A value as a number: empty gives 0. FauteLecture with the line where it is none, or beyond the limit of
    // what 32 bits can square.
    [[nodiscard]] double Reel(std::string_view valeur) const;
    [[nodiscard]] std::int32_t Entier(std::string_view valeur) const;
    // A whole number from 0 to `maximum`.
    [[nodiscard]] int Choix(std::string_view valeur, int maximum) const;

    // FauteLecture that names the file and the line of `lieu`, a view into the text (line 0 when it is
    // empty).
    [[noreturn]] void Refuser(std::string_view lieu, const std::string& raison) const;

private:
    [[nodiscard]] std::string_view ValeurBrute(std::string_view section, std::string_view cle) const;
    void IndexerSections();

    std::string m_texte;
    std::string m_chemin;
    std::unordered_map<std::string, std::string_view> m_sections; // by name in lower case
};

} // namespace tessarel
