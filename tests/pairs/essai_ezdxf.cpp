// Our DXF reader against ezdxf, on drawings that ezdxf makes at random: curves counted, extents compared.
#include "outils/dossiers.h"
#include "outils/python.h"
#include "platform/gabar/gabar.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

using namespace tessarel;
using namespace tessarel::essais;

TEST(Pairs, LesMemesCourbesEtLaMemeEtendueQuEzdxf) {
    const std::string python = PythonAvecEzdxf();
    if (python.empty()) GTEST_SKIP() << "no ezdxf here";
    const DossierProvisoire dossier;
    constexpr int dessins = 12;
    std::istringstream sortie(SortieDe(python + " " + TESSAREL_RACINE +
                                       "/tests/pairs/donnees/dessins_ezdxf.py " + dossier.Chemin() + " 0 " +
                                       std::to_string(dessins)));
    int compares = 0;
    std::string fichier;
    int nombre = 0;
    for (double e[4]; sortie >> fichier >> nombre >> e[0] >> e[1] >> e[2] >> e[3]; ++compares) {
        std::vector<PointSimple> points;
        Etendue etendue;
        RapportLecture rapport;
        LireFichier(points, fichier, etendue, "dxf", &rapport);
        int lus = 0;
        for (const auto& [genre, compte] : rapport.lus) lus += compte;
        EXPECT_EQ(lus, nombre) << fichier;
        const double tolerance = std::max(0.02, std::max(e[1] - e[0], e[3] - e[2]) / 1000);
        EXPECT_NEAR(etendue.XMin, e[0], tolerance) << fichier;
        EXPECT_NEAR(etendue.XMax, e[1], tolerance) << fichier;
        EXPECT_NEAR(etendue.YMin, e[2], tolerance) << fichier;
        EXPECT_NEAR(etendue.YMax, e[3], tolerance) << fichier;
    }
    EXPECT_EQ(compares, dessins);
}
