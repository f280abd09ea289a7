// The 2D workspace: the project under work, how files come into it and how it is saved. The window and the
// batch program hold one each; nothing here draws.
#pragma once

#include "paths/import.h"
#include "paths/projets.h"
#include "platform/erreurs.h"
#include "work2d/decoupe2d.h"
#include "work2d/placement.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tessarel {

struct Espace2D {
    std::vector<Sequence> TableauSequences; // as placed on the table
    Bloc bloc;
    int TypeEntree = 0; // options of the cut tab, as in OptionsDecoupe2D
    int TypeSortie = 0;
    int VitesseApproche = 0; // 0 cutting speed, 1 rapid
    int VitesseRetour = 0;
    float coeffTransf = 1;    // running product of the scalings to the block
    std::string cheminProjet; // project file it was opened from or saved to; empty: never saved
    bool modifie = false;     // since then
};

// What opening a file brought, for the label of its kind and the report.
struct OuvertureFichier {
    std::string typeFichier;       // "tsr2d", "tsr4x", else the extension in lower case
    bool estProjet2D = false;      // a 2D project, which replaced the workspace
    std::size_t sequences = 0;     // paths it brought
    std::size_t points = 0;        // points of these, after thinning
    std::size_t pointsRetires = 0; // by the thinning
    RapportLecture rapport;
};

// All that a file holds, before any workspace is touched. A project comes without its paths, which stand in
// `sequences` for every kind; a 4-axis one gives its root and its tip.
struct ContenuFichier {
    OuvertureFichier ouverture;
    std::vector<Sequence> sequences;
    std::optional<Projet2D> projet2D;
    std::optional<Projet4axes> projet4axes;
};

// Reads a file of any kind that the program opens. FauteFichier, FauteLecture, FauteConversion.
ContenuFichier LireContenuFichier(const std::string& chemin, float distNettoyage);

// The same, from whoever reads in a way of its own: nothing when the user gave up.
using LecteurContenu = std::function<std::optional<ContenuFichier>(const std::string&, float)>;

// The box of a file that could not be read, with the reason.
void DireErreurLecture(const Faute& faute);

// An empty workspace with the machine's default block.
Espace2D NouvelEspace2D(const TableMachine& table);

// Opens any kind of file. A 2D project takes the place of what is there, its block limited to the machine,
// and the speed options stay as they were: deliberate. A .qnt does the same but is left without a name, since
// it can't be saved under its own. Drawings, and the two profiles of a 4-axis project, are added as read; the
// block is kept. False after a box that says why, or when the user gave up; the workspace is then as it was.
bool OuvrirFichier2D(Espace2D& espace, const std::string& chemin, const TableMachine& table,
                     float distNettoyage, OuvertureFichier* ouverture = nullptr,
                     const LecteurContenu& lecteur = LireContenuFichier);

// False when the file holds a project of the other kind, 4-axis or 2D, and the user wants to keep it.
bool PeutEtreRemplace(const std::string& chemin, bool par4axes);

// Writes the workspace to a .tsr and gives it that name, after a question where that replaces a 4-axis
// project. False after a box that says why, or when the user keeps the old file.
bool EnregistrerEspace2D(Espace2D& espace, const std::string& chemin);

// Record of the workspace as a project file holds it.
Projet2D ProjetDepuisEspace(const Espace2D& espace);

} // namespace tessarel
