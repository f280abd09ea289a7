// Pictures of the 2D window in both languages, light and dark, with the project and with the cut tab: laid
// out without a word cut off, and saved for the documentation where a folder is named.
#include "fenetres/images.h"
#include "fenetres/poste_2d.h"
#include "fenetres/souris.h"
#include "ui/canevas.h"
#include "ui/theme.h"
#include "work2d/selection.h"
#include "work2d/ui/atelier_2d.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <QTreeWidget>

#include <filesystem>

using namespace tessarel;
using essais::Poste2D;

namespace {

std::string Echantillon(const char* nom) {
    return std::string(TESSAREL_RACINE) + "/samples/" + nom;
}

// Buttons and check boxes whose words do not fit in what the layout gives them.
QStringList MotsCoupes(const QWidget& fenetre) {
    QStringList coupes;
    for (const auto* bouton : fenetre.findChildren<QAbstractButton*>()) {
        if (!bouton->isVisible() || bouton->text().isEmpty()) continue;
        if (bouton->width() < bouton->sizeHint().width() || bouton->height() < bouton->sizeHint().height()) {
            coupes << bouton->objectName();
        }
    }
    for (const auto* etiquette : fenetre.findChildren<QLabel*>()) {
        if (!etiquette->isVisible() || etiquette->wordWrap() || etiquette->text().isEmpty()) continue;
        if (etiquette->width() < etiquette->sizeHint().width()) coupes << etiquette->objectName();
    }
    for (const auto* page : fenetre.findChildren<QScrollArea*>()) {
        if (page->isVisible() && page->widget()->width() > page->viewport()->width()) {
            coupes << QStringLiteral("a page of %1 pixels in %2")
                          .arg(page->widget()->width())
                          .arg(page->viewport()->width());
        }
    }
    return coupes;
}

// A library as a user has it after a while.
void RemplirBibliotheque(const Poste2D& poste) {
    DossiersProgramme.Bibliotheque = poste.dossier.Fichier("Bibliotheque");
    namespace fs = std::filesystem;
    const fs::path racine = DossiersProgramme.Bibliotheque;
    fs::create_directories(racine / "Ailes" / "Profils");
    fs::create_directories(racine / "Mes Decoupes");
    fs::copy_file(Echantillon("naca2412.dat"), racine / "Ailes" / "Profils" / "naca2412.dat");
    fs::copy_file(Echantillon("console.dxf"), racine / "console.dxf");
    fs::copy_file(Echantillon("etoile.txt"), racine / "Mes Decoupes" / "etoile.txt");
}

// The pointer rests on nothing, and what the last click changed is laid out.
void Reposer(Poste2D& poste) {
    QTest::mouseMove(poste.fenetre.get(), {600, poste.fenetre->height() - 4}); // in the status bar
    QApplication::processEvents();
}

} // namespace

class EssaiImages2D : public QObject {
    Q_OBJECT
private slots:
    void LaFenetreTientEn1280Sur800_data() {
        QTest::addColumn<bool>("anglais");
        QTest::addColumn<bool>("sombre");
        QTest::addRow("fr-clair") << false << false;
        QTest::addRow("fr-sombre") << false << true;
        QTest::addRow("en-clair") << true << false;
        QTest::addRow("en-sombre") << true << true;
    }
    void LaFenetreTientEn1280Sur800() {
        QFETCH(bool, anglais);
        QFETCH(bool, sombre);
        const QString suffixe = QString::fromLatin1(QTest::currentDataTag());
        AppliquerTheme(sombre ? Theme::Sombre : Theme::Clair);
        Poste2D poste(anglais ? Langue::English : Langue::Francais);
        poste.OuvrirFenetre();
        QVERIFY(poste.fenetre->OuvrirFichier(Echantillon("console.dxf")));
        poste.Cliquer<QCheckBox>("chkCentrer_0");
        poste.Cliquer<QCheckBox>("chkCentrer_1");
        poste.Cliquer<QCheckBox>("chkCentrer_2");
        Reposer(poste);
        QVERIFY2(MotsCoupes(*poste.fenetre).isEmpty(), qPrintable(MotsCoupes(*poste.fenetre).join(u' ')));
        QCOMPARE(poste.fenetre->size(), QSize(1280, 800));
        QVERIFY(essais::SauverImage(*poste.fenetre, QStringLiteral("frmTessarel2D-") + suffixe));

        poste.Cliquer<QPushButton>("cmdDecouper");
        poste.Cliquer<QToolButton>("optEntrerBloc_1");
        poste.Cliquer<QToolButton>("optApproche_1");
        poste.Cliquer<QToolButton>("optDecalage_2");
        poste.Cliquer<QCheckBox>("chkExportGcode2D");
        Reposer(poste);
        QVERIFY2(MotsCoupes(*poste.fenetre).isEmpty(), qPrintable(MotsCoupes(*poste.fenetre).join(u' ')));
        QVERIFY(essais::SauverImage(*poste.fenetre, QStringLiteral("frmTessarel2D-decoupe-") + suffixe));
    }

    void LAtelierEtapeParEtape_data() { LaFenetreTientEn1280Sur800_data(); }
    void LAtelierEtapeParEtape() {
        QFETCH(bool, anglais);
        QFETCH(bool, sombre);
        const QString suffixe = QString::fromLatin1(QTest::currentDataTag());
        AppliquerTheme(sombre ? Theme::Sombre : Theme::Clair);
        Poste2D poste(anglais ? Langue::English : Langue::Francais);
        poste.OuvrirFenetre();
        const auto prendre = [&](const char* etape) {
            QApplication::processEvents();
            QVERIFY2(MotsCoupes(*poste.fenetre).isEmpty(), qPrintable(MotsCoupes(*poste.fenetre).join(u' ')));
            QVERIFY(essais::SauverImage(
                *poste.fenetre, QStringLiteral("frmTessarel2D-%1-").arg(QLatin1String(etape)) + suffixe));
        };
        QVERIFY(poste.fenetre->OuvrirFichier(Echantillon("console.dxf")));
        poste.Cliquer<QCheckBox>("chkCentrer_1");
        poste.Cliquer<QCheckBox>("chkCentrer_2");
        poste.Cliquer<QCheckBox>("chkZoomProjet");
        poste.Cliquer<QCheckBox>("chkZoomProjet");
        auto& toile = poste.Trouver<Canevas>("pctSequTS2D");
        toile.Cadrer({150, 620, 40, 380});
        essais::Souris souris(toile);
        const auto sommet = [&](std::size_t trace, std::size_t point) {
            const PointProfil& p = poste.fenetre->Espace().TableauSequences[trace].Points[point];
            return PointDessin{p.X, p.Y};
        };
        const auto poignee = [&](const char* nom) {
            return PlacePoignee(BoiteAffichee(poste.fenetre->Atelier().BoiteSelection(), toile.Vue().echelle),
                                nom);
        };
        souris.Cliquer(sommet(0, 3));
        souris.Cliquer(sommet(3, 0), Qt::ControlModifier);
        souris.Aller(poignee("HD"));
        prendre("selection");
        const PointDessin prise = poignee("HD");
        souris.Appuyer(prise);
        souris.Aller({prise.X - 60, prise.Y - 40}, Qt::ShiftModifier);
        prendre("taille");
        QTest::keyClick(&toile, Qt::Key_Escape);
        souris.Relacher();
        const PointDessin coin = poignee("HD");
        const double dehors = 16 / toile.Vue().echelle;
        souris.Appuyer({coin.X + dehors, coin.Y + dehors});
        souris.Aller({coin.X - 40, coin.Y + 2 * dehors});
        souris.Aller({coin.X - 50, coin.Y + 60});
        prendre("rotation");
        QTest::keyClick(&toile, Qt::Key_Escape);
        souris.Relacher();
        poste.Cliquer<QToolButton>("cmdInsererPoint");
        const PointDessin a = sommet(0, 0);
        const PointDessin b = sommet(0, 1);
        souris.Aller({(a.X + b.X) / 2, (a.Y + b.Y) / 2});
        prendre("insertion");
        QTest::keyClick(&toile, Qt::Key_Escape);

        poste.Cliquer<QPushButton>("cmdDecouper");
        poste.Cliquer<QToolButton>("optApproche_1");
        poste.Cliquer<QToolButton>("optRetour_1");
        poste.Cliquer<QToolButton>("optDecalage_2");
        poste.Cliquer<QToolButton>("cmdSimulation");
        poste.Cliquer<QToolButton>("cmdSimulation");
        auto& place = poste.Trouver<QScrollBar>("hscSimulation");
        place.setValue(place.maximum() / 2);
        prendre("simulation");
    }

    void LaBibliothequeMontreUnApercu_data() { LaFenetreTientEn1280Sur800_data(); }
    void LaBibliothequeMontreUnApercu() {
        QFETCH(bool, anglais);
        QFETCH(bool, sombre);
        AppliquerTheme(sombre ? Theme::Sombre : Theme::Clair);
        Poste2D poste(anglais ? Langue::English : Langue::Francais);
        RemplirBibliotheque(poste);
        poste.OuvrirFenetre();
        QVERIFY(poste.fenetre->OuvrirFichier(DossiersProgramme.Bibliotheque + "/console.dxf"));
        auto& arbre = poste.Trouver<QTreeWidget>("TreeBibliothequeTS2D");
        QTreeWidgetItem* profil =
            arbre.findItems(QStringLiteral("naca2412.dat"), Qt::MatchRecursive).value(0);
        QVERIFY(profil != nullptr);
        arbre.expandAll();
        QTest::mouseClick(arbre.viewport(), Qt::LeftButton, Qt::NoModifier,
                          arbre.visualItemRect(profil).center());
        QTRY_VERIFY(poste.Trouver<QWidget>("bandeauApercu").isVisible());
        Reposer(poste);
        QVERIFY2(MotsCoupes(*poste.fenetre).isEmpty(), qPrintable(MotsCoupes(*poste.fenetre).join(u' ')));
        QVERIFY(essais::SauverImage(*poste.fenetre, QStringLiteral("frmTessarel2D-bibliotheque-") +
                                                        QString::fromLatin1(QTest::currentDataTag())));
    }
};

QTEST_MAIN(EssaiImages2D)
#include "essai_images_2d.moc"
