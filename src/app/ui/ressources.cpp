// The files that the application's windows carry with them.
#include "app/ui/ressources.h"

#include <QFile>
#include <QString>

// In the global namespace, as the generated initialiser; a static library needs the call.
static void OuvrirRessourcesApplication() {
    Q_INIT_RESOURCE(application);
}

namespace tessarel {

QByteArray LireRessource(const char* nom) {
    OuvrirRessourcesApplication();
    QFile fichier(QString::fromUtf8(nom));
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
}

} // namespace tessarel
