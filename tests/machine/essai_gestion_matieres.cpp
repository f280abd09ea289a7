// What a user does with the materials: new, save, delete, import, with each refusal and the file afterwards.
#include "machine/gestion_matieres.h"

#include "app/settings/gestion_ini.h"
#include "app/texts/textes.h"
#include "outils/boites.h"
#include "outils/dossiers.h"
#include "platform/fichiers.h"

#include <gtest/gtest.h>

using namespace tessarel;

namespace {

constexpr const char* FichierDeDepart =
    "[Parametres]\r\nMatiereUtilisee=Par defaut\r\n"
    "[Matiere_Bleu]\r\nChauffeDecoupe=60.0\r\nVitesseDecoupe=5.0\r\nSaigneeVD=1.0\r\nSaigneeVDsur2=1.8\r\n"
    "Machine=(Defaut)\r\n"
    "[Matiere_EPP]\r\nChauffeDecoupe=90.0\r\nVitesseDecoupe=2.0\r\nSaigneeVD=1.5\r\nSaigneeVDsur2=2.5\r\n"
    "Machine=Atelier\r\n";

class GestionMatieres : public ::testing::Test {
protected:
    void SetUp() override {
        ChargerMessages(Langue::Francais);
        DossiersProgramme.FichierIni = m_dossier.Fichier("Tessarel.ini");
        EcrireFichierAtomique(DossiersProgramme.FichierIni, FichierDeDepart);
        ASSERT_EQ(ChargerMachine("(Defaut)"), StatutSucces);
        ASSERT_TRUE(ChargerBaseMatieres());
        ChoisirMatiere(MatieresMachine.front());
    }
    void TearDown() override {
        DossiersProgramme = Dossiers{};
        ChargerMessages(Langue::Francais);
    }
    static std::string Fichier() { return LireFichierEntier(DossiersProgramme.FichierIni); }
    static bool Contient(const std::string& texte) { return Fichier().find(texte) != std::string::npos; }
    void AttendreBoite(int rangee) {
        ASSERT_EQ(m_boites.boites.size(), 1U);
        EXPECT_EQ(m_boites.boites[0].texte, TextesDoubles(rangee, 1));
        EXPECT_EQ(m_boites.boites[0].titre, TextesDoubles(rangee, 2));
    }

    essais::BoitesEnregistrees m_boites;

private:
    essais::DossierProvisoire m_dossier;
};

} // namespace

TEST_F(GestionMatieres, UneNouvelleMatierePrendLesValeursEtLaMachine) {
    const std::optional<std::size_t> rang = NouvelleMatiere(" Rose ", {62.5F, 3.25F, 1.125F, 2});
    ASSERT_TRUE(rang);
    EXPECT_EQ(*rang, 2U);
    EXPECT_EQ(MatieresMachine[2].Nom, "Rose");
    EXPECT_EQ(MatieresMachine[2].Machine, "(Defaut)");
    EXPECT_TRUE(Contient("[Matiere_Rose]\r\nChauffeDecoupe=62.5\r\nVitesseDecoupe=3.25\r\nSaigneeVD=1.13\r\n"
                         "SaigneeVDsur2=2.0\r\nMachine=(Defaut)\r\n"))
        << Fichier();
    EXPECT_EQ(MatiereCourante.Nom, "Rose");
    EXPECT_EQ(DecoupeCourante.Chauffe, 62.5F);
    EXPECT_TRUE(Contient("MatiereUtilisee=Rose\r\n"));
    EXPECT_TRUE(m_boites.boites.empty());
}

TEST_F(GestionMatieres, UnNomVideAnnuleSansUnMot) {
    EXPECT_FALSE(NouvelleMatiere("", {1, 1, 1, 1}));
    EXPECT_FALSE(NouvelleMatiere("  ", {1, 1, 1, 1}));
    EXPECT_TRUE(m_boites.boites.empty());
    EXPECT_EQ(Fichier(), FichierDeDepart);
}

TEST_F(GestionMatieres, UnNomPrisEstRefuseAussiDUneAutreMachine) {
    for (const char* nom : {"Bleu", "EPP", "bleu", "Par defaut"}) {
        m_boites.boites.clear();
        EXPECT_FALSE(NouvelleMatiere(nom, {1, 1, 1, 1})) << nom;
        AttendreBoite(18);
    }
    EXPECT_EQ(m_boites.boites[0].titre, "Opération impossible");
    EXPECT_EQ(MatieresMachine.size(), 2U);
    EXPECT_EQ(Fichier(), FichierDeDepart);
}

TEST_F(GestionMatieres, UnCrochetDansLeNomEstRefuse) {
    EXPECT_FALSE(NouvelleMatiere("A]B", {1, 1, 1, 1}));
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(Fichier(), FichierDeDepart);
}

TEST_F(GestionMatieres, SauverRemplaceLesValeurs) {
    EXPECT_TRUE(SauverMatiere(1, {55, 4, 1.25F, 2.25F}));
    EXPECT_TRUE(Contient("[Matiere_Bleu]\r\nChauffeDecoupe=55.0\r\nVitesseDecoupe=4.0\r\nSaigneeVD=1.25\r\n"
                         "SaigneeVDsur2=2.25\r\nMachine=(Defaut)\r\n"));
    EXPECT_EQ(MatiereCourante.SaigneeVD, 1.25F);
    EXPECT_EQ(DecoupeCourante.Vitesse, 4);
}

TEST_F(GestionMatieres, LaLigneParDefautNeSEcritPas) {
    EXPECT_FALSE(SauverMatiere(0, {55, 4, 1, 2}));
    EXPECT_FALSE(SauverMatiere(7, {55, 4, 1, 2}));
    EXPECT_EQ(Fichier(), FichierDeDepart);
}

TEST_F(GestionMatieres, LaLigneParDefautNeSEffacePasDansLesDeuxLangues) {
    EXPECT_FALSE(EffacerMatiere(0));
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(m_boites.boites[0].texte, "Cette ligne ne peut pas être effacée.");
    EXPECT_EQ(m_boites.boites[0].titre, "Opération impossible");
    ChargerMessages(Langue::English);
    m_boites.boites.clear();
    EXPECT_FALSE(EffacerMatiere(0));
    AttendreBoite(19);
    EXPECT_EQ(Fichier(), FichierDeDepart);
}

TEST_F(GestionMatieres, EffacerDemandePuisEnleveLaSection) {
    m_boites.reponses = {ReponseBoite::Non};
    EXPECT_FALSE(EffacerMatiere(1));
    AttendreBoite(20);
    EXPECT_EQ(m_boites.boites[0].texte, "Valider l'effacement de ce matériau?");
    EXPECT_EQ(Fichier(), FichierDeDepart);
    m_boites.reponses = {ReponseBoite::Oui};
    ChoisirMatiere(MatieresMachine[1]);
    EXPECT_TRUE(EffacerMatiere(1));
    EXPECT_FALSE(Contient("Bleu"));
    EXPECT_TRUE(Contient("[Matiere_EPP]"));
    EXPECT_EQ(MatieresMachine.size(), 1U);
    EXPECT_EQ(MatiereCourante.Nom, "Par defaut");
    EXPECT_EQ(DecoupeCourante.Chauffe, 65);
}

TEST_F(GestionMatieres, ImporterCopieEtLaisseLOriginal) {
    ASSERT_TRUE(ImportPossible());
    const std::optional<std::size_t> rang = ImporterMatiere(MatieresAutresMachines[1], "EPP 2");
    ASSERT_TRUE(rang);
    EXPECT_EQ(MatieresMachine[*rang].Nom, "EPP 2");
    EXPECT_EQ(MatieresMachine[*rang].VitesseDecoupe, 2);
    EXPECT_EQ(MatieresMachine[*rang].ChauffeDecoupe, 80) << "what (Defaut) allows";
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(
        m_boites.boites[0].texte,
        "La chauffe de la matière importée (90%)est supérieure à la chauffe maxi de la machine courante "
        "(80%).\r\nLa valeur de chauffe de la nouvelle matière sera celle de la chauffe maxi de la "
        "machine courante.");
    EXPECT_EQ(m_boites.boites[0].titre, "Chauffe maxi dépassée");
    EXPECT_EQ(MatieresAutresMachines.size(), 2U);
    EXPECT_TRUE(Contient("[Matiere_EPP]\r\nChauffeDecoupe=90.0"));
    EXPECT_EQ(MatiereCourante.Nom, "EPP 2");
}

TEST_F(GestionMatieres, ImporterSousUnNomPrisEstRefuse) {
    EXPECT_FALSE(ImporterMatiere(MatieresAutresMachines[1], "EPP"));
    AttendreBoite(18);
    EXPECT_EQ(Fichier(), FichierDeDepart);
}

TEST_F(GestionMatieres, SansAutreMachineIlNYARienAImporter) {
    MatieresAutresMachines.resize(1);
    EXPECT_FALSE(ImportPossible());
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(m_boites.boites[0].texte, "Pas d'autre matière associée à une autre machine");
    EXPECT_EQ(m_boites.boites[0].titre, "Opération impossible");
}

TEST_F(GestionMatieres, LesNomsAffiches) {
    ChargerMessages(Langue::English);
    EXPECT_EQ(NomAfficheMatiere(MatieresMachine[0]), TextesMessages(105));
    EXPECT_EQ(NomAfficheMatiere(MatieresMachine[1]), "Bleu");
    ChargerMessages(Langue::Francais);
    EXPECT_EQ(NomAfficheAvecMachine(MatieresAutresMachines[1]), "EPP (machine : Atelier)");
}
