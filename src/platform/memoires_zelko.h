// The three memories of the virtual box in a JSON file.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace tessarel {

// By memory, by part: bytes 4 to 33 of the wire.
inline constexpr std::size_t OctetsParPartie = 30;
using OctetsMemoire = std::array<std::array<std::uint8_t, OctetsParPartie>, 3>;
using OctetsMemoires = std::array<OctetsMemoire, 3>;

// The content of such a file; `fichier` is only its name in a FauteLecture.
OctetsMemoires AnalyserMemoiresZelko(const std::string& texte, const std::string& fichier);
std::string ComposerMemoiresZelko(const OctetsMemoires& memoires);

// FauteFichier when the file is absent or unreadable, FauteLecture when it is no such file.
OctetsMemoires LireMemoiresZelko(const std::string& fichier);
// In one step; FauteFichier when it can't be written. A memory of bytes 255 alone is written as null.
void EcrireMemoiresZelko(const std::string& fichier, const OctetsMemoires& memoires);

} // namespace tessarel
