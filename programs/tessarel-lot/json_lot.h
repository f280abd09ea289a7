// Objects of the batch program for other programs.
#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace tessarel::lot {

// An object as it is printed: two blanks a level, bytes that are no UTF-8 replaced, a line end behind.
inline std::string TexteJson(const nlohmann::ordered_json& objet) {
    return objet.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}

} // namespace tessarel::lot
