// Machine records into memories of the virtual box.
#include "link/simulateur/memoires_machine.h"

#include "link/memoires.h"

#include <algorithm>

namespace tessarel::simulateur {

MemoireBoite MemoireDeMachine(const TableMachine& table) {
    const MessagesTable messages = ComposerMessagesTable(table, 0);
    MemoireBoite memoire;
    for (std::size_t p = 0; const Tampon* message : {&messages.Partie1, &messages.Partie2, &messages.Partie3})
        std::copy_n(message->begin() + DebutPartie, TaillePartie, memoire.parties[p++].begin());
    return memoire;
}

Mecanique MecaniqueDeMachine(const TableMachine& table) {
    Mecanique m;
    m.courseX = table.CourseX;
    m.courseY = table.CourseY;
    m.origineEnHaut = table.OrigineEnHaut;
    if (table.EcartementY1Y2 > 0) m.ecartement = table.EcartementY1Y2;
    return m;
}

} // namespace tessarel::simulateur
