// Chord, spacing, sweep, dihedral, alignment and exchange of the two profiles.
#include "aile.h"

#include "design4x/boites_cpx.h"
#include "paths/tables_degres.h"
#include "platform/nombres.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tessarel {

namespace {

// Expressions are computed in double on values held in 32 bits.
double D(float valeur) {
    return valeur;
}

bool Absent(const ProjetCPX& projet) {
    return projet.E.Points.empty() || projet.S.Points.empty();
}

void AppliquerFleche(ProjetCPX& projet) {
    const double xmaxE = D(projet.E.ExtremesCorde.Xmax);
    const double xmaxS = D(projet.S.ExtremesCorde.Xmax);
    for (PointProfil& p : projet.S.Points) p.X = p.X - xmaxS + xmaxE - D(projet.Fleche);
    CalculerExtremesCPX(projet);
}

// Height of the root above the block's foot if the tip were not below it.
double ReferenceBloc(const ProjetCPX& projet) {
    return projet.DiedreMm < 0 ? D(projet.DistProfilDessousE) + D(projet.DiedreMm)
                               : D(projet.DistProfilDessousE);
}

// Moves the tip to `diedre`; `reference` was taken before.
void AppliquerDiedre(ProjetCPX& projet, float diedre, double reference) {
    const double yminE = D(projet.E.ExtremesCorde.Ymin);
    const double yminS = D(projet.S.ExtremesCorde.Ymin);
    for (PointProfil& p : projet.S.Points) p.Y = p.Y - yminS + yminE + D(diedre);
    projet.DistProfilDessousE = EnSimple(diedre < 0 ? reference - D(diedre) : reference);
    CalculerExtremesCPX(projet);
}

double DiedrePourAligner(const ProjetCPX& projet, int index) {
    const ProfilCPX& e = projet.E;
    const ProfilCPX& s = projet.S;
    const auto surPied = [](const ProfilCPX& profil, float y) { return D(y) - D(profil.ExtremesCorde.Ymin); };
    switch (index) {
    case 0:
        return D(e.Hauteur) - D(s.Hauteur);
    case 1:
        return surPied(e, e.YauBA) - surPied(s, s.YauBA);
    case 2:
        return (D(e.Hauteur) - D(s.Hauteur)) / 2;
    case 3:
        return surPied(e, e.YauBF) - surPied(s, s.YauBF);
    default:
        return 0;
    }
}

double Milieu(const ExtremesProfil& corde) {
    return (D(corde.Ymin) + D(corde.Ymax)) / 2;
}

} // namespace

bool txtCorde(ProjetCPX& projet, int index, double corde) {
    ProfilCPX& profil = index == 0 ? projet.E : projet.S;
    if (profil.Points.empty()) return false;
    const double ancienne = D(profil.Corde);
    if (ancienne == 0) {
        BoiteDimensionNulle();
        return false;
    }
    for (PointProfil& p : profil.Points) {
        p.X = p.X * corde / ancienne;
        p.Y = p.Y * corde / ancienne;
    }
    CalculerExtremesCPX(projet);
    return true;
}

bool txtEcartementZ(ProjetCPX& projet, double ecartement) {
    // A value so small that 32 bits hold it as 0 is no spacing either.
    if (!(EnSimple(ecartement) > 0)) {
        BoiteArret(MessageEcartementNul);
        return false;
    }
    projet.Ecartement = EnSimple(ecartement);
    EcrireZ(projet);
    CalculerExtremesCPX(projet);
    return true;
}

bool txtFleche(ProjetCPX& projet, double fleche) {
    if (Absent(projet)) return false;
    projet.Fleche = EnSimple(fleche);
    AppliquerFleche(projet);
    return true;
}

bool cmdFleche(ProjetCPX& projet, int index) {
    const double difference = D(projet.E.Corde) - D(projet.S.Corde);
    return txtFleche(projet, index == 0 ? difference : index == 1 ? difference / 2 : 0);
}

bool txtDiedreMm(ProjetCPX& projet, double diedre) {
    if (Absent(projet)) return false;
    AppliquerDiedre(projet, EnSimple(diedre), ReferenceBloc(projet));
    return true;
}

bool cmdDiedre(ProjetCPX& projet, int index) {
    return txtDiedreMm(projet, DiedrePourAligner(projet, index));
}

bool txtDiedreDeg(ProjetCPX& projet, double degres) {
    if (degres == 0 || Absent(projet)) return false;
    const double reference = ReferenceBloc(projet);
    const double cible =
        Milieu(projet.E.ExtremesCorde) + D(projet.Ecartement) * std::tan(degres * (Pi / 180));
    const double decalage = cible - Milieu(projet.S.ExtremesCorde);
    // Deliberate: the first chord point, or else the first point, stands for the tip's foot, and it is its
    // height that is compared with 0; projects rely on the block heights found so.
    const auto marque = std::find_if(projet.S.Points.begin(), projet.S.Points.end(),
                                     [](const PointProfil& p) { return (p.Drapeaux & DrapeauCorde) != 0; });
    const double pied = (marque != projet.S.Points.end() ? *marque : projet.S.Points.front()).Y + decalage;
    for (PointProfil& p : projet.S.Points) p.Y += decalage;
    projet.DistProfilDessousE =
        EnSimple(pied < 0 ? D(projet.E.ExtremesCorde.Ymin) - pied + reference : reference);
    CalculerExtremesCPX(projet);
    return true;
}

bool cmdAligner(ProjetCPX& projet) {
    CalculerExtremesCPX(projet);
    if (projet.E.NbAlign == 0 || projet.S.NbAlign == 0) {
        BoiteArret(MessageSansAlignement);
        return false;
    }
    const double dx = D(projet.S.XmoyenAlign) - D(projet.E.XmoyenAlign);
    const double dy = D(projet.S.YmoyenAlign) - D(projet.E.YmoyenAlign);
    for (PointProfil& p : projet.S.Points) {
        p.X -= dx;
        p.Y -= dy;
    }
    CalculerExtremesCPX(projet);
    return true;
}

bool cmdInverserProfilsES(ProjetCPX& projet) {
    if (projet.E.Points.empty() && projet.S.Points.empty()) return false;
    std::swap(projet.E, projet.S);
    EcrireZ(projet);
    // Measured anew before the block: the dihedral now is that of the exchanged pair.
    CalculerExtremesCPX(projet);
    projet.DistProfilDessousE = EnSimple(D(projet.DistProfilDessousE) - D(projet.DiedreMm));
    CalculerExtremesCPX(projet);
    projet.E.PointCourant = projet.S.PointCourant = 0;
    return true;
}

} // namespace tessarel
