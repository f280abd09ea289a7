// Room for a label whose words change many times a second.
#include "ui/place_libelle.h"

#include <QEvent>
#include <QLabel>
#include <QResizeEvent>

#include <algorithm>

namespace tessarel {

PlaceLibelle::PlaceLibelle(QLabel* libelle, QWidget* parent) : QWidget(parent), m_libelle(libelle) {
    m_libelle->setParent(this);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    MesurerHauteur();
}

void PlaceLibelle::Ecrire(const QString& texte) {
    if (texte == m_libelle->text()) return;
    m_libelle->setText(texte);
    if (texte.size() > m_longueurMesuree) MesurerHauteur();
}

QSize PlaceLibelle::sizeHint() const {
    return {0, m_hauteur};
}

void PlaceLibelle::resizeEvent(QResizeEvent* evenement) {
    QWidget::resizeEvent(evenement);
    // Of a fixed size, a label keeps its changes to itself.
    m_libelle->setFixedSize(size());
    if (evenement->oldSize().width() == width()) return;
    m_hauteur = 0;
    MesurerHauteur();
}

void PlaceLibelle::changeEvent(QEvent* evenement) {
    QWidget::changeEvent(evenement);
    if (evenement->type() != QEvent::FontChange && evenement->type() != QEvent::StyleChange) return;
    m_hauteur = 0;
    MesurerHauteur();
}

void PlaceLibelle::MesurerHauteur() {
    m_longueurMesuree = m_libelle->text().size();
    // Without words too there is room for a line of them.
    const int ligne = m_libelle->fontMetrics().height();
    const int voulue = m_libelle->wordWrap() && width() > 0 ? m_libelle->heightForWidth(width()) : ligne;
    if (std::max(ligne, voulue) <= m_hauteur) return;
    m_hauteur = std::max(ligne, voulue);
    updateGeometry();
}

} // namespace tessarel
