// Each rule of the house refuses what it must refuse and lets the rest pass: made-up snippets, one breach
// each.
#include "architecture/regles.h"

#include <gtest/gtest.h>

#include <string>

using namespace tessarel::architecture;

namespace {

std::size_t Inclure(const std::string& chemin, const std::string& entete) {
    return VerifierInclusions(FlechesDeLaMaison(), chemin, "// A file.\n#include " + entete + "\n").size();
}

} // namespace

TEST(Regles, UneFlecheVersLeBasPasse) {
    EXPECT_EQ(Inclure("src/work2d/decalage.cpp", "\"platform/nombres.h\""), 0U);
    EXPECT_EQ(Inclure("src/work2d/decalage.cpp", "\"machine/table_machine.h\""), 0U);
    EXPECT_EQ(Inclure("src/work2d/decalage.cpp", "\"work2d/decoupe2d.h\""), 0U);
    EXPECT_EQ(Inclure("src/work2d/decalage.cpp", "\"decoupe2d.h\""), 0U);
    EXPECT_EQ(Inclure("src/paths/import.cpp", "\"platform/gabar/gabar.h\""), 0U);
    EXPECT_EQ(Inclure("src/work2d/ui/frmTessarel2D.cpp", "\"work2d/decoupe2d.h\""), 0U);
    EXPECT_EQ(Inclure("tests/paths/essai_points.cpp", "\"outils/dossiers.h\""), 0U);
    EXPECT_EQ(Inclure("tests/architecture/essai_regles.cpp", "\"architecture/regles.h\""), 0U);
}

TEST(Regles, UneFlecheVersLeHautEstRefusee) {
    EXPECT_EQ(Inclure("src/paths/points.cpp", "\"machine/table_machine.h\""), 1U);
    EXPECT_EQ(Inclure("src/platform/nombres.cpp", "\"app/texts/textes.h\""), 1U);
    EXPECT_EQ(Inclure("src/app/texts/textes.cpp", "\"app/settings/parametres.h\""), 1U);
    EXPECT_EQ(Inclure("src/work2d/decalage.cpp", "\"work2d/ui/frmTessarel2D.h\""), 1U);
    EXPECT_EQ(Inclure("src/work2d/decalage.cpp", "\"ui/theme.h\""), 1U);
    EXPECT_EQ(Inclure("programs/tessarel-lot/decouper.cpp", "\"ui/boites_qt.h\""), 1U);
    EXPECT_EQ(Inclure("tests/paths/essai_points.cpp", "\"work2d/decoupe2d.h\""), 1U);
}

TEST(Regles, UneFlecheVersLaFenetreDunAutreSousSystemeEstRefusee) {
    EXPECT_EQ(Inclure("src/app/ui/frmSplashScreen.cpp", "\"work2d/ui/frmTessarel2D.h\""), 1U);
    EXPECT_EQ(Inclure("src/work2d/ui/frmTessarel2D.cpp", "\"app/ui/frmSplashScreen.h\""), 1U);
    EXPECT_EQ(Inclure("programs/tessarel/principal.cpp", "\"app/ui/frmSplashScreen.h\""), 0U);
}

TEST(Regles, UnDossierHorsDeLaTableEstRefuse) {
    EXPECT_EQ(Inclure("src/nouveau/fichier.cpp", "\"platform/nombres.h\""), 1U);
    EXPECT_EQ(Inclure("src/paths/points.cpp", "\"nouveau/fichier.h\""), 1U);
    EXPECT_EQ(Inclure("src/paths/interne/points.cpp", "\"platform/nombres.h\""), 1U);
    EXPECT_EQ(Inclure("src/paths/points.cpp", "\"../platform/nombres.h\""), 1U);
}

TEST(Regles, QtResteDansLesFenetres) {
    EXPECT_EQ(Inclure("src/paths/points.cpp", "<QString>"), 1U);
    EXPECT_EQ(Inclure("src/work2d/apercu.cpp", "<QtGui/QImage>"), 1U);
    EXPECT_EQ(Inclure("src/platform/reseau.cpp", "<QNetworkReply>"), 1U);
    EXPECT_EQ(Inclure("programs/tessarel-lot/decouper.cpp", "<QGuiApplication>"), 1U);
    EXPECT_EQ(Inclure("tests/work2d/essai_decalage.cpp", "<QTest>"), 1U);
    EXPECT_EQ(Inclure("src/ui/theme.cpp", "<QPalette>"), 0U);
    EXPECT_EQ(Inclure("src/work2d/ui/frmTessarel2D.h", "<QMainWindow>"), 0U);
    EXPECT_EQ(Inclure("src/platform/images/images.cpp", "<QImage>"), 0U);
    EXPECT_EQ(Inclure("programs/tessarel/principal.cpp", "<QApplication>"), 0U);
    EXPECT_EQ(Inclure("tests/fenetres/essai_kit.cpp", "<QtTest>"), 0U);
    EXPECT_EQ(Inclure("tests/fenetres/essai_kit.cpp", "\"essai_kit.moc\""), 0U);
    EXPECT_EQ(Inclure("tests/paths/essai_points.cpp", "\"essai_points_autre/x.moc\""), 1U);
}

TEST(Regles, LesBibliothequesEtrangeresRestentDansPlatform) {
    EXPECT_EQ(Inclure("src/paths/import.cpp", "<dxflib/dl_dxf.h>"), 1U);
    EXPECT_EQ(Inclure("src/work2d/resume.cpp", "<unistd.h>"), 1U);
    EXPECT_EQ(Inclure("src/paths/import.cpp", "<CLI/CLI.hpp>"), 1U);
    EXPECT_EQ(Inclure("src/paths/import.cpp", "<gtest/gtest.h>"), 1U);
    EXPECT_EQ(Inclure("programs/tessarel/principal.cpp", "<CLI/CLI.hpp>"), 1U);
    EXPECT_EQ(Inclure("programs/tessarel-lot/principal.cpp", "<CLI/CLI.hpp>"), 0U);
    EXPECT_EQ(Inclure("programs/tessarel-lot/verbe_info.cpp", "<nlohmann/json.hpp>"), 0U);
    EXPECT_EQ(Inclure("src/paths/import.cpp", "<nlohmann/json.hpp>"), 1U);
    EXPECT_EQ(Inclure("programs/tessarel-lot/progression.cpp", "<unistd.h>"), 1U);
    EXPECT_EQ(Inclure("src/platform/gabar/gabar_dxf.cpp", "<dxflib/dl_dxf.h>"), 0U);
    EXPECT_EQ(Inclure("src/work2d/resume.cpp", "<fmt/format.h>"), 0U);
    EXPECT_EQ(Inclure("src/work2d/resume.cpp", "<vector>"), 0U);
    EXPECT_EQ(Inclure("tests/bout_en_bout/essai_lot.cpp", "<sys/wait.h>"), 0U);
    EXPECT_EQ(Inclure("bench/bench_dxf.cpp", "<benchmark/benchmark.h>"), 0U);
}

TEST(Regles, LesEspacesDuneInclusionNeTrompentPas) {
    EXPECT_EQ(VerifierInclusions(FlechesDeLaMaison(), "src/paths/a.cpp", "  #  include   <QString> // why\n")
                  .size(),
              1U);
    EXPECT_EQ(VerifierInclusions(FlechesDeLaMaison(), "src/paths/a.cpp", "#include\"ui/theme.h\"\r\n").size(),
              1U);
    EXPECT_TRUE(
        VerifierInclusions(FlechesDeLaMaison(), "src/paths/a.cpp", "// #include <QString>\n").empty());
    const auto entorses =
        VerifierInclusions(FlechesDeLaMaison(), "src/paths/a.cpp", "\n\n#include <QString>\n");
    ASSERT_EQ(entorses.size(), 1U);
    EXPECT_EQ(entorses[0].ligne, 3);
}

TEST(Regles, LesMotsInterdits) {
    const std::string interdits[] = {
        std::string("as Pa") + "rt 4.2 tells", std::string("see sp") + "ec.md",
        std::string("The Sp") + "ec says",     std::string("by the sp") + "ecification",
        std::string("Clar") + "ifications",    std::string("des") + "ign.md",
        std::string("iss") + "ue #12",         std::string("iss") + "ue 2",
        std::string("// TO") + "DO later",     std::string("FIX") + "ME",
        std::string("/wo") + "rk/main/src",    std::string("cla") + "ude",
        std::string("an ag") + "ent",          std::string("https://deb.deb") + "ian.org/",
        std::string("<<<<<") + "<< HEAD",      std::string("XX") + "X",
    };
    for (const std::string& texte : interdits)
        EXPECT_EQ(VerifierMots("a\n" + texte + "\nb\n").size(), 1U) << texte;
    for (const char* texte :
         {"Part of the path", "a party of 4.2", "todos los", "an issue of taste", "specific",
          "tessarel-essai-XXXXXX", "inspector", "the working folder", "reagent", "parts 4"}) {
        EXPECT_TRUE(VerifierMots(texte).empty()) << texte;
    }
    EXPECT_EQ(VerifierMots(std::string("x\ny\nFIX") + "ME\n").at(0).ligne, 3);
}

TEST(Regles, SixCentsLignesAuPlus) {
    std::string texte;
    for (long i = 0; i < LignesMax; ++i) texte += "x\n";
    EXPECT_TRUE(VerifierLongueur(texte).empty());
    EXPECT_EQ(VerifierLongueur(texte + "x\n").size(), 1U);
}

TEST(Regles, UnFichierSOuvreParUnePhrase) {
    EXPECT_TRUE(VerifierPhraseOuvrante("// What a machine is.\n#pragma once\n").empty());
    EXPECT_TRUE(
        VerifierPhraseOuvrante("// The road of a cut,\n// from start to end: all of it.\n#pragma once\n")
            .empty());
    EXPECT_EQ(VerifierPhraseOuvrante("#pragma once\n// What a machine is.\n").size(), 1U);
    EXPECT_EQ(VerifierPhraseOuvrante("").size(), 1U);
    EXPECT_EQ(VerifierPhraseOuvrante("//\n#pragma once\n").size(), 1U);
    EXPECT_EQ(VerifierPhraseOuvrante("// points.h\n").size(), 1U);
    EXPECT_EQ(VerifierPhraseOuvrante("// what a machine is\n#pragma once\n").size(), 1U);
}

TEST(Regles, LesFlechesDeclareesALaConstructionSontLues) {
    const Fleches f =
        FlechesDeCMake("tessarel_module(bas DOSSIER a/bas LIENS fmt::fmt)\n"
                       "tessarel_module(haut DOSSIER haut\n  LIENS bas Qt6::Widgets PRIVES autre)\n"
                       "tessarel_module(autre DOSSIER autre)\n");
    EXPECT_EQ(f.at("haut"), (std::vector<std::string>{"a/bas", "autre"}));
    EXPECT_TRUE(f.at("a/bas").empty());
    EXPECT_TRUE(PeutInclure(f, "haut", "a/bas"));
    EXPECT_FALSE(PeutInclure(f, "a/bas", "haut"));
}
