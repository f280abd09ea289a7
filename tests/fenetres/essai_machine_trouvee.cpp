// A machine that runs without this program, before its windows: what they ask, what they show where it is
// left running, and that they leave it in peace.
#include "fenetres/coupe_2d.h"
#include "fenetres/images.h"
#include "fenetres/poste_machine.h"
#include "machine/ui/frmParametresTables.h"
#include "outils_boite/autrui.h"
#include "ui/theme.h"

#include <QGroupBox>
#include <QRadioButton>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

// No command went out but status requests.
bool EnPaix(const BoiteDesFenetres& virtuelle) {
    return std::ranges::all_of(virtuelle.commandes, [](const Tampon& t) { return t[1] == CommandeStatut; });
}

bool EnMarche(const BoiteDesFenetres& virtuelle) {
    return virtuelle.boite->Etat().file == simulateur::EtatFile::EnMarche;
}

} // namespace

class EssaiMachineTrouvee : public QObject {
    Q_OBJECT
private slots:
    void init() { AppliquerTheme(Theme::Clair); }

    void LaisseeElleEstMontreeEtPasDerangee();
    void LaDecoupeNeCommencePasDerriereUnArret();
    void UneDecoupeArreteeNEstPlusReprise_data();
    void UneDecoupeArreteeNEstPlusReprise();
    void LaFenetreDesMachinesLaLaisseEnPaix();
    void LaFenetreDesMachinesNEcritPasDansUneMachineEnMarche();
};

void EssaiMachineTrouvee::LaisseeElleEstMontreeEtPasDerangee() {
    Coupe coupe;
    coupe.poste.boites.boites.clear();
    LancerPourAutrui(*coupe.virtuelle.boite, 127);
    coupe.virtuelle.commandes.clear();
    coupe.poste.boites.reponses = {ReponseBoite::Non, ReponseBoite::Non};
    coupe.poste.Cliquer<QToolButton>("cmdRafraichirUsbTS2D");
    QCOMPARE(coupe.poste.NombreBoites(), std::size_t(1));
    QCOMPARE(coupe.poste.DerniereBoite().titre, std::string("Machine en marche"));
    QCOMPARE(coupe.poste.Trouver<QToolButton>("cmdRafraichirUsbTS2D").text(),
             QStringLiteral("Laissée en marche"));
    coupe.Lancer(); // asked again, for here somebody wants the machine
    QCOMPARE(coupe.poste.NombreBoites(), std::size_t(2));
    QVERIFY(coupe.AuRepos());
    QVERIFY(EnPaix(coupe.virtuelle));
    QVERIFY(EnMarche(coupe.virtuelle));
    QVERIFY(SauverImage(*coupe.poste.fenetre, QStringLiteral("frmTessarel2D-laissee-en-marche")));
}

void EssaiMachineTrouvee::LaDecoupeNeCommencePasDerriereUnArret() {
    Coupe coupe;
    coupe.poste.boites.boites.clear();
    LancerPourAutrui(*coupe.virtuelle.boite, 127);
    coupe.virtuelle.commandes.clear();
    coupe.poste.boites.reponses = {ReponseBoite::Oui};
    coupe.Lancer();
    QCOMPARE(coupe.poste.NombreBoites(), std::size_t(2));
    QCOMPARE(coupe.poste.DerniereBoite().titre, std::string("Machine arrêtée"));
    QVERIFY(coupe.AuRepos());
    QVERIFY(coupe.FilFroid());
    QCOMPARE(coupe.virtuelle.Compter(CommandeFile, 128), std::size_t(0));
    QCOMPARE(coupe.poste.Trouver<QToolButton>("cmdRafraichirUsbTS2D").text(),
             QStringLiteral("Mouvements activés"));
    // The next press is one of its own.
    const auto avant = coupe.virtuelle.boite->Comptes().salvesFinies;
    coupe.Lancer();
    QVERIFY(coupe.virtuelle.boite->Comptes().salvesFinies > avant);
    QCOMPARE(coupe.poste.DerniereBoite().titre, std::string("machine disponible"));
}

void EssaiMachineTrouvee::UneDecoupeArreteeNEstPlusReprise_data() {
    QTest::addColumn<QByteArray>("bouton");
    QTest::addColumn<bool>("oui");
    for (const char* bouton : {"cmdRepriseDecoupe", "cmdLancerRetourApresStop", "cmdRafraichirUsbTS2D"}) {
        QTest::addRow("%s, Yes", bouton) << QByteArray(bouton) << true;
        QTest::addRow("%s, No", bouton) << QByteArray(bouton) << false;
    }
}
void EssaiMachineTrouvee::UneDecoupeArreteeNEstPlusReprise() {
    QFETCH(QByteArray, bouton);
    QFETCH(bool, oui);
    Coupe coupe;
    coupe.Arreter();
    QVERIFY(coupe.Arretee());
    LancerPourAutrui(*coupe.virtuelle.boite, 127);
    coupe.virtuelle.commandes.clear();
    coupe.poste.boites.boites.clear();
    coupe.poste.boites.reponses = {oui ? ReponseBoite::Oui : ReponseBoite::Non};
    coupe.poste.Cliquer<QAbstractButton>(bouton.constData());
    QVERIFY(!coupe.poste.fenetre->Course().arretee);
    QVERIFY(!coupe.poste.fenetre->Course().enCours);
    QCOMPARE(coupe.poste.DerniereBoite().titre, std::string("Reprise impossible"));
    QCOMPARE(coupe.virtuelle.Compter(CommandeFile, 128), std::size_t(0));
    QCOMPARE(EnMarche(coupe.virtuelle), !oui);
    QCOMPARE(EnPaix(coupe.virtuelle), !oui);
}

void EssaiMachineTrouvee::LaFenetreDesMachinesLaLaisseEnPaix() {
    PosteMachine poste;
    BoiteDesFenetres virtuelle;
    virtuelle.Memoriser(TableINI);
    LancerPourAutrui(*virtuelle.boite, 127);
    virtuelle.commandes.clear();
    frmParametresTables fenetre; // No
    Exposer(fenetre);
    QCOMPARE(poste.boites.boites.size(), std::size_t(1));
    QCOMPARE(Controle<QLabel>(fenetre, "lblEtatInterface").text(),
             QStringLiteral("Machine laissée en marche, mouvements désactivés"));
    QCOMPARE(Controle<QRadioButton>(fenetre, "optChoixMemoire_0").text(), QStringLiteral("1: –"));
    QVERIFY(!Controle<QWidget>(fenetre, "frameChoixMemoire").isEnabled());
    QVERIFY(!Controle<QRadioButton>(fenetre, "optReglagesVersManu_1").isEnabled());
    QVERIFY(EnPaix(virtuelle));
    // Another window on the same machine does not ask what was answered.
    frmParametresTables autre;
    QCOMPARE(poste.boites.boites.size(), std::size_t(1));
    poste.boites.reponses = {ReponseBoite::Oui};
    Cliquer(fenetre, "cmdRafraichirUsb");
    QVERIFY(!EnMarche(virtuelle));
    QCOMPARE(Controle<QRadioButton>(fenetre, "optChoixMemoire_0").text(), QStringLiteral("1: (Defaut)"));
    QVERIFY(MouvementsActifs);
}

void EssaiMachineTrouvee::LaFenetreDesMachinesNEcritPasDansUneMachineEnMarche() {
    PosteMachine poste;
    BoiteDesFenetres virtuelle;
    virtuelle.Memoriser(TableINI);
    frmParametresTables fenetre;
    Exposer(fenetre);
    QVERIFY(poste.boites.boites.empty());
    LancerPourAutrui(*virtuelle.boite, 127);
    virtuelle.commandes.clear();
    Cliquer(fenetre, "cmdValider_1"); // No
    QCOMPARE(poste.DerniereBoite().titre, std::string("Machine en marche"));
    QVERIFY(EnPaix(virtuelle));
    QVERIFY(!MouvementsActifs);
    QVERIFY(EnMarche(virtuelle));
}

QTEST_MAIN(EssaiMachineTrouvee)
#include "essai_machine_trouvee.moc"
