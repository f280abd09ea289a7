// The settings file at start-up, and the general keys through their table.
#include "app/settings/cles_generales.h"
#include "app/settings/gestion_ini.h"
#include "app/settings/verification_ini.h"
#include "outils/dossiers.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"

#include <gtest/gtest.h>

using namespace tessarel;

namespace {

class FichierReglages : public ::testing::Test {
protected:
    void SetUp() override {
        DossiersProgramme.Bibliotheque = m_dossier.Fichier("Bibliotheque");
        DossiersProgramme.MesDecoupes = m_dossier.Fichier("Bibliotheque/Mes Decoupes");
        DossiersProgramme.Datas = m_dossier.Fichier("Datas");
        for (const std::string* dossier :
             {&DossiersProgramme.Bibliotheque, &DossiersProgramme.MesDecoupes, &DossiersProgramme.Datas})
            CreerDossier(*dossier);
        m_ini = m_dossier.Fichier("Datas/Tessarel.ini");
        DossiersProgramme.FichierIni = m_ini;
    }
    void TearDown() override { DossiersProgramme = Dossiers{}; }

    void Ecrire(const std::string& texte) const { EcrireFichierAtomique(m_ini, texte); }
    [[nodiscard]] std::string Fichier() const { return LireFichierEntier(m_ini); }
    // A last folder that exists, so that nothing is mended there.
    [[nodiscard]] std::string Fichiers() const {
        return "[Fichiers]\r\nDernierRepertoire=" + DossiersProgramme.Datas + "\r\n";
    }

    std::string m_ini;

private:
    essais::DossierProvisoire m_dossier;
};

} // namespace

TEST_F(FichierReglages, NouveauFichierDansLOrdre) {
    EXPECT_EQ(VerifierPresenceINICorrigerSiBesoinEtCreerSiAbsent(), EtatIni::Correct);
    EXPECT_EQ(DossiersProgramme.FichierIni, m_ini);
    EXPECT_EQ(Fichier(), "[Fichiers]\r\nDernierRepertoire=" + DossiersProgramme.MesDecoupes +
                             "/\r\n[Parametres]\r\nMatiereUtilisee=Par defaut\r\nMachineUtilisee=(Defaut)\r\n"
                             "Langue=Francais\r\nModeNormalExpert=Normal\r\nDistNettoyage=0.020\r\n"
                             "EpaisseurLests=30\r\nMargesInterieuresBlocX=5\r\nMargesInterieuresBlocY=5\r\n"
                             "SaigneeMaxiSoft=6\r\nOngletActif=C4X\r\n");
}

TEST_F(FichierReglages, NouveauFichierSansClesDeFenetreDoncMaximise) {
    VerifierPresenceINICorrigerSiBesoinEtCreerSiAbsent();
    EXPECT_EQ(LireIni("Parametres", "WindowState", "absente"), "absente");
    EXPECT_EQ(LireParametre("WindowState"), "2");
    EXPECT_EQ(LireParametre("FenetreLeft"), "");
}

TEST_F(FichierReglages, PremiereLigneDe300CaracteresPasseDe301Non) {
    const std::string suite = "\r\n" + Fichiers();
    Ecrire(";" + std::string(299, 'a') + suite);
    EXPECT_EQ(VerifierPresenceINICorrigerSiBesoinEtCreerSiAbsent(), EtatIni::Correct);
    const std::string trop = ";" + std::string(300, 'a') + suite;
    Ecrire(trop);
    EXPECT_EQ(VerifierPresenceINICorrigerSiBesoinEtCreerSiAbsent(), EtatIni::SansCR);
    EXPECT_EQ(Fichier(), trop);
}

TEST_F(FichierReglages, FichierSansCREstReconnuParSaLongueur) {
    std::string texte = "[Parametres]\nLangue=English\n";
    Ecrire(texte);
    EXPECT_TRUE(StructureIniCorrecte());
    while (texte.size() < 301) texte += "Cle=valeur\n";
    Ecrire(texte);
    EXPECT_FALSE(StructureIniCorrecte());
}

TEST_F(FichierReglages, LongueurDePremiereLigneCompteeEnCaracteres) {
    std::string accents;
    for (int i = 0; i < 300; ++i) accents += "é";
    Ecrire(accents + "\r\n");
    EXPECT_TRUE(StructureIniCorrecte());
    Ecrire(accents + "é\r\n");
    EXPECT_FALSE(StructureIniCorrecte());
}

TEST_F(FichierReglages, SectionsSansNomEtAncienneFenetreRetirees) {
    Ecrire(Fichiers() + "[Machine_]\r\nCourseX=5\r\n[Machine_A]\r\nCourseX=6\r\n[Fenetre]\r\nLeft=1\r\n"
                        "[Matiere_]\r\nMachine=B\r\n[Machine_]\r\nCourseY=7\r\n[Fin]\r\nx=1\r\n");
    EXPECT_EQ(VerifierPresenceINICorrigerSiBesoinEtCreerSiAbsent(), EtatIni::Correct);
    EXPECT_EQ(Fichier(), Fichiers() + "[Machine_A]\r\nCourseX=6\r\n[Fin]\r\nx=1\r\n");
    VerifierPresenceINICorrigerSiBesoinEtCreerSiAbsent();
    EXPECT_EQ(Fichier(), Fichiers() + "[Machine_A]\r\nCourseX=6\r\n[Fin]\r\nx=1\r\n");
}

TEST_F(FichierReglages, SectionSansNomEnTeteDeLigneSeulement) {
    const std::string texte = Fichiers() + "x=[Machine_]\r\n [Matiere_]\r\ny=2\r\n";
    Ecrire(texte);
    VerifierPresenceINICorrigerSiBesoinEtCreerSiAbsent();
    EXPECT_EQ(Fichier(), texte);
}

TEST_F(FichierReglages, DernierRepertoireAbsentDevientLaBibliotheque) {
    Ecrire("[Fichiers]\r\nDernierRepertoire=C:\\Parti\\\r\n");
    VerifierPresenceINICorrigerSiBesoinEtCreerSiAbsent();
    EXPECT_EQ(LireIni("Fichiers", "DernierRepertoire", ""), DossiersProgramme.Bibliotheque + "/");
}

TEST_F(FichierReglages, DernierRepertoirePresentReste) {
    Ecrire(Fichiers());
    VerifierPresenceINICorrigerSiBesoinEtCreerSiAbsent();
    EXPECT_EQ(Fichier(), Fichiers());
}

TEST_F(FichierReglages, LectureCoupeeA255Caracteres) {
    Ecrire("[Parametres]\r\nLangue=" + std::string(400, 'z') + "\r\n");
    EXPECT_EQ(LireIni("Parametres", "Langue", "").size(), 255U);
}

TEST_F(FichierReglages, ParametresLusDepuisLaTable) {
    Ecrire("[Parametres]\r\nLangue=English\r\nModeNormalExpert=Expert\r\nDistNettoyage=0,035\r\n"
           "EpaisseurLests=42\r\nMargesInterieuresBlocX=7,5\r\nSaigneeMaxiSoft=8\r\nOngletActif=TS2D\r\n");
    ParametresProgramme lus;
    LireParametres(lus);
    EXPECT_EQ(lus.Langue, "English");
    EXPECT_TRUE(lus.ModeExpert());
    EXPECT_EQ(lus.DistNettoyage, 0.035F);
    EXPECT_EQ(lus.EpaisseurLests, 42);
    EXPECT_EQ(lus.MargesInterieuresBlocX, 7.5F);
    EXPECT_EQ(lus.MargesInterieuresBlocY, 5); // absent
    EXPECT_EQ(lus.SaigneeMaxiSoft, 8);
    EXPECT_EQ(lus.OngletActif, "TS2D");
}

TEST_F(FichierReglages, ParametresAbsentsPrennentLeDefautDeLecture) {
    Ecrire("[Parametres]\r\n");
    ParametresProgramme lus;
    LireParametres(lus);
    EXPECT_EQ(lus.Langue, "Francais");
    EXPECT_EQ(lus.ModeNormalExpert, "");
    EXPECT_EQ(lus.DistNettoyage, 0.02F);
    EXPECT_EQ(lus.EpaisseurLests, 30);
    EXPECT_EQ(lus.MargesInterieuresBlocX, 5);
    EXPECT_EQ(lus.SaigneeMaxiSoft, 6);
    EXPECT_EQ(lus.OngletActif, "");
}

TEST_F(FichierReglages, ParametreEcritParSonMasque) {
    ParametresProgramme p;
    p.DistNettoyage = 0.05F;
    p.EpaisseurLests = 31.6F;
    p.MargesInterieuresBlocY = 2.25F;
    p.SaigneeMaxiSoft = 9;
    p.OngletActif = "D4X";
    for (const char* cle :
         {"DistNettoyage", "EpaisseurLests", "MargesInterieuresBlocY", "SaigneeMaxiSoft", "OngletActif"})
        EXPECT_TRUE(EcrireParametre(cle, p));
    EXPECT_EQ(Fichier(),
              "[Parametres]\r\nDistNettoyage=0.050\r\nEpaisseurLests=32\r\nMargesInterieuresBlocY=2.3\r\n"
              "SaigneeMaxiSoft=9\r\nOngletActif=D4X\r\n");
    EXPECT_THROW(EcrireParametre("Inconnue", p), FauteInterne);
}

TEST_F(FichierReglages, NombreDeParametreQuiNeTientPas) {
    ParametresProgramme lus;
    Ecrire("[Parametres]\r\nSaigneeMaxiSoft=99999999999\r\nOngletActif=TS2D\r\n");
    EXPECT_THROW(LireParametres(lus), FauteDepassement);
    EXPECT_EQ(lus.SaigneeMaxiSoft, 6);
    EXPECT_EQ(lus.OngletActif, "TS2D"); // the others are read
    Ecrire("[Parametres]\r\nDistNettoyage=" + std::string(100, '9') + "\r\n");
    EXPECT_THROW(LireParametres(lus), FauteDepassement);
}

TEST(LangueNormalisee, FormesAdmises) {
    EXPECT_EQ(NormaliserLangue("francais"), "Francais");
    EXPECT_EQ(NormaliserLangue("english"), "English");
    EXPECT_EQ(NormaliserLangue("USA"), "English");
    EXPECT_EQ(NormaliserLangue("English"), "English");
    EXPECT_EQ(NormaliserLangue("Deutsch"), "Deutsch");
    EXPECT_EQ(NormaliserLangue("usa"), "usa");
}

TEST_F(FichierReglages, BooleensEtNombres) {
    Ecrire("[A]\r\nun=1\r\nzero=0\r\nmoins=-1\r\nvrai=True\r\nn=12 mm\r\nv=1,5\r\n");
    EXPECT_TRUE(LireBooleenIni("A", "un"));
    EXPECT_FALSE(LireBooleenIni("A", "zero"));
    EXPECT_FALSE(LireBooleenIni("A", "moins"));
    EXPECT_FALSE(LireBooleenIni("A", "vrai"));
    EXPECT_FALSE(LireBooleenIni("A", "absent"));
    EXPECT_EQ(LireNombreIni("A", "n"), 12);
    EXPECT_EQ(LireNombreIni("A", "v"), 1.5);
    EXPECT_EQ(LireNombreIni("A", "absent", "7"), 7);
}
