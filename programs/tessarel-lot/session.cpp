// A run from start-up to exit status.
#include "session.h"

#include "langue_lot.h"
#include "progression.h"

#include "app/demarrage/demarrage.h"
#include "app/demarrage/dossiers_programme.h"
#include "app/settings/cles_generales.h"
#include "app/settings/gestion_ini.h"
#include "app/texts/textes_programme.h"
#include "link/commandes.h"
#include "platform/dialogue.h"
#include "platform/dossiers.h"
#include "platform/erreurs.h"

#include <cstdio>
#include <new>

namespace tessarel::lot {

namespace {

ReponseBoite Repondre(BoutonsBoite boutons, bool oui) {
    switch (boutons) {
    case BoutonsBoite::Ok:
        return ReponseBoite::Ok;
    case BoutonsBoite::OkAnnuler:
        return oui ? ReponseBoite::Ok : ReponseBoite::Annuler;
    case BoutonsBoite::OuiNon:
        return oui ? ReponseBoite::Oui : ReponseBoite::Non;
    case BoutonsBoite::OuiNonAnnuler:
        return oui ? ReponseBoite::Oui : ReponseBoite::Annuler;
    }
    return ReponseBoite::Annuler;
}

void InstallerBoites(bool oui) {
    InstallerAfficheurBoite([oui](const Boite& boite) {
        Progression::Effacer();
        std::fputs((BoiteEnUneLigne(boite) + "\n").c_str(), stderr);
        return Repondre(boite.boutons, oui);
    });
}

int DireErreur(const std::string& texte) {
    AfficherCritique(texte, Texte(TexteProgramme::TitreErreur));
    return StatutRefuse;
}

int FaireAction(const Action& action) {
    try {
        return action();
    } catch (const MauvaisUsage& usage) {
        Progression::Effacer();
        std::fputs(("tessarel-lot: " + std::string(usage.what()) + "\n").c_str(), stderr);
        return StatutMauvaisUsage;
    } catch (const std::bad_alloc&) {
        return DireErreur(Dire("Mémoire insuffisante.", "Not enough memory."));
    } catch (const std::exception& erreur) {
        return DireErreur(erreur.what());
    }
}

} // namespace

Langue LangueDesReglages(const std::string& documents) {
    const Dossiers dossiers =
        CalculerDossiers(DossierDuProgramme(DossierExecutable(), DossierConfiguration()), documents);
    return LangueDepuisTexte(
        NormaliserLangue(LireIniAvecFichier("Parametres", "Langue", dossiers.FichierIni, "")));
}

int Executer(const Commande& commande) {
    InstallerBoites(commande.oui);
    const int statut = FaireAction([&commande] {
        OptionsDemarrage options;
        options.DossierDocuments = commande.documents;
        options.LangueImposee = commande.langue;
        options.ChercherInterface = false;
        if (Demarrer(options).Termine()) return StatutRefuse;
        const int fait = commande.action();
        Progression::Effacer();
        return fait;
    });
    CouperChauffeAvantDeQuitter();
    return statut;
}

} // namespace tessarel::lot
