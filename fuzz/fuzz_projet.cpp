// Project files of both kinds, new and old: whatever the bytes, a record or a fault that names the file.
#include "paths/fichier_projet.h"
#include "platform/dialogue.h"
#include "platform/erreurs.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

using namespace tessarel;

namespace {

void Exiger(bool vrai) {
    if (!vrai) std::abort();
}

// What a reader gives out can be drawn and cut: finite points inside finite bounds.
void Verifier(const Sequence& sequence) {
    Exiger(std::isfinite(sequence.Largeur) && std::isfinite(sequence.Hauteur));
    for (const PointProfil& p : sequence.Points) {
        const auto x = static_cast<float>(p.X);
        const auto y = static_cast<float>(p.Y);
        Exiger(x >= sequence.XMin && x <= sequence.XMax && y >= sequence.YMin && y <= sequence.YMax);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    InstallerAfficheurBoite([](const Boite&) { return ReponseBoite::Ok; });
    const std::string texte(reinterpret_cast<const char*>(octets), taille);
    for (const bool ancien : {false, true}) {
        try {
            const Projet2D projet = AnalyserProjet2D(texte, "f", ancien);
            for (const Sequence& sequence : projet.TableauSequences) Verifier(sequence);
            Exiger(std::isfinite(projet.BlocX) && std::isfinite(projet.BlocY));
        } catch (const FauteLecture&) {
        }
    }
    try {
        const Projet4axes projet = AnalyserProjet4axes(texte, "f");
        Verifier(projet.Emplanture.sequence);
        Verifier(projet.Saumon.sequence);
        Exiger(projet.Commentaire.size() <= 4 * 256U);
    } catch (const FauteLecture&) {
    }
    return 0;
}
