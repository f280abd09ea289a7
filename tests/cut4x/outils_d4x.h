// A small machine, a foam and pairs of profiles for the tests of the 4-axis cut.
#pragma once

#include "cut4x/decoupe4x.h"
#include "cut4x/passage.h"
#include "outils/boites.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <utility>
#include <vector>

namespace tessarel::essais {

// Plateau of 800 mm between 100 and 900 along the wire.
inline TableMachine Machine4axes() {
    TableMachine table;
    table.Nom = "Atelier";
    table.CourseX = 600;
    table.CourseY = 300;
    table.MargeFilPlateau = 1;
    table.MargeFilBloc = 15;
    table.MargeOrigineBloc = 5;
    table.VitesseRapide = 20;
    table.VmaxSansAccXY = 10;
    table.VmaxAvecAccXY = 30;
    table.EcartementY1Y2 = 1000;
    table.EcartementY1Plateau = 100;
    table.EcartementPlateauY2 = 100;
    table.LongueurMaxiFil = 1100;
    table.DistanceRangementFilSousOrigine = 5;
    table.TempoChauffe = 3;
    table.Frequence = 50000;
    table.PenteAcceleration = 6;
    table.PasParTourMoteur = {200, 200, 200, 200, 200};
    table.MicroPas = {64, 64, 64, 64, 64};
    table.MmParTour = {40, 40, 40, 40};
    CalculerChampsDerives(table);
    return table;
}

// Kerf(v) = 3 - v / 2: 1 mm at 4 mm/s, 2 mm at half of it.
inline ValeursDecoupe Mousse() {
    return {65, 4, 1, 2};
}

using Coordonnees = std::vector<std::pair<double, double>>;

inline std::vector<PointProfil> Points(const Coordonnees& lieux) {
    std::vector<PointProfil> points;
    for (const auto& [x, y] : lieux) {
        PointProfil p;
        p.X = x;
        p.Y = y;
        points.push_back(p);
    }
    return points;
}

// Margins of 10 mm all round, block 40 mm thick, 500 mm between the faces.
inline ProjetCPX Projet(const Coordonnees& e, const Coordonnees& s, float ecartement = 500) {
    ProjetCPX projet;
    projet.E.Points = Points(e);
    projet.S.Points = Points(s);
    projet.Ecartement = ecartement;
    CalculerExtremesCPX(projet);
    return projet;
}

// A wedge: 100 mm at the root, 60 at the tip, sharp at the trailing edge, travelled over the top first.
inline ProjetCPX Coin() {
    return Projet({{0, 0}, {100, 10}, {0, -5}}, {{20, 0}, {80, 6}, {20, -3}});
}

// All that a computation reads, each changed where a test needs it.
struct Poste {
    ProjetCPX projet = Coin();
    ParametresDecoupe4axes parametres;
    ValeursDecoupe matiere = Mousse();
    TableMachine table = Machine4axes();
    DecoupeD4X decoupe;

    Poste() {
        parametres = ParametresDecoupe4axesInitiaux(table);
        parametres.OffsetBlocX = 20;
        AppliquerAlignementZ(projet.Ecartement, table, parametres);
    }
    [[nodiscard]] ContexteD4X Contexte() const { return {projet, parametres, matiere, table}; }
    // As the window does on arrival.
    void Calculer() {
        AppliquerAlignementZ(projet.Ecartement, table, parametres);
        decoupe.DecoupePossible = PasserEnDecoupe(projet, true, table).DecoupePossible;
        CalculerDecoupeD4X(Contexte(), decoupe);
    }
};

inline void AttendrePoints(const std::vector<PointProfil>& points, const Coordonnees& attendus,
                           double tolerance = 1e-9) {
    ASSERT_EQ(points.size(), attendus.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        EXPECT_NEAR(points[i].X, attendus[i].first, tolerance) << "point " << i;
        EXPECT_NEAR(points[i].Y, attendus[i].second, tolerance) << "point " << i;
    }
}

} // namespace tessarel::essais
