// The parameter window as a person uses it: choice, edition, refusals, saving, new machines, deletion,
// sending to a memory, test moves and heat.
#include "app/demarrage/demarrage.h"
#include "app/demarrage/etat_splash.h"
#include "app/ui/frmSplashScreen.h"
#include "fenetres/boite_des_fenetres.h"
#include "fenetres/images.h"
#include "fenetres/poste_machine.h"
#include "machine/dessin_sorties.h"
#include "machine/ui/frmNouvelleTable.h"
#include "machine/ui/frmParametresTables.h"
#include "machine/ui/vue_dessin.h"
#include "ui/champ_nombre.h"
#include "ui/theme.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSlider>
#include <QTabWidget>
#include <QTimer>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

constexpr const char* DeuxMachines = "[Parametres]\r\nMachineUtilisee=(Defaut)\r\n";

void Taper(const QWidget& fenetre, const char* champ, const QString& texte) {
    auto& saisie = Controle<QLineEdit>(fenetre, champ);
    saisie.setFocus();
    saisie.selectAll();
    QTest::keyClicks(&saisie, texte);
}

// Types a name into the window that asks for it, presses its button, and cancels where it stays open.
void RepondreNom(const QString& nom) {
    QTimer::singleShot(0, [nom] {
        auto* demande = qobject_cast<frmNouvelleTable*>(QApplication::activeModalWidget());
        if (demande == nullptr) qFatal("no window asks for a name");
        Taper(*demande, "txtNomTable", nom);
        Cliquer(*demande, "cmdValider");
        if (demande->isVisible()) Cliquer(*demande, "cmdAnnuler");
    });
}

void CreerMachine(const QWidget& fenetre, const QString& nom) {
    RepondreNom(nom);
    Cliquer(fenetre, "cmdNouvelleTable");
}

} // namespace

class EssaiParametresTables : public QObject {
    Q_OBJECT
private slots:
    void init() { AppliquerTheme(Theme::Clair); }

    void LaMachineEnCoursEstMontree();
    void UneReserveeLeDitEtNeSeSupprimePas();
    void CreerEnregistreLesValeursMontrees();
    void LesNomsRefusesLeDisent_data();
    void LesNomsRefusesLeDisent();
    void LeNomATientEnHuitCaracteres();
    void ModifierPuisValiderEcritLaCle();
    void LesRemarquesSuiventLaSaisie();
    void UnNombreIllisibleArreteLaSauvegarde();
    void DeuxSortiesIdentiquesSontRougesEtRefusees();
    void ChoisirUneMachineLaChargeEtLaRetient();
    void ChangerDeMachineAvecDesModificationsDemande();
    void SupprimerDemandePuisRevientAuDefaut();
    void FermerAvecDesModificationsDemande();
    void SansInterfaceEnvoyerLeDit();
    void UneInterfaceQuiVientDEtreBrancheeLeDit();
    void SansMemoireChoisieEnvoyerLeDit();
    void EnvoyerEnMemoire1ActiveLesMouvements_data();
    void EnvoyerEnMemoire1ActiveLesMouvements();
    void EnvoyerUneReserveeNEcritRienDansLeFichier();
    void ValiderSansEnvoyerDesactiveLesMouvementsDUneAutreTable();
    void UneMemoireQuiNeRepondPasLaisseLesMouvementsCoupes();
    void UnFichierImpossibleMontreQueRienNeBougePlus();
};

void EssaiParametresTables::LaMachineEnCoursEstMontree() {
    const PosteMachine poste;
    frmParametresTables fenetre;
    Exposer(fenetre);
    QCOMPARE(Controle<QComboBox>(fenetre, "comboMachines").currentText(), QStringLiteral("(Defaut)"));
    QCOMPARE(Controle<QComboBox>(fenetre, "comboDirOut_3").currentText(), QStringLiteral("10"));
    QCOMPARE(Controle<QLineEdit>(fenetre, "txtMmParTour_0").text(), QStringLiteral("40.0"));
    QCOMPARE(Controle<QSlider>(fenetre, "slidFrequenceZelko").value(), 5);
    QCOMPARE(Controle<QLabel>(fenetre, "lblPasParMm_0").text(), QStringLiteral("320 /mm"));
    QVERIFY(Controle<QLabel>(fenetre, "lblEcartementUtile").text().contains(QStringLiteral("500")));
    QVERIFY(!Controle<QRadioButton>(fenetre, "optReglagesVersManu_1").isEnabled());
    QCOMPARE(Controle<QLabel>(fenetre, "lblEtatInterface").text(), QStringLiteral("Pas d'interface"));
}

void EssaiParametresTables::UneReserveeLeDitEtNeSeSupprimePas() {
    const PosteMachine poste;
    frmParametresTables fenetre;
    Exposer(fenetre);
    QVERIFY(Controle<QLabel>(fenetre, "lblNomReserve").isVisible());
    auto& supprimer = Controle<QPushButton>(fenetre, "cmdEffacerTable");
    QVERIFY(!supprimer.isEnabled());
    QCOMPARE(supprimer.toolTip(), QStringLiteral("La machine (Defaut) ne peut pas être effacée"));
    const std::string avant = poste.Fichier();
    Taper(fenetre, "txtMmParTour_0", QStringLiteral("12"));
    Cliquer(fenetre, "cmdValider_0");
    QCOMPARE(poste.Fichier(), avant);
    QVERIFY(poste.boites.boites.empty());
    QCOMPARE(Controle<QLineEdit>(fenetre, "txtMmParTour_0").text(), QStringLiteral("40.0"));
}

void EssaiParametresTables::CreerEnregistreLesValeursMontrees() {
    const PosteMachine poste;
    frmParametresTables fenetre;
    Exposer(fenetre);
    const QSignalSpy changements(&fenetre, &frmParametresTables::MachineChangee);
    Taper(fenetre, "txtMmParTour_0", QStringLiteral("8,5"));
    CreerMachine(fenetre, QStringLiteral("Atelier"));
    QVERIFY(poste.FichierContient("[Machine_Atelier]\r\n"));
    QVERIFY(poste.FichierContient("MmParTourX1=8.5\r\n"));
    QVERIFY(poste.FichierContient("OrientationX=0\r\n"));
    QVERIFY(poste.FichierContient("MachineUtilisee=Atelier\r\n"));
    QCOMPARE(TableINI.Nom, std::string("Atelier"));
    QCOMPARE(Controle<QComboBox>(fenetre, "comboMachines").currentText(), QStringLiteral("Atelier"));
    QVERIFY(!Controle<QLabel>(fenetre, "lblNomReserve").isVisible());
    QCOMPARE(changements.count(), 1);
    QVERIFY(poste.boites.boites.empty());
}

void EssaiParametresTables::LesNomsRefusesLeDisent_data() {
    QTest::addColumn<bool>("anglais");
    QTest::addColumn<QString>("nom");
    QTest::addColumn<int>("rangee");
    QTest::addRow("blank") << false << QStringLiteral("  ") << 218;
    QTest::addRow("reserved") << false << QStringLiteral("(defaut)") << 219;
    QTest::addRow("taken") << false << QStringLiteral("Deja la") << 220;
    QTest::addRow("blank, English") << true << QStringLiteral("") << 218;
    QTest::addRow("reserved, English") << true << QStringLiteral("QT4X-M1") << 219;
    QTest::addRow("taken, English") << true << QStringLiteral("deja LA") << 220;
}
void EssaiParametresTables::LesNomsRefusesLeDisent() {
    QFETCH(bool, anglais);
    QFETCH(QString, nom);
    QFETCH(int, rangee);
    const PosteMachine poste(anglais ? Langue::English : Langue::Francais,
                             "[Parametres]\r\n[Machine_Deja la]\r\nCourseX=300\r\n");
    frmParametresTables fenetre;
    Exposer(fenetre);
    const std::string avant = poste.Fichier();
    CreerMachine(fenetre, nom);
    QCOMPARE(poste.boites.boites.size(), std::size_t(1));
    QCOMPARE(poste.DerniereBoite().texte, TextesMessages(rangee));
    QCOMPARE(poste.DerniereBoite().titre, TitresMessages(rangee));
    QCOMPARE(poste.Fichier(), avant);
    QCOMPARE(TableINI.Nom, std::string("(Defaut)"));
}

void EssaiParametresTables::LeNomATientEnHuitCaracteres() {
    const PosteMachine poste;
    frmParametresTables fenetre;
    Exposer(fenetre);
    CreerMachine(fenetre, QStringLiteral("Une machine de vingt"));
    QCOMPARE(TableINI.Nom, std::string("Une mach"));
}

void EssaiParametresTables::ModifierPuisValiderEcritLaCle() {
    const PosteMachine poste;
    frmParametresTables fenetre;
    Exposer(fenetre);
    CreerMachine(fenetre, QStringLiteral("Atelier"));
    Taper(fenetre, "txtVRapide", QStringLiteral("7.25"));
    QCOMPARE(Controle<QLabel>(fenetre, "lblEtat").text(), QStringLiteral("Modifications non enregistrées"));
    Controle<QSlider>(fenetre, "slidPenteAcceleration").setValue(9);
    Cliquer(fenetre, "chkSwitchsActifs");
    Cliquer(fenetre, "cmdValider_0");
    QVERIFY(poste.FichierContient("VitesseRapide=7.25\r\n"));
    QVERIFY(poste.FichierContient("PenteAcceleration=9\r\n"));
    QVERIFY(poste.FichierContient("SwitchsActifs=1\r\n"));
    QCOMPARE(TableINI.VitesseRapide, 7.25F);
    QCOMPARE(Controle<QLabel>(fenetre, "lblEtat").text(),
             QStringLiteral("Atelier : enregistrée dans le fichier"));
}

void EssaiParametresTables::LesRemarquesSuiventLaSaisie() {
    const PosteMachine poste;
    frmParametresTables fenetre;
    Exposer(fenetre);
    auto& remarque = Controle<QLabel>(fenetre, "lblRemarquetxtVRapide");
    QCOMPARE(remarque.text(), QString());
    Taper(fenetre, "txtVRapide", QStringLiteral("douze"));
    QCOMPARE(remarque.text(), QStringLiteral("un nombre est attendu"));
    QCOMPARE(remarque.palette().color(QPalette::WindowText), CouleurAlerte());
    Taper(fenetre, "txtVRapide", QStringLiteral("12"));
    QCOMPARE(remarque.text(), QStringLiteral("sera ramené à 10"));
    Taper(fenetre, "txtVRapide", QStringLiteral("9"));
    QCOMPARE(remarque.text(), QString());
}

void EssaiParametresTables::UnNombreIllisibleArreteLaSauvegarde() {
    const PosteMachine poste;
    frmParametresTables fenetre;
    Exposer(fenetre);
    CreerMachine(fenetre, QStringLiteral("Atelier"));
    const std::string avant = poste.Fichier();
    Taper(fenetre, "txtTempoChauffe", QStringLiteral("x"));
    Cliquer(fenetre, "cmdValider_0");
    QCOMPARE(poste.boites.boites.size(), std::size_t(1));
    QCOMPARE(poste.DerniereBoite().texte, std::string("Le format d'un nombre pose problème."));
    QCOMPARE(poste.DerniereBoite().titre, std::string("Erreur de saisie"));
    QCOMPARE(poste.Fichier(), avant);
}

void EssaiParametresTables::DeuxSortiesIdentiquesSontRougesEtRefusees() {
    const PosteMachine poste;
    frmParametresTables fenetre;
    Exposer(fenetre);
    CreerMachine(fenetre, QStringLiteral("Atelier"));
    const std::string avant = poste.Fichier();
    Controle<QComboBox>(fenetre, "comboDirOut_0").setCurrentIndex(7);
    QVERIFY(Controle<QLabel>(fenetre, "lblRemarqueAxe_0")
                .text()
                .contains(QStringLiteral("sortie déjà utilisée")));
    const auto& traits = fenetre.ImageSorties().Montre().traits;
    QVERIFY(std::ranges::any_of(traits, [](const TraitDessin& t) {
        return t.couleur == Couleur{214, 40, 40};
    }));
    Cliquer(fenetre, "cmdValider_0");
    QCOMPARE(poste.DerniereBoite().texte,
             std::string("Validation impossible : deux sorties 'out' identiques sont utilisées pour des "
                         "fonctions différentes."));
    QCOMPARE(poste.Fichier(), avant);
    Controle<QComboBox>(fenetre, "comboDirOut_0").setCurrentIndex(0);
    Controle<QComboBox>(fenetre, "comboDirOut_1").setCurrentIndex(0);
    Cliquer(fenetre, "cmdValider_0");
    QCOMPARE(poste.boites.boites.size(), std::size_t(1));
    QVERIFY(poste.FichierContient("SortieDirX1=0\r\n"));
}

void EssaiParametresTables::ChoisirUneMachineLaChargeEtLaRetient() {
    const PosteMachine poste(Langue::Francais,
                             "[Parametres]\r\n[Matiere_Bleu]\r\nVitesseDecoupe=3\r\nMachine=QT4X-m1\r\n");
    frmParametresTables fenetre;
    Exposer(fenetre);
    auto& machines = Controle<QComboBox>(fenetre, "comboMachines");
    machines.setCurrentIndex(machines.findText(QStringLiteral("QT4X-m1")));
    emit machines.activated(machines.currentIndex());
    QCOMPARE(TableINI.Nom, std::string("QT4X-m1"));
    QCOMPARE(Controle<QLineEdit>(fenetre, "txtVmaxAvecAcc_0").text(), QStringLiteral("80.0"));
    QVERIFY(poste.FichierContient("MachineUtilisee=QT4X-m1\r\n"));
    QCOMPARE(MatieresMachine.size(), std::size_t(2));
}

void EssaiParametresTables::ChangerDeMachineAvecDesModificationsDemande() {
    PosteMachine poste;
    frmParametresTables fenetre;
    Exposer(fenetre);
    auto& machines = Controle<QComboBox>(fenetre, "comboMachines");
    Taper(fenetre, "txtVRapide", QStringLiteral("9"));
    poste.boites.reponses = {ReponseBoite::Non};
    machines.setCurrentIndex(1);
    emit machines.activated(1);
    QCOMPARE(TableINI.Nom, std::string("(Defaut)"));
    QCOMPARE(machines.currentText(), QStringLiteral("(Defaut)"));
    QCOMPARE(Controle<QLineEdit>(fenetre, "txtVRapide").text(), QStringLiteral("9"));
    poste.boites.reponses = {ReponseBoite::Oui};
    machines.setCurrentIndex(1);
    emit machines.activated(1);
    QCOMPARE(TableINI.Nom, std::string("QT4X-m1"));
}

void EssaiParametresTables::SupprimerDemandePuisRevientAuDefaut() {
    PosteMachine poste;
    frmParametresTables fenetre;
    Exposer(fenetre);
    CreerMachine(fenetre, QStringLiteral("Atelier"));
    poste.boites.reponses = {ReponseBoite::Non};
    Cliquer(fenetre, "cmdEffacerTable");
    QCOMPARE(poste.DerniereBoite().texte,
             std::string("Etes-vous sûr de vouloir effacer les paramètres et le nom de cette machine?"));
    QCOMPARE(poste.DerniereBoite().titre, std::string("Supprimer une machine"));
    QVERIFY(poste.FichierContient("[Machine_Atelier]"));
    poste.boites.reponses = {ReponseBoite::Oui};
    Cliquer(fenetre, "cmdEffacerTable");
    QVERIFY(!poste.FichierContient("Atelier"));
    QVERIFY(poste.FichierContient("MachineUtilisee=(Defaut)\r\n"));
    QCOMPARE(TableINI.Nom, std::string("(Defaut)"));
    QCOMPARE(Controle<QComboBox>(fenetre, "comboMachines").findText(QStringLiteral("Atelier")), -1);
    QCOMPARE(Controle<QLabel>(fenetre, "lblEtat").text(),
             QStringLiteral("Chargement de la table par défaut"));
}

void EssaiParametresTables::FermerAvecDesModificationsDemande() {
    PosteMachine poste;
    frmParametresTables fenetre;
    Exposer(fenetre);
    Taper(fenetre, "txtVRapide", QStringLiteral("9"));
    poste.boites.reponses = {ReponseBoite::Non};
    Cliquer(fenetre, "cmdQuitter");
    QCOMPARE(poste.DerniereBoite().texte, TextesMessages(221));
    QVERIFY(fenetre.isVisible());
    poste.boites.reponses = {ReponseBoite::Oui};
    Cliquer(fenetre, "cmdQuitter");
    QVERIFY(!fenetre.isVisible());
}

// Memories ------------------------------------------------------------------------------------------

void EssaiParametresTables::SansInterfaceEnvoyerLeDit() {
    const PosteMachine poste;
    frmParametresTables fenetre;
    Exposer(fenetre);
    const std::string avant = poste.Fichier();
    Cliquer(fenetre, "cmdValider_1");
    QCOMPARE(poste.DerniereBoite().texte,
             std::string("Operation impossible, l'interface n'est pas détectée.\r\n"
                         "Connectez l'interface puis recommencez."));
    QCOMPARE(poste.Fichier(), avant);
}

void EssaiParametresTables::UneInterfaceQuiVientDEtreBrancheeLeDit() {
    const PosteMachine poste;
    const BoiteDesFenetres virtuelle;
    virtuelle.boite->Brancher(false);
    frmParametresTables fenetre;
    Exposer(fenetre);
    virtuelle.boite->Brancher(true);
    Cliquer(fenetre, "cmdValider_1");
    QCOMPARE(poste.boites.boites.size(), std::size_t(1));
    QCOMPARE(poste.DerniereBoite().texte, TextesMessages(224));
    QVERIFY(Controle<QWidget>(fenetre, "frameChoixMemoire").isEnabled());
    QVERIFY(!MouvementsActifs);
}

void EssaiParametresTables::SansMemoireChoisieEnvoyerLeDit() {
    const PosteMachine poste;
    const BoiteDesFenetres virtuelle;
    frmParametresTables fenetre;
    Exposer(fenetre);
    Cliquer(fenetre, "cmdValider_1");
    QCOMPARE(poste.DerniereBoite().texte,
             std::string("Choisissez d'abord la mémoire de l'interface à remplacer."));
    QCOMPARE(virtuelle.Compter(CommandeTable, 4), std::size_t(0));
}

void EssaiParametresTables::EnvoyerEnMemoire1ActiveLesMouvements_data() {
    QTest::addColumn<bool>("anglais");
    QTest::addRow("fr") << false;
    QTest::addRow("en") << true;
}
void EssaiParametresTables::EnvoyerEnMemoire1ActiveLesMouvements() {
    QFETCH(bool, anglais);
    const PosteMachine poste(anglais ? Langue::English : Langue::Francais, DeuxMachines);
    const BoiteDesFenetres virtuelle;
    frmParametresTables fenetre;
    Exposer(fenetre);
    QVERIFY(!MouvementsActifs);
    CreerMachine(fenetre, QStringLiteral("Atelier"));
    Cliquer(fenetre, "optChoixMemoire_0");
    Cliquer(fenetre, "cmdValider_1");
    QVERIFY(poste.boites.boites.empty());
    QVERIFY(MouvementsActifs);
    QCOMPARE(Controle<QRadioButton>(fenetre, "optChoixMemoire_0").text(), QStringLiteral("1: Atelier"));
    QCOMPARE(Controle<QTabWidget>(fenetre, "ssTabZelko").tabText(0), QStringLiteral("1: Atelier"));
    QVERIFY(Controle<QRadioButton>(fenetre, "optReglagesVersManu_1").isEnabled());
    Controle<QTabWidget>(fenetre, "ssTabParametres").setCurrentIndex(6);
    QApplication::processEvents();
    QVERIFY2(MotsCoupes(fenetre).isEmpty(), qPrintable(MotsCoupes(fenetre).join(u' ')));
    QVERIFY(SauverImageRangee(fenetre, QStringLiteral("frmParametresTables-envoyee-")));
    fenetre.close();

    // The next start finds the machine in memory 1 and says so on the splash.
    EtatDemarrage etat;
    etat.NomMachine = TableINI.Nom;
    etat.Splash = AffichageSplashEtTestsZelko(MemoiresDuLien());
    QVERIFY(etat.Splash.Mouvements);
    frmSplashScreen splash;
    splash.Montrer(etat);
    splash.MontrerCourses(TableINI.CourseX, TableINI.CourseY);
    Exposer(splash);
    QCOMPARE(Controle<QLabel>(splash, "lblPasDeCorrespondance").text().toStdString(), TitresMessages(249));
    if (!anglais)
        QCOMPARE(Controle<QLabel>(splash, "lblPasDeCorrespondance").text(),
                 QStringLiteral("Même nom et même définition des sorties actives, mouvements activés!"));
    QVERIFY(SauverImageRangee(splash, QStringLiteral("frmSplashScreen-mouvements-actives-")));
}

void EssaiParametresTables::EnvoyerUneReserveeNEcritRienDansLeFichier() {
    const PosteMachine poste;
    const BoiteDesFenetres virtuelle;
    frmParametresTables fenetre;
    Exposer(fenetre);
    const std::string avant = poste.Fichier();
    Cliquer(fenetre, "optChoixMemoire_2");
    Cliquer(fenetre, "cmdValider_1");
    QCOMPARE(poste.Fichier(), avant);
    QVERIFY(MouvementsActifs);
    QCOMPARE(MemoiresZelko[2].Nom, std::string("(Defaut)"));
}

void EssaiParametresTables::ValiderSansEnvoyerDesactiveLesMouvementsDUneAutreTable() {
    const PosteMachine poste;
    const BoiteDesFenetres virtuelle;
    frmParametresTables fenetre;
    Exposer(fenetre);
    CreerMachine(fenetre, QStringLiteral("Atelier"));
    Cliquer(fenetre, "optChoixMemoire_0");
    Cliquer(fenetre, "cmdValider_1");
    QVERIFY(MouvementsActifs);
    Controle<QSlider>(fenetre, "slidPenteAcceleration").setValue(12);
    Cliquer(fenetre, "cmdValider_0");
    QVERIFY2(!MouvementsActifs, "the memory holds the slope of before");
    QCOMPARE(Controle<QLabel>(fenetre, "lblEtatInterface").text(),
             QStringLiteral("Même nom mais paramètres différents, mouvements désactivés"));
    Controle<QSlider>(fenetre, "slidPenteAcceleration").setValue(6);
    Cliquer(fenetre, "cmdValider_0");
    QVERIFY(MouvementsActifs);
}

void EssaiParametresTables::UnFichierImpossibleMontreQueRienNeBougePlus() {
    const PosteMachine poste;
    BoiteDesFenetres virtuelle;
    virtuelle.Memoriser(TableINI);
    frmParametresTables fenetre;
    Exposer(fenetre);
    CreerMachine(fenetre, QStringLiteral("Atelier"));
    virtuelle.Memoriser(TableINI);
    Cliquer(fenetre, "cmdRafraichirUsb");
    QVERIFY(Controle<QRadioButton>(fenetre, "optReglagesVersManu_1").isEnabled());
    // What a machine that was written and could not be read back leaves behind.
    MouvementsActifs = false;
    DossiersProgramme.FichierIni = poste.dossier.Chemin(); // a folder stands where the file should
    Cliquer(fenetre, "cmdValider_0");
    QCOMPARE(poste.DerniereBoite().texte, TextesMessages(240));
    QVERIFY(!Controle<QRadioButton>(fenetre, "optReglagesVersManu_1").isEnabled());
}

void EssaiParametresTables::UneMemoireQuiNeRepondPasLaisseLesMouvementsCoupes() {
    const PosteMachine poste;
    const BoiteDesFenetres virtuelle;
    frmParametresTables fenetre;
    Exposer(fenetre);
    CreerMachine(fenetre, QStringLiteral("Atelier"));
    Cliquer(fenetre, "optChoixMemoire_0");
    simulateur::PanneProgrammee panne;
    panne.panne = simulateur::Panne::ReponsePerdue;
    panne.commande = CommandeTable;
    panne.echange = 2; // part 2 of the table
    virtuelle.boite->Programmer(panne);
    Cliquer(fenetre, "cmdValider_1");
    QVERIFY(!MouvementsActifs);
    QVERIFY(poste.DerniereBoite().texte.ends_with("Procédure de l'erreur : SauverParamMachineIniEtZelko"));
    QVERIFY(poste.FichierContient("[Machine_Atelier]"));
}

QTEST_MAIN(EssaiParametresTables)
#include "essai_frmParametresTables.moc"
