// Reasons of faults in the language in use, for the layers that stand below the text tables. Everything above
// takes its words from app/texts.
#pragma once

#include <string>

namespace tessarel {

// French at first; the text tables call it with every change of language.
void DireRaisonsEnAnglais(bool anglais);

bool RaisonsEnAnglais();

// The one of two texts that the language in use asks for.
const char* SelonLangue(const char* francais, const char* english);

// What went wrong in a call of the system, from its error number: "no space left on the disk".
std::string RaisonSysteme(int code);

} // namespace tessarel
