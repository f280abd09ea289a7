// The recycle bin: a file thrown away is whole in it, with the note that file managers restore it by.
#include "platform/corbeille.h"

#include "outils/dossiers.h"
#include "platform/fichiers.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sys/stat.h>
#include <unistd.h>

using namespace tessarel;
namespace fs = std::filesystem;

namespace {

class EssaiCorbeille : public ::testing::Test {
protected:
    void SetUp() override {
        const char* avant = std::getenv("XDG_DATA_HOME");
        m_avant = avant != nullptr ? avant : "";
        ::setenv("XDG_DATA_HOME", m_dossier.Fichier("donnees").c_str(), 1);
    }
    void TearDown() override {
        if (m_avant.empty()) {
            ::unsetenv("XDG_DATA_HOME");
        } else {
            ::setenv("XDG_DATA_HOME", m_avant.c_str(), 1);
        }
    }
    [[nodiscard]] std::string Corbeille(const std::string& suite) const {
        return m_dossier.Fichier("donnees/Trash/" + suite);
    }
    std::string Ecrire(const std::string& nom, const std::string& contenu) const {
        const std::string chemin = m_dossier.Fichier(nom);
        EcrireFichierAtomique(chemin, contenu);
        return chemin;
    }

    essais::DossierProvisoire m_dossier;
    std::string m_avant;
};

// A folder on another file system than `dossier`; empty where there is none to write to.
std::string AutreVolume(const std::string& dossier) {
    struct stat ici {};
    struct stat la {};
    struct stat dessus {};
    if (::stat(dossier.c_str(), &ici) != 0 || ::stat("/dev/shm", &la) != 0 || ::stat("/dev", &dessus) != 0)
        return "";
    // In a chroot it may be a plain folder, not the top of a volume.
    if (ici.st_dev == la.st_dev || dessus.st_dev == la.st_dev || ::access("/dev/shm", W_OK) != 0) return "";
    std::string modele = "/dev/shm/essai-corbeille-XXXXXX";
    return ::mkdtemp(modele.data()) != nullptr ? modele : "";
}

} // namespace

TEST_F(EssaiCorbeille, LeFichierEstEntierDansLaCorbeilleEtSaNoteDitDOuIlVient) {
    const std::string chemin = Ecrire("profil é 100%.dxf", "contenu");
    ASSERT_TRUE(FichierDansCorbeille(chemin));
    EXPECT_FALSE(FichierExiste(chemin));
    EXPECT_EQ(LireFichierEntier(Corbeille("files/profil é 100%.dxf")), "contenu");
    const std::string note = LireFichierEntier(Corbeille("info/profil é 100%.dxf.trashinfo"));
    const std::string dossier = fs::canonical(m_dossier.Chemin()).string();
    EXPECT_TRUE(
        note.starts_with("[Trash Info]\nPath=" + dossier + "/profil%20%C3%A9%20100%25.dxf\nDeletionDate="))
        << note;
    EXPECT_TRUE(
        std::regex_search(note, std::regex("DeletionDate=\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d\n$")));
}

TEST_F(EssaiCorbeille, UnMemeNomJeteDeuxFoisGardeLesDeuxFichiers) {
    ASSERT_TRUE(FichierDansCorbeille(Ecrire("a.tsr", "premier")));
    ASSERT_TRUE(FichierDansCorbeille(Ecrire("a.tsr", "second")));
    EXPECT_EQ(LireFichierEntier(Corbeille("files/a.tsr")), "premier");
    EXPECT_EQ(LireFichierEntier(Corbeille("files/a.2.tsr")), "second");
    EXPECT_TRUE(FichierExiste(Corbeille("info/a.2.tsr.trashinfo")));
}

TEST_F(EssaiCorbeille, UnFichierSansNoteDansLaCorbeilleNEstPasRemplace) {
    fs::create_directories(Corbeille("files"));
    EcrireFichierAtomique(Corbeille("files/a.tsr"), "ancien");
    ASSERT_TRUE(FichierDansCorbeille(Ecrire("a.tsr", "neuf")));
    EXPECT_EQ(LireFichierEntier(Corbeille("files/a.tsr")), "ancien");
    EXPECT_EQ(LireFichierEntier(Corbeille("files/a.2.tsr")), "neuf");
    EXPECT_FALSE(FichierExiste(Corbeille("info/a.tsr.trashinfo")));
}

TEST_F(EssaiCorbeille, LesDossiersSontFermesAuxAutres) {
    ASSERT_TRUE(FichierDansCorbeille(Ecrire("a.tsr", "x")));
    for (const char* dossier : {"", "files", "info"}) {
        EXPECT_EQ(fs::status(Corbeille(dossier)).permissions(), fs::perms::owner_all) << dossier;
    }
}

TEST_F(EssaiCorbeille, UnDossierOuUnFichierAbsentEstRefuse) {
    fs::create_directories(m_dossier.Fichier("dossier"));
    EXPECT_FALSE(FichierDansCorbeille(m_dossier.Fichier("dossier")));
    EXPECT_TRUE(DossierExiste(m_dossier.Fichier("dossier")));
    EXPECT_FALSE(FichierDansCorbeille(m_dossier.Fichier("absent.dxf")));
    EXPECT_FALSE(FichierDansCorbeille(""));
}

TEST_F(EssaiCorbeille, UnLienEstJeteEtNonCeQuIlMontre) {
    const std::string vrai = Ecrire("vrai.dxf", "x");
    fs::create_symlink(vrai, m_dossier.Fichier("lien.dxf"));
    ASSERT_TRUE(FichierDansCorbeille(m_dossier.Fichier("lien.dxf")));
    EXPECT_TRUE(FichierExiste(vrai));
    EXPECT_FALSE(fs::is_symlink(m_dossier.Fichier("lien.dxf")));
    EXPECT_TRUE(fs::is_symlink(Corbeille("files/lien.dxf")));
}

TEST_F(EssaiCorbeille, UnNomTresLongPasse) {
    const std::string nom = std::string(120, 'a') + std::string(60, 'b') + std::string(65, 'c') + ".dxf";
    std::ofstream(m_dossier.Fichier(nom)) << "x";
    ASSERT_TRUE(FichierDansCorbeille(m_dossier.Fichier(nom)));
    EXPECT_FALSE(FichierExiste(m_dossier.Fichier(nom)));
    EXPECT_EQ(std::distance(fs::directory_iterator(Corbeille("files")), fs::directory_iterator()), 1);
}

TEST_F(EssaiCorbeille, SurUnAutreVolumeLaCorbeilleEstAuSommetDeCeVolume) {
    const std::string autre = AutreVolume(m_dossier.Chemin());
    if (autre.empty()) GTEST_SKIP() << "no second file system to write to";
    const std::string corbeille = "/dev/shm/.Trash-" + std::to_string(::getuid());
    const bool etaitLa = fs::exists(corbeille);
    const std::string nom = NomDuChemin(autre) + ".dxf";
    EcrireFichierAtomique(autre + "/" + nom, "contenu");
    EXPECT_TRUE(FichierDansCorbeille(autre + "/" + nom));
    EXPECT_FALSE(FichierExiste(autre + "/" + nom));
    if (!fs::exists("/dev/shm/.Trash")) {
        EXPECT_EQ(LireFichierEntier(corbeille + "/files/" + nom), "contenu");
        const std::string note = LireFichierEntier(corbeille + "/info/" + nom + ".trashinfo");
        // The path starts at the top of the volume.
        EXPECT_NE(note.find("\nPath=" + NomDuChemin(autre) + "/" + nom + "\n"), std::string::npos) << note;
        fs::remove(corbeille + "/files/" + nom);
        fs::remove(corbeille + "/info/" + nom + ".trashinfo");
        if (!etaitLa) fs::remove_all(corbeille);
    }
    fs::remove_all(autre);
}
