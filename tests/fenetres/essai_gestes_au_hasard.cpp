// A restless hand on the 2D window: presses that are never released, wheels and keys in the middle of a drag,
// focus lost, tools changed, undo at any moment. Whatever it does, the records stay sound, nothing sticks,
// and undo leads back to the start.
#include "fenetres/poste_atelier.h"
#include "work2d/ui/panneau_bibliotheque.h"

#include <QCheckBox>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QPushButton>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <random>

using namespace tessarel;
using essais::DeuxTracesTexte;
using essais::PosteAtelier;

namespace {

constexpr int Evenements = 3600;      // of one seed: an hour at one a second
constexpr std::size_t TracesMax = 24; // beyond, the hand throws some away

} // namespace

class EssaiGestesAuHasard : public QObject, private PosteAtelier {
    Q_OBJECT
private slots:
    void cleanup() { Ranger(); }
    void NImporteQuelGesteLaisseDesDonneesSaines_data();
    void NImporteQuelGesteLaisseDesDonneesSaines();

private:
    int Parmi(int n) { return static_cast<int>(m_hasard() % static_cast<unsigned>(n)); }
    bool UneFoisSur(int n) { return Parmi(n) == 0; }
    PointDessin Cible();
    void Souris(QEvent::Type type, Qt::MouseButton bouton);
    void Aller();
    void Appuyer(Qt::MouseButton bouton);
    void Relacher(Qt::MouseButton bouton);
    void DoubleCliquer();
    void Roulette();
    void Touche(Qt::Key touche);
    void ChangerTouches();
    void PerdreLeFocus();
    void PerdreLeRelachement() { m_boutons = Qt::NoButton; }
    void CliquerUnOutil();
    void Presser(const char* bouton) { m_poste->Trouver<QAbstractButton>(bouton).click(); }
    void Ailleurs();
    void UnEvenement();
    void Verifier();
    void VerifierRienNeColle();
    [[nodiscard]] std::vector<std::vector<PointProfil>> Points() const;

    std::mt19937 m_hasard;
    QPointF m_ou{300, 300};
    Qt::MouseButtons m_boutons;
    Qt::KeyboardModifiers m_touches;
    bool m_revenuAuDebut = false; // a deed may have followed on the empty project
    QString m_dernier;            // what was done last, for the message of a failure
};

// Where a hand would go: a handle, the middle of the box, just outside it, a vertex, or anywhere.
PointDessin EssaiGestesAuHasard::Cible() {
    static constexpr const char* poignees[] = {"HG", "HM", "HD", "MG", "MD", "BG", "BM", "BD"};
    const Sequence& boite = Atelier().BoiteSelection();
    const double pixel = 1 / Toile().Vue().echelle;
    switch (Parmi(6)) {
    case 0:
        return Poignee(poignees[Parmi(8)]);
    case 1:
        return MilieuBoite(boite);
    case 2: {
        const PointDessin coin = Poignee("HD");
        return {coin.X + 15 * pixel, coin.Y + 12 * pixel};
    }
    case 3:
    case 4:
        if (!Espace().TableauSequences.empty()) {
            const std::vector<PointProfil>& p = Trace(m_hasard() % Espace().TableauSequences.size()).Points;
            const std::size_t i = m_hasard() % p.size();
            const PointProfil& a = p[i];
            const PointProfil& b = p[std::min(i + 1, p.size() - 1)];
            return UneFoisSur(2) ? PointDessin{a.X, a.Y} : PointDessin{(a.X + b.X) / 2, (a.Y + b.Y) / 2};
        }
        [[fallthrough]];
    default:
        return Toile().EnMm(QPointF(Parmi(Toile().width() + 40) - 20, Parmi(Toile().height() + 40) - 20));
    }
}

void EssaiGestesAuHasard::Souris(QEvent::Type type, Qt::MouseButton bouton) {
    QMouseEvent evenement(type, m_ou, Toile().mapToGlobal(m_ou), bouton, m_boutons, m_touches);
    QApplication::sendEvent(&Toile(), &evenement);
}

void EssaiGestesAuHasard::Aller() {
    const auto avant = Points();
    const QPointF cible = Toile().EnPixels(Cible());
    const int pas = 1 + Parmi(3);
    for (int i = 0; i < pas; ++i) {
        m_ou += (cible - m_ou) / (pas - i);
        Souris(QEvent::MouseMove, Qt::NoButton);
    }
    QVERIFY2(Points() == avant, "a move of the mouse changed points");
}

void EssaiGestesAuHasard::Appuyer(Qt::MouseButton bouton) {
    if (m_boutons.testFlag(bouton)) return;
    m_boutons |= bouton;
    Souris(QEvent::MouseButtonPress, bouton);
}

void EssaiGestesAuHasard::Relacher(Qt::MouseButton bouton) {
    if (!m_boutons.testFlag(bouton)) return;
    m_boutons &= ~Qt::MouseButtons(bouton);
    Souris(QEvent::MouseButtonRelease, bouton);
}

void EssaiGestesAuHasard::DoubleCliquer() {
    if (m_boutons != Qt::NoButton) return;
    Appuyer(Qt::LeftButton);
    Relacher(Qt::LeftButton);
    m_boutons = Qt::LeftButton;
    Souris(QEvent::MouseButtonDblClick, Qt::LeftButton);
    if (!UneFoisSur(4)) Relacher(Qt::LeftButton);
}

void EssaiGestesAuHasard::Roulette() {
    const auto avant = Points();
    QWheelEvent evenement(m_ou, Toile().mapToGlobal(m_ou), {}, {0, UneFoisSur(2) ? 120 : -120}, m_boutons,
                          m_touches, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Toile(), &evenement);
    QVERIFY2(Points() == avant, "the wheel changed points");
}

void EssaiGestesAuHasard::Touche(Qt::Key touche) {
    const float position = Atelier().Historique().NbTransf;
    const bool enGeste = Atelier().GesteEnCours();
    const auto avant = Points();
    QTest::keyClick(&Toile(), touche, m_touches & ~Qt::KeyboardModifiers(Qt::AltModifier));
    if (touche != Qt::Key_Escape && !enGeste) return;
    QVERIFY2(Points() == avant, "a key in the middle of a drag, or Esc, changed points");
    QCOMPARE(Atelier().Historique().NbTransf, position);
}

// A key of the hand that stays on the keyboard goes down or up, in mid-drag or not.
void EssaiGestesAuHasard::ChangerTouches() {
    static constexpr std::pair<Qt::Key, Qt::KeyboardModifier> touches[] = {
        {Qt::Key_Shift, Qt::ShiftModifier},
        {Qt::Key_Control, Qt::ControlModifier},
        {Qt::Key_Alt, Qt::AltModifier}};
    const auto& [touche, drapeau] = touches[Parmi(3)];
    const bool enfoncee = m_touches.testFlag(drapeau);
    m_touches ^= drapeau;
    if (enfoncee)
        QTest::keyRelease(&Toile(), touche, m_touches);
    else
        QTest::keyPress(&Toile(), touche, m_touches);
}

void EssaiGestesAuHasard::PerdreLeFocus() {
    QFocusEvent perdu(QEvent::FocusOut, UneFoisSur(2) ? Qt::ActiveWindowFocusReason : Qt::OtherFocusReason);
    QApplication::sendEvent(&Toile(), &perdu);
    QEvent sortie(QEvent::Leave);
    QApplication::sendEvent(&Toile(), &sortie);
    if (UneFoisSur(2)) PerdreLeRelachement();
}

void EssaiGestesAuHasard::CliquerUnOutil() {
    static constexpr const char* outils[] = {
        "cmdUndoTS2D_0", "cmdUndoTS2D_1",  "cmdUndoTS2D_0",       "cmdInverser",     "cmdMiroir_0",
        "cmdMiroir_1",   "cmdQuartDeTour", "cmdToutSelectionner", "cmdInsererPoint", "cmdCouperTrace",
        "cmdSelection",  "cmdSelection",   "cmdZoomTout"};
    Presser(outils[Parmi(static_cast<int>(std::size(outils)))]);
}

// What takes the table away from under the hand, or changes it.
void EssaiGestesAuHasard::Ailleurs() {
    switch (Parmi(6)) {
    case 0: // the cut tab and back
        Presser("cmdDecouper");
        if (m_poste->fenetre->DecoupeOuverte()) {
            if (UneFoisSur(2)) Presser("cmdSimulation");
            Presser("cmdAnnulerDecoupe");
        }
        break;
    case 1: // a preview and back
        emit m_poste->Trouver<PanneauBibliotheque>("frameBibliotheque")
            .FichierRegarde(QByteArray::fromStdString(m_poste->dossier.Fichier("deux.txt")));
        Aller();
        Presser("cmdFermerApercu");
        break;
    case 2:
        Presser(UneFoisSur(2) ? "chkCentrer_1" : "chkCentrer_2");
        break;
    case 3:
        Presser(UneFoisSur(2) ? "cmdBlocAuto" : "chkZoomProjet");
        break;
    case 4:
        m_poste->fenetre->resize(1000 + Parmi(280), 640 + Parmi(160));
        break;
    default:
        if (m_poste->Trouver<ChampNombre>("txtMesures_0").isEnabled())
            m_poste->Saisir(UneFoisSur(2) ? "txtMesures_0" : "txtMesures_1",
                            QStringLiteral("%1\r").arg(10 + Parmi(150)));
    }
    m_poste->boites.boites.clear(); // what the cut, or a size for a side without any, has to say
}

void EssaiGestesAuHasard::UnEvenement() {
    static constexpr Qt::Key touches[] = {Qt::Key_Escape, Qt::Key_Escape, Qt::Key_Left,
                                          Qt::Key_Up,     Qt::Key_Delete, Qt::Key_Plus};
    const int quoi = Parmi(100);
    m_dernier = QStringLiteral("event %1, buttons %2, keys %3")
                    .arg(quoi)
                    .arg(static_cast<int>(m_boutons))
                    .arg(static_cast<int>(m_touches));
    if (quoi < 38) {
        Aller();
    } else if (quoi < 52) {
        Appuyer(Qt::LeftButton);
    } else if (quoi < 64) {
        Relacher(Qt::LeftButton);
    } else if (quoi < 70) {
        const Qt::MouseButton bouton = UneFoisSur(2) ? Qt::RightButton : Qt::MiddleButton;
        if (m_boutons.testFlag(bouton))
            Relacher(bouton);
        else
            Appuyer(bouton);
    } else if (quoi < 73) {
        DoubleCliquer();
    } else if (quoi < 77) {
        Roulette();
    } else if (quoi < 82) {
        ChangerTouches();
    } else if (quoi < 87) {
        Touche(touches[Parmi(static_cast<int>(std::size(touches)))]);
    } else if (quoi < 89) {
        PerdreLeFocus();
    } else if (quoi < 90) {
        PerdreLeRelachement();
    } else if (quoi < 91) {
        QContextMenuEvent menu(QContextMenuEvent::Mouse, m_ou.toPoint(), Toile().mapToGlobal(m_ou.toPoint()));
        QApplication::sendEvent(&Toile(), &menu);
    } else if (quoi < 96) {
        CliquerUnOutil();
    } else if (quoi < 98) {
        Presser(Espace().TableauSequences.size() < TracesMax ? "cmdDupliquer" : "cmdPoubelle");
    } else {
        Ailleurs();
    }
}

std::vector<std::vector<PointProfil>> EssaiGestesAuHasard::Points() const {
    std::vector<std::vector<PointProfil>> points;
    for (const Sequence& s : Espace().TableauSequences) points.push_back(s.Points);
    return points;
}

// What must hold after any event.
void EssaiGestesAuHasard::Verifier() {
    const std::vector<Sequence>& traces = Espace().TableauSequences;
    for (const Sequence& s : traces) {
        QVERIFY2(!s.Points.empty(), "a path without points");
        for (const PointProfil& p : s.Points)
            QVERIFY2(std::abs(p.X) <= LimiteCoordonnee && std::abs(p.Y) <= LimiteCoordonnee,
                     "a point off the map");
        Sequence bornes = s;
        CalculerBornesSequence(bornes);
        QVERIFY2(bornes == s, "the bounds of a path are not those of its points");
    }
    QVERIFY2(Atelier().BoiteSelection() == CalculerBoiteSelection(traces),
             "the box is not that of the selection");
    QCOMPARE(Atelier().NombreSelections(), CompterSelections(traces));
    const Historique2D& etats = Atelier().Historique();
    m_revenuAuDebut |= !PeutAnnuler(etats);
    QCOMPARE(m_poste->Trouver<QToolButton>("cmdUndoTS2D_0").isEnabled(), PeutAnnuler(etats));
    QCOMPARE(m_poste->Trouver<QToolButton>("cmdUndoTS2D_1").isEnabled(), PeutRefaire(etats));
    QCOMPARE(m_poste->Trouver<QToolButton>("cmdPoubelle").isEnabled(), Atelier().NombreSelections() > 0);
    QVERIFY2(!(Atelier().GesteEnCours() && Toile().GesteEnCours()), "two gestures at once");
    // Only a path cut at its end is refused by a box.
    for (const Boite& boite : m_poste->boites.boites)
        QVERIFY2(boite.texte.starts_with("Vous avez coupé sur le "), boite.texte.c_str());
    m_poste->boites.boites.clear();
}

// No button is down: a move of the mouse is nothing but a move of the mouse.
void EssaiGestesAuHasard::VerifierRienNeColle() {
    m_boutons = Qt::NoButton;
    const VueDessin vue = Toile().Vue();
    for (const QPointF ou : {QPointF(200, 200), QPointF(320, 260)}) {
        m_ou = ou;
        Aller();
        QVERIFY2(!Atelier().GesteEnCours(), "a drag goes on without a button");
        QVERIFY2(!Toile().GesteEnCours(), "a gesture of the view goes on without a button");
    }
    QVERIFY2(Toile().Vue() == vue, "the view follows a mouse without a button");
    if (Toile().rect().contains(m_ou.toPoint()))
        QVERIFY2(!Etat().isEmpty(), "nothing says what the mouse would do");
    // The selected paths have the layer of the selection, as they stand.
    const auto& traits = Toile().Montre(Canevas::CoucheSelection).Liste().traits;
    QCOMPARE(traits.size(), Atelier().NombreSelections());
}

void EssaiGestesAuHasard::NImporteQuelGesteLaisseDesDonneesSaines_data() {
    QTest::addColumn<unsigned>("graine");
    const int graines = qEnvironmentVariableIntValue("TESSAREL_GRAINES"); // more of them, for a long look
    for (unsigned graine = 1; graine <= static_cast<unsigned>(std::max(graines, 5)); ++graine)
        QTest::addRow("graine %u", graine) << graine;
}

void EssaiGestesAuHasard::NImporteQuelGesteLaisseDesDonneesSaines() {
    QFETCH(unsigned, graine);
    Preparer();
    m_hasard.seed(graine);
    m_boutons = Qt::NoButton;
    m_touches = Qt::NoModifier;
    m_revenuAuDebut = false;
    m_poste->fenetre->resize(1000, 640);
    const auto depart = Points();
    for (int i = 0; i < Evenements; ++i) {
        if (Espace().TableauSequences.empty() && UneFoisSur(8)) {
            Presser("cmdSelection");
            QVERIFY(m_poste->fenetre->OuvrirFichier(m_poste->dossier.Fichier("deux.txt")));
        }
        UnEvenement();
        if (QTest::currentTestFailed()) QFAIL(qPrintable(QStringLiteral("at %1: %2").arg(i).arg(m_dernier)));
        Verifier();
        if (i % 10 == 9) VerifierRienNeColle();
        if (i % 40 == 0) QApplication::processEvents();
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QStringLiteral("at %1, after %2").arg(i).arg(m_dernier)));
    }
    const auto fin = Points();
    const Bloc blocFin = Espace().bloc;
    const float position = Atelier().Historique().NbTransf;
    QVERIFY2(position > 20, "the hand must have done something");
    auto& arriere = m_poste->Trouver<QToolButton>("cmdUndoTS2D_0");
    auto& avant = m_poste->Trouver<QToolButton>("cmdUndoTS2D_1");
    while (arriere.isEnabled()) arriere.click();
    QVERIFY2(Points().empty(), "the window had no path before its first opening");
    QCOMPARE(Espace().bloc.BlocX, 770.0F);
    avant.click();
    if (!m_revenuAuDebut) QVERIFY2(Points() == depart, "the first opening, to the bit");
    while (Atelier().Historique().NbTransf < position) avant.click();
    QVERIFY2(Points() == fin, "and all that came after it");
    QCOMPARE(Espace().bloc.BlocX, blocFin.BlocX);
    QCOMPARE(Espace().bloc.BlocY, blocFin.BlocY);
}

QTEST_MAIN(EssaiGestesAuHasard)
#include "essai_gestes_au_hasard.moc"
