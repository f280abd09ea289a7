// A hand on a canvas: presses, drags and clicks at places told in millimetres, with keys held.
#pragma once

#include "ui/canevas.h"

#include <QApplication>
#include <QMouseEvent>

#include <vector>

namespace tessarel::essais {

class Souris {
public:
    explicit Souris(Canevas& canevas) : m_canevas(canevas) {}

    void Aller(PointDessin mm, Qt::KeyboardModifiers touches = Qt::NoModifier) {
        m_ou = m_canevas.EnPixels(mm);
        Envoyer(QEvent::MouseMove, Qt::NoButton, touches);
    }
    void Appuyer(PointDessin mm, Qt::KeyboardModifiers touches = Qt::NoModifier,
                 Qt::MouseButton bouton = Qt::LeftButton) {
        Aller(mm, touches);
        m_boutons |= bouton;
        Envoyer(QEvent::MouseButtonPress, bouton, touches);
    }
    void Relacher(Qt::KeyboardModifiers touches = Qt::NoModifier, Qt::MouseButton bouton = Qt::LeftButton) {
        m_boutons &= ~Qt::MouseButtons(bouton);
        Envoyer(QEvent::MouseButtonRelease, bouton, touches);
    }
    void Cliquer(PointDessin mm, Qt::KeyboardModifiers touches = Qt::NoModifier) {
        Appuyer(mm, touches);
        Relacher(touches);
    }
    // Through the middle, as a hand does.
    void Glisser(PointDessin de, PointDessin a, Qt::KeyboardModifiers touches = Qt::NoModifier) {
        Appuyer(de, touches);
        Aller({(de.X + a.X) / 2, (de.Y + a.Y) / 2}, touches);
        Aller(a, touches);
        Relacher(touches);
    }

private:
    void Envoyer(QEvent::Type type, Qt::MouseButton bouton, Qt::KeyboardModifiers touches) {
        QMouseEvent evenement(type, m_ou, m_canevas.mapToGlobal(m_ou), bouton, m_boutons, touches);
        QApplication::sendEvent(&m_canevas, &evenement);
    }

    Canevas& m_canevas;
    QPointF m_ou;
    Qt::MouseButtons m_boutons;
};

} // namespace tessarel::essais
