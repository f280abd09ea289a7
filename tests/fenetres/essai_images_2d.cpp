// Pictures of the 2D window in both languages, light and dark, with the project and with the cut tab: laid
// out without a word cut off, and saved for the documentation where a folder is named.
#include "fenetres/images.h"
#include "fenetres/poste_2d.h"
#include "ui/theme.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
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
    QTest::mouseMove(poste.fenetre.get(), {600, 20});
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
