// Point lines of a project, read in one pass where they stand in order, through an index where they do not.
#include "points_projet.h"

#include "app/texts/textes_programme.h"
#include "paths/cles_projet.h"
#include "platform/fichiers.h"
#include "platform/nombres.h"
#include "platform/profil_prive.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>
#include <vector>

namespace tessarel {

namespace {

// The shortest point line, "1=::" and its line end: bounds the points that a body can hold.
constexpr std::size_t LongueurLigneMin = 5;
constexpr double DrapeauxMax = 65535;
// Coordinates in millimetres never come near it; above it the careful road decides.
constexpr double CoordonneeSure = 1e9;

// Number of a point from its key as written by the program: digits, no leading zero. 0 for any other key.
std::uint32_t NumeroPoint(std::string_view cle) {
    std::uint32_t numero = 0;
    if (cle.empty() || cle.front() < '1' || cle.front() > '9') return 0;
    const auto r = std::from_chars(cle.data(), cle.data() + cle.size(), numero);
    return r.ec == std::errc() && r.ptr == cle.data() + cle.size() ? numero : 0;
}

// The decimal text of 1, 2, 3… without a conversion for each.
class CompteurDecimal {
public:
    [[nodiscard]] std::string_view Texte() const { return m_texte; }
    void Avancer() {
        for (std::size_t i = m_texte.size(); i-- > 0;) {
            if (m_texte[i] != '9') {
                ++m_texte[i];
                return;
            }
            m_texte[i] = '0';
        }
        m_texte.insert(m_texte.begin(), '1');
    }

private:
    std::string m_texte = "1";
};

// The plain case, three bare numbers; false for anything else, which then takes the careful road.
bool LirePointRapide(std::string_view valeur, PointProfil& point) {
    if (valeur.size() > LongueurValeurProfil) return false;
    double drapeaux = 0;
    std::size_t n = LireTeteNumerique(valeur, point.X);
    if (n == 0 || n >= valeur.size() || valeur[n] != ':') return false;
    valeur.remove_prefix(n + 1);
    n = LireTeteNumerique(valeur, point.Y);
    if (n == 0 || n >= valeur.size() || valeur[n] != ':') return false;
    valeur.remove_prefix(n + 1);
    n = LireTeteNumerique(valeur, drapeaux);
    if (n == 0 || n != valeur.size()) return false;
    if (!(std::abs(point.X) < CoordonneeSure && std::abs(point.Y) < CoordonneeSure)) return false;
    if (!(drapeaux >= 0 && drapeaux <= DrapeauxMax) || drapeaux != std::floor(drapeaux)) return false;
    point.Drapeaux = static_cast<std::uint16_t>(drapeaux);
    return true;
}

PointProfil LirePointSoigneux(const TexteProjet& texte, std::string_view valeur) {
    const std::string_view propre = PremiersCaracteres(ValeurNettoyee(valeur), LongueurValeurProfil);
    const std::vector<std::string_view> champs = Decouper(propre, ":");
    if (champs.size() < 3)
        texte.Refuser(valeur, TexteRempli(TexteProgramme::LecturePointProjetAttendu, {propre}));
    PointProfil point;
    point.X = texte.Reel(champs[0]);
    point.Y = texte.Reel(champs[1]);
    const std::int32_t drapeaux = texte.Entier(champs[2]);
    if (drapeaux < 0 || drapeaux > static_cast<std::int32_t>(DrapeauxMax))
        texte.Refuser(valeur, TexteRempli(TexteProgramme::LectureValeurHorsLimites, {champs[2]}));
    point.Drapeaux = static_cast<std::uint16_t>(drapeaux);
    return point;
}

PointProfil LirePoint(const TexteProjet& texte, std::string_view valeur) {
    PointProfil point;
    if (!LirePointRapide(valeur, point)) point = LirePointSoigneux(texte, valeur);
    return point;
}

struct LignePoint {
    std::uint32_t numero;
    std::string_view valeur;
};

// Takes the lines of points `premier` to `nombre` out of the body, first line of a number first; what is
// missing shows by the size of the result.
std::vector<LignePoint> RangerLignes(std::string_view corps, std::uint32_t premier, std::uint32_t nombre) {
    std::vector<LignePoint> lignes;
    std::string_view cle;
    std::string_view valeur;
    while (LigneSuivante(corps, cle, valeur)) {
        const std::uint32_t numero = NumeroPoint(cle);
        if (numero >= premier && numero <= nombre) lignes.push_back({numero, valeur});
    }
    // In order but for a gap or a repeat is the common disorder, and costs no sort.
    const auto avant = [](const LignePoint& a, const LignePoint& b) { return a.numero < b.numero; };
    if (!std::is_sorted(lignes.begin(), lignes.end(), avant))
        std::stable_sort(lignes.begin(), lignes.end(), avant);
    const auto meme = [](const LignePoint& a, const LignePoint& b) { return a.numero == b.numero; };
    lignes.erase(std::unique(lignes.begin(), lignes.end(), meme), lignes.end());
    return lignes;
}

} // namespace

Sequence LireSequenceProjet(const TexteProjet& texte, std::string_view section) {
    const std::string_view annonce = texte.Valeur(section, CleNombrePoints);
    const std::int32_t annonces = texte.Entier(annonce);
    if (annonces < 0) texte.Refuser(annonce, TexteRempli(TexteProgramme::LectureEntierAttendu, {annonce}));
    const auto nombre = static_cast<std::uint32_t>(annonces);

    Sequence sequence;
    std::string_view reste = texte.Corps(section);
    sequence.Points.reserve(std::min<std::size_t>(nombre, reste.size() / LongueurLigneMin + 1));
    CompteurDecimal attendu;
    while (sequence.Points.size() < nombre) {
        std::string_view suite = reste;
        std::string_view cle;
        std::string_view valeur;
        if (!LigneSuivante(suite, cle, valeur)) break;
        if (cle == attendu.Texte()) {
            sequence.Points.push_back(LirePoint(texte, valeur));
            attendu.Avancer();
        } else if (const std::uint32_t n = NumeroPoint(cle); n > sequence.Points.size() && n <= nombre) {
            break; // out of order from here on
        }
        reste = suite;
    }
    if (sequence.Points.size() < nombre) {
        const auto lus = static_cast<std::uint32_t>(sequence.Points.size());
        const std::vector<LignePoint> lignes = RangerLignes(reste, lus + 1, nombre);
        if (lignes.size() < nombre - lus)
            texte.Refuser(annonce,
                          "[" + std::string(section) + "] " +
                              TexteRempli(TexteProgramme::LectureNombrePoints,
                                          {std::to_string(nombre), std::to_string(lus + lignes.size())}));
        for (const LignePoint& ligne : lignes) sequence.Points.push_back(LirePoint(texte, ligne.valeur));
    }
    CalculerBornesSequence(sequence);
    return sequence;
}

} // namespace tessarel
