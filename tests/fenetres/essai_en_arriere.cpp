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

// The work lasts until the test has seen what it looks for, however slow the machine; not for ever.
void TravaillerJusqua(const std::atomic<bool>& vu) {
    constexpr int Pas = 10; // ms
    for (int i = 0; i < 60000 / Pas && !vu; ++i) Dormir(Pas);
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
        std::atomic<bool> assez = false;
        QString dit;
        QTimer coeur;
        connect(&coeur, &QTimer::timeout, this, [&] {
            ++battements;
            const auto* annonce = fenetre.findChild<QProgressDialog*>(QStringLiteral("annonceTravail"));
            if (annonce == nullptr || !annonce->isVisible()) return;
            dit = annonce->labelText();
            assez = battements > 10;
        });
        coeur.start(20);
        QVERIFY(FaireEnArriere(fenetre, "Lecture de dessin.dxf", [&assez] { TravaillerJusqua(assez); }));
        QVERIFY2(assez, qPrintable(QString::number(battements)));
        QCOMPARE(dit, QStringLiteral("Lecture de dessin.dxf"));
    }

    void RenoncerRendLaMainAussitot() {
        QWidget fenetre;
        fenetre.show();
        // What the work keeps must outlive the call.
        const auto fini = std::make_shared<std::atomic<bool>>(false);
        const auto renonce = std::make_shared<std::atomic<bool>>(false);
        QTimer doigt;
        connect(&doigt, &QTimer::timeout, this, [&] {
            auto* annonce = fenetre.findChild<QProgressDialog*>(QStringLiteral("annonceTravail"));
            if (annonce == nullptr || !annonce->isVisible()) return;
            QTest::mouseClick(annonce->findChild<QPushButton*>(), Qt::LeftButton);
        });
        doigt.start(20);
        QVERIFY(!FaireEnArriere(fenetre, "long", [fini, renonce] {
            TravaillerJusqua(*renonce);
            *fini = true;
        }));
        QVERIFY(!*fini);
        *renonce = true;
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
