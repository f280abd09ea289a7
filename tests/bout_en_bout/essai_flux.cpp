// Standard streams as a shell hands them over: closed, full, cut short, a terminal.
#include "bout_en_bout/executer.h"
#include "outils/dossiers.h"

#include <gtest/gtest.h>
#include <string>

namespace tessarel::essais {
namespace {

class Flux : public testing::Test {
protected:
    void SetUp() override {
        EcrireTout(travail.Fichier("a.txt"), "A\r\n100:50\r\n200:50\r\n200:150\r\n");
        const Execution lot = Lancer("decouper a.txt --gcode attendu.gcode");
        ASSERT_EQ(lot.statut, 0) << lot.erreurs;
    }

    Execution Lancer(const std::string& suite) {
        return Executer("tessarel-lot --documents doc " + suite, travail.Chemin());
    }

    DossierProvisoire travail;
};

TEST_F(Flux, UneSortieFermeeNeMeleRienAuFichierEcrit) {
    const Execution lot = Lancer("decouper a.txt --gcode a.gcode >&- 2>&- <&-");
    EXPECT_EQ(lot.statut, 0);
    EXPECT_EQ(LireTout(travail.Fichier("a.gcode")), LireTout(travail.Fichier("attendu.gcode")));
}

TEST_F(Flux, UnTubeQuiNeLitPlusLaisseLeTravailEntier) {
    const Execution lot = Lancer("decouper a.txt --gcode a.gcode | true");
    EXPECT_EQ(lot.statut, 0);
    EXPECT_EQ(lot.erreurs, "");
    EXPECT_EQ(LireTout(travail.Fichier("a.gcode")), LireTout(travail.Fichier("attendu.gcode")));
}

TEST_F(Flux, UneSortieSansPlaceEstUnEchec) {
    const Execution lot = Lancer("info a.txt >/dev/full");
    EXPECT_EQ(lot.statut, 1);
    EXPECT_EQ(lot.erreurs, "tessarel-lot: la sortie standard n'a pas pu être écrite\n");
}

TEST_F(Flux, UnTerminalVoitLaBarreEtRienDAutre) {
    if (!ProgrammePresent("script")) GTEST_SKIP() << "script (Debian package bsdutils) is not installed";
    const Execution lot =
        Executer("TERM=xterm script -qec 'tessarel-lot --documents doc decouper a.txt 2>&1 >/dev/null' "
                 "/dev/null",
                 travail.Chemin());
    EXPECT_EQ(lot.statut, 0);
    EXPECT_TRUE(lot.sortie.starts_with("\r\033[K[........................] 1/")) << lot.sortie;
    EXPECT_TRUE(lot.sortie.ends_with("\r\033[K")) << lot.sortie;
    EXPECT_EQ(Lancer("decouper a.txt 2>&1 >/dev/null").sortie, "");
}

TEST_F(Flux, LAideVaSurLaSortieEtLeMauvaisUsageSurLErreur) {
    const Execution aide = Lancer("decouper --help");
    EXPECT_EQ(aide.statut, 0);
    EXPECT_NE(aide.sortie.find("--decalage aucun|gauche|droite"), std::string::npos);
    EXPECT_EQ(aide.erreurs, "");
    const Execution english = Lancer("--langue en decouper --help");
    EXPECT_NE(english.sortie.find("Scales the paths to the block"), std::string::npos);
}

} // namespace
} // namespace tessarel::essais
