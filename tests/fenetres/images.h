// Pictures of windows for the documentation: taken by the window tests where TESSAREL_IMAGES names a folder.
#pragma once

#include "ui/boites_qt.h"

#include <QDir>
#include <QMessageBox>
#include <QPainter>
#include <QPixmap>
#include <QString>
#include <QWidget>

namespace tessarel::essais {

// Saves what `fenetre` shows as `nom`.png in the folder that the environment variable TESSAREL_IMAGES names;
// does nothing where it is not set. True when there is nothing to do or the file is written.
inline bool SauverImage(const QPixmap& image, const QString& nom) {
    const QString dossier = qEnvironmentVariable("TESSAREL_IMAGES");
    if (dossier.isEmpty()) return true;
    return QDir().mkpath(dossier) &&
           image.save(dossier + QStringLiteral("/") + nom + QStringLiteral(".png"), "PNG");
}
inline bool SauverImage(QWidget& fenetre, const QString& nom) {
    return SauverImage(fenetre.grab(), nom);
}

// What `fenetre` shows with `boite` over its middle, under a title bar as a desktop gives it: without a
// display there is none.
inline QPixmap ImageAvecBoite(QWidget& fenetre, QMessageBox& boite) {
    constexpr int hauteurTitre = 30; // pixels
    const bool montree = boite.isVisible();
    if (!montree) boite.show();
    QPixmap image = fenetre.grab();
    const QPixmap contenu = boite.grab();
    if (!montree) boite.hide();
    QRect cadre(0, 0, contenu.width(), contenu.height() + hauteurTitre);
    cadre.moveCenter({image.width() / 2, image.height() / 2});
    QPainter peintre(&image);
    const QPalette couleurs = fenetre.palette();
    for (int ombre = 8; ombre > 0; --ombre)
        peintre.fillRect(cadre.adjusted(-ombre, -ombre, ombre, ombre + 2), QColor(0, 0, 0, 10));
    const QRect titre(cadre.topLeft(), QSize(cadre.width(), hauteurTitre));
    peintre.fillRect(titre, couleurs.color(QPalette::Mid));
    QFont police = fenetre.font();
    police.setBold(true);
    peintre.setFont(police);
    peintre.setPen(couleurs.color(QPalette::WindowText));
    peintre.drawText(titre, Qt::AlignCenter, boite.windowTitle());
    peintre.drawPixmap(titre.bottomLeft() + QPoint(0, 1), contenu);
    peintre.setPen(couleurs.color(QPalette::Mid));
    peintre.drawRect(cadre.adjusted(0, 0, -1, -1));
    return image;
}
inline QPixmap ImageAvecBoite(QWidget& fenetre, const Boite& boite) {
    QMessageBox montree(&fenetre);
    PreparerBoite(montree, boite);
    return ImageAvecBoite(fenetre, montree);
}

} // namespace tessarel::essais
