// A fault at every exchange of sequences drawn by lot: afterwards the wire is cold, or the user was told that
// it may not be, and nothing moved that wasn't allowed to.
#include "boite_lien.h"
#include "boite_memoires.h"

#include "link/commandes.h"
#include "link/rafraichir.h"
#include "platform/fichiers.h"

#include <algorithm>
#include <filesystem>

using namespace tessarel;
using essais::Panne;

namespace {

constexpr unsigned Graine = 20250731;
constexpr int Suites = 40;
constexpr int LongueurMaxi = 14;
constexpr int Patience = 25; // pumps after which the user of these tests presses Stop

class BalayageLien : public essais::Lien {
protected:
    struct Issue {
        int echanges = 0;
        bool toutDit = true;
    };

    // One command of the link, chosen by a number.
    void Faire(unsigned choix) {
        const SuiviChauffe suivi = {[this, debut = pompages] { return pompages - debut >= Patience; }, [] {}};
        switch (choix % 16) {
        case 0:
            RafraichirUsb("TS2D");
            break;
        case 1:
            EnvoyerChauffe(166, suivi);
            break;
        case 2:
            CouperChauffe(suivi);
            break;
        case 3:
            ViderFile();
            break;
        case 4:
            EnvoiBytes(CommandeFile, FileOuvrir, 0);
            break;
        case 5:
            EnvoiBytes(CommandeFile, FileLancer, 0);
            break;
        case 6:
            FinDeListe();
            break;
        case 7:
            DemanderStatut();
            break;
        case 8:
            ModeNormal();
            break;
        case 9:
            EnvoiBytes(CommandeOrigine, 1, 0);
            break;
        case 10:
            AllumerMoteurs();
            break;
        case 11:
            CouperMoteurs();
            break;
        case 12:
            EcrireTableDansZelkoEtChargerEnRam(static_cast<int>(choix / 16 % 3));
            break;
        case 13:
            ChargerMemoireEnRam(static_cast<int>(choix / 16 % 3));
            break;
        case 14:
            ArreterMouvement();
            break;
        case 15:
            EnvoyerChauffe(static_cast<std::uint8_t>(choix / 16), suivi);
            break;
        }
    }

    void Preparer(Panne panne, int echange) {
        ASSERT_EQ(ChargerMachine("(Defaut)"), StatutSucces);
        m_boite = {};
        m_boite.memoires[1] = ComposerMessagesTable(TableINI, 1).Partie1;
        m_boite.panne = panne;
        m_boite.echangeEnPanne = echange;
        m_boite.hasard.seed(static_cast<unsigned>(echange));
        m_dernierP = {};
        m_pompeAuDernierP = -1;
        MouvementsActifs = true;
        InterfaceConnectee = true;
        boites.boites.clear();
        // Each run begins with a wire that is known to be cold.
        repondre = [](Tampon& t) {
            t.fill(0);
            return 1;
        };
        CouperChauffe();
        pompages = 0;
        repondre = [this](Tampon& t) { return Surveiller(t); };
    }

    // A command that is repeated must let events run in between.
    std::int32_t Surveiller(Tampon& t) {
        branchee = m_boite.Branchee() ? 1 : 0;
        const bool repetee = m_dansUneCommande && t[1] == CommandeChauffe && t == m_dernierP;
        EXPECT_TRUE(!repetee || pompages > m_pompeAuDernierP) << "repeated without pumping";
        m_dernierP = t;
        m_pompeAuDernierP = pompages;
        m_dansUneCommande = true;
        return m_boite.Envoyer(t);
    }

    bool BoiteFilChaud() const {
        return std::ranges::any_of(boites.boites, [](const Boite& b) {
            return b.icone == IconeBoite::Critique &&
                   b.texte.starts_with("Attention, la chauffe n'est pas coupée!");
        });
    }

    // Runs the sequence and ends it as every procedure does, by the heat-off.
    int Derouler(const std::vector<unsigned>& suite, Panne panne, int echange) {
        Preparer(panne, echange);
        for (const unsigned choix : suite) {
            m_dansUneCommande = false;
            branchee = m_boite.Branchee() ? 1 : 0;
            Faire(choix);
            // What the program believes is never better than what is.
            EXPECT_TRUE(ChauffePeutEtreActive() || m_boite.pwm == 0);
        }
        m_dansUneCommande = false;
        boites.boites.clear();
        Faire(2);
        const bool froid = m_boite.pwm == 0 && !ChauffePeutEtreActive();
        EXPECT_TRUE(froid || BoiteFilChaud());
        EXPECT_FALSE(m_boite.mouvementInterdit);
        return m_boite.recus;
    }

    essais::BoiteMemoires m_boite;
    Tampon m_dernierP{};
    int m_pompeAuDernierP = -1;
    bool m_dansUneCommande = false;
};

} // namespace

TEST_F(BalayageLien, ApresChaquePanneLeFilEstFroidOuLUtilisateurLeSait) {
    std::mt19937 hasard(Graine);
    long essais = 0;
    for (int s = 0; s < Suites; ++s) {
        std::vector<unsigned> suite(1 + hasard() % LongueurMaxi);
        for (unsigned& choix : suite) choix = hasard();
        const int echanges = Derouler(suite, Panne::Aucune, 0);
        for (const Panne panne :
             {Panne::ReponsePerdue, Panne::CommandePerdue, Panne::Corrompue, Panne::Debranchee}) {
            for (int n = 1; n <= echanges; ++n, ++essais) {
                SCOPED_TRACE("seed " + std::to_string(Graine) + ", sequence " + std::to_string(s) +
                             ", fault " + std::to_string(static_cast<int>(panne)) + " at exchange " +
                             std::to_string(n));
                Derouler(suite, panne, n);
                if (HasFailure()) return;
            }
        }
    }
    EXPECT_GT(essais, 1000);
}

TEST_F(BalayageLien, SansMouvementsActifsRienNeBougeQuelleQueSoitLaSuite) {
    std::mt19937 hasard(Graine + 1);
    for (int s = 0; s < 200; ++s) {
        Preparer(Panne::Aucune, 0);
        m_boite.memoires = {}; // nothing that could enable moves
        MouvementsActifs = false;
        for (int i = 0; i < LongueurMaxi; ++i) {
            m_dansUneCommande = false;
            const unsigned choix = hasard();
            if (choix % 16 == 12) continue; // stores a table that a refresh may then find
            Faire(choix);
        }
        ASSERT_FALSE(m_boite.mouvementInterdit);
        ASSERT_EQ(m_boite.pwm, 0);
        ASSERT_FALSE(ChauffePeutEtreActive());
    }
}

// The guard holds only because nobody else sends.
TEST(Garde, UnSeulEndroitDuProgrammeEnvoie) {
    const std::string racine = TESSAREL_RACINE;
    std::vector<std::string> fautifs;
    int lus = 0;
    for (const char* dossier : {"/src", "/programs"}) {
        for (const auto& entree : std::filesystem::recursive_directory_iterator(racine + dossier)) {
            const std::string chemin = entree.path().string();
            if (!entree.is_regular_file() || (!chemin.ends_with(".cpp") && !chemin.ends_with(".h"))) continue;
            ++lus;
            if (chemin.find("/platform/zelkocom.") != std::string::npos ||
                chemin.find("/platform/bibliotheque_zelko/") != std::string::npos ||
                chemin.ends_with("/link/echange.cpp"))
                continue;
            if (LireFichierEntier(chemin).find("Zelko_Send(") != std::string::npos) fautifs.push_back(chemin);
        }
    }
    EXPECT_GT(lus, 100);
    EXPECT_EQ(fautifs, std::vector<std::string>{});
}
