// The list of frames of a path, the heating time, and the place of the wire at a stop.
#include "link/liste_salves.h"

#include "platform/erreurs.h"

#include "outils_boite/sommets.h"

#include <gtest/gtest.h>

using namespace tessarel;
using essais::Sommet;

namespace {

TableMachine Machine() {
    TableMachine table;
    table.Nom = "Essai";
    table.Frequence = 50000;
    table.PenteAcceleration = 6;
    table.PasParTour = {12800, 12800, 12800, 12800, 0};
    table.MmParTour = {40, 40, 40, 40};
    table.VmaxSansAccXY = 6;
    table.VitesseRapide = 8;
    table.CourseY = 510;
    table.TempoChauffe = 7;
    return table;
}

// Rapid up, then cutting across, then back.
std::vector<PointProfil> Chemin() {
    return {Sommet(0, 0, 4, true), Sommet(0, 10, 8), Sommet(20, 10, 4), Sommet(0, 0, 4)};
}

} // namespace

TEST(ListeSalves, PauseSegmentsEtMarqueDeFin) {
    const ListeDeDecoupe liste = PreparerSalves(Chemin(), 2, 65, Machine());
    ASSERT_EQ(liste.salves.size(), 5U); // pause, three segments, end mark
    EXPECT_EQ(liste.salves[0], ConstruireSalveTempo(ParametresDeSalve(Machine()), 2, 65));
    EXPECT_TRUE(EstSalveFin(liste.salves[4]));
    EXPECT_EQ(NBRtDeSalve(liste.salves[4]), 0U);
    ASSERT_EQ(liste.trajet.bout1.size(), 5U); // origin, four vertices
    EXPECT_EQ(liste.trajet.bout1[0].X, 0);
    EXPECT_EQ(liste.trajet.bout1[0].Y, 0);
    EXPECT_EQ(liste.trajet.bout1[3].X, 6400);
    EXPECT_EQ(liste.trajet.bout2[3].Y, 3200);
    EXPECT_NE(liste.trajet.bout1[1].Rapide, 0);
    EXPECT_EQ(liste.trajet.bout1[2].Rapide, 0);
    EXPECT_EQ(liste.trajet.bout1[2].Vitesse, 8);
}

TEST(ListeSalves, UnSegmentRapideRampeEtLesAutresPrennentLaVitesseDuSommet) {
    const ParametresSalve p = ParametresDeSalve(Machine());
    const ListeDeDecoupe liste = PreparerSalves(Chemin(), 2, 65, Machine());
    EXPECT_EQ(liste.salves[1], ConstruireSalve(p, 6, 8, 6, {0, 3200, 0, 3200}));
    // Vertex 2 carries the 8 mm/s of the rapid segment that ends there, vertex 3 the 4 mm/s of this one.
    EXPECT_EQ(liste.salves[2], ConstruireSalve(p, 8, 8, 4, {6400, 0, 6400, 0}));
    EXPECT_EQ(liste.salves[3], ConstruireSalve(p, 4, 4, 4, {-6400, -3200, -6400, -3200}));
}

TEST(ListeSalves, LaDureeEstCelleDesSegmentsSeuls) {
    const ListeDeDecoupe liste = PreparerSalves(Chemin(), 2, 65, Machine());
    const double somme =
        static_cast<double>(liste.salves[1].Duree) + liste.salves[2].Duree + liste.salves[3].Duree;
    EXPECT_EQ(liste.duree, static_cast<float>(somme));
    // The way back: 22.3607 mm at 4 mm/s, 279508.5 ticks.
    EXPECT_NEAR(liste.salves[3].Duree, 279509.0 / 50000, 1e-6);
}

TEST(ListeSalves, OrigineEnHautCommenceEnHautDeLaCourse) {
    TableMachine table = Machine();
    table.OrigineEnHaut = true;
    table.MmParTour[AxeY2] = 20;
    const TrajetPas trajet = CalculerTrajetPas(Chemin(), table);
    EXPECT_EQ(trajet.bout1[0].Y, 163200); // 510 x 320
    EXPECT_EQ(trajet.bout2[0].Y, 326400); // 510 x 640
    EXPECT_EQ(trajet.bout1[0].X, 0);
}

TEST(ListeSalves, LesPasSArrondissentAuPairEtChaqueBoutASesAxes) {
    TableMachine table = Machine();
    table.PasParTour = {200, 200, 100, 100, 0};
    table.MmParTour = {1, 1, 1, 1};
    const TrajetPas trajet = CalculerTrajetPas(std::vector{Sommet(0.0125, -0.0125, 4)}, table);
    EXPECT_EQ(trajet.bout1[1].X, 2);  // 2.5
    EXPECT_EQ(trajet.bout1[1].Y, -2); // -2.5
    EXPECT_EQ(trajet.bout2[1].X, 1);  // 1.25
}

TEST(ListeSalves, UnAxeAbsentResteAZero) {
    TableMachine table = Machine();
    table.PasParTour[AxeX2] = 0;
    table.MmParTour[AxeX2] = 0;
    const ListeDeDecoupe liste = PreparerSalves(Chemin(), 2, 65, table);
    for (const PointPas& point : liste.trajet.bout2) EXPECT_EQ(point.X, 0);
    for (const Salve& salve : liste.salves) EXPECT_EQ(salve.Statut, 1);
}

TEST(ListeSalves, CeQuiNeTientPasEnTrenteDeuxBitsEstUneFaute) {
    EXPECT_THROW(CalculerTrajetPas(std::vector{Sommet(1e8, 0, 4)}, Machine()), FauteDepassement);
    TableMachine sansMillimetres = Machine();
    sansMillimetres.MmParTour[AxeX1] = 0;
    EXPECT_THROW(CalculerTrajetPas(std::vector{Sommet(1, 0, 4)}, sansMillimetres), FauteDepassement);
    // Both points fit, the way between them doesn't: 6 million mm x 320 = 1.92e9 steps each way.
    EXPECT_THROW(PreparerSalves(std::vector{Sommet(-6e6, 0, 4), Sommet(6e6, 0, 4)}, 2, 65, Machine()),
                 FauteDepassement);
}

TEST(ListeSalves, UnCheminSansSegmentNEstQuePauseEtFin) {
    for (const std::vector<PointProfil>& chemin : {std::vector<PointProfil>{}, {Sommet(1, 2, 4)}}) {
        const ListeDeDecoupe liste = PreparerSalves(chemin, 2, 65, Machine());
        ASSERT_EQ(liste.salves.size(), 2U);
        EXPECT_EQ(liste.salves[0].octets[0], SalvePause);
        EXPECT_TRUE(EstSalveFin(liste.salves[1]));
        EXPECT_EQ(liste.duree, 0);
    }
}

TEST(TempoChauffe, LaTableDeQT2dV10ParPalier) {
    TableMachine table = Machine();
    table.Nom = "QT2d v10";
    const auto tempo = [&](float c) { return TempoChauffePourChauffe(c, table); };
    EXPECT_EQ(tempo(-1), 35);
    EXPECT_EQ(tempo(0), 35);
    EXPECT_EQ(tempo(0.5F), 20);
    EXPECT_EQ(tempo(45), 20);
    EXPECT_EQ(tempo(45.1F), 25);
    EXPECT_EQ(tempo(60), 25);
    EXPECT_EQ(tempo(60.5F), 28);
    EXPECT_EQ(tempo(70), 28);
    EXPECT_EQ(tempo(71), 30);
    EXPECT_EQ(tempo(80), 30);
    EXPECT_EQ(tempo(80.5F), 35);
}

TEST(TempoChauffe, QT2dV10SEcritCommeOnVeut) {
    TableMachine table = Machine();
    table.Nom = "QT2D V10"; // a built-in machine is found in any case, and keeps the name it was asked by
    EXPECT_EQ(TempoChauffePourChauffe(65, table), 28);
}

TEST(TempoChauffe, LesAutresMachinesOntLaLeur) {
    TableMachine table = Machine();
    EXPECT_EQ(TempoChauffePourChauffe(50, table), 7);
    table.Nom = "QT2d v12";
    EXPECT_EQ(TempoChauffePourChauffe(50, table), 7);
}

// The ends of a wire whose axes are geared differently stop between the steps of each other.
TEST(ListeSalves, LeDepartEstLaOuLesDeuxBoutsSont) {
    const PasAxes depart = {503, 7, 32170, 6};
    const ListeDeDecoupe liste = PreparerSalves(Chemin(), 2, 65, Machine(), depart);
    const ListeDeDecoupe sans = PreparerSalves(Chemin(), 2, 65, Machine());
    EXPECT_EQ(liste.trajet.bout1[1].X, 503);
    EXPECT_EQ(liste.trajet.bout1[1].Y, 7);
    EXPECT_EQ(liste.trajet.bout2[1].X, 32170);
    EXPECT_EQ(liste.trajet.bout2[1].Y, 6);
    EXPECT_EQ(liste.trajet.bout2[2].X, sans.trajet.bout2[2].X);
    EXPECT_EQ(liste.salves.size(), sans.salves.size());
}

TEST(PositionAuStop, EntreLesDeuxSommetsDeLaSalve) {
    const ListeDeDecoupe liste = PreparerSalves(Chemin(), 2, 65, Machine());
    // Frame 4 is the way back, from (6400, 3200) to (0, 0) in 279509 ticks. 139754 left: (279509 - 139754 -
    // 1) / 279509 = 0.49999821; 6400 - Round(3199.99) = 3200, 3200 - Round(1599.99) = 1600.
    const PositionDuFil position = PositionAuStop(liste.trajet, liste.salves, 4, 139754);
    ASSERT_EQ(position.lecture, LecturePosition::Faite);
    EXPECT_EQ(position.pas, (PasAxes{3200, 1600, 3200, 1600}));
    // The last tick: the segment is done.
    EXPECT_EQ(PositionAuStop(liste.trajet, liste.salves, 4, 0).pas, (PasAxes{0, 0, 0, 0}));
    // All ticks left: one below the start counts as before it, and rounds to it here.
    EXPECT_EQ(PositionAuStop(liste.trajet, liste.salves, 4, 279508).pas, (PasAxes{6400, 3200, 6400, 3200}));
}

TEST(PositionAuStop, LeTickEnCoursNEstPasFait) {
    Salve salve;
    EcrireOctets32(salve.octets, SalvePositionNBRt, 4);
    EXPECT_EQ(FractionFaite(salve, 3), 0);
    EXPECT_EQ(FractionFaite(salve, 1), 0.5);
    EXPECT_EQ(FractionFaite(salve, 0), 0.75);
    EXPECT_EQ(FractionFaite(Salve{}, 0), std::nullopt);
}

TEST(PositionAuStop, PendantLaPauseLeFilEstAuPremierSommet) {
    const ListeDeDecoupe liste = PreparerSalves(Chemin(), 2, 65, Machine());
    const PositionDuFil position = PositionAuStop(liste.trajet, liste.salves, 1, 50000);
    EXPECT_EQ(position.lecture, LecturePosition::Faite);
    EXPECT_EQ(position.pas, (PasAxes{0, 0, 0, 0}));
}

TEST(PositionAuStop, UneSalveSansDureeOuHorsDeLaListeEstDite) {
    ListeDeDecoupe liste = PreparerSalves(Chemin(), 2, 65, Machine());
    liste.salves[2] = Salve{};
    EXPECT_EQ(PositionAuStop(liste.trajet, liste.salves, 3, 0).lecture, LecturePosition::SansDuree);
    for (const std::int32_t numero : {0, -1, 5, 6, 1000})
        EXPECT_EQ(PositionAuStop(liste.trajet, liste.salves, numero, 0).lecture, LecturePosition::HorsListe)
            << numero;
}

TEST(PositionAuStop, RevientEnMillimetres) {
    TableMachine table = Machine();
    EXPECT_EQ(MillimetresDePas(table, AxeX1, 3200), 10);
    EXPECT_EQ(PasDeMillimetres(table, AxeX1, 10), 3200);
    table.PasParTour[AxeX1] = 0;
    EXPECT_EQ(MillimetresDePas(table, AxeX1, 3200), 0);
    EXPECT_EQ(PasDeMillimetres(table, AxeX1, 10), 0);
}
