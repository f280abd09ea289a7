// The tools of the 2D window: undo and redo, point insertion, path cutting, and what the cut tab turns off.
#include "fenetres/poste_atelier.h"
#include "work2d/ui/panneau_simulation.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

#include <cmath>

using namespace tessarel;
using essais::PosteAtelier;
using essais::RectangleTexte;

class EssaiOutils2D : public QObject, private PosteAtelier {
    Q_OBJECT
private slots:
    void init() { Preparer(); }
    void cleanup() { Ranger(); }

    void AnnulerEtRetablirParLesBoutons();
    void AnnulerUneOuvertureRetireLesTraces();
    void AnnulerLeBloc();
    void UneRegleSansEffetNEstPasUnPas();
    void InsererUnPoint();
    void InsererHorsDUnSegmentNeFaitRien();
    void CouperUnTrace();
    void LeSommetACouperNommeUnCoin();
    void CouperAuBoutEstRefuse();
    void UnProjetOuvertSousUnOutilLeRange();
    void LesOutilsSontEteintsPendantLaDecoupe();
    void AnnulerAuxDeuxBoutsNeFaitRien();
    void ToutSupprimerPendantLaDecoupeNeTouchePasAuProjet();
    void ToutSupprimerPuisDecouperEstRefuse();
};

void EssaiOutils2D::AnnulerEtRetablirParLesBoutons() {
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

void EssaiOutils2D::AnnulerUneOuvertureRetireLesTraces() {
    QVERIFY(m_poste->fenetre->OuvrirFichier(m_poste->Fichier("un.txt", RectangleTexte)));
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{3});
    m_poste->Cliquer<QToolButton>("cmdUndoTS2D_0");
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{2});
}

void EssaiOutils2D::AnnulerLeBloc() {
    m_poste->Saisir("txtBloc_0", QStringLiteral("300\r"));
    QCOMPARE(Espace().bloc.BlocX, 300.0F);
    m_poste->Cliquer<QToolButton>("cmdUndoTS2D_0");
    QCOMPARE(Espace().bloc.BlocX, 770.0F);
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtBloc_0").text(), QStringLiteral("770"));
    QCOMPARE(m_poste->Trouver<QLabel>("lblDimensionsBloc").text(), QStringLiteral("770.0 mm x 390.0 mm"));
}

void EssaiOutils2D::UneRegleSansEffetNEstPasUnPas() {
    m_poste->Cliquer<QCheckBox>("chkCentrer_1");
    const float position = Atelier().Historique().NbTransf;
    m_poste->Cliquer<QCheckBox>("chkCentrer_1"); // off again: nothing moves
    QCOMPARE(Atelier().Historique().NbTransf, position);
    m_poste->Cliquer<QToolButton>("cmdUndoTS2D_0");
    QCOMPARE(Trace(0).XMin, 0.0F);
}

void EssaiOutils2D::InsererUnPoint() {
    m_poste->Cliquer<QToolButton>("cmdInsererPoint");
    QVERIFY(m_poste->Trouver<QWidget>("pctAjoutPoint").isVisible());
    m_souris->Aller({50, 0.4});
    QVERIFY(m_poste->Trouver<QLabel>("lblAjoutPoint")
                .text()
                .startsWith(QStringLiteral("Insertion d'un point en X")));
    QVERIFY(Etat().startsWith(QStringLiteral("Clic : insérer un point en X")));
    m_souris->Cliquer({50, 0.4});
    QCOMPARE(Trace(0).Points.size(), std::size_t{6});
    QVERIFY(std::abs(Trace(0).Points[1].X - 50) < essais::ToleranceMain);
    QCOMPARE(Trace(0).Points[1].Y, 0.0);
    m_poste->Cliquer<QToolButton>("cmdUndoTS2D_0");
    QCOMPARE(Trace(0).Points.size(), std::size_t{5});
    QTest::keyClick(&Toile(), Qt::Key_Escape);
    QVERIFY(!m_poste->Trouver<QWidget>("pctAjoutPoint").isVisible());
    QVERIFY(m_poste->Trouver<QToolButton>("cmdSelection").isChecked());
}

void EssaiOutils2D::InsererHorsDUnSegmentNeFaitRien() {
    m_poste->Cliquer<QToolButton>("cmdInsererPoint");
    const float position = Atelier().Historique().NbTransf;
    m_souris->Cliquer({400, 300});
    m_souris->Cliquer({0, 0}); // on a vertex
    QCOMPARE(Trace(0).Points.size(), std::size_t{5});
    QCOMPARE(Atelier().Historique().NbTransf, position);
    QCOMPARE(m_poste->NombreBoites(), std::size_t{0});
}

void EssaiOutils2D::CouperUnTrace() {
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
void EssaiOutils2D::LeSommetACouperNommeUnCoin() {
    m_poste->Cliquer<QToolButton>("cmdCouperTrace");
    m_souris->Aller({100, 50}); // first end of the level top side, which runs to the left
    QCOMPARE(Atelier().HandleCourant(), std::string("BC"));
    m_souris->Aller({100, 0}); // first end of the upright right side
    QCOMPARE(Atelier().HandleCourant(), std::string("AD"));
    m_souris->Aller({400, 300});
    QVERIFY(Atelier().HandleCourant().empty());
}

void EssaiOutils2D::CouperAuBoutEstRefuse() {
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

// The pointer rests on a vertex of a short path, and a long one comes in its place: nothing of the old one is
// looked up in the new one (the sanitizers watch the searches).
void EssaiOutils2D::UnProjetOuvertSousUnOutilLeRange() {
    constexpr int Sommets = 2000;
    std::string dents = "Dents\r\n";
    for (int i = 0; i < Sommets; ++i)
        dents += std::to_string(i * 0.1) + ":" + (i % 2 == 0 ? "50.0" : "80.0") + "\r\n";
    Espace2D autre = NouvelEspace2D(TableINI);
    QVERIFY(OuvrirFichier2D(autre, m_poste->Fichier("dents.txt", dents), TableINI, Parametres.DistNettoyage));
    const std::string projet = m_poste->Fichier("dents.tsr", "");
    QVERIFY(EnregistrerEspace2D(autre, projet));
    m_poste->Cliquer<QToolButton>("cmdCouperTrace");
    m_souris->Aller({100, 50});
    m_poste->boites.reponses.push_back(ReponseBoite::Non); // what was there is given up
    QVERIFY(m_poste->fenetre->OuvrirFichier(projet));
    QCOMPARE(Trace(0).Points.size(), std::size_t{Sommets});
    QVERIFY(Atelier().Outil() == OutilAtelier::Selection);
    QVERIFY(m_poste->Trouver<QToolButton>("cmdSelection").isChecked());
    QVERIFY(Atelier().HandleCourant().empty()); // no corner is named on a path that is not selected
}

void EssaiOutils2D::LesOutilsSontEteintsPendantLaDecoupe() {
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
    QVERIFY(std::abs(Trace(0).XMin - 10) < essais::ToleranceMain);
}

void EssaiOutils2D::AnnulerAuxDeuxBoutsNeFaitRien() {
    m_souris->Cliquer({0, 25});
    m_souris->Glisser({50, 25}, {80, 65});
    const std::vector<Sequence> fin = Espace().TableauSequences;
    for (int i = 0; i < 3; ++i) QTest::keyClick(m_poste->fenetre.get(), Qt::Key_Y, Qt::ControlModifier);
    QVERIFY(Espace().TableauSequences == fin);
    for (int i = 0; i < 12; ++i) QTest::keyClick(m_poste->fenetre.get(), Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(Espace().TableauSequences.empty());
    QCOMPARE(Atelier().Historique().NbTransf, 1.0F);
    for (int i = 0; i < 12; ++i) QTest::keyClick(m_poste->fenetre.get(), Qt::Key_Y, Qt::ControlModifier);
    QVERIFY(Espace().TableauSequences == fin);
    QCOMPARE(m_poste->NombreBoites(), std::size_t{0});
}

void EssaiOutils2D::ToutSupprimerPendantLaDecoupeNeTouchePasAuProjet() {
    m_poste->Trouver<QToolButton>("cmdToutSelectionner").click();
    const std::vector<Sequence> avant = Espace().TableauSequences;
    m_poste->Cliquer<QPushButton>("cmdDecouper");
    m_poste->Cliquer<QToolButton>("cmdSimulation");
    const std::size_t boites = m_poste->NombreBoites();
    QWidget& decoupe = m_poste->Trouver<Canevas>("pctDecoupe");
    for (QWidget* ou : {static_cast<QWidget*>(m_poste->fenetre.get()), &decoupe,
                        static_cast<QWidget*>(&m_poste->Trouver<QToolButton>("cmdSimulation"))}) {
        QTest::keyClick(ou, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(ou, Qt::Key_Delete);
        QTest::keyClick(ou, Qt::Key_Backspace);
    }
    m_poste->Trouver<QToolButton>("cmdPoubelle").click();
    QVERIFY(Espace().TableauSequences == avant);
    QVERIFY(m_poste->fenetre->DecoupeOuverte());
    QVERIFY(m_poste->fenetre->Simulation().EnMarche());
    QCOMPARE(m_poste->NombreBoites(), boites);
    m_poste->Cliquer<QPushButton>("cmdAnnulerDecoupe");
    QTest::keyClick(&Toile(), Qt::Key_Delete);
    QVERIFY(Espace().TableauSequences.empty());
    m_poste->Trouver<QToolButton>("cmdUndoTS2D_0").click();
    QVERIFY(Espace().TableauSequences == avant);
}

void EssaiOutils2D::ToutSupprimerPuisDecouperEstRefuse() {
    m_poste->Trouver<QToolButton>("cmdToutSelectionner").click();
    m_poste->Trouver<QToolButton>("cmdPoubelle").click();
    m_poste->Cliquer<QPushButton>("cmdDecouper");
    QVERIFY(!m_poste->fenetre->DecoupeOuverte());
    QCOMPARE(m_poste->NombreBoites(), std::size_t{1});
    m_poste->Trouver<QToolButton>("cmdUndoTS2D_0").click();
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{2});
}

QTEST_MAIN(EssaiOutils2D)
#include "essai_outils2d.moc"
