// A large button with an icon, a title and a line that says what it leads to.
#include "ui/grand_bouton.h"

#include <QPainter>
#include <QStyleOptionButton>

namespace tessarel {

namespace {

constexpr int Marge = 14;
constexpr double FacteurTitre = 1.25;

} // namespace

GrandBouton::GrandBouton(QWidget* parent) : QPushButton(parent) {
    setIconSize(QSize(40, 40));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void GrandBouton::FixerDescription(const QString& description) {
    m_description = description;
    setAccessibleDescription(description);
    updateGeometry();
    update();
}

QFont GrandBouton::PoliceTitre() const {
    QFont police = font();
    police.setPointSizeF(police.pointSizeF() * FacteurTitre);
    police.setBold(true);
    return police;
}

QSize GrandBouton::sizeHint() const {
    // Room for two lines of description; the width is shared out by the layout.
    const int textes = QFontMetrics(PoliceTitre()).height() + 2 * fontMetrics().lineSpacing();
    return {220, 2 * Marge + std::max(iconSize().height(), textes)};
}

void GrandBouton::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    option.icon = QIcon();
    style()->drawControl(QStyle::CE_PushButton, &option, &peintre, this);

    const QRect dedans = rect().adjusted(Marge, 0, -Marge, 0);
    const QRect image(dedans.left(), (height() - iconSize().height()) / 2, iconSize().width(),
                      iconSize().height());
    icon().paint(&peintre, image, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);

    const QFontMetrics titre(PoliceTitre());
    QRect place = dedans.adjusted(iconSize().width() + Marge, 0, 0, 0);
    const int retour = Qt::TextWordWrap | Qt::AlignLeft | Qt::AlignTop;
    const int detail = fontMetrics().boundingRect(place, retour, m_description).height();
    place.setTop((height() - titre.height() - detail) / 2);
    const QPalette::ColorGroup groupe = isEnabled() ? QPalette::Active : QPalette::Disabled;
    peintre.setPen(palette().color(groupe, QPalette::ButtonText));
    peintre.setFont(PoliceTitre());
    peintre.drawText(place, Qt::AlignLeft | Qt::AlignTop | Qt::TextShowMnemonic, text());
    peintre.setFont(font());
    peintre.drawText(place.adjusted(0, titre.height(), 0, 0), retour, m_description);
}

} // namespace tessarel
