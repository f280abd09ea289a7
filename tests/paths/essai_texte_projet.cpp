// Sections and values of a project, beside the reader of settings files: both must read the same.
#include "paths/texte_projet.h"

#include "platform/profil_prive.h"

#include <gtest/gtest.h>

#include <random>

using namespace tessarel;

TEST(TexteProjet, LitCommeUnFichierDeReglages) {
    const std::vector<std::string> morceaux = {"[a]",
                                               "[A]",
                                               "[b]",
                                               "]",
                                               "[",
                                               "a",
                                               "B",
                                               "=",
                                               "k",
                                               "K=1",
                                               "k=2",
                                               "k = \"x\"",
                                               "b='y'",
                                               ";k=3",
                                               " ",
                                               "\t",
                                               "\r\n",
                                               "\r\n",
                                               "\n",
                                               "\r",
                                               "\"",
                                               "é",
                                               ";",
                                               "[a]x",
                                               "k=",
                                               "a=[b]",
                                               std::string(300, 'z'),
                                               std::string(1, '\0')};
    std::mt19937 hasard(17);
    int presentes = 0;
    for (int essai = 0; essai < 20000; ++essai) {
        std::string texte;
        for (std::size_t n = hasard() % 25; n > 0; --n)
            texte += morceaux[hasard() % morceaux.size()] + (hasard() % 2 == 0 ? "\n" : "");
        const Profil reference(texte);
        const TexteProjet projet(texte, "essai");
        for (const char* section : {"a", "B", "b]", "c"}) {
            for (const char* cle : {"k", "B", "a", "a k"}) {
                const std::string* attendue = reference.Chercher(section, cle);
                presentes += attendue != nullptr && !attendue->empty() ? 1 : 0;
                ASSERT_EQ(projet.Valeur(section, cle), attendue != nullptr ? *attendue : "")
                    << "section " << section << " key " << cle << " of " << texte;
            }
        }
    }
    EXPECT_GT(presentes, 5000);
}

TEST(TexteProjet, SectionsNumerotees) {
    const TexteProjet texte("[S1]\n[s2]\n[S2]\n[S10]\n[S03]\n[S]\n[Sx]\n[S4x]\n[T5]\n[S99999999999]\n",
                            "essai");
    EXPECT_EQ(texte.CompterNumerotees("s", 100), 3U);
    EXPECT_EQ(texte.CompterNumerotees("S", 9), 2U);
    EXPECT_EQ(texte.CompterNumerotees("S", 0), 0U);
}

TEST(TexteProjet, CorpsJusquALaSectionSuivante) {
    const TexteProjet texte("avant=1\n[a]\nk=[1]\n x [b]\n  [b]\nk=2\n[a]\nk=3\n[c]", "essai");
    EXPECT_EQ(texte.Corps("A"), "k=[1]\n x [b]\n  ");
    EXPECT_EQ(texte.Corps("b"), "k=2\n");
    EXPECT_TRUE(texte.Contient("c"));
    EXPECT_EQ(texte.Corps("c"), "");
    EXPECT_FALSE(texte.Contient("d"));
}
