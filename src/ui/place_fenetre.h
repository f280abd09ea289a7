// Where a work window stands on the screen, from one run to the next: the window keys of the settings, in
// twips.
#pragma once

class QWidget;

namespace tessarel {

// Places a window that is not yet shown: as it was left, or maximised where nothing was stored. A place that
// no screen shows any more is not taken.
void PlacerFenetre(QWidget& fenetre);

// Writes the keys. A maximised or minimised window leaves the four of the place as they were.
void MemoriserPlaceFenetre(const QWidget& fenetre);

} // namespace tessarel
