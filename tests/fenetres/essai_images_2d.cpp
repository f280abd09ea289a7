// Pictures of the 2D window in both languages, light and dark, with the project and with the cut tab: laid
// out without a word cut off, and saved for the documentation where a folder is named.
#include "app/texts/textes_programme.h"
#include "fenetres/images.h"
#include "fenetres/poste_2d.h"
#include "fenetres/souris.h"
#include "ui/boites_qt.h"
#include "ui/canevas.h"
#include "ui/champ_nombre.h"
#include "work2d/selection.h"
#include "work2d/ui/atelier_2d.h"
#include "work2d/ui/panneau_simulation.h"

#include <QCheckBox>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include <chrono>
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
    // A button under the place where the pointer stood as the window came up believes that it is still there.
    for (auto* bouton : poste.fenetre->findChildren<QAbstractButton*>()) {
        if (!bouton->underMouse()) continue;
        QEvent sortie(QEvent::Leave);
        QApplication::sendEvent(bouton, &sortie);
        bouton->setAttribute(Qt::WA_UnderMouse, false);
    }
    QTest::mouseMove(poste.fenetre.get(), {600, poste.fenetre->height() - 4}); // in the status bar
    QApplication::processEvents();
}

} // namespace

class EssaiImages2D : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { m_poste.reset(); }

    void LaFenetreTientEn1280Sur800_data() { essais::RangeesImages(); }
    void LaFenetreTientEn1280Sur800() {
        Poste2D poste(essais::ReglerRangeeImage());
        poste.OuvrirFenetre();
        QVERIFY(poste.fenetre->OuvrirFichier(Echantillon("console.dxf")));
        poste.Cliquer<QCheckBox>("chkCentrer_0");
        poste.Cliquer<QCheckBox>("chkCentrer_1");
        poste.Cliquer<QCheckBox>("chkCentrer_2");
        Reposer(poste);
        QVERIFY2(MotsCoupes(*poste.fenetre).isEmpty(), qPrintable(MotsCoupes(*poste.fenetre).join(u' ')));
        QCOMPARE(poste.fenetre->size(), QSize(1280, 800));
        QVERIFY(essais::SauverImageRangee(*poste.fenetre, QStringLiteral("frmTessarel2D-")));

        poste.Cliquer<QPushButton>("cmdDecouper");
        poste.Cliquer<QToolButton>("optEntrerBloc_1");
        poste.Cliquer<QToolButton>("optApproche_1");
        poste.Cliquer<QToolButton>("optDecalage_2");
        poste.Cliquer<QCheckBox>("chkExportGcode2D");
        Reposer(poste);
        QVERIFY2(MotsCoupes(*poste.fenetre).isEmpty(), qPrintable(MotsCoupes(*poste.fenetre).join(u' ')));
        QVERIFY(essais::SauverImageRangee(*poste.fenetre, QStringLiteral("frmTessarel2D-decoupe-")));
    }

    // Whatever it says of the mouse, the status bar has the room for it.
    void LesPhrasesTiennentDansLaBarreDEtat_data() { LaFenetreTientEn1280Sur800_data(); }
    void LesPhrasesTiennentDansLaBarreDEtat() {
        OuvrirConsole();
        const QStatusBar& barre = *m_poste->fenetre->statusBar();
        const int place =
            m_poste->Trouver<QToolButton>("cmdRapportOuverture").x() - barre.layout()->spacing();
        using enum TexteProgramme;
        for (const TexteProgramme cle :
             {AtelierTableVide, AtelierSurTable, AtelierCadreEntiers, AtelierCadreTouches, AtelierSurDecoupe,
              AtelierSurTrace, AtelierSurSelection, AtelierSurPoignee, AtelierSurRotation, AtelierInserer,
              AtelierCouper}) {
            const QString phrase = TexteAffiche(Texte(cle));
            QVERIFY2(6 + barre.fontMetrics().horizontalAdvance(phrase) <= place, qPrintable(phrase));
        }
        for (const TexteProgramme cle : {AtelierDeplace, AtelierRedimensionne, AtelierInsererIci}) {
            const QString phrase = TexteAffiche(TexteRempli(cle, {"-1234.56", "-1234.56"}));
            QVERIFY2(6 + barre.fontMetrics().horizontalAdvance(phrase) <= place, qPrintable(phrase));
        }
    }

    void LaMainEtapeParEtape_data() { LaFenetreTientEn1280Sur800_data(); }
    void LaMainEtapeParEtape() {
        OuvrirConsole();
        essais::Souris souris(Toile());
        // A frame to the left takes what it touches.
        souris.Appuyer({395, 190});
        souris.Aller({320, 140});
        souris.Aller({270, 80});
        Prendre("cadre", false);
        QTest::keyClick(&Toile(), Qt::Key_Escape);
        souris.Relacher();
        souris.Cliquer(Sommet(0, 3));
        souris.Cliquer(Sommet(3, 0), Qt::ControlModifier);
        souris.Aller(Poignee("HD"));
        Prendre("selection");
        const PointDessin prise = Poignee("HD");
        souris.Appuyer(prise);
        souris.Aller({prise.X - 60, prise.Y - 40}, Qt::ShiftModifier);
        Prendre("taille");
        Renoncer(souris);
        const PointDessin coin = Poignee("HD");
        const double dehors = 16 / Toile().Vue().echelle;
        souris.Appuyer({coin.X + dehors, coin.Y + dehors});
        souris.Aller({coin.X - 40, coin.Y + 2 * dehors});
        souris.Aller({coin.X - 50, coin.Y + 60});
        Prendre("rotation");
        Renoncer(souris);
        // In the mode that types moves, the panel counts the move.
        m_poste->Trouver<QToolButton>("optSaisie_1").click();
        const PointDessin milieu = MilieuBoite(m_poste->fenetre->Atelier().BoiteSelection());
        souris.Appuyer(milieu);
        souris.Aller({milieu.X + 85, milieu.Y + 40}, Qt::AltModifier);
        Prendre("deplacement", false);
        Renoncer(souris);
        m_poste->Trouver<ChampNombre>("txtMesures_0").setFocus();
        m_poste->Trouver<ChampNombre>("txtMesures_0").selectAll();
        QTest::keyClicks(&m_poste->Trouver<ChampNombre>("txtMesures_0"), QStringLiteral("-12.5"));
        Reposer(*m_poste);
        Prendre("saisie", false);
    }

    void LesPointsEtapeParEtape_data() { LaFenetreTientEn1280Sur800_data(); }
    void LesPointsEtapeParEtape() {
        OuvrirConsole();
        m_poste->Cliquer<QCheckBox>("chkVoirPoints");
        Toile().Cadrer({280, 500, 90, 300});
        essais::Souris souris(Toile());
        m_poste->Cliquer<QToolButton>("cmdInsererPoint");
        const PointDessin a = Sommet(0, 0);
        const PointDessin b = Sommet(0, 1);
        souris.Aller({(a.X + b.X) / 2, (a.Y + b.Y) / 2});
        Prendre("insertion");
        m_poste->Cliquer<QToolButton>("cmdCouperTrace");
        souris.Aller(Sommet(0, 60));
        Prendre("coupure");
    }

    void LaSimulationSeJoue_data() { LaFenetreTientEn1280Sur800_data(); }
    void LaSimulationSeJoue() {
        OuvrirConsole();
        m_poste->Cliquer<QPushButton>("cmdDecouper");
        m_poste->Cliquer<QToolButton>("optApproche_1");
        m_poste->Cliquer<QToolButton>("optRetour_1");
        m_poste->Cliquer<QToolButton>("optDecalage_2");
        m_poste->Cliquer<QCheckBox>("chkZoomDecoupe");
        m_poste->Cliquer<QToolButton>("cmdSimulation");
        // It plays, and holds still for its picture.
        m_poste->fenetre->findChild<QTimer*>(QStringLiteral("TimerFilm"))->setInterval(std::chrono::hours(1));
        auto& place = m_poste->Trouver<QScrollBar>("hscSimulation");
        place.setValue(place.maximum() * 41 / 100);
        QVERIFY(m_poste->fenetre->Simulation().EnMarche());
        Reposer(*m_poste);
        Prendre("simulation");
    }

    void LaBibliothequeMontreUnApercu_data() { LaFenetreTientEn1280Sur800_data(); }
    void LaBibliothequeMontreUnApercu() {
        Poste2D poste(essais::ReglerRangeeImage());
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
        QVERIFY(essais::SauverImageRangee(*poste.fenetre, QStringLiteral("frmTessarel2D-bibliotheque-")));
    }

private:
    [[nodiscard]] Canevas& Toile() const { return m_poste->Trouver<Canevas>("pctSequTS2D"); }
    [[nodiscard]] PointDessin Sommet(std::size_t trace, std::size_t point) const {
        const PointProfil& p = m_poste->fenetre->Espace().TableauSequences.at(trace).Points.at(point);
        return {p.X, p.Y};
    }
    [[nodiscard]] PointDessin Poignee(const char* nom) const {
        return PlacePoignee(
            BoiteAffichee(m_poste->fenetre->Atelier().BoiteSelection(), Toile().Vue().echelle), nom);
    }
    // The sample in the middle of its block, in the language and on the ground of the row.
    void OuvrirConsole() {
        m_poste = std::make_unique<Poste2D>(essais::ReglerRangeeImage());
        m_poste->OuvrirFenetre();
        QVERIFY(m_poste->fenetre->OuvrirFichier(Echantillon("console.dxf")));
        m_poste->Cliquer<QCheckBox>("chkCentrer_1");
        m_poste->Cliquer<QCheckBox>("chkCentrer_2");
        Toile().Cadrer({150, 620, 40, 380});
        Reposer(*m_poste);
    }
    // Laid out in every row; on a dark ground a picture is kept only where colors are what it shows.
    void Prendre(const char* etape, bool sombreAussi = true) const {
        QFETCH(bool, sombre);
        QApplication::processEvents();
        QVERIFY2(MotsCoupes(*m_poste->fenetre).isEmpty(),
                 qPrintable(MotsCoupes(*m_poste->fenetre).join(u' ')));
        if (sombre && !sombreAussi) return;
        QVERIFY(essais::SauverImageRangee(*m_poste->fenetre,
                                          QStringLiteral("frmTessarel2D-%1-").arg(QLatin1String(etape))));
    }
    void Renoncer(essais::Souris& souris) const {
        QTest::keyClick(&Toile(), Qt::Key_Escape);
        souris.Relacher();
    }

    std::unique_ptr<Poste2D> m_poste;
};

QTEST_MAIN(EssaiImages2D)
#include "essai_images_2d.moc"
