// Undo and redo: positions, buttons, what is dropped, exact states, and the room they take.
#include "work2d/historique2d.h"

#include "app/texts/textes.h"
#include "outils/boites.h"
#include "outils_decoupe.h"
#include "work2d/edition.h"
#include "work2d/selection.h"

#include <cmath>
#include <random>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

// A project and its history, as a window holds them.
struct Atelier {
    std::vector<Sequence> sequences;
    Bloc bloc{100, 50};
    float coeff = 1;
    Historique2D historique;

    void Memoriser() { MemoriserTransformation(historique, sequences, bloc, coeff); }
    bool Arriere() { return cmdUndoTS2D(historique, SensHistorique::Arriere, sequences, bloc, coeff); }
    bool Avant() { return cmdUndoTS2D(historique, SensHistorique::Avant, sequences, bloc, coeff); }
    void Transformer(const Transformation& t) {
        Memoriser();
        TransformerSelection(sequences, t);
        AnnoncerTransformation(historique, t);
    }
};

Atelier AvecCarre() {
    Atelier a;
    a.sequences = {CarreDe20()};
    ToutSelectionner(a.sequences, true);
    return a;
}

Sequence Contour(double x, double y, std::size_t points) {
    Sequence s;
    for (std::size_t i = 0; i < points; ++i) {
        const double t = 6.283 * static_cast<double>(i) / static_cast<double>(points - 1);
        PointProfil p;
        p.X = x + 40 * std::cos(t) + 3 * std::sin(9 * t);
        p.Y = y + 40 * std::sin(t);
        s.Points.push_back(p);
    }
    s.Selection = SelectionSequence;
    CalculerBornesSequence(s);
    return s;
}

} // namespace

TEST(Historique2D, AuPremierEtatRienNeSAnnule) {
    Atelier a = AvecCarre();
    EXPECT_EQ(a.historique.NbTransf, 1.0F);
    EXPECT_FALSE(PeutAnnuler(a.historique));
    EXPECT_FALSE(PeutRefaire(a.historique));
    EXPECT_FALSE(a.Arriere());
    EXPECT_FALSE(a.Avant());
    EXPECT_EQ(a.historique.NbTransf, 1.0F);
    EXPECT_EQ(a.sequences[0].Points, CarreDe20().Points);
}

TEST(Historique2D, ArriereEtAvantRendentLesEtats) {
    Atelier a = AvecCarre();
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
    Atelier a = AvecCarre();
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
    Atelier a = AvecCarre();
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

TEST(Historique2D, LeBlocRevientAvecLesTraces) {
    Atelier a = AvecCarre();
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
    Atelier a = AvecCarre();
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
    Atelier a;
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

TEST(Historique2D, CentPasSurCentMillePointsTiennentEn64Mo) {
    Atelier a;
    for (int i = 0; i < 100; ++i) a.sequences.push_back(Contour(i * 10.0, i * 5.0, 1000));
    const std::vector<Sequence> depart = a.sequences;
    for (int i = 0; i < 100; ++i) {
        const Sequence boite = CalculerBoiteSelection(a.sequences);
        switch (i % 4) {
        case 0:
            a.Transformer(Deplacement(0.1 * i, 1.0 / 3));
            break;
        case 1:
            a.Transformer(Rotation(MilieuBoite(boite), 7));
            break;
        case 2:
            a.Transformer(*EchelleSaisie(boite, 0, boite.Largeur * 1.01, "BG", true));
            break;
        default:
            a.Transformer(Miroir(boite, AxeMiroir::X));
        }
    }
    a.Memoriser();
    const std::size_t octets = MemoireHistorique(a.historique);
    RecordProperty("octets", static_cast<int>(octets));
    EXPECT_LT(octets, std::size_t{64} << 20) << octets;
    while (PeutAnnuler(a.historique)) a.Arriere();
    EXPECT_EQ(a.sequences, depart);
}

TEST(Historique2D, UneAnnonceFausseNeTrompePas) {
    Atelier a = AvecCarre();
    a.Transformer(Deplacement(1, 0));
    AnnoncerTransformation(a.historique, Deplacement(2, 0));
    a.Memoriser();
    a.Arriere();
    EXPECT_EQ(a.sequences[0].XMin, 21);
}

// Every deed of the workshop in a random order; all the way back, all the way forward, every state exact.
TEST(Historique2D, DeuxMilleActionsAuHasardSeDefontExactement) {
    BoitesEnregistrees boites;
    std::mt19937 hasard(20260721);
    std::uniform_real_distribution<double> mm(-30, 30);
    const auto parmi = [&](std::size_t n) { return static_cast<std::size_t>(hasard() % n); };
    Atelier a = AvecCarre();
    a.sequences.push_back(Chemin({{0, 0}, {10, 5}, {14, -3}}));
    a.sequences[0].Points[1].Drapeaux = 3;
    std::vector<std::vector<Sequence>> etats;
    for (int i = 0; i < 2000; ++i) {
        if (a.sequences.empty()) break;
        const std::vector<std::size_t> choix = {parmi(a.sequences.size())};
        if (parmi(3) == 0) Selectionner(a.sequences, choix, ModeSelection::Basculer);
        etats.push_back(a.sequences);
        const Sequence boite = CalculerBoiteSelection(a.sequences);
        switch (parmi(9)) {
        case 0:
            a.Transformer(Deplacement(mm(hasard), mm(hasard)));
            break;
        case 1:
            a.Transformer(Rotation(MilieuBoite(boite), mm(hasard)));
            break;
        case 2:
            a.Transformer(Miroir(boite, parmi(2) == 0 ? AxeMiroir::X : AxeMiroir::Y));
            break;
        case 3: {
            const auto t = EchelleSaisie(boite, 1, 10 + parmi(60), "HD", true);
            t ? a.Transformer(*t) : a.Memoriser();
            break;
        }
        case 4:
            a.Memoriser();
            if (a.sequences.size() < 40) DupliquerSelection(a.sequences);
            break;
        case 5:
            a.Memoriser();
            if (a.sequences.size() > 20) SupprimerSelection(a.sequences);
            break;
        case 6:
            a.Memoriser();
            CouperSequence(a.sequences, choix[0], 1);
            break;
        case 7:
            a.Memoriser();
            InsererPoint(a.sequences[choix[0]], 0, {mm(hasard), mm(hasard)});
            break;
        default: {
            Transformation sens;
            sens.genre = GenreTransformation::Sens;
            a.Transformer(sens);
        }
        }
    }
    const std::vector<Sequence> fin = a.sequences;
    ASSERT_GT(etats.size(), 1000U);
    for (std::size_t i = etats.size(); i-- > 0;) {
        ASSERT_TRUE(a.Arriere()) << i;
        ASSERT_EQ(a.sequences, etats[i]) << i;
    }
    EXPECT_FALSE(PeutAnnuler(a.historique));
    while (a.Avant()) {
    }
    EXPECT_EQ(a.sequences, fin);
}
