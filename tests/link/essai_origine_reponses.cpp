// The origin loop read wrongly once in a while: no axis counts as released that is still on its switch, and
// none is driven on for a loop that was never open.
#include "link/echange.h"
#include "link/recherche_origine.h"
#include "platform/pompe.h"

#include "outils/boites.h"
#include "outils_boite/boite_virtuelle.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

using namespace tessarel;
using namespace tessarel::simulateur;
using namespace std::chrono_literals;

namespace {

constexpr std::size_t PlaceBoucles = 8;
constexpr std::uint8_t BitOrigine = 2;
constexpr std::uint8_t BitFinCourse = 4;

// "QT2d v12": 1600 steps/mm, origin at the top (Y 256 mm), switches 1 mm beyond it, back-off of 160 steps.
class OrigineMalLue : public ::testing::Test {
protected:
    OrigineMalLue() : m_poste("QT2d v12"), m_anciennePompe(InstallerPompe([this] { Pomper(); })) {
        m_suivi.demandes = &m_demandes;
        FonctionsZelkoCom fonctions;
        fonctions.EstBranchee = [] { return ZelkoBranchee; };
        fonctions.Envoyer = [this](Tampon& t) {
            const Tampon commande = t;
            m_poste.Attendre(20ms);
            const std::int32_t resultat = m_poste.boite.Echanger(t);
            if (commande[1] == CommandeStatut && Fausser) Fausser(t);
            return resultat;
        };
        RemplacerZelkoCom(std::move(fonctions));
        m_poste.boite.PoserChariots({2 * 1600, 254 * 1600, 0, 254 * 1600 - 800});
    }
    ~OrigineMalLue() override { InstallerPompe(m_anciennePompe); }
    void Pomper() {
        if (SurPompe) SurPompe();
    }
    // One or two back-off steps inside the border: the one that closed the loop, and one more.
    static void EstDegage(std::int64_t dedans) {
        EXPECT_GE(dedans, 160);
        EXPECT_LT(dedans, 320);
    }
    void ToutEstDegage() const {
        const PositionPas p = m_poste.boite.Position();
        EstDegage(p[AxeX1] + 1600);
        EstDegage(257 * 1600 - p[AxeY1]);
        EstDegage(257 * 1600 - p[AxeY2]);
        EXPECT_FALSE(m_poste.boite.Etat().modeOrigine);
    }

    // The n-th reply in homing mode that tells an open loop tells a closed one, all else being right.
    void CacherOuverture(int n) {
        m_poste.boite.PoserChariots({2 * 1600, 254 * 1600, 0, 254 * 1600 - 800});
        m_vues = 0;
        Fausser = [this, n](Tampon& reponse) {
            if (!m_poste.boite.Etat().modeOrigine || (reponse[PlaceBoucles] & BitOrigine) == 0) return;
            if (++m_vues == n)
                reponse[PlaceBoucles] = static_cast<std::uint8_t>(reponse[PlaceBoucles] & ~BitOrigine);
        };
    }

    essais::BoitesEnregistrees m_boites;
    essais::BoiteVirtuelle m_poste;
    DemandesMarche m_demandes;
    SuiviMarche m_suivi;
    Pompe m_anciennePompe;
    std::function<void()> SurPompe;
    std::function<void(Tampon&)> Fausser; // the reply of a status request
    int m_vues = 0;
};

} // namespace

TEST_F(OrigineMalLue, UneBoucleDiteFermeeUneFoisNeLibereAucunAxe) {
    for (int n = 1;; ++n) {
        SCOPED_TRACE("ouverture cachee " + std::to_string(n));
        CacherOuverture(n);
        EXPECT_EQ(RechercheOrigine(TableINI, AxesOrigine::XetY, m_suivi), FinOrigine::Trouvee);
        EXPECT_TRUE(m_boites.boites.empty());
        ToutEstDegage();
        if (HasFailure() || m_vues < n) break;
    }
    EXPECT_GE(m_vues, 6); // twice for each axis
}

TEST_F(OrigineMalLue, DAuDelaDeLInterrupteurChaqueReculEstCru) {
    for (int n = 1;; ++n) {
        SCOPED_TRACE("ouverture cachee " + std::to_string(n));
        CacherOuverture(n);
        m_poste.boite.PoserChariots({-1600 - 1200, 100 * 1600, 0, 100 * 1600}); // 0.75 mm: eight steps
        EXPECT_EQ(RechercheOrigine(TableINI, AxesOrigine::X, m_suivi), FinOrigine::Trouvee);
        EXPECT_TRUE(m_boites.boites.empty());
        EstDegage(m_poste.boite.Position()[AxeX1] + 1600);
        if (HasFailure() || m_vues < n) break;
    }
    EXPECT_GT(m_vues, 20);
}

TEST_F(OrigineMalLue, UneBoucleDiteOuverteParfoisNeFaitPasDEssaiManque) {
    for (const std::uint8_t bit : {BitOrigine, BitFinCourse}) {
        m_poste.boite.PoserChariots({2 * 1600, 254 * 1600, 0, 254 * 1600 - 800});
        Fausser = [&, vues = 0](Tampon& reponse) mutable {
            if (++vues % 3 == 0)
                reponse[PlaceBoucles] = static_cast<std::uint8_t>(reponse[PlaceBoucles] | bit);
        };
        EXPECT_EQ(RechercheOrigine(TableINI, AxesOrigine::XetY, m_suivi), FinOrigine::Trouvee);
        EXPECT_TRUE(m_boites.boites.empty());
        const PositionPas p = m_poste.boite.Position();
        EXPECT_GE(p[AxeX1] + 1600, 160);
        EXPECT_GE(257 * 1600 - p[AxeY1], 160);
        EXPECT_GE(257 * 1600 - p[AxeY2], 160);
    }
}

TEST_F(OrigineMalLue, UneBoucleQuiNeSeTientPasEstQuitteeParUnStop) {
    // Open and closed by turns, whoever asks: the user hears nothing else, so Stop must.
    Fausser = [&, ouverte = false](Tampon& reponse) mutable {
        if (!m_poste.boite.Etat().modeOrigine) return;
        ouverte = !ouverte;
        reponse[PlaceBoucles] = ouverte ? BitOrigine : 0;
    };
    SurPompe = [this, tours = 0]() mutable {
        if (++tours == 500) m_demandes.StopDemande = true;
    };
    EXPECT_EQ(RechercheOrigine(TableINI, AxesOrigine::XetY, m_suivi), FinOrigine::Annulee);
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(m_boites.boites[0].titre, "Arrêt d'urgence");
    EXPECT_FALSE(m_demandes.StopDemande);
    EXPECT_FALSE(m_poste.boite.Etat().modeOrigine);
}

TEST_F(OrigineMalLue, ApresUnStopUnRetourAuModeUsuelPerduEstRefait) {
    bool arret = false;
    FonctionsZelkoCom fonctions;
    fonctions.EstBranchee = [] { return ZelkoBranchee; };
    int retours = 0;
    fonctions.Envoyer = [&](Tampon& t) {
        m_poste.Attendre(20ms);
        // The mode was changed to homing, and Stop is pressed then.
        if (t[1] == CommandeOrigine && t[2] == 1) {
            arret = true;
            m_poste.boite.Echanger(t);
            return std::int32_t{-203};
        }
        if (t[1] == CommandeOrigine && t[2] == 0 && ++retours < 3) return std::int32_t{-202};
        return m_poste.boite.Echanger(t);
    };
    RemplacerZelkoCom(std::move(fonctions));
    SurPompe = [&] {
        if (arret) m_demandes.StopDemande = true;
        arret = false;
    };
    EXPECT_EQ(RechercheOrigine(TableINI, AxesOrigine::XetY, m_suivi), FinOrigine::Annulee);
    EXPECT_EQ(retours, 3);
    EXPECT_FALSE(m_poste.boite.Etat().modeOrigine);
    EXPECT_FALSE(m_demandes.StopDemande);
}
