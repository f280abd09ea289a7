// Before a cut moves, and before the rest of a stopped one does: the link is asked, a box that lost its table
// is given it again, another machine starts nothing; and the rest heats as the user left it.
#include "fenetres/coupe_2d.h"
#include "machine/table_machine.h"

#include <QScrollBar>
#include <QSignalSpy>

using namespace tessarel;
using namespace tessarel::essais;

class EssaiSuite2D : public QObject {
    Q_OBJECT
private slots:
    void UneBoiteRemiseSousTensionRecoitSaTable_data();
    void UneBoiteRemiseSousTensionRecoitSaTable();
    void SansBoiteLeFilResteALArret();
    void LeResteChauffeCommeLeCurseurALaisse();
    void UneChauffeTireeAZeroNEstPasGardee();
    void UneMachineChangeeSousLeMemeNomNePartPas();
    void UneMachineChangeeSansMemoireOuvreLesReglages_data();
    void UneMachineChangeeSansMemoireOuvreLesReglages();
    void UneAutreTableRenonceALaSuite();
    void UneMachineChangeeALArretEstDite_data();
    void UneMachineChangeeALArretEstDite();
};

void EssaiSuite2D::UneBoiteRemiseSousTensionRecoitSaTable_data() {
    QTest::addColumn<QByteArray>("bouton");
    QTest::addRow("resume") << QByteArray("cmdRepriseDecoupe");
    QTest::addRow("return") << QByteArray("cmdLancerRetourApresStop");
}
void EssaiSuite2D::UneBoiteRemiseSousTensionRecoitSaTable() {
    QFETCH(QByteArray, bouton);
    Coupe coupe;
    coupe.Arreter();
    QVERIFY(coupe.Arretee());
    coupe.virtuelle.boite->MettreSousTension(false);
    coupe.virtuelle.boite->MettreSousTension(true);
    coupe.virtuelle.commandes.clear();
    coupe.poste.Cliquer<QPushButton>(bouton.constData());
    // The table goes into RAM before the queue is opened.
    const auto rang = [&](std::uint8_t code, std::uint8_t argument) {
        const auto& c = coupe.virtuelle.commandes;
        return std::ranges::find_if(c, [&](const Tampon& t) { return t[1] == code && t[2] == argument; }) -
               c.begin();
    };
    QVERIFY(coupe.virtuelle.Compter('T', 1) == 1);
    QVERIFY(rang('T', 1) < rang(CommandeFile, 1));
    QVERIFY(coupe.virtuelle.boite->Position() == simulateur::PositionPas{});
    QVERIFY(coupe.FilFroid());
    QVERIFY(coupe.AuRepos());
}

void EssaiSuite2D::SansBoiteLeFilResteALArret() {
    Coupe coupe;
    const auto voulus = coupe.PasVoulus();
    coupe.Arreter();
    coupe.virtuelle.boite->Brancher(false);
    coupe.poste.Cliquer<QPushButton>("cmdRepriseDecoupe");
    QCOMPARE(coupe.poste.DerniereBoite().texte, std::string("Pas d'interface détectée"));
    QVERIFY(coupe.Arretee());
    coupe.virtuelle.boite->Brancher(true);
    coupe.poste.Cliquer<QPushButton>("cmdRepriseDecoupe");
    QVERIFY(coupe.virtuelle.boite->Comptes().pas == voulus);
    QVERIFY(coupe.AuRepos());
}

void EssaiSuite2D::LeResteChauffeCommeLeCurseurALaisse() {
    Coupe coupe;
    coupe.Quand(QStringLiteral("Découpe segment n°3/"),
                [&] { coupe.poste.Trouver<QScrollBar>("hscChauffePendantDecoupe").setValue(51); });
    const auto geste = coupe.virtuelle.SurPompe;
    coupe.virtuelle.SurPompe = [&] {
        geste();
        if (coupe.Avertissement().startsWith(QStringLiteral("Découpe segment n°4/")))
            coupe.poste.Cliquer<QPushButton>("cmdSTOP");
    };
    coupe.Lancer();
    QVERIFY(coupe.Arretee());
    int pwm = -1;
    int curseur = -1;
    coupe.virtuelle.SurPompe = [&] {
        if (!coupe.Avertissement().startsWith(QStringLiteral("Chauffe "))) return;
        pwm = coupe.virtuelle.boite->Etat().pwmCommande;
        curseur = coupe.poste.Trouver<QScrollBar>("hscChauffePendantDecoupe").value();
    };
    coupe.poste.Cliquer<QPushButton>("cmdRepriseDecoupe");
    QCOMPARE(pwm, 65); // 25.5 x 2.55 = 65.025
    QCOMPARE(curseur, 51);
    QVERIFY(coupe.AuRepos());
    // A cut of its own heats as the material says.
    coupe.virtuelle.SurPompe = {};
    coupe.virtuelle.commandes.clear();
    coupe.Lancer();
    const auto pause = std::ranges::find_if(coupe.virtuelle.commandes,
                                            [](const Tampon& t) { return t[1] == 'D' && (t[2] & 64U) != 0; });
    QVERIFY(pause != coupe.virtuelle.commandes.end());
    QVERIFY((*pause)[27] != 65);
}

// Pulled to nothing in a fright, then Stop: the rest is not dragged through the foam by a cold wire.
void EssaiSuite2D::UneChauffeTireeAZeroNEstPasGardee() {
    Coupe coupe;
    int avant = 0;
    coupe.Quand(QStringLiteral("Découpe segment n°3/"), [&] {
        avant = coupe.virtuelle.boite->Etat().pwmCommande;
        coupe.poste.Trouver<QScrollBar>("hscChauffePendantDecoupe").setValue(0);
    });
    const auto geste = coupe.virtuelle.SurPompe;
    coupe.virtuelle.SurPompe = [&] {
        geste();
        if (coupe.Avertissement().startsWith(QStringLiteral("Découpe segment n°4/")))
            coupe.poste.Cliquer<QPushButton>("cmdSTOP");
    };
    coupe.Lancer();
    QVERIFY(coupe.Arretee());
    int pwm = -1;
    coupe.virtuelle.SurPompe = [&] {
        if (coupe.Avertissement().startsWith(QStringLiteral("Chauffe ")))
            pwm = coupe.virtuelle.boite->Etat().pwmCommande;
    };
    coupe.poste.Cliquer<QPushButton>("cmdRepriseDecoupe");
    QVERIFY(avant > 0);
    QCOMPARE(pwm, avant);
}

void EssaiSuite2D::UneMachineChangeeSousLeMemeNomNePartPas() {
    ReglagesCoupe reglages;
    reglages.machine = "Atelier";
    Coupe coupe(reglages);
    TableMachine autre = TableINI;
    autre.CourseX += 100; // nothing that the box holds
    EcrireMachine(autre);
    coupe.Lancer();
    QCOMPARE(TableINI.CourseX, autre.CourseX);
    QCOMPARE(coupe.virtuelle.Compter(CommandeFile, 128), std::size_t(0));
    QVERIFY(coupe.AuRepos());
    QCOMPARE(coupe.poste.NombreBoites(), std::size_t(1));
    QCOMPARE(coupe.poste.DerniereBoite().titre, std::string("Machine modifiée"));
    QCOMPARE(
        coupe.poste.DerniereBoite().texte,
        std::string("Rien n'a été lancé : la découpe affichée était calculée pour d'autres valeurs de la "
                    "machine.\r\n"
                    "Elle l'est maintenant pour « Atelier ». Vérifiez-la, puis lancez-la de nouveau."));
    coupe.Lancer(); // now for the machine that is shown
    QCOMPARE(coupe.virtuelle.Compter(CommandeFile, 128), std::size_t(1));
}

void EssaiSuite2D::UneMachineChangeeSansMemoireOuvreLesReglages_data() {
    QTest::addColumn<bool>("oui");
    QTest::addRow("yes") << true;
    QTest::addRow("no") << false;
}
// The values of the settings are others than those of the cut, and no memory of the box holds them.
void EssaiSuite2D::UneMachineChangeeSansMemoireOuvreLesReglages() {
    QFETCH(bool, oui);
    ReglagesCoupe reglagesCoupe;
    reglagesCoupe.machine = "Atelier";
    Coupe coupe(reglagesCoupe);
    TableMachine autre = TableINI;
    autre.PenteAcceleration = 3;
    EcrireMachine(autre);
    const QSignalSpy reglages(coupe.poste.fenetre.get(), &frmTessarel2D::ParametrerMachine);
    coupe.poste.boites.reponses = {oui ? ReponseBoite::Oui : ReponseBoite::Non};
    coupe.Lancer();
    QVERIFY(MemesValeurs(TableINI, autre));
    QCOMPARE(coupe.poste.NombreBoites(), std::size_t(2));
    QVERIFY(
        coupe.poste.boites.boites[0].texte.starts_with("Pas de correspondance entre la table en mémoire"));
    QCOMPARE(coupe.poste.boites.boites[1].titre, std::string("Machine modifiée"));
    QCOMPARE(reglages.count(), oui ? 1 : 0);
    QCOMPARE(coupe.virtuelle.Compter(CommandeFile, 128), std::size_t(0));
    QVERIFY(coupe.AuRepos());
}

void EssaiSuite2D::UneAutreTableRenonceALaSuite() {
    Coupe coupe;
    coupe.Arreter();
    coupe.virtuelle.boite->EcrireMemoires({});
    const QSignalSpy reglages(coupe.poste.fenetre.get(), &frmTessarel2D::ParametrerMachine);
    coupe.poste.boites.reponses = {ReponseBoite::Non};
    coupe.poste.Cliquer<QPushButton>("cmdRepriseDecoupe");
    QVERIFY(coupe.Arretee());
    coupe.poste.boites.reponses = {ReponseBoite::Oui};
    coupe.poste.Cliquer<QPushButton>("cmdRepriseDecoupe");
    QCOMPARE(reglages.count(), 1);
    QCOMPARE(coupe.poste.DerniereBoite().titre, std::string("Arrêt dans la zone utile"));
    QVERIFY(!coupe.poste.fenetre->Course().arretee);
    QVERIFY(coupe.FilFroid());
}

void EssaiSuite2D::UneMachineChangeeALArretEstDite_data() {
    QTest::addColumn<QByteArray>("bouton");
    QTest::addRow("resume") << QByteArray("cmdRepriseDecoupe");
    QTest::addRow("return") << QByteArray("cmdLancerRetourApresStop");
    QTest::addRow("refresh") << QByteArray("cmdRafraichirUsbTS2D");
}
// First why the cut is given up, then where that leaves the wire.
void EssaiSuite2D::UneMachineChangeeALArretEstDite() {
    QFETCH(QByteArray, bouton);
    ReglagesCoupe reglages;
    reglages.machine = "Atelier";
    Coupe coupe(reglages);
    coupe.Arreter();
    QVERIFY(coupe.Arretee());
    TableMachine autre = TableINI;
    autre.CourseX += 100; // nothing that the box holds
    EcrireMachine(autre);
    coupe.poste.Cliquer<QAbstractButton>(bouton.constData());
    QCOMPARE(coupe.poste.NombreBoites(), std::size_t(2));
    QCOMPARE(coupe.poste.boites.boites[0].titre, std::string("Machine modifiée"));
    QCOMPARE(
        coupe.poste.boites.boites[0].texte,
        std::string("La découpe arrêtée ne peut pas être reprise : elle était faite pour d'autres valeurs "
                    "de la machine que celles de « Atelier »."));
    QCOMPARE(coupe.poste.boites.boites[1].titre, std::string("Arrêt dans la zone utile"));
    QVERIFY(!coupe.poste.fenetre->Course().arretee && !coupe.poste.fenetre->DecoupeOuverte());
    QCOMPARE(TableINI.CourseX, autre.CourseX);
    QCOMPARE(coupe.virtuelle.Compter(CommandeFile, 128), std::size_t(1));
    QVERIFY(coupe.FilFroid());
}

QTEST_MAIN(EssaiSuite2D)
#include "essai_suite_2d.moc"
