// The film of a cut in the 2D window: play, pause, place, speed, end, and what closes it.
#include "fenetres/poste_2d.h"
#include "platform/horloge.h"
#include "ui/canevas.h"
#include "work2d/dessin_outils.h"
#include "work2d/ui/panneau_simulation.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>

#include <chrono>

using namespace tessarel;
using essais::Poste2D;
using essais::RectangleTexte;

class EssaiSimulation2D : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() {
        m_poste.reset();
        InstallerHorloge({});
    }

    void LeFilPartDuDebutEtAvance();
    void LaVitesseMultiplieLeTemps();
    void UnRetardNeFaitPasSauterLeFil();
    void PauseGardeLaPlace();
    void LAscenseurDonneLaPlace();
    void ALaFinElleSArreteEtRepart();
    void LaPartieCoupeeEstMontree();
    void ArreterEffaceLeFilm();
    void UneAutreOptionTermineLeFilm();
    void FermerLOngletTermineLeFilm();
    void FermerLaFenetrePendantLeFilmGardeLeProjet();
    void LaBorneEstDiteEtTenue();

private:
    [[nodiscard]] const PanneauSimulation& Panneau() const { return m_poste->fenetre->Simulation(); }
    [[nodiscard]] QTimer& Minuterie() const {
        return *m_poste->fenetre->findChild<QTimer*>(QStringLiteral("TimerFilm"));
    }
    // One tick after `secondes` of the clock; TimerFilm itself stands still meanwhile.
    void Battre(double secondes) {
        m_temps += secondes;
        QMetaObject::invokeMethod(&Minuterie(), "timeout");
    }
    void Jouer() const { m_poste->Cliquer<QToolButton>("cmdSimulation"); }
    void Vitesse(const char* texte) const {
        auto& liste = m_poste->Trouver<QComboBox>("comboVitesseSimulation");
        liste.setCurrentIndex(liste.findText(QString::fromLatin1(texte)));
    }

    std::unique_ptr<Poste2D> m_poste;
    double m_temps = 100;
};

// The rectangle of 100 x 50 cut without offset: the wire runs 300 mm round it at 4 mm/s.
void EssaiSimulation2D::init() {
    m_temps = 100;
    InstallerHorloge(
        [this] { return std::chrono::duration_cast<Instant>(std::chrono::duration<double>(m_temps)); });
    m_poste = std::make_unique<Poste2D>();
    m_poste->OuvrirFenetre();
    QVERIFY(m_poste->fenetre->OuvrirFichier(m_poste->Fichier("rectangle.txt", RectangleTexte)));
    m_poste->Cliquer<QToolButton>("cmdBlocAuto");
    m_poste->Cliquer<QPushButton>("cmdDecouper");
    QVERIFY(m_poste->fenetre->DecoupeOuverte());
}

void EssaiSimulation2D::LeFilPartDuDebutEtAvance() {
    QVERIFY(!Panneau().FilmPret());
    QVERIFY(!m_poste->Trouver<QScrollBar>("hscSimulation").isEnabled());
    Vitesse("x 1");
    Jouer();
    QVERIFY(Panneau().EnMarche());
    QVERIFY(Minuterie().isActive());
    QCOMPARE(Panneau().Place().instant, 0.0);
    // No step is longer than 2 mm.
    const std::vector<PointProfil>& p = Panneau().Film().points.Points;
    for (std::size_t i = 1; i < p.size(); ++i)
        QVERIFY(std::hypot(p[i].X - p[i - 1].X, p[i].Y - p[i - 1].Y) < 2.001);
    Battre(0.2);
    QVERIFY(std::abs(Panneau().Place().instant - 0.2) < 1e-6);
    Battre(0.2);
    QVERIFY(std::abs(Panneau().Place().instant - 0.4) < 1e-6);
}

void EssaiSimulation2D::LaVitesseMultiplieLeTemps() {
    Vitesse("x 50");
    Jouer();
    Battre(0.1);
    QVERIFY(std::abs(Panneau().Place().instant - 5) < 1e-6);
    Vitesse("x 0,5");
    Battre(0.2);
    QVERIFY(std::abs(Panneau().Place().instant - 5.1) < 1e-6);
    QVERIFY(m_poste->Trouver<QLabel>("lblTempsSimulation").text().startsWith(QStringLiteral("0:05 / ")));
}

void EssaiSimulation2D::UnRetardNeFaitPasSauterLeFil() {
    Vitesse("x 1");
    Jouer();
    Battre(60);
    QVERIFY(Panneau().Place().instant < 1);
}

void EssaiSimulation2D::PauseGardeLaPlace() {
    Vitesse("x 10");
    Jouer();
    Battre(0.2);
    Jouer();
    QVERIFY(!Panneau().EnMarche());
    QVERIFY(Panneau().FilmPret());
    const double instant = Panneau().Place().instant;
    m_temps += 30;
    Jouer();
    QVERIFY(Panneau().EnMarche());
    QCOMPARE(Panneau().Place().instant, instant);
    Battre(0.1);
    QVERIFY(std::abs(Panneau().Place().instant - instant - 1) < 1e-6);
}

void EssaiSimulation2D::LAscenseurDonneLaPlace() {
    Jouer();
    Jouer();
    auto& barre = m_poste->Trouver<QScrollBar>("hscSimulation");
    QCOMPARE(barre.minimum(), 1);
    QCOMPARE(barre.maximum(), static_cast<int>(Panneau().Film().points.Points.size()));
    QCOMPARE(barre.value(), 1);
    barre.setValue(20);
    QCOMPARE(Panneau().Place().point, std::size_t{19});
    QCOMPARE(Panneau().Place().X, Panneau().Film().points.Points[19].X);
    QTest::keyClick(&barre, Qt::Key_End);
    QCOMPARE(Panneau().Place().point, Panneau().Film().points.Points.size() - 1);
}

void EssaiSimulation2D::ALaFinElleSArreteEtRepart() {
    Vitesse("x 200");
    Jouer();
    for (int i = 0; i < 20 && Panneau().EnMarche(); ++i) Battre(0.2);
    QVERIFY(!Panneau().EnMarche());
    QCOMPARE(Panneau().Place().instant, DureeFilm(Panneau().Film()));
    const QString temps = m_poste->Trouver<QLabel>("lblTempsSimulation").text();
    QCOMPARE(temps.section(QStringLiteral(" / "), 0, 0), temps.section(QStringLiteral(" / "), 1, 1));
    Jouer();
    QVERIFY(Panneau().EnMarche());
    QCOMPARE(Panneau().Place().instant, 0.0);
}

void EssaiSimulation2D::LaPartieCoupeeEstMontree() {
    Vitesse("x 50");
    Jouer();
    Battre(0.2);
    const Dessin& film = m_poste->Trouver<Canevas>("pctDecoupe").Montre(Canevas::CoucheOutil).Liste();
    bool enCours = false;
    for (const TraitDessin& t : film.traits) enCours |= t.couleur == Couleur{255, 255, 0} && t.epaisseur == 2;
    QVERIFY(enCours);
    // What is cut ends at the wire.
    QCOMPARE(film.points[film.traits[0].nombre - 1].X, Panneau().Place().X);
    QCOMPARE(film.points[film.traits[0].nombre - 1].Y, Panneau().Place().Y);
    QCOMPARE(film.marques.size(), std::size_t{1});
}

void EssaiSimulation2D::ArreterEffaceLeFilm() {
    Jouer();
    Battre(0.1);
    m_poste->Cliquer<QToolButton>("cmdArretSimulation");
    QVERIFY(!Panneau().EnMarche());
    QVERIFY(!Panneau().FilmPret());
    QVERIFY(m_poste->Trouver<Canevas>("pctDecoupe").Montre(Canevas::CoucheOutil).Liste().traits.empty());
    QVERIFY(m_poste->Trouver<QLabel>("lblTempsSimulation").text().isEmpty());
}

void EssaiSimulation2D::UneAutreOptionTermineLeFilm() {
    Jouer();
    m_poste->Cliquer<QToolButton>("optEntrerBloc_1");
    QVERIFY(!Panneau().EnMarche());
    QVERIFY(!Panneau().FilmPret());
    Jouer();
    QVERIFY(Panneau().EnMarche());
}

void EssaiSimulation2D::FermerLOngletTermineLeFilm() {
    Jouer();
    m_poste->Cliquer<QPushButton>("cmdAnnulerDecoupe");
    QVERIFY(!Panneau().EnMarche());
    QVERIFY(!Minuterie().isActive());
}

void EssaiSimulation2D::FermerLaFenetrePendantLeFilmGardeLeProjet() {
    Jouer();
    m_poste->boites.reponses = {ReponseBoite::Annuler};
    QVERIFY(!m_poste->fenetre->close());
    QCOMPARE(m_poste->fenetre->Espace().TableauSequences.size(), std::size_t{1});
    QVERIFY(Panneau().EnMarche());
    m_poste->boites.reponses = {ReponseBoite::Non};
    QVERIFY(m_poste->fenetre->close());
    QVERIFY(!Minuterie().isActive());
}

void EssaiSimulation2D::LaBorneEstDiteEtTenue() {
    m_poste->Cliquer<QPushButton>("cmdAnnulerDecoupe");
    // A comb of 300 teeth, 450 mm high each way: 270 m, so 135 000 steps.
    std::string peigne = "Peigne\r\n";
    for (int i = 0; i < 300; ++i) {
        const std::string x = std::to_string(20 + i * 3) + ".0:";
        peigne += x + (i % 2 == 0 ? "10.0\r\n" : "460.0\r\n") + x + (i % 2 == 0 ? "460.0\r\n" : "10.0\r\n");
    }
    QVERIFY(m_poste->fenetre->OuvrirFichier(m_poste->Fichier("peigne.txt", peigne)));
    m_poste->Cliquer<QPushButton>("cmdDecouper");
    Jouer();
    QCOMPARE(m_poste->DerniereBoite().titre, std::string("Trop de points"));
    QCOMPARE(
        m_poste->DerniereBoite().texte,
        std::string("Nombre de points trop élevés pour le scrollbar de simulation, la visualisation du fil "
                    "sera limitée à 32767 points"));
    QCOMPARE(m_poste->Trouver<QScrollBar>("hscSimulation").maximum(), 32767);
}

QTEST_MAIN(EssaiSimulation2D)
#include "essai_simulation2d.moc"
