// The block, the placing and the display of the 2D window, control by control.
#include "fenetres/poste_2d.h"
#include "ui/canevas.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

using namespace tessarel;
using essais::Poste2D;
using essais::RectangleTexte;

class EssaiBloc2D : public QObject {
    Q_OBJECT
private slots:
    void init() {
        m_poste = std::make_unique<Poste2D>();
        m_poste->OuvrirFenetre();
    }
    void cleanup() { m_poste.reset(); }

    void LeBlocSaisiCompteSurEntree();
    void LeBlocSaisiCompteEnQuittantLeChamp();
    void LeBlocSaisiEstLimiteALaMachine();
    void UnBlocQuiNEstPasUnNombreEstRefuse();
    void UnBlocNulEstRefuse();
    void CentrerPlaceLesTracesEtRougit();
    void AjusterMetALEchelle();
    void BlocAutoPrendLaTailleDesTraces();
    void BlocAutoTientDixMillimetresAuMoins();
    void BlocAutoSansTracePrendLaTable();
    void BlocAutoCadreLeBlocQuandLeZoomEstMis();
    void BlocAutoDepasseLaMachineSansRienDire();
    void VoirPointsMarqueLesPoints();
    void ZoomProjetCadreLesTraces();
    void LesBoutonsDeZoomZooment();

private:
    void OuvrirRectangle() { m_poste->Deposer({m_poste->Fichier("rectangle.txt", RectangleTexte)}); }
    [[nodiscard]] const Espace2D& Espace() const { return m_poste->fenetre->Espace(); }
    [[nodiscard]] Boite DerniereBoite() const { return m_poste->DerniereBoite(); }
    [[nodiscard]] std::size_t NombreBoites() const { return m_poste->NombreBoites(); }

    std::unique_ptr<Poste2D> m_poste;
};

void EssaiBloc2D::LeBlocSaisiCompteSurEntree() {
    m_poste->Saisir("txtBloc_0", QStringLiteral("412,5"));
    QCOMPARE(Espace().bloc.BlocX, 770.0F);
    QTest::keyClick(&m_poste->Trouver<ChampNombre>("txtBloc_0"), Qt::Key_Return);
    QCOMPARE(Espace().bloc.BlocX, 412.5F);
    QCOMPARE(m_poste->Trouver<QLabel>("lblDimensionsBloc").text(), QStringLiteral("412.5 mm x 390.0 mm"));
}

void EssaiBloc2D::LeBlocSaisiCompteEnQuittantLeChamp() {
    m_poste->Saisir("txtBloc_1", QStringLiteral("200"));
    m_poste->Trouver<ChampNombre>("txtBloc_0").setFocus();
    QCOMPARE(Espace().bloc.BlocY, 200.0F);
}

void EssaiBloc2D::LeBlocSaisiEstLimiteALaMachine() {
    // 980 - 15 - 5 = 960 wide, 510 - 15 = 495 high.
    m_poste->Saisir("txtBloc_0", QStringLiteral("5000\r"));
    m_poste->Saisir("txtBloc_1", QStringLiteral("5000\r"));
    QCOMPARE(Espace().bloc.BlocX, 960.0F);
    QCOMPARE(Espace().bloc.BlocY, 495.0F);
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtBloc_0").text(), QStringLiteral("960"));
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtBloc_1").text(), QStringLiteral("495"));
}

void EssaiBloc2D::UnBlocQuiNEstPasUnNombreEstRefuse() {
    m_poste->Saisir("txtBloc_0", QStringLiteral("1-2\r"));
    QCOMPARE(NombreBoites(), std::size_t{1});
    QCOMPARE(DerniereBoite().texte, std::string("Veuillez entrer un nombre décimal."));
    QCOMPARE(DerniereBoite().titre, std::string("Erreur de saisie"));
    QCOMPARE(Espace().bloc.BlocX, 770.0F);
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtBloc_0").text(), QStringLiteral("770"));
}

void EssaiBloc2D::UnBlocNulEstRefuse() {
    m_poste->Saisir("txtBloc_1", QStringLiteral("0\r"));
    QCOMPARE(NombreBoites(), std::size_t{1});
    QCOMPARE(DerniereBoite().titre, std::string("Calcul impossible"));
    QCOMPARE(Espace().bloc.BlocY, 390.0F);
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtBloc_1").text(), QStringLiteral("390"));
}

void EssaiBloc2D::CentrerPlaceLesTracesEtRougit() {
    OuvrirRectangle();
    auto& centrerX = m_poste->Trouver<QCheckBox>("chkCentrer_1");
    QVERIFY(centrerX.palette().color(QPalette::WindowText) != QColor(255, 0, 0));
    m_poste->Cliquer<QCheckBox>("chkCentrer_1");
    QVERIFY(centrerX.isChecked());
    QCOMPARE(centrerX.palette().color(QPalette::WindowText), QColor(255, 0, 0));
    // Middle of the block: 770 / 2 + 5 = 390.
    QCOMPARE(Espace().TableauSequences[0].XMin, 340.0F);
    QCOMPARE(Espace().TableauSequences[0].YMin, 0.0F);
    m_poste->Cliquer<QCheckBox>("chkCentrer_2");
    QCOMPARE(Espace().TableauSequences[0].YMin, 170.0F);
    // A new block keeps the rule.
    m_poste->Saisir("txtBloc_0", QStringLiteral("200\r"));
    QCOMPARE(Espace().TableauSequences[0].XMin, 55.0F);
    m_poste->Cliquer<QCheckBox>("chkCentrer_1");
    QVERIFY(centrerX.palette().color(QPalette::WindowText) != QColor(255, 0, 0));
}

void EssaiBloc2D::AjusterMetALEchelle() {
    OuvrirRectangle();
    m_poste->Cliquer<QCheckBox>("chkCentrer_0");
    // Room 770 - 2 x 5 = 760 by 390 - 2 x 5 = 380: the factor is 7.6 both ways.
    QCOMPARE(Espace().TableauSequences[0].Largeur, 760.0F);
    QCOMPARE(Espace().TableauSequences[0].Hauteur, 380.0F);
    QCOMPARE(Espace().coeffTransf, 7.6F);
}

void EssaiBloc2D::BlocAutoPrendLaTailleDesTraces() {
    OuvrirRectangle();
    m_poste->Cliquer<QToolButton>("cmdBlocAuto");
    QCOMPARE(Espace().bloc.BlocX, 100.0F);
    QCOMPARE(Espace().bloc.BlocY, 50.0F);
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtBloc_0").text(), QStringLiteral("100"));
}

void EssaiBloc2D::BlocAutoTientDixMillimetresAuMoins() {
    m_poste->Deposer({m_poste->Fichier("petit.txt", "Trait\r\n0.0:0.0\r\n2.0:0.0\r\n2.0:40.0\r\n")});
    m_poste->Cliquer<QToolButton>("cmdBlocAuto");
    QCOMPARE(Espace().bloc.BlocX, 10.0F);
    QCOMPARE(Espace().bloc.BlocY, 40.0F);
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtBloc_0").text(), QStringLiteral("10"));
}

void EssaiBloc2D::BlocAutoSansTracePrendLaTable() {
    m_poste->Cliquer<QToolButton>("cmdBlocAuto"); // without a path the framing is the table
    QCOMPARE(Espace().bloc.BlocX, 980.0F);
    QCOMPARE(Espace().bloc.BlocY, 510.0F);
    QCOMPARE(NombreBoites(), std::size_t{0});
}

// From 0 to the block's width and height, wherever the paths are.
void EssaiBloc2D::BlocAutoCadreLeBlocQuandLeZoomEstMis() {
    m_poste->Deposer({m_poste->Fichier("loin.txt", "Loin\r\n200.0:100.0\r\n300.0:100.0\r\n300.0:150.0\r\n")});
    const auto& canevas = m_poste->Trouver<Canevas>("pctSequTS2D");
    const VueDessin table = canevas.Vue();
    m_poste->Cliquer<QToolButton>("cmdBlocAuto");
    QVERIFY(canevas.Vue() == table); // without the zoom the view is the user's
    m_poste->Cliquer<QToolButton>("cmdUndoTS2D_0");
    m_poste->Cliquer<QCheckBox>("chkZoomProjet");
    m_poste->Cliquer<QToolButton>("cmdBlocAuto");
    QCOMPARE(Espace().bloc.BlocX, 100.0F);
    QCOMPARE(Espace().bloc.BlocY, 50.0F);
    // As large as the canvas allows, with 14 pixels around.
    const QSizeF zone = canevas.ZoneDessin().size();
    QVERIFY(canevas.Vue() == VueSurCadre({0, 100, 0, 50}, zone.width(), zone.height(), 14));
}

// Only a typed block is brought down to the machine: one made on the paths holds them all, and the cut says
// that it is clipped.
void EssaiBloc2D::BlocAutoDepasseLaMachineSansRienDire() {
    m_poste->Deposer({m_poste->Fichier(
        "grand.txt", "Grand\r\n20.0:10.0\r\n1220.0:10.0\r\n1220.0:610.0\r\n20.0:610.0\r\n20.0:10.0\r\n")});
    m_poste->Cliquer<QToolButton>("cmdBlocAuto");
    QCOMPARE(Espace().bloc.BlocX, 1200.0F);
    QCOMPARE(Espace().bloc.BlocY, 600.0F);
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtBloc_0").text(), QStringLiteral("1200"));
    QCOMPARE(m_poste->Trouver<QLabel>("lblDimensionsBloc").text(), QStringLiteral("1200.0 mm x 600.0 mm"));
    // A look at the field changes nothing.
    m_poste->Trouver<ChampNombre>("txtBloc_0").setFocus();
    m_poste->Trouver<ChampNombre>("txtBloc_1").setFocus();
    QCOMPARE(Espace().bloc.BlocX, 1200.0F);
    QCOMPARE(NombreBoites(), std::size_t{0});
    m_poste->Cliquer<QPushButton>("cmdDecouper");
    QCOMPARE(DerniereBoite().titre, std::string("Dépassement des courses"));
    QCOMPARE(Espace().TableauSequences[0].Largeur, 1200.0F);
    m_poste->Cliquer<QPushButton>("cmdAnnulerDecoupe");
    m_poste->Saisir("txtBloc_0", QStringLiteral("1201\r"));
    QCOMPARE(Espace().bloc.BlocX, 960.0F);
    // What was not typed is limited with it.
    QCOMPARE(Espace().bloc.BlocY, 495.0F);
}

void EssaiBloc2D::VoirPointsMarqueLesPoints() {
    OuvrirRectangle();
    const auto& canevas = m_poste->Trouver<Canevas>("pctSequTS2D");
    const std::size_t avant = canevas.Montre(Canevas::CoucheTrace).Liste().marques.size();
    m_poste->Cliquer<QCheckBox>("chkVoirPoints");
    QVERIFY(canevas.Montre(Canevas::CoucheTrace).Liste().marques.size() >= avant + 4);
    m_poste->Cliquer<QCheckBox>("chkVoirPoints");
    QCOMPARE(canevas.Montre(Canevas::CoucheTrace).Liste().marques.size(), avant);
}

void EssaiBloc2D::ZoomProjetCadreLesTraces() {
    OuvrirRectangle();
    const auto& canevas = m_poste->Trouver<Canevas>("pctSequTS2D");
    const double table = canevas.Vue().echelle;
    m_poste->Cliquer<QCheckBox>("chkZoomProjet");
    QVERIFY(canevas.Vue().echelle > 5 * table);
    QVERIFY((canevas.EnPixels({50, 25}) - canevas.ZoneDessin().center()).manhattanLength() < 1e-6);
    m_poste->Cliquer<QCheckBox>("chkZoomProjet");
    QCOMPARE(canevas.Vue().echelle, table);
}

void EssaiBloc2D::LesBoutonsDeZoomZooment() {
    const auto& canevas = m_poste->Trouver<Canevas>("pctSequTS2D");
    const VueDessin depart = canevas.Vue();
    m_poste->Cliquer<QToolButton>("cmdZoomPlus");
    QVERIFY(canevas.Vue().echelle > depart.echelle);
    m_poste->Cliquer<QToolButton>("cmdZoomMoins");
    m_poste->Cliquer<QToolButton>("cmdZoomTout");
    QVERIFY(canevas.Vue() == depart);
}

QTEST_MAIN(EssaiBloc2D)
#include "essai_bloc2d.moc"
