// Another program run as a child process: arguments as a list, never through a shell; input and output
// through this program; time, memory and output limited.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tessarel {

struct LimitesProcessus {
    // Of the processor, which is fair on a busy machine; by the clock, less what the program waited for a
    // processor, it is RapportHorloge times that.
    double secondes = 1;
    std::size_t octetsSortie = 0;  // most that it may print
    std::size_t octetsMemoire = 0; // its address space
};

inline constexpr double RapportHorloge = 2.5;

enum class FinProcessus {
    Terminee,         // by itself
    Tombee,           // by a signal that is not ours
    TempsDepasse,     // stopped for its time
    SortieTropLongue, // stopped for its output
};

struct ResultatProcessus {
    FinProcessus fin = FinProcessus::Terminee;
    int statut = 0; // exit status of a child that ended by itself
};

// Full path of a program of this name in the folders of PATH; empty when there is none.
std::string TrouverProgramme(const std::string& nom);

// Runs `commande` (a full path, then its arguments) with the pieces of `entree` as its standard input, and
// hands over what it prints, piece by piece. Its errors are thrown away. The child has a group of its own,
// which is killed with it at the end, on a limit, and when `recevoir` throws. FauteFichier when it cannot be
// started.
ResultatProcessus ExecuterProcessus(const std::vector<std::string>& commande,
                                    std::span<const std::string_view> entree, const LimitesProcessus& limites,
                                    const std::function<void(std::string_view)>& recevoir);

} // namespace tessarel
