// The look of every window: one style, a light and a dark palette, and the few colours that carry meaning.
#pragma once

#include <QColor>

class QPalette;

namespace tessarel {

enum class Theme {
    Systeme, // the system's own palette, light or dark as it comes
    Clair,
    Sombre
};

// Sets style and palette of the application; windows that are open repaint at once.
void AppliquerTheme(Theme theme);
Theme ThemeCourant();
// True where text is lighter than its ground, whoever chose the palette.
bool ThemeSombre();
bool PaletteSombre(const QPalette& palette);

// Colours that carry meaning, readable on the window's ground of the theme in force.
QColor CouleurAlerte(); // a refusal: red
QColor CouleurAccord(); // all is well: green
QColor CouleurFil();    // the hot wire, and the accent of the icons: the same in both themes

} // namespace tessarel
