// What undo holds of each deed of the 2D window: every tool says what it did, so that no point is held twice.
#include "fenetres/poste_2d.h"
#include "fenetres/souris.h"
#include "ui/canevas.h"
#include "work2d/dessin_outils.h"
#include "work2d/ui/atelier_2d.h"

#include <QCheckBox>
#include <QToolButton>

#include <cmath>
#include <set>

using namespace tessarel;
using essais::Poste2D;
using essais::Souris;

namespace {

constexpr int PointsParContour = 200;

// Two wavy outlines about (100, 100) and (300, 100).
std::string Contours() {
    std::string texte;
    for (const double x : {100.0, 300.0}) {
        texte += "Contour\r\n";
        for (int i = 0; i < PointsParContour; ++i) {
            const double t = 6.2831853 * i / (PointsParContour - 1);
            const double r = 60 + 7 * std::sin(9 * t);
            texte +=
                std::to_string(x + r * std::cos(t)) + ':' + std::to_string(100 + r * std::sin(t)) + "\r\n";
        }
    }
    return texte;
}

} // namespace

class EssaiHistoriqueFenetre : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_poste.reset(); }

    void LesGestesNeTiennentAucunPointDePlus();
    void LesNombresTapesNeTiennentAucunPointDePlus();
    void LesOutilsDeLaSelectionNeTiennentAucunPointDePlus();
    void LeBlocEtSesReglesNeTiennentAucunPointDePlus();
    void InsererEtCouperNeTiennentQueLePointInsere();
    void UnFichierAjouteNeTientQueSesPoints();

private:
    [[nodiscard]] const Espace2D& Espace() const { return m_poste->fenetre->Espace(); }
    [[nodiscard]] const Atelier2D& Atelier() const { return m_poste->fenetre->Atelier(); }
    [[nodiscard]] Canevas& Toile() const { return m_poste->Trouver<Canevas>("pctSequTS2D"); }
    void Bouton(const char* nom) const { m_poste->Cliquer<QToolButton>(nom); }
    void Taper(const char* champ, const char* texte) const {
        m_poste->Saisir(champ, QString::fromLatin1(texte));
    }
    [[nodiscard]] PointDessin Poignee(const char* nom) const {
        return PlacePoignee(BoiteAffichee(Atelier().BoiteSelection(), Toile().Vue().echelle), nom);
    }
    [[nodiscard]] std::size_t PointsTenus() const;
    // There has been one step more; its state is taken up as the user goes back from it. How many points it
    // holds anew.
    [[nodiscard]] std::size_t NouveauxPoints();

    std::unique_ptr<Poste2D> m_poste;
    float m_position = 1;
    std::size_t m_tenus = 0;
};

void EssaiHistoriqueFenetre::init() {
    m_poste = std::make_unique<Poste2D>();
    Parametres.DistNettoyage = 0;
    m_poste->OuvrirFenetre();
    m_position = 1;
    m_tenus = 0;
    QVERIFY(m_poste->fenetre->OuvrirFichier(m_poste->Fichier("contours.txt", Contours())));
    QCOMPARE(NouveauxPoints(), std::size_t{2 * PointsParContour});
    Bouton("cmdToutSelectionner");
}

std::size_t EssaiHistoriqueFenetre::PointsTenus() const {
    std::set<const ReservePoints*> vues;
    std::size_t points = 0;
    for (const EtatTransformations& etat : Atelier().Historique().PileTransformations) {
        for (const auto& reserve : etat.points->reserves)
            if (vues.insert(reserve.get()).second) points += reserve->places.size() + reserve->entiers.size();
    }
    return points;
}

std::size_t EssaiHistoriqueFenetre::NouveauxPoints() {
    if (Atelier().Historique().NbTransf != m_position + 1) return 99999; // no step, or two
    m_position = Atelier().Historique().NbTransf;
    const std::vector<Sequence> faits = Espace().TableauSequences;
    Bouton("cmdUndoTS2D_0");
    if (Espace().TableauSequences == faits && !faits.empty()) qWarning("the step changed no path");
    Bouton("cmdUndoTS2D_1");
    if (!(Espace().TableauSequences == faits)) return 88888; // not what was done
    const std::size_t avant = m_tenus;
    m_tenus = PointsTenus();
    return m_tenus - avant;
}

void EssaiHistoriqueFenetre::LesGestesNeTiennentAucunPointDePlus() {
    Souris souris(Toile());
    souris.Glisser({200, 100}, {230, 121});
    QCOMPARE(NouveauxPoints(), std::size_t{0});
    const PointDessin coin = Poignee("HD");
    souris.Glisser(coin, {coin.X + 20, coin.Y + 30});
    QCOMPARE(NouveauxPoints(), std::size_t{0});
    const PointDessin milieu = Poignee("MG");
    souris.Glisser(milieu, {milieu.X + 20, milieu.Y}, Qt::ControlModifier);
    QCOMPARE(NouveauxPoints(), std::size_t{0});
    QTest::keyClick(&Toile(), Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(NouveauxPoints(), std::size_t{0});
    // One of the two alone.
    QTest::keyClick(&Toile(), Qt::Key_Escape);
    const PointProfil& p = Espace().TableauSequences[1].Points[50];
    souris.Glisser({p.X, p.Y}, {p.X + 12, p.Y - 9});
    QCOMPARE(Atelier().NombreSelections(), std::size_t{1});
    QCOMPARE(NouveauxPoints(), std::size_t{0});
}

void EssaiHistoriqueFenetre::LesNombresTapesNeTiennentAucunPointDePlus() {
    Taper("txtMesures_0", "301.7\r");
    QCOMPARE(NouveauxPoints(), std::size_t{0});
    Taper("txtMesures_1", "99.3\r");
    QCOMPARE(NouveauxPoints(), std::size_t{0});
    Taper("txtAngle", "33\r");
    QCOMPARE(NouveauxPoints(), std::size_t{0});
    Bouton("cmdQuartDeTour");
    QCOMPARE(NouveauxPoints(), std::size_t{0});
}

void EssaiHistoriqueFenetre::LesOutilsDeLaSelectionNeTiennentAucunPointDePlus() {
    for (const char* outil : {"cmdMiroir_0", "cmdMiroir_1", "cmdInverser", "cmdDupliquer", "cmdDupliquer"}) {
        Bouton(outil);
        QCOMPARE(NouveauxPoints(), std::size_t{0});
    }
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{6});
    Bouton("cmdPoubelle");
    QCOMPARE(NouveauxPoints(), std::size_t{0});
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{4});
}

void EssaiHistoriqueFenetre::LeBlocEtSesReglesNeTiennentAucunPointDePlus() {
    for (const char* regle : {"chkCentrer_1", "chkCentrer_2", "chkCentrer_0"}) {
        m_poste->Cliquer<QCheckBox>(regle);
        QCOMPARE(NouveauxPoints(), std::size_t{0});
    }
    Taper("txtBloc_0", "345\r");
    QCOMPARE(NouveauxPoints(), std::size_t{0});
    Taper("txtBloc_1", "123\r");
    QCOMPARE(NouveauxPoints(), std::size_t{0});
    Bouton("cmdBlocAuto");
    QCOMPARE(NouveauxPoints(), std::size_t{0});
}

void EssaiHistoriqueFenetre::InsererEtCouperNeTiennentQueLePointInsere() {
    Souris souris(Toile());
    const std::vector<PointProfil>& trace = Espace().TableauSequences[0].Points;
    Bouton("cmdInsererPoint");
    souris.Cliquer({(trace[70].X + trace[71].X) / 2, (trace[70].Y + trace[71].Y) / 2});
    QCOMPARE(Espace().TableauSequences[0].Points.size(), std::size_t{PointsParContour + 1});
    QCOMPARE(NouveauxPoints(), std::size_t{1});
    Bouton("cmdCouperTrace");
    const PointProfil p = Espace().TableauSequences[0].Points[120];
    souris.Cliquer({p.X, p.Y});
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{3});
    QCOMPARE(NouveauxPoints(), std::size_t{0});
}

// Under a rule what was there moves with what comes.
void EssaiHistoriqueFenetre::UnFichierAjouteNeTientQueSesPoints() {
    m_poste->Cliquer<QCheckBox>("chkCentrer_1");
    QCOMPARE(NouveauxPoints(), std::size_t{0});
    QVERIFY(m_poste->fenetre->OuvrirFichier(m_poste->Fichier("carre.txt", essais::DeuxTracesTexte)));
    QCOMPARE(NouveauxPoints(), std::size_t{10});
    m_poste->Cliquer<QCheckBox>("chkCentrer_0");
    QCOMPARE(NouveauxPoints(), std::size_t{0});
    QVERIFY(m_poste->fenetre->OuvrirFichier(m_poste->Fichier("carre.txt", essais::DeuxTracesTexte)));
    QCOMPARE(NouveauxPoints(), std::size_t{10});
}

QTEST_MAIN(EssaiHistoriqueFenetre)
#include "essai_historique_fenetre.moc"
