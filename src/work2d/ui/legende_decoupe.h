// The legend of the cut: a sample of each line as the canvas draws it, and its word.
#pragma once

#include "platform/dessin.h"

#include <QWidget>
#include <array>

class QLabel;

namespace tessarel {

// Samples `imgLegende_0` to `_5` on a chip of foam, captions `lblLegende_0` to `_5`: entry, cut, exit, rapid,
// already cut, under way. It follows the palette.
class LegendeDecoupe : public QWidget {
public:
    explicit LegendeDecoupe(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* evenement) override;

private:
    void Peindre();

    std::array<QLabel*, 6> m_echantillons{};
};

} // namespace tessarel
