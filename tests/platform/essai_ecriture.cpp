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

namespace {

// A polyline in space, the header of its one vertex list, then the vertices at height z.
std::string ProfilEspace(const std::string& couche, const std::vector<std::string>& sommets,
                         const char* fermeture) {
    std::string texte = "  0\r\nPOLYLINE\r\n  8\r\n" + couche +
                        "\r\n 66\r\n     1\r\n 10\r\n0.0\r\n 20\r\n0.0\r\n 30\r\n0.0\r\n 70\r\n" + fermeture +
                        "\r\n";
    for (const std::string& s : sommets)
        texte += "  0\r\nVERTEX\r\n  8\r\n" + couche + "\r\n" + s + " 70\r\n    32\r\n";
    return texte + "  0\r\nSEQEND\r\n  8\r\n" + couche + "\r\n";
}

} // namespace

TEST(EcritureDxf3D, DeuxProfilsEtLaSurfaceEntreEuxAuMotPres) {
    const DossierProvisoire dossier;
    const std::string chemin = dossier.Fichier("aile.dxf");
    EcrireFichier3D(chemin, "DXF", Points({{{0, 0}, {10, 2}}}), Points({{{1, 0.5F}, {8, 1}}}), 500);
    const std::string texte = LireFichierEntier(chemin);
    const std::string debut = "  0\r\nSECTION\r\n  2\r\nHEADER\r\n  9\r\n$ACADVER\r\n  1\r\nAC1009\r\n  0\r\n"
                              "ENDSEC\r\n  0\r\nSECTION\r\n  2\r\nENTITIES\r\n";
    const std::string face =
        "  0\r\n3DFACE\r\n  8\r\nSURFACE\r\n"
        " 10\r\n0.0\r\n 20\r\n0.0\r\n 30\r\n0.0\r\n 11\r\n10.0\r\n 21\r\n2.0\r\n 31\r\n0.0\r\n"
        " 12\r\n8.0\r\n 22\r\n1.0\r\n 32\r\n500.0\r\n 13\r\n1.0\r\n 23\r\n0.5\r\n 33\r\n500.0\r\n";
    EXPECT_EQ(texte, debut +
                         ProfilEspace("EMPLANTURE",
                                      {" 10\r\n0.0\r\n 20\r\n0.0\r\n 30\r\n0.0\r\n",
                                       " 10\r\n10.0\r\n 20\r\n2.0\r\n 30\r\n0.0\r\n"},
                                      "     8") +
                         ProfilEspace("SAUMON",
                                      {" 10\r\n1.0\r\n 20\r\n0.5\r\n 30\r\n500.0\r\n",
                                       " 10\r\n8.0\r\n 20\r\n1.0\r\n 30\r\n500.0\r\n"},
                                      "     8") +
                         face + "  0\r\nENDSEC\r\n  0\r\nEOF\r\n");
}

TEST(EcritureDxf3D, ChaqueProfilSeRelitAPlat) {
    const DossierProvisoire dossier;
    const std::string chemin = dossier.Fichier("aile.dxf");
    EcrireFichier3D(chemin, "dxf", Points({{{0, 0}, {4, 0}, {4, 3}, {0, 0}}}),
                    Points({{{1, 1}, {3, 1}, {3, 2}, {1, 1}}}), 200);
    const auto relu = LireTexte(LireFichierEntier(chemin));
    ASSERT_EQ(relu.polylignes.size(), 2U);
    EXPECT_EQ(EnTexte(relu.polylignes[0]), "0,0 4,0 4,3 0,0");
    EXPECT_EQ(EnTexte(relu.polylignes[1]), "1,1 3,1 3,2 1,1");
    EXPECT_EQ(relu.rapport.ignores.at("3DFACE"), 3);
}

TEST(EcritureDxf3D, DesProfilsDeNombresDifferentsNeSontPasEcrits) {
    const DossierProvisoire dossier;
    const std::string chemin = dossier.Fichier("aile.dxf");
    const auto deux = Points({{{0, 0}, {1, 1}}});
    EXPECT_THROW(EcrireFichier3D(chemin, "dxf", deux, Points({{{0, 0}}}), 100), FauteInterne);
    EXPECT_THROW(EcrireFichier3D(chemin, "dxf", {}, {}, 100), FauteInterne);
    EXPECT_THROW(EcrireFichier3D(chemin, "dat", deux, deux, 100), FauteFichier);
    EXPECT_FALSE(FichierExiste(chemin));
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
