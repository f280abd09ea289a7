// A list streamed to the virtual box: what is sent when, and that no reply that is lost doubles or drops a
// frame.
#include "link/commandes.h"
#include "link/echange.h"
#include "link/envoi_salves.h"
#include "platform/erreurs.h"
#include "platform/pompe.h"

#include "outils/boites.h"
#include "outils_boite/boite_virtuelle.h"
#include "outils_boite/sommets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

using namespace tessarel;
using essais::Sommet;
using namespace tessarel::simulateur;
using namespace std::chrono_literals;

namespace {

// Out at the rapid speed, a short saw of cuts, and not back to where it began, so that a frame lost or
// doubled shows in the end position.
std::vector<PointProfil> Chemin(int dents = 6) {
    std::vector<PointProfil> chemin = {Sommet(0, 0, 4, true), Sommet(0, 2, 8)};
    for (int i = 1; i <= dents; ++i) chemin.push_back(Sommet(0.5 * i, i % 2 == 0 ? 2 : 2.3, 4));
    return chemin;
}

class Envoi : public ::testing::Test {
protected:
    Envoi() : m_anciennePompe(InstallerPompe([this] { Pomper(); })) {
        m_poste.ApresEchange = [this](const Tampon&, std::int32_t) { ++m_echanges; };
        m_poste.AvantEchange = [this](const Tampon& t) { m_commandes.push_back(t); };
    }
    ~Envoi() override { InstallerPompe(m_anciennePompe); }

    void Pomper() {
        ++m_tours;
        if (SurPompe) SurPompe();
    }
    ListeDeDecoupe Liste(int dents = 6) { return PreparerSalves(Chemin(dents), 1, 50, TableINI); }
    ResultatEnvoi Envoyer(const ListeDeDecoupe& liste) {
        SuiviMarche suivi;
        suivi.demandes = &m_demandes;
        suivi.Avancer = [this](const AvanceeMarche& a) { m_avancees.push_back(a); };
        return EnvoyerSalves(liste.salves, suivi);
    }
    // Letters of what was sent, runs of D and I as one: "B0 B1 D B128 D I P0".
    [[nodiscard]] std::string Suite() const {
        std::string suite;
        std::string dernier;
        for (const Tampon& t : m_commandes) {
            std::string mot(1, static_cast<char>(t[1]));
            if (mot != "D" && mot != "I" && mot != "S") mot += std::to_string(t[2]);
            if (mot == dernier && (mot == "D" || mot == "I")) continue;
            dernier = mot;
            suite += (suite.empty() ? "" : " ") + mot;
        }
        return suite;
    }
    void EstAuBout(const ListeDeDecoupe& liste) {
        const PositionPas fin = m_poste.boite.Position();
        EXPECT_EQ(fin[0], liste.trajet.bout1.back().X);
        EXPECT_EQ(fin[1], liste.trajet.bout1.back().Y);
        EXPECT_EQ(fin[2], liste.trajet.bout2.back().X);
        EXPECT_EQ(fin[3], liste.trajet.bout2.back().Y);
    }
    void FilFroid() {
        EXPECT_EQ(m_poste.boite.Etat().pwmCommande, 0);
        EXPECT_FALSE(ChauffePeutEtreActive());
    }

    essais::BoitesEnregistrees m_boites;
    essais::BoiteVirtuelle m_poste;
    DemandesMarche m_demandes;
    Pompe m_anciennePompe;
    std::function<void()> SurPompe;
    std::vector<Tampon> m_commandes;
    std::vector<AvanceeMarche> m_avancees;
    std::uint64_t m_echanges = 0;
    std::uint64_t m_tours = 0;
};

} // namespace

TEST_F(Envoi, UneListeEntiereVaDuPremierAuDernierPas) {
    const ListeDeDecoupe liste = Liste();
    const ResultatEnvoi envoi = Envoyer(liste);
    EXPECT_EQ(envoi.marche.fin, FinMarche::Finie);
    EXPECT_TRUE(envoi.marche.statut.FinDeListe);
    EXPECT_EQ(envoi.marche.NumeroSalve, static_cast<std::int32_t>(liste.salves.size()) - 1);
    EXPECT_TRUE(envoi.chauffeCoupee);
    EstAuBout(liste);
    FilFroid();
    EXPECT_TRUE(m_boites.boites.empty());
    EXPECT_EQ(Suite(), "B0 B1 D B128 I P0");
    EXPECT_EQ(m_poste.boite.Comptes().salvesFinies, liste.salves.size() - 1);
    EXPECT_EQ(m_poste.boite.Comptes().anomalies, 0U);
    EXPECT_GE(m_tours, m_echanges - 5); // events run between the exchanges
}

TEST_F(Envoi, UneFilePleineSeRemplitEnMarche) {
    m_poste.boite.FixerCapaciteFile(4);
    const ListeDeDecoupe liste = Liste(60);
    const ResultatEnvoi envoi = Envoyer(liste);
    EXPECT_EQ(envoi.marche.fin, FinMarche::Finie);
    EstAuBout(liste);
    EXPECT_EQ(Suite(), "B0 B1 D B128 D I P0");
    EXPECT_EQ(m_poste.boite.Comptes().salvesAcceptees, liste.salves.size() - 1);
    EXPECT_GT(m_poste.boite.Comptes().salvesRefusees, 0U);
    EXPECT_EQ(m_poste.boite.Comptes().famines, 0U);
}

TEST_F(Envoi, LAvanceeVaDeLaPauseAuDernierSegment) {
    const ListeDeDecoupe liste = Liste();
    Envoyer(liste);
    ASSERT_FALSE(m_avancees.empty());
    EXPECT_EQ(m_avancees.front().NumeroSalve, 1);
    EXPECT_EQ(m_avancees.front().NBRt, 50000U);
    EXPECT_LT(m_avancees.front().Fraction, 0.01);
    for (std::size_t i = 1; i < m_avancees.size(); ++i) {
        EXPECT_GE(m_avancees[i].NumeroSalve, m_avancees[i - 1].NumeroSalve);
        if (m_avancees[i].NumeroSalve == m_avancees[i - 1].NumeroSalve) {
            EXPECT_GE(m_avancees[i].Fraction, m_avancees[i - 1].Fraction);
        }
        EXPECT_LE(m_avancees[i].Fraction, 1);
    }
    EXPECT_EQ(m_avancees.back().NumeroSalve, static_cast<std::int32_t>(liste.salves.size()) - 1);
}

TEST_F(Envoi, StopPendantLeRemplissageNeBougeRien) {
    SurPompe = [this] {
        if (m_commandes.size() == 4) m_demandes.StopDemande = true;
    };
    const ResultatEnvoi envoi = Envoyer(Liste());
    EXPECT_EQ(envoi.marche.fin, FinMarche::StopAvantMouvement);
    EXPECT_EQ(Suite(), "B0 B1 D B0 P0");
    EXPECT_FALSE(m_demandes.StopDemande);
    EXPECT_EQ(m_poste.boite.Position(), PositionPas{});
    FilFroid();
}

TEST_F(Envoi, StopEnMarcheEnvoieSPuisIAuTourSuivant) {
    std::size_t avant = 0;
    SurPompe = [this, &avant] {
        if (avant != 0 || m_avancees.empty() || m_avancees.back().NumeroSalve < 4) return;
        m_demandes.StopDemande = true;
        avant = m_commandes.size();
    };
    const ListeDeDecoupe liste = Liste();
    const ResultatEnvoi envoi = Envoyer(liste);
    EXPECT_EQ(envoi.marche.fin, FinMarche::Arretee);
    EXPECT_TRUE(envoi.marche.statut.ArretDemande);
    ASSERT_GT(m_commandes.size(), avant + 2);
    EXPECT_EQ(m_commandes[avant][1], 'S');
    EXPECT_EQ(m_commandes[avant + 1][1], 'I');
    EXPECT_EQ(m_commandes[avant + 2][1], 'P');
    EXPECT_FALSE(m_demandes.StopDemande);
    FilFroid();
    const PositionDuFil p = PositionAuStop(liste.trajet, liste.salves, envoi.marche.NumeroSalve,
                                           envoi.marche.statut.TicksRestants);
    ASSERT_EQ(p.lecture, LecturePosition::Faite);
    const PositionPas boite = m_poste.boite.Position();
    for (std::size_t axe = 0; axe < 4; ++axe) EXPECT_EQ(boite[axe], p.pas[axe]) << axe;
}

TEST_F(Envoi, LaChauffeModifieePartUneFoisEtAuPlusTot) {
    SurPompe = [this] {
        if (m_avancees.size() != 20 || m_demandes.ChauffeModifiee) return;
        m_demandes.ChauffeModifiee = true;
        m_demandes.ChauffeVoulue = 25.5F; // 65.025: 65
        m_avancees.emplace_back();
    };
    Envoyer(Liste());
    const auto chauffes =
        std::ranges::count_if(m_commandes, [](const Tampon& t) { return t[1] == 'P' && t[2] == 1; });
    EXPECT_EQ(chauffes, 1);
    EXPECT_TRUE(std::ranges::any_of(m_poste.boite.HistoireChauffe(),
                                    [](const NoteChauffe& n) { return n.pwm == 65; }));
    FilFroid();
}

TEST_F(Envoi, SansMouvementsActifsRienNePart) {
    MouvementsActifs = false;
    const ResultatEnvoi envoi = Envoyer(Liste());
    EXPECT_EQ(envoi.marche.fin, FinMarche::Impossible);
    for (const Tampon& t : m_commandes) EXPECT_FALSE(EstCommandeDeMouvement(t));
}

TEST_F(Envoi, MouvementsDesactivesEnMarcheArretentEtRefroidissent) {
    m_poste.boite.FixerCapaciteFile(4);
    SurPompe = [this] {
        if (m_avancees.size() == 100) MouvementsActifs = false;
    };
    const ResultatEnvoi envoi = Envoyer(Liste(60));
    EXPECT_EQ(envoi.marche.fin, FinMarche::Impossible);
    EXPECT_EQ(m_poste.boite.Etat().file, EtatFile::Repos);
    FilFroid();
}

TEST_F(Envoi, UneFauteDUnGestionnaireArreteEtRefroiditAvantDePasser) {
    SurPompe = [this] {
        if (m_avancees.size() == 100) throw FauteInterne("essai");
    };
    EXPECT_THROW(Envoyer(Liste()), FauteInterne);
    EXPECT_EQ(m_poste.boite.Etat().file, EtatFile::Repos);
    FilFroid();
}

TEST_F(Envoi, UneFauteSansBoitierDitQueLeFilPeutEtreChaud) {
    SurPompe = [this] {
        if (m_avancees.size() != 100) return;
        m_poste.boite.Brancher(false);
        throw FauteInterne("essai");
    };
    EXPECT_THROW(Envoyer(Liste()), FauteInterne);
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(m_boites.boites[0].titre, "Problème de communication avec la machine");
    EXPECT_EQ(m_boites.boites[0].icone, IconeBoite::Critique);
}

// Several routines have it in hand on its way out: the first does all there is to do.
TEST_F(Envoi, UneFauteEstSecourueUneFois) {
    m_poste.boite.Brancher(false);
    const auto arrets = [this] {
        return std::ranges::count_if(m_commandes, [](const Tampon& t) { return t[1] == CommandeArret; });
    };
    EnvoyerChauffe(ValeurPWM(50), {[] { return true; }, {}}); // lost: the wire may be hot
    const auto passer = [] {
        try {
            try {
                throw FauteInterne("essai");
            } catch (...) {
                EXPECT_FALSE(SecourirMarche());
                throw;
            }
        } catch (...) {
            EXPECT_FALSE(SecourirMarche());
        }
    };
    passer();
    EXPECT_EQ(arrets(), 5);
    EXPECT_EQ(m_boites.boites.size(), 1U);
    passer(); // another one
    EXPECT_EQ(arrets(), 10);
    EXPECT_FALSE(SecourirMarche()); // nor is that without a fault the same
    EXPECT_EQ(arrets(), 15);
    m_poste.boite.Brancher(true);
    EXPECT_TRUE(SecourirMarche());
}

// Where the wire was lit again in between, once is not enough.
TEST_F(Envoi, UnFilRallumeEntreDeuxSecoursSEteint) {
    try {
        try {
            throw FauteInterne("essai");
        } catch (...) {
            EXPECT_TRUE(SecourirMarche());
            EnvoyerChauffe(ValeurPWM(50));
            throw;
        }
    } catch (...) {
        EXPECT_TRUE(SecourirMarche());
    }
    FilFroid();
}

TEST_F(Envoi, LaChauffeNeSuitPlusLaBarreQuandLaMachineACoupe) {
    m_poste.boite.Programmer({.panne = Panne::BoutonStop, .salve = 4, .tick = 100});
    std::size_t apres = 0;
    SurPompe = [this, &apres] {
        if (m_poste.boite.Etat().fin != FinMouvement::BoutonStop) return;
        if (apres == 0) apres = m_commandes.size();
        m_demandes.ChauffeModifiee = true; // at each turn
        m_demandes.ChauffeVoulue = 60;
    };
    Envoyer(Liste());
    ASSERT_GT(apres, 0U);
    const auto rallumages =
        std::count_if(m_commandes.begin() + static_cast<std::ptrdiff_t>(apres), m_commandes.end(),
                      [](const Tampon& t) { return t[1] == CommandeChauffe && t[2] == 1; });
    EXPECT_LE(rallumages, 1); // in the turn in which nobody knows of it yet
    FilFroid();
}

TEST_F(Envoi, LeBoutonStopDeLaMachineFinitLaMarche) {
    m_poste.boite.Programmer({.panne = Panne::BoutonStop, .salve = 4, .tick = 100});
    const ResultatEnvoi envoi = Envoyer(Liste());
    EXPECT_EQ(envoi.marche.fin, FinMarche::Finie);
    EXPECT_TRUE(envoi.marche.statut.ArretBoutonStop);
    EXPECT_EQ(envoi.marche.NumeroSalve, 4);
    FilFroid();
}

TEST_F(Envoi, UneCoupureDeCourantEstUnArretSansRaison) {
    m_poste.boite.Programmer(
        {.panne = Panne::CoupureCourant, .salve = 4, .tick = 100, .retablieApresEchanges = 3});
    const ResultatEnvoi envoi = Envoyer(Liste());
    EXPECT_EQ(envoi.marche.fin, FinMarche::SansRaison);
    FilFroid();
}

TEST_F(Envoi, UneSalveSansDureeArreteLaMarche) {
    // A box that stands on a frame of no ticks until it is told to stop.
    bool arretee = false;
    RemplacerZelkoCom({VersionMinimaleZelko, [] { return ZelkoBranchee; },
                       [&arretee](Tampon& t) {
                           const std::uint8_t code = t[1];
                           t.fill(0);
                           arretee = arretee || code == 'S';
                           t[2] = code == 'D' ? 1 : 0;
                           t[4] = code == 'P' ? 0 : 1;
                           t[12] = arretee ? 2 + 4 : 0;
                           return ResultatZelkoSucces;
                       }});
    ListeDeDecoupe liste = Liste();
    liste.salves[0] = ConstruireSalveTempo(ParametresDeSalve(TableINI), 0, 50);
    const ResultatEnvoi envoi = Envoyer(liste);
    EXPECT_EQ(envoi.marche.fin, FinMarche::SansDuree);
    EXPECT_TRUE(arretee);
    EXPECT_TRUE(envoi.chauffeCoupee);
}

TEST_F(Envoi, UnDepartPerduEstRepeteMemeSiLeStatutEstCeluiDAvant) {
    // A box that shows the end of the run before, number included, until the next one begins; it does not
    // hear the first B 128.
    bool marche = false;
    int departs = 0;
    int restants = 0;
    RemplacerZelkoCom({VersionMinimaleZelko, [] { return ZelkoBranchee; },
                       [&](Tampon& t) -> std::int32_t {
                           const std::uint8_t code = t[1];
                           const std::uint8_t arg = t[2];
                           if (code == 'B' && arg == 128 && ++departs == 1) return -202;
                           if (code == 'B' && arg == 128) marche = (restants = 5) > 0;
                           if (code == 'I' && marche) marche = --restants > 0;
                           t.fill(0);
                           t[2] = code == 'D' ? 1 : 0;
                           t[4] = code == 'P' ? 0 : 1;
                           t[12] = marche ? 0 : 2 + 128;
                           return ResultatZelkoSucces;
                       }});
    const ResultatEnvoi envoi = Envoyer(Liste());
    EXPECT_EQ(departs, 2);
    EXPECT_EQ(restants, 0);
    EXPECT_EQ(envoi.marche.fin, FinMarche::Finie);
    EXPECT_TRUE(envoi.marche.statut.FinDeListe);
}

TEST_F(Envoi, BoitierDebranchePuisRebrancheFinitSansRienDoubler) {
    m_poste.boite.FixerCapaciteFile(4);
    m_poste.boite.Programmer(
        {.panne = Panne::Debranchement, .salve = 5, .tick = 10, .retablieApresEchanges = 12});
    const ListeDeDecoupe liste = Liste(60);
    const ResultatEnvoi envoi = Envoyer(liste);
    EXPECT_EQ(envoi.marche.fin, FinMarche::Finie);
    EstAuBout(liste);
    EXPECT_EQ(m_poste.boite.Comptes().salvesAcceptees, liste.salves.size() - 1);
    ASSERT_EQ(m_boites.boites.size(), 1U); // told once, at the fifth failure
    EXPECT_EQ(m_boites.boites[0].titre, "Problème de communication avec l'interpolateur.");
}

TEST_F(Envoi, BoitierDebrancheLeSecondStopAbandonneEtLeDit) {
    m_poste.boite.Programmer({.panne = Panne::Debranchement, .salve = 5, .tick = 10});
    SurPompe = [this] {
        if (!m_poste.boite.Branchee() && m_tours % 40 == 0) m_demandes.StopDemande = true;
    };
    const ResultatEnvoi envoi = Envoyer(Liste());
    EXPECT_EQ(envoi.marche.fin, FinMarche::Abandonnee);
    EXPECT_FALSE(envoi.chauffeCoupee);
    ASSERT_FALSE(m_boites.boites.empty());
    EXPECT_EQ(m_boites.boites.back().titre, "Problème de communication avec la machine");
    EXPECT_EQ(m_boites.boites.back().icone, IconeBoite::Critique);
    EXPECT_TRUE(ChauffePeutEtreActive());
}

TEST_F(Envoi, InterrupteursAvantLaDecoupe) {
    TableMachine table = TableINI;
    EXPECT_TRUE(InterrupteursPermettentLaDecoupe(table)); // no switches: not even asked
    EXPECT_TRUE(m_commandes.empty());
    table.SwitchsActifs = true;
    EXPECT_FALSE(InterrupteursPermettentLaDecoupe(table)); // those of the table in RAM are not
    EXPECT_EQ(m_boites.boites.at(0).texte, "Les interrupteurs de la table courante ne sont pas actifs.");
    EXPECT_EQ(m_boites.boites.at(0).titre, "Impossible de faire la procédure.");
    m_poste.PreparerMachine(table);
    EXPECT_TRUE(InterrupteursPermettentLaDecoupe(table));
    for (const Commutateurs& c :
         {Commutateurs{.origineForcee = true}, Commutateurs{.finCourseForcee = true}}) {
        m_poste.boite.FixerCommutateurs(c);
        EXPECT_FALSE(InterrupteursPermettentLaDecoupe(table));
        EXPECT_EQ(m_boites.boites.back().titre, "Impossible de faire la découpe.");
    }
}
