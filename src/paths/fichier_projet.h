// Project files .tsr, and the old .qnt: text laid out like a settings file, read whatever the order of its
// keys.
#pragma once

#include "paths/projets.h"

#include <string>
#include <vector>

namespace tessarel {

// Write a project file whole, in one step; FauteFichier leaves the old file as it was. Coordinates keep six
// decimals; of a point only X, Y and `Drapeaux` go into the file.
void EcrireProjet2D(const std::string& chemin, const Projet2D& projet);
void EcrireProjet4axes(const std::string& chemin, const Projet4axes& projet);

// `Onglet` of [TypeProjet], as it stands; empty when absent. Reads the head of the file only when it can.
std::string LireOngletProjet(const std::string& chemin);

// 2D project: .tsr sections, or the old .qnt ones when `ancien`. Boxes of the sequences are computed. The
// block is as stored: limiting it to the machine belongs to the caller. FauteFichier or FauteLecture; a key
// that is absent reads as empty and parses as 0. Counts are checked against the lines that are there.
Projet2D LireProjet2D(const std::string& chemin, bool ancien);

// 4-axis project, new or oldest sections. Shows the box of the old-version rule where it applies, and that of
// a comment over 256 characters.
Projet4axes LireProjet4axes(const std::string& chemin);

// The same two on the bytes of a file that is not read here; `nom` stands for it in faults.
Projet2D AnalyserProjet2D(std::string octets, const std::string& nom, bool ancien);
Projet4axes AnalyserProjet4axes(std::string octets, const std::string& nom);

// Paths for the sequence choice window: those of the file, then one more, all of them end to end and moved
// right by 1.1 times its width. `ancien` chooses the section names.
std::vector<Sequence> LireSequencesProjet(const std::string& chemin, bool ancien);

} // namespace tessarel
