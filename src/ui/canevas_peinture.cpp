// The painting of the canvas: its layers, the rulers that follow the zoom, the rubber band.
#include "ui/canevas.h"

#include <QPainter>

#include <array>
#include <cmath>
#include <utility>

namespace tessarel {

namespace {

constexpr double LargeurRegle = 22;     // pixels
constexpr double EcartGraduations = 48; // least pixels between two numbers
constexpr double TailleChiffres = 10;   // pixels
constexpr double TraitFin = 4;          // pixels, of a graduation without a number
constexpr double EcartChiffres = 3;     // pixels between a number and its graduation
constexpr double HauteurChiffres = 15;  // pixels
constexpr double LisereChiffres = 1;    // pixel, the soft edge of the last one

// A step of 1, 2 or 5 times a power of ten whose numbers stand far enough apart, and into how many it is
// divided.
struct Graduation {
    double pas = 1;
    int divisions = 10;
};

Graduation ChoisirGraduation(double echelle) {
    const double cible = EcartGraduations / echelle;
    const double decade = std::pow(10, std::floor(std::log10(cible)));
    if (decade >= cible) return {decade, 10};
    if (2 * decade >= cible) return {2 * decade, 4};
    if (5 * decade >= cible) return {5 * decade, 5};
    return {10 * decade, 10};
}

} // namespace

QRectF Canevas::ZoneDessin() const {
    const double regle = m_regles ? LargeurRegle : 0;
    return QRectF(regle, 0, std::max(width() - regle, 1.0), std::max(height() - regle, 1.0));
}

void Canevas::Peindre(QPainter& peintre) {
    m_compte = {};
    PeindreMorceau(peintre, rect());
}

// What the last painting left lies beside this piece.
void Canevas::PeindreMorceau(QPainter& peintre, const QRect& morceau) {
    const QRectF zone = ZoneDessin();
    peintre.save();
    peintre.setClipRect(morceau, Qt::IntersectClip);
    // A pointer that moves over the rulers' bands leaves the drawing as it is.
    const QRectF partie = zone.intersected(morceau);
    if (!partie.isEmpty()) {
        peintre.save();
        peintre.setClipRect(zone, Qt::IntersectClip);
        peintre.translate(zone.topLeft());
        const QRectF dansZone = partie.translated(-zone.topLeft());
        PeindreFixe(peintre, dansZone);
        PeindreCouches(peintre, m_couchesFixes, NombreCouches, dansZone);
        peintre.restore();
        PeindreElastique(peintre);
    }
    if (m_regles && !zone.contains(morceau)) PeindreRegles(peintre);
    peintre.restore();
}

void Canevas::PeindreCouches(QPainter& peintre, std::size_t premiere, std::size_t fin, const QRectF& partie) {
    for (std::size_t couche = premiere; couche < fin; ++couche) {
        m_pinceau.Peindre(peintre, m_couches[couche], m_vue, m_matrices[couche], partie);
        m_compte.sommets += m_pinceau.DernierCompte().sommets;
        m_compte.marques += m_pinceau.DernierCompte().marques;
        m_compte.textes += m_pinceau.DernierCompte().textes;
    }
}

// The ground and the layers that stay: painted, or taken from the picture of the last time.
void Canevas::PeindreFixe(QPainter& peintre, const QRectF& partie) {
    const QSizeF taille = ZoneDessin().size();
    const QColor fond = palette().color(QPalette::Base);
    const bool meme = m_fixe.valable && m_fixe.vue == m_vue && m_fixe.fond == fond &&
                      m_fixe.image.devicePixelRatio() == devicePixelRatioF();
    if (!meme && m_vuePeinte != m_vue) {
        m_vuePeinte = m_vue;
        m_fixe = {};
        peintre.fillRect(partie, fond);
        PeindreCouches(peintre, CoucheFond, m_couchesFixes, partie);
        return;
    }
    if (!meme) {
        const PeintreDessin::Compte avant = m_compte;
        m_compte = {};
        m_fixe.image = QPixmap((taille * devicePixelRatioF()).toSize());
        m_fixe.image.setDevicePixelRatio(devicePixelRatioF());
        m_fixe.image.fill(fond);
        QPainter surImage(&m_fixe.image);
        surImage.setFont(peintre.font());
        PeindreCouches(surImage, CoucheFond, m_couchesFixes, {});
        m_fixe.compte = std::exchange(m_compte, avant);
        m_fixe.vue = m_vue;
        m_fixe.fond = fond;
        m_fixe.valable = true;
    }
    m_compte.sommets += m_fixe.compte.sommets;
    m_compte.marques += m_fixe.compte.marques;
    m_compte.textes += m_fixe.compte.textes;
    peintre.drawPixmap(QPointF(), m_fixe.image);
}

// The end of the last stroke of a layer, over the picture that holds the rest of it.
void Canevas::PeindreSurFixe(Couche couche, std::span<const PointDessin> neufs) {
    Dessin dessin;
    dessin.points.assign(neufs.begin(), neufs.end());
    dessin.traits.push_back(m_couches[couche].Liste().traits.back());
    dessin.traits.back().premier = 0;
    dessin.traits.back().nombre = static_cast<std::uint32_t>(neufs.size());
    QPainter surImage(&m_fixe.image);
    m_pinceau.Peindre(surImage, DessinPrepare(std::move(dessin)), m_fixe.vue, m_matrices[couche]);
}

void Canevas::PeindreElastique(QPainter& peintre) {
    if ((m_geste != Geste::Rectangle && m_geste != Geste::ZoomRectangle) || EstUnClic(m_pointeur)) return;
    QColor couleur = palette().color(QPalette::Highlight);
    peintre.save();
    peintre.setClipRect(ZoneDessin(), Qt::IntersectClip);
    QPen stylo(couleur, 1, m_geste == Geste::Rectangle ? Qt::SolidLine : Qt::DashLine);
    peintre.setPen(stylo);
    couleur.setAlpha(38);
    peintre.setBrush(couleur);
    peintre.drawRect(QRectF(m_debutGeste, m_pointeur).normalized());
    peintre.restore();
}

// Along the bottom and the left edge, where the origin of a table is.
void Canevas::PeindreRegles(QPainter& peintre) {
    const QRectF zone = ZoneDessin();
    const QColor encre = palette().color(QPalette::WindowText);
    QColor trait = encre;
    trait.setAlpha(110);
    peintre.save();
    peintre.setRenderHint(QPainter::Antialiasing, false);
    const QRectF bas(0, zone.bottom(), width(), height() - zone.bottom());
    const QRectF gauche(0, 0, zone.left(), height());
    peintre.fillRect(bas, palette().color(QPalette::Window));
    peintre.fillRect(gauche, palette().color(QPalette::Window));
    QFont police = font();
    police.setPixelSize(static_cast<int>(TailleChiffres));
    peintre.setFont(police);

    const Graduation graduation = ChoisirGraduation(m_vue.echelle);
    const double fin = graduation.pas / graduation.divisions;
    const auto tracer = [&](bool horizontale) {
        const double debut = horizontale ? m_vue.xGauche : m_vue.yBas;
        const double longueur = (horizontale ? m_vue.largeur : m_vue.hauteur) / m_vue.echelle;
        const double premier = std::ceil(debut / fin);
        for (double k = premier; k * fin <= debut + longueur; k += 1) {
            const double mm = k * fin;
            const QPointF p = EnPixels({mm, mm});
            const bool grand = std::fmod(k, graduation.divisions) == 0;
            // A graduation with a number crosses the whole ruler, so that it is seen whose number it is.
            const double t = grand ? LargeurRegle : TraitFin;
            peintre.setPen(trait);
            if (horizontale) {
                peintre.drawLine(QPointF(p.x(), bas.top()), QPointF(p.x(), bas.top() + t));
            } else {
                peintre.drawLine(QPointF(gauche.right() - 1, p.y()), QPointF(gauche.right() - 1 - t, p.y()));
            }
            if (!grand) continue;
            const QString chiffres = QString::number(mm == 0 ? 0.0 : mm, 'g', 7);
            const double place =
                EcartChiffres + peintre.fontMetrics().horizontalAdvance(chiffres) + LisereChiffres;
            // A number that the edge would cut in two is another number.
            if (horizontale ? p.x() + place > zone.right() : p.y() - place < zone.top()) continue;
            peintre.setPen(encre);
            const QRectF feuille(0, 0, place, HauteurChiffres);
            peintre.save();
            if (horizontale) {
                peintre.translate(p.x() + EcartChiffres, bas.top() + (LargeurRegle - HauteurChiffres) / 2);
            } else {
                peintre.translate(gauche.left() + (LargeurRegle - HauteurChiffres) / 2,
                                  p.y() - EcartChiffres);
                peintre.rotate(-90);
            }
            peintre.drawText(feuille, Qt::AlignLeft | Qt::AlignVCenter, chiffres);
            peintre.restore();
        }
    };
    peintre.setClipRect(QRectF(zone.left(), bas.top(), zone.width(), bas.height()), Qt::IntersectClip);
    tracer(true);
    peintre.restore();
    peintre.save();
    peintre.setFont(police);
    peintre.setRenderHint(QPainter::Antialiasing, false);
    peintre.setClipRect(QRectF(0, 0, gauche.width(), zone.height()), Qt::IntersectClip);
    tracer(false);
    peintre.restore();

    const QRectF coin(0, zone.bottom(), zone.left(), height() - zone.bottom());
    peintre.save();
    peintre.setFont(police);
    peintre.setPen(trait);
    peintre.drawText(coin, Qt::AlignCenter, QStringLiteral("mm"));
    peintre.drawLine(QPointF(zone.left() - 1, 0), QPointF(zone.left() - 1, zone.bottom()));
    peintre.drawLine(QPointF(zone.left() - 1, zone.bottom()), QPointF(width(), zone.bottom()));
    if (m_pointeurDedans && zone.contains(m_pointeur)) {
        peintre.setPen(QPen(palette().color(QPalette::Highlight), 2));
        peintre.drawLine(QPointF(m_pointeur.x(), bas.top() + 1), QPointF(m_pointeur.x(), bas.bottom()));
        peintre.drawLine(QPointF(0, m_pointeur.y()), QPointF(gauche.right() - 2, m_pointeur.y()));
    }
    peintre.restore();
}

} // namespace tessarel
