// The start-up as a whole: first start, repairs, ends, languages, and the tests of the interface.
#include "app/demarrage/demarrage.h"

#include "app/demarrage/dossiers_programme.h"
#include "app/settings/gestion_ini.h"
#include "app/settings/parametres.h"
#include "link/etat_interface.h"
#include "machine/matieres.h"
#include "outils/boites.h"
#include "outils/dossiers.h"
#include "platform/fichiers.h"

#include <gtest/gtest.h>

#include <filesystem>

using namespace tessarel;

namespace {

std::string Bibliotheque(const std::string& cas) {
    return std::string(TESSAREL_FAUSSES_BIBLIOTHEQUES) + "/" + cas;
}

// A user's Documents folder and a program's folder, both empty.
class Demarrage : public ::testing::Test {
protected:
    Demarrage() {
        CreerDossier(m_dossier.Fichier("doc"));
        CreerDossier(m_dossier.Fichier("programme"));
        m_options.DossierDocuments = Documents();
        m_options.DossierProgramme = m_dossier.Fichier("programme");
        m_options.ChercherInterface = false;
    }
    ~Demarrage() override {
        LibererZelkoCom();
        ReinitialiserEtatInterface();
        ChargerMessages(Langue::Francais);
        DossiersProgramme = Dossiers{};
        Parametres = ParametresProgramme{};
        TableINI = TableMachine{};
    }

    [[nodiscard]] std::string Documents() const { return m_dossier.Fichier("doc"); }
    [[nodiscard]] std::string Tessarel(const std::string& nom) const {
        return Documents() + "/Tessarel/" + nom;
    }
    [[nodiscard]] std::string Ini() const { return Tessarel("Datas/Tessarel.ini"); }
    // A settings file from before this start.
    void PoserIni(const std::string& texte) const {
        std::filesystem::create_directories(Tessarel("Datas"));
        EcrireFichierAtomique(Ini(), texte);
    }

    OptionsDemarrage m_options;
    essais::BoitesEnregistrees m_boites;
    essais::DossierProvisoire m_dossier;
};

// Three memories of a box, and what loading one of them answers.
struct FauxBoitier {
    std::array<TableMachine, 3> memoires;
    std::int32_t reponse = 1;
    std::vector<int> chargees;

    AccesMemoires Acces() {
        return {[this](int i, TableMachine& table) { table = memoires[static_cast<std::size_t>(i)]; },
                [this](int i) {
                    chargees.push_back(i);
                    return reponse;
                }};
    }
};

TableMachine MachineDefaut() {
    TableMachine table;
    LireMachine("(Defaut)", table);
    return table;
}

} // namespace

TEST_F(Demarrage, PremierDemarrageCreeToutEtFinitSurLaMachineParDefaut) {
    const EtatDemarrage etat = Demarrer(m_options);
    EXPECT_FALSE(etat.Termine());
    EXPECT_EQ(etat.NomMachine, "(Defaut)");
    EXPECT_EQ(etat.Splash.NomMachine, "(Defaut)");
    EXPECT_EQ(TableINI.CourseX, 980);
    EXPECT_TRUE(m_boites.boites.empty());
    for (const char* dossier : {"Bibliotheque", "Bibliotheque/Mes Decoupes", "Datas", "Plugins"})
        EXPECT_TRUE(DossierExiste(Tessarel(dossier))) << dossier;
    EXPECT_EQ(LireIniAvecFichier("Parametres", "MachineUtilisee", Ini(), ""), "(Defaut)");
    EXPECT_EQ(LireIniAvecFichier("Fichiers", "DernierRepertoire", Ini(), ""),
              Tessarel("Bibliotheque/Mes Decoupes/"));
    EXPECT_EQ(TableauNomsMachines, (std::vector<std::string>{"(Defaut)", "QT4X-m1"}));
    EXPECT_EQ(MatiereCourante.Nom, "Par defaut");
    EXPECT_EQ(DecoupeCourante.Vitesse, 4);
    EXPECT_EQ(Parametres.OngletActif, "C4X");
    EXPECT_FALSE(etat.FocusSur2D);
    EXPECT_EQ(LangueCourante(), Langue::Francais);
}

TEST_F(Demarrage, ExemplesOctetPourOctet) {
    Demarrer(m_options);
    EXPECT_EQ(LireFichierEntier(Tessarel("Bibliotheque/cercle.dxf")),
              "0\r\nSection\r\n2\r\nENTITIES\r\n0\r\nCIRCLE\r\n10\r\n0.0\r\n20\r\n0.0\r\n30\r\n0."
              "0\r\n40\r\n50.0\r\n"
              "0\r\nENDSEC\r\n0\r\nEOF\r\n");
    EXPECT_EQ(LireFichierEntier(Tessarel("Bibliotheque/rectangles.txt")),
              "Rectangle\r\n0.0:25.0\r\n0.0:50.0\r\n100.0:50.0\r\n100.0:0.0\r\n0.0:0.0\r\n0.0:25.0\r\n"
              "Carre\r\n0.0:25.0\r\n0.0:50.0\r\n50.0:50.0\r\n50.0:0.0\r\n0.0:0.0\r\n0.0:25.0\r\n");
}

TEST_F(Demarrage, ExemplesEffacesNeReviennentPas) {
    Demarrer(m_options);
    std::filesystem::remove(Tessarel("Bibliotheque/cercle.dxf"));
    Demarrer(m_options);
    EXPECT_FALSE(FichierExiste(Tessarel("Bibliotheque/cercle.dxf")));
}

TEST_F(Demarrage, BibliothequePresenteSansDatasNEcritPasDExemple) {
    std::filesystem::create_directories(Tessarel("Bibliotheque"));
    EXPECT_FALSE(Demarrer(m_options).Termine());
    EXPECT_FALSE(FichierExiste(Tessarel("Bibliotheque/cercle.dxf")));
    EXPECT_FALSE(DossierExiste(Tessarel("Bibliotheque/Mes Decoupes")));
    EXPECT_EQ(LireIniAvecFichier("Parametres", "OngletActif", Ini(), ""), "C4X");
    EXPECT_EQ(LireIniAvecFichier("Fichiers", "DernierRepertoire", Ini(), ""), Tessarel("Bibliotheque/"));
}

TEST_F(Demarrage, DossierDocumentsDonneEstCree) {
    m_options.DossierDocuments = m_dossier.Fichier("nouveau");
    EXPECT_FALSE(Demarrer(m_options).Termine());
    EXPECT_TRUE(FichierExiste(m_dossier.Fichier("nouveau/Tessarel/Datas/Tessarel.ini")));
    EXPECT_EQ(DossiersProgramme.Documents, m_dossier.Fichier("nouveau/"));
}

TEST_F(Demarrage, UserChoiceDitOuEstLeDossier) {
    CreerDossier(m_dossier.Fichier("choisi"));
    EcrireFichierAtomique(m_options.DossierProgramme + "/UserChoice.ini",
                          "[ChoixUtilisateur]\r\nEmplacementDossierTessarel=" + m_dossier.Fichier("choisi/") +
                              "\r\n");
    m_options.DossierDocuments = "";
    EXPECT_FALSE(Demarrer(m_options).Termine());
    EXPECT_TRUE(FichierExiste(m_dossier.Fichier("choisi/Tessarel/Datas/Tessarel.ini")));
}

TEST_F(Demarrage, DossierDocumentsDonnePasseAvantUserChoice) {
    EcrireFichierAtomique(m_options.DossierProgramme + "/UserChoice.ini",
                          "[ChoixUtilisateur]\r\nEmplacementDossierTessarel=" + m_dossier.Fichier("choisi/") +
                              "\r\n");
    EXPECT_FALSE(Demarrer(m_options).Termine());
    EXPECT_TRUE(FichierExiste(Ini()));
    EXPECT_FALSE(DossierExiste(m_dossier.Fichier("choisi")));
}

TEST_F(Demarrage, DossierDuProgrammeSelonUserChoiceEtDroits) {
    const std::string configuration = "/configuration/tessarel";
    EXPECT_EQ(DossierDuProgramme(m_options.DossierProgramme, configuration), m_options.DossierProgramme);
    EXPECT_EQ(DossierDuProgramme(m_dossier.Fichier("absent"), configuration), configuration);
}

TEST_F(Demarrage, MachineDontLaSectionEstPartieMontreLesReparations) {
    PoserIni("[Parametres]\r\nMachineUtilisee=Partie\r\n");
    const EtatDemarrage etat = Demarrer(m_options);
    EXPECT_FALSE(etat.Termine());
    EXPECT_EQ(etat.NomMachine, "Partie");
    ASSERT_EQ(m_boites.boites.size(), 6U);
    EXPECT_EQ(m_boites.boites[0].titre, "CourseX=0, valeur impossible");
    EXPECT_EQ(TableINI.CourseX, 300);
}

TEST_F(Demarrage, MachineVideDevientDefautDansLeFichier) {
    PoserIni("[Parametres]\r\nMachineUtilisee=   \r\n");
    EXPECT_EQ(Demarrer(m_options).NomMachine, "(Defaut)");
    EXPECT_EQ(LireIniAvecFichier("Parametres", "MachineUtilisee", Ini(), ""), "(Defaut)");
}

TEST_F(Demarrage, MachineRefuseeFinitLeProgramme) {
    PoserIni("[Parametres]\r\nMachineUtilisee=Folle\r\n[Machine_Folle]\r\nMicroPasX1=256\r\n"
             "PasParTourMoteurX1=200\r\n");
    EXPECT_EQ(Demarrer(m_options).Fin, FinDemarrage::MachineRefusee);
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(m_boites.boites[0].texte.find("Problème : impossible de charger la table Folle\r\n"), 0U);
}

TEST_F(Demarrage, IniSansRetourChariotFinitLeProgrammeEtResteTelQuel) {
    const std::string texte = "[Parametres]\nLangue=English\n" + std::string(300, 'x');
    PoserIni(texte);
    EXPECT_EQ(Demarrer(m_options).Fin, FinDemarrage::IniSansRetourChariot);
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(m_boites.boites[0].titre, "Problème de fichier .ini");
    EXPECT_EQ(m_boites.boites[0].icone, IconeBoite::Critique);
    EXPECT_EQ(
        m_boites.boites[0].texte,
        "Erreur sur la structure du fichier Tessarel.ini, il semblerait que les caractères de retour chariot "
        "CR "
        "ne sont pas présents. \r\nLes lignes doivent se terminer par les caractères invisibles CR (retour "
        "chariot) et LF (saut de ligne). \r\nCela peut être corrigé en ouvrant le fichier avec Wordpad "
        "(attention, Wordpad, pas Notepad) et en faisant Fichier > Enregistrer.");
    EXPECT_EQ(LireFichierEntier(Ini()), texte);
}

TEST_F(Demarrage, LangueUsaDonneLAnglaisEtEstReecrite) {
    PoserIni("[Parametres]\r\nLangue=USA\r\n");
    Demarrer(m_options);
    EXPECT_EQ(LangueCourante(), Langue::English);
    EXPECT_EQ(LireIniAvecFichier("Parametres", "Langue", Ini(), ""), "English");
}

TEST_F(Demarrage, LangueInconnueDonneLeFrancaisEtReste) {
    PoserIni("[Parametres]\r\nLangue=Deutsch\r\n");
    Demarrer(m_options);
    EXPECT_EQ(LangueCourante(), Langue::Francais);
    EXPECT_EQ(LireIniAvecFichier("Parametres", "Langue", Ini(), ""), "Deutsch");
}

TEST_F(Demarrage, LangueImposeeVautPourCetteFois) {
    m_options.LangueImposee = Langue::English;
    Demarrer(m_options);
    EXPECT_EQ(LangueCourante(), Langue::English);
    EXPECT_EQ(Parametres.Langue, "English");
    EXPECT_EQ(LireIniAvecFichier("Parametres", "Langue", Ini(), ""), "Francais");
}

TEST_F(Demarrage, MatiereUtiliseeRetrouveeParSonNomExact) {
    const std::string matiere = "[Matiere_Bleu]\r\nChauffeDecoupe=50\r\nVitesseDecoupe=5\r\nSaigneeVD=0.8\r\n"
                                "SaigneeVDsur2=1.2\r\nMachine=(Defaut)\r\n";
    PoserIni("[Parametres]\r\nMatiereUtilisee=Bleu\r\n" + matiere);
    Demarrer(m_options);
    EXPECT_EQ(MatiereCourante.Nom, "Bleu");
    EXPECT_EQ(DecoupeCourante.SaigneeVDsur2, 1.2F);
    PoserIni("[Parametres]\r\nMatiereUtilisee=bleu\r\n" + matiere);
    Demarrer(m_options);
    EXPECT_EQ(MatiereCourante.Nom, "Par defaut");
}

TEST_F(Demarrage, FocusSelonLOngletActif) {
    PoserIni("[Parametres]\r\nOngletActif=TS2D\r\n");
    EXPECT_TRUE(Demarrer(m_options).FocusSur2D);
}

TEST_F(Demarrage, FauteDUneEtapeEstDiteParSaProcedureEtLaSuiteVient) {
    EcrireFichierAtomique(m_dossier.Fichier("obstacle"), "");
    m_options.DossierDocuments = m_dossier.Fichier("obstacle");
    const EtatDemarrage etat = Demarrer(m_options);
    EXPECT_FALSE(etat.Termine());
    EXPECT_EQ(etat.NomMachine, "(Defaut)");
    EXPECT_EQ(DecoupeCourante.Vitesse, 4);
    ASSERT_GE(m_boites.boites.size(), 1U);
    const std::string& texte = m_boites.boites[0].texte;
    EXPECT_EQ(texte.find("Erreur 57 ("), 0U) << texte;
    EXPECT_NE(texte.find(
                  ") à la ligne 0, de la procédure VerifierPresenceDossiersBibliothequeEtDataEtCreerSiAbsent "
                  "de Feuille frmSplashScreen\r\nContactez l'auteur"),
              std::string::npos)
        << texte;
}

TEST_F(Demarrage, IniQuiEstUnDossierNEmpechePasDeDemarrer) {
    std::filesystem::create_directories(Ini());
    const EtatDemarrage etat = Demarrer(m_options);
    EXPECT_FALSE(etat.Termine());
    EXPECT_EQ(etat.NomMachine, "(Defaut)");
    EXPECT_EQ(MatiereCourante.Nom, "Par defaut");
    EXPECT_TRUE(DossierExiste(Ini()));
}

TEST_F(Demarrage, ParametreTropGrandEstDitEtLesAutresSontLus) {
    PoserIni("[Parametres]\r\nSaigneeMaxiSoft=99999999999\r\nOngletActif=TS2D\r\nLangue=English\r\n");
    const EtatDemarrage etat = Demarrer(m_options);
    EXPECT_TRUE(etat.FocusSur2D);
    EXPECT_EQ(Parametres.SaigneeMaxiSoft, 6);
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_NE(m_boites.boites[0].texte.find("CreationBaseMatiereEtExtractionParametresSoftINI"),
              std::string::npos);
}

TEST_F(Demarrage, SansInterfaceLesDeuxLibellesSontRouges) {
    const EtatSplash splash = Demarrer(m_options).Splash;
    EXPECT_EQ(splash.Detection.Texte, "Pas d'interface");
    EXPECT_EQ(splash.Detection.Couleur, CouleurLibelle::Rouge);
    EXPECT_TRUE(splash.Detection.Visible);
    EXPECT_EQ(splash.Correspondance.Texte, "Mouvements désactivés");
    EXPECT_EQ(splash.Correspondance.Couleur, CouleurLibelle::Rouge);
    EXPECT_TRUE(splash.Correspondance.Visible);
    EXPECT_FALSE(splash.NomsVisibles);
    EXPECT_FALSE(splash.Memoires[0].Visible);
    EXPECT_FALSE(MouvementsActifs);
}

TEST_F(Demarrage, BibliothequeAbsenteEstDiteEtLaSuiteVient) {
    m_options.ChercherInterface = true;
    m_options.DossiersBibliotheque = {m_options.DossierProgramme};
    const EtatDemarrage etat = Demarrer(m_options);
    EXPECT_EQ(etat.Bibliotheque, EtatBibliotheque::Absente);
    EXPECT_FALSE(etat.Termine());
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(m_boites.boites[0].titre, "Communication avec la machine impossible");
    EXPECT_EQ(etat.Splash.Detection.Texte, "Pas d'interface");
}

TEST_F(Demarrage, BibliothequeTropVieilleFinitAvantToutDossier) {
    m_options.ChercherInterface = true;
    m_options.DossiersBibliotheque = {Bibliotheque("v15")};
    EXPECT_EQ(Demarrer(m_options).Fin, FinDemarrage::BibliothequeTropVieille);
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_FALSE(DossierExiste(Documents() + "/Tessarel"));
}

TEST_F(Demarrage, BoitierSansMemoireDeCeNom) {
    m_options.ChercherInterface = true;
    m_options.DossiersBibliotheque = {Bibliotheque("branchee")};
    FauxBoitier boitier;
    boitier.memoires[1].Nom = "Autre";
    m_options.Memoires = boitier.Acces();
    const EtatSplash splash = Demarrer(m_options).Splash;
    EXPECT_EQ(splash.Detection.Texte, "(Zelko)\r\nInterface détectée");
    EXPECT_EQ(splash.Detection.Couleur, CouleurLibelle::Verte);
    EXPECT_TRUE(splash.NomsVisibles);
    EXPECT_EQ(splash.Memoires[1].Nom, "Autre");
    EXPECT_TRUE(splash.Memoires[1].Visible);
    EXPECT_FALSE(splash.Memoires[1].Cochee);
    EXPECT_EQ(splash.Correspondance.Texte, "Aucune table du même nom, mouvements désactivés");
    EXPECT_EQ(splash.Correspondance.Couleur, CouleurLibelle::Rouge);
    EXPECT_TRUE(InterfaceConnectee);
    EXPECT_FALSE(MouvementsActifs);
    EXPECT_TRUE(boitier.chargees.empty());
}

TEST_F(Demarrage, BoitierDontLesMemoiresNeSontPasLues) {
    m_options.ChercherInterface = true;
    m_options.DossiersBibliotheque = {Bibliotheque("branchee")};
    const EtatSplash splash = Demarrer(m_options).Splash;
    EXPECT_FALSE(splash.Memoires[0].Visible);
    EXPECT_EQ(splash.Correspondance.Texte, "Aucune table du même nom, mouvements désactivés");
    EXPECT_FALSE(MouvementsActifs);
}

TEST_F(Demarrage, DeuxMemoiresDeCeNomLaSecondeEgaleLEmporte) {
    m_options.ChercherInterface = true;
    m_options.DossiersBibliotheque = {Bibliotheque("branchee")};
    FauxBoitier boitier;
    boitier.memoires.fill(MachineDefaut());
    boitier.memoires[0].Frequence = 10000;
    m_options.Memoires = boitier.Acces();
    const EtatSplash splash = Demarrer(m_options).Splash;
    EXPECT_TRUE(splash.Memoires[0].Cochee);
    EXPECT_TRUE(splash.Memoires[0].Differente);
    EXPECT_TRUE(splash.Memoires[1].Cochee);
    EXPECT_FALSE(splash.Memoires[1].Differente);
    EXPECT_FALSE(splash.Memoires[2].Cochee); // the search stops
    EXPECT_EQ(splash.Correspondance.Texte,
              "Même nom et même définition des sorties actives, mouvements activés!");
    EXPECT_EQ(splash.Correspondance.Couleur, CouleurLibelle::Verte);
    EXPECT_TRUE(MouvementsActifs);
    EXPECT_EQ(TableINI.NumeroMemoire, 1);
    EXPECT_EQ(boitier.chargees, std::vector<int>{1});
}

TEST_F(Demarrage, MemeNomMaisParametresDifferents) {
    m_options.ChercherInterface = true;
    m_options.DossiersBibliotheque = {Bibliotheque("branchee")};
    FauxBoitier boitier;
    boitier.memoires[2] = MachineDefaut();
    boitier.memoires[2].SwitchsActifs = true;
    m_options.Memoires = boitier.Acces();
    const EtatSplash splash = Demarrer(m_options).Splash;
    EXPECT_EQ(splash.Correspondance.Texte, "Même nom mais paramètres différents, mouvements désactivés");
    EXPECT_EQ(splash.Correspondance.Couleur, CouleurLibelle::Rouge);
    EXPECT_FALSE(MouvementsActifs);
}

TEST_F(Demarrage, ChargementEnRamRateLaisseLesMouvementsInterdits) {
    m_options.ChercherInterface = true;
    m_options.DossiersBibliotheque = {Bibliotheque("branchee")};
    FauxBoitier boitier;
    boitier.memoires.fill(MachineDefaut());
    boitier.reponse = -202;
    m_options.Memoires = boitier.Acces();
    const EtatSplash splash = Demarrer(m_options).Splash;
    EXPECT_EQ(boitier.chargees, std::vector<int>{0}); // the loop is left
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(m_boites.boites[0].texte.find(
                  "Erreur de réponse de l'interface lors du chargement de la table en RAM "),
              0U);
    EXPECT_FALSE(splash.Mouvements);
    EXPECT_FALSE(MouvementsActifs);
    EXPECT_EQ(DernierResultatZelko, -202);
}
