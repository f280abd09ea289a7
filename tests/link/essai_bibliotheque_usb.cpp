// The link library against a USB device of the test: reports, late replies, unplugging, and which box is
// chosen.
#include "ecouteur.h"
#include "link/fausse/faux_hid.h"

#include "platform/adresse_zelko.h"
#include "platform/zelkocom.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/file.h>

#include <deque>
#include <optional>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

// The device: what was written to it, and what it has to say, by the wait after which each report comes.
struct Etat {
    std::vector<Paquet> ecrits;
    struct Rapport {
        int apresMs;
        Paquet octets;
    };
    std::deque<Rapport> reponses;
    bool repond = true;
    std::size_t taille = 64;
};
Etat etat;

int Ecrire(const std::uint8_t* octets, std::size_t nombre) {
    etat.ecrits.emplace_back(octets, octets + nombre);
    Paquet reponse(octets + 1, octets + nombre);
    reponse[0] = static_cast<std::uint8_t>(reponse[0] + 1);
    reponse.resize(etat.taille);
    if (etat.repond) etat.reponses.push_back({0, reponse});
    return static_cast<int>(nombre);
}

// Time goes by only by waiting for reports.
int Lire(std::uint8_t* octets, std::size_t place, int delaiMs) {
    if (etat.reponses.empty()) return 0;
    Etat::Rapport& r = etat.reponses.front();
    if (r.apresMs > delaiMs) {
        r.apresMs -= delaiMs;
        return 0;
    }
    const std::size_t n = std::min(place, r.octets.size());
    std::copy_n(r.octets.begin(), n, octets);
    etat.reponses.pop_front();
    return static_cast<int>(n);
}

class BibliothequeUsb : public ::testing::Test {
protected:
    BibliothequeUsb() {
        etat = {};
        ::setenv(VariableFauxHid, std::to_string(reinterpret_cast<std::uintptr_t>(&m_appareil)).c_str(), 1);
    }
    ~BibliothequeUsb() override {
        LibererZelkoCom();
        ::unsetenv(VariableFauxHid);
    }
    void SetUp() override {
        ASSERT_EQ(ChargerZelkoCom({TESSAREL_FAUSSES_BIBLIOTHEQUES "/usb"}), EtatBibliotheque::Presente)
            << OrigineZelkoCom();
    }
    static std::int32_t Envoyer(std::uint8_t code, Tampon& tampon) {
        tampon = {};
        tampon[1] = code;
        tampon[64] = 200;
        return Zelko_Send(tampon);
    }

    FauxHid m_appareil{true, 0, Ecrire, Lire};
    DossierDePrise m_dossier;
    Tampon m_tampon{};
};

} // namespace

TEST_F(BibliothequeUsb, UnRapportDeSoixanteQuatreOctetsSousLeNumeroZero) {
    EXPECT_EQ(Zelko_IsConnected(), 1);
    EXPECT_EQ(Envoyer(73, m_tampon), 1);
    EXPECT_EQ(m_tampon[0], 0);
    EXPECT_EQ(m_tampon[1], 74);
    EXPECT_EQ(m_tampon[64], 200);
    ASSERT_EQ(etat.ecrits.size(), 1U);
    EXPECT_EQ(etat.ecrits[0].size(), 65U);
    EXPECT_EQ(etat.ecrits[0][0], 0);
    EXPECT_EQ(etat.ecrits[0][1], 73);
    EXPECT_EQ(m_appareil.ouvertures, 1);
}

TEST_F(BibliothequeUsb, UneReponseDUneAutreTailleEstIncoherente) {
    etat.taille = 63;
    EXPECT_EQ(Envoyer(73, m_tampon), -204);
    EXPECT_EQ(m_tampon[1], 73);
}

TEST_F(BibliothequeUsb, UneReponseTardiveEstJeteeAvantLaCommandeSuivante) {
    etat.repond = false;
    EXPECT_EQ(Envoyer(10, m_tampon), -203);
    etat.repond = true;
    etat.reponses.push_back({100, Paquet(64, 11)}); // comes while nobody asks
    EXPECT_EQ(Envoyer(20, m_tampon), 1);
    EXPECT_EQ(m_tampon[1], 21);
}

TEST_F(BibliothequeUsb, UneReponseTardiveQuiCroiseLaCommandeSuivanteEstJetee) {
    etat.repond = false;
    EXPECT_EQ(Envoyer(10, m_tampon), -203);
    etat.repond = true;
    etat.reponses.push_back({300, Paquet(64, 11)}); // behind the wait of 200 ms, before the right one
    EXPECT_EQ(Envoyer(20, m_tampon), 1);
    EXPECT_EQ(m_tampon[1], 21);
    EXPECT_EQ(Envoyer(30, m_tampon), 1);
    EXPECT_EQ(m_tampon[1], 31);
}

TEST_F(BibliothequeUsb, UneReponsePerdueNeCoutePasLaSuivante) {
    etat.repond = false;
    EXPECT_EQ(Envoyer(10, m_tampon), -203);
    etat.repond = true;
    EXPECT_EQ(Envoyer(20, m_tampon), 1);
    EXPECT_EQ(m_tampon[1], 21);
}

TEST_F(BibliothequeUsb, DebrancherEtRebrancherMarcheSansRelancer) {
    EXPECT_EQ(Envoyer(1, m_tampon), 1);
    m_appareil.branche = false;
    EXPECT_EQ(Envoyer(2, m_tampon), -200);
    EXPECT_NE(Zelko_IsConnected(), 1);
    EXPECT_EQ(Envoyer(3, m_tampon), -200);
    m_appareil.branche = true;
    EXPECT_EQ(Envoyer(4, m_tampon), 1);
    EXPECT_EQ(m_appareil.ouvertures, 2);
    EXPECT_EQ(Zelko_IsConnected(), 1);
}

// Two programs on one device would take each other's replies.
TEST_F(BibliothequeUsb, UnAutreProgrammeQuiTientLeBoitierLeGarde) {
    const std::string verrou = DossierZelko() + "/zelko-usb.lock";
    const int autre = ::open(verrou.c_str(), O_RDWR | O_CREAT, 0600);
    ASSERT_EQ(::flock(autre, LOCK_EX | LOCK_NB), 0);
    EXPECT_NE(Zelko_IsConnected(), 1);
    EXPECT_NE(Envoyer(5, m_tampon), 1);
    EXPECT_TRUE(etat.ecrits.empty());
    ::close(autre);
    EXPECT_EQ(Zelko_IsConnected(), 1);
    EXPECT_EQ(Envoyer(5, m_tampon), 1);
    const int encore = ::open(verrou.c_str(), O_RDWR);
    EXPECT_NE(::flock(encore, LOCK_EX | LOCK_NB), 0); // ours now
    Zelko_Close();
    EXPECT_EQ(::flock(encore, LOCK_EX | LOCK_NB), 0);
    ::close(encore);
}

TEST_F(BibliothequeUsb, LeVraiBoitierPasseAvantLeVirtuel) {
    const Ecouteur ecouteur(m_dossier.Prise(), [](int client, const Paquet& paquet) {
        return Ecouteur::Envoyer(client, ReponseA(paquet));
    });
    EXPECT_EQ(Zelko_IsConnected(), 1);
    EXPECT_EQ(Envoyer(5, m_tampon), 1);
    EXPECT_EQ(etat.ecrits.size(), 1U);
    EXPECT_EQ(ecouteur.Clients(), 0);
}

TEST_F(BibliothequeUsb, UnBoitierDebrancheNEstPasRemplaceEnSilenceParLeVirtuel) {
    EXPECT_EQ(Zelko_IsConnected(), 1);
    EXPECT_EQ(Envoyer(5, m_tampon), 1);
    const Ecouteur ecouteur(m_dossier.Prise(), [](int client, const Paquet& paquet) {
        return Ecouteur::Envoyer(client, ReponseA(paquet));
    });
    m_appareil.branche = false;
    // A heat-off for the real wire must not be confirmed by the other box.
    EXPECT_EQ(Envoyer(80, m_tampon), -200);
    EXPECT_EQ(ecouteur.Clients(), 0);
    EXPECT_EQ(Zelko_IsConnected(), 1); // asked anew, the virtual one is there
    EXPECT_EQ(Envoyer(6, m_tampon), 1);
    EXPECT_EQ(m_tampon[1], 7);
    EXPECT_EQ(ecouteur.Clients(), 1);
}
