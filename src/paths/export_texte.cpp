// Writing of coordinates files and of profiles for the 3D modeler.
#include "paths/export_texte.h"

#include "app/texts/textes_programme.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "platform/nombres.h"

#include <array>

namespace tessarel {

namespace {

constexpr Masque MasqueCoordonnee = "#####0.0#####";

// One line "X:Y:Z", or "X:Y" without `avecZ`.
void EcrirePoint(EcritureAtomique& fichier, const PointProfil& point, bool avecZ) {
    std::array<char, 3 * TailleNombre + 4> ligne{};
    char* fin = EcrireNombre(ligne.data(), point.X, MasqueCoordonnee);
    *fin++ = ':';
    fin = EcrireNombre(fin, point.Y, MasqueCoordonnee);
    if (avecZ) {
        *fin++ = ':';
        fin = EcrireNombre(fin, point.Z, MasqueCoordonnee);
    }
    *fin++ = '\r';
    *fin++ = '\n';
    fichier.Ecrire({ligne.data(), static_cast<std::size_t>(fin - ligne.data())});
}

void EcrireProfil3D(const std::string& chemin, const Sequence& profil, const std::string& mot) {
    if (profil.Points.empty())
        throw FauteFichier(NumeroErreur::EcritureImpossible, chemin, Texte(TexteProgramme::LectureSansTrace));
    EcritureAtomique fichier(chemin);
    fichier.Ecrire(mot + "\r\n");
    for (const PointProfil& point : profil.Points) EcrirePoint(fichier, point, true);
    fichier.Ecrire("END_" + mot + "\r\n");
    fichier.Valider();
}

} // namespace

void EcrirePolyligne3D(const std::string& chemin, const Sequence& profil) {
    EcrireProfil3D(chemin, profil, "POLYLINE");
}

void EcrireFace3D(const std::string& chemin, const Sequence& profil) {
    EcrireProfil3D(chemin, profil, "FACE");
}

void EcrireCoordonneesTexte(const std::string& chemin, std::span<const Sequence> sequences) {
    EcritureAtomique fichier(chemin);
    std::size_t numero = 0;
    for (const Sequence& sequence : sequences) {
        // Any line that begins like no number opens a path.
        fichier.Ecrire("Trajet " + std::to_string(++numero) + "\r\n");
        for (const PointProfil& point : sequence.Points) EcrirePoint(fichier, point, false);
    }
    fichier.Valider();
}

} // namespace tessarel
