// The workshop of the 2D window by keyboard and buttons: typed sizes, moves and angles, shortcuts, arrow
// keys, bad numbers; and two thousand deeds at random that undo takes back to the start.
#include "fenetres/poste_2d.h"
#include "fenetres/souris.h"
#include "ui/canevas.h"
#include "work2d/selection.h"
#include "work2d/ui/atelier_2d.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

#include <cmath>
#include <random>

using namespace tessarel;
using essais::DeuxTracesTexte;
using essais::Poste2D;
using essais::Souris;

class EssaiSaisie2D : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_poste.reset(); }

    void LaLargeurTapeeCompteSurEntree();
    void LaHauteurTapeeCompteEnQuittantLeChamp();
    void LesProportionsSuivent();
    void LePointFixeChoisiResteEnPlace();
    void UnDeplacementTapeBougeLaSelection();
    void LaTailleVivanteSeMontreAussiEnModeDeplacement();
    void UnNombreTapeCompteAvantLOutilClique();
    void UnNombreTapeCompteDansSonMode();
    void UnBlocInchangeLaisseRetablir();
    void UnAngleTapeTourne();
    void LeQuartDeTourTourne();
    void LesLettresNEntrentPas();
    void UnTexteQuiNEstPasUnNombreEstRefuse();
    void UneTailleNulleEstRefusee();
    void UnFacteurInfiniEstRefuse();
    void UneTailleDemesureeNeFaitRien();
    void SansSelectionLesChampsSontEteints();
    void LesFlechesPoussentLaSelection();
    void SansSelectionLesFlechesDeplacentLaVue();
    void SupprimerParLaTouche();
    void LesRaccourcisDesOutils();
    void DupliquerInverserRefleter();
    void SansSelectionLesActionsNeFontRien();
    void UnNouveauProjetOublieLesEtats();
    void LesMotsSontCompletsEnAnglais();
    void DeuxMilleActionsAuHasardSAnnulent();

private:
    [[nodiscard]] const Espace2D& Espace() const { return m_poste->fenetre->Espace(); }
    [[nodiscard]] const Atelier2D& Atelier() const { return m_poste->fenetre->Atelier(); }
    [[nodiscard]] const Sequence& Trace(std::size_t i) const { return Espace().TableauSequences.at(i); }
    [[nodiscard]] Canevas& Toile() const { return m_poste->Trouver<Canevas>("pctSequTS2D"); }
    void Choisir(PointDessin mm) const { Souris(Toile()).Cliquer(mm); }
    void Taper(const char* champ, const char* texte) const {
        m_poste->Saisir(champ, QString::fromLatin1(texte));
    }
    void Fenetre(Qt::Key touche, Qt::KeyboardModifiers avec = Qt::NoModifier) const {
        QTest::keyClick(m_poste->fenetre.get(), touche, avec);
        QTest::qWait(150); // a button that its keys press stays down that long
    }
    void ActionAuHasard(std::mt19937& hasard);

    std::unique_ptr<Poste2D> m_poste;
};

// A rectangle of 100 x 50 from (0, 0), selected, and a square of 20 from (200, 10).
void EssaiSaisie2D::init() {
    m_poste = std::make_unique<Poste2D>();
    m_poste->OuvrirFenetre();
    QVERIFY(m_poste->fenetre->OuvrirFichier(m_poste->Fichier("deux.txt", DeuxTracesTexte)));
    Choisir({0, 25});
    QCOMPARE(Atelier().NombreSelections(), std::size_t{1});
}

void EssaiSaisie2D::LaLargeurTapeeCompteSurEntree() {
    Taper("txtMesures_0", "150");
    QCOMPARE(Trace(0).Largeur, 100.0F);
    QTest::keyClick(&m_poste->Trouver<ChampNombre>("txtMesures_0"), Qt::Key_Return);
    QCOMPARE(Trace(0).Largeur, 150.0F);
    QCOMPARE(Trace(0).Hauteur, 50.0F);
    QCOMPARE(Trace(0).XMin, 0.0F); // bottom left stays
    QCOMPARE(Trace(1).XMin, 200.0F);
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtMesures_0").text(), QStringLiteral("150.00"));
    QCOMPARE(m_poste->Trouver<QLabel>("lblDimensionSelection").text(),
             QStringLiteral("150.00 mm x 50.00 mm"));
}

void EssaiSaisie2D::LaHauteurTapeeCompteEnQuittantLeChamp() {
    Taper("txtMesures_1", "25,5");
    m_poste->Trouver<ChampNombre>("txtMesures_0").setFocus();
    QCOMPARE(Trace(0).Hauteur, 25.5F);
    QCOMPARE(Trace(0).Largeur, 100.0F);
}

void EssaiSaisie2D::LesProportionsSuivent() {
    m_poste->Cliquer<QCheckBox>("chkProportions");
    Taper("txtMesures_1", "100\r");
    QCOMPARE(Trace(0).Largeur, 200.0F);
    QCOMPARE(Trace(0).Hauteur, 100.0F);
}

void EssaiSaisie2D::LePointFixeChoisiResteEnPlace() {
    m_poste->Cliquer<QToolButton>("optPointFixe_4");
    Taper("txtMesures_0", "60\r");
    QCOMPARE(Trace(0).XMin, 20.0F);
    QCOMPARE(Trace(0).XMax, 80.0F);
    m_poste->Cliquer<QToolButton>("optPointFixe_2"); // top right
    Taper("txtMesures_1", "20\r");
    QCOMPARE(Trace(0).YMax, 50.0F);
    QCOMPARE(Trace(0).YMin, 30.0F);
}

void EssaiSaisie2D::UnDeplacementTapeBougeLaSelection() {
    m_poste->Cliquer<QToolButton>("optSaisie_1");
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtMesures_0").text(), QStringLiteral("0.00"));
    QCOMPARE(m_poste->Trouver<QLabel>("lblMesures_0").text(), QStringLiteral("En X"));
    Taper("txtMesures_0", "12.5\r");
    Taper("txtMesures_1", "-3\r");
    QCOMPARE(Trace(0).XMin, 12.5F);
    QCOMPARE(Trace(0).YMin, -3.0F);
    QCOMPARE(Trace(0).Largeur, 100.0F);
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtMesures_0").text(), QStringLiteral("0.00"));
}

void EssaiSaisie2D::LaTailleVivanteSeMontreAussiEnModeDeplacement() {
    m_poste->Cliquer<QToolButton>("optSaisie_1");
    const PointDessin prise =
        PlacePoignee(BoiteAffichee(Atelier().BoiteSelection(), Toile().Vue().echelle), "MD");
    Souris souris(Toile());
    souris.Appuyer(prise);
    souris.Aller({prise.X + 20, prise.Y});
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtMesures_0").text(), QStringLiteral("120.00"));
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtMesures_1").text(), QStringLiteral("50.00"));
    QCOMPARE(m_poste->Trouver<QLabel>("lblMesures_0").text(), QStringLiteral("Largeur"));
    souris.Relacher();
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtMesures_0").text(), QStringLiteral("0.00"));
    QCOMPARE(m_poste->Trouver<QLabel>("lblMesures_0").text(), QStringLiteral("En X"));
}

// A tool button takes no focus: what stands in a field must not be lost.
void EssaiSaisie2D::UnNombreTapeCompteAvantLOutilClique() {
    Taper("txtMesures_0", "150");
    m_poste->Cliquer<QToolButton>("cmdMiroir_0");
    QCOMPARE(Trace(0).Largeur, 150.0F);
    QCOMPARE(Trace(0).Points[0].X, 150.0); // the corner (0, 0) turned over within 150 mm
    Taper("txtMesures_1", "80");
    m_poste->Cliquer<QToolButton>("cmdQuartDeTour");
    QCOMPARE(Trace(0).Largeur, 80.0F);
    QCOMPARE(Trace(0).Hauteur, 150.0F);
}

void EssaiSaisie2D::UnNombreTapeCompteDansSonMode() {
    Taper("txtMesures_0", "150");
    m_poste->Cliquer<QToolButton>("optSaisie_1");
    QCOMPARE(Trace(0).Largeur, 150.0F);
    QCOMPARE(Trace(0).XMin, 0.0F);
    Taper("txtMesures_0", "7");
    m_poste->Cliquer<QToolButton>("optSaisie_0");
    QCOMPARE(Trace(0).XMin, 7.0F);
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtMesures_0").text(), QStringLiteral("150.00"));
}

void EssaiSaisie2D::UnBlocInchangeLaisseRetablir() {
    QTest::keyClick(&Toile(), Qt::Key_Right);
    m_poste->Cliquer<QToolButton>("cmdUndoTS2D_0");
    Taper("txtBloc_0", "770\r"); // as wide as it is
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtBloc_0").text(), QStringLiteral("770"));
    m_poste->Cliquer<QToolButton>("cmdUndoTS2D_1");
    QCOMPARE(Trace(0).XMin, 1.0F);
}

void EssaiSaisie2D::UnAngleTapeTourne() {
    Taper("txtAngle", "90\r");
    // About the middle (50, 25): the corner (0, 0) goes to (75, -25).
    QVERIFY(std::abs(Trace(0).Points[0].X - 75) < 1e-9);
    QVERIFY(std::abs(Trace(0).Points[0].Y + 25) < 1e-9);
    QCOMPARE(Trace(0).Hauteur, 100.0F);
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtAngle").text(), QStringLiteral("0.00"));
    const float position = Atelier().Historique().NbTransf;
    Taper("txtAngle", "720\r"); // whole turns are no deed
    QCOMPARE(Atelier().Historique().NbTransf, position);
}

void EssaiSaisie2D::LeQuartDeTourTourne() {
    m_poste->Cliquer<QToolButton>("cmdQuartDeTour");
    QCOMPARE(Trace(0).Largeur, 50.0F);
    QCOMPARE(Trace(0).Hauteur, 100.0F);
}

void EssaiSaisie2D::LesLettresNEntrentPas() {
    auto& champ = m_poste->Trouver<ChampNombre>("txtMesures_0");
    champ.setFocus();
    champ.selectAll();
    QTest::keyClicks(&champ, QStringLiteral("1a2e!3,5 x"));
    QCOMPARE(champ.text(), QStringLiteral("123,5"));
    QTest::keyClick(&champ, Qt::Key_Backspace);
    QCOMPARE(champ.text(), QStringLiteral("123,"));
    QTest::keyClick(&champ, Qt::Key_Escape);
    QCOMPARE(champ.text(), QStringLiteral("100.00"));
}

void EssaiSaisie2D::UnTexteQuiNEstPasUnNombreEstRefuse() {
    Taper("txtMesures_0", "1-2\r");
    QCOMPARE(m_poste->DerniereBoite().texte, std::string("Veuillez entrer un nombre décimal."));
    QCOMPARE(m_poste->DerniereBoite().titre, std::string("Erreur de saisie"));
    m_poste->Cliquer<QToolButton>("optSaisie_1");
    Taper("txtMesures_0", "--\r");
    QCOMPARE(m_poste->DerniereBoite().texte,
             std::string("Veuillez entrer un nombre décimal positif ou négatif."));
    QCOMPARE(m_poste->DerniereBoite().titre, std::string("Erreur de saisie"));
    QCOMPARE(m_poste->NombreBoites(), std::size_t{2});
    QCOMPARE(Trace(0).Largeur, 100.0F);
    QCOMPARE(Trace(0).XMin, 0.0F);
}

void EssaiSaisie2D::UneTailleNulleEstRefusee() {
    const std::vector<Sequence> avant = Espace().TableauSequences;
    Taper("txtMesures_1", "0\r");
    QCOMPARE(m_poste->NombreBoites(), std::size_t{1});
    QCOMPARE(m_poste->DerniereBoite().texte,
             std::string("L'opération demandée est impossible, une dimension est égale à zéro."));
    QCOMPARE(m_poste->DerniereBoite().titre, std::string("Calcul impossible"));
    QVERIFY(Espace().TableauSequences == avant);
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtMesures_1").text(), QStringLiteral("50.00"));
}

void EssaiSaisie2D::UnFacteurInfiniEstRefuse() {
    QVERIFY(m_poste->fenetre->OuvrirFichier(
        m_poste->Fichier("trait.txt", "Trait\r\n300.0:100.0\r\n340.0:100.0\r\n")));
    Choisir({320, 100});
    const std::vector<Sequence> avant = Espace().TableauSequences;
    Taper("txtMesures_1", "10\r"); // of a height of nothing
    QCOMPARE(m_poste->DerniereBoite().titre, std::string("Calcul impossible"));
    QVERIFY(Espace().TableauSequences == avant);
}

void EssaiSaisie2D::UneTailleDemesureeNeFaitRien() {
    const std::vector<Sequence> avant = Espace().TableauSequences;
    Taper("txtMesures_0", "99999999999999999999\r");
    QVERIFY(Espace().TableauSequences == avant);
    QCOMPARE(m_poste->NombreBoites(), std::size_t{0});
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtMesures_0").text(), QStringLiteral("100.00"));
}

void EssaiSaisie2D::SansSelectionLesChampsSontEteints() {
    QVERIFY(m_poste->Trouver<ChampNombre>("txtMesures_0").isEnabled());
    QTest::keyClick(&Toile(), Qt::Key_Escape);
    QCOMPARE(Atelier().NombreSelections(), std::size_t{0});
    for (const char* champ : {"txtMesures_0", "txtMesures_1", "txtAngle"})
        QVERIFY(!m_poste->Trouver<ChampNombre>(champ).isEnabled());
    QVERIFY(m_poste->Trouver<QLabel>("lblDimensionSelection").text().isEmpty());
}

void EssaiSaisie2D::LesFlechesPoussentLaSelection() {
    const VueDessin vue = Toile().Vue();
    QTest::keyClick(&Toile(), Qt::Key_Right);
    QTest::keyClick(&Toile(), Qt::Key_Up, Qt::ShiftModifier);
    QTest::keyClick(&Toile(), Qt::Key_Down, Qt::ControlModifier);
    QTest::keyClick(&Toile(), Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(Trace(0).Points[0].X, 1.0 - 10);
    QCOMPARE(Trace(0).Points[0].Y, 10 - 0.1);
    QVERIFY(Toile().Vue() == vue);
    Fenetre(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(Trace(0).Points[0].X, 1.0);
}

void EssaiSaisie2D::SansSelectionLesFlechesDeplacentLaVue() {
    QTest::keyClick(&Toile(), Qt::Key_Escape);
    const VueDessin vue = Toile().Vue();
    QTest::keyClick(&Toile(), Qt::Key_Right);
    QVERIFY(Toile().Vue() != vue);
    QCOMPARE(Trace(0).XMin, 0.0F);
}

void EssaiSaisie2D::SupprimerParLaTouche() {
    QTest::keyClick(&Toile(), Qt::Key_Delete);
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{1});
    QCOMPARE(Trace(0).XMin, 200.0F);
    Fenetre(Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&Toile(), Qt::Key_Delete);
    QVERIFY(Espace().TableauSequences.empty());
    QTest::keyClick(&Toile(), Qt::Key_Delete);
    // Without a path the cut tab says so and stays shut.
    m_poste->Cliquer<QPushButton>("cmdDecouper");
    QCOMPARE(m_poste->DerniereBoite().titre, std::string("Opération impossible"));
    Fenetre(Qt::Key_Z, Qt::ControlModifier);
    Fenetre(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{2});
}

void EssaiSaisie2D::LesRaccourcisDesOutils() {
    Fenetre(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(Atelier().NombreSelections(), std::size_t{2});
    Fenetre(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{4});
    Fenetre(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{2});
    Fenetre(Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{4});
    Fenetre(Qt::Key_Z, Qt::ControlModifier);
    Fenetre(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{4});
    Fenetre(Qt::Key_Insert);
    QVERIFY(Atelier().Outil() == OutilAtelier::InsererPoint);
    Fenetre(Qt::Key_K, Qt::ControlModifier);
    QVERIFY(Atelier().Outil() == OutilAtelier::CouperTrace);
    QTest::keyClick(&Toile(), Qt::Key_Escape);
    QVERIFY(Atelier().Outil() == OutilAtelier::Selection);
}

void EssaiSaisie2D::DupliquerInverserRefleter() {
    m_poste->Cliquer<QToolButton>("cmdDupliquer");
    QCOMPARE(Trace(2).XMin, 30.0F);
    QCOMPARE(Trace(2).YMin, 30.0F);
    QVERIFY(EstSelectionnee(Trace(2)) && !EstSelectionnee(Trace(0)));
    m_poste->Cliquer<QToolButton>("cmdInverser");
    QCOMPARE(Trace(2).Points[1].X, 30.0); // up the left side now
    QCOMPARE(Trace(2).Points[1].Y, 80.0);
    m_poste->Cliquer<QToolButton>("cmdMiroir_0");
    QCOMPARE(Trace(2).Points[0].X, 130.0);
    QCOMPARE(Trace(2).XMin, 30.0F);
    m_poste->Cliquer<QToolButton>("cmdMiroir_1");
    QCOMPARE(Trace(2).Points[0].Y, 80.0);
    m_poste->Cliquer<QToolButton>("cmdPoubelle");
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{2});
}

void EssaiSaisie2D::SansSelectionLesActionsNeFontRien() {
    QTest::keyClick(&Toile(), Qt::Key_Escape);
    const std::vector<Sequence> avant = Espace().TableauSequences;
    const float position = Atelier().Historique().NbTransf;
    for (const char* outil : {"cmdDupliquer", "cmdInverser", "cmdMiroir_0", "cmdMiroir_1", "cmdPoubelle"}) {
        QVERIFY(!m_poste->Trouver<QToolButton>(outil).isEnabled());
        m_poste->Cliquer<QToolButton>(outil);
    }
    Fenetre(Qt::Key_M, Qt::ControlModifier);
    QVERIFY(Espace().TableauSequences == avant);
    QCOMPARE(Atelier().Historique().NbTransf, position);
    QCOMPARE(m_poste->NombreBoites(), std::size_t{0});
}

void EssaiSaisie2D::UnNouveauProjetOublieLesEtats() {
    m_poste->boites.reponses = {ReponseBoite::Non};
    m_poste->Cliquer<QToolButton>("cmdNouveauProjetTS2D");
    QVERIFY(Espace().TableauSequences.empty());
    QCOMPARE(Atelier().Historique().NbTransf, 1.0F);
    QVERIFY(Atelier().Historique().PileTransformations.empty());
    QVERIFY(!m_poste->Trouver<QToolButton>("cmdUndoTS2D_0").isEnabled());
}

void EssaiSaisie2D::LesMotsSontCompletsEnAnglais() {
    m_poste = std::make_unique<Poste2D>(Langue::English);
    m_poste->OuvrirFenetre();
    QVERIFY(m_poste->fenetre->OuvrirFichier(m_poste->Fichier("deux.txt", DeuxTracesTexte)));
    QCOMPARE(m_poste->Trouver<QLabel>("lblMesures_0").text(), QStringLiteral("Width"));
    QVERIFY(m_poste->Trouver<QToolButton>("cmdUndoTS2D_0").toolTip().startsWith(QStringLiteral("Undo (")));
    Choisir({0, 25});
    m_poste->Cliquer<QToolButton>("optSaisie_1");
    QCOMPARE(m_poste->Trouver<QLabel>("lblMesures_1").text(), QStringLiteral("In Y"));
}

// One deed of a hurried hand, through buttons, fields, mouse and keys.
void EssaiSaisie2D::ActionAuHasard(std::mt19937& hasard) {
    const auto parmi = [&](unsigned n) { return static_cast<int>(hasard() % n); };
    const auto lieu = [&] { return PointDessin{parmi(4000) / 10.0 - 20, parmi(3000) / 10.0 - 20}; };
    Souris souris(Toile());
    if (!Espace().TableauSequences.empty() && parmi(3) == 0) {
        const Sequence& s = Trace(hasard() % Espace().TableauSequences.size());
        const PointProfil& p = s.Points[hasard() % s.Points.size()];
        souris.Cliquer({p.X, p.Y}, parmi(2) == 0 ? Qt::NoModifier : Qt::ControlModifier);
    }
    static constexpr const char* boutons[] = {"cmdInverser",        "cmdMiroir_0",   "cmdMiroir_1",
                                              "cmdQuartDeTour",     "cmdUndoTS2D_0", "cmdUndoTS2D_1",
                                              "cmdToutSelectionner"};
    const std::size_t traces = Espace().TableauSequences.size();
    switch (parmi(9)) {
    case 0:
        m_poste->Cliquer<QToolButton>(boutons[hasard() % std::size(boutons)]);
        break;
    case 1:
        m_poste->Cliquer<QToolButton>(traces < 12 ? "cmdDupliquer" : "cmdPoubelle");
        break;
    case 2: {
        const Sequence& b = Atelier().BoiteSelection();
        souris.Glisser({(b.XMin + b.XMax) / 2.0, (b.YMin + b.YMax) / 2.0}, lieu());
        break;
    }
    case 3:
        souris.Glisser(lieu(), lieu(), parmi(2) == 0 ? Qt::NoModifier : Qt::ControlModifier);
        break;
    case 4: {
        static constexpr const char* poignees[] = {"HG", "HM", "HD", "MG", "MD", "BG", "BM", "BD"};
        const PointDessin p = PlacePoignee(BoiteAffichee(Atelier().BoiteSelection(), Toile().Vue().echelle),
                                           poignees[hasard() % 8]);
        souris.Glisser(p, {p.X + parmi(60) - 30, p.Y + parmi(60) - 30},
                       parmi(2) == 0 ? Qt::ControlModifier : Qt::ShiftModifier);
        break;
    }
    case 5:
        QTest::keyClick(&Toile(), parmi(2) == 0 ? Qt::Key_Up : Qt::Key_Left);
        break;
    case 6:
        if (m_poste->Trouver<ChampNombre>("txtMesures_0").isEnabled())
            m_poste->Saisir(parmi(2) == 0 ? "txtMesures_0" : "txtMesures_1",
                            QStringLiteral("%1\r").arg(10 + parmi(90)));
        break;
    case 7:
        m_poste->Cliquer<QToolButton>(parmi(2) == 0 ? "cmdInsererPoint" : "cmdCouperTrace");
        souris.Cliquer(lieu());
        if (!Espace().TableauSequences.empty()) {
            const PointProfil& p = Trace(0).Points[Trace(0).Points.size() / 2];
            souris.Cliquer({p.X + 1, p.Y});
        }
        QTest::keyClick(&Toile(), Qt::Key_Escape);
        break;
    default:
        if (traces == 0 || parmi(40) == 0)
            m_poste->fenetre->OuvrirFichier(m_poste->Fichier("deux.txt", DeuxTracesTexte));
        else
            m_poste->Saisir("txtBloc_0", QStringLiteral("%1\r").arg(100 + parmi(600)));
    }
}

void EssaiSaisie2D::DeuxMilleActionsAuHasardSAnnulent() {
    m_poste->fenetre->resize(1000, 640);
    std::mt19937 hasard(41);
    // All undone first: the state to come back to is the empty project of the start.
    for (int i = 0; i < 2000; ++i) ActionAuHasard(hasard);
    const std::vector<Sequence> fin = Espace().TableauSequences;
    const Bloc blocFin = Espace().bloc;
    QVERIFY2(Atelier().Historique().NbTransf > 100, "the deeds must have left states");
    auto& arriere = m_poste->Trouver<QToolButton>("cmdUndoTS2D_0");
    auto& avant = m_poste->Trouver<QToolButton>("cmdUndoTS2D_1");
    while (arriere.isEnabled()) arriere.click();
    QCOMPARE(Atelier().Historique().NbTransf, 1.0F);
    QVERIFY(Espace().TableauSequences.empty()); // as before the first opening
    QCOMPARE(Espace().bloc.BlocX, 770.0F);
    avant.click();
    // The first opening, exactly as read.
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{2});
    QCOMPARE(Trace(0).Points.size(), std::size_t{5});
    QCOMPARE(Trace(0).Points[2].X, 100.0);
    QCOMPARE(Trace(0).Points[2].Y, 50.0);
    QCOMPARE(Trace(1).XMax, 220.0F);
    while (avant.isEnabled()) avant.click();
    QVERIFY(Espace().TableauSequences.size() == fin.size());
    for (std::size_t i = 0; i < fin.size(); ++i) QVERIFY(Trace(i).Points == fin[i].Points);
    QCOMPARE(Espace().bloc.BlocX, blocFin.BlocX);
}

QTEST_MAIN(EssaiSaisie2D)
#include "essai_saisie2d.moc"
