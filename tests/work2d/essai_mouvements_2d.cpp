// Moves and heat by hand in 2D on the virtual machine: the way back, the storage position, arrows.
#include "work2d/mouvements_2d.h"

#include "link/chauffe_manuelle.h"
#include "machine/table_machine.h"

#include "work2d/poste_decoupe.h"

#include <gtest/gtest.h>

using namespace tessarel;
using namespace tessarel::essais;
using namespace tessarel::simulateur;
using namespace std::chrono_literals;

TEST(Mouvements2D, RetourEtRangement) {
    Poste poste(20ms, 8, "QT2d v12");
    poste.boite.PreparerMachine([] {
        ChargerMachine("QT2d v12");
        return TableINI;
    }());
    const SuiviMarche suivi = SuiviDeMarche(poste.suivi);
    poste.boite.boite.PoserChariots({30 * 1600, 240 * 1600, 0, 240 * 1600});
    poste.boites.reponses = {ReponseBoite::Non};
    EXPECT_EQ(RetourOrigine(suivi), FinProcedure::Declinee);
    EXPECT_EQ(poste.boites.boites.back().texte, "Exécuter la procédure de retour à la position de repos ?");
    poste.boites.reponses = {ReponseBoite::Oui};
    EXPECT_EQ(RetourOrigine(suivi), FinProcedure::Faite);
    EXPECT_EQ(poste.DernierTitre(), "Retour effectué");
    poste.boites.reponses = {ReponseBoite::Oui};
    EXPECT_EQ(RangerLePortique(suivi), FinProcedure::Faite);
    EXPECT_EQ(poste.boites.boites.back().texte, "Position de rangement atteinte.");
    EXPECT_EQ(poste.DernierTitre(), "Mouvement effectué");
    // (150, 0), less what is left of the back-off steps.
    EXPECT_NEAR(poste.Position()[AxeX1], 150 * 1600, 320);
    EXPECT_NEAR(poste.Position()[AxeY1], 0, 320);
}

TEST(Mouvements2D, UneAutreTableDansLInterfaceOffreLesParametres) {
    Poste poste(20ms, 8, "QT2d v12");
    const SuiviMarche suivi = SuiviDeMarche(poste.suivi);
    poste.boite.boite.EcrireMemoires({});
    const PasAxes depart = poste.Position();
    poste.boites.reponses = {ReponseBoite::Oui};
    EXPECT_EQ(RetourOrigine(suivi), FinProcedure::OuvrirParametrage);
    poste.boites.reponses = {ReponseBoite::Oui};
    EXPECT_EQ(RangerLePortique(suivi), FinProcedure::OuvrirParametrage);
    poste.boites.reponses = {ReponseBoite::Non};
    EXPECT_EQ(RetourOrigine(suivi), FinProcedure::Refusee);
    EXPECT_EQ(poste.Position(), depart);
}

TEST(Mouvements2D, SansOrigineAutomatiqueLeRetourEstRefuse) {
    Poste poste;
    poste.boite.PreparerMachine([] {
        ChargerMachine("(Defaut)");
        return TableINI;
    }());
    EXPECT_EQ(RetourOrigine(SuiviDeMarche(poste.suivi)), FinProcedure::Refusee);
    EXPECT_EQ(poste.boites.boites.back().texte,
              "Les paramètres de la machine ne permettent pas le retour automatique");
}

TEST(Mouvements2D, FlechesEtChauffe) {
    Poste poste;
    const SuiviMarche suivi = SuiviDeMarche(poste.suivi);
    EXPECT_EQ(DeplacerManuellement(TableINI, {1, 0, 1, 0}, 4, suivi), FinProcedure::Faite);
    EXPECT_EQ(poste.Position(), (PasAxes{320, 0, 320, 0}));
    EXPECT_EQ(DeplacerManuellement(TableINI, {1, 0, 1, 0}, 400, suivi), FinProcedure::Refusee);
    EXPECT_TRUE(ChauffeManuellePermise());
    ChauffeManuelle fil;
    EXPECT_TRUE(AllumerFil(fil, 50, {}));
    EXPECT_EQ(poste.boite.boite.Etat().pwmCommande, 127); // 50 x 2.55 falls just short of the half
    poste.boite.boite.FixerCommutateurs({.chauffeManu = true});
    poste.boites.reponses = {ReponseBoite::Non};
    EXPECT_FALSE(ChauffeManuellePermise());
    EXPECT_EQ(poste.DernierTitre(), "Attention à la position des interrupteurs");
    EXPECT_FALSE(EteindreFil(fil, {})); // the knob heats on
    poste.FilFroidOuDit();
    poste.boite.boite.FixerCommutateurs({});
    EXPECT_TRUE(EteindreFil(fil, {}));
}
