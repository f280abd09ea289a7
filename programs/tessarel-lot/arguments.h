// From the command line to what is to be done.
#pragma once

#include "app/texts/textes.h"
#include "verbes.h"

#include <optional>
#include <string>

namespace tessarel::lot {

// `action` is empty when there is nothing to do: help was asked and printed, or the words were wrong and said
// so; `statut` then is the exit status.
struct Commande {
    std::string documents;        // stands for the user's Documents folder; empty: the real one
    std::optional<Langue> langue; // instead of that of the settings
    bool oui = false;             // questions are answered Yes
    Action action;
    int statut = StatutFait;
};

Commande LireCommande(int argc, char** argv);

} // namespace tessarel::lot
