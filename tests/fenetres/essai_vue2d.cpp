// Around the table of the 2D window: a file turned over in its preview, scroll bars, the width of the
// library.
#include "fenetres/poste_atelier.h"
#include "work2d/ui/panneau_bibliotheque.h"

#include <QAbstractSlider>
#include <QToolButton>

#include <cmath>

using namespace tessarel;
using essais::PosteAtelier;

class EssaiVue2D : public QObject, private PosteAtelier {
    Q_OBJECT
private slots:
    void init() { Preparer(); }
    void cleanup() { Ranger(); }

    void LApercuSeRetourneAvantDEtreOuvert();
    void UnProjetRetourneDansLApercuEstModifie();
    void LesAscenseursSuiventLaVue();
    void LaLargeurDeLaBibliothequeRevient();
};

void EssaiVue2D::LApercuSeRetourneAvantDEtreOuvert() {
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
void EssaiVue2D::UnProjetRetourneDansLApercuEstModifie() {
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

void EssaiVue2D::LesAscenseursSuiventLaVue() {
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

void EssaiVue2D::LaLargeurDeLaBibliothequeRevient() {
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

QTEST_MAIN(EssaiVue2D)
#include "essai_vue2d.moc"
