// The rules of the house on the text of a file: words, length, opening sentence. Patterns are put together
// from pieces, so that this file doesn't trip over itself.
#include "architecture/regles.h"

#include "platform/fichiers.h"

#include <algorithm>
#include <regex>

namespace tessarel::architecture {
namespace {

struct Motif {
    std::regex expression;
    std::string raison;
};

Motif MotifDe(const std::string& expression, const std::string& raison, bool casse) {
    auto options = std::regex::ECMAScript | std::regex::optimize;
    if (!casse) options |= std::regex::icase;
    return {std::regex(expression, options), raison};
}

const std::vector<Motif>& Motifs() {
    static const std::vector<Motif> motifs = {
        MotifDe(std::string("\\bPa") + "rts?\\s+\\d+\\.\\d", "points at a chapter that nobody here can open",
                true),
        MotifDe(std::string("\\bsp") + "ec\\.md\\b", "names a document that is not here", false),
        MotifDe(std::string("\\bthe sp") + "ec(ification)?\\b", "names a document that is not here", false),
        MotifDe(std::string("\\bclar") + "ifications?\\b", "names a document that is not here", false),
        MotifDe(std::string("\\b(bri") + "ef|des" + "ign|sty" + "le)\\.md\\b",
                "names a document that is not here", false),
        MotifDe(std::string("\\biss") + "ues?\\s*#?\\d", "numbers of a tracker mean nothing to a reader",
                false),
        MotifDe(std::string("\\b(TO") + "DO|FIX" + "ME|XX" + "X|HA" + "CK)\\b", "unfinished work", true),
        MotifDe(std::string("/wo") + "rk/(wt|main|shared|tools)\\b", "path of one machine", false),
        MotifDe(std::string("\\b(cla") + "ude|anth" + "ropic|chat" + "gpt|open" + "ai|cop" + "ilot)\\b",
                "tools are no part of the program", false),
        MotifDe(std::string("\\b(sub-?)?ag") + "ents?\\b|\\blanguage mo" + "del\\b",
                "tools are no part of the program", false),
        MotifDe(std::string("\\b(pypi\\.o") + "rg|deb\\.deb" + "ian\\.org|registry\\.np" + "mjs|proxy\\.gol" +
                    "ang)",
                "host of a package registry", false),
        MotifDe(std::string("<<<<<") + "<< |>>>>>" + ">> ", "mark of a merge", true),
    };
    return motifs;
}

} // namespace

std::vector<Entorse> VerifierMots(std::string_view texte) {
    std::vector<Entorse> entorses;
    long numero = 0;
    for (const std::string_view ligne : Decouper(texte, "\n")) {
        ++numero;
        for (const Motif& motif : Motifs()) {
            std::cmatch trouve;
            if (std::regex_search(ligne.data(), ligne.data() + ligne.size(), trouve, motif.expression)) {
                entorses.push_back({numero, "\"" + trouve.str() + "\": " + motif.raison});
            }
        }
    }
    return entorses;
}

std::vector<Entorse> VerifierLongueur(std::string_view texte) {
    const auto lignes = static_cast<long>(std::ranges::count(texte, '\n'));
    if (lignes <= LignesMax) return {};
    return {{0, std::to_string(lignes) + " lines, " + std::to_string(LignesMax) +
                    " at most: the file holds two subjects"}};
}

std::vector<Entorse> VerifierPhraseOuvrante(std::string_view texte) {
    std::string commentaire;
    for (const std::string_view ligne : Decouper(texte, "\n")) {
        if (!ligne.starts_with("//")) break;
        commentaire += " " + std::string(Rogner(ligne.substr(2)));
    }
    if (commentaire.empty()) return {{1, "no comment at the head of the file"}};
    const bool ponctuee = commentaire.find_first_of(".:") != std::string::npos;
    const auto mots = std::ranges::count(commentaire, ' ');
    if (!ponctuee || mots < 3) return {{1, "the head of the file is no sentence"}};
    return {};
}

} // namespace tessarel::architecture
