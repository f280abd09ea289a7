// What is written reads back as it was.
#include "outils/dessins.h"
#include "outils/dossiers.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"

#include <gtest/gtest.h>

#include <random>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

std::vector<PointSimple> Points(const std::vector<std::vector<std::pair<float, float>>>& polylignes) {
    std::vector<PointSimple> points;
    for (std::size_t i = 0; i < polylignes.size(); ++i)
        for (const auto& [x, y] : polylignes[i])
            points.push_back({x, y, 0, CodePolyligne(i, polylignes.size())});
    return points;
}

std::string EcrireEtRelire(const std::string& extension, const std::vector<PointSimple>& points) {
    const DossierProvisoire dossier;
    const std::string chemin = dossier.Fichier("sortie." + extension);
    EcrireFichier(chemin, extension, points);
    return LireFichierEntier(chemin);
}

} // namespace

TEST(EcritureDxf, UneLigneOuverteAuMotPres) {
    EXPECT_EQ(EcrireEtRelire("DXF", Points({{{0, 1.5F}, {-2, 0.1F}}})),
              "  0\r\nSECTION\r\n  2\r\nHEADER\r\n  9\r\n$ACADVER\r\n  1\r\nAC1009\r\n  0\r\nENDSEC\r\n  "
              "0\r\nSECTION\r\n"
              "  2\r\nENTITIES\r\n  0\r\nPOLYLINE\r\n  8\r\n0\r\n 66\r\n     1\r\n 10\r\n0.0\r\n "
              "20\r\n0.0\r\n 30\r\n0.0\r\n"
              " 70\r\n     0\r\n  0\r\nVERTEX\r\n  8\r\n0\r\n 10\r\n0.0\r\n 20\r\n1.5\r\n 30\r\n0.0\r\n  "
              "0\r\nVERTEX\r\n"
              "  8\r\n0\r\n 10\r\n-2.0\r\n 20\r\n0.1\r\n 30\r\n0.0\r\n  0\r\nSEQEND\r\n  8\r\n0\r\n  "
              "0\r\nENDSEC\r\n"
              "  0\r\nEOF\r\n");
}

TEST(EcritureDxf, UnContourFermeEstDitFerme) {
    const std::string texte = EcrireEtRelire("dxf", Points({{{0, 0}, {4, 0}, {4, 3}, {0, 0}}}));
    EXPECT_NE(texte.find(" 70\r\n     1\r\n"), std::string::npos);
    // Its last vertex is the first again, and is not written.
    std::size_t sommets = 0;
    for (std::size_t i = texte.find("VERTEX"); i != std::string::npos; i = texte.find("VERTEX", i + 1))
        ++sommets;
    EXPECT_EQ(sommets, 3U);
    EXPECT_EQ(EnTexte(LireTexte(texte).polylignes.at(0)), "0,0 4,0 4,3 0,0");
}

TEST(EcritureDxf, LesPolylignesReviennentAuBitPres) {
    std::mt19937 alea(7);
    std::uniform_real_distribution<float> place(-1000, 1000);
    std::vector<std::vector<std::pair<float, float>>> polylignes(40);
    for (auto& p : polylignes)
        for (int i = 0; i < 25; ++i) p.emplace_back(place(alea), place(alea));
    const auto points = Points(polylignes);
    const auto relu = LireTexte(EcrireEtRelire("dxf", points));
    ASSERT_EQ(relu.polylignes.size(), polylignes.size());
    std::size_t k = 0;
    for (const auto& p : relu.polylignes) {
        for (const PointSimple& q : p) {
            ASSERT_EQ(q.X, points[k].X);
            ASSERT_EQ(q.Y, points[k].Y);
            ++k;
        }
    }
    EXPECT_EQ(k, points.size());
}

TEST(EcritureDat, UnTitrePuisUnPointParLigne) {
    EXPECT_EQ(EcrireEtRelire("dat", Points({{{1, 0.1F}, {0, 0}, {1, -0.25F}}})),
              "sortie.dat - généré par Tessarel\r\n1.000000 0.100000\r\n0.000000 0.000000\r\n1.000000 "
              "-0.250000\r\n");
}

TEST(EcritureDat, LaTableSeRelit) {
    const auto d = LireTexte(
        EcrireEtRelire("dat", Points({{{200, 0}, {100, 20}, {0, 0}, {100, -10}, {200, 0}}})), "dat");
    EXPECT_EQ(EnTexte(d.polylignes.at(0)), "200,0 100,20 0,0 100,-10 200,0");
}

TEST(Ecriture, RienNEstEcritQuandCEstImpossible) {
    const DossierProvisoire dossier;
    const std::string chemin = dossier.Fichier("a.dxf");
    EXPECT_THROW(EcrireFichier(chemin, "dxf", {}), FauteFichier);
    EXPECT_THROW(EcrireFichier(chemin, "xyz", Points({{{0, 0}, {1, 1}}})), FauteFichier);
    EXPECT_FALSE(FichierExiste(chemin));
    EXPECT_THROW(EcrireFichier(dossier.Fichier("absent/a.dxf"), "dxf", Points({{{0, 0}, {1, 1}}})),
                 FauteFichier);
}
