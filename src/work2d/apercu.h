// A file read for viewing only: kept until it is opened or another one is looked at.
#pragma once

#include "platform/dessin.h"
#include "work2d/espace2d.h"

#include <cstdint>
#include <span>
#include <string>

namespace tessarel {

struct ApercuFichier {
    std::string chemin;
    float distNettoyage = 0; // mm, that it was thinned with
    std::int64_t date =
        0; // of the file when it was read, and its size: an opening reads anew what has changed
    std::uintmax_t taille = 0;
    bool retouche = false; // turned over or reversed since it was read
    ContenuFichier contenu;
};

// A preview of what is read next from `chemin`: all but the content.
ApercuFichier PreparerApercu(const std::string& chemin, float distNettoyage);

// True while the content is what an opening would read.
bool ApercuValable(const ApercuFichier& apercu, const std::string& chemin, float distNettoyage);

// The box around the paths with a margin, for a view that shows them whole. The sequences have valid bounds.
CadreDessin CadreApercu(std::span<const Sequence> sequences);

} // namespace tessarel
