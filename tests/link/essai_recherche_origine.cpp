// Homing on the virtual machine: the switches of all axes share one loop, as they do in the box.
#include "link/recherche_origine.h"
#include "platform/pompe.h"

#include "outils/boites.h"
#include "outils_boite/boite_virtuelle.h"

#include <gtest/gtest.h>

using namespace tessarel;
using namespace tessarel::simulateur;
using namespace std::chrono_literals;

namespace {

class Origine : public ::testing::Test {
protected:
    Origine() : m_poste("QT2d v12"), m_anciennePompe(InstallerPompe([this] { Pomper(); })) {
        m_suivi.demandes = &m_demandes;
        m_poste.PasParEchange = 20ms;
        m_poste.AvantEchange = [this](const Tampon&) { ++m_echanges; };
    }
    ~Origine() override { InstallerPompe(m_anciennePompe); }
    void Pomper() {
        if (SurPompe) SurPompe();
    }
    FinOrigine Chercher(AxesOrigine axes) { return RechercheOrigine(TableINI, axes, m_suivi); }

    essais::BoitesEnregistrees m_boites;
    essais::BoiteVirtuelle m_poste;
    DemandesMarche m_demandes;
    SuiviMarche m_suivi;
    Pompe m_anciennePompe;
    std::function<void()> SurPompe;
    int m_echanges = 0;
};

// "QT2d v12": 1600 steps/mm, origin at the top (Y 256 mm), switches 1 mm beyond it, travel below 600 mm:
// back-off of 0.1 mm, 160 steps. A switch is left by the step that brings the axis back to its border or
// before it.
constexpr std::int64_t BordX = -1600;
constexpr std::int64_t BordY = 256 * 1600 + 1600;

// One or two back-off steps inside the border: the one that closed the loop, and one more.
void EstDegage(std::int64_t position, std::int64_t bord, int versDedans) {
    const std::int64_t dedans = (position - bord) * versDedans;
    EXPECT_GE(dedans, 160);
    EXPECT_LT(dedans, 320);
}

} // namespace

TEST_F(Origine, LesDeuxDirectionsDepuisLeMilieu) {
    m_poste.boite.PoserChariots({100 * 1600, 100 * 1600, 0, 100 * 1600});
    EXPECT_EQ(Chercher(AxesOrigine::XetY), FinOrigine::Trouvee);
    const PositionPas p = m_poste.boite.Position();
    EstDegage(p[AxeX1], BordX, 1);
    EstDegage(p[AxeY1], BordY, -1);
    EstDegage(p[AxeY2], BordY, -1);
    EXPECT_TRUE(m_boites.boites.empty());
    EXPECT_FALSE(m_poste.boite.Etat().modeOrigine);
    EXPECT_FALSE(m_poste.boite.Etat().origineOuverte);
}

TEST_F(Origine, UnBoutDeTraversEstRattrape) {
    m_poste.boite.PoserChariots({100 * 1600, 100 * 1600, 0, 100 * 1600 - 4000}); // Y2 2.5 mm lower
    EXPECT_EQ(Chercher(AxesOrigine::Y), FinOrigine::Trouvee);
    const PositionPas p = m_poste.boite.Position();
    EXPECT_EQ(p[AxeX1], 100 * 1600);
    EstDegage(p[AxeY1], BordY, -1);
    EstDegage(p[AxeY2], BordY, -1);
    EXPECT_TRUE(m_boites.boites.empty());
}

TEST_F(Origine, SansInterrupteursActifsRienNeBouge) {
    TableINI.SwitchsActifs = false; // nothing would ever end the travel
    const PositionPas avant = m_poste.boite.Position();
    EXPECT_EQ(Chercher(AxesOrigine::XetY), FinOrigine::SansInterrupteurs);
    EXPECT_EQ(m_poste.boite.Position(), avant);
    EXPECT_EQ(m_echanges, 0);
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(m_boites.boites[0].texte, "Les interrupteurs de la table courante ne sont pas actifs.");
    EXPECT_EQ(m_boites.boites[0].titre, "Impossible de faire la procédure.");
}

TEST_F(Origine, UneSeuleDirection) {
    m_poste.boite.PoserChariots({50 * 1600, 100 * 1600, 0, 100 * 1600});
    EXPECT_EQ(Chercher(AxesOrigine::X), FinOrigine::Trouvee);
    EstDegage(m_poste.boite.Position()[AxeX1], BordX, 1);
    EXPECT_EQ(m_poste.boite.Position()[AxeY1], 100 * 1600);
}

TEST_F(Origine, EnsuiteDesInterrupteursALOrigine) {
    m_poste.boite.PoserChariots({50 * 1600, 100 * 1600, 0, 100 * 1600});
    ASSERT_EQ(Chercher(AxesOrigine::XetY), FinOrigine::Trouvee);
    const PositionPas avant = m_poste.boite.Position();
    const ResultatMouvement m = AllerDesInterrupteursALOrigine(TableINI, AxesOrigine::XetY, m_suivi);
    EXPECT_EQ(m.cause, CauseFin::FinDeListe);
    EXPECT_EQ(m_poste.boite.Position()[AxeX1], avant[AxeX1] + 1600);
    EXPECT_EQ(m_poste.boite.Position()[AxeY1], avant[AxeY1] - 1600);
    EXPECT_EQ(m_poste.boite.Position()[AxeY2], avant[AxeY2] - 1600);
}

TEST_F(Origine, UneBoucleQuiResteOuverteFaitTroisEssais) {
    m_poste.boite.PoserChariots({50 * 1600, 100 * 1600, 0, 100 * 1600});
    m_poste.boite.FixerCommutateurs({.origineForcee = true});
    EXPECT_EQ(Chercher(AxesOrigine::X), FinOrigine::EncoreOuverts);
    ASSERT_EQ(m_boites.boites.size(), 3U);
    for (int i : {0, 1})
        EXPECT_TRUE(m_boites.boites[static_cast<std::size_t>(i)].texte.ends_with("On va essayer encore..."));
    EXPECT_EQ(m_boites.boites[2].texte, "Les interrupteurs sont encore ouverts. La mise à l'origine n'est "
                                        "pas possible, contrôlez la machine.");
    EXPECT_FALSE(m_poste.boite.Etat().modeOrigine);
}

TEST_F(Origine, LeFinDeCourseArreteLaRecherche) {
    m_poste.boite.PoserChariots({50 * 1600, 100 * 1600, 0, 100 * 1600});
    m_poste.boite.Programmer({.panne = Panne::FinCourseOuverte, .salve = 1, .tick = 5000});
    EXPECT_EQ(Chercher(AxesOrigine::XetY), FinOrigine::FinDeCourse);
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(m_boites.boites[0].titre, "Sortie des courses");
}

TEST_F(Origine, StopEtBoutonStopAnnulent) {
    m_poste.boite.PoserChariots({50 * 1600, 100 * 1600, 0, 100 * 1600});
    SurPompe = [this] {
        if (m_echanges == 20) m_demandes.StopDemande = true;
    };
    EXPECT_EQ(Chercher(AxesOrigine::XetY), FinOrigine::Annulee);
    EXPECT_EQ(m_boites.boites.at(0).texte, "L'opération a été annulée.");
    EXPECT_EQ(m_boites.boites.at(0).titre, "Arrêt d'urgence");
    EXPECT_FALSE(m_demandes.StopDemande);
    SurPompe = {};
    m_poste.boite.Programmer({.panne = Panne::BoutonStop, .salve = 1, .tick = 5000});
    EXPECT_EQ(Chercher(AxesOrigine::XetY), FinOrigine::Annulee);
    EXPECT_EQ(m_boites.boites.at(1).texte, "L'opération a été annulée.");
}

// A machine whose carriages are farther away than the travel it believes in, plus 200 mm.
TEST_F(Origine, UneCourseTropCourteEstRecommencee) {
    TableMachine table = TableINI;
    table.CourseX = 10;
    m_poste.boite.PoserChariots({250 * 1600, 100 * 1600, 0, 100 * 1600});
    EXPECT_EQ(RechercheOrigine(table, AxesOrigine::X, m_suivi), FinOrigine::Trouvee);
    EstDegage(m_poste.boite.Position()[AxeX1], BordX, 1);
}

TEST_F(Origine, UneCourseSansFinNeFinitQueParStop) {
    TableMachine table = TableINI;
    table.CourseX = 6000;
    m_poste.boite.FixerMecanique(MecaniqueDeMachine(table)); // as long as the screws are
    table.CourseX = 10;                                      // 210 mm at a time
    constexpr std::int64_t depart = 5000LL * 1600;
    m_poste.boite.PoserChariots({depart, 100 * 1600, 0, 100 * 1600});
    SurPompe = [this] {
        if (depart - m_poste.boite.Position()[AxeX1] > 3 * 210LL * 1600) m_demandes.StopDemande = true;
    };
    EXPECT_EQ(RechercheOrigine(table, AxesOrigine::X, m_suivi), FinOrigine::Annulee);
    EXPECT_GT(depart - m_poste.boite.Position()[AxeX1], 3 * 210LL * 1600);
    EXPECT_EQ(m_poste.boite.Etat().file, EtatFile::Repos);
    EXPECT_EQ(m_boites.boites.size(), 1U);
}

TEST_F(Origine, LesGrandesMachinesReculentDeDeuxDixiemes) {
    TableMachine table = TableINI;
    table.CourseX = 601;
    m_poste.boite.PoserChariots({50 * 1600, 100 * 1600, 0, 100 * 1600});
    EXPECT_EQ(RechercheOrigine(table, AxesOrigine::X, m_suivi), FinOrigine::Trouvee);
    const std::int64_t dedans = m_poste.boite.Position()[AxeX1] - BordX;
    EXPECT_GE(dedans, 320);
    EXPECT_LT(dedans, 640);
}
