// The words of the virtual box's window.
#pragma once

#include "link/simulateur/boite.h"
#include "ui/libelles.h"

#include <QString>

#include <span>

namespace tessarel::simulateur {

std::span<const Libelle> LibellesSimulateur();

// What the run is doing, why it ended, what an event means: in the language in use.
QString PhraseEtat(const EtatBoite& etat);
QString PhraseFin(FinMouvement fin);
QString PhraseNote(const NoteJournal& note);

} // namespace tessarel::simulateur
