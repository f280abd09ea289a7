// Machines: every built-in value, the reading of a section, the repairs, the comparison.
#include "machine/table_machine.h"

#include "app/settings/gestion_ini.h"
#include "outils/boites.h"
#include "outils/dossiers.h"
#include "platform/fichiers.h"

#include <gtest/gtest.h>

#include <bitset>

using namespace tessarel;
using essais::BoitesEnregistrees;

namespace {

// A settings file of its own, and the program's records as at a start.
class Machines : public ::testing::Test {
protected:
    void SetUp() override {
        DossiersProgramme.FichierIni = m_dossier.Fichier("Tessarel.ini");
        TableINI = TableMachine{};
        EcrireFichierAtomique(DossiersProgramme.FichierIni, "[Parametres]\r\n");
    }
    void TearDown() override { DossiersProgramme = Dossiers{}; }

    static void Ecrire(const std::string& texte) {
        EcrireFichierAtomique(DossiersProgramme.FichierIni, texte);
    }

    BoitesEnregistrees m_boites;

private:
    essais::DossierProvisoire m_dossier;
};

std::uint8_t Bits(const char* texte) {
    return static_cast<std::uint8_t>(std::bitset<8>(texte).to_ulong());
}

using Octets5 = std::array<std::uint8_t, 5>;
using Octets10 = std::array<std::uint8_t, 10>;
using Signes5 = std::array<bool, 5>;

// A machine file that needs no repair.
constexpr const char* MachineSaine = "[Machine_Atelier]\r\nCourseX=600\r\nCourseY=400\r\n"
                                     "VitesseDecoupeParDefaut=3.5\r\nVitesseRapide=12\r\n"
                                     "EcartementY1Y2=700\r\nLongueurMaxiFil=900\r\n";

} // namespace

TEST_F(Machines, ColonneDefaut) {
    ASSERT_EQ(ChargerMachine("(Defaut)"), StatutSucces);
    const TableMachine& t = TableINI;
    EXPECT_EQ(t.Nom, "(Defaut)");
    EXPECT_EQ(t.CodesEntrees, (Octets5{5, 9, 6, 10, 16}));
    EXPECT_EQ(t.OrientationX, 0);
    EXPECT_EQ(t.CodeDefinitionSortie,
              (Octets10{0, 0, Bits("10000001"), Bits("00000001"), Bits("10000011"), Bits("00000011"),
                        Bits("10000010"), Bits("01000010"), Bits("10000100"), Bits("01000100")}));
    EXPECT_EQ(t.SortieDir, (Octets5{4, 8, 6, 10, 0}));
    EXPECT_EQ(t.SortieStep, (Octets5{3, 7, 5, 9, 0}));
    EXPECT_EQ(t.InvSignalSortieDir, (Signes5{false, true, false, true, false}));
    EXPECT_EQ(t.InvSignalSortieStep, Signes5{});
    EXPECT_EQ(t.PasParTourMoteur, (std::array<float, 5>{400, 400, 400, 400, 0}));
    EXPECT_EQ(t.MicroPas, (std::array<std::int16_t, 5>{32, 32, 32, 32, 1}));
    EXPECT_EQ(t.PasParTour, (std::array<std::int16_t, 5>{12800, 12800, 12800, 12800, 0}));
    EXPECT_EQ(t.MmParTour, (std::array<float, 4>{40, 40, 40, 40}));
    EXPECT_EQ(t.DegParTourA, 0);
    EXPECT_EQ(t.OmegaMaxSansAccA, 0);
    EXPECT_EQ(t.OmegaMaxAvecAccA, 0);
    EXPECT_TRUE(t.InversionSignalMoteurOnOff);
    EXPECT_EQ(t.VmaxSansAccXY, 6);
    EXPECT_EQ(t.VmaxAvecAccXY, 10);
    EXPECT_EQ(t.PenteAcceleration, 6);
    EXPECT_EQ(t.Frequence, 50000);
    EXPECT_EQ(t.ChauffeMaxiSur100, 80);
    EXPECT_EQ(t.PWMmaxi0to255, 204);
    EXPECT_TRUE(t.AutoMoteursOff);
    EXPECT_EQ(t.DelaiMoteursOff, 1);
    EXPECT_EQ(t.NomAxeGcodeX1 + t.NomAxeGcodeX2 + t.NomAxeGcodeY1 + t.NomAxeGcodeY2, "XAYZ");
    EXPECT_EQ(t.CourseX, 980);
    EXPECT_EQ(t.CourseY, 510);
    EXPECT_FALSE(t.OrigineEnHaut);
    EXPECT_FALSE(t.TenirCompteEpaisseurPlateauRotatif);
    EXPECT_EQ(t.MargeFilPlateau, 1);
    EXPECT_EQ(t.MargeFilBloc, 15);
    EXPECT_EQ(t.MargeOrigineBloc, 5);
    EXPECT_EQ(t.TempoChauffe, 2);
    EXPECT_EQ(t.ChauffeParDefaut, 65);
    EXPECT_EQ(t.VitesseDecoupeParDefaut, 4);
    EXPECT_EQ(t.SaigneeVDParDefaut, 1);
    EXPECT_EQ(t.SaigneeVDsur2ParDefaut, 2);
    EXPECT_EQ(t.VitesseRapide, 8);
    EXPECT_EQ(t.EcartementY1Y2, 520);
    EXPECT_EQ(t.EcartementY1Plateau, 10);
    EXPECT_EQ(t.EcartementPlateauY2, 10);
    EXPECT_EQ(t.EcartementUtile, 500);
    EXPECT_EQ(t.LongueurMaxiFil, 660);
    EXPECT_EQ(t.DistanceRangementFilSousOrigine, 0);
    EXPECT_EQ(t.DistanceOrigineAxePlateauRotatif, 0);
    EXPECT_EQ(t.DistanceX1AxePlateauRotatif, 0);
    EXPECT_EQ(t.HauteurPlateauRotatif, 0);
    EXPECT_EQ(t.ChauffeNettoyage, 80);
    EXPECT_EQ(t.DecalageNettoyage, 30);
    EXPECT_EQ(t.AttenteNettoyage, 6);
    EXPECT_FALSE(t.SwitchsActifs);
    EXPECT_FALSE(t.OrigineAutomatique);
    EXPECT_EQ(t.MmToOrigine, (std::array<float, 4>{}));
    EXPECT_EQ(t.PasToOrigine, (std::array<double, 4>{}));
    EXPECT_FALSE(t.ActiverRangementAuto);
    EXPECT_EQ(t.RangementSuivantX, 900);
    EXPECT_EQ(t.RangementSuivantY, 500);
    EXPECT_TRUE(m_boites.boites.empty());
}

TEST_F(Machines, ColonneQt4xM1LaOuElleDiffereDeDefaut) {
    ASSERT_EQ(ChargerMachine("QT4X-m1"), StatutSucces);
    const TableMachine& t = TableINI;
    EXPECT_EQ(t.CodeDefinitionSortie,
              (Octets10{0, 0, Bits("10000001"), Bits("01000001"), Bits("10000011"), Bits("00000011"),
                        Bits("10000010"), Bits("01000010"), Bits("10000100"), Bits("00000100")}));
    EXPECT_EQ(t.SortieDir, (Octets5{4, 8, 6, 10, 0}));
    EXPECT_EQ(t.SortieStep, (Octets5{3, 7, 5, 9, 0}));
    EXPECT_EQ(t.InvSignalSortieDir, (Signes5{true, true, false, false, false}));
    EXPECT_EQ(t.PasParTour, (std::array<std::int16_t, 5>{12800, 12800, 12800, 12800, 0}));
    EXPECT_EQ(t.VmaxSansAccXY, 40);
    EXPECT_EQ(t.VmaxAvecAccXY, 80);
    EXPECT_EQ(t.PenteAcceleration, 6);
    EXPECT_EQ(t.ChauffeMaxiSur100, 80);
    EXPECT_EQ(t.CourseX, 980);
    EXPECT_EQ(t.CourseY, 505);
    EXPECT_EQ(t.MargeFilPlateau, 1);
    EXPECT_EQ(t.MargeFilBloc, 20);
    EXPECT_EQ(t.MargeOrigineBloc, 10);
    EXPECT_EQ(t.VitesseRapide, 20);
    EXPECT_EQ(t.EcartementUtile, 500);
    EXPECT_EQ(t.LongueurMaxiFil, 660);
    EXPECT_EQ(t.DecalageNettoyage, 30);
    EXPECT_FALSE(t.ActiverRangementAuto);
    EXPECT_EQ(t.RangementSuivantX, 900);
    EXPECT_EQ(t.RangementSuivantY, 500);
}

TEST_F(Machines, ColonneQt2d) {
    ASSERT_EQ(ChargerMachine("QT2d v12"), StatutSucces);
    const TableMachine& t = TableINI;
    EXPECT_EQ(t.CodeDefinitionSortie,
              (Octets10{Bits("10000001"), Bits("00000001"), 0, 0, 0, 0, Bits("10000010"), Bits("01000010"),
                        Bits("10000100"), Bits("01000100")}));
    EXPECT_EQ(t.SortieDir, (Octets5{2, 8, 0, 10, 0}));
    EXPECT_EQ(t.SortieStep, (Octets5{1, 7, 0, 9, 0}));
    EXPECT_EQ(t.InvSignalSortieDir, (Signes5{false, true, false, true, false}));
    EXPECT_EQ(t.PasParTourMoteur, (std::array<float, 5>{200, 200, 200, 200, 0}));
    EXPECT_EQ(t.MicroPas, (std::array<std::int16_t, 5>{8, 8, 8, 8, 1}));
    EXPECT_EQ(t.PasParTour, (std::array<std::int16_t, 5>{1600, 1600, 1600, 1600, 0}));
    EXPECT_EQ(t.MmParTour, (std::array<float, 4>{1, 1, 1, 1}));
    EXPECT_TRUE(t.InversionSignalMoteurOnOff);
    EXPECT_EQ(t.VmaxSansAccXY, 5);
    EXPECT_EQ(t.VmaxAvecAccXY, 8);
    EXPECT_EQ(t.PenteAcceleration, 7);
    EXPECT_EQ(t.Frequence, 50000);
    EXPECT_EQ(t.ChauffeMaxiSur100, 70);
    EXPECT_EQ(t.PWMmaxi0to255, 178); // 178.5, to even
    EXPECT_EQ(t.CourseX, 304);
    EXPECT_EQ(t.CourseY, 256);
    EXPECT_TRUE(t.OrigineEnHaut);
    EXPECT_EQ(t.MargeFilPlateau, 2);
    EXPECT_EQ(t.MargeFilBloc, 2);
    EXPECT_EQ(t.MargeOrigineBloc, 2);
    EXPECT_EQ(t.TempoChauffe, 2);
    EXPECT_EQ(t.VitesseRapide, 8);
    EXPECT_EQ(t.EcartementY1Y2, 165);
    EXPECT_EQ(t.EcartementY1Plateau, 5);
    EXPECT_EQ(t.EcartementPlateauY2, 5);
    EXPECT_EQ(t.EcartementUtile, 155);
    EXPECT_EQ(t.ChauffeNettoyage, 70);
    EXPECT_EQ(t.DecalageNettoyage, 0);
    EXPECT_EQ(t.AttenteNettoyage, 6);
    EXPECT_TRUE(t.SwitchsActifs);
    EXPECT_TRUE(t.OrigineAutomatique);
    EXPECT_EQ(t.MmToOrigine, (std::array<float, 4>{1, 1, 1, 1}));
    EXPECT_EQ(t.PasToOrigine, (std::array<double, 4>{1600, 1600, 1600, 1600}));
    EXPECT_TRUE(t.ActiverRangementAuto);
    EXPECT_EQ(t.RangementSuivantX, 150);
    EXPECT_EQ(t.RangementSuivantY, 0);
}

TEST_F(Machines, LesDeuxQt2dNeDifferentQueParLaChauffeEtLaTempo) {
    TableMachine v12;
    TableMachine v10;
    ASSERT_EQ(LireMachine("QT2d v12", v12), StatutSucces);
    ASSERT_EQ(LireMachine("QT2d v10", v10), StatutSucces);
    EXPECT_EQ(v10.ChauffeMaxiSur100, 80);
    EXPECT_EQ(v10.PWMmaxi0to255, 204);
    EXPECT_EQ(v10.ChauffeNettoyage, 80);
    EXPECT_EQ(v10.TempoChauffe, 25);
    std::string rapport;
    v12.PWMmaxi0to255 = v10.PWMmaxi0to255;
    EXPECT_TRUE(ComparerMachineEtZelko(v12, v10, &rapport)) << rapport;
    EXPECT_EQ(v12.CourseX, v10.CourseX);
    EXPECT_EQ(v12.EcartementUtile, v10.EcartementUtile);
}

TEST_F(Machines, Qt2dLaisseLesLongueursDeFilCommeEllesEtaient) {
    ChargerMachine("(Defaut)");
    TableINI.DistanceRangementFilSousOrigine = 7;
    ChargerMachine("QT2d v10");
    EXPECT_EQ(TableINI.LongueurMaxiFil, 660);
    EXPECT_EQ(TableINI.DistanceRangementFilSousOrigine, 7);
}

TEST_F(Machines, NomsReservesDansToutesLeursFormes) {
    for (const char* nom :
         {"(Defaut)", "(defaut)", "QT2d v12", "QT2D V12", "QT2d v10", "QT2D V10", "QT4X-m1", "QT4X-M1"})
        EXPECT_TRUE(EstMachineIntegree(nom)) << nom;
    EXPECT_FALSE(EstMachineIntegree("Defaut"));
    EXPECT_FALSE(EstMachineIntegree("QT2d v11"));
    EXPECT_FALSE(EstMachineIntegree(""));
}

TEST_F(Machines, MachineIntegreeNeLitPasLeFichier) {
    Ecrire("[Machine_(Defaut)]\r\nCourseX=5\r\n");
    EXPECT_EQ(ChargerMachine("(defaut)"), StatutSucces);
    EXPECT_EQ(TableINI.CourseX, 980);
}

TEST_F(Machines, MachineDuFichierLueCleParCle) {
    Ecrire(
        "[Machine_Atelier]\r\nSortieDirX1=1\r\nInvSignalSortieDirX1=1\r\nSortieStepX1=2\r\nSortieDirY2=10\r\n"
        "InvSignalSortieStepX1=2\r\nSortieStepA=9\r\nInvSignalSortieStepA=1\r\n"
        "PasParTourMoteurX1=200\r\nMicroPasX1=16\r\nMmParTourX1=5,08\r\nMmToOrigineX1=2.5\r\n"
        "InversionSignalOnOffMoteurs=1\r\nVmaxSansAccXY=3,25\r\nVmaxAvecAccXY=9.5 mm/s\r\n"
        "PenteAcceleration=15\r\nFrequenceInterpolateur=30000\r\nChauffeMaxiSur100=70,9\r\n"
        "AutoMoteursOff=1\r\nDelaiAutoMoteursOff=30\r\nNomAxeGcodeX2=U\r\n"
        "CourseX=600\r\nCourseY=400\r\nVitesseDecoupeParDefaut=3.5\r\nVitesseRapide=12\r\n"
        "EcartementY1Y2=700\r\nEcartementY1Plateau=12.5\r\nEcartementPlateauY2=7.5\r\nLongueurMaxiFil=900\r\n"
        "TempoChauffe=0\r\nSwitchsActifs=-1\r\nOrigineAutomatique=1\r\nRangementSuivantX=-20\r\n");
    ASSERT_EQ(ChargerMachine("Atelier"), StatutSucces);
    const TableMachine& t = TableINI;
    EXPECT_EQ(t.Nom, "Atelier");
    EXPECT_EQ(t.CodeDefinitionSortie, (Octets10{Bits("01000001"), Bits("10000001"), 0, 0, 0, 0, 0, 0,
                                                Bits("11000101"), Bits("00000100")}));
    EXPECT_EQ(t.PasParTour[AxeX1], 3200);
    EXPECT_EQ(t.PasToOrigine[AxeX1], 1575); // 3200 x 2.5 / 5.08 = 1574.80
    EXPECT_EQ(t.PasToOrigine[AxeY1], 0);    // no mm per turn
    EXPECT_TRUE(t.InversionSignalMoteurOnOff);
    EXPECT_EQ(t.VmaxSansAccXY, 3.25F);
    EXPECT_EQ(t.VmaxAvecAccXY, 9.5F);
    EXPECT_EQ(t.PenteAcceleration, 15);
    EXPECT_EQ(t.Frequence, 30000);
    EXPECT_EQ(t.ChauffeMaxiSur100, 70); // integer part
    EXPECT_EQ(t.PWMmaxi0to255, 178);
    EXPECT_TRUE(t.AutoMoteursOff);
    EXPECT_EQ(t.DelaiMoteursOff, 30);
    EXPECT_EQ(t.NomAxeGcodeX1 + t.NomAxeGcodeX2 + t.NomAxeGcodeY1 + t.NomAxeGcodeY2, "XUYZ");
    EXPECT_EQ(t.EcartementUtile, 680);
    EXPECT_EQ(t.TempoChauffe, 1);  // raised
    EXPECT_FALSE(t.SwitchsActifs); // only 1 is true
    EXPECT_TRUE(t.OrigineAutomatique);
    EXPECT_EQ(t.RangementSuivantX, -20);
    EXPECT_TRUE(m_boites.boites.empty());
}

TEST_F(Machines, DeuxSignauxSurUneSortieLeDernierDansLOrdreGagne) {
    Ecrire(std::string(MachineSaine) + "SortieDirX2=3\r\nSortieDirY1=3\r\nSortieDirX1=3\r\n");
    ASSERT_EQ(ChargerMachine("Atelier"), StatutSucces);
    EXPECT_EQ(TableINI.CodeDefinitionSortie[2], 2); // Y1: after X1 and X2
    Ecrire(std::string(MachineSaine) + "SortieDirA=3\r\nSortieStepX1=3\r\n");
    ASSERT_EQ(ChargerMachine("Atelier"), StatutSucces);
    EXPECT_EQ(TableINI.CodeDefinitionSortie[2], 129);
}

TEST_F(Machines, SortieHorsDeUnADixLaisseLaTable) {
    Ecrire(std::string(MachineSaine) + "SortieDirX1=11\r\nSortieDirY1=0\r\nSortieStepX1=200\r\n");
    ASSERT_EQ(ChargerMachine("Atelier"), StatutSucces);
    EXPECT_EQ(TableINI.CodeDefinitionSortie, Octets10{});
    EXPECT_EQ(TableINI.SortieDir[AxeX1], 11);
}

TEST_F(Machines, SectionAbsenteChargeDesZerosEtReparesUnParUn) {
    ASSERT_EQ(ChargerMachine("Fantome"), StatutSucces);
    ASSERT_EQ(m_boites.boites.size(), 6U);
    const std::array<std::pair<const char*, const char*>, 6> attendu = {{
        {"CourseX=0, valeur impossible",
         "CourseX modifiée à 300 dans Tessarel.ini pour éviter les erreurs de calcul."},
        {"CourseY=0, valeur impossible",
         "CourseY modifiée à 200 dans Tessarel.ini pour éviter les erreurs de calcul."},
        {"VitesseDecoupeParDefaut=0, valeur impossible",
         "VitesseDecoupeParDefaut modifiée à 4 dans Tessarel.ini pour éviter les erreurs de calcul."},
        {"VitesseRapide=0, valeur impossible",
         "VitesseRapide modifiée à 8 dans Tessarel.ini pour éviter les erreurs de calcul."},
        {"EcartementY1Y2=0, valeur impossible",
         "EcartementY1Y2 modifiée à 500 dans Tessarel.ini pour éviter les erreurs de calcul."},
        {"LongueurMaxiFil=0, valeur impossible", "LongueurMaxiFil modifiée à la valeur EcartementY1Y2 dans "
                                                 "Tessarel.ini pour éviter les erreurs de calcul."},
    }};
    for (std::size_t i = 0; i < attendu.size(); ++i) {
        EXPECT_EQ(m_boites.boites[i].titre, attendu[i].first);
        EXPECT_EQ(m_boites.boites[i].texte, attendu[i].second);
        EXPECT_EQ(m_boites.boites[i].icone, IconeBoite::Information);
    }
    EXPECT_EQ(LireFichierEntier(DossiersProgramme.FichierIni),
              "[Parametres]\r\n[Machine_Fantome]\r\nCourseX=300.0\r\nCourseY=200.0\r\n"
              "VitesseDecoupeParDefaut=4.0\r\nVitesseRapide=8.0\r\nEcartementY1Y2=500.0\r\nLongueurMaxiFil="
              "500.0\r\n");
    EXPECT_EQ(TableINI.CourseX, 300);
    EXPECT_EQ(TableINI.CourseY, 200);
    EXPECT_EQ(TableINI.VitesseDecoupeParDefaut, 4);
    EXPECT_EQ(TableINI.VitesseRapide, 8);
    EXPECT_EQ(TableINI.EcartementY1Y2, 500);
    EXPECT_EQ(TableINI.EcartementUtile, 500);
    EXPECT_EQ(TableINI.LongueurMaxiFil, 500);
    EXPECT_EQ(TableINI.TempoChauffe, 1);
    m_boites.boites.clear();
    ASSERT_EQ(ChargerMachine("Fantome"), StatutSucces);
    EXPECT_TRUE(m_boites.boites.empty());
}

TEST_F(Machines, LongueurDeFilRepareeParLEcartementDuFichier) {
    Ecrire(
        "[Machine_Atelier]\r\nCourseX=600\r\nCourseY=400\r\nVitesseDecoupeParDefaut=3\r\nVitesseRapide=12\r\n"
        "EcartementY1Y2=702,125\r\n");
    ASSERT_EQ(ChargerMachine("Atelier"), StatutSucces);
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(LireIni("Machine_Atelier", "LongueurMaxiFil", ""), "702.13");
    EXPECT_EQ(TableINI.LongueurMaxiFil, 702.13F);
}

TEST_F(Machines, OrigineEnHautEstDiteUneFoisPuisRetiree) {
    Ecrire(std::string(MachineSaine) + "OrigineEnHaut=1\r\n");
    ASSERT_EQ(ChargerMachine("Atelier"), StatutSucces);
    EXPECT_FALSE(TableINI.OrigineEnHaut);
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(m_boites.boites[0].titre, "Machine avec origine en haut");
    const std::string& texte = m_boites.boites[0].texte;
    EXPECT_EQ(texte.find(
                  "A partir de la version 4.1.15, Tessarel n'accepte plus les machines avec une origine en "
                  "haut (comme la Quenta2D+).\r\nLe paramètre n'est d'ailleurs plus disponible dans la "
                  "fenêtre de paramétrage.\r\nLa machine Atelier est enregistrée avec l'origine en haut dans "
                  "le fichier Tessarel.ini.\r\nCe paramètre va être modifié"),
              0U)
        << texte;
    EXPECT_EQ(LireIni("Machine_Atelier", "OrigineEnHaut", ""), "0");
    m_boites.boites.clear();
    ASSERT_EQ(ChargerMachine("Atelier"), StatutSucces);
    EXPECT_TRUE(m_boites.boites.empty());
}

TEST_F(Machines, OrigineEnHautVientApresLesReparations) {
    Ecrire("[Machine_Atelier]\r\nOrigineEnHaut=1\r\n");
    ASSERT_EQ(ChargerMachine("Atelier"), StatutSucces);
    ASSERT_EQ(m_boites.boites.size(), 7U);
    EXPECT_EQ(m_boites.boites[5].titre, "LongueurMaxiFil=0, valeur impossible");
    EXPECT_EQ(m_boites.boites[6].titre, "Machine avec origine en haut");
}

TEST_F(Machines, PasParTourTropGrandRefuseLaMachineSansRienReparer) {
    const std::string texte = "[Machine_Atelier]\r\nMicroPasX1=256\r\nPasParTourMoteurX1=128\r\n";
    Ecrire(texte); // 32768
    ChargerMachine("QT4X-m1");
    EXPECT_EQ(ChargerMachine("Atelier"), StatutRefus);
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(m_boites.boites[0].texte.find("Problème : impossible de charger la table Atelier\r\n"
                                            "Merci de remonter le problème à "),
              0U);
    EXPECT_EQ(TableINI.Nom, "QT4X-m1"); // the current machine stays whole
    EXPECT_EQ(LireFichierEntier(DossiersProgramme.FichierIni), texte);
}

TEST_F(Machines, PasParTourAuPlusGrandPasse) {
    Ecrire(std::string(MachineSaine) + "MicroPasX1=1\r\nPasParTourMoteurX1=32767\r\n");
    EXPECT_EQ(ChargerMachine("Atelier"), StatutSucces);
    EXPECT_EQ(TableINI.PasParTour[AxeX1], 32767);
}

TEST_F(Machines, ValeurTropLargePourSonChampRefuseLaMachine) {
    for (const char* ligne :
         {"PenteAcceleration=256", "MicroPasA=40000", "CourseX=3000000000", "SortieDirX1=-1"}) {
        Ecrire(std::string("[Machine_Atelier]\r\n") + ligne + "\r\n");
        EXPECT_EQ(ChargerMachine("Atelier"), StatutRefus) << ligne;
    }
}

TEST_F(Machines, EcrireMachineEtRelireDonneLaMeme) {
    ChargerMachine("QT4X-m1");
    TableMachine copie = TableINI;
    copie.Nom = "Copie";
    copie.MmParTour[AxeX1] = 5.0813F;
    copie.NomAxeGcodeY2 = "V";
    ASSERT_TRUE(EcrireMachine(copie));
    EXPECT_EQ(LireIni("Machine_Copie", "MmParTourX1", ""), "5.0813");
    EXPECT_EQ(LireIni("Machine_Copie", "VmaxAvecAccXY", ""), "80.0");
    EXPECT_EQ(LireIni("Machine_Copie", "FrequenceInterpolateur", ""), "50000");
    EXPECT_EQ(LireIni("Machine_Copie", "InversionSignalOnOffMoteurs", ""), "1");
    EXPECT_EQ(LireIni("Machine_Copie", "OrientationX", ""), "0");
    ASSERT_EQ(ChargerMachine("Copie"), StatutSucces);
    EXPECT_TRUE(m_boites.boites.empty());
    std::string rapport;
    EXPECT_TRUE(ComparerMachineEtZelko(TableINI, copie, &rapport)) << rapport;
    EXPECT_EQ(TableINI.PasParTour, copie.PasParTour);
    EXPECT_EQ(TableINI.MmParTour, copie.MmParTour);
    EXPECT_EQ(TableINI.NomAxeGcodeY2, "V");
    EXPECT_EQ(TableINI.LongueurMaxiFil, copie.LongueurMaxiFil);
    EXPECT_EQ(TableINI.RangementSuivantX, 900);
}

TEST_F(Machines, EcrireMachineRefuseUneIntegree) {
    const std::string avant = LireFichierEntier(DossiersProgramme.FichierIni);
    ChargerMachine("(Defaut)");
    EXPECT_FALSE(EcrireMachine(TableINI));
    EXPECT_EQ(LireFichierEntier(DossiersProgramme.FichierIni), avant);
}

TEST_F(Machines, TableauDesNomsDansLOrdreDuFichier) {
    Ecrire("[Machine_Zoe]\r\n[Matiere_x]\r\n[Machine_A]B]\r\n[machine_minuscule]\r\n [Machine_decale]\r\n"
           "[Machine_Zoe]\r\n[Machine_dernier]");
    CreerTableauDesNomsDeMachines();
    EXPECT_EQ(TableauNomsMachines,
              (std::vector<std::string>{"(Defaut)", "QT4X-m1", "Zoe", "A]B", "dernier"}));
    EXPECT_TRUE(EstMachineConnue("Zoe"));
    EXPECT_TRUE(EstMachineConnue("QT2d v10")); // built in, not listed
    EXPECT_FALSE(EstMachineConnue("Inconnue"));
}

TEST_F(Machines, ComparaisonIgnoreCeDontLeMouvementNeDependPas) {
    TableMachine table;
    LireMachine("(Defaut)", table);
    TableMachine memoire = table;
    memoire.Nom = "autre";
    memoire.VmaxAvecAccXY = 99;
    memoire.PasParTour[AxeX1] = 1;
    memoire.MmToOrigine[AxeX1] = 5;
    memoire.CourseX = 1;
    EXPECT_TRUE(ComparerMachineEtZelko(table, memoire));
}

TEST_F(Machines, ComparaisonVoitChaqueDifference) {
    TableMachine table;
    LireMachine("(Defaut)", table);
    const std::vector<std::pair<std::string, void (*)(TableMachine&)>> changements = {
        {"CodeDefinitionSortie(1)", [](TableMachine& t) { t.CodeDefinitionSortie[0] = 7; }},
        {"CodeDefinitionSortie(10)", [](TableMachine& t) { t.CodeDefinitionSortie[9] = 7; }},
        {"Frequence", [](TableMachine& t) { t.Frequence = 10000; }},
        {"PenteAcceleration", [](TableMachine& t) { t.PenteAcceleration = 0; }},
        {"PWMmaxi0to255", [](TableMachine& t) { t.PWMmaxi0to255 = 0; }},
        {"AutoMoteursOff", [](TableMachine& t) { t.AutoMoteursOff = false; }},
        {"DelaiMoteursOff", [](TableMachine& t) { t.DelaiMoteursOff = 9; }},
        {"SwitchsActifs", [](TableMachine& t) { t.SwitchsActifs = true; }},
        {"OrientationX", [](TableMachine& t) { t.OrientationX = 1; }},
        {"InversionSignalMoteurOnOff", [](TableMachine& t) { t.InversionSignalMoteurOnOff = false; }},
    };
    for (const auto& [nom, changer] : changements) {
        TableMachine memoire = table;
        changer(memoire);
        std::string rapport;
        EXPECT_FALSE(ComparerMachineEtZelko(table, memoire, &rapport)) << nom;
        const auto lignes = Decouper(rapport, "\r\n");
        ASSERT_EQ(lignes.size(), 18U);
        int differences = 0;
        for (const auto ligne : lignes) {
            if (!ligne.ends_with("  NOK")) continue;
            ++differences;
            EXPECT_EQ(ligne.find("Zelko." + nom + "="), 0U) << ligne;
        }
        EXPECT_EQ(differences, 1) << rapport;
    }
}

TEST_F(Machines, RapportDeComparaisonLigneParLigne) {
    TableMachine table;
    LireMachine("(Defaut)", table);
    TableMachine memoire = table;
    memoire.Frequence = 20000;
    std::string rapport;
    ComparerMachineEtZelko(table, memoire, &rapport);
    const auto lignes = Decouper(rapport, "\r\n");
    EXPECT_EQ(lignes[2], "Zelko.CodeDefinitionSortie(3)=129  ==  TableINI.CodeDefinitionSortie(3)=129  OK");
    EXPECT_EQ(lignes[10], "Zelko.Frequence=20000  <>  TableINI.Frequence=50000  NOK");
    EXPECT_EQ(lignes[17],
              "Zelko.InversionSignalMoteurOnOff=True  ==  TableINI.InversionSignalMoteurOnOff=True  OK");
}
