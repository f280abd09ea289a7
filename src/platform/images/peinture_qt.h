// Painting of a Dessin with Qt, to scale: what lies outside the view or below the eye's resolution costs
// nothing.
#pragma once

#include "platform/dessin.h"

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QString>

#include <cstdint>
#include <span>
#include <vector>

class QPainter;

namespace tessarel {

// Which window of the plane a picture shows, and how large: Y goes up in mm and down in pixels.
struct VueDessin {
    double echelle = 1; // pixels per mm
    double xGauche = 0; // mm at the left edge
    double yBas = 0;    // mm at the bottom edge
    double largeur = 0; // pixels
    double hauteur = 0;

    [[nodiscard]] QPointF EnPixels(PointDessin p) const {
        return {(p.X - xGauche) * echelle, hauteur - (p.Y - yBas) * echelle};
    }
    [[nodiscard]] PointDessin EnMm(QPointF p) const {
        return {xGauche + p.x() / echelle, yBas + (hauteur - p.y()) / echelle};
    }
    friend bool operator==(const VueDessin&, const VueDessin&) = default;
};

// The view of `largeur` x `hauteur` pixels that shows the whole of `cadre` in its middle, as large as it can
// with `marge` pixels left on each side. A frame without extent is shown 1 mm wide.
VueDessin VueSurCadre(const CadreDessin& cadre, double largeur, double hauteur, double marge);

QColor EnQColor(Couleur couleur);

// A Dessin made ready to be painted many times: it owns the list, and an index of boxes over runs of its
// points. Coordinates that are not finite are left out.
class DessinPrepare {
public:
    DessinPrepare() = default;
    explicit DessinPrepare(Dessin dessin) { Remplacer(std::move(dessin)); }
    // Takes the list over; the old one's room is given back.
    void Remplacer(Dessin dessin);
    // Lengthens the last stroke, at no more than the price of what is new. Its points must be the last of the
    // list; without a stroke nothing happens.
    void Prolonger(std::span<const PointDessin> points);

    [[nodiscard]] const Dessin& Liste() const { return m_dessin; }
    // Box of all strokes; XMax below XMin when there is none.
    [[nodiscard]] const CadreDessin& Cadre() const { return m_cadre; }

    // Segments under one box of the index.
    static constexpr std::uint32_t SegmentsParBoite = 32;
    struct Index {
        CadreDessin boite;               // of the whole stroke
        std::uint32_t premiereBoite = 0; // in Boites(): one for each run of SegmentsParBoite segments
    };
    [[nodiscard]] const std::vector<Index>& Traits() const { return m_index; }
    [[nodiscard]] const std::vector<CadreDessin>& Boites() const { return m_boites; }
    [[nodiscard]] const std::vector<QString>& Textes() const { return m_textes; }

private:
    Dessin m_dessin;
    CadreDessin m_cadre;
    std::vector<Index> m_index;
    std::vector<CadreDessin> m_boites;
    std::vector<QString> m_textes;
};

// Paints prepared lists. It keeps its working room from one painting to the next, so that a steady view
// allocates nothing of its own; one per canvas.
class PeintreDessin {
public:
    // Strokes, then marks, then labels, in the order of the list, each place taken through `matrice`. The
    // painter's state is restored. `partie`, in pixels of the view: all that has to be painted, the painter
    // being clipped to it; nothing of it means the whole view.
    void Peindre(QPainter& peintre, const DessinPrepare& dessin, const VueDessin& vue,
                 const MatriceDessin& matrice = {}, const QRectF& partie = {});
    // Labels need fonts, hence an application object; without one they are left out.
    bool avecTextes = true;

    // Figures of the last painting, for tests and benchmarks.
    struct Compte {
        std::size_t sommets = 0; // vertices handed to Qt
        std::size_t marques = 0;
        std::size_t textes = 0;
    };
    [[nodiscard]] const Compte& DernierCompte() const { return m_compte; }

private:
    // From the list's mm to pixels, matrix and view in one.
    struct Projection {
        double xx = 1, xy = 0, x0 = 0;
        double yx = 0, yy = 1, y0 = 0;
        [[nodiscard]] QPointF operator()(const PointDessin& p) const {
            return {xx * p.X + xy * p.Y + x0, yx * p.X + yy * p.Y + y0};
        }
        // The box around a box, in pixels.
        [[nodiscard]] CadreDessin operator()(const CadreDessin& c) const;
    };

    // Line being gathered, in pixels.
    struct Courant {
        QPointF precedent; // last vertex kept, not clipped
        QPointF candidat;  // farthest vertex that a straight line from it reaches so far
        QPointF gauche;    // bounds of the directions that keep that line near all vertices it passes over
        QPointF droite;
        bool aCandidat = false;
        double parcouru = 0; // from the start of the stroke to `precedent`
        double debut = 0;    // the same, to the first vertex of the run
        bool tirets = false;
        bool coupable = true; // a long run may be painted in pieces
    };
    void PeindreLigne(QPainter& peintre, const DessinPrepare& dessin, std::size_t i);
    void PeindreSurface(QPainter& peintre, const DessinPrepare& dessin, std::size_t i);
    void PeindreMarque(QPainter& peintre, const MarqueDessin& marque, QPointF p) const;
    void PeindreMarques(QPainter& peintre, const DessinPrepare& dessin, const VueDessin& vue);
    void PeindreTextes(QPainter& peintre, const DessinPrepare& dessin, const VueDessin& vue);
    void Proposer(QPainter& peintre, QPointF b);
    void Arreter(QPainter& peintre, QPointF fin);
    void AllerVers(QPainter& peintre, QPointF b);
    void ViderPolyligne(QPainter& peintre);
    bool PrendrePlace(QPointF p, double pas);

    Compte m_compte;
    Projection m_projection;
    Courant m_courant;
    std::vector<QPointF> m_polyligne;
    std::vector<QPointF> m_tampon;
    std::vector<std::uint64_t> m_occupation; // one bit for each cell that a mark has taken
    std::vector<QRectF> m_placesTextes;
    QRectF m_partie; // what has to be painted
    QRectF m_zone;   // that, or the view, enlarged by what a pen or a symbol sticks out
};

} // namespace tessarel
