// The hand on the table of the 2D window: what a click or a frame selects, what lies under the pointer, and
// what the window says of it.
#include "fenetres/poste_atelier.h"
#include "work2d/dessin_outils.h"
#include "work2d/ui/panneau_bibliotheque.h"

#include <QLabel>
#include <QPushButton>
#include <QToolButton>

using namespace tessarel;
using essais::PosteAtelier;

class EssaiSelection2D : public QObject, private PosteAtelier {
    Q_OBJECT
private slots:
    void init() { Preparer(); }
    void cleanup() { Ranger(); }

    void UnClicSelectionneLeTrace();
    void ShiftAjouteEtCtrlBascule();
    void UnClicDansLeVideDeselectionne();
    void LeCadreVersLaDroitePrendLesEntiers();
    void LeCadreVersLaGauchePrendCeQuIlTouche();
    void LeSurvolDitCeQueFeraitLaSouris();
    void LaBarreSuitLOutilEtLaPlace_data();
    void LaBarreSuitLOutilEtLaPlace();
    void LaBarreSuitUnOutilPrisSansBougerLaSouris();
    void LaBarreSuitCeQuiChangeSousLaSouris();
    void LaBarreDitCeQueFaitLeGesteEnCours();
    void LaBarreNeParlePlusDUnGesteAbandonne();
    void LaBarreDitCeQuOnPeutFaireDUneDecoupeEtDUnApercu();
    void LeCurseurSuitLaZone();
    void LeSegmentSurvoleEstMagentaEtNomme();
    void LeSurvolNeRedessineQueCeQuiChange();
};

void EssaiSelection2D::UnClicSelectionneLeTrace() {
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

void EssaiSelection2D::ShiftAjouteEtCtrlBascule() {
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

void EssaiSelection2D::UnClicDansLeVideDeselectionne() {
    m_souris->Cliquer({0, 25});
    m_souris->Cliquer({400, 300});
    QCOMPARE(Choisis(), std::string("00"));
    m_souris->Cliquer({0, 25});
    m_souris->Cliquer({50, 25}); // inside the box, on nothing
    QCOMPARE(Choisis(), std::string("00"));
}

void EssaiSelection2D::LeCadreVersLaDroitePrendLesEntiers() {
    m_souris->Glisser({-20, 80}, {150, -20});
    QCOMPARE(Choisis(), std::string("10"));
    m_souris->Cliquer({400, 300});
    m_souris->Glisser({-20, 80}, {90, -20}); // a part of it only
    QCOMPARE(Choisis(), std::string("00"));
    m_souris->Glisser({-20, 80}, {260, -20});
    QCOMPARE(Choisis(), std::string("11"));
}

void EssaiSelection2D::LeCadreVersLaGauchePrendCeQuIlTouche() {
    m_souris->Appuyer({150, 80});
    m_souris->Aller({90, 20});
    QVERIFY(Etat().startsWith(QStringLiteral("Relâcher : choisir tous les tracés touchés")));
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

void EssaiSelection2D::LeSurvolDitCeQueFeraitLaSouris() {
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

void EssaiSelection2D::LaBarreSuitLOutilEtLaPlace_data() {
    QTest::addColumn<bool>("anglais");
    QTest::addColumn<QString>("outil");
    QTest::addColumn<QPointF>("lieu"); // mm
    QTest::addColumn<QString>("phrase");
    // A vertex of the rectangle, a place on one of its sides, and nothing.
    const QPointF sommet(100, 50);
    const QPointF cote(50, 0);
    const QPointF rien(400, 300);
    const auto ajouter = [](const char* outil, QPointF lieu, const char* francais, const char* anglais) {
        for (const bool en : {false, true})
            QTest::addRow("%s %g %g %s", outil, lieu.x(), lieu.y(), en ? "en" : "fr")
                << en << QString::fromLatin1(outil) << lieu << QString::fromUtf8(en ? anglais : francais);
    };
    ajouter("cmdSelection", rien, "Glisser : cadre de sélection. Shift + glisser : déplacer la vue",
            "Drag: selection frame. Shift + drag: pan the view");
    ajouter("cmdSelection", cote, "Clic : sélectionner ce tracé (Shift : ajouter, Ctrl : ajouter ou retirer)",
            "Click: select this path (Shift: add, Ctrl: add or remove)");
    ajouter("cmdInsererPoint", rien, "Visez un segment : un clic y insère un point. Échap : terminer",
            "Aim at a segment: a click inserts a point on it. Esc: done");
    ajouter("cmdInsererPoint", cote, "Clic : insérer un point en X ", "Click: insert a point at X ");
    ajouter("cmdCouperTrace", rien, "Visez un point : un clic y coupe le tracé en deux. Échap : terminer",
            "Aim at a point: a click cuts the path in two there. Esc: done");
    ajouter("cmdCouperTrace", sommet, "Clic : couper le tracé au point 3 sur 5",
            "Click: cut the path at point 3 of 5");
}

void EssaiSelection2D::LaBarreSuitLOutilEtLaPlace() {
    QFETCH(bool, anglais);
    QFETCH(QString, outil);
    QFETCH(QPointF, lieu);
    QFETCH(QString, phrase);
    if (anglais) Preparer(Langue::English);
    m_poste->Trouver<QToolButton>(qPrintable(outil)).click();
    m_souris->Aller({lieu.x(), lieu.y()});
    QVERIFY2(Etat().startsWith(phrase), qPrintable(Etat()));
}

void EssaiSelection2D::LaBarreSuitUnOutilPrisSansBougerLaSouris() {
    m_souris->Aller({50, 0.4});
    QVERIFY(Etat().startsWith(QStringLiteral("Clic : sélectionner ce tracé")));
    m_poste->Trouver<QToolButton>("cmdInsererPoint").click();
    QVERIFY2(Etat().startsWith(QStringLiteral("Clic : insérer un point")), qPrintable(Etat()));
    m_poste->Trouver<QToolButton>("cmdCouperTrace").click();
    QVERIFY2(Etat().startsWith(QStringLiteral("Visez un point")), qPrintable(Etat()));
    QTest::keyClick(&Toile(), Qt::Key_Escape);
    QVERIFY2(Etat().startsWith(QStringLiteral("Clic : sélectionner ce tracé")), qPrintable(Etat()));
}

void EssaiSelection2D::LaBarreSuitCeQuiChangeSousLaSouris() {
    m_souris->Cliquer({0, 25});
    m_souris->Aller(Poignee("HD"));
    QCOMPARE(Atelier().HandleCourant(), std::string("HD"));
    QTest::keyClick(&Toile(), Qt::Key_Delete);
    QVERIFY2(Etat().startsWith(QStringLiteral("Glisser : cadre de sélection")), qPrintable(Etat()));
    QVERIFY(Atelier().HandleCourant().empty());
    m_poste->Trouver<QToolButton>("cmdUndoTS2D_0").click(); // the box is there again, under the same pointer
    QVERIFY2(Etat().startsWith(QStringLiteral("Glisser : taille")), qPrintable(Etat()));
    QCOMPARE(Atelier().HandleCourant(), std::string("HD"));
    m_poste->Trouver<QToolButton>("cmdUndoTS2D_0").click(); // before the opening
    QVERIFY2(Etat().startsWith(QStringLiteral("Ouvrez un fichier")), qPrintable(Etat()));
}

void EssaiSelection2D::LaBarreDitCeQueFaitLeGesteEnCours() {
    m_souris->Cliquer({0, 25});
    m_souris->Appuyer({50, 25});
    m_souris->Aller({80, 40}, Qt::AltModifier); // onto whole millimetres
    QCOMPARE(Etat(), QStringLiteral("Déplacement : 30.00 mm en X, 15.00 mm en Y. Échap : renoncer"));
    QTest::keyClick(&Toile(), Qt::Key_Escape);
    m_souris->Relacher();
    // The panel shows the move too, where moves are typed; else it keeps the size.
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtMesures_0").text(), QStringLiteral("100.00"));
    m_poste->Trouver<QToolButton>("optSaisie_1").click();
    m_souris->Appuyer({50, 25});
    m_souris->Aller({80, 40}, Qt::AltModifier);
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtMesures_0").text(), QStringLiteral("30.00"));
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtMesures_1").text(), QStringLiteral("15.00"));
    QTest::keyClick(&Toile(), Qt::Key_Escape);
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtMesures_0").text(), QStringLiteral("0.00"));
    m_souris->Relacher();
    // A quarter turn by steps of 15 degrees, from the right of the box to above it.
    const double dehors = 14 / Toile().Vue().echelle;
    const PointDessin coin = Poignee("HD");
    m_souris->Appuyer({coin.X + dehors, 25});
    m_souris->Aller({50, coin.Y + 60}, Qt::AltModifier);
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtAngle").text(), QStringLiteral("90.00"));
    m_souris->Relacher(Qt::AltModifier);
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtAngle").text(), QStringLiteral("0.00"));
    QCOMPARE(Atelier().BoiteSelection().Largeur, 50.0F);
}

void EssaiSelection2D::LaBarreNeParlePlusDUnGesteAbandonne() {
    m_souris->Cliquer({0, 25});
    m_souris->Appuyer({50, 25});
    m_souris->Aller({80, 40});
    QTest::keyClick(&Toile(), Qt::Key_Escape);
    QVERIFY2(!Etat().contains(QStringLiteral("Échap")), qPrintable(Etat()));
    m_souris->Aller({400, 300}); // the button is still down, and makes no frame
    QVERIFY2(!Etat().startsWith(QStringLiteral("Relâcher")), qPrintable(Etat()));
    m_souris->Relacher();
    QCOMPARE(Choisis(), std::string("10"));
}

void EssaiSelection2D::LaBarreDitCeQuOnPeutFaireDUneDecoupeEtDUnApercu() {
    const QString vue =
        QStringLiteral("Molette : zoom. Clic droit + glisser : zoom sur un cadre. Shift + glisser : vue");
    emit m_poste->Trouver<PanneauBibliotheque>("frameBibliotheque")
        .FichierRegarde(QByteArray::fromStdString(m_poste->dossier.Fichier("deux.txt")));
    m_souris->Aller({50, 25});
    QCOMPARE(Etat(), vue);
    m_poste->Trouver<QToolButton>("cmdFermerApercu").click();
    m_souris->Aller({400, 300});
    QVERIFY(Etat().startsWith(QStringLiteral("Glisser : cadre de sélection")));
    m_poste->Trouver<QPushButton>("cmdDecouper").click();
    essais::Souris(m_poste->Trouver<Canevas>("pctDecoupe")).Aller({50, 25});
    QCOMPARE(Etat(), vue);
}

void EssaiSelection2D::LeCurseurSuitLaZone() {
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

void EssaiSelection2D::LeSegmentSurvoleEstMagentaEtNomme() {
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

void EssaiSelection2D::LeSurvolNeRedessineQueCeQuiChange() {
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

QTEST_MAIN(EssaiSelection2D)
#include "essai_selection2d.moc"
