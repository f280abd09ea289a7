// Wing files .cpx: the sections of an old project, or the key list with semicolons.
#include "paths/aile_importee.h"
#include "paths/cles_projet.h"
#include "paths/points_projet.h"
#include "paths/texte_aile.h"
#include "paths/texte_projet.h"
#include "platform/fichiers.h"

#include <array>

namespace tessarel {

namespace {

constexpr const char* SectionAnciennePosition = "Position";
constexpr const char* CleEcartement = "Ecartement";
constexpr const char* SectionAncienAffichage = "Affichage";
constexpr const char* CleCommentaire = "Commentaire";

// An old project writes the number of its points with "=".
bool EstAncienProjet(const TexteProjet& texte) {
    for (const SectionProfil& s : ProfilsProjet4axes)
        if (!texte.Valeur(s.ancienne, CleNombrePoints).empty()) return true;
    return false;
}

void LireProfilAncien(const TexteProjet& texte, const char* section, ProfilAile& profil) {
    profil.Fichier = texte.Valeur(section, CleNomFichier);
    profil.Points = LireSequenceProjet(texte, section).Points;
}

} // namespace

AileImportee AnalyserCpx(const std::string& octets, const std::string& chemin) {
    const TexteProjet texte(octets, chemin);
    if (!EstAncienProjet(texte)) return LireListeAile(EnUtf8(octets), ';', chemin);
    AileImportee aile;
    LireProfilAncien(texte, ProfilsProjet4axes[0].ancienne, aile.Emplanture);
    LireProfilAncien(texte, ProfilsProjet4axes[1].ancienne, aile.Saumon);
    const std::string_view ecartement = texte.Valeur(SectionAnciennePosition, CleEcartement);
    if (!ecartement.empty()) aile.Envergure = texte.Reel(ecartement);
    // Lines joined by ";" into one value, "0" for none.
    const std::string_view commentaire = texte.ValeurEntiere(SectionAncienAffichage, CleCommentaire);
    if (commentaire == "0") return aile;
    for (const std::string_view ligne : Decouper(commentaire, ";")) {
        if (!aile.Commentaire.empty()) aile.Commentaire += "\r\n";
        aile.Commentaire += ligne;
    }
    return aile;
}

std::vector<Sequence> LireCPX2TS2D(const std::string& chemin, RapportLecture* rapport) {
    return SequencesDepuisAile(AnalyserCpx(LireFichierEntier(chemin), chemin), chemin, rapport);
}

} // namespace tessarel
