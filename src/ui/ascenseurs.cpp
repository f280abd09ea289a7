// A canvas with a scroll bar on its right and one below it.
#include "ui/ascenseurs.h"

#include "ui/canevas.h"

#include <QGridLayout>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>
#include <cmath>

namespace tessarel {

namespace {

// A bar counts pixels, as long as they can be counted.
constexpr double PixelsMaxi = 1e8;
constexpr int PasLigne = 24; // pixels

// One bar over the span from `debut` to `fin` mm, of which the view shows `page` mm from `vu`.
void Regler(QScrollBar& barre, double debut, double fin, double vu, double page, double echelle) {
    const QSignalBlocker muet(barre);
    const double bas = std::min(debut, vu);
    const double reste = std::max(fin, vu + page) - page - bas;
    const double pixels = std::clamp(reste * echelle, 0.0, PixelsMaxi);
    barre.setPageStep(static_cast<int>(std::clamp(page * echelle, 1.0, PixelsMaxi)));
    barre.setSingleStep(PasLigne);
    barre.setRange(0, static_cast<int>(std::lround(pixels)));
    barre.setValue(static_cast<int>(std::lround(std::clamp((vu - bas) * echelle, 0.0, pixels))));
}

QScrollBar* Barre(Qt::Orientation sens, const QString& nom) {
    auto* barre = new QScrollBar(sens);
    barre->setObjectName(nom);
    barre->setFocusPolicy(Qt::NoFocus);
    return barre;
}

} // namespace

Ascenseurs::Ascenseurs(Canevas* canevas, const QString& nom, QWidget* parent)
    : QWidget(parent), m_canevas(canevas), m_horizontal(Barre(Qt::Horizontal, QStringLiteral("hsc") + nom)),
      m_vertical(Barre(Qt::Vertical, QStringLiteral("vsc") + nom)) {
    // Up is more on the table, and less on a bar.
    m_vertical->setInvertedAppearance(true);
    m_vertical->setInvertedControls(false);
    auto* grille = new QGridLayout(this);
    grille->setContentsMargins(0, 0, 0, 0);
    grille->setSpacing(0);
    grille->addWidget(m_canevas, 0, 0);
    grille->addWidget(m_vertical, 0, 1);
    grille->addWidget(m_horizontal, 1, 0);
    connect(m_canevas, &Canevas::VueChangee, this, &Ascenseurs::SynchroniserScrollBars);
    connect(m_horizontal, &QScrollBar::valueChanged, this, &Ascenseurs::Suivre);
    connect(m_vertical, &QScrollBar::valueChanged, this, &Ascenseurs::Suivre);
    SynchroniserScrollBars();
}

void Ascenseurs::SynchroniserScrollBars() {
    const VueDessin& vue = m_canevas->Vue();
    const CadreDessin& tout = m_canevas->CadreComplet();
    Regler(*m_horizontal, tout.XMin, tout.XMax, vue.xGauche, vue.largeur / vue.echelle, vue.echelle);
    Regler(*m_vertical, tout.YMin, tout.YMax, vue.yBas, vue.hauteur / vue.echelle, vue.echelle);
}

// The view goes where the bars stand.
void Ascenseurs::Suivre() {
    const VueDessin& vue = m_canevas->Vue();
    const CadreDessin& tout = m_canevas->CadreComplet();
    const double x = std::min(tout.XMin, vue.xGauche) + m_horizontal->value() / vue.echelle;
    const double y = std::min(tout.YMin, vue.yBas) + m_vertical->value() / vue.echelle;
    m_canevas->Deplacer((vue.xGauche - x) * vue.echelle, (y - vue.yBas) * vue.echelle);
}

} // namespace tessarel
