// Runs of shared points: how they are read, put together, split and joined.
#include "work2d/points_memorises.h"

#include "outils_decoupe.h"

#include <numeric>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

// Points (premier, 0), (premier + 1, 0)...
std::vector<PointProfil> Suite(double premier, std::size_t nombre) {
    std::vector<PointProfil> points(nombre);
    for (std::size_t i = 0; i < nombre; ++i) points[i].X = premier + static_cast<double>(i);
    return points;
}

PointsMemorises Tenus(const std::vector<PointProfil>& points) {
    EcrivainPoints ecrivain(nullptr, std::nullopt);
    ecrivain.Tenir(points);
    return ecrivain.Finir();
}

// All of them, asked for by `parFois`.
std::vector<double> Abscisses(const PointsMemorises& points, std::size_t parFois = 100000) {
    LecteurPoints lecteur(points);
    std::vector<double> x;
    while (x.size() < lecteur.Nombre())
        for (const PointProfil& p : lecteur.Lire(x.size(), parFois)) x.push_back(p.X);
    return x;
}

std::vector<double> Attendues(std::initializer_list<std::pair<double, double>> plages) {
    std::vector<double> x;
    for (const auto& [de, a] : plages)
        for (double v = de; de <= a ? v <= a : v >= a; v += de <= a ? 1 : -1) x.push_back(v);
    return x;
}

} // namespace

TEST(PointsMemorises, CeQuiEstTenuSeRelitParMorceaux) {
    const PointsMemorises points = Tenus(Suite(0, 1300)); // three blocks
    EXPECT_EQ(points.troncons.size(), 1U);
    for (const std::size_t parFois : {1U, 7U, 512U, 5000U})
        EXPECT_EQ(Abscisses(points, parFois), Attendues({{0, 1299}}));
    LecteurPoints lecteur(points);
    EXPECT_TRUE(lecteur.Lire(1300, 1).empty());
    EXPECT_TRUE(lecteur.Lire(0, 0).empty());
    EXPECT_EQ(lecteur.LireAvant(1300, 10).front().X, 1290);
    EXPECT_EQ(lecteur.LireAvant(1, 10).size(), 1U);
    EXPECT_TRUE(lecteur.LireAvant(0, 10).empty());
}

TEST(PointsMemorises, SansPointsRienNEstLu) {
    const PointsMemorises points = Tenus({});
    EXPECT_TRUE(points.troncons.empty());
    EXPECT_TRUE(points.reserves.empty());
    LecteurPoints lecteur(points);
    EXPECT_EQ(lecteur.Nombre(), 0U);
    EXPECT_TRUE(lecteur.Lire(0, 5).empty());
}

TEST(PointsMemorises, UnPointInsereFaitTroisTroncons) {
    const PointsMemorises avant = Tenus(Suite(0, 1000));
    const LecteurPoints lecteur(avant);
    EcrivainPoints ecrivain(&lecteur, std::nullopt);
    const std::vector<PointProfil> insere = Suite(-5, 1);
    ecrivain.Partager(0, 600);
    ecrivain.Tenir(insere);
    ecrivain.Partager(600, 400);
    const PointsMemorises points = ecrivain.Finir();
    EXPECT_EQ(points.troncons.size(), 3U);
    EXPECT_EQ(points.reserves.size(), 2U);
    EXPECT_EQ(points.reserves[0], avant.reserves[0]) << "shared, not copied";
    EXPECT_EQ(points.reserves[1]->places.capacity(), 1U);
    EXPECT_EQ(Abscisses(points), Attendues({{0, 599}, {-5, -5}, {600, 999}}));
}

TEST(PointsMemorises, DesPlagesQuiSeSuiventNEnFontQuUne) {
    const PointsMemorises avant = Tenus(Suite(0, 100));
    const LecteurPoints lecteur(avant);
    EcrivainPoints ecrivain(&lecteur, std::nullopt);
    for (const std::size_t place : {0U, 25U, 50U, 75U}) ecrivain.Partager(place, 25);
    EXPECT_EQ(ecrivain.Finir(), avant);
}

TEST(PointsMemorises, UneInversionLitALEnversEtDeuxRendentLeDepart) {
    const PointsMemorises avant = Tenus(Suite(0, 1000));
    Transformation sens;
    sens.genre = GenreTransformation::Sens;
    const LecteurPoints lecteur(avant);
    EcrivainPoints ecrivain(&lecteur, sens);
    ASSERT_TRUE(ecrivain.Transformer(0, 600));
    ASSERT_TRUE(ecrivain.Transformer(600, 400));
    const PointsMemorises inverse = ecrivain.Finir();
    EXPECT_EQ(Abscisses(inverse), Attendues({{599, 0}, {999, 600}}));
    EXPECT_EQ(inverse.troncons.size(), 2U);

    // A part of what is read backwards.
    const LecteurPoints lecteurInverse(inverse);
    std::vector<TronconPoints> extraits;
    lecteurInverse.Extraire(10, 5, extraits); // 589 to 585
    ASSERT_EQ(extraits.size(), 1U);
    EXPECT_EQ(extraits[0].debut, 585U);
    EXPECT_EQ(extraits[0].nombre, -5);

    EcrivainPoints retour(&lecteurInverse, sens);
    ASSERT_TRUE(retour.Transformer(0, 600));
    ASSERT_TRUE(retour.Transformer(600, 400));
    EXPECT_EQ(retour.Finir(), avant);
}

TEST(PointsMemorises, DesMoitiesLuesALEnversSeRejoignent) {
    const PointsMemorises avant = Tenus(Suite(0, 100));
    Transformation sens;
    sens.genre = GenreTransformation::Sens;
    const LecteurPoints lecteur(avant);
    EcrivainPoints ecrivain(&lecteur, sens);
    ASSERT_TRUE(ecrivain.Transformer(50, 50));
    ASSERT_TRUE(ecrivain.Transformer(0, 50));
    const PointsMemorises points = ecrivain.Finir();
    EXPECT_EQ(points.troncons.size(), 1U);
    EXPECT_EQ(Abscisses(points), Attendues({{99, 0}}));
}

TEST(PointsMemorises, UneTransformationSePoseSurCeQuIlYAvaitDeja) {
    PointsMemorises points = Tenus(Suite(0, 1000));
    // Doubled about 0, then moved by 1: the order counts.
    Transformation double_;
    double_.genre = GenreTransformation::Echelle;
    double_.facteurX = double_.facteurY = 2;
    for (const Transformation& t : {double_, Deplacement(1, 7)}) {
        const LecteurPoints lecteur(points);
        EcrivainPoints ecrivain(&lecteur, t);
        ecrivain.Partager(0, 500);
        ASSERT_TRUE(ecrivain.Transformer(500, 500));
        points = ecrivain.Finir();
    }
    EXPECT_EQ(points.troncons.size(), 2U);
    EXPECT_EQ(points.reserves.size(), 1U);
    LecteurPoints lecteur(points);
    // The two runs meet within a block: what is played on one must not touch the other.
    EXPECT_EQ(lecteur.Lire(499, 1)[0].X, 499);
    EXPECT_EQ(lecteur.Lire(499, 1)[0].Y, 0);
    EXPECT_EQ(lecteur.Lire(500, 1)[0].X, 1001);
    EXPECT_EQ(lecteur.Lire(500, 1)[0].Y, 7);
    EXPECT_EQ(lecteur.Lire(999, 1)[0].X, 1999);
}

TEST(PointsMemorises, UneSuiteTropLongueEstRefusee) {
    PointsMemorises points = Tenus(Suite(0, 100));
    for (int i = 0; i <= ProfondeurMaxi; ++i) {
        const LecteurPoints lecteur(points);
        EcrivainPoints ecrivain(&lecteur, Deplacement(1, 0));
        ASSERT_EQ(ecrivain.Transformer(0, 100), i < ProfondeurMaxi) << i;
        if (i < ProfondeurMaxi) points = ecrivain.Finir();
    }
    EXPECT_EQ(Abscisses(points), Attendues({{16, 115}}));
}

TEST(PointsMemorises, LesTronconsPermisSuiventLaLongueur) {
    EXPECT_EQ(TronconsPermis(0), 1U);
    EXPECT_EQ(TronconsPermis(7), 1U);
    EXPECT_EQ(TronconsPermis(8), 2U);
    EXPECT_EQ(TronconsPermis(255), 63U);
    EXPECT_EQ(TronconsPermis(100000), 64U);
}

TEST(PointsMemorises, LesAutresChampsRestentEtNeSontTenusQueLaOuIlYEnA) {
    std::vector<PointProfil> nus = Suite(0, 30);
    std::vector<PointProfil> complets = Suite(100, 30);
    complets[7].Drapeaux = 3;
    complets[8].Vitesse = 4.5F;
    EcrivainPoints ecrivain(nullptr, std::nullopt);
    ecrivain.Tenir(nus);
    ecrivain.Tenir(complets);
    ecrivain.Tenir(nus);
    const PointsMemorises points = ecrivain.Finir();
    ASSERT_EQ(points.reserves.size(), 2U);
    EXPECT_EQ(points.reserves[0]->places.size(), 60U);
    EXPECT_EQ(points.reserves[1]->entiers.size(), 30U);
    EXPECT_EQ(points.suites.size(), 1U);
    LecteurPoints lecteur(points);
    EXPECT_EQ(lecteur.Lire(37, 1)[0].Drapeaux, 3);
    EXPECT_EQ(lecteur.Lire(38, 1)[0].Vitesse, 4.5F);
    EXPECT_EQ(lecteur.Lire(60, 1)[0].X, 0);
}

TEST(PointsMemorises, MemesBitsDistingueLeSigneDeZero) {
    PointProfil a;
    PointProfil b;
    EXPECT_TRUE(MemesBits(a, b));
    b.X = -0.0;
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(MemesBits(a, b));
    // A coordinate that is no number is the same as itself.
    a.X = b.X = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(MemesBits(a, b));
}

TEST(PointsMemorises, MemesBitsRegardeChaqueChamp) {
    using Changer = void (*)(PointProfil&);
    const Changer champs[] = {
        [](PointProfil& p) { p.X = 1; },         [](PointProfil& p) { p.Y = 1; },
        [](PointProfil& p) { p.Z = 1; },         [](PointProfil& p) { p.Drapeaux = 1; },
        [](PointProfil& p) { p.Rapide = true; }, [](PointProfil& p) { p.Vitesse = 1; },
        [](PointProfil& p) { p.Vx = 1; },        [](PointProfil& p) { p.Vy = 1; },
        [](PointProfil& p) { p.Duree = 1; },     [](PointProfil& p) { p.Decalage = -0.0F; }};
    for (const Changer changer : champs) {
        PointProfil p;
        changer(p);
        EXPECT_FALSE(MemesBits(p, PointProfil()));
        EXPECT_TRUE(MemesBits(p, p));
    }
}
