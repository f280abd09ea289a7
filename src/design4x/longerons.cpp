// Generation and insertion of spars.
#include "longerons.h"

#include "design4x/boites_cpx.h"
#include "design4x/selection.h"
#include "paths/tables_degres.h"

#include <cmath>
#include <utility>

namespace tessarel {

namespace {

constexpr const char* SuffixeModifie = "-mod";
// A round spar is made of chords of 2 pi / 30, its points at pi + 2 k pi / 30 up to a full turn later, then
// at 3 pi + 2 k pi / 30. The wire comes in between two of them: at k = 7 and 8 below, at 22 and 23 above.
constexpr int CordesParTour = 30;
constexpr int PremierParLeBas = 8;
constexpr int PremierParLeHaut = 23;

constexpr std::uint16_t DrapeauxLien = DrapeauOutil | DrapeauSansDecalage;

bool ParLeBas(TypeTrajet type) {
    return type == TypeTrajet::RondParLeBas || type == TypeTrajet::CarreParLeBas;
}

PointProfil Point(const PointProfil& lieu, double x, double y, std::uint16_t drapeaux) {
    PointProfil p;
    p.X = x;
    p.Y = y;
    p.Z = lieu.Z;
    p.Drapeaux = drapeaux;
    return p;
}

// Up from the place when the wire comes from below, down when it comes from above.
double CentreY(TypeTrajet type, const DimensionsLongeron& dimensions, const PointProfil& lieu) {
    const double distance = static_cast<double>(dimensions[1]);
    return ParLeBas(type) ? lieu.Y + distance : lieu.Y - distance;
}

void AjouterRond(std::vector<PointProfil>& trajet, TypeTrajet type, const DimensionsLongeron& dimensions,
                 const PointProfil& lieu) {
    const double rayon = static_cast<double>(dimensions[0]);
    const double cy = CentreY(type, dimensions, lieu);
    const auto ajouter = [&](double angle) {
        trajet.push_back(
            Point(lieu, lieu.X + rayon * std::cos(angle), cy + rayon * std::sin(angle), DrapeauOutil));
    };
    const int premier = ParLeBas(type) ? PremierParLeBas : PremierParLeHaut;
    for (int k = premier; k <= CordesParTour; ++k) ajouter(Pi + 2 * k * Pi / CordesParTour);
    for (int k = 1; k < premier; ++k) ajouter(3 * Pi + 2 * k * Pi / CordesParTour);
}

// In by the middle of the near side, round by the right, out by the same point.
void AjouterCarre(std::vector<PointProfil>& trajet, TypeTrajet type, const DimensionsLongeron& dimensions,
                  const PointProfil& lieu) {
    const double demiLargeur = static_cast<double>(dimensions[0]) / 2;
    const double demiHauteur =
        (ParLeBas(type) ? -1 : 1) * static_cast<double>(dimensions[2]) / 2; // from centre to near side
    const double cy = CentreY(type, dimensions, lieu);
    const auto ajouter = [&](double dx, double dy) {
        trajet.push_back(Point(lieu, lieu.X + dx, cy + dy, DrapeauOutil));
    };
    ajouter(0, demiHauteur);
    ajouter(demiLargeur, demiHauteur);
    ajouter(demiLargeur, -demiHauteur);
    ajouter(-demiLargeur, -demiHauteur);
    ajouter(-demiLargeur, demiHauteur);
    ajouter(0, demiHauteur);
}

// Puts the run after the place, which becomes a point of the links.
void Inserer(ProfilCPX& profil, std::int32_t indice, const std::vector<PointProfil>& trajet) {
    const auto lieu = profil.Points.begin() + indice;
    lieu->Drapeaux |= DrapeauSansDecalage;
    profil.Points.insert(lieu + 1, trajet.begin(), trajet.end());
    if (profil.PointCourant > indice) profil.PointCourant += static_cast<std::int32_t>(trajet.size());
}

bool SansPointChoisi(const ProfilCPX& profil) {
    for (const PointProfil& p : profil.Points)
        if (Porte(p, DrapeauOutil)) return false;
    return true;
}

// False without points; else the box where a profile has no selected one.
bool VerifierLieux(const ProjetCPX& projet) {
    if (projet.E.Points.empty() || projet.S.Points.empty()) return false;
    if (SansPointChoisi(projet.E) || SansPointChoisi(projet.S)) BoiteRemarque(MessageSansPointInsertion);
    return true;
}

} // namespace

int NombreDimensions(TypeTrajet type) {
    switch (type) {
    case TypeTrajet::RondParLeBas:
    case TypeTrajet::RondParLeHaut:
        return 2;
    case TypeTrajet::CarreParLeBas:
    case TypeTrajet::CarreParLeHaut:
        return 3;
    case TypeTrajet::SortieADroite:
        return 1;
    case TypeTrajet::ProfilFichier:
        break;
    }
    return 0;
}

void RemplacerZeros(TypeTrajet type, DimensionsLongeron& dimensions) {
    bool remplace = false;
    for (int i = 0; i < NombreDimensions(type); ++i) {
        float& d = dimensions[static_cast<std::size_t>(i)];
        if (d != 0) continue;
        d = 1;
        remplace = true;
    }
    if (remplace)
        BoiteRemarque(type == TypeTrajet::SortieADroite ? MessageDistanceNulle : MessageValeursNulles);
}

std::vector<PointProfil> GenererTrajet(TypeTrajet type, const DimensionsLongeron& dimensions,
                                       const PointProfil& lieu) {
    std::vector<PointProfil> trajet;
    switch (type) {
    case TypeTrajet::RondParLeBas:
    case TypeTrajet::RondParLeHaut:
        AjouterRond(trajet, type, dimensions, lieu);
        break;
    case TypeTrajet::CarreParLeBas:
    case TypeTrajet::CarreParLeHaut:
        AjouterCarre(trajet, type, dimensions, lieu);
        break;
    case TypeTrajet::SortieADroite:
        trajet.push_back(Point(lieu, lieu.X + static_cast<double>(dimensions[0]), lieu.Y, DrapeauOutil));
        break;
    case TypeTrajet::ProfilFichier:
        return trajet;
    }
    trajet.front().Drapeaux = DrapeauxLien;
    trajet.back().Drapeaux = DrapeauxLien;
    trajet.push_back(Point(lieu, lieu.X, lieu.Y, DrapeauxLien));
    return trajet;
}

std::int32_t PointInsertion(const ProfilCPX& profil) {
    for (std::size_t i = 0; i < profil.Points.size(); ++i)
        if (Porte(profil.Points[i], DrapeauOutil)) return static_cast<std::int32_t>(i);
    return static_cast<std::int32_t>(profil.Points.size()) - 1;
}

bool InsererLongeron(ProjetCPX& projet, TypeTrajet type, DimensionsLongeron dimensions) {
    if (type == TypeTrajet::ProfilFichier || !VerifierLieux(projet)) return false;
    RemplacerZeros(type, dimensions);
    for (ProfilCPX* profil : {&projet.E, &projet.S}) {
        const std::int32_t indice = PointInsertion(*profil);
        Inserer(*profil, indice,
                GenererTrajet(type, dimensions, profil->Points[static_cast<std::size_t>(indice)]));
    }
    CalculerExtremesCPX(projet);
    return true;
}

bool InsererProfil(ProjetCPX& projet, const std::vector<PointProfil>& profil) {
    if (profil.size() < 2 || !VerifierLieux(projet)) return false;
    for (ProfilCPX* cote : {&projet.E, &projet.S}) {
        const std::int32_t indice = PointInsertion(*cote);
        const PointProfil lieu = cote->Points[static_cast<std::size_t>(indice)];
        std::vector<PointProfil> trajet;
        trajet.reserve(profil.size());
        for (std::size_t k = 1; k < profil.size(); ++k)
            trajet.push_back(Point(lieu, lieu.X + (profil[k].X - profil.front().X),
                                   lieu.Y + (profil[k].Y - profil.front().Y), DrapeauOutil));
        cote->Points.insert(cote->Points.begin() + indice + 1, trajet.begin(), trajet.end());
        if (cote->PointCourant > indice) cote->PointCourant += static_cast<std::int32_t>(trajet.size());
    }
    CalculerExtremesCPX(projet);
    return true;
}

void EntrerModeInsertion(ModeInsertion& mode, const HistoriqueCPX& historique) {
    mode.actif = true;
    mode.historique = historique;
}

void QuitterModeInsertion(ModeInsertion& mode, HistoriqueCPX& historique, ProjetCPX& projet, bool conserver) {
    if (!mode.actif) return;
    historique = std::move(mode.historique);
    mode = {};
    if (conserver) {
        projet.E.NomFichier += SuffixeModifie;
        projet.S.NomFichier += SuffixeModifie;
        MemoPourUndo(historique, projet);
    } else {
        RevenirEtatUndo(historique, projet);
    }
}

} // namespace tessarel
