// The profile between root and tip.
#include "intermediaire.h"

#include "app/texts/textes_programme.h"
#include "design4x/boites_cpx.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"

#include <utility>

namespace tessarel {

namespace {

void Refuser(TexteProgramme texte) {
    AfficherCritique(Texte(texte), Texte(TexteProgramme::TitreOperationImpossible));
}

bool Remplacer(ProjetCPX& projet, ProfilCPX& profil, ProfilIntermediaire& intermediaire, float ecartement) {
    if (intermediaire.DistanceIntermediaire == 0 || !intermediaire.Present() ||
        intermediaire.Points.size() != profil.Points.size())
        return false;
    if (!(ecartement > 0)) {
        BoiteArret(MessageEcartementNul);
        return false;
    }
    for (std::size_t k = 0; k < profil.Points.size(); ++k)
        intermediaire.Points[k].Drapeaux = profil.Points[k].Drapeaux;
    profil.Points = std::move(intermediaire.Points);
    projet.Ecartement = ecartement;
    EcrireZ(projet);
    CalculerExtremesCPX(projet);
    intermediaire = {};
    return true;
}

} // namespace

bool CalculerProfilIntermediaire(const ProjetCPX& projet, double distance,
                                 ProfilIntermediaire& intermediaire) {
    const std::vector<PointProfil>& e = projet.E.Points;
    const std::vector<PointProfil>& s = projet.S.Points;
    if (e.empty() || e.size() != s.size()) {
        Refuser(TexteProgramme::IntermediaireNombres);
        return false;
    }
    if (projet.Ecartement == 0) {
        BoiteArret(MessageEcartementNul);
        return false;
    }
    intermediaire.Ecartement = projet.Ecartement;
    intermediaire.DistanceIntermediaire = EnSimple(distance);
    const double d = static_cast<double>(intermediaire.DistanceIntermediaire);
    const double ecartement = static_cast<double>(projet.Ecartement);
    const double z = ecartement / 2 - d;
    intermediaire.Points.assign(e.size(), {});
    for (std::size_t k = 0; k < e.size(); ++k) {
        PointProfil& p = intermediaire.Points[k];
        p.X = e[k].X + (s[k].X - e[k].X) * d / ecartement;
        p.Y = e[k].Y + (s[k].Y - e[k].Y) * d / ecartement;
        p.Z = z;
    }
    return true;
}

bool cmdIntermediaireToEmplanture(ProjetCPX& projet, ProfilIntermediaire& intermediaire) {
    return Remplacer(projet, projet.E, intermediaire,
                     projet.Ecartement - intermediaire.DistanceIntermediaire);
}

bool cmdIntermediaireToSaumon(ProjetCPX& projet, ProfilIntermediaire& intermediaire) {
    return Remplacer(projet, projet.S, intermediaire, intermediaire.DistanceIntermediaire);
}

} // namespace tessarel
