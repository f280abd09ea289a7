// Sections and keys of a project file, in the order in which they are written: these tables drive both the
// writer and the reader.
#pragma once

#include "paths/projets.h"

#include <array>
#include <optional>
#include <string>
#include <variant>

namespace tessarel {

inline constexpr const char* SectionTypeProjet = "TypeProjet";
inline constexpr const char* CleOnglet = "Onglet";
inline constexpr const char* SectionParametresFichier = "ParametresFichier";
inline constexpr const char* CleNombrePoints = "NombrePoints";
inline constexpr const char* CleNomFichier = "NomFichier";
inline constexpr const char* CleNombreSequences = "NombreSequences";

// Mask of every real value of a project.
inline constexpr const char* MasqueProjet = "#####0.000000";

// The sections of a 2D project are this prefix and a name; the old .qnt has the names alone.
inline constexpr const char* PrefixeDecoupe2D = "Decoupe2D_";
inline constexpr const char* NomParametresSequences = "ParametresSequences";
inline constexpr const char* NomSequence = "Sequence"; // followed by its number, from 1
inline constexpr const char* NomBloc = "Bloc";
inline constexpr const char* NomDecoupe = "Decoupe";

// Options of [Decoupe2D_Decoupe], each the index of the member set; without one no line is written.
struct CleOption2D {
    const char* cle;
    std::optional<int> Projet2D::*membre;
    int maximum;
    // The two speeds are written and never read back, deliberate: after opening a project they stay as the
    // user has them.
    bool relue;
};
inline constexpr std::array<CleOption2D, 4> OptionsProjet2D = {{
    {"TypeEntree", &Projet2D::TypeEntree, 2, true},
    {"TypeSortie", &Projet2D::TypeSortie, 2, true},
    {"VitesseApproche", &Projet2D::VitesseApproche, 1, false},
    {"VitesseRetour", &Projet2D::VitesseRetour, 1, false},
}};

// The profiles of a 4-axis project. `ancienne` is the section's name in the oldest files.
struct SectionProfil {
    const char* section;
    const char* ancienne;
    ProfilProjet Projet4axes::*membre;
};
inline constexpr std::array<SectionProfil, 2> ProfilsProjet4axes = {{
    {"Conception4axes_Emplanture", "Emplanture", &Projet4axes::Emplanture},
    {"Conception4axes_Saumon", "Saumon", &Projet4axes::Saumon},
}};

enum class GenreCle {
    Reel,        // real, through the mask
    Angle,       // whole number written through the real mask
    Entier,      // whole number
    Choix,       // whole number from 0 to `maximum`
    Commentaire, // lines of text joined into one value
};

// A key of a 4-axis project. `ancienne`: the section's name in the oldest files, null where they have none.
// `avantVersions`: the key that holds the value in a file that names no version, null where it is the same.
struct Cle4axes {
    const char* section;
    const char* ancienne;
    const char* cle;
    GenreCle genre;
    std::variant<double Projet4axes::*, int Projet4axes::*, std::string Projet4axes::*> membre;
    int maximum = 0;
    const char* avantVersions = nullptr;
};

inline constexpr const char* SectionPosition = "Conception4axes_Position";
inline constexpr const char* SectionBloc4axes = "Conception4axes_Bloc";
inline constexpr const char* SectionAffichage = "Conception4axes_Affichage";
inline constexpr const char* SectionDecoupe4axes = "Decoupe4axes";

inline constexpr std::array<Cle4axes, 24> ClesProjet4axes = {{
    {SectionPosition, "Position", "Ecartement", GenreCle::Reel, &Projet4axes::Ecartement},
    {SectionBloc4axes, nullptr, "Epaisseur", GenreCle::Reel, &Projet4axes::Epaisseur},
    {SectionBloc4axes, nullptr, "MargeBaE", GenreCle::Reel, &Projet4axes::MargeBaE},
    {SectionBloc4axes, nullptr, "MargeBaS", GenreCle::Reel, &Projet4axes::MargeBaS},
    {SectionBloc4axes, nullptr, "MargeBfE", GenreCle::Reel, &Projet4axes::MargeBfE},
    {SectionBloc4axes, nullptr, "MargeBfS", GenreCle::Reel, &Projet4axes::MargeBfS},
    {SectionBloc4axes, nullptr, "DistProfilDessousE", GenreCle::Reel, &Projet4axes::DistProfilDessousE},
    {SectionAffichage, "Affichage", "Omega", GenreCle::Angle, &Projet4axes::Omega},
    {SectionAffichage, "Affichage", "Alpha", GenreCle::Angle, &Projet4axes::Alpha},
    {SectionAffichage, "Affichage", "Commentaire", GenreCle::Commentaire, &Projet4axes::Commentaire},
    {SectionDecoupe4axes, nullptr, "TypeEntree", GenreCle::Choix, &Projet4axes::TypeEntree, 2},
    {SectionDecoupe4axes, nullptr, "TypeApprocheBF", GenreCle::Choix, &Projet4axes::TypeApprocheBF, 2},
    {SectionDecoupe4axes, nullptr, "TypeSortie", GenreCle::Choix, &Projet4axes::TypeSortie, 2},
    {SectionDecoupe4axes, nullptr, "TypeRetourBF", GenreCle::Choix, &Projet4axes::TypeRetourBF, 2},
    {SectionDecoupe4axes, nullptr, "SortieIntermediaire", GenreCle::Choix, &Projet4axes::SortieIntermediaire,
     2},
    {SectionDecoupe4axes, nullptr, "CurseurSortieIntermediaire", GenreCle::Entier,
     &Projet4axes::CurseurSortieIntermediaire},
    {SectionDecoupe4axes, nullptr, "CurseurSortieIntermediaire2", GenreCle::Entier,
     &Projet4axes::CurseurSortieIntermediaire2},
    {SectionDecoupe4axes, nullptr, "TypePositionZ", GenreCle::Choix, &Projet4axes::TypePositionZ, 3},
    {SectionDecoupe4axes, nullptr, "CoteDecalage", GenreCle::Choix, &Projet4axes::CoteDecalage, 2},
    {SectionDecoupe4axes, nullptr, "TypeAlgorithmeDecalage", GenreCle::Choix,
     &Projet4axes::TypeAlgorithmeDecalage, 1},
    {SectionDecoupe4axes, nullptr, "EpaisseurLests", GenreCle::Reel, &Projet4axes::EpaisseurLests},
    {SectionDecoupe4axes, nullptr, "OffsetBlocX", GenreCle::Reel, &Projet4axes::OffsetBlocX},
    {SectionDecoupe4axes, nullptr, "OffsetBlocY", GenreCle::Reel, &Projet4axes::OffsetBlocY},
    {SectionDecoupe4axes, nullptr, "OffsetBlocZ", GenreCle::Reel, &Projet4axes::OffsetBlocZ, 0, "ZFaceBloc1"},
}};

// Version of the program that wrote the file, and where a reader puts it.
struct CleVersion {
    const char* cle;
    int numero;
    std::string VersionFichier::*membre;
};
inline constexpr std::array<CleVersion, 3> ClesVersion = {{
    {"NumeroMajorVersionTessarel", TESSAREL_VERSION_MAJEURE, &VersionFichier::majeure},
    {"NumeroMinorVersionTessarel", TESSAREL_VERSION_MINEURE, &VersionFichier::mineure},
    {"NumeroRevisionVersionTessarel", TESSAREL_VERSION_REVISION, &VersionFichier::revision},
}};

} // namespace tessarel
