// The drawing canvas: its view, and what mouse and keyboard do to it.
#include "ui/canevas.h"

#include "platform/images/emprise_qt.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace tessarel {

namespace {

constexpr double MargeCadre = 14;         // pixels left around a frame shown whole
constexpr double FacteurCran = 1.25;      // zoom of one notch of the wheel, or of one key
constexpr double UnitesParCran = 120;     // of the wheel
constexpr double PasTouche = 48;          // pixels panned by an arrow key
constexpr double DistanceClic = 4;        // pixels: a shorter drag is a click
constexpr int MorceauxMaxi = 96;          // of a repaint; more of them are painted as one
constexpr double SurfaceDeTrop = 2;       // so many times what is asked for may be painted at once
constexpr double EchelleMaxi = 20000;     // pixels per mm: a twentieth of a micron
constexpr double EchelleMini = 1.0 / 500; // a quarter of a kilometre on a screen

// Each piece of a repaint has its own price: pieces that fill most of the rectangle around them are one.
bool UnSeulMorceau(const QRegion& region) {
    double surface = 0;
    for (const QRect& r : region) surface += static_cast<double>(r.width()) * r.height();
    const QRect autour = region.boundingRect();
    return region.rectCount() > MorceauxMaxi ||
           static_cast<double>(autour.width()) * autour.height() <= SurfaceDeTrop * surface;
}

} // namespace

Canevas::Canevas(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setCursor(m_curseur);
    m_etaitSombre = FondSombre();
}

bool Canevas::FondSombre() const {
    return palette().color(QPalette::Base).lightness() < 128;
}

// In pixels of the view, from the upper left corner of the drawing area.
QRegion Canevas::Emprise(Couche couche) const {
    return EmpriseDessin(m_couches[couche], m_vue, m_matrices[couche]);
}

void Canevas::RepeindreZone(const QRegion& ou) {
    update(ou.translated(ZoneDessin().topLeft().toPoint()));
}

// The layer changes as a whole: where it was and where it is are painted again.
void Canevas::Repeindre(Couche couche, const QRegion& avant) {
    if (couche < m_couchesFixes) {
        m_fixe.valable = false;
        m_couchesFixes = std::max(couche, CoucheSelection);
    }
    RepeindreZone(avant.united(Emprise(couche)));
}

void Canevas::Montrer(Couche couche, Dessin dessin) {
    const QRegion avant = Emprise(couche);
    m_couches[couche].Remplacer(std::move(dessin));
    m_matrices[couche] = {};
    Repeindre(couche, avant);
}

void Canevas::Transformer(Couche couche, const MatriceDessin& matrice) {
    if (m_matrices[couche] == matrice) return;
    const QRegion avant = Emprise(couche);
    m_matrices[couche] = matrice;
    Repeindre(couche, avant);
}

void Canevas::Prolonger(Couche couche, std::span<const PointDessin> points) {
    DessinPrepare& prepare = m_couches[couche];
    if (prepare.Liste().traits.empty() || points.empty()) return;
    const std::uint32_t avant = prepare.Liste().traits.back().nombre;
    prepare.Prolonger(points);
    const TraitDessin& trait = prepare.Liste().traits.back();
    // From the last point of what was there: the first new segment begins there.
    const std::uint32_t premier = avant == 0 ? 0 : avant - 1;
    const auto neufs = std::span(prepare.Liste().points).subspan(trait.premier + premier);
    if (m_couchesFixes != couche + 1) {
        // What grows is not drawn anew at each step: from now on it is in the picture that stays.
        m_couchesFixes = couche + 1;
        m_fixe.valable = false;
    } else if (m_fixe.valable) {
        PeindreSurFixe(couche, neufs);
    }
    RepeindreZone(EmpriseTrait(neufs, trait.epaisseur, m_vue, m_matrices[couche]));
}

void Canevas::FixerCurseur(const QCursor& curseur) {
    m_curseur = curseur;
    if (m_geste == Geste::Aucun || m_geste == Geste::Rectangle) setCursor(curseur);
}

void Canevas::FixerCadreComplet(const CadreDessin& cadre) {
    m_complet = cadre;
    if (m_cadreRecu) return;
    m_cadreRecu = true;
    Cadrer(cadre);
}

void Canevas::ZoomTout() {
    Cadrer(m_complet);
}

void Canevas::Cadrer(const CadreDessin& cadre) {
    m_cadreTenu = cadre;
    const QRectF zone = ZoneDessin();
    VueDessin vue = VueSurCadre(cadre, zone.width(), zone.height(), MargeCadre);
    const double echelle = std::clamp(vue.echelle, EchelleMini, EchelleMaxi);
    if (echelle != vue.echelle) {
        vue.echelle = echelle;
        vue.xGauche = (cadre.XMin + cadre.XMax) / 2 - vue.largeur / 2 / echelle;
        vue.yBas = (cadre.YMin + cadre.YMax) / 2 - vue.hauteur / 2 / echelle;
    }
    ChangerVue(vue);
}

void Canevas::ChangerVue(const VueDessin& vue) {
    if (vue == m_vue) return;
    // A frame begun on a place of the drawing stays there, whatever the wheel does meanwhile.
    const PointDessin debut = EnMm(m_debutGeste);
    m_vue = vue;
    if (m_geste == Geste::Rectangle || m_geste == Geste::ZoomRectangle) m_debutGeste = EnPixels(debut);
    update();
    emit VueChangee();
}

void Canevas::Zoomer(double facteur) {
    ZoomerAutour(ZoneDessin().center(), facteur);
}

void Canevas::ZoomerAutour(QPointF pixels, double facteur) {
    const PointDessin fixe = EnMm(pixels);
    VueDessin vue = m_vue;
    vue.echelle = std::clamp(vue.echelle * facteur, EchelleMini, EchelleMaxi);
    if (vue.echelle == m_vue.echelle) return;
    const QPointF dansZone = pixels - ZoneDessin().topLeft();
    vue.xGauche = fixe.X - dansZone.x() / vue.echelle;
    vue.yBas = fixe.Y - (vue.hauteur - dansZone.y()) / vue.echelle;
    m_cadreTenu.reset();
    ChangerVue(vue);
}

void Canevas::Deplacer(double dxPixels, double dyPixels) {
    VueDessin vue = m_vue;
    vue.xGauche -= dxPixels / vue.echelle;
    vue.yBas += dyPixels / vue.echelle;
    m_cadreTenu.reset();
    ChangerVue(vue);
}

PointDessin Canevas::EnMm(QPointF pixels) const {
    return m_vue.EnMm(pixels - ZoneDessin().topLeft());
}

QPointF Canevas::EnPixels(PointDessin mm) const {
    return m_vue.EnPixels(mm) + ZoneDessin().topLeft();
}

void Canevas::AvecRegles(bool avec) {
    if (m_regles == avec) return;
    m_regles = avec;
    if (m_cadreTenu) Cadrer(*m_cadreTenu);
    update();
}

void Canevas::resizeEvent(QResizeEvent*) {
    if (m_cadreTenu) {
        Cadrer(*m_cadreTenu);
        return;
    }
    // What the user chose to look at keeps its middle and its scale.
    const QRectF zone = ZoneDessin();
    VueDessin vue = m_vue;
    vue.xGauche += (vue.largeur - zone.width()) / 2 / vue.echelle;
    vue.yBas += (vue.hauteur - zone.height()) / 2 / vue.echelle;
    vue.largeur = zone.width();
    vue.hauteur = zone.height();
    ChangerVue(vue);
}

void Canevas::wheelEvent(QWheelEvent* evenement) {
    const double crans = evenement->angleDelta().y() / UnitesParCran;
    if (crans != 0) ZoomerAutour(evenement->position(), std::pow(FacteurCran, crans));
    evenement->accept();
}

void Canevas::mousePressEvent(QMouseEvent* evenement) {
    if (m_geste != Geste::Aucun && evenement->button() != m_bouton) return;
    m_bouton = evenement->button();
    m_debutGeste = evenement->position();
    m_pointeur = m_debutGeste;
    const bool maj = evenement->modifiers().testFlag(Qt::ShiftModifier);
    if (evenement->button() == Qt::MiddleButton || (evenement->button() == Qt::LeftButton && maj)) {
        m_geste = Geste::Deplacement;
        setCursor(Qt::ClosedHandCursor);
    } else if (evenement->button() == Qt::LeftButton) {
        m_geste = Geste::Rectangle;
    } else if (evenement->button() == Qt::RightButton) {
        m_geste = Geste::ZoomRectangle;
    }
}

void Canevas::mouseMoveEvent(QMouseEvent* evenement) {
    const QPointF ou = evenement->position();
    // Its release went to another window.
    if (!evenement->buttons().testFlag(m_bouton)) AbandonnerGeste();
    if (m_geste == Geste::Deplacement) {
        const QPointF pas = ou - m_pointeur;
        Deplacer(pas.x(), pas.y());
    }
    m_pointeur = ou;
    m_pointeurDedans = true;
    // A drag redraws the rubber band, a plain move only the pointer's place on the rulers.
    if (m_geste != Geste::Aucun) {
        update();
    } else if (m_regles) {
        const QRect zone = ZoneDessin().toAlignedRect();
        update(QRect(0, zone.bottom() + 1, width(), height() - zone.bottom() - 1));
        update(QRect(0, 0, zone.left(), height()));
    }
    const PointDessin mm = EnMm(ou);
    emit PointeurDeplace(mm.X, mm.Y);
}

bool Canevas::EstUnClic(QPointF fin) const {
    const QPointF pas = fin - m_debutGeste;
    return std::abs(pas.x()) < DistanceClic && std::abs(pas.y()) < DistanceClic;
}

void Canevas::AbandonnerGeste() {
    if (m_geste == Geste::Aucun) return;
    m_geste = Geste::Aucun;
    setCursor(m_curseur);
    update();
}

void Canevas::hideEvent(QHideEvent*) {
    AbandonnerGeste();
}

void Canevas::mouseReleaseEvent(QMouseEvent* evenement) {
    if (m_geste != Geste::Aucun && evenement->button() != m_bouton) return; // another one, pressed meanwhile
    const Geste geste = m_geste;
    const QPointF fin = evenement->position();
    m_geste = Geste::Aucun;
    setCursor(m_curseur);
    update();
    const PointDessin a = EnMm(m_debutGeste);
    const PointDessin b = EnMm(fin);
    const CadreDessin cadre{std::min(a.X, b.X), std::max(a.X, b.X), std::min(a.Y, b.Y), std::max(a.Y, b.Y)};
    switch (geste) {
    case Geste::Aucun:
        break;
    case Geste::Deplacement:
        if (evenement->button() == Qt::MiddleButton && EstUnClic(fin)) ZoomTout();
        break;
    case Geste::Rectangle:
        if (EstUnClic(fin)) {
            emit Clique(b.X, b.Y, evenement->modifiers());
        } else {
            emit RectangleTrace(cadre, evenement->modifiers());
        }
        break;
    case Geste::ZoomRectangle:
        if (!EstUnClic(fin)) {
            Cadrer(cadre);
            m_cadreTenu.reset();
        }
        break;
    }
}

void Canevas::leaveEvent(QEvent*) {
    m_pointeurDedans = false;
    update();
    emit PointeurSorti();
}

void Canevas::keyPressEvent(QKeyEvent* evenement) {
    switch (evenement->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        Zoomer(FacteurCran);
        break;
    case Qt::Key_Minus:
        Zoomer(1 / FacteurCran);
        break;
    case Qt::Key_0:
    case Qt::Key_Home:
        ZoomTout();
        break;
    case Qt::Key_Left:
        Deplacer(PasTouche, 0);
        break;
    case Qt::Key_Right:
        Deplacer(-PasTouche, 0);
        break;
    case Qt::Key_Up:
        Deplacer(0, PasTouche);
        break;
    case Qt::Key_Down:
        Deplacer(0, -PasTouche);
        break;
    case Qt::Key_Escape:
        if (m_geste == Geste::Aucun) {
            QWidget::keyPressEvent(evenement);
            return;
        }
        AbandonnerGeste();
        break;
    default:
        QWidget::keyPressEvent(evenement);
    }
}

void Canevas::changeEvent(QEvent* evenement) {
    QWidget::changeEvent(evenement);
    if (evenement->type() != QEvent::PaletteChange && evenement->type() != QEvent::StyleChange) return;
    update();
    if (FondSombre() == m_etaitSombre) return;
    m_etaitSombre = FondSombre();
    emit FondChange();
}

void Canevas::paintEvent(QPaintEvent* evenement) {
    QPainter peintre(this);
    m_compte = {};
    const QRegion& region = evenement->region();
    if (UnSeulMorceau(region)) {
        PeindreMorceau(peintre, region.boundingRect());
        return;
    }
    for (const QRect& morceau : region) PeindreMorceau(peintre, morceau);
}

} // namespace tessarel
