// Typed and automatic positions of the block, its memo, and the state of the window's commands.
#include "cut4x/controle4x.h"
#include "cut4x/etat_fenetre4x.h"
#include "cut4x/position_bloc4x.h"

#include "cut4x/outils_d4x.h"

using namespace tessarel;
using namespace tessarel::essais;

TEST(Position4x, SaisieDesDeuxDistances) {
    Poste p;
    SaisirZ1(120.5, p.projet, p.table, p.parametres);
    EXPECT_EQ(p.parametres.TypePositionZ, AlignementZ::Saisi);
    EXPECT_EQ(p.parametres.OffsetBlocZ, 120.5F);
    EXPECT_EQ(p.parametres.ZSaumon, 220.5F);
    EXPECT_EQ(DistanceZ2(p.projet, p.table, p.parametres), 179.5);
    SaisirZ2(100, p.projet, p.table, p.parametres);
    EXPECT_EQ(p.parametres.OffsetBlocZ, 200);
    EXPECT_EQ(p.parametres.ZEmplanture, 800);
}

TEST(Position4x, AuDelaDuPlateauEstRameneAvecSaBoite) {
    BoitesEnregistrees boites;
    Poste p;
    SaisirZ1(300, p.projet, p.table, p.parametres);
    EXPECT_TRUE(boites.boites.empty());
    SaisirZ1(300.5, p.projet, p.table, p.parametres);
    EXPECT_EQ(p.parametres.OffsetBlocZ, 300);
    SaisirZ2(301, p.projet, p.table, p.parametres);
    EXPECT_EQ(p.parametres.OffsetBlocZ, 0);
    ASSERT_EQ(boites.boites.size(), 2U);
    EXPECT_EQ(boites.boites[0].texte, "Le positionnement du bloc en Z1=300.5mm n'est pas possible, cela "
                                      "dépasse la largeur du plateau.\r\n"
                                      "La valeur sera limitéé au maximum possible.");
    EXPECT_EQ(boites.boites[1].texte.substr(0, 43), "Le positionnement du bloc en Z2=301mm n'est");
}

TEST(Position4x, ArriveeAvecUnBlocQuiDepasse) {
    BoitesEnregistrees boites;
    Poste p;
    p.parametres.TypePositionZ = AlignementZ::Saisi;
    p.parametres.OffsetBlocZ = 300;
    VerifierPositionZ(p.projet, p.table, p.parametres);
    EXPECT_TRUE(boites.boites.empty());
    EXPECT_EQ(p.parametres.TypePositionZ, AlignementZ::Saisi);
    p.parametres.OffsetBlocZ = 310;
    VerifierPositionZ(p.projet, p.table, p.parametres);
    EXPECT_EQ(p.parametres.TypePositionZ, AlignementZ::Bord2);
    EXPECT_EQ(p.parametres.OffsetBlocZ, 300);
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].texte,
              "Le positionnement du bloc en Z1=310mm n'est pas possible, la largeur de la table est "
              "dépassée.\r\nL'alignement au côté 2 sera sélectionné à la place.");
    EXPECT_EQ(boites.boites[0].titre, "Paramètre de position en Z");
}

TEST(Position4x, AutoPartDeDixEtZeroQuandRienNeDepasse) {
    Poste p;
    p.projet = Projet({{0, 0}, {100, 10}, {0, -5}}, {{0, 0}, {100, 10}, {0, -5}});
    p.parametres.OffsetBlocX = 77;
    p.parametres.OffsetBlocY = 9;
    p.Calculer();
    const ParametresDecoupe4axes trouves = PositionAutomatiqueXY(p.Contexte(), p.decoupe);
    EXPECT_EQ(trouves.OffsetBlocX, 10);
    EXPECT_EQ(trouves.OffsetBlocY, 0);
    EXPECT_NEAR(p.decoupe.blocE.Xbf, 10, 1e-9);
}

TEST(Position4x, AutoRemonteDeLEntierQuiManque) {
    // Sweep and dihedral: the carriage beyond the root runs left of the table and below it.
    Poste p;
    p.projet = Projet({{0, 0}, {100, 1}, {0, -1}}, {{60, 20}, {120, 21}, {60, 19}});
    p.parametres.CoteDecalage = CoteDecalageD4X::Aucun;
    p.Calculer();
    const ParametresDecoupe4axes trouves = PositionAutomatiqueXY(p.Contexte(), p.decoupe);
    // P2 = S + 1.8 (E - S). At X 10, Y 0 the approach stops at 5 before the root and 65 before the tip: 65 -
    // 108 = -43. The foot is 11 under the root's zero: the last points are at 10 and 30, 30 - 36 = -6.
    EXPECT_EQ(trouves.OffsetBlocX, 53);
    EXPECT_EQ(trouves.OffsetBlocY, 6);
    const BornesD4X bornes = LimitesSequencesD4X(p.decoupe.PaireChariots);
    EXPECT_NEAR(bornes.Xmin, 0, 1e-9);
    EXPECT_NEAR(bornes.Ymin, 0, 1e-9);
}

TEST(Position4x, PlacementAutoEnZEgaliseLesHauteurs) {
    // From (10, 10) to 40 at the root and 20 at the tip: carriage 1 ranges over |6 - k / 25|, carriage 2 over
    // |46 - k / 25|, equal at k = 650. That it lies beyond the plateau is for the typing to say.
    Poste p;
    p.parametres.CoteDecalage = CoteDecalageD4X::Aucun;
    p.projet = Projet({{0, 0}, {100, 30}}, {{0, 0}, {100, 10}});
    p.Calculer();
    EXPECT_EQ(PlacementAutoBlocZ(p.Contexte(), p.decoupe), 650);
    // The same on both sides: every position is as good, the first is taken.
    p.projet = Projet({{0, 0}, {100, 30}}, {{0, 0}, {100, 30}});
    p.Calculer();
    EXPECT_EQ(PlacementAutoBlocZ(p.Contexte(), p.decoupe), 0);
    // Crossed tapers: the root is flat where the tip is high, |10 - ...| has its zero inside.
    p.projet = Projet({{0, 0}, {50, 20}, {100, 0}}, {{0, 0}, {50, 0}, {100, 20}});
    p.Calculer();
    // At k: y1 of the three points 0, 20 (-a), 20 (1 + a) with a = ZS / 500; y2: 0, 20 (1 + b), -20 b with b
    // = (500 - ZS) / 500. Ranges 20 (1 + 2a), 20 (1 + 2b): equal for ZS = 250, k = 150.
    EXPECT_EQ(PlacementAutoBlocZ(p.Contexte(), p.decoupe), 150);
}

TEST(Position4x, MemoDuBloc) {
    Poste p;
    p.Calculer();
    EXPECT_EQ(TexteMemoBloc(p.decoupe),
              "Largeur (écartement) = 500.0 mm\r\nEpaisseur = 40.0 mm\r\nLongueur du côté 1 = 80.0 mm\r\n"
              "Longueur du côté 2 = 120.0 mm\r\nFlèche du côté 1 = 20.0 mm\r\nFlèche du côté 2 = 0.0 mm\r\n"
              "Longueur totale avant dressage = 120.0 mm\r\n"
              "(Les côtés 1 et 2 sont indiqués sur la représentation graphique.)");
}

TEST(EtatFenetre4x, SansProjetSeuleLaGuillotineEtLaMatiere) {
    const ParametresDecoupe4axes p;
    const EtatCommandesD4X etat = TableDesCommandes(false, p, false);
    EXPECT_TRUE(etat.guillotine);
    EXPECT_TRUE(etat.matiere);
    EXPECT_FALSE(etat.decouper);
    EXPECT_FALSE(etat.entree);
    EXPECT_FALSE(etat.dressage);
}

TEST(EtatFenetre4x, AvecProjetTout) {
    ParametresDecoupe4axes p;
    EtatCommandesD4X etat = TableDesCommandes(true, p, false);
    EXPECT_TRUE(etat.entree && etat.approche && etat.sortie && etat.retour && etat.sortieIntermediaire &&
                etat.position && etat.alignementZ && etat.cote && etat.decalage && etat.blocDresse &&
                etat.dressage && etat.guillotine && etat.parcours && etat.matiere && etat.decouper);
    EXPECT_FALSE(etat.saisieZ);
    p.TypePositionZ = AlignementZ::Saisi;
    p.TypeEntree = TypeEntreeD4X::Dessus;
    etat = TableDesCommandes(true, p, false);
    EXPECT_TRUE(etat.saisieZ);
    EXPECT_FALSE(etat.approche);
    EXPECT_EQ(TableDesCommandes(true, p, true), EtatCommandesD4X{});
}

TEST(EtatFenetre4x, QuitterLOngletRelacheLesOutilsEtOteLaSymetrie) {
    ParametresDecoupe4axes p;
    p.chkDresser = true;
    EXPECT_FALSE(QuitterOngletDecoupe(p));
    EXPECT_FALSE(p.chkDresser);
    p.chkGuillotine = p.symetrie = true;
    EXPECT_TRUE(QuitterOngletDecoupe(p));
    EXPECT_FALSE(p.chkGuillotine || p.symetrie);
}

TEST(EtatFenetre4x, LesDeuxOutilsSExcluentEtFermentLeReste) {
    BoitesEnregistrees boites;
    ParametresDecoupe4axes p;
    CocherDressage(true, p);
    EXPECT_EQ(TexteOutilActif(p), " Dressage du bloc ");
    EtatCommandesD4X etat = TableDesCommandes(true, p, false);
    EXPECT_FALSE(etat.cote || etat.decalage || etat.blocDresse || etat.sortieIntermediaire);
    EXPECT_TRUE(etat.entree && etat.dressage && etat.decouper);
    CocherGuillotine(true, p);
    EXPECT_FALSE(p.chkDresser);
    EXPECT_EQ(TexteOutilActif(p), " Outil guillotine ");
    etat = TableDesCommandes(true, p, false);
    EXPECT_FALSE(etat.entree || etat.position);
    EXPECT_TRUE(etat.guillotine && etat.decouper);
    EXPECT_EQ(LegendeOutil(true), "Désactiver");
    EXPECT_EQ(LegendeOutil(false), "Activer");
    EXPECT_FALSE(SauvegardePermise(p));
    EXPECT_FALSE(AccesParametresPermis(p));
    CocherDressage(true, p);
    EXPECT_FALSE(p.chkGuillotine);
    CocherDressage(false, p);
    EXPECT_TRUE(SauvegardePermise(p));
    EXPECT_EQ(TexteOutilActif(p), "");
    ASSERT_EQ(boites.boites.size(), 2U);
    EXPECT_EQ(boites.boites[0].texte,
              "La découpe ne peut pas être sauvegardée si un bouton est enfoncé (Dresser ou Guillotine).");
    EXPECT_EQ(boites.boites[1].texte,
              "L'accès aux paramètres n'est pas possible si un bouton est enfoncé (boutons Dresser ou "
              "Guillotine).");
}
