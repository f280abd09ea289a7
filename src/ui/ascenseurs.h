// A canvas with a scroll bar on its right and one below it.
#pragma once

#include <QWidget>

class QScrollBar;

namespace tessarel {

class Canevas;

// The bars run over what the canvas shows whole and over what it is looking at, whichever reaches further;
// they follow its zoom, and move its view.
class Ascenseurs : public QWidget {
    Q_OBJECT
public:
    // Takes the canvas over. The bars are named "hsc" and "vsc" with `nom` after it.
    Ascenseurs(Canevas* canevas, const QString& nom, QWidget* parent = nullptr);

    // Puts the bars in line with the view.
    void SynchroniserScrollBars();

private:
    void Suivre();

    Canevas* m_canevas;
    QScrollBar* m_horizontal;
    QScrollBar* m_vertical;
};

} // namespace tessarel
