// The drawing at the head of the splash: a block of foam on its table and the hot wire that cuts a wing out
// of it.
#include "app/ui/enseigne.h"

#include "app/ui/ressources.h"
#include "ui/theme.h"

#include <QPainter>
#include <QSvgRenderer>

namespace tessarel {

namespace {

struct Teinte {
    const char* nom; // stands in the drawing as "{nom}"
    const char* clair;
    const char* sombre;
};

// Pairs 1 and 2 are the two ends of a gradient.
constexpr Teinte Teintes[] = {
    {"ciel1", "#f7fafd", "#1b2430"},  {"ciel2", "#cfdfee", "#0d131a"},   {"table", "#b9c9d8", "#26323f"},
    {"chant", "#8fa3b6", "#151d26"},  {"grille", "#a5b8ca", "#303e4d"},  {"rail", "#6d8296", "#4d6074"},
    {"mat", "#8596a8", "#66798d"},    {"reflet", "#dce6ef", "#a9bccd"},  {"chariot", "#2f4257", "#91a5b9"},
    {"ombre", "#8fa3b6", "#10171f"},  {"dessus1", "#ffffff", "#dfeaf3"}, {"dessus2", "#e9f1f8", "#b9cbdb"},
    {"bout1", "#eef5fb", "#b4c8da"},  {"bout2", "#d5e3ef", "#8aa2b8"},   {"flanc1", "#c3d5e5", "#7891a8"},
    {"flanc2", "#a9c0d4", "#5a7289"}, {"arete", "#ffffff", "#eef5fb"},   {"coeur", "#c2d9ec", "#7b9ab6"},
    {"reste", "#6d8cab", "#3f566c"},
};

} // namespace

Enseigne::Enseigne(QWidget* parent) : QWidget(parent) {
    setFixedHeight(220);
}

QByteArray Enseigne::Dessin(bool sombre) {
    QByteArray dessin = LireRessource(":/tessarel/application/enseigne.svg");
    for (const Teinte& teinte : Teintes) {
        dessin.replace('{' + QByteArray(teinte.nom) + '}', sombre ? teinte.sombre : teinte.clair);
    }
    return dessin;
}

void Enseigne::paintEvent(QPaintEvent*) {
    QSvgRenderer rendu(Dessin(PaletteSombre(palette())));
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    // The drawing keeps its proportions and fills the width; what is left over above or below is not shown.
    const QSizeF naturelle = rendu.defaultSize();
    const double echelle = std::max(width() / naturelle.width(), height() / naturelle.height());
    const QSizeF taille = naturelle * echelle;
    rendu.render(&peintre, QRectF(width() - taille.width(), (height() - taille.height()) / 2, taille.width(),
                                  taille.height()));
}

} // namespace tessarel
