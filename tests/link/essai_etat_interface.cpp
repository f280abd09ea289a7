// The link library at run time: missing, too old, incomplete, present, with and without a box.
#include "link/etat_interface.h"

#include "outils/boites.h"
#include "outils/dossiers.h"

#include <gtest/gtest.h>

#include <fstream>

using namespace tessarel;

namespace {

std::vector<std::string> Cas(const std::string& nom) {
    return {std::string(TESSAREL_FAUSSES_BIBLIOTHEQUES) + "/" + nom};
}

class Bibliotheque : public ::testing::Test {
protected:
    void TearDown() override {
        LibererZelkoCom();
        ReinitialiserEtatInterface();
    }
    essais::BoitesEnregistrees m_boites;
    essais::DossierProvisoire m_dossier;
};

} // namespace

TEST_F(Bibliotheque, AbsenteEstDiteEtLeProgrammeContinueSansInterface) {
    EXPECT_EQ(TesterBibliothequeZelko({m_dossier.Chemin()}), EtatBibliotheque::Absente);
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(m_boites.boites[0].titre, "Communication avec la machine impossible");
    EXPECT_EQ(
        m_boites.boites[0].texte,
        "Le fichier ZelkoCom.dll n'a pas été trouvé,\r\nveuillez l'installer sur votre ordinateur, à la "
        "bonne place.\r\nLa découpe sera désactivée.");
    EXPECT_FALSE(TesterInterface());
    EXPECT_FALSE(InterfaceConnectee);
    Tampon tampon{};
    EXPECT_EQ(Zelko_Send(tampon), -500);
    EXPECT_EQ(Zelko_Dll_Version(), 0);
}

TEST_F(Bibliotheque, VersionQuinzeEstTropVieille) {
    EXPECT_EQ(TesterBibliothequeZelko(Cas("v15")), EtatBibliotheque::TropVieille);
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(m_boites.boites[0].icone, IconeBoite::Critique);
    EXPECT_EQ(m_boites.boites[0].titre, "Communication avec la machine impossible");
    EXPECT_EQ(m_boites.boites[0].texte,
              "Le fichier ZelkoComm.dll présent sur votre ordinateur est trop vieux.\r\nTessarel ne peut pas "
              "fonctionner.\r\nVeuillez télécharger la dernière version et relancer.");
    EXPECT_EQ(Zelko_Dll_Version(), 15);
    EXPECT_FALSE(TesterInterface()); // though this one says that a box is there
    Tampon tampon{};
    EXPECT_EQ(Zelko_Send(tampon), -500);
}

TEST_F(Bibliotheque, VersionSeizeEstPresente) {
    EXPECT_EQ(TesterBibliothequeZelko(Cas("v16")), EtatBibliotheque::Presente);
    EXPECT_TRUE(m_boites.boites.empty());
    EXPECT_EQ(Zelko_Dll_Version(), 16);
    EXPECT_FALSE(TesterInterface());
    Tampon tampon{};
    tampon[1] = 73;
    tampon[64] = 255;
    EXPECT_EQ(Zelko_Send(tampon), 1);
    EXPECT_EQ(tampon[0], 0);
    EXPECT_EQ(tampon[1], 74);
    EXPECT_EQ(tampon[64], 0);
}

TEST_F(Bibliotheque, BoitierBranche) {
    EXPECT_EQ(TesterBibliothequeZelko(Cas("branchee")), EtatBibliotheque::Presente);
    EXPECT_TRUE(TesterInterface());
    EXPECT_TRUE(InterfaceConnectee);
    EXPECT_FALSE(MouvementsActifs); // a box alone allows nothing
}

TEST_F(Bibliotheque, IncompleteOuIllisibleVautAbsente) {
    EXPECT_EQ(ChargerZelkoCom(Cas("incomplete")), EtatBibliotheque::Absente);
    EXPECT_NE(OrigineZelkoCom().find("Zelko_IsConnected"), std::string::npos) << OrigineZelkoCom();
    std::ofstream(m_dossier.Fichier(NomBibliothequeZelko)) << "ceci n'est pas une bibliotheque";
    EXPECT_EQ(ChargerZelkoCom({m_dossier.Chemin()}), EtatBibliotheque::Absente);
    EXPECT_NE(OrigineZelkoCom(), "");
}

TEST_F(Bibliotheque, LePremierDossierQuiLaContientGagne) {
    const std::vector<std::string> dossiers = {m_dossier.Chemin(), Cas("incomplete")[0], Cas("v16")[0],
                                               Cas("v15")[0]};
    EXPECT_EQ(ChargerZelkoCom(dossiers), EtatBibliotheque::Presente);
    EXPECT_EQ(OrigineZelkoCom(), Cas("v16")[0] + "/libZelkoCom.so");
    EXPECT_EQ(ChargerZelkoCom({}), EtatBibliotheque::Absente);
}

TEST_F(Bibliotheque, ChercheeDAbordACoteDuProgramme) {
    const std::vector<std::string> dossiers = DossiersZelkoCom();
    ASSERT_EQ(dossiers.size(), 2U);
    EXPECT_EQ(dossiers[0], TESSAREL_BIN);
}
