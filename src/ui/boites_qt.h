// Message boxes as windows of the desktop program.
#pragma once

#include "platform/dialogue.h"

#include <QString>

class QMessageBox;

namespace tessarel {

// From here on every box of the program is a modal window over the active one, its button words in the
// language in use. Escape and the window's cross answer Cancel, else No, else OK.
void InstallerBoitesQt();

// Dresses `fenetre` as `boite` asks, without showing it.
void PreparerBoite(QMessageBox& fenetre, const Boite& boite);

// A told text for a control: CR LF becomes the single line end of the window system.
QString TexteAffiche(const std::string& texte);

} // namespace tessarel
