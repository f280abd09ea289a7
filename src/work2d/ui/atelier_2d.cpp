// The hand on the table: its deeds on the paths, and what is seen of it.
#include "work2d/ui/atelier_2d.h"

#include "app/texts/textes_programme.h"
#include "platform/nombres.h"
#include "ui/boites_qt.h"
#include "ui/icones.h"
#include "ui/theme.h"
#include "work2d/dessin_outils.h"
#include "work2d/edition.h"

#include <QCursor>
#include <QPainter>
#include <QPixmap>
#include <algorithm>
#include <cmath>

namespace tessarel {

namespace {

constexpr Masque MasqueTaille = "##0.00";
constexpr Masque MasqueAngle = "##0.0";
constexpr double RadianEnDegres = 180 / 3.14159265358979;
constexpr int CoteCurseur = 24; // pixels

std::string Mm(double valeur) {
    return FormaterNombre(valeur, MasqueTaille);
}

QString Dire(TexteProgramme cle) {
    return TexteAffiche(Texte(cle));
}

// A pointer drawn like the tool's own icon, readable on any ground.
QCursor CurseurIcone(const char* icone) {
    QPixmap image(CoteCurseur, CoteCurseur);
    image.fill(Qt::transparent);
    QPainter peintre(&image);
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(ThemeSombre() ? QColor(0, 0, 0, 120) : QColor(255, 255, 255, 170));
    peintre.drawEllipse(image.rect());
    peintre.drawPixmap(0, 0, Icone(QString::fromLatin1(icone)).pixmap(CoteCurseur, CoteCurseur));
    peintre.end();
    return QCursor(image);
}

Qt::CursorShape CurseurPoignee(std::string_view nom) {
    if (nom == "HG" || nom == "BD") return Qt::SizeFDiagCursor;
    if (nom == "HD" || nom == "BG") return Qt::SizeBDiagCursor;
    return nom[0] == 'M' ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

// The end of a segment that is nearest to a place; the last vertex is the end of the last segment.
std::string_view NommerCoin(std::span<const PointProfil> points, std::size_t segment, PointDessin ici) {
    const std::size_t debut = std::min(segment, points.size() > 1 ? points.size() - 2 : 0);
    const PointProfil& a = points[debut];
    const PointProfil& b = points[std::min(debut + 1, points.size() - 1)];
    return CoinSegment({a.X, a.Y}, {b.X, b.Y}, ici);
}

// In degrees, from above -180 to 180.
double DegresLisibles(double radians) {
    const double degres = std::remainder(radians * RadianEnDegres, 360.0);
    return degres <= -180 ? degres + 360 : degres;
}

} // namespace

Atelier2D::Atelier2D(Canevas& canevas, Espace2D& espace, QObject* parent)
    : QObject(parent), m_canevas(canevas), m_espace(espace) {
    setObjectName(QStringLiteral("pctTransf"));
    canevas.installEventFilter(this);
    connect(&canevas, &Canevas::RectangleTrace, this, [this](const CadreDessin& c, Qt::KeyboardModifiers t) {
        if (m_actif) PrendreCadre(c, t);
    });
    connect(&canevas, &Canevas::Clique, this, [this](double, double, Qt::KeyboardModifiers t) {
        if (m_actif) PrendreRien(t);
    });
    // Handles keep their size in pixels, and so their place in mm follows the zoom.
    connect(&canevas, &Canevas::VueChangee, this, &Atelier2D::DessinerOutils);
    connect(&canevas, &Canevas::FondChange, this, &Atelier2D::DessinerOutils);
}

void Atelier2D::Activer(bool actif) {
    if (m_actif == actif) return;
    AbandonnerGeste();
    m_actif = actif;
    if (!actif) {
        ChoisirOutil(OutilAtelier::Selection);
        QuitterSurvol();
        m_canevas.FixerCurseur(Qt::CrossCursor);
    }
    DessinerOutils();
}

void Atelier2D::ChoisirOutil(OutilAtelier outil) {
    if (m_outil == outil) return;
    AbandonnerGeste();
    m_outil = outil;
    if (m_survole) Survoler(m_souris);
    emit PointVise(outil == OutilAtelier::InsererPoint && m_survol.segment.has_value(), 0, 0);
    emit OutilChoisi();
}

void Atelier2D::Actualiser() {
    m_geste = Geste::Aucun; // of paths that are gone
    m_transformation.reset();
    m_indexAJour = false;
    m_survol = {};
    m_handle.clear();
    SelectionModifiee();
    // Under a pointer that rests lies something else now.
    if (m_survole && m_actif) Survoler(m_souris);
}

void Atelier2D::Recommencer() {
    m_historique = {};
    Actualiser(); // first: the tool put away looks at what lies under the pointer
    ChoisirOutil(OutilAtelier::Selection);
}

void Atelier2D::Memoriser() {
    Memoriser(m_espace.TableauSequences.size());
}

void Atelier2D::Memoriser(std::size_t avant) {
    MemoriserTransformation(m_historique, std::span(m_espace.TableauSequences).first(avant), m_espace.bloc,
                            m_espace.coeffTransf);
}

void Atelier2D::Annoncer(const Transformation& transformation) {
    AnnoncerTransformation(m_historique, transformation);
}

void Atelier2D::OublierSiInchange() {
    OublierMemorisation(m_historique, m_espace.TableauSequences, m_espace.bloc);
}

// After a deed: what is derived is made anew, and the window shows the rest.
void Atelier2D::Changement() {
    Actualiser();
    emit ProjetChange();
}

void Atelier2D::SelectionModifiee() {
    m_selections = CompterSelections(m_espace.TableauSequences);
    m_boite = CalculerBoiteSelection(m_espace.TableauSequences);
    DessinerOutils();
    emit SelectionChangee();
}

void Atelier2D::Transformer(const Transformation& transformation) {
    if (m_selections == 0 || SansEffet(transformation)) return;
    if (!TransformationPossible(m_boite, transformation)) return;
    Memoriser();
    TransformerSelection(m_espace.TableauSequences, transformation);
    Annoncer(transformation);
    Changement();
}

void Atelier2D::Dupliquer() {
    if (m_selections == 0) return;
    Memoriser();
    DupliquerSelection(m_espace.TableauSequences);
    Annoncer(Deplacement(EcartCopie, EcartCopie));
    Changement();
}

void Atelier2D::Inverser() {
    Transformation sens;
    sens.genre = GenreTransformation::Sens;
    Transformer(sens);
}

void Atelier2D::Refleter(AxeMiroir axe) {
    Transformer(Miroir(m_boite, axe));
}

void Atelier2D::Supprimer() {
    if (m_selections == 0) return;
    Memoriser();
    SupprimerSelection(m_espace.TableauSequences);
    Changement();
}

void Atelier2D::ToutSelectionner(bool choisir) {
    AbandonnerGeste(); // a drag is of what was held when it began
    if (!tessarel::ToutSelectionner(m_espace.TableauSequences, choisir)) return;
    SelectionModifiee();
}

void Atelier2D::Reculer(SensHistorique sens) {
    AbandonnerGeste();
    if (!cmdUndoTS2D(m_historique, sens, m_espace.TableauSequences, m_espace.bloc, m_espace.coeffTransf))
        return;
    emit EtatRendu();
    Changement();
}

const IndexPoints& Atelier2D::Index() {
    if (!m_indexAJour) m_index = IndexerPoints(m_espace.TableauSequences);
    m_indexAJour = true;
    return m_index;
}

double Atelier2D::Rayon() const {
    const VueDessin& vue = m_canevas.Vue();
    return RayonSurvol(std::min(vue.largeur, vue.hauteur) / vue.echelle);
}

void Atelier2D::Survoler(PointDessin ici) {
    m_souris = ici;
    m_survole = true;
    const std::span<const Sequence> traces = m_espace.TableauSequences;
    Survol survol;
    std::optional<std::pair<std::size_t, std::size_t>> coin; // path and segment whose nearer end is named
    if (m_outil == OutilAtelier::CouperTrace) {
        survol.sommet = ChercherSommet(Index(), traces, ici.X, ici.Y, Rayon());
        if (survol.sommet) coin = {survol.sommet->sequence, survol.sommet->sommet};
    } else {
        if (m_outil == OutilAtelier::Selection)
            survol.boite = SurvolerBoite(m_boite, ici, m_canevas.Vue().echelle);
        if (survol.boite.zone != ZoneBoite::Poignee)
            survol.segment = ChercherSegment(Index(), traces, ici.X, ici.Y, Rayon());
    }
    m_survol = survol;
    m_handle = survol.boite.HandleCourant;
    if (survol.segment && EstSelectionnee(traces[survol.segment->sequence]))
        coin = {survol.segment->sequence, survol.segment->segment};
    if (coin) m_handle = NommerCoin(traces[coin->first].Points, coin->second, ici);
    MontrerSurvol();
}

void Atelier2D::QuitterSurvol() {
    if (!m_survole) return;
    m_survole = false;
    m_survol = {};
    m_handle.clear();
    DessinerOutils();
    emit PointVise(false, 0, 0);
    emit Indication(QString());
}

bool Atelier2D::SurvolDejaMontre() const {
    if (m_outil != OutilAtelier::Selection || m_geste != Geste::Aucun || !m_survol.segment) return false;
    return m_traceMontree == m_survol.segment->sequence && m_boiteMontree == m_survol.boite &&
           !EstSelectionnee(m_espace.TableauSequences[m_survol.segment->sequence]);
}

// The pointer's shape and the sentence follow what lies under it.
void Atelier2D::MontrerSurvol() {
    // A whole path is copied into its layer once, not at each move along it.
    if (!SurvolDejaMontre()) {
        DessinerOutils();
        FixerCurseur();
    }
    const auto& traces = m_espace.TableauSequences;
    switch (m_outil) {
    case OutilAtelier::InsererPoint:
        if (m_survol.segment) {
            const PointDessin pied = m_survol.segment->pied;
            emit PointVise(true, pied.X, pied.Y);
            emit Indication(
                TexteAffiche(TexteRempli(TexteProgramme::AtelierInsererIci, {Mm(pied.X), Mm(pied.Y)})));
        } else {
            emit PointVise(false, 0, 0);
            emit Indication(Dire(TexteProgramme::AtelierInserer));
        }
        return;
    case OutilAtelier::CouperTrace:
        if (m_survol.sommet) {
            const std::size_t total = traces[m_survol.sommet->sequence].Points.size();
            emit Indication(TexteAffiche(
                TexteRempli(TexteProgramme::AtelierCouperIci,
                            {std::to_string(m_survol.sommet->sommet + 1), std::to_string(total)})));
        } else {
            emit Indication(Dire(TexteProgramme::AtelierCouper));
        }
        return;
    case OutilAtelier::Selection:
        break;
    }
    const bool surTrace = m_survol.segment.has_value();
    if (m_survol.boite.zone == ZoneBoite::Poignee) {
        emit Indication(Dire(TexteProgramme::AtelierSurPoignee));
    } else if (surTrace && !EstSelectionnee(traces[m_survol.segment->sequence])) {
        emit Indication(Dire(TexteProgramme::AtelierSurTrace));
    } else if (surTrace || m_survol.boite.zone == ZoneBoite::Dedans) {
        emit Indication(Dire(TexteProgramme::AtelierSurSelection));
    } else if (m_survol.boite.zone == ZoneBoite::Rotation) {
        emit Indication(Dire(TexteProgramme::AtelierSurRotation));
    } else {
        emit Indication(
            Dire(traces.empty() ? TexteProgramme::AtelierTableVide : TexteProgramme::AtelierSurTable));
    }
}

void Atelier2D::FixerCurseur() {
    const bool surTrace = m_survol.segment.has_value();
    if (m_outil == OutilAtelier::InsererPoint) {
        m_canevas.FixerCurseur(surTrace ? Qt::PointingHandCursor : Qt::CrossCursor);
    } else if (m_outil == OutilAtelier::CouperTrace) {
        m_canevas.FixerCurseur(m_survol.sommet ? CurseurIcone("couper-trace") : QCursor(Qt::CrossCursor));
    } else if (m_survol.boite.zone == ZoneBoite::Poignee) {
        m_canevas.FixerCurseur(CurseurPoignee(m_survol.boite.HandleCourant));
    } else if (surTrace && !EstSelectionnee(m_espace.TableauSequences[m_survol.segment->sequence])) {
        m_canevas.FixerCurseur(Qt::PointingHandCursor);
    } else if (surTrace || m_survol.boite.zone == ZoneBoite::Dedans) {
        m_canevas.FixerCurseur(Qt::SizeAllCursor);
    } else if (m_survol.boite.zone == ZoneBoite::Rotation) {
        m_canevas.FixerCurseur(CurseurIcone("rotation"));
    } else {
        m_canevas.FixerCurseur(Qt::CrossCursor);
    }
}

// The layer of the selection moves; its box, the sizes and the sentence with it.
void Atelier2D::MontrerGeste() {
    if (!m_transformation) return;
    const Transformation& t = *m_transformation;
    m_canevas.Transformer(Canevas::CoucheSelection, EnMatrice(t));
    DessinerOutils();
    switch (t.genre) {
    case GenreTransformation::Echelle: {
        const double largeur = std::abs(m_boite.Largeur * static_cast<double>(t.facteurX));
        const double hauteur = std::abs(m_boite.Hauteur * static_cast<double>(t.facteurY));
        emit TailleVivante(largeur, hauteur);
        emit Indication(
            TexteAffiche(TexteRempli(TexteProgramme::AtelierRedimensionne, {Mm(largeur), Mm(hauteur)})));
        break;
    }
    case GenreTransformation::Rotation: {
        const double degres = DegresLisibles(t.angle);
        emit AngleVivant(degres);
        emit Indication(
            TexteAffiche(TexteRempli(TexteProgramme::AtelierTourne, {FormaterNombre(degres, MasqueAngle)})));
        break;
    }
    default:
        emit DeplacementVivant(t.dx, t.dy);
        emit Indication(TexteAffiche(TexteRempli(TexteProgramme::AtelierDeplace, {Mm(t.dx), Mm(t.dy)})));
    }
}

void Atelier2D::DessinerOutils() {
    Dessin outils;
    m_traceMontree.reset();
    if (m_actif) {
        OptionsDessin options;
        options.sombre = m_canevas.FondSombre();
        const auto& traces = m_espace.TableauSequences;
        if (m_survol.segment && m_geste == Geste::Aucun && m_survol.segment->sequence < traces.size()) {
            const Sequence& trace = traces[m_survol.segment->sequence];
            if (m_outil == OutilAtelier::Selection && !EstSelectionnee(trace)) {
                DessinerTraceSurvole(outils, trace);
                m_traceMontree = m_survol.segment->sequence;
                m_boiteMontree = m_survol.boite;
            } else {
                DessinerSegmentSurvole(outils, trace, m_survol.segment->segment, m_souris);
            }
            if (m_outil == OutilAtelier::InsererPoint) DessinerPointVise(outils, m_survol.segment->pied);
        }
        if (m_survol.sommet && m_survol.sommet->sequence < traces.size()) {
            const PointProfil& p = traces[m_survol.sommet->sequence].Points[m_survol.sommet->sommet];
            DessinerPointVise(outils, {p.X, p.Y});
        }
        const MatriceDessin matrice = m_transformation ? EnMatrice(*m_transformation) : MatriceDessin();
        if (m_outil == OutilAtelier::Selection)
            DessinerBoite(outils, m_boite, m_canevas.Vue().echelle, m_survol.boite, matrice, options);
    }
    // An empty layer over an empty layer is no reason to paint.
    const Dessin& montres = m_canevas.Montre(Canevas::CoucheOutil).Liste();
    if (outils.traits.empty() && outils.marques.empty() && montres.traits.empty() && montres.marques.empty())
        return;
    m_canevas.Montrer(Canevas::CoucheOutil, std::move(outils));
}

} // namespace tessarel
