// Any bytes as a wing file .cpx: two profiles at most, or a refusal with a sentence.
#include "promesses.h"

#include "platform/erreurs.h"

#include <cstddef>
#include <cstdint>

using namespace tessarel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    AileImportee aile;
    try {
        aile = AnalyserCpx(std::string(reinterpret_cast<const char*>(octets), taille), "essai.cpx");
    } catch (const FauteLecture&) {
        return 0;
    }
    fuzz::VerifierAile(aile, "cpx");
    return 0;
}
