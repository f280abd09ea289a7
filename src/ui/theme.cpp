// The look of every window: one style, a light and a dark palette, and the few colours that carry meaning.
#include "ui/theme.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>

namespace tessarel {

namespace {

Theme g_theme = Theme::Systeme;

struct TonsPalette {
    QRgb fond;
    QRgb base;
    QRgb alterne;
    QRgb bouton;
    QRgb texte;
    QRgb texteInactif;
    QRgb discret;
    QRgb choix;
    QRgb texteChoix;
    QRgb lien;
    QRgb bulle;
    QRgb texteBulle;
};

constexpr TonsPalette TonsClairs = {0xfff4f5f7, 0xffffffff, 0xffeceff3, 0xffeef0f3, 0xff1c2430, 0xff98a1ad,
                                    0xff6b7684, 0xff1f6fd1, 0xffffffff, 0xff1a5fb4, 0xff26303d, 0xfff4f5f7};
constexpr TonsPalette TonsSombres = {0xff20252c, 0xff2a3038, 0xff252b32, 0xff2c323b, 0xffe6eaf0, 0xff808b98,
                                     0xff96a1ae, 0xff2f6fc4, 0xffffffff, 0xff7ab3f5, 0xffe6eaf0, 0xff1c2430};

QPalette FairePalette(const TonsPalette& tons) {
    const QColor texte(tons.texte);
    const QColor bouton(tons.bouton);
    QPalette palette(texte, bouton, bouton.lighter(140), bouton.darker(160), bouton.darker(125), texte,
                     QColor(0xff, 0xff, 0xff), QColor(tons.base), QColor(tons.fond));
    palette.setColor(QPalette::AlternateBase, QColor(tons.alterne));
    palette.setColor(QPalette::ButtonText, texte);
    palette.setColor(QPalette::Highlight, QColor(tons.choix));
    palette.setColor(QPalette::HighlightedText, QColor(tons.texteChoix));
    palette.setColor(QPalette::Link, QColor(tons.lien));
    palette.setColor(QPalette::LinkVisited, QColor(tons.lien));
    palette.setColor(QPalette::ToolTipBase, QColor(tons.bulle));
    palette.setColor(QPalette::ToolTipText, QColor(tons.texteBulle));
    palette.setColor(QPalette::PlaceholderText, QColor(tons.discret));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor(tons.texteInactif));
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(tons.discret));
    return palette;
}

} // namespace

void AppliquerTheme(Theme theme) {
    g_theme = theme;
    QStyle* style = QApplication::style();
    if (style == nullptr || style->name().compare(QStringLiteral("fusion"), Qt::CaseInsensitive) != 0) {
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    }
    switch (theme) {
    case Theme::Systeme:
        QApplication::setPalette(QPalette());
        break;
    case Theme::Clair:
        QApplication::setPalette(FairePalette(TonsClairs));
        break;
    case Theme::Sombre:
        QApplication::setPalette(FairePalette(TonsSombres));
        break;
    }
}

Theme ThemeCourant() {
    return g_theme;
}

bool PaletteSombre(const QPalette& palette) {
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

bool ThemeSombre() {
    return PaletteSombre(QApplication::palette());
}

QColor CouleurAlerte() {
    return ThemeSombre() ? QColor(0xff, 0x7b, 0x72) : QColor(0xc0, 0x1c, 0x28);
}

QColor CouleurAccord() {
    return ThemeSombre() ? QColor(0x63, 0xd2, 0x8f) : QColor(0x1a, 0x7f, 0x37);
}

QColor CouleurFil() {
    return {0xe8, 0x59, 0x0c};
}

} // namespace tessarel
