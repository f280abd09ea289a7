// Small helpers of the layouts: names, small print, pages that scroll.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QScrollArea>
#include <QString>

namespace tessarel {

template <typename Controle>
Controle* Nommer(Controle* controle, const QString& nom) {
    controle->setObjectName(nom);
    return controle;
}
template <typename Controle>
Controle* Nommer(Controle* controle, const char* nom) {
    return Nommer(controle, QString::fromLatin1(nom));
}
template <typename Controle>
Controle* Nommer(Controle* controle, const char* nom, std::size_t indice) {
    return Nommer(controle, QStringLiteral("%1_%2").arg(QLatin1String(nom)).arg(indice));
}

inline void Petit(QWidget& controle) {
    QFont police = controle.font();
    police.setPointSizeF(police.pointSizeF() * 0.88);
    controle.setFont(police);
}

// Small print that stands back behind the caption above it; it follows the theme.
inline void Discret(QLabel& etiquette) {
    Petit(etiquette);
    etiquette.setForegroundRole(QPalette::PlaceholderText);
}

// A page that scrolls where the screen is too low for it.
inline QScrollArea* PageDefilante(QWidget* contenu) {
    auto* page = new QScrollArea;
    page->setWidget(contenu);
    page->setWidgetResizable(true);
    page->setFrameShape(QFrame::NoFrame);
    return page;
}

} // namespace tessarel
