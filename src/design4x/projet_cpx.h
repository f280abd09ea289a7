// The record of a 4-axis design: two profiles that correspond by index only, and the block around them.
//
// The names told with the suffix E or S (CordeE, YauBAS, MargeBfE...) are the fields of ProjetCPX::E and ::S:
// the two sides are treated by the same routines. Lengths are mm, held in 32 bits unless told otherwise;
// indices count from 0 here and from 1 where they are shown.
#pragma once

#include "paths/geometrie.h"
#include "paths/points.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace tessarel {

// Bits of Drapeaux in 4-axis work; ModeSelection is one of the first six.
inline constexpr std::uint16_t DrapeauOutil = 1;      // tool selection
inline constexpr std::uint16_t DrapeauAlignement = 2; // reference of cmdAligner
inline constexpr std::uint16_t DrapeauSynchro = 4;    // end of a section to synchronise
inline constexpr std::uint16_t DrapeauArret = 8;      // the cut stops here
inline constexpr std::uint16_t DrapeauSansDecalage =
    16;                                           // no kerf offset on the segment between two such points
inline constexpr std::uint16_t DrapeauCorde = 32; // defines the chord or the height
// DrapeauConserve, 128, the scratch bit of the cleaning tools, is that of paths/geometrie.h.

struct PointEspace {
    double X = 0;
    double Y = 0;
    double Z = 0;
    friend bool operator==(const PointEspace&, const PointEspace&) = default;
};

// Extents of a set of points, and which point gives each: of equal ones the first in index order.
struct ExtremesProfil {
    float Xmin = 0;
    float Xmax = 0;
    float Ymin = 0;
    float Ymax = 0;
    std::int32_t IndiceXmin = 0;
    std::int32_t IndiceXmax = 0;
    std::int32_t IndiceYmin = 0;
    std::int32_t IndiceYmax = 0;
    friend bool operator==(const ExtremesProfil&, const ExtremesProfil&) = default;
};

// One profile with its measures; everything from Extremes to NbAlign is filled by CalculerExtremesCPX alone.
struct ProfilCPX {
    std::string NomFichier;
    std::vector<PointProfil> Points; // NbPoints is its size
    ExtremesProfil Extremes;         // Xmin, Xmax, Ymin, Ymax
    ExtremesProfil ExtremesCorde;    // XminCorde, XmaxCorde, YminCorde, YmaxCorde
    float Corde = 0;
    float Hauteur = 0;
    float YauBA = 0; // Y of the point at the leading edge
    float YauBF = 0; // and at the trailing edge
    float XmoyenAlign = 0;
    float YmoyenAlign = 0;
    std::int32_t NbAlign = 0;
    float MargeBa = 10; // block beyond the leading edge
    float MargeBf = 10;
    std::array<PointEspace, 5> Bloc = {}; // closed outline of the block's face
    std::int32_t PointCourant = 0;        // index of the point counter
    friend bool operator==(const ProfilCPX&, const ProfilCPX&) = default;
};

struct OptionsUndo {
    std::array<bool, 3> optSelection = {true, false, false};
    std::array<bool, 2> chkAfficherProfil = {true, true};
    std::array<bool, 2> chkAfficherPoints = {true, true};
    friend bool operator==(const OptionsUndo&, const OptionsUndo&) = default;
};

struct ProjetCPX {
    std::string NomProjet;
    ProfilCPX E; // Emplanture, the root
    ProfilCPX S; // Saumon, the tip
    float XminGlobal = 0;
    float XmaxGlobal = 0;
    float YminGlobal = 0;
    float YmaxGlobal = 0;
    float Ecartement = 0; // between the planes; the only true wing parameter
    float Fleche = 0;     // measures, found again at each CalculerExtremesCPX
    float FlecheBF = 0;
    float DiedreMm = 0;
    float DiedreDeg = 0;
    float Epaisseur = 40;
    float DistProfilDessousE = 10;
    OptionsUndo Options;
    friend bool operator==(const ProjetCPX&, const ProjetCPX&) = default;
};

// Recomputes all that is measured on the points, in one pass per profile and one over its marked points.
void CalculerExtremesCPX(ProjetCPX& projet);

// Z of every point: +Ecartement/2 on the root, -Ecartement/2 on the tip.
void EcrireZ(ProjetCPX& projet);

} // namespace tessarel
