// A box that somebody else has set going: when it is asked about, what a Yes and a No send, and what noise,
// the knob and a heat of our own must not do.
#include "link/commandes.h"
#include "link/echange.h"
#include "link/machine_trouvee.h"
#include "link/rafraichir.h"

#include "app/settings/gestion_ini.h"
#include "app/texts/textes.h"
#include "outils/boites.h"
#include "outils/dossiers.h"
#include "outils_boite/autrui.h"
#include "outils_boite/boite_virtuelle.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

using namespace tessarel;
using namespace tessarel::simulateur;
using namespace std::chrono_literals;

namespace {

constexpr std::uint8_t Chauffe = 127;

class MachineTrouveeEnMarche : public ::testing::Test {
protected:
    MachineTrouveeEnMarche() {
        DossiersProgramme.FichierIni = m_dossier.Fichier("Tessarel.ini");
        CouperChauffe(); // what a test before has lit is not ours here
        MouvementsActifs = false;
        m_poste.AvantEchange = [this](const Tampon& t) { m_commandes += static_cast<char>(t[1]); };
    }
    ~MachineTrouveeEnMarche() override { DossiersProgramme = m_avant; }

    void Autrui(std::uint8_t code, std::uint8_t arg1, std::uint8_t arg2 = 0) {
        essais::EnvoyerPourAutrui(m_poste.boite, code, arg1, arg2);
    }
    void LancerPourAutrui(std::uint8_t chauffe = Chauffe) {
        essais::LancerPourAutrui(m_poste.boite, chauffe);
        m_poste.Attendre(1500ms);
        m_poste.boite.Actualiser();
        ASSERT_TRUE(EnMarche());
    }
    void Repondre(ReponseBoite reponse) { m_boites.reponses.push_back(reponse); }
    [[nodiscard]] bool EnMarche() const { return m_poste.boite.Etat().file == EtatFile::EnMarche; }
    [[nodiscard]] int PwmFil() const { return m_poste.boite.Etat().pwmFil; }
    [[nodiscard]] std::size_t Questions() const {
        return static_cast<std::size_t>(std::ranges::count_if(
            m_boites.boites, [](const Boite& b) { return b.boutons == BoutonsBoite::OuiNon; }));
    }
    [[nodiscard]] bool Demande(char commande) const {
        return m_commandes.find(commande) != std::string::npos;
    }

    essais::DossierProvisoire m_dossier;
    Dossiers m_avant = DossiersProgramme;
    essais::BoitesEnregistrees m_boites;
    essais::BoiteVirtuelle m_poste;
    std::string m_commandes;
};

TEST_F(MachineTrouveeEnMarche, AuReposElleNeDemandeQueDeuxStatuts) {
    EXPECT_EQ(ControlerMachine(QuestionMachine::Posee), MachineTrouvee::Libre);
    EXPECT_EQ(m_commandes, "II");
    EXPECT_TRUE(m_boites.boites.empty());
}

TEST_F(MachineTrouveeEnMarche, OuiLArreteEtLaRefroidit) {
    LancerPourAutrui();
    ASSERT_EQ(PwmFil(), Chauffe);
    Repondre(ReponseBoite::Oui);
    EXPECT_EQ(ControlerMachine(QuestionMachine::Posee), MachineTrouvee::Arretee);
    EXPECT_FALSE(EnMarche());
    EXPECT_EQ(PwmFil(), 0);
    EXPECT_FALSE(MachineLaissee);
    EXPECT_FALSE(ChauffePeutEtreActive());
    ASSERT_EQ(m_boites.boites.size(), 2U);
    EXPECT_EQ(m_boites.boites[0].titre, "Machine en marche");
    EXPECT_EQ(m_boites.boites[0].boutons, BoutonsBoite::OuiNon);
    EXPECT_EQ(m_boites.boites[1].titre, "Machine arrêtée");
    EXPECT_FALSE(Demande('B'));
}

TEST_F(MachineTrouveeEnMarche, NonNeLaDerangePas) {
    LancerPourAutrui();
    Repondre(ReponseBoite::Non);
    EXPECT_EQ(ControlerMachine(QuestionMachine::Posee), MachineTrouvee::Laissee);
    EXPECT_EQ(m_commandes.find_first_not_of('I'), std::string::npos) << m_commandes;
    EXPECT_TRUE(EnMarche());
    EXPECT_EQ(PwmFil(), Chauffe);
    EXPECT_TRUE(MachineLaissee);
    EXPECT_FALSE(ChauffePeutEtreActive()); // not ours to switch off when this program ends
}

TEST_F(MachineTrouveeEnMarche, UneMachineLaisseeNEstPasRelueNiChargee) {
    LancerPourAutrui();
    Repondre(ReponseBoite::Non);
    const EtatLiaison etat = RafraichirUsb("TS2D");
    EXPECT_EQ(etat.Liaison, LiaisonZelko::LaisseeEnMarche);
    EXPECT_FALSE(etat.Arretee);
    EXPECT_TRUE(InterfaceConnectee);
    EXPECT_FALSE(MouvementsActifs);
    EXPECT_EQ(m_commandes.find_first_not_of('I'), std::string::npos) << m_commandes;
    // Not asked again where nobody looks for it; asked again where somebody does.
    EXPECT_EQ(RafraichirUsb("TS2D", QuestionMachine::PoseeUneFois).Liaison, LiaisonZelko::LaisseeEnMarche);
    EXPECT_EQ(Questions(), 1U);
    Repondre(ReponseBoite::Oui);
    const EtatLiaison apres = RafraichirUsb("TS2D");
    EXPECT_EQ(Questions(), 2U);
    EXPECT_TRUE(apres.Arretee);
    EXPECT_EQ(apres.Liaison, LiaisonZelko::MouvementsPermis);
    EXPECT_FALSE(EnMarche());
    EXPECT_TRUE(Demande('T'));
}

TEST_F(MachineTrouveeEnMarche, UneFoisAuReposElleEstLibreSansUnMot) {
    LancerPourAutrui();
    Repondre(ReponseBoite::Non);
    RafraichirUsb("TS2D");
    Autrui(CommandeArret, 0);
    Autrui(CommandeChauffe, 0);
    EXPECT_EQ(RafraichirUsb("TS2D").Liaison, LiaisonZelko::MouvementsPermis);
    EXPECT_FALSE(MachineLaissee);
    EXPECT_EQ(m_boites.boites.size(), 1U);
}

TEST_F(MachineTrouveeEnMarche, UneMachinePerduePuisRetrouveeEstRedemandee) {
    LancerPourAutrui();
    Repondre(ReponseBoite::Non);
    RafraichirUsb("TS2D");
    m_poste.boite.Brancher(false);
    RafraichirUsb("TS2D", QuestionMachine::PoseeUneFois);
    EXPECT_FALSE(MachineLaissee);
    m_poste.boite.Brancher(true);
    EXPECT_EQ(RafraichirUsb("TS2D", QuestionMachine::PoseeUneFois).Liaison, LiaisonZelko::LaisseeEnMarche);
    EXPECT_EQ(Questions(), 2U);
}

TEST_F(MachineTrouveeEnMarche, UnFilLaisseChaudSuffit) {
    Autrui(CommandeChauffe, 1, Chauffe);
    Repondre(ReponseBoite::Oui);
    EXPECT_EQ(ControlerMachine(QuestionMachine::Posee), MachineTrouvee::Arretee);
    EXPECT_EQ(PwmFil(), 0);
}

TEST_F(MachineTrouveeEnMarche, UnMouvementFroidSuffit) {
    LancerPourAutrui(0);
    ASSERT_EQ(PwmFil(), 0);
    Repondre(ReponseBoite::Oui);
    EXPECT_EQ(ControlerMachine(QuestionMachine::Posee), MachineTrouvee::Arretee);
    EXPECT_FALSE(EnMarche());
}

// What was sent is done, and the heat stays: the program was killed before it could send the rest.
TEST_F(MachineTrouveeEnMarche, UneFileEpuiseeLaisseLeFilChaud) {
    Autrui(CommandeFile, 0);
    Autrui(CommandeFile, 1);
    essais::TrameEssai pause;
    pause.drapeaux = 64;
    pause.ticks = 1000;
    pause.niveauDepart = Chauffe;
    essais::EnvoyerPourAutrui(m_poste.boite, essais::EnTampon(pause));
    Autrui(CommandeFile, 128);
    m_poste.Attendre(1s);
    ASSERT_EQ(m_poste.boite.Comptes().famines, 0U);
    m_poste.boite.Actualiser();
    ASSERT_EQ(m_poste.boite.Comptes().famines, 1U);
    Repondre(ReponseBoite::Oui);
    EXPECT_EQ(ControlerMachine(QuestionMachine::Posee), MachineTrouvee::Arretee);
    EXPECT_EQ(PwmFil(), 0);
    EXPECT_FALSE(EnMarche());
}

TEST_F(MachineTrouveeEnMarche, LeFilDuBoutonNEstPasAffaireDeQuestion) {
    m_poste.boite.FixerCommutateurs({true});
    ASSERT_GT(PwmFil(), 0);
    EXPECT_EQ(ControlerMachine(QuestionMachine::Posee), MachineTrouvee::Libre);
    EXPECT_TRUE(m_boites.boites.empty());
}

TEST_F(MachineTrouveeEnMarche, EnMarcheSurManuElleSArreteEtLeFilResteDitChaud) {
    m_poste.boite.FixerCommutateurs({true});
    LancerPourAutrui();
    Repondre(ReponseBoite::Oui);
    EXPECT_EQ(ControlerMachine(QuestionMachine::Posee), MachineTrouvee::Arretee);
    EXPECT_FALSE(EnMarche());
    ASSERT_EQ(m_boites.boites.size(), 2U);
    EXPECT_EQ(m_boites.boites[1].icone, IconeBoite::Critique);
    EXPECT_EQ(m_boites.boites[1].titre, "Le fil est encore chaud");
}

TEST_F(MachineTrouveeEnMarche, NotreChauffeNEstPasCelleDUnAutre) {
    MouvementsActifs = true;
    ASSERT_EQ(EnvoyerChauffe(Chauffe), FinChauffe::Confirmee);
    EXPECT_EQ(ControlerMachine(QuestionMachine::Posee), MachineTrouvee::Libre);
    EXPECT_TRUE(m_boites.boites.empty());
    CouperChauffe();
    Autrui(CommandeChauffe, 1, Chauffe);
    EXPECT_EQ(ControlerMachine(QuestionMachine::Posee), MachineTrouvee::Laissee);
}

TEST_F(MachineTrouveeEnMarche, UneReponseFausseNeDemandeRien) {
    std::mt19937 hasard(7);
    for (std::uint64_t quand = 1; quand <= 4; ++quand) {
        for (int tirage = 0; tirage < 200; ++tirage) {
            std::uint64_t vus = 0;
            FonctionsZelkoCom fonctions;
            fonctions.EstBranchee = [] { return ZelkoBranchee; };
            fonctions.Envoyer = [&](Tampon& t) {
                const std::int32_t resultat = m_poste.boite.Echanger(t);
                if (++vus == quand)
                    for (std::uint8_t& octet : t) octet = static_cast<std::uint8_t>(hasard());
                return resultat;
            };
            RemplacerZelkoCom(std::move(fonctions));
            ASSERT_EQ(ControlerMachine(QuestionMachine::Posee), MachineTrouvee::Libre) << quand;
        }
    }
    EXPECT_TRUE(m_boites.boites.empty());
}

TEST_F(MachineTrouveeEnMarche, UneReponseFausseOuPerdueNeLaCachePas) {
    LancerPourAutrui();
    for (const Panne panne : {Panne::ReponseCorrompue, Panne::ReponsePerdue, Panne::CommandePerdue}) {
        for (std::uint64_t quand = 1; quand <= 3; ++quand) {
            m_poste.boite.OublierPannes();
            PanneProgrammee p;
            p.panne = panne;
            p.echange = m_poste.boite.Comptes().echanges + quand;
            m_poste.boite.Programmer(p);
            EXPECT_EQ(ControlerMachine(QuestionMachine::Posee), MachineTrouvee::Laissee)
                << static_cast<int>(panne) << " at " << quand;
        }
    }
    EXPECT_EQ(Questions(), 9U);
}

// Neither the end of a run, nor one that goes on: what a box tells before its first run, or after B 0.
TEST_F(MachineTrouveeEnMarche, UneBoiteQuiNAFiniAucuneMarcheEstAuRepos) {
    FonctionsZelkoCom fonctions;
    fonctions.EstBranchee = [] { return ZelkoBranchee; };
    fonctions.Envoyer = [](Tampon& t) {
        t.fill(0);
        t[4] = 12;
        t[13] = 99;
        return ResultatZelkoSucces;
    };
    RemplacerZelkoCom(fonctions);
    EXPECT_EQ(ControlerMachine(QuestionMachine::Posee), MachineTrouvee::Libre);
    // Nor does a single reply that names a later frame set it going.
    for (int fausse = 1; fausse <= 4; ++fausse) {
        fonctions.Envoyer = [fausse, vus = 0](Tampon& t) mutable {
            t.fill(0);
            t[4] = ++vus == fausse ? 13 : 12;
            t[13] = 99;
            return ResultatZelkoSucces;
        };
        RemplacerZelkoCom(fonctions);
        EXPECT_EQ(ControlerMachine(QuestionMachine::Posee), MachineTrouvee::Libre) << fausse;
    }
    EXPECT_TRUE(m_boites.boites.empty());
}

TEST_F(MachineTrouveeEnMarche, UneBoiteMuetteNEstPasAttendue) {
    m_poste.boite.Programmer({.panne = Panne::ReponsePerdue, .fois = 0});
    EXPECT_EQ(ControlerMachine(QuestionMachine::Posee), MachineTrouvee::Libre);
    EXPECT_EQ(m_commandes, "II");
    EXPECT_TRUE(m_boites.boites.empty());
}

// At every exchange after the Yes: it stands, cold and told so, or a critical box says that it may not.
TEST_F(MachineTrouveeEnMarche, UnArretQuiSePerdEstRepris) {
    for (const Panne panne : {Panne::CommandePerdue, Panne::ReponsePerdue, Panne::ReponseCorrompue}) {
        for (std::uint64_t quand = 4; quand <= 9; ++quand) {
            LancerPourAutrui();
            m_boites.boites.clear();
            m_poste.boite.OublierPannes();
            PanneProgrammee p;
            p.panne = panne;
            p.echange = m_poste.boite.Comptes().echanges + quand;
            m_poste.boite.Programmer(p);
            Repondre(ReponseBoite::Oui);
            const MachineTrouvee trouvee = ControlerMachine(QuestionMachine::Posee);
            EXPECT_FALSE(EnMarche()) << static_cast<int>(panne) << " at " << quand;
            EXPECT_EQ(PwmFil(), 0) << static_cast<int>(panne) << " at " << quand;
            EXPECT_EQ(trouvee, MachineTrouvee::Arretee) << static_cast<int>(panne) << " at " << quand;
        }
    }
}

TEST_F(MachineTrouveeEnMarche, UneChauffeQuiNeSeCoupePasEstDiteEtRattrapeeEnsuite) {
    LancerPourAutrui();
    m_poste.boite.Programmer({.panne = Panne::CommandePerdue, .commande = CommandeChauffe, .fois = 0});
    Repondre(ReponseBoite::Oui);
    EXPECT_EQ(RafraichirUsb("TS2D").Liaison, LiaisonZelko::LaisseeEnMarche);
    EXPECT_FALSE(MouvementsActifs);
    EXPECT_FALSE(EnMarche()); // S was heard
    ASSERT_EQ(m_boites.boites.size(), 2U);
    EXPECT_EQ(m_boites.boites[1].icone, IconeBoite::Critique);
    EXPECT_TRUE(CoupureEnSuspens);
    m_poste.boite.OublierPannes();
    const EtatLiaison etat = RafraichirUsb("TS2D");
    EXPECT_TRUE(etat.Rattrapee);
    EXPECT_EQ(etat.Liaison, LiaisonZelko::MouvementsPermis);
    EXPECT_EQ(PwmFil(), 0);
    EXPECT_EQ(m_boites.boites.size(), 3U);
    EXPECT_FALSE(MachineLaissee);
}

TEST_F(MachineTrouveeEnMarche, LaQuestionEstDansLesDeuxLangues) {
    LancerPourAutrui();
    ChargerMessages(Langue::English);
    ControlerMachine(QuestionMachine::Posee);
    ChargerMessages(Langue::Francais);
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(m_boites.boites[0].titre, "Machine running");
    EXPECT_TRUE(m_boites.boites[0].texte.ends_with("Stop the machine and switch the heating off?"));
}

} // namespace
