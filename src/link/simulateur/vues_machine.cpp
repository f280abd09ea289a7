// Pictures of the virtual machine, as lists of strokes.
#include "link/simulateur/vues_machine.h"

#include "platform/tracer_dessin.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string>
#include <utility>

namespace tessarel::simulateur {

namespace {

struct Tons {
    Couleur cadre;
    Couleur chariot;
    Couleur mousse;
    Couleur bordMousse;
    Couleur fente; // what shows through a cut
    Couleur froid; // way of a cold wire
    Couleur discret;
};

constexpr Tons TonsClairs = {{0x98, 0xA3, 0xB0}, {0x4A, 0x57, 0x66}, {0xD8, 0xE6, 0xF4},
                             {0x86, 0xA3, 0xC2}, {0x3A, 0x46, 0x54}, {0x9A, 0xA5, 0xB2, 0xB0},
                             {0x6B, 0x76, 0x84}};
constexpr Tons TonsSombres = {{0x5C, 0x68, 0x76}, {0xB9, 0xC3, 0xCF}, {0x2F, 0x45, 0x5C},
                              {0x62, 0x80, 0xA2}, {0x0E, 0x13, 0x19}, {0x78, 0x84, 0x92, 0xB0},
                              {0x96, 0xA1, 0xAE}};

const Tons& TonsDe(const SceneMachine& scene) {
    return scene.sombre ? TonsSombres : TonsClairs;
}

Couleur Melanger(Couleur a, Couleur b, double part) {
    const auto mele = [&](std::uint8_t x, std::uint8_t y) {
        return static_cast<std::uint8_t>(std::lround(x + (y - x) * part));
    };
    return {mele(a.rouge, b.rouge), mele(a.vert, b.vert), mele(a.bleu, b.bleu), mele(a.opacite, b.opacite)};
}

Couleur AvecOpacite(Couleur c, int opacite) {
    c.opacite = static_cast<std::uint8_t>(opacite);
    return c;
}

PointDessin Entre(PointDessin a, PointDessin b, double part) {
    return {a.X + (b.X - a.X) * part, a.Y + (b.Y - a.Y) * part};
}

CadreDessin Elargir(CadreDessin c, double de) {
    return {c.XMin - de, c.XMax + de, c.YMin - de, c.YMax + de};
}

// Draws strokes into a list, one after the other; those of one style that follow on become one.
class Plume {
public:
    explicit Plume(Dessin& dessin) : m_dessin(dessin) {}

    void Segment(PointDessin a, PointDessin b, Couleur couleur, float epaisseur, bool tirets = false) {
        const bool suite = !m_dessin.traits.empty() && !m_ferme && m_dessin.points.back().X == a.X &&
                           m_dessin.points.back().Y == a.Y && m_dessin.traits.back().couleur == couleur &&
                           m_dessin.traits.back().epaisseur == epaisseur &&
                           m_dessin.traits.back().tirets == tirets;
        if (!suite) {
            Commencer(couleur, epaisseur, GenreTrait::Ligne, tirets);
            Point(a);
        }
        Point(b);
    }
    void Rectangle(const CadreDessin& r, Couleur couleur, float epaisseur, bool tirets = false) {
        Commencer(couleur, epaisseur, GenreTrait::Ligne, tirets);
        Coins(r);
        Point({r.XMin, r.YMin});
        m_ferme = true;
    }
    void Surface(const CadreDessin& r, Couleur couleur) {
        Commencer(couleur, 1, GenreTrait::Surface, false);
        Coins(r);
        m_ferme = true;
    }

    void Disque(PointDessin centre, double rayon, Couleur couleur) {
        constexpr int cotes = 24;
        Commencer(couleur, 1, GenreTrait::Surface, false);
        for (int i = 0; i < cotes; ++i) {
            const double angle = 2 * std::numbers::pi * i / cotes;
            Point({centre.X + rayon * std::cos(angle), centre.Y + rayon * std::sin(angle)});
        }
        m_ferme = true;
    }

private:
    void Commencer(Couleur couleur, float epaisseur, GenreTrait genre, bool tirets) {
        OuvrirTrait(m_dessin, couleur, epaisseur, tirets, genre);
        m_ferme = false;
    }
    void Point(PointDessin p) { AjouterPoint(m_dessin, p); }
    void Coins(const CadreDessin& r) {
        Point({r.XMin, r.YMin});
        Point({r.XMax, r.YMin});
        Point({r.XMax, r.YMax});
        Point({r.XMin, r.YMax});
    }

    Dessin& m_dessin;
    bool m_ferme = true;
};

CadreDessin CadreBlocCote(const BlocMousse& b) {
    return {b.x, b.x + b.largeur, b.y, b.y + b.hauteur};
}

CadreDessin CadreBlocVue(const BlocMousse& b, VueMachine vue) {
    return vue == VueMachine::Face ? CadreDessin{b.z, b.z + b.profondeur, b.y, b.y + b.hauteur}
                                   : CadreDessin{b.x, b.x + b.largeur, b.z, b.z + b.profondeur};
}

// A place of one of the two small views: `le` along the axis that it shows, and the distance from end 1.
PointDessin PlaceVue(VueMachine vue, double le, double z) {
    return vue == VueMachine::Face ? PointDessin{z, le} : PointDessin{le, z};
}

// The two faces of the block, by their distance from end 1.
std::array<double, 2> Faces(const BlocMousse& b) {
    return {b.z, b.z + b.profondeur};
}

void PoserBloc(Plume& plume, const CadreDessin& r, const Tons& tons) {
    plume.Surface(r, tons.mousse);
    plume.Rectangle(r, tons.bordMousse, 1.5F);
}

// A glow under a line: the hotter, the wider.
void Luire(Plume& plume, PointDessin a, PointDessin b, double chaleur, bool sombre) {
    const Couleur couleur = CouleurDuFil(chaleur, sombre);
    if (chaleur > 0.05) {
        plume.Segment(a, b, AvecOpacite(couleur, static_cast<int>(40 * chaleur)), 13);
        plume.Segment(a, b, AvecOpacite(couleur, static_cast<int>(80 * chaleur)), 7);
    }
    plume.Segment(a, b, couleur, 2.5F);
}

// One way of one face: in the foam a slit with a rim of the wire's colour, in the air a thin line.
void TracerSegment(Plume& plume, PointDessin a, PointDessin b, int pwm, const SceneMachine& scene,
                   bool arriere) {
    const Tons& tons = TonsDe(scene);
    if (pwm == 0) {
        plume.Segment(a, b, tons.froid, 1, true);
        return;
    }
    constexpr double plein = 255;
    const Couleur chaud = CouleurDuFil(0.35 + 0.65 * pwm / plein, scene.sombre);
    const auto part = PartDansRectangle(a, b, CadreBlocCote(scene.bloc));
    if (!part) {
        plume.Segment(a, b, AvecOpacite(chaud, 150), 1);
        return;
    }
    const PointDessin entree = Entre(a, b, part->first);
    const PointDessin sortie = Entre(a, b, part->second);
    if (part->first > 0) plume.Segment(a, entree, AvecOpacite(chaud, 150), 1);
    plume.Segment(entree, sortie, arriere ? Melanger(tons.fente, tons.mousse, 0.5) : tons.fente,
                  arriere ? 2 : 3);
    if (part->second < 1) plume.Segment(sortie, b, AvecOpacite(chaud, 150), 1);
}

double Chaleur(const EtatBoite& etat) {
    return std::clamp(etat.temperature, 0.0, 1.0);
}

} // namespace

PlacesChariots PlacesEnMm(const PositionPas& position, const TableRam& ram) {
    std::array<double, NombreAxes> mm = {};
    for (std::size_t a = 0; a < NombreAxes; ++a)
        mm[a] = ram.pasParMm[a] > 0 ? static_cast<double>(position[a]) / ram.pasParMm[a] : 0;
    for (std::size_t a = 0; a < 2; ++a) {
        if (!ram.axePresent[a] && ram.axePresent[a + 2]) mm[a] = mm[a + 2];
        if (!ram.axePresent[a + 2] && ram.axePresent[a]) mm[a + 2] = mm[a];
    }
    return {{mm[0], mm[1]}, {mm[2], mm[3]}};
}

PointDessin PointDuFil(const PlacesChariots& places, double z, double ecartement) {
    return ecartement > 0 ? Entre(places.bout1, places.bout2, z / ecartement) : places.bout1;
}

Couleur CouleurDuFil(double chaleur, bool sombre) {
    // Steel, dull red, orange, light yellow.
    constexpr std::array<Couleur, 4> echelle = {Couleur{0x5B, 0x67, 0x75}, Couleur{0xB3, 0x26, 0x1E},
                                                Couleur{0xF0, 0x6A, 0x12}, Couleur{0xFF, 0xC2, 0x3D}};
    constexpr Couleur acierClair = {0xA9, 0xB4, 0xC1};
    const double place = std::clamp(chaleur, 0.0, 1.0) * (echelle.size() - 1);
    const auto i = std::min(static_cast<std::size_t>(place), echelle.size() - 2);
    const Couleur bas = i == 0 && sombre ? acierClair : echelle[i];
    return Melanger(bas, echelle[i + 1], place - static_cast<double>(i));
}

std::optional<std::pair<double, double>> PartDansRectangle(PointDessin a, PointDessin b,
                                                           const CadreDessin& r) {
    double debut = 0;
    double fin = 1;
    const auto borner = [&](double depart, double pas, double min, double max) {
        if (pas == 0) return depart >= min && depart <= max;
        const double t1 = (min - depart) / pas;
        const double t2 = (max - depart) / pas;
        debut = std::max(debut, std::min(t1, t2));
        fin = std::min(fin, std::max(t1, t2));
        return debut <= fin;
    };
    if (!borner(a.X, b.X - a.X, r.XMin, r.XMax) || !borner(a.Y, b.Y - a.Y, r.YMin, r.YMax))
        return std::nullopt;
    return std::pair{debut, fin};
}

CadreDessin CadreCote(const SceneMachine& scene) {
    const double marge = 0.03 * std::max(scene.mecanique.courseX, scene.mecanique.courseY);
    return Elargir({0, scene.mecanique.courseX, 0, scene.mecanique.courseY}, marge);
}

Dessin DessinerFondCote(const SceneMachine& scene) {
    Dessin dessin;
    Plume plume(dessin);
    const Tons& tons = TonsDe(scene);
    PoserBloc(plume, CadreBlocCote(scene.bloc), tons);
    plume.Rectangle({0, scene.mecanique.courseX, 0, scene.mecanique.courseY}, tons.cadre, 1, true);
    const double yOrigine = scene.mecanique.origineEnHaut ? scene.mecanique.courseY : 0;
    AjouterMarque(dessin, GenreMarque::Point, {0, yOrigine}, 8, tons.discret);
    return dessin;
}

Dessin DessinerTrace(const SceneMachine& scene, std::span<const PointTrajet> trajet) {
    Dessin dessin;
    Plume plume(dessin);
    if (trajet.size() > CoinsDessines) trajet = trajet.last(CoinsDessines);
    const double ecartement = scene.mecanique.ecartement;
    const auto faces = Faces(scene.bloc);
    // The far face first, so that the near one stays on top.
    for (const bool arriere : {true, false}) {
        const double z = faces[arriere ? 1 : 0];
        for (std::size_t i = 1; i < trajet.size(); ++i) {
            if (trajet[i].genre == PointTrajet::Genre::Depart) continue; // the carriages were moved by hand
            const PointDessin a = PointDuFil(PlacesEnMm(trajet[i - 1].pas, scene.ram), z, ecartement);
            const PointDessin b = PointDuFil(PlacesEnMm(trajet[i].pas, scene.ram), z, ecartement);
            if (a.X == b.X && a.Y == b.Y) continue;
            TracerSegment(plume, a, b, trajet[i - 1].pwm, scene, arriere);
        }
    }
    return dessin;
}

Dessin DessinerFilCote(const SceneMachine& scene, const EtatBoite& etat, const PointTrajet* dernierCoin) {
    Dessin dessin;
    Plume plume(dessin);
    const Tons& tons = TonsDe(scene);
    const PlacesChariots ici = PlacesEnMm(etat.position, scene.ram);
    const double ecartement = scene.mecanique.ecartement;
    if (dernierCoin != nullptr && etat.file == EtatFile::EnMarche) {
        const PlacesChariots avant = PlacesEnMm(dernierCoin->pas, scene.ram);
        const auto faces = Faces(scene.bloc);
        for (const bool arriere : {true, false}) {
            const double z = faces[arriere ? 1 : 0];
            TracerSegment(plume, PointDuFil(avant, z, ecartement), PointDuFil(ici, z, ecartement),
                          dernierCoin->pwm, scene, arriere);
        }
    }
    // Seen from the side the wire is the line between its ends, most often a point.
    Luire(plume, ici.bout1, ici.bout2, Chaleur(etat), scene.sombre);
    const Couleur chaud = CouleurDuFil(Chaleur(etat), scene.sombre);
    const double rayon = 0.008 * std::max(scene.mecanique.courseX, scene.mecanique.courseY);
    for (const double part : {3.0, 2.2, 1.6})
        plume.Disque(ici.bout1, rayon * part, AvecOpacite(chaud, static_cast<int>(60 * Chaleur(etat))));
    plume.Disque(ici.bout2, rayon, tons.chariot);
    plume.Disque(ici.bout1, 0.7 * rayon, chaud);
    return dessin;
}

CadreDessin CadreVue(const SceneMachine& scene, VueMachine vue) {
    const Mecanique& m = scene.mecanique;
    const bool face = vue == VueMachine::Face;
    const double large = face ? m.ecartement : m.courseX;
    const double haut = face ? m.courseY : m.ecartement;
    return Elargir({0, large, 0, haut}, 0.06 * std::max(haut, large));
}

Dessin DessinerFondVue(const SceneMachine& scene, VueMachine vue) {
    Dessin dessin;
    Plume plume(dessin);
    const Tons& tons = TonsDe(scene);
    const Mecanique& m = scene.mecanique;
    const bool face = vue == VueMachine::Face;
    PoserBloc(plume, CadreBlocVue(scene.bloc, vue), tons);
    // The rails that the carriages run on, with their numbers.
    const double bout = face ? m.courseY : m.courseX;
    const double ecart = 0.045 * std::max(bout, m.ecartement);
    for (const double z : {0.0, m.ecartement}) {
        plume.Segment(PlaceVue(vue, 0, z), PlaceVue(vue, bout, z), tons.cadre, 3);
        AjouterTexte(dessin, PlaceVue(vue, -ecart, z), z == 0 ? "1" : "2", tons.discret, AncreTexte::Centre);
    }
    plume.Segment(PlaceVue(vue, 0, 0), PlaceVue(vue, 0, m.ecartement), tons.cadre, 1, true);
    return dessin;
}

Dessin DessinerFilVue(const SceneMachine& scene, VueMachine vue, const EtatBoite& etat) {
    Dessin dessin;
    Plume plume(dessin);
    const PlacesChariots ici = PlacesEnMm(etat.position, scene.ram);
    const Mecanique& m = scene.mecanique;
    const bool face = vue == VueMachine::Face;
    const PointDessin a = PlaceVue(vue, face ? ici.bout1.Y : ici.bout1.X, 0);
    const PointDessin b = PlaceVue(vue, face ? ici.bout2.Y : ici.bout2.X, m.ecartement);
    Luire(plume, a, b, Chaleur(etat), scene.sombre);
    const double demi = 0.02 * std::max(m.ecartement, face ? m.courseY : m.courseX);
    for (const PointDessin& p : {a, b})
        plume.Surface({p.X - demi, p.X + demi, p.Y - demi, p.Y + demi}, TonsDe(scene).chariot);
    return dessin;
}

} // namespace tessarel::simulateur
