// Scaling points, user scaling and rotation of plotter files.
#include "plt_repere.h"

#include <algorithm>
#include <cmath>

namespace tessarel {

namespace {

// One axis of the map: plotter units = facteur * user + decalage.
struct Axe {
    double facteur = 1;
    double decalage = 0;
};

Axe AxeEtire(double u1, double u2, double p1, double p2) {
    const double facteur = (p2 - p1) / (u2 - u1);
    return {facteur, p1 - u1 * facteur};
}

// The same factor both ways, the drawing laid in the room left.
void EgaliserAxes(const ReperePlt& r, Axe& x, Axe& y) {
    const double k = std::min(std::abs(x.facteur), std::abs(y.facteur));
    const double fx = std::copysign(k, x.facteur);
    const double fy = std::copysign(k, y.facteur);
    const double libreX = (r.p2.X - r.p1.X) - fx * (r.bornes[1] - r.bornes[0]);
    const double libreY = (r.p2.Y - r.p1.Y) - fy * (r.bornes[3] - r.bornes[2]);
    x = {fx, r.p1.X + libreX * r.gauche / 100 - r.bornes[0] * fx};
    y = {fy, r.p1.Y + libreY * r.bas / 100 - r.bornes[2] * fy};
}

void AxesUtilisateur(const ReperePlt& r, Axe& x, Axe& y) {
    if (!r.echelle) return;
    if (r.genreEchelle == 2) {
        x = {r.bornes[1], r.p1.X - r.bornes[0] * r.bornes[1]};
        y = {r.bornes[3], r.p1.Y - r.bornes[2] * r.bornes[3]};
        return;
    }
    x = AxeEtire(r.bornes[0], r.bornes[1], r.p1.X, r.p2.X);
    y = AxeEtire(r.bornes[2], r.bornes[3], r.p1.Y, r.p2.Y);
    if (r.genreEchelle == 1) EgaliserAxes(r, x, y);
}

bool Utilisable(const Axe& a) {
    return std::isfinite(a.facteur) && std::isfinite(a.decalage) && a.facteur != 0;
}

} // namespace

bool CalculerRepere(ReperePlt& r) {
    Axe x;
    Axe y;
    AxesUtilisateur(r, x, y);
    const bool juste = Utilisable(x) && Utilisable(y);
    if (!juste) {
        r.echelle = false;
        x = {};
        y = {};
    }
    constexpr int cosinus[4] = {1, 0, -1, 0};
    constexpr int sinus[4] = {0, 1, 0, -1};
    const double c = cosinus[r.quarts] * UniteTraceur;
    const double s = sinus[r.quarts] * UniteTraceur;
    r.mm = {};
    r.mm.identite = false;
    r.mm.a[0] = c * x.facteur;
    r.mm.a[1] = -s * y.facteur;
    r.mm.a[3] = c * x.decalage - s * y.decalage;
    r.mm.a[4] = s * x.facteur;
    r.mm.a[5] = c * y.facteur;
    r.mm.a[7] = s * x.decalage + c * y.decalage;
    return juste;
}

Point2 DepuisMm(const ReperePlt& r, Point2 mm) {
    const double* a = r.mm.a;
    const double determinant = a[0] * a[5] - a[1] * a[4];
    const double dx = mm.X - a[3];
    const double dy = mm.Y - a[7];
    return {(a[5] * dx - a[1] * dy) / determinant, (a[0] * dy - a[4] * dx) / determinant};
}

bool ReglerIP(ReperePlt& r, const double* v, int nombre) {
    if (nombre == 0) {
        r.p1 = {};
        r.p2 = r.page;
        r.cadreDonne = false;
    } else if (nombre >= 4) {
        if (v[0] == v[2] || v[1] == v[3]) return false;
        r.p1 = {v[0], v[1]};
        r.p2 = {v[2], v[3]};
        r.cadreDonne = true;
    } else if (nombre >= 2) {
        // P1 alone takes P2 along.
        r.p2 = {v[0] + r.p2.X - r.p1.X, v[1] + r.p2.Y - r.p1.Y};
        r.p1 = {v[0], v[1]};
    } else {
        return false;
    }
    return CalculerRepere(r);
}

bool ReglerIR(ReperePlt& r, const double* v, int nombre) {
    if (nombre == 0) return ReglerIP(r, v, 0);
    // Without its second point it shifts the frame on the sheet, which says nothing of the drawing.
    if (nombre < 4) return true;
    if (v[0] == v[2] || v[1] == v[3]) return false;
    r.p1 = {r.page.X * v[0] / 100, r.page.Y * v[1] / 100};
    r.p2 = {r.page.X * v[2] / 100, r.page.Y * v[3] / 100};
    r.cadreDonne = true;
    return CalculerRepere(r);
}

bool ReglerPS(ReperePlt& r, const double* v, int nombre) {
    if (nombre < 2) return nombre == 0;
    if (!(v[0] > 0 && v[1] > 0)) return false;
    r.page = {v[0], v[1]};
    if (r.cadreDonne) return true;
    return ReglerIP(r, v, 0);
}

bool ReglerSC(ReperePlt& r, const double* v, int nombre) {
    r.echelle = false;
    if (nombre == 0) return CalculerRepere(r);
    if (nombre < 4) {
        CalculerRepere(r);
        return false;
    }
    std::copy(v, v + 4, r.bornes.begin());
    r.genreEchelle = nombre >= 5 && (v[4] == 1 || v[4] == 2) ? static_cast<int>(v[4]) : 0;
    r.gauche = nombre >= 7 ? std::clamp(v[5], 0.0, 100.0) : 50;
    r.bas = nombre >= 7 ? std::clamp(v[6], 0.0, 100.0) : 50;
    r.echelle = true;
    return CalculerRepere(r);
}

bool ReglerRO(ReperePlt& r, const double* v, int nombre) {
    const double angle = nombre == 0 ? 0 : std::fmod(v[0], 360.0);
    if (std::fmod(angle, 90.0) != 0 || !std::isfinite(angle)) return false;
    r.quarts = (static_cast<int>(angle / 90) + 4) % 4;
    return CalculerRepere(r);
}

} // namespace tessarel
