// Puts strokes, marks and labels into a picture, point by point.
#pragma once

#include "platform/dessin.h"

#include <utility>

namespace tessarel {

// Begins a stroke; the points added from here on are its own. `epaisseur` in pixels.
inline void OuvrirTrait(Dessin& dessin, Couleur couleur, float epaisseur, bool tirets = false,
                        GenreTrait genre = GenreTrait::Ligne) {
    dessin.traits.push_back(
        {static_cast<std::uint32_t>(dessin.points.size()), 0, epaisseur, couleur, genre, tirets});
}

// Adds a point (mm) to the stroke begun last.
inline void AjouterPoint(Dessin& dessin, PointDessin p) {
    dessin.points.push_back(p);
    ++dessin.traits.back().nombre;
}

inline void AjouterLigne(Dessin& dessin, PointDessin a, PointDessin b, Couleur couleur, float epaisseur) {
    OuvrirTrait(dessin, couleur, epaisseur);
    AjouterPoint(dessin, a);
    AjouterPoint(dessin, b);
}

// `taille` in pixels.
inline void AjouterMarque(Dessin& dessin, GenreMarque genre, PointDessin ou, float taille, Couleur couleur) {
    MarqueDessin marque;
    marque.ou = ou;
    marque.genre = genre;
    marque.taille = taille;
    marque.couleur = couleur;
    dessin.marques.push_back(marque);
}

inline void AjouterTexte(Dessin& dessin, PointDessin ou, std::string texte, Couleur couleur, AncreTexte ancre,
                         float taille = TexteDessin().taille) {
    dessin.textes.push_back({ou, std::move(texte), taille, couleur, ancre});
}

} // namespace tessarel
