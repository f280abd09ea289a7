// Long work beside the window: the window lives on, faults come out, giving up is an answer.
#include "platform/erreurs.h"
#include "ui/en_arriere.h"

#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <atomic>
#include <chrono>
#include <memory>
#include <thread>

using namespace tessarel;

namespace {

void Dormir(int ms) {
    std::this_thread::sleep_for(std::chrono::milliseconds(ms));
}

} // namespace

class EssaiEnArriere : public QObject {
    Q_OBJECT
private slots:
    void UnTravailBrefNeMontreRien() {
        QWidget fenetre;
        bool fait = false;
        QVERIFY(FaireEnArriere(fenetre, "bref", [&fait] { fait = true; }));
        QVERIFY(fait);
        QVERIFY(fenetre.findChild<QProgressDialog*>() == nullptr);
    }

    void LaFenetreVitPendantUnLongTravail() {
        QWidget fenetre;
        fenetre.show();
        int battements = 0;
        bool annonceVue = false;
        QString dit;
        QTimer coeur;
        connect(&coeur, &QTimer::timeout, this, [&] {
            ++battements;
            if (const auto* annonce = fenetre.findChild<QProgressDialog*>(QStringLiteral("annonceTravail"))) {
                annonceVue = annonceVue || annonce->isVisible();
                dit = annonce->labelText();
            }
        });
        coeur.start(20);
        QVERIFY(FaireEnArriere(fenetre, "Lecture de dessin.dxf", [] { Dormir(700); }));
        QVERIFY2(battements > 10, qPrintable(QString::number(battements)));
        QVERIFY(annonceVue);
        QCOMPARE(dit, QStringLiteral("Lecture de dessin.dxf"));
    }

    void RenoncerRendLaMainAussitot() {
        QWidget fenetre;
        fenetre.show();
        // What the work keeps must outlive the call.
        const auto fini = std::make_shared<std::atomic<bool>>(false);
        QTimer doigt;
        connect(&doigt, &QTimer::timeout, this, [&] {
            auto* annonce = fenetre.findChild<QProgressDialog*>(QStringLiteral("annonceTravail"));
            if (annonce == nullptr || !annonce->isVisible()) return;
            QTest::mouseClick(annonce->findChild<QPushButton*>(), Qt::LeftButton);
        });
        doigt.start(20);
        QVERIFY(!FaireEnArriere(fenetre, "long", [fini] {
            Dormir(1500);
            *fini = true;
        }));
        QVERIFY(!*fini);
        QTRY_VERIFY(*fini);
    }

    void UneFauteDuTravailEnSort() {
        QWidget fenetre;
        QVERIFY_EXCEPTION_THROWN(
            FaireEnArriere(fenetre, "faute", [] { throw FauteLecture("dessin.dxf", 3, "tronqué"); }),
            FauteLecture);
        QVERIFY_EXCEPTION_THROWN(FaireEnArriere(fenetre, "faute",
                                                [] {
                                                    Dormir(120);
                                                    throw FauteLecture("dessin.dxf", 3, "tronqué");
                                                }),
                                 FauteLecture);
    }
};

QTEST_MAIN(EssaiEnArriere)
#include "essai_en_arriere.moc"
