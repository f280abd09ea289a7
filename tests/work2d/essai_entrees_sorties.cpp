// Every way into the block and out of it, for both places of the origin.
#include "work2d/entrees_sorties.h"

#include "outils_decoupe.h"

using namespace tessarel;
using namespace tessarel::essais;

namespace {

// First point (20, 30), last (40, 50); block 60 x 60 on the 300 x 200 machine: H = 75, W = 60 + 5 + 15 = 80.
TrajetsBloc Trajets(const OptionsDecoupe2D& options, const TableMachine& table) {
    return CreationTrajetsDecales(Chemin({{20, 30}, {40, 50}}), options, table);
}

OptionsDecoupe2D Types(int type, bool rapide) {
    OptionsDecoupe2D options = OptionsEssai();
    options.TypeEntree = options.TypeSortie = type;
    options.approcheRapide = options.retourRapide = rapide;
    return options;
}

// Margin of 15 from the wire to the block, `place` from the origin to the block.
TableMachine MachineAvecPlace(float place) {
    TableMachine table = MachineEssai();
    table.MargeOrigineBloc = place;
    return table;
}

TableMachine MachineOrigineEnHaut() {
    TableMachine table = MachineEssai();
    table.OrigineEnHaut = true;
    return table;
}

using Liste = std::vector<Jalon>;

} // namespace

TEST(EntreeSortieType0, SansPlaceLeRapideSArreteAuPiedDuPoint) {
    const TrajetsBloc t = Trajets(Types(0, true), MachineEssai());
    EXPECT_EQ(Jalons(t.entree), (Liste{{0, 0, true}, {0, 30, false}, {20, 30, false}}));
    EXPECT_EQ(Jalons(t.sortie), (Liste{{40, 50, false}, {0, 50, true}, {0, 0, false}}));
}

TEST(EntreeSortieType0, AvecPlaceLeRapideVaJusquALaMarge) {
    const TrajetsBloc t = Trajets(Types(0, true), MachineAvecPlace(20));
    EXPECT_EQ(Jalons(t.entree), (Liste{{0, 0, true}, {0, 30, true}, {5, 30, false}, {20, 30, false}}));
    EXPECT_EQ(Jalons(t.sortie), (Liste{{40, 50, false}, {5, 50, true}, {0, 50, true}, {0, 0, false}}));
}

TEST(EntreeSortieType0, QuatreMillimetresJusteSuffisent) {
    EXPECT_EQ(Trajets(Types(0, true), MachineAvecPlace(19)).entree.Points.size(), 4U);
    EXPECT_EQ(Trajets(Types(0, true), MachineAvecPlace(18.99F)).entree.Points.size(), 3U);
}

TEST(EntreeSortieType0, LenteRienNEstRapideMemeAvecPlace) {
    const TrajetsBloc t = Trajets(Types(0, false), MachineAvecPlace(20));
    EXPECT_EQ(Jalons(t.entree), (Liste{{0, 0}, {0, 30}, {20, 30}}));
    EXPECT_EQ(Jalons(t.sortie), (Liste{{40, 50}, {0, 50}, {0, 0}}));
}

TEST(EntreeSortieType1, ParDessusLeBloc) {
    const TrajetsBloc t = Trajets(Types(1, true), MachineEssai());
    EXPECT_EQ(Jalons(t.entree), (Liste{{0, 0, true}, {0, 75, true}, {20, 75, false}, {20, 30, false}}));
    EXPECT_EQ(Jalons(t.sortie), (Liste{{40, 50, false}, {40, 75, true}, {0, 75, true}, {0, 0, false}}));
    const TrajetsBloc lent = Trajets(Types(1, false), MachineEssai());
    EXPECT_EQ(Jalons(lent.entree), (Liste{{0, 0}, {0, 75}, {20, 75}, {20, 30}}));
    EXPECT_EQ(Jalons(lent.sortie), (Liste{{40, 50}, {40, 75}, {0, 75}, {0, 0}}));
}

TEST(EntreeSortieType1, HauteurLimiteeALaCourseLeSegmentDuHautEstLent) {
    TableMachine table = MachineEssai();
    table.CourseY = 70;
    const TrajetsBloc t = Trajets(Types(1, true), table);
    EXPECT_EQ(Jalons(t.entree), (Liste{{0, 0, true}, {0, 70, false}, {20, 70, false}, {20, 30, false}}));
    EXPECT_EQ(Jalons(t.sortie), (Liste{{40, 50, false}, {40, 70, false}, {0, 70, true}, {0, 0, false}}));
}

TEST(EntreeSortieType1, LaHauteurEgaleALaCourseNEstPasLimitee) {
    TableMachine table = MachineEssai();
    table.CourseY = 75;
    EXPECT_TRUE(Trajets(Types(1, true), table).entree.Points[1].Rapide);
    EXPECT_TRUE(Trajets(Types(1, true), table).sortie.Points[1].Rapide);
}

TEST(EntreeSortieType2, ParLeCoteOpposeEnPassantParDessus) {
    const TrajetsBloc t = Trajets(Types(2, true), MachineEssai());
    EXPECT_EQ(Jalons(t.entree),
              (Liste{{0, 0, true}, {0, 75, true}, {80, 75, true}, {80, 30, false}, {20, 30, false}}));
    EXPECT_EQ(Jalons(t.sortie),
              (Liste{{40, 50, false}, {80, 50, true}, {80, 75, true}, {0, 75, true}, {0, 0, false}}));
    const TrajetsBloc lent = Trajets(Types(2, false), MachineEssai());
    EXPECT_EQ(Jalons(lent.entree), (Liste{{0, 0}, {0, 75}, {80, 75}, {80, 30}, {20, 30}}));
    EXPECT_EQ(Jalons(lent.sortie), (Liste{{40, 50}, {80, 50}, {80, 75}, {0, 75}, {0, 0}}));
}

TEST(EntreeSortieType2, LargeurLimiteeALaCourseLaDescenteEstLente) {
    TableMachine table = MachineEssai();
    table.CourseX = 79;
    const TrajetsBloc t = Trajets(Types(2, true), table);
    EXPECT_EQ(Jalons(t.entree),
              (Liste{{0, 0, true}, {0, 75, true}, {79, 75, false}, {79, 30, false}, {20, 30, false}}));
    EXPECT_EQ(Jalons(t.sortie),
              (Liste{{40, 50, false}, {79, 50, false}, {79, 75, true}, {0, 75, true}, {0, 0, false}}));
    table.CourseX = 80; // equal is not limited
    EXPECT_TRUE(Trajets(Types(2, true), table).entree.Points[2].Rapide);
}

TEST(EntreeSortieType2, HauteurLimiteeLeHautEstLentLaDescenteResteRapide) {
    TableMachine table = MachineEssai();
    table.CourseY = 70;
    const TrajetsBloc t = Trajets(Types(2, true), table);
    EXPECT_EQ(Jalons(t.entree),
              (Liste{{0, 0, true}, {0, 70, false}, {80, 70, true}, {80, 30, false}, {20, 30, false}}));
    EXPECT_EQ(Jalons(t.sortie),
              (Liste{{40, 50, false}, {80, 50, true}, {80, 70, false}, {0, 70, true}, {0, 0, false}}));
}

TEST(EntreeSortie, ApprocheEtRetourSontIndependants) {
    OptionsDecoupe2D options = OptionsEssai();
    options.TypeEntree = 1;
    options.TypeSortie = 0;
    options.retourRapide = true;
    const TrajetsBloc t = Trajets(options, MachineEssai());
    EXPECT_EQ(Jalons(t.entree), (Liste{{0, 0}, {0, 75}, {20, 75}, {20, 30}}));
    EXPECT_EQ(Jalons(t.sortie), (Liste{{40, 50, false}, {0, 50, true}, {0, 0, false}}));
}

TEST(EntreeSortie, UnTypeInconnuEstPrisPourLeType0) {
    EXPECT_EQ(Jalons(Trajets(Types(7, true), MachineEssai()).entree),
              Jalons(Trajets(Types(0, true), MachineEssai()).entree));
    EXPECT_EQ(Jalons(Trajets(Types(-1, true), MachineEssai()).sortie),
              Jalons(Trajets(Types(0, true), MachineEssai()).sortie));
}

TEST(EntreeSortie, LesBoutsSontExactementCeuxDuChemin) {
    Sequence chemin = Chemin({{20.1, 30.7}, {40.3, 50.9}});
    chemin.Points[0].Drapeaux = 1; // a crossing of the limit check keeps its code
    const TrajetsBloc t = CreationTrajetsDecales(chemin, Types(2, true), MachineEssai());
    EXPECT_EQ(t.entree.Points.back(), chemin.Points.front());
    EXPECT_EQ(t.sortie.Points.front(), chemin.Points.back());
    EXPECT_EQ(t.entree.XMax, 80);
    const TrajetsBloc vide = CreationTrajetsDecales(Sequence(), Types(2, true), MachineEssai());
    EXPECT_TRUE(vide.entree.Points.empty());
    EXPECT_TRUE(vide.sortie.Points.empty());
}

// Origin at the top: safe height 60 + 15 = 75 on a travel of 200.
TEST(OrigineEnHautType0, DescenteRapideJusquALaHauteurSure) {
    const TrajetsBloc t = Trajets(Types(0, true), MachineOrigineEnHaut());
    EXPECT_EQ(Jalons(t.entree), (Liste{{0, 200, true}, {0, 75, false}, {0, 30, false}, {20, 30, false}}));
    EXPECT_EQ(Jalons(t.sortie), (Liste{{40, 50, false}, {0, 50, false}, {0, 75, true}, {0, 200, false}}));
}

TEST(OrigineEnHautType0, SansPlaceUnPremierPasLentDUnDixieme) {
    TableMachine table = MachineOrigineEnHaut();
    table.CourseY = 78; // 75 + 4 = 79
    const TrajetsBloc t = Trajets(Types(0, true), table);
    EXPECT_EQ(Jalons(t.entree), (Liste{{0, 78}, {0, 78 - 0.1}, {0, 30}, {20, 30}}));
    EXPECT_EQ(Jalons(t.sortie), (Liste{{40, 50}, {0, 50}, {0, 78 - 0.1}, {0, 78}}));
    table.CourseY = 79; // just enough
    EXPECT_EQ(Jalons(Trajets(Types(0, true), table).entree)[0], (Jalon{0, 79, true}));
    const TrajetsBloc lent = Trajets(Types(0, false), MachineOrigineEnHaut());
    EXPECT_EQ(Jalons(lent.entree), (Liste{{0, 200}, {0, 200 - 0.1}, {0, 30}, {20, 30}}));
}

TEST(OrigineEnHautType1, RapideLeLongDuHautEtJusquALaHauteurSure) {
    const TrajetsBloc t = Trajets(Types(1, true), MachineOrigineEnHaut());
    EXPECT_EQ(Jalons(t.entree), (Liste{{0, 200, true}, {20, 200, true}, {20, 75, false}, {20, 30, false}}));
    EXPECT_EQ(Jalons(t.sortie), (Liste{{40, 50, false}, {40, 75, true}, {40, 200, true}, {0, 200, false}}));
    const TrajetsBloc lent = Trajets(Types(1, false), MachineOrigineEnHaut());
    EXPECT_EQ(Jalons(lent.entree), (Liste{{0, 200}, {20, 200}, {20, 30}}));
    EXPECT_EQ(Jalons(lent.sortie), (Liste{{40, 50}, {40, 200}, {0, 200}}));
}

TEST(OrigineEnHautType1, SansPlaceLaDescenteEstLenteMaisPasLeHaut) {
    TableMachine table = MachineOrigineEnHaut();
    table.CourseY = 78;
    const TrajetsBloc t = Trajets(Types(1, true), table);
    EXPECT_EQ(Jalons(t.entree), (Liste{{0, 78, true}, {20, 78, false}, {20, 30, false}}));
    EXPECT_EQ(Jalons(t.sortie), (Liste{{40, 50, false}, {40, 78, true}, {0, 78, false}}));
    // A top that lies below the safe height is no place for rapid travel.
    table.CourseY = 74;
    EXPECT_EQ(Jalons(Trajets(Types(1, true), table).entree), (Liste{{0, 74}, {20, 74}, {20, 30}}));
}

TEST(OrigineEnHautType2, ParLeCoteOppose) {
    const TrajetsBloc t = Trajets(Types(2, true), MachineOrigineEnHaut());
    EXPECT_EQ(Jalons(t.entree),
              (Liste{{0, 200, true}, {80, 200, true}, {80, 75, false}, {80, 30, false}, {20, 30, false}}));
    EXPECT_EQ(Jalons(t.sortie),
              (Liste{{40, 50, false}, {80, 50, false}, {80, 75, true}, {80, 200, true}, {0, 200, false}}));
    TableMachine table = MachineOrigineEnHaut();
    table.CourseY = 78;
    const TrajetsBloc serre = Trajets(Types(2, true), table);
    EXPECT_EQ(Jalons(serre.entree),
              (Liste{{0, 78, true}, {80, 78, false}, {80, 30, false}, {20, 30, false}}));
    EXPECT_EQ(Jalons(serre.sortie),
              (Liste{{40, 50, false}, {80, 50, false}, {80, 78, true}, {0, 78, false}}));
}

TEST(TrajetsProvisoires, MemesFormesSansRapideEtHauteurNonLimitee) {
    TableMachine table = MachineEssai();
    table.CourseX = 79;
    table.CourseY = 70;
    const Sequence chemin = Chemin({{20, 30}, {40, 50}});
    const auto creer = [&](int type) {
        return CreationTrajetsEntreeSortie(chemin, Types(type, true), table);
    };
    EXPECT_EQ(Jalons(creer(0).entree), (Liste{{0, 0}, {0, 30}, {20, 30}}));
    EXPECT_EQ(Jalons(creer(0).sortie), (Liste{{40, 50}, {0, 50}, {0, 0}}));
    EXPECT_EQ(Jalons(creer(1).entree), (Liste{{0, 0}, {0, 75}, {20, 75}, {20, 30}}));
    EXPECT_EQ(Jalons(creer(1).sortie), (Liste{{40, 50}, {40, 75}, {0, 75}, {0, 0}}));
    EXPECT_EQ(Jalons(creer(2).entree), (Liste{{0, 0}, {0, 75}, {79, 75}, {79, 30}, {20, 30}}));
    EXPECT_EQ(Jalons(creer(2).sortie), (Liste{{40, 50}, {79, 50}, {79, 75}, {0, 75}, {0, 0}}));
}
