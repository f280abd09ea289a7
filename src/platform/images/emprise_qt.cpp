// Which pixels a painted Dessin touches.
#include "platform/images/emprise_qt.h"

#include <algorithm>
#include <cmath>

namespace tessarel {

namespace {

// Past the middle of a pen or the radius of a mark: caps, corners, edges, smoothing.
constexpr double Debord = 3; // pixels
constexpr double CoteTuile = 64;
constexpr double TuilesMaxi = 32; // of one segment
// Above these a list is worth its boxes only.
constexpr std::size_t PointsSuivis = 64;
constexpr std::size_t BoitesDUnTrait = 16;
constexpr std::size_t MarquesSuivies = 64;

CadreDessin Autour(std::span<const PointDessin> points) {
    CadreDessin cadre{points[0].X, points[0].X, points[0].Y, points[0].Y};
    for (const PointDessin& p : points)
        cadre = {std::min(cadre.XMin, p.X), std::max(cadre.XMax, p.X), std::min(cadre.YMin, p.Y),
                 std::max(cadre.YMax, p.Y)};
    return cadre;
}

struct Lieu {
    const VueDessin& vue;
    const MatriceDessin& m;
    [[nodiscard]] QPointF operator()(const PointDessin& p) const {
        return vue.EnPixels({m.xx * p.X + m.xy * p.Y + m.dx, m.yx * p.X + m.yy * p.Y + m.dy});
    }
};

// Of a rectangle, in pixels.
struct Coins {
    QPointF haut;
    QPointF bas;
    void Etendre(QPointF p) {
        haut = {std::min(haut.x(), p.x()), std::min(haut.y(), p.y())};
        bas = {std::max(bas.x(), p.x()), std::max(bas.y(), p.y())};
    }
};

QRect EnPixelsEntiers(const Coins& coins, double marge, const VueDessin& vue) {
    const QRectF autour = QRectF(coins.haut, coins.bas).adjusted(-marge, -marge, marge, marge);
    return autour.intersected(QRectF(0, 0, vue.largeur, vue.hauteur)).toAlignedRect();
}

// Gathers segments that follow one another into tiles: one rectangle for many short ones, many for a long one
// that slants.
class Tuiles {
public:
    Tuiles(double marge, const VueDessin& vue) : m_marge(marge), m_vue(vue) {}
    void Ajouter(QPointF a, QPointF b) {
        const QPointF ecart = b - a;
        // One that runs along an axis has no rectangle to speak of around it.
        const double cote = std::min(std::abs(ecart.x()), std::abs(ecart.y()));
        const double longueur = std::max(std::abs(ecart.x()), std::abs(ecart.y()));
        const int morceaux =
            cote <= CoteTuile ? 1 : static_cast<int>(std::min(std::ceil(longueur / CoteTuile), TuilesMaxi));
        for (int i = 0; i < morceaux; ++i)
            AjouterMorceau(a + ecart * i / morceaux, a + ecart * (i + 1) / morceaux);
    }
    QRegion Region() {
        Vider();
        return m_region;
    }

private:
    void AjouterMorceau(QPointF a, QPointF b) {
        Coins tuile = m_entamee ? m_tuile : Coins{a, a};
        tuile.Etendre(a);
        tuile.Etendre(b);
        const QPointF cotes = tuile.bas - tuile.haut;
        if (m_entamee && std::min(cotes.x(), cotes.y()) > CoteTuile) {
            Vider();
            tuile = {a, a};
            tuile.Etendre(b);
        }
        m_tuile = tuile;
        m_entamee = true;
    }
    void Vider() {
        if (m_entamee) m_region += EnPixelsEntiers(m_tuile, m_marge, m_vue);
        m_entamee = false;
    }
    double m_marge;
    const VueDessin& m_vue;
    QRegion m_region;
    Coins m_tuile; // under way
    bool m_entamee = false;
};

void AjouterBoite(QRegion& region, const CadreDessin& c, double marge, const VueDessin& vue,
                  const Lieu& lieu) {
    if (c.XMax < c.XMin) return;
    const QPointF depart = lieu({c.XMin, c.YMin});
    Coins coins{depart, depart};
    for (const PointDessin& coin :
         {PointDessin{c.XMin, c.YMax}, PointDessin{c.XMax, c.YMin}, PointDessin{c.XMax, c.YMax}})
        coins.Etendre(lieu(coin));
    region += EnPixelsEntiers(coins, marge, vue);
}

} // namespace

QRegion EmpriseTrait(std::span<const PointDessin> points, double epaisseur, const VueDessin& vue,
                     const MatriceDessin& matrice) {
    QRegion region;
    const Lieu lieu{vue, matrice};
    const double marge = epaisseur / 2 + Debord;
    if (points.size() > PointsSuivis) {
        // Neighbouring runs share a point, and with it the segment between them.
        const std::size_t pas = points.size() / BoitesDUnTrait + 1;
        for (std::size_t i = 0; i < points.size(); i += pas)
            AjouterBoite(region, Autour(points.subspan(i, std::min(pas + 1, points.size() - i))), marge, vue,
                         lieu);
        return region;
    }
    Tuiles tuiles(marge, vue);
    for (std::size_t i = 1; i < points.size(); ++i) tuiles.Ajouter(lieu(points[i - 1]), lieu(points[i]));
    if (points.size() == 1) tuiles.Ajouter(lieu(points[0]), lieu(points[0]));
    return tuiles.Region();
}

QRegion EmpriseDessin(const DessinPrepare& dessin, const VueDessin& vue, const MatriceDessin& matrice) {
    const Dessin& liste = dessin.Liste();
    const QRect tout = QRectF(0, 0, vue.largeur, vue.hauteur).toAlignedRect();
    if (!liste.textes.empty() || liste.marques.size() > MarquesSuivies) return tout;
    QRegion region;
    const Lieu lieu{vue, matrice};
    const bool suivis = liste.points.size() <= PointsSuivis;
    for (std::size_t i = 0; i < liste.traits.size(); ++i) {
        const TraitDessin& trait = liste.traits[i];
        const bool boite = !suivis || trait.genre == GenreTrait::Surface;
        if (boite)
            AjouterBoite(region, dessin.Traits()[i].boite, trait.epaisseur / 2 + Debord, vue, lieu);
        else
            region += EmpriseTrait(std::span(liste.points).subspan(trait.premier, trait.nombre),
                                   trait.epaisseur, vue, matrice);
    }
    for (const MarqueDessin& marque : liste.marques) {
        const QPointF p = lieu(marque.ou);
        region += EnPixelsEntiers({p, p}, marque.taille + Debord, vue);
    }
    return region;
}

} // namespace tessarel
