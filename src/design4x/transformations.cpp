// Moving, stretching, turning and mirroring the selected points.
#include "transformations.h"

#include "design4x/selection.h"
#include "design4x/selection_totale.h"
#include "paths/tables_degres.h"

#include <cmath>

namespace tessarel {

namespace {

// Applies `changer(point, box)` to the selected points of each side and refreshes; false when there is none.
template <typename Changer>
bool PourSelection(ProjetCPX& projet, Changer changer) {
    const BoiteSelectionCPX boites = BoiteSelection(projet, DrapeauOutil);
    if (!boites.E.Presente() && !boites.S.Presente()) return false;
    const auto traiter = [&](std::vector<PointProfil>& points, const BoiteProfil& boite) {
        for (PointProfil& p : points)
            if (Porte(p, DrapeauOutil)) changer(p, boite);
    };
    traiter(projet.E.Points, boites.E);
    traiter(projet.S.Points, boites.S);
    CalculerExtremesCPX(projet);
    return true;
}

double CentreX(const BoiteProfil& boite) {
    return (boite.Xmin + boite.Xmax) / 2;
}

double CentreY(const BoiteProfil& boite) {
    return (boite.Ymin + boite.Ymax) / 2;
}

} // namespace

bool txtDeplacer(ProjetCPX& projet, int axe, double valeur) {
    return PourSelection(projet,
                         [&](PointProfil& p, const BoiteProfil&) { (axe == 0 ? p.X : p.Y) += valeur; });
}

bool txtEtirer(ProjetCPX& projet, int axe, double pourcent) {
    return PourSelection(projet, [&](PointProfil& p, const BoiteProfil& boite) {
        const double c = axe == 0 ? CentreX(boite) : CentreY(boite);
        double& v = axe == 0 ? p.X : p.Y;
        v = c + (v - c) * pourcent / 100;
    });
}

bool txtTourner(ProjetCPX& projet, double degres) {
    const double angle = degres * (Pi / 180);
    const double cosinus = std::cos(angle);
    const double sinus = std::sin(angle);
    return PourSelection(projet, [&](PointProfil& p, const BoiteProfil& boite) {
        const double cx = CentreX(boite);
        const double cy = CentreY(boite);
        const double dx = p.X - cx;
        const double dy = p.Y - cy;
        p.X = cx + dx * cosinus - dy * sinus;
        p.Y = cy + dx * sinus + dy * cosinus;
    });
}

bool cmdSymetrie(ProjetCPX& projet, int index) {
    bool fait = false;
    SurSelectionOuTout(projet, [&] {
        fait = PourSelection(projet, [&](PointProfil& p, const BoiteProfil& boite) {
            if (index == 0)
                p.Y = boite.Ymin + boite.Ymax - p.Y;
            else
                p.X = boite.Xmin + boite.Xmax - p.X;
        });
    });
    return fait;
}

} // namespace tessarel
