// From two profiles to a wing.
#include "aile_neuve.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "design4x/aile.h"
#include "design4x/bloc.h"
#include "design4x/boites_cpx.h"
#include "paths/aile_importee.h"
#include "platform/dialogue.h"

#include <algorithm>

namespace tessarel {

namespace {

void Prendre(const ProfilLu& lu, ProfilCPX& profil) {
    profil.NomFichier = lu.NomFichier;
    profil.Points = lu.Points;
}

} // namespace

bool ConstruireAile(const ProfilLu& emplanture, const ProfilLu& saumon, const PlanAile& plan,
                    ProjetCPX& projet) {
    projet = {};
    if (!(plan.Corde > 0) || !(plan.CordeSaumon > 0)) {
        AfficherCritique(Texte(TexteProgramme::CordeTropPetite), TitresMessages(MessageNombreAttendu));
        return false;
    }
    Prendre(emplanture, projet.E);
    Prendre(saumon, projet.S);
    CalculerExtremesCPX(projet);
    if (!txtCorde(projet, 0, plan.Corde) || !txtCorde(projet, 1, plan.CordeSaumon) ||
        !txtEcartementZ(projet, plan.Ecartement))
        return false;
    if (plan.Vrillage != 0) {
        VrillerProfil(projet.S.Points, plan.Vrillage);
        CalculerExtremesCPX(projet);
    }
    txtFleche(projet, plan.Fleche);
    if (plan.DiedreMm) txtDiedreMm(projet, *plan.DiedreMm);
    return !plan.BlocAuto || cmdBlocAuto(projet, *plan.BlocAuto);
}

bool TourneADroite(const std::vector<PointProfil>& points) {
    double aire = 0;
    for (std::size_t k = 0; k < points.size(); ++k) {
        const PointProfil& a = points[k];
        const PointProfil& b = points[(k + 1) % points.size()];
        aire += a.X * b.Y - b.X * a.Y;
    }
    return aire < 0;
}

void PreparerSynchronisation(ProjetCPX& projet) {
    if (TourneADroite(projet.E.Points) != TourneADroite(projet.S.Points))
        std::reverse(projet.S.Points.begin(), projet.S.Points.end());
    CalculerExtremesCPX(projet);
    for (ProfilCPX* profil : {&projet.E, &projet.S})
        if (!profil->Points.empty())
            profil->Points[static_cast<std::size_t>(profil->Extremes.IndiceXmax)].Drapeaux |= DrapeauSynchro;
    CalculerExtremesCPX(projet);
}

} // namespace tessarel
