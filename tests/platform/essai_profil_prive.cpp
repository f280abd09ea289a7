// Settings files: reading and writing by the private-profile rules.
#include "platform/profil_prive.h"

#include "outils/dossiers.h"
#include "platform/fichiers.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <random>
#include <sys/stat.h>

using namespace tessarel;

TEST(ProfilPrive, SectionsEtClesSansEgardALaCasse) {
    const Profil profil("[Parametres]\r\nLangue=English\r\n[MATIERE_\xC3\x89pais]\r\nA=1\r\n");
    ASSERT_NE(profil.Chercher("PARAMETRES", "langue"), nullptr);
    EXPECT_EQ(*profil.Chercher("PARAMETRES", "langue"), "English");
    ASSERT_NE(profil.Chercher("matiere_\xC3\xA9pais", "a"), nullptr);
    EXPECT_EQ(profil.Chercher("Parametres", "Langu"), nullptr);
    EXPECT_EQ(profil.Chercher("Parametre", "Langue"), nullptr);
}

TEST(ProfilPrive, PremiereSectionEtPremiereCleComptent) {
    const Profil profil("[A]\r\nx=1\r\nX=2\r\n[B]\r\nx=3\r\n[a]\r\nx=4\r\ny=5\r\n");
    EXPECT_EQ(*profil.Chercher("A", "x"), "1");
    EXPECT_EQ(profil.Chercher("A", "y"), nullptr);
    EXPECT_EQ(profil.Sections(), (std::vector<std::string>{"A", "B"}));
    EXPECT_EQ(profil.Cles("A"), (std::vector<std::pair<std::string, std::string>>{{"x", "1"}}));
}

TEST(ProfilPrive, ValeurSansBlancsNiGuillemetsAutourDuTout) {
    const Profil profil("[A]\r\na =  b c  \r\nd=\"e f\"\r\ng='h'\r\ni=\"j\" k\r\nl=\"\r\nm=n=o\r\np=\r\n");
    EXPECT_EQ(*profil.Chercher("A", "a"), "b c");
    EXPECT_EQ(*profil.Chercher("A", "d"), "e f");
    EXPECT_EQ(*profil.Chercher("A", "g"), "h");
    EXPECT_EQ(*profil.Chercher("A", "i"), "\"j\" k");
    EXPECT_EQ(*profil.Chercher("A", "l"), "\"");
    EXPECT_EQ(*profil.Chercher("A", "m"), "n=o");
    EXPECT_EQ(*profil.Chercher("A", "p"), "");
}

TEST(ProfilPrive, ValeurCoupeeA255Caracteres) {
    const std::string longue(300, 'x');
    EXPECT_EQ(*Profil("[A]\r\nk=" + longue + "\r\n").Chercher("A", "k"), std::string(255, 'x'));
    EXPECT_EQ(Profil("[A]\r\nk=" + std::string(255, 'y') + "\r\n").Chercher("A", "k")->size(), 255U);
    std::string accents;
    for (int i = 0; i < 300; ++i) accents += "é";
    EXPECT_EQ(*Profil("[A]\r\nk=" + accents + "\r\n").Chercher("A", "k"), accents.substr(0, 510));
}

TEST(ProfilPrive, ValeurCoupeeAuPremierNul) {
    const std::string texte("[A]\r\nk=ab\0cd\r\n", 14);
    EXPECT_EQ(*Profil(texte).Chercher("A", "k"), "ab");
}

TEST(ProfilPrive, NomDeSectionJusquAuDernierCrochet) {
    const Profil profil("[Machine_A]B]\r\nx=1\r\n[pas une section\r\n");
    EXPECT_EQ(*profil.Chercher("Machine_A]B", "x"), "1");
    EXPECT_EQ(profil.Sections().size(), 1U);
}

TEST(ProfilPrive, EcrireGardeCommentairesEtLignesInconnues) {
    Profil profil("; en tete\r\n[A]\r\n;x=0\r\nx=1\r\nrien\r\n\r\n[B]\r\ny=2\r\n");
    EXPECT_EQ(profil.Cles("A").size(), 1U);
    EXPECT_TRUE(profil.Ecrire("a", "X", "7"));
    EXPECT_TRUE(profil.Ecrire("A", "z", "8"));
    EXPECT_TRUE(profil.Ecrire("C", "w", "9"));
    EXPECT_EQ(profil.Texte(),
              "; en tete\r\n[A]\r\n;x=0\r\nx=7\r\nrien\r\nz=8\r\n\r\n[B]\r\ny=2\r\n[C]\r\nw=9\r\n");
}

TEST(ProfilPrive, DerniereLigneSansFinEstTerminee) {
    Profil profil("[A]\r\nx=1");
    profil.Ecrire("A", "y", "2");
    EXPECT_EQ(profil.Texte(), "[A]\r\nx=1\r\ny=2\r\n");
    Profil entete("[A]");
    entete.Ecrire("B", "y", "2");
    EXPECT_EQ(entete.Texte(), "[A]\r\n[B]\r\ny=2\r\n");
}

TEST(ProfilPrive, NomsEtValeursQuiCasseraientLeFichier) {
    Profil profil;
    EXPECT_FALSE(profil.Ecrire("", "k", "1"));
    EXPECT_FALSE(profil.Ecrire("A", "", "1"));
    EXPECT_FALSE(profil.Ecrire("A", "a=b", "1"));
    EXPECT_FALSE(profil.Ecrire("A\r\n[B", "k", "1"));
    EXPECT_TRUE(profil.Ecrire("A", "k", "1\r\n[B]"));
    EXPECT_EQ(profil.Sections(), (std::vector<std::string>{"A"}));
    EXPECT_EQ(profil.Texte(), "[A]\r\nk=1  [B]\r\n");
}

TEST(ProfilPrive, EffacerVideLaSectionEtGardeSonEntete) {
    Profil profil("[A]\r\nx=1\r\n[B]\r\ny=2\r\n[a]\r\nz=3\r\n");
    profil.Effacer("A");
    EXPECT_EQ(profil.Texte(), "[A]\r\n[B]\r\ny=2\r\n[a]\r\n");
    profil.SupprimerLignes("[A]");
    EXPECT_EQ(profil.Texte(), "[B]\r\ny=2\r\n[a]\r\n");
}

TEST(ProfilPrive, SupprimerLignesOuQueSoitLeTexte) {
    Profil profil("[A]\r\nx=[B]\r\n[B]\r\n;voir [B]\r\ny=1\r\n");
    profil.SupprimerLignes("[B]");
    EXPECT_EQ(profil.Texte(), "[A]\r\ny=1\r\n");
    EXPECT_EQ(*profil.Chercher("A", "y"), "1");
    profil.SupprimerLignes("");
    EXPECT_EQ(profil.Texte(), "[A]\r\ny=1\r\n");
}

TEST(ProfilsFichiers, AbsentDonneLeDefautEtEcrireCree) {
    const essais::DossierProvisoire dossier;
    const std::string fichier = dossier.Fichier("a.ini");
    EXPECT_EQ(LireProfil(fichier, "A", "k", "defaut"), "defaut");
    EXPECT_FALSE(FichierExiste(fichier));
    EXPECT_TRUE(EffacerSectionProfil(fichier, "A"));
    EXPECT_FALSE(FichierExiste(fichier));
    EXPECT_TRUE(EcrireProfil(fichier, "A", "k", "1"));
    EXPECT_EQ(LireFichierEntier(fichier), "[A]\r\nk=1\r\n");
    EXPECT_EQ(LireProfil(fichier, "a", "K", "defaut"), "1");
}

TEST(ProfilsFichiers, ChangementDuDehorsEstVu) {
    const essais::DossierProvisoire dossier;
    const std::string fichier = dossier.Fichier("a.ini");
    EcrireProfil(fichier, "A", "k", "1");
    EXPECT_EQ(LireProfil(fichier, "A", "k", ""), "1");
    EcrireFichierAtomique(fichier, "[A]\r\nk=2\r\nautre=3\r\n");
    EXPECT_EQ(LireProfil(fichier, "A", "k", ""), "2");
    EcrireFichierAtomique(fichier, "[A]\r\nk=5\r\nautre=3\r\n");
    EXPECT_TRUE(EcrireProfil(fichier, "A", "l", "4"));
    EXPECT_EQ(LireFichierEntier(fichier), "[A]\r\nk=5\r\nautre=3\r\nl=4\r\n");
    std::filesystem::remove(fichier);
    EXPECT_EQ(LireProfil(fichier, "A", "k", "rien"), "rien");
}

TEST(ProfilsFichiers, LuEnWindows1252EtEcritEnUtf8) {
    const essais::DossierProvisoire dossier;
    const std::string fichier = dossier.Fichier("a.ini");
    EcrireFichierAtomique(fichier, "[Matiere_\xE9pais]\r\nMachine=d\xE9part\r\n");
    EXPECT_EQ(LireProfil(fichier, "Matiere_épais", "Machine", ""), "départ");
    EcrireProfil(fichier, "Matiere_épais", "Machine", "arrivée");
    EXPECT_EQ(LireFichierEntier(fichier), "[Matiere_épais]\r\nMachine=arrivée\r\n");
}

TEST(ProfilsFichiers, EcritureImpossibleEstDiteEtLAncienReste) {
    const essais::DossierProvisoire dossier;
    EXPECT_FALSE(EcrireProfil(dossier.Fichier("absent/a.ini"), "A", "k", "1"));
    EXPECT_EQ(LireProfil(dossier.Fichier("absent/a.ini"), "A", "k", "rien"), "rien");
    EXPECT_FALSE(EcrireProfil(dossier.Chemin(), "A", "k", "1"));
}

TEST(ProfilsFichiers, CeQuiNePeutEtreLuNEstPasEcrase) {
    const essais::DossierProvisoire dossier;
    const std::string tube = dossier.Fichier("tube");
    ASSERT_EQ(::mkfifo(tube.c_str(), 0600), 0);
    EXPECT_EQ(LireProfil(tube, "A", "k", "rien"), "rien");
    EXPECT_FALSE(EcrireProfil(tube, "A", "k", "1"));
    EXPECT_FALSE(EffacerSectionProfil(tube, "A"));
    EXPECT_TRUE(std::filesystem::is_fifo(tube));
}

TEST(ProfilsFichiers, EcrituresGroupeesEnUneFois) {
    const essais::DossierProvisoire dossier;
    const std::string fichier = dossier.Fichier("a.ini");
    {
        EcrituresGroupees dehors(fichier);
        {
            const EcrituresGroupees dedans(fichier);
            EcrireProfil(fichier, "A", "k", "1");
        }
        EXPECT_FALSE(FichierExiste(fichier));
        EXPECT_EQ(LireProfil(fichier, "A", "k", ""), "1");
        EXPECT_TRUE(SupprimerLignesProfil(fichier, "rien de tel"));
        EXPECT_TRUE(dehors.Valider());
    }
    EXPECT_EQ(LireFichierEntier(fichier), "[A]\r\nk=1\r\n");
}

TEST(ProfilsFichiers, ValeurInchangeeNeReecritPas) {
    const essais::DossierProvisoire dossier;
    const std::string fichier = dossier.Fichier("a.ini");
    EcrireProfil(fichier, "A", "k", "1");
    struct stat avant {};
    struct stat apres {};
    ASSERT_EQ(::stat(fichier.c_str(), &avant), 0);
    EXPECT_TRUE(EcrireProfil(fichier, "a", "K", "1"));
    ASSERT_EQ(::stat(fichier.c_str(), &apres), 0);
    EXPECT_EQ(apres.st_ino, avant.st_ino);
    EXPECT_EQ(LireFichierEntier(fichier), "[A]\r\nk=1\r\n");
}

// Random writes, clears and reopenings against a plain map.
TEST(ProfilPrive, CommeUnModeleNaifSurDesEcrituresAuHasard) {
    std::mt19937 hasard(20260101);
    for (int essai = 0; essai < 60; ++essai) {
        Profil profil("; note\r\n\r\nvide\r\n[S0]\r\n");
        std::map<std::string, std::map<std::string, std::string>> modele;
        for (int pas = 0; pas < 120; ++pas) {
            const std::string section = (hasard() % 2 != 0U ? "S" : "s") + std::to_string(hasard() % 4);
            const std::string cle = (hasard() % 2 != 0U ? "K" : "k") + std::to_string(hasard() % 5);
            if (hasard() % 12 == 0) {
                profil.Effacer(section);
                modele[EnMinuscules(section)].clear();
            } else {
                const std::string valeur = std::to_string(hasard() % 1000);
                ASSERT_TRUE(profil.Ecrire(section, cle, valeur));
                modele[EnMinuscules(section)][EnMinuscules(cle)] = valeur;
            }
            if (hasard() % 10 == 0) profil = Profil(profil.Texte());
        }
        for (int s = 0; s < 4; ++s) {
            for (int k = 0; k < 5; ++k) {
                const auto& cles = modele["s" + std::to_string(s)];
                const auto attendu = cles.find("k" + std::to_string(k));
                const std::string* lu = profil.Chercher("S" + std::to_string(s), "K" + std::to_string(k));
                ASSERT_EQ(lu != nullptr, attendu != cles.end()) << profil.Texte();
                if (lu != nullptr) {
                    ASSERT_EQ(*lu, attendu->second) << profil.Texte();
                }
            }
        }
        EXPECT_TRUE(profil.Texte().starts_with("; note\r\n\r\nvide\r\n[S0]\r\n"));
    }
}
