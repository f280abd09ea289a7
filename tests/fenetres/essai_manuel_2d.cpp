// The moves by hand of the 2D window on the virtual machine: arrows held and let go, the rest position, the
// storage position, Stop, a box that is lost, a window that is closed meanwhile.
#include "fenetres/images.h"
#include "fenetres/poste_machine.h"
#include "fenetres/poste_manuel.h"
#include "link/liste_salves.h"
#include "ui/theme.h"
#include "work2d/ui/libelles_2d.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>

using namespace tessarel;
using namespace tessarel::essais;

class EssaiManuel2D : public QObject {
    Q_OBJECT
private slots:
    void init() { AppliquerTheme(Theme::Clair); }

    void LesFlechesDeplacentTantQuElleSontTenues();
    void UnClicTropCourtNeDeplaceRien();
    void SansInterfaceRienNeBouge();
    void LeRetourDemandeEtRamene();
    void SansOrigineAutomatiqueLeRetourEstRefuse();
    void StopPendantLeRetour();
    void LeRangementVaASaPosition();
    void FermerPendantUnMouvementLArrete();
    void LaBoitePerdueArreteEtEstDite();
    void Images_data();
    void Images();
};

void EssaiManuel2D::LesFlechesDeplacentTantQuElleSontTenues() {
    Manuel manuel;
    manuel.Tenir("optGoManuel_4", 60);
    const auto droite = manuel.Position();
    QVERIFY(droite[AxeX1] > 0);
    QCOMPARE(droite[AxeX2], droite[AxeX1]);
    QCOMPARE(droite[AxeY1], 0);
    QVERIFY(manuel.AuRepos());
    manuel.Tenir("optGoManuel_1", 60);
    QCOMPARE(manuel.Position()[AxeX1], droite[AxeX1]);
    QVERIFY(manuel.Position()[AxeY1] > 0);
    const auto haut = manuel.Position();
    manuel.Tenir("optGoManuel_5", 40); // down and to the left, at 45 degrees
    const auto apres = manuel.Position();
    QVERIFY(apres[AxeX1] < haut[AxeX1]);
    QVERIFY(std::abs((haut[AxeX1] - apres[AxeX1]) - (haut[AxeY1] - apres[AxeY1])) <= 1);
    QCOMPARE(manuel.poste.NombreBoites(), std::size_t(0));
    QCOMPARE(manuel.virtuelle.Compter(CommandeChauffe, 1), std::size_t(0));
}

void EssaiManuel2D::UnClicTropCourtNeDeplaceRien() {
    Manuel manuel;
    manuel.Tenir("optGoManuel_4", 1);
    QVERIFY(manuel.Position() == simulateur::PositionPas{});
    QVERIFY(manuel.AuRepos());
}

void EssaiManuel2D::SansInterfaceRienNeBouge() {
    Manuel manuel;
    manuel.virtuelle.boite->Brancher(false);
    manuel.poste.Cliquer<QToolButton>("cmdRafraichirUsbTS2D");
    manuel.poste.Cliquer<QToolButton>("optGoManuel_4");
    QCOMPARE(manuel.poste.DerniereBoite().texte, std::string("Pas d'interface détectée"));
    manuel.poste.Cliquer<QPushButton>("cmdRetourOrigine");
    QCOMPARE(manuel.poste.NombreBoites(), std::size_t(2));
    QCOMPARE(manuel.poste.DerniereBoite().texte, std::string("Pas d'interface détectée"));
    QVERIFY(!manuel.poste.fenetre->Course().enCours);
}

void EssaiManuel2D::LeRetourDemandeEtRamene() {
    Manuel manuel("QT2d v12");
    QVERIFY(TableINI.OrigineAutomatique);
    const auto avant = manuel.Position();
    manuel.poste.Cliquer<QPushButton>("cmdRetourOrigine"); // No
    QCOMPARE(manuel.poste.DerniereBoite().texte,
             std::string("Exécuter la procédure de retour à la position de repos ?"));
    QCOMPARE(manuel.poste.NombreBoites(), std::size_t(1));
    QVERIFY(manuel.Position() == avant);
    manuel.poste.boites.reponses = {ReponseBoite::Oui};
    manuel.poste.Cliquer<QPushButton>("cmdRetourOrigine");
    QCOMPARE(manuel.poste.DerniereBoite().texte, std::string("Le fil est à la position de repos."));
    QCOMPARE(manuel.poste.DerniereBoite().titre, std::string("Retour effectué"));
    QVERIFY(manuel.AuRepos());
}

void EssaiManuel2D::SansOrigineAutomatiqueLeRetourEstRefuse() {
    Manuel manuel;
    QVERIFY(!TableINI.OrigineAutomatique);
    for (const char* nom : {"cmdRetourOrigine", "cmdPlierLePortique"}) {
        manuel.poste.Cliquer<QPushButton>(nom);
        QCOMPARE(manuel.poste.DerniereBoite().texte,
                 std::string("Les paramètres de la machine ne permettent pas le retour automatique"));
    }
    QVERIFY(manuel.AuRepos());
}

void EssaiManuel2D::StopPendantLeRetour() {
    Manuel manuel("QT2d v12");
    manuel.poste.boites.reponses = {ReponseBoite::Oui};
    int tours = 0;
    manuel.virtuelle.SurPompe = [&] {
        if (++tours == 20) manuel.poste.Cliquer<QPushButton>("optAnnulerHome");
    };
    manuel.poste.Cliquer<QPushButton>("cmdRetourOrigine");
    QVERIFY(tours >= 20);
    QCOMPARE(manuel.poste.DerniereBoite().texte, std::string("L'opération a été annulée."));
    QCOMPARE(manuel.poste.DerniereBoite().titre, std::string("Arrêt d'urgence"));
    QVERIFY(manuel.AuRepos());
}

void EssaiManuel2D::LeRangementVaASaPosition() {
    Manuel manuel("QT2d v12");
    manuel.poste.boites.reponses = {ReponseBoite::Oui, ReponseBoite::Ok, ReponseBoite::Oui};
    manuel.poste.Cliquer<QPushButton>("cmdRetourOrigine");
    const auto repos = manuel.Position();
    manuel.poste.Cliquer<QPushButton>("cmdPlierLePortique");
    QCOMPARE(manuel.poste.DerniereBoite().texte, std::string("Position de rangement atteinte."));
    QCOMPARE(manuel.poste.DerniereBoite().titre, std::string("Mouvement effectué"));
    QCOMPARE(manuel.Position()[AxeX1] - repos[AxeX1],
             PasDeMillimetres(TableINI, AxeX1, TableINI.RangementSuivantX));
    QVERIFY(manuel.AuRepos());
}

void EssaiManuel2D::FermerPendantUnMouvementLArrete() {
    Manuel manuel;
    auto& fleche = manuel.poste.Trouver<QToolButton>("optGoManuel_4");
    int tours = 0;
    manuel.virtuelle.SurPompe = [&] {
        QVERIFY(!manuel.poste.Trouver<QWidget>("pctSequTS2D").isEnabled());
        QVERIFY(!manuel.poste.Trouver<QToolButton>("cmdOuvrirFichierTS2D").isEnabled());
        if (++tours == 30) QVERIFY(!manuel.poste.fenetre->close());
    };
    QTest::mousePress(&fleche, Qt::LeftButton);
    manuel.virtuelle.SurPompe = {};
    QVERIFY(tours >= 30);
    QVERIFY(manuel.virtuelle.boite->Etat().file == simulateur::EtatFile::Repos);
    QApplication::processEvents();
    QVERIFY(!manuel.poste.fenetre->isVisible());
}

void EssaiManuel2D::LaBoitePerdueArreteEtEstDite() {
    Manuel manuel;
    auto& fleche = manuel.poste.Trouver<QToolButton>("optGoManuel_4");
    bool alerte = false;
    int tours = 0;
    manuel.virtuelle.SurPompe = [&] {
        if (++tours == 30) manuel.virtuelle.boite->Brancher(false);
        auto* boite = manuel.poste.fenetre->findChild<QMessageBox*>(QStringLiteral("alerteInterface"));
        if (boite != nullptr && boite->isVisible()) {
            alerte = true;
            QTest::mouseClick(boite->button(QMessageBox::Ok), Qt::LeftButton);
        } else if (alerte) {
            manuel.poste.Trouver<QPushButton>("optAnnulerHome").click();
        }
    };
    QTest::mousePress(&fleche, Qt::LeftButton);
    manuel.virtuelle.SurPompe = {};
    QVERIFY(alerte);
    QVERIFY(manuel.poste.NombreBoites() > 0);
    QVERIFY(!manuel.poste.fenetre->Course().enCours);
    QTest::mouseRelease(&fleche, Qt::LeftButton);
}

void EssaiManuel2D::Images_data() {
    RangeesImages();
}
void EssaiManuel2D::Images() {
    Manuel manuel("(Defaut)", ReglerRangeeImage());
    QVERIFY(DefautsLibelles(*manuel.poste.fenetre, LibellesTessarel2D()).empty());
    QApplication::processEvents();
    QVERIFY2(MotsCoupes(*manuel.poste.fenetre).isEmpty(),
             qPrintable(MotsCoupes(*manuel.poste.fenetre).join(u' ')));
    QVERIFY(SauverImageRangee(*manuel.poste.fenetre, QStringLiteral("frmTessarel2D-manuel-")));
}

QTEST_MAIN(EssaiManuel2D)
#include "essai_manuel_2d.moc"
