// The view of the design: projection of the two profiles on the picture, fit and zoom.
//
// Nothing here computes an angle: Omega and Alpha are whole degrees, taken from the tables of
// paths/tables_degres.h, whose shift by 180 degrees all formulas rest on. Arrays keep their memory from one
// projection to the next.
#pragma once

#include "design4x/intermediaire.h"
#include "design4x/projet_cpx.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace tessarel {

struct PointEcran {
    double X = 0; // pixels, rightwards
    double Y = 0; // downwards
    friend bool operator==(const PointEcran&, const PointEcran&) = default;
};

// An outline in the projected plane (X and Y in mm, Z the plane that it stands in) and on the picture.
struct TraceVue {
    std::vector<PointEspace> Projete;
    std::vector<PointEcran> Ecran;
};

struct VueCPX {
    std::int16_t Omega = 120; // degrees, 0 to 360
    std::int16_t Alpha = 217;
    float Echelle = 1;     // pixels per mm
    double CentreVueX = 0; // mm in the projected plane
    double CentreVueY = 0;
    double OrigineEcranX = 0; // pixels; where the centre of view stands, from the left and from the foot
    double OrigineEcranY = 0;
    double HauteurVue = 0; // pixels
    double LargeurVue = 0;
    double MargeVue = 20;
    std::array<bool, 2> chkAfficherProfil = {true, true}; // root, tip: what the fit takes in
    bool chkVoirBlocCPX = false;
    TraceVue E;
    TraceVue S;
    TraceVue BlocE;
    TraceVue BlocS;
    TraceVue Intermediaire; // empty when there is none
    TraceVue MarqueE;       // the arrow at the side where the wire comes in, 5 mm beyond the root's plane
    TraceVue MarqueS;       // and beyond the tip's
};

// A named view sets both angles; a fit follows.
struct VueNommee {
    std::int16_t Omega;
    std::int16_t Alpha;
};
inline constexpr VueNommee VuePerspective = {120, 217}; // cmdRAZPerspective, the default
inline constexpr VueNommee VueCote = {90, 180};         // cmdRAZVueCote: Xp = X - cx, Yp = Y - cy
inline constexpr VueNommee VueDessus = {90, 270};       // cmdVueDessus: Xp = X - cx, Yp = -Z

// Puts the view on two angles, brought between 0 and 360: a project file may hold any whole numbers.
void PlacerVue(VueCPX& vue, int omega, int alpha);

// Points are moved with the mouse in the side view only.
bool EstVueCote(const VueCPX& vue);

// Size of the picture in pixels; its middle becomes the place of the centre of view.
void DimensionnerVue(VueCPX& vue, double largeur, double hauteur);

// Projects profiles, blocks and the intermediate profile if there is one; with `recadrer` fits the zoom to
// what is shown first. Linear in the points, no allocation once the arrays have their size.
void CalculerCoordonneesPerspectiveCPX(VueCPX& vue, const ProjetCPX& projet, bool recadrer,
                                       const ProfilIntermediaire* intermediaire = nullptr);

// One point in the plane `z`, in mm of the projected plane.
PointEspace ProjeterPoint(const VueCPX& vue, const ProjetCPX& projet, double x, double y, double z);
// The arrow beside the foot of the block, at the end that reaches further to the left: it points at the side
// where the wire comes in, and nothing is computed from it. None without points.
std::vector<PointEspace> MarqueEntree(const ProjetCPX& projet);
// From the projected plane to the picture.
PointEcran VersEcran(const VueCPX& vue, const PointEspace& projete);

// hscZoom went from one value to another: scale, then picture coordinates alone.
void ChangerZoom(VueCPX& vue, std::int32_t ancien, std::int32_t nouveau);
// Zoom to a frame of the picture, in pixels; a frame without width or height does nothing.
void ZoomerSurCadre(VueCPX& vue, PointEcran a, PointEcran b);
// Shift + drag by (dx, dy) pixels: the picture follows the mouse.
void GlisserVue(VueCPX& vue, double dx, double dy);
// Alt + drag: the angles change by the drag in pixels / 30 degrees and wrap at 0 and 360. A projection
// follows.
void TournerVue(VueCPX& vue, double dx, double dy);

} // namespace tessarel
