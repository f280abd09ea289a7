// Texts of the batch program alone, both languages side by side where they are used.
#pragma once

#include "app/texts/textes.h"

#include <string>

namespace tessarel::lot {

// The one of the two that is in use.
inline std::string Dire(const char* francais, const char* english) {
    return LangueCourante() == Langue::English ? english : francais;
}

} // namespace tessarel::lot
