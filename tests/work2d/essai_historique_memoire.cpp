// A hundred steps over 100 000 points: what the states take, what a single step takes while it runs, and that
// all of it comes back bit by bit. Counted on the heap, not only by the program's own reckoning.
#include "atelier_essai.h"
#include "compte_memoire.h"
#include "outils/boites.h"

#include <functional>
#include <random>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

constexpr std::size_t PointsEnTout = 100000;
constexpr std::size_t Pas = 100;
constexpr std::size_t Limite = std::size_t{64} << 20U;
constexpr std::size_t OctetsProjet = PointsEnTout * sizeof(PointProfil);

using Action = std::function<void(AtelierEssai&, std::size_t pas)>;

// An inserted point may make a path of 100 000 take twice its room while it grows: that is the deed's own.
constexpr std::size_t PicPermis = 3 * OctetsProjet;

void FaireCentPas(AtelierEssai& a, const Action& action) {
    a.Memoriser(); // the first state is the project once more, not a step
    OublierMemorisation(a.historique, a.sequences, a.bloc);
    for (std::size_t i = 0; i < Pas; ++i) {
        RemettrePic();
        const std::size_t avant = OctetsPris();
        action(a, i);
        EXPECT_LT(PicOctetsPris() - avant, PicPermis) << "step " << i;
    }
    a.Memoriser(); // the last state too
    OublierMemorisation(a.historique, a.sequences, a.bloc);
}

void TenirEnMemoire(AtelierEssai a, const Action& action) {
    const std::size_t depart = OctetsPris();
    const std::vector<Sequence> premier = a.sequences;
    FaireCentPas(a, action);
    const std::vector<Sequence> dernier = a.sequences;
    // The two copies of the project are the test's own.
    const std::size_t pris = OctetsPris() - depart - 2 * OctetsProjet;
    const std::size_t comptes = MemoireHistorique(a.historique);
    ::testing::Test::RecordProperty("octets", std::to_string(comptes));
    ::testing::Test::RecordProperty("tas", std::to_string(pris));
    EXPECT_LT(pris, Limite);
    EXPECT_LT(comptes, Limite);
    EXPECT_GE(a.historique.PileTransformations.size(), Pas);
    std::size_t retours = 0;
    while (a.Arriere()) ++retours;
    EXPECT_EQ(retours, Pas);
    EXPECT_TRUE(essais::MemesBits(a.sequences, premier));
    while (a.Avant()) {
    }
    EXPECT_TRUE(essais::MemesBits(a.sequences, dernier));
    // Going to and fro leaves nothing behind, in the paths neither.
    EXPECT_LT(OctetsPris() - depart - 2 * OctetsProjet, Limite);
    EXPECT_EQ(MemoireHistorique(a.historique), comptes);
}

// A block that grows by a little at each step.
void Ajuster(AtelierEssai& a, std::size_t pas) {
    a.Placer({100 + static_cast<float>(pas) * 0.7F, 80 + static_cast<float>(pas) * 0.9F},
             {true, true, true, 5, 5});
}

class AuHasard {
public:
    explicit AuHasard(unsigned graine) : m_hasard(graine) {}
    std::size_t Parmi(std::size_t n) { return static_cast<std::size_t>(m_hasard() % n); }
    std::size_t LeplusLong(const AtelierEssai& a) {
        const auto plusLong = std::max_element(
            a.sequences.begin(), a.sequences.end(),
            [](const Sequence& s, const Sequence& t) { return s.Points.size() < t.Points.size(); });
        return static_cast<std::size_t>(plusLong - a.sequences.begin());
    }
    void Inserer(AtelierEssai& a) {
        const std::size_t rang = Parmi(a.sequences.size());
        const std::size_t segment = Parmi(a.sequences[rang].Points.size() - 1);
        const PointProfil& p = a.sequences[rang].Points[segment];
        a.Inserer(rang, segment, {p.X + 0.01, p.Y + 0.02});
    }
    void Couper(AtelierEssai& a) {
        const std::size_t rang = LeplusLong(a);
        a.Couper(rang, 1 + Parmi(a.sequences[rang].Points.size() - 2));
    }
    void Melange(AtelierEssai& a, std::size_t pas) {
        const Sequence boite = CalculerBoiteSelection(a.sequences);
        switch (pas % 8) {
        case 0:
            return Inserer(a);
        case 1:
            return Ajuster(a, pas);
        case 2:
            return Couper(a);
        case 3:
            return a.Transformer(Rotation(MilieuBoite(boite), 7.3));
        case 4:
            return a.Inverser();
        case 5:
            return a.Transformer(Miroir(boite, pas % 16 < 8 ? AxeMiroir::X : AxeMiroir::Y));
        case 6:
            return a.Transformer(Deplacement(0.1, 1.0 / 3));
        default:
            return a.Retirer(LeplusLong(a), Parmi(1000));
        }
    }

private:
    std::mt19937 m_hasard;
};

void Tourner(AtelierEssai& a, std::size_t pas) {
    const Sequence boite = CalculerBoiteSelection(a.sequences);
    switch (pas % 4) {
    case 0:
        return a.Transformer(Deplacement(0.1 * static_cast<double>(pas + 1), 1.0 / 3));
    case 1:
        return a.Transformer(Rotation(MilieuBoite(boite), 7));
    case 2:
        return a.Transformer(*EchelleSaisie(boite, 0, boite.Largeur * 1.01, "BG", true));
    default:
        return a.Transformer(Miroir(boite, AxeMiroir::X));
    }
}

class HistoriqueMemoire : public ::testing::Test {
    BoitesEnregistrees m_boites;
};

} // namespace

TEST_F(HistoriqueMemoire, CentTransformationsDeCentTraces) {
    TenirEnMemoire(AvecContours(100, PointsEnTout), Tourner);
}

TEST_F(HistoriqueMemoire, CentTransformationsDeDixMilleTraces) {
    TenirEnMemoire(AvecContours(10000, PointsEnTout), Tourner);
}

TEST_F(HistoriqueMemoire, CentAjustementsAuBlocDeCentTraces) {
    TenirEnMemoire(AvecContours(100, PointsEnTout), Ajuster);
}

TEST_F(HistoriqueMemoire, CentAjustementsAuBlocDUnTrace) {
    TenirEnMemoire(AvecContours(1, PointsEnTout), Ajuster);
}

TEST_F(HistoriqueMemoire, CentAjustementsAuBlocDeTracesDeDeuxPoints) {
    TenirEnMemoire(AvecContours(PointsEnTout / 2, PointsEnTout), Ajuster);
}

TEST_F(HistoriqueMemoire, CentInsertionsDansUnTrace) {
    AuHasard hasard(5);
    TenirEnMemoire(AvecContours(1, PointsEnTout), [&](AtelierEssai& a, std::size_t) { hasard.Inserer(a); });
}

TEST_F(HistoriqueMemoire, CentCoupesDansUnTrace) {
    AuHasard hasard(6);
    TenirEnMemoire(AvecContours(1, PointsEnTout), [&](AtelierEssai& a, std::size_t) { hasard.Couper(a); });
}

TEST_F(HistoriqueMemoire, CentCoupesPresDuDebut) {
    TenirEnMemoire(AvecContours(1, PointsEnTout),
                   [](AtelierEssai& a, std::size_t) { a.Couper(a.sequences.size() - 1, 2); });
}

TEST_F(HistoriqueMemoire, CentSommetsRetires) {
    AuHasard hasard(7);
    TenirEnMemoire(AvecContours(1, PointsEnTout), [&](AtelierEssai& a, std::size_t) {
        a.Retirer(0, hasard.Parmi(a.sequences[0].Points.size()));
    });
}

TEST_F(HistoriqueMemoire, CentInversions) {
    for (const std::size_t traces : {1U, 100U, 10000U}) {
        AtelierEssai a = AvecContours(traces, PointsEnTout);
        TenirEnMemoire(a, [](AtelierEssai& b, std::size_t) { b.Inverser(); });
    }
}

TEST_F(HistoriqueMemoire, CentPasDeToutesSortesDansUnTrace) {
    AuHasard hasard(8);
    TenirEnMemoire(AvecContours(1, PointsEnTout),
                   [&](AtelierEssai& a, std::size_t pas) { hasard.Melange(a, pas); });
}

TEST_F(HistoriqueMemoire, CentPasDeToutesSortesDansCentTraces) {
    AuHasard hasard(9);
    TenirEnMemoire(AvecContours(100, PointsEnTout),
                   [&](AtelierEssai& a, std::size_t pas) { hasard.Melange(a, pas); });
}

// Hardly any point, but as many lengths as paths in each state.
TEST_F(HistoriqueMemoire, CentInsertionsParmiDesTracesDeDeuxPoints) {
    AuHasard hasard(12);
    TenirEnMemoire(AvecContours(PointsEnTout / 2, PointsEnTout),
                   [&](AtelierEssai& a, std::size_t) { hasard.Inserer(a); });
}

// After a dozen steps hardly two paths have the same past: naming each would cost more than the points.
TEST_F(HistoriqueMemoire, CentMouvementsDeLaMoitieDeDixMilleTraces) {
    std::mt19937 hasard(13);
    TenirEnMemoire(AvecContours(10000, PointsEnTout), [&](AtelierEssai& a, std::size_t) {
        a.Transformer(Rotation({3, 4}, 5));
        for (Sequence& s : a.sequences) s.Selection = static_cast<std::uint8_t>(hasard() % 2);
    });
}

// One path of a thousand is moved, duplicated, deleted; the others are only there.
TEST_F(HistoriqueMemoire, CentPasSurUnTraceParmiMille) {
    AuHasard hasard(10);
    TenirEnMemoire(AvecContours(1000, PointsEnTout), [&](AtelierEssai& a, std::size_t pas) {
        const auto agir = {&AtelierEssai::Inverser, &AtelierEssai::Dupliquer, &AtelierEssai::Supprimer};
        (a.*agir.begin()[pas % 3])();
        const std::size_t choix[] = {hasard.Parmi(a.sequences.size())};
        Selectionner(a.sequences, choix, ModeSelection::Seule);
    });
}

// After each step back a new step: the state gone back to is no new one.
TEST_F(HistoriqueMemoire, CentPasRefaitsApresUnRetour) {
    AtelierEssai a = AvecContours(1, PointsEnTout);
    a.Transformer(Deplacement(1, 0));
    a.Transformer(Deplacement(0, 1));
    const std::size_t depart = MemoireHistorique(a.historique);
    for (int i = 0; i < 100; ++i) {
        a.Transformer(Deplacement(0.5, 0.25));
        a.Transformer(Deplacement(0.1, 0.2));
        a.Arriere();
    }
    EXPECT_LT(MemoireHistorique(a.historique),
              depart + 100 / ProfondeurMaxi * PointsEnTout * sizeof(PointDessin) * 3 / 2);
}

// What the program says of its memory is what the heap says.
TEST_F(HistoriqueMemoire, LeCompteDesEtatsEstCeluiDuTas) {
    AtelierEssai a = AvecContours(10, 20000);
    const std::size_t depart = OctetsPris();
    AuHasard hasard(11);
    const std::size_t projet = a.sequences[0].Points.capacity();
    for (std::size_t i = 0; i < 40; ++i) a.Transformer(Rotation({3, 4}, 1));
    a.Memoriser();
    EXPECT_EQ(a.sequences[0].Points.capacity(), projet);
    const double tas = static_cast<double>(OctetsPris() - depart);
    EXPECT_NEAR(static_cast<double>(MemoireHistorique(a.historique)) / tas, 1, 0.03);
}
