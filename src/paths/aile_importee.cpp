// Wing files brought to the two profiles that they place.
#include "paths/aile_importee.h"

#include "app/texts/textes_programme.h"
#include "paths/import.h"
#include "paths/texte_aile.h"
#include "platform/fichiers.h"
#include "platform/gabar/messages.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace tessarel {

namespace {

constexpr double MmParPouce = 25.4;
constexpr double RadiansParDegre = std::numbers::pi / 180;

// Drawings that an end may take its points from: none of them names another file in turn.
constexpr std::array<const char*, 4> ExtensionsProfil = {"dat", "txt", "dxf", "plt"};

// Unrounded box of the points; there is one point at least.
struct Boite {
    double xMin, xMax, yMin, yMax;
};
Boite BoitePoints(const std::vector<PointProfil>& points) {
    Boite b{points[0].X, points[0].X, points[0].Y, points[0].Y};
    for (const PointProfil& p : points) {
        b.xMin = std::min(b.xMin, p.X);
        b.xMax = std::max(b.xMax, p.X);
        b.yMin = std::min(b.yMin, p.Y);
        b.yMax = std::max(b.yMax, p.Y);
    }
    return b;
}

// What a profile says of itself, but for the offset.
std::vector<PointProfil> Former(const ProfilAile& profil) {
    std::vector<PointProfil> points = profil.Points;
    if (points.empty()) return points;
    const Boite b = BoitePoints(points);
    // A height of nothing is no profile: a factor of 0 is that of a file that leaves it open.
    const double hauteur = profil.xHauteur == 0 ? 1 : profil.xHauteur;
    for (PointProfil& p : points) {
        if (profil.MiroirHorizontal) p.X = b.xMin + b.xMax - p.X;
        if (profil.MiroirVertical) p.Y = b.yMin + b.yMax - p.Y;
        p.Y *= hauteur;
    }
    if (profil.Vrillage != 0) VrillerProfil(points, profil.Vrillage);
    return points;
}

void Deplacer(std::vector<PointProfil>& points, double x, double y) {
    for (PointProfil& p : points) {
        p.X += x;
        p.Y += y;
    }
}

void EnMillimetres(ProfilAile& profil) {
    for (PointProfil& p : profil.Points) {
        p.X *= MmParPouce;
        p.Y *= MmParPouce;
    }
    profil.Decalage *= MmParPouce;
    for (auto membre : {&ProfilAile::MargeBA, &ProfilAile::MargeBF})
        if (profil.*membre) *(profil.*membre) *= MmParPouce;
}

// Points of an end that only names its file, which stands in the wing file's own folder: no other folder is
// looked into, whatever the name says.
void PrendreFichier(ProfilAile& profil, const char* section, const std::string& chemin,
                    RapportLecture& rapport) {
    if (!profil.Points.empty() || profil.Fichier.empty()) return;
    std::string nom = profil.Fichier;
    std::replace(nom.begin(), nom.end(), '\\', '/');
    nom = NomDuChemin(nom);
    const std::string extension = ExtensionMinuscule(nom);
    if (std::find(ExtensionsProfil.begin(), ExtensionsProfil.end(), extension) == ExtensionsProfil.end())
        return;
    const std::string dossier = DossierDuChemin(chemin);
    const DessinImporte dessin = LireDessin(dossier.empty() ? nom : JoindreChemin(dossier, nom), 0);
    profil.Points = dessin.sequences.front().Points;
    rapport.notes.push_back(TexteRempli(TexteProgramme::NoteAileProfilLu, {section, Citation(nom)}));
}

} // namespace

void VrillerProfil(std::vector<PointProfil>& points, double degres) {
    const PointProfil bord = *std::max_element(
        points.begin(), points.end(), [](const PointProfil& a, const PointProfil& b) { return a.X < b.X; });
    const double c = std::cos(degres * RadiansParDegre);
    const double s = std::sin(degres * RadiansParDegre);
    for (PointProfil& p : points) {
        const double x = p.X - bord.X;
        const double y = p.Y - bord.Y;
        p.X = bord.X + x * c - y * s;
        p.Y = bord.Y + x * s + y * c;
    }
}

void ConvertirPouces(AileImportee& aile) {
    EnMillimetres(aile.Emplanture);
    EnMillimetres(aile.Saumon);
    for (auto membre : {&AileImportee::Envergure, &AileImportee::FlecheBA, &AileImportee::Epaisseur,
                        &AileImportee::MDessous})
        if (aile.*membre) *(aile.*membre) *= MmParPouce;
    aile.rapport.notes.push_back(Texte(TexteProgramme::NoteAilePouces));
}

std::vector<Sequence> SequencesAile(const AileImportee& aile) {
    std::array<std::vector<PointProfil>, 2> points = {Former(aile.Emplanture), Former(aile.Saumon)};
    if (aile.FlecheBA && !points[0].empty() && !points[1].empty())
        Deplacer(points[1], BoitePoints(points[0]).xMax - *aile.FlecheBA - BoitePoints(points[1]).xMax, 0);
    Deplacer(points[0], 0, aile.Emplanture.Decalage);
    Deplacer(points[1], 0, aile.Saumon.Decalage);
    std::vector<Sequence> sequences;
    for (std::vector<PointProfil>& p : points) {
        if (p.empty()) continue;
        sequences.emplace_back().Points = std::move(p);
        CalculerBornesSequence(sequences.back());
    }
    return sequences;
}

std::vector<Sequence> SequencesDepuisAile(AileImportee aile, const std::string& chemin,
                                          RapportLecture* rapport) {
    const std::array<std::pair<ProfilAile*, const char*>, 2> bouts = {
        {{&aile.Emplanture, SectionEmplanture}, {&aile.Saumon, SectionSaumon}}};
    for (const auto& [profil, nom] : bouts) PrendreFichier(*profil, nom, chemin, aile.rapport);
    std::vector<Sequence> sequences = SequencesAile(aile);
    if (sequences.empty()) RefuserSansSection(chemin, 0);
    for (const auto& [profil, nom] : bouts)
        if (profil->Points.empty())
            aile.rapport.notes.push_back(TexteRempli(TexteProgramme::NoteAileProfilAbsent, {nom}));
    if (rapport != nullptr) *rapport = std::move(aile.rapport);
    return sequences;
}

} // namespace tessarel
