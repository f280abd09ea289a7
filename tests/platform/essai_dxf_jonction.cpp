// Pieces of a DXF that touch end to end become one polyline, in file order.
#include "outils/dessins.h"

#include <gtest/gtest.h>

#include <random>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

std::string Ligne(double x0, double y0, double x1, double y1) {
    return "|0 LINE|8 0|10 " + std::to_string(x0) + "|20 " + std::to_string(y0) + "|11 " +
           std::to_string(x1) + "|21 " + std::to_string(y1);
}

DessinLu Lire(const std::string& lignes) {
    return LireTexte(DxfAvecEntites(lignes.substr(1)));
}

} // namespace

TEST(DxfJonction, QuatreLignesFontUnRectangleFerme) {
    const auto d = Lire(Ligne(0, 0, 4, 0) + Ligne(4, 0, 4, 3) + Ligne(4, 3, 0, 3) + Ligne(0, 3, 0, 0));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(EnTexte(d.polylignes[0]), "0,0 4,0 4,3 0,3 0,0");
    EXPECT_EQ(d.rapport.joints, 3);
    EXPECT_EQ(d.rapport.retournes, 0);
    EXPECT_EQ(d.rapport.lus.at("LINE"), 4);
}

TEST(DxfJonction, UneLigneTraceeALEnversEstRetournee) {
    const auto d = Lire(Ligne(0, 0, 4, 0) + Ligne(4, 3, 4, 0) + Ligne(4, 3, 0, 3));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(EnTexte(d.polylignes[0]), "0,0 4,0 4,3 0,3");
    EXPECT_EQ(d.rapport.retournes, 1);
}

TEST(DxfJonction, LaPremiereLigneSeRetournePourQueLaSuivanteLaSuive) {
    const auto d = Lire(Ligne(0, 0, 4, 0) + Ligne(0, 0, 0, 3) + Ligne(0, 3, 5, 5));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(EnTexte(d.polylignes[0]), "4,0 0,0 0,3 5,5");
    EXPECT_EQ(d.rapport.retournes, 1);
}

TEST(DxfJonction, UnePieceQuiFinitAuDebutPasseDevant) {
    const auto d = Lire(Ligne(1, 0, 2, 0) + Ligne(2, 0, 3, 1) + Ligne(0, 5, 1, 0) + Ligne(0, 5, 0, 9));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(EnTexte(d.polylignes[0]), "0,9 0,5 1,0 2,0 3,1");
}

TEST(DxfJonction, UnEcartDUnMillieme) {
    const auto proche = Lire(Ligne(0, 0, 4, 0) + Ligne(4.0009, 0, 8, 1));
    ASSERT_EQ(proche.polylignes.size(), 1U);
    EXPECT_EQ(EnTexte(proche.polylignes[0]), "0,0 4,0 8,1");
    const auto loin = Lire(Ligne(0, 0, 4, 0) + Ligne(4.0011, 0, 8, 1));
    EXPECT_EQ(loin.polylignes.size(), 2U);
}

TEST(DxfJonction, UnContourFermeNePrendRienDePlus) {
    const auto d = Lire(Ligne(0, 0, 4, 0) + Ligne(4, 0, 4, 3) + Ligne(4, 3, 0, 0) + Ligne(0, 0, -5, -5));
    ASSERT_EQ(d.polylignes.size(), 2U);
    EXPECT_EQ(EnTexte(d.polylignes[0]), "0,0 4,0 4,3 0,0");
    EXPECT_EQ(EnTexte(d.polylignes[1]), "0,0 -5,-5");
}

TEST(DxfJonction, UneFinPresqueAuDebutFermeExactement) {
    const auto d = Lire(Ligne(0, 0, 4, 0) + Ligne(4, 0, 4, 3) + Ligne(4, 3, 0.0005, 0));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(EnTexte(d.polylignes[0]), "0,0 4,0 4,3 0,0");
}

TEST(DxfJonction, SeuleLaPieceDAvantCompte) {
    // The third line touches the first, but the second stands between them in the file.
    const auto d = Lire(Ligne(0, 0, 1, 0) + Ligne(10, 0, 11, 0) + Ligne(1, 0, 2, 0));
    EXPECT_EQ(d.polylignes.size(), 3U);
}

TEST(DxfJonction, UneLigneSansLongueurNAjouteRien) {
    const auto d = Lire(Ligne(0, 0, 1, 0) + Ligne(1, 0, 1, 0) + Ligne(1, 0, 2, 5) + Ligne(0, 0, 0, 0));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(EnTexte(d.polylignes[0]), "0,0 1,0 2,5");
    const auto seule = Lire(Ligne(3, 3, 3, 3) + Ligne(3, 3, 4, 4));
    EXPECT_EQ(EnTexte(seule.polylignes[0]), "3,3 4,4");
}

TEST(DxfJonction, LesArcsSeJoignentAuxLignes) {
    // A slot: two lines and two half circles.
    const auto d = Lire(Ligne(0, 0, 10, 0) + "|0 ARC|10 10|20 2|40 2|50 270|51 90" + Ligne(10, 4, 0, 4) +
                        "|0 ARC|10 0|20 2|40 2|50 90|51 270");
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(d.rapport.joints, 3);
    EXPECT_EQ(d.polylignes[0].front().X, d.polylignes[0].back().X);
    EXPECT_EQ(d.polylignes[0].front().Y, d.polylignes[0].back().Y);
}

// Whatever the direction each segment of a path is drawn in, the path comes back whole.
TEST(DxfJonction, UnCheminDecoupeAuHasardRevientEntier) {
    std::mt19937 alea(20240917);
    for (int essai = 0; essai < 50; ++essai) {
        const int n = 3 + static_cast<int>(alea() % 20);
        std::vector<std::pair<int, int>> sommets;
        for (int i = 0; i < n; ++i) sommets.emplace_back(i * 3, static_cast<int>(alea() % 100));
        std::string lignes;
        for (int i = 0; i + 1 < n; ++i) {
            const auto [x0, y0] = sommets[static_cast<std::size_t>(i)];
            const auto [x1, y1] = sommets[static_cast<std::size_t>(i) + 1];
            lignes += alea() % 2 == 0 ? Ligne(x0, y0, x1, y1) : Ligne(x1, y1, x0, y0);
        }
        const auto d = Lire(lignes);
        ASSERT_EQ(d.polylignes.size(), 1U);
        std::vector<std::pair<int, int>> lus;
        for (const PointSimple& p : d.polylignes[0])
            lus.emplace_back(static_cast<int>(p.X), static_cast<int>(p.Y));
        if (lus.front() != sommets.front()) std::reverse(lus.begin(), lus.end());
        EXPECT_EQ(lus, sommets);
    }
}
