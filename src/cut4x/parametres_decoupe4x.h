// What the 4-axis cut is asked to do: the keys of a project's [Decoupe4axes] and the tools of the cut window.
//
// The names are those of the project's keys; beside each stands the control that shows it.
#pragma once

#include "machine/table_machine.h"
#include "paths/projets.h"

#include <cstdint>

namespace tessarel {

enum class CoteDecalageD4X : std::int16_t { Gauche = 0, Droite = 1, Aucun = 2 };
enum class AlgorithmeDecalageD4X : std::int16_t { Simple = 0, Variable = 1 };
enum class TypeEntreeD4X : std::int16_t { BordDeFuite = 0, Dessus = 1, BordDAttaque = 2 };
enum class TypeApprocheD4X : std::int16_t { Horizontale = 0, PremierSegment = 1, DernierSegment = 2 };
enum class SortieIntermediaireD4X : std::int16_t { Aucune = 0, Une = 1, Deux = 2 };
enum class AlignementZ : std::int16_t { Bord1 = 0, Bord2 = 1, Centre = 2, Saisi = 3 };

inline constexpr float EpaisseurLestsParDefaut = 30; // mm

struct ParametresDecoupe4axes {
    TypeEntreeD4X TypeEntree = TypeEntreeD4X::BordDeFuite;         // optEntrerBloc
    TypeApprocheD4X TypeApprocheBF = TypeApprocheD4X::Horizontale; // optBFapproche
    TypeEntreeD4X TypeSortie = TypeEntreeD4X::BordDeFuite;         // optSortirBloc, 1 is upwards
    TypeApprocheD4X TypeRetourBF = TypeApprocheD4X::Horizontale;   // optBFretour
    SortieIntermediaireD4X SortieIntermediaire = SortieIntermediaireD4X::Aucune; // optSortieBA
    // hscPositionSortieIntermediaire(1), (2): numbers of profile points, counted from 1.
    std::int32_t CurseurSortieIntermediaire = 1;
    std::int32_t CurseurSortieIntermediaire2 = 1;
    AlignementZ TypePositionZ = AlignementZ::Bord1;                                 // optAlignementBlocZ
    CoteDecalageD4X CoteDecalage = CoteDecalageD4X::Gauche;                         // optCoteDecalageFilD4X
    AlgorithmeDecalageD4X TypeAlgorithmeDecalage = AlgorithmeDecalageD4X::Variable; // optTypeDecalageFilD4X
    float EpaisseurLests = EpaisseurLestsParDefaut;                                 // txtEpaisseurLest, mm
    float OffsetBlocX = 0;                                                          // txtPositionBloc(0), mm
    float OffsetBlocY = 0; // (1), the wedge under the block
    float OffsetBlocZ = 0; // (2), from edge 1 of the plateau to side S
    // Planes of the two faces of the block, mm from carriage 1: kept beside the offset that they follow from
    // and written by AppliquerAlignementZ alone.
    float ZSaumon = 0;
    float ZEmplanture = 0;

    bool symetrie = false;      // optCoteD4X(1)
    bool chkBlocDresse = false; // the block is squared already
    bool chkDresser = false;    // square the block instead of cutting the profiles
    bool chkSurfacer = false;   // with chkDresser: its top too
    bool chkGuillotine = false; // cut straight through the foam instead
    bool chkMonteeRapide = false;
    double hauteurGuillotine = 0; // txtGuillotine(0), mm; as typed, in 64 bits
    double angleGuillotine = 90;  // txtGuillotine(1), degrees; 90 is upright
    // The variable offset doubles the points of a profile.
    [[nodiscard]] bool DecalageVariableActif() const {
        return CoteDecalage != CoteDecalageD4X::Aucun &&
               TypeAlgorithmeDecalage == AlgorithmeDecalageD4X::Variable;
    }
    friend bool operator==(const ParametresDecoupe4axes&, const ParametresDecoupe4axes&) = default;
};

// The parameters in force: one record per program.
extern ParametresDecoupe4axes ParametresD4X;

// Width of the plateau between its two edges, mm.
float LargeurPlateau(const TableMachine& table);

// The state of a program that starts.
ParametresDecoupe4axes ParametresDecoupe4axesInitiaux(const TableMachine& table);
// Puts it in force.
void InitialiserParametresDecoupe4axes();

// Takes over the keys of [Decoupe4axes]; tools of the window stay as they are. ZSaumon and ZEmplanture follow
// from the alignment, which wins over the file's OffsetBlocZ except where it is "Saisi".
void ReprendreParametresProjet(const Projet4axes& projet, const TableMachine& table,
                               ParametresDecoupe4axes& parametres);
// The way back, before a save.
void ReporterParametresProjet(const ParametresDecoupe4axes& parametres, Projet4axes& projet);

// OffsetBlocZ (but for "Saisi"), ZSaumon and ZEmplanture from the alignment, for a block `ecartement` mm
// wide.
void AppliquerAlignementZ(float ecartement, const TableMachine& table, ParametresDecoupe4axes& parametres);

} // namespace tessarel
