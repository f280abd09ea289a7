// The arithmetic of the transform box: fixed points, factors, keys, angles, mirrors, typed sizes.
#include "work2d/transformations.h"

#include "outils_decoupe.h"
#include "work2d/edition.h"
#include "work2d/selection.h"

#include <cmath>
#include <limits>
#include <random>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

constexpr double Pi = 3.14159265358979;

// From (10, 20) to (50, 40): 40 wide, 20 high, middle (30, 30).
Sequence Boite() {
    Sequence boite = Chemin({{10, 20}, {50, 40}});
    boite.Selection = SelectionSequence;
    return boite;
}

Transformation Echelle(const char* poignee, double dx, double dy, TouchesGeste touches = {}) {
    const auto t = EchelleParPoignee(Boite(), poignee, dx, dy, touches);
    EXPECT_TRUE(t.has_value()) << poignee;
    return t.value_or(Transformation());
}

constexpr TouchesGeste Ctrl = {true, false, false};
constexpr TouchesGeste Maj = {false, true, false};
constexpr TouchesGeste Alt = {false, false, true};

} // namespace

TEST(Echelle, SansToucheLePointFixeEstLaPoigneeOpposee) {
    const Transformation t = Echelle("HD", 40, 10);
    EXPECT_EQ(t.fixe.X, 10);
    EXPECT_EQ(t.fixe.Y, 20);
    EXPECT_EQ(t.facteurX, 2.0F); // (90 - 10) / (50 - 10)
    EXPECT_EQ(t.facteurY, 1.5F); // (50 - 20) / (40 - 20)
    const Transformation b = Echelle("BG", -20, -20);
    EXPECT_EQ(b.fixe.X, 50);
    EXPECT_EQ(b.fixe.Y, 40);
    EXPECT_EQ(b.facteurX, 1.5F); // (-10 - 50) / (10 - 50)
    EXPECT_EQ(b.facteurY, 2.0F);
}

TEST(Echelle, CtrlAgitAutourDuMilieu) {
    const Transformation t = Echelle("HD", 20, 10, Ctrl);
    EXPECT_EQ(t.fixe.X, 30);
    EXPECT_EQ(t.fixe.Y, 30);
    EXPECT_EQ(t.facteurX, 2.0F); // (70 - 30) / (50 - 30)
    EXPECT_EQ(t.facteurY, 2.0F); // (50 - 30) / (40 - 30)
}

TEST(Echelle, UnePoigneeDuMilieuNEnChangeQuUn) {
    EXPECT_EQ(Echelle("MD", 40, 99).facteurX, 2.0F);
    EXPECT_EQ(Echelle("MD", 40, 99).facteurY, 1.0F);
    EXPECT_EQ(Echelle("HM", 99, 20).facteurX, 1.0F);
    EXPECT_EQ(Echelle("HM", 99, 20).facteurY, 2.0F);
    EXPECT_EQ(Echelle("MG", -40, 0).fixe.X, 50);
    EXPECT_EQ(Echelle("BM", 0, -20).fixe.Y, 40);
}

TEST(Echelle, MajPrendLePlusGrandDesDeuxDeplacements) {
    const Transformation large = Echelle("HD", 40, 10, Maj);
    EXPECT_EQ(large.facteurX, 2.0F);
    EXPECT_EQ(large.facteurY, 2.0F);
    const Transformation haute = Echelle("HD", 5, -10, Maj);
    EXPECT_EQ(haute.facteurX, 0.5F); // (30 - 20) / 20
    EXPECT_EQ(haute.facteurY, 0.5F);
    // A middle handle knows one displacement only.
    EXPECT_EQ(Echelle("MD", 40, 500, Maj).facteurY, 2.0F);
}

TEST(Echelle, AltDonneUneTailleEnMillimetresEntiers) {
    const Transformation t = Echelle("HD", 3.4, 0.6, Alt);
    EXPECT_EQ(t.facteurX, 43.0F / 40.0F);
    EXPECT_EQ(t.facteurY, 21.0F / 20.0F);
}

TEST(Echelle, LesFacteursSontEn32Bits) {
    EXPECT_EQ(Echelle("MD", 40.0 / 3, 0).facteurX, static_cast<float>((50 + 40.0 / 3 - 10) / 40));
}

TEST(Echelle, UnFacteurNulOuInfiniNExistePas) {
    EXPECT_FALSE(EchelleParPoignee(Boite(), "MD", -40, 0, {}).has_value()); // onto the fixed point
    EXPECT_FALSE(EchelleParPoignee(Boite(), "HD", 10, -20, {}).has_value());
    EXPECT_FALSE(EchelleParPoignee(Boite(), "MD", std::numeric_limits<double>::infinity(), 0, {}));
    EXPECT_FALSE(EchelleParPoignee(Boite(), "MD", 1e9, 0, {})) << "past what a path may hold";
    EXPECT_FALSE(EchelleParPoignee(Boite(), "", 10, 10, {}));
    const Sequence trait = Chemin({{0, 0}, {10, 0}});
    EXPECT_FALSE(EchelleParPoignee(trait, "HM", 0, 5, {})) << "no height to scale";
    EXPECT_EQ(EchelleParPoignee(trait, "HD", 10, 5, {})->facteurX, 2.0F);
    EXPECT_EQ(EchelleParPoignee(trait, "HD", 10, 5, {})->facteurY, 1.0F);
}

TEST(Echelle, PasserLePointFixeRetourne) {
    EXPECT_EQ(Echelle("MD", -80, 0).facteurX, -1.0F);
}

TEST(Echelle, LePointFixeResteEnPlaceEtLeCoinSuitLaSouris) {
    for (const char* poignee : {"HG", "HM", "HD", "MG", "MD", "BG", "BM", "BD"}) {
        for (const TouchesGeste touches : {TouchesGeste{}, Ctrl}) {
            const Transformation t = Echelle(poignee, 7, -3, touches);
            const PointDessin fixe = Transformer(t.fixe, t);
            EXPECT_EQ(fixe.X, t.fixe.X);
            EXPECT_EQ(fixe.Y, t.fixe.Y);
            const PointDessin avant = PlacePoignee(Boite(), poignee);
            const PointDessin apres = Transformer(avant, t);
            if (poignee[1] != 'M') {
                EXPECT_NEAR(apres.X, avant.X + 7, 1e-5) << poignee;
            }
            if (poignee[0] != 'M') {
                EXPECT_NEAR(apres.Y, avant.Y - 3, 1e-5) << poignee;
            }
        }
    }
}

TEST(Poignees, LOpposeeEstDeLAutreCote) {
    EXPECT_EQ(PoigneeOpposee("HG"), "BD");
    EXPECT_EQ(PoigneeOpposee("MD"), "MG");
    EXPECT_EQ(PoigneeOpposee("BM"), "HM");
    EXPECT_EQ(PoigneeOpposee("xx"), "");
    EXPECT_EQ(PlacePoignee(Boite(), "HG").X, 10);
    EXPECT_EQ(PlacePoignee(Boite(), "HG").Y, 40);
}

TEST(Deplacement, MajGardeUnAxeEtAltPoseSurLesMillimetres) {
    const Transformation maj = DeplacementParGeste(Boite(), 5, -7, Maj);
    EXPECT_EQ(maj.dx, 0);
    EXPECT_EQ(maj.dy, -7);
    Sequence decalee = Boite();
    decalee.XMin = 10.25F;
    const Transformation alt = DeplacementParGeste(decalee, 5, 0, Alt);
    EXPECT_EQ(alt.dx, 4.75); // to 15
    EXPECT_EQ(alt.dy, 0);
}

TEST(AngleDeLaSouris, TourneDeZeroADeuxPi) {
    EXPECT_EQ(AngleSouris(31, 30, 30, 30), 0);
    EXPECT_NEAR(AngleSouris(31, 31, 30, 30), Pi / 4, 1e-15);
    EXPECT_NEAR(AngleSouris(30, 31, 30, 30), Pi / 2, 1e-15);
    EXPECT_NEAR(AngleSouris(29, 31, 30, 30), 3 * Pi / 4, 1e-14);
    EXPECT_NEAR(AngleSouris(29, 30, 30, 30), Pi, 1e-15);
    EXPECT_NEAR(AngleSouris(29, 29, 30, 30), 5 * Pi / 4, 1e-14);
    EXPECT_NEAR(AngleSouris(30, 29, 30, 30), 3 * Pi / 2, 1e-14);
    EXPECT_NEAR(AngleSouris(31, 29, 30, 30), 7 * Pi / 4, 1e-14);
}

TEST(Rotation, AdditionneLesPasAutourDuMilieu) {
    GesteRotation geste = CommencerRotation(Boite(), {40, 30});
    SuivreRotation(geste, {40, 40}, {});
    const Transformation t = SuivreRotation(geste, {30, 40}, {});
    EXPECT_EQ(t.fixe.X, 30);
    EXPECT_EQ(t.fixe.Y, 30);
    EXPECT_NEAR(t.angle, Pi / 2, 1e-14);
    const PointDessin p = Transformer({50, 40}, t);
    EXPECT_NEAR(p.X, 20, 1e-12); // (20, 10) turned a quarter to the left is (-10, 20)
    EXPECT_NEAR(p.Y, 50, 1e-12);
}

TEST(Rotation, UnTourCompletRevientAuDepart) {
    GesteRotation geste = CommencerRotation(Boite(), {40, 30});
    Transformation t;
    for (const PointDessin p : {PointDessin{30, 40}, {20, 30}, {30, 20}, {40, 30}})
        t = SuivreRotation(geste, p, {});
    const PointDessin p = Transformer({50, 40}, t);
    EXPECT_NEAR(p.X, 50, 1e-12);
    EXPECT_NEAR(p.Y, 40, 1e-12);
}

TEST(Rotation, AltVaParQuinzeDegres) {
    GesteRotation geste = CommencerRotation(Boite(), {40, 30});
    EXPECT_NEAR(SuivreRotation(geste, {40, 34}, Alt).angle, Pi / 12 * 1, 0.09); // 21.8 degrees, so 15
    EXPECT_NEAR(SuivreRotation(geste, {40, 34}, Alt).angle, Pi / 12, 1e-12);
}

TEST(Saisie, LaTailleTapeeDonneLeRapport) {
    const auto largeur = EchelleSaisie(Boite(), 0, 60, "BG", false);
    ASSERT_TRUE(largeur.has_value());
    EXPECT_EQ(largeur->facteurX, 1.5F);
    EXPECT_EQ(largeur->facteurY, 1.0F);
    EXPECT_EQ(largeur->fixe.X, 10);
    EXPECT_EQ(largeur->fixe.Y, 20);
    const auto hauteur = EchelleSaisie(Boite(), 1, 10, "", true);
    EXPECT_EQ(hauteur->facteurX, 0.5F);
    EXPECT_EQ(hauteur->facteurY, 0.5F);
    EXPECT_EQ(hauteur->fixe.X, 30);
    EXPECT_FALSE(EchelleSaisie(Boite(), 0, 0, "BG", false));
    EXPECT_FALSE(EchelleSaisie(Boite(), 0, std::numeric_limits<double>::quiet_NaN(), "BG", false));
    EXPECT_FALSE(EchelleSaisie(Boite(), 0, 1e-60, "BG", false)) << "a factor of zero in 32 bits";
    EXPECT_FALSE(EchelleSaisie(Chemin({{3, 0}, {3, 8}}), 0, 10, "BG", false)) << "an infinite factor";
}

TEST(Miroir, GardeLaBoite) {
    const Sequence carre = Chemin({{0, 0}, {10, 0}, {0, 30}});
    for (const AxeMiroir axe : {AxeMiroir::X, AxeMiroir::Y}) {
        Sequence s = carre;
        TransformerPoints(s.Points, Miroir(carre, axe));
        CalculerBornesSequence(s);
        EXPECT_EQ(s.XMin, 0);
        EXPECT_EQ(s.XMax, 10);
        EXPECT_EQ(s.YMin, 0);
        EXPECT_EQ(s.YMax, 30);
        EXPECT_NE(s.Points, carre.Points);
    }
    Sequence s = carre;
    TransformerPoints(s.Points, Miroir(carre, AxeMiroir::X));
    EXPECT_EQ(Lieux(s), (std::vector<Lieu>{{10, 0}, {0, 0}, {10, 30}}));
}

TEST(Matrice, DitLaMemeChoseQueLePoint) {
    std::mt19937 hasard(11);
    std::uniform_real_distribution<double> mm(-50, 50);
    const GesteRotation depart = CommencerRotation(Boite(), {1, 2});
    for (int i = 0; i < 200; ++i) {
        GesteRotation geste = depart;
        for (const Transformation& t :
             {Deplacement(mm(hasard), mm(hasard)), Miroir(Boite(), AxeMiroir::Y),
              SuivreRotation(geste, {mm(hasard), mm(hasard)}, {}), Echelle("HG", -mm(hasard) - 60, 70)}) {
            const PointDessin p{mm(hasard), mm(hasard)};
            const PointDessin attendu = Transformer(p, t);
            const MatriceDessin m = EnMatrice(t);
            EXPECT_NEAR(m.xx * p.X + m.xy * p.Y + m.dx, attendu.X, 1e-9);
            EXPECT_NEAR(m.yx * p.X + m.yy * p.Y + m.dy, attendu.Y, 1e-9);
            PointProfil profil;
            profil.X = p.X;
            profil.Y = p.Y;
            TransformerPoints({&profil, 1}, t);
            EXPECT_EQ(profil.X, attendu.X);
            EXPECT_EQ(profil.Y, attendu.Y);
        }
    }
}

TEST(Transformations, SansEffetEstCeQuiNeBougeRien) {
    EXPECT_TRUE(SansEffet(Deplacement(0, 0)));
    EXPECT_FALSE(SansEffet(Deplacement(0, 0.001)));
    EXPECT_FALSE(SansEffet(Deplacement(-1, 0)));
    EXPECT_TRUE(SansEffet(Rotation({3, 4}, 0)));
    EXPECT_FALSE(SansEffet(Rotation({3, 4}, 0.1)));
    Transformation echelle;
    echelle.genre = GenreTransformation::Echelle;
    EXPECT_TRUE(SansEffet(echelle));
    echelle.facteurY = -1;
    EXPECT_FALSE(SansEffet(echelle));
    EXPECT_FALSE(SansEffet(Miroir(Sequence(), AxeMiroir::X)));
}

TEST(Transformations, UnAjustementMetALEchellePuisDeplace) {
    Transformation t;
    t.genre = GenreTransformation::Ajustement;
    EXPECT_TRUE(SansEffet(t));
    t.fixe = {10, 20};
    t.facteur = 2.5;
    t.dx = 3;
    EXPECT_FALSE(SansEffet(t));
    // (12 - 10) * 2.5 + 10 + 3; (24 - 20) * 2.5 + 20
    EXPECT_EQ(Transformer({12, 24}, t).X, 18);
    EXPECT_EQ(Transformer({12, 24}, t).Y, 30);
    const MatriceDessin m = EnMatrice(t);
    EXPECT_EQ(m.xx, 2.5);
    EXPECT_EQ(m.yy, 2.5);
    EXPECT_EQ(m.dx, -12); // (0 - 10) * 2.5 + 10 + 3
    EXPECT_EQ(m.dy, -30); // (0 - 20) * 2.5 + 20
    // A factor that 32 bits can't hold counts whole.
    t.fixe = {0, 0};
    t.dx = 0;
    t.facteur = 1 + 0x1p-50;
    EXPECT_FALSE(SansEffet(t));
    EXPECT_EQ(Transformer({1, 0}, t).X, 1 + 0x1p-50);
}
