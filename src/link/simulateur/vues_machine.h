// The virtual machine as pictures: from the side with the block and what was cut in it, from the front, from
// above.
#pragma once

#include "link/simulateur/boite.h"
#include "platform/dessin.h"

#include <optional>
#include <span>
#include <utility>

namespace tessarel::simulateur {

// A block of foam on the table: X and Y as on the machine, Z from the carriage of end 1 towards end 2. Mm.
struct BlocMousse {
    double x = 30;
    double y = 10;
    double largeur = 300;
    double hauteur = 100;
    double z = 60;
    double profondeur = 400;
};

// What stands still in the pictures.
struct SceneMachine {
    Mecanique mecanique;
    TableRam ram;
    BlocMousse bloc;
    bool sombre = false; // drawn on a dark ground
};

struct PlacesChariots {
    PointDessin bout1; // X1, Y1 in mm
    PointDessin bout2;
};

// Steps to mm. An axis that no output drives goes with the same axis of the other end: one motor moves both.
PlacesChariots PlacesEnMm(const PositionPas& position, const TableRam& ram);
// Where the wire crosses the plane at `z` mm from end 1.
PointDessin PointDuFil(const PlacesChariots& places, double z, double ecartement);

// From cold steel to glowing: 0 to 1.
Couleur CouleurDuFil(double chaleur, bool sombre);

// Part of the segment from a to b that lies in the rectangle, as fractions of the way; nothing when none
// does.
std::optional<std::pair<double, double>> PartDansRectangle(PointDessin a, PointDessin b,
                                                           const CadreDessin& r);

// From the side: X to the right, Y up.
CadreDessin CadreCote(const SceneMachine& scene);
Dessin DessinerFondCote(const SceneMachine& scene);
// What the wire has left: slits in both faces of the block where it was hot, a thin line in the air, a
// thinner one where it was cold. Corners past CoinsDessines are left out, the oldest first.
Dessin DessinerTrace(const SceneMachine& scene, std::span<const PointTrajet> trajet);
inline constexpr std::size_t CoinsDessines = 60000;
// The ends of the wire now, and the way from the last corner to here.
Dessin DessinerFilCote(const SceneMachine& scene, const EtatBoite& etat, const PointTrajet* dernierCoin);

// From the front: Z to the right, Y up. From above: X to the right, Z up.
enum class VueMachine { Face, Dessus };
CadreDessin CadreVue(const SceneMachine& scene, VueMachine vue);
Dessin DessinerFondVue(const SceneMachine& scene, VueMachine vue);
Dessin DessinerFilVue(const SceneMachine& scene, VueMachine vue, const EtatBoite& etat);

} // namespace tessarel::simulateur
