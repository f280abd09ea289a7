// The road of a 2D cut as a whole: joining, thinning, counts, what is left when a stage fails.
#include "outils/boites.h"
#include "outils_decoupe.h"
#include "platform/erreurs.h"
#include "work2d/assemblage.h"

#include <cmath>

using namespace tessarel;
using namespace tessarel::essais;

TEST(Assemblage, LesSequencesSeSuiventBoutABoutSansPerteDePoint) {
    const std::vector<Sequence> sequences = {Chemin({{0, 0}, {10, 0}, {10, 10}}),
                                             Chemin({{50, 50}, {60, 70}})};
    const Sequence assemblee = AssemblageSequencesTransfPourDecoupe(sequences, 0.02F);
    EXPECT_EQ(Lieux(assemblee), (std::vector<Lieu>{{0, 0}, {10, 0}, {10, 10}, {50, 50}, {60, 70}}));
    EXPECT_EQ(assemblee.XMax, 60);
    EXPECT_EQ(assemblee.Largeur, 60);
    EXPECT_EQ(assemblee.Hauteur, 70);
}

TEST(Assemblage, LesPointsAlignesSEnVontEtRapideEstEfface) {
    Sequence ligne = Chemin({{0, 0}, {10, 0}, {20, 0}, {30, 0}, {30, 30}});
    for (PointProfil& p : ligne.Points) p.Rapide = true;
    const Sequence assemblee = AssemblageSequencesTransfPourDecoupe({&ligne, 1}, 0.02F);
    EXPECT_EQ(Jalons(assemblee), (std::vector<Jalon>{{0, 0}, {30, 0}, {30, 30}}));
}

TEST(Assemblage, LesCoordonneesOntLaPrecisionDe32Bits) {
    const Sequence chemin = Chemin({{0.1, 0.2}, {10.3, 0}, {20.7, 33.3}});
    const Sequence assemblee = AssemblageSequencesTransfPourDecoupe({&chemin, 1}, 0.02F);
    EXPECT_EQ(assemblee.Points[0].X, static_cast<double>(0.1F));
    EXPECT_NE(assemblee.Points[0].X, 0.1);
    EXPECT_EQ(assemblee.Points[2].Y, static_cast<double>(33.3F));
}

TEST(Assemblage, LesPointsCommunsDesTroisPartiesNeSontPasDoubles) {
    const Sequence decoupe = AssemblageSequenceDecoupe(
        Chemin({{0, 0}, {0, 5}, {5, 5}}), Chemin({{5, 5}, {9, 5}}), Chemin({{9, 5}, {0, 5}, {0, 0}}));
    EXPECT_EQ(Lieux(decoupe), (std::vector<Lieu>{{0, 0}, {0, 5}, {5, 5}, {9, 5}, {0, 5}, {0, 0}}));
}

TEST(Assemblage, UnCheminDUnSeulPointSeDecoupe) {
    const std::vector<Sequence> sequences = {Chemin({{20, 30}})};
    const Decoupe2D decoupe = AssemblerDecoupe2D(sequences, OptionsEssai(), MachineEssai());
    EXPECT_TRUE(decoupe.decalagePossible);
    EXPECT_EQ(Lieux(decoupe.SequenceDecoupe),
              (std::vector<Lieu>{{0, 0}, {0, 30}, {20, 30}, {0, 30}, {0, 0}}));
}

TEST(Assemblage, SansTraceToutResteVide) {
    const Decoupe2D decoupe = AssemblerDecoupe2D({}, OptionsEssai(), MachineEssai());
    EXPECT_TRUE(decoupe.SequenceDecoupe.Points.empty());
    EXPECT_TRUE(decoupe.TrajetEntreeProvisoire.Points.empty());
    EXPECT_TRUE(decoupe.decalagePossible);
    EXPECT_FALSE(decoupe.DepassementDetecte);
}

// A zigzag that thinning leaves alone.
static Sequence Zigzag(std::size_t points) {
    Sequence zigzag;
    zigzag.Points.resize(points);
    for (std::size_t i = 0; i < points; ++i) {
        zigzag.Points[i].X = 10 + 0.005 * static_cast<double>(i);
        zigzag.Points[i].Y = i % 2 == 0 ? 20 : 30;
    }
    CalculerBornesSequence(zigzag);
    return zigzag;
}

TEST(Assemblage, Un32768ePointLeveLaFauteDeDepassementQuiDitCombien) {
    const Sequence trop = Zigzag(32768);
    try {
        AssemblerDecoupe2D({&trop, 1}, OptionsEssai(), MachineEssai());
        FAIL() << "no fault";
    } catch (const FauteDepassement& faute) {
        EXPECT_NE(std::string(faute.what()).find("32768"), std::string::npos) << faute.what();
        EXPECT_NE(std::string(faute.what()).find("32767"), std::string::npos) << faute.what();
        EXPECT_EQ(faute.Numero(), NumeroErreur::Depassement);
    }
}

TEST(Assemblage, EntreeEtSortieComptentDansLaLimite) {
    // Type 0 adds two vertices at each end.
    const Sequence juste = Zigzag(32763);
    const Decoupe2D decoupe = AssemblerDecoupe2D({&juste, 1}, OptionsEssai(), MachineEssai());
    EXPECT_EQ(decoupe.SequenceDecoupe.Points.size(), 32767U);
    const Sequence un = Zigzag(32764);
    EXPECT_THROW(AssemblerDecoupe2D({&un, 1}, OptionsEssai(), MachineEssai()), FauteDepassement);
}

TEST(Assemblage, DeuxPointsConfondusArretentLeDecalageEtLaissentLeProvisoire) {
    // Two points are too few for thinning: doubles of a path that short reach the offset.
    const std::vector<Sequence> sequences = {Chemin({{20, 20}, {20.005, 20.005}})};
    OptionsDecoupe2D options = OptionsEssai();
    options.decalage = CoteDecalage2D::Gauche;
    BoitesEnregistrees boites;
    const Decoupe2D decoupe = AssemblerDecoupe2D(sequences, options, MachineEssai());
    EXPECT_FALSE(decoupe.decalagePossible);
    EXPECT_TRUE(decoupe.SequenceDecoupe.Points.empty());
    EXPECT_EQ(decoupe.TrajetEntreeProvisoire.Points.size(), 3U);
    EXPECT_EQ(boites.boites.size(), 1U);
}

TEST(Assemblage, ToutHorsDeLaZoneNeLaisseRienADecouper) {
    const std::vector<Sequence> sequences = {Chemin({{400, 20}, {420, 40}})};
    BoitesEnregistrees boites;
    const Decoupe2D decoupe = AssemblerDecoupe2D(sequences, OptionsEssai(), MachineEssai());
    EXPECT_TRUE(decoupe.DepassementDetecte);
    EXPECT_TRUE(decoupe.decalagePossible);
    EXPECT_TRUE(decoupe.SequenceDecoupe.Points.empty());
    EXPECT_TRUE(boites.boites.empty()) << "the box belongs to the caller";
}

TEST(Assemblage, LeNombreDePointsEstEntreePlusCheminPlusSortieMoinsDeux) {
    for (int type = 0; type < 3; ++type) {
        OptionsDecoupe2D options = OptionsEssai();
        options.TypeEntree = type;
        options.TypeSortie = 2 - type;
        options.decalage = CoteDecalage2D::Droite;
        const std::vector<Sequence> sequences = {CarreDe20()};
        const Decoupe2D d = AssemblerDecoupe2D(sequences, options, MachineEssai());
        EXPECT_EQ(d.SequenceDecoupe.Points.size(), d.TrajetEntree.Points.size() +
                                                       d.SequenceDecalee.Points.size() +
                                                       d.TrajetSortie.Points.size() - 2);
    }
}

TEST(Options, VitesseEtSaigneeSuiventLeMode) {
    OptionsDecoupe2D options = OptionsEssai();
    options.vitesseMatiere = 2.5F;
    options.saigneeMatiere = 1.6F;
    const TableMachine table = MachineEssai();
    EXPECT_EQ(VitesseEnVigueur(options, table), 4);
    EXPECT_EQ(SaigneeEnVigueur(options, table), 1);
    options.modeExpert = true;
    EXPECT_EQ(VitesseEnVigueur(options, table), 2.5F);
    EXPECT_EQ(SaigneeEnVigueur(options, table), 1.6F);
}

TEST(Options, LeDecalageEstLaDemiSaigneeSigneeParLeCote) {
    OptionsDecoupe2D options = OptionsEssai();
    TableMachine table = MachineEssai();
    EXPECT_EQ(DistanceDecalage(options, table), 0);
    options.decalage = CoteDecalage2D::Gauche;
    EXPECT_EQ(DistanceDecalage(options, table), -0.5F);
    options.decalage = CoteDecalage2D::Droite;
    EXPECT_EQ(DistanceDecalage(options, table), 0.5F);
    table.SaigneeVDParDefaut = -1; // only its size counts
    EXPECT_EQ(DistanceDecalage(options, table), 0.5F);
    options.decalage = CoteDecalage2D::Gauche;
    EXPECT_EQ(DistanceDecalage(options, table), -0.5F);
}
