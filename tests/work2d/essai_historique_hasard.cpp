// Every deed of the workshop in a random order: all the way back, all the way forward, to and fro in between,
// every state exact to the bit.
#include "atelier_essai.h"
#include "outils/boites.h"

#include <gtest/gtest.h>

#include <random>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

class Ouvrier {
public:
    explicit Ouvrier(unsigned graine) : m_hasard(graine) {}

    std::size_t Parmi(std::size_t n) { return static_cast<std::size_t>(m_hasard() % n); }
    double Mm() { return std::uniform_real_distribution<double>(-30, 30)(m_hasard); }

    // Clicks on a path now and then, as the step that follows finds it.
    void Choisir(AtelierEssai& a) {
        if (a.sequences.empty() || Parmi(3) != 0) return;
        const std::size_t choix[] = {Parmi(a.sequences.size())};
        Selectionner(a.sequences, choix, Parmi(2) == 0 ? ModeSelection::Basculer : ModeSelection::Seule);
    }

    void Agir(AtelierEssai& a) {
        if (a.sequences.empty()) return Importer(a);
        switch (Parmi(16)) {
        case 0:
        case 1:
            return Inserer(a);
        case 2:
        case 3:
            return Couper(a);
        case 4:
            return Retirer(a);
        case 5:
            return a.sequences.size() < 30 ? a.Dupliquer() : a.Memoriser();
        case 6:
            return a.sequences.size() > 12 ? a.Supprimer() : a.Memoriser();
        case 7:
            return a.Inverser();
        case 8:
        case 9:
            return a.Placer({100 + static_cast<float>(Parmi(180)), 60 + static_cast<float>(Parmi(120))},
                            {Parmi(2) == 0, Parmi(2) == 0, Parmi(2) == 0, 5, 5});
        case 10:
            return Importer(a);
        default:
            return Transformer(a);
        }
    }

private:
    std::size_t UnTrace(const AtelierEssai& a) { return Parmi(a.sequences.size()); }

    void Inserer(AtelierEssai& a) {
        const std::size_t rang = UnTrace(a);
        const std::size_t points = a.sequences[rang].Points.size();
        a.Inserer(rang, points < 2 ? 0 : Parmi(points - 1), {Mm(), Mm()});
    }
    void Couper(AtelierEssai& a) {
        const std::size_t rang = UnTrace(a);
        a.Couper(rang, Parmi(a.sequences[rang].Points.size() + 1)); // also where it is refused
    }
    void Retirer(AtelierEssai& a) {
        const std::size_t rang = UnTrace(a);
        const std::size_t points = a.sequences[rang].Points.size();
        points == 0 ? a.Memoriser() : a.Retirer(rang, Parmi(points));
    }
    // A drawing comes behind what is there, and is placed with it.
    void Importer(AtelierEssai& a) {
        a.Memoriser();
        if (a.sequences.size() > 25) return;
        a.sequences.push_back(Contour(Mm(), Mm(), 2 + Parmi(400)));
        if (Parmi(4) == 0) a.sequences.back().Points[1].Drapeaux = 3;
        if (Parmi(4) == 0) a.sequences.back().Points[0].X = -0.0;
        CalculerBornesSequence(a.sequences.back());
        AnnoncerTransformation(
            a.historique, AjusterAuBloc(a.sequences, a.bloc, {false, true, true, 5, 5}, a.table, a.coeff));
    }
    void Transformer(AtelierEssai& a) {
        const Sequence boite = CalculerBoiteSelection(a.sequences);
        switch (Parmi(4)) {
        case 0:
            return a.Transformer(Deplacement(Mm(), Parmi(2) == 0 ? 0 : Mm()));
        case 1:
            return a.Transformer(Rotation(MilieuBoite(boite), Mm()));
        case 2:
            return a.Transformer(Miroir(boite, Parmi(2) == 0 ? AxeMiroir::X : AxeMiroir::Y));
        default:
            const auto t = EchelleSaisie(boite, 1, 10 + static_cast<double>(Parmi(60)), "HD", true);
            t ? a.Transformer(*t) : a.Memoriser();
        }
    }

    std::mt19937 m_hasard;
};

struct Vu {
    std::vector<Sequence> sequences;
    Bloc bloc;
};

Vu Voir(const AtelierEssai& a) {
    return {a.sequences, a.bloc};
}

::testing::AssertionResult CommeVu(const AtelierEssai& a, const Vu& vu) {
    if (!essais::MemesBits(a.sequences, vu.sequences)) return ::testing::AssertionFailure() << "paths";
    if (a.bloc.BlocX != vu.bloc.BlocX || a.bloc.BlocY != vu.bloc.BlocY)
        return ::testing::AssertionFailure() << "block";
    return ::testing::AssertionSuccess();
}

std::size_t Position(const AtelierEssai& a) {
    return static_cast<std::size_t>(a.historique.NbTransf);
}

// etats[k]: what stood at position k + 1 before it was left.
void Noter(std::vector<Vu>& etats, const AtelierEssai& a) {
    etats.resize(Position(a));
    etats.back() = Voir(a);
}

} // namespace

class HistoriqueAuHasard : public ::testing::TestWithParam<unsigned> {};

TEST_P(HistoriqueAuHasard, DeuxMilleActionsSeDefontEtSeRefont) {
    BoitesEnregistrees boites;
    Ouvrier ouvrier(GetParam());
    AtelierEssai a = AvecContours(3, 900);
    a.sequences.push_back(Chemin({{0, 0}, {10, 5}, {14, -3}}));
    a.sequences[3].Points[1].Drapeaux = 3;
    std::vector<Vu> etats(1);
    for (int i = 0; i < 2000; ++i) {
        ouvrier.Choisir(a);
        const Vu avant = Voir(a);
        const std::size_t position = Position(a);
        ouvrier.Agir(a);
        etats.resize(position);
        etats.back() = avant;
        // A step that the window takes back had no effect.
        ASSERT_TRUE(Position(a) > position || essais::MemesBits(a.sequences, avant.sequences)) << i;
    }
    Noter(etats, a);
    ASSERT_GT(etats.size(), 1500U);
    for (std::size_t i = etats.size() - 1; i-- > 0;) {
        ASSERT_TRUE(a.Arriere()) << i;
        ASSERT_TRUE(CommeVu(a, etats[i])) << i;
    }
    EXPECT_FALSE(a.Arriere());
    for (std::size_t i = 1; i < etats.size(); ++i) {
        ASSERT_TRUE(a.Avant()) << i;
        ASSERT_TRUE(CommeVu(a, etats[i])) << i;
    }
    EXPECT_FALSE(a.Avant());
}

// Steps back and forward among the deeds: what was dropped is gone, what stands is exact.
TEST_P(HistoriqueAuHasard, AllerEtVenirParmiLesActions) {
    BoitesEnregistrees boites;
    Ouvrier ouvrier(GetParam() + 1000);
    AtelierEssai a = AvecContours(2, 400);
    std::vector<Vu> etats(1);
    etats[0] = Voir(a);
    for (int i = 0; i < 1000; ++i) {
        const std::size_t position = Position(a);
        switch (ouvrier.Parmi(4)) {
        case 0:
            ASSERT_EQ(a.Arriere(), position > 1) << i;
            ASSERT_TRUE(CommeVu(a, etats[std::max<std::size_t>(position, 2) - 2])) << i;
            break;
        case 1:
            ASSERT_EQ(a.Avant(), position < etats.size()) << i;
            ASSERT_TRUE(CommeVu(a, etats[std::min(position, etats.size() - 1)])) << i;
            break;
        default: {
            ouvrier.Choisir(a);
            const Vu avant = Voir(a);
            ouvrier.Agir(a);
            etats[position - 1] = avant;
            if (Position(a) > position) { // else the window took the step back
                etats.resize(position);
                etats.push_back(Voir(a));
            }
        }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Graines, HistoriqueAuHasard, ::testing::Values(1U, 2U, 20260721U));
