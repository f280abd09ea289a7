// The G-code judged by an independent interpreter, LinuxCNC's rs274: every move that it makes is one of the
// file, in order and to the last decimal. Skipped where that program is not installed.
#include "bout_en_bout/executer.h"
#include "outils/dossiers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

namespace tessarel::essais {
namespace {

// A machine whose name has no parentheses: inside a comment the interpreter refuses them.
constexpr const char* REGLAGES = "[Parametres]\r\n"
                                 "MachineUtilisee=Atelier\r\n"
                                 "[Machine_Atelier]\r\n"
                                 "CourseX=980\r\n"
                                 "CourseY=510\r\n"
                                 "MargeFilBloc=10\r\n"
                                 "MargeOrigineBloc=20\r\n"
                                 "VitesseDecoupeParDefaut=4\r\n"
                                 "VitesseRapide=20\r\n"
                                 "EcartementY1Y2=520\r\n"
                                 "LongueurMaxiFil=660\r\n"
                                 "ChauffeMaxiSur100=80\r\n"
                                 "ChauffeParDefaut=65\r\n"
                                 "TempoChauffe=2\r\n"
                                 "SaigneeVDParDefaut=1\r\n"
                                 "SaigneeVDsur2ParDefaut=2\r\n"
                                 "VmaxAvecAccXY=30\r\n";

// X, Y, Z, A: the two carriages in the order in which the interpreter names its axes.
using Mouvement = std::array<double, 4>;

std::vector<Mouvement> MouvementsDuFichier(const std::string& gcode) {
    std::vector<Mouvement> mouvements;
    std::istringstream lignes(gcode);
    for (std::string ligne; std::getline(lignes, ligne);) {
        Mouvement m{};
        double f = 0;
        if (std::sscanf(ligne.c_str(), "G01 X%lf Y%lf A%lf Z%lf F%lf", &m[0], &m[1], &m[3], &m[2], &f) == 5)
            mouvements.push_back(m);
    }
    return mouvements;
}

std::vector<Mouvement> MouvementsInterpretes(const std::string& trace) {
    std::vector<Mouvement> mouvements;
    std::istringstream lignes(trace);
    for (std::string ligne; std::getline(lignes, ligne);) {
        const auto i = ligne.find("STRAIGHT_FEED(");
        if (i == std::string::npos) continue;
        Mouvement m{};
        if (std::sscanf(ligne.c_str() + i, "STRAIGHT_FEED(%lf, %lf, %lf, %lf,", &m[0], &m[1], &m[2], &m[3]) ==
            4)
            mouvements.push_back(m);
    }
    return mouvements;
}

void VerifierDecoupe(const std::string& dessin, const std::string& options) {
    if (!ProgrammePresent("rs274")) GTEST_SKIP() << "rs274 (Debian package linuxcnc-uspace) is not installed";
    const DossierProvisoire travail;
    std::filesystem::create_directories(travail.Fichier("doc/Tessarel/Datas"));
    EcrireTout(travail.Fichier("doc/Tessarel/Datas/Tessarel.ini"), REGLAGES);
    const Execution lot =
        Executer("tessarel-lot --documents doc decouper '" + dessin + "' --gcode sortie.gcode " + options,
                 travail.Chemin());
    ASSERT_EQ(lot.statut, 0) << lot.erreurs;
    const auto ecrits = MouvementsDuFichier(LireTout(travail.Fichier("sortie.gcode")));
    ASSERT_GT(ecrits.size(), 10U);

    // The interpreter wants a file for its variables, even an empty one.
    EcrireTout(travail.Fichier("variables"), "");
    const Execution rs274 = Executer("rs274 -g -v variables sortie.gcode", travail.Chemin());
    EXPECT_EQ(rs274.statut, 0) << rs274.erreurs;
    EXPECT_EQ(rs274.sortie.find("error"), std::string::npos) << rs274.sortie;
    EXPECT_NE(rs274.sortie.find("SET_FEED_MODE(0, 0)"), std::string::npos);
    EXPECT_NE(rs274.sortie.find("SET_SPINDLE_SPEED(0, 650.0000)"), std::string::npos);
    EXPECT_NE(rs274.sortie.find("DWELL(2.0000)"), std::string::npos);
    EXPECT_NE(rs274.sortie.find("PROGRAM_END()"), std::string::npos);
    EXPECT_EQ(MouvementsInterpretes(rs274.sortie), ecrits);
}

// A wing of two profiles with as many points, tapered and swept.
std::string Aile4axes() {
    const auto profil = [](double corde, double dx, double dy) {
        std::string points;
        constexpr int n = 60;
        for (int i = 0; i <= 2 * n; ++i) {
            const double a = 3.14159265358979 * i / n;
            const double x = (1 + std::cos(a)) / 2;
            const double y = (i <= n ? 0.09 : -0.05) * std::sqrt(std::max(0.0, 1 - x)) * x * 2;
            points += std::to_string(i + 1) + "=" + std::to_string((1 - x) * corde + dx) + ":" +
                      std::to_string(y * corde + dy) + ":" + (i == n ? "8" : "0") + "\r\n";
        }
        return "NombrePoints=" + std::to_string(2 * n + 1) + "\r\n" + points;
    };
    return "[TypeProjet]\r\nOnglet=D4X\r\n[Conception4axes_Emplanture]\r\n" + profil(250, 0, 0) +
           "[Conception4axes_Saumon]\r\n" + profil(180, 35, 5) +
           "[Conception4axes_Position]\r\nEcartement=400\r\n[Conception4axes_Bloc]\r\nEpaisseur=60\r\n"
           "MargeBaE=10\r\nMargeBaS=10\r\nMargeBfE=10\r\nMargeBfS=10\r\nDistProfilDessousE=15\r\n"
           "[Decoupe4axes]\r\nTypePositionZ=2\r\nOffsetBlocX=30\r\nTypeAlgorithmeDecalage=1\r\n"
           "[ParametresFichier]\r\nNumeroMajorVersionTessarel=5\r\n";
}

// What the 4-axis cut adds to the settings: motors, for it prepares its frames in any case.
constexpr const char* MOTEURS = "FrequenceInterpolateur=50000\r\n"
                                "PenteAcceleration=6\r\n"
                                "MmParTourX1=40\r\nMmParTourY1=40\r\nMmParTourX2=40\r\nMmParTourY2=40\r\n"
                                "PasParTourMoteurX1=200\r\nPasParTourMoteurY1=200\r\n"
                                "PasParTourMoteurX2=200\r\nPasParTourMoteurY2=200\r\n"
                                "MicroPasX1=64\r\nMicroPasY1=64\r\nMicroPasX2=64\r\nMicroPasY2=64\r\n"
                                "VmaxSansAccXY=15\r\n";

// Runs `prepare` in a folder with a 4-axis machine, cuts the aile.tsr that it leaves and has the file read.
void VerifierAile(const std::string& prepare, const std::string& options, std::size_t mouvementsMin,
                  bool avecArret) {
    const DossierProvisoire travail;
    std::filesystem::create_directories(travail.Fichier("doc/Tessarel/Datas"));
    EcrireTout(travail.Fichier("doc/Tessarel/Datas/Tessarel.ini"), std::string(REGLAGES) + MOTEURS);
    EcrireTout(travail.Fichier("aile.tsr"), Aile4axes());
    const Execution lot =
        Executer(prepare + "\ntessarel-lot --documents doc decouper aile.tsr --gcode sortie.gcode " + options,
                 travail.Chemin());
    ASSERT_EQ(lot.statut, 0) << lot.erreurs;
    const auto ecrits = MouvementsDuFichier(LireTout(travail.Fichier("sortie.gcode")));
    ASSERT_GT(ecrits.size(), mouvementsMin) << options;
    EcrireTout(travail.Fichier("variables"), "");
    const Execution rs274 = Executer("rs274 -g -v variables sortie.gcode", travail.Chemin());
    EXPECT_EQ(rs274.statut, 0) << rs274.erreurs;
    EXPECT_EQ(rs274.sortie.find("error"), std::string::npos) << rs274.sortie;
    EXPECT_NE(rs274.sortie.find("SET_FEED_MODE(0, 0)"), std::string::npos);
    EXPECT_EQ(rs274.sortie.find("PROGRAM_STOP()") != std::string::npos, avecArret) << options;
    EXPECT_NE(rs274.sortie.find("PROGRAM_END()"), std::string::npos);
    EXPECT_EQ(MouvementsInterpretes(rs274.sortie), ecrits) << options;
}

TEST(Interpreteur, ReconnaitUneAileSur4AxesAvecSesArrets) {
    if (!ProgrammePresent("rs274")) GTEST_SKIP() << "rs274 (Debian package linuxcnc-uspace) is not installed";
    for (const char* options : {"", "--TypeEntree 2 --TypeSortie 1", "--CoteDecalage 2 --symetrie",
                                "--TypeAlgorithmeDecalage 0 --SortieIntermediaire 1 "
                                "--CurseurSortieIntermediaire 61"})
        VerifierAile("", options, 100, true);
}

TEST(Interpreteur, ReconnaitUneAileDeDeuxProfilsDAutrui) {
    if (!ProgrammePresent("rs274")) GTEST_SKIP() << "rs274 (Debian package linuxcnc-uspace) is not installed";
    const std::string corpus = DossierCorpus(TESSAREL_RACINE);
    if (corpus.empty()) GTEST_SKIP() << "no folder of foreign files beside the checkout";
    const auto prepare = [&](const std::string& emplanture, const std::string& saumon) {
        return "tessarel-lot --documents doc aile --emplanture '" + corpus + "/dat/" + emplanture +
               "' --saumon '" + corpus + "/dat/" + saumon +
               "' --corde 250 --corde-saumon 180 --ecartement 400 --fleche 20 --bloc-auto 5 --synchroniser "
               "aile.tsr";
    };
    const std::string options = "--TypePositionZ 2 --auto-xy";
    VerifierAile(prepare("hotwingcore__e374.dat", "hotwingcore__naca4424.dat"), options, 50, false);
    VerifierAile(prepare("airfoiloptimiz__clarky.dat", "hotwingcore__goe187.dat"), options, 50, false);
}

// From two airfoil files of different point counts, of other people's making, to what a controller moves.
TEST(Interpreteur, ReconnaitDesAilesDeProfilsDAutrui) {
    if (!ProgrammePresent("rs274")) GTEST_SKIP() << "rs274 (Debian package linuxcnc-uspace) is not installed";
    const std::string corpus = DossierCorpus(TESSAREL_RACINE);
    if (corpus.empty()) GTEST_SKIP() << "no folder of foreign files beside the checkout";
    using Paire = std::pair<std::string, std::string>;
    for (const auto& [emplanture, saumon] : {Paire("airfoiloptimiz__clarky", "hotwingcore__e374"),
                                             Paire("bladeelementmo__e193", "gmshairfoil2d__naca0010"),
                                             Paire("winggcode__mh30", "openscadairfoi__rcf517")}) {
        const DossierProvisoire travail;
        std::filesystem::create_directories(travail.Fichier("doc/Tessarel/Datas"));
        EcrireTout(travail.Fichier("doc/Tessarel/Datas/Tessarel.ini"), std::string(REGLAGES) + MOTEURS);
        const Execution aile =
            Executer("tessarel-lot --documents doc aile --emplanture '" + corpus + "/dat/" + emplanture +
                         ".dat' --saumon '" + corpus + "/dat/" + saumon +
                         ".dat' --corde 220 --corde-saumon 150,5 --ecartement 400 --fleche 25 "
                         "--vrillage -1.5 --bloc-auto 5 --synchroniser aile.tsr",
                     travail.Chemin());
        ASSERT_EQ(aile.statut, 0) << aile.erreurs;
        const Execution lot =
            Executer("tessarel-lot --documents doc decouper aile.tsr --auto-xy --gcode sortie.gcode",
                     travail.Chemin());
        ASSERT_EQ(lot.statut, 0) << emplanture << lot.erreurs;
        const auto ecrits = MouvementsDuFichier(LireTout(travail.Fichier("sortie.gcode")));
        ASSERT_GT(ecrits.size(), 80U) << emplanture;
        EcrireTout(travail.Fichier("variables"), "");
        const Execution rs274 = Executer("rs274 -g -v variables sortie.gcode", travail.Chemin());
        EXPECT_EQ(rs274.statut, 0) << rs274.erreurs;
        EXPECT_EQ(rs274.sortie.find("error"), std::string::npos) << rs274.sortie;
        EXPECT_EQ(MouvementsInterpretes(rs274.sortie), ecrits) << emplanture;
    }
}

TEST(Interpreteur, ReconnaitLaConsoleDesEchantillons) {
    VerifierDecoupe(std::string(TESSAREL_RACINE) + "/samples/console.dxf",
                    "--ajuster --centrer-x --centrer-y --decalage droite --approche rapide --retour rapide");
}

TEST(Interpreteur, ReconnaitLeProfilDesEchantillons) {
    VerifierDecoupe(
        std::string(TESSAREL_RACINE) + "/samples/naca2412.dat",
        "--bloc 300x100 --ajuster --centrer-x --centrer-y --decalage gauche --entree 1 --sortie 2");
}

TEST(Interpreteur, ReconnaitDesDessinsEtUnProfilDAutrui) {
    const std::string corpus = DossierCorpus(TESSAREL_RACINE);
    if (corpus.empty()) GTEST_SKIP() << "no folder of foreign files beside the checkout";
    const std::string placement = "--ajuster --centrer-x --centrer-y --decalage droite";
    VerifierDecoupe(corpus + "/dat/airfoiloptimiz__clarky.dat", placement);
    for (const char* dessin : {"dxf2gcodeplasm__ADLER.DXF", "openscad__example008.dxf", "camotics__top.dxf"})
        VerifierDecoupe(corpus + "/dxf/" + dessin, placement);
}

} // namespace
} // namespace tessarel::essais
