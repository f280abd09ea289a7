// Keys and clicks while a wire is hot: those that come late, that are held, that come twice, and the one that
// stops wherever the keyboard is.
#include "app/ui/application.h"
#include "fenetres/banc_surete.h"
#include "ui/theme.h"

#include <QElapsedTimer>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolButton>

using namespace tessarel;
using namespace tessarel::essais;

class EssaiSureteTouches : public QObject {
    Q_OBJECT
private slots:
    void init() { AppliquerTheme(Theme::Clair); }

    void EchapJusteApresLeDepartArreteAuLieuDeFermer();
    void UneToucheTardiveNOuvreRienPendantLaCourse_data();
    void UneToucheTardiveNOuvreRienPendantLaCourse();
    void UneToucheNePassePasDerriereUnDialogue();
    void UneToucheNePassePasDerriereUnMenu();
    void LesTouchesDesAutresCommandesSontMortes();
    void StopAgitDesQuIlEstEnfonce_data();
    void StopAgitDesQuIlEstEnfonce();
    void EchapAgitOuQueSoitLeClavier();
    void EchapTenuNeComptePasDeuxFois();
    void EchapArreteAussiAvecUnApercuMontre();
    void EspaceQuiArreteNeReprendPas();
    void EspaceQuiArreteLaChauffeNeRelancePas();
    void LeSecondClicDuDepartNArretePas();
    void UnClicSuivantArreteBien();
};

void EssaiSureteTouches::EchapJusteApresLeDepartArreteAuLieuDeFermer() {
    // Short exchanges: the heating outlasts both keys, whose timers run by the real clock.
    Banc banc("(Defaut)", std::chrono::microseconds(10));
    bool pageDeLaCourse = true;
    banc.virtuelle.SurPompe = [&] {
        if (banc.poste.fenetre->Course().enCours)
            pageDeLaCourse = pageDeLaCourse && banc.poste.Trouver<QPushButton>("cmdSTOP").isVisible();
    };
    // As their keys press them, the second before the first one counts (100 ms), and far enough from it that
    // the clock of coarse timers keeps their order.
    banc.poste.Trouver<QPushButton>("cmdLancerLaDecoupeTS2D").animateClick();
    QTest::qSleep(50);
    banc.poste.Trouver<QPushButton>("cmdAnnulerDecoupe").animateClick();
    QTRY_VERIFY_WITH_TIMEOUT(!banc.poste.boites.boites.empty(), 10000);
    QTRY_VERIFY(!banc.poste.fenetre->Course().enCours);
    QVERIFY(pageDeLaCourse);
    QVERIFY(banc.poste.fenetre->DecoupeOuverte());
    QCOMPARE(banc.poste.DerniereBoite().titre, std::string("Arrêt pendant la chauffe"));
    QVERIFY(banc.virtuelle.boite->Position() == simulateur::PositionPas{});
    QVERIFY(banc.FroidEtImmobile());
}

void EssaiSureteTouches::UneToucheTardiveNOuvreRienPendantLaCourse_data() {
    QTest::addColumn<int>("touche");
    QTest::addColumn<int>("modificateurs");
    QTest::addRow("machine") << int(Qt::Key_F8) << 0;
    QTest::addRow("help") << int(Qt::Key_F1) << 0;
    QTest::addRow("open") << int(Qt::Key_O) << int(Qt::ControlModifier);
    QTest::addRow("library") << int(Qt::Key_L) << int(Qt::ControlModifier);
}

void EssaiSureteTouches::UneToucheTardiveNOuvreRienPendantLaCourse() {
    QFETCH(int, touche);
    QFETCH(int, modificateurs);
    Banc banc;
    QSignalSpy reglages(banc.poste.fenetre.get(), &frmTessarel2D::ParametrerMachine);
    QSignalSpy matieres(banc.poste.fenetre.get(), &frmTessarel2D::GererMatieres);
    const bool bibliotheque = banc.poste.Trouver<QToolButton>("cmdBibliotheque").isChecked();
    FermeurDeMenus menus;
    QElapsedTimer temps;
    bool enCours = false;
    banc.virtuelle.SurPompe = [&] {
        // Long enough for the second key to fire, were it to.
        if (!enCours) temps.start();
        enCours = true;
        if (temps.elapsed() < 130) QTest::qSleep(5);
    };
    QTest::keyClick(banc.poste.fenetre.get(), Qt::Key_Return, Qt::ControlModifier);
    QTest::keyClick(banc.poste.fenetre.get(), Qt::Key(touche), Qt::KeyboardModifiers(modificateurs));
    QTRY_VERIFY_WITH_TIMEOUT(enCours && !banc.poste.fenetre->Course().enCours, 10000);
    QTest::qWait(150);
    QCOMPARE(reglages.count() + matieres.count(), 0);
    QVERIFY(banc.poste.demandes.empty());
    QVERIFY(!menus.ouvert);
    QCOMPARE(banc.poste.Trouver<QToolButton>("cmdBibliotheque").isChecked(), bibliotheque);
    QCOMPARE(banc.poste.NombreBoites(), std::size_t(1));
    QCOMPARE(banc.poste.DerniereBoite().titre, std::string("machine disponible"));
    QVERIFY(banc.poste.fenetre->DecoupeOuverte());
    // After the run the key is alive again.
    if (touche == Qt::Key_F8) {
        QTest::keyClick(banc.poste.fenetre.get(), Qt::Key_F8);
        QTRY_COMPARE(reglages.count(), 1);
    }
}

void EssaiSureteTouches::UneToucheNePassePasDerriereUnDialogue() {
    Banc banc;
    QTest::keyClick(banc.poste.fenetre.get(), Qt::Key_Return, Qt::ControlModifier);
    QDialog dialogue(banc.poste.fenetre.get());
    QTimer::singleShot(300, &dialogue, &QDialog::accept);
    dialogue.exec(); // as the box of another command that came first
    QTest::qWait(150);
    QVERIFY(!banc.Parti());
    QVERIFY(!banc.poste.fenetre->Course().enCours);
    QVERIFY(!banc.poste.Trouver<QPushButton>("cmdLancerLaDecoupeTS2D").isDown());
}

void EssaiSureteTouches::UneToucheNePassePasDerriereUnMenu() {
    Banc banc;
    QTest::keyClick(banc.poste.fenetre.get(), Qt::Key_Return, Qt::ControlModifier);
    bool ouvert = false;
    QTimer::singleShot(300, [&ouvert] {
        QWidget* menu = QApplication::activePopupWidget();
        ouvert = menu != nullptr && menu->close();
    });
    QTest::keyClick(banc.poste.fenetre.get(), Qt::Key_R, Qt::ControlModifier); // opens at once, and waits
    QTest::qWait(200);
    QVERIFY(ouvert);
    QVERIFY(!banc.Parti());
    QVERIFY(!banc.poste.fenetre->Course().enCours);
}

void EssaiSureteTouches::LesTouchesDesAutresCommandesSontMortes() {
    Banc banc;
    const std::size_t traces = banc.poste.fenetre->Espace().TableauSequences.size();
    banc.Quand(SEGMENT3, [&] {
        const std::vector<std::pair<Qt::Key, Qt::KeyboardModifiers>> touches = {
            {Qt::Key_S, Qt::ControlModifier}, {Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier},
            {Qt::Key_A, Qt::ControlModifier}, {Qt::Key_Delete, Qt::NoModifier},
            {Qt::Key_Z, Qt::ControlModifier}, {Qt::Key_F9, Qt::NoModifier}};
        for (const auto& [touche, avec] : touches) QTest::keyClick(banc.poste.fenetre.get(), touche, avec);
    });
    banc.Lancer();
    QVERIFY(banc.fait);
    QVERIFY(banc.poste.demandes.empty());
    QCOMPARE(banc.poste.fenetre->Espace().TableauSequences.size(), traces);
    QCOMPARE(banc.poste.DerniereBoite().titre, std::string("machine disponible"));
}

void EssaiSureteTouches::StopAgitDesQuIlEstEnfonce_data() {
    QTest::addColumn<bool>("souris");
    QTest::addRow("mouse, held") << true;
    QTest::addRow("Escape") << false;
}

void EssaiSureteTouches::StopAgitDesQuIlEstEnfonce() {
    QFETCH(bool, souris);
    Banc banc;
    auto& stop = banc.poste.Trouver<QPushButton>("cmdSTOP");
    banc.Quand(SEGMENT3, [&] {
        if (souris)
            QTest::mousePress(&stop, Qt::LeftButton);
        else
            QTest::keyClick(banc.poste.fenetre.get(), Qt::Key_Escape);
    });
    banc.Lancer();
    QVERIFY(banc.fait);
    QCOMPARE(banc.EchangesAvantArret(), std::size_t(0)); // the pump had its turn: the next word is S
    QVERIFY(banc.Arretee());
    QVERIFY(banc.FroidEtImmobile());
    if (souris) QTest::mouseRelease(&stop, Qt::LeftButton);
}

void EssaiSureteTouches::EchapAgitOuQueSoitLeClavier() {
    Banc banc;
    // A second owner of the key would make it ambiguous, and nobody would hear it.
    QPushButton autre(banc.poste.fenetre.get());
    autre.setShortcut(Qt::Key_Escape);
    autre.show();
    banc.Quand(SEGMENT3, [&] {
        auto& curseur = banc.poste.Trouver<QScrollBar>("hscChauffePendantDecoupe");
        curseur.setFocus();
        QTest::keyClick(&curseur, Qt::Key_Escape);
    });
    banc.Lancer();
    QVERIFY(banc.fait);
    QCOMPARE(banc.EchangesAvantArret(), std::size_t(0));
    QVERIFY(banc.Arretee());
}

void EssaiSureteTouches::EchapTenuNeComptePasDeuxFois() {
    Banc banc;
    int repetitions = 0;
    // A second Stop gives up a box that does not answer: one that is held must not.
    banc.virtuelle.SurPompe = [&] {
        if (!banc.Avertissement().startsWith(SEGMENT3)) return;
        if (repetitions == 0) {
            banc.virtuelle.boite->Brancher(false);
            QTest::keyPress(banc.poste.fenetre.get(), Qt::Key_Escape);
        } else if (repetitions < 30) {
            QKeyEvent encore(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), true);
            QApplication::sendEvent(QApplication::focusWidget() == nullptr ? banc.poste.fenetre.get()
                                                                           : QApplication::focusWidget(),
                                    &encore);
        } else if (repetitions == 30) {
            banc.virtuelle.boite->Brancher(true);
        }
        ++repetitions;
        if (repetitions > 5000) qFatal("the run does not end");
    };
    banc.Lancer();
    QVERIFY(repetitions > 30);
    QVERIFY(banc.Arretee());
    QVERIFY(banc.FroidEtImmobile());
}

void EssaiSureteTouches::EchapArreteAussiAvecUnApercuMontre() {
    Banc banc("QT2d v12", std::chrono::milliseconds(20));
    banc.poste.Trouver<QPushButton>("cmdAnnulerDecoupe").click();
    banc.poste.Cliquer<QToolButton>("cmdDeplacementsManuels");
    // Looked at after the page was opened.
    const QByteArray chemin = QByteArray::fromStdString(banc.poste.dossier.Fichier("triangle.txt"));
    QWidget* bibliotheque = &banc.poste.Trouver<QWidget>("TreeBibliothequeTS2D");
    while (!bibliotheque->inherits("tessarel::PanneauBibliotheque"))
        bibliotheque = bibliotheque->parentWidget();
    QVERIFY(QMetaObject::invokeMethod(bibliotheque, "FichierRegarde", Q_ARG(QByteArray, chemin)));
    QVERIFY(banc.poste.Trouver<QWidget>("bandeauApercu").isVisible());
    banc.poste.boites.reponses = {ReponseBoite::Oui};
    int tours = 0;
    banc.virtuelle.SurPompe = [&] {
        if (++tours == 20) QTest::keyClick(banc.poste.fenetre.get(), Qt::Key_Escape);
    };
    banc.poste.Cliquer<QPushButton>("cmdRetourOrigine");
    QVERIFY(tours >= 20);
    QCOMPARE(banc.poste.DerniereBoite().texte, std::string("L'opération a été annulée."));
    QVERIFY(banc.FroidEtImmobile());
}

void EssaiSureteTouches::EspaceQuiArreteNeReprendPas() {
    Banc banc;
    banc.Quand(SEGMENT3, [&] {
        QVERIFY(banc.poste.Trouver<QPushButton>("cmdSTOP").hasFocus());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    });
    banc.Lancer();
    QVERIFY(banc.Arretee());
    const std::size_t echanges = banc.virtuelle.commandes.size();
    for (const Qt::Key touche : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape}) {
        QVERIFY(QApplication::focusWidget() != nullptr);
        QTest::keyClick(QApplication::focusWidget(), touche);
    }
    QTest::qWait(150);
    QCOMPARE(banc.virtuelle.commandes.size(), echanges);
    QVERIFY(banc.Arretee());
}

void EssaiSureteTouches::EspaceQuiArreteLaChauffeNeRelancePas() {
    Banc banc;
    banc.Quand(QStringLiteral("Chauffe "),
               [&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space); });
    banc.Lancer();
    QCOMPARE(banc.poste.DerniereBoite().titre, std::string("Arrêt pendant la chauffe"));
    const std::size_t echanges = banc.virtuelle.commandes.size();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QTest::qWait(150);
    QCOMPARE(banc.virtuelle.commandes.size(), echanges);
    QVERIFY(banc.poste.fenetre->DecoupeOuverte());
}

void EssaiSureteTouches::LeSecondClicDuDepartNArretePas() {
    Banc banc;
    auto& depart = banc.poste.Trouver<QPushButton>("cmdLancerLaDecoupeTS2D");
    const QPoint place = depart.mapTo(banc.poste.fenetre.get(), depart.rect().center());
    QString dessous;
    banc.Quand(QStringLiteral("Mise"), [&] {
        QWidget* controle = banc.poste.fenetre->childAt(place);
        dessous = controle == nullptr ? QString() : controle->objectName();
        // As the window system sends it: the second press of a pair that began on the launch button.
        QMouseEvent second(QEvent::MouseButtonDblClick, controle->rect().center(),
                           controle->mapToGlobal(controle->rect().center()), Qt::LeftButton, Qt::LeftButton,
                           Qt::NoModifier);
        QApplication::sendEvent(controle, &second);
        QTest::mouseRelease(controle, Qt::LeftButton);
    });
    banc.Lancer();
    QVERIFY(banc.fait);
    QCOMPARE(dessous, QStringLiteral("cmdSTOP")); // else there is nothing to try
    QCOMPARE(banc.poste.DerniereBoite().titre, std::string("machine disponible"));
}

void EssaiSureteTouches::UnClicSuivantArreteBien() {
    Banc banc;
    auto& stop = banc.poste.Trouver<QPushButton>("cmdSTOP");
    banc.Quand(SEGMENT3, [&] {
        QTest::mousePress(&stop, Qt::LeftButton);
        QTest::mouseRelease(&stop, Qt::LeftButton);
    });
    banc.Lancer();
    QVERIFY(banc.Arretee());
    // A double click on Stop: its second press belongs to no button that comes to stand there.
    auto& reprendre = banc.poste.Trouver<QPushButton>("cmdRepriseDecoupe");
    const std::size_t echanges = banc.virtuelle.commandes.size();
    QMouseEvent second(QEvent::MouseButtonDblClick, reprendre.rect().center(),
                       reprendre.mapToGlobal(reprendre.rect().center()), Qt::LeftButton, Qt::LeftButton,
                       Qt::NoModifier);
    QApplication::sendEvent(&reprendre, &second);
    QTest::mouseRelease(&reprendre, Qt::LeftButton);
    QCOMPARE(banc.virtuelle.commandes.size(), echanges);
    QTest::mouseClick(&reprendre, Qt::LeftButton);
    QVERIFY(banc.virtuelle.commandes.size() > echanges);
}

int main(int argc, char** argv) {
    ApplicationTessarel application(argc, argv);
    EssaiSureteTouches essai;
    return QTest::qExec(&essai, argc, argv);
}

#include "essai_surete_touches.moc"
