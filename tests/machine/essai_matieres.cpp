// The material base: how it is built, adopted, mended and limited.
#include "machine/matieres.h"

#include "app/settings/gestion_ini.h"
#include "app/settings/parametres.h"
#include "outils/boites.h"
#include "outils/dossiers.h"
#include "platform/fichiers.h"

#include <gtest/gtest.h>

using namespace tessarel;

namespace {

class Matieres : public ::testing::Test {
protected:
    void SetUp() override {
        DossiersProgramme.FichierIni = m_dossier.Fichier("Tessarel.ini");
        TableINI = TableMachine{};
        Ecrire("[Parametres]\r\n");
        ASSERT_EQ(ChargerMachine("(Defaut)"), StatutSucces);
    }
    void TearDown() override { DossiersProgramme = Dossiers{}; }

    static void Ecrire(const std::string& texte) {
        EcrireFichierAtomique(DossiersProgramme.FichierIni, texte);
    }
    static std::string Fichier() { return LireFichierEntier(DossiersProgramme.FichierIni); }

    essais::BoitesEnregistrees m_boites;

private:
    essais::DossierProvisoire m_dossier;
};

std::vector<std::string> Noms(const std::vector<Matiere>& matieres) {
    std::vector<std::string> noms;
    noms.reserve(matieres.size());
    for (const Matiere& matiere : matieres) noms.push_back(matiere.Nom);
    return noms;
}

} // namespace

TEST_F(Matieres, LigneParDefautVientDeLaMachine) {
    ASSERT_TRUE(ChargerBaseMatieres());
    ASSERT_EQ(MatieresMachine.size(), 1U);
    const Matiere& defaut = MatieresMachine[0];
    EXPECT_EQ(defaut.Nom, "Par defaut");
    EXPECT_EQ(defaut.ChauffeDecoupe, 65);
    EXPECT_EQ(defaut.VitesseDecoupe, 4);
    EXPECT_EQ(defaut.SaigneeVD, 1);
    EXPECT_EQ(defaut.SaigneeVDsur2, 2);
    EXPECT_EQ(MatieresAutresMachines.size(), 1U);
    EXPECT_EQ(Fichier(), "[Parametres]\r\n");
}

TEST_F(Matieres, RepartiesParMachine) {
    Ecrire("[Matiere_Polystyrene]\r\nChauffeDecoupe=62,5\r\nVitesseDecoupe=3.25\r\nSaigneeVD=1.1\r\n"
           "SaigneeVDsur2=1.9\r\nMachine=(Defaut)\r\n[Matiere_EPP]\r\nVitesseDecoupe=2\r\nMachine=Atelier\r\n"
           "[Matiere_Bleu]\r\nVitesseDecoupe=5\r\nMachine=(Defaut)\r\n");
    ASSERT_TRUE(ChargerBaseMatieres());
    EXPECT_EQ(Noms(MatieresMachine), (std::vector<std::string>{"Par defaut", "Polystyrene", "Bleu"}));
    EXPECT_EQ(Noms(MatieresAutresMachines), (std::vector<std::string>{"", "EPP"}));
    EXPECT_EQ(MatieresMachine[1].ChauffeDecoupe, 62.5F);
    EXPECT_EQ(MatieresMachine[1].VitesseDecoupe, 3.25F);
    EXPECT_EQ(MatieresMachine[1].SaigneeVD, 1.1F);
    EXPECT_EQ(MatieresMachine[1].SaigneeVDsur2, 1.9F);
    EXPECT_EQ(MatieresAutresMachines[1].Machine, "Atelier");
    EXPECT_TRUE(m_boites.boites.empty());
}

TEST_F(Matieres, SansMachineEstAdopteeEtReste) {
    Ecrire("[Matiere_Vieille]\r\nVitesseDecoupe=3\r\n");
    ASSERT_TRUE(ChargerBaseMatieres());
    EXPECT_EQ(Noms(MatieresMachine), (std::vector<std::string>{"Par defaut", "Vieille"}));
    EXPECT_EQ(Fichier(), "[Matiere_Vieille]\r\nVitesseDecoupe=3\r\nMachine=(Defaut)\r\n");
    ChargerMachine("QT4X-m1");
    ASSERT_TRUE(ChargerBaseMatieres());
    EXPECT_EQ(Noms(MatieresMachine), (std::vector<std::string>{"Par defaut"}));
    EXPECT_EQ(Noms(MatieresAutresMachines), (std::vector<std::string>{"", "Vieille"}));
}

TEST_F(Matieres, VitesseNulleEstRepareeDansLeFichier) {
    Ecrire("[Matiere_Lente]\r\nMachine=(Defaut)\r\nVitesseDecoupe=0\r\n");
    ASSERT_TRUE(ChargerBaseMatieres());
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(m_boites.boites[0].titre, "VitesseDecoupe=0, valeur impossible");
    EXPECT_EQ(m_boites.boites[0].texte,
              "Lente modifiée à 4 dans Tessarel.ini pour éviter les erreurs de calcul.");
    EXPECT_EQ(LireIni("Matiere_Lente", "VitesseDecoupe", ""), "4.0");
    EXPECT_EQ(MatieresMachine[1].VitesseDecoupe, 4);
    ASSERT_TRUE(ChargerBaseMatieres());
    EXPECT_EQ(m_boites.boites.size(), 1U);
}

TEST_F(Matieres, VitesseParDefautNulleDeLaMachine) {
    TableINI.Nom = "Atelier";
    TableINI.VitesseDecoupeParDefaut = 0;
    ASSERT_TRUE(ChargerBaseMatieres());
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(m_boites.boites[0].titre, "VitesseDecoupeParDefaut=0, valeur impossible");
    EXPECT_EQ(m_boites.boites[0].texte, "VitesseDecoupeParDefaut de la table en cours modifiée à 4 dans "
                                        "Tessarel.ini pour éviter les erreurs de calcul.");
    EXPECT_EQ(LireIni("Machine_Atelier", "VitesseDecoupeParDefaut", ""), "4.0");
    EXPECT_EQ(MatieresMachine[0].VitesseDecoupe, 4);
}

TEST_F(Matieres, ParDefautDansLeFichierEstRetiree) {
    Ecrire("[Parametres]\r\nLangue=Francais\r\n[Matiere_Par defaut]\r\nVitesseDecoupe=9\r\n"
           "[Matiere_Bleu]\r\nVitesseDecoupe=5\r\nMachine=(Defaut)\r\n");
    ASSERT_TRUE(ChargerBaseMatieres());
    EXPECT_EQ(Noms(MatieresMachine), (std::vector<std::string>{"Par defaut", "Bleu"}));
    EXPECT_EQ(MatieresMachine[0].VitesseDecoupe, 4);
    EXPECT_EQ(Fichier(), "[Parametres]\r\nLangue=Francais\r\n[Matiere_Bleu]\r\nVitesseDecoupe=5\r\n"
                         "Machine=(Defaut)\r\n");
}

TEST_F(Matieres, SectionEnDoubleLaPremiereCompte) {
    Ecrire("[Matiere_Bleu]\r\nVitesseDecoupe=5\r\nMachine=(Defaut)\r\n"
           "[Matiere_Bleu]\r\nVitesseDecoupe=7\r\nMachine=Atelier\r\n");
    ASSERT_TRUE(ChargerBaseMatieres());
    EXPECT_EQ(Noms(MatieresMachine), (std::vector<std::string>{"Par defaut", "Bleu"}));
    EXPECT_EQ(MatieresMachine[1].VitesseDecoupe, 5);
}

TEST_F(Matieres, FichierSansRetourChariotFinitLeProgramme) {
    Ecrire("[Parametres]\n" + std::string(300, 'x') + "\n");
    EXPECT_FALSE(ChargerBaseMatieres());
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(m_boites.boites[0].titre, "Problème de fichier .ini");
    EXPECT_NE(m_boites.boites[0].texte.find("(attention, pas avec le bloc-notes)"), std::string::npos);
    EXPECT_EQ(m_boites.boites[0].icone, IconeBoite::Critique);
}

TEST_F(Matieres, EcrireMatiereEtRelire) {
    EcrireMatiere("Dépron", 55.55F, 3.456F, 1.005F, 2, "(Defaut)");
    EXPECT_EQ(Fichier(), "[Parametres]\r\n[Matiere_Dépron]\r\nChauffeDecoupe=55.6\r\nVitesseDecoupe=3.46\r\n"
                         "SaigneeVD=1.01\r\nSaigneeVDsur2=2.0\r\nMachine=(Defaut)\r\n");
    ASSERT_TRUE(ChargerBaseMatieres());
    const Matiere* depron = TrouverMatiere("Dépron");
    ASSERT_NE(depron, nullptr);
    EXPECT_EQ(depron->ChauffeDecoupe, 55.6F);
}

TEST_F(Matieres, RechercheExacteEtChoix) {
    Ecrire("[Matiere_Bleu]\r\nChauffeDecoupe=50\r\nVitesseDecoupe=5\r\nSaigneeVD=0.8\r\nSaigneeVDsur2=1.2\r\n"
           "Machine=(Defaut)\r\n");
    ASSERT_TRUE(ChargerBaseMatieres());
    EXPECT_EQ(TrouverMatiere("bleu"), nullptr);
    ASSERT_NE(TrouverMatiere("Bleu"), nullptr);
    ChoisirMatiere(*TrouverMatiere("Bleu"));
    EXPECT_EQ(MatiereCourante.Nom, "Bleu");
    EXPECT_EQ(DecoupeCourante.Chauffe, 50);
    EXPECT_EQ(DecoupeCourante.Vitesse, 5);
    EXPECT_EQ(DecoupeCourante.SaigneeVD, 0.8F);
    EXPECT_EQ(DecoupeCourante.SaigneeVDsur2, 1.2F);
}

TEST_F(Matieres, ValeursDansLesLimitesPassentSansBoite) {
    const ValeursDecoupe limites{80, 10, 6, 6};
    const ValeursDecoupe bridees = LimiterValeurs(limites, TableINI, 6);
    EXPECT_EQ(bridees.Chauffe, 80);
    EXPECT_EQ(bridees.Vitesse, 10);
    EXPECT_EQ(bridees.SaigneeVD, 6);
    EXPECT_TRUE(m_boites.boites.empty());
}

TEST_F(Matieres, ValeursTropHautesSontBrideesEtDites) {
    const ValeursDecoupe bridees = LimiterValeurs({80.5F, 10.1F, 6.5F, 7}, TableINI, 6);
    EXPECT_EQ(bridees.Chauffe, 80);
    EXPECT_EQ(bridees.Vitesse, 10);
    EXPECT_EQ(bridees.SaigneeVD, 6);
    EXPECT_EQ(bridees.SaigneeVDsur2, 6);
    ASSERT_EQ(m_boites.boites.size(), 4U);
    EXPECT_EQ(m_boites.boites[0].titre, "Valeur incorrecte");
    EXPECT_EQ(
        m_boites.boites[0].texte,
        "Il y a un problème : la valeur de chauffe mémorisée pour cette matière dépasse la valeur maximale "
        "possible sur la machine.\r\nLa chauffe sera bridée à la valeur maximale.");
    EXPECT_EQ(m_boites.boites[1].texte,
              "Il y a un problème : la valeur de vitesse pour la matière choisie n'est pas dans les limites "
              "admissibles par la machine.\r\nLa vitesse sera bridée à la valeur maximale.");
    EXPECT_EQ(
        m_boites.boites[2].texte,
        "Il y a un problème : la valeur de saignée pour la matière choisie dépasse la limite définie dans "
        "les "
        "paramètres du logiciel.\r\nLa saignée sera bridée à la valeur maximale. Vous pouvez modifier ce "
        "paramètre en cliquant sur le bouton marqué d'un i.");
    EXPECT_EQ(m_boites.boites[3].texte, m_boites.boites[2].texte);
}
