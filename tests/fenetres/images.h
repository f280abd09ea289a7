// Pictures of windows for the documentation: taken by the window tests where TESSAREL_IMAGES names a folder.
#pragma once

#include "app/texts/textes.h"
#include "ui/boites_qt.h"
#include "ui/theme.h"

#include <QDir>
#include <QMessageBox>
#include <QPainter>
#include <QPixmap>
#include <QString>
#include <QTest>
#include <QWidget>

#include <initializer_list>

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

// The rows of a test that takes pictures, French and English on each ground: "fr-clair" and so on.
inline void RangeesImages(std::initializer_list<Theme> fonds = {Theme::Clair, Theme::Sombre}) {
    QTest::addColumn<bool>("anglais");
    QTest::addColumn<bool>("sombre");
    for (const bool anglais : {false, true})
        for (const Theme fond : fonds)
            QTest::addRow("%s-%s", anglais ? "en" : "fr", fond == Theme::Sombre ? "sombre" : "clair")
                << anglais << (fond == Theme::Sombre);
}
// In such a test: puts on the ground of the row and gives its language.
inline Langue ReglerRangeeImage() {
    QFETCH(bool, anglais);
    QFETCH(bool, sombre);
    AppliquerTheme(sombre ? Theme::Sombre : Theme::Clair);
    return anglais ? Langue::English : Langue::Francais;
}
// As SauverImage, under `debut` and the name of the row: "frmX-" gives frmX-fr-clair.png and so on.
template <typename Montre>
bool SauverImageRangee(Montre& montre, const QString& debut) {
    return SauverImage(montre, debut + QString::fromLatin1(QTest::currentDataTag()));
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
