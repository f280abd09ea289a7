// Folders of the user by the conventions of the free desktops, and the program's own.
#include "dossiers.h"

#include "erreurs.h"
#include "fichiers.h"

#include <cstdlib>
#include <filesystem>
#include <pwd.h>
#include <unistd.h>

namespace tessarel {

namespace {

std::string Variable(const char* nom) {
    const char* valeur = std::getenv(nom);
    return valeur != nullptr ? valeur : "";
}

// A relative path in these variables is to be taken as unset.
std::string VariableAbsolue(const char* nom) {
    std::string valeur = Variable(nom);
    return valeur.starts_with(SeparateurChemin) ? valeur : "";
}

std::string BaseDeConfiguration() {
    const std::string base = VariableAbsolue("XDG_CONFIG_HOME");
    return base.empty() ? JoindreChemin(DossierPersonnel(), ".config") : base;
}

// The value of a line such as XDG_DOCUMENTS_DIR="$HOME/Documents": quotes off, backslashes undone, the user's
// folder put in. Empty when it is neither that form nor an absolute path.
std::string CheminDeDeclaration(std::string_view valeur) {
    valeur = Rogner(valeur);
    if (valeur.size() < 2 || valeur.front() != '"' || valeur.back() != '"') return "";
    valeur = valeur.substr(1, valeur.size() - 2);
    std::string chemin;
    constexpr std::string_view personnel = "$HOME";
    if (valeur.starts_with(personnel)) {
        chemin = DossierPersonnel();
        valeur.remove_prefix(personnel.size());
    } else if (!valeur.starts_with(SeparateurChemin)) {
        return "";
    }
    for (std::size_t i = 0; i < valeur.size(); ++i) {
        if (valeur[i] == '\\' && i + 1 < valeur.size()) ++i;
        chemin += valeur[i];
    }
    while (chemin.size() > 1 && chemin.back() == SeparateurChemin) chemin.pop_back();
    return chemin;
}

std::string DocumentsDeclares() {
    const std::string fichier = JoindreChemin(BaseDeConfiguration(), "user-dirs.dirs");
    if (!FichierExiste(fichier)) return "";
    std::string declare;
    try {
        const std::string texte = LireFichierEntier(fichier);
        constexpr std::string_view nom = "XDG_DOCUMENTS_DIR=";
        for (std::string_view ligne : Decouper(texte, "\n")) {
            ligne = Rogner(ligne);
            if (ligne.starts_with(nom)) declare = CheminDeDeclaration(ligne.substr(nom.size()));
        }
    } catch (const FauteFichier&) {
        return ""; // a desktop's file that can't be read is no reason not to start
    }
    return declare;
}

} // namespace

std::string DossierExecutable() {
    std::error_code ec;
    const auto programme = std::filesystem::read_symlink("/proc/self/exe", ec);
    return ec ? "" : programme.parent_path().string();
}

std::string DossierPersonnel() {
    std::string variable = VariableAbsolue("HOME");
    if (!variable.empty()) return variable;
    const struct passwd* fiche = ::getpwuid(::getuid());
    return fiche != nullptr && fiche->pw_dir != nullptr ? fiche->pw_dir : "/";
}

std::string DossierConfiguration() {
    return JoindreChemin(BaseDeConfiguration(), "tessarel");
}

std::string DossierDocumentsUtilisateur() {
    std::string declare = DocumentsDeclares();
    if (!declare.empty() && DossierExiste(declare)) return declare;
    const std::string usuel = JoindreChemin(DossierPersonnel(), "Documents");
    return DossierExiste(usuel) ? usuel : DossierPersonnel();
}

bool DossierModifiable(const std::string& dossier) {
    return DossierExiste(dossier) && ::access(dossier.c_str(), W_OK | X_OK) == 0;
}

} // namespace tessarel
