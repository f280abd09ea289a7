// Sections, keys and values of a project file's text.
#include "texte_projet.h"

#include "app/texts/textes_programme.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "platform/nombres.h"
#include "platform/profil_prive.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <functional>
#include <optional>
#include <utility>

namespace tessarel {

namespace {

// Beyond it the square of a length leaves the 32 bits in which thinning and offsets hold it.
constexpr double ValeurMax = 1e18;

// Whether only blanks stand between `i` and the start of its line.
bool EnDebutDeLigne(std::string_view texte, std::size_t i) {
    while (i > 0 && (texte[i - 1] == ' ' || texte[i - 1] == '\t' || texte[i - 1] == '\r')) --i;
    return i == 0 || texte[i - 1] == '\n';
}

} // namespace

TexteProjet::TexteProjet(std::string octets, std::string chemin)
    : m_texte(EnUtf8(std::move(octets))), m_chemin(std::move(chemin)) {
    IndexerSections();
}

void TexteProjet::IndexerSections() {
    const std::string_view texte = m_texte;
    std::string_view* ouverte = nullptr; // body of the section being read, when it is the first of its name
    const char* debut = nullptr;
    const auto fermer = [&](std::size_t fin) {
        if (ouverte != nullptr) *ouverte = {debut, static_cast<std::size_t>(texte.data() + fin - debut)};
    };
    for (std::size_t i = texte.find('['); i != std::string_view::npos; i = texte.find('[', i + 1)) {
        if (!EnDebutDeLigne(texte, i)) continue;
        const std::size_t finLigne = std::min(texte.find('\n', i), texte.size());
        std::string_view nom;
        if (!NomDeSection(texte.substr(i, finLigne - i), nom)) continue;
        fermer(i);
        const auto [place, nouvelle] = m_sections.try_emplace(PlierNom(nom), std::string_view());
        ouverte = nouvelle ? &place->second : nullptr;
        debut = texte.data() + std::min(finLigne + 1, texte.size());
        // The rest of a line of headers is no header.
        i = std::min(finLigne, texte.size() - 1);
    }
    fermer(texte.size());
}

bool TexteProjet::Contient(std::string_view section) const {
    return m_sections.find(PlierNom(section)) != m_sections.end();
}

std::string_view TexteProjet::Corps(std::string_view section) const {
    const auto place = m_sections.find(PlierNom(section));
    return place == m_sections.end() ? std::string_view() : place->second;
}

std::size_t TexteProjet::CompterNumerotees(std::string_view prefixe, std::uint32_t maximum) const {
    const std::string debut = PlierNom(prefixe);
    std::size_t nombre = 0;
    for (const auto& [nom, corps] : m_sections) {
        if (!nom.starts_with(debut) || nom.size() == debut.size() || nom[debut.size()] == '0') continue;
        std::uint32_t numero = 0;
        const auto r = std::from_chars(nom.data() + debut.size(), nom.data() + nom.size(), numero);
        if (r.ec == std::errc() && r.ptr == nom.data() + nom.size() && numero <= maximum) ++nombre;
    }
    return nombre;
}

std::string_view TexteProjet::ValeurBrute(std::string_view section, std::string_view cle) const {
    std::string_view corps = Corps(section);
    std::string_view cleLue;
    std::string_view valeur;
    while (LigneSuivante(corps, cleLue, valeur))
        if (EgalSansCasse(cleLue, cle)) return valeur; // keys of projects are ASCII
    return {};
}

std::string_view TexteProjet::ValeurEntiere(std::string_view section, std::string_view cle) const {
    return ValeurNettoyee(ValeurBrute(section, cle));
}

std::string_view TexteProjet::Valeur(std::string_view section, std::string_view cle) const {
    return PremiersCaracteres(ValeurEntiere(section, cle), LongueurValeurProfil);
}

double TexteProjet::Reel(std::string_view valeur) const {
    if (Rogner(valeur).empty()) return 0;
    const std::optional<double> nombre = LireDecimal(valeur);
    if (!nombre) Refuser(valeur, TexteRempli(TexteProgramme::LectureNombreAttendu, {valeur}));
    if (std::abs(*nombre) > ValeurMax)
        Refuser(valeur, TexteRempli(TexteProgramme::LectureValeurHorsLimites, {valeur}));
    return *nombre;
}

std::int32_t TexteProjet::Entier(std::string_view valeur) const {
    const double nombre = Arrondi(Reel(valeur));
    if (std::abs(nombre) > INT32_MAX)
        Refuser(valeur, TexteRempli(TexteProgramme::LectureValeurHorsLimites, {valeur}));
    return static_cast<std::int32_t>(nombre);
}

int TexteProjet::Choix(std::string_view valeur, int maximum) const {
    const std::int32_t choix = Entier(valeur);
    if (choix < 0 || choix > maximum)
        Refuser(valeur, TexteRempli(TexteProgramme::LectureChoixAttendu, {std::to_string(maximum), valeur}));
    return choix;
}

void TexteProjet::Refuser(std::string_view lieu, const std::string& raison) const {
    long ligne = 0;
    const std::less_equal<const char*> auPlus;
    if (lieu.data() != nullptr && auPlus(m_texte.data(), lieu.data()) &&
        auPlus(lieu.data(), m_texte.data() + m_texte.size()))
        ligne = 1 + static_cast<long>(std::count(m_texte.data(), lieu.data(), '\n'));
    throw FauteLecture(m_chemin, ligne, raison);
}

} // namespace tessarel
