// Undo and redo: positions, buttons, what is dropped, exact states, and the room they take.
#include "work2d/historique2d.h"

#include "app/texts/textes.h"
#include "atelier_essai.h"
#include "outils/boites.h"

using namespace tessarel;
using namespace tessarel::essais;

namespace {

AtelierEssai AvecCarre() {
    AtelierEssai a;
    a.sequences = {CarreDe20()};
    ToutSelectionner(a.sequences, true);
    return a;
}

} // namespace

TEST(Historique2D, AuPremierEtatRienNeSAnnule) {
    AtelierEssai a = AvecCarre();
    EXPECT_EQ(a.historique.NbTransf, 1.0F);
    EXPECT_FALSE(PeutAnnuler(a.historique));
    EXPECT_FALSE(PeutRefaire(a.historique));
    EXPECT_FALSE(a.Arriere());
    EXPECT_FALSE(a.Avant());
    EXPECT_EQ(a.historique.NbTransf, 1.0F);
    EXPECT_EQ(a.sequences[0].Points, CarreDe20().Points);
}

TEST(Historique2D, ArriereEtAvantRendentLesEtats) {
    AtelierEssai a = AvecCarre();
    a.Transformer(Deplacement(1, 0));
    a.Transformer(Deplacement(0, 2));
    const std::vector<Sequence> fin = a.sequences;
    EXPECT_EQ(a.historique.NbTransf, 3.0F);
    EXPECT_TRUE(PeutAnnuler(a.historique));
    EXPECT_FALSE(PeutRefaire(a.historique));
    EXPECT_TRUE(a.Arriere());
    EXPECT_EQ(a.sequences[0].XMin, 21);
    EXPECT_EQ(a.sequences[0].YMin, 20);
    EXPECT_TRUE(PeutAnnuler(a.historique));
    EXPECT_TRUE(PeutRefaire(a.historique));
    EXPECT_TRUE(a.Arriere());
    EXPECT_EQ(a.historique.NbTransf, 1.0F);
    EXPECT_EQ(a.sequences[0].Points, CarreDe20().Points);
    EXPECT_FALSE(PeutAnnuler(a.historique));
    EXPECT_FALSE(a.Arriere());
    EXPECT_TRUE(a.Avant());
    EXPECT_TRUE(a.Avant());
    EXPECT_FALSE(PeutRefaire(a.historique));
    EXPECT_FALSE(a.Avant());
    EXPECT_EQ(a.sequences, fin);
}

TEST(Historique2D, UneActionApresUnRetourOublieLaSuite) {
    AtelierEssai a = AvecCarre();
    for (int i = 0; i < 3; ++i) a.Transformer(Deplacement(1, 0));
    a.Arriere();
    a.Arriere();
    a.Transformer(Deplacement(100, 0));
    EXPECT_EQ(a.historique.NbTransf, 3.0F);
    EXPECT_FALSE(PeutRefaire(a.historique));
    EXPECT_EQ(a.sequences[0].XMin, 121);
    a.Arriere();
    EXPECT_EQ(a.sequences[0].XMin, 21);
    a.Avant();
    EXPECT_EQ(a.sequences[0].XMin, 121);
}

TEST(Historique2D, UneActionSansEffetApresUnRetourLaisseLaSuite) {
    AtelierEssai a = AvecCarre();
    for (int i = 0; i < 3; ++i) a.Transformer(Deplacement(1, 0));
    a.Arriere();
    a.Arriere();
    a.Memoriser();
    OublierMemorisation(a.historique, a.sequences, a.bloc);
    EXPECT_EQ(a.historique.NbTransf, 2.0F);
    EXPECT_EQ(a.historique.PileTransformations.size(), 4U);
    EXPECT_TRUE(a.Arriere());
    EXPECT_EQ(a.sequences[0].XMin, 20);
    for (const int x : {21, 22, 23}) {
        EXPECT_TRUE(a.Avant());
        EXPECT_EQ(a.sequences[0].XMin, x);
    }
    EXPECT_FALSE(a.Avant());
}

TEST(Historique2D, UnPointDeplaceEstUnPas) {
    AtelierEssai a = AvecCarre();
    a.Memoriser();
    std::swap(a.sequences[0].Points[1], a.sequences[0].Points[2]); // as many points in the same box
    OublierMemorisation(a.historique, a.sequences, a.bloc);
    EXPECT_EQ(a.historique.NbTransf, 2.0F);
    EXPECT_TRUE(a.Arriere());
    EXPECT_EQ(a.sequences[0].Points, CarreDe20().Points);
}

TEST(Historique2D, LeBlocRevientAvecLesTraces) {
    AtelierEssai a = AvecCarre();
    a.Memoriser();
    a.bloc = {300, 200};
    a.coeff = 4;
    a.Arriere();
    EXPECT_EQ(a.bloc.BlocX, 100);
    EXPECT_EQ(a.coeff, 1);
    a.Avant();
    EXPECT_EQ(a.bloc.BlocY, 200);
    EXPECT_EQ(a.coeff, 4);
}

TEST(Historique2D, UnePositionNegativeDitLErreurEtVide) {
    ChargerMessages(Langue::Francais);
    BoitesEnregistrees boites;
    AtelierEssai a = AvecCarre();
    a.Transformer(Deplacement(1, 0));
    a.historique.NbTransf = -1;
    EXPECT_TRUE(a.Arriere());
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_TRUE(boites.boites[0].texte.starts_with("NbTransf <0 dans cmdUndoTS2D_click => "));
    EXPECT_EQ(boites.boites[0].titre, "Erreur");
    EXPECT_TRUE(a.sequences.empty());
    EXPECT_EQ(a.historique.NbTransf, 1.0F);
    EXPECT_TRUE(a.historique.PileTransformations.empty());
}

TEST(Historique2D, CeQuiNeChangePasEstPartage) {
    AtelierEssai a;
    for (int i = 0; i < 10; ++i) a.sequences.push_back(Contour(i * 100.0, 0, 1000));
    ToutSelectionner(a.sequences, false);
    a.sequences[3].Selection = SelectionSequence;
    a.Memoriser();
    const std::size_t depart = MemoireHistorique(a.historique);
    for (int i = 0; i < 20; ++i) {
        InsererPoint(a.sequences[3], 0, {300.0 + i, 70});
        a.Memoriser();
    }
    const std::size_t dUnSeul = 1020 * sizeof(PointDessin);
    EXPECT_LT(MemoireHistorique(a.historique), depart + 20 * (dUnSeul + 4096));
    // Paths that move up in the list are still the same.
    a.sequences.erase(a.sequences.begin());
    const std::size_t avant = MemoireHistorique(a.historique);
    a.Memoriser();
    EXPECT_LT(MemoireHistorique(a.historique), avant + 8192);
}

TEST(Historique2D, UneAnnonceFausseNeTrompePas) {
    AtelierEssai a = AvecCarre();
    a.Transformer(Deplacement(1, 0));
    AnnoncerTransformation(a.historique, Deplacement(2, 0));
    a.Memoriser();
    a.Arriere();
    EXPECT_EQ(a.sequences[0].XMin, 21);
}
