// Any bytes as the interpreter's output: polylines, whatever the pieces that they come in.
#include "platform/erreurs.h"
#include "platform/gabar/traces_eps.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>

using namespace tessarel;

namespace {

std::optional<TracesEps> Lire(std::string_view texte, std::size_t coupe) {
    TracesEps t;
    try {
        AvalerTraces(t, texte.substr(0, coupe), "essai.eps");
        AvalerTraces(t, texte.substr(coupe), "essai.eps");
    } catch (const FauteLecture&) {
        return std::nullopt;
    }
    TerminerTraces(t);
    return t;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    if (taille == 0) return 0;
    const std::string_view texte(reinterpret_cast<const char*>(octets) + 1, taille - 1);
    const auto entier = Lire(texte, 0);
    const auto coupe = Lire(texte, octets[0] % taille);
    if (entier.has_value() != coupe.has_value()) std::abort();
    if (!entier) return 0;
    if (entier->points.size() != coupe->points.size() || entier->debuts != coupe->debuts) std::abort();
    if (entier->points.empty() != entier->debuts.empty()) std::abort();
    for (std::size_t i = 0; i < entier->points.size(); ++i) {
        const PointSimple& p = entier->points[i];
        if (!std::isfinite(p.X) || !std::isfinite(p.Y) || p.X != coupe->points[i].X) std::abort();
    }
    for (std::size_t i = 0; i < entier->debuts.size(); ++i) {
        const std::size_t fin = i + 1 < entier->debuts.size() ? entier->debuts[i + 1] : entier->points.size();
        if (entier->debuts[i] + 2 > fin) std::abort();
    }
    return 0;
}
