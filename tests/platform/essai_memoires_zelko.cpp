// The file of the virtual box's memories: what is written comes back, what is no such file is refused with
// its reason.
#include "outils/dossiers.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "platform/memoires_zelko.h"

#include <gtest/gtest.h>

#include <string>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

OctetsMemoires Exemple() {
    OctetsMemoires m;
    for (auto& memoire : m)
        for (auto& partie : memoire) partie.fill(0xFF);
    for (std::size_t p = 0; p < 3; ++p)
        for (std::size_t i = 0; i < OctetsParPartie; ++i)
            m[1][p][i] = static_cast<std::uint8_t>(100 * p + 3 * i);
    return m;
}

std::string Refus(const std::string& texte) {
    const DossierProvisoire dossier;
    const std::string fichier = dossier.Fichier("m.json");
    EcrireFichierAtomique(fichier, texte);
    try {
        LireMemoiresZelko(fichier);
    } catch (const FauteLecture& f) {
        return std::string(f.what()).substr(fichier.size());
    }
    return "";
}

std::string Trois(const std::string& premiere) {
    return R"({"format": "zelko-memoires", "version": 1, "memoires": [)" + premiere + ", null, null]}";
}

} // namespace

TEST(MemoiresZelko, CeQuiEstEcritRevient) {
    const DossierProvisoire dossier;
    const std::string fichier = dossier.Fichier("m.json");
    EcrireMemoiresZelko(fichier, Exemple());
    EXPECT_EQ(LireMemoiresZelko(fichier), Exemple());
    const std::string texte = LireFichierEntier(fichier);
    EXPECT_NE(texte.find("null"), std::string::npos) << texte;
    EXPECT_NE(texte.find("\"00 03 06 09 0c"), std::string::npos) << texte;
}

TEST(MemoiresZelko, UnFichierEcritALaMainEstLu) {
    const DossierProvisoire dossier;
    const std::string fichier = dossier.Fichier("m.json");
    const std::string partie(60, 'A'); // without blanks, capitals
    EcrireFichierAtomique(fichier, Trois(R"({"partie1": ")" + partie + R"(", "partie2": ")" + partie +
                                         R"(", "partie3": ")" + partie + R"("})"));
    const OctetsMemoires m = LireMemoiresZelko(fichier);
    EXPECT_EQ(m[0][2][29], 0xAA);
    EXPECT_EQ(m[1][0][0], 0xFF);
}

TEST(MemoiresZelko, UnFichierAbsentOuEtrangerEstRefuseAvecSaRaison) {
    EXPECT_THROW(LireMemoiresZelko("/absent/m.json"), FauteFichier);
    EXPECT_EQ(Refus(""), ", ligne 1 : ce n'est pas du JSON");
    EXPECT_EQ(Refus("{\n\n  \"format\": zut"), ", ligne 3 : ce n'est pas du JSON");
    EXPECT_EQ(Refus("[1e99999]"), " : ce n'est pas du JSON");
    EXPECT_EQ(Refus("[]"), " : ce n'est pas un fichier de mémoires de l'interface");
    EXPECT_EQ(Refus(R"({"format": 3})"), " : ce n'est pas un fichier de mémoires de l'interface");
    EXPECT_EQ(Refus(R"({"format": "zelko-memoires", "version": 2, "memoires": []})"),
              " : version inconnue : 1 attendue");
    EXPECT_EQ(Refus(R"({"format": "zelko-memoires", "version": 1, "memoires": [null]})"),
              " : trois mémoires attendues");
    EXPECT_EQ(Refus(Trois("{}")), " : mémoire 0, partie1 : 30 octets en hexadécimal attendus");
    EXPECT_EQ(Refus(Trois("7")), " : mémoire 0, partie1 : 30 octets en hexadécimal attendus");
    const std::string bonne(60, '0');
    EXPECT_EQ(Refus(Trois(R"({"partie1": ")" + bonne + R"(", "partie2": ")" + bonne.substr(2) + R"("})")),
              " : mémoire 0, partie2 : 30 octets en hexadécimal attendus");
    EXPECT_EQ(Refus(Trois(R"({"partie1": ")" + bonne + "0" + R"("})")),
              " : mémoire 0, partie1 : 30 octets en hexadécimal attendus");
    EXPECT_EQ(Refus(Trois(R"({"partie1": ")" + bonne.substr(1) + "g" + R"("})")),
              " : mémoire 0, partie1 : 30 octets en hexadécimal attendus");
}
