// While a cut heats, runs, stands or goes back, nothing else of the 2D window gets at it: commands, keys,
// files, the hand on the canvas. What is at hand is what may be.
#include "fenetres/coupe_2d.h"
#include "fenetres/souris.h"
#include "ui/boites_qt.h"
#include "ui/canevas.h"

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QSet>
#include <QShortcut>
#include <QSignalSpy>

#include <string>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

struct Garde : Coupe {
    Garde() : voulus(PasVoulus()), points(poste.fenetre->DecoupeMontree().SequenceDecoupe.Points) {
        projet = poste.Fichier("autre.txt", DeuxTracesTexte);
        sequences = poste.fenetre->Espace().TableauSequences.size();
    }
    // Controls that would do something if they were touched now.
    [[nodiscard]] QSet<QString> APortee() const {
        QSet<QString> noms;
        for (const auto* controle : poste.fenetre->findChildren<QWidget*>()) {
            const bool agit = qobject_cast<const QAbstractButton*>(controle) != nullptr ||
                              qobject_cast<const QComboBox*>(controle) != nullptr ||
                              qobject_cast<const QLineEdit*>(controle) != nullptr ||
                              qobject_cast<const QAbstractSlider*>(controle) != nullptr ||
                              qobject_cast<const QAbstractItemView*>(controle) != nullptr;
            const bool interne =
                controle->objectName().isEmpty() || controle->objectName().startsWith(u"qt_");
            if (agit && !interne && controle->isVisible() && controle->isEnabled())
                noms << controle->objectName();
        }
        return noms;
    }
    // Looking closer touches nothing.
    [[nodiscard]] static QSet<QString> Avec(std::initializer_list<const char*> autres) {
        QSet<QString> noms = {QStringLiteral("cmdZoomTout"), QStringLiteral("cmdZoomPlus"),
                              QStringLiteral("cmdZoomMoins"), QStringLiteral("hscDecoupe"),
                              QStringLiteral("vscDecoupe")};
        for (const char* autre : autres) noms << QString::fromLatin1(autre);
        return noms;
    }
    // Every key sequence that the window knows, but for the one of Stop.
    [[nodiscard]] QList<QKeySequence> Raccourcis() const {
        QList<QKeySequence> touches = {QKeySequence(Qt::CTRL | Qt::Key_U),
                                       QKeySequence(Qt::CTRL | Qt::Key_Return), QKeySequence(Qt::Key_Return),
                                       QKeySequence(Qt::Key_Delete)};
        for (const auto* bouton : poste.fenetre->findChildren<QAbstractButton*>())
            if (!bouton->shortcut().isEmpty()) touches << bouton->shortcut();
        for (const auto* raccourci : poste.fenetre->findChildren<QShortcut*>()) touches << raccourci->key();
        touches.removeAll(QKeySequence(Qt::Key_Escape));
        return touches;
    }
    // Everything that a person, another program or chance could do now.
    void ToutEssayer() {
        poste.Deposer({projet});
        QMimeData donnees;
        donnees.setUrls({QUrl::fromLocalFile(QString::fromStdString(projet))});
        QDropEvent depot({400, 300}, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(poste.fenetre.get(), &depot); // whose drag began before
        auto& canevas = poste.Trouver<Canevas>("pctDecoupe");
        canevas.setFocus();
        for (const QKeySequence& touches : Raccourcis()) QTest::keySequence(poste.fenetre.get(), touches);
        QTest::keyClick(&canevas, Qt::Key_Space);
        Souris souris(canevas);
        souris.Glisser({20, 20}, {80, 60});
        souris.Cliquer({50, 25});
        QTest::mouseDClick(&canevas, Qt::LeftButton, Qt::NoModifier, canevas.rect().center());
        for (auto* bouton : poste.fenetre->findChildren<QAbstractButton*>())
            if (bouton->isVisible() && !bouton->isEnabled()) QTest::mouseClick(bouton, Qt::LeftButton);
    }
    void RienNAChange() {
        QCOMPARE(poste.fenetre->Espace().TableauSequences.size(), sequences);
        QVERIFY(poste.fenetre->DecoupeMontree().SequenceDecoupe.Points == points);
        QVERIFY(poste.fenetre->DecoupeOuverte());
        QVERIFY(poste.demandes.empty()); // no file dialog
        QCOMPARE(reglages.count() + matieres.count(), 0);
        QCOMPARE(TableINI.Nom, std::string("(Defaut)"));
    }

    std::array<std::uint64_t, 4> voulus;
    std::vector<PointProfil> points;
    std::string projet;
    std::size_t sequences = 0;
    QSignalSpy reglages{poste.fenetre.get(), &frmTessarel2D::ParametrerMachine};
    QSignalSpy matieres{poste.fenetre.get(), &frmTessarel2D::GererMatieres};
};

} // namespace

class EssaiGardeCourse2D : public QObject {
    Q_OBJECT
private slots:
    void EnMarche_data();
    void EnMarche();
    void Arretee();
    void PendantLeRetour();
    void UnDoubleClicNeLanceQuUneFois();
    void UneToucheDeTropNeRallumePasLeFil_data();
    void UneToucheDeTropNeRallumePasLeFil();
    void EchapArreteDOuQueCeSoit();
};

void EssaiGardeCourse2D::EnMarche_data() {
    QTest::addColumn<QString>("mots");
    QTest::addColumn<bool>("curseur");
    QTest::addRow("heating") << QStringLiteral("Chauffe ") << false;
    QTest::addRow("cutting") << QStringLiteral("Découpe segment n°4/") << true;
}
void EssaiGardeCourse2D::EnMarche() {
    QFETCH(QString, mots);
    QFETCH(bool, curseur);
    Garde g;
    g.Quand(mots, [&] {
        QCOMPARE(g.APortee(),
                 curseur ? Garde::Avec({"cmdSTOP", "hscChauffePendantDecoupe"}) : Garde::Avec({"cmdSTOP"}));
        g.ToutEssayer();
        g.RienNAChange();
        QVERIFY(g.poste.fenetre->Course().enCours);
    });
    g.Lancer();
    QVERIFY(g.fait);
    g.RienNAChange();
    QCOMPARE(g.poste.NombreBoites(), std::size_t(1));
    QCOMPARE(g.poste.DerniereBoite().titre, std::string("machine disponible"));
    QVERIFY(g.virtuelle.boite->Comptes().pas == g.voulus);
    QVERIFY(g.FilFroid() && g.AuRepos());
}

void EssaiGardeCourse2D::Arretee() {
    Garde g;
    g.Coupe::Arreter();
    QVERIFY(g.Coupe::Arretee());
    QCOMPARE(g.APortee(), Garde::Avec({"cmdRepriseDecoupe", "cmdLancerRetourApresStop", "cmdAnnulerReprise",
                                       "optTrajetRetour_0", "optTrajetRetour_1", "cmdRafraichirUsbTS2D"}));
    const std::size_t departs = g.virtuelle.Compter(CommandeFile, 128);
    g.ToutEssayer();
    g.RienNAChange();
    QVERIFY(g.Coupe::Arretee() && g.FilFroid());
    QCOMPARE(g.virtuelle.Compter(CommandeFile, 128), departs);
    g.poste.Cliquer<QPushButton>("cmdRepriseDecoupe");
    QVERIFY(g.virtuelle.boite->Comptes().pas == g.voulus);
    QVERIFY(g.AuRepos());
}

void EssaiGardeCourse2D::PendantLeRetour() {
    Garde g;
    g.Coupe::Arreter();
    g.Quand(QStringLiteral("Découpe segment n°2/"), [&] {
        QCOMPARE(g.APortee(), Garde::Avec({"cmdStopRetourApresReprise", "hscChauffePendantDecoupe"}));
        g.ToutEssayer();
        g.RienNAChange();
    });
    g.poste.Cliquer<QPushButton>("cmdLancerRetourApresStop");
    QVERIFY(g.fait);
    g.RienNAChange();
    QCOMPARE(g.poste.DerniereBoite().texte, TextesDoubles(44, 1));
    QVERIFY(g.virtuelle.boite->Position() == simulateur::PositionPas{});
    QVERIFY(g.FilFroid() && g.AuRepos());
}

void EssaiGardeCourse2D::UnDoubleClicNeLanceQuUneFois() {
    Garde g;
    auto& lancer = g.poste.Trouver<QPushButton>("cmdLancerLaDecoupeTS2D");
    const QPoint ou = lancer.mapTo(g.poste.fenetre.get(), lancer.rect().center());
    // The second click comes while the run begins, onto whatever stands there by then: Stop, or nothing that
    // acts. It never starts another run.
    g.Quand(QStringLiteral("Mise en température"), [&] {
        if (QWidget* dessous = g.poste.fenetre->childAt(ou)) QTest::mouseDClick(dessous, Qt::LeftButton);
    });
    g.Lancer();
    QVERIFY(g.fait);
    QVERIFY(g.virtuelle.Compter(CommandeFile, 128) <= 1);
    QCOMPARE(g.poste.NombreBoites(), std::size_t(1));
    const std::string titre = g.poste.DerniereBoite().titre;
    QVERIFY(titre == "machine disponible" || titre == "Arrêt pendant la chauffe");
    QVERIFY(g.FilFroid() && g.AuRepos());
}

void EssaiGardeCourse2D::UneToucheDeTropNeRallumePasLeFil_data() {
    QTest::addColumn<QString>("mots");
    QTest::addColumn<int>("touche");
    for (const auto& [nom, touche] :
         {std::pair("space", Qt::Key_Space), std::pair("enter", Qt::Key_Return)}) {
        QTest::addRow("heating, %s", nom) << QStringLiteral("Chauffe ") << int(touche);
        QTest::addRow("cutting, %s", nom) << QStringLiteral("Découpe segment n°4/") << int(touche);
    }
}
// Stop by the keyboard, and again, and again.
void EssaiGardeCourse2D::UneToucheDeTropNeRallumePasLeFil() {
    QFETCH(QString, mots);
    QFETCH(int, touche);
    Garde g;
    g.Quand(mots, [&] {
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("cmdSTOP"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    });
    g.Lancer();
    QVERIFY(g.fait && g.FilFroid());
    const std::size_t departs = g.virtuelle.Compter(CommandeFile, 128);
    for (int i = 0; i < 3; ++i) {
        QWidget* la = QApplication::focusWidget();
        if (la == nullptr) la = g.poste.fenetre.get();
        QTest::keyClick(la, static_cast<Qt::Key>(touche));
    }
    QCOMPARE(g.virtuelle.Compter(CommandeFile, 128), departs);
    QVERIFY(g.FilFroid());
    QVERIFY(g.AuRepos() || g.Coupe::Arretee());
}

void EssaiGardeCourse2D::EchapArreteDOuQueCeSoit() {
    Garde g;
    g.Quand(QStringLiteral("Découpe segment n°4/"), [&] {
        auto& canevas = g.poste.Trouver<Canevas>("pctDecoupe");
        canevas.setFocus();
        QTest::keyClick(&canevas, Qt::Key_Escape);
    });
    g.Lancer();
    QVERIFY(g.fait && g.Coupe::Arretee() && g.FilFroid());
    // Again: nothing is given up by a key too many.
    QTest::keyClick(g.poste.fenetre.get(), Qt::Key_Escape);
    QVERIFY(g.Coupe::Arretee());
}

QTEST_MAIN(EssaiGardeCourse2D)
#include "essai_garde_course_2d.moc"
