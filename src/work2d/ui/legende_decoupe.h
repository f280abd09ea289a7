// The legend of the cut: a sample of each line as the canvas draws it, and its word.
#pragma once

#include <QWidget>
#include <vector>

class QLabel;

namespace tessarel {

// Samples `imgLegende<page>_0` and on on a chip of foam, captions `lblLegende<page>_0` and on: entry, cut,
// exit, rapid, already cut, under way, and where it is drawn the way back. It follows the palette.
class LegendeDecoupe : public QWidget {
public:
    explicit LegendeDecoupe(const char* page = "", bool avecRetour = false, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* evenement) override;

private:
    void Peindre();

    std::vector<QLabel*> m_echantillons;
};

} // namespace tessarel
