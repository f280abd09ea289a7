// The recycle bin of the desktop: a file that goes there can be restored by any file manager.
#pragma once

#include <string>

namespace tessarel {

// Moves a file (or a link, never what it leads to) to the recycle bin: the user's own, else that of the
// volume the file stands on; where there is no other way it is copied to the user's own first. False when
// none of this works, or for a folder: the file is then where it was.
bool FichierDansCorbeille(const std::string& chemin);

} // namespace tessarel
