// The one exchange with the box: the buffer of 65 bytes, its sending with the guard of all that moves or
// heats, and what is told when it fails.
#pragma once

#include "etat_interface.h"
#include "platform/horloge.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tessarel {

// Commands, byte 1 of the buffer.
inline constexpr std::uint8_t CommandeFile = 66;    // B: empty, open or run the queue
inline constexpr std::uint8_t CommandeSalve = 68;   // D: one frame
inline constexpr std::uint8_t CommandeStatut = 73;  // I
inline constexpr std::uint8_t CommandeMoteurs = 77; // M: 0 off, 1 on, 3 delay
inline constexpr std::uint8_t CommandeOrigine = 79; // O: 0 normal, 1 homing
inline constexpr std::uint8_t CommandeChauffe = 80; // P: 0 off, 1 value
inline constexpr std::uint8_t CommandeArret = 83;   // S
inline constexpr std::uint8_t CommandeTable = 84;   // T
// Byte 2 of B.
inline constexpr std::uint8_t FileVider = 0;
inline constexpr std::uint8_t FileOuvrir = 1;
inline constexpr std::uint8_t FileLancer = 128;

// Command and reply, one for the whole program. Byte 0 is always 0.
extern Tampon TamponEchange;

// Result kept in DernierResultatZelko when the guard held a command back: nothing was sent. Not a result of
// the library.
inline constexpr std::int32_t ResultatMouvementsInactifs = -600;

// Clears the 65 bytes.
void EffacerTampon();

// True for what moves or heats, and so goes out only while MouvementsActifs holds: every D (also the end
// mark), B 128, P 1, M 1. What stops, asks, empties or stores always goes out: B 0, B 1, I, M 0, M 3, O, P 0,
// S, T.
bool EstCommandeDeMouvement(const Tampon& tampon);

// Sends TamponEchange as it stands; the reply takes its place. Returns true when the exchange succeeded.
// Keeps the result in DernierResultatZelko and shows no box. This is the only place of the program that
// sends, and what EstCommandeDeMouvement names is not sent while MouvementsActifs is false. After a failure
// the buffer holds what reads as "no": a frame not accepted, a heat not echoed, a heat-off not confirmed, a
// run not ended; all other bytes are 0, so that no switch reads as open.
bool Echanger();

// The last command went nowhere, and none will: moves are not enabled, or there is no library.
bool RienNePart();

// Pause between two tries that failed: a box that is gone answers at once, and the processor has better
// things to do.
inline constexpr Instant EntreDeuxEssais = std::chrono::milliseconds(20);

// The reply to a P 0 that switched the heat off: a reply that got lost on its way does not read so.
bool ConfirmeCoupure(const Tampon& reponse);

// Clears the buffer, writes the command and sends it. A failure is told by a box and passed over: nobody
// aborts because of it, the reply reads as above. A command held back by the guard shows no box.
void EnvoiBytes(std::uint8_t code, std::uint8_t arg1, std::uint8_t arg2);

// Result of the library for a reply that doesn't fit.
inline constexpr std::int32_t ResultatZelkoIncoherent = -204;

// The text of a result of the library. The same in both languages: they are literals of the link.
std::string TexteErreurInterface(std::int32_t code);

// The box of a failed exchange: the text of its result, what to look after, and the name of the routine that
// failed.
void SignalerErreurInterface(std::string_view procedure, std::int32_t resultat = DernierResultatZelko);

// The wire may be hot, as far as this program knows: a heat or a frame went out, or was lost on the way, and
// no heat-off was confirmed since. Cleared by the confirmation alone.
bool ChauffePeutEtreActive();
// From here on it may be, whoever lit it: this program is about to put it out.
void SupposerFilChaud();
// A heat by hand went out, or was lost on the way, and no heat-off was confirmed since.
bool FilAllumeIci();

// Counts exchanges that fail one after the other, for loops that go on in spite of them: the user must hear
// of a box that is gone, once, and not at each try.
struct EchecsConsecutifs {
    int Nombre = 0;
};
// As many failures as one reply lost now and then never makes.
inline constexpr int EchecsAvantAvertissement = 5;
// Notes one exchange. True at the moment when the user should be told: at the fifth failure in a row, not
// again before an exchange succeeded.
bool NoterEchange(EchecsConsecutifs& echecs, bool reussi);

} // namespace tessarel
