// Pictures of a cut on the machine from the 2D window, state by state, as a person goes through it: laid out
// without a word cut off, and saved for the documentation where a folder is named.
#include "fenetres/boite_des_fenetres.h"
#include "fenetres/images.h"
#include "fenetres/poste_2d.h"
#include "fenetres/poste_machine.h"
#include "link/liste_salves.h"
#include "ui/theme.h"
#include "work2d/ui/libelles_2d.h"

#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>

#include <map>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

constexpr const char* Machine = "QT2d v10"; // homes by itself, and heats for 25 s
constexpr std::int32_t PasParMm = 1600;

// The bracket fitted into its block, the cut page open, the machine in the box and its carriages out on the
// table.
struct Course {
    explicit Course(Langue langue) : poste(langue), virtuelle(std::chrono::milliseconds(200)) {
        ChargerMachine(Machine);
        ChargerBaseMatieres();
        ChoisirMatiere(MatieresMachine.front());
        virtuelle.Memoriser(TableINI);
        virtuelle.boite->PoserChariots({20 * PasParMm, 240 * PasParMm, 20 * PasParMm, 240 * PasParMm});
        poste.OuvrirFenetre();
        poste.Deposer({std::string(TESSAREL_RACINE) + "/samples/console.dxf"});
        for (const char* regle : {"chkCentrer_0", "chkCentrer_1", "chkCentrer_2"})
            poste.Cliquer<QCheckBox>(regle);
        poste.Cliquer<QPushButton>("cmdDecouper");
        for (const char* option : {"optApproche_1", "optRetour_1", "optDecalage_2"})
            poste.Cliquer<QToolButton>(option);
        poste.fenetre->RafraichirInterface();
    }
    // Each once, when the words of the run first begin so.
    void Quand(const QString& debut, std::function<void()> geste) { gestes[debut] = std::move(geste); }
    void Jouer(const char* bouton) {
        virtuelle.SurPompe = [this] {
            if (ATous) ATous();
            const QString mots = poste.Trouver<QLabel>("lblAvertissementDecoupe").text();
            for (auto geste = gestes.begin(); geste != gestes.end(); ++geste) {
                if (!mots.startsWith(geste->first)) continue;
                const std::function<void()> fait = std::move(geste->second);
                gestes.erase(geste);
                fait();
                break;
            }
        };
        poste.Cliquer<QPushButton>(bouton);
        virtuelle.SurPompe = {};
        QVERIFY2(gestes.empty(), qPrintable(gestes.empty() ? QString() : gestes.begin()->first));
    }
    Poste2D poste;
    BoiteDesFenetres virtuelle;
    std::map<QString, std::function<void()>> gestes;
    std::function<void()> ATous; // at every turn
};

QString Segment(int numero) {
    return TexteAffiche(TitresMessages(190)) + QString::number(numero) + u'/';
}

} // namespace

class EssaiImagesCourse : public QObject {
    Q_OBJECT
private slots:
    void EtatParEtat_data() { RangeesImages(); }
    void EtatParEtat();
    void UneInterfaceMuette_data() { RangeesImages({Theme::Clair}); }
    void UneInterfaceMuette();

private:
    // `enSombre`: the documentation shows this one in dark colors too.
    static void Prendre(const Course& course, const char* etat, bool enSombre = false) {
        QApplication::processEvents();
        const QStringList coupes = MotsCoupes(*course.poste.fenetre);
        QVERIFY2(coupes.isEmpty(), qPrintable(coupes.join(u' ')));
        Garder(course.poste.fenetre->grab(), etat, enSombre);
    }
    static void Garder(const QPixmap& image, const char* etat, bool enSombre = false) {
        QFETCH(bool, sombre);
        if (sombre && !enSombre) return;
        QVERIFY(SauverImageRangee(image, QStringLiteral("frmTessarel2D-%1-").arg(QString::fromLatin1(etat))));
    }
};

void EssaiImagesCourse::EtatParEtat() {
    QFETCH(bool, sombre);
    Course course(ReglerRangeeImage());
    QVERIFY(DefautsLibelles(*course.poste.fenetre, LibellesTessarel2D()).empty());
    QStringList boites; // the titles of those shown
    const char* nomBoite = nullptr;
    const AfficheurBoite ancien = InstallerAfficheurBoite([&](const Boite& boite) {
        boites << TexteAffiche(boite.titre);
        if (nomBoite != nullptr) Garder(ImageAvecBoite(*course.poste.fenetre, boite), nomBoite);
        nomBoite = nullptr;
        return ReponseBoite::Ok;
    });
    Prendre(course, "pret");

    course.Quand(TexteAffiche(TextesEtats(EtatOrigine)), [&] { Prendre(course, "origine"); });
    const int tempo = TempoChauffePourChauffe(60, TableINI);
    course.Quand(TexteAffiche(TextesMessages(190)) + QString::number(tempo / 2) + u'/',
                 [&] { Prendre(course, "chauffe"); });
    course.Quand(Segment(60), [&] {
        auto& barre = course.poste.Trouver<QScrollBar>("hscChauffePendantDecoupe");
        barre.setValue(barre.value() + 5); // 2.5 % more
        Prendre(course, "course", true);
    });
    course.Quand(Segment(110), [&] { course.poste.Cliquer<QPushButton>("cmdSTOP"); });
    course.Jouer("cmdLancerLaDecoupeTS2D");
    Prendre(course, "arret", true);

    if (!sombre) {
        course.Quand(Segment(2), [&] { Prendre(course, "retour"); });
        course.Jouer("cmdLancerRetourApresStop");

        nomBoite = "terminee";
        course.Jouer("cmdLancerLaDecoupeTS2D");
        QVERIFY(boites.contains(TexteAffiche(TextesDoubles(39, 2))));

        course.Quand(Segment(60), [&] {
            nomBoite = "fin-course";
            simulateur::Commutateurs commutateurs;
            commutateurs.finCourseForcee = true;
            course.virtuelle.boite->FixerCommutateurs(commutateurs);
        });
        course.Jouer("cmdLancerLaDecoupeTS2D");
        QVERIFY(boites.contains(TexteAffiche(TextesDoubles(27, 2))));
    }
    InstallerAfficheurBoite(ancien);
}

void EssaiImagesCourse::UneInterfaceMuette() {
    Course course(ReglerRangeeImage());
    course.Quand(Segment(60), [&] { course.virtuelle.boite->Brancher(false); });
    course.Quand(Segment(80), [&] { course.poste.Cliquer<QPushButton>("cmdSTOP"); });
    bool prise = false;
    course.ATous = [&] {
        auto* alerte = course.poste.fenetre->findChild<QMessageBox*>(QStringLiteral("alerteInterface"));
        if (prise || alerte == nullptr || !alerte->isVisible()) return;
        prise = true;
        Garder(ImageAvecBoite(*course.poste.fenetre, *alerte), "muette");
        course.virtuelle.boite->Brancher(true);
    };
    course.Jouer("cmdLancerLaDecoupeTS2D");
    QVERIFY(prise);
    QVERIFY(course.poste.Trouver<QWidget>("pctRepriseDecoupe").isVisible()); // plugged in again, it went on
}

QTEST_MAIN(EssaiImagesCourse)
#include "essai_images_course.moc"
