// Paths of the program's folders, and their making.
#include "dossiers_programme.h"

#include "platform/dossiers.h"
#include "platform/fichiers.h"

#include <filesystem>
#include <initializer_list>
#include <string_view>

namespace tessarel {

namespace {

constexpr const char* NomUserChoice = "UserChoice.ini";

std::string AvecSeparateur(std::string dossier) {
    if (dossier.empty() || dossier.back() != SeparateurChemin) dossier += SeparateurChemin;
    return dossier;
}

std::string CheminAbsolu(const std::string& chemin) {
    std::error_code ec;
    const auto absolu = std::filesystem::absolute(chemin, ec);
    return ec ? chemin : absolu.lexically_normal().string();
}

std::string DossierDocuments(const std::string& userChoice, const std::string& impose) {
    if (!impose.empty()) return CheminAbsolu(impose);
    const std::string choisi =
        LireIniAvecFichier("ChoixUtilisateur", "EmplacementDossierTessarel", userChoice, "");
    return choisi.empty() ? DossierDocumentsUtilisateur() : choisi;
}

void EcrireLignes(const std::string& fichier, std::initializer_list<std::string_view> lignes) {
    std::string texte;
    for (const std::string_view ligne : lignes) {
        texte += ligne;
        texte += "\r\n";
    }
    EcrireFichierAtomique(fichier, texte);
}

} // namespace

std::string DossierDuProgramme(const std::string& dossierExecutable,
                               const std::string& dossierConfiguration) {
    const bool garde = FichierExiste(JoindreChemin(dossierExecutable, NomUserChoice)) ||
                       DossierModifiable(dossierExecutable);
    return garde ? dossierExecutable : dossierConfiguration;
}

Dossiers CalculerDossiers(const std::string& programme, const std::string& documents) {
    Dossiers d;
    d.Programme = programme;
    d.UserChoice = JoindreChemin(programme, NomUserChoice);
    d.Documents = AvecSeparateur(DossierDocuments(d.UserChoice, documents));
    d.Tessarel = d.Documents + "Tessarel";
    d.Bibliotheque = JoindreChemin(d.Tessarel, "Bibliotheque");
    d.MesDecoupes = JoindreChemin(d.Bibliotheque, "Mes Decoupes");
    d.Datas = JoindreChemin(d.Tessarel, "Datas");
    d.Plugins = JoindreChemin(d.Tessarel, "Plugins");
    d.FichierIni = JoindreChemin(d.Datas, "Tessarel.ini");
    return d;
}

void VerifierPresenceDossiersBibliothequeEtDataEtCreerSiAbsent(const Dossiers& dossiers) {
    CreerDossier(dossiers.Tessarel);
    if (!DossierExiste(dossiers.Bibliotheque)) {
        CreerDossier(dossiers.Bibliotheque);
        CreerDossier(dossiers.MesDecoupes);
        CreerFichierDXFCercle(JoindreChemin(dossiers.Bibliotheque, "cercle.dxf"));
        CreerFichierTXTRectangleCarre(JoindreChemin(dossiers.Bibliotheque, "rectangles.txt"));
    }
    CreerDossier(dossiers.Datas);
    CreerDossier(dossiers.Plugins);
}

// Deliberate: "Section" in that case and no header section, as users of old versions have it.
void CreerFichierDXFCercle(const std::string& fichier) {
    EcrireLignes(fichier, {"0", "Section", "2", "ENTITIES", "0", "CIRCLE", "10", "0.0", "20", "0.0", "30",
                           "0.0", "40", "50.0", "0", "ENDSEC", "0", "EOF"});
}

void CreerFichierTXTRectangleCarre(const std::string& fichier) {
    EcrireLignes(fichier,
                 {"Rectangle", "0.0:25.0", "0.0:50.0", "100.0:50.0", "100.0:0.0", "0.0:0.0", "0.0:25.0",
                  "Carre", "0.0:25.0", "0.0:50.0", "50.0:50.0", "50.0:0.0", "0.0:0.0", "0.0:25.0"});
}

} // namespace tessarel
