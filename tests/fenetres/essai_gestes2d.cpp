// The drags of the 2D window: move, scale, turn, with the keys read as they change; and what gives a drag up.
#include "fenetres/poste_atelier.h"

#include <QLabel>
#include <QToolButton>
#include <QWheelEvent>

#include <cmath>

using namespace tessarel;
using essais::PosteAtelier;

class EssaiGestes2D : public QObject, private PosteAtelier {
    Q_OBJECT
private slots:
    void init() { Preparer(); }
    void cleanup() { Ranger(); }

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
    void UnRelachementPerduAbandonneLeGeste();
    void UnAutreBoutonEnPleinGesteNeChangeRien();
    void LeBoutonGauchePendantUnGesteDeLaVueNePrendRien();
    void LaMoletteEnPleinGesteGardeLaPrise();
    void AnnulerEnPleinGesteLAbandonne();
    void OuvrirLaDecoupeEnPleinGesteLAbandonne();
};

void EssaiGestes2D::GlisserDeplaceLaSelectionSeule() {
    const std::vector<PointProfil> carre = Trace(1).Points;
    m_souris->Cliquer({0, 25});
    m_souris->Glisser({50, 25}, {80, 65});
    QVERIFY(std::abs(Trace(0).XMin - 30) < essais::ToleranceMain);
    QVERIFY(std::abs(Trace(0).YMin - 40) < essais::ToleranceMain);
    QCOMPARE(Trace(0).Largeur, 100.0F);
    QVERIFY(Trace(1).Points == carre);
    QVERIFY(Espace().modifie);
    // The box follows the bounds, which were computed.
    QCOMPARE(Atelier().BoiteSelection().XMin, Trace(0).XMin);
}

void EssaiGestes2D::GlisserUnTraceNonChoisiLeChoisitEtLeDeplace() {
    m_souris->Glisser({210, 10}, {210, 60});
    QCOMPARE(Choisis(), std::string("01"));
    QVERIFY(std::abs(Trace(1).YMin - 60) < essais::ToleranceMain);
}

void EssaiGestes2D::ShiftPendantLeDeplacementGardeUnAxe() {
    m_souris->Cliquer({0, 25});
    m_souris->Appuyer({50, 25});
    m_souris->Aller({90, 35}, Qt::ShiftModifier);
    m_souris->Relacher(Qt::ShiftModifier);
    QVERIFY(std::abs(Trace(0).XMin - 40) < essais::ToleranceMain);
    QCOMPARE(Trace(0).YMin, 0.0F);
}

void EssaiGestes2D::UnePoigneeRedimensionne() {
    m_souris->Cliquer({0, 25});
    const PointDessin prise = Poignee("HD");
    m_souris->Aller(prise);
    QCOMPARE(Atelier().HandleCourant(), std::string("HD"));
    m_souris->Glisser(prise, {prise.X + 100, prise.Y + 25});
    QVERIFY(std::abs(Trace(0).Largeur - 200) < essais::ToleranceMain);
    QVERIFY(std::abs(Trace(0).Hauteur - 75) < essais::ToleranceMain);
    QCOMPARE(Trace(0).XMin, 0.0F); // the handle opposite stays
    QCOMPARE(Trace(0).YMin, 0.0F);
}

void EssaiGestes2D::LesTouchesChangentLePointFixeEnRoute() {
    m_souris->Cliquer({0, 25});
    const PointDessin prise = Poignee("MD");
    m_souris->Appuyer(prise, Qt::ControlModifier);
    m_souris->Aller({prise.X + 20, prise.Y}, Qt::ControlModifier);
    // About the middle: 20 mm on either side.
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtMesures_0").text(), QStringLiteral("140.00"));
    m_souris->Aller({prise.X + 20, prise.Y}, Qt::NoModifier);
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtMesures_0").text(), QStringLiteral("120.00"));
    m_souris->Relacher();
    QVERIFY(std::abs(Trace(0).Largeur - 120) < essais::ToleranceMain);
    QCOMPARE(Trace(0).XMin, 0.0F);
}

void EssaiGestes2D::MajGardeLesProportions() {
    m_souris->Cliquer({0, 25});
    const PointDessin prise = Poignee("BG");
    m_souris->Glisser(prise, {prise.X - 50, prise.Y + 1}, Qt::ShiftModifier);
    QVERIFY(std::abs(Trace(0).Largeur - 150) < essais::ToleranceMain);
    QVERIFY(std::abs(Trace(0).Hauteur - 75) < essais::ToleranceMain);
    QCOMPARE(Trace(0).XMax, 100.0F);
    QCOMPARE(Trace(0).YMax, 50.0F);
}

void EssaiGestes2D::LaTailleVivanteSAfficheEtLesPointsNeBougentQuALaFin() {
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

void EssaiGestes2D::EchapRenonceAuGeste() {
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

void EssaiGestes2D::ToutChoisirEnPleinGesteNEmporteRien() {
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

void EssaiGestes2D::UnGesteRevenuASonDepartNEstPasUnPas() {
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
    QVERIFY(std::abs(Trace(0).XMin - 30) < essais::ToleranceMain);
}

void EssaiGestes2D::TournerDepuisLExterieurDuCadre() {
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

void EssaiGestes2D::UnFacteurNulGardeLeDernierBon() {
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

// The release of the button went to another window: a box that came up, say.
void EssaiGestes2D::UnRelachementPerduAbandonneLeGeste() {
    m_souris->Cliquer({0, 25});
    const std::vector<PointProfil> avant = Trace(0).Points;
    m_souris->Appuyer({50, 25});
    m_souris->Aller({150, 125});
    QVERIFY(Atelier().GesteEnCours());
    essais::Souris(Toile()).Aller({160, 125}); // a mouse without a button
    QVERIFY(!Atelier().GesteEnCours());
    QVERIFY(Trace(0).Points == avant);
    QCOMPARE(m_poste->Trouver<QLabel>("lblDimensionSelection").text(),
             QStringLiteral("100.00 mm x 50.00 mm"));
    // A second press without a move between is a new start, not the end of the first drag.
    essais::Souris perdue(Toile());
    perdue.Appuyer({50, 25});
    perdue.Aller({150, 125});
    essais::Souris(Toile()).Cliquer({210, 10});
    QVERIFY(Trace(0).Points == avant);
    QCOMPARE(Choisis(), std::string("01"));
}

void EssaiGestes2D::UnAutreBoutonEnPleinGesteNeChangeRien() {
    m_souris->Cliquer({0, 25});
    const VueDessin vue = Toile().Vue();
    m_souris->Appuyer({50, 25});
    m_souris->Aller({60, 35});
    m_souris->Appuyer({70, 45}, Qt::NoModifier, Qt::RightButton);
    m_souris->Aller({75, 50});
    m_souris->Relacher(Qt::NoModifier, Qt::RightButton);
    QVERIFY(Atelier().GesteEnCours());
    m_souris->Aller({80, 65});
    m_souris->Relacher();
    QVERIFY(std::abs(Trace(0).XMin - 30) < essais::ToleranceMain);
    QVERIFY(std::abs(Trace(0).YMin - 40) < essais::ToleranceMain);
    QVERIFY(Toile().Vue() == vue);
    QVERIFY(!Toile().GesteEnCours());
}

void EssaiGestes2D::LeBoutonGauchePendantUnGesteDeLaVueNePrendRien() {
    m_souris->Cliquer({0, 25});
    const std::vector<PointProfil> avant = Trace(0).Points;
    m_souris->Appuyer({50, 25}, Qt::NoModifier, Qt::MiddleButton);
    m_souris->Aller({60, 35});
    m_souris->Appuyer({60, 35});
    m_souris->Aller({90, 65});
    m_souris->Relacher();
    QVERIFY(!Atelier().GesteEnCours());
    QVERIFY(Toile().GesteEnCours()); // the pan goes on until its own button is let go
    m_souris->Relacher(Qt::NoModifier, Qt::MiddleButton);
    QVERIFY(!Toile().GesteEnCours());
    QVERIFY(Trace(0).Points == avant);
    QCOMPARE(Choisis(), std::string("10"));
}

void EssaiGestes2D::LaMoletteEnPleinGesteGardeLaPrise() {
    m_souris->Cliquer({0, 25});
    m_souris->Appuyer({50, 25});
    m_souris->Aller({80, 65});
    const QPointF ou = Toile().EnPixels({80, 65});
    QWheelEvent cran(ou, Toile().mapToGlobal(ou), {}, {0, 120}, Qt::LeftButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Toile(), &cran);
    m_souris->Aller({90, 65}); // in millimetres of the new view
    m_souris->Relacher();
    QVERIFY(std::abs(Trace(0).XMin - 40) < essais::ToleranceMain);
    QVERIFY(std::abs(Trace(0).YMin - 40) < essais::ToleranceMain);
}

void EssaiGestes2D::AnnulerEnPleinGesteLAbandonne() {
    m_souris->Cliquer({0, 25});
    m_souris->Glisser({50, 25}, {80, 65});
    m_souris->Appuyer({80, 65});
    m_souris->Aller({200, 165});
    m_poste->Trouver<QToolButton>("cmdUndoTS2D_0").click();
    QVERIFY(!Atelier().GesteEnCours());
    m_souris->Aller({220, 165});
    m_souris->Relacher();
    QCOMPARE(Trace(0).XMin, 0.0F); // the move before it is undone, the drag never was
    QVERIFY(PeutRefaire(Atelier().Historique()));
}

void EssaiGestes2D::OuvrirLaDecoupeEnPleinGesteLAbandonne() {
    m_souris->Cliquer({0, 25});
    const std::vector<PointProfil> avant = Trace(0).Points;
    m_souris->Appuyer({50, 25});
    m_souris->Aller({150, 125});
    QTest::keyClick(m_poste->fenetre.get(), Qt::Key_F9);
    QTRY_VERIFY(m_poste->fenetre->DecoupeOuverte());
    QVERIFY(!Atelier().GesteEnCours());
    QTest::keyClick(m_poste->fenetre.get(), Qt::Key_Escape);
    QTRY_VERIFY(!m_poste->fenetre->DecoupeOuverte());
    QVERIFY(Trace(0).Points == avant);
    QCOMPARE(Choisis(), std::string("10"));
}

QTEST_MAIN(EssaiGestes2D)
#include "essai_gestes2d.moc"
