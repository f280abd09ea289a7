// The drawings of samples/ are what their page says, and each goes the whole road.
#include "bout_en_bout/executer.h"
#include "outils/dossiers.h"

#include <cmath>
#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace tessarel::essais {
namespace {

const std::string ECHANTILLONS = std::string(TESSAREL_RACINE) + "/samples/";

// Distance of a point of the table from the surface of NACA 2412, or of one as thick as `epaisseur`: solved
// for the station whose upper or lower point has this x, by bisection on the formula.
double EcartAuProfil(double x, double y, bool extrados, double epaisseur = 0.12) {
    const auto surface = [extrados, epaisseur](double s, double& xs, double& ys) {
        const double e = 5 * epaisseur *
                         (0.2969 * std::sqrt(s) - 0.1260 * s - 0.3516 * s * s + 0.2843 * s * s * s -
                          0.1015 * s * s * s * s);
        const double c = s < 0.4 ? 0.125 * (0.8 * s - s * s) : (0.02 / 0.36) * (0.2 + 0.8 * s - s * s);
        const double pente = s < 0.4 ? 0.25 * (0.4 - s) : (0.04 / 0.36) * (0.4 - s);
        const double a = std::atan(pente);
        xs = extrados ? s - e * std::sin(a) : s + e * std::sin(a);
        ys = extrados ? c + e * std::cos(a) : c - e * std::cos(a);
    };
    double bas = 0;
    double haut = 1;
    double xs = 0;
    double ys = 0;
    // Near the nose the upper surface leans back: the search starts where x grows again.
    if (extrados) bas = 0.005;
    for (int i = 0; i < 60; ++i) {
        const double milieu = (bas + haut) / 2;
        surface(milieu, xs, ys);
        (xs < x ? bas : haut) = milieu;
    }
    return std::abs(ys - y);
}

struct ProfilNaca {
    const char* fichier;
    const char* nom;
    double epaisseur;
    int points;
};

TEST(Echantillons, LesProfilsSuiventLaFormuleDeLeurNom) {
    for (const ProfilNaca& naca : {ProfilNaca{"naca2412.dat", "NACA 2412\r", 0.12, 121},
                                   ProfilNaca{"aile/naca2414.dat", "NACA 2414\r", 0.14, 161},
                                   ProfilNaca{"aile/naca2410.dat", "NACA 2410\r", 0.10, 101}}) {
        std::istringstream lignes(LireTout(ECHANTILLONS + naca.fichier));
        std::string nom;
        std::getline(lignes, nom);
        EXPECT_EQ(nom, naca.nom);
        int points = 0;
        double x = 0;
        double y = 0;
        while (lignes >> x >> y) {
            ++points;
            const bool extrados = points <= (naca.points + 1) / 2;
            if (extrados && x < 0.01) continue;
            EXPECT_LT(EcartAuProfil(x, y, extrados, naca.epaisseur), 3e-6) << naca.nom << points;
        }
        EXPECT_EQ(points, naca.points);
    }
}

// Two airfoils of different point counts, thinned on reading, come out with one count, nose by nose.
TEST(Echantillons, LAileEstPreteADecouper) {
    const DossierProvisoire travail;
    const Execution aile = Executer("tessarel-lot --documents doc aile --emplanture '" + ECHANTILLONS +
                                        "aile/naca2414.dat' --saumon '" + ECHANTILLONS +
                                        "aile/naca2410.dat' --corde 250 --corde-saumon 180 --ecartement 500 "
                                        "--fleche 40 --vrillage -2 --bloc-auto 4 --synchroniser aile.tsr",
                                    travail.Chemin());
    EXPECT_EQ(aile.statut, 0) << aile.erreurs;
    const Execution mesures = Executer("tessarel-lot --documents doc mesures aile.tsr", travail.Chemin());
    const auto valeur = [&](const std::string& nom) {
        const std::size_t ligne = mesures.sortie.find("\n" + nom + " = ");
        return mesures.sortie.substr(ligne + nom.size() + 4,
                                     mesures.sortie.find('\n', ligne + 1) - ligne - nom.size() - 4);
    };
    EXPECT_EQ(valeur("NbPointsE"), valeur("NbPointsS"));
    EXPECT_EQ(valeur("IndiceXmaxE"), valeur("IndiceXmaxS"));
    EXPECT_EQ(valeur("CordeE"), "250.0");
    EXPECT_EQ(valeur("Fleche"), "40.0");
    EXPECT_EQ(valeur("DistProfilDessousE"), "5.0");

    const Execution coupe = Executer(
        "tessarel-lot --documents doc decouper aile.tsr --auto-xy --gcode aile.gcode --apercu aile.png",
        travail.Chemin());
    EXPECT_EQ(coupe.statut, 0) << coupe.erreurs;
    EXPECT_NE(LireTout(travail.Fichier("aile.gcode")).find("\r\nG93"), std::string::npos);
    EXPECT_TRUE(LireTout(travail.Fichier("aile.png")).starts_with("\x89PNG\r\n\x1a\n"));
}

TEST(Echantillons, LaConsoleACinqTracesFermes) {
    const DossierProvisoire travail;
    const Execution info = Executer(
        "tessarel-lot --documents doc info --json '" + ECHANTILLONS + "console.dxf'", travail.Chemin());
    EXPECT_EQ(info.statut, 0) << info.erreurs;
    EXPECT_NE(info.sortie.find("\"chemins\": 5,"), std::string::npos) << info.sortie;
    EXPECT_NE(info.sortie.find("\"fermes\": 5,"), std::string::npos) << info.sortie;
    EXPECT_NE(info.sortie.find("\"etendue\": [\n    10.0,\n    10.0,\n    210.0,\n    170.0\n  ]"),
              std::string::npos)
        << info.sortie;
}

TEST(Echantillons, ChacunDonneGcodeEtApercu) {
    for (const char* nom : {"console.dxf", "naca2412.dat", "etoile.txt"}) {
        const DossierProvisoire travail;
        const Execution lot =
            Executer("tessarel-lot --documents doc decouper '" + ECHANTILLONS + nom +
                         "' --ajuster --centrer-x --centrer-y --decalage droite --gcode s.gcode "
                         "--apercu s.png",
                     travail.Chemin());
        EXPECT_EQ(lot.statut, 0) << nom << ": " << lot.erreurs;
        const std::string gcode = LireTout(travail.Fichier("s.gcode"));
        EXPECT_TRUE(gcode.ends_with("\r\nM5\r\n(Fin du programme)\r\nM2\r\n")) << nom;
        const std::string png = LireTout(travail.Fichier("s.png"));
        EXPECT_TRUE(png.starts_with("\x89PNG\r\n\x1a\n")) << nom;
        // Width stands after the signature and the head of the first chunk, high byte first.
        ASSERT_GT(png.size(), 10000U) << nom;
        EXPECT_EQ(static_cast<unsigned char>(png[18]) * 256 + static_cast<unsigned char>(png[19]), 1600)
            << nom;
    }
}

} // namespace
} // namespace tessarel::essais
