// Room for a label whose words change many times a second: they move nothing around them.
#pragma once

#include <QWidget>

class QLabel;

namespace tessarel {

// An ordinary label asks for a new layout of the whole window at each change of its words. This one keeps the
// height of the tallest words so far at its width, and asks only for more.
class PlaceLibelle : public QWidget {
public:
    // Takes the label over. It may break its lines.
    explicit PlaceLibelle(QLabel* libelle, QWidget* parent = nullptr);

    void Ecrire(const QString& texte);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void resizeEvent(QResizeEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;

private:
    void MesurerHauteur();

    QLabel* m_libelle;
    int m_hauteur = 0;               // pixels
    qsizetype m_longueurMesuree = 0; // of the longest words measured at this width
};

} // namespace tessarel
