// Files: reads, encodings, and writes that leave the old file or the new one.
#include "platform/fichiers.h"

#include "outils/dossiers.h"
#include "platform/erreurs.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace tessarel;

TEST(Fichiers, LectureRefuseDossierTubeEtAbsent) {
    const essais::DossierProvisoire dossier;
    EXPECT_THROW(LireFichierEntier(dossier.Chemin()), FauteFichier);
    EXPECT_THROW(LireFichierEntier(dossier.Fichier("absent")), FauteFichier);
    const std::string tube = dossier.Fichier("tube");
    ASSERT_EQ(::mkfifo(tube.c_str(), 0600), 0);
    EXPECT_THROW(LireFichierEntier(tube), FauteFichier);
}

TEST(Fichiers, EncodageReconnu) {
    EXPECT_EQ(EnUtf8("D\xE9"
                     "cal"),
              "Décal");
    EXPECT_EQ(EnUtf8("Décal"), "Décal");
    EXPECT_EQ(EnUtf8("\x80"), "€");
    EXPECT_EQ(EnUtf8("\xEF\xBB\xBF"
                     "a"),
              "a");
    EXPECT_EQ(EnUtf8("\xC0\xAF"), "À¯"); // an overlong form is no UTF-8
}

// The run of ASCII before, between and after is skipped by words: the place of the odd byte must not matter.
TEST(Fichiers, EncodageReconnuOuQueSoitLOctet) {
    for (std::size_t avant = 0; avant < 20; ++avant) {
        for (std::size_t apres = 0; apres < 20; ++apres) {
            const std::string a(avant, 'a');
            const std::string b(apres, 'b');
            EXPECT_EQ(EnUtf8(a + "\xE9" + b), a + "é" + b);
            EXPECT_EQ(EnUtf8(a + "é" + b), a + "é" + b);
            EXPECT_EQ(EnUtf8(a + "é" + b + "\xE9"), a + "Ã©" + b + "é");
        }
    }
}

TEST(Fichiers, DebutDUnFichier) {
    const essais::DossierProvisoire dossier;
    const std::string chemin = dossier.Fichier("a");
    EcrireFichierAtomique(chemin, std::string(5000, 'x') + "fin");
    EXPECT_EQ(LireDebutFichier(chemin, 4), "xxxx");
    EXPECT_EQ(LireDebutFichier(chemin, 0), "");
    EXPECT_EQ(LireDebutFichier(chemin, 5003).size(), 5003U);
    EXPECT_EQ(LireDebutFichier(chemin, 99999), LireFichierEntier(chemin));
    // A file whose size the system does not tell.
    EXPECT_EQ(LireDebutFichier("/proc/self/status", 5), LireFichierEntier("/proc/self/status").substr(0, 5));
    EXPECT_THROW(LireDebutFichier(dossier.Chemin(), 4), FauteFichier);
}

TEST(Fichiers, EcritureToutOuRien) {
    const essais::DossierProvisoire dossier;
    const std::string cible = dossier.Fichier("a.txt");
    EcrireFichierAtomique(cible, "un");
    {
        EcritureAtomique abandon(cible);
        abandon.Ecrire("deux");
    }
    EXPECT_EQ(LireFichierEntier(cible), "un");
    EcrireFichierAtomique(cible, "trois");
    EXPECT_EQ(LireFichierEntier(cible), "trois");
    const auto debut = std::filesystem::directory_iterator(dossier.Chemin());
    EXPECT_EQ(std::distance(debut, std::filesystem::directory_iterator()), 1);
    EXPECT_THROW(EcrireFichierAtomique(dossier.Fichier("absent/b.txt"), "x"), FauteFichier);
    EXPECT_THROW(EcrireFichierAtomique(dossier.Chemin(), "x"), FauteFichier);
}

// A limit on the size of files stands for a full disk: the write fails after some bytes.
TEST(Fichiers, DisquePleinLaisseLAncien) {
    const essais::DossierProvisoire dossier;
    const std::string cible = dossier.Fichier("a.txt");
    EcrireFichierAtomique(cible, "un");
    struct rlimit avant {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &avant), 0);
    const auto ancien = std::signal(SIGXFSZ, SIG_IGN);
    struct rlimit petit = avant;
    petit.rlim_cur = 1000;
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &petit), 0);
    EXPECT_THROW(EcrireFichierAtomique(cible, std::string(1'000'000, 'x')), FauteFichier);
    ::setrlimit(RLIMIT_FSIZE, &avant);
    std::signal(SIGXFSZ, ancien);
    EXPECT_EQ(LireFichierEntier(cible), "un");
    const auto debut = std::filesystem::directory_iterator(dossier.Chemin());
    EXPECT_EQ(std::distance(debut, std::filesystem::directory_iterator()), 1);
}

TEST(Fichiers, MorceauxDeChemin) {
    EXPECT_EQ(DossierDuChemin("/a/b/c.DXF"), "/a/b");
    EXPECT_EQ(NomDuChemin("/a/b/c.DXF"), "c.DXF");
    EXPECT_EQ(ExtensionMinuscule("/a.b/c.DXF"), "dxf");
    EXPECT_EQ(ExtensionMinuscule("/a.b/c"), "");
    EXPECT_EQ(JoindreChemin("/a/", "b"), "/a/b");
    EXPECT_EQ(JoindreChemin("/a", "b"), "/a/b");
    EXPECT_EQ(DossierDuChemin("/a"), "/");
    EXPECT_EQ(Decouper("a\r\nb\r\n", "\r\n").size(), 3U);
    EXPECT_EQ(Rogner(" \t a b\r\n"), "a b");
}
