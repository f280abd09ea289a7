// The files that the application's windows carry with them.
#pragma once

#include <QByteArray>

namespace tessarel {

// The bytes of an embedded file; empty when there is none of that name.
QByteArray LireRessource(const char* nom);

} // namespace tessarel
