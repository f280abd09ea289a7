// A picture as a flat list of strokes, areas and labels in millimetres, Y upwards: made by an engine, painted
// by a canvas or into an image file. It knows nothing of windows.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tessarel {

// What a stroke is, so that a theme can change its colour: the number is an index the maker chooses.
struct Couleur {
    std::uint8_t rouge = 0;
    std::uint8_t vert = 0;
    std::uint8_t bleu = 0;
    std::uint8_t opacite = 255;
    friend bool operator==(const Couleur&, const Couleur&) = default;
};

struct PointDessin {
    double X = 0;
    double Y = 0;
};

// A place after a change of the plane: (xx X + xy Y + dx, yx X + yy Y + dy).
struct MatriceDessin {
    double xx = 1, xy = 0;
    double yx = 0, yy = 1;
    double dx = 0, dy = 0; // mm
    friend bool operator==(const MatriceDessin&, const MatriceDessin&) = default;
};

enum class GenreTrait : std::uint8_t {
    Ligne,  // open polyline
    Surface // closed polygon, filled
};

// A run of points of `Dessin::points`, drawn in one colour. `epaisseur` is in pixels whatever the zoom.
struct TraitDessin {
    std::uint32_t premier = 0;
    std::uint32_t nombre = 0;
    float epaisseur = 1;
    Couleur couleur;
    GenreTrait genre = GenreTrait::Ligne;
    bool tirets = false;
};

// A symbol of fixed size in pixels at a place in mm.
enum class GenreMarque : std::uint8_t {
    Point,
    PremierPoint,
    Fleche,
    Poignee, // what the hand takes hold of: a light square with a coloured edge
    Disque,  // the wire, seen along itself
    Croix
};
struct MarqueDessin {
    PointDessin ou;
    double angle = 0; // radians, for arrows
    float taille = 4; // pixels
    Couleur couleur;
    GenreMarque genre = GenreMarque::Point;
};

// A short text; `ancre` says which side of the text stands at the place.
enum class AncreTexte : std::uint8_t { Gauche, Centre, Droite };
struct TexteDessin {
    PointDessin ou;
    std::string texte;
    float taille = 11; // pixels
    Couleur couleur;
    AncreTexte ancre = AncreTexte::Centre;
};

struct Dessin {
    std::vector<PointDessin> points;
    std::vector<TraitDessin> traits;
    std::vector<MarqueDessin> marques;
    std::vector<TexteDessin> textes;

    void Vider() {
        points.clear();
        traits.clear();
        marques.clear();
        textes.clear();
    }
};

// A window of the table, mm.
struct CadreDessin {
    double XMin = 0;
    double XMax = 0;
    double YMin = 0;
    double YMax = 0;
};

} // namespace tessarel
