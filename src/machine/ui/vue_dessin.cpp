// Painting of a fixed picture.
#include "machine/ui/vue_dessin.h"

#include "ui/theme.h"

#include <QEvent>
#include <QPainter>

namespace tessarel {

VueDessinFixe::VueDessinFixe(const CadreDessin& cadre, QSize taille, QWidget* parent)
    : QWidget(parent), m_cadre(cadre), m_taille(taille) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void VueDessinFixe::Montrer(Dessin dessin) {
    m_dessin.Remplacer(std::move(dessin));
    update();
}

bool VueDessinFixe::FondSombre() const {
    return PaletteSombre(palette());
}

void VueDessinFixe::paintEvent(QPaintEvent* /*evenement*/) {
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    m_pinceau.Peindre(peintre, m_dessin, VueSurCadre(m_cadre, width(), height(), 4));
}

void VueDessinFixe::changeEvent(QEvent* evenement) {
    QWidget::changeEvent(evenement);
    if (evenement->type() == QEvent::PaletteChange) emit FondChange();
}

} // namespace tessarel
