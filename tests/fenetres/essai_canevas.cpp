// The canvas as a person uses it: wheel, drags, keys, and what stays on the screen.
#include "fenetres/souris.h"
#include "ui/canevas.h"

#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

using namespace tessarel;

Q_DECLARE_METATYPE(tessarel::CadreDessin)

namespace {

void Molette(QWidget& fenetre, QPointF ou, int unites) {
    QWheelEvent evenement(ou, fenetre.mapToGlobal(ou), {}, {0, unites}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
    QApplication::sendEvent(&fenetre, &evenement);
}

void Glisser(QWidget& fenetre, Qt::MouseButton bouton, QPoint de, QPoint vers,
             Qt::KeyboardModifiers touches = Qt::NoModifier) {
    QTest::mousePress(&fenetre, bouton, touches, de);
    for (const QPoint ou : {de + (vers - de) / 2, vers}) {
        QMouseEvent evenement(QEvent::MouseMove, ou, fenetre.mapToGlobal(ou), Qt::NoButton, bouton, touches);
        QApplication::sendEvent(&fenetre, &evenement);
    }
    QTest::mouseRelease(&fenetre, bouton, touches, vers);
}

bool Proche(PointDessin a, PointDessin b) {
    return std::abs(a.X - b.X) < 1e-6 && std::abs(a.Y - b.Y) < 1e-6;
}

bool Proche(QPointF a, QPointF b) {
    return (a - b).manhattanLength() < 1e-6;
}

} // namespace

class EssaiCanevas : public QObject {
    Q_OBJECT
private slots:
    void init() {
        m_canevas = std::make_unique<Canevas>();
        m_canevas->resize(640, 480);
        m_canevas->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_canevas.get()));
        m_canevas->FixerCadreComplet({0, 1000, 0, 500});
    }
    void cleanup() { m_canevas.reset(); }

    void LePremierCadreSeMontreEntier() {
        const QRectF zone = m_canevas->ZoneDessin();
        QVERIFY(zone.contains(m_canevas->EnPixels({0, 0})));
        QVERIFY(zone.contains(m_canevas->EnPixels({1000, 500})));
        // Its middle is the middle of the drawing area.
        QVERIFY(Proche(m_canevas->EnPixels({500, 250}), zone.center()));
        // The origin is below.
        QVERIFY(m_canevas->EnPixels({0, 0}).y() > m_canevas->EnPixels({0, 500}).y());
    }

    void LaMoletteZoomeAutourDuPointeur() {
        const QPointF ou(200, 120);
        const PointDessin avant = m_canevas->EnMm(ou);
        const double echelle = m_canevas->Vue().echelle;
        Molette(*m_canevas, ou, 240);
        QVERIFY(Proche(m_canevas->EnMm(ou), avant));
        QCOMPARE(m_canevas->Vue().echelle, echelle * 1.25 * 1.25);
        Molette(*m_canevas, ou, -240);
        QVERIFY(Proche(m_canevas->EnMm(ou), avant));
        QVERIFY(std::abs(m_canevas->Vue().echelle - echelle) < 1e-12);
    }

    void LaMoletteNeSortPasDesLimites() {
        for (int i = 0; i < 300; ++i) Molette(*m_canevas, QPointF(300, 200), 1200);
        const double maxi = m_canevas->Vue().echelle;
        QVERIFY(std::isfinite(maxi) && maxi <= 20000);
        for (int i = 0; i < 300; ++i) Molette(*m_canevas, QPointF(300, 200), -1200);
        QVERIFY(m_canevas->Vue().echelle > 0);
    }

    void LeBoutonDuMilieuDeplaceLaVue() {
        const PointDessin saisi = m_canevas->EnMm(QPointF(300, 200));
        Glisser(*m_canevas, Qt::MiddleButton, {300, 200}, {350, 170});
        QVERIFY(Proche(m_canevas->EnMm(QPointF(350, 170)), saisi));
    }

    void MajEtLeBoutonGaucheAussi() {
        QSignalSpy rectangles(m_canevas.get(), &Canevas::RectangleTrace);
        const PointDessin saisi = m_canevas->EnMm(QPointF(300, 200));
        Glisser(*m_canevas, Qt::LeftButton, {300, 200}, {260, 240}, Qt::ShiftModifier);
        QVERIFY(Proche(m_canevas->EnMm(QPointF(260, 240)), saisi));
        QCOMPARE(rectangles.count(), 0);
    }

    void LeBoutonGaucheTraceUnRectangle() {
        QSignalSpy rectangles(m_canevas.get(), &Canevas::RectangleTrace);
        QSignalSpy clics(m_canevas.get(), &Canevas::Clique);
        const VueDessin vue = m_canevas->Vue();
        Glisser(*m_canevas, Qt::LeftButton, {400, 300}, {200, 100});
        QCOMPARE(rectangles.count(), 1);
        const auto cadre = rectangles.at(0).at(0).value<CadreDessin>();
        const PointDessin bd = m_canevas->EnMm(QPointF(400, 300));
        const PointDessin hg = m_canevas->EnMm(QPointF(200, 100));
        QCOMPARE(cadre.XMin, hg.X);
        QCOMPARE(cadre.XMax, bd.X);
        QCOMPARE(cadre.YMin, bd.Y);
        QCOMPARE(cadre.YMax, hg.Y);
        QCOMPARE(clics.count(), 0);
        QVERIFY(m_canevas->Vue() == vue);
    }

    void UnClicDitOu() {
        QSignalSpy clics(m_canevas.get(), &Canevas::Clique);
        QTest::mouseClick(m_canevas.get(), Qt::LeftButton, Qt::ControlModifier, {210, 220});
        QCOMPARE(clics.count(), 1);
        const PointDessin p = m_canevas->EnMm(QPointF(210, 220));
        QCOMPARE(clics.at(0).at(0).toDouble(), p.X);
        QCOMPARE(clics.at(0).at(1).toDouble(), p.Y);
        QCOMPARE(clics.at(0).at(2).value<Qt::KeyboardModifiers>(),
                 Qt::KeyboardModifiers(Qt::ControlModifier));
    }

    void LeBoutonDroitZoomeSurUnRectangle() {
        const PointDessin milieu = m_canevas->EnMm(QPointF(250, 200));
        const double echelle = m_canevas->Vue().echelle;
        Glisser(*m_canevas, Qt::RightButton, {200, 150}, {300, 250});
        QVERIFY(m_canevas->Vue().echelle > 3 * echelle);
        QVERIFY(Proche(m_canevas->EnMm(m_canevas->ZoneDessin().center()), milieu));
    }

    void LesTouchesZoomentEtDeplacent() {
        const VueDessin depart = m_canevas->Vue();
        QTest::keyClick(m_canevas.get(), Qt::Key_Plus);
        QCOMPARE(m_canevas->Vue().echelle, depart.echelle * 1.25);
        QTest::keyClick(m_canevas.get(), Qt::Key_Minus);
        QCOMPARE(m_canevas->Vue().echelle, depart.echelle);
        QTest::keyClick(m_canevas.get(), Qt::Key_Right);
        QVERIFY(m_canevas->Vue().xGauche > depart.xGauche);
        QTest::keyClick(m_canevas.get(), Qt::Key_Up);
        QVERIFY(m_canevas->Vue().yBas > depart.yBas);
        QTest::keyClick(m_canevas.get(), Qt::Key_0);
        QVERIFY(m_canevas->Vue() == depart);
    }

    void UnClicDuMilieuMontreTout() {
        const VueDessin depart = m_canevas->Vue();
        m_canevas->Zoomer(5);
        QTest::mouseClick(m_canevas.get(), Qt::MiddleButton, Qt::NoModifier, {333, 222});
        QVERIFY(m_canevas->Vue() == depart);
    }

    void UnGesteSansBoutonEstAbandonne() {
        for (const Qt::MouseButton bouton : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton}) {
            essais::Souris souris(*m_canevas);
            souris.Appuyer({300, 200}, Qt::NoModifier, bouton);
            souris.Aller({400, 260});
            QVERIFY(m_canevas->GesteEnCours());
            const VueDessin vue = m_canevas->Vue();
            essais::Souris(*m_canevas).Aller({500, 300}); // its release went elsewhere
            QVERIFY(!m_canevas->GesteEnCours());
            QVERIFY(m_canevas->Vue() == vue);
        }
    }

    void UnGesteFinitParSonBoutonSeulement() {
        essais::Souris souris(*m_canevas);
        souris.Appuyer({300, 200}, Qt::NoModifier, Qt::RightButton);
        souris.Aller({400, 260});
        souris.Appuyer({420, 270});
        souris.Relacher();
        QVERIFY(m_canevas->GesteEnCours());
        const double echelle = m_canevas->Vue().echelle;
        souris.Relacher(Qt::NoModifier, Qt::RightButton);
        QVERIFY(!m_canevas->GesteEnCours());
        QVERIFY(m_canevas->Vue().echelle > echelle);
    }

    void CacheLaToileAbandonneSonGeste() {
        essais::Souris souris(*m_canevas);
        souris.Appuyer({300, 200});
        souris.Aller({400, 260});
        m_canevas->hide();
        QVERIFY(!m_canevas->GesteEnCours());
    }

    void LaMoletteEnPleinCadreGardeSonCoin() {
        QSignalSpy traces(m_canevas.get(), &Canevas::RectangleTrace);
        essais::Souris souris(*m_canevas);
        souris.Appuyer({300, 200});
        souris.Aller({400, 260});
        const QPointF ou = m_canevas->EnPixels({400, 260});
        QWheelEvent cran(ou, m_canevas->mapToGlobal(ou), {}, {0, 120}, Qt::LeftButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_canevas.get(), &cran);
        souris.Aller({450, 300});
        souris.Relacher();
        QCOMPARE(traces.size(), 1);
        const auto cadre = traces[0][0].value<CadreDessin>();
        QVERIFY(std::abs(cadre.XMin - 300) < 1e-6 && std::abs(cadre.YMin - 200) < 1e-6);
        QVERIFY(std::abs(cadre.XMax - 450) < 1e-6 && std::abs(cadre.YMax - 300) < 1e-6);
    }

    void LesNombresDesReglesNeSontPasCoupesParLeBord() {
        // The last column of the bottom ruler is bare, or one graduation from top to bottom: never a part
        // of a number, whatever the view.
        for (int pas = 0; pas < 60; ++pas) {
            m_canevas->Deplacer(1, 0);
            const QImage image = m_canevas->grab().toImage();
            const int droite = image.width() - 1;
            const int haut = static_cast<int>(m_canevas->ZoneDessin().bottom()) + 6; // below the short ones
            for (int y = haut; y < image.height() - 1; ++y)
                QCOMPARE(image.pixel(droite, y), image.pixel(droite, haut));
        }
    }

    void LePointeurEstDitEnMm() {
        QSignalSpy places(m_canevas.get(), &Canevas::PointeurDeplace);
        QMouseEvent evenement(QEvent::MouseMove, QPointF(100, 90), m_canevas->mapToGlobal(QPointF(100, 90)),
                              Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(m_canevas.get(), &evenement);
        QCOMPARE(places.count(), 1);
        QCOMPARE(places.at(0).at(0).toDouble(), m_canevas->EnMm(QPointF(100, 90)).X);
        QCOMPARE(places.at(0).at(1).toDouble(), m_canevas->EnMm(QPointF(100, 90)).Y);
    }

    void AgrandirGardeLeCadreEntierPuisLeMilieuChoisi() {
        m_canevas->resize(900, 700);
        QVERIFY(m_canevas->ZoneDessin().contains(m_canevas->EnPixels({1000, 500})));
        QVERIFY(Proche(m_canevas->EnPixels({500, 250}), m_canevas->ZoneDessin().center()));
        m_canevas->Zoomer(4);
        const PointDessin milieu = m_canevas->EnMm(m_canevas->ZoneDessin().center());
        const double echelle = m_canevas->Vue().echelle;
        m_canevas->resize(500, 400);
        QVERIFY(Proche(m_canevas->EnMm(m_canevas->ZoneDessin().center()), milieu));
        QCOMPARE(m_canevas->Vue().echelle, echelle);
    }

    void UneCoucheSePeintLaOuElleEst() {
        Dessin dessin;
        dessin.points = {{200, 100}, {800, 100}, {800, 400}, {200, 400}};
        TraitDessin surface;
        surface.nombre = 4;
        surface.genre = GenreTrait::Surface;
        surface.couleur = {0, 128, 0, 255};
        dessin.traits.push_back(surface);
        m_canevas->Montrer(Canevas::CoucheTrace, std::move(dessin));
        const QImage image = m_canevas->grab().toImage();
        QCOMPARE(image.pixelColor(m_canevas->EnPixels({500, 250}).toPoint()), QColor(0, 128, 0));
        QCOMPARE(image.pixelColor(m_canevas->EnPixels({100, 250}).toPoint()),
                 m_canevas->palette().color(QPalette::Base));
    }

    void UnChangementDeFondEstDit() {
        QSignalSpy fonds(m_canevas.get(), &Canevas::FondChange);
        QPalette palette = m_canevas->palette();
        palette.setColor(QPalette::Base, m_canevas->FondSombre() ? Qt::white : Qt::black);
        m_canevas->setPalette(palette);
        QCOMPARE(fonds.count(), 1);
    }

private:
    std::unique_ptr<Canevas> m_canevas;
};

QTEST_MAIN(EssaiCanevas)
#include "essai_canevas.moc"
