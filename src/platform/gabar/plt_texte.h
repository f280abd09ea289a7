// The text of a plotter file, cut into instructions and numbers as it stands in memory.
//
// An instruction is two letters, in any case, then what it takes, then a semicolon or the letters of the next
// one. Numbers are parted by commas, blanks or their own signs. Around the instructions stand escape
// sequences of the device and of its printer languages, which say nothing of the drawing.
#pragma once

#include "platform/nombres.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tessarel {

// Character that ends a label until DT names another: ETX.
inline constexpr char FinEtiquetteDefaut = '\x03';

struct LecteurPlt {
    std::string_view texte;
    std::size_t place = 0;
    const std::string* chemin = nullptr;

    std::string_view mot;  // the two letters of the instruction, as written
    std::size_t debut = 0; // where they stand
    long ligne = 1;        // and in which line
    char finLigne = '\n';  // CR where the file has no other

    char finEtiquette = FinEtiquetteDefaut;
    long etiquetteOuverte = 0; // line of a label that never ended
    int illisibles = 0;        // numbers that are none
    std::size_t horsSujet = 0; // bytes that belong to no instruction
};

LecteurPlt OuvrirPlt(std::string_view texte, const std::string& chemin);
// Goes to the next instruction; false at the end of the file.
bool LireMotPlt(LecteurPlt& l);
// The letters of the instruction as capitals, for the choice by value: CodePlt("pu") == CodePlt("PU").
constexpr std::uint16_t CodePlt(std::string_view mot) {
    const auto capitale = [](char c) { return static_cast<unsigned>(static_cast<unsigned char>(c)) & 0xDFU; };
    return static_cast<std::uint16_t>(capitale(mot[0]) << 8U | capitale(mot[1]));
}

// The next number of the instruction; false when it has no more. The semicolon that ends it is left there.
bool LireNombrePlt(LecteurPlt& l, double& valeur);
// Two numbers; false when there is not even one. FauteLecture when the file ends between the two; anywhere
// else a lone number counts as illegible and is dropped, as plotters do.
bool LirePairePlt(LecteurPlt& l, double& x, double& y);
// Up to `nombre` numbers, and how many there were.
int LireNombresPlt(LecteurPlt& l, double* valeurs, int nombre);

// The other things an instruction can be followed by.
void PasserEtiquette(LecteurPlt& l);   // LB and its like: text up to the end character
void LireFinEtiquette(LecteurPlt& l);  // DT: the character itself
void PasserSymbole(LecteurPlt& l);     // SM: a character, or none
void PasserCommentaire(LecteurPlt& l); // CO: text in quotes, or up to the semicolon
void PasserArguments(LecteurPlt& l);   // numbers and texts in quotes

[[noreturn]] void RefuserTroncature(const LecteurPlt& l);

} // namespace tessarel
