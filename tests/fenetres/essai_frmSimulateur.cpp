// The window of the virtual box: its switches act on the box, it shows what the box does, and pictures of it.
#include "fenetres/images.h"
#include "link/simulateur/poste_virtuel.h"
#include "link/simulateur/ui/frmSimulateur.h"
#include "link/simulateur/ui/libelles_simulateur.h"
#include "machine/machines_integrees.h"
#include "outils/dossiers.h"
#include "outils_boite/trames.h"
#include "platform/horloge.h"
#include "ui/canevas.h"
#include "ui/champ_nombre.h"
#include "ui/theme.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QSlider>
#include <QTest>

#include <cmath>
#include <memory>

using namespace tessarel;
using namespace tessarel::simulateur;
using namespace std::chrono_literals;

namespace {

// A box on a socket of its own, its window, and a clock that the test drives.
struct Poste {
    explicit Poste(Langue langue = Langue::Francais) {
        ChargerMessages(langue);
        ancienneHorloge = InstallerHorloge([this] { return temps; });
        OptionsPoste o;
        o.prise = dossier.Fichier("zelko.sock");
        o.chercherMachine = [](const std::string& nom, TableMachine& t) {
            return LireMachineIntegree(nom, t);
        };
        poste = std::make_unique<PosteVirtuel>(o);
        fenetre = std::make_unique<frmSimulateur>(*poste);
        fenetre->resize(1280, 800);
        fenetre->show();
        (void)QTest::qWaitForWindowExposed(fenetre.get());
    }
    ~Poste() {
        fenetre.reset();
        poste.reset();
        InstallerHorloge(ancienneHorloge);
        ChargerMessages(Langue::Francais);
    }
    Poste(const Poste&) = delete;
    Poste& operator=(const Poste&) = delete;

    template <typename Controle>
    Controle& Trouver(const char* nom) {
        auto* c = fenetre->findChild<Controle*>(QString::fromLatin1(nom));
        if (c == nullptr) qFatal("no control %s", nom);
        return *c;
    }
    Tampon Envoyer(Tampon t) {
        poste->Boite().Echanger(t);
        return t;
    }
    Tampon Envoyer(std::uint8_t a, std::uint8_t b, std::uint8_t c) {
        Tampon t = {};
        t[1] = a;
        t[2] = b;
        t[3] = c;
        return Envoyer(t);
    }
    // A list of 10 mm/s segments through these places, in mm of both ends, at this heat.
    void Lancer(std::uint8_t pwm, const std::vector<std::pair<double, double>>& places) {
        Envoyer('B', 0, 0);
        Envoyer('B', 1, 0);
        Envoyer(essais::EnTampon({.drapeaux = 64, .ticks = 100000, .niveauDepart = pwm}));
        double x = 0;
        double y = 0;
        for (const auto& [px, py] : places) {
            const double longueur = std::hypot(px - x, py - y);
            essais::TrameEssai t;
            t.drapeaux = (px >= x ? 5U : 0U) | (py >= y ? 10U : 0U);
            t.ticks = static_cast<std::uint32_t>(longueur / 10 * 50000) + 1;
            const auto pas = [](double mm) {
                return static_cast<std::uint32_t>(std::lround(std::abs(mm) * 320));
            };
            t.pas = {pas(px - x), pas(py - y), pas(px - x), pas(py - y)};
            Envoyer(essais::EnTampon(t));
            x = px;
            y = py;
        }
        Envoyer('D', 128, 0);
        Envoyer('B', 128, 0);
    }
    void Passer(Instant duree) {
        temps += duree;
        fenetre->Tourner();
    }
    const DessinPrepare& Trace() { return Trouver<Canevas>("pctCote").Montre(Canevas::CoucheTrace); }

    essais::DossierProvisoire dossier;
    Instant temps{0};
    SourceTemps ancienneHorloge;
    std::unique_ptr<PosteVirtuel> poste;
    std::unique_ptr<frmSimulateur> fenetre;
};

QStringList MotsCoupes(const QWidget& fenetre) {
    QStringList coupes;
    for (const auto* bouton : fenetre.findChildren<QAbstractButton*>()) {
        if (bouton->isVisible() && !bouton->text().isEmpty() && bouton->width() < bouton->sizeHint().width())
            coupes << bouton->objectName();
    }
    for (const auto* etiquette : fenetre.findChildren<QLabel*>()) {
        if (etiquette->isVisible() && !etiquette->wordWrap() &&
            etiquette->width() < etiquette->sizeHint().width())
            coupes << etiquette->objectName();
    }
    for (const auto* page : fenetre.findChildren<QScrollArea*>()) {
        if (page->isVisible() && page->widget()->minimumSizeHint().width() > page->viewport()->width())
            coupes << QStringLiteral("a column of %1 pixels in %2")
                          .arg(page->widget()->minimumSizeHint().width())
                          .arg(page->viewport()->width());
    }
    return coupes;
}

// The outline of a small wing rib with its way in and out.
std::vector<std::pair<double, double>> Nervure() {
    std::vector<std::pair<double, double>> p = {{20, 60}, {60, 60}};
    for (int i = 0; i <= 60; ++i) {
        const double u = 3.14159265 * i / 60;
        p.emplace_back(180 - 120 * std::cos(u), 60 + 38 * std::sin(u) * (1.1 - 0.3 * (1 - std::cos(u))));
    }
    for (int i = 60; i >= 0; --i) {
        const double u = 3.14159265 * i / 60;
        p.emplace_back(180 - 120 * std::cos(u), 60 - 14 * std::sin(u));
    }
    p.emplace_back(20, 60);
    return p;
}

} // namespace

class EssaiFrmSimulateur : public QObject {
    Q_OBJECT
private slots:
    void LesMotsSontTousLa() {
        for (const Langue langue : {Langue::Francais, Langue::English}) {
            Poste p(langue);
            QStringList defauts;
            for (const std::string& d : DefautsLibelles(*p.fenetre, LibellesSimulateur()))
                defauts << QString::fromStdString(d);
            QVERIFY2(defauts.isEmpty(), qPrintable(defauts.join(u'\n')));
        }
    }

    void LaListeDesPannesEstCelleDeLaBoite() {
        Poste p;
        QCOMPARE(p.Trouver<QComboBox>("combPanne").count(), NombrePannes);
    }

    void LEtatSuitLaBoite() {
        Poste p;
        QCOMPARE(p.Trouver<QLabel>("lblTable").text(), QStringLiteral("Table : (Defaut)"));
        QCOMPARE(p.Trouver<QLabel>("lblEtatBoite").text(), QStringLiteral("Au repos"));
        p.Lancer(204, {{100, 0}, {100, 50}});
        p.Passer(1s);
        QCOMPARE(p.Trouver<QLabel>("lblEtatBoite").text(), QStringLiteral("En pause, le fil chauffe"));
        QCOMPARE(p.Trouver<QProgressBar>("progrChauffe").value(), 80);
        QVERIFY(p.Trouver<QProgressBar>("progrTemperature").value() > 10);
        QCOMPARE(p.Trouver<QProgressBar>("progrSalve").value(), 50);
        QCOMPARE(p.Trouver<QProgressBar>("progrFile").value(), 3);
        QCOMPARE(p.Trouver<QLabel>("lblSalve").text(), QStringLiteral("Salve 1, 100000 ticks"));
        p.Passer(6s); // 5 s of motion: half of the first segment
        QCOMPARE(p.Trouver<QLabel>("lblEtatBoite").text(), QStringLiteral("En mouvement"));
        QCOMPARE(p.Trouver<QLabel>("lblPosition_0").text(), QStringLiteral("50.00"));
        QCOMPARE(p.Trouver<QLabel>("lblPosition_3").text(), QStringLiteral("0.00"));
        QCOMPARE(p.Trouver<QLabel>("lblMoteurs").text(), QStringLiteral("Moteurs alimentés"));
        p.Passer(60s);
        QCOMPARE(p.Trouver<QLabel>("lblEtatBoite").text(), QStringLiteral("Liste terminée"));
        // Its table lets them go a second later.
        QCOMPARE(p.Trouver<QLabel>("lblMoteurs").text(), QStringLiteral("Moteurs relâchés"));
        QCOMPARE(p.Trouver<QLabel>("lblPosition_3").text(), QStringLiteral("50.00"));
    }

    void LeBoutonStopArreteEtCoupeLaChauffe() {
        Poste p;
        p.Lancer(204, {{100, 0}});
        p.Passer(3s);
        QTest::mousePress(&p.Trouver<QPushButton>("cmdStopMachine"), Qt::LeftButton);
        QCOMPARE(p.poste->Boite().Etat().fin, FinMouvement::BoutonStop);
        QCOMPARE(p.poste->Boite().Etat().pwmFil, 0);
        QCOMPARE(p.Trouver<QLabel>("lblEtatBoite").text(), QStringLiteral("Arrêt par le bouton STOP"));
        QVERIFY(
            p.Trouver<QPlainTextEdit>("txtJournal").toPlainText().contains(QStringLiteral("bouton STOP")));
    }

    void LesCommutateursAgissentSurLaBoite() {
        Poste p;
        auto& manu = p.Trouver<QComboBox>("combManu");
        manu.setCurrentIndex(1);
        emit manu.activated(1);
        p.Trouver<QSlider>("hscBouton").setValue(77);
        QCOMPARE(p.Envoyer('I', 0, 0)[8], 1);
        QCOMPARE(p.poste->Boite().Etat().pwmFil, 77);
        auto& marche = p.Trouver<QComboBox>("combMarche");
        marche.setCurrentIndex(1);
        emit marche.activated(1);
        QCOMPARE(p.Envoyer('I', 0, 0)[8], 9);
        QTest::mouseClick(&p.Trouver<QCheckBox>("chkOrigine"), Qt::LeftButton);
        QCOMPARE(p.Envoyer('I', 0, 0)[8], 11);
        QTest::mouseClick(&p.Trouver<QCheckBox>("chkFinCourse"), Qt::LeftButton);
        QCOMPARE(p.Envoyer('I', 0, 0)[8], 15);
        QCOMPARE(p.Trouver<QLabel>("lblFinCourse").text(), QStringLiteral("Fin de course : ouverte"));
        QTest::mouseClick(&p.Trouver<QPushButton>("cmdOublier"), Qt::LeftButton);
        QCOMPARE(p.Envoyer('I', 0, 0)[8], 0);
        QCOMPARE(manu.currentIndex(), 0);
    }

    void DebrancherFermeLaPrise() {
        Poste p;
        p.Trouver<QCheckBox>("chkBranchee").click();
        p.fenetre->Tourner();
        QVERIFY(!p.poste->Prise().Branchee());
        p.Trouver<QCheckBox>("chkBranchee").click();
        p.fenetre->Tourner();
        QVERIFY(p.poste->Prise().Branchee());
        p.Trouver<QCheckBox>("chkTension").click();
        p.fenetre->Tourner();
        QVERIFY(!p.poste->Prise().Branchee());
        QCOMPARE(p.Trouver<QLabel>("lblEtatBoite").text(), QStringLiteral("Hors tension"));
        QCOMPARE(p.Trouver<QLabel>("lblTable").text(), QStringLiteral("Aucune table active"));
    }

    void UnePanneSeProvoque() {
        Poste p;
        p.Envoyer('I', 0, 0);
        p.Trouver<QComboBox>("combPanne").setCurrentIndex(static_cast<int>(Panne::ReponsePerdue));
        p.Trouver<QComboBox>("combQuand").setCurrentIndex(1);
        p.Trouver<ChampNombre>("txtQuand").FixerValeur(2);
        QTest::mouseClick(&p.Trouver<QPushButton>("cmdProgrammer"), Qt::LeftButton);
        QVERIFY(p.poste->Boite().PannesEnAttente());
        Tampon t = {};
        t[1] = 'I';
        QCOMPARE(p.poste->Boite().Echanger(t), 1);
        QCOMPARE(p.poste->Boite().Echanger(t), -203);
        QCOMPARE(p.poste->Boite().Echanger(t), 1);
    }

    void LaMousseGardeLaTraceDuFilChaud() {
        Poste p;
        p.fenetre->FixerBloc({.x = 20, .y = 0, .largeur = 50, .hauteur = 40, .z = 10, .profondeur = 100});
        // Cold along the bottom and up; then hot through the block and out of it.
        p.Lancer(0, {{0, 20}});
        p.Passer(60s);
        const std::size_t froids = p.Trace().Liste().traits.size();
        QVERIFY(froids > 0);
        for (const TraitDessin& t : p.Trace().Liste().traits) QVERIFY(t.tirets);
        p.Lancer(204, {{100, 0}});
        p.Passer(60s);
        // Slits from x = 20 to 70 in both faces, thin lines before and behind.
        double xMin = 1e9;
        double xMax = -1e9;
        for (const TraitDessin& t : p.Trace().Liste().traits) {
            if (t.tirets || t.epaisseur < 2) continue;
            for (std::uint32_t i = t.premier; i < t.premier + t.nombre; ++i) {
                xMin = std::min(xMin, p.Trace().Liste().points[i].X);
                xMax = std::max(xMax, p.Trace().Liste().points[i].X);
            }
        }
        QVERIFY(std::abs(xMin - 20) < 1e-6 && std::abs(xMax - 70) < 1e-6);
        QTest::mouseClick(&p.Trouver<QPushButton>("cmdEffacerTrace"), Qt::LeftButton);
        QCOMPARE(p.Trace().Liste().traits.size(), std::size_t{0});
    }

    void LeFacteurSeChoisit() {
        Poste p;
        auto& liste = p.Trouver<QComboBox>("combFacteur");
        liste.setCurrentIndex(liste.findData(100.0));
        emit liste.activated(liste.currentIndex());
        QCOMPARE(p.poste->Boite().Facteur(), 100.0);
    }

    void LeJournalNeMontreLesEchangesQueSurDemande() {
        Poste p;
        auto& journal = p.Trouver<QPlainTextEdit>("txtJournal");
        p.Envoyer('P', 1, 51);
        p.fenetre->Tourner();
        QVERIFY(journal.toPlainText().contains(QStringLiteral("Chauffe : 20 %")));
        QVERIFY(!journal.toPlainText().contains(QStringLiteral("P chauffe 51")));
        p.Trouver<QCheckBox>("chkEchanges").setChecked(true);
        p.Envoyer('P', 1, 51);
        p.fenetre->Tourner();
        QVERIFY(journal.toPlainText().contains(QStringLiteral("P chauffe 51 → allumee=1 valeur=51")));
        for (int i = 0; i < 1000; ++i) p.Envoyer('I', 0, 0);
        p.fenetre->Tourner();
        QVERIFY(journal.toPlainText().contains(QStringLiteral("600 lignes passées")));
    }

    void LaFenetreTientEn1280Sur800_data() { essais::RangeesImages(); }
    void LaFenetreTientEn1280Sur800() {
        Poste p(essais::ReglerRangeeImage());
        p.poste->Boite().FixerCapaciteFile(256);
        p.Lancer(190, Nervure());
        for (int i = 0; i < 46; ++i) p.Passer(1s);
        QTest::mouseMove(p.fenetre.get(), {600, 20});
        QApplication::processEvents();
        QVERIFY2(MotsCoupes(*p.fenetre).isEmpty(), qPrintable(MotsCoupes(*p.fenetre).join(u' ')));
        QCOMPARE(p.fenetre->size(), QSize(1280, 800));
        QVERIFY(essais::SauverImageRangee(*p.fenetre, QStringLiteral("frmSimulateur-")));
        AppliquerTheme(Theme::Clair);
    }
};

QTEST_MAIN(EssaiFrmSimulateur)
#include "essai_frmSimulateur.moc"
