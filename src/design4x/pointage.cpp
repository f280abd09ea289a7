// Points picked and moved on the picture.
#include "pointage.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "design4x/selection.h"
#include "platform/dialogue.h"

#include <algorithm>

namespace tessarel {

namespace {

// Row of TextesMessages.
constexpr int MessageVueCoteSeulement = 8;

std::vector<PointProfil>& PointsDe(ProjetCPX& projet, int index) {
    return (index == 0 ? projet.E : projet.S).Points;
}

const TraceVue& TraceDe(const VueCPX& vue, int index) {
    return index == 0 ? vue.E : vue.S;
}

void Basculer(PointProfil& point, std::uint16_t mode) {
    point.Drapeaux ^= mode;
}

} // namespace

PointVise PointLePlusProche(const VueCPX& vue, PointEcran lieu) {
    PointVise vise;
    double meilleure = TolerancePointage * TolerancePointage;
    for (const int index : {0, 1}) {
        if (!vue.chkAfficherProfil[static_cast<std::size_t>(index)]) continue;
        std::int32_t indice = 0;
        for (const PointEcran& p : TraceDe(vue, index).Ecran) {
            const double d2 = (p.X - lieu.X) * (p.X - lieu.X) + (p.Y - lieu.Y) * (p.Y - lieu.Y);
            if (d2 < meilleure) {
                meilleure = d2;
                vise = {index, indice};
            }
            ++indice;
        }
    }
    return vise;
}

bool BasculerPoint(ProjetCPX& projet, const VueCPX& vue, PointEcran lieu, std::uint16_t mode) {
    const PointVise vise = PointLePlusProche(vue, lieu);
    if (!vise.Trouve()) return false;
    Basculer(PointsDe(projet, vise.index)[static_cast<std::size_t>(vise.indice)], mode);
    CalculerExtremesCPX(projet);
    return true;
}

bool BasculerCadre(ProjetCPX& projet, const VueCPX& vue, PointEcran a, PointEcran b, std::uint16_t mode) {
    const auto [gauche, droite] = std::minmax(a.X, b.X);
    const auto [haut, bas] = std::minmax(a.Y, b.Y);
    bool fait = false;
    for (const int index : {0, 1}) {
        if (!vue.chkAfficherProfil[static_cast<std::size_t>(index)]) continue;
        std::vector<PointProfil>& points = PointsDe(projet, index);
        const std::vector<PointEcran>& ecran = TraceDe(vue, index).Ecran;
        for (std::size_t k = 0; k < points.size() && k < ecran.size(); ++k) {
            if (ecran[k].X < gauche || ecran[k].X > droite || ecran[k].Y < haut || ecran[k].Y > bas) continue;
            Basculer(points[k], mode);
            fait = true;
        }
    }
    if (fait) CalculerExtremesCPX(projet);
    return fait;
}

bool BasculerPointCourant(ProjetCPX& projet, int index, std::uint16_t mode) {
    ProfilCPX& profil = index == 0 ? projet.E : projet.S;
    const auto indice = static_cast<std::size_t>(profil.PointCourant);
    if (indice >= profil.Points.size()) return false;
    Basculer(profil.Points[indice], mode);
    CalculerExtremesCPX(projet);
    return true;
}

bool DeplacerALaSouris(ProjetCPX& projet, const VueCPX& vue, double dx, double dy, std::uint16_t mode) {
    if (mode != DrapeauOutil) {
        AfficherCritique(Texte(TexteProgramme::CtrlSansPremierBouton),
                         Texte(TexteProgramme::TitreOperationImpossible));
        return false;
    }
    if (!EstVueCote(vue)) {
        AfficherExclamation(TextesMessages(MessageVueCoteSeulement), TitresMessages(MessageVueCoteSeulement));
        return false;
    }
    const double echelle = static_cast<double>(vue.Echelle);
    bool fait = false;
    for (const int index : {0, 1})
        for (PointProfil& p : PointsDe(projet, index)) {
            if (!Porte(p, DrapeauOutil)) continue;
            p.X += dx / echelle;
            p.Y -= dy / echelle;
            fait = true;
        }
    if (fait) CalculerExtremesCPX(projet);
    return fait;
}

} // namespace tessarel
