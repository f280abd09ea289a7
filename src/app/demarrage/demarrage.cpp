// The conductor of the start-up and its steps.
#include "demarrage.h"

#include "app/settings/cles_generales.h"
#include "app/settings/gestion_ini.h"
#include "app/settings/parametres.h"
#include "app/settings/verification_ini.h"
#include "app/texts/textes_programme.h"
#include "cut4x/parametres_decoupe4x.h"
#include "dossiers_programme.h"
#include "link/etat_interface.h"
#include "machine/matieres.h"
#include "paths/tables_degres.h"
#include "platform/dialogue.h"
#include "platform/dossiers.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"

namespace tessarel {

namespace {

constexpr const char* FeuilleSplash = "frmSplashScreen";
constexpr const char* MachineParDefaut = "(Defaut)";
constexpr const char* OngletTS2D = "TS2D";

void DireErreurEtape(const char* procedure, NumeroErreur numero, const std::string& description) {
    // No line: the procedures are not numbered.
    AfficherCritique(TexteRempli(TexteProgramme::ErreurEtape, {std::to_string(static_cast<int>(numero)),
                                                               description, "0", procedure, FeuilleSplash}) +
                         "\r\n" + Texte(TexteProgramme::ContactAuteur),
                     Texte(TexteProgramme::TitreErreur));
}

// A step whose faults are told under the name of its procedure; the start-up goes on after the box.
template <typename Travail>
void Etape(const char* procedure, Travail travail) {
    try {
        travail();
    } catch (const Faute& faute) {
        DireErreurEtape(procedure, faute.Numero(), faute.what());
    } catch (const std::exception& erreur) {
        DireErreurEtape(procedure, NumeroErreur::ErreurInterne, erreur.what());
    }
}

bool Continuer(EtatDemarrage& etat, bool bien, FinDemarrage sinon) {
    if (!bien) etat.Fin = sinon;
    return bien;
}

bool TesterBibliotheque(const OptionsDemarrage& options, EtatDemarrage& etat) {
    if (ZelkoComRemplacee()) {
        etat.Bibliotheque = EtatZelkoCom();
        return true;
    }
    LibererZelkoCom();
    if (!options.ChercherInterface) return true;
    etat.Bibliotheque = TesterBibliothequeZelko(options.DossiersBibliotheque.value_or(DossiersZelkoCom()));
    return Continuer(etat, etat.Bibliotheque != EtatBibliotheque::TropVieille,
                     FinDemarrage::BibliothequeTropVieille);
}

void PreparerDossiers(const OptionsDemarrage& options) {
    const std::string programme = options.DossierProgramme.empty()
                                      ? DossierDuProgramme(DossierExecutable(), DossierConfiguration())
                                      : options.DossierProgramme;
    DossiersProgramme = CalculerDossiers(programme, options.DossierDocuments);
    Etape("VerifierPresenceDossiersBibliothequeEtDataEtCreerSiAbsent", [&] {
        if (!options.DossierDocuments.empty()) CreerDossier(DossierDuChemin(DossiersProgramme.Documents));
        VerifierPresenceDossiersBibliothequeEtDataEtCreerSiAbsent(DossiersProgramme);
    });
}

bool VerifierIni(EtatDemarrage& etat) {
    EtatIni ini = EtatIni::Correct;
    Etape("VerifierPresenceINICorrigerSiBesoinEtCreerSiAbsent",
          [&] { ini = VerifierPresenceINICorrigerSiBesoinEtCreerSiAbsent(); });
    if (ini == EtatIni::SansCR)
        AfficherCritique(Texte(TexteProgramme::IniSansRetourChariot),
                         Texte(TexteProgramme::IniSansRetourChariotTitre));
    return Continuer(etat, ini == EtatIni::Correct, FinDemarrage::IniSansRetourChariot);
}

bool ChargerMachineUtilisee(EtatDemarrage& etat) {
    std::string nom(Rogner(LireParametre("MachineUtilisee")));
    if (nom.empty()) {
        nom = MachineParDefaut;
        EcrireMachineUtilisee(nom);
    }
    etat.NomMachine = nom;
    int resultat = StatutRefus;
    Etape("Form_Load", [&] { resultat = ChargerMachine(nom); });
    return Continuer(etat, resultat == StatutSucces, FinDemarrage::MachineRefusee);
}

void ChoisirMatiereUtilisee() {
    const Matiere* utilisee = TrouverMatiere(LireParametre("MatiereUtilisee"));
    ChoisirMatiere(utilisee != nullptr ? *utilisee : MatieresMachine.front());
}

void LireParametresEtNormaliserLangue() {
    Parametres = ParametresProgramme{};
    LireParametres(Parametres);
    const std::string normale = NormaliserLangue(Parametres.Langue);
    if (normale == Parametres.Langue) return;
    Parametres.Langue = normale;
    EcrireParametre("Langue", Parametres);
}

bool CreationBaseMatiereEtExtractionParametresSoftINI(EtatDemarrage& etat) {
    constexpr const char* procedure = "CreationBaseMatiereEtExtractionParametresSoftINI";
    bool base = true;
    Etape(procedure, [&] { base = ChargerBaseMatieres(); });
    if (!Continuer(etat, base, FinDemarrage::IniSansRetourChariot)) return false;
    Etape(procedure, ChoisirMatiereUtilisee);
    Etape(procedure, LireParametresEtNormaliserLangue);
    return true;
}

// A language asked for holds for this run and isn't written down.
void ChoisirLangue(const OptionsDemarrage& options) {
    if (options.LangueImposee)
        Parametres.Langue = *options.LangueImposee == Langue::English ? "English" : "Francais";
    ChargerMessages(LangueDepuisTexte(Parametres.Langue));
}

} // namespace

// The tables of ramps belong to the piece that uses them; the default block is asked for by the window that
// shows it; margins are among the parameters.
EtatDemarrage Demarrer(const OptionsDemarrage& options) {
    EtatDemarrage etat;
    ChargerMessages(options.LangueImposee.value_or(Langue::Francais));
    ReinitialiserEtatInterface();
    if (!TesterBibliotheque(options, etat)) return etat;
    PreparerDossiers(options);
    if (!VerifierIni(etat)) return etat;
    Etape("CreerTableauDesNomsDeMachines", CreerTableauDesNomsDeMachines);
    if (!ChargerMachineUtilisee(etat)) return etat;
    if (!CreationBaseMatiereEtExtractionParametresSoftINI(etat)) return etat;
    ChoisirLangue(options);
    Etape("AffichageSplashEtTestsZelko",
          [&] { etat.Splash = AffichageSplashEtTestsZelko(options.Memoires); });
    MouvementsActifs = etat.Splash.Mouvements;
    TablesTrigonometriques();
    Etape("InitialiserParametresDecoupe4axes", InitialiserParametresDecoupe4axes);
    etat.FocusSur2D = Parametres.OngletActif == OngletTS2D;
    return etat;
}

} // namespace tessarel
