// The window keys of the settings.
#include "ui/place_fenetre.h"

#include "app/settings/cles_generales.h"
#include "app/settings/gestion_ini.h"
#include "platform/nombres.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <string>

namespace tessarel {

namespace {

constexpr double TwipsParPixel = 15; // 1440 to the inch, 96 pixels to the inch

enum EtatFenetre { EtatNormal = 0, EtatReduit = 1, EtatAgrandi = 2 };

int LirePixels(const char* cle) {
    const double twips = std::clamp(LireNombreIni(SectionParametres, cle), -1e6, 1e6);
    return static_cast<int>(Arrondi(twips / TwipsParPixel));
}

void EcrirePixels(const char* cle, int pixels) {
    EcrireIni(SectionParametres, cle, FormaterNombre(pixels * TwipsParPixel, "#####0"));
}

bool SurUnEcran(const QRect& place) {
    const auto ecrans = QGuiApplication::screens();
    return std::any_of(ecrans.begin(), ecrans.end(), [&](const QScreen* ecran) {
        const QRect commun = ecran->availableGeometry().intersected(place);
        return commun.width() > 100 && commun.height() > 60;
    });
}

} // namespace

void PlacerFenetre(QWidget& fenetre) {
    const int etat =
        static_cast<int>(std::clamp(LireNombreIni(SectionParametres, "WindowState", "2"), 0.0, 2.0));
    if (etat == EtatNormal) {
        const QRect place(LirePixels("FenetreLeft"), LirePixels("FenetreTop"), LirePixels("FenetreWidth"),
                          LirePixels("FenetreHeight"));
        if (place.width() > 0 && place.height() > 0 && SurUnEcran(place)) fenetre.setGeometry(place);
        return;
    }
    // A window left minimised would start unseen.
    fenetre.setWindowState(fenetre.windowState() | Qt::WindowMaximized);
}

void MemoriserPlaceFenetre(const QWidget& fenetre) {
    const Qt::WindowStates etats = fenetre.windowState();
    const bool agrandie = etats.testFlag(Qt::WindowMaximized) || etats.testFlag(Qt::WindowFullScreen);
    const bool reduite = etats.testFlag(Qt::WindowMinimized);
    if (!agrandie && !reduite) {
        const QRect place = fenetre.geometry();
        EcrirePixels("FenetreLeft", place.x());
        EcrirePixels("FenetreTop", place.y());
        EcrirePixels("FenetreWidth", place.width());
        EcrirePixels("FenetreHeight", place.height());
    }
    const int etat = reduite ? EtatReduit : agrandie ? EtatAgrandi : EtatNormal;
    EcrireIni(SectionParametres, "WindowState", std::to_string(etat));
}

} // namespace tessarel
