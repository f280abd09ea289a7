// Any bytes as a DXF: read, or refused with a sentence; what is read keeps the promises of the reader.
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
        LireDxf(points, std::string(reinterpret_cast<const char*>(octets), taille), "essai.dxf", rapport);
    } catch (const FauteLecture&) {
        return 0;
    }
    fuzz::VerifierDessin(points, rapport);
    // What was read can be written and read again.
    std::vector<PointSimple> relus;
    RapportLecture second;
    const std::string texte = TexteDxf(points);
    try {
        LireDxf(relus, texte, "relu.dxf", second);
    } catch (const FauteLecture&) {
        std::abort();
    }
    return 0;
}
