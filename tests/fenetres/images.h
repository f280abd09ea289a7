// Pictures of windows for the documentation: taken by the window tests where TESSAREL_IMAGES names a folder.
#pragma once

#include <QDir>
#include <QPixmap>
#include <QString>
#include <QWidget>

namespace tessarel::essais {

// Saves what `fenetre` shows as `nom`.png in the folder that the environment variable TESSAREL_IMAGES names;
// does nothing where it is not set. True when there is nothing to do or the file is written.
inline bool SauverImage(QWidget& fenetre, const QString& nom) {
    const QString dossier = qEnvironmentVariable("TESSAREL_IMAGES");
    if (dossier.isEmpty()) return true;
    return QDir().mkpath(dossier) &&
           fenetre.grab().save(dossier + QStringLiteral("/") + nom + QStringLiteral(".png"), "PNG");
}

} // namespace tessarel::essais
