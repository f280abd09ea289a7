// Block fields, automatic block and block labels.
#include "bloc.h"

#include "design4x/boites_cpx.h"
#include "platform/nombres.h"

#include <cmath>

namespace tessarel {

namespace {

double D(float valeur) {
    return valeur;
}

// Margins, and distances of foot and top, that the buttons set, mm.
constexpr float MargeLarge = 10;
constexpr float MargeEtroite = 5;

void DefinirMarges(ProjetCPX& projet, float marge) {
    for (ProfilCPX* profil : {&projet.E, &projet.S}) profil->MargeBa = profil->MargeBf = marge;
}

// The ends of the block run along the span: the side that reaches further keeps its margin.
void BlocRectangulaire(ProjetCPX& projet) {
    ProfilCPX& e = projet.E;
    ProfilCPX& s = projet.S;
    if (e.Extremes.Xmax < s.Extremes.Xmax)
        e.MargeBa = EnSimple(D(s.MargeBa) - D(projet.Fleche));
    else
        s.MargeBa = EnSimple(D(projet.Fleche) + D(e.MargeBa));
    if (e.Extremes.Xmin >= s.Extremes.Xmin)
        s.MargeBf = EnSimple(D(projet.FlecheBF) + D(e.MargeBf));
    else
        e.MargeBf = EnSimple(D(s.MargeBf) - D(projet.FlecheBF));
}

bool MargesProportionnelles(ProjetCPX& projet) {
    const bool versEmplanture = projet.E.Corde < projet.S.Corde;
    const ProfilCPX& source = versEmplanture ? projet.S : projet.E;
    ProfilCPX& cible = versEmplanture ? projet.E : projet.S;
    if (source.Corde == 0) {
        BoiteDimensionNulle();
        return false;
    }
    const double rapport = D(cible.Corde) / D(source.Corde);
    cible.MargeBa = EnSimple(D(source.MargeBa) * rapport);
    cible.MargeBf = EnSimple(D(source.MargeBf) * rapport);
    return true;
}

// Foot under the lower of the two profiles, top over the higher.
void Hauteurs(ProjetCPX& projet, float marge) {
    const double dm = D(projet.DiedreMm);
    projet.DistProfilDessousE =
        projet.S.Extremes.Ymin < projet.E.Extremes.Ymin ? EnSimple(D(marge) - dm) : marge;
    const double dessous = D(projet.DistProfilDessousE);
    projet.Epaisseur = EnSimple(projet.S.Extremes.Ymax < projet.E.Extremes.Ymax
                                    ? D(projet.E.Hauteur) + dessous + D(marge)
                                    : dm + dessous + D(projet.S.Hauteur) + D(marge));
}

// How far the point at `indice` stands over the lowest point of its profile.
double HauteurSurPied(const ProfilCPX& profil, std::int32_t indice) {
    if (profil.Points.empty()) return 0;
    const double pied = profil.Points[static_cast<std::size_t>(profil.Extremes.IndiceYmin)].Y;
    return std::abs(profil.Points[static_cast<std::size_t>(indice)].Y - pied);
}

} // namespace

float* ChampBloc(ProjetCPX& projet, std::string_view controle) {
    if (controle == "txtEpaisseurBloc") return &projet.Epaisseur;
    if (controle == "txtMargeBA_E") return &projet.E.MargeBa;
    if (controle == "txtMargeBA_S") return &projet.S.MargeBa;
    if (controle == "txtMargeBF_E") return &projet.E.MargeBf;
    if (controle == "txtMargeBF_S") return &projet.S.MargeBf;
    if (controle == "txtDistProfilDessous_E") return &projet.DistProfilDessousE;
    return nullptr;
}

bool DefinirChampBloc(ProjetCPX& projet, std::string_view controle, double valeur) {
    float* champ = ChampBloc(projet, controle);
    if (champ == nullptr) return false;
    *champ = EnSimple(valeur);
    CalculerExtremesCPX(projet);
    return true;
}

bool cmdBlocAuto(ProjetCPX& projet, int index) {
    if (projet.E.Points.empty() || projet.S.Points.empty()) return false;
    switch (index) {
    case 0:
        BlocRectangulaire(projet);
        break;
    case 1:
        DefinirMarges(projet, MargeLarge);
        break;
    case 2:
        if (!MargesProportionnelles(projet)) return false;
        break;
    case 3:
        DefinirMarges(projet, MargeEtroite);
        break;
    default:
        Hauteurs(projet, index == 4 ? MargeEtroite : MargeLarge);
        break;
    }
    CalculerExtremesCPX(projet);
    return true;
}

std::array<EtiquetteBloc, NombreEtiquettesBloc> EtiquettesBloc(const ProjetCPX& projet) {
    const ProfilCPX& pe = projet.E;
    const ProfilCPX& ps = projet.S;
    const double epaisseur = D(projet.Epaisseur);
    const double baseE = D(projet.DistProfilDessousE);
    const double baseS = D(projet.DiedreMm) + baseE;
    const float baE = EnSimple(HauteurSurPied(pe, pe.Extremes.IndiceXmax) + baseE);
    const float bfE = EnSimple(HauteurSurPied(pe, pe.Extremes.IndiceXmin) + baseE);
    const float baS = EnSimple(HauteurSurPied(ps, ps.Extremes.IndiceXmax) + baseS);
    const float bfS = EnSimple(HauteurSurPied(ps, ps.Extremes.IndiceXmin) + baseS);
    const auto dessus = [&](float dessous) { return EnSimple(epaisseur - D(dessous)); };
    const auto longueur = [](const ProfilCPX& p) {
        return EnSimple(D(p.MargeBf) + D(p.Corde) + D(p.MargeBa));
    };
    return {{
        {"lblDistProfilDessus_E", EnSimple(epaisseur - baseE - D(pe.Hauteur))},
        {"lblDistProfilDessous_S", EnSimple(baseS)},
        {"lblDistProfilDessus_S", EnSimple(epaisseur - baseS - D(ps.Hauteur))},
        {"lblDistBADessous_E", baE},
        {"lblDistBADessus_E", dessus(baE)},
        {"lblDistBFDessous_E", bfE},
        {"lblDistBFDessus_E", dessus(bfE)},
        {"lblDistBADessous_S", baS},
        {"lblDistBADessus_S", dessus(baS)},
        {"lblDistBFDessous_S", bfS},
        {"lblDistBFDessus_S", dessus(bfS)},
        {"lblCorde_E", pe.Corde},
        {"lblCorde_S", ps.Corde},
        {"lblEpaisseurProfil_E", pe.Hauteur},
        {"lblEpaisseurProfil_S", ps.Hauteur},
        {"lblLongueurBloc_E", longueur(pe)},
        {"lblLongueurBloc_S", longueur(ps)},
        {"lblEpaisseurBloc_S", projet.Epaisseur},
    }};
}

} // namespace tessarel
