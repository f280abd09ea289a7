// The open and save dialogs behind one routine, so that a test can answer in the user's place.
#pragma once

#include <functional>
#include <string>
#include <vector>

class QWidget;

namespace tessarel {

// What is asked. `filtre` is told as pairs, "label|patterns|label|patterns", the patterns joined by ";".
struct DemandeFichier {
    std::string titre;
    std::string filtre;
    int indiceFiltre = 1;     // the pair proposed first, counted from 1
    std::string dossier;      // where the dialog starts; a folder that is absent gives the user's own
    std::string nomPropose;   // file name shown at first, without folder
    std::string extension;    // added to a name typed without one when saving; "" adds none
    bool enregistrer = false; // a save dialog, which asks before it replaces a file
    bool dossierSeul = false; // a folder is chosen, not a file
    bool plusieurs = false;   // several files may be opened at once
};

// What was chosen: full paths, none when the user gave up; the pair in force, counted from 1.
struct FichiersChoisis {
    std::vector<std::string> chemins;
    int indiceFiltre = 0;

    [[nodiscard]] bool Annule() const { return chemins.empty(); }
    [[nodiscard]] std::string Premier() const { return chemins.empty() ? std::string() : chemins.front(); }
};

// Asks the user, in a dialog over `parent` (null: over the active window).
FichiersChoisis ChoisirFichier(const DemandeFichier& demande, QWidget* parent = nullptr);

// Replaces the one who chooses; returns the one replaced. An empty function restores the dialogs.
using ChoisisseurFichier = std::function<FichiersChoisis(const DemandeFichier&, QWidget*)>;
ChoisisseurFichier InstallerChoisisseurFichier(ChoisisseurFichier choisisseur);

// The told pairs as the dialogs take them: {"Tessarel (*.tsr) (*.tsr *.TSR)", ...}. A pattern "*.*" means
// every file, also one without extension; a pattern in small letters also lets capitals through.
std::vector<std::string> FiltresPourDialogue(const std::string& filtre);

} // namespace tessarel
