// The index that makes a Dessin quick to paint: boxes over runs of segments, texts as Qt holds them.
#include "platform/images/peinture_qt.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tessarel {

namespace {

CadreDessin CadreVide() {
    constexpr double infini = std::numeric_limits<double>::infinity();
    return {infini, -infini, infini, -infini};
}

void Etendre(CadreDessin& cadre, const PointDessin& p) {
    cadre.XMin = std::min(cadre.XMin, p.X);
    cadre.XMax = std::max(cadre.XMax, p.X);
    cadre.YMin = std::min(cadre.YMin, p.Y);
    cadre.YMax = std::max(cadre.YMax, p.Y);
}

void Etendre(CadreDessin& cadre, const CadreDessin& autre) {
    cadre.XMin = std::min(cadre.XMin, autre.XMin);
    cadre.XMax = std::max(cadre.XMax, autre.XMax);
    cadre.YMin = std::min(cadre.YMin, autre.YMin);
    cadre.YMax = std::max(cadre.YMax, autre.YMax);
}

bool EstFini(const PointDessin& p) {
    return std::isfinite(p.X) && std::isfinite(p.Y);
}

// Drops the points that are no numbers, stroke by stroke, and brings strokes that overrun the array back into
// it.
void Assainir(Dessin& dessin) {
    for (TraitDessin& trait : dessin.traits) {
        trait.premier =
            std::min<std::uint32_t>(trait.premier, static_cast<std::uint32_t>(dessin.points.size()));
        trait.nombre = std::min<std::uint32_t>(
            trait.nombre, static_cast<std::uint32_t>(dessin.points.size()) - trait.premier);
        const auto debut = dessin.points.begin() + trait.premier;
        const auto fin = debut + trait.nombre;
        trait.nombre = static_cast<std::uint32_t>(
            std::remove_if(debut, fin, [](const PointDessin& p) { return !EstFini(p); }) - debut);
    }
    std::erase_if(dessin.marques, [](const MarqueDessin& m) { return !EstFini(m.ou); });
    std::erase_if(dessin.textes, [](const TexteDessin& t) { return !EstFini(t.ou); });
}

} // namespace

VueDessin VueSurCadre(const CadreDessin& cadre, double largeur, double hauteur, double marge) {
    const double l = std::max(largeur - 2 * marge, 1.0);
    const double h = std::max(hauteur - 2 * marge, 1.0);
    const double dx = std::max(cadre.XMax - cadre.XMin, 0.0);
    const double dy = std::max(cadre.YMax - cadre.YMin, 0.0);
    VueDessin vue;
    vue.largeur = largeur;
    vue.hauteur = hauteur;
    if (dx <= 0 && dy <= 0) {
        vue.echelle = std::min(l, h);
    } else if (dx <= 0) {
        vue.echelle = h / dy;
    } else if (dy <= 0) {
        vue.echelle = l / dx;
    } else {
        vue.echelle = std::min(l / dx, h / dy);
    }
    vue.xGauche = (cadre.XMin + cadre.XMax) / 2 - largeur / 2 / vue.echelle;
    vue.yBas = (cadre.YMin + cadre.YMax) / 2 - hauteur / 2 / vue.echelle;
    return vue;
}

QColor EnQColor(Couleur couleur) {
    return {couleur.rouge, couleur.vert, couleur.bleu, couleur.opacite};
}

void DessinPrepare::Remplacer(Dessin dessin) {
    m_dessin = std::move(dessin);
    Assainir(m_dessin);
    m_cadre = CadreVide();
    m_index.clear();
    m_boites.clear();
    m_textes.clear();
    m_index.reserve(m_dessin.traits.size());
    for (const TraitDessin& trait : m_dessin.traits) {
        Index index{CadreVide(), static_cast<std::uint32_t>(m_boites.size())};
        const PointDessin* p = m_dessin.points.data() + trait.premier;
        // Neighbouring runs share a point, so that the segment between them lies in one of their boxes.
        for (std::uint32_t i = 0; i + 1 < trait.nombre || (i == 0 && trait.nombre == 1);
             i += SegmentsParBoite) {
            CadreDessin boite = CadreVide();
            const std::uint32_t fin = std::min(i + SegmentsParBoite, trait.nombre - 1);
            for (std::uint32_t k = i; k <= fin; ++k) Etendre(boite, p[k]);
            m_boites.push_back(boite);
            Etendre(index.boite, boite);
        }
        if (trait.nombre > 0) Etendre(m_cadre, index.boite);
        m_index.push_back(index);
    }
    m_textes.reserve(m_dessin.textes.size());
    for (const TexteDessin& texte : m_dessin.textes) m_textes.push_back(QString::fromStdString(texte.texte));
}

void DessinPrepare::Prolonger(std::span<const PointDessin> points) {
    if (m_dessin.traits.empty()) return;
    TraitDessin& trait = m_dessin.traits.back();
    Index& index = m_index.back();
    std::vector<PointDessin>& tous = m_dessin.points;
    tous.resize(trait.premier + trait.nombre); // what was left out stands behind
    for (const PointDessin& p : points) {
        if (!EstFini(p)) continue;
        const std::uint32_t segment = trait.nombre == 0 ? 0 : trait.nombre - 1;
        tous.push_back(p);
        ++trait.nombre;
        const std::size_t rang = index.premiereBoite + segment / SegmentsParBoite;
        if (rang == m_boites.size()) {
            m_boites.push_back(CadreVide());
            Etendre(m_boites[rang], tous[trait.premier + segment]);
        }
        Etendre(m_boites[rang], p);
        Etendre(index.boite, p);
        Etendre(m_cadre, p);
    }
}

} // namespace tessarel
