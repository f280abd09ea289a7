// Strokes, areas and labels put into a Dessin, one call each.
#pragma once

#include "platform/dessin.h"

#include <cmath>
#include <initializer_list>
#include <numbers>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace tessarel {

// Draws into one list; the look that is set holds until it is changed.
class Crayon {
public:
    explicit Crayon(Dessin& dessin) : m_dessin(dessin) {}

    Crayon& Encre(Couleur couleur, float epaisseur = 1, bool tirets = false) {
        m_couleur = couleur;
        m_epaisseur = epaisseur;
        m_tirets = tirets;
        return *this;
    }

    void Ligne(std::span<const PointDessin> points) { Ajouter(points, GenreTrait::Ligne); }
    void Ligne(std::initializer_list<PointDessin> points) { Ligne(std::span(points.begin(), points.size())); }
    void Surface(std::span<const PointDessin> points) { Ajouter(points, GenreTrait::Surface); }
    void Surface(std::initializer_list<PointDessin> points) {
        Surface(std::span(points.begin(), points.size()));
    }
    void Rectangle(const CadreDessin& r) {
        Ligne({{r.XMin, r.YMin}, {r.XMin, r.YMax}, {r.XMax, r.YMax}, {r.XMax, r.YMin}, {r.XMin, r.YMin}});
    }
    void Plein(const CadreDessin& r) {
        Surface({{r.XMin, r.YMin}, {r.XMin, r.YMax}, {r.XMax, r.YMax}, {r.XMax, r.YMin}});
    }
    // A filled disc of `rayon` mm.
    void Disque(PointDessin centre, double rayon) {
        constexpr int cotes = 24;
        std::vector<PointDessin> points;
        points.reserve(cotes);
        for (int i = 0; i < cotes; ++i) {
            const double angle = 2 * std::numbers::pi * i / cotes;
            points.push_back({centre.X + rayon * std::cos(angle), centre.Y + rayon * std::sin(angle)});
        }
        Surface(points);
    }
    void Texte(PointDessin ou, std::string texte, float taille = 11, AncreTexte ancre = AncreTexte::Centre) {
        m_dessin.textes.push_back({ou, std::move(texte), taille, m_couleur, ancre});
    }
    // An arrow head at `ou`, pointing along `angle` in radians; `taille` in pixels.
    void Fleche(PointDessin ou, double angle, float taille = 8) {
        m_dessin.marques.push_back({ou, angle, taille, m_couleur, GenreMarque::Fleche});
    }
    void Point(PointDessin ou, float taille = 5) {
        m_dessin.marques.push_back({ou, 0, taille, m_couleur, GenreMarque::Point});
    }

private:
    void Ajouter(std::span<const PointDessin> points, GenreTrait genre) {
        TraitDessin trait;
        trait.premier = static_cast<std::uint32_t>(m_dessin.points.size());
        trait.nombre = static_cast<std::uint32_t>(points.size());
        trait.epaisseur = m_epaisseur;
        trait.couleur = m_couleur;
        trait.genre = genre;
        trait.tirets = m_tirets;
        m_dessin.points.insert(m_dessin.points.end(), points.begin(), points.end());
        m_dessin.traits.push_back(trait);
    }

    Dessin& m_dessin;
    Couleur m_couleur;
    float m_epaisseur = 1;
    bool m_tirets = false;
};

} // namespace tessarel
