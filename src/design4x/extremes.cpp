// What is measured on the two profiles: extents, chords, heights, wing measures and the outline of the block.
#include "design4x/projet_cpx.h"
#include "paths/tables_degres.h"
#include "platform/nombres.h"

#include <algorithm>
#include <cmath>

namespace tessarel {

namespace {

// The chord takes two marked points at least, the height four: the first two are meant for the chord, the
// next two for the height.
constexpr std::int32_t MarquesPourCorde = 2;
constexpr std::int32_t MarquesPourHauteur = 4;

void Commencer(ExtremesProfil& extremes, const PointProfil& point, std::int32_t indice) {
    extremes.Xmin = extremes.Xmax = EnSimple(point.X);
    extremes.Ymin = extremes.Ymax = EnSimple(point.Y);
    extremes.IndiceXmin = extremes.IndiceXmax = extremes.IndiceYmin = extremes.IndiceYmax = indice;
}

// Strict comparisons in 32 bits: of equal extremes the first point in index order stays.
void Etendre(ExtremesProfil& extremes, const PointProfil& point, std::int32_t indice) {
    const float x = EnSimple(point.X);
    const float y = EnSimple(point.Y);
    if (x < extremes.Xmin) {
        extremes.Xmin = x;
        extremes.IndiceXmin = indice;
    }
    if (x > extremes.Xmax) {
        extremes.Xmax = x;
        extremes.IndiceXmax = indice;
    }
    if (y < extremes.Ymin) {
        extremes.Ymin = y;
        extremes.IndiceYmin = indice;
    }
    if (y > extremes.Ymax) {
        extremes.Ymax = y;
        extremes.IndiceYmax = indice;
    }
}

float YDuPoint(const ProfilCPX& profil, std::int32_t indice) {
    return EnSimple(profil.Points[static_cast<std::size_t>(indice)].Y);
}

void RemettreMesures(ProfilCPX& profil) {
    profil.Extremes = {};
    profil.ExtremesCorde = {};
    profil.Corde = profil.Hauteur = 0;
    profil.YauBA = profil.YauBF = 0;
    profil.XmoyenAlign = profil.YmoyenAlign = 0;
    profil.NbAlign = 0;
}

// Extents of all points, of the marked ones into ExtremesCorde, and the mean of the alignment points. Gives
// the number of points that are marked for the chord.
std::int32_t ParcourirPoints(ProfilCPX& profil) {
    double sommeX = 0;
    double sommeY = 0;
    std::int32_t marques = 0;
    std::int32_t indice = 0;
    Commencer(profil.Extremes, profil.Points.front(), 0);
    for (const PointProfil& p : profil.Points) {
        Etendre(profil.Extremes, p, indice);
        if ((p.Drapeaux & DrapeauAlignement) != 0) {
            ++profil.NbAlign;
            sommeX += p.X;
            sommeY += p.Y;
        }
        if ((p.Drapeaux & DrapeauCorde) != 0) {
            if (marques == 0) Commencer(profil.ExtremesCorde, p, indice);
            Etendre(profil.ExtremesCorde, p, indice);
            ++marques;
        }
        ++indice;
    }
    if (profil.NbAlign != 0) {
        profil.XmoyenAlign = EnSimple(sommeX / profil.NbAlign);
        profil.YmoyenAlign = EnSimple(sommeY / profil.NbAlign);
    }
    return marques;
}

void MesurerProfil(ProfilCPX& profil) {
    RemettreMesures(profil);
    if (profil.Points.empty()) return;
    const std::int32_t marques = ParcourirPoints(profil);
    const ExtremesProfil& tout = profil.Extremes;
    ExtremesProfil& corde = profil.ExtremesCorde;
    if (marques < MarquesPourCorde) {
        corde.Xmin = tout.Xmin;
        corde.Xmax = tout.Xmax;
        corde.IndiceXmin = tout.IndiceXmin;
        corde.IndiceXmax = tout.IndiceXmax;
    }
    if (marques < MarquesPourHauteur) {
        corde.Ymin = tout.Ymin;
        corde.Ymax = tout.Ymax;
        corde.IndiceYmin = tout.IndiceYmin;
        corde.IndiceYmax = tout.IndiceYmax;
    }
    profil.Corde = corde.Xmax - corde.Xmin;
    profil.Hauteur = corde.Ymax - corde.Ymin;
    profil.YauBA = YDuPoint(profil, corde.IndiceXmax);
    profil.YauBF = YDuPoint(profil, corde.IndiceXmin);
}

void MesurerEnsemble(ProjetCPX& projet) {
    projet.XminGlobal = projet.XmaxGlobal = projet.YminGlobal = projet.YmaxGlobal = 0;
    if (projet.E.Points.empty() && projet.S.Points.empty()) return;
    const ExtremesProfil& a = (projet.E.Points.empty() ? projet.S : projet.E).Extremes;
    const ExtremesProfil& b = (projet.S.Points.empty() ? projet.E : projet.S).Extremes;
    projet.XminGlobal = std::min(a.Xmin, b.Xmin);
    projet.XmaxGlobal = std::max(a.Xmax, b.Xmax);
    projet.YminGlobal = std::min(a.Ymin, b.Ymin);
    projet.YmaxGlobal = std::max(a.Ymax, b.Ymax);
}

double MilieuHauteur(const ExtremesProfil& corde) {
    return (static_cast<double>(corde.Ymin) + corde.Ymax) / 2;
}

void MesurerAile(ProjetCPX& projet) {
    projet.Fleche = projet.FlecheBF = projet.DiedreMm = projet.DiedreDeg = 0;
    if (projet.E.Points.empty() || projet.S.Points.empty()) return;
    const ExtremesProfil& e = projet.E.ExtremesCorde;
    const ExtremesProfil& s = projet.S.ExtremesCorde;
    projet.Fleche = e.Xmax - s.Xmax;
    projet.FlecheBF = s.Xmin - e.Xmin;
    projet.DiedreMm = s.Ymin - e.Ymin;
    if (projet.Ecartement != 0)
        projet.DiedreDeg =
            EnSimple(std::atan((MilieuHauteur(s) - MilieuHauteur(e)) / projet.Ecartement) * 180 / Pi);
}

// Foot left, foot right, top right, top left, and foot left again.
void TracerFace(ProfilCPX& profil, double bas, double haut, double z) {
    profil.Bloc = {};
    if (profil.Points.empty()) return;
    const double gauche = profil.Points[static_cast<std::size_t>(profil.ExtremesCorde.IndiceXmin)].X -
                          static_cast<double>(profil.MargeBf);
    const double droite = gauche + profil.MargeBf + profil.Corde + profil.MargeBa;
    profil.Bloc = {
        {{gauche, bas, z}, {droite, bas, z}, {droite, haut, z}, {gauche, haut, z}, {gauche, bas, z}}};
}

// Foot and top are flat along the span, both given by the root; a tip alone gives its own.
void TracerBloc(ProjetCPX& projet) {
    const ProfilCPX& reference = projet.E.Points.empty() ? projet.S : projet.E;
    double bas = 0;
    if (!reference.Points.empty())
        bas = reference.Points[static_cast<std::size_t>(reference.ExtremesCorde.IndiceYmin)].Y -
              static_cast<double>(projet.DistProfilDessousE);
    const double haut = bas + projet.Epaisseur;
    const double z = static_cast<double>(projet.Ecartement) / 2;
    TracerFace(projet.E, bas, haut, z);
    TracerFace(projet.S, bas, haut, -z);
}

} // namespace

void CalculerExtremesCPX(ProjetCPX& projet) {
    MesurerProfil(projet.E);
    MesurerProfil(projet.S);
    MesurerEnsemble(projet);
    MesurerAile(projet);
    TracerBloc(projet);
}

void EcrireZ(ProjetCPX& projet) {
    const double z = static_cast<double>(projet.Ecartement) / 2;
    for (PointProfil& p : projet.E.Points) p.Z = z;
    for (PointProfil& p : projet.S.Points) p.Z = -z;
}

} // namespace tessarel
