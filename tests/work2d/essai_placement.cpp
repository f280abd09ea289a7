// The block of a machine, and paths placed in it by the rules.
#include "work2d/placement.h"

#include "outils/boites.h"
#include "outils_decoupe.h"

using namespace tessarel;
using namespace tessarel::essais;

namespace {

constexpr ReglesPlacement Ajuster = {true, false, false, 5, 5};

Sequence Rectangle(double x, double y, double largeur, double hauteur) {
    return Chemin({{x, y}, {x, y + hauteur}, {x + largeur, y + hauteur}, {x + largeur, y}, {x, y}});
}

} // namespace

TEST(Bloc, ParDefautQuatreCinquiemesDeLaPlaceEnCentimetresEntiers) {
    TableMachine table;
    table.CourseX = 980;
    table.CourseY = 510;
    table.MargeFilBloc = 15;
    EXPECT_EQ(BlocParDefaut(table).BlocX, 770); // 965 * 0.8 = 772
    EXPECT_EQ(BlocParDefaut(table).BlocY, 390); // 495 * 0.8 = 396
    table.CourseX = 304;
    table.CourseY = 256;
    table.MargeFilBloc = 2;
    EXPECT_EQ(BlocParDefaut(table).BlocX, 240); // 241.6
    EXPECT_EQ(BlocParDefaut(table).BlocY, 200); // 203.2
}

TEST(Bloc, SaisiEstRameneALaMachine) {
    const TableMachine table = MachineEssai();
    const Bloc trop = LimiterBlocSaisi({500, 500}, table);
    EXPECT_EQ(trop.BlocX, 280); // 300 - 15 - 5
    EXPECT_EQ(trop.BlocY, 185); // 200 - 15
    const Bloc juste = LimiterBlocSaisi({280, 185}, table);
    EXPECT_EQ(juste.BlocX, 280);
    EXPECT_EQ(juste.BlocY, 185);
    const Bloc petit = LimiterBlocSaisi({12.5F, 3}, table);
    EXPECT_EQ(petit.BlocX, 12.5F);
    EXPECT_EQ(petit.BlocY, 3);
}

TEST(Bloc, OuvertEstLimiteSansLaMargeDOrigineMemeSIlGrandit) {
    const TableMachine table = MachineEssai();
    EXPECT_EQ(LimiterBlocOuvert({280, 185}, table).BlocX, 280);
    EXPECT_EQ(LimiterBlocOuvert({281, 185}, table).BlocX, 285) << "above 280, so 300 - 15";
    EXPECT_EQ(LimiterBlocOuvert({900, 900}, table).BlocX, 285);
    EXPECT_EQ(LimiterBlocOuvert({900, 900}, table).BlocY, 185);
    EXPECT_EQ(LimiterBlocOuvert({100, 185}, table).BlocY, 185);
}

TEST(Placement, AjusterPrendLePlusPetitRapportEtGardeLeCoin) {
    std::vector<Sequence> sequences = {Rectangle(10, 20, 40, 10)};
    float coeff = 3;
    // Room 90 x 50: min(90/40, 50/10) = 2.25
    AjusterAuBloc(sequences, {100, 60}, Ajuster, MachineEssai(), coeff);
    EXPECT_EQ(coeff, 6.75F);
    EXPECT_EQ(sequences[0].XMin, 10);
    EXPECT_EQ(sequences[0].XMax, 100);
    EXPECT_EQ(sequences[0].YMin, 20);
    EXPECT_EQ(sequences[0].YMax, 42.5F);
    EXPECT_EQ(sequences[0].Points[2].X, 100);
}

TEST(Placement, PlusieursSequencesGardentLeurPlaceRelative) {
    std::vector<Sequence> sequences = {Rectangle(0, 0, 10, 10), Rectangle(30, 0, 10, 10)};
    float coeff = 1;
    AjusterAuBloc(sequences, {90, 90}, Ajuster, MachineEssai(), coeff); // 80 / 40 = 2
    EXPECT_EQ(coeff, 2);
    EXPECT_EQ(sequences[0].XMax, 20);
    EXPECT_EQ(sequences[1].XMin, 60);
    EXPECT_EQ(sequences[1].XMax, 80);
}

TEST(Placement, UneHauteurNulleLaisseLeRapportDesLargeurs) {
    std::vector<Sequence> sequences = {Chemin({{10, 20}, {50, 20}})};
    float coeff = 1;
    AjusterAuBloc(sequences, {100, 10}, Ajuster, MachineEssai(), coeff);
    EXPECT_EQ(coeff, 2.25F);
    EXPECT_EQ(sequences[0].XMax, 100);
    EXPECT_EQ(sequences[0].YMax, 20);
    sequences = {Chemin({{10, 20}, {10, 60}})};
    coeff = 1;
    AjusterAuBloc(sequences, {10, 100}, Ajuster, MachineEssai(), coeff);
    EXPECT_EQ(coeff, 2.25F);
    EXPECT_EQ(sequences[0].YMax, 110);
}

TEST(Placement, DeuxTaillesNullesMontrentLaBoiteEtLaissentLeTrace) {
    std::vector<Sequence> sequences = {Chemin({{10, 20}, {10, 20}})};
    float coeff = 2;
    BoitesEnregistrees boites;
    AjusterAuBloc(sequences, {100, 100}, Ajuster, MachineEssai(), coeff);
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].texte, std::string("pas de coeff défini => ") + TESSAREL_COURRIEL_SUPPORT);
    EXPECT_EQ(coeff, 2);
    EXPECT_EQ(Lieux(sequences[0]), (std::vector<Lieu>{{10, 20}, {10, 20}}));
}

TEST(Placement, DesMargesQuiMangentLeBlocNEcrasentPasLeTrace) {
    for (const float cote : {10.0F, 8.0F}) {
        std::vector<Sequence> sequences = {CarreDe20()};
        float coeff = 1;
        BoitesEnregistrees boites;
        AjusterAuBloc(sequences, {cote, cote}, Ajuster, MachineEssai(), coeff);
        EXPECT_EQ(Lieux(sequences[0]), Lieux(CarreDe20()));
        EXPECT_EQ(coeff, 1);
        EXPECT_EQ(boites.boites.size(), 1U);
    }
}

TEST(Placement, SansAjusterLeCoefficientRevientAUn) {
    std::vector<Sequence> sequences = {CarreDe20()};
    float coeff = 2.5F;
    AjusterAuBloc(sequences, {100, 100}, {}, MachineEssai(), coeff);
    EXPECT_EQ(coeff, 1);
    EXPECT_EQ(Lieux(sequences[0]), Lieux(CarreDe20()));
}

TEST(Placement, CentrerEnXComptelaMargeDOrigineEnYNon) {
    std::vector<Sequence> sequences = {CarreDe20()}; // middle at (30, 30)
    float coeff = 1;
    AjusterAuBloc(sequences, {100, 80}, {false, true, false, 5, 5}, MachineEssai(), coeff);
    EXPECT_EQ(sequences[0].XMin, 45); // 50 + 5 - 10
    EXPECT_EQ(sequences[0].YMin, 20);
    AjusterAuBloc(sequences, {100, 80}, {false, false, true, 5, 5}, MachineEssai(), coeff);
    EXPECT_EQ(sequences[0].XMin, 45);
    EXPECT_EQ(sequences[0].YMin, 30); // 40 - 10
}

TEST(Placement, LeCentrageSuitLAjustement) {
    std::vector<Sequence> sequences = {CarreDe20()};
    float coeff = 1;
    AjusterAuBloc(sequences, {70, 50}, {true, true, true, 5, 5}, MachineEssai(), coeff); // 40 / 20
    EXPECT_EQ(coeff, 2);
    EXPECT_EQ(sequences[0].XMin, 20); // 35 + 5 - 20
    EXPECT_EQ(sequences[0].XMax, 60);
    EXPECT_EQ(sequences[0].YMin, 5);
    EXPECT_EQ(sequences[0].YMax, 45);
}

TEST(Placement, UnProjetVideResteVide) {
    std::vector<Sequence> sequences;
    float coeff = 2;
    BoitesEnregistrees boites;
    AjusterAuBloc(sequences, {100, 100}, {true, true, true, 5, 5}, MachineEssai(), coeff);
    EXPECT_TRUE(boites.boites.empty());
    sequences = {Sequence()};
    AjusterAuBloc(sequences, {100, 100}, {true, true, true, 5, 5}, MachineEssai(), coeff);
    EXPECT_TRUE(boites.boites.empty());
}

TEST(BlocAuto, PrendLaTailleDesTracesAvecDixAuMoins) {
    float coeff = 1;
    std::vector<Sequence> sequences = {Rectangle(10, 20, 40, 3)};
    const Bloc bloc = BlocAuto(sequences, {}, MachineEssai(), coeff).bloc;
    EXPECT_EQ(bloc.BlocX, 40);
    EXPECT_EQ(bloc.BlocY, 10);
}

TEST(BlocAuto, PuisPlaceParLesRegles) {
    float coeff = 1;
    std::vector<Sequence> sequences = {CarreDe20()};
    const Bloc bloc = BlocAuto(sequences, {true, true, true, 5, 5}, MachineEssai(), coeff).bloc;
    EXPECT_EQ(bloc.BlocX, 20);
    EXPECT_EQ(coeff, 0.5F);           // room 10 for a path of 20
    EXPECT_EQ(sequences[0].XMin, 10); // middle 10 + 5
    EXPECT_EQ(sequences[0].YMin, 5);
}

TEST(BlocAuto, SansTraceLeCadreEstLaTable) {
    float coeff = 1;
    std::vector<Sequence> sequences;
    const Bloc bloc = BlocAuto(sequences, {}, MachineEssai(), coeff).bloc;
    EXPECT_EQ(bloc.BlocX, 300);
    EXPECT_EQ(bloc.BlocY, 200);
}

// What is given back makes the same bits of the paths as they were.
TEST(Placement, LaTransformationRendueRefaitLePlacementBitABit) {
    const auto place = [](const ReglesPlacement& regles) {
        std::vector<Sequence> sequences = {Rectangle(1.0 / 3, 2.0 / 7, 39.7, 11.3),
                                           Rectangle(-7.1, 0.01, 3, 1.0 / 9)};
        std::vector<Sequence> refaites = sequences;
        float coeff = 1;
        const Transformation t = AjusterAuBloc(sequences, {171.3F, 83.9F}, regles, MachineEssai(), coeff);
        for (Sequence& s : refaites) {
            TransformerPoints(s.Points, t);
            CalculerBornesSequence(s);
        }
        EXPECT_EQ(refaites, sequences);
        return t;
    };
    const Transformation rien = place({});
    EXPECT_TRUE(SansEffet(rien));
    EXPECT_EQ(place({false, true, false, 5, 5}).dy, 0);
    EXPECT_EQ(place({false, false, true, 5, 5}).dx, 0);
    EXPECT_EQ(place({false, true, true, 5, 5}).genre, GenreTransformation::Deplacement);
    const Transformation ajuste = place({true, true, true, 5, 5});
    EXPECT_EQ(ajuste.genre, GenreTransformation::Ajustement);
    // The framing is 32 bits wide: 161.3 over 47.133..., and 73.9 over 11.57... is more.
    EXPECT_NEAR(ajuste.facteur, 161.3 / (1.0 / 3 + 39.7 + 7.1), 1e-5);
    EXPECT_NE(ajuste.facteur, static_cast<double>(static_cast<float>(ajuste.facteur)));
    EXPECT_EQ(place({true, false, false, 5, 5}).dx, 0);
}

TEST(Placement, SansMiseALEchellePossibleSeulLeCentrageEstRendu) {
    BoitesEnregistrees boites;
    std::vector<Sequence> sequences = {Rectangle(0, 0, 40, 10)};
    float coeff = 1;
    const Transformation t =
        AjusterAuBloc(sequences, {8, 100}, {true, true, false, 5, 5}, MachineEssai(), coeff);
    EXPECT_EQ(boites.boites.size(), 1U); // the margins are wider than the block
    EXPECT_EQ(t.genre, GenreTransformation::Deplacement);
    EXPECT_EQ(t.dx, -11); // 8 / 2 + 5 - 20
    EXPECT_EQ(sequences[0].XMin, -11);
    EXPECT_EQ(coeff, 1);
}
