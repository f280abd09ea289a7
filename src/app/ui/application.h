// The desktop application: where a fault that nobody took ends in a box, and the words of the window system's
// own dialogs.
#pragma once

#include "app/texts/textes.h"

#include <QApplication>
#include <exception>
#include <string>

namespace tessarel {

class ApplicationTessarel : public QApplication {
    Q_OBJECT
public:
    ApplicationTessarel(int& argc, char** argv);

    // Every event of the program passes here: a fault that a handler lets through becomes a box that names
    // it, and the program goes on with the next event, its work still in memory. While the machine is driven
    // that is stopped first: the fault goes through the loop that drives it.
    bool notify(QObject* receveur, QEvent* evenement) override;

    // The words of file dialogs and the like, where the system has them in that language.
    void ParlerLangue(Langue langue);
};

// Tells the user of a fault: its number, its description, and where it came from.
void AnnoncerFaute(const std::exception& faute, const std::string& procedure, const std::string& fenetre);

} // namespace tessarel
