// The library's content as read from a made-up folder, and copies into it.
#include "paths/bibliotheque.h"

#include "outils/dossiers.h"
#include "platform/fichiers.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

using namespace tessarel;
namespace fs = std::filesystem;

namespace {

class EssaiBibliotheque : public ::testing::Test {
protected:
    void SetUp() override { fs::create_directories(Racine()); }
    [[nodiscard]] std::string Racine() const { return m_dossier.Fichier("Bibliotheque"); }
    void Dossier(const std::string& nom) const { fs::create_directories(Racine() + "/" + nom); }
    void Fichier(const std::string& nom, const std::string& contenu = "x") const {
        EcrireFichierAtomique(Racine() + "/" + nom, contenu);
    }

    essais::DossierProvisoire m_dossier;
};

using Noms = std::vector<std::string>;

Noms NomsDossiers(const DossierBibliotheque& dossier) {
    Noms noms;
    for (const DossierBibliotheque& d : dossier.dossiers) noms.push_back(d.nom);
    return noms;
}

} // namespace

TEST_F(EssaiBibliotheque, UneBibliothequeVideNAQueSaRacine) {
    const ContenuBibliotheque contenu = LireBibliotheque(Racine());
    EXPECT_EQ(contenu.racine.nom, "Bibliotheque");
    EXPECT_EQ(contenu.racine.chemin, Racine());
    EXPECT_TRUE(contenu.racine.dossiers.empty());
    EXPECT_TRUE(contenu.racine.fichiers.empty());
    EXPECT_TRUE(contenu.complet);
    EXPECT_EQ(LireBibliotheque(Racine() + "/").racine.chemin, Racine());
    EXPECT_TRUE(LireBibliotheque(m_dossier.Fichier("absente")).racine.fichiers.empty());
}

TEST_F(EssaiBibliotheque, LesNeufGenresSeulsParaissentDansToutesLesCasses) {
    for (const char* nom : {"a.tsr", "b.DAT", "c.Dxf", "d.plt", "e.eps", "f.qnt", "g.CPX", "h.fc", "i.txt",
                            "j.ini", "k.dxf.bak", "dxf", "l.", ".m.dxf"})
        Fichier(nom);
    const ContenuBibliotheque contenu = LireBibliotheque(Racine());
    EXPECT_EQ(contenu.racine.fichiers,
              (Noms{"a.tsr", "b.DAT", "c.Dxf", "d.plt", "e.eps", "f.qnt", "g.CPX", "h.fc", "i.txt"}));
    EXPECT_EQ(contenu.fichiers, 9U);
}

TEST_F(EssaiBibliotheque, LesDossiersViennentTousMemeVides) {
    Dossier("vide");
    Dossier("Ailes/Delta/Essais");
    Dossier(".cache");
    Fichier("Ailes/Delta/aile.tsr");
    const ContenuBibliotheque contenu = LireBibliotheque(Racine());
    ASSERT_EQ(NomsDossiers(contenu.racine), (Noms{"Ailes", "vide"}));
    const DossierBibliotheque& ailes = contenu.racine.dossiers[0];
    ASSERT_EQ(NomsDossiers(ailes), Noms{"Delta"});
    EXPECT_EQ(ailes.dossiers[0].chemin, Racine() + "/Ailes/Delta");
    EXPECT_EQ(ailes.dossiers[0].fichiers, Noms{"aile.tsr"});
    EXPECT_EQ(NomsDossiers(ailes.dossiers[0]), Noms{"Essais"});
    EXPECT_TRUE(contenu.racine.dossiers[1].fichiers.empty());
    EXPECT_EQ(contenu.dossiers, 4U);
}

TEST_F(EssaiBibliotheque, LesNomsSontRangesSansEgardAuxCapitales) {
    for (const char* nom : {"b.dxf", "A.dxf", "C.dxf", "a.dxf"}) Fichier(nom);
    EXPECT_EQ(LireBibliotheque(Racine()).racine.fichiers, (Noms{"A.dxf", "a.dxf", "b.dxf", "C.dxf"}));
}

TEST_F(EssaiBibliotheque, UnLienQuiTourneEnRondNEstPasSuivi) {
    Dossier("a");
    fs::create_directory_symlink(Racine(), Racine() + "/a/boucle");
    fs::create_directory_symlink(Racine() + "/a", Racine() + "/jumeau");
    fs::create_directory_symlink(m_dossier.Chemin(), Racine() + "/dessus");
    const ContenuBibliotheque contenu = LireBibliotheque(Racine());
    EXPECT_EQ(NomsDossiers(contenu.racine), Noms{"a"});
    EXPECT_TRUE(contenu.racine.dossiers[0].dossiers.empty());
    EXPECT_TRUE(contenu.complet);
}

TEST_F(EssaiBibliotheque, UnDossierLieDAilleursParaitUneFois) {
    fs::create_directories(m_dossier.Fichier("ailleurs"));
    EcrireFichierAtomique(m_dossier.Fichier("ailleurs/a.dxf"), "x");
    fs::create_directory_symlink(m_dossier.Fichier("ailleurs"), m_dossier.Fichier("ailleurs/soi"));
    fs::create_directory_symlink(m_dossier.Fichier("ailleurs"), Racine() + "/lien");
    const ContenuBibliotheque contenu = LireBibliotheque(Racine());
    ASSERT_EQ(NomsDossiers(contenu.racine), Noms{"lien"});
    EXPECT_EQ(contenu.racine.dossiers[0].fichiers, Noms{"a.dxf"});
    EXPECT_TRUE(contenu.racine.dossiers[0].dossiers.empty());
}

TEST_F(EssaiBibliotheque, UnTubeOuUnLienMortNeParaitPas) {
    ASSERT_EQ(::mkfifo((Racine() + "/tube.dxf").c_str(), 0600), 0);
    fs::create_symlink(Racine() + "/absent.dxf", Racine() + "/mort.dxf");
    EXPECT_TRUE(LireBibliotheque(Racine()).racine.fichiers.empty());
}

TEST_F(EssaiBibliotheque, LaProfondeurEstLimitee) {
    std::string chemin;
    for (int i = 0; i < ProfondeurMaxBibliotheque + 5; ++i) chemin += "d/";
    Dossier(chemin);
    const ContenuBibliotheque contenu = LireBibliotheque(Racine());
    EXPECT_FALSE(contenu.complet);
    EXPECT_EQ(contenu.dossiers, static_cast<std::size_t>(ProfondeurMaxBibliotheque) + 1);
}

TEST_F(EssaiBibliotheque, UneCopieRemplaceLeFichierDuMemeNom) {
    Fichier("a.dxf", "ancien, plus long");
    fs::create_directories(m_dossier.Fichier("ailleurs"));
    EcrireFichierAtomique(m_dossier.Fichier("ailleurs/a.dxf"), "neuf");
    EcrireFichierAtomique(m_dossier.Fichier("ailleurs/b.dat"), "profil");
    const Noms choisis = {m_dossier.Fichier("ailleurs/a.dxf"), m_dossier.Fichier("ailleurs/b.dat")};
    EXPECT_EQ(CopierDansBibliotheque(choisis, Racine()), Noms{});
    EXPECT_EQ(LireFichierEntier(Racine() + "/a.dxf"), "neuf");
    EXPECT_EQ(LireFichierEntier(Racine() + "/b.dat"), "profil");
    EXPECT_TRUE(FichierExiste(choisis[0]));
    // A separator at the folder's end makes no difference.
    EXPECT_EQ(CopierDansBibliotheque(choisis, Racine() + "/"), Noms{});
}

TEST_F(EssaiBibliotheque, UnFichierCopieSurLuiMemeReste) {
    Fichier("a.dxf", "contenu");
    EXPECT_EQ(CopierDansBibliotheque({Racine() + "/a.dxf"}, Racine()), Noms{});
    EXPECT_EQ(LireFichierEntier(Racine() + "/a.dxf"), "contenu");
}

TEST_F(EssaiBibliotheque, UneCopieImpossibleEstDiteEtLesAutresSontFaites) {
    EcrireFichierAtomique(m_dossier.Fichier("b.dxf"), "bon");
    const Noms echecs =
        CopierDansBibliotheque({m_dossier.Fichier("absent.dxf"), m_dossier.Fichier("b.dxf")}, Racine());
    ASSERT_EQ(echecs.size(), 1U);
    EXPECT_NE(echecs[0].find("absent.dxf"), std::string::npos);
    EXPECT_EQ(LireFichierEntier(Racine() + "/b.dxf"), "bon");
    EXPECT_EQ(CopierDansBibliotheque({m_dossier.Fichier("b.dxf")}, m_dossier.Fichier("nulle-part")).size(),
              1U);
}
