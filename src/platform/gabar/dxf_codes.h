// A DXF text as a walk over its pairs of lines: a group code, then a value.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tessarel {

// Where the walk stands. The text must outlive it: values are views into it.
struct LecteurCodes {
    const char* position = nullptr;
    const char* fin = nullptr;
    long lignesLues = 0;                 // of the text, up to `position`
    int code = -1;                       // of the current pair
    std::string_view valeur;             // of the current pair, blanks taken off at both ends
    const std::string* chemin = nullptr; // for messages
};

LecteurCodes OuvrirCodes(const std::string& texte, const std::string& chemin);

// Goes to the next pair; comments (999) are passed over. False when nothing but blank lines is left.
// FauteLecture when the code is no number, or a code stands without its value.
bool LirePaire(LecteurCodes& lecteur);

// The same, where the text may not end: FauteLecture which says that the file is cut short inside `ou`.
void LirePaireExigee(LecteurCodes& lecteur, std::string_view ou);

// Value of the current pair as a number. FauteLecture with the line when it is none, or is not finite.
double ValeurReelle(const LecteurCodes& lecteur);
// The same as a whole number, held within 32 bits.
std::int32_t ValeurEntiere(const LecteurCodes& lecteur);

// The current pair opens what `mot` says ("SECTION", "ENDSEC"...), in any case.
bool EstMot(const LecteurCodes& lecteur, std::string_view mot);

} // namespace tessarel
