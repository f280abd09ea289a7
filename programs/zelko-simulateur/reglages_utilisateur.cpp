// The user's settings as the virtual box reads them.
#include "reglages_utilisateur.h"

#include "app/demarrage/dossiers_programme.h"
#include "app/settings/cles_generales.h"
#include "app/settings/gestion_ini.h"
#include "machine/machines_integrees.h"
#include "platform/dialogue.h"
#include "platform/dossiers.h"
#include "platform/erreurs.h"

#include <algorithm>
#include <cstdio>

namespace tessarel::simulateur {

namespace {

constexpr std::size_t LongueurNomMemoire = 8;

Dossiers DossiersDe(const std::string& documents) {
    return CalculerDossiers(DossierDuProgramme(DossierExecutable(), DossierConfiguration()), documents);
}

} // namespace

Langue LangueDesReglages(const std::string& documents) {
    return LangueDepuisTexte(
        NormaliserLangue(LireIniAvecFichier("Parametres", "Langue", DossiersDe(documents).FichierIni, "")));
}

void OuvrirReglages(const std::string& documents) {
    InstallerAfficheurBoite([](const Boite& boite) {
        std::fputs((BoiteEnUneLigne(boite) + "\n").c_str(), stderr);
        return ReponseBoite::Ok;
    });
    DossiersProgramme = DossiersDe(documents);
    CreerTableauDesNomsDeMachines();
}

bool MachineConnue(const std::string& nom, TableMachine& table) {
    if (LireMachineIntegree(nom, table)) return true;
    const auto& noms = TableauNomsMachines;
    auto trouve = std::ranges::find(noms, nom);
    if (trouve == noms.end() && nom.size() == LongueurNomMemoire)
        trouve = std::ranges::find_if(noms, [&](const std::string& n) { return n.starts_with(nom); });
    if (trouve == noms.end()) return false;
    try {
        return LireMachine(*trouve, table) == StatutSucces;
    } catch (const Faute&) {
        return false; // a machine that can't be used stands on no desk
    }
}

} // namespace tessarel::simulateur
