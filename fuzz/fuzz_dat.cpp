// Any bytes as a profile table: read, or refused with a sentence.
#include "paths/import.h"
#include "platform/erreurs.h"
#include "platform/gabar/lecture.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

using namespace tessarel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    std::vector<PointSimple> points;
    RapportLecture rapport;
    try {
        LireDat(points, std::string(reinterpret_cast<const char*>(octets), taille), "essai.dat", rapport);
    } catch (const FauteLecture&) {
        return 0;
    }
    if (points.empty()) std::abort();
    for (const PointSimple& p : points)
        if (!std::isfinite(p.X) || !std::isfinite(p.Y)) std::abort();
    const auto sequences = CreerSequencesDepuisPoints(points, "dat", 0.02F);
    if (sequences.empty() || sequences.front().Points.empty()) std::abort();
    return 0;
}
