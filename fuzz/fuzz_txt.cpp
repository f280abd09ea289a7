// Any bytes as a file of coordinates: read, or refused with a sentence; what is read survives the flat array.
#include "promesses.h"

#include "platform/erreurs.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace tessarel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    std::vector<Sequence> sequences;
    try {
        sequences = SequencesDepuisTexte({reinterpret_cast<const char*>(octets), taille}, "essai.txt");
    } catch (const FauteLecture&) {
        return 0;
    }
    for (const Sequence& s : sequences) {
        if (s.Points.empty()) std::abort();
        fuzz::VerifierPoints(s);
    }
    const auto retour = CreerSequencesDepuisPoints(PointsDepuisSequences(sequences), "tsr", 0.02F);
    if (retour.size() != sequences.size()) std::abort();
    return 0;
}
