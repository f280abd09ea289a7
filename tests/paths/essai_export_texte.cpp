// Texts for other programs, byte for byte.
#include "paths/export_texte.h"
#include "paths/import.h"

#include "outils/dossiers.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"

#include <gtest/gtest.h>

using namespace tessarel;

namespace {

Sequence Profil() {
    Sequence s;
    s.Points.resize(3);
    s.Points[0] = {.X = 0, .Y = -1.5, .Z = 300};
    s.Points[1] = {.X = 100, .Y = 0.0000004, .Z = 300};
    s.Points[2] = {.X = 33.3333333, .Y = 2, .Z = 300};
    return s;
}

constexpr const char* Lignes = "0.0:-1.5:300.0\r\n100.0:0.0:300.0\r\n33.333333:2.0:300.0\r\n";

} // namespace

TEST(ExportTexte, LaPolyligneEstEntreSesDeuxMots) {
    const essais::DossierProvisoire dossier;
    EcrirePolyligne3D(dossier.Fichier("p.txt"), Profil());
    EXPECT_EQ(LireFichierEntier(dossier.Fichier("p.txt")),
              std::string("POLYLINE\r\n") + Lignes + "END_POLYLINE\r\n");
}

TEST(ExportTexte, LaFaceEstEntreSesDeuxMots) {
    const essais::DossierProvisoire dossier;
    EcrireFace3D(dossier.Fichier("f.txt"), Profil());
    EXPECT_EQ(LireFichierEntier(dossier.Fichier("f.txt")), std::string("FACE\r\n") + Lignes + "END_FACE\r\n");
}

TEST(ExportTexte, CesTextesSeRelisentCommeDesCoordonnees) {
    const essais::DossierProvisoire dossier;
    EcrireFace3D(dossier.Fichier("f.txt"), Profil());
    const auto s = LireCoordonneesTexte(dossier.Fichier("f.txt"));
    ASSERT_EQ(s.size(), 1U);
    ASSERT_EQ(s[0].Points.size(), 3U);
    EXPECT_EQ(s[0].Points[2].X, 33.333333);
}

TEST(ExportTexte, UnProfilSansPointNeSEcritPas) {
    const essais::DossierProvisoire dossier;
    EXPECT_THROW(EcrirePolyligne3D(dossier.Fichier("p.txt"), Sequence{}), FauteFichier);
    EXPECT_FALSE(FichierExiste(dossier.Fichier("p.txt")));
}

TEST(ExportTexte, LesTrajetsOntChacunLeurTitre) {
    const essais::DossierProvisoire dossier;
    const std::vector<Sequence> deux = {Profil(), Profil()};
    EcrireCoordonneesTexte(dossier.Fichier("c.txt"), deux);
    const std::string trajet = "0.0:-1.5\r\n100.0:0.0\r\n33.333333:2.0\r\n";
    EXPECT_EQ(LireFichierEntier(dossier.Fichier("c.txt")), "Trajet 1\r\n" + trajet + "Trajet 2\r\n" + trajet);
}
