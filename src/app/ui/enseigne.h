// The drawing at the head of the splash: a block of foam on its table and the hot wire that cuts a wing out
// of it.
#pragma once

#include <QByteArray>
#include <QWidget>

namespace tessarel {

// Draws itself in the colours of a light or a dark palette; children stand over it.
class Enseigne : public QWidget {
public:
    explicit Enseigne(QWidget* parent = nullptr);

    // The drawing as SVG, dressed for a light or a dark window.
    static QByteArray Dessin(bool sombre);

protected:
    void paintEvent(QPaintEvent* evenement) override;
};

} // namespace tessarel
