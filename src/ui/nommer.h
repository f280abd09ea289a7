// Gives a control the name by which captions, tests and style sheets know it.
#pragma once

#include <QObject>
#include <QString>

#include <cstddef>

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
// One of an array: "nom_indice".
template <typename Controle>
Controle* Nommer(Controle* controle, const QString& nom, std::size_t indice) {
    return Nommer(controle, QStringLiteral("%1_%2").arg(nom).arg(indice));
}
template <typename Controle>
Controle* Nommer(Controle* controle, const char* nom, std::size_t indice) {
    return Nommer(controle, QString::fromLatin1(nom), indice);
}

} // namespace tessarel
