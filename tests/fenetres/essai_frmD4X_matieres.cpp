// The material window as a person uses it: the base, the import, the slice test with the virtual box, what
// the measurement gives, and a wire that is cold when the window closes.
#include "fenetres/boite_des_fenetres.h"
#include "fenetres/poste_machine.h"
#include "machine/gestion_matieres.h"
#include "machine/ui/explications.h"
#include "machine/ui/frmD4X_matieres.h"
#include "machine/ui/frmImporterMatiere.h"
#include "machine/ui/libelles_matieres.h"
#include "machine/ui/vue_dessin.h"
#include "ui/champ_nombre.h"
#include "ui/theme.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>
#include <QToolButton>
#include <QUrl>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

constexpr const char* AvecMatieres =
    "[Parametres]\r\nMatiereUtilisee=Par defaut\r\n"
    "[Matiere_Bleu]\r\nChauffeDecoupe=60.5\r\nVitesseDecoupe=3.25\r\nSaigneeVD=1.15\r\nSaigneeVDsur2=1.9\r\n"
    "Machine=(Defaut)\r\n"
    "[Matiere_EPP]\r\nChauffeDecoupe=90.0\r\nVitesseDecoupe=2.0\r\nSaigneeVD=1.5\r\nSaigneeVDsur2=2.5\r\n"
    "Machine=Atelier\r\n";

void Taper(const QWidget& fenetre, const char* champ, const QString& texte) {
    auto& saisie = Controle<QLineEdit>(fenetre, champ);
    saisie.setFocus();
    saisie.selectAll();
    QTest::keyClicks(&saisie, texte);
    QTest::keyClick(&saisie, Qt::Key_Return);
}

void Choisir(const QWidget& fenetre, const QString& matiere) {
    auto& liste = Controle<QComboBox>(fenetre, "comboMatieresBDD");
    liste.setCurrentIndex(liste.findText(matiere));
    emit liste.activated(liste.currentIndex());
}

// Answers the box that asks for the name of a new material; an empty name confirms it empty.
void RepondreNom(const QString& nom, QStringList* vu = nullptr) {
    QTimer::singleShot(0, [nom, vu] {
        auto* demande = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
        if (demande == nullptr) qFatal("no box asks for a name");
        if (vu != nullptr) *vu = {demande->windowTitle(), demande->labelText()};
        demande->setTextValue(nom);
        demande->accept();
    });
}

// The machine in memory 1 and the window open.
struct Test {
    explicit Test(const std::string& fichier = AvecMatieres) : poste(Langue::Francais, fichier) {
        virtuelle.Memoriser(TableINI);
        RafraichirUsb("TS2D");
        if (!MouvementsActifs) qFatal("moves are not enabled");
        fenetre = std::make_unique<frmD4X_matieres>();
        Exposer(*fenetre);
    }
    [[nodiscard]] simulateur::PositionPas Position() const { return virtuelle.boite->Position(); }
    [[nodiscard]] QString Etat() const { return Controle<QLabel>(*fenetre, "lblEtatTranches").text(); }
    PosteMachine poste;
    BoiteDesFenetres virtuelle;
    std::unique_ptr<frmD4X_matieres> fenetre;
};

// Keeps the files that the program asks the desktop to open.
class Lecteur : public QObject {
    Q_OBJECT
public:
    Lecteur() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Ouvrir"); }
    ~Lecteur() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
    QStringList fichiers;
public slots:
    void Ouvrir(const QUrl& adresse) { fichiers << adresse.toLocalFile(); }
};

} // namespace

class EssaiMatieres : public QObject {
    Q_OBJECT
private slots:
    void init() { AppliquerTheme(Theme::Clair); }

    void LaMatiereChoisieEstMontreeEtRetenue();
    void LesValeursHorsLimitesSontBrideesAvecLeurBoite();
    void NouvelleDemandeUnNomEtPrendLesValeurs();
    void UnNomVideAnnule();
    void UnNomPrisEstRefuse_data();
    void UnNomPrisEstRefuse();
    void EnregistrerDonneLesValeursALaMatiere();
    void LaLigneParDefautNeSEnregistreNiNeSEfface_data();
    void LaLigneParDefautNeSEnregistreNiNeSEfface();
    void SupprimerDemandePuisRevientAuDefaut();
    void ImporterCopieSousUnAutreNom();
    void SansAutreMachineImporterLeDit();
    void LesExplicationsSOuvrentDansLaLangue();
    void SansMouvementsLeTestEstFerme();
    void LesSixMouvements();
    void LesRefusDuTest_data();
    void LesRefusDuTest();
    void LesVitessesDesTroisChoix();
    void LImageSuitLeFil();
    void LAnimationVaAuBout();
    void StopArreteEtUnInterrupteurSeDit();
    void LaChauffeSeReglePendantLeMouvement();
    void LaSaigneeMesureeVaALaMatiere();
    void LaTensionPermanenteFinitAvecLaFenetre();
    void LaTensionNeSeMelePasAUneChauffeDemandee();
    void FermerRefroiditLeFil();
};

void EssaiMatieres::LaMatiereChoisieEstMontreeEtRetenue() {
    const PosteMachine poste(Langue::Francais, AvecMatieres);
    frmD4X_matieres fenetre;
    Exposer(fenetre);
    QCOMPARE(Controle<QComboBox>(fenetre, "comboMatieresBDD").currentText().toStdString(),
             TextesMessages(105));
    const QSignalSpy changements(&fenetre, &frmD4X_matieres::MatieresChangees);
    Choisir(fenetre, QStringLiteral("Bleu"));
    QCOMPARE(Controle<QLabel>(fenetre, "lblValeurChauffeBDD").text(), QStringLiteral("60.5 %"));
    QCOMPARE(Controle<QLabel>(fenetre, "lblValeurVitesseBDD").text(), QStringLiteral("3.25 mm/s"));
    QCOMPARE(Controle<QLabel>(fenetre, "lblValeurSaigneeBDD").text(), QStringLiteral("1.15 mm"));
    QCOMPARE(Controle<QLabel>(fenetre, "lblValeurSaigneeVsur2BDD").text(), QStringLiteral("1.9 mm"));
    QCOMPARE(MatiereCourante.Nom, std::string("Bleu"));
    QVERIFY(poste.FichierContient("MatiereUtilisee=Bleu\r\n"));
    QCOMPARE(changements.count(), 1);
}

void EssaiMatieres::LesValeursHorsLimitesSontBrideesAvecLeurBoite() {
    PosteMachine poste(Langue::Francais,
                       "[Parametres]\r\n[Matiere_Fou]\r\nChauffeDecoupe=95\r\nVitesseDecoupe=11\r\n"
                       "SaigneeVD=7\r\nSaigneeVDsur2=2\r\nMachine=(Defaut)\r\n");
    frmD4X_matieres fenetre;
    Exposer(fenetre);
    Choisir(fenetre, QStringLiteral("Fou"));
    QCOMPARE(poste.boites.boites.size(), std::size_t(3));
    const int rangees[] = {60, 58, 59};
    for (std::size_t i = 0; i < 3; ++i) {
        QCOMPARE(poste.boites.boites[i].texte, TextesDoubles(rangees[i], 1));
        QCOMPARE(poste.boites.boites[i].titre, std::string("Valeur incorrecte"));
    }
    const ValeursDecoupe valeurs = fenetre.ValeursMontrees();
    QCOMPARE(valeurs.Chauffe, 80.0F);
    QCOMPARE(valeurs.Vitesse, 10.0F);
    QCOMPARE(valeurs.SaigneeVD, 6.0F);
    QCOMPARE(valeurs.SaigneeVDsur2, 2.0F);
}

void EssaiMatieres::NouvelleDemandeUnNomEtPrendLesValeurs() {
    const PosteMachine poste(Langue::Francais, AvecMatieres);
    frmD4X_matieres fenetre;
    Exposer(fenetre);
    Controle<QScrollBar>(fenetre, "hscSaigneeBDD").setValue(135);
    QStringList vu;
    RepondreNom(QStringLiteral("Rose"), &vu);
    Cliquer(fenetre, "cmdGestionMatiere_0");
    QCOMPARE(
        vu, QStringList({QStringLiteral("Base de données Matières"), QStringLiteral("Nom de la matière :")}));
    QVERIFY(poste.FichierContient("[Matiere_Rose]\r\nChauffeDecoupe=65.0\r\nVitesseDecoupe=4.0\r\n"
                                  "SaigneeVD=1.35\r\nSaigneeVDsur2=2.0\r\nMachine=(Defaut)\r\n"));
    QCOMPARE(Controle<QComboBox>(fenetre, "comboMatieresBDD").currentText(), QStringLiteral("Rose"));
}

void EssaiMatieres::UnNomVideAnnule() {
    const PosteMachine poste(Langue::Francais, AvecMatieres);
    frmD4X_matieres fenetre;
    Exposer(fenetre);
    RepondreNom({});
    Cliquer(fenetre, "cmdGestionMatiere_0");
    QCOMPARE(poste.Fichier(), std::string(AvecMatieres));
    QVERIFY(poste.boites.boites.empty());
}

void EssaiMatieres::UnNomPrisEstRefuse_data() {
    QTest::addColumn<bool>("anglais");
    QTest::addColumn<QString>("nom");
    QTest::addRow("own") << false << QStringLiteral("Bleu");
    QTest::addRow("of another machine") << false << QStringLiteral("EPP");
    QTest::addRow("of another machine, English") << true << QStringLiteral("EPP");
}
void EssaiMatieres::UnNomPrisEstRefuse() {
    QFETCH(bool, anglais);
    QFETCH(QString, nom);
    const PosteMachine poste(anglais ? Langue::English : Langue::Francais, AvecMatieres);
    frmD4X_matieres fenetre;
    Exposer(fenetre);
    RepondreNom(nom);
    Cliquer(fenetre, "cmdGestionMatiere_0");
    QCOMPARE(poste.boites.boites.size(), std::size_t(1));
    QCOMPARE(poste.DerniereBoite().texte, TextesDoubles(18, 1));
    QCOMPARE(poste.DerniereBoite().titre, TextesDoubles(18, 2));
    QCOMPARE(poste.Fichier(), std::string(AvecMatieres));
}

void EssaiMatieres::EnregistrerDonneLesValeursALaMatiere() {
    const PosteMachine poste(Langue::Francais, AvecMatieres);
    frmD4X_matieres fenetre;
    Exposer(fenetre);
    Choisir(fenetre, QStringLiteral("Bleu"));
    Controle<QScrollBar>(fenetre, "hscChauffeBDD").setValue(111);
    QCOMPARE(MatiereCourante.ChauffeDecoupe, 60.5F); // edited in the controls until saved
    Cliquer(fenetre, "cmdGestionMatiere_1");
    QVERIFY(poste.FichierContient("[Matiere_Bleu]\r\nChauffeDecoupe=55.5\r\n"));
    QCOMPARE(MatiereCourante.ChauffeDecoupe, 55.5F);
    QCOMPARE(DecoupeCourante.Chauffe, 55.5F);
}

void EssaiMatieres::LaLigneParDefautNeSEnregistreNiNeSEfface_data() {
    QTest::addColumn<bool>("anglais");
    QTest::addRow("fr") << false;
    QTest::addRow("en") << true;
}
void EssaiMatieres::LaLigneParDefautNeSEnregistreNiNeSEfface() {
    QFETCH(bool, anglais);
    const PosteMachine poste(anglais ? Langue::English : Langue::Francais, AvecMatieres);
    frmD4X_matieres fenetre;
    Exposer(fenetre);
    QVERIFY(!Controle<QPushButton>(fenetre, "cmdGestionMatiere_1").isEnabled());
    Cliquer(fenetre, "cmdGestionMatiere_2");
    QCOMPARE(poste.boites.boites.size(), std::size_t(1));
    QCOMPARE(poste.DerniereBoite().texte, TextesDoubles(19, 1));
    QCOMPARE(poste.Fichier(), std::string(AvecMatieres));
}

void EssaiMatieres::SupprimerDemandePuisRevientAuDefaut() {
    PosteMachine poste(Langue::Francais, AvecMatieres);
    frmD4X_matieres fenetre;
    Exposer(fenetre);
    Choisir(fenetre, QStringLiteral("Bleu"));
    poste.boites.reponses = {ReponseBoite::Non};
    Cliquer(fenetre, "cmdGestionMatiere_2");
    QCOMPARE(poste.DerniereBoite().texte, std::string("Valider l'effacement de ce matériau?"));
    QCOMPARE(poste.DerniereBoite().titre, std::string("Supprimer un matériau"));
    QVERIFY(poste.FichierContient("Matiere_Bleu"));
    poste.boites.reponses = {ReponseBoite::Oui};
    Cliquer(fenetre, "cmdGestionMatiere_2");
    QVERIFY(!poste.FichierContient("Bleu"));
    QCOMPARE(Controle<QComboBox>(fenetre, "comboMatieresBDD").currentIndex(), 0);
    QCOMPARE(Controle<QLabel>(fenetre, "lblValeurChauffeBDD").text(), QStringLiteral("65.0 %"));
}

void EssaiMatieres::ImporterCopieSousUnAutreNom() {
    const PosteMachine poste(Langue::Francais, AvecMatieres);
    frmD4X_matieres fenetre;
    Exposer(fenetre);
    QTimer::singleShot(0, [] {
        auto* import = qobject_cast<frmImporterMatiere*>(QApplication::activeModalWidget());
        if (import == nullptr) qFatal("the import did not open");
        QCOMPARE(Controle<QComboBox>(*import, "comboMatieresImport").currentText(),
                 QStringLiteral("EPP (machine : Atelier)"));
        for (const std::string& defaut : DefautsLibelles(*import, LibellesImporterMatiere()))
            QFAIL(defaut.c_str());
        Cliquer(*import, "cmdValider"); // under its own name: taken
        QVERIFY(import->isVisible());
        auto& nom = Controle<QLineEdit>(*import, "txtNouveauNom");
        nom.setText(QStringLiteral("EPP 2"));
        Cliquer(*import, "cmdValider");
    });
    Cliquer(fenetre, "cmdGestionMatiere_3");
    QCOMPARE(poste.boites.boites.size(), std::size_t(2));
    QCOMPARE(poste.boites.boites[0].texte, TextesDoubles(18, 1));
    QVERIFY(poste.boites.boites[1].texte.starts_with("La chauffe de la matière importée (90%)"));
    QVERIFY(poste.FichierContient("[Matiere_EPP 2]\r\nChauffeDecoupe=80.0\r\n"));
    QVERIFY(poste.FichierContient("[Matiere_EPP]\r\nChauffeDecoupe=90.0\r\n"));
    QCOMPARE(Controle<QComboBox>(fenetre, "comboMatieresBDD").currentText(), QStringLiteral("EPP 2"));
}

void EssaiMatieres::SansAutreMachineImporterLeDit() {
    const PosteMachine poste;
    frmD4X_matieres fenetre;
    Exposer(fenetre);
    Cliquer(fenetre, "cmdGestionMatiere_3");
    QCOMPARE(poste.DerniereBoite().texte, std::string("Pas d'autre matière associée à une autre machine"));
    QCOMPARE(poste.DerniereBoite().titre, std::string("Opération impossible"));
}

void EssaiMatieres::LesExplicationsSOuvrentDansLaLangue() {
    const Lecteur lecteur;
    for (const Langue langue : {Langue::Francais, Langue::English}) {
        const PosteMachine poste(langue);
        frmD4X_matieres fenetre;
        Exposer(fenetre);
        Cliquer(fenetre, "cmdExplications");
    }
    QCOMPARE(lecteur.fichiers.size(), 2);
    QVERIFY(lecteur.fichiers[0].endsWith(QStringLiteral("/Explications_matiere_Fr.pdf")));
    QVERIFY(lecteur.fichiers[1].endsWith(QStringLiteral("/Explications_matiere_En.pdf")));
    for (const QString& document : lecteur.fichiers) {
        QFile fichier(document);
        QVERIFY(fichier.open(QIODevice::ReadOnly));
        QVERIFY(fichier.readAll().startsWith("%PDF"));
    }
}

// Slice test ----------------------------------------------------------------------------------------

void EssaiMatieres::SansMouvementsLeTestEstFerme() {
    const PosteMachine poste;
    frmD4X_matieres fenetre;
    Exposer(fenetre);
    for (const char* nom : {"cmdMvtTranches_0", "cmdMvtTranches_5", "cmdStopTranches"})
        QVERIFY(!Controle<QPushButton>(fenetre, nom).isEnabled());
    QVERIFY(!Controle<QWidget>(fenetre, "frameChauffeMatieres").isEnabled());
    QCOMPARE(Controle<QLabel>(fenetre, "lblEtatTranches").text(), QStringLiteral("Mouvements désactivés"));
}

void EssaiMatieres::LesSixMouvements() {
    Test test;
    Taper(*test.fenetre, "txtDimensionsTranches_0", QStringLiteral("30"));
    Taper(*test.fenetre, "txtDimensionsTranches_1", QStringLiteral("2"));
    Taper(*test.fenetre, "txtDimensionsTranches_2", QStringLiteral("6,5"));
    // X and Y of both ends after each button, in steps: 320 per mm.
    const struct {
        const char* bouton;
        int x;
        int y;
    } etapes[] = {{"cmdMvtTranches_0", 0, 2080},    {"cmdMvtTranches_2", 9600, 2080},
                  {"cmdMvtTranches_3", 9600, 1440}, {"cmdMvtTranches_5", 0, 1440},
                  {"cmdMvtTranches_4", 0, 2080},    {"cmdMvtTranches_1", 0, 0}};
    for (const auto& etape : etapes) {
        Cliquer(*test.fenetre, etape.bouton);
        QCOMPARE(test.Etat(), QStringLiteral("Mouvement terminé"));
        const simulateur::PositionPas position = test.Position();
        QCOMPARE(position[AxeX1], etape.x);
        QCOMPARE(position[AxeY1], etape.y);
        QCOMPARE(position[AxeX2], etape.x);
        QCOMPARE(position[AxeY2], etape.y);
    }
    // One frame and its end mark for each.
    QCOMPARE(test.virtuelle.Compter(CommandeFile, 128), std::size_t(6));
    QVERIFY(test.poste.boites.boites.empty());
}

void EssaiMatieres::LesRefusDuTest_data() {
    QTest::addColumn<QString>("champ");
    QTest::addColumn<QString>("valeur");
    QTest::addColumn<int>("rangee");
    QTest::addRow("speed 0") << QStringLiteral("txtVitesseTranches") << QStringLiteral("0") << 96;
    QTest::addRow("speed above") << QStringLiteral("txtVitesseTranches") << QStringLiteral("6.1") << 96;
    QTest::addRow("no speed") << QStringLiteral("txtVitesseTranches") << QStringLiteral("vite") << 96;
    QTest::addRow("too long") << QStringLiteral("txtDimensionsTranches_0") << QStringLiteral("981") << 97;
}
void EssaiMatieres::LesRefusDuTest() {
    QFETCH(QString, champ);
    QFETCH(QString, valeur);
    QFETCH(int, rangee);
    Test test;
    Taper(*test.fenetre, qPrintable(champ), valeur);
    Cliquer(*test.fenetre, "cmdMvtTranches_2");
    QCOMPARE(test.poste.boites.boites.size(), std::size_t(1));
    QCOMPARE(test.poste.DerniereBoite().texte, TextesMessages(rangee));
    QCOMPARE(test.poste.DerniereBoite().titre, std::string("Opération impossible"));
    QCOMPARE(test.Position()[AxeX1], 0);
    QCOMPARE(test.virtuelle.Compter(CommandeFile, 128), std::size_t(0));
}

void EssaiMatieres::LesVitessesDesTroisChoix() {
    Test test;
    Taper(*test.fenetre, "txtDimensionsTranches_0", QStringLiteral("10"));
    Taper(*test.fenetre, "txtVitesseTranches", QStringLiteral("5"));
    // 10 mm at 50 kHz: 100000 ticks at 5 mm/s, 200000 at half of it, 62500 at the rapid 8 mm/s, with a ramp.
    const struct {
        const char* option;
        std::uint32_t ticks;
        bool rampe;
    } choix[] = {{"optVitesseManuMatieres_0", 100000, false},
                 {"optVitesseManuMatieres_1", 200000, false},
                 {"optVitesseManuMatieres_2", 62500, true}};
    for (const auto& c : choix) {
        Cliquer(*test.fenetre, c.option);
        test.virtuelle.commandes.clear();
        Cliquer(*test.fenetre, "cmdMvtTranches_2");
        const auto salve = std::ranges::find_if(
            test.virtuelle.commandes, [](const Tampon& t) { return t[1] == CommandeSalve && t[2] != 128; });
        QVERIFY(salve != test.virtuelle.commandes.end());
        const Tampon& t = *salve;
        QCOMPARE(std::uint32_t(t[3] | t[4] << 8 | t[5] << 16 | t[6] << 24), c.ticks);
        QCOMPARE((t[2] & 32) != 0, c.rampe);
        // The rapid speed lies above what starts without a ramp: 6 mm/s.
        QVERIFY(!c.rampe || t[27] > 0);
    }
}

void EssaiMatieres::LImageSuitLeFil() {
    Test test;
    for (const char* dimension :
         {"txtDimensionsTranches_0", "txtDimensionsTranches_1", "txtDimensionsTranches_2"})
        Taper(*test.fenetre, dimension, QStringLiteral("4"));
    const auto tranches = [&test] {
        return std::ranges::count_if(test.fenetre->ImageTranches().Montre().textes,
                                     [](const TexteDessin& t) { return t.texte == "E"; });
    };
    QCOMPARE(tranches(), 2); // what the test will give
    for (const char* bouton : {"cmdMvtTranches_0", "cmdMvtTranches_2"}) Cliquer(*test.fenetre, bouton);
    QCOMPARE(tranches(), 0);
    for (const char* bouton : {"cmdMvtTranches_3", "cmdMvtTranches_5"}) Cliquer(*test.fenetre, bouton);
    QCOMPARE(tranches(), 1);
    Cliquer(*test.fenetre, "cmdEffacerImage");
    QCOMPARE(tranches(), 2);
}

void EssaiMatieres::LAnimationVaAuBout() {
    const PosteMachine poste;
    frmD4X_matieres fenetre;
    Exposer(fenetre);
    auto& animer = Controle<QToolButton>(fenetre, "cmdAnimer");
    auto& temps = *fenetre.findChild<QTimer*>(QStringLiteral("TimerAnimation"));
    temps.setInterval(1);
    Cliquer(fenetre, "cmdAnimer");
    QVERIFY(animer.isChecked());
    const auto avant = fenetre.ImageTranches().Montre().points.size();
    QTRY_VERIFY(fenetre.ImageTranches().Montre().points.size() != avant);
    QTRY_VERIFY(!animer.isChecked());
    QVERIFY(!temps.isActive());
}

void EssaiMatieres::StopArreteEtUnInterrupteurSeDit() {
    Test test;
    int pompages = 0;
    test.virtuelle.SurPompe = [&] {
        if (++pompages == 40) Cliquer(*test.fenetre, "cmdStopTranches");
    };
    Cliquer(*test.fenetre, "cmdMvtTranches_2");
    QCOMPARE(test.Etat(), QStringLiteral("Mouvement arrêté"));
    QVERIFY(test.Position()[AxeX1] > 0 && test.Position()[AxeX1] < 64000);
    QVERIFY(test.poste.boites.boites.empty());
    pompages = 0;
    test.virtuelle.SurPompe = [&] {
        if (++pompages != 40) return;
        simulateur::Commutateurs ouvert;
        ouvert.finCourseForcee = true;
        test.virtuelle.boite->FixerCommutateurs(ouvert);
    };
    TableMachine avec = TableINI;
    avec.SwitchsActifs = true;
    test.virtuelle.Memoriser(avec);
    Cliquer(*test.fenetre, "cmdMvtTranches_5");
    QCOMPARE(test.poste.boites.boites.size(), std::size_t(1));
    QCOMPARE(test.poste.DerniereBoite().texte, TextesDoubles(27, 1));
    QCOMPARE(test.poste.DerniereBoite().titre, TextesDoubles(27, 2));
}

void EssaiMatieres::LaChauffeSeReglePendantLeMouvement() {
    Test test;
    auto& chauffe = Controle<QScrollBar>(*test.fenetre, "hscChauffeParam");
    chauffe.setValue(60);
    Cliquer(*test.fenetre, "optChauffeMatieres_1");
    QCOMPARE(int(test.virtuelle.boite->Etat().pwmCommande), 153);
    int pompages = 0;
    std::size_t avant = 0;
    test.virtuelle.SurPompe = [&] {
        if (++pompages != 40) return;
        avant = test.virtuelle.commandes.size();
        chauffe.setValue(40);
        // The handler sets a flag; no exchange starts inside another.
        QCOMPARE(test.virtuelle.commandes.size(), avant);
    };
    Cliquer(*test.fenetre, "cmdMvtTranches_2");
    QVERIFY(avant > 0);
    QCOMPARE(int(test.virtuelle.boite->Etat().pwmCommande), 102);
    QCOMPARE(test.Etat(), QStringLiteral("Mouvement terminé"));
    Cliquer(*test.fenetre, "optChauffeMatieres_0");
    QCOMPARE(int(test.virtuelle.boite->Etat().pwmCommande), 0);
}

void EssaiMatieres::LaSaigneeMesureeVaALaMatiere() {
    const PosteMachine poste;
    frmD4X_matieres fenetre;
    Exposer(fenetre);
    QVERIFY(!Controle<QPushButton>(fenetre, "cmdEnvoyerSaignee").isEnabled());
    Taper(fenetre, "txtEpaisseurObtenue", QStringLiteral("18,75"));
    QCOMPARE(Controle<QLabel>(fenetre, "lblSaignee").text(), QStringLiteral(" Saignée = Y - E = 1.25 mm"));
    Cliquer(fenetre, "cmdEnvoyerSaignee");
    QCOMPARE(Controle<QScrollBar>(fenetre, "hscSaigneeBDD").value(), 125);
    Cliquer(fenetre, "optVitesseManuMatieres_1");
    Taper(fenetre, "txtEpaisseurObtenue", QStringLiteral("17.9"));
    Cliquer(fenetre, "cmdEnvoyerSaignee");
    QCOMPARE(Controle<QScrollBar>(fenetre, "hscSaigneeVsur2BDD").value(), 210);
    QCOMPARE(Controle<QScrollBar>(fenetre, "hscSaigneeBDD").value(), 125);
    Cliquer(fenetre, "optVitesseManuMatieres_2");
    QVERIFY(!Controle<QPushButton>(fenetre, "cmdEnvoyerSaignee").isEnabled());
    QVERIFY(poste.boites.boites.empty());
    // Above the highest kerf, and below none.
    Cliquer(fenetre, "optVitesseManuMatieres_0");
    for (const char* epaisseur : {"13.9", "20.1"}) {
        Taper(fenetre, "txtEpaisseurObtenue", QString::fromLatin1(epaisseur));
        Cliquer(fenetre, "cmdEnvoyerSaignee");
        QCOMPARE(poste.DerniereBoite().texte,
                 std::string("La valeur n'est pas comprise dans les limites possibles"));
        QCOMPARE(poste.DerniereBoite().titre, std::string("Opération impossible"));
    }
    QCOMPARE(poste.boites.boites.size(), std::size_t(2));
    QCOMPARE(Controle<QScrollBar>(fenetre, "hscSaigneeBDD").value(), 125);
}

void EssaiMatieres::LaTensionPermanenteFinitAvecLaFenetre() {
    Test test;
    Cliquer(*test.fenetre, "chkDesactiverTimeOutMoteurs");
    QCOMPARE(test.virtuelle.Compter(CommandeMoteurs, 1), std::size_t(1));
    const auto delai = [&test] {
        const auto dernier =
            std::find_if(test.virtuelle.commandes.rbegin(), test.virtuelle.commandes.rend(),
                         [](const Tampon& t) { return t[1] == CommandeMoteurs && t[2] == 3; });
        return dernier == test.virtuelle.commandes.rend() ? -1 : int((*dernier)[3]);
    };
    QCOMPARE(delai(), 0);
    Cliquer(*test.fenetre, "cmdQuitter");
    QCOMPARE(delai(), 1);
    QCOMPARE(test.virtuelle.Compter(CommandeMoteurs, 0), std::size_t(1));
}

void EssaiMatieres::LaTensionNeSeMelePasAUneChauffeDemandee() {
    Test test;
    simulateur::PanneProgrammee panne; // P goes out again and again
    panne.panne = simulateur::Panne::CommandePerdue;
    panne.commande = CommandeChauffe;
    panne.echange = 1;
    panne.fois = 3;
    test.virtuelle.boite->Programmer(panne);
    int pompages = 0;
    test.virtuelle.SurPompe = [&] {
        if (++pompages == 1) Cliquer(*test.fenetre, "chkDesactiverTimeOutMoteurs");
    };
    Cliquer(*test.fenetre, "optChauffeMatieres_1");
    test.virtuelle.SurPompe = {};
    QVERIFY(pompages > 1);
    QCOMPARE(test.virtuelle.Compter(CommandeMoteurs, 1), std::size_t(0));
    QVERIFY(!Controle<QCheckBox>(*test.fenetre, "chkDesactiverTimeOutMoteurs").isChecked());
    Cliquer(*test.fenetre, "chkDesactiverTimeOutMoteurs");
    QCOMPARE(test.virtuelle.Compter(CommandeMoteurs, 1), std::size_t(1));
}

void EssaiMatieres::FermerRefroiditLeFil() {
    Test test;
    Cliquer(*test.fenetre, "optChauffeMatieres_1");
    QVERIFY(test.virtuelle.boite->Etat().pwmCommande > 0);
    test.fenetre->close();
    QCOMPARE(int(test.virtuelle.boite->Etat().pwmCommande), 0);
    QVERIFY(!test.fenetre->isVisible());
    QVERIFY(test.poste.boites.boites.empty());
}

QTEST_MAIN(EssaiMatieres)
#include "essai_frmD4X_matieres.moc"
