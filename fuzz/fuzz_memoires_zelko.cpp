// Any bytes as the file of the virtual box's memories: three memories that write and read back alike, or a
// refusal with a sentence.
#include "platform/erreurs.h"
#include "platform/memoires_zelko.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

using namespace tessarel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    OctetsMemoires memoires;
    try {
        memoires =
            AnalyserMemoiresZelko(std::string(reinterpret_cast<const char*>(octets), taille), "essai.json");
    } catch (const FauteLecture&) {
        return 0;
    }
    if (AnalyserMemoiresZelko(ComposerMemoiresZelko(memoires), "essai.json") != memoires) std::abort();
    return 0;
}
