// The drawing canvas that the windows share: prepared drawings shown to scale, with zoom, pan, rulers and a
// rubber band.
#pragma once

#include "platform/dessin.h"
#include "platform/images/peinture_qt.h"

#include <QCursor>
#include <QPixmap>
#include <QWidget>
#include <array>
#include <cstddef>
#include <optional>
#include <span>

namespace tessarel {

// Shows layers of drawings over one another in one view. It owns what it shows and repaints from it; a
// project is never touched. Wheel: zoom about the pointer. Middle button, or Shift and left: pan. Right drag:
// zoom on a rectangle. Left drag: a rubber band, told by a signal. Middle click, 0 or Home: everything. +, -,
// arrows: zoom and pan.
class Canevas : public QWidget {
    Q_OBJECT
public:
    // Painted in this order.
    enum Couche : std::size_t { CoucheFond, CoucheTrace, CoucheSelection, CoucheOutil, NombreCouches };

    explicit Canevas(QWidget* parent = nullptr);

    // Takes a drawing over as one layer, in place of what it held.
    void Montrer(Couche couche, Dessin dessin);
    [[nodiscard]] const DessinPrepare& Montre(Couche couche) const { return m_couches[couche]; }
    // Shows a layer moved, scaled or turned, without a copy of it: for a drag. A new drawing of the layer is
    // shown as it is.
    void Transformer(Couche couche, const MatriceDessin& matrice);
    // Lengthens the last stroke of a layer, which is best the last of those that are shown for long: only
    // what is new is painted, however much there is already.
    void Prolonger(Couche couche, std::span<const PointDessin> points);

    // What "everything" is; the next ZoomTout() shows it. The first frame given is shown at once.
    void FixerCadreComplet(const CadreDessin& cadre);
    [[nodiscard]] const CadreDessin& CadreComplet() const { return m_complet; }
    void ZoomTout();
    // Shows a window of the plane whole, and keeps it whole when the widget changes size, until the user
    // zooms or pans.
    void Cadrer(const CadreDessin& cadre);
    // About the middle of the view.
    void Zoomer(double facteur);
    void Deplacer(double dxPixels, double dyPixels);

    // The drawing area: the widget without its rulers. Y of the view counts from its bottom.
    [[nodiscard]] QRectF ZoneDessin() const;
    [[nodiscard]] const VueDessin& Vue() const { return m_vue; }
    [[nodiscard]] PointDessin EnMm(QPointF pixels) const;
    [[nodiscard]] QPointF EnPixels(PointDessin mm) const;
    void AvecRegles(bool avec);
    // What the mouse looks like while no gesture of the view is under way.
    void FixerCurseur(const QCursor& curseur);
    // A gesture of the view is under way; a rubber band is.
    [[nodiscard]] bool GesteEnCours() const { return m_geste != Geste::Aucun; }
    [[nodiscard]] bool CadreEnCours() const { return m_geste == Geste::Rectangle; }
    // True on a dark ground, for whoever makes the drawings.
    [[nodiscard]] bool FondSombre() const;

    // One whole painting, as for the screen.
    void Peindre(QPainter& peintre);
    // What the last painting handed to the painter, all layers together.
    [[nodiscard]] const PeintreDessin::Compte& DernierCompte() const { return m_compte; }

    [[nodiscard]] QSize sizeHint() const override { return {640, 480}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {200, 160}; }

signals:
    void PointeurDeplace(double xMm, double yMm);
    void PointeurSorti();
    // A left drag has ended; the rectangle is in mm.
    void RectangleTrace(tessarel::CadreDessin rectangle, Qt::KeyboardModifiers touches);
    void Clique(double xMm, double yMm, Qt::KeyboardModifiers touches);
    void VueChangee();
    // Dark has become light or the reverse: colours of the drawings may want to follow.
    void FondChange();

protected:
    void paintEvent(QPaintEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    void wheelEvent(QWheelEvent* evenement) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseMoveEvent(QMouseEvent* evenement) override;
    void mouseReleaseEvent(QMouseEvent* evenement) override;
    void leaveEvent(QEvent* evenement) override;
    void hideEvent(QHideEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;

private:
    enum class Geste { Aucun, Deplacement, Rectangle, ZoomRectangle };

    void ZoomerAutour(QPointF pixels, double facteur);
    void ChangerVue(const VueDessin& vue);
    void AbandonnerGeste();
    void Repeindre(Couche couche, const QRegion& avant);
    void RepeindreZone(const QRegion& ou);
    void PeindreSurFixe(Couche couche, std::span<const PointDessin> neufs);
    [[nodiscard]] QRegion Emprise(Couche couche) const;
    void PeindreMorceau(QPainter& peintre, const QRect& morceau);
    void PeindreRegles(QPainter& peintre);
    void PeindreCouches(QPainter& peintre, std::size_t premiere, std::size_t fin, const QRectF& partie);
    void PeindreFixe(QPainter& peintre, const QRectF& partie);
    void PeindreElastique(QPainter& peintre);
    [[nodiscard]] bool EstUnClic(QPointF fin) const;

    std::array<DessinPrepare, NombreCouches> m_couches;
    std::array<MatriceDessin, NombreCouches> m_matrices;
    // The first layers as last painted: what moves over them costs its own price only. Made when a view is
    // painted for the second time, so that a pan does not pay for it.
    struct ImageFixe {
        QPixmap image;
        VueDessin vue;
        QColor fond;
        PeintreDessin::Compte compte;
        bool valable = false;
    };
    ImageFixe m_fixe;
    std::size_t m_couchesFixes = CoucheSelection; // how many layers are in it
    VueDessin m_vuePeinte;
    QCursor m_curseur{Qt::CrossCursor};
    PeintreDessin m_pinceau;
    PeintreDessin::Compte m_compte;
    VueDessin m_vue;
    CadreDessin m_complet{0, 100, 0, 100};
    std::optional<CadreDessin> m_cadreTenu; // frame that resizing keeps whole
    bool m_cadreRecu = false;
    bool m_regles = true;
    bool m_etaitSombre = false;
    Geste m_geste = Geste::Aucun;
    Qt::MouseButton m_bouton = Qt::NoButton; // that the gesture is made with
    QPointF m_debutGeste;
    QPointF m_pointeur;
    bool m_pointeurDedans = false;
};

} // namespace tessarel
