// The heat: its value on the wire, and the loops that repeat the command until the box confirms it.
#include "boite_lien.h"

#include "link/commandes.h"

using namespace tessarel;

namespace {

class Chauffe : public essais::Lien {
protected:
    // Fails `n` times, then answers rightly.
    void EchouerPuisRepondre(int n, std::int32_t code = -203) {
        m_restants = n;
        repondre = [this, code](Tampon& t) {
            if (m_restants > 0) {
                --m_restants;
                return code;
            }
            const bool marche = t[2] != 0;
            const std::uint8_t valeur = t[3];
            t.fill(0);
            t[2] = marche ? 1 : 0;
            t[4] = marche ? valeur : 0;
            return std::int32_t{1};
        };
    }
    int m_restants = 0;
};

} // namespace

TEST_F(Chauffe, LaValeurSArrondit) {
    EXPECT_EQ(ValeurPWM(0), 0);
    EXPECT_EQ(ValeurPWM(65), 166);  // 165.75
    EXPECT_EQ(ValeurPWM(80), 204);  // 204 exactly
    EXPECT_EQ(ValeurPWM(100), 255); // 255 exactly
    EXPECT_EQ(ValeurPWM(25.5), 65); // 65.025
    EXPECT_EQ(ValeurPWM(-1), 0);    // out of range, brought back
    EXPECT_EQ(ValeurPWM(101), 255);
    // Exact halves of the product go to the even number; 50 × 2.55 is below its half in binary.
    EXPECT_EQ(ValeurPWM(10), 26);  // 25.5
    EXPECT_EQ(ValeurPWM(30), 76);  // 76.5
    EXPECT_EQ(ValeurPWM(70), 178); // 178.5
    EXPECT_EQ(ValeurPWM(50), 127);
}

TEST_F(Chauffe, UneCommandeConfirmeeDuPremierCoupNEstPasRepetee) {
    EchouerPuisRepondre(0);
    EXPECT_EQ(EnvoyerChauffe(166), FinChauffe::Confirmee);
    EXPECT_EQ(envois.size(), 1U);
    EXPECT_TRUE(ChauffePeutEtreActive());
    EXPECT_EQ(CouperChauffe(), FinChauffe::Confirmee);
    EXPECT_EQ(envois.size(), 2U);
    EXPECT_FALSE(ChauffePeutEtreActive());
    EXPECT_TRUE(boites.boites.empty());
}

TEST_F(Chauffe, LaCommandeEstRepeteeSansLimiteEtLesEvenementsPassent) {
    EchouerPuisRepondre(1000);
    int avis = 0;
    EXPECT_EQ(EnvoyerChauffe(166, {{}, [&] { ++avis; }}), FinChauffe::Confirmee);
    EXPECT_EQ(envois.size(), 1001U);
    EXPECT_EQ(pompages, 1000);
    EXPECT_EQ(avis, 1);
    EXPECT_TRUE(boites.boites.empty());
    EchouerPuisRepondre(1000, -200);
    EXPECT_EQ(CouperChauffe(), FinChauffe::Confirmee);
    EXPECT_EQ(envois.size(), 2002U);
    EXPECT_EQ(pompages, 2000);
    EXPECT_EQ(boites.boites.size(), 1U); // the box of a failed exchange, once
    for (const Tampon& envoi : envois) EXPECT_EQ(envoi[1], 80);
}

TEST_F(Chauffe, UnEchoFauxEstRepete) {
    int n = 0;
    repondre = [&](Tampon& t) {
        ++n;
        t.fill(0);
        t[4] = n < 4 ? 165 : 166;
        return 1;
    };
    EXPECT_EQ(EnvoyerChauffe(166), FinChauffe::Confirmee);
    EXPECT_EQ(n, 4);
}

TEST_F(Chauffe, LArretDemandeLesDeuxOctetsANul) {
    const std::vector<std::pair<int, int>> reponses = {{1, 0}, {0, 166}, {1, 166}, {0, 0}};
    std::size_t n = 0;
    repondre = [&](Tampon& t) {
        t.fill(0);
        t[2] = static_cast<std::uint8_t>(reponses[n].first);
        t[4] = static_cast<std::uint8_t>(reponses[n].second);
        ++n;
        return 1;
    };
    EXPECT_EQ(CouperChauffe(), FinChauffe::Confirmee);
    EXPECT_EQ(n, 4U);
}

// A reply that says "off" and was not one: the failure counts, not what the buffer holds.
TEST_F(Chauffe, UneReponsePerdueNEstJamaisUneConfirmation) {
    int n = 0;
    repondre = [&](Tampon& t) {
        t.fill(0);
        return ++n < 3 ? -203 : 1;
    };
    EXPECT_EQ(CouperChauffe(), FinChauffe::Confirmee);
    EXPECT_EQ(n, 3);
}

TEST_F(Chauffe, InterrompreLArretDitQueLeFilPeutEtreChaud) {
    EchouerPuisRepondre(0);
    EXPECT_EQ(EnvoyerChauffe(166), FinChauffe::Confirmee);
    EchouerPuisRepondre(1000000, -200);
    EXPECT_EQ(CouperChauffe({[this] { return pompages >= 30; }, [] {}}), FinChauffe::Interrompue);
    EXPECT_EQ(pompages, 30);
    EXPECT_TRUE(ChauffePeutEtreActive());
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].icone, IconeBoite::Critique);
    EXPECT_EQ(boites.boites[0].titre, "Problème de communication avec la machine");
    EXPECT_EQ(boites.boites[0].texte,
              "Attention, la chauffe n'est pas coupée!\r\n"
              "L'interface n'a pas confirmé l'arrêt de la chauffe : le fil est peut-être encore chaud.\r\n"
              "Coupez l'alimentation de la chauffe à la main avant d'approcher du fil.");
    EchouerPuisRepondre(0);
    EXPECT_EQ(CouperChauffe(), FinChauffe::Confirmee);
    EXPECT_FALSE(ChauffePeutEtreActive());
}

// A Stop that was pressed before must not keep the first command from going out.
TEST_F(Chauffe, LArretPartAuMoinsUneFois) {
    EchouerPuisRepondre(0);
    EXPECT_EQ(CouperChauffe({[] { return true; }, {}}), FinChauffe::Confirmee);
    EXPECT_EQ(envois.size(), 1U);
}

TEST_F(Chauffe, LArretPasseAussiQuandLesMouvementsSontInactifs) {
    EchouerPuisRepondre(2);
    MouvementsActifs = false;
    EXPECT_EQ(CouperChauffe({{}, [] {}}), FinChauffe::Confirmee);
    EXPECT_EQ(envois.size(), 3U);
}

TEST_F(Chauffe, UneListeLanceePeutChauffer) {
    EchouerPuisRepondre(0);
    CouperChauffe();
    EXPECT_FALSE(ChauffePeutEtreActive());
    EnvoiBytes(CommandeFile, FileLancer, 0);
    EXPECT_TRUE(ChauffePeutEtreActive());
    CouperChauffe();
    EnvoyerChauffe(0);
    EXPECT_FALSE(ChauffePeutEtreActive()); // a value of 0 heats nothing
    // Lost on the way back, heard all the same.
    EchouerPuisRepondre(1000);
    EXPECT_EQ(EnvoyerChauffe(9, {[] { return true; }, {}}), FinChauffe::Interrompue);
    EXPECT_TRUE(ChauffePeutEtreActive());
}

TEST_F(Chauffe, QuitterCoupeUneChauffeEnCoursEtRienDAutre) {
    EchouerPuisRepondre(0);
    CouperChauffe();
    envois.clear();
    CouperChauffeAvantDeQuitter();
    EXPECT_TRUE(envois.empty());

    EnvoyerChauffe(100);
    EchouerPuisRepondre(3);
    CouperChauffeAvantDeQuitter();
    EXPECT_FALSE(ChauffePeutEtreActive());
    EXPECT_TRUE(boites.boites.empty());

    EnvoyerChauffe(100);
    EchouerPuisRepondre(1000000, -200);
    InstallerPompe([this] { heure += std::chrono::milliseconds(100); });
    CouperChauffeAvantDeQuitter();
    EXPECT_EQ(heure, std::chrono::seconds(5));
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].icone, IconeBoite::Critique);
    EchouerPuisRepondre(0);
    CouperChauffe();
}
