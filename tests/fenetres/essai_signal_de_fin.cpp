// A signal that asks for the end while a test move runs with a hot wire: the move stops, the wire is cold,
// the windows are closed, and nobody had to answer.
#include "fenetres/boite_des_fenetres.h"
#include "fenetres/poste_machine.h"
#include "machine/ui/frmParametresTables.h"
#include "platform/signaux_fin.h"
#include "ui/boites_qt.h"
#include "ui/champ_nombre.h"
#include "ui/fin_demandee.h"

#include <QSlider>
#include <csignal>

using namespace tessarel;
using namespace tessarel::essais;

class EssaiSignalDeFin : public QObject {
    Q_OBJECT
private slots:
    void LeFilEstFroidEtLesFenetresFermees();
};

void EssaiSignalDeFin::LeFilEstFroidEtLesFenetresFermees() {
    EcouterSignauxDeFin(SecondSigint::Compte);
    const PosteMachine poste;
    InstallerBoitesQt(); // real boxes: one that waits for an answer would hold the end up
    BoiteDesFenetres virtuelle;
    virtuelle.Memoriser(TableINI);
    const GardienDeFin gardien;
    QWidget travail;
    travail.show();
    frmParametresTables fenetre(&travail);
    fenetre.setModal(true);
    Exposer(fenetre);
    Controle<QSlider>(fenetre, "slidPenteAcceleration").setValue(12); // not saved: a question when it closes
    Cliquer(fenetre, "optReglagesVersManu_1");
    Controle<ChampNombre>(fenetre, "txtIncrements_0").FixerValeur(900);
    Cliquer(fenetre, "optChauffeParam_1");
    QVERIFY(virtuelle.boite->Etat().pwmCommande > 0);
    int pompages = 0;
    virtuelle.SurPompe = [&] {
        if (++pompages == 40) std::raise(SIGTERM);
        if (pompages > 40) QTest::qSleep(5); // the run lasts longer than the look-out waits
    };
    Cliquer(fenetre, "cmdGoIncrements");
    virtuelle.SurPompe = {};
    QVERIFY(virtuelle.boite->Position()[AxeX1] > 0);
    QVERIFY(virtuelle.boite->Position()[AxeX1] < 900 * 320);
    QCOMPARE(int(virtuelle.boite->Etat().pwmCommande), 0);
    QTRY_VERIFY_WITH_TIMEOUT(!fenetre.isVisible(), 10000);
    QTRY_VERIFY_WITH_TIMEOUT(!travail.isVisible(), 10000);
    QCOMPARE(virtuelle.Compter(CommandeArret, 0), std::size_t(1)); // asked once, not at every look
}

QTEST_MAIN(EssaiSignalDeFin)
#include "essai_signal_de_fin.moc"
