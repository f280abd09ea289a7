// The splash: what it shows for each thing the start-up can find, and the ways out of it.
#include "app/ui/frmSplashScreen.h"
#include "app/ui/libelles_accueil.h"
#include "images.h"
#include "outils/boites.h"
#include "ui/grand_bouton.h"
#include "ui/theme.h"

#include <QApplication>
#include <QCheckBox>
#include <QDesktopServices>
#include <QDialog>
#include <QLabel>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QToolButton>
#include <QUrl>

using namespace tessarel;
using essais::BoitesEnregistrees;

namespace {

EtatDemarrage SansInterface() {
    EtatDemarrage etat;
    etat.Bibliotheque = EtatBibliotheque::Presente;
    etat.NomMachine = "(Defaut)";
    etat.Splash.NomMachine = "(Defaut)";
    etat.Splash.Detection = {"Pas d'interface", CouleurLibelle::Rouge, true};
    etat.Splash.Correspondance = {"Mouvements désactivés", CouleurLibelle::Rouge, true};
    return etat;
}

EtatDemarrage AvecInterface() {
    EtatDemarrage etat = SansInterface();
    etat.Splash.Detection = {"(Zelko)\r\nInterface détectée", CouleurLibelle::Verte, true};
    etat.Splash.Correspondance = {};
    etat.Splash.NomsVisibles = true;
    etat.Splash.Memoires = {{{"QT4X-m1", true}, {"(Defaut)", true}, {"Grande table", true}}};
    return etat;
}

EtatDemarrage AvecMemoires(bool secondeDifferente, bool troisiemeEgale) {
    EtatDemarrage etat = AvecInterface();
    etat.Splash.Memoires[1].Cochee = secondeDifferente;
    etat.Splash.Memoires[1].Differente = secondeDifferente;
    if (secondeDifferente) {
        etat.Splash.Correspondance = {"Même nom mais paramètres différents, mouvements désactivés",
                                      CouleurLibelle::Rouge, true};
    }
    if (troisiemeEgale) {
        etat.Splash.Memoires[2] = {"(Defaut)", true, true, false};
        etat.Splash.Correspondance = {"Même nom et même définition des sorties actives, mouvements activés!",
                                      CouleurLibelle::Verte, true};
        etat.Splash.Mouvements = true;
    }
    return etat;
}

QColor EncreDe(const QWidget* controle) {
    return controle->palette().color(QPalette::WindowText);
}

// Keeps the addresses that the program asks the desktop to open.
class Navigateur : public QObject {
    Q_OBJECT
public:
    Navigateur() { QDesktopServices::setUrlHandler("https", this, "Ouvrir"); }
    ~Navigateur() override { QDesktopServices::unsetUrlHandler("https"); }
    QStringList adresses;
public slots:
    void Ouvrir(const QUrl& adresse) { adresses << adresse.toString(); }
};

} // namespace

class EssaiSplash : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_splash.reset(); }

    void SansInterfaceLesLibellesSontRouges();
    void LesMemoiresSeMontrentAvecUneInterface();
    void AucuneMemoireDeCeNom();
    void UneMemoireDifferenteLeDit();
    void UneMemoireDifferentePuisUneEgale();
    void LaMachineEtSesCourses();
    void LesTemoinsNeSeCochentPas();
    void LeMode4AxesEstFermeEtDitPourquoi();
    void LeFocusSuitLeDernierOnglet_data();
    void LeFocusSuitLeDernierOnglet();
    void ContinuerDitLeMode();
    void EntreeOuvreLeModePropose();
    void QuitterParLeBoutonParEchappEtParLaCroix();
    void LesNouveautesSOuvrent();
    void LeSiteSOuvreDansLaLangue();
    void LaMiseAJourEstCacheePuisMeneALaPage();
    void ChaqueControleASesMots();
    void LesMotsSuiventLaLangue();
    void LesCouleursSuiventLeTheme();
    void TientDansUnEcran();
    void Images();

private:
    template <typename T>
    T* Controle(const char* nom) {
        T* controle = m_splash->findChild<T*>(nom);
        if (controle == nullptr) qFatal("no control %s", nom);
        return controle;
    }
    void Montrer(const EtatDemarrage& etat) {
        m_splash->Montrer(etat);
        m_splash->show();
        QApplication::setActiveWindow(m_splash.get());
    }

    std::unique_ptr<frmSplashScreen> m_splash;
};

void EssaiSplash::init() {
    AppliquerTheme(Theme::Clair);
    ChargerMessages(Langue::Francais);
    m_splash = std::make_unique<frmSplashScreen>();
}

void EssaiSplash::SansInterfaceLesLibellesSontRouges() {
    Montrer(SansInterface());
    auto* detection = Controle<QLabel>("lblDetectionInterface");
    QCOMPARE(detection->text(), QStringLiteral("Pas d'interface"));
    QCOMPARE(EncreDe(detection), CouleurAlerte());
    auto* accord = Controle<QLabel>("lblPasDeCorrespondance");
    QVERIFY(accord->isVisible());
    QCOMPARE(accord->text(), QStringLiteral("Mouvements désactivés"));
    QCOMPARE(EncreDe(accord), CouleurAlerte());
    QVERIFY(!Controle<QLabel>("lblNomMachinesMemoire")->isVisible());
    for (const char* nom : {"chkMemoiresZelko_0", "chkMemoiresZelko_1", "chkMemoiresZelko_2"}) {
        QVERIFY(!Controle<QCheckBox>(nom)->isVisible());
    }
    for (const char* nom : {"lblMarqueMemoire_0", "lblMarqueMemoire_1", "lblMarqueMemoire_2"}) {
        QVERIFY(!Controle<QLabel>(nom)->isVisible());
    }
}

void EssaiSplash::LesMemoiresSeMontrentAvecUneInterface() {
    const QImage absente = [this] {
        Montrer(SansInterface());
        return Controle<QLabel>("pcbInterfaceDetectee")->pixmap(Qt::ReturnByValue).toImage();
    }();
    Montrer(AvecInterface());
    auto* detection = Controle<QLabel>("lblDetectionInterface");
    QCOMPARE(detection->text(), QStringLiteral("(Zelko)\nInterface détectée"));
    QCOMPARE(EncreDe(detection), CouleurAccord());
    QVERIFY(Controle<QLabel>("lblNomMachinesMemoire")->isVisible());
    QVERIFY(!Controle<QLabel>("lblPasDeCorrespondance")->isVisible());
    QCOMPARE(Controle<QCheckBox>("chkMemoiresZelko_0")->text(), QStringLiteral("QT4X-m1"));
    QCOMPARE(Controle<QCheckBox>("chkMemoiresZelko_2")->text(), QStringLiteral("Grande table"));
    QVERIFY(Controle<QCheckBox>("chkMemoiresZelko_1")->isVisible());
    QVERIFY(!Controle<QCheckBox>("chkMemoiresZelko_1")->isChecked());
    QVERIFY(Controle<QLabel>("pcbInterfaceDetectee")->pixmap(Qt::ReturnByValue).toImage() != absente);
}

void EssaiSplash::AucuneMemoireDeCeNom() {
    EtatDemarrage etat = AvecInterface();
    etat.Splash.Correspondance = {"Aucune table du même nom, mouvements désactivés", CouleurLibelle::Rouge,
                                  true};
    Montrer(etat);
    auto* accord = Controle<QLabel>("lblPasDeCorrespondance");
    QVERIFY(accord->isVisible());
    QCOMPARE(accord->text(), QStringLiteral("Aucune table du même nom, mouvements désactivés"));
    QCOMPARE(EncreDe(accord), CouleurAlerte());
    QVERIFY(!Controle<QLabel>("lblMarqueMemoire_0")->isVisible());
}

void EssaiSplash::UneMemoireDifferenteLeDit() {
    Montrer(AvecMemoires(true, false));
    QVERIFY(Controle<QCheckBox>("chkMemoiresZelko_1")->isChecked());
    QVERIFY(!Controle<QCheckBox>("chkMemoiresZelko_0")->isChecked());
    auto* marque = Controle<QLabel>("lblMarqueMemoire_1");
    QVERIFY(marque->isVisible());
    QCOMPARE(marque->text(), QStringLiteral("paramètres différents"));
    QCOMPARE(EncreDe(marque), CouleurAlerte());
    QCOMPARE(EncreDe(Controle<QLabel>("lblPasDeCorrespondance")), CouleurAlerte());
}

void EssaiSplash::UneMemoireDifferentePuisUneEgale() {
    Montrer(AvecMemoires(true, true));
    QCOMPARE(Controle<QLabel>("lblMarqueMemoire_1")->text(), QStringLiteral("paramètres différents"));
    auto* marque = Controle<QLabel>("lblMarqueMemoire_2");
    QVERIFY(marque->isVisible());
    QCOMPARE(marque->text(), QStringLiteral("mêmes paramètres"));
    QCOMPARE(EncreDe(marque), CouleurAccord());
    auto* accord = Controle<QLabel>("lblPasDeCorrespondance");
    QCOMPARE(accord->text(),
             QStringLiteral("Même nom et même définition des sorties actives, mouvements activés!"));
    QCOMPARE(EncreDe(accord), CouleurAccord());
}

void EssaiSplash::LaMachineEtSesCourses() {
    Montrer(SansInterface());
    auto* machine = Controle<QCheckBox>("chkDerniereMachine");
    QCOMPARE(machine->text(), QStringLiteral("(Defaut)"));
    QVERIFY(machine->isChecked());
    QVERIFY(!Controle<QLabel>("pcbDerniereMachine")->pixmap(Qt::ReturnByValue).isNull());
    QVERIFY(!Controle<QLabel>("lblCourses")->isVisible());
    m_splash->MontrerCourses(600, 300);
    QVERIFY(Controle<QLabel>("lblCourses")->isVisible());
    QCOMPARE(Controle<QLabel>("lblCourses")->text(), QStringLiteral("Courses : 600 × 300 mm"));
}

void EssaiSplash::LesTemoinsNeSeCochentPas() {
    Montrer(AvecInterface());
    auto* temoin = Controle<QCheckBox>("chkMemoiresZelko_0");
    const QPoint milieu = temoin->mapTo(m_splash.get(), temoin->rect().center());
    QTest::mouseClick(m_splash->childAt(milieu), Qt::LeftButton);
    QVERIFY(!temoin->isChecked());
    QCOMPARE(temoin->focusPolicy(), Qt::NoFocus);
}

void EssaiSplash::LeMode4AxesEstFermeEtDitPourquoi() {
    Montrer(SansInterface());
    auto* bouton = Controle<GrandBouton>("cmdContinuer_1");
    QVERIFY(!bouton->isEnabled());
    QCOMPARE(bouton->toolTip(),
             QStringLiteral("La conception et la découpe 4 axes ne sont pas dans cette version"));
    QVERIFY(Controle<GrandBouton>("cmdContinuer_0")->isEnabled());
    m_splash->PermettreMode4Axes();
    QVERIFY(bouton->isEnabled());
    QVERIFY(bouton->toolTip().isEmpty());
}

void EssaiSplash::LeFocusSuitLeDernierOnglet_data() {
    QTest::addColumn<bool>("ouvert");
    QTest::addColumn<bool>("ts2d");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("TS2D") << true << true << "cmdContinuer_0";
    QTest::newRow("C4X") << true << false << "cmdContinuer_1";
    QTest::newRow("C4X, closed") << false << false << "cmdContinuer_0";
}

void EssaiSplash::LeFocusSuitLeDernierOnglet() {
    QFETCH(const bool, ouvert);
    QFETCH(const bool, ts2d);
    QFETCH(const QString, attendu);
    if (ouvert) m_splash->PermettreMode4Axes();
    EtatDemarrage etat = SansInterface();
    etat.FocusSur2D = ts2d;
    Montrer(etat);
    QCOMPARE(m_splash->focusWidget()->objectName(), attendu);
}

void EssaiSplash::ContinuerDitLeMode() {
    m_splash->PermettreMode4Axes();
    Montrer(SansInterface());
    std::vector<ModeChoisi> modes;
    connect(m_splash.get(), &frmSplashScreen::Continuer,
            [&modes](ModeChoisi mode) { modes.push_back(mode); });
    QTest::mouseClick(Controle<GrandBouton>("cmdContinuer_0"), Qt::LeftButton);
    QTest::mouseClick(Controle<GrandBouton>("cmdContinuer_1"), Qt::LeftButton);
    const std::vector<ModeChoisi> attendus = {ModeChoisi::Mode2D, ModeChoisi::Mode4Axes};
    QCOMPARE(modes, attendus);
}

void EssaiSplash::EntreeOuvreLeModePropose() {
    EtatDemarrage etat = SansInterface();
    etat.FocusSur2D = true;
    Montrer(etat);
    int choix = 0;
    connect(m_splash.get(), &frmSplashScreen::Continuer, [&choix] { ++choix; });
    QTest::keyClick(m_splash->focusWidget(), Qt::Key_Return);
    QCOMPARE(choix, 1);
}

void EssaiSplash::QuitterParLeBoutonParEchappEtParLaCroix() {
    const QSignalSpy sorties(m_splash.get(), &frmSplashScreen::Annuler);
    Montrer(SansInterface());
    QTest::mouseClick(Controle<QToolButton>("cmdAnnuler"), Qt::LeftButton);
    QCOMPARE(sorties.count(), 1);
    QVERIFY(!m_splash->isVisible());
    Montrer(SansInterface());
    QTest::keyClick(m_splash.get(), Qt::Key_Escape);
    QTRY_COMPARE(sorties.count(), 2); // a button pressed by its key goes down for a moment first
    Montrer(SansInterface());
    m_splash->close();
    QCOMPARE(sorties.count(), 3);
}

void EssaiSplash::LesNouveautesSOuvrent() {
    Montrer(SansInterface());
    QString texte;
    QTimer::singleShot(0, [&texte] {
        auto* liste = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (liste == nullptr) return;
        texte = liste->findChild<QTextBrowser*>("txtModifications")->toPlainText();
        liste->reject();
    });
    QTest::mouseClick(Controle<QToolButton>("cmdWhatsUp"), Qt::LeftButton);
    QVERIFY(texte.contains(QStringLiteral("Gcode")));
}

void EssaiSplash::LeSiteSOuvreDansLaLangue() {
    const Navigateur navigateur;
    Montrer(SansInterface());
    QTest::mouseClick(Controle<QToolButton>("cmdLancerOrvane"), Qt::LeftButton);
    m_splash->ChargerLibelles(Langue::English);
    QTest::mouseClick(Controle<QToolButton>("cmdLancerOrvane"), Qt::LeftButton);
    QCOMPARE(navigateur.adresses, QStringList({TESSAREL_SITE "/fr", TESSAREL_SITE "/en"}));
}

void EssaiSplash::LaMiseAJourEstCacheePuisMeneALaPage() {
    const Navigateur navigateur;
    const BoitesEnregistrees boites;
    Montrer(SansInterface());
    auto* bouton = Controle<QToolButton>("cmdMiseAJour");
    QVERIFY(!bouton->isVisible());
    m_splash->ProposerMiseAJour();
    QVERIFY(bouton->isVisible());
    const QSignalSpy sorties(m_splash.get(), &frmSplashScreen::Annuler);
    QTest::mouseClick(bouton, Qt::LeftButton);
    QCOMPARE(boites.boites.size(), std::size_t(1));
    QCOMPARE(boites.boites[0].titre, std::string("Télécharger la mise à jour"));
    QCOMPARE(navigateur.adresses, QStringList({TESSAREL_SITE_TELECHARGEMENT "/fr"}));
    QCOMPARE(sorties.count(), 1);
}

void EssaiSplash::ChaqueControleASesMots() {
    Montrer(AvecMemoires(true, true));
    for (const std::string& defaut : DefautsLibelles(*m_splash, LibellesSplash())) QFAIL(defaut.c_str());
}

void EssaiSplash::LesMotsSuiventLaLangue() {
    Montrer(SansInterface());
    QCOMPARE(Controle<GrandBouton>("cmdContinuer_0")->text(), QStringLiteral("Découpe 2D"));
    ChargerMessages(Langue::English);
    m_splash->ChargerLibelles(Langue::English);
    QCOMPARE(Controle<GrandBouton>("cmdContinuer_0")->text(), QStringLiteral("2D cutting"));
    QCOMPARE(Controle<QToolButton>("cmdAnnuler")->text(), QStringLiteral("Quit"));
    // What the start-up told is not taken back.
    QCOMPARE(Controle<QLabel>("lblDetectionInterface")->text(), QStringLiteral("Pas d'interface"));
}

void EssaiSplash::LesCouleursSuiventLeTheme() {
    Montrer(SansInterface());
    const QColor clair = EncreDe(Controle<QLabel>("lblDetectionInterface"));
    const QImage imageClaire = Controle<QLabel>("pcbDerniereMachine")->pixmap(Qt::ReturnByValue).toImage();
    AppliquerTheme(Theme::Sombre);
    QCoreApplication::processEvents();
    QCOMPARE(EncreDe(Controle<QLabel>("lblDetectionInterface")), CouleurAlerte());
    QVERIFY(EncreDe(Controle<QLabel>("lblDetectionInterface")) != clair);
    QVERIFY(Controle<QLabel>("pcbDerniereMachine")->pixmap(Qt::ReturnByValue).toImage() != imageClaire);
}

void EssaiSplash::TientDansUnEcran() {
    Montrer(AvecMemoires(true, true));
    m_splash->ProposerMiseAJour();
    QVERIFY(m_splash->width() <= 1280);
    QVERIFY(m_splash->height() <= 760); // room for a task bar in 800
    // In the middle of the screen, but for the frame that the desktop puts around.
    const QPoint ecart = m_splash->geometry().center() - m_splash->screen()->availableGeometry().center();
    QVERIFY(ecart.manhattanLength() <= 40);
    QVERIFY(m_splash->minimumSizeHint().width() <= m_splash->width());
    QVERIFY(m_splash->minimumSizeHint().height() <= m_splash->height());
}

void EssaiSplash::Images() {
    for (const Langue langue : {Langue::Francais, Langue::English}) {
        for (const Theme theme : {Theme::Clair, Theme::Sombre}) {
            AppliquerTheme(theme);
            ChargerMessages(langue);
            m_splash = std::make_unique<frmSplashScreen>();
            EtatDemarrage etat = SansInterface();
            etat.Splash.Detection.Texte = TextesMessages(247);
            etat.Splash.Correspondance.Texte = TitresMessages(247);
            m_splash->MontrerCourses(980, 510);
            Montrer(etat);
            QVERIFY(essais::SauverImage(*m_splash, QStringLiteral("frmSplashScreen-%1-%2")
                                                       .arg(langue == Langue::English ? "en" : "fr",
                                                            theme == Theme::Sombre ? "sombre" : "clair")));
        }
    }
}

QTEST_MAIN(EssaiSplash)
#include "essai_frmSplashScreen.moc"
