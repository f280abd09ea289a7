// Synchronisation of two profiles: each rule of the walk on values worked out by hand.
#include "design4x/projets_essai.h"
#include "design4x/synchronisation.h"
#include "outils/boites.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

struct Trace {
    double X;
    double Y;
    int Drapeaux;
    friend bool operator==(const Trace&, const Trace&) = default;
};

std::ostream& operator<<(std::ostream& sortie, const Trace& t) {
    return sortie << '(' << t.X << ' ' << t.Y << ' ' << t.Drapeaux << ')';
}

std::vector<Trace> Traces(const std::vector<PointProfil>& points) {
    std::vector<Trace> traces;
    for (const PointProfil& p : points) traces.push_back({p.X, p.Y, p.Drapeaux});
    return traces;
}

using Liste = std::vector<Trace>;

} // namespace

// The tip is 8 long, the root 10: the tip's vertex at 2 stands at 2.5 on the root.
TEST(Synchronisation, UnSommetDuSaumonDonneUnPointALEmplanture) {
    ProjetCPX projet = Projet({{0, 0}, {10, 0}}, {{0, 0}, {2, 0, 1}, {8, 0}});
    EXPECT_EQ(SynchroniserProfils(projet), EtatSynchro::Faite);
    EXPECT_EQ(Traces(projet.E.Points), (Liste{{0, 0, 4}, {2.5, 0, 0}, {10, 0, 4}}));
    EXPECT_EQ(Traces(projet.S.Points), (Liste{{0, 0, 4}, {2, 0, 1}, {8, 0, 4}}));
}

TEST(Synchronisation, UnSommetDeLEmplantureDonneUnPointAuSaumon) {
    ProjetCPX projet = Projet({{0, 0}, {0, 5, 24}, {0, 10}}, {{7, 0}, {7, 4}});
    EXPECT_EQ(SynchroniserProfils(projet), EtatSynchro::Faite);
    EXPECT_EQ(Traces(projet.E.Points), (Liste{{0, 0, 4}, {0, 5, 24}, {0, 10, 4}}));
    EXPECT_EQ(Traces(projet.S.Points), (Liste{{7, 0, 4}, {7, 2, 0}, {7, 4, 4}}));
}

// 3 root segments (1, 2, 1) against 4 of the tip (half a millimetre each, twice that on the root): vertices
// at 1, 3 and at 1, 2, 3 of 4; the two that fall together are paired.
TEST(Synchronisation, LesSommetsDesDeuxCotesSontTousGardes) {
    ProjetCPX projet = Projet({{0, 0}, {1, 0}, {3, 0}, {4, 0}}, {{0, 9}, {0.5, 9}, {1, 9}, {1.5, 9}, {2, 9}});
    EXPECT_EQ(SynchroniserProfils(projet), EtatSynchro::Faite);
    EXPECT_EQ(Traces(projet.E.Points), (Liste{{0, 0, 4}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}, {4, 0, 4}}));
    EXPECT_EQ(Traces(projet.S.Points), (Liste{{0, 9, 4}, {0.5, 9, 0}, {1, 9, 0}, {1.5, 9, 0}, {2, 9, 4}}));
}

// The tip is 8 long with vertices at 1, 2 and 6; on the root of 9 they stand at 9/8 of that.
TEST(Synchronisation, PlusieursPointsSurUnLongSegmentRestentDansLOrdre) {
    ProjetCPX projet = Projet({{0, 0}, {9, 0}}, {{0, 0}, {0, 1}, {0, 2}, {0, 6}, {0, 8}});
    EXPECT_EQ(SynchroniserProfils(projet), EtatSynchro::Faite);
    EXPECT_EQ(Traces(projet.E.Points),
              (Liste{{0, 0, 4}, {1.125, 0, 0}, {2.25, 0, 0}, {6.75, 0, 0}, {9, 0, 4}}));
    EXPECT_EQ(projet.S.Points.size(), 5U);
}

// No vertex falls together: both ends, and every inner vertex of both sides.
TEST(Synchronisation, SansMarqueUneSeuleSectionEtAuPlusNePlusNsMoins2Points) {
    ProjetCPX projet = Projet({{0, 0}, {1, 0}, {2, 0}, {10, 0}}, {{0, 0}, {3, 0}, {6, 0}, {10, 0}});
    EXPECT_EQ(SynchroniserProfils(projet), EtatSynchro::Faite);
    EXPECT_EQ(projet.E.Points.size(), 4U + 4 - 2);
    EXPECT_EQ(projet.S.Points.size(), 4U + 4 - 2);
}

TEST(Synchronisation, ProfilsIdentiquesNeChangentPas) {
    const auto profil = {PointEssai{0, 0, 4}, {1, 2, 1}, {5, 2, 16}, {9, 1, 32}, {10, 0, 4}};
    ProjetCPX projet = Projet(profil, profil);
    EXPECT_EQ(SynchroniserProfils(projet), EtatSynchro::Faite);
    EXPECT_EQ(Traces(projet.E.Points), Traces(Points(profil)));
    EXPECT_EQ(Traces(projet.S.Points), Traces(Points(profil)));
}

TEST(Synchronisation, SommetsAMoinsDUnMillemeSontApparies) {
    ProjetCPX projet = Projet({{0, 0}, {5, 0}, {10, 0}}, {{0, 0}, {5.0005, 0}, {10, 0}});
    EXPECT_EQ(SynchroniserProfils(projet), EtatSynchro::Faite);
    EXPECT_EQ(Traces(projet.E.Points), (Liste{{0, 0, 4}, {5, 0, 0}, {10, 0, 4}}));
    EXPECT_EQ(Traces(projet.S.Points), (Liste{{0, 0, 4}, {5.0005, 0, 0}, {10, 0, 4}}));
}

TEST(Synchronisation, SommetsAPlusDUnMillemeRestentSepares) {
    ProjetCPX projet = Projet({{0, 0}, {5, 0}, {10, 0}}, {{0, 0}, {5.002, 0}, {10, 0}});
    EXPECT_EQ(SynchroniserProfils(projet), EtatSynchro::Faite);
    EXPECT_EQ(projet.E.Points.size(), 4U);
}

// Marks at 8 of 10 and at 1 of 5: the sections are 8 and 1, then 2 and 4; the root vertex at half of the
// first, the tip vertex at a quarter of the second.
TEST(Synchronisation, LesMarquesSeparentDesSections) {
    ProjetCPX projet = Projet({{0, 0}, {4, 0}, {8, 0, 5}, {10, 0}}, {{0, 0}, {1, 0, 4}, {2, 0}, {5, 0}});
    EXPECT_EQ(SynchroniserProfils(projet), EtatSynchro::Faite);
    EXPECT_EQ(Traces(projet.E.Points), (Liste{{0, 0, 4}, {4, 0, 0}, {8, 0, 5}, {8.5, 0, 0}, {10, 0, 4}}));
    EXPECT_EQ(Traces(projet.S.Points), (Liste{{0, 0, 4}, {0.5, 0, 0}, {1, 0, 4}, {2, 0, 0}, {5, 0, 4}}));
}

// A third of the way from 0.1 on is held in 32 bits, the vertex beside it in 64.
TEST(Synchronisation, UnPointInsereEstEnSimplePrecision) {
    ProjetCPX projet = Projet({{0.1, 7.3}, {1.1, 8.3}}, {{0, 0}, {0.1, 0}, {0.3, 0}});
    EXPECT_EQ(SynchroniserProfils(projet), EtatSynchro::Faite);
    const PointProfil& p = projet.E.Points[1];
    EXPECT_EQ(p.X, static_cast<double>(static_cast<float>(p.X)));
    EXPECT_EQ(p.Y, static_cast<double>(static_cast<float>(p.Y)));
    EXPECT_NEAR(p.X, 0.1 + 1.0 / 3, 1e-6);
    EXPECT_NEAR(p.Y, 7.3 + 1.0 / 3, 1e-6);
    EXPECT_EQ(projet.S.Points[1].X, 0.1);
}

TEST(Synchronisation, MarquesDuMemeCoteConfonduesAuSaumon) {
    ProjetCPX projet = Projet({{0, 0}, {5, 0, 4}, {10, 0}}, {{0, 0}, {0, 0, 4}, {10, 0}});
    EXPECT_EQ(SynchroniserProfils(projet), EtatSynchro::PointsConfondus);
    EXPECT_EQ(Traces(projet.E.Points), (Liste{{0, 0, 4}, {5, 0, 4}, {10, 0, 4}}));
    EXPECT_EQ(Traces(projet.S.Points), (Liste{{0, 0, 4}, {0, 0, 4}, {10, 0, 4}}));
}

TEST(Synchronisation, MarquesDuMemeCoteConfonduesALEmplanturePassent) {
    ProjetCPX projet = Projet({{0, 0}, {0, 0, 4}, {10, 0}}, {{0, 0}, {3, 0, 4}, {10, 0}});
    EXPECT_EQ(SynchroniserProfils(projet), EtatSynchro::Faite);
    EXPECT_EQ(Traces(projet.E.Points), (Liste{{0, 0, 4}, {0, 0, 4}, {10, 0, 4}}));
    EXPECT_EQ(Traces(projet.S.Points), (Liste{{0, 0, 4}, {3, 0, 4}, {10, 0, 4}}));
}

TEST(Synchronisation, SectionSansLongueurContrePlusieursSegmentsRefusee) {
    ProjetCPX projet = Projet({{0, 0}, {0, 0, 4}, {10, 0}}, {{0, 0}, {1, 0}, {3, 0, 4}, {10, 0}});
    const std::vector<PointProfil> saumon = Points({{0, 0, 4}, {1, 0}, {3, 0, 4}, {10, 0, 4}});
    EXPECT_EQ(SynchroniserProfils(projet), EtatSynchro::PointsConfondus);
    EXPECT_EQ(Traces(projet.E.Points), (Liste{{0, 0, 4}, {0, 0, 4}, {10, 0, 4}}));
    EXPECT_EQ(Traces(projet.S.Points), Traces(saumon));
}

// The tip's last vertex is met together with the root's end, and there is nothing left to pair its end with.
TEST(Synchronisation, DernierSegmentSousUnMillemeRefuse) {
    ProjetCPX projet = Projet({{0, 0}, {10, 0}}, {{0, 0}, {9.9995, 0}, {10, 0}});
    EXPECT_EQ(SynchroniserProfils(projet), EtatSynchro::PointsConfondus);
    EXPECT_EQ(projet.E.Points.size(), 2U);
    EXPECT_EQ(projet.S.Points.size(), 3U);
}

// Doubled points inside a section are vertices like others: the second one is a segment without length.
TEST(Synchronisation, PointsDoublesGardes) {
    ProjetCPX projet = Projet({{0, 0}, {5, 0}, {5, 0}, {10, 0}}, {{0, 0}, {10, 0}});
    EXPECT_EQ(SynchroniserProfils(projet), EtatSynchro::Faite);
    EXPECT_EQ(Traces(projet.E.Points), (Liste{{0, 0, 4}, {5, 0, 0}, {5, 0, 0}, {10, 0, 4}}));
    EXPECT_EQ(Traces(projet.S.Points), (Liste{{0, 0, 4}, {5, 0, 0}, {5, 0, 0}, {10, 0, 4}}));
}

TEST(Synchronisation, UnSeulPointDeChaqueCote) {
    ProjetCPX projet = Projet({{1, 2, 1}}, {{3, 4, 2}});
    EXPECT_EQ(SynchroniserProfils(projet), EtatSynchro::Faite);
    EXPECT_EQ(Traces(projet.E.Points), (Liste{{1, 2, 5}}));
    EXPECT_EQ(Traces(projet.S.Points), (Liste{{3, 4, 6}}));
}

TEST(Synchronisation, UnProfilVideNAPasDeMarque) {
    ProjetCPX projet = Projet({{0, 0}, {1, 0}}, {});
    EXPECT_EQ(SynchroniserProfils(projet), EtatSynchro::MarquesInegales);
    EXPECT_EQ(Traces(projet.E.Points), (Liste{{0, 0, 4}, {1, 0, 4}}));
    projet = ProjetCPX{};
    EXPECT_EQ(SynchroniserProfils(projet), EtatSynchro::ProfilsAbsents);
}

TEST(Synchronisation, SeulsLesCoordonneesEtLesDrapeauxPassent) {
    ProjetCPX projet = Projet({{0, 0}, {10, 0}}, {{0, 0}, {10, 0}});
    projet.E.Points[1].Vitesse = 3;
    EXPECT_EQ(projet.E.Points[1].Z, 250);
    EXPECT_EQ(SynchroniserProfils(projet), EtatSynchro::Faite);
    EXPECT_EQ(projet.E.Points[1].Z, 0);
    EXPECT_EQ(projet.E.Points[1].Vitesse, 0);
}

TEST(CmdSynchroOptimale, DemandePuisDitQueCEstFait) {
    ProjetCPX projet = Projet({{0, 0}, {10, 0}}, {{0, 0}, {2, 0}, {8, 0}});
    BoitesEnregistrees boites;
    EXPECT_TRUE(cmdSynchroOptimale(projet));
    ASSERT_EQ(boites.boites.size(), 2U);
    EXPECT_EQ(boites.boites[0].texte, "Effectuer un nettoyage synchrone après la synchronisation?");
    EXPECT_EQ(boites.boites[0].titre, "Points alignés après synchronisation");
    EXPECT_EQ(boites.boites[0].icone, IconeBoite::Question);
    EXPECT_EQ(boites.boites[0].boutons, BoutonsBoite::OuiNon);
    EXPECT_EQ(boites.boites[1].titre, "Synchronisation effectuée");
    EXPECT_EQ(boites.boites[1].icone, IconeBoite::Information);
    EXPECT_EQ(boites.boites[1].texte,
              "Veuillez contrôler que la synchronisation s'est faite avec des profils qui tournaient dans le "
              "bon sens\r\n"
              "et dont le premier point était bien placé. Pour cela il suffit de faire bouger le fil avec un "
              "ascenseur d'une\r\n"
              "des listes de points.");
    EXPECT_EQ(projet.E.Points.size(), 3U);
    EXPECT_EQ(projet.Options.optSelection, (std::array<bool, 3>{false, false, true}));
}

// Both sides are straight: the synchronous cleaning leaves the two ends.
TEST(CmdSynchroOptimale, NettoieEnsuiteQuandOnLeDemande) {
    ProjetCPX projet = Projet({{0, 0}, {10, 0}}, {{0, 0}, {2, 0}, {8, 0}});
    BoitesEnregistrees boites;
    boites.reponses = {ReponseBoite::Oui};
    EXPECT_TRUE(cmdSynchroOptimale(projet));
    EXPECT_EQ(Traces(projet.E.Points), (Liste{{0, 0, 4}, {10, 0, 4}}));
    EXPECT_EQ(Traces(projet.S.Points), (Liste{{0, 0, 4}, {8, 0, 4}}));
    EXPECT_EQ(boites.boites.size(), 2U);
}

TEST(CmdSynchroOptimale, NombresDeMarquesDifferents) {
    ProjetCPX projet = Projet({{0, 0}, {5, 0, 4}, {10, 0}}, {{0, 0}, {8, 0}});
    BoitesEnregistrees boites;
    boites.reponses = {ReponseBoite::Oui};
    EXPECT_FALSE(cmdSynchroOptimale(projet));
    ASSERT_EQ(boites.boites.size(), 2U);
    EXPECT_EQ(boites.boites[1].texte,
              "Il n'y a pas le même nombre de points de synchronisation à l'emplanture et au saumon.");
    EXPECT_EQ(boites.boites[1].titre, "Synchronisation impossible");
    EXPECT_EQ(boites.boites[1].icone, IconeBoite::Critique);
    EXPECT_EQ(Traces(projet.E.Points), (Liste{{0, 0, 4}, {5, 0, 4}, {10, 0, 4}}));
    EXPECT_EQ(projet.Options.optSelection, (std::array<bool, 3>{false, false, true}));
}

// The aligned points stay: a run that fails does not clean, whatever was answered.
TEST(CmdSynchroOptimale, UnEchecNeNettoiePas) {
    ProjetCPX projet = Projet({{0, 0}, {5, 0}, {7, 0, 4}, {10, 0}}, {{0, 0}, {0, 0, 4}, {3, 0}, {10, 0}});
    BoitesEnregistrees boites;
    boites.reponses = {ReponseBoite::Oui};
    EXPECT_FALSE(cmdSynchroOptimale(projet));
    ASSERT_EQ(boites.boites.size(), 2U);
    EXPECT_EQ(boites.boites[1].texte,
              "Erreur lors de la procédure de synchronisation.\r\n"
              "Il y a probablement deux points de synchronisation qui se suivent et qui sont confondus, ce "
              "n'est pas possible.");
    EXPECT_EQ(boites.boites[1].titre, "Opération impossible");
    EXPECT_EQ(boites.boites[1].icone, IconeBoite::Critique);
    EXPECT_EQ(projet.E.Points.size(), 4U);
    EXPECT_EQ(projet.S.Points.size(), 4U);
}

TEST(CmdSynchroOptimale, SansProfilLeDit) {
    ProjetCPX projet;
    BoitesEnregistrees boites;
    EXPECT_FALSE(cmdSynchroOptimale(projet));
    ASSERT_EQ(boites.boites.size(), 2U);
    EXPECT_EQ(boites.boites[1].texte, "Il faut d'abord charger un profil d'emplanture.");
}

TEST(CmdSynchroOptimale, LesMesuresSontRefaites) {
    ProjetCPX projet = Projet({{0, 0}, {10, 0}}, {{0, 0}, {2, 0}, {8, 0}});
    projet.E.Corde = 0;
    BoitesEnregistrees boites;
    EXPECT_TRUE(cmdSynchroOptimale(projet));
    EXPECT_EQ(projet.E.Corde, 10);
}
