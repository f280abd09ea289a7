// Heat on, a test move, the window closed: with every exchange lost, spoilt, or the last before the cable
// comes out. At the end the wire is cold, or a loud box said that it may not be.
#include "fenetres/boite_des_fenetres.h"
#include "fenetres/poste_machine.h"
#include "link/rafraichir.h"
#include "machine/ui/frmParametresTables.h"
#include "ui/champ_nombre.h"

#include <QMessageBox>

using namespace tessarel;
using namespace tessarel::essais;
using simulateur::Panne;

namespace {

struct Issue {
    bool froid = false;
    bool boiteCritique = false;
    std::size_t echanges = 0;
    bool fermee = false;
};

// One run; `panne` strikes exchange `n` counted from the heat command's own first exchange. The user gives up
// at each warning.
Issue Jouer(const Panne* panne, std::size_t n) {
    PosteMachine poste;
    BoiteDesFenetres virtuelle;
    virtuelle.Memoriser(TableINI);
    frmParametresTables fenetre;
    fenetre.show();
    Cliquer(fenetre, "optReglagesVersManu_1");
    auto& increment = Controle<ChampNombre>(fenetre, "txtIncrements_0");
    increment.FixerValeur(2);
    virtuelle.SurPompe = [&fenetre] {
        for (auto* alerte : fenetre.findChildren<QMessageBox*>(QStringLiteral("alerteInterface")))
            if (alerte->isVisible()) QTest::mouseClick(alerte->button(QMessageBox::Ok), Qt::LeftButton);
    };
    virtuelle.commandes.clear();
    if (panne != nullptr) {
        simulateur::PanneProgrammee reglage;
        reglage.panne = *panne;
        reglage.echange = virtuelle.boite->Comptes().echanges + n;
        virtuelle.boite->Programmer(reglage);
    }
    Cliquer(fenetre, "optChauffeParam_1");
    Cliquer(fenetre, "cmdGoIncrements");
    fenetre.close();
    if (fenetre.isVisible()) fenetre.close();
    Issue issue;
    issue.froid = virtuelle.boite->Etat().pwmCommande == 0;
    issue.boiteCritique = std::ranges::any_of(poste.boites.boites,
                                              [](const Boite& b) { return b.icone == IconeBoite::Critique; });
    issue.echanges = virtuelle.commandes.size();
    issue.fermee = !fenetre.isVisible();
    return issue;
}

} // namespace

class EssaiPannesMachine : public QObject {
    Q_OBJECT
private slots:
    void LeFilFinitFroidOuLUtilisateurEstPrevenu_data() {
        QTest::addColumn<int>("panne");
        QTest::addRow("command lost") << int(Panne::CommandePerdue);
        QTest::addRow("reply lost") << int(Panne::ReponsePerdue);
        QTest::addRow("reply corrupt") << int(Panne::ReponseCorrompue);
        QTest::addRow("unplugged") << int(Panne::Debranchement);
        QTest::addRow("power cut") << int(Panne::CoupureCourant);
        QTest::addRow("STOP pressed") << int(Panne::BoutonStop);
    }
    void LeFilFinitFroidOuLUtilisateurEstPrevenu() {
        QFETCH(int, panne);
        const auto laquelle = static_cast<Panne>(panne);
        const Issue sansPanne = Jouer(nullptr, 0);
        QVERIFY(sansPanne.froid && !sansPanne.boiteCritique && sansPanne.fermee);
        QVERIFY(sansPanne.echanges > 10);
        for (std::size_t n = 1; n <= sansPanne.echanges; ++n) {
            const Issue issue = Jouer(&laquelle, n);
            const std::string ou = "exchange " + std::to_string(n);
            QVERIFY2(issue.froid || issue.boiteCritique, ou.c_str());
            QVERIFY2(issue.fermee, ou.c_str());
        }
    }
};

QTEST_MAIN(EssaiPannesMachine)
#include "essai_pannes_machine.moc"
