// The splash after a real start with a virtual box in the library's place: what its memories decide, and what
// is shown.
#include "app/demarrage/demarrage.h"
#include "app/ui/frmSplashScreen.h"
#include "images.h"
#include "link/memoires.h"
#include "outils/boites.h"
#include "outils/dossiers.h"
#include "outils_boite/autrui.h"
#include "outils_boite/boite_virtuelle.h"
#include "ui/theme.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QTest>

#include <memory>
#include <optional>

using namespace tessarel;
using essais::BoitesEnregistrees;
using essais::BoiteVirtuelle;

namespace {

// A splash as the program shows it, on settings of its own; the library is not looked for, the box stands in
// its place.
class Poste {
public:
    EtatDemarrage Demarrer(Langue langue = Langue::Francais) {
        OptionsDemarrage options;
        options.DossierDocuments = m_dossier.Fichier("Documents");
        options.DossierProgramme = m_dossier.Chemin();
        options.LangueImposee = langue;
        options.ChercherInterface = false;
        options.Memoires = MemoiresDuLien();
        return tessarel::Demarrer(options);
    }

private:
    essais::DossierProvisoire m_dossier;
};

} // namespace

class EssaiSplashBoite : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void UneMemoireEgaleActiveLesMouvements();
    void UneMachineRangeeEnMemoireActiveLesMouvementsAuDemarrageSuivant();
    void DesParametresDifferentsLesDesactivent();
    void SansMemoireDuNomIlsRestentDesactives();
    void UnChargementEnRamPerduLeDit();
    void Debranchee();
    void UneMachineEnMarcheEstDemandee_data();
    void UneMachineEnMarcheEstDemandee();
    void Images_data();
    void Images();

private:
    void Demarrer(Langue langue = Langue::Francais);
    QString Texte(const char* nom) const { return m_splash->findChild<QLabel*>(nom)->text(); }
    QString Memoire(int i) const {
        return m_splash->findChild<QCheckBox*>(QStringLiteral("chkMemoiresZelko_%1").arg(i))->text();
    }
    QString Marque(int i) const {
        auto* marque = m_splash->findChild<QLabel*>(QStringLiteral("lblMarqueMemoire_%1").arg(i));
        return marque->isVisible() ? marque->text() : QString();
    }

    std::unique_ptr<Poste> m_poste;
    std::unique_ptr<BoiteVirtuelle> m_boite;
    std::unique_ptr<BoitesEnregistrees> m_boites;
    std::unique_ptr<frmSplashScreen> m_splash;
};

void EssaiSplashBoite::init() {
    m_poste = std::make_unique<Poste>();
    m_boite = std::make_unique<BoiteVirtuelle>();
    m_boites = std::make_unique<BoitesEnregistrees>();
}

void EssaiSplashBoite::cleanup() {
    m_splash.reset();
    m_boites.reset();
    m_boite.reset();
    m_poste.reset();
    ChargerMessages(Langue::Francais);
}

void EssaiSplashBoite::Demarrer(Langue langue) {
    const EtatDemarrage etat = m_poste->Demarrer(langue);
    m_splash = std::make_unique<frmSplashScreen>();
    m_splash->MontrerCourses(TableINI.CourseX, TableINI.CourseY);
    m_splash->Montrer(etat);
    m_splash->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_splash.get()));
}

void EssaiSplashBoite::UneMemoireEgaleActiveLesMouvements() {
    Demarrer();
    QVERIFY(MouvementsActifs);
    QVERIFY(InterfaceConnectee);
    QCOMPARE(Texte("lblDetectionInterface"), QStringLiteral("(Zelko)\nInterface détectée"));
    QCOMPARE(Memoire(0), QStringLiteral("(Defaut)"));
    QCOMPARE(Marque(0), QStringLiteral("mêmes paramètres"));
    QCOMPARE(Memoire(1), QString());
    QCOMPARE(Marque(1), QStringLiteral("mémoire vide"));
    QCOMPARE(Texte("lblPasDeCorrespondance"),
             QStringLiteral("Même nom et même définition des sorties actives, mouvements activés!"));
    QVERIFY(m_boites->boites.empty());
}

void EssaiSplashBoite::UneMachineRangeeEnMemoireActiveLesMouvementsAuDemarrageSuivant() {
    m_boite->boite.EcrireMemoires({});
    Demarrer();
    QVERIFY(!MouvementsActifs);
    QVERIFY(EcrireTableDansZelkoEtChargerEnRam(1));
    Demarrer();
    QVERIFY(MouvementsActifs);
    QCOMPARE(int{TableINI.NumeroMemoire}, 1);
    QCOMPARE(Marque(1), QStringLiteral("mêmes paramètres"));
    QCOMPARE(MemoiresZelko[1].Nom, std::string("(Defaut)"));
}

void EssaiSplashBoite::DesParametresDifferentsLesDesactivent() {
    TableMachine autre = TableINI;
    autre.PenteAcceleration = 3;
    m_boite->PreparerMachine(autre);
    Demarrer();
    QVERIFY(!MouvementsActifs);
    QVERIFY(InterfaceConnectee);
    QCOMPARE(Marque(0), QStringLiteral("paramètres différents"));
    QCOMPARE(Texte("lblPasDeCorrespondance"),
             QStringLiteral("Même nom mais paramètres différents, mouvements désactivés"));
}

void EssaiSplashBoite::SansMemoireDuNomIlsRestentDesactives() {
    TableMachine autre = TableINI;
    autre.Nom = "Autre";
    m_boite->PreparerMachine(autre);
    Demarrer();
    QVERIFY(!MouvementsActifs);
    QCOMPARE(Memoire(0), QStringLiteral("Autre"));
    QCOMPARE(Marque(0), QString());
    QCOMPARE(Texte("lblPasDeCorrespondance"),
             QStringLiteral("Aucune table du même nom, mouvements désactivés"));
}

void EssaiSplashBoite::UnChargementEnRamPerduLeDit() {
    int tables = 0;
    FonctionsZelkoCom fonctions;
    fonctions.EstBranchee = [] { return ZelkoBranchee; };
    fonctions.Envoyer = [&](Tampon& tampon) -> std::int32_t {
        if (tampon[1] == 'T' && tampon[2] == 1) {
            ++tables;
            return -203;
        }
        return m_boite->boite.Echanger(tampon);
    };
    RemplacerZelkoCom(std::move(fonctions));
    Demarrer();
    QCOMPARE(tables, 1);
    QVERIFY(!MouvementsActifs);
    QCOMPARE(Texte("lblPasDeCorrespondance"), QStringLiteral("Mouvements désactivés"));
    QCOMPARE(m_boites->boites.size(), std::size_t{1});
    QVERIFY(m_boites->boites[0].texte.starts_with(
        "Erreur de réponse de l'interface lors du chargement de la table en RAM "));
}

void EssaiSplashBoite::Debranchee() {
    RemplacerZelkoCom({VersionMinimaleZelko, [] { return 0; }, [](Tampon&) { return -200; }});
    Demarrer();
    QVERIFY(!InterfaceConnectee);
    QVERIFY(!MouvementsActifs);
    QCOMPARE(Texte("lblDetectionInterface"), QStringLiteral("Pas d'interface"));
    QVERIFY(m_boites->boites.empty());
}

void EssaiSplashBoite::UneMachineEnMarcheEstDemandee_data() {
    QTest::addColumn<bool>("oui");
    QTest::newRow("Yes") << true;
    QTest::newRow("No") << false;
}
void EssaiSplashBoite::UneMachineEnMarcheEstDemandee() {
    QFETCH(const bool, oui);
    essais::LancerPourAutrui(m_boite->boite, 127);
    std::string commandes;
    m_boite->AvantEchange = [&commandes](const Tampon& t) { commandes += static_cast<char>(t[1]); };
    m_boites->reponses = {oui ? ReponseBoite::Oui : ReponseBoite::Non};
    Demarrer();
    QCOMPARE(m_boites->boites.front().titre, std::string("Machine en marche"));
    QCOMPARE(m_boites->boites.size(), std::size_t{oui ? 2U : 1U});
    QCOMPARE(MouvementsActifs, oui);
    QCOMPARE(m_boite->boite.Etat().pwmFil == 0, oui);
    QCOMPARE(Texte("lblDetectionInterface"), QStringLiteral("(Zelko)\nInterface détectée"));
    if (oui) {
        QCOMPARE(Marque(0), QStringLiteral("mêmes paramètres"));
        return;
    }
    QVERIFY(commandes.find_first_not_of('I') == std::string::npos);
    QCOMPARE(Texte("lblPasDeCorrespondance"),
             QStringLiteral("Machine laissée en marche, mouvements désactivés"));
    QVERIFY(!m_splash->findChild<QCheckBox*>(QStringLiteral("chkMemoiresZelko_0"))->isVisible());
    QVERIFY(essais::SauverImage(*m_splash, QStringLiteral("splash-laissee-en-marche")));
}

void EssaiSplashBoite::Images_data() {
    QTest::addColumn<bool>("sombre");
    QTest::addColumn<bool>("anglais");
    QTest::addColumn<QString>("nom");
    QTest::newRow("light, French") << false << false << "splash-boite";
    QTest::newRow("dark, English") << true << true << "splash-boite-sombre-en";
}

void EssaiSplashBoite::Images() {
    QFETCH(const bool, sombre);
    QFETCH(const bool, anglais);
    QFETCH(const QString, nom);
    AppliquerTheme(sombre ? Theme::Sombre : Theme::Clair);
    Demarrer(anglais ? Langue::English : Langue::Francais);
    QVERIFY(essais::SauverImage(*m_splash, nom));
    AppliquerTheme(Theme::Clair);
}

QTEST_MAIN(EssaiSplashBoite)
#include "essai_splash_boite.moc"
