// The DXF that is written, read back by another program.
#include "outils/dossiers.h"
#include "outils/python.h"
#include "platform/gabar/gabar.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>
#include <sstream>
#include <string>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

// Prints the faults of an audit, then each path: its kind, closed or not, its vertices.
constexpr const char* Programme = R"(
import sys
import ezdxf
dessin = ezdxf.readfile(sys.argv[1])
bilan = dessin.audit()
print(len(bilan.errors), len(bilan.fixes), dessin.dxfversion)
for e in dessin.modelspace():
    if e.dxftype() == 'POLYLINE':
        points = [v.dxf.location for v in e.vertices]
        print(e.dxftype(), int(e.is_closed), len(points), *[repr(c) for p in points for c in (p[0], p[1])])
    else:
        print(e.dxftype(), 0, 1, repr(e.dxf.location[0]), repr(e.dxf.location[1]))
)";

} // namespace

TEST(ExportDxf, UnAutreProgrammeYRetrouveChaqueSommet) {
    const std::string interprete = PythonAvecEzdxf();
    if (interprete.empty()) GTEST_SKIP() << "no ezdxf here";
    // Open paths and closed ones in turn.
    std::mt19937 alea(11);
    std::uniform_real_distribution<float> place(-2000, 2000);
    constexpr std::size_t nombre = 30;
    std::vector<PointSimple> points;
    for (std::size_t i = 0; i < nombre; ++i) {
        const std::size_t debut = points.size();
        const std::size_t sommets = 2 + alea() % 40;
        for (std::size_t k = 0; k < sommets; ++k)
            points.push_back({place(alea), place(alea), 0, CodePolyligne(i, nombre)});
        if (i % 2 == 1 && sommets > 2) points.push_back(points[debut]);
    }
    const DossierProvisoire dossier;
    const std::string chemin = dossier.Fichier("sortie.dxf");
    EcrireFichier(chemin, "dxf", points);
    const std::string programme = dossier.Fichier("relire.py");
    std::ofstream(programme) << Programme;
    std::istringstream sortie(SortieDe(interprete + " " + programme + " " + chemin));
    int fautes = -1;
    int reparations = -1;
    std::string version;
    sortie >> fautes >> reparations >> version;
    EXPECT_EQ(fautes, 0);
    EXPECT_EQ(reparations, 0);
    EXPECT_EQ(version, "AC1009");
    std::size_t k = 0;
    for (std::size_t i = 0; i < nombre; ++i) {
        std::string genre;
        bool ferme = false;
        std::size_t sommets = 0;
        ASSERT_TRUE(sortie >> genre >> ferme >> sommets) << "path " << i;
        EXPECT_EQ(genre, "POLYLINE");
        const std::size_t debut = k;
        for (std::size_t s = 0; s < sommets; ++s, ++k) {
            double x = 0;
            double y = 0;
            sortie >> x >> y;
            ASSERT_EQ(static_cast<float>(x), points[k].X);
            ASSERT_EQ(static_cast<float>(y), points[k].Y);
        }
        // A closed path repeats its first vertex here, and says so there.
        const bool repete = k < points.size() && points[k].CodeSequence == points[debut].CodeSequence;
        EXPECT_EQ(ferme, repete) << "path " << i;
        if (repete) ++k;
    }
    EXPECT_EQ(k, points.size());
}
