// The project records, 2D and 4-axis, as a project file holds them.
#pragma once

#include "paths/points.h"

#include <optional>
#include <string>
#include <vector>

namespace tessarel {

// Codes of the work modes: also the values of OngletActif and of Onglet in a project.
inline constexpr const char* TS2D = "TS2D";
inline constexpr const char* C4X = "C4X";
inline constexpr const char* D4X = "D4X";

// Version that wrote a file; empty `majeure` marks a file of an old version.
struct VersionFichier {
    std::string majeure;
    std::string mineure;
    std::string revision;
};

// 2D project. Options are absent when no member of their array is set.
struct Projet2D {
    std::vector<Sequence> TableauSequences; // the paths as placed on the table
    float BlocX = 0;                        // mm
    float BlocY = 0;
    std::optional<int> TypeEntree; // 0 origin side, 1 from above, 2 far side
    std::optional<int> TypeSortie;
    std::optional<int> VitesseApproche; // 0 cutting speed, 1 rapid; written, never read back: deliberate
    std::optional<int> VitesseRetour;
};

// One profile of a 4-axis project.
struct ProfilProjet {
    std::string NomFichier; // file that the profile came from
    Sequence sequence;
};

// 4-axis project as stored; the meanings belong to the design and cutting modes.
struct Projet4axes {
    std::string Onglet = C4X; // C4X or D4X
    ProfilProjet Emplanture;
    ProfilProjet Saumon;
    double Ecartement = 0; // mm between the profiles
    double Epaisseur = 0;
    double MargeBaE = 0, MargeBaS = 0; // leading edge margins, root and tip
    double MargeBfE = 0, MargeBfS = 0; // trailing edge
    double DistProfilDessousE = 0;
    int Omega = 0, Alpha = 0; // view angles
    std::string Commentaire;  // lines joined by CR LF, at most 256 characters
    int TypeEntree = 0, TypeApprocheBF = 0, TypeSortie = 0, TypeRetourBF = 0;
    int SortieIntermediaire = 0;
    int CurseurSortieIntermediaire = 0, CurseurSortieIntermediaire2 = 0;
    int TypePositionZ = 0;
    int CoteDecalage = 0;
    int TypeAlgorithmeDecalage = 0;
    double EpaisseurLests = 0;
    double OffsetBlocX = 0, OffsetBlocY = 0, OffsetBlocZ = 0;
    VersionFichier version;
};

} // namespace tessarel
