// The socket on which a virtual box listens: one client, packets of one size in, one packet back for each.
#pragma once

#include "platform/zelkocom.h"

#include <chrono>
#include <cstddef>
#include <deque>
#include <functional>
#include <string>

namespace tessarel {

// What goes back for a packet.
struct ReponsePrise {
    enum class Sort {
        Rendue,
        Rien,     // no reply to this one
        Raccroche // the client is hung up on, as by a cable pulled
    };
    Sort sort = Sort::Rendue;
    Tampon octets = {};
    std::size_t taille = TailleTampon; // less: a packet cut short
    std::chrono::nanoseconds retard{0};
};

// Owns a listening socket (AF_UNIX, SOCK_SEQPACKET, of this user alone), its client and the replies that
// wait. Its one descriptor is ready whenever Servir has something to do: an event loop can watch it.
class PriseZelko {
public:
    using Traitement = std::function<ReponsePrise(const Tampon&)>;

    // Takes the place of a socket that nobody listens on; a live one, or another file, is left alone and
    // refused: FauteFichier. `ecarte` hears the size of packets that are no exchange; they get no reply.
    PriseZelko(std::string chemin, Traitement traiter, std::function<void(std::size_t)> ecarte = {});
    // Removes the socket file, if it is still its own.
    ~PriseZelko();
    PriseZelko(const PriseZelko&) = delete;
    PriseZelko& operator=(const PriseZelko&) = delete;

    // A box plugged in, or out: out, the client is hung up on and nobody can connect. FauteFichier as above.
    void Brancher(bool branchee);
    [[nodiscard]] bool Branchee() const { return m_ecoute >= 0; }
    [[nodiscard]] bool AvecClient() const { return m_client >= 0; }

    // Waits for something to do, at most so long (a signal ends the wait too), and does all there is; where
    // it may wait at all, it stays with a client whose packets follow one another for up to five
    // milliseconds. True when there was a packet.
    bool Servir(std::chrono::milliseconds attente);
    [[nodiscard]] int Descripteur() const { return m_guet; }
    [[nodiscard]] const std::string& Chemin() const { return m_chemin; }

private:
    struct EnAttente {
        std::chrono::steady_clock::time_point quand;
        ReponsePrise reponse;
    };

    void Ecouter();
    void CesserDEcouter();
    void Accueillir();
    void Raccrocher();
    bool LireUn(bool attendre);
    void LireEnRafale();
    void RendreOuRetarder(const ReponsePrise& reponse);
    void Rendre(const ReponsePrise& reponse);
    void RendreLesTardives();
    void ReglerReveil();
    void Guetter(int descripteur);

    std::string m_chemin;
    Traitement m_traiter;
    std::function<void(std::size_t)> m_ecarte;
    int m_guet = -1; // epoll
    int m_reveil = -1;
    int m_ecoute = -1;
    int m_client = -1;
    unsigned long long m_noeud = 0; // of the socket file made here
    std::deque<EnAttente> m_tardives;
};

} // namespace tessarel
