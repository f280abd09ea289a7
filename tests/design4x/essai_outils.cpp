// Tools under their control's name, with their undo snapshots.
#include "design4x/conception_cpx.h"
#include "design4x/projets_essai.h"
#include "outils/boites.h"

#include <gtest/gtest.h>

#include <set>

using namespace tessarel;
using essais::Projet;

namespace {

ConceptionCPX Session() {
    ConceptionCPX c;
    ChargerProjetCPX(c, Projet({{0, 0, 1}, {10, 5}, {20, 0}, {10, -5}}, {{0, 0}, {8, 4}, {16, 0}, {8, -4}}));
    return c;
}

bool Faire(ConceptionCPX& c, std::vector<std::string> termes) {
    std::string raison;
    const CommandeOutil commande = LireCommandeOutil(termes, raison);
    EXPECT_NE(commande.outil, nullptr) << raison;
    return commande.outil != nullptr &&
           AppliquerOutilCPX(c, *commande.outil, commande.index, commande.valeur);
}

std::string Raison(std::vector<std::string> termes) {
    std::string raison;
    EXPECT_EQ(LireCommandeOutil(termes, raison).outil, nullptr);
    return raison;
}

} // namespace

TEST(Outils, ChaqueControleUneFois) {
    std::set<std::string> noms;
    for (const OutilCPX& o : OutilsCPX()) {
        EXPECT_TRUE(noms.insert(o.controle).second) << o.controle;
        EXPECT_NE(o.appliquer, nullptr) << o.controle;
        EXPECT_EQ(TrouverOutilCPX(o.controle), &o);
    }
    EXPECT_EQ(TrouverOutilCPX("cmdInconnu"), nullptr);
}

TEST(Outils, UnOutilReussiLaisseUnEtat) {
    ConceptionCPX c = Session();
    EXPECT_EQ(c.historique.PositionUndo, 1);
    EXPECT_TRUE(Faire(c, {"txtDeplacer", "1", "2,5"}));
    EXPECT_EQ(c.projet.E.Points[0].Y, 2.5);
    EXPECT_EQ(c.historique.PositionUndo, 2);
    EXPECT_TRUE(Faire(c, {"cmdUndoCPX", "0"}));
    EXPECT_EQ(c.projet.E.Points[0].Y, 0);
    EXPECT_TRUE(Faire(c, {"cmdUndoCPX", "1"}));
    EXPECT_EQ(c.projet.E.Points[0].Y, 2.5);
    EXPECT_EQ(c.historique.entrees.size(), 2U);
}

TEST(Outils, UnOutilRefuseNEnLaissePas) {
    const essais::BoitesEnregistrees b;
    ConceptionCPX c = Session();
    EXPECT_FALSE(Faire(c, {"txtEcartementZ", "0"}));
    EXPECT_FALSE(Faire(c, {"cmdAligner"}));
    EXPECT_EQ(b.boites.size(), 2U);
    EXPECT_EQ(c.historique.PositionUndo, 1);
}

// Deliberate: two states for one change; one undo step goes back to the state before the last push, which is
// the same points again.
TEST(Outils, CeuxQuiOuvrentParUnEtatEnLaissentDeux) {
    ConceptionCPX c = Session();
    EXPECT_TRUE(Faire(c, {"cmdSelectionAuto", "1"}));
    EXPECT_EQ(c.historique.PositionUndo, 3);
    EXPECT_EQ(*c.historique.entrees[0].PointsE, *c.historique.entrees[1].PointsE);
    Faire(c, {"cmdCopier"});
    EXPECT_EQ(c.historique.PositionUndo, 4);
    const essais::BoitesEnregistrees b;
    EXPECT_TRUE(Faire(c, {"cmdColler"}));
    EXPECT_EQ(c.historique.PositionUndo, 6);
}

TEST(Outils, LeModeDeSelectionSert) {
    ConceptionCPX c = Session();
    EXPECT_TRUE(Faire(c, {"optSelection", "2"}));
    EXPECT_EQ(c.ModeSelection, 4);
    EXPECT_TRUE(Faire(c, {"cmdSelectAll", "1"}));
    EXPECT_EQ(c.projet.S.Points[3].Drapeaux, 4);
    EXPECT_TRUE(Faire(c, {"chkSelectionPointsCordes"}));
    EXPECT_EQ(c.ModeSelection, 32);
    EXPECT_EQ(c.historique.PositionUndo, 2);
}

TEST(Outils, LAnnulationRendLeModeDeSelection) {
    ConceptionCPX c = Session();
    Faire(c, {"txtDeplacer", "0", "1"}); // in the mode of the tools
    Faire(c, {"optSelection", "1"});
    Faire(c, {"cmdSelectAll", "1"});
    EXPECT_EQ(c.ModeSelection, DrapeauAlignement);
    EXPECT_TRUE(Faire(c, {"cmdUndoCPX", "0"}));
    EXPECT_EQ(c.ModeSelection, DrapeauOutil);
    EXPECT_TRUE(Faire(c, {"cmdUndoCPX", "1"}));
    EXPECT_EQ(c.ModeSelection, DrapeauAlignement);
}

TEST(Outils, LaMesureVaDansLaBarreDEtat) {
    ConceptionCPX c = Session();
    c.projet.S.Points[0].Drapeaux = 1;
    EXPECT_TRUE(Faire(c, {"cmdMesurerCPX"}));
    EXPECT_EQ(c.lblStatusBarCPX, "Mesure entre les deux points sélectionnés : 500.0mm");
}

TEST(Outils, LesChampsDuBloc) {
    ConceptionCPX c = Session();
    EXPECT_TRUE(Faire(c, {"txtEpaisseurBloc", "55.5"}));
    EXPECT_TRUE(Faire(c, {"txtMargeBF_S", "-2"}));
    EXPECT_EQ(c.projet.Epaisseur, 55.5F);
    EXPECT_EQ(c.projet.S.MargeBf, -2);
}

TEST(Commande, CeQuIlManqueOuCeQuiEstDeTrop) {
    EXPECT_EQ(Raison({"cmdInconnu"}), "Il n'y a pas d'outil nommé cmdInconnu.");
    EXPECT_EQ(Raison({}), "Il n'y a pas d'outil nommé .");
    EXPECT_EQ(Raison({"cmdDiedre"}), "cmdDiedre demande un indice.");
    EXPECT_EQ(Raison({"cmdDiedre", "5"}), "cmdDiedre : l'indice doit être un nombre de 0 à 4, et non 5.");
    EXPECT_EQ(Raison({"cmdDiedre", "1x"}), "cmdDiedre : l'indice doit être un nombre de 0 à 4, et non 1x.");
    EXPECT_EQ(Raison({"txtTourner"}), "txtTourner demande une valeur.");
    EXPECT_EQ(Raison({"cmdSupprimer", "3"}), "cmdSupprimer : 3 est de trop.");
    EXPECT_EQ(Raison({"cmdDupliquer", "0", "3"}), "cmdDupliquer : 3 est de trop.");
    EXPECT_EQ(Raison({"cmdDupliquer", "1"}), "cmdDupliquer demande une valeur.");
}

TEST(Commande, UneValeurQuiNEnEstPasUneALaBoiteDesChamps) {
    const essais::BoitesEnregistrees b;
    EXPECT_EQ(Raison({"txtTourner", "douze"}), "");
    ASSERT_EQ(b.boites.size(), 1U);
    EXPECT_EQ(b.boites[0].texte, "Veuillez entrer un nombre décimal.");
    EXPECT_EQ(b.boites[0].titre, "Erreur de saisie");
    EXPECT_EQ(b.boites[0].icone, IconeBoite::Critique);
}

TEST(NouveauProjet, DemandePuisVideAuxValeursParDefaut) {
    essais::BoitesEnregistrees b;
    b.reponses = {ReponseBoite::Non, ReponseBoite::Oui};
    ConceptionCPX c = Session();
    c.projet.Epaisseur = 77;
    EXPECT_FALSE(NouveauProjet4X(c));
    EXPECT_EQ(c.projet.Epaisseur, 77);
    EXPECT_TRUE(NouveauProjet4X(c));
    EXPECT_EQ(c.projet, ProjetCPX());
    EXPECT_FALSE(c.ProjetCharge);
    EXPECT_EQ(c.projet.Epaisseur, 40);
    EXPECT_EQ(c.projet.S.MargeBf, 10);
    EXPECT_EQ(c.projet.DistProfilDessousE, 10);
    ASSERT_EQ(b.boites.size(), 2U);
    EXPECT_EQ(b.boites[0].texte, "Vider l'espace de travail?");
    EXPECT_EQ(b.boites[0].titre, "Nouveau projet");
    EXPECT_TRUE(NouveauProjet4X(c)); // nothing loaded: no question
    EXPECT_EQ(b.boites.size(), 2U);
}

TEST(NouveauProjet, PourUneInsertionBlocEtEcartementRestent) {
    const essais::BoitesEnregistrees b;
    ConceptionCPX c = Session();
    c.projet.Epaisseur = 77;
    c.projet.S.MargeBa = 3;
    EXPECT_TRUE(NouveauProjet4X(c, true));
    EXPECT_TRUE(b.boites.empty());
    EXPECT_TRUE(c.projet.E.Points.empty());
    EXPECT_EQ(c.projet.Epaisseur, 77);
    EXPECT_EQ(c.projet.S.MargeBa, 3);
    EXPECT_EQ(c.projet.Ecartement, 500);
}
