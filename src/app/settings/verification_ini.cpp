// Creation, check and repair of the settings file at start-up.
#include "verification_ini.h"

#include "cles_generales.h"
#include "gestion_ini.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "platform/profil_prive.h"

#include <algorithm>
#include <array>

namespace tessarel {

namespace {

// Headers that must not be there: no name, or the window's place of old versions.
constexpr std::array<const char*, 3> SectionsPerimees = {"Machine_", "Matiere_", "Fenetre"};

void CreerIni() {
    const EcrituresGroupees ensemble(DossiersProgramme.FichierIni);
    EcrireIni(SectionFichiers, CleDernierRepertoire, DossiersProgramme.MesDecoupes + SeparateurChemin);
    for (const CleGenerale& rangee : ClesGenerales())
        if (rangee.ecrit != nullptr) EcrireIni(SectionParametres, rangee.cle, rangee.ecrit);
}

void RetirerSectionsPerimees() {
    const std::vector<std::string> lignes = LignesProfil(DossiersProgramme.FichierIni);
    const EcrituresGroupees ensemble(DossiersProgramme.FichierIni);
    for (const std::string nom : SectionsPerimees) {
        const std::string entete = "[" + nom + "]";
        if (std::none_of(lignes.begin(), lignes.end(), [&](const auto& l) { return l.starts_with(entete); }))
            continue;
        EffacerSection(nom);
        SupprimerLigneContenant(entete);
    }
}

void CorrigerDernierRepertoire() {
    if (DossierExiste(LireIni(SectionFichiers, CleDernierRepertoire, ""))) return;
    EcrireIni(SectionFichiers, CleDernierRepertoire, DossiersProgramme.Bibliotheque + SeparateurChemin);
}

std::size_t NombreDeCaracteres(std::string_view utf8) {
    return static_cast<std::size_t>(std::count_if(
        utf8.begin(), utf8.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

} // namespace

bool StructureIniCorrecte() {
    if (!FichierExiste(DossiersProgramme.FichierIni)) return true;
    const std::string texte = EnUtf8(LireFichierEntier(DossiersProgramme.FichierIni));
    const std::string_view premiere = std::string_view(texte).substr(0, texte.find("\r\n"));
    return NombreDeCaracteres(premiere) < LongueurPremiereLigneSansCR;
}

EtatIni VerifierPresenceINICorrigerSiBesoinEtCreerSiAbsent() {
    DossiersProgramme.FichierIni = JoindreChemin(DossiersProgramme.Datas, "Tessarel.ini");
    if (!FichierExiste(DossiersProgramme.FichierIni)) {
        CreerIni();
    } else {
        if (!StructureIniCorrecte()) return EtatIni::SansCR;
        RetirerSectionsPerimees();
    }
    CorrigerDernierRepertoire();
    return EtatIni::Correct;
}

std::vector<std::string> NomsDesSections(const std::string& prefixe) {
    std::vector<std::string> noms;
    std::vector<std::string> vues;
    for (const std::string& ligne : LignesProfil(DossiersProgramme.FichierIni)) {
        const auto fin = ligne.rfind(']');
        if (!ligne.starts_with(prefixe) || fin == std::string::npos || fin <= prefixe.size()) continue;
        std::string nom = ligne.substr(prefixe.size(), fin - prefixe.size());
        std::string plie = EnMinuscules(nom);
        if (std::find(vues.begin(), vues.end(), plie) != vues.end()) continue;
        vues.push_back(std::move(plie));
        noms.push_back(std::move(nom));
    }
    return noms;
}

} // namespace tessarel
