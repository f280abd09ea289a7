// Sections between stop points, their frames and durations, and the G-code of both carriages.
#include "cut4x/controle4x.h"
#include "cut4x/export_gcode4x.h"
#include "cut4x/troncons4x.h"

#include "cut4x/outils_d4x.h"

#include <sstream>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

// A made path of carriages with told durations; nothing of it is computed.
struct Trajet : Poste {
    Trajet(const Coordonnees& e, const Coordonnees& s) {
        decoupe.DecoupePossible = true;
        decoupe.PaireBloc.E = decoupe.PaireBloc.S = Points(Coordonnees(e.size(), {10, 10}));
        decoupe.PaireChariots.E = Points(e);
        decoupe.PaireChariots.S = Points(s);
        for (PointProfil& p : decoupe.PaireChariots.E) p.Z = 1000;
        for (PointProfil& p : decoupe.PaireChariots.E) p.Vitesse = 4;
    }
    [[nodiscard]] std::vector<PointProfil>& P2() { return decoupe.PaireChariots.E; }
    [[nodiscard]] std::vector<PointProfil>& P1() { return decoupe.PaireChariots.S; }
    [[nodiscard]] PreparationD4X Preparer() const { return PreparerSalvesD4X(Contexte(), decoupe, true); }
};

// Four points on a line, 10 mm apart, 2.5 s each.
Trajet Ligne() {
    Trajet t({{0, 5}, {10, 5}, {20, 5}, {30, 5}}, {{0, 5}, {10, 5}, {20, 5}, {30, 5}});
    for (std::size_t i = 0; i < 3; ++i) t.P1()[i].Duree = t.P2()[i].Duree = 2.5F;
    return t;
}

std::vector<std::string> Lignes(const std::string& texte) {
    std::vector<std::string> lignes;
    std::istringstream flux(texte);
    for (std::string ligne; std::getline(flux, ligne);) {
        EXPECT_TRUE(ligne.ends_with('\r')) << ligne;
        ligne.pop_back();
        lignes.push_back(ligne);
    }
    return lignes;
}

std::vector<std::string> Mouvements(const Trajet& trajet) {
    const ExportGcode4axes resultat = ConstruireGcode4axes(trajet.Contexte(), trajet.decoupe, "");
    std::vector<std::string> lignes = Lignes(resultat.contenu);
    EXPECT_GT(lignes.size(), 26U);
    return {lignes.begin() + 22, lignes.end() - 4};
}

} // namespace

TEST(Troncons4x, SansArretUneSeuleSection) {
    const Trajet t = Ligne();
    EXPECT_EQ(EtenduesTroncons(t.decoupe.PaireChariots), (std::vector<EtendueTroncon>{{0, 3}}));
}

TEST(Troncons4x, LePointDArretAppartientAuxDeuxSections) {
    Trajet t = Ligne();
    t.P2()[1].Drapeaux = DrapeauArret | DrapeauCorde;
    EXPECT_EQ(EtenduesTroncons(t.decoupe.PaireChariots), (std::vector<EtendueTroncon>{{0, 1}, {1, 3}}));
    t.P2()[2].Drapeaux = DrapeauArret; // the next one too
    EXPECT_EQ(EtenduesTroncons(t.decoupe.PaireChariots),
              (std::vector<EtendueTroncon>{{0, 1}, {1, 2}, {2, 3}}));
}

TEST(Troncons4x, ArretAuPremierOuAuDernierPointNeCoupeRien) {
    Trajet t = Ligne();
    t.P2()[0].Drapeaux = t.P2()[3].Drapeaux = DrapeauArret;
    t.P1()[1].Drapeaux = DrapeauArret; // only the E list tells
    EXPECT_EQ(EtenduesTroncons(t.decoupe.PaireChariots), (std::vector<EtendueTroncon>{{0, 3}}));
}

TEST(Troncons4x, PointsEnPasDeChaqueAxe) {
    Trajet t = Ligne();
    t.table.MmParTour = {40, 20, 80, 10};
    t.P1()[1] = Points({{10.001, 5}})[0];
    t.P1()[1].Vitesse = 6;
    t.P1()[1].Duree = 7;
    t.P2()[1].Rapide = true;
    const PreparationD4X p = t.Preparer();
    ASSERT_EQ(p.TronconsD4X.size(), 1U);
    // 12800 steps a turn: 320, 640, 160 and 1280 to the mm.
    const PointPasD4X& a = p.TronconsD4X[0].PointsChariot1[1];
    const PointPasD4X& b = p.TronconsD4X[0].PointsChariot2[1];
    EXPECT_EQ(a.X, 3200); // 3200.32
    EXPECT_EQ(a.Y, 3200);
    EXPECT_EQ(b.X, 1600);
    EXPECT_EQ(b.Y, 6400);
    // One speed, flag and duration for both.
    EXPECT_EQ(a.Vitesse, 6);
    EXPECT_EQ(b.Vitesse, 6);
    EXPECT_TRUE(a.Rapide);
    EXPECT_EQ(b.Duree, 7);
    EXPECT_EQ(p.NombreSegmentsTotal, 4);
}

TEST(Troncons4x, ChaqueSectionChauffePuisCoupePuisFinit) {
    Trajet t = Ligne();
    t.P2()[1].Drapeaux = DrapeauArret;
    const PreparationD4X p = t.Preparer();
    ASSERT_EQ(p.Resultat, PreparationBonne);
    ASSERT_EQ(p.TronconsD4X.size(), 2U);
    for (const TronconD4X& troncon : p.TronconsD4X) {
        const std::vector<Salve>& salves = troncon.TableauSalves;
        ASSERT_EQ(salves.size(), troncon.PointsChariot1.size() + 1);
        EXPECT_EQ(salves[0].octets[SalvePositionDrapeaux], SalvePause);
        EXPECT_EQ(NBRtDeSalve(salves[0]), 150000U); // 3 s at 50 kHz
        EXPECT_EQ(salves[0].octets[SalvePositionChauffe], 166);
        EXPECT_EQ(salves[0].Duree, 3);
        EXPECT_EQ(NBRtDeSalve(salves[1]), 125000U); // 10 mm at 4 mm/s
        EXPECT_EQ(salves[1].octets[SalvePositionDrapeaux] & SalveRampe, 0);
        EXPECT_TRUE(EstSalveFin(salves.back()));
    }
    EXPECT_EQ(p.TronconsD4X[1].PremierPoint, 1U);
    // 3 + 2.5 = 5.5 is 6 by the even rule, 6 + 3 + 5 = 14.
    EXPECT_EQ(p.TronconsD4X[0].DureeCumulee, 6);
    EXPECT_EQ(p.TronconsD4X[1].DureeCumulee, 14);
    EXPECT_EQ(p.resume.dureeSecondes, 14);
}

TEST(Troncons4x, RapideAvecRampeSeulementAuDessusDeLaVitesseSansAcceleration) {
    Trajet t = Ligne();
    t.P2()[0].Rapide = true;
    const PreparationD4X avec = t.Preparer();
    const Salve& rampe = avec.TronconsD4X[0].TableauSalves[1];
    EXPECT_NE(rampe.octets[SalvePositionDrapeaux] & SalveRampe, 0);
    EXPECT_EQ(NBRtDeSalve(rampe), 25000U); // 10 mm at 20 mm/s
    EXPECT_EQ(rampe, ConstruireSalve(ParametresDeSalve(t.table), 10, 20, 10, {3200, 0, 3200, 0}));
    t.table.VitesseRapide = 10;
    EXPECT_EQ(t.Preparer().TronconsD4X[0].TableauSalves[1].octets[SalvePositionDrapeaux] & SalveRampe, 0);
}

TEST(Troncons4x, UnSegmentSansMouvementEstUneSalveDUnTic) {
    Trajet t = Ligne();
    t.P1()[1] = t.P1()[0];
    t.P2()[1] = t.P2()[0];
    t.P2()[0].Vitesse = 0;
    const PreparationD4X p = t.Preparer();
    ASSERT_EQ(p.Resultat, PreparationBonne);
    EXPECT_EQ(NBRtDeSalve(p.TronconsD4X[0].TableauSalves[1]), 1U);
}

TEST(Troncons4x, UneSalveImpossibleArreteAvecSonNumero) {
    BoitesEnregistrees boites;
    Trajet t = Ligne();
    t.P2()[1].Vitesse = 0;
    const PreparationD4X p = t.Preparer();
    EXPECT_EQ(p.Resultat, PreparationArretee);
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].texte.substr(0, 37), "Erreur 102 de calcul de la salve 2. I");
    EXPECT_EQ(boites.boites[0].icone, IconeBoite::Critique);
}

TEST(Troncons4x, SansDecoupeOuRefuseeParLesLimites) {
    BoitesEnregistrees boites;
    Trajet t = Ligne();
    t.decoupe.DecoupePossible = false;
    EXPECT_EQ(t.Preparer().Resultat, PreparationSansDecoupe);
    t.parametres.chkGuillotine = true;
    EXPECT_EQ(t.Preparer().Resultat, PreparationBonne);
    t.decoupe.PaireChariots = {};
    EXPECT_EQ(t.Preparer().Resultat, PreparationSansDecoupe);
    EXPECT_TRUE(boites.boites.empty());
    Trajet loin = Ligne();
    loin.table.LongueurMaxiFil = 10;
    const PreparationD4X refusee = loin.Preparer();
    EXPECT_EQ(refusee.Resultat, PreparationRefusee);
    EXPECT_EQ(refusee.controle, ControleFil);
}

TEST(Troncons4x, UneVraieDecoupeSeFaitConfirmer) {
    BoitesEnregistrees boites;
    const Trajet t = Ligne();
    boites.reponses = {ReponseBoite::Ok, ReponseBoite::Annuler};
    EXPECT_EQ(PreparerSalvesD4X(t.Contexte(), t.decoupe, false).Resultat, PreparationBonne);
    EXPECT_EQ(PreparerSalvesD4X(t.Contexte(), t.decoupe, false).Resultat, PreparationAnnulee);
    ASSERT_EQ(boites.boites.size(), 2U);
    // 3 + 7.5 = 10.5, even rule.
    EXPECT_EQ(boites.boites[0].texte,
              "Durée de la découpe : 10s\r\nVitesse découpe max : 4.0 mm/s\r\nChauffe : 65.0 %");
    EXPECT_EQ(boites.boites[0].titre, "Lancer la découpe ?");
    EXPECT_EQ(boites.boites[0].boutons, BoutonsBoite::OkAnnuler);
}

TEST(Gcode4x, FichierEntierALOctet) {
    Trajet t({{0, -5}, {56, 10}, {30, 10}}, {{0, -5}, {16, 10}, {30, 10}});
    t.projet = Projet({{0.5, 0}, {250.25, 9}}, {{0, 0}, {180, 9}}, 512.5F);
    t.P1()[0].Duree = 10;
    t.P1()[1].Duree = 3;
    t.P2()[1].Drapeaux = DrapeauArret;
    const ExportGcode4axes resultat = ConstruireGcode4axes(t.Contexte(), t.decoupe, "/home/a/aile.tsr");
    EXPECT_EQ(resultat.mouvements, 2U);
    const std::string version = std::to_string(TESSAREL_VERSION_MAJEURE) + "." +
                                std::to_string(TESSAREL_VERSION_MINEURE) + "." +
                                std::to_string(TESSAREL_VERSION_REVISION);
    EXPECT_EQ(resultat.contenu,
              "(Fichier Gcode de decoupe)\r\n"
              "(Fichier genere par Tessarel v" +
                  version +
                  " : " TESSAREL_SITE_SUPPORT ")\r\n"
                  "(Fichier Tessarel du projet : /home/a/aile.tsr)\r\n"
                  "(Table de découpe : Atelier)\r\n"
                  "(Corde Cote 1 : 249.75mm)\r\n"
                  "(Corde Cote 2 : 180mm)\r\n"
                  "(Distance Cote1<-->Cote2 : 512.5mm)\r\n"
                  // 3 + 57.97 / 4 = 17.49 is 17; 17 + 3 + 26 / 4 = 26.5 is 26 by the even rule.
                  "(Duree de la decoupe :  26s, Vitesse découpe max : 4.0 mm/s, Chauffe : 65.0 %)\r\n"
                  "(********* Gcode *********)\r\n"
                  "(Unites en mm)\r\n"
                  "G21\r\n"
                  "(Mode inverse du temps - Plus precis pour les decoupes coniques)\r\n"
                  "G93\r\n"
                  "(Mise en route de la chauffe {S0;S5;S10;S15;...;S995;S1000}<=>{0%;0.5%;1%;...;99.5%;"
                  "100%} )\r\n"
                  "M3 S650\r\n"
                  "(Delai de mise en chauffe du fil avant mouvement, en secondes)\r\n"
                  "G4 P3.0\r\n"
                  "(Deplacements des axes)\r\n"
                  "(Remarque: Si le fil est stocke dans une saignee, l'origine est plus bas que le plateau "
                  "de la table et les Y en tiennent compte)\r\n"
                  "(Deplacements en absolu - Plus precis)\r\n"
                  "G90\r\n"
                  "(Point de depart: X0 Y0 A0 Z0 - Peut se situer sous le niveau du plateau si le fil se "
                  "range dans une saignee)\r\n"
                  "G01 X16.0000 Y15.0000 A56.0000 Z15.0000 F6.000000\r\n"
                  "(Point d'arrêt, il faut relancer manuellement le mouvement)\r\n"
                  "M0\r\n"
                  "(Suite de la découpe)\r\n"
                  "G01 X30.0000 Y15.0000 A30.0000 Z15.0000 F20.000000\r\n"
                  "(Arret de la chauffe)\r\n"
                  "M5\r\n"
                  "(Fin du programme)\r\n"
                  "M2\r\n");
}

TEST(Gcode4x, LesPetitsTempsSeReportentEtLaFinResteNonEcrite) {
    Trajet t = Ligne();
    t.P1()[0].Duree = 2 / 256.0F;
    t.P1()[1].Duree = 2 / 256.0F;
    t.P1()[2].Duree = 0.01F; // not above 0.01
    EXPECT_EQ(Mouvements(t),
              (std::vector<std::string>{"G01 X20.0000 Y10.0000 A20.0000 Z10.0000 F3840.000000"}));
}

TEST(Gcode4x, LaDureeEstCelleDuChariot1) {
    Trajet t = Ligne();
    t.P2()[0].Duree = t.P2()[1].Duree = t.P2()[2].Duree = 99;
    EXPECT_EQ(Mouvements(t)[0], "G01 X10.0000 Y10.0000 A10.0000 Z10.0000 F24.000000");
}

TEST(Gcode4x, UnArretDansUnReportGardeSonM0SansSaLigne) {
    Trajet t = Ligne();
    t.P1()[0].Duree = 1 / 256.0F;
    t.P1()[1].Duree = 3 / 256.0F;
    t.P2()[1].Drapeaux = DrapeauArret;
    EXPECT_EQ(Mouvements(t),
              (std::vector<std::string>{"(Point d'arrêt, il faut relancer manuellement le mouvement)", "M0",
                                        "(Suite de la découpe)",
                                        "G01 X20.0000 Y10.0000 A20.0000 Z10.0000 F3840.000000",
                                        "G01 X30.0000 Y10.0000 A30.0000 Z10.0000 F24.000000"}));
}

TEST(Gcode4x, LettresDesAxesEtRangementNul) {
    Trajet t = Ligne();
    t.table.NomAxeGcodeX1 = "U";
    t.table.NomAxeGcodeY2 = "W";
    t.table.DistanceRangementFilSousOrigine = 0;
    EXPECT_EQ(Mouvements(t)[0], "G01 U10.0000 Y5.0000 A10.0000 W5.0000 F24.000000");
}

TEST(Gcode4x, LeRangementSEcritZeroEtToutTientDansLaDecoupe) {
    Poste p;
    p.parametres.OffsetBlocX = 40;
    p.Calculer();
    const ExportGcode4axes resultat = ConstruireGcode4axes(p.Contexte(), p.decoupe, "");
    ASSERT_EQ(resultat.preparation.Resultat, PreparationBonne);
    const std::vector<std::string> lignes = Lignes(resultat.contenu);
    EXPECT_EQ(lignes[2],
              "(Fichier Tessarel du projet : inexistant, il n'y a pas eu de sauvegarde prealable a "
              "l'export du Gcode)");
    EXPECT_EQ(lignes[lignes.size() - 5].substr(0, 34), "G01 X0.0000 Y0.0000 A0.0000 Z0.000");
    EXPECT_EQ(resultat.contenu.find("G00"), std::string::npos);
}

TEST(Gcode4x, UnRefusNeDonnePasDeFichier) {
    BoitesEnregistrees boites;
    Trajet t = Ligne();
    t.P2()[1].Vx = 999;
    const ExportGcode4axes resultat = ConstruireGcode4axes(t.Contexte(), t.decoupe, "");
    EXPECT_EQ(resultat.contenu, "");
    EXPECT_EQ(resultat.preparation.Resultat, PreparationRefusee);
    EXPECT_EQ(boites.boites.size(), 1U);
}

TEST(Gcode4x, AnnonceDeLaFin) {
    BoitesEnregistrees boites;
    AnnoncerExportGcode4axes("/tmp/a.gcode", {3661, 4, 65.5F});
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].texte,
              "Fichier Gcode (.gcode) exporté sous : /tmp/a.gcode\r\nDurée de la découpe : 1h 1min 1s\r\n"
              "Vitesse découpe max : 4.0 mm/s\r\nChauffe : 65.5 %");
    EXPECT_EQ(boites.boites[0].icone, IconeBoite::Information);
}
