// The listening side of the socket: one client, one packet back for each, what is refused, what is left
// behind.
#include "outils/dossiers.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "platform/prise_zelko.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <cstring>
#include <memory>
#include <string>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#include <vector>

using namespace tessarel;
using namespace tessarel::essais;
using namespace std::chrono_literals;

namespace {

// The one who connects.
class Client {
public:
    explicit Client(const std::string& chemin) {
        m_fd = ::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0);
        sockaddr_un adresse{};
        adresse.sun_family = AF_UNIX;
        std::memcpy(adresse.sun_path, chemin.c_str(), chemin.size() + 1);
        if (::connect(m_fd, reinterpret_cast<const sockaddr*>(&adresse), sizeof adresse) != 0) erreur = errno;
    }
    ~Client() { ::close(m_fd); }
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    void Envoyer(const std::vector<std::uint8_t>& octets) {
        EXPECT_EQ(::send(m_fd, octets.data(), octets.size(), MSG_NOSIGNAL),
                  static_cast<ssize_t>(octets.size()));
    }
    // Bytes of the packet that lies there; -1 for none, 0 for hung up.
    ssize_t Recevoir(Tampon& tampon) { return ::recv(m_fd, tampon.data(), tampon.size(), MSG_DONTWAIT); }
    int erreur = 0;

private:
    int m_fd = -1;
};

struct Poste {
    DossierProvisoire dossier;
    std::string chemin = dossier.Fichier("zelko.sock");
    ReponsePrise reponse;
    std::vector<Tampon> recus;
    std::vector<std::size_t> ecartes;
    std::unique_ptr<PriseZelko> prise = Ouvrir();

    std::unique_ptr<PriseZelko> Ouvrir() {
        return std::make_unique<PriseZelko>(
            chemin,
            [this](const Tampon& t) {
                recus.push_back(t);
                ReponsePrise r = reponse;
                r.octets[1] = t[1];
                return r;
            },
            [this](std::size_t n) { ecartes.push_back(n); });
    }
    void Servir(int tours = 4) {
        for (int i = 0; i < tours; ++i) prise->Servir(0ms);
    }
};

std::vector<std::uint8_t> Paquet(std::uint8_t code, std::size_t taille = 65) {
    std::vector<std::uint8_t> p(taille, 0);
    if (taille > 1) p[1] = code;
    return p;
}

} // namespace

TEST(PriseZelko, UnPaquetEnEntraineUn) {
    Poste p;
    Client c(p.chemin);
    ASSERT_EQ(c.erreur, 0);
    p.Servir();
    EXPECT_TRUE(p.prise->AvecClient());
    for (std::uint8_t code = 1; code <= 3; ++code) {
        c.Envoyer(Paquet(code));
        p.Servir();
        Tampon t = {};
        EXPECT_EQ(c.Recevoir(t), 65);
        EXPECT_EQ(t[1], code);
        EXPECT_EQ(c.Recevoir(t), -1);
    }
    EXPECT_EQ(p.recus.size(), 3U);
}

TEST(PriseZelko, LaPriseEstASonProprietaireSeul) {
    Poste p;
    struct stat infos {};
    ASSERT_EQ(::lstat(p.chemin.c_str(), &infos), 0);
    EXPECT_TRUE(S_ISSOCK(infos.st_mode));
    EXPECT_EQ(infos.st_mode & 0777U, 0600U);
}

TEST(PriseZelko, UnPaquetDUneAutreTailleEstEcarteSansReponse) {
    Poste p;
    Client c(p.chemin);
    for (const std::size_t taille : {1UL, 64UL, 66UL, 4000UL}) c.Envoyer(Paquet('I', taille));
    c.Envoyer(Paquet('I'));
    p.Servir(10);
    EXPECT_EQ(p.ecartes, (std::vector<std::size_t>{1, 64, 66, 4000}));
    Tampon t = {};
    EXPECT_EQ(c.Recevoir(t), 65);
    EXPECT_EQ(c.Recevoir(t), -1);
}

TEST(PriseZelko, UnSecondClientEstRaccrocheEtLePremierGarde) {
    Poste p;
    Client a(p.chemin);
    p.Servir();
    Client b(p.chemin);
    p.Servir();
    Tampon t = {};
    EXPECT_EQ(b.Recevoir(t), 0);
    a.Envoyer(Paquet('I'));
    p.Servir();
    EXPECT_EQ(a.Recevoir(t), 65);
}

TEST(PriseZelko, UnClientQuiRevientAussitotEstAccueilli) {
    Poste p;
    auto a = std::make_unique<Client>(p.chemin);
    p.Servir();
    a->Envoyer(Paquet('I'));
    a.reset(); // both before the box looks
    Client b(p.chemin);
    p.Servir();
    b.Envoyer(Paquet('P'));
    p.Servir();
    Tampon t = {};
    EXPECT_EQ(b.Recevoir(t), 65);
    EXPECT_EQ(t[1], 'P');
    EXPECT_EQ(p.recus.size(), 2U) << "what the first one sent was done";
}

TEST(PriseZelko, UneReponseTueNeVientPasEtUneCourteVientCoupee) {
    Poste p;
    Client c(p.chemin);
    p.reponse.sort = ReponsePrise::Sort::Rien;
    c.Envoyer(Paquet('P'));
    p.Servir();
    Tampon t = {};
    EXPECT_EQ(c.Recevoir(t), -1);
    p.reponse.sort = ReponsePrise::Sort::Rendue;
    p.reponse.taille = 40;
    c.Envoyer(Paquet('P'));
    p.Servir();
    EXPECT_EQ(c.Recevoir(t), 40);
    p.reponse.sort = ReponsePrise::Sort::Raccroche;
    c.Envoyer(Paquet('P'));
    p.Servir();
    EXPECT_EQ(c.Recevoir(t), 0);
}

TEST(PriseZelko, UneReponseTardiveVientASonHeureEtLesSuivantesApresElle) {
    Poste p;
    Client c(p.chemin);
    p.reponse.retard = 20ms;
    c.Envoyer(Paquet('P'));
    p.Servir();
    p.reponse.retard = 0ms;
    c.Envoyer(Paquet('I'));
    p.Servir();
    Tampon t = {};
    EXPECT_EQ(c.Recevoir(t), -1);
    // Serving waits for it by itself, however long the machine takes.
    for (int i = 0; i < 100 && c.Recevoir(t) < 0; ++i) p.prise->Servir(50ms);
    EXPECT_EQ(t[1], 'P');
    p.Servir();
    EXPECT_EQ(c.Recevoir(t), 65);
    EXPECT_EQ(t[1], 'I');
}

TEST(PriseZelko, UnClientPartiNeRecoitPasLaReponseTardiveDUnAutre) {
    Poste p;
    auto a = std::make_unique<Client>(p.chemin);
    p.reponse.retard = 10ms;
    a->Envoyer(Paquet('P'));
    p.Servir();
    a.reset();
    Client b(p.chemin);
    p.Servir();
    for (int i = 0; i < 5; ++i) p.prise->Servir(5ms);
    Tampon t = {};
    EXPECT_EQ(b.Recevoir(t), -1);
}

TEST(PriseZelko, UnePriseAbandonneeEstRemplacee) {
    Poste p;
    p.prise.reset();
    // Bound and left: what a killed program leaves behind.
    {
        const int fd = ::socket(AF_UNIX, SOCK_SEQPACKET, 0);
        sockaddr_un adresse{};
        adresse.sun_family = AF_UNIX;
        std::memcpy(adresse.sun_path, p.chemin.c_str(), p.chemin.size() + 1);
        ASSERT_EQ(::bind(fd, reinterpret_cast<const sockaddr*>(&adresse), sizeof adresse), 0);
        ::close(fd);
    }
    struct stat infos {};
    ASSERT_EQ(::lstat(p.chemin.c_str(), &infos), 0);
    p.prise = p.Ouvrir();
    EXPECT_EQ(Client(p.chemin).erreur, 0);
}

TEST(PriseZelko, UnePriseViveEtUnFichierOrdinaireSontRefuses) {
    Poste p;
    const auto raison = [&] {
        try {
            p.Ouvrir();
        } catch (const FauteFichier& f) {
            return std::string(f.what()).substr(p.chemin.size());
        }
        return std::string();
    };
    EXPECT_EQ(raison(), " : une autre interface virtuelle y est déjà branchée");
    EXPECT_EQ(Client(p.chemin).erreur, 0) << "the first one goes on";
    p.prise.reset();
    EcrireFichierAtomique(p.chemin, "precious");
    EXPECT_EQ(raison(), " : un fichier qui n'est pas une prise porte ce nom");
    EXPECT_EQ(LireFichierEntier(p.chemin), "precious");
    p.chemin = "/" + std::string(200, 'x');
    EXPECT_EQ(raison(), " : ce chemin ne convient pas à une prise");
    p.chemin = p.dossier.Fichier("absent/zelko.sock");
    EXPECT_EQ(raison(), " : fichier ou dossier introuvable");
}

TEST(PriseZelko, DebrancheeEllePerdSonClientEtNEstPlusLa) {
    Poste p;
    Client c(p.chemin);
    p.Servir();
    p.prise->Brancher(false);
    Tampon t = {};
    EXPECT_EQ(c.Recevoir(t), 0);
    EXPECT_EQ(Client(p.chemin).erreur, ENOENT);
    EXPECT_FALSE(p.prise->Branchee());
    p.prise->Brancher(true);
    Client d(p.chemin);
    EXPECT_EQ(d.erreur, 0);
    p.Servir();
    d.Envoyer(Paquet('I'));
    p.Servir();
    EXPECT_EQ(d.Recevoir(t), 65);
}

TEST(PriseZelko, ASaFinElleNEnleveQueSaPropreFiche) {
    Poste p;
    ASSERT_EQ(::unlink(p.chemin.c_str()), 0);
    EcrireFichierAtomique(p.chemin, "another's");
    p.prise.reset();
    EXPECT_EQ(LireFichierEntier(p.chemin), "another's");
    ASSERT_EQ(::unlink(p.chemin.c_str()), 0);
    p.prise = p.Ouvrir();
    p.prise.reset();
    EXPECT_FALSE(FichierExiste(p.chemin));
}
