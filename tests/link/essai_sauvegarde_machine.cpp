// Machines saved, chosen, made and deleted, with and without a box, and with every exchange of a save lost,
// late, corrupt or unplugged.
#include "link/sauvegarde_machine.h"

#include "app/settings/gestion_ini.h"
#include "app/texts/textes.h"
#include "link/echange.h"
#include "link/memoires.h"
#include "link/rafraichir.h"
#include "machine/matieres.h"
#include "outils/boites.h"
#include "outils/dossiers.h"
#include "outils_boite/boite_virtuelle.h"
#include "platform/fichiers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

using namespace tessarel;

namespace {

class SauvegardeMachine : public ::testing::Test {
protected:
    SauvegardeMachine() {
        ChargerMessages(Langue::Francais);
        Recommencer();
    }
    ~SauvegardeMachine() override {
        m_virtuelle.reset();
        DossiersProgramme = {};
        TableauNomsMachines.clear();
    }

    // A fresh file, a fresh box without a machine, the default machine current.
    void Recommencer(bool avecBoite = true) {
        DossiersProgramme = {};
        DossiersProgramme.FichierIni = m_dossier.Fichier("Tessarel.ini");
        EcrireFichierAtomique(DossiersProgramme.FichierIni, "[Parametres]\r\nMachineUtilisee=(Defaut)\r\n");
        TableINI = {};
        CreerTableauDesNomsDeMachines();
        ASSERT_EQ(ChargerMachine("(Defaut)"), StatutSucces);
        ASSERT_TRUE(ChargerBaseMatieres());
        ChoisirMatiere(MatieresMachine.front());
        m_virtuelle.reset(); // the one before puts back what it found
        m_virtuelle = std::make_unique<essais::BoiteVirtuelle>();
        m_boite = &m_virtuelle->boite;
        m_boite->EcrireMemoires({});
        m_virtuelle->AvantEchange = [this](const Tampon& tampon) { m_commandes.push_back(tampon); };
        m_boite->Brancher(avecBoite);
        ReinitialiserEtatInterface();
        MemoiresZelko = {};
        RafraichirUsb("TABLES");
        m_commandes.clear();
        m_boites.boites.clear();
    }
    static SaisieMachine Saisie(const char* nom) {
        SaisieMachine saisie = SaisieDepuisTable(TableINI);
        saisie.Nom = nom;
        return saisie;
    }
    static std::string Fichier() { return LireFichierEntier(DossiersProgramme.FichierIni); }
    static bool Contient(const std::string& texte) { return Fichier().find(texte) != std::string::npos; }
    [[nodiscard]] std::string NomEnMemoire(std::size_t i) const {
        return simulateur::NomMemoire(m_boite->Memoires()[i]);
    }
    // "T4 T6 T8 T1" of what went out.
    [[nodiscard]] std::string Envois() const {
        std::string texte;
        for (const Tampon& t : m_commandes)
            texte +=
                (texte.empty() ? "" : " ") + std::string(1, static_cast<char>(t[1])) + std::to_string(t[2]);
        return texte;
    }

    std::unique_ptr<essais::BoiteVirtuelle> m_virtuelle;
    simulateur::BoiteZelko* m_boite = nullptr;
    std::vector<Tampon> m_commandes;
    essais::BoitesEnregistrees m_boites;

private:
    essais::DossierProvisoire m_dossier;
};

} // namespace

TEST_F(SauvegardeMachine, SansBoiteLeFichierSeulEstEcrit) {
    Recommencer(false);
    SaisieMachine saisie = Saisie("Atelier");
    saisie.Textes["MmParTourX1"] = "8,5";
    EXPECT_EQ(SauverParamMachineIniEtZelko(saisie, 1), FinSauvegarde::Enregistree);
    EXPECT_TRUE(Contient("[Machine_Atelier]\r\n"));
    EXPECT_TRUE(Contient("MmParTourX1=8.5\r\n"));
    EXPECT_TRUE(Contient("PasParTourMoteurX1=400.0\r\n"));
    EXPECT_TRUE(Contient("MicroPasX1=32\r\n"));
    EXPECT_TRUE(Contient("OrientationX=0\r\n"));
    EXPECT_TRUE(Contient("AutoMoteursOff=1\r\n"));
    EXPECT_EQ(TableINI.Nom, "Atelier");
    EXPECT_EQ(TableINI.MmParTour[AxeX1], 8.5F);
    EXPECT_TRUE(m_commandes.empty());
    EXPECT_FALSE(MouvementsActifs);
    EXPECT_TRUE(m_boites.boites.empty());
}

TEST_F(SauvegardeMachine, UneMemoireChoisieRecoitLaMachineEtActiveLesMouvements) {
    EXPECT_EQ(SauverParamMachineIniEtZelko(Saisie("Atelier"), 1), FinSauvegarde::EnregistreeEtEnvoyee);
    EXPECT_EQ(Envois(), "T4 T6 T8 T1 T3 T7 T3 T7 T3 T7");
    EXPECT_TRUE(MouvementsActifs);
    EXPECT_EQ(NomEnMemoire(1), "Atelier");
    EXPECT_EQ(MemoiresZelko[1].Nom, "Atelier");
    EXPECT_TRUE(ComparerMachineEtZelko(TableINI, MemoiresZelko[1]));
    EXPECT_EQ(m_boite->Ram().nom, "Atelier");
    EXPECT_TRUE(m_boites.boites.empty());
}

TEST_F(SauvegardeMachine, UneReserveeNEcritRienAuFichierEtPartEnMemoire) {
    const std::string avant = Fichier();
    EXPECT_EQ(SauverParamMachineIniEtZelko(Saisie("(Defaut)"), 0), FinSauvegarde::EnregistreeEtEnvoyee);
    EXPECT_EQ(Fichier(), avant);
    EXPECT_EQ(NomEnMemoire(0), "(Defaut)");
    EXPECT_TRUE(MouvementsActifs);
}

TEST_F(SauvegardeMachine, UnRefusLaisseFichierEtBoite) {
    for (const auto& [cle, texte] : {std::pair{"MmParTourX1", "x"}, std::pair{"SortieDirX1", "7"},
                                     std::pair{"MicroPasX1", "500"}, std::pair{"PenteAcceleration", "16"}}) {
        Recommencer();
        const std::string avant = Fichier();
        SaisieMachine saisie = Saisie("Atelier");
        saisie.Textes[cle] = texte;
        EXPECT_EQ(SauverParamMachineIniEtZelko(saisie, 0), FinSauvegarde::Refusee) << cle;
        EXPECT_EQ(m_boites.boites.size(), 1U) << cle;
        EXPECT_EQ(Fichier(), avant) << cle;
        EXPECT_TRUE(m_commandes.empty()) << cle;
        EXPECT_EQ(TableINI.Nom, "(Defaut)") << cle;
    }
}

TEST_F(SauvegardeMachine, UnNomVideEstDit) {
    EXPECT_EQ(SauverParamMachineIniEtZelko(Saisie(" "), 0), FinSauvegarde::Refusee);
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(m_boites.boites[0].texte, TextesMessages(238));
    EXPECT_TRUE(m_commandes.empty());
}

TEST_F(SauvegardeMachine, UnFichierImpossibleEstDitEtRienNePart) {
    // A folder stands where the file should.
    DossiersProgramme.FichierIni = DossierDuChemin(DossiersProgramme.FichierIni);
    const SaisieMachine saisie = Saisie("Atelier");
    EXPECT_EQ(SauverParamMachineIniEtZelko(saisie, 0), FinSauvegarde::FichierImpossible);
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(m_boites.boites[0].texte, TextesMessages(240));
    EXPECT_TRUE(m_commandes.empty());
}

TEST_F(SauvegardeMachine, ValiderSansMemoireRedemandeALaBoite) {
    SauverParamMachineIniEtZelko(Saisie("Atelier"), 0);
    ASSERT_TRUE(MouvementsActifs);
    SaisieMachine saisie = Saisie("Atelier");
    saisie.Textes["ChauffeMaxiSur100"] = "70";
    EXPECT_EQ(SauverParamMachineIniEtZelko(saisie, std::nullopt), FinSauvegarde::Enregistree);
    EXPECT_FALSE(MouvementsActifs) << "the memory holds another heat maximum";
    saisie.Textes["ChauffeMaxiSur100"] = "80";
    SauverParamMachineIniEtZelko(saisie, std::nullopt);
    EXPECT_TRUE(MouvementsActifs);
}

TEST_F(SauvegardeMachine, ChoisirUneMachineQueLaBoiteNaPasCoupeLesMouvements) {
    SauverParamMachineIniEtZelko(Saisie("Atelier"), 0);
    ASSERT_TRUE(MouvementsActifs);
    ChoisirMachine("QT4X-m1");
    EXPECT_EQ(TableINI.Nom, "QT4X-m1");
    EXPECT_FALSE(MouvementsActifs);
    EXPECT_TRUE(Contient("MachineUtilisee=QT4X-m1\r\n"));
    ChoisirMachine("Atelier");
    EXPECT_TRUE(MouvementsActifs);
}

TEST_F(SauvegardeMachine, LaMatiereResteSousSonNomOuRevientAuDefaut) {
    EcrireMatiere("Bleu", 60, 3, 1, 2, "QT4X-m1");
    ChoisirMachine("QT4X-m1");
    ChoisirMatiere(*TrouverMatiere("Bleu"));
    ChoisirMachine("QT4X-m1");
    EXPECT_EQ(MatiereCourante.Nom, "Bleu");
    ChoisirMachine("(Defaut)");
    EXPECT_EQ(MatiereCourante.Nom, "Par defaut");
    EXPECT_EQ(DecoupeCourante.Chauffe, 65);
}

TEST_F(SauvegardeMachine, EffacerRevientAuDefautEtCoupeLesMouvements) {
    ASSERT_TRUE(CreerMachine(Saisie("(Defaut)"), "Atelier"));
    SauverParamMachineIniEtZelko(Saisie("Atelier"), 0);
    ASSERT_TRUE(MouvementsActifs);
    m_boites.reponses = {ReponseBoite::Non};
    EXPECT_EQ(EffacerMachine("Atelier"), FinEffacement::Abandonnee);
    EXPECT_TRUE(MouvementsActifs);
    bool dit = false;
    m_boites.reponses = {ReponseBoite::Oui};
    EXPECT_EQ(EffacerMachine("Atelier", [&dit] { dit = true; }), FinEffacement::Effacee);
    EXPECT_TRUE(dit);
    EXPECT_FALSE(MouvementsActifs);
    EXPECT_FALSE(Contient("Atelier"));
    EXPECT_TRUE(Contient("MachineUtilisee=(Defaut)\r\n"));
    EXPECT_EQ(TableauNomsMachines, (std::vector<std::string>{"(Defaut)", "QT4X-m1"}));
    EXPECT_EQ(NomEnMemoire(0), "Atelier") << "memories change on a save only";
}

TEST_F(SauvegardeMachine, UneReserveeNeSEffacePas) {
    const std::string avant = Fichier();
    EXPECT_EQ(EffacerMachine("(Defaut)"), FinEffacement::Reservee);
    EXPECT_EQ(EffacerMachine("qt2d V12"), FinEffacement::Reservee);
    EXPECT_EQ(Fichier(), avant);
    EXPECT_TRUE(m_boites.boites.empty());
}

// Nothing was sent: one box says why, and none tells the failure of something long past.
TEST_F(SauvegardeMachine, UneTableQuiNeTientPasDansLaMemoireEstDiteUneFois) {
    SaisieMachine saisie = Saisie("Atelier");
    saisie.Textes["MicroPasX1"] = "80";
    saisie.Textes["MmParTourX1"] = "0.0001"; // steps a millimetre times speed: past 31 bits
    DernierResultatZelko = -203;
    EXPECT_EQ(SauverParamMachineIniEtZelko(saisie, 0), FinSauvegarde::MemoireManquee);
    EXPECT_TRUE(m_commandes.empty());
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_NE(m_boites.boites[0].texte.find("EcrireTableDansZelkoEtChargerEnRam"), std::string::npos);
}

// Whatever happens to any exchange of a save: moves are enabled only if the box holds the machine and was
// heard to the end; what is not is told; nothing that moves or heats goes out.
TEST_F(SauvegardeMachine, ChaqueEchangePerduTardifCorrompuOuDebranche) {
    using simulateur::Panne;
    SauverParamMachineIniEtZelko(Saisie("Atelier"), 0);
    const std::size_t echanges = m_commandes.size();
    ASSERT_EQ(echanges, 10U);
    for (const Panne panne :
         {Panne::CommandePerdue, Panne::ReponsePerdue, Panne::ReponseTardive, Panne::ReponseCorrompue,
          Panne::ReponseCourte, Panne::Debranchement, Panne::CoupureCourant}) {
        for (std::size_t n = 1; n <= echanges; ++n) {
            SCOPED_TRACE(std::to_string(static_cast<int>(panne)) + " at exchange " + std::to_string(n));
            Recommencer();
            // The machine was there and could move; now it takes another slope.
            SauverParamMachineIniEtZelko(Saisie("Atelier"), 0);
            ASSERT_TRUE(MouvementsActifs);
            m_commandes.clear();
            SaisieMachine saisie = Saisie("Atelier");
            saisie.Textes["PenteAcceleration"] = "9";
            simulateur::PanneProgrammee reglage;
            reglage.panne = panne;
            reglage.echange = m_boite->Comptes().echanges + n;
            m_boite->Programmer(reglage);
            const FinSauvegarde fin = SauverParamMachineIniEtZelko(saisie, 0);
            EXPECT_TRUE(Contient("PenteAcceleration=9\r\n"));
            if (fin == FinSauvegarde::EnregistreeEtEnvoyee) {
                EXPECT_TRUE(MouvementsActifs);
                EXPECT_EQ(simulateur::LireTable(m_boite->Memoires()[0]).pente, 9);
            } else {
                EXPECT_EQ(fin, FinSauvegarde::MemoireManquee);
                EXPECT_FALSE(MouvementsActifs);
                EXPECT_FALSE(m_boites.boites.empty()) << "the user is told";
            }
            EXPECT_TRUE(std::ranges::none_of(m_commandes, EstCommandeDeMouvement));
        }
    }
}
