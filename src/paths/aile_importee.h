// The two profiles of a wing file (.cpx, .fc) with what the file says of their placement.
#pragma once

#include "paths/points.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessarel {

// One end of the wing as the file has it. Lengths are mm.
struct ProfilAile {
    std::string Fichier; // file that the profile came from
    std::vector<PointProfil> Points;
    bool MiroirHorizontal = false; // left and right exchanged, about the middle of the profile
    bool MiroirVertical = false;   // over and under
    double xHauteur = 1;           // factor of all heights
    double Vrillage = 0;           // degrees about the leading edge, positive when the nose rises
    double Decalage = 0;           // added to all heights
    std::optional<double> MargeBA; // block beyond the leading edge
    std::optional<double> MargeBF; // beyond the trailing edge
};

struct AileImportee {
    ProfilAile Emplanture;
    ProfilAile Saumon;
    std::optional<double> Envergure; // between the two profiles
    std::optional<double> FlecheBA;  // the tip's leading edge behind the root's, towards smaller X
    std::optional<double> Epaisseur; // of the block
    std::optional<double> MDessous;  // block under the root
    std::string Commentaire;         // lines joined by CR LF
    bool Pouces = false;             // the file was in inches
    RapportLecture rapport;          // keys without meaning here, by name; notes
};

// A wing file from its bytes; `chemin` is for messages. Nothing is applied to the points but the unit.
// FauteLecture with the line of what is neither a point nor a number where one is needed; an end without
// points is left so.
AileImportee AnalyserCpx(const std::string& octets, const std::string& chemin);
AileImportee AnalyserFc(const std::string& octets, const std::string& chemin);

// The ends that have points, root first, placed: mirrors, height, twist, sweep, offset, in this order.
std::vector<Sequence> SequencesAile(const AileImportee& aile);

// Turns a profile by `degres` about its leading edge, the first of its points of greatest X: the nose rises
// when positive. It has one point at least.
void VrillerProfil(std::vector<PointProfil>& points, double degres);

// The same from a file: the two profiles, or the one that is there. An end without points whose `Fichier`
// names a drawing in the file's own folder takes its first path. FauteFichier, FauteLecture.
std::vector<Sequence> LireCPX2TS2D(const std::string& chemin, RapportLecture* rapport = nullptr);
std::vector<Sequence> LireProfilsFC(const std::string& chemin, RapportLecture* rapport = nullptr);

} // namespace tessarel
