// The link library of the interface box, looked for at run time: it may be missing or too old, and both are
// ordinary states.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tessarel {

// The one exchange with the box: a buffer goes out, the reply comes back in it. Byte 0 is always 0.
inline constexpr std::size_t TailleTampon = 65;
using Tampon = std::array<std::uint8_t, TailleTampon>;

inline constexpr const char* NomBibliothequeZelko = "libZelkoCom.so";
// A library below this version is refused.
inline constexpr std::int32_t VersionMinimaleZelko = 16;

// Results of an exchange.
inline constexpr std::int32_t ResultatZelkoSucces = 1;
inline constexpr std::int32_t ResultatZelkoBibliothequeAbsente = -500;
// What Zelko_IsConnected gives for a box that is there.
inline constexpr std::int32_t ZelkoBranchee = 1;

enum class EtatBibliotheque { Absente, TropVieille, Presente };

// Where the library is looked for by itself: beside the program, then in the folder "lib" next to the
// program's own.
std::vector<std::string> DossiersZelkoCom();

// Looks for the library in these folders, in order, and loads the first that has all five functions. A
// library loaded before is let go.
EtatBibliotheque ChargerZelkoCom(const std::vector<std::string>& dossiers);
void LibererZelkoCom();
// A box in place of the library, reached through these three: tests and a demonstration put the virtual one
// here. It stands, in state Presente, until LibererZelkoCom or the next load; all three must be callable.
struct FonctionsZelkoCom {
    std::int32_t Version = VersionMinimaleZelko;
    std::function<std::int32_t()> EstBranchee;
    std::function<std::int32_t(Tampon&)> Envoyer;
};
void RemplacerZelkoCom(FonctionsZelkoCom fonctions);
bool ZelkoComRemplacee();
EtatBibliotheque EtatZelkoCom();
// The file that was loaded, or why none was: for the information window and for bug reports.
const std::string& OrigineZelkoCom();

// The five functions. Without a library, or with one that is too old, the version is that read (0 for none),
// no box is there, and a send gives ResultatZelkoBibliothequeAbsente. Open and Close are never needed: the
// library opens its channel by itself.
std::int32_t Zelko_Dll_Version();
std::int32_t Zelko_Open();
std::int32_t Zelko_Close();
std::int32_t Zelko_IsConnected();
std::int32_t Zelko_Send(Tampon& tampon);

} // namespace tessarel
