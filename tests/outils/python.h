// The interpreter of the other readers that tests hold ours against.
#pragma once

#include <string>

namespace tessarel::essais {

// A Python that knows ezdxf; empty where there is none.
std::string PythonAvecEzdxf();

// What a shell command prints.
std::string SortieDe(const std::string& commande);

} // namespace tessarel::essais
