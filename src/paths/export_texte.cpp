// Writing of coordinates files.
#include "paths/export_texte.h"

#include "platform/fichiers.h"
#include "platform/nombres.h"

#include <array>

namespace tessarel {

namespace {

constexpr Masque MasqueCoordonnee = "#####0.0#####";

} // namespace

void EcrireCoordonneesTexte(const std::string& chemin, std::span<const Sequence> sequences) {
    EcritureAtomique fichier(chemin);
    std::array<char, 2 * TailleNombre + 3> ligne{};
    std::size_t numero = 0;
    for (const Sequence& sequence : sequences) {
        // Any line that begins like no number opens a path.
        fichier.Ecrire("Trajet " + std::to_string(++numero) + "\r\n");
        for (const PointProfil& point : sequence.Points) {
            char* fin = EcrireNombre(ligne.data(), point.X, MasqueCoordonnee);
            *fin++ = ':';
            fin = EcrireNombre(fin, point.Y, MasqueCoordonnee);
            *fin++ = '\r';
            *fin++ = '\n';
            fichier.Ecrire({ligne.data(), static_cast<std::size_t>(fin - ligne.data())});
        }
    }
    fichier.Valider();
}

} // namespace tessarel
