// Reasons of faults below the text tables follow the language of the tables.
#include "app/texts/textes.h"
#include "outils/dossiers.h"
#include "paths/import.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "platform/nombres.h"
#include "platform/raisons.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>

using namespace tessarel;

namespace {

std::string CeQueDit(void (*acte)()) {
    try {
        acte();
    } catch (const Faute& faute) {
        return faute.what();
    }
    return "";
}

} // namespace

TEST(Raisons, SuiventLaLangueDesTables) {
    ChargerMessages(Langue::English);
    EXPECT_EQ(RaisonSysteme(ENOSPC), "no space left on the disk");
    EXPECT_EQ(CeQueDit([] { ArrondiInteger(40000.0); }), "Overflow (16 bits)");
    ChargerMessages(Langue::Francais);
    EXPECT_EQ(RaisonSysteme(ENOSPC), "il n'y a plus de place sur le disque");
    EXPECT_EQ(CeQueDit([] { ArrondiInteger(40000.0); }), "Dépassement de capacité (16 bits)");
}

TEST(Raisons, UnNumeroInconnuGardeLesMotsDuSysteme) {
    EXPECT_EQ(RaisonSysteme(ENOTCONN), std::strerror(ENOTCONN));
}

TEST(Raisons, UnDossierLuCommeUnFichierEstNomme) {
    const essais::DossierProvisoire dossier;
    try {
        LireFichierEntier(dossier.Chemin());
        FAIL() << "a folder was read";
    } catch (const FauteFichier& faute) {
        EXPECT_EQ(std::string(faute.what()), dossier.Chemin() + " : c'est un dossier");
    }
}

TEST(Raisons, UneFauteDeLectureNommeLeFichierEtLaLigne) {
    ChargerMessages(Langue::English);
    EXPECT_EQ(std::string(FauteLecture("a.txt", 12, "why").what()), "a.txt, line 12: why");
    EXPECT_EQ(std::string(FauteLecture("a.txt", 0, "why").what()), "a.txt: why");
    ChargerMessages(Langue::Francais);
    EXPECT_EQ(std::string(FauteLecture("a.txt", 12, "raison").what()), "a.txt, ligne 12 : raison");
}

TEST(Raisons, UnDessinRefuseLeDitDansLaLangueEnUsage) {
    const essais::DossierProvisoire dossier;
    EcrireFichierAtomique(dossier.Fichier("a.dxf"), "");
    EcrireFichierAtomique(dossier.Fichier("a.txt"), "1.0:2.0\r\n1.0\r\n");
    const auto refus = [&](const std::string& nom) -> std::string {
        try {
            LireDessin(dossier.Fichier(nom), 0.02F);
        } catch (const FauteLecture& faute) {
            return std::string(faute.what()).substr(dossier.Chemin().size() + 1);
        }
        return "";
    };
    EXPECT_EQ(refus("a.dxf"), "a.dxf : le fichier est vide");
    EXPECT_EQ(refus("a.txt"),
              "a.txt, ligne 2 : deux nombres séparés par un double-point (X:Y) étaient attendus");
    ChargerMessages(Langue::English);
    EXPECT_EQ(refus("a.dxf"), "a.dxf: the file is empty");
    EXPECT_EQ(refus("a.txt"), "a.txt, line 2: two numbers separated by a colon (X:Y) were expected");
    ChargerMessages(Langue::Francais);
}
