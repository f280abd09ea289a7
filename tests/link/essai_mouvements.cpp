// Single moves on the virtual box: their bytes, their speeds, what ends them and what is said of it.
#include "link/mouvements.h"
#include "platform/erreurs.h"
#include "platform/pompe.h"

#include "outils/boites.h"
#include "outils_boite/boite_virtuelle.h"

#include <gtest/gtest.h>

#include <string>

using namespace tessarel;
using namespace tessarel::simulateur;

namespace {

class Mouvement : public ::testing::Test {
protected:
    Mouvement() : m_anciennePompe(InstallerPompe([this] { Pomper(); })) {
        m_poste.AvantEchange = [this](const Tampon& t) { m_commandes.push_back(t); };
        m_suivi.demandes = &m_demandes;
    }
    ~Mouvement() override { InstallerPompe(m_anciennePompe); }
    void Pomper() {
        if (SurPompe) SurPompe();
    }
    [[nodiscard]] std::string Suite() const {
        std::string suite;
        for (const Tampon& t : m_commandes) {
            suite += static_cast<char>(t[1]);
            suite += std::to_string(t[2]) + "," + std::to_string(t[3]) + " ";
        }
        return suite;
    }
    ResultatMouvement Bouger(const std::array<float, 4>& pas, float vitesse) {
        return MouvementSimple(TableINI, pas, vitesse, m_suivi);
    }

    essais::BoitesEnregistrees m_boites;
    essais::BoiteVirtuelle m_poste;
    DemandesMarche m_demandes;
    SuiviMarche m_suivi;
    Pompe m_anciennePompe;
    std::function<void()> SurPompe;
    std::vector<Tampon> m_commandes;
};

TableMachine AvecInterrupteurs() {
    TableMachine table = TableINI;
    table.SwitchsActifs = true;
    table.PasToOrigine = {320, 320, 320, 320};
    return table;
}

} // namespace

TEST_F(Mouvement, EnvoieUneSalveEtAttendSaFin) {
    // "(Defaut)": 320 steps/mm, 6 and 10 mm/s. 10 mm at 10 mm/s: 1 s, 50000 ticks.
    const ResultatMouvement m = Bouger({3200, 0, 3199.6F, -0.4F}, 10);
    EXPECT_EQ(m.marche.fin, FinMarche::Finie);
    EXPECT_EQ(m.cause, CauseFin::FinDeListe);
    EXPECT_EQ(m.NBRt, 50000);
    EXPECT_EQ(m_poste.boite.Position(), (PositionPas{3200, 0, 3200, 0}));
    ASSERT_GT(m_commandes.size(), 6U);
    EXPECT_EQ(m_commandes[0][1], 'B');
    EXPECT_EQ(m_commandes[0][2], 0);
    EXPECT_EQ(m_commandes[1][1], 'B');
    EXPECT_EQ(m_commandes[1][2], 1);
    Tampon attendu{};
    ChargerSalveDansTampon(attendu,
                           ConstruireSalve(ParametresDeSalve(TableINI), 6, 10, 6, {3200, 0, 3200, 0}));
    EXPECT_EQ(m_commandes[2], attendu);
    EXPECT_EQ(m_commandes[3][1], 'D');
    EXPECT_EQ(m_commandes[3][2], 128);
    EXPECT_EQ(m_commandes[4][1], 'B');
    EXPECT_EQ(m_commandes[4][2], 128);
    for (std::size_t i = 5; i < m_commandes.size(); ++i) EXPECT_EQ(m_commandes[i][1], 'I') << i;
    EXPECT_TRUE(m_boites.boites.empty());
}

TEST_F(Mouvement, SousLaVitesseSansRampeLesTroisSontEgales) {
    Bouger({320, 0, 0, 0}, 4);
    Tampon attendu{};
    ChargerSalveDansTampon(attendu, ConstruireSalve(ParametresDeSalve(TableINI), 4, 4, 4, {320, 0, 0, 0}));
    EXPECT_EQ(m_commandes.at(2), attendu);
}

TEST_F(Mouvement, StopDejaDemandeNEnvoieRien) {
    m_demandes.StopDemande = true;
    const ResultatMouvement m = Bouger({3200, 0, 0, 0}, 4);
    EXPECT_EQ(m.marche.fin, FinMarche::StopAvantMouvement);
    EXPECT_EQ(m.cause, CauseFin::StopEcran);
    EXPECT_TRUE(m_commandes.empty());
}

TEST_F(Mouvement, StopEtFinDOrigineEnvoientS) {
    for (bool DemandesMarche::*drapeau :
         {&DemandesMarche::StopDemande, &DemandesMarche::FinOrigineDemandee}) {
        m_commandes.clear();
        SurPompe = [this, drapeau] {
            if (m_commandes.size() == 30) m_demandes.*drapeau = true;
        };
        const ResultatMouvement m = Bouger({3200, 0, 0, 0}, 4);
        EXPECT_EQ(m.marche.fin, FinMarche::Arretee);
        EXPECT_EQ(m_commandes.at(30)[1], 'S');
        EXPECT_EQ(m_commandes.at(31)[1], 'I');
        EXPECT_EQ(m.cause, CauseFin::StopEcran);
        EXPECT_FALSE(AnnoncerCause(m.cause));
        SurPompe = {};
    }
}

TEST_F(Mouvement, CausesDeLaFinLaDerniereLEmporte) {
    ResultatMarche marche;
    marche.fin = FinMarche::Finie;
    EXPECT_EQ(static_cast<int>(CauseDeFin(marche, false)), 0);
    marche.statut.FinDeListe = true;
    EXPECT_EQ(static_cast<int>(CauseDeFin(marche, false)), 1);
    marche.statut.ArretBoutonStop = true;
    EXPECT_EQ(static_cast<int>(CauseDeFin(marche, false)), 2);
    marche.statut.OrigineOuverteEnMouvement = true;
    EXPECT_EQ(static_cast<int>(CauseDeFin(marche, false)), 4);
    marche.statut.FinCourseOuverteEnMouvement = true;
    EXPECT_EQ(static_cast<int>(CauseDeFin(marche, false)), 8);
    marche.fin = FinMarche::Arretee;
    EXPECT_EQ(static_cast<int>(CauseDeFin(marche, false)), 16);
    EXPECT_EQ(static_cast<int>(CauseDeFin(marche, true)), 32);
}

TEST_F(Mouvement, ChaqueCauseASaBoite) {
    for (const CauseFin muette :
         {CauseFin::Aucune, CauseFin::FinDeListe, CauseFin::StopEcran, CauseFin::StopEcranMoteursOff})
        EXPECT_FALSE(AnnoncerCause(muette));
    EXPECT_TRUE(m_boites.boites.empty());
    EXPECT_TRUE(AnnoncerCause(CauseFin::BoutonStop));
    EXPECT_EQ(m_boites.boites.back().texte,
              "Arrêt chauffe et mouvements par appui sur bouton STOP de la machine.");
    EXPECT_TRUE(AnnoncerCause(CauseFin::OrigineOuverte));
    EXPECT_EQ(m_boites.boites.back().titre, "Sortie des courses");
    EXPECT_TRUE(
        m_boites.boites.back().texte.starts_with("La boucle des interrupteurs d'origine est ouverte."));
    EXPECT_TRUE(AnnoncerCause(CauseFin::FinCourseOuverte));
    EXPECT_TRUE(m_boites.boites.back().texte.starts_with(
        "La boucle des interrupteurs de fin de course est ouverte."));
}

TEST_F(Mouvement, BoutonsEtInterrupteursDeLaMachine) {
    m_poste.PreparerMachine(AvecInterrupteurs());
    m_poste.boite.Programmer({.panne = Panne::BoutonStop, .salve = 1, .tick = 100});
    EXPECT_EQ(Bouger({3200, 0, 0, 0}, 4).cause, CauseFin::BoutonStop);
    EXPECT_EQ(Bouger({-3200, 0, 0, 0}, 4).cause, CauseFin::OrigineOuverte);
}

TEST_F(Mouvement, VitessesManuellesAcceptees) {
    const auto v = [](float vitesse) {
        return VitessesManuelles(vitesse, TableINI);
    }; // 6 without ramp, 10 with
    EXPECT_EQ(v(0)->cible, 0);
    EXPECT_EQ(v(5.9F)->depart, 5.9F);
    EXPECT_EQ(v(5.9F)->fin, 5.9F);
    EXPECT_EQ(v(6)->depart, 6);
    EXPECT_EQ(v(10)->depart, 6);
    EXPECT_EQ(v(10)->cible, 10);
    EXPECT_EQ(v(10)->fin, 6);
    EXPECT_TRUE(m_boites.boites.empty());
    EXPECT_FALSE(v(10.1F));
    EXPECT_FALSE(v(-0.1F));
    ASSERT_EQ(m_boites.boites.size(), 2U);
    EXPECT_EQ(m_boites.boites[0].texte, "Valeur de Vitesse incorrecte");
}

TEST_F(Mouvement, VerifierInterrupteursDansLOrdre) {
    EXPECT_EQ(VerifierInterrupteurs(TableINI), 1);
    EXPECT_TRUE(m_commandes.empty()); // a machine without switches is not asked
    const TableMachine table = AvecInterrupteurs();
    EXPECT_EQ(VerifierInterrupteurs(table), -1); // those in RAM are still without
    EXPECT_EQ(m_boites.boites.back().texte, "Les interrupteurs de la table courante ne sont pas actifs.");
    m_poste.PreparerMachine(table);
    EXPECT_EQ(VerifierInterrupteurs(table), 1);
    m_poste.boite.FixerCommutateurs({.origineForcee = true, .finCourseForcee = true});
    EXPECT_EQ(VerifierInterrupteurs(table), -2); // the limit loop is looked at first
    EXPECT_TRUE(m_boites.boites.back().texte.starts_with("Un interrupteur de fin de course est ouvert"));
    m_poste.boite.FixerCommutateurs({.origineForcee = true});
    EXPECT_EQ(VerifierInterrupteurs(table), -3);
    EXPECT_TRUE(m_boites.boites.back().texte.starts_with("Un interrupteur d'origine est ouvert"));
    EXPECT_TRUE(InterrupteurOrigineOuvert());
    EXPECT_FALSE(InterrupteurFinCourseOuvert());
    m_poste.boite.Brancher(false);
    EXPECT_FALSE(InterrupteurOrigineOuvert());
}

TEST_F(Mouvement, MoteursGardesOuRendusALeurDelai) {
    TableMachine table = TableINI;
    table.AutoMoteursOff = true;
    table.DelaiMoteursOff = 7;
    DesactiverDelaiMoteurs(true, table);
    EXPECT_EQ(Suite(), "M3,0 M1,0 ");
    m_commandes.clear();
    DesactiverDelaiMoteurs(false, table);
    EXPECT_EQ(Suite(), "M0,0 M3,7 ");
    m_commandes.clear();
    table.AutoMoteursOff = false;
    DesactiverDelaiMoteurs(false, table);
    EXPECT_EQ(Suite(), "M0,0 ");
}

TEST_F(Mouvement, UneFauteEnPleinMouvementArreteLeChariot) {
    SurPompe = [this] {
        if (m_commandes.size() == 30) throw FauteInterne("essai");
    };
    EXPECT_THROW(Bouger({3200, 0, 0, 0}, 4), FauteInterne);
    EXPECT_EQ(m_poste.boite.Etat().file, EtatFile::Repos);
}
