// The words of a window's controls: one table per window, each row a control with its text in both languages,
// its shortcut and its icon.
#pragma once

#include "app/texts/textes.h"

#include <span>
#include <string>
#include <vector>

class QWidget;

namespace tessarel {

// What a row says of its control.
enum class Propriete {
    Texte,    // what stands on it: caption, title of a group, a menu or a dock, first words of a field
    Detail,   // second line of a large button
    Bulle,    // tool tip; where the control has a shortcut, it is added in brackets
    Etat,     // status bar text
    Titre,    // title of a window
    Elements, // entries of a list or tabs, separated by "|"
    Variable  // the program writes this text as it runs; no words here
};

struct Libelle {
    const char* controle; // objectName; "" is the window itself
    Propriete propriete;
    const char* francais = "";
    const char* english = "";
    const char* raccourci = ""; // "Ctrl+O", as the key sequences of the window system are written
    const char* icone = "";     // name for Icone()
};

// Writes the rows of a language on the children of `fenetre` (widgets and actions, by objectName).
void AppliquerLibelles(QWidget& fenetre, std::span<const Libelle> libelles, Langue langue);

// What is wrong between a window and its table, one sentence each, none when all is well: a row without
// control, a language left empty, lists of different lengths, an unknown icon, a row told twice, a named
// control that shows text and has no row, a button without words that has no tool tip.
std::vector<std::string> DefautsLibelles(QWidget& fenetre, std::span<const Libelle> libelles);

} // namespace tessarel
