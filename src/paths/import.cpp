// From drawing files to sequences.
#include "import.h"

#include "app/texts/textes_programme.h"
#include "geometrie.h"
#include "paths/aile_importee.h"
#include "paths/doublons.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "platform/gabar/assemblage.h"
#include "platform/nombres.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fmt/format.h>

namespace tessarel {

namespace {

constexpr std::array<const char*, 4> ExtensionsGabar = {"dxf", "dat", "plt", "eps"};

PointProfil EnProfil(const PointSimple& p) {
    PointProfil q;
    q.X = p.X;
    q.Y = p.Y;
    return q;
}

// Ranges of the points of each sequence, in order.
std::vector<std::span<const PointSimple>> Separer(const std::vector<PointSimple>& points) {
    std::vector<std::span<const PointSimple>> groupes;
    if (points.empty()) return groupes;
    // The whole array is one sequence unless its first code is above its last.
    const bool plusieurs = points.front().CodeSequence > points.back().CodeSequence;
    for (std::size_t debut = 0; debut < points.size();) {
        std::size_t fin = plusieurs ? debut + 1 : points.size();
        while (fin < points.size() && points[fin].CodeSequence == points[debut].CodeSequence) ++fin;
        groupes.emplace_back(points.data() + debut, fin - debut);
        debut = fin;
    }
    return groupes;
}

// A profile begins at its leading edge: a table that begins beyond the mean of its X is mirrored. A first
// point on the mean is settled by the second.
void OrdonnerProfil(std::vector<PointProfil>& points) {
    if (points.size() < 2) return;
    double somme = 0;
    double xMin = points[0].X;
    double xMax = points[0].X;
    for (const PointProfil& p : points) {
        somme += p.X;
        xMin = std::min(xMin, p.X);
        xMax = std::max(xMax, p.X);
    }
    const double moyenne = somme / static_cast<double>(points.size());
    const bool miroir = points[0].X > moyenne || (points[0].X == moyenne && points[0].X > points[1].X);
    if (!miroir) return;
    for (PointProfil& p : points) p.X = xMin + xMax - p.X;
}

std::vector<PointSimple> EnSimples(const std::vector<PointProfil>& points) {
    std::vector<PointSimple> simples;
    simples.reserve(points.size());
    for (const PointProfil& p : points) {
        PointSimple s;
        s.X = EnSimple(p.X);
        s.Y = EnSimple(p.Y);
        simples.push_back(s);
    }
    return simples;
}

// Returns the number of points removed.
std::size_t Alleger(Sequence& sequence, float distNettoyage) {
    std::vector<PointSimple> simples = EnSimples(sequence.Points);
    const std::size_t avant = simples.size();
    ReductionPointsAlignes(simples, distNettoyage);
    sequence.Points.clear();
    sequence.Points.shrink_to_fit();
    sequence.Points.reserve(simples.size());
    for (const PointSimple& p : simples) sequence.Points.push_back(EnProfil(p));
    return avant - simples.size();
}

} // namespace

bool LireXY(const std::vector<std::string_view>& champs, PointProfil& point) {
    if (champs.size() < 2) return false;
    const auto x = LireDecimal(champs[0]);
    const auto y = LireDecimal(champs[1]);
    if (!x || !y) return false;
    point.X = *x;
    point.Y = *y;
    return true;
}

const std::vector<std::string>& ExtensionsConnues() {
    static const std::vector<std::string> extensions = {"tsr", "qnt", "dxf", "txt", "dat",
                                                        "plt", "eps", "cpx", "fc"};
    return extensions;
}

std::vector<Sequence> CreerSequencesDepuisPoints(const std::vector<PointSimple>& points,
                                                 const std::string& extension, float distNettoyage,
                                                 std::size_t* pointsRetires) {
    const std::string genre = EnMinuscules(extension);
    const bool projet = genre == "tsr" || genre == "qnt";
    std::size_t retires = 0;
    std::vector<Sequence> sequences;
    const auto groupes = Separer(points);
    sequences.reserve(groupes.size());
    for (const std::span<const PointSimple> groupe : groupes) {
        Sequence& s = sequences.emplace_back();
        s.Points.reserve(groupe.size());
        for (const PointSimple& p : groupe) s.Points.push_back(EnProfil(p));
        if (genre == "dat") OrdonnerProfil(s.Points);
        CalculerBornesSequence(s);
        if (s.Points.size() == 2 && s.Points[0].X == s.Points[1].X && s.Points[0].Y == s.Points[1].Y)
            s.Points.pop_back();
        if (projet) continue;
        retires += Alleger(s, distNettoyage);
        CalculerBornesSequence(s);
    }
    if (pointsRetires != nullptr) *pointsRetires = retires;
    return sequences;
}

bool EstLigneNumerique(std::string_view ligne) {
    const std::string_view texte = Rogner(ligne);
    if (texte.empty()) return false;
    const char c = texte.front();
    return c == '-' || c == '+' || c == '.' || (c >= '0' && c <= '9');
}

std::vector<Sequence> LireCoordonneesTexte(const std::string& chemin) {
    return SequencesDepuisTexte(LireFichierEntier(chemin), chemin);
}

std::vector<Sequence> SequencesDepuisTexte(std::string_view texte, const std::string& chemin) {
    std::vector<Sequence> sequences;
    bool ouverte = false;
    long numero = 0;
    // A byte-order mark would make the first line a line of text.
    for (std::size_t debut = texte.starts_with("\xEF\xBB\xBF") ? 3 : 0; debut < texte.size();) {
        const std::size_t fin = std::min(texte.find('\n', debut), texte.size());
        const std::string_view ligne = Rogner(texte.substr(debut, fin - debut));
        debut = fin + 1;
        ++numero;
        if (!EstLigneNumerique(ligne)) {
            ouverte = false;
            continue;
        }
        PointProfil point;
        if (!LireXY(Decouper(ligne, ":"), point))
            throw FauteLecture(chemin, numero, Texte(TexteProgramme::LectureCoordonneesAttendues));
        if (std::abs(point.X) > CoordonneeMax || std::abs(point.Y) > CoordonneeMax)
            throw FauteLecture(chemin, numero,
                               TexteRempli(TexteProgramme::LectureCoordonneeHorsLimites, {ligne}));
        if (!ouverte) sequences.emplace_back();
        ouverte = true;
        sequences.back().Points.push_back(point);
    }
    for (Sequence& s : sequences) CalculerBornesSequence(s);
    return sequences;
}

std::vector<PointSimple> PointsDepuisSequences(std::span<const Sequence> sequences) {
    std::size_t pleines = 0;
    std::size_t total = 0;
    for (const Sequence& s : sequences) {
        pleines += s.Points.empty() ? 0 : 1;
        total += s.Points.size();
    }
    std::vector<PointSimple> points;
    points.reserve(total);
    std::size_t rang = 0;
    for (const Sequence& s : sequences) {
        if (s.Points.empty()) continue;
        const auto code = CodePolyligne(rang++, pleines);
        for (const PointProfil& p : s.Points) {
            PointSimple q;
            q.X = EnSimple(p.X);
            q.Y = EnSimple(p.Y);
            q.Z = EnSimple(p.Z);
            q.CodeSequence = code;
            points.push_back(q);
        }
    }
    return points;
}

DessinImporte LireDessin(const std::string& chemin, float distNettoyage) {
    DessinImporte dessin;
    dessin.extension = ExtensionMinuscule(chemin);
    std::vector<PointSimple> points;
    if (dessin.extension == "txt") {
        const std::vector<Sequence> lues = LireCoordonneesTexte(chemin);
        if (lues.empty()) throw FauteLecture(chemin, 0, Texte(TexteProgramme::LectureAucuneCoordonnee));
        dessin.rapport.lus["TXT"] = static_cast<int>(lues.size());
        points = PointsDepuisSequences(lues);
    } else if (dessin.extension == "cpx" || dessin.extension == "fc") {
        const bool cpx = dessin.extension == "cpx";
        const std::vector<Sequence> lues =
            cpx ? LireCPX2TS2D(chemin, &dessin.rapport) : LireProfilsFC(chemin, &dessin.rapport);
        dessin.rapport.lus[cpx ? "CPX" : "FC"] = static_cast<int>(lues.size());
        points = PointsDepuisSequences(lues);
    } else if (std::find(ExtensionsGabar.begin(), ExtensionsGabar.end(), dessin.extension) !=
               ExtensionsGabar.end()) {
        Etendue etendue;
        LireFichier(points, chemin, etendue, dessin.extension, &dessin.rapport);
    } else {
        if (!FichierExiste(chemin)) (void)LireFichierEntier(chemin); // tells what is there instead
        throw FauteLecture(chemin, 0, Texte(TexteProgramme::LectureGenreInconnu));
    }
    dessin.sequences =
        CreerSequencesDepuisPoints(points, dessin.extension, distNettoyage, &dessin.pointsRetires);
    if (const std::size_t doublons = CompterDoublons(dessin.sequences); doublons > 0)
        dessin.rapport.notes.push_back(TexteRempli(TexteProgramme::NoteDoublons, {std::to_string(doublons)}));
    return dessin;
}

} // namespace tessarel
