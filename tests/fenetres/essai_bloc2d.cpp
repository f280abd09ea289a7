// The block, the placing and the display of the 2D window, control by control.
#include "fenetres/poste_2d.h"
#include "ui/canevas.h"

#include <QCheckBox>
#include <QLabel>
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
