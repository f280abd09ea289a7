// Painting of a prepared drawing: culling by boxes, clipping to the view, decimation below the pixel.
#include "platform/images/peinture_qt.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tessarel {

namespace {

// A vertex nearer than this to the one before it, on both axes, moves the line by less than the eye sees.
constexpr double DistanceInvisible = 0.4; // pixels
// A line may pass this far from a vertex that it leaves out.
constexpr double EcartInvisible = 0.15; // pixels
// Thick lines are painted in runs of at most this many vertices: the stroker's cost grows faster than its
// input.
constexpr std::size_t SommetsParTrace = 64;
// Above this thickness the shape of a corner shows, and is worth three times the price.
constexpr float EpaisseurCoinsRonds = 2.5F; // pixels
// Marks of one kind whose cells of this side coincide hide one another.
constexpr double PasMarques = 1.5; // pixels
constexpr double PasFleches = 14;
constexpr double Tiret = 6; // pixels drawn, then not drawn
constexpr double Blanc = 4;

// Side of the cells of which one mark of a kind takes one; 0: each is painted.
double EcartMarques(GenreMarque genre) {
    if (genre == GenreMarque::Point) return PasMarques;
    return genre == GenreMarque::Fleche ? PasFleches : 0;
}

bool Disjoints(const CadreDessin& a, const CadreDessin& b) {
    return a.XMax < b.XMin || a.XMin > b.XMax || a.YMax < b.YMin || a.YMin > b.YMax;
}

CadreDessin EnCadre(const QRectF& zone) {
    return {zone.left(), zone.right(), zone.top(), zone.bottom()};
}

bool SousLePixel(const CadreDessin& c) {
    return c.XMax - c.XMin < DistanceInvisible && c.YMax - c.YMin < DistanceInvisible;
}

bool Invisible(QPointF a, QPointF b) {
    return std::abs(a.x() - b.x()) < DistanceInvisible && std::abs(a.y() - b.y()) < DistanceInvisible;
}

double Vectoriel(QPointF a, QPointF b) {
    return a.x() * b.y() - a.y() * b.x();
}

// Sideways from `v`, as long as a line may pass beside a vertex.
QPointF EcartDeCote(QPointF v) {
    const double k = EcartInvisible / std::sqrt(v.x() * v.x() + v.y() * v.y());
    return {-v.y() * k, v.x() * k};
}

// One bound of the parameter of a clipped segment; false when the segment lies outside.
bool Borner(double pas, double place, double& t0, double& t1) {
    if (pas == 0) return place >= 0;
    const double t = place / pas;
    if (pas < 0) {
        if (t > t1) return false;
        t0 = std::max(t0, t);
    } else {
        if (t < t0) return false;
        t1 = std::min(t1, t);
    }
    return true;
}

// Parameters of the part of a-b inside the zone; false when there is none.
bool Couper(QPointF a, QPointF b, const QRectF& z, double& t0, double& t1) {
    t0 = 0;
    t1 = 1;
    // Most segments lie inside whole, and need no division.
    if (std::min(a.x(), b.x()) >= z.left() && std::max(a.x(), b.x()) <= z.right() &&
        std::min(a.y(), b.y()) >= z.top() && std::max(a.y(), b.y()) <= z.bottom()) {
        return true;
    }
    const double dx = b.x() - a.x();
    const double dy = b.y() - a.y();
    return Borner(-dx, a.x() - z.left(), t0, t1) && Borner(dx, z.right() - a.x(), t0, t1) &&
           Borner(-dy, a.y() - z.top(), t0, t1) && Borner(dy, z.bottom() - a.y(), t0, t1);
}

// One side of a polygon clip: keeps what has a positive `Cote`.
template <typename Cote>
void CouperPolygone(std::vector<QPointF>& de, std::vector<QPointF>& vers, Cote cote) {
    vers.clear();
    for (std::size_t i = 0; i < de.size(); ++i) {
        const QPointF a = de[i];
        const QPointF b = de[i + 1 < de.size() ? i + 1 : 0];
        const double ca = cote(a);
        const double cb = cote(b);
        if (ca >= 0) vers.push_back(a);
        if ((ca >= 0) != (cb >= 0)) vers.push_back(a + (b - a) * (ca / (ca - cb)));
    }
    std::swap(de, vers);
}

} // namespace

CadreDessin PeintreDessin::Projection::operator()(const CadreDessin& c) const {
    const QPointF milieu = (*this)(PointDessin{(c.XMin + c.XMax) / 2, (c.YMin + c.YMax) / 2});
    const double l = (c.XMax - c.XMin) / 2;
    const double h = (c.YMax - c.YMin) / 2;
    const double dx = std::abs(xx) * l + std::abs(xy) * h;
    const double dy = std::abs(yx) * l + std::abs(yy) * h;
    return {milieu.x() - dx, milieu.x() + dx, milieu.y() - dy, milieu.y() + dy};
}

void PeintreDessin::Peindre(QPainter& peintre, const DessinPrepare& dessin, const VueDessin& vue,
                            const MatriceDessin& matrice, const QRectF& partie) {
    m_compte = {};
    const QRectF ecran(0, 0, vue.largeur, vue.hauteur);
    m_partie = partie.isNull() ? ecran : partie;
    const double e = vue.echelle;
    m_projection = {matrice.xx * e,  matrice.xy * e,  (matrice.dx - vue.xGauche) * e,
                    -matrice.yx * e, -matrice.yy * e, vue.hauteur - (matrice.dy - vue.yBas) * e};
    peintre.save();
    peintre.setRenderHint(QPainter::Antialiasing);
    const std::vector<TraitDessin>& traits = dessin.Liste().traits;
    for (std::size_t i = 0; i < traits.size(); ++i) {
        const double sort = traits[i].epaisseur + 4;
        m_zone = m_partie.adjusted(-sort, -sort, sort, sort);
        if (traits[i].nombre == 0 || Disjoints(m_projection(dessin.Traits()[i].boite), EnCadre(m_zone)))
            continue;
        if (traits[i].genre == GenreTrait::Surface) {
            PeindreSurface(peintre, dessin, i);
        } else {
            PeindreLigne(peintre, dessin, i);
        }
    }
    PeindreMarques(peintre, dessin, vue);
    if (avecTextes) PeindreTextes(peintre, dessin, vue);
    peintre.restore();
}

void PeintreDessin::PeindreLigne(QPainter& peintre, const DessinPrepare& dessin, std::size_t i) {
    const TraitDessin& trait = dessin.Liste().traits[i];
    const PointDessin* p = dessin.Liste().points.data() + trait.premier;
    QPen stylo(EnQColor(trait.couleur), trait.epaisseur, Qt::SolidLine, Qt::RoundCap,
               trait.epaisseur > EpaisseurCoinsRonds ? Qt::RoundJoin : Qt::BevelJoin);
    stylo.setCosmetic(true);
    if (trait.tirets) {
        const double unite = std::max(trait.epaisseur, 1.0F);
        stylo.setCapStyle(Qt::FlatCap);
        stylo.setDashPattern({Tiret / unite, Blanc / unite});
    }
    peintre.setPen(stylo);
    if (SousLePixel(m_projection(dessin.Traits()[i].boite))) {
        peintre.drawPoint(m_projection(p[0]));
        ++m_compte.sommets;
        return;
    }
    m_courant = {};
    m_courant.precedent = m_projection(p[0]);
    m_courant.tirets = trait.tirets;
    m_courant.coupable = !trait.tirets && trait.epaisseur > 1 && trait.couleur.opacite == 255;
    m_polyligne.clear();
    const CadreDessin zone = EnCadre(m_zone);
    const CadreDessin* boites = dessin.Boites().data() + dessin.Traits()[i].premiereBoite;
    constexpr std::uint32_t pas = DessinPrepare::SegmentsParBoite;
    for (std::uint32_t debut = 0; debut + 1 < trait.nombre; debut += pas) {
        const std::uint32_t fin = std::min(debut + pas, trait.nombre - 1);
        const CadreDessin boite = m_projection(boites[debut / pas]);
        const bool cachee = Disjoints(boite, zone);
        if (cachee && !trait.tirets) {
            if (m_courant.aCandidat) Arreter(peintre, m_courant.candidat);
            ViderPolyligne(peintre);
            m_courant.precedent = m_projection(p[fin]);
        } else if (SousLePixel(boite)) {
            Proposer(peintre, m_projection(p[fin]));
        } else {
            for (std::uint32_t k = debut + 1; k <= fin; ++k) Proposer(peintre, m_projection(p[k]));
        }
    }
    Arreter(peintre, m_projection(p[trait.nombre - 1]));
    ViderPolyligne(peintre);
}

// The next vertex of the stroke: it lengthens the straight line under way while that stays near all vertices
// passed over, else it starts another.
//
//                      . gauche
//              +   . '             the cone from `precedent` through the gates that each vertex leaves open:
//              a
//    precedent <  - - +- - -> b    vertex inside it can be the end of the line, one outside ends it at
//    `candidat`
//              +   ' .
//                      ' droite
void PeintreDessin::Proposer(QPainter& peintre, QPointF b) {
    Courant& c = m_courant;
    QPointF v = b - c.precedent;
    if (c.aCandidat) {
        const QPointF w = c.candidat - c.precedent;
        const bool avance = QPointF::dotProduct(w, v) >= QPointF::dotProduct(w, w);
        if (avance && Vectoriel(c.droite, v) >= 0 && Vectoriel(v, c.gauche) >= 0) {
            const QPointF cote = EcartDeCote(v);
            if (Vectoriel(v + cote, c.gauche) > 0) c.gauche = v + cote;
            if (Vectoriel(c.droite, v - cote) > 0) c.droite = v - cote;
            c.candidat = b;
            return;
        }
        AllerVers(peintre, c.candidat);
        c.aCandidat = false;
        v = b - c.precedent;
    }
    if (Invisible(c.precedent, b)) return;
    const QPointF cote = EcartDeCote(v);
    c.candidat = b;
    c.gauche = v + cote;
    c.droite = v - cote;
    c.aCandidat = true;
}

// The line under way ends at `fin`.
void PeintreDessin::Arreter(QPainter& peintre, QPointF fin) {
    if (m_courant.aCandidat) AllerVers(peintre, m_courant.candidat);
    m_courant.aCandidat = false;
    if (fin != m_courant.precedent) AllerVers(peintre, fin);
}

void PeintreDessin::AllerVers(QPainter& peintre, QPointF b) {
    const QPointF a = m_courant.precedent;
    const double longueur = m_courant.tirets ? std::hypot(b.x() - a.x(), b.y() - a.y()) : 0;
    double t0 = 0;
    double t1 = 1;
    if (!Couper(a, b, m_zone, t0, t1)) {
        ViderPolyligne(peintre);
    } else {
        if (t0 > 0) ViderPolyligne(peintre);
        if (m_polyligne.empty()) {
            m_courant.debut = m_courant.parcouru + t0 * longueur;
            m_polyligne.push_back(a + (b - a) * t0);
        }
        m_polyligne.push_back(t1 < 1 ? a + (b - a) * t1 : b);
        if (t1 < 1 || (m_courant.coupable && m_polyligne.size() >= SommetsParTrace)) {
            ViderPolyligne(peintre);
        }
    }
    m_courant.parcouru += longueur;
    m_courant.precedent = b;
}

void PeintreDessin::ViderPolyligne(QPainter& peintre) {
    if (m_polyligne.size() > 1) {
        if (m_courant.tirets) {
            // Dashes stand still on the line while the view moves over it.
            QPen stylo = peintre.pen();
            stylo.setDashOffset(std::fmod(m_courant.debut, Tiret + Blanc) / std::max(stylo.widthF(), 1.0));
            peintre.setPen(stylo);
        }
        peintre.drawPolyline(m_polyligne.data(), static_cast<int>(m_polyligne.size()));
        m_compte.sommets += m_polyligne.size();
    }
    m_polyligne.clear();
}

void PeintreDessin::PeindreSurface(QPainter& peintre, const DessinPrepare& dessin, std::size_t i) {
    const TraitDessin& trait = dessin.Liste().traits[i];
    const PointDessin* p = dessin.Liste().points.data() + trait.premier;
    m_polyligne.clear();
    for (std::uint32_t k = 0; k < trait.nombre; ++k) {
        const QPointF q = m_projection(p[k]);
        if (m_polyligne.empty() || !Invisible(m_polyligne.back(), q)) m_polyligne.push_back(q);
    }
    const QRectF z = m_zone;
    CouperPolygone(m_polyligne, m_tampon, [&](QPointF q) { return q.x() - z.left(); });
    CouperPolygone(m_polyligne, m_tampon, [&](QPointF q) { return z.right() - q.x(); });
    CouperPolygone(m_polyligne, m_tampon, [&](QPointF q) { return q.y() - z.top(); });
    CouperPolygone(m_polyligne, m_tampon, [&](QPointF q) { return z.bottom() - q.y(); });
    if (m_polyligne.size() < 3) return;
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(EnQColor(trait.couleur));
    peintre.drawPolygon(m_polyligne.data(), static_cast<int>(m_polyligne.size()));
    peintre.setBrush(Qt::NoBrush);
    m_compte.sommets += m_polyligne.size();
}

// Takes the cell of a place; false when a mark stands there already.
bool PeintreDessin::PrendrePlace(QPointF p, double pas) {
    const auto colonnes = static_cast<std::size_t>(m_zone.width() / pas) + 1;
    const auto lignes = static_cast<std::size_t>(m_zone.height() / pas) + 1;
    const std::size_t mots = (colonnes * lignes + 63) / 64;
    if (m_occupation.size() < mots) m_occupation.resize(mots, 0);
    const std::size_t cellule = static_cast<std::size_t>((p.y() - m_zone.top()) / pas) * colonnes +
                                static_cast<std::size_t>((p.x() - m_zone.left()) / pas);
    const std::uint64_t bit = std::uint64_t{1} << (cellule % 64);
    if ((m_occupation[cellule / 64] & bit) != 0) return false;
    m_occupation[cellule / 64] |= bit;
    return true;
}

// One symbol at `p`.
void PeintreDessin::PeindreMarque(QPainter& peintre, const MarqueDessin& marque, QPointF p) const {
    const double t = marque.taille;
    const QColor couleur = EnQColor(marque.couleur);
    peintre.setBrush(Qt::NoBrush);
    switch (marque.genre) {
    case GenreMarque::Point:
        peintre.fillRect(QRectF(p.x() - t / 2, p.y() - t / 2, t, t), couleur);
        break;
    case GenreMarque::Fleche: {
        // The direction goes through the matrix too, and keeps its length.
        const double c = std::cos(marque.angle);
        const double s = std::sin(marque.angle);
        const QPointF vers(m_projection.xx * c + m_projection.xy * s,
                           m_projection.yx * c + m_projection.yy * s);
        const double longueur = std::hypot(vers.x(), vers.y());
        if (!(longueur > 0)) break;
        const QPointF avant = vers * (t / longueur);
        const QPointF cote(-avant.y() * 0.45, avant.x() * 0.45);
        const QPointF triangle[] = {p + avant, p - avant * 0.6 + cote, p - avant * 0.6 - cote};
        peintre.setPen(Qt::NoPen);
        peintre.setBrush(couleur);
        peintre.drawConvexPolygon(triangle, 3);
        break;
    }
    case GenreMarque::PremierPoint:
        peintre.setPen(QPen(couleur, 2));
        peintre.drawEllipse(p, t, t);
        break;
    case GenreMarque::Poignee:
        peintre.setPen(QPen(couleur, 1.5));
        peintre.setBrush(QColor(255, 255, 255));
        peintre.drawRect(QRectF(p.x() - t / 2, p.y() - t / 2, t, t));
        break;
    case GenreMarque::Disque:
        peintre.setPen(QPen(QColor(255, 255, 255), 1.5));
        peintre.setBrush(couleur);
        peintre.drawEllipse(p, t, t);
        break;
    case GenreMarque::Croix:
        peintre.setPen(QPen(couleur, 1.5));
        peintre.drawLine(p - QPointF(t, 0), p + QPointF(t, 0));
        peintre.drawLine(p - QPointF(0, t), p + QPointF(0, t));
        break;
    }
}

void PeintreDessin::PeindreMarques(QPainter& peintre, const DessinPrepare& dessin, const VueDessin& vue) {
    const std::vector<MarqueDessin>& marques = dessin.Liste().marques;
    constexpr double sort = 16;
    m_zone = QRectF(0, 0, vue.largeur, vue.hauteur).adjusted(-sort, -sort, sort, sort);
    const QRectF partie = m_partie.adjusted(-sort, -sort, sort, sort);
    unsigned presents = 0;
    for (const MarqueDessin& marque : marques) presents |= 1U << static_cast<unsigned>(marque.genre);
    // Points lie under arrows, arrows under first points, and all of them under what the hand takes hold of.
    for (const GenreMarque genre : {GenreMarque::Point, GenreMarque::Fleche, GenreMarque::PremierPoint,
                                    GenreMarque::Croix, GenreMarque::Poignee, GenreMarque::Disque}) {
        if ((presents & 1U << static_cast<unsigned>(genre)) == 0) continue;
        const double pas = EcartMarques(genre);
        if (pas > 0) std::fill(m_occupation.begin(), m_occupation.end(), 0);
        for (const MarqueDessin& marque : marques) {
            if (marque.genre != genre) continue;
            const QPointF p = m_projection(marque.ou);
            if (!m_zone.contains(p)) continue;
            // Which of several marks is painted must not depend on the part that is painted again.
            if (pas > 0 && !PrendrePlace(p, pas)) continue;
            if (!partie.contains(p)) continue;
            PeindreMarque(peintre, marque, p);
            ++m_compte.marques;
        }
    }
    peintre.setBrush(Qt::NoBrush);
}

void PeintreDessin::PeindreTextes(QPainter& peintre, const DessinPrepare& dessin, const VueDessin& vue) {
    const std::vector<TexteDessin>& textes = dessin.Liste().textes;
    const QRectF ecran(0, 0, vue.largeur, vue.hauteur);
    m_placesTextes.clear();
    QFont police = peintre.font();
    int taillePosee = -1;
    for (std::size_t i = 0; i < textes.size(); ++i) {
        const TexteDessin& texte = textes[i];
        const QPointF p = m_projection(texte.ou);
        // A label is never longer than this many of its heights: those far out are not even measured.
        if (!ecran.adjusted(-400, -40, 400, 40).contains(p)) continue;
        const int taille = std::max(1, static_cast<int>(std::lround(texte.taille)));
        if (taille != taillePosee) {
            police.setPixelSize(taille);
            peintre.setFont(police);
            taillePosee = taille;
        }
        const QFontMetricsF mesure(police);
        const QString& mots = dessin.Textes()[i];
        const double largeur = mesure.horizontalAdvance(mots);
        const double decalage = texte.ancre == AncreTexte::Gauche   ? 0
                                : texte.ancre == AncreTexte::Centre ? -largeur / 2
                                                                    : -largeur;
        const QRectF place(p.x() + decalage, p.y() - mesure.height() / 2, largeur, mesure.height());
        if (!place.intersects(ecran)) continue;
        // Labels that would run into one already there are left out: zooming in brings them back.
        const bool libre =
            std::none_of(m_placesTextes.begin(), m_placesTextes.end(),
                         [&](const QRectF& autre) { return autre.intersects(place.adjusted(-3, 0, 3, 0)); });
        if (!libre) continue;
        m_placesTextes.push_back(place);
        if (!place.adjusted(-2, -2, 2, 2).intersects(m_partie)) continue;
        peintre.setPen(EnQColor(texte.couleur));
        peintre.drawText(QPointF(place.x(), place.y() + mesure.ascent()), mots);
        ++m_compte.textes;
    }
}

} // namespace tessarel
