// Any bytes as a wing file .fc: two profiles at most, or a refusal with a sentence.
#include "paths/aile_importee.h"
#include "paths/import.h"
#include "platform/erreurs.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

using namespace tessarel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    AileImportee aile;
    try {
        aile = AnalyserFc(std::string(reinterpret_cast<const char*>(octets), taille), "essai.fc");
    } catch (const FauteLecture&) {
        return 0;
    }
    const auto sequences = SequencesAile(aile);
    const std::size_t bouts =
        (aile.Emplanture.Points.empty() ? 0U : 1U) + (aile.Saumon.Points.empty() ? 0U : 1U);
    if (sequences.size() != bouts) std::abort();
    for (const Sequence& s : sequences)
        for (const PointProfil& p : s.Points)
            if (!std::isfinite(p.X) || !std::isfinite(p.Y)) std::abort();
    if (sequences.empty()) return 0;
    const auto points = PointsDepuisSequences(sequences);
    if (CreerSequencesDepuisPoints(points, "fc", 0.02F).size() != bouts) std::abort();
    return 0;
}
