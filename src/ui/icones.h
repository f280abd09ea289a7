// The program's own icons: line drawings that take the colours of the palette in force when they are painted.
#pragma once

#include <QIcon>
#include <QString>
#include <QStringList>

namespace tessarel {

// The icon `nom` of src/ui/icones ("ouvrir" for ouvrir.svg). It follows later changes of the palette by
// itself. A name that has no drawing gives an empty icon.
QIcon Icone(const QString& nom);
// All names there are, in alphabetical order.
QStringList NomsIcones();
// The program's own sign in its full colours, for windows and the task bar.
QIcon IconeProgramme();

} // namespace tessarel
