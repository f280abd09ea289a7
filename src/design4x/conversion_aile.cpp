// Wing files taken over into the design.
#include "conversion_aile.h"

#include "platform/nombres.h"

#include <optional>
#include <utility>

namespace tessarel {

namespace {

void Reprendre(const std::optional<double>& lu, float& champ) {
    if (lu) champ = EnSimple(*lu);
}

} // namespace

ProjetCPX ProjetCPXDepuisAile(const AileImportee& aile, const std::string& nom) {
    ProjetCPX projet;
    projet.NomProjet = nom;
    // The ends that have points come in order, root first.
    std::vector<Sequence> sequences = SequencesAile(aile);
    std::size_t suivante = 0;
    const auto prendre = [&](const ProfilAile& bout, ProfilCPX& profil) {
        profil.NomFichier = bout.Fichier;
        Reprendre(bout.MargeBA, profil.MargeBa);
        Reprendre(bout.MargeBF, profil.MargeBf);
        if (!bout.Points.empty()) profil.Points = std::move(sequences[suivante++].Points);
    };
    prendre(aile.Emplanture, projet.E);
    prendre(aile.Saumon, projet.S);
    Reprendre(aile.Envergure, projet.Ecartement);
    Reprendre(aile.Epaisseur, projet.Epaisseur);
    Reprendre(aile.MDessous, projet.DistProfilDessousE);
    EcrireZ(projet);
    CalculerExtremesCPX(projet);
    return projet;
}

} // namespace tessarel
