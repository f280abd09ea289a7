// The hourglass over a piece of work that the user has to wait for.
#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace tessarel {

// The pointer is an hourglass while it lives.
class Attente {
public:
    Attente() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Attente() { QGuiApplication::restoreOverrideCursor(); }
    Attente(const Attente&) = delete;
    Attente& operator=(const Attente&) = delete;
};

} // namespace tessarel
