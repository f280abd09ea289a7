// The film of a cut: short steps, their times, the bound, and where the wire is.
#include "work2d/simulation.h"

#include "app/texts/textes.h"
#include "outils/boites.h"
#include "outils_decoupe.h"

#include <cmath>
#include <random>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

// 10 mm at 4 mm/s, then 6 mm at 8 mm/s.
Sequence Decoupe() {
    Sequence s = Chemin({{0, 0}, {10, 0}, {10, 6}});
    s.Points[1].Vitesse = 4;
    s.Points[1].Rapide = true;
    s.Points[2].Vitesse = 8;
    return s;
}

} // namespace

TEST(RedecouperSequence, NInterpolePasPlusLoinQueLePas) {
    const Sequence fine = RedecouperSequence(Decoupe(), 2);
    EXPECT_EQ(Lieux(fine), (std::vector<Lieu>{
                               {0, 0}, {2, 0}, {4, 0}, {6, 0}, {8, 0}, {10, 0}, {10, 2}, {10, 4}, {10, 6}}));
    EXPECT_EQ(fine.Points[2].Vitesse, 4) << "of the segment that ends there";
    EXPECT_EQ(fine.Points[6].Vitesse, 8);
    EXPECT_FALSE(fine.Points[4].Rapide) << "of the segment that starts there";
    EXPECT_TRUE(fine.Points[7].Rapide);
    EXPECT_EQ(fine.XMax, 10);
}

TEST(RedecouperSequence, UnSegmentDUnPasResteEntier) {
    EXPECT_EQ(RedecouperSequence(Chemin({{0, 0}, {2, 0}}), 2).Points.size(), 2U);
    EXPECT_EQ(RedecouperSequence(Chemin({{0, 0}, {2.001, 0}}), 2).Points.size(), 3U);
}

TEST(RedecouperSequence, LesValeursInterpoleesSontEn32Bits) {
    const Sequence fine = RedecouperSequence(Chemin({{0, 0}, {5, 1}}), 2);
    ASSERT_EQ(fine.Points.size(), 4U);
    // Both coordinates of a point: a compiler that rounds them as a pair must round all the same.
    EXPECT_EQ(fine.Points[1].X, static_cast<double>(static_cast<float>(5.0 / 3)));
    EXPECT_EQ(fine.Points[1].Y, static_cast<double>(static_cast<float>(1.0 / 3)));
}

TEST(RedecouperSequence, UnPasQuiNEnEstPasUnLaisseLeChemin) {
    for (const float pas : {0.0F, -2.0F, std::nanf(""), INFINITY})
        EXPECT_EQ(RedecouperSequence(Decoupe(), pas), Decoupe());
    EXPECT_TRUE(RedecouperSequence(Sequence(), 2).Points.empty());
    EXPECT_EQ(RedecouperSequence(Chemin({{3, 3}}), 2).Points.size(), 1U);
}

TEST(RedecouperSequence, GardeLesSommetsEtTientLePasAuHasard) {
    std::mt19937 hasard(3);
    std::uniform_real_distribution<double> mm(0, 300);
    Sequence s;
    for (int i = 0; i < 300; ++i) {
        PointProfil p;
        p.X = mm(hasard);
        p.Y = i % 7 == 0 ? mm(hasard) : 50;
        s.Points.push_back(p);
    }
    const Sequence fine = RedecouperSequence(s, 2);
    std::size_t suivant = 0;
    for (std::size_t i = 0; i < fine.Points.size(); ++i) {
        if (i > 0) {
            const PointProfil& a = fine.Points[i - 1];
            ASSERT_LE(std::hypot(fine.Points[i].X - a.X, fine.Points[i].Y - a.Y), 2.0001);
        }
        if (suivant < s.Points.size() && fine.Points[i] == s.Points[suivant]) ++suivant;
    }
    EXPECT_EQ(suivant, s.Points.size());
}

TEST(Film2D, ChronometreChaqueSegmentASaVitesse) {
    const Film2D film = PreparerFilm(Decoupe());
    ASSERT_EQ(film.instants.size(), 9U);
    EXPECT_EQ(film.instants[0], 0);
    EXPECT_DOUBLE_EQ(film.instants[5], 2.5); // 10 / 4
    EXPECT_DOUBLE_EQ(DureeFilm(film), 3.25); // + 6 / 8
    EXPECT_FALSE(film.limite);
}

TEST(Film2D, LeFilAvanceEntreLesPoints) {
    const Film2D film = PreparerFilm(Decoupe());
    const PlaceFil place = PlaceAInstant(film, 1.25);
    EXPECT_DOUBLE_EQ(place.X, 5);
    EXPECT_DOUBLE_EQ(place.Y, 0);
    EXPECT_EQ(place.point, 2U);
    EXPECT_EQ(place.vitesse, 4);
    EXPECT_DOUBLE_EQ(PlaceAInstant(film, 3).Y, 4);
    EXPECT_DOUBLE_EQ(PlaceAInstant(film, 99).Y, 6);
    EXPECT_DOUBLE_EQ(PlaceAInstant(film, -1).X, 0);
    EXPECT_DOUBLE_EQ(PlaceAInstant(film, std::nan("")).X, PlaceAInstant(film, 0).X);
    EXPECT_DOUBLE_EQ(PlaceAuPoint(film, 7).Y, 4);
    EXPECT_DOUBLE_EQ(PlaceAuPoint(film, 7).instant, 3);
    EXPECT_EQ(PlaceAuPoint(film, 99).point, 8U);
    EXPECT_EQ(PlaceAInstant(Film2D(), 1).point, 0U);
}

TEST(Film2D, AuDelaDe32767PointsIlSArreteEtLeDit) {
    ChargerMessages(Langue::Francais);
    BoitesEnregistrees boites;
    // 600 passes of 300 mm: 150 steps each, 90 001 points.
    Sequence s;
    for (int i = 0; i <= 600; ++i) {
        PointProfil p;
        p.X = i % 2 == 0 ? 0 : 300;
        p.Vitesse = 4;
        s.Points.push_back(p);
    }
    const Film2D film = PreparerFilm(s);
    EXPECT_TRUE(film.limite);
    EXPECT_EQ(film.points.Points.size(), 32767U);
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].texte,
              "Nombre de points trop élevés pour le scrollbar de simulation, la visualisation du fil sera "
              "limitée à 32767 points");
    EXPECT_EQ(boites.boites[0].titre, "Trop de points");
    EXPECT_EQ(boites.boites[0].icone, IconeBoite::Information);
}

TEST(Film2D, ExactementLaBornePasseSansUnMot) {
    BoitesEnregistrees boites;
    Sequence s;
    for (std::size_t i = 0; i < PointsMaxDecoupe; ++i) {
        PointProfil p;
        p.X = static_cast<double>(i % 2);
        s.Points.push_back(p);
    }
    EXPECT_FALSE(PreparerFilm(s).limite);
    s.Points.emplace_back();
    EXPECT_TRUE(PreparerFilm(s).limite);
    EXPECT_EQ(boites.boites.size(), 1U);
}

TEST(Film2D, TexteDeLInstant) {
    EXPECT_EQ(TexteInstant(0), "0:00");
    EXPECT_EQ(TexteInstant(7.9), "0:07");
    EXPECT_EQ(TexteInstant(750), "12:30");
    EXPECT_EQ(TexteInstant(3723), "1:02:03");
    EXPECT_EQ(TexteInstant(-4), "0:00");
}
