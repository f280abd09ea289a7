// Boxes recorded for a test instead of shown.
#include "outils/boites.h"

#include <utility>

namespace tessarel::essais {

BoitesEnregistrees::BoitesEnregistrees() {
    m_ancien = InstallerAfficheurBoite([this](const Boite& boite) {
        boites.push_back(boite);
        if (!reponses.empty()) {
            const ReponseBoite reponse = reponses.front();
            reponses.pop_front();
            return reponse;
        }
        return ReponseSansPersonne(boite.boutons);
    });
}

BoitesEnregistrees::~BoitesEnregistrees() {
    InstallerAfficheurBoite(std::move(m_ancien));
}

} // namespace tessarel::essais
