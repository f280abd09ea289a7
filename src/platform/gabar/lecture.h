// The readers and writers of the file library, one for each kind of file; LireFichier and EcrireFichier
// choose.
#pragma once

#include "gabar.h"

#include <string>
#include <vector>

namespace tessarel {

// `texte` is the whole file, `chemin` its name for messages.
void LireDxf(std::vector<PointSimple>& points, std::string texte, const std::string& chemin,
             RapportLecture& rapport);
void LireDat(std::vector<PointSimple>& points, std::string texte, const std::string& chemin,
             RapportLecture& rapport);
void LirePlt(std::vector<PointSimple>& points, const std::string& texte, const std::string& chemin,
             RapportLecture& rapport);
void LireEps(std::vector<PointSimple>& points, const std::string& texte, const std::string& chemin,
             RapportLecture& rapport);

// Text of a file with these polylines, which are one or more.
std::string TexteDxf(const std::vector<PointSimple>& points);
std::string TexteDat(const std::string& chemin, const std::vector<PointSimple>& points);
// Two outlines of as many points each, at Z = 0 and at Z = `ecartement`, and the surface between them.
std::string TexteDxf3D(const std::vector<PointSimple>& emplanture, const std::vector<PointSimple>& saumon,
                       float ecartement);

} // namespace tessarel
