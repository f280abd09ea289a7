// Exported DXF read back by another program, ezdxf: its audit finds nothing, and the vertices are those of
// the G-code or of the paths converted. Skipped where that program is not installed.
#include "bout_en_bout/executer.h"
#include "outils/dossiers.h"

#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace tessarel::essais {
namespace {

using Point = std::pair<double, double>;
using Chemin = std::vector<Point>;

// Debian's own interpreter: another one first in PATH has not the package.
constexpr const char* PYTHON = "/usr/bin/python3";

bool EzdxfPresent() {
    const DossierProvisoire dossier;
    return Executer(std::string(PYTHON) + " -c 'import ezdxf'", dossier.Chemin()).statut == 0;
}

std::vector<Chemin> Relire(const std::string& dossier, const std::string& fichier) {
    const Execution lecture = Executer(
        std::string(PYTHON) + " " TESSAREL_RACINE "/tests/bout_en_bout/relire_dxf.py " + fichier, dossier);
    EXPECT_EQ(lecture.statut, 0) << lecture.erreurs;
    std::vector<Chemin> chemins;
    std::istringstream lignes(lecture.sortie);
    std::string ligne;
    std::getline(lignes, ligne);
    EXPECT_EQ(ligne, "errors 0 fixes 0");
    while (std::getline(lignes, ligne)) {
        Point p;
        if (ligne.starts_with("path"))
            chemins.emplace_back();
        else if (std::sscanf(ligne.c_str(), "%lf %lf", &p.first, &p.second) == 2 && !chemins.empty())
            chemins.back().push_back(p);
    }
    return chemins;
}

void ExpectMemesPoints(const Chemin& lus, const Chemin& attendus, double tolerance) {
    ASSERT_EQ(lus.size(), attendus.size());
    for (std::size_t i = 0; i < lus.size(); ++i) {
        EXPECT_NEAR(lus[i].first, attendus[i].first, tolerance) << "point " << i + 1;
        EXPECT_NEAR(lus[i].second, attendus[i].second, tolerance) << "point " << i + 1;
    }
}

TEST(DxfRelu, LeTrajetCompletEstCeluiDuGcode) {
    if (!EzdxfPresent()) GTEST_SKIP() << "ezdxf (Debian package python3-ezdxf) is not installed";
    const DossierProvisoire travail;
    const Execution lot =
        Executer("tessarel-lot --documents doc decouper '" TESSAREL_RACINE "/samples/console.dxf' "
                 "--decalage droite --gcode trajet.gcode --dxf trajet.dxf",
                 travail.Chemin());
    ASSERT_EQ(lot.statut, 0) << lot.erreurs;
    const auto chemins = Relire(travail.Chemin(), "trajet.dxf");
    ASSERT_EQ(chemins.size(), 1U);
    Chemin attendus = {{0, 0}}; // the origin, where the wire starts, has no line in the G-code
    std::istringstream lignes(LireTout(travail.Fichier("trajet.gcode")));
    for (std::string ligne; std::getline(lignes, ligne);) {
        Point p;
        if (std::sscanf(ligne.c_str(), "G01 X%lf Y%lf", &p.first, &p.second) == 2) attendus.push_back(p);
    }
    // Both texts are rounded to four decimals.
    ExpectMemesPoints(chemins.front(), attendus, 0.00011);
}

TEST(DxfRelu, UneConversionGardeTracesEtSommets) {
    if (!EzdxfPresent()) GTEST_SKIP() << "ezdxf (Debian package python3-ezdxf) is not installed";
    const DossierProvisoire travail;
    EcrireTout(travail.Fichier("deux.txt"),
               "Carre\r\n0:0\r\n10:0\r\n10:12.5\r\n0:0\r\nTrait\r\n-5:1\r\n1000.25:3\r\n");
    const Execution lot =
        Executer("tessarel-lot --documents doc convertir deux.txt deux.dxf", travail.Chemin());
    ASSERT_EQ(lot.statut, 0) << lot.erreurs;
    const auto chemins = Relire(travail.Chemin(), "deux.dxf");
    ASSERT_EQ(chemins.size(), 2U);
    ExpectMemesPoints(chemins[0], {{0, 0}, {10, 0}, {10, 12.5}, {0, 0}}, 0.0001);
    ExpectMemesPoints(chemins[1], {{-5, 1}, {1000.25, 3}}, 0.0001);
}

} // namespace
} // namespace tessarel::essais
