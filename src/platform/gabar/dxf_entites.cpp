// Reading of DXF entities by their group codes.
#include "dxf_entites.h"

#include "platform/fichiers.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tessarel {

namespace {

constexpr std::array<std::pair<std::string_view, GenreEntite>, 10> Genres = {{
    {"LINE", GenreEntite::Ligne},
    {"3DLINE", GenreEntite::Ligne}, // lines with a height, in the oldest versions
    {"ARC", GenreEntite::Arc},
    {"CIRCLE", GenreEntite::Cercle},
    {"ELLIPSE", GenreEntite::Ellipse},
    {"LWPOLYLINE", GenreEntite::PolyligneLegere},
    {"POLYLINE", GenreEntite::Polyligne},
    {"SPLINE", GenreEntite::Spline},
    {"INSERT", GenreEntite::Insertion},
    {"MINSERT", GenreEntite::Insertion},
}};

constexpr int CodeDonneesApplication = 102;
constexpr int CodeObjetInclus = 101;
constexpr int PremierCodeEtendu = 1000;

// Flags of a VERTEX that is no point of the path: control point of a spline's frame, face of a mesh.
constexpr std::int32_t SommetHorsTrace = 16 | 128;

GenreEntite GenreDuType(std::string_view type) {
    for (const auto& [nom, genre] : Genres)
        if (nom.size() == type.size() && (nom == type || EgalSansCasse(nom, type))) return genre;
    return GenreEntite::Ignore;
}

// Ready for the next entity; the room of the lists stays.
void Vider(EntiteDxf& e) {
    static_cast<ChampsDxf&>(e) = ChampsDxf{};
    e.sommets.clear();
    Spline& s = e.spline;
    s.controles.clear();
    s.noeuds.clear();
    s.poids.clear();
    s.passages.clear();
    s.tangenteDebut = s.tangenteFin = {};
    s.degre = 3;
}

// Groups between "102 {name" and "102 }" belong to other programs.
void PasserDonneesApplication(LecteurCodes& lecteur, std::string_view ou) {
    if (!lecteur.valeur.starts_with('{')) return;
    for (;;) {
        LirePaireExigee(lecteur, ou);
        if (lecteur.code == CodeDonneesApplication && lecteur.valeur.starts_with('}')) return;
        if (lecteur.code == 0) return; // never closed: the entity ends all the same
    }
}

// Codes that mean the same in every entity; true when the pair was one of them.
bool AbsorberCommun(const LecteurCodes& l, EntiteDxf& e) {
    switch (l.code) {
    case 8:
        e.calque = l.valeur;
        return true;
    case 60:
        e.invisible = ValeurEntiere(l) != 0;
        return true;
    case 67:
        e.espacePapier = ValeurEntiere(l) != 0;
        return true;
    case 210:
        e.extrusion.X = ValeurReelle(l);
        return true;
    case 220:
        e.extrusion.Y = ValeurReelle(l);
        return true;
    case 230:
        e.extrusion.Z = ValeurReelle(l);
        return true;
    default:
        return false;
    }
}

void AbsorberGeometrie(const LecteurCodes& l, EntiteDxf& e) {
    switch (l.code) {
    case 2:
        e.bloc = l.valeur;
        break;
    case 10:
        e.p0.X = ValeurReelle(l);
        break;
    case 20:
        e.p0.Y = ValeurReelle(l);
        break;
    case 30:
        e.p0.Z = ValeurReelle(l);
        break;
    case 11:
        e.p1.X = ValeurReelle(l);
        break;
    case 21:
        e.p1.Y = ValeurReelle(l);
        break;
    case 31:
        e.p1.Z = ValeurReelle(l);
        break;
    case 38:
        e.elevation = ValeurReelle(l);
        break;
    case 40:
        e.r40 = ValeurReelle(l);
        break;
    case 41:
        e.r41 = ValeurReelle(l);
        e.a41 = true;
        break;
    case 42:
        e.r42 = ValeurReelle(l);
        e.a42 = true;
        break;
    case 43:
        e.r43 = ValeurReelle(l);
        e.a43 = true;
        break;
    case 44:
        e.r44 = ValeurReelle(l);
        break;
    case 45:
        e.r45 = ValeurReelle(l);
        break;
    case 50:
        e.r50 = ValeurReelle(l);
        break;
    case 51:
        e.r51 = ValeurReelle(l);
        break;
    case 70:
        e.drapeaux = ValeurEntiere(l);
        break;
    case 71:
        e.rangees = ValeurEntiere(l);
        break;
    default:
        break;
    }
}

void AbsorberPolyligneLegere(const LecteurCodes& l, EntiteDxf& e) {
    switch (l.code) {
    case 10:
        e.sommets.emplace_back().p.X = ValeurReelle(l);
        break;
    case 20:
        if (!e.sommets.empty()) e.sommets.back().p.Y = ValeurReelle(l);
        break;
    case 42:
        if (!e.sommets.empty()) e.sommets.back().renflement = ValeurReelle(l);
        break;
    case 38:
        e.elevation = ValeurReelle(l);
        break;
    case 70:
        e.drapeaux = ValeurEntiere(l);
        break;
    case 90: {
        // The count is only a hint: a vertex takes eight bytes of text at the very least.
        const auto annonce = static_cast<std::size_t>(std::max(0, ValeurEntiere(l)));
        e.sommets.reserve(std::min(annonce, static_cast<std::size_t>(l.fin - l.position) / 8));
        break;
    }
    default:
        break;
    }
}

void AbsorberSpline(const LecteurCodes& l, EntiteDxf& e) {
    Spline& s = e.spline;
    const auto ordonnee = [&](std::vector<Point3>& points, double Point3::*membre) {
        if (!points.empty()) points.back().*membre = ValeurReelle(l);
    };
    switch (l.code) {
    case 10:
        s.controles.emplace_back().X = ValeurReelle(l);
        break;
    case 20:
        ordonnee(s.controles, &Point3::Y);
        break;
    case 30:
        ordonnee(s.controles, &Point3::Z);
        break;
    case 11:
        s.passages.emplace_back().X = ValeurReelle(l);
        break;
    case 21:
        ordonnee(s.passages, &Point3::Y);
        break;
    case 31:
        ordonnee(s.passages, &Point3::Z);
        break;
    case 12:
        s.tangenteDebut.X = ValeurReelle(l);
        break;
    case 22:
        s.tangenteDebut.Y = ValeurReelle(l);
        break;
    case 32:
        s.tangenteDebut.Z = ValeurReelle(l);
        break;
    case 13:
        s.tangenteFin.X = ValeurReelle(l);
        break;
    case 23:
        s.tangenteFin.Y = ValeurReelle(l);
        break;
    case 33:
        s.tangenteFin.Z = ValeurReelle(l);
        break;
    case 40:
        s.noeuds.push_back(ValeurReelle(l));
        break;
    case 41:
        s.poids.push_back(ValeurReelle(l));
        break;
    case 70:
        e.drapeaux = ValeurEntiere(l);
        break;
    case 71:
        s.degre = ValeurEntiere(l);
        break;
    default:
        break;
    }
}

// Pairs up to the next opening pair, each given to `absorber` unless every entity has it.
template <typename Absorber>
void LirePaires(LecteurCodes& lecteur, EntiteDxf& e, Absorber absorber) {
    bool inclus = false;
    for (;;) {
        LirePaireExigee(lecteur, e.type);
        if (lecteur.code == CodeDonneesApplication) PasserDonneesApplication(lecteur, e.type);
        if (lecteur.code == 0) return;
        // What stands behind an embedded object's mark describes that object.
        if (lecteur.code == CodeObjetInclus) inclus = true;
        if (inclus || lecteur.code >= PremierCodeEtendu) continue;
        if (!AbsorberCommun(lecteur, e)) absorber(lecteur, e);
    }
}

// The VERTEX entities behind a POLYLINE, up to its SEQEND.
void LireSommets(LecteurCodes& lecteur, EntiteDxf& e) {
    while (EstMot(lecteur, "VERTEX")) {
        SommetDxf sommet;
        std::int32_t drapeaux = 0;
        for (;;) {
            LirePaireExigee(lecteur, e.type);
            if (lecteur.code == CodeDonneesApplication) PasserDonneesApplication(lecteur, e.type);
            if (lecteur.code == 0) break;
            switch (lecteur.code) {
            case 10:
                sommet.p.X = ValeurReelle(lecteur);
                break;
            case 20:
                sommet.p.Y = ValeurReelle(lecteur);
                break;
            case 30:
                sommet.p.Z = ValeurReelle(lecteur);
                break;
            case 42:
                sommet.renflement = ValeurReelle(lecteur);
                break;
            case 70:
                drapeaux = ValeurEntiere(lecteur);
                break;
            default:
                break;
            }
        }
        if ((drapeaux & SommetHorsTrace) == 0) e.sommets.push_back(sommet);
    }
    if (!EstMot(lecteur, "SEQEND")) return;
    do {
        LirePaireExigee(lecteur, e.type);
    } while (lecteur.code != 0);
}

} // namespace

void LireEntite(LecteurCodes& lecteur, EntiteDxf& entite) {
    Vider(entite);
    entite.type = lecteur.valeur;
    entite.ligne = lecteur.lignesLues;
    entite.genre = GenreDuType(entite.type);
    switch (entite.genre) {
    case GenreEntite::Ignore:
        LirePaires(lecteur, entite, [](const LecteurCodes&, EntiteDxf&) {});
        break;
    case GenreEntite::PolyligneLegere:
        LirePaires(lecteur, entite, AbsorberPolyligneLegere);
        break;
    case GenreEntite::Spline:
        LirePaires(lecteur, entite, AbsorberSpline);
        break;
    case GenreEntite::Polyligne:
        LirePaires(lecteur, entite, AbsorberGeometrie);
        LireSommets(lecteur, entite);
        break;
    default:
        LirePaires(lecteur, entite, AbsorberGeometrie);
        break;
    }
}

} // namespace tessarel
