// Where a virtual box listens: the same for the one who listens and for the library that connects.
#pragma once

#include <string>

namespace tessarel {

// The folder of the socket, and of what else boxes keep for the time of a session: $XDG_RUNTIME_DIR; without
// that variable /run/user/<user> where it exists, else /tmp/tessarel-<user>. Of these two only one that
// belongs to the user and that nobody else can write to; empty when none is. `creer` makes the last one where
// it is absent.
std::string DossierZelko(bool creer = false);

// Path of the socket (AF_UNIX, SOCK_SEQPACKET), "zelko.sock" in that folder; empty where there is none, or
// where the path is too long for a socket.
std::string AdresseZelko(bool creer = false);

} // namespace tessarel
