// The machine and material windows while a test move runs with a hot wire: no menu, no help box, no late key
// holds it up, Stop acts on the way down, and a fault of the program stops it before it is told.
#include "app/ui/application.h"
#include "fenetres/boite_des_fenetres.h"
#include "fenetres/menus.h"
#include "fenetres/poste_machine.h"
#include "machine/ui/frmD4X_matieres.h"
#include "machine/ui/frmParametresTables.h"
#include "platform/erreurs.h"
#include "ui/champ_nombre.h"
#include "ui/theme.h"

#include <QContextMenuEvent>
#include <QDialog>
#include <QMessageBox>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

// A window with a hot wire, and a long move of it; `geste` runs once in the middle.
struct Banc {
    enum Fenetre { Machine, Matieres };

    explicit Banc(Fenetre quelle) : sorte(quelle) {
        virtuelle.Memoriser(TableINI);
        RafraichirUsb("TABLES");
        if (quelle == Machine)
            fenetre = std::make_unique<frmParametresTables>();
        else
            fenetre = std::make_unique<frmD4X_matieres>();
        Exposer(*fenetre);
        if (quelle == Machine) {
            Cliquer(*fenetre, "optReglagesVersManu_1");
            Controle<ChampNombre>(*fenetre, "txtIncrements_0").FixerValeur(200);
        }
        Cliquer(*fenetre, quelle == Machine ? "optChauffeParam_1" : "optChauffeMatieres_1");
    }
    void Mouvoir(std::function<void()> geste) {
        int tours = 0;
        virtuelle.SurPompe = [this, &tours, geste = std::move(geste)] {
            if (++tours != 40) return;
            fait = true;
            depuis = virtuelle.commandes.size();
            geste();
            pendant = virtuelle.commandes.size() - depuis;
        };
        Cliquer(*fenetre, sorte == Machine ? "cmdGoIncrements" : "cmdMvtTranches_0");
        virtuelle.SurPompe = {};
    }
    [[nodiscard]] const char* Stop() const {
        return sorte == Machine ? "cmdStopIncrements" : "cmdStopTranches";
    }
    [[nodiscard]] std::size_t EchangesAvantArret() const { return virtuelle.EchangesAvantArret(depuis); }
    [[nodiscard]] bool Chaud() const { return virtuelle.boite->Etat().pwmCommande > 0; }
    // The watch over the wire looks every few milliseconds.
    void VeillerVite() const { Controle<QTimer>(*fenetre, "TimerVeille").setInterval(5); }
    [[nodiscard]] bool Veille() const { return Controle<QTimer>(*fenetre, "TimerVeille").isActive(); }
    [[nodiscard]] bool MontreChaud() const {
        return Controle<QWidget>(*fenetre, "lblWarningChauffe").isVisible();
    }
    [[nodiscard]] QString Mot() const {
        return Controle<QLabel>(*fenetre, sorte == Machine ? "lblEtatMouvement" : "lblEtatTranches").text();
    }
    [[nodiscard]] QMessageBox* Alerte() const {
        auto* alerte = fenetre->findChild<QMessageBox*>(QStringLiteral("alerteInterface"));
        return alerte != nullptr && alerte->isVisible() ? alerte : nullptr;
    }
    [[nodiscard]] bool FroidEtImmobile() const {
        return !Chaud() && virtuelle.boite->Etat().file == simulateur::EtatFile::Repos;
    }
    Fenetre sorte;
    PosteMachine poste;
    BoiteDesFenetres virtuelle;
    PompeDuProgramme pompe{virtuelle};
    std::unique_ptr<QDialog> fenetre;
    bool fait = false;
    std::size_t depuis = 0;
    std::size_t pendant = 0; // exchanges while the gesture was made
};

void LesDeuxFenetres() {
    QTest::addColumn<int>("fenetre");
    QTest::addRow("machine") << int(Banc::Machine);
    QTest::addRow("materials") << int(Banc::Matieres);
}

} // namespace

class EssaiSureteMachine : public QObject {
    Q_OBJECT
private slots:
    void init() { AppliquerTheme(Theme::Clair); }

    void StopAgitDesQuIlEstEnfonce_data() { LesDeuxFenetres(); }
    void StopAgitDesQuIlEstEnfonce();
    void EchapArrete_data() { LesDeuxFenetres(); }
    void EchapArrete();
    void RienNOuvreDeBoucle_data() { LesDeuxFenetres(); }
    void RienNOuvreDeBoucle();
    void UneFauteArreteDAbord_data() { LesDeuxFenetres(); }
    void UneFauteArreteDAbord();
    void UneFautePendantLaCoupureNeLaissePasLeFilChaud();
    void LeBoutonStopEstVuSansMouvement_data() { LesDeuxFenetres(); }
    void LeBoutonStopEstVuSansMouvement();
    void LaBarreApresLeBoutonStopNeRallumePas_data() { LesDeuxFenetres(); }
    void LaBarreApresLeBoutonStopNeRallumePas();
    void LaChauffeChangeeTropTardPourLeMouvementPart_data() { LesDeuxFenetres(); }
    void LaChauffeChangeeTropTardPourLeMouvementPart();
    void StopRenonceALaChauffeSansReponse_data() { LesDeuxFenetres(); }
    void StopRenonceALaChauffeSansReponse();
    void LaQuestionEnFermantAttendFilFroid();
    void UneBoiteAttendFilFroid_data() { LesDeuxFenetres(); }
    void UneBoiteAttendFilFroid();
    void LaBoitePerdueSansMouvementSeDit_data() { LesDeuxFenetres(); }
    void LaBoitePerdueSansMouvementSeDit();
    void AbandonneeLaCoupureEstRetentee_data() { LesDeuxFenetres(); }
    void AbandonneeLaCoupureEstRetentee();
};

void EssaiSureteMachine::StopAgitDesQuIlEstEnfonce() {
    QFETCH(int, fenetre);
    Banc banc(static_cast<Banc::Fenetre>(fenetre));
    QVERIFY(banc.Chaud());
    auto& stop = Controle<QAbstractButton>(*banc.fenetre, banc.Stop());
    banc.Mouvoir([&] { QTest::mousePress(&stop, Qt::LeftButton); });
    QVERIFY(banc.fait);
    QCOMPARE(banc.EchangesAvantArret(), std::size_t(0));
    QVERIFY(banc.FroidEtImmobile());
    QTest::mouseRelease(&stop, Qt::LeftButton);
}

void EssaiSureteMachine::EchapArrete() {
    QFETCH(int, fenetre);
    Banc banc(static_cast<Banc::Fenetre>(fenetre));
    banc.Mouvoir([&] { QTest::keyClick(banc.fenetre.get(), Qt::Key_Escape); });
    QVERIFY(banc.fait);
    QCOMPARE(banc.EchangesAvantArret(), std::size_t(0));
    QVERIFY(banc.FroidEtImmobile());
    QVERIFY(banc.fenetre->isVisible());
}

void EssaiSureteMachine::RienNOuvreDeBoucle() {
    QFETCH(int, fenetre);
    Banc banc(static_cast<Banc::Fenetre>(fenetre));
    FermeurDeMenus menus;
    banc.Mouvoir([&] {
        for (auto* controle : banc.fenetre->findChildren<QWidget*>()) {
            if (!controle->isVisible()) continue;
            QContextMenuEvent demande(QContextMenuEvent::Mouse, {3, 3}, controle->mapToGlobal(QPoint(3, 3)));
            QApplication::sendEvent(controle, &demande);
            const QString nom = controle->objectName();
            const bool ferme = qobject_cast<QToolButton*>(controle) != nullptr ||
                               qobject_cast<QLineEdit*>(controle) != nullptr ||
                               nom == QStringLiteral("cmdExplications");
            if (!ferme) continue;
            QTest::mouseClick(controle, Qt::LeftButton);
            QTest::keyClicks(controle, QStringLiteral("--"));
            QTest::keyClick(controle, Qt::Key_Return);
        }
    });
    QVERIFY(banc.fait);
    QVERIFY(!menus.vu);
    QCOMPARE(banc.pendant, std::size_t(0));
    QVERIFY(banc.poste.boites.boites.empty());
    QVERIFY(banc.virtuelle.boite->Etat().file == simulateur::EtatFile::Repos);
    QVERIFY(banc.Chaud()); // a move that ended by itself leaves the wire as it was
}

void EssaiSureteMachine::UneFauteArreteDAbord() {
    QFETCH(int, fenetre);
    Banc banc(static_cast<Banc::Fenetre>(fenetre));
    bool froid = false;
    AfficheurBoite enregistreur = InstallerAfficheurBoite({});
    InstallerAfficheurBoite([&](const Boite& boite) {
        froid = banc.FroidEtImmobile();
        return enregistreur(boite);
    });
    banc.Mouvoir([] { QTimer::singleShot(0, [] { throw FauteDepassement("trop"); }); });
    InstallerAfficheurBoite(enregistreur);
    QVERIFY(banc.fait);
    QVERIFY(banc.EchangesAvantArret() <= 3);
    QCOMPARE(banc.poste.boites.boites.size(), std::size_t(1));
    QVERIFY(QString::fromStdString(banc.poste.DerniereBoite().texte)
                .startsWith(QStringLiteral("Erreur 6 (trop)")));
    QVERIFY(froid);
    // The window is idle again, and shows a cold wire.
    QVERIFY(!Controle<QAbstractButton>(*banc.fenetre, banc.Stop()).isEnabled());
    QVERIFY(Controle<QRadioButton>(*banc.fenetre,
                                   fenetre == Banc::Machine ? "optChauffeParam_0" : "optChauffeMatieres_0")
                .isChecked());
    banc.Mouvoir([] {});
    QVERIFY(banc.fait);
}

void EssaiSureteMachine::UneFautePendantLaCoupureNeLaissePasLeFilChaud() {
    Banc banc(Banc::Machine);
    banc.virtuelle.boite->Brancher(false); // the heat-off has to be repeated
    int tours = 0;
    banc.virtuelle.SurPompe = [&] {
        if (++tours != 2) return;
        banc.virtuelle.boite->Brancher(true);
        QTimer::singleShot(0, [] { throw FauteDepassement("trop"); });
    };
    Cliquer(*banc.fenetre, "optChauffeParam_0");
    banc.virtuelle.SurPompe = {};
    QVERIFY(tours >= 2);
    QVERIFY(!banc.Chaud());
    QVERIFY(QString::fromStdString(banc.poste.DerniereBoite().texte)
                .startsWith(QStringLiteral("Erreur 6 (trop)")));
    QVERIFY(banc.fenetre->close());
}

void EssaiSureteMachine::LeBoutonStopEstVuSansMouvement() {
    QFETCH(int, fenetre);
    Banc banc(static_cast<Banc::Fenetre>(fenetre));
    banc.VeillerVite();
    QTest::qWait(60);
    QVERIFY(banc.Chaud() && banc.MontreChaud());
    banc.virtuelle.boite->AppuyerStop();
    QTRY_VERIFY_WITH_TIMEOUT(!banc.MontreChaud(), 2000);
    QCOMPARE(banc.Mot(), QStringLiteral("La machine a coupé la chauffe"));
    QCOMPARE(banc.virtuelle.Compter(CommandeChauffe, 0), std::size_t(1)); // it must not come back
    Controle<QScrollBar>(*banc.fenetre, "hscChauffeParam").setValue(20);
    QCOMPARE(int(banc.virtuelle.boite->Etat().pwmFil), 0);
    QVERIFY(!banc.Veille());
    QVERIFY(MouvementsActifs);
    QVERIFY(banc.poste.boites.boites.empty());
}

// Before the watch has seen it: the bar looks by itself, and the window says why it sends nothing.
void EssaiSureteMachine::LaBarreApresLeBoutonStopNeRallumePas() {
    QFETCH(int, fenetre);
    Banc banc(static_cast<Banc::Fenetre>(fenetre));
    Controle<QTimer>(*banc.fenetre, "TimerVeille").setInterval(60'000);
    banc.virtuelle.boite->AppuyerStop();
    const std::size_t allumages = banc.virtuelle.Compter(CommandeChauffe, 1);
    Controle<QScrollBar>(*banc.fenetre, "hscChauffeParam").setValue(20);
    QCOMPARE(banc.virtuelle.Compter(CommandeChauffe, 1), allumages);
    QVERIFY(!banc.Chaud() && !banc.MontreChaud() && !banc.Veille());
    QCOMPARE(banc.Mot(), QStringLiteral("La machine a coupé la chauffe"));
    QVERIFY(banc.poste.boites.boites.empty());
}

// In the turn in which the move finds its end told for the second time it sends no heat any more.
void EssaiSureteMachine::LaChauffeChangeeTropTardPourLeMouvementPart() {
    QFETCH(int, fenetre);
    Banc banc(static_cast<Banc::Fenetre>(fenetre));
    auto& barre = Controle<QScrollBar>(*banc.fenetre, "hscChauffeParam");
    bool uneFois = false;
    banc.virtuelle.SurPompe = [&] {
        const auto etat = banc.virtuelle.boite->Etat();
        if (etat.file != simulateur::EtatFile::Repos || etat.fin != simulateur::FinMouvement::FinDeListe)
            return;
        if (!std::exchange(uneFois, true)) barre.setValue(20);
    };
    Cliquer(*banc.fenetre, fenetre == Banc::Machine ? "cmdGoIncrements" : "cmdMvtTranches_0");
    banc.virtuelle.SurPompe = {};
    QVERIFY(uneFois);
    QCOMPARE(int(banc.virtuelle.boite->Etat().pwmFil), 51); // 20 x 2.55
    QVERIFY(banc.MontreChaud());
}

void EssaiSureteMachine::StopRenonceALaChauffeSansReponse() {
    QFETCH(int, fenetre);
    Banc banc(static_cast<Banc::Fenetre>(fenetre));
    const bool machine = fenetre == Banc::Machine;
    Cliquer(*banc.fenetre, machine ? "optChauffeParam_0" : "optChauffeMatieres_0");
    simulateur::PanneProgrammee panne;
    panne.panne = simulateur::Panne::ReponsePerdue;
    panne.commande = CommandeChauffe;
    panne.fois = 4; // one more and the heat is given up by itself
    banc.virtuelle.boite->Programmer(panne);
    auto& stop = Controle<QAbstractButton>(*banc.fenetre, banc.Stop());
    const std::size_t allumages = banc.virtuelle.Compter(CommandeChauffe, 1);
    bool permis = false;
    banc.virtuelle.SurPompe = [&] {
        if (permis || banc.virtuelle.Compter(CommandeChauffe, 1) != allumages + 1) return;
        permis = stop.isEnabled();
        QTest::mouseClick(&stop, Qt::LeftButton);
    };
    Cliquer(*banc.fenetre, machine ? "optChauffeParam_1" : "optChauffeMatieres_1");
    banc.virtuelle.SurPompe = {};
    QVERIFY(permis);
    QCOMPARE(banc.virtuelle.Compter(CommandeChauffe, 1), allumages + 1);
    QVERIFY(banc.FroidEtImmobile() && !banc.MontreChaud());
    QVERIFY(!stop.isEnabled());
}

void EssaiSureteMachine::LaQuestionEnFermantAttendFilFroid() {
    Banc banc(Banc::Machine);
    auto& pente = Controle<QSlider>(*banc.fenetre, "slidPenteAcceleration");
    pente.setValue(pente.value() == 12 ? 11 : 12);
    int auMoment = -1; // on the wire when the question comes up
    const AfficheurBoite enregistreur = InstallerAfficheurBoite({});
    InstallerAfficheurBoite([&](const Boite& boite) {
        auMoment = banc.virtuelle.boite->Etat().pwmFil;
        return enregistreur(boite);
    });
    QVERIFY(banc.Chaud());
    QVERIFY(!banc.fenetre->close()); // No
    InstallerAfficheurBoite(enregistreur);
    QCOMPARE(banc.poste.boites.boites.size(), std::size_t(1));
    QCOMPARE(auMoment, 0);
    QVERIFY(banc.fenetre->isVisible() && !banc.MontreChaud());
}

void EssaiSureteMachine::UneBoiteAttendFilFroid() {
    QFETCH(int, fenetre);
    Banc banc(static_cast<Banc::Fenetre>(fenetre));
    QMessageBox boite(banc.fenetre.get());
    int auMoment = -1; // on the wire while the box stands
    QTimer lecteur;
    connect(&lecteur, &QTimer::timeout, [&] {
        auMoment = banc.virtuelle.boite->Etat().pwmFil;
        boite.close();
    });
    lecteur.start(5);
    QVERIFY(banc.Chaud());
    boite.exec();
    QCOMPARE(auMoment, 0);
    QVERIFY(!banc.MontreChaud());
}

void EssaiSureteMachine::LaBoitePerdueSansMouvementSeDit() {
    QFETCH(int, fenetre);
    Banc banc(static_cast<Banc::Fenetre>(fenetre));
    banc.VeillerVite();
    banc.virtuelle.boite->Brancher(false);
    bool alerte = false;
    banc.virtuelle.SurPompe = [&] {
        if (banc.Alerte() == nullptr) return;
        alerte = true;
        banc.virtuelle.boite->Brancher(true);
    };
    QTRY_VERIFY_WITH_TIMEOUT(alerte && banc.Alerte() == nullptr, 5000);
    banc.virtuelle.SurPompe = {};
    QVERIFY(!banc.Chaud());
    QVERIFY(!banc.MontreChaud());
    QVERIFY(!MouvementsActifs); // it may be another box
    QVERIFY(
        !Controle<QWidget>(*banc.fenetre, fenetre == Banc::Machine ? "cmdGoIncrements" : "cmdMvtTranches_0")
             .isEnabled());
    QVERIFY(banc.poste.boites.boites.empty());
}

void EssaiSureteMachine::AbandonneeLaCoupureEstRetentee() {
    QFETCH(int, fenetre);
    Banc banc(static_cast<Banc::Fenetre>(fenetre));
    banc.VeillerVite();
    banc.virtuelle.boite->Brancher(false);
    banc.virtuelle.SurPompe = [&] {
        if (QMessageBox* alerte = banc.Alerte())
            QTest::mouseClick(alerte->button(QMessageBox::Ok), Qt::LeftButton);
    };
    QTRY_VERIFY_WITH_TIMEOUT(!banc.poste.boites.boites.empty(), 5000);
    banc.virtuelle.SurPompe = {};
    QVERIFY(banc.poste.DerniereBoite().icone == IconeBoite::Critique);
    QTest::qWait(60);
    QVERIFY(banc.Chaud() && banc.MontreChaud());
    banc.virtuelle.boite->Brancher(true);
    QTRY_VERIFY_WITH_TIMEOUT(!banc.MontreChaud(), 2000); // nobody has to ask
    QVERIFY(!banc.Chaud() && !banc.Veille());
    QCOMPARE(banc.poste.boites.boites.size(), std::size_t(1));
}

int main(int argc, char** argv) {
    ApplicationTessarel application(argc, argv);
    EssaiSureteMachine essai;
    return QTest::qExec(&essai, argc, argv);
}

#include "essai_surete_machine.moc"
