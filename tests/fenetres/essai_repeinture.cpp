// What the canvas paints again: no more than what has moved, and after any number of such pieces the same
// picture as painted whole. And the wire of a cut on it, to the pixel.
#include "platform/images/emprise_qt.h"
#include "ui/canevas.h"
#include "work2d/dessin_outils.h"
#include "work2d/ui/trace_course.h"

#include <QPaintEvent>
#include <QScreen>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <memory>
#include <random>

using namespace tessarel;

namespace {

constexpr QRgb Jaune = qRgb(255, 255, 0);

// Gathers what a widget is asked to paint.
class Guetteur : public QObject {
public:
    explicit Guetteur(QWidget& widget) { widget.installEventFilter(this); }
    QRegion peint;

protected:
    bool eventFilter(QObject*, QEvent* evenement) override {
        if (evenement->type() == QEvent::Paint) peint += static_cast<QPaintEvent*>(evenement)->region();
        return false;
    }
};

Dessin Ligne(const std::vector<PointDessin>& points, Couleur couleur, float epaisseur, bool tirets = false) {
    Dessin dessin;
    dessin.points = points;
    TraitDessin trait;
    trait.nombre = static_cast<std::uint32_t>(points.size());
    trait.couleur = couleur;
    trait.epaisseur = epaisseur;
    trait.tirets = tirets;
    dessin.traits.push_back(trait);
    return dessin;
}

std::vector<PointDessin> Gribouillis(std::mt19937& hasard, std::size_t nombre, double pas) {
    std::normal_distribution<double> ecart(0, pas);
    std::vector<PointDessin> points = {{500, 250}};
    while (points.size() < nombre)
        points.push_back({std::clamp(points.back().X + ecart(hasard), 0.0, 1000.0),
                          std::clamp(points.back().Y + ecart(hasard), 0.0, 500.0)});
    return points;
}

// Pixels that two pictures show clearly different. Where a line is cut in two its smoothed edge may differ by
// a shade.
int Differents(const QImage& a, const QImage& b) {
    constexpr int nuance = 48;
    int differents = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            const int ecart = std::max({std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)),
                                        std::abs(qBlue(p) - qBlue(q))});
            if (ecart > nuance) ++differents;
        }
    }
    return differents;
}

} // namespace

class EssaiRepeinture : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_canevas.reset(); }

    void SeulCeQuiABougeSeRepeint();
    void UneLigneEnTraversNeVautPasSonRectangle();
    void CeQuiGranditNeRepeintQueLeNeuf();
    void LesReglesNeSeRepeignentPasAvecLeDessin();
    void UnIndexProlongeEstCeluiDUnTout();
    void ParMorceauxCEstLaMemeImage_data();
    void ParMorceauxCEstLaMemeImage();
    void LeSegmentEnCoursEstJauneDEpaisseur2();
    void LeSegmentPrecedentRevientALEpaisseur1();
    void UnPasDeCourseNeRepeintQueSesAlentours();

private:
    // As the screen shows it: the pieces that were painted one after another.
    [[nodiscard]] QImage AEcran() const {
        return m_canevas->screen()
            ->grabWindow(m_canevas->winId())
            .toImage()
            .convertToFormat(QImage::Format_RGB32);
    }
    [[nodiscard]] QImage PeintEntier() const {
        return m_canevas->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    // Two paintings of everything: the second one makes the picture of the layers that stay.
    void Stabiliser() const {
        for (int i = 0; i < 2; ++i) m_canevas->repaint();
        QApplication::processEvents();
    }
    std::unique_ptr<Canevas> m_canevas;
};

void EssaiRepeinture::init() {
    m_canevas = std::make_unique<Canevas>();
    m_canevas->resize(640, 480);
    m_canevas->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_canevas.get()));
    m_canevas->FixerCadreComplet({0, 1000, 0, 500});
    Stabiliser();
}

void EssaiRepeinture::SeulCeQuiABougeSeRepeint() {
    Guetteur guetteur(*m_canevas);
    m_canevas->Montrer(Canevas::CoucheOutil, Ligne({{100, 100}, {140, 100}}, {255, 0, 0}, 2));
    QApplication::processEvents();
    const QPoint ici = m_canevas->EnPixels({120, 100}).toPoint();
    QVERIFY(guetteur.peint.contains(ici));
    QVERIFY(guetteur.peint.boundingRect().width() < 50 && guetteur.peint.boundingRect().height() < 20);
    // Moved: where it was and where it is.
    guetteur.peint = {};
    m_canevas->Montrer(Canevas::CoucheOutil, Ligne({{800, 400}, {840, 400}}, {255, 0, 0}, 2));
    QApplication::processEvents();
    QVERIFY(guetteur.peint.contains(ici));
    QVERIFY(guetteur.peint.contains(m_canevas->EnPixels({820, 400}).toPoint()));
    QVERIFY(!guetteur.peint.contains(m_canevas->EnPixels({450, 250}).toPoint()));
    guetteur.peint = {};
    m_canevas->Montrer(Canevas::CoucheOutil, {});
    QApplication::processEvents();
    QVERIFY(!guetteur.peint.contains(ici));
    QVERIFY(guetteur.peint.contains(m_canevas->EnPixels({820, 400}).toPoint()));
}

void EssaiRepeinture::UneLigneEnTraversNeVautPasSonRectangle() {
    Guetteur guetteur(*m_canevas);
    m_canevas->Montrer(Canevas::CoucheOutil, Ligne({{0, 0}, {1000, 500}}, {255, 0, 0}, 1));
    QApplication::processEvents();
    double surface = 0;
    for (const QRect& r : guetteur.peint) surface += double(r.width()) * r.height();
    const QRect autour = guetteur.peint.boundingRect();
    QVERIFY(autour.width() > 500 && autour.height() > 250);
    QVERIFY2(surface < 0.3 * autour.width() * autour.height(), qPrintable(QString::number(surface)));
    for (int i = 0; i <= 1000; ++i)
        QVERIFY(guetteur.peint.contains(m_canevas->EnPixels({i * 1.0, i * 0.5}).toPoint()));
}

void EssaiRepeinture::CeQuiGranditNeRepeintQueLeNeuf() {
    std::mt19937 hasard(5);
    m_canevas->Montrer(Canevas::CoucheSelection, Ligne(Gribouillis(hasard, 20000, 20), {0, 0, 255}, 1));
    const std::vector<PointDessin> debut = {{500, 250}};
    m_canevas->Prolonger(Canevas::CoucheSelection, debut); // from here on it is in the picture that stays
    QApplication::processEvents();
    Stabiliser();
    Guetteur guetteur(*m_canevas);
    const std::vector<PointDessin> neufs = {{505, 250}, {505, 260}};
    m_canevas->Prolonger(Canevas::CoucheSelection, neufs);
    QApplication::processEvents();
    QVERIFY(guetteur.peint.contains(m_canevas->EnPixels({505, 255}).toPoint()));
    QVERIFY(guetteur.peint.boundingRect().width() < 20 && guetteur.peint.boundingRect().height() < 20);
    QCOMPARE(Differents(AEcran(), PeintEntier()), 0);
}

void EssaiRepeinture::LesReglesNeSeRepeignentPasAvecLeDessin() {
    Guetteur guetteur(*m_canevas);
    m_canevas->Montrer(Canevas::CoucheOutil, Ligne({{-1e6, 250}, {1e6, 250}}, {255, 0, 0}, 1));
    QApplication::processEvents();
    const QRect zone = m_canevas->ZoneDessin().toAlignedRect();
    QVERIFY(!guetteur.peint.isEmpty());
    QVERIFY(zone.contains(guetteur.peint.boundingRect()));
}

void EssaiRepeinture::UnIndexProlongeEstCeluiDUnTout() {
    std::mt19937 hasard(11);
    const std::vector<PointDessin> points = Gribouillis(hasard, 200, 30);
    const DessinPrepare entier(Ligne(points, {0, 0, 255}, 1));
    for (const std::size_t debut : {0U, 1U, 2U, 32U, 33U, 34U, 65U, 199U}) {
        for (const std::size_t pas : {1U, 7U, 32U, 500U}) {
            DessinPrepare prepare(
                Ligne({points.begin(), points.begin() + std::ptrdiff_t(debut)}, {0, 0, 255}, 1));
            for (std::size_t i = debut; i < points.size(); i += pas)
                prepare.Prolonger(std::span(points).subspan(i, std::min(pas, points.size() - i)));
            QCOMPARE(prepare.Liste().points.size(), points.size());
            QCOMPARE(prepare.Liste().traits[0].nombre, std::uint32_t(points.size()));
            QCOMPARE(prepare.Boites().size(), entier.Boites().size());
            const auto egales = [](const CadreDessin& a, const CadreDessin& b) {
                return a.XMin == b.XMin && a.XMax == b.XMax && a.YMin == b.YMin && a.YMax == b.YMax;
            };
            for (std::size_t i = 0; i < entier.Boites().size(); ++i)
                QVERIFY(egales(prepare.Boites()[i], entier.Boites()[i]));
            QVERIFY(egales(prepare.Traits()[0].boite, entier.Traits()[0].boite));
            QVERIFY(egales(prepare.Cadre(), entier.Cadre()));
        }
    }
    DessinPrepare prepare(Ligne({{1, 1}}, {0, 0, 255}, 1));
    const std::vector<PointDessin> sansNombre = {{std::nan(""), 0}, {2, 3}};
    prepare.Prolonger(sansNombre);
    QCOMPARE(prepare.Liste().traits[0].nombre, 2U);
    DessinPrepare().Prolonger(sansNombre); // there is nothing to lengthen
}

void EssaiRepeinture::ParMorceauxCEstLaMemeImage_data() {
    QTest::addColumn<int>("graine");
    QTest::addColumn<double>("pas");
    QTest::addColumn<double>("zoom");
    QTest::addRow("short segments") << 1 << 6.0 << 1.0;
    QTest::addRow("long segments") << 2 << 200.0 << 1.0;
    QTest::addRow("close up") << 3 << 30.0 << 9.0;
}
void EssaiRepeinture::ParMorceauxCEstLaMemeImage() {
    QFETCH(int, graine);
    QFETCH(double, pas);
    QFETCH(double, zoom);
    std::mt19937 hasard(static_cast<unsigned>(graine));
    Dessin fond = Ligne(Gribouillis(hasard, 300, 40), {0, 120, 0}, 1, true);
    for (int i = 0; i < 40; ++i) {
        MarqueDessin marque;
        marque.ou = fond.points[static_cast<std::size_t>(i) * 7];
        marque.genre = i % 2 == 0 ? GenreMarque::Point : GenreMarque::Fleche;
        marque.couleur = {200, 0, 200};
        fond.marques.push_back(marque);
    }
    m_canevas->Montrer(Canevas::CoucheTrace, std::move(fond));
    m_canevas->Cadrer({500 - 490 / zoom, 500 + 490 / zoom, 250 - 240 / zoom, 250 + 240 / zoom});
    Stabiliser();
    const std::vector<PointDessin> points = Gribouillis(hasard, 400, pas);
    m_canevas->Montrer(Canevas::CoucheSelection, Ligne({points[0]}, {232, 89, 12}, 1));
    std::uniform_int_distribution<int> combien(0, 3);
    for (std::size_t i = 1; i < points.size();) {
        const auto n = std::min(static_cast<std::size_t>(combien(hasard)), points.size() - i);
        m_canevas->Prolonger(Canevas::CoucheSelection, std::span(points).subspan(i, n));
        i += n;
        Dessin fil;
        DessinerSegmentEnCours(fil, points[i - 1], points[std::min(i, points.size() - 1)]);
        m_canevas->Montrer(Canevas::CoucheOutil, std::move(fil));
        if (combien(hasard) > 0) QApplication::processEvents();
    }
    QApplication::processEvents();
    const QImage parMorceaux = AEcran();
    const QImage entiere = PeintEntier();
    QCOMPARE(parMorceaux.size(), entiere.size());
    QVERIFY2(Differents(parMorceaux, entiere) <= 4,
             qPrintable(QString::number(Differents(parMorceaux, entiere))));
    // The picture that stays is made anew for another view, with all that has grown.
    m_canevas->Zoomer(1.5);
    m_canevas->Zoomer(1 / 1.5);
    QApplication::processEvents();
    Stabiliser();
    QVERIFY(Differents(AEcran(), entiere) <= 20);
}

namespace {

// Level with the middle of a row of pixels, so that a line of two is smoothed on both its edges alike.
struct Course {
    explicit Course(Canevas& canevas) : trace(canevas) {
        for (int i = 0; i < 5; ++i) {
            PointProfil p;
            p.X = 200.0 + 150 * i;
            p.Y = 250;
            sequence.Points.push_back(p);
        }
        trace.Commencer(sequence, GenreDecoupe::Decoupe, false);
    }
    // Into frame `k`, which goes to vertex `k`, `fraction` done.
    void Avancer(std::int32_t k, double fraction) {
        temps += std::chrono::milliseconds(100);
        AvanceeDecoupe avancee;
        avancee.phase = PhaseDecoupe::Decoupe;
        avancee.NumSalveCourante = k;
        avancee.sommets = 5;
        avancee.fraction = fraction;
        avancee.XDebut = 200.0 + 150 * (k - 2);
        avancee.YDebut = avancee.Y1 = 250;
        avancee.X1 = avancee.XDebut + 150 * fraction;
        QVERIFY(trace.Avancer(avancee));
        QApplication::processEvents();
    }
    Instant temps{0};
    struct Horloge {
        explicit Horloge(SourceTemps source) : avant(InstallerHorloge(std::move(source))) {}
        ~Horloge() { InstallerHorloge(std::move(avant)); }
        SourceTemps avant;
    } horloge{[this] { return temps; }};
    Sequence sequence;
    TraceCourse trace;
};

// Of the column of pixels at `ici`: how many pixels' worth of `couleur` there is over what lies around it.
double Epaisseur(const QImage& image, QPoint ici, const std::function<double(QRgb)>& part) {
    double somme = 0;
    for (int y = ici.y() - 12; y <= ici.y() + 12; ++y) somme += part(image.pixel(ici.x(), y));
    return somme;
}

} // namespace

void EssaiRepeinture::LeSegmentEnCoursEstJauneDEpaisseur2() {
    Course course(*m_canevas);
    course.Avancer(3, 0.8);
    const QImage image = AEcran();
    const auto jaune = [](QRgb p) {
        return (qRed(p) + qGreen(p)) / 2 - qBlue(p) > 0
                   ? 1.0 * (std::min(qRed(p), qGreen(p)) - qBlue(p)) / 255
                   : 0.0;
    };
    const QPoint fait = m_canevas->EnPixels({400, 250}).toPoint();
    const double epaisseur = Epaisseur(image, fait, jaune);
    QVERIFY2(std::abs(epaisseur - 2) < 0.3, qPrintable(QString::number(epaisseur)));
    bool pur = false;
    for (int y = fait.y() - 3; y <= fait.y() + 3; ++y)
        pur = pur || (image.pixel(fait.x(), y) | 0xff000000) == Jaune;
    QVERIFY(pur);
    // What is still to come of it, and the segment before it, are not yellow.
    QVERIFY(Epaisseur(image, m_canevas->EnPixels({490, 250}).toPoint(), jaune) < 0.1);
    QVERIFY(Epaisseur(image, m_canevas->EnPixels({275, 250}).toPoint(), jaune) < 0.6);
}

void EssaiRepeinture::LeSegmentPrecedentRevientALEpaisseur1() {
    Course course(*m_canevas);
    course.Avancer(3, 0.8);
    course.Avancer(4, 0.5);
    const QImage image = AEcran();
    const QColor fond = m_canevas->palette().color(QPalette::Base);
    // The orange of what is done has next to no blue.
    const auto fait = [&](QRgb p) { return 1.0 * (fond.blue() - qBlue(p)) / (fond.blue() - 12); };
    const double epaisseur = Epaisseur(image, m_canevas->EnPixels({425, 250}).toPoint(), fait);
    QVERIFY2(std::abs(epaisseur - 1) < 0.2, qPrintable(QString::number(epaisseur)));
    QCOMPARE(Differents(image, PeintEntier()), 0);
}

void EssaiRepeinture::UnPasDeCourseNeRepeintQueSesAlentours() {
    Course course(*m_canevas);
    course.Avancer(3, 0.2);
    course.Avancer(4, 0.2);
    Stabiliser();
    Guetteur guetteur(*m_canevas);
    course.Avancer(4, 0.25);
    const QRect peint = guetteur.peint.boundingRect();
    QVERIFY(peint.contains(m_canevas->EnPixels({500 + 0.25 * 150, 250}).toPoint()));
    QVERIFY2(peint.width() < 50 && peint.height() < 40,
             qPrintable(QStringLiteral("%1 x %2").arg(peint.width()).arg(peint.height())));
}

QTEST_MAIN(EssaiRepeinture)
#include "essai_repeinture.moc"
