// One who listens where the link library looks for a virtual box, for tests of the library: a thread that
// answers as the test tells it.
#pragma once

#include "outils/dossiers.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace tessarel::essais {

// The folder of the socket, for the time of a test.
class DossierDePrise {
public:
    DossierDePrise() {
        const char* avant = std::getenv(Variable);
        m_avant = avant != nullptr ? avant : "";
        ::setenv(Variable, m_dossier.Chemin().c_str(), 1);
    }
    ~DossierDePrise() {
        if (m_avant.empty())
            ::unsetenv(Variable);
        else
            ::setenv(Variable, m_avant.c_str(), 1);
    }
    DossierDePrise(const DossierDePrise&) = delete;
    DossierDePrise& operator=(const DossierDePrise&) = delete;
    [[nodiscard]] std::string Prise() const { return m_dossier.Fichier("zelko.sock"); }

private:
    static constexpr const char* Variable = "XDG_RUNTIME_DIR";
    DossierProvisoire m_dossier;
    std::string m_avant;
};

inline int OuvrirEcoute(const std::string& chemin, int file) {
    const int prise = ::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0);
    sockaddr_un adresse{};
    adresse.sun_family = AF_UNIX;
    std::strncpy(adresse.sun_path, chemin.c_str(), sizeof adresse.sun_path - 1);
    if (::bind(prise, reinterpret_cast<sockaddr*>(&adresse), sizeof adresse) != 0 ||
        ::listen(prise, file) != 0) {
        ::close(prise);
        return -1;
    }
    return prise;
}

using Paquet = std::vector<std::uint8_t>;

// Listens until it is destroyed; one client at a time, others wait. `repondre` runs in the thread: it is
// given the connection and the packet, and sends what it wants; false closes the connection.
class Ecouteur {
public:
    using Reponse = std::function<bool(int client, const Paquet& paquet)>;
    Ecouteur(std::string chemin, Reponse repondre, std::function<bool(int client)> accueillir = {})
        : m_chemin(std::move(chemin)), m_repondre(std::move(repondre)), m_accueillir(std::move(accueillir)),
          m_ecoute(OuvrirEcoute(m_chemin, 8)), m_fil([this] { Ecouter(); }) {}
    // Closing both ends wakes the thread out of any wait.
    ~Ecouteur() {
        m_fini = true;
        ::shutdown(m_ecoute, SHUT_RDWR);
        if (const int client = m_client.load(); client >= 0) ::shutdown(client, SHUT_RDWR);
        m_fil.join();
        ::close(m_ecoute);
        ::unlink(m_chemin.c_str());
    }
    Ecouteur(const Ecouteur&) = delete;
    Ecouteur& operator=(const Ecouteur&) = delete;

    [[nodiscard]] int Clients() const { return m_clients; }

    static bool Envoyer(int client, const Paquet& paquet) {
        return ::send(client, paquet.data(), paquet.size(), MSG_NOSIGNAL) >= 0;
    }

private:
    void Ecouter() {
        while (!m_fini) {
            const int client = ::accept(m_ecoute, nullptr, nullptr);
            if (client < 0) return;
            ++m_clients;
            m_client = client;
            if (!m_accueillir || m_accueillir(client)) Servir(client);
            m_client = -1;
            ::close(client);
        }
    }
    void Servir(int client) {
        std::array<std::uint8_t, 256> octets{};
        while (!m_fini) {
            const ssize_t n = ::recv(client, octets.data(), octets.size(), 0);
            if (n <= 0) return;
            if (!m_repondre(client, Paquet(octets.begin(), octets.begin() + n))) return;
        }
    }

    std::string m_chemin;
    Reponse m_repondre;
    std::function<bool(int)> m_accueillir;
    int m_ecoute;
    std::atomic<int> m_client{-1};
    std::atomic<int> m_clients{0};
    std::atomic<bool> m_fini{false};
    std::thread m_fil;
};

// A reply that can be told from its command: byte 1 one higher, the rest as it came.
inline Paquet ReponseA(Paquet paquet) {
    paquet[1] = static_cast<std::uint8_t>(paquet[1] + 1);
    return paquet;
}

} // namespace tessarel::essais
