// The user's folders as the desktop declares them, and the lock of the single instance.
#include "platform/dossiers.h"

#include "outils/dossiers.h"
#include "platform/fichiers.h"
#include "platform/instance.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <unistd.h>

using namespace tessarel;

namespace {

// Sets a variable of the environment, or takes it away, and puts it back at the end.
class VariableProvisoire {
public:
    VariableProvisoire(const char* nom, const std::optional<std::string>& valeur) : m_nom(nom) {
        if (const char* ancienne = std::getenv(nom)) m_ancienne = ancienne;
        Poser(valeur);
    }
    ~VariableProvisoire() { Poser(m_ancienne); }
    VariableProvisoire(const VariableProvisoire&) = delete;
    VariableProvisoire& operator=(const VariableProvisoire&) = delete;

private:
    void Poser(const std::optional<std::string>& valeur) const {
        if (valeur)
            ::setenv(m_nom, valeur->c_str(), 1);
        else
            ::unsetenv(m_nom);
    }
    const char* m_nom;
    std::optional<std::string> m_ancienne;
};

class DossiersUtilisateur : public ::testing::Test {
protected:
    DossiersUtilisateur()
        : m_personnel("HOME", m_maison.Chemin()), m_configuration("XDG_CONFIG_HOME", std::nullopt) {}

    void Declarer(const std::string& ligne) const {
        std::filesystem::create_directories(m_maison.Fichier(".config"));
        EcrireFichierAtomique(m_maison.Fichier(".config/user-dirs.dirs"),
                              "# commentaire\nXDG_DESKTOP_DIR=\"$HOME/Bureau\"\n" + ligne + "\n");
    }

    essais::DossierProvisoire m_maison;

private:
    VariableProvisoire m_personnel;
    VariableProvisoire m_configuration;
};

} // namespace

TEST_F(DossiersUtilisateur, DeclaresParLeBureau) {
    CreerDossier(m_maison.Fichier("Mes documents"));
    Declarer("XDG_DOCUMENTS_DIR=\"$HOME/Mes\\ documents/\"");
    EXPECT_EQ(DossierDocumentsUtilisateur(), m_maison.Fichier("Mes documents"));
    const essais::DossierProvisoire ailleurs;
    Declarer("XDG_DOCUMENTS_DIR=\"" + ailleurs.Chemin() + "\"");
    EXPECT_EQ(DossierDocumentsUtilisateur(), ailleurs.Chemin());
}

TEST_F(DossiersUtilisateur, DeclarationFausseOuAbsenteSeRabatSurDocuments) {
    CreerDossier(m_maison.Fichier("Documents"));
    EXPECT_EQ(DossierDocumentsUtilisateur(), m_maison.Fichier("Documents"));
    for (const char* ligne : {"XDG_DOCUMENTS_DIR=\"$HOME/Absent\"", "XDG_DOCUMENTS_DIR=relatif",
                              "XDG_DOCUMENTS_DIR=\"relatif\"", "XDG_DOCUMENTS_DIR="}) {
        Declarer(ligne);
        EXPECT_EQ(DossierDocumentsUtilisateur(), m_maison.Fichier("Documents")) << ligne;
    }
}

TEST_F(DossiersUtilisateur, SansDocumentsLeDossierPersonnel) {
    EXPECT_EQ(DossierDocumentsUtilisateur(), m_maison.Chemin());
    Declarer("XDG_DOCUMENTS_DIR=\"$HOME/\"");
    EXPECT_EQ(DossierDocumentsUtilisateur(), m_maison.Chemin());
}

TEST_F(DossiersUtilisateur, ConfigurationDuProgramme) {
    EXPECT_EQ(DossierConfiguration(), m_maison.Fichier(".config/tessarel"));
    {
        const VariableProvisoire base("XDG_CONFIG_HOME", "/quelque/part");
        EXPECT_EQ(DossierConfiguration(), "/quelque/part/tessarel");
    }
    const VariableProvisoire relative("XDG_CONFIG_HOME", "relatif");
    EXPECT_EQ(DossierConfiguration(), m_maison.Fichier(".config/tessarel"));
}

TEST_F(DossiersUtilisateur, DossierDuProgrammeEnCours) {
    EXPECT_EQ(DossierExecutable(), TESSAREL_BIN);
}

TEST_F(DossiersUtilisateur, VerrouDansLeDossierDeSession) {
    const VariableProvisoire session("XDG_RUNTIME_DIR", m_maison.Chemin());
    EXPECT_EQ(FichierVerrouInstance(), m_maison.Fichier("tessarel.lock"));
    const VariableProvisoire absente("XDG_RUNTIME_DIR", std::nullopt);
    EXPECT_EQ(NomDuChemin(FichierVerrouInstance()), "tessarel-" + std::to_string(::getuid()) + ".lock");
}

TEST_F(DossiersUtilisateur, UneSeuleInstanceALaFois) {
    const std::string fichier = m_maison.Fichier("verrou");
    {
        const VerrouInstance premiere(fichier);
        EXPECT_TRUE(premiere.Seule());
        const VerrouInstance seconde(fichier);
        EXPECT_FALSE(seconde.Seule());
        const VerrouInstance autreFichier(m_maison.Fichier("autre"));
        EXPECT_TRUE(autreFichier.Seule());
    }
    const VerrouInstance apres(fichier);
    EXPECT_TRUE(apres.Seule());
}

TEST_F(DossiersUtilisateur, VerrouImpossibleNEmpechePasDeDemarrer) {
    const VerrouInstance verrou(m_maison.Fichier("absent/verrou"));
    EXPECT_TRUE(verrou.Seule());
}
