// The rules of the house on the text of a file: words, length, opening sentence. Patterns are put together
// from pieces, so that this file doesn't trip over itself.
#include "architecture/regles.h"

#include "platform/fichiers.h"

#include <algorithm>
#include <regex>
#include <utility>

namespace tessarel::architecture {
namespace {

// An expression is slow to search for; `graines`, in small letters, are texts without which it can't match.
struct Motif {
    std::vector<std::string> graines;
    std::regex expression;
    std::string raison;
};

enum class Casse { Comptee, Libre };

Motif MotifDe(std::vector<std::string> graines, const std::string& expression, Casse casse,
              const std::string& raison) {
    auto options = std::regex::ECMAScript | std::regex::optimize;
    if (casse == Casse::Libre) options |= std::regex::icase;
    return {std::move(graines), std::regex(expression, options), raison};
}

const std::vector<Motif>& Motifs() {
    using std::string;
    const string absent = "names a document that is not here";
    const string outil = "tools are no part of the program";
    static const std::vector<Motif> motifs = {
        MotifDe({"part"}, string("\\bPa") + "rts?\\s+\\d+\\.\\d", Casse::Comptee,
                "points at a chapter that nobody here can open"),
        MotifDe({string("sp") + "ec.md"}, string("\\bsp") + "ec\\.md\\b", Casse::Libre, absent),
        MotifDe({string("the sp") + "ec"}, string("\\bthe sp") + "ec(ification)?\\b", Casse::Libre, absent),
        MotifDe({string("clar") + "if"}, string("\\bclar") + "ifications?\\b", Casse::Libre, absent),
        MotifDe({".md"}, string("\\b(bri") + "ef|des" + "ign|sty" + "le)\\.md\\b", Casse::Libre, absent),
        MotifDe({string("iss") + "ue"}, string("\\biss") + "ues?\\s*#?\\d", Casse::Libre,
                "numbers of a tracker mean nothing to a reader"),
        MotifDe({string("to") + "do", string("fix") + "me", string("xx") + "x", string("ha") + "ck"},
                string("\\b(TO") + "DO|FIX" + "ME|XX" + "X|HA" + "CK)\\b", Casse::Comptee, "unfinished work"),
        MotifDe({string("/wo") + "rk/"}, string("/wo") + "rk/(wt|main|shared|tools)\\b", Casse::Libre,
                "path of one machine"),
        MotifDe({string("cla") + "ude", string("anth") + "ropic", string("chat") + "gpt",
                 string("open") + "ai", string("cop") + "ilot"},
                string("\\b(cla") + "ude|anth" + "ropic|chat" + "gpt|open" + "ai|cop" + "ilot)\\b",
                Casse::Libre, outil),
        MotifDe({string("ag") + "ent", string("language mo") + "del"},
                string("\\b(sub-?)?ag") + "ents?\\b|\\blanguage mo" + "del\\b", Casse::Libre, outil),
        MotifDe({string("pypi.o") + "rg", string("deb.deb") + "ian", string("registry.np") + "m",
                 string("proxy.gol") + "ang"},
                string("\\b(pypi\\.o") + "rg|deb\\.deb" + "ian\\.org|registry\\.np" + "mjs|proxy\\.gol" +
                    "ang)",
                Casse::Libre, "host of a package registry"),
        MotifDe({string("<<<<<") + "<<", string(">>>>>") + ">>"}, string("<<<<<") + "<< |>>>>>" + ">> ",
                Casse::Comptee, "mark of a merge"),
    };
    return motifs;
}

void ChercherMotif(const Motif& motif, std::string_view texte, std::vector<Entorse>& entorses) {
    long numero = 0;
    for (const std::string_view ligne : Decouper(texte, "\n")) {
        ++numero;
        std::cmatch trouve;
        if (std::regex_search(ligne.data(), ligne.data() + ligne.size(), trouve, motif.expression)) {
            entorses.push_back({numero, "\"" + trouve.str() + "\": " + motif.raison});
        }
    }
}

} // namespace

std::vector<Entorse> VerifierMots(std::string_view texte) {
    const std::string minuscules = EnMinuscules(texte);
    std::vector<Entorse> entorses;
    for (const Motif& motif : Motifs()) {
        const bool possible = std::ranges::any_of(
            motif.graines, [&](const std::string& g) { return minuscules.find(g) != std::string::npos; });
        if (possible) ChercherMotif(motif, texte, entorses);
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
