// The colours of the cut as they reach the eye, light and dark: the legend, the path of the wire, what it has
// passed and the segment it cuts now.
#include "fenetres/poste_2d.h"
#include "ui/canevas.h"
#include "ui/theme.h"
#include "work2d/ui/panneau_simulation.h"

#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>

using namespace tessarel;
using essais::Poste2D;
using essais::RectangleTexte;

namespace {

constexpr QRgb Jaune = 0xffffff00;
constexpr QRgb Orange = 0xffe8590c; // (232, 89, 12)

} // namespace

class EssaiCouleursDecoupe2D : public QObject {
    Q_OBJECT
private slots:
    void cleanup() {
        m_poste.reset();
        AppliquerTheme(Theme::Clair);
    }

    void LaLegendeMontreLesTraitsTelsQuIlsSont_data() { Fonds(); }
    void LaLegendeMontreLesTraitsTelsQuIlsSont();
    void LaLegendeSuitLeFond();
    void LeSegmentEnCoursEstJauneEtCeQuiPrecedeOrange_data() { Fonds(); }
    void LeSegmentEnCoursEstJauneEtCeQuiPrecedeOrange();
    void LeTrajetALaCouleurDeSaLegende_data() { Fonds(); }
    void LeTrajetALaCouleurDeSaLegende();

private:
    static void Fonds() {
        QTest::addColumn<bool>("sombre");
        QTest::newRow("clair") << false;
        QTest::newRow("sombre") << true;
    }
    void Preparer(bool sombre, Langue langue = Langue::Francais);
    // The middle of a sample of the legend, at a part of its width.
    [[nodiscard]] QRgb Echantillon(int rang, double part = 0.25) const {
        const QImage image =
            m_poste->Trouver<QLabel>(qPrintable(QStringLiteral("imgLegende_%1").arg(rang))).grab().toImage();
        return image.pixel(static_cast<int>(image.width() * part), image.height() / 2);
    }
    // How many pixels of a square about a place of the cut have a colour.
    [[nodiscard]] int Compter(PointDessin mm, int rayon, QRgb couleur) const {
        auto& toile = m_poste->Trouver<Canevas>("pctDecoupe");
        const QImage image = toile.grab().toImage();
        const QPoint ou = toile.EnPixels(mm).toPoint();
        int n = 0;
        for (int y = -rayon; y <= rayon; ++y)
            for (int x = -rayon; x <= rayon; ++x)
                if (image.rect().contains(ou + QPoint(x, y)))
                    n += image.pixel(ou + QPoint(x, y)) == couleur ? 1 : 0;
        return n;
    }

    std::unique_ptr<Poste2D> m_poste;
};

// The rectangle of 100 x 50, its block about it, its cut opened.
void EssaiCouleursDecoupe2D::Preparer(bool sombre, Langue langue) {
    AppliquerTheme(sombre ? Theme::Sombre : Theme::Clair);
    m_poste = std::make_unique<Poste2D>(langue);
    m_poste->OuvrirFenetre();
    QVERIFY(m_poste->fenetre->OuvrirFichier(m_poste->Fichier("rectangle.txt", RectangleTexte)));
    for (const char* regle : {"chkCentrer_1", "chkCentrer_2"})
        m_poste->Trouver<QAbstractButton>(regle).click();
    m_poste->Cliquer<QPushButton>("cmdDecouper");
    QVERIFY(m_poste->fenetre->DecoupeOuverte());
}

void EssaiCouleursDecoupe2D::LaLegendeMontreLesTraitsTelsQuIlsSont() {
    QFETCH(bool, sombre);
    Preparer(sombre);
    QCOMPARE(Echantillon(0), 0xffff0000U); // (255, 0, 0)
    QCOMPARE(Echantillon(1), sombre ? 0xfff05ca8U : 0xff900052U);
    QCOMPARE(Echantillon(2), 0xff00903dU); // (0, 144, 61)
    QCOMPARE(Echantillon(3), 0xffff0000U); // rapid: half of an entry, half of an exit
    QCOMPARE(Echantillon(3, 0.75), 0xff00903dU);
    QCOMPARE(Echantillon(4), Orange);
    QCOMPARE(Echantillon(5), Jaune);
    const char* mots[] = {"entrée", "découpe", "sortie", "rapide", "déjà coupé", "en cours"};
    for (int i = 0; i < 6; ++i)
        QCOMPARE(m_poste->Trouver<QLabel>(qPrintable(QStringLiteral("lblLegende_%1").arg(i))).text(),
                 QString::fromUtf8(mots[i]));
}

void EssaiCouleursDecoupe2D::LaLegendeSuitLeFond() {
    Preparer(false, Langue::English);
    QCOMPARE(m_poste->Trouver<QLabel>("lblLegende_5").text(), QStringLiteral("under way"));
    QCOMPARE(Echantillon(1), 0xff900052U);
    AppliquerTheme(Theme::Sombre);
    QTRY_COMPARE(Echantillon(1), 0xfff05ca8U);
    AppliquerTheme(Theme::Clair);
    QTRY_COMPARE(Echantillon(1), 0xff900052U);
}

void EssaiCouleursDecoupe2D::LeSegmentEnCoursEstJauneEtCeQuiPrecedeOrange() {
    QFETCH(bool, sombre);
    Preparer(sombre);
    m_poste->Cliquer<QToolButton>("cmdSimulation");
    m_poste->Cliquer<QToolButton>("cmdSimulation"); // paused
    const PanneauSimulation& panneau = m_poste->fenetre->Simulation();
    const std::vector<PointProfil>& film = panneau.Film().points.Points;
    // A step of the level bottom side, and one before it on the same side.
    std::size_t rang = 0;
    while (rang + 1 < film.size() && !(film[rang].X > 390 && film[rang].Y == film[rang + 1].Y)) ++rang;
    QVERIFY(rang + 1 < film.size());
    m_poste->Trouver<QScrollBar>("hscSimulation").setValue(static_cast<int>(rang) + 1);
    const PointProfil a = film[rang];
    const PointProfil b = film[rang + 1];
    const PointProfil avant = film[rang - 3];
    // A step of 2 mm as 40 pixels or more, away from the ring of the wire.
    m_poste->Trouver<Canevas>("pctDecoupe").Cadrer({a.X - 10, a.X + 10, a.Y - 5, a.Y + 5});
    const PointDessin milieu{a.X + (b.X - a.X) * 0.75, a.Y};
    QVERIFY2(Compter(milieu, 3, Jaune) >= 7, "the segment under way is a yellow line");
    QCOMPARE(Compter(milieu, 3, Orange), 0);
    QVERIFY2(Compter({avant.X, avant.Y}, 3, Orange) >= 7, "what is cut is orange");
    QCOMPARE(Compter({avant.X, avant.Y}, 3, Jaune), 0);
    // Ahead of the wire the path is as it was.
    QCOMPARE(Compter({b.X + 2, b.Y}, 3, Jaune), 0);
    QCOMPARE(Compter({b.X + 2, b.Y}, 3, Orange), 0);
}

void EssaiCouleursDecoupe2D::LeTrajetALaCouleurDeSaLegende() {
    QFETCH(bool, sombre);
    Preparer(sombre);
    m_poste->Cliquer<QToolButton>("optApproche_1"); // rapid: two pixels thick, so that one is pure
    m_poste->Cliquer<QToolButton>("optRetour_1");
    const Sequence& entree = m_poste->fenetre->DecoupeMontree().TrajetEntree;
    const PointProfil& p = entree.Points.front();
    const PointProfil& q = entree.Points[1];
    const PointDessin milieu{(p.X + q.X) / 2, (p.Y + q.Y) / 2};
    m_poste->Trouver<Canevas>("pctDecoupe").Cadrer({milieu.X - 5, milieu.X + 5, milieu.Y - 5, milieu.Y + 5});
    QVERIFY(Compter(milieu, 4, Echantillon(0)) + Compter(milieu, 4, Echantillon(2)) >= 9);
}

QTEST_MAIN(EssaiCouleursDecoupe2D)
#include "essai_couleurs_decoupe2d.moc"
