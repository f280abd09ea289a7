// The buttons of the cut tab at rest and in a run, and a cut of 30 000 segments from the window.
#include "fenetres/boite_des_fenetres.h"
#include "fenetres/poste_2d.h"
#include "ui/canevas.h"
#include "work2d/ui/trace_course.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>

#include <cmath>
#include <string>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

constexpr int Segments = 30500;

// A rose with a toothed edge: none of its points lies on the line of its neighbours, so all of them stay.
std::string Rosace() {
    std::string texte = "Rosace\r\n";
    for (int i = 0; i <= Segments; ++i) {
        const double a = i * 2 * 3.14159265358979 / Segments;
        const double r = 60 + 50 * std::sin(9 * a) + 0.3 * (i % 2);
        texte += std::to_string(140 + r * std::cos(a)) + ":" + std::to_string(130 + r * std::sin(a)) + "\r\n";
    }
    return texte;
}

struct Coupe {
    Coupe(const std::string& nom, const std::string& contenu, Instant parEchange) : virtuelle(parEchange) {
        Parametres.DistNettoyage = 0; // every point of the file stays
        virtuelle.Memoriser(TableINI);
        poste.OuvrirFenetre();
        poste.Deposer({poste.Fichier(nom, contenu)});
        poste.Cliquer<QPushButton>("cmdDecouper");
    }
    void Lancer() { poste.Cliquer<QPushButton>("cmdLancerLaDecoupeTS2D"); }
    [[nodiscard]] QString Avertissement() const {
        return poste.Trouver<QLabel>("lblAvertissementDecoupe").text();
    }
    Poste2D poste;
    BoiteDesFenetres virtuelle;
};

} // namespace

class EssaiCourseLongue : public QObject {
    Q_OBJECT
private slots:
    void TrenteMilleSegmentsJusquAuDernierPas();
    void LaCroixFermeLaDecoupe();
    void LesBoutonsDUneMarcheSontLInverseDeCeuxDuRepos();
};

void EssaiCourseLongue::TrenteMilleSegmentsJusquAuDernierPas() {
    Coupe coupe("rosace.txt", Rosace(), std::chrono::microseconds(20));
    simulateur::BoiteZelko& boite = *coupe.virtuelle.boite;
    boite.FixerFacteur(1000);
    const Sequence sequence = coupe.poste.fenetre->DecoupeMontree().SequenceDecoupe;
    QVERIFY2(sequence.Points.size() > 30000, qPrintable(QString::number(sequence.Points.size())));
    const TrajetPas trajet = CalculerTrajetPas(sequence.Points, TableINI);
    std::array<std::uint64_t, 4> pas = {};
    const auto ajouter = [&](std::size_t axe, std::int32_t a, std::int32_t b) {
        pas[axe] += static_cast<std::uint64_t>(std::abs(std::int64_t{a} - b));
    };
    for (std::size_t i = 2; i < trajet.bout1.size(); ++i) {
        ajouter(AxeX1, trajet.bout1[i].X, trajet.bout1[i - 1].X);
        ajouter(AxeY1, trajet.bout1[i].Y, trajet.bout1[i - 1].Y);
        ajouter(AxeX2, trajet.bout2[i].X, trajet.bout2[i - 1].X);
        ajouter(AxeY2, trajet.bout2[i].Y, trajet.bout2[i - 1].Y);
    }
    std::size_t faits = 0;
    std::uint64_t salves = 0;
    coupe.virtuelle.SurPompe = [&] {
        faits = std::max(faits, coupe.poste.fenetre->TraceMachine().DejaCoupe().size());
        salves = coupe.poste.fenetre->Course().preparee.liste.salves.size();
    };
    coupe.Lancer();
    coupe.virtuelle.SurPompe = {};
    QCOMPARE(coupe.poste.DerniereBoite().titre, std::string("machine disponible"));
    // The pause and one frame for each segment, the end mark apart: none is lost, none comes twice.
    QCOMPARE(salves, std::uint64_t(sequence.Points.size() + 1));
    QCOMPARE(boite.Comptes().salvesAcceptees, salves - 1);
    QCOMPARE(boite.Comptes().salvesFinies, salves - 1);
    QCOMPARE(boite.Comptes().famines, std::uint64_t(0));
    QCOMPARE(boite.Comptes().anomalies, std::uint64_t(0));
    QVERIFY(boite.Comptes().pas == pas);
    const simulateur::PositionPas fin = {trajet.bout1.back().X, trajet.bout1.back().Y, trajet.bout2.back().X,
                                         trajet.bout2.back().Y};
    QVERIFY(boite.Position() == fin);
    QCOMPARE(int(boite.Etat().pwmCommande), 0);
    // It was drawn to the end, but for what the last step of the display had not shown yet.
    QVERIFY2(faits > sequence.Points.size() * 9 / 10, qPrintable(QString::number(faits)));
}

void EssaiCourseLongue::LaCroixFermeLaDecoupe() {
    Coupe coupe("rectangle.txt", RectangleTexte, std::chrono::milliseconds(200));
    auto& croix = coupe.poste.Trouver<QToolButton>("imgCroixFermeDecoupe");
    QVERIFY(croix.isVisible() && croix.isEnabled());
    QVERIFY(!croix.icon().isNull());
    QVERIFY((croix.focusPolicy() & Qt::TabFocus) != 0);
    QCOMPARE(croix.toolTip(), QStringLiteral("Fermer la découpe et revenir au projet (Échap)"));
    coupe.poste.Cliquer<QToolButton>("imgCroixFermeDecoupe");
    QVERIFY(!coupe.poste.fenetre->DecoupeOuverte());
    QVERIFY(coupe.poste.fenetre->DecoupeMontree().SequenceDecoupe.Points.empty());
    QVERIFY(coupe.poste.fenetre->DecoupeMontree().SequenceDecalee.Points.empty());
    QVERIFY(coupe.poste.Trouver<QPushButton>("cmdDecouper").isVisible());
    // By the keyboard too.
    coupe.poste.Cliquer<QPushButton>("cmdDecouper");
    croix.setFocus();
    QVERIFY(croix.hasFocus());
    QTest::keyClick(&croix, Qt::Key_Space);
    QVERIFY(!coupe.poste.fenetre->DecoupeOuverte());
}

void EssaiCourseLongue::LesBoutonsDUneMarcheSontLInverseDeCeuxDuRepos() {
    Coupe coupe("rectangle.txt", RectangleTexte, std::chrono::milliseconds(200));
    const Poste2D& poste = coupe.poste;
    const auto verifier = [&poste](bool repos) {
        QCOMPARE(poste.Trouver<QToolButton>("imgCroixFermeDecoupe").isEnabled(), repos);
        QCOMPARE(poste.Trouver<QPushButton>("cmdAnnulerDecoupe").isEnabled(), repos);
        QCOMPARE(poste.Trouver<QPushButton>("cmdSTOP").isEnabled(), !repos);
        QCOMPARE(poste.Trouver<QPushButton>("cmdSTOP").isVisible(), !repos);
        QCOMPARE(poste.Trouver<QWidget>("frameAction").isVisible(), repos);
        QCOMPARE(poste.Trouver<QWidget>("frameDecalage").isVisible(), repos);
    };
    verifier(true);
    bool chauffe = false;
    bool decoupe = false;
    bool arret = false;
    int barre = 0;
    coupe.virtuelle.SurPompe = [&] {
        const QString mot = coupe.Avertissement();
        if (mot.startsWith(QStringLiteral("Chauffe "))) {
            chauffe = true;
            verifier(false);
            const auto& progres = poste.Trouver<QProgressBar>("progrbarChauffe");
            QVERIFY(progres.isVisible());
            QVERIFY(progres.value() >= barre); // it goes up
            barre = progres.value();
            QVERIFY(!poste.Trouver<QWidget>("optChauffePendantDecoupe").isVisible());
            // A cross that could be pressed would take the cut away below the run.
            poste.Cliquer<QToolButton>("imgCroixFermeDecoupe");
            QVERIFY(poste.fenetre->DecoupeOuverte());
        }
        if (mot.startsWith(QStringLiteral("Découpe segment n°")) && !arret) {
            decoupe = true;
            verifier(false);
            QVERIFY(!poste.Trouver<QProgressBar>("progrbarChauffe").isVisible());
            QVERIFY(poste.Trouver<QWidget>("optChauffePendantDecoupe").isVisible());
            if (mot.startsWith(QStringLiteral("Découpe segment n°4/"))) {
                arret = true;
                poste.Cliquer<QPushButton>("cmdSTOP");
            }
        }
    };
    coupe.Lancer();
    coupe.virtuelle.SurPompe = {};
    QVERIFY(chauffe && decoupe && arret);
    QVERIFY2(barre > 800, qPrintable(QString::number(barre)));
    // Stopped: the operator decides by the panel, and by nothing else.
    QVERIFY(!poste.Trouver<QToolButton>("imgCroixFermeDecoupe").isEnabled());
    QVERIFY(!poste.Trouver<QWidget>("frameAction").isVisible());
    poste.Cliquer<QPushButton>("cmdRepriseDecoupe");
    verifier(true);
}

QTEST_MAIN(EssaiCourseLongue)
#include "essai_course_longue.moc"
