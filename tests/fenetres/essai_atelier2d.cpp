// The workshop of the 2D window as a person uses it, by mouse: select, move, scale, turn, undo, put points
// in, cut paths. The result is read from the records.
#include "fenetres/poste_2d.h"
#include "fenetres/souris.h"
#include "ui/canevas.h"
#include "work2d/dessin_outils.h"
#include "work2d/selection.h"
#include "work2d/ui/atelier_2d.h"
#include "work2d/ui/panneau_bibliotheque.h"

#include <QAbstractSlider>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QToolButton>

#include <cmath>

using namespace tessarel;
using essais::DeuxTracesTexte;
using essais::Poste2D;
using essais::RectangleTexte;
using essais::Souris;

namespace {

constexpr double Tolerance = 0.02; // mm: a click lands within a pixel, a drag is exact to its own pixels

} // namespace

class EssaiAtelier2D : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() {
        m_souris.reset();
        m_poste.reset();
    }

    void UnClicSelectionneLeTrace();
    void ShiftAjouteEtCtrlBascule();
    void UnClicDansLeVideDeselectionne();
    void LeCadreVersLaDroitePrendLesEntiers();
    void LeCadreVersLaGauchePrendCeQuIlTouche();
    void GlisserDeplaceLaSelectionSeule();
    void GlisserUnTraceNonChoisiLeChoisitEtLeDeplace();
    void ShiftPendantLeDeplacementGardeUnAxe();
    void UnePoigneeRedimensionne();
    void LesTouchesChangentLePointFixeEnRoute();
    void MajGardeLesProportions();
    void LaTailleVivanteSAfficheEtLesPointsNeBougentQuALaFin();
    void EchapRenonceAuGeste();
    void ToutChoisirEnPleinGesteNEmporteRien();
    void UnGesteRevenuASonDepartNEstPasUnPas();
    void TournerDepuisLExterieurDuCadre();
    void UnFacteurNulGardeLeDernierBon();
    void LeSurvolDitCeQueFeraitLaSouris();
    void LeCurseurSuitLaZone();
    void LeSegmentSurvoleEstMagentaEtNomme();
    void AnnulerEtRetablirParLesBoutons();
    void AnnulerUneOuvertureRetireLesTraces();
    void AnnulerLeBloc();
    void UneRegleSansEffetNEstPasUnPas();
    void InsererUnPoint();
    void InsererHorsDUnSegmentNeFaitRien();
    void CouperUnTrace();
    void LeSommetACouperNommeUnCoin();
    void LeSurvolNeRedessineQueCeQuiChange();
    void CouperAuBoutEstRefuse();
    void LesOutilsSontEteintsPendantLaDecoupe();
    void LApercuSeRetourneAvantDEtreOuvert();
    void UnProjetRetourneDansLApercuEstModifie();
    void LesAscenseursSuiventLaVue();
    void LaLargeurDeLaBibliothequeRevient();

private:
    [[nodiscard]] const Espace2D& Espace() const { return m_poste->fenetre->Espace(); }
    [[nodiscard]] const Atelier2D& Atelier() const { return m_poste->fenetre->Atelier(); }
    [[nodiscard]] const Sequence& Trace(std::size_t i) const { return Espace().TableauSequences.at(i); }
    [[nodiscard]] Canevas& Toile() const { return m_poste->Trouver<Canevas>("pctSequTS2D"); }
    [[nodiscard]] QString Etat() const { return m_poste->fenetre->statusBar()->currentMessage(); }
    // Where a handle is drawn, off the paths.
    [[nodiscard]] PointDessin Poignee(const char* nom) const {
        return PlacePoignee(BoiteAffichee(Atelier().BoiteSelection(), Toile().Vue().echelle), nom);
    }
    [[nodiscard]] std::string Choisis() const {
        std::string choisis;
        for (const Sequence& s : Espace().TableauSequences) choisis += EstSelectionnee(s) ? '1' : '0';
        return choisis;
    }

    std::unique_ptr<Poste2D> m_poste;
    std::unique_ptr<Souris> m_souris;
};

// A rectangle of 100 x 50 from (0, 0), and a square of 20 from (200, 10).
void EssaiAtelier2D::init() {
    m_poste = std::make_unique<Poste2D>();
    m_poste->OuvrirFenetre();
    QVERIFY(m_poste->fenetre->OuvrirFichier(m_poste->Fichier("deux.txt", DeuxTracesTexte)));
    m_souris = std::make_unique<Souris>(Toile());
}

void EssaiAtelier2D::UnClicSelectionneLeTrace() {
    m_souris->Cliquer({0, 25});
    QCOMPARE(Choisis(), std::string("10"));
    QCOMPARE(Atelier().NombreSelections(), std::size_t{1});
    QCOMPARE(Atelier().BoiteSelection().Largeur, 100.0F);
    QCOMPARE(m_poste->Trouver<QLabel>("lblDimensionSelection").text(),
             QStringLiteral("100.00 mm x 50.00 mm"));
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtMesures_0").text(), QStringLiteral("100.00"));
    // The selected path has its own layer and the told colour.
    const auto& traits = Toile().Montre(Canevas::CoucheSelection).Liste().traits;
    QCOMPARE(traits.size(), std::size_t{1});
    QVERIFY((traits[0].couleur == Couleur{255, 107, 107}));
    m_souris->Cliquer({210, 10});
    QCOMPARE(Choisis(), std::string("01"));
}

void EssaiAtelier2D::ShiftAjouteEtCtrlBascule() {
    m_souris->Cliquer({0, 25});
    m_souris->Cliquer({210, 10}, Qt::ShiftModifier);
    QCOMPARE(Choisis(), std::string("11"));
    const auto& traits = Toile().Montre(Canevas::CoucheSelection).Liste().traits;
    QVERIFY((traits.at(1).couleur == Couleur{230, 61, 61}));
    m_souris->Cliquer({0, 25}, Qt::ControlModifier);
    QCOMPARE(Choisis(), std::string("01"));
    m_souris->Cliquer({0, 25}, Qt::ControlModifier);
    QCOMPARE(Choisis(), std::string("11"));
    // A plain click on one of several leaves that one alone.
    m_souris->Cliquer({0, 25});
    QCOMPARE(Choisis(), std::string("10"));
}

void EssaiAtelier2D::UnClicDansLeVideDeselectionne() {
    m_souris->Cliquer({0, 25});
    m_souris->Cliquer({400, 300});
    QCOMPARE(Choisis(), std::string("00"));
    m_souris->Cliquer({0, 25});
    m_souris->Cliquer({50, 25}); // inside the box, on nothing
    QCOMPARE(Choisis(), std::string("00"));
}

void EssaiAtelier2D::LeCadreVersLaDroitePrendLesEntiers() {
    m_souris->Glisser({-20, 80}, {150, -20});
    QCOMPARE(Choisis(), std::string("10"));
    m_souris->Cliquer({400, 300});
    m_souris->Glisser({-20, 80}, {90, -20}); // a part of it only
    QCOMPARE(Choisis(), std::string("00"));
    m_souris->Glisser({-20, 80}, {260, -20});
    QCOMPARE(Choisis(), std::string("11"));
}

void EssaiAtelier2D::LeCadreVersLaGauchePrendCeQuIlTouche() {
    m_souris->Appuyer({150, 80});
    m_souris->Aller({90, 20});
    QVERIFY(Etat().startsWith(QStringLiteral("Relâcher : choisir tous les tracés que le cadre touche")));
    m_souris->Aller({300, 20});
    QVERIFY(Etat().startsWith(QStringLiteral("Relâcher : choisir les tracés entiers")));
    m_souris->Aller({151, 150});
    m_souris->Relacher();
    QCOMPARE(Choisis(), std::string("00"));
    m_souris->Glisser({150, 80}, {90, 20});
    QCOMPARE(Choisis(), std::string("10"));
    m_souris->Glisser({260, 60}, {190, 40}, Qt::ControlModifier); // touches nothing
    QCOMPARE(Choisis(), std::string("10"));
    m_souris->Glisser({260, 60}, {215, 25}, Qt::ControlModifier);
    QCOMPARE(Choisis(), std::string("11"));
}

void EssaiAtelier2D::GlisserDeplaceLaSelectionSeule() {
    const std::vector<PointProfil> carre = Trace(1).Points;
    m_souris->Cliquer({0, 25});
    m_souris->Glisser({50, 25}, {80, 65});
    QVERIFY(std::abs(Trace(0).XMin - 30) < Tolerance);
    QVERIFY(std::abs(Trace(0).YMin - 40) < Tolerance);
    QCOMPARE(Trace(0).Largeur, 100.0F);
    QVERIFY(Trace(1).Points == carre);
    QVERIFY(Espace().modifie);
    // The box follows the bounds, which were computed.
    QCOMPARE(Atelier().BoiteSelection().XMin, Trace(0).XMin);
}

void EssaiAtelier2D::GlisserUnTraceNonChoisiLeChoisitEtLeDeplace() {
    m_souris->Glisser({210, 10}, {210, 60});
    QCOMPARE(Choisis(), std::string("01"));
    QVERIFY(std::abs(Trace(1).YMin - 60) < Tolerance);
}

void EssaiAtelier2D::ShiftPendantLeDeplacementGardeUnAxe() {
    m_souris->Cliquer({0, 25});
    m_souris->Appuyer({50, 25});
    m_souris->Aller({90, 35}, Qt::ShiftModifier);
    m_souris->Relacher(Qt::ShiftModifier);
    QVERIFY(std::abs(Trace(0).XMin - 40) < Tolerance);
    QCOMPARE(Trace(0).YMin, 0.0F);
}

void EssaiAtelier2D::UnePoigneeRedimensionne() {
    m_souris->Cliquer({0, 25});
    const PointDessin prise = Poignee("HD");
    m_souris->Aller(prise);
    QCOMPARE(Atelier().HandleCourant(), std::string("HD"));
    m_souris->Glisser(prise, {prise.X + 100, prise.Y + 25});
    QVERIFY(std::abs(Trace(0).Largeur - 200) < Tolerance);
    QVERIFY(std::abs(Trace(0).Hauteur - 75) < Tolerance);
    QCOMPARE(Trace(0).XMin, 0.0F); // the handle opposite stays
    QCOMPARE(Trace(0).YMin, 0.0F);
}

void EssaiAtelier2D::LesTouchesChangentLePointFixeEnRoute() {
    m_souris->Cliquer({0, 25});
    const PointDessin prise = Poignee("MD");
    m_souris->Appuyer(prise, Qt::ControlModifier);
    m_souris->Aller({prise.X + 20, prise.Y}, Qt::ControlModifier);
    // About the middle: 20 mm on either side.
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtMesures_0").text(), QStringLiteral("140.00"));
    m_souris->Aller({prise.X + 20, prise.Y}, Qt::NoModifier);
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtMesures_0").text(), QStringLiteral("120.00"));
    m_souris->Relacher();
    QVERIFY(std::abs(Trace(0).Largeur - 120) < Tolerance);
    QCOMPARE(Trace(0).XMin, 0.0F);
}

void EssaiAtelier2D::MajGardeLesProportions() {
    m_souris->Cliquer({0, 25});
    const PointDessin prise = Poignee("BG");
    m_souris->Glisser(prise, {prise.X - 50, prise.Y + 1}, Qt::ShiftModifier);
    QVERIFY(std::abs(Trace(0).Largeur - 150) < Tolerance);
    QVERIFY(std::abs(Trace(0).Hauteur - 75) < Tolerance);
    QCOMPARE(Trace(0).XMax, 100.0F);
    QCOMPARE(Trace(0).YMax, 50.0F);
}

void EssaiAtelier2D::LaTailleVivanteSAfficheEtLesPointsNeBougentQuALaFin() {
    m_souris->Cliquer({0, 25});
    const std::vector<PointProfil> avant = Trace(0).Points;
    const PointDessin prise = Poignee("HD");
    m_souris->Appuyer(prise);
    m_souris->Aller({prise.X + 50, prise.Y + 50});
    QVERIFY(Trace(0).Points == avant);
    QCOMPARE(m_poste->Trouver<QLabel>("lblDimensionSelection").text(),
             QStringLiteral("150.00 mm x 100.00 mm"));
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtMesures_1").text(), QStringLiteral("100.00"));
    QCOMPARE(Etat(), QStringLiteral("Taille : 150.00 mm x 100.00 mm. Échap : renoncer"));
    m_souris->Relacher();
    QVERIFY(Trace(0).Points != avant);
}

void EssaiAtelier2D::EchapRenonceAuGeste() {
    m_souris->Cliquer({0, 25});
    const std::vector<Sequence> avant = Espace().TableauSequences;
    const float position = Atelier().Historique().NbTransf;
    m_souris->Appuyer({50, 25});
    m_souris->Aller({150, 125});
    QTest::keyClick(&Toile(), Qt::Key_Escape);
    m_souris->Aller({160, 125});
    m_souris->Relacher();
    QVERIFY(Espace().TableauSequences == avant);
    QCOMPARE(Atelier().Historique().NbTransf, position);
    QCOMPARE(Choisis(), std::string("10"));
}

void EssaiAtelier2D::ToutChoisirEnPleinGesteNEmporteRien() {
    m_souris->Cliquer({0, 25});
    m_souris->Appuyer({50, 25});
    m_souris->Aller({150, 125});
    QTest::keyClick(m_poste->fenetre.get(), Qt::Key_A, Qt::ControlModifier);
    QTRY_COMPARE(Choisis(), std::string("11")); // a button that its keys press stays down a while
    m_souris->Relacher();
    QCOMPARE(Trace(0).XMin, 0.0F);
    QCOMPARE(Trace(1).XMin, 200.0F); // it was never held
    QCOMPARE(Choisis(), std::string("11"));
}

void EssaiAtelier2D::UnGesteRevenuASonDepartNEstPasUnPas() {
    m_souris->Cliquer({0, 25});
    m_souris->Glisser({50, 25}, {80, 65});
    m_poste->Cliquer<QToolButton>("cmdUndoTS2D_0");
    const float position = Atelier().Historique().NbTransf;
    m_souris->Appuyer({50, 25});
    m_souris->Aller({150, 125});
    m_souris->Aller({50, 25});
    m_souris->Relacher();
    const PointDessin prise = Poignee("MD");
    m_souris->Appuyer(prise);
    m_souris->Aller({prise.X + 40, prise.Y});
    m_souris->Aller(prise);
    m_souris->Relacher();
    QCOMPARE(Atelier().Historique().NbTransf, position);
    m_poste->Cliquer<QToolButton>("cmdUndoTS2D_1");
    QVERIFY(std::abs(Trace(0).XMin - 30) < Tolerance);
}

void EssaiAtelier2D::TournerDepuisLExterieurDuCadre() {
    // The square: middle (210, 20). From the right of it to above it is a quarter turn to the left.
    m_souris->Cliquer({210, 10});
    const double pixel = 1 / Toile().Vue().echelle;
    const double rayon = 10 + (RetraitBoite + 18) * pixel;
    const PointDessin droite{210 + rayon, 14};
    m_souris->Aller(droite);
    QCOMPARE(Etat(), QStringLiteral("Glisser : tourner autour du centre (Alt : par pas de 15°)"));
    m_souris->Appuyer(droite);
    m_souris->Aller({216, 20 + rayon});
    QVERIFY(Etat().startsWith(QStringLiteral("Rotation : 90.0°")));
    m_souris->Relacher();
    const std::vector<PointProfil>& p = Trace(1).Points;
    QVERIFY(std::abs(p[0].X - 220) < 0.2); // (200, 10) went to (220, 10)
    QVERIFY(std::abs(p[0].Y - 10) < 0.2);
    QVERIFY(std::abs(std::hypot(p[0].X - 210, p[0].Y - 20) - std::hypot(10, 10)) < 1e-9);
}

void EssaiAtelier2D::UnFacteurNulGardeLeDernierBon() {
    m_souris->Cliquer({0, 25});
    const PointDessin prise = Poignee("MD");
    m_souris->Appuyer(prise);
    m_souris->Aller({prise.X - 50, prise.Y});
    m_souris->Aller({prise.X - 100, prise.Y}); // a width of nothing, to the last bit or nearly so
    m_souris->Relacher();
    for (const PointProfil& p : Trace(0).Points) QVERIFY(std::isfinite(p.X));
    QVERIFY(Trace(0).Largeur > 0);
    QCOMPARE(m_poste->NombreBoites(), std::size_t{0});
}

void EssaiAtelier2D::LeSurvolDitCeQueFeraitLaSouris() {
    m_souris->Aller({400, 300});
    QCOMPARE(Etat(), QStringLiteral("Glisser : cadre de sélection. Shift + glisser : déplacer la vue"));
    m_souris->Aller({0, 25});
    QVERIFY(Etat().startsWith(QStringLiteral("Clic : sélectionner ce tracé")));
    m_souris->Cliquer({0, 25});
    QVERIFY(Etat().startsWith(QStringLiteral("Glisser : déplacer")));
    m_souris->Aller(Poignee("BM"));
    QVERIFY(Etat().startsWith(QStringLiteral("Glisser : taille")));
    QEvent sortie(QEvent::Leave);
    QApplication::sendEvent(&Toile(), &sortie);
    QVERIFY(Etat().isEmpty());
}

void EssaiAtelier2D::LeCurseurSuitLaZone() {
    m_souris->Aller({400, 300});
    QCOMPARE(Toile().cursor().shape(), Qt::CrossCursor);
    m_souris->Aller({0, 25});
    QCOMPARE(Toile().cursor().shape(), Qt::PointingHandCursor);
    m_souris->Cliquer({0, 25});
    QCOMPARE(Toile().cursor().shape(), Qt::SizeAllCursor);
    const std::pair<const char*, Qt::CursorShape> formes[] = {
        {"HG", Qt::SizeFDiagCursor}, {"BD", Qt::SizeFDiagCursor}, {"HD", Qt::SizeBDiagCursor},
        {"BG", Qt::SizeBDiagCursor}, {"MG", Qt::SizeHorCursor},   {"HM", Qt::SizeVerCursor}};
    for (const auto& [nom, forme] : formes) {
        m_souris->Aller(Poignee(nom));
        QCOMPARE(Toile().cursor().shape(), forme);
    }
}

void EssaiAtelier2D::LeSegmentSurvoleEstMagentaEtNomme() {
    m_souris->Cliquer({0, 25});
    m_souris->Aller({90, 50}); // the top side, nearer its right end
    // The side runs from (100, 50) to (0, 50): level, so its first end is the high one.
    QCOMPARE(Atelier().HandleCourant(), std::string("BC"));
    const auto magenta = [this] {
        for (const TraitDessin& t : Toile().Montre(Canevas::CoucheOutil).Liste().traits) {
            if (t.couleur == CouleurSurvol) return true;
        }
        return false;
    };
    QVERIFY(magenta());
    m_souris->Aller({50, 25});
    QVERIFY(!magenta());
    QVERIFY(Atelier().HandleCourant().empty());
}

void EssaiAtelier2D::AnnulerEtRetablirParLesBoutons() {
    auto& arriere = m_poste->Trouver<QToolButton>("cmdUndoTS2D_0");
    auto& avant = m_poste->Trouver<QToolButton>("cmdUndoTS2D_1");
    QVERIFY(arriere.isEnabled()); // the opening
    QVERIFY(!avant.isEnabled());
    m_souris->Cliquer({0, 25});
    m_souris->Glisser({50, 25}, {80, 65});
    const std::vector<Sequence> deplace = Espace().TableauSequences;
    m_poste->Cliquer<QToolButton>("cmdUndoTS2D_0");
    QCOMPARE(Trace(0).XMin, 0.0F);
    QVERIFY(avant.isEnabled());
    m_poste->Cliquer<QToolButton>("cmdUndoTS2D_0");
    QVERIFY(Espace().TableauSequences.empty());
    QVERIFY(!arriere.isEnabled());
    QTest::mouseClick(&arriere, Qt::LeftButton);
    QCOMPARE(Atelier().Historique().NbTransf, 1.0F);
    m_poste->Cliquer<QToolButton>("cmdUndoTS2D_1");
    m_poste->Cliquer<QToolButton>("cmdUndoTS2D_1");
    QVERIFY(Espace().TableauSequences == deplace);
    QVERIFY(!avant.isEnabled());
}

void EssaiAtelier2D::AnnulerUneOuvertureRetireLesTraces() {
    QVERIFY(m_poste->fenetre->OuvrirFichier(m_poste->Fichier("un.txt", RectangleTexte)));
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{3});
    m_poste->Cliquer<QToolButton>("cmdUndoTS2D_0");
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{2});
}

void EssaiAtelier2D::AnnulerLeBloc() {
    m_poste->Saisir("txtBloc_0", QStringLiteral("300\r"));
    QCOMPARE(Espace().bloc.BlocX, 300.0F);
    m_poste->Cliquer<QToolButton>("cmdUndoTS2D_0");
    QCOMPARE(Espace().bloc.BlocX, 770.0F);
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtBloc_0").text(), QStringLiteral("770"));
    QCOMPARE(m_poste->Trouver<QLabel>("lblDimensionsBloc").text(), QStringLiteral("770.0 mm x 390.0 mm"));
}

void EssaiAtelier2D::UneRegleSansEffetNEstPasUnPas() {
    m_poste->Cliquer<QCheckBox>("chkCentrer_1");
    const float position = Atelier().Historique().NbTransf;
    m_poste->Cliquer<QCheckBox>("chkCentrer_1"); // off again: nothing moves
    QCOMPARE(Atelier().Historique().NbTransf, position);
    m_poste->Cliquer<QToolButton>("cmdUndoTS2D_0");
    QCOMPARE(Trace(0).XMin, 0.0F);
}

void EssaiAtelier2D::InsererUnPoint() {
    m_poste->Cliquer<QToolButton>("cmdInsererPoint");
    QVERIFY(m_poste->Trouver<QWidget>("pctAjoutPoint").isVisible());
    m_souris->Aller({50, 0.4});
    QVERIFY(m_poste->Trouver<QLabel>("lblAjoutPoint")
                .text()
                .startsWith(QStringLiteral("Insertion d'un point en X")));
    QVERIFY(Etat().startsWith(QStringLiteral("Clic : insérer un point en X")));
    m_souris->Cliquer({50, 0.4});
    QCOMPARE(Trace(0).Points.size(), std::size_t{6});
    QVERIFY(std::abs(Trace(0).Points[1].X - 50) < Tolerance);
    QCOMPARE(Trace(0).Points[1].Y, 0.0);
    m_poste->Cliquer<QToolButton>("cmdUndoTS2D_0");
    QCOMPARE(Trace(0).Points.size(), std::size_t{5});
    QTest::keyClick(&Toile(), Qt::Key_Escape);
    QVERIFY(!m_poste->Trouver<QWidget>("pctAjoutPoint").isVisible());
    QVERIFY(m_poste->Trouver<QToolButton>("cmdSelection").isChecked());
}

void EssaiAtelier2D::InsererHorsDUnSegmentNeFaitRien() {
    m_poste->Cliquer<QToolButton>("cmdInsererPoint");
    const float position = Atelier().Historique().NbTransf;
    m_souris->Cliquer({400, 300});
    m_souris->Cliquer({0, 0}); // on a vertex
    QCOMPARE(Trace(0).Points.size(), std::size_t{5});
    QCOMPARE(Atelier().Historique().NbTransf, position);
    QCOMPARE(m_poste->NombreBoites(), std::size_t{0});
}

void EssaiAtelier2D::CouperUnTrace() {
    m_poste->Cliquer<QToolButton>("cmdCouperTrace");
    m_souris->Aller({100, 50});
    QCOMPARE(Etat(), QStringLiteral("Clic : couper le tracé au point 3 sur 5"));
    m_souris->Cliquer({100, 50});
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{3});
    QCOMPARE(Trace(0).Points.size(), std::size_t{3});
    QCOMPARE(Trace(1).Points.size(), std::size_t{3});
    QCOMPARE(Trace(1).Points[0].X, 100.0);
    QCOMPARE(Trace(1).XMin, 0.0F);
    m_poste->Cliquer<QToolButton>("cmdUndoTS2D_0");
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{2});
}

// The rectangle from (0, 0) to the right; the square's sides likewise.
void EssaiAtelier2D::LeSommetACouperNommeUnCoin() {
    m_poste->Cliquer<QToolButton>("cmdCouperTrace");
    m_souris->Aller({100, 50}); // first end of the level top side, which runs to the left
    QCOMPARE(Atelier().HandleCourant(), std::string("BC"));
    m_souris->Aller({100, 0}); // first end of the upright right side
    QCOMPARE(Atelier().HandleCourant(), std::string("AD"));
    m_souris->Aller({400, 300});
    QVERIFY(Atelier().HandleCourant().empty());
}

void EssaiAtelier2D::LeSurvolNeRedessineQueCeQuiChange() {
    const auto points = [this] { return Toile().Montre(Canevas::CoucheOutil).Liste().points.data(); };
    m_souris->Aller({20, 0});
    const PointDessin* montres = points();
    QVERIFY(montres != nullptr);
    m_souris->Aller({40, 0});
    m_souris->Aller({60, 0});
    QCOMPARE(points(), montres);
    m_souris->Aller({210, 10}); // another path
    const Dessin& carre = Toile().Montre(Canevas::CoucheOutil).Liste();
    QCOMPARE(carre.points.at(carre.traits.at(0).premier).X, 200.0);
    m_souris->Aller({400, 300});
    QVERIFY(Toile().Montre(Canevas::CoucheOutil).Liste().traits.empty());
    m_souris->Aller({20, 0});
    QCOMPARE(Toile().Montre(Canevas::CoucheOutil).Liste().points.at(1).X, 100.0);
}

void EssaiAtelier2D::CouperAuBoutEstRefuse() {
    m_poste->Cliquer<QToolButton>("cmdCouperTrace");
    const std::vector<Sequence> avant = Espace().TableauSequences;
    m_souris->Cliquer({0, 0}); // first and last vertex of a closed path
    QCOMPARE(m_poste->NombreBoites(), std::size_t{1});
    QCOMPARE(
        m_poste->DerniereBoite().texte,
        std::string("Vous avez coupé sur le premier point d'un profil, impossible de couper à cet endroit."));
    QCOMPARE(m_poste->DerniereBoite().titre, std::string("Opération impossible"));
    QVERIFY(Espace().TableauSequences == avant);
    QVERIFY(!m_poste->Trouver<QToolButton>("cmdUndoTS2D_1").isEnabled());
}

void EssaiAtelier2D::LesOutilsSontEteintsPendantLaDecoupe() {
    m_souris->Cliquer({0, 25});
    const std::vector<Sequence> avant = Espace().TableauSequences;
    m_poste->Cliquer<QPushButton>("cmdDecouper");
    QVERIFY(m_poste->fenetre->DecoupeOuverte());
    for (const auto& [touche, avec] : {std::pair{Qt::Key_A, Qt::ControlModifier},
                                       {Qt::Key_Z, Qt::ControlModifier},
                                       {Qt::Key_D, Qt::ControlModifier}}) {
        QTest::keyClick(m_poste->fenetre.get(), touche, avec);
    }
    QTest::keyClick(&m_poste->Trouver<Canevas>("pctDecoupe"), Qt::Key_Delete);
    QTest::keyClick(m_poste->fenetre.get(), Qt::Key_Delete);
    QVERIFY(Espace().TableauSequences == avant);
    QVERIFY(m_poste->fenetre->DecoupeOuverte());
    m_poste->Cliquer<QPushButton>("cmdAnnulerDecoupe");
    m_souris->Glisser({50, 25}, {60, 25});
    QVERIFY(std::abs(Trace(0).XMin - 10) < Tolerance);
}

void EssaiAtelier2D::LApercuSeRetourneAvantDEtreOuvert() {
    // An angle: (0, 0), (10, 0), (10, 30).
    const std::string chemin = m_poste->Fichier("angle.txt", "Angle\r\n0.0:0.0\r\n10.0:0.0\r\n10.0:30.0\r\n");
    emit m_poste->Trouver<PanneauBibliotheque>("frameBibliotheque")
        .FichierRegarde(QByteArray::fromStdString(chemin));
    QVERIFY(m_poste->Trouver<QWidget>("bandeauApercu").isVisible());
    const std::size_t fleches = Toile().Montre(Canevas::CoucheTrace).Liste().marques.size();
    m_poste->Cliquer<QToolButton>("cmdAfficherSensSequ");
    QVERIFY(Toile().Montre(Canevas::CoucheTrace).Liste().marques.size() > fleches);
    m_poste->Cliquer<QToolButton>("cmdMiroirFichierSource");
    m_poste->Cliquer<QToolButton>("cmdInverserSensSequ");
    // Nothing of the project moves, and the hand is off.
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{2});
    m_souris->Cliquer({0, 25}); // where a path of the project would be
    QCOMPARE(Choisis(), std::string("00"));
    m_poste->Cliquer<QToolButton>("cmdOuvrirApercu");
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{3});
    const std::vector<PointProfil>& p = Trace(2).Points;
    QCOMPARE(p.size(), std::size_t{3});
    QCOMPARE(p[0].X, 0.0); // (10, 30) mirrored, now first
    QCOMPARE(p[0].Y, 30.0);
    QCOMPARE(p[2].X, 10.0);
}

// The file does not hold what was turned over in the preview: closing must ask.
void EssaiAtelier2D::UnProjetRetourneDansLApercuEstModifie() {
    const std::string chemin = m_poste->dossier.Fichier("garde.tsr");
    m_poste->reponsesFichier = {chemin};
    m_poste->Cliquer<QToolButton>("cmdSauverTS2D");
    QVERIFY(!Espace().modifie);
    auto& bibliotheque = m_poste->Trouver<PanneauBibliotheque>("frameBibliotheque");
    for (const bool retourner : {false, true}) {
        emit bibliotheque.FichierRegarde(QByteArray::fromStdString(chemin));
        if (retourner) m_poste->Cliquer<QToolButton>("cmdMiroirFichierSource");
        m_poste->Cliquer<QToolButton>("cmdOuvrirApercu");
        QCOMPARE(Espace().TableauSequences.size(), std::size_t{2});
        QCOMPARE(Espace().modifie, retourner);
        QCOMPARE(Trace(1).XMin, retourner ? 0.0F : 200.0F); // about the middle of both, at 110
        QVERIFY(!PeutAnnuler(Atelier().Historique()));      // another project, another history
    }
}

void EssaiAtelier2D::LesAscenseursSuiventLaVue() {
    auto& barre = m_poste->Trouver<QAbstractSlider>("hscSequTS2D");
    m_poste->Cliquer<QToolButton>("cmdZoomPlus");
    m_poste->Cliquer<QToolButton>("cmdZoomPlus");
    QVERIFY(barre.maximum() > 0);
    const double gauche = Toile().Vue().xGauche;
    barre.setValue(barre.value() + 50);
    QVERIFY(std::abs(Toile().Vue().xGauche - gauche - 50 / Toile().Vue().echelle) <
            0.51 / Toile().Vue().echelle);
    auto& haut = m_poste->Trouver<QAbstractSlider>("vscSequTS2D");
    const double bas = Toile().Vue().yBas;
    haut.setValue(haut.value() + 40);
    QVERIFY(Toile().Vue().yBas > bas);
    m_poste->Cliquer<QToolButton>("cmdZoomTout");
    QVERIFY(std::abs(Toile().Vue().xGauche - gauche) > 1);
}

void EssaiAtelier2D::LaLargeurDeLaBibliothequeRevient() {
    EcrireIni("Parametres", "LargeurBibliotheque", "333");
    m_poste->OuvrirFenetre();
    QCOMPARE(m_poste->Trouver<QWidget>("frameBibliotheque").width(), 333);
    m_poste->Cliquer<QToolButton>("cmdBibliotheque");
    m_poste->fenetre->close();
    QCOMPARE(LireIni("Parametres", "BibliothequeVisible", ""), std::string("0"));
    QCOMPARE(LireIni("Parametres", "LargeurBibliotheque", ""), std::string("333"));
    m_poste->OuvrirFenetre();
    QVERIFY(!m_poste->Trouver<QWidget>("frameBibliotheque").isVisible());
}

QTEST_MAIN(EssaiAtelier2D)
#include "essai_atelier2d.moc"
