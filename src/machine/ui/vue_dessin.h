// A picture that fills its place: a Dessin shown whole, without zoom or pan.
#pragma once

#include "platform/dessin.h"
#include "platform/images/peinture_qt.h"

#include <QWidget>

namespace tessarel {

class VueDessinFixe : public QWidget {
    Q_OBJECT
public:
    // `cadre` is what the picture must hold.
    explicit VueDessinFixe(const CadreDessin& cadre, QSize taille, QWidget* parent = nullptr);

    void Montrer(Dessin dessin);
    [[nodiscard]] const Dessin& Montre() const { return m_dessin.Liste(); }
    // True on a dark ground, for whoever makes the drawing.
    [[nodiscard]] bool FondSombre() const;

    [[nodiscard]] QSize sizeHint() const override { return m_taille; }
    [[nodiscard]] QSize minimumSizeHint() const override { return m_taille * 0.75; }

signals:
    // Dark has become light or the reverse: the colours of the drawing may want to follow.
    void FondChange();

protected:
    void paintEvent(QPaintEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;

private:
    CadreDessin m_cadre;
    QSize m_taille;
    DessinPrepare m_dessin;
    PeintreDessin m_pinceau;
};

} // namespace tessarel
