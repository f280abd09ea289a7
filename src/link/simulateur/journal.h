// The log of the virtual box as text: one line a note, for people and for programs.
#pragma once

#include "link/simulateur/carnet.h"

#include <string>
#include <string_view>

namespace tessarel::simulateur {

// First line of a log: the names of the columns.
std::string EnteteJournal();

// One line, ended by LF. Columns are parted by a tab and never hold one:
//   seconds  box seconds  "echange"    number  result  command  reply  bytes out  bytes back
//   seconds  box seconds  "evenement"  name    value
// Times run from the making of the box; the second one at the speed factor. Commands and replies are words
// with key=value; bytes are hexadecimal from byte 1 of the buffer, without the zeros at the end ("-" for
// none).
std::string LigneJournal(const NoteJournal& note);
// The same at the end of `sortie`.
void AjouterLigneJournal(std::string& sortie, const NoteJournal& note);

// "D trame NBRt=1200 X1=+120 Y1=-40 X2=0 Y2=0", "P chauffe 166", "B lancer"...
std::string DecrireCommande(const Tampon& commande);
// What the program reads in the reply to that command: "acceptee=1 salve=2 reste=331 chauffe=1 switchs=0
// fin=0".
std::string DecrireReponse(const Tampon& commande, const Tampon& reponse);
// Name of an event or of a fault in a log: "debut-salve", "reponse-perdue".
std::string_view NomEvenement(Evenement evenement);
std::string_view NomPanne(Panne panne);

} // namespace tessarel::simulateur
