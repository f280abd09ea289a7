// The link library against a listener on its socket: found, lost, found again, late, incoherent, refused.
#include "ecouteur.h"

#include "platform/zelkocom.h"

#include <gtest/gtest.h>

#include <signal.h>
#include <sys/time.h>

#include <chrono>
#include <fstream>
#include <memory>
#include <optional>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

using Horloge = std::chrono::steady_clock;

class BibliothequePrise : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(ChargerZelkoCom({TESSAREL_BIN}), EtatBibliotheque::Presente); }
    void TearDown() override { LibererZelkoCom(); }

    void Ecouter(Ecouteur::Reponse reponse, std::function<bool(int)> accueillir = {}) {
        m_ecouteur.emplace(m_dossier.Prise(), std::move(reponse), std::move(accueillir));
    }
    static bool Repondre(int client, const Paquet& paquet) {
        return Ecouteur::Envoyer(client, ReponseA(paquet));
    }
    static Tampon Commande(std::uint8_t code) {
        Tampon tampon{};
        tampon[1] = code;
        tampon[64] = 200;
        return tampon;
    }
    // An exchange that must succeed with the reply to its own command.
    static void ExigerReponse(std::uint8_t code) {
        Tampon tampon = Commande(code);
        ASSERT_EQ(Zelko_Send(tampon), 1);
        EXPECT_EQ(tampon[1], code + 1);
        EXPECT_EQ(tampon[64], 200);
    }

    DossierDePrise m_dossier;
    std::optional<Ecouteur> m_ecouteur;
};

} // namespace

TEST_F(BibliothequePrise, SansEcouteurIlNyAPasDeBoitier) {
    EXPECT_EQ(Zelko_Dll_Version(), 16);
    EXPECT_NE(Zelko_IsConnected(), 1);
    Tampon tampon = Commande(73);
    EXPECT_EQ(Zelko_Send(tampon), -200);
    EXPECT_EQ(tampon, Commande(73)); // a failed exchange leaves the buffer alone
    EXPECT_EQ(Zelko_Open(), -200);
    EXPECT_EQ(Zelko_Close(), 1);
}

TEST_F(BibliothequePrise, UnEcouteurEstUnBoitierBranche) {
    std::vector<Paquet> recus;
    Ecouter([&](int client, const Paquet& paquet) {
        recus.push_back(paquet);
        return Repondre(client, paquet);
    });
    EXPECT_EQ(Zelko_IsConnected(), 1);
    for (int i = 0; i < 100; ++i) ExigerReponse(static_cast<std::uint8_t>(i));
    EXPECT_EQ(Zelko_IsConnected(), 1);
    EXPECT_EQ(m_ecouteur->Clients(), 1); // one connection for all
    m_ecouteur.reset();
    ASSERT_EQ(recus.size(), 100U);
    EXPECT_EQ(recus[7].size(), 65U);
    EXPECT_EQ(recus[7][0], 0);
    EXPECT_EQ(recus[7][1], 7);
    EXPECT_EQ(recus[7][64], 200);
}

TEST_F(BibliothequePrise, LOctetZeroEstToujoursNul) {
    Ecouter([](int client, Paquet paquet) {
        EXPECT_EQ(paquet[0], 0);
        paquet[0] = 9;
        return Repondre(client, paquet);
    });
    Tampon tampon = Commande(10);
    tampon[0] = 5;
    EXPECT_EQ(Zelko_Send(tampon), 1);
    EXPECT_EQ(tampon[0], 0);
}

TEST_F(BibliothequePrise, UnFichierDePriseAbandonneNEstPasUnBoitier) {
    ::close(OuvrirEcoute(m_dossier.Prise(), 1)); // the file stays
    EXPECT_EQ(::access(m_dossier.Prise().c_str(), F_OK), 0);
    EXPECT_NE(Zelko_IsConnected(), 1);
    Tampon tampon{};
    EXPECT_EQ(Zelko_Send(tampon), -200);
    ::unlink(m_dossier.Prise().c_str());
    std::ofstream(m_dossier.Prise()) << "un fichier";
    EXPECT_NE(Zelko_IsConnected(), 1);
    EXPECT_EQ(Zelko_Send(tampon), -200);
}

TEST_F(BibliothequePrise, DebrancherEtRebrancherMarcheSansRelancer) {
    Ecouter(Repondre);
    EXPECT_EQ(Zelko_IsConnected(), 1);
    ExigerReponse(1);
    m_ecouteur.reset();
    EXPECT_NE(Zelko_IsConnected(), 1);
    Tampon tampon{};
    EXPECT_EQ(Zelko_Send(tampon), -200);
    Ecouter(Repondre);
    ExigerReponse(2); // by the exchange itself
    m_ecouteur.reset();
    Ecouter(Repondre);
    EXPECT_EQ(Zelko_IsConnected(), 1);
    ExigerReponse(3);
}

TEST_F(BibliothequePrise, DebrancherPendantUnEchangeEstUneErreurDeReception) {
    Ecouter([](int, const Paquet&) { return false; });
    EXPECT_EQ(Zelko_IsConnected(), 1);
    Tampon tampon = Commande(73);
    EXPECT_EQ(Zelko_Send(tampon), -203);
    EXPECT_EQ(tampon, Commande(73));
}

TEST_F(BibliothequePrise, UneReponseTardiveNestJamaisPrisePourLaSuivante) {
    bool premiere = true;
    Ecouter([&](int client, const Paquet& paquet) {
        if (std::exchange(premiere, false)) std::this_thread::sleep_for(std::chrono::milliseconds(1150));
        Repondre(client, paquet);
        return true;
    });
    const auto debut = Horloge::now();
    Tampon tampon = Commande(50);
    EXPECT_EQ(Zelko_Send(tampon), -203);
    const auto duree = Horloge::now() - debut;
    EXPECT_GE(duree, std::chrono::milliseconds(990));
    EXPECT_LT(duree, std::chrono::milliseconds(1900));
    ExigerReponse(60);
    ExigerReponse(70);
}

TEST_F(BibliothequePrise, LesSignauxNAllongentPasLAttente) {
    struct sigaction action {};
    struct sigaction ancienne {};
    action.sa_handler = [](int) {};
    ::sigaction(SIGALRM, &action, &ancienne); // no restart: every wait is broken off
    const itimerval souvent = {{0, 30000}, {0, 30000}};
    ::setitimer(ITIMER_REAL, &souvent, nullptr);
    bool muet = false;
    Ecouter([&](int client, const Paquet& paquet) {
        if (muet) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        return Repondre(client, paquet);
    });
    ExigerReponse(5);
    muet = true;
    Tampon tampon{};
    const auto debut = Horloge::now();
    EXPECT_EQ(Zelko_Send(tampon), -203);
    EXPECT_LT(Horloge::now() - debut, std::chrono::milliseconds(1900));
    const itimerval jamais{};
    ::setitimer(ITIMER_REAL, &jamais, nullptr);
    ::sigaction(SIGALRM, &ancienne, nullptr);
}

TEST_F(BibliothequePrise, UneReponseDUneAutreTailleEstIncoherente) {
    std::size_t taille = 64;
    Ecouter([&](int client, Paquet paquet) {
        paquet.resize(taille);
        return Ecouteur::Envoyer(client, paquet);
    });
    for (const std::size_t t : {64U, 66U, 1U}) {
        taille = t;
        Tampon tampon = Commande(73);
        EXPECT_EQ(Zelko_Send(tampon), -204) << t;
        EXPECT_EQ(tampon, Commande(73));
    }
    taille = 65;
    Tampon tampon = Commande(73);
    EXPECT_EQ(Zelko_Send(tampon), 1);
}

TEST_F(BibliothequePrise, CeQuiVientSansEtreDemandeEstJete) {
    Ecouter(Repondre, [](int client) {
        return Ecouteur::Envoyer(client, Paquet(65, 99)) && Ecouteur::Envoyer(client, Paquet(65, 98));
    });
    EXPECT_EQ(Zelko_IsConnected(), 1);
    ExigerReponse(20);
}

TEST_F(BibliothequePrise, UnEcouteurOccupeRefuseEtCEstUnResultatOrdinaire) {
    Ecouter(Repondre, [](int) { return false; }); // as with a client already there
    Zelko_IsConnected();                          // may still see the listener take it in; the exchange can't
    Tampon tampon{};
    const std::int32_t resultat = Zelko_Send(tampon);
    EXPECT_TRUE(resultat == -200 || resultat == -202 || resultat == -203) << resultat;
}

TEST_F(BibliothequePrise, UneFileDAttentePleineNeRetientPersonne) {
    const int ecoute = OuvrirEcoute(m_dossier.Prise(), 0);
    ASSERT_GE(ecoute, 0);
    std::vector<int> autres;
    for (;;) {
        sockaddr_un adresse{};
        adresse.sun_family = AF_UNIX;
        std::strncpy(adresse.sun_path, m_dossier.Prise().c_str(), sizeof adresse.sun_path - 1);
        autres.push_back(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_NONBLOCK, 0));
        if (::connect(autres.back(), reinterpret_cast<sockaddr*>(&adresse), sizeof adresse) != 0) break;
        ASSERT_LT(autres.size(), 100U);
    }
    EXPECT_NE(Zelko_IsConnected(), 1);
    Tampon tampon{};
    EXPECT_EQ(Zelko_Send(tampon), -201);
    for (const int autre : autres) ::close(autre);
    ::close(ecoute);
}

TEST_F(BibliothequePrise, SeulesLesCinqFonctionsSontExportees) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> tube(
        ::popen("nm -D --defined-only '" TESSAREL_BIN "/libZelkoCom.so' | grep -v ' A ' | awk '{print $3}'",
                "r"),
        ::pclose);
    std::string noms;
    char ligne[200];
    while (tube && std::fgets(ligne, sizeof ligne, tube.get()) != nullptr) noms += ligne;
    EXPECT_EQ(noms, "Zelko_Close\nZelko_Dll_Version\nZelko_IsConnected\nZelko_Open\nZelko_Send\n");
}
