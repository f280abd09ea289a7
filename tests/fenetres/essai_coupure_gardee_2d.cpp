// The heat-off of the 2D window before a mute box: whatever asks for it, no menu may open a loop of its own
// that would hold up the next try.
#include "fenetres/menus.h"
#include "fenetres/poste_manuel.h"
#include "ui/theme.h"

#include <QContextMenuEvent>
#include <QMessageBox>
#include <QTimer>

using namespace tessarel;
using namespace tessarel::essais;

class EssaiCoupureGardee2D : public QObject {
    Q_OBJECT
private slots:
    void init() { AppliquerTheme(Theme::Clair); }

    void AucunMenuNeRetientLaCoupure_data();
    void AucunMenuNeRetientLaCoupure();
};

void EssaiCoupureGardee2D::AucunMenuNeRetientLaCoupure_data() {
    QTest::addColumn<bool>("veille");
    QTest::addRow("the page is left") << false;
    QTest::addRow("the watch finds the box gone") << true;
}
void EssaiCoupureGardee2D::AucunMenuNeRetientLaCoupure() {
    QFETCH(bool, veille);
    Manuel manuel;
    manuel.poste.Trouver<QScrollBar>("hscChauffeFilManuel").setValue(60);
    manuel.poste.Cliquer<QToolButton>("optChauffe_1");
    QCOMPARE(int(manuel.virtuelle.boite->Etat().pwmFil), 153);
    manuel.virtuelle.boite->Brancher(false);
    FermeurDeMenus menus;
    int demandes = 0;
    manuel.virtuelle.SurPompe = [&] {
        if (demandes > 0) {
            manuel.virtuelle.boite->Brancher(true);
            return;
        }
        for (auto* controle : manuel.poste.fenetre->findChildren<QWidget*>()) {
            if (!controle->isVisible()) continue;
            ++demandes;
            QContextMenuEvent demande(QContextMenuEvent::Mouse, {3, 3}, controle->mapToGlobal(QPoint(3, 3)));
            QApplication::sendEvent(controle, &demande);
        }
    };
    if (veille) {
        manuel.poste.Trouver<QTimer>("TimerClignotement").setInterval(5);
        QTRY_VERIFY_WITH_TIMEOUT(demandes > 0 && manuel.virtuelle.boite->Etat().pwmFil == 0, 5000);
    } else {
        manuel.poste.Cliquer<QPushButton>("cmdFermerManuel");
    }
    manuel.virtuelle.SurPompe = {};
    QVERIFY(demandes > 0);
    QVERIFY(!menus.vu);
    QCOMPARE(int(manuel.virtuelle.boite->Etat().pwmFil), 0);
    QCOMPARE(manuel.poste.NombreBoites(), std::size_t(0));
}

QTEST_MAIN(EssaiCoupureGardee2D)
#include "essai_coupure_gardee_2d.moc"
