// Where a virtual box listens: the same for the one who listens and for the library that connects.
#pragma once

#include <string>

namespace tessarel {

// Path of the socket (AF_UNIX, SOCK_SEQPACKET): "zelko.sock" in $XDG_RUNTIME_DIR; without that variable in
// /run/user/<user> where it exists, else in /tmp/tessarel-<user>. Empty when none is fit to use: the folder
// must belong to the user and be closed to others, and the whole path must fit a socket address. `creer`
// makes the last of these folders where it is absent (owner only); it is for the one who listens.
std::string AdresseZelko(bool creer = false);

} // namespace tessarel
