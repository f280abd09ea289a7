// EPS reader: the drawing's program is run by Ghostscript in a child process, and its painted paths are
// taken.
#include "lecture.h"

#include "messages.h"
#include "platform/erreurs.h"
#include "platform/processus.h"
#include "prologue_eps.h"
#include "traces_eps.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fmt/format.h>

namespace tessarel {

namespace {

constexpr const char* NomInterprete = "gs";
// Seconds of the processor for any file: its start takes 0.1, an ordinary drawing 0.1 more. A program that
// loops for ever is stopped within 2 s.
constexpr double SecondesDeBase = 1.2;
// Long files get time by their size; drawings measured take 0.05 to 0.4 s a megabyte.
constexpr double SecondesParOctet = 1e-6;
constexpr std::size_t MemoireInterprete = std::size_t{1} << 30U;
// Some 20 million lines to; the limit on points comes first for all but the file's own chatter.
constexpr std::size_t SortieMax = std::size_t{512} << 20U;
// Where "%!" may stand: behind a byte-order mark, blank lines or a printer's job header.
constexpr std::size_t EnteteMax = 1024;

// Header of a file with a preview: its mark, then offset and length of the PostScript, 32 bits, low byte
// first.
constexpr std::string_view MarqueApercu = "\xC5\xD0\xD3\xC6";
constexpr std::size_t TailleEnteteApercu = 30;

std::uint32_t Mot32(std::string_view octets, std::size_t i) {
    std::uint32_t mot = 0;
    for (std::size_t k = 4; k-- > 0;) mot = mot << 8U | static_cast<unsigned char>(octets[i + k]);
    return mot;
}

// The PostScript of the file.
std::string_view Programme(std::string_view texte, const std::string& chemin) {
    if (texte.starts_with(MarqueApercu)) {
        const std::size_t debut = texte.size() < TailleEnteteApercu ? texte.size() : Mot32(texte, 4);
        if (debut >= texte.size())
            throw FauteLecture(chemin, 0, Bilingue("le fichier est tronqué", "the file is truncated"));
        texte = texte.substr(debut, Mot32(texte, 8));
    }
    const std::size_t marque = texte.substr(0, EnteteMax).find("%!");
    if (marque == std::string_view::npos)
        throw FauteLecture(chemin, 0,
                           Bilingue("ce n'est pas un fichier PostScript : « %! » n'est pas à son début",
                                    "this is not a PostScript file: \"%!\" is not at its start"));
    return texte.substr(marque);
}

std::string TrouverInterprete(const std::string& chemin) {
    std::string programme = TrouverProgramme(NomInterprete);
    if (programme.empty())
        throw FauteLecture(
            chemin, 0,
            Bilingue("la lecture des .eps demande Ghostscript : installez le paquet ghostscript",
                     "reading .eps files needs Ghostscript: install the package ghostscript"));
    return programme;
}

void JugerFin(const ResultatProcessus& resultat, double secondes, const TracesEps& traces,
              const std::string& chemin) {
    if (resultat.fin == FinProcessus::TempsDepasse)
        throw FauteLecture(
            chemin, 0,
            Bilingue(fmt::format("le dessin n'était pas fini après {:.1f} s de calcul", secondes),
                     fmt::format("the drawing was not finished after {:.1f} s of computing", secondes)));
    if (resultat.fin == FinProcessus::SortieTropLongue)
        throw FauteLecture(chemin, 0, Bilingue("le dessin est trop long", "the drawing is too long"));
    if (!traces.erreur.empty())
        throw FauteLecture(chemin, 0,
                           Bilingue(fmt::format("erreur PostScript « {} »", traces.erreur),
                                    fmt::format("PostScript error \"{}\"", traces.erreur)));
    if (!traces.complet)
        throw FauteLecture(chemin, 0,
                           Bilingue("Ghostscript s'est arrêté avant la fin du dessin",
                                    "Ghostscript stopped before the end of the drawing"));
    if (!traces.debuts.empty()) return;
    std::string autres;
    for (const auto& [genre, compte] : traces.rapport.ignores)
        autres += fmt::format("{}{} × {}", autres.empty() ? "" : ", ", compte, genre);
    if (!autres.empty()) autres = " (" + autres + ")";
    throw FauteLecture(
        chemin, 0,
        Bilingue("le dessin ne peint aucun tracé" + autres, "the drawing paints no path" + autres));
}

} // namespace

void LireEps(std::vector<PointSimple>& points, const std::string& texte, const std::string& chemin,
             RapportLecture& rapport) {
    const std::string_view programme = Programme(texte, chemin);
    // Safe mode: no file but its input can be read or written. The device has a page and no picture; its fine
    // grid keeps the coordinates to 1/2560 of a point.
    const std::vector<std::string> commande = {
        TrouverInterprete(chemin), "-dSAFER", "-dNOPAUSE", "-dBATCH", "-P-", "-q",
        "-sDEVICE=nullpage",       "-r720",   "-_"};
    LimitesProcessus limites;
    limites.secondes = SecondesDeBase + SecondesParOctet * static_cast<double>(programme.size());
    limites.octetsMemoire = MemoireInterprete;
    limites.octetsSortie = SortieMax;
    const std::array<std::string_view, 2> entree = {PrologueEps, programme};
    TracesEps traces;
    const ResultatProcessus resultat = ExecuterProcessus(
        commande, entree, limites, [&](std::string_view morceau) { AvalerTraces(traces, morceau, chemin); });
    TerminerTraces(traces);
    JugerFin(resultat, limites.secondes, traces, chemin);
    points = std::move(traces.points);
    rapport = std::move(traces.rapport);
}

} // namespace tessarel
