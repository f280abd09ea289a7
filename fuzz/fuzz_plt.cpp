// Any bytes as a plotter file: read, or refused with a sentence; what is read keeps the promises of the
// reader.
#include "promesses.h"

#include "platform/erreurs.h"
#include "platform/gabar/lecture.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

using namespace tessarel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    std::vector<PointSimple> points;
    RapportLecture rapport;
    try {
        LirePlt(points, std::string(reinterpret_cast<const char*>(octets), taille), "essai.plt", rapport);
    } catch (const FauteLecture&) {
        return 0;
    }
    fuzz::VerifierDessin(points, rapport);
    // No polyline of a single point.
    for (std::size_t i = 0; i < points.size(); ++i) {
        const bool debut = i == 0 || points[i - 1].CodeSequence != points[i].CodeSequence;
        const bool fin = i + 1 == points.size() || points[i + 1].CodeSequence != points[i].CodeSequence;
        if (debut && fin) std::abort();
    }
    return 0;
}
