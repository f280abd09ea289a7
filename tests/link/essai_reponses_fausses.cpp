// Replies that arrive whole and say what is not so: a run neither ends on one, nor sends a frame twice, nor
// takes the end of another list for its own.
#include "link/echange.h"
#include "link/envoi_salves.h"
#include "platform/pompe.h"

#include "outils/boites.h"
#include "outils_boite/boite_virtuelle.h"
#include "outils_boite/sommets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>

using namespace tessarel;
using essais::Sommet;
using namespace tessarel::simulateur;
using namespace std::chrono_literals;

namespace {

// A saw that does not come back to where it began, a queue of four, 10 ms an exchange.
class ReponsesFausses : public ::testing::Test {
protected:
    ReponsesFausses() : m_poste("(Defaut)", 4) {
        m_poste.PasParEchange = 10ms;
        FonctionsZelkoCom fonctions;
        fonctions.EstBranchee = [] { return ZelkoBranchee; };
        fonctions.Envoyer = [this](Tampon& t) {
            const Tampon commande = t;
            m_poste.Attendre(10ms);
            m_commandes += static_cast<char>(t[1]);
            const std::int32_t resultat = m_poste.boite.Echanger(t);
            if (Fausser) Fausser(commande, t);
            return resultat;
        };
        RemplacerZelkoCom(std::move(fonctions));
        std::vector<PointProfil> chemin = {Sommet(0, 0, 4), Sommet(0, 1, 4)};
        for (int i = 1; i <= 8; ++i) chemin.push_back(Sommet(0.2 * i, i % 2 == 0 ? 1 : 1.3, 4));
        m_liste = PreparerSalves(chemin, 1, 50, TableINI);
    }
    ResultatMarche Lancer() {
        SuiviMarche suivi;
        suivi.demandes = &m_demandes;
        return EnvoyerSalves(m_liste.salves, suivi).marche;
    }
    [[nodiscard]] bool EnMarche() const { return m_poste.boite.Etat().file == EtatFile::EnMarche; }
    // The whole path, each frame once.
    void ToutEstFait(const ResultatMarche& marche) {
        EXPECT_EQ(marche.fin, FinMarche::Finie);
        EXPECT_TRUE(marche.statut.FinDeListe);
        EXPECT_EQ(m_poste.boite.Comptes().salvesAcceptees, m_liste.salves.size() - 1);
        EXPECT_EQ(m_poste.boite.Comptes().salvesFinies, m_liste.salves.size() - 1);
        EXPECT_EQ(m_poste.boite.Position()[0], m_liste.trajet.bout1.back().X);
        EXPECT_EQ(m_poste.boite.Position()[1], m_liste.trajet.bout1.back().Y);
        EXPECT_TRUE(m_boites.boites.empty());
    }
    static void Numero(Tampon& t, std::uint32_t numero) {
        t[4] = static_cast<std::uint8_t>(numero & 255U);
        t[5] = static_cast<std::uint8_t>((numero >> 8U) & 255U);
        t[6] = static_cast<std::uint8_t>((numero >> 16U) & 255U);
    }

    essais::BoitesEnregistrees m_boites;
    essais::BoiteVirtuelle m_poste;
    DemandesMarche m_demandes;
    ListeDeDecoupe m_liste;
    std::function<void(const Tampon& commande, Tampon& reponse)> Fausser;
    std::string m_commandes; // their letters
};

} // namespace

TEST_F(ReponsesFausses, UneFinQueLaReponseSuivanteDementNenEstPasUne) {
    int fausses = 0;
    // Every third status of the run: the right frame, and an end of the list.
    Fausser = [&, vus = 0](const Tampon& commande, Tampon& reponse) mutable {
        if (commande[1] == CommandeStatut && EnMarche() && ++vus % 3 == 0 && ++fausses) reponse[12] = 2 + 128;
    };
    ToutEstFait(Lancer());
    EXPECT_GT(fausses, 3);
    EXPECT_EQ(std::ranges::count(m_commandes, 'S'), 0);
}

TEST_F(ReponsesFausses, UneSalveDontLaReponseNePeutEtreResteEnDouteEtNePartQuUneFois) {
    // Of every second accepted frame of the run the reply says: refused, at a frame that was never sent.
    int fausses = 0;
    Fausser = [&, vues = 0](const Tampon& commande, Tampon& reponse) mutable {
        if (commande[1] != CommandeSalve || !EnMarche() || reponse[2] != 1 || ++vues % 2 != 0) return;
        ++fausses;
        reponse[2] = 0;
        Numero(reponse, 5000);
    };
    ToutEstFait(Lancer());
    EXPECT_GT(fausses, 2);
}

TEST_F(ReponsesFausses, PlusDeTicksQueLaSalveNenAEstUneReponsePerdue) {
    int fausses = 0;
    Fausser = [&, vues = 0](const Tampon& commande, Tampon& reponse) mutable {
        if (commande[1] != CommandeSalve || !EnMarche() || reponse[2] != 1 || ++vues % 2 != 0) return;
        ++fausses;
        reponse[2] = 0;
        reponse[16] = 0x7F;
    };
    ToutEstFait(Lancer());
    EXPECT_GT(fausses, 2);
}

TEST_F(ReponsesFausses, UneReponseDeZerosEnMarcheNeDoublePasLaSalve) {
    int fausses = 0;
    Fausser = [&, vues = 0](const Tampon& commande, Tampon& reponse) mutable {
        if (commande[1] != CommandeSalve || !EnMarche() || reponse[2] != 1 || ++vues % 2 != 0) return;
        ++fausses;
        reponse.fill(0);
    };
    ToutEstFait(Lancer());
    EXPECT_GT(fausses, 2);
}

TEST_F(ReponsesFausses, UneAcceptationInventeeNePerdPasDeSalve) {
    // Refused frames of a full queue told as accepted, at a frame that can't be.
    int fausses = 0;
    Fausser = [&, vues = 0](const Tampon& commande, Tampon& reponse) mutable {
        if (commande[1] != CommandeSalve || !EnMarche() || reponse[2] == 1 || ++vues % 4 != 0) return;
        ++fausses;
        reponse[2] = 1;
        Numero(reponse, 4000000);
    };
    ToutEstFait(Lancer());
    EXPECT_GT(fausses, 1);
}

TEST_F(ReponsesFausses, UnNumeroQuiChangeAvantLeDepartFaitRecommencerLeRemplissage) {
    for (int place = 1; place <= 4; ++place) {
        SCOPED_TRACE(place);
        m_commandes.clear();
        const ComptesBoite avant = m_poste.boite.Comptes();
        m_poste.boite.PoserChariots({});
        Fausser = [&, vues = 0](const Tampon& commande, Tampon& reponse) mutable {
            if (commande[1] != CommandeSalve || ++vues != place) return;
            reponse[2] = 0;
            Numero(reponse, 70000);
        };
        const ResultatMarche marche = Lancer();
        EXPECT_EQ(marche.fin, FinMarche::Finie);
        EXPECT_TRUE(marche.statut.FinDeListe);
        EXPECT_EQ(m_poste.boite.Comptes().salvesFinies - avant.salvesFinies, m_liste.salves.size() - 1);
        EXPECT_EQ(m_poste.boite.Position()[0], m_liste.trajet.bout1.back().X);
        EXPECT_EQ(m_commandes.substr(m_commandes.find('D')).find("BB") != std::string::npos, true);
    }
}

TEST_F(ReponsesFausses, LeNumeroDUneListePrecedenteQuiResteNEmpecheRien) {
    // Shown until the run begins, by a box that also leaves anything in the ticks of a finished run.
    Fausser = [&](const Tampon& commande, Tampon& reponse) {
        if (commande[1] != CommandeSalve && commande[1] != CommandeStatut) return;
        if (m_poste.boite.Etat().file == EtatFile::Remplissage) Numero(reponse, 30000);
        if ((reponse[12] & 2) != 0) reponse[16] = 0xEE;
    };
    ToutEstFait(Lancer());
    EXPECT_EQ(std::ranges::count(m_commandes, 'B'), 3);
}

// The start is lost, and Stop pressed before anything was heard of the run: the number that a box still shows
// of its last list is no place on this one.
TEST_F(ReponsesFausses, UnStopPendantUnDepartPerduNePrendPasLeNumeroDeLAvant) {
    ToutEstFait(Lancer());
    const auto avantDepart = m_commandes.rfind('B'); // counted from 0: the exchange after it starts the run
    m_commandes.clear();
    m_poste.boite.Programmer({.panne = Panne::CommandePerdue,
                              .echange = m_poste.boite.Comptes().echanges + avantDepart + 1,
                              .fois = 3});
    Fausser = [&](const Tampon& commande, Tampon& reponse) {
        const bool deLAvant = !EnMarche() && (commande[1] == CommandeSalve || commande[1] == CommandeStatut);
        if (deLAvant) Numero(reponse, 5);
    };
    const PositionPas depart = m_poste.boite.Position();
    const Pompe ancienne = InstallerPompe([&] {
        m_demandes.StopDemande = std::ranges::count(m_commandes, 'B') == 3 && m_commandes.back() == 'B';
    });
    const ResultatMarche marche = Lancer();
    InstallerPompe(ancienne);
    EXPECT_EQ(marche.fin, FinMarche::Arretee);
    EXPECT_EQ(marche.NumeroSalve, 0);
    EXPECT_EQ(m_poste.boite.Position(), depart);
    EXPECT_EQ(m_poste.boite.Etat().pwmCommande, 0);
}

TEST_F(ReponsesFausses, UneFileDUneSalveSuffit) {
    m_poste.boite.FixerCapaciteFile(1);
    ToutEstFait(Lancer());
}

TEST_F(ReponsesFausses, UneFinDeListeAvantLesDernieresSalvesEstUnArretSansRaison) {
    // From the sixth frame on the box tells, and goes on telling, an end of its list.
    Fausser = [&, vues = 0, fin = false](const Tampon& commande, Tampon& reponse) mutable {
        if (commande[1] == CommandeSalve && EnMarche() && reponse[2] == 1 && ++vues == 2) fin = true;
        if (fin && (commande[1] == CommandeSalve || commande[1] == CommandeStatut)) {
            reponse[2] = 0;
            reponse[12] = 2 + 128;
        }
    };
    const ResultatMarche marche = Lancer();
    EXPECT_EQ(marche.fin, FinMarche::SansRaison);
    EXPECT_FALSE(marche.statut.FinDeListe);
    EXPECT_EQ(std::ranges::count(m_commandes, 'S'), 1);
    EXPECT_NE(m_poste.boite.Etat().file, EtatFile::EnMarche) << "the box that moved on was stopped";
    EXPECT_EQ(m_poste.boite.Etat().pwmCommande, 0);
}

TEST_F(ReponsesFausses, UneFinSansCauseRecoitUnArret) {
    bool fin = false;
    Fausser = [&](const Tampon& commande, Tampon& reponse) {
        if (commande[1] != CommandeStatut) return;
        fin = true;
        reponse[12] = 2;
    };
    EXPECT_EQ(Lancer().fin, FinMarche::SansRaison);
    EXPECT_TRUE(fin);
    EXPECT_EQ(std::ranges::count(m_commandes, 'S'), 1);
}

TEST_F(ReponsesFausses, LaFinDUneAutreListeNEstPasCelleDeCelleCi) {
    Fausser = [&](const Tampon& commande, Tampon& reponse) {
        if (commande[1] != CommandeStatut) return;
        reponse[12] = 2 + 128;
        Numero(reponse, 30000);
    };
    const ResultatMarche marche = Lancer();
    EXPECT_EQ(marche.fin, FinMarche::SansRaison);
    EXPECT_LE(marche.NumeroSalve, static_cast<std::int32_t>(m_liste.salves.size()));
    EXPECT_EQ(std::ranges::count(m_commandes, 'S'), 1);
}

TEST_F(ReponsesFausses, ApresUnStopLaPositionVientDUneReponseQuiPeutEtre) {
    int statuts = 0;
    Fausser = [&, arretee = false](const Tampon& commande, Tampon& reponse) mutable {
        arretee = arretee || commande[1] == CommandeArret;
        if (commande[1] == CommandeSalve && EnMarche() && reponse[2] == 1) m_demandes.StopDemande = true;
        if (!arretee || commande[1] != CommandeStatut || ++statuts > 2) return;
        reponse[12] = 2 + 4;
        Numero(reponse, 60000U + static_cast<std::uint32_t>(statuts)); // never the same twice
        reponse[13] = 1;
    };
    const ResultatMarche marche = Lancer();
    EXPECT_EQ(marche.fin, FinMarche::Arretee);
    EXPECT_EQ(statuts, 3);
    const PositionDuFil p =
        PositionAuStop(m_liste.trajet, m_liste.salves, marche.NumeroSalve, marche.statut.TicksRestants);
    ASSERT_EQ(p.lecture, LecturePosition::Faite);
    for (std::size_t axe = 0; axe < 4; ++axe) EXPECT_EQ(m_poste.boite.Position()[axe], p.pas[axe]) << axe;
}
