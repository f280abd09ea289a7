// The refresh of the connection: which memory allows moves, and what each failure leaves.
#include "boite_lien.h"
#include "boite_memoires.h"

#include "app/settings/gestion_ini.h"
#include "link/commandes.h"
#include "link/rafraichir.h"
#include "outils/dossiers.h"

#include <fstream>

using namespace tessarel;

namespace {

class Rafraichir : public essais::Lien {
protected:
    Rafraichir() {
        DossiersProgramme.FichierIni = m_dossier.Fichier("Tessarel.ini");
        repondre = [this](Tampon& tampon) { return m_boite.Envoyer(tampon); };
        EXPECT_EQ(ChargerMachine("(Defaut)"), StatutSucces);
        MouvementsActifs = false;
        InterfaceConnectee = false;
    }
    ~Rafraichir() override { DossiersProgramme = m_avant; }

    // A memory that holds a machine, as the box keeps it.
    void Ranger(std::size_t memoire, const TableMachine& table) {
        m_boite.memoires[memoire] = ComposerMessagesTable(table, static_cast<int>(memoire)).Partie1;
    }
    [[nodiscard]] std::vector<int> SousCodesEnvoyes() const {
        std::vector<int> codes;
        for (const Tampon& envoi : envois) codes.push_back(envoi[1] == 84 ? envoi[2] * 10 + envoi[3] : -1);
        return codes;
    }

    essais::DossierProvisoire m_dossier;
    Dossiers m_avant = DossiersProgramme;
    essais::BoiteMemoires m_boite;
};

} // namespace

TEST_F(Rafraichir, SansInterfaceLaMachineEstChargeeToutDeMeme) {
    branchee = 0;
    MouvementsActifs = true;
    TableINI.CourseX = 1;
    const EtatLiaison etat = RafraichirUsb("D4X");
    EXPECT_EQ(etat.Liaison, LiaisonZelko::SansInterface);
    EXPECT_EQ(etat.Mode, "D4X");
    EXPECT_EQ(etat.NomMachine, "(Defaut)");
    EXPECT_EQ(TableINI.CourseX, 980);
    EXPECT_FALSE(InterfaceConnectee);
    EXPECT_FALSE(MouvementsActifs);
    EXPECT_TRUE(envois.empty());
    EXPECT_TRUE(boites.boites.empty());
}

TEST_F(Rafraichir, UneMemoireEgaleActiveLesMouvements) {
    Ranger(1, TableINI);
    const EtatLiaison etat = RafraichirUsb("TS2D");
    EXPECT_EQ(etat.Liaison, LiaisonZelko::MouvementsPermis);
    EXPECT_EQ(etat.Memoire, 1);
    EXPECT_TRUE(InterfaceConnectee);
    EXPECT_TRUE(MouvementsActifs);
    EXPECT_EQ(TableINI.NumeroMemoire, 1);
    EXPECT_EQ(m_boite.enRam, 1);
    EXPECT_EQ(MemoiresZelko[1].Nom, "(Defaut)");
    // Two looks at the box, part 1 and what follows it of each memory, then the load.
    EXPECT_EQ(SousCodesEnvoyes(), (std::vector<int>{-1, -1, 30, 70, 31, 71, 32, 72, 11}));
    EXPECT_TRUE(boites.boites.empty());
}

TEST_F(Rafraichir, LaPremiereMemoireEgaleGagne) {
    TableMachine autre = TableINI;
    autre.PenteAcceleration = 9;
    Ranger(0, autre);
    Ranger(1, TableINI);
    Ranger(2, TableINI);
    EXPECT_EQ(RafraichirUsb("TS2D").Memoire, 1);
    EXPECT_EQ(envois.size(), 9U); // nothing is sent for the third
}

TEST_F(Rafraichir, UneChauffeAbandonneeEstCoupeeDesQueLaBoiteEstRetrouvee) {
    Ranger(0, TableINI);
    m_boite.pwm = 127;
    m_boite.chauffe = true;
    SignalerChauffeNonCoupee();
    branchee = 0;
    RafraichirUsb("TS2D"); // nothing is there yet
    EXPECT_TRUE(envois.empty());
    branchee = ZelkoBranchee;
    m_boite.panne = essais::Panne::CommandePerdue;
    m_boite.echangeEnPanne = 2; // the first heat-off
    EXPECT_EQ(RafraichirUsb("TS2D").Liaison, LiaisonZelko::MouvementsPermis);
    EXPECT_FALSE(m_boite.chauffe);
    ASSERT_EQ(envois.size(), 13U);
    const std::string lettres = {char(envois[0][1]), char(envois[1][1]), char(envois[2][1]),
                                 char(envois[3][1])};
    EXPECT_EQ(lettres, "SPSP"); // before any memory is read
    ASSERT_EQ(boites.boites.size(), 2U);
    EXPECT_EQ(boites.boites[1].titre, "Interface retrouvée");
    // Once.
    RafraichirUsb("TS2D");
    EXPECT_EQ(envois.size(), 22U);
    EXPECT_EQ(boites.boites.size(), 2U);
}

TEST_F(Rafraichir, UneChauffeQuiNeSeCoupeToujoursPasEstRedite) {
    MouvementsActifs = true;
    EnvoyerChauffe(127); // so the wire may be hot
    SignalerChauffeNonCoupee();
    m_boite.panne = essais::Panne::Debranchee;
    m_boite.echangeEnPanne = m_boite.recus + 1;
    RafraichirUsb("TS2D");
    EXPECT_GE(boites.boites.size(), 2U);
    EXPECT_EQ(boites.boites[1].texte, boites.boites[0].texte);
    EXPECT_EQ(boites.boites[1].icone, IconeBoite::Critique);
    EXPECT_TRUE(CoupureEnSuspens);
}

TEST_F(Rafraichir, MemeNomEtParametresDifferentsNActivePas) {
    TableMachine autre = TableINI;
    autre.CodeDefinitionSortie[9] = 4;
    Ranger(0, autre);
    const EtatLiaison etat = RafraichirUsb("TS2D");
    EXPECT_EQ(etat.Liaison, LiaisonZelko::SansCorrespondance);
    EXPECT_EQ(etat.Memoire, -1);
    EXPECT_TRUE(InterfaceConnectee);
    EXPECT_FALSE(MouvementsActifs);
    EXPECT_EQ(m_boite.enRam, -1);
}

TEST_F(Rafraichir, UnAutreNomNActivePas) {
    TableMachine autre = TableINI;
    autre.Nom = "(defaut)"; // exactly the name, case included
    Ranger(2, autre);
    EXPECT_EQ(RafraichirUsb("TS2D").Liaison, LiaisonZelko::SansCorrespondance);
}

TEST_F(Rafraichir, UneMemoirePleineDeUnsNActivePas) {
    for (Tampon& memoire : m_boite.memoires) memoire.fill(0xFF);
    EXPECT_EQ(RafraichirUsb("TS2D").Liaison, LiaisonZelko::SansCorrespondance);
    EXPECT_EQ(MemoiresZelko[0].Nom, "");
}

TEST_F(Rafraichir, UnChargementEnRamEchoueNActivePasEtEstDit) {
    Ranger(0, TableINI);
    m_boite.panne = essais::Panne::ReponsePerdue;
    m_boite.echangeEnPanne = 9; // the load, after two looks and the three memories
    const EtatLiaison etat = RafraichirUsb("TS2D");
    EXPECT_EQ(etat.Liaison, LiaisonZelko::SansInterface);
    EXPECT_FALSE(InterfaceConnectee);
    EXPECT_FALSE(MouvementsActifs);
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_TRUE(boites.boites[0].texte.ends_with("\r\nProcédure de l'erreur : RafraichirUsb"));
}

TEST_F(Rafraichir, UneMemoireIllisibleNeGardePasCelleDAvant) {
    Ranger(0, TableINI);
    ASSERT_TRUE(RafraichirUsb("TS2D").Memoire == 0);
    m_boite.recus = 0;
    m_boite.panne = essais::Panne::ReponsePerdue;
    m_boite.echangeEnPanne = 3; // the first memory
    EXPECT_EQ(RafraichirUsb("TS2D").Liaison, LiaisonZelko::SansCorrespondance);
    EXPECT_EQ(MemoiresZelko[0].Nom, "");
}

TEST_F(Rafraichir, UneMachineQuiNeSeChargePasLaisseLaPlaceALaMachineParDefaut) {
    std::ofstream(DossiersProgramme.FichierIni) << "[Parametres]\r\nMachineUtilisee=Folle\r\n[Machine_Folle]"
                                                   "\r\nPasParTourMoteurX1=400\r\nMicroPasX1=200\r\n";
    TableINI.Nom = "Folle";
    Ranger(0, [] {
        TableMachine defaut;
        EXPECT_EQ(LireMachine("(Defaut)", defaut), StatutSucces);
        return defaut;
    }());
    const EtatLiaison etat = RafraichirUsb("TS2D");
    EXPECT_EQ(etat.NomMachine, "(Defaut)");
    EXPECT_EQ(etat.Liaison, LiaisonZelko::MouvementsPermis);
    EXPECT_EQ(LireIni("Parametres", "MachineUtilisee", ""), "(Defaut)");
    ASSERT_EQ(boites.boites.size(), 2U);
    EXPECT_TRUE(boites.boites[0].texte.starts_with("Problème : impossible de charger la table Folle"));
    EXPECT_EQ(boites.boites[1].texte, "La machine par défaut va être chargée.");
}
