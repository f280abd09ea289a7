// From a drawing file to sequences: the chooser by extension, and what is done to a drawing on its way in.
#pragma once

#include "paths/points.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tessarel {

// What reading a drawing gives.
struct DessinImporte {
    std::vector<Sequence> sequences; // with bounds; thinned
    std::string extension;           // lower case
    RapportLecture rapport;
    std::size_t pointsRetires = 0; // by the thinning
};

// The nine extensions that the program opens, lower case, in the order of its filters.
const std::vector<std::string>& ExtensionsConnues();

// Reads a foreign drawing (not a project) by its extension, compared in lower case, and thins it with
// `distNettoyage` (mm). FauteFichier, FauteLecture; FauteLecture also for an extension that is not known.
DessinImporte LireDessin(const std::string& chemin, float distNettoyage);

// The array of the file library as sequences: split where the code changes; a DAT table is put in order by
// its leading edge; doubles of two points shrink; each is thinned unless it comes from a project.
std::vector<Sequence> CreerSequencesDepuisPoints(const std::vector<PointSimple>& points,
                                                 const std::string& extension, float distNettoyage,
                                                 std::size_t* pointsRetires = nullptr);

// X and Y from the first two fields of a line; false where there are no two numbers.
bool LireXY(const std::vector<std::string_view>& champs, PointProfil& point);

// Coordinates file .txt: X colon Y on a line, any line that does not begin like a number opens a new path.
// FauteLecture with the line where a line of coordinates is none.
std::vector<Sequence> LireCoordonneesTexte(const std::string& chemin);
// The same from the file's text; `chemin` is for messages.
std::vector<Sequence> SequencesDepuisTexte(std::string_view texte, const std::string& chemin);
// First character is one of - + 0-9 . after trimming.
bool EstLigneNumerique(std::string_view ligne);

// Points of sequences for the file library, each sequence under its own code, the first code above the last.
std::vector<PointSimple> PointsDepuisSequences(std::span<const Sequence> sequences);

} // namespace tessarel
