// The sentences of the file readers, French and English side by side: this layer stands below the text
// tables.
#pragma once

#include "platform/raisons.h"

#include <string>
#include <string_view>

namespace tessarel {

// The sentence in the language in use.
inline std::string Bilingue(std::string_view francais, std::string_view anglais) {
    return std::string(RaisonsEnAnglais() ? anglais : francais);
}

// A piece of a foreign file made fit for a message: valid UTF-8, no control characters, at most 40 bytes.
std::string Citation(std::string_view texte);

} // namespace tessarel
