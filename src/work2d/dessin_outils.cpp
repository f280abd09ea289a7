// Draws what the workshop lays over the paths.
#include "work2d/dessin_outils.h"

#include "platform/tracer_dessin.h"
#include "work2d/transformations.h"

#include <algorithm>
#include <array>

namespace tessarel {

namespace {

constexpr float EpaisseurFine = 1; // pixels
constexpr float EpaisseurSurvol = 2;
constexpr float TaillePoignee = 8;
constexpr float TaillePoigneeSurvolee = 11;
constexpr float TailleCroix = 5;
constexpr float TailleVise = 7;
constexpr float TailleFil = 6;
constexpr float EpaisseurDejaCoupe = 2;
constexpr float EpaisseurOmbre = 5;

constexpr Couleur BoiteClaire = {40, 90, 190};
constexpr Couleur BoiteSombre = {140, 180, 255};

PointDessin Par(const MatriceDessin& m, PointDessin p) {
    return {m.xx * p.X + m.xy * p.Y + m.dx, m.yx * p.X + m.yy * p.Y + m.dy};
}

PointDessin Lieu(const PointProfil& p) {
    return {p.X, p.Y};
}

} // namespace

void DessinerBoite(Dessin& dessin, const Sequence& BoiteSelection, double echelle, const SurvolBoite& survol,
                   const MatriceDessin& matrice, const OptionsDessin& options) {
    if (BoiteSelection.Selection == 0) return;
    const Couleur trait = options.sombre ? BoiteSombre : BoiteClaire;
    const Sequence boite = BoiteAffichee(BoiteSelection, echelle);
    OuvrirTrait(dessin, survol.zone == ZoneBoite::Rotation ? CouleurSurvol : trait, EpaisseurFine, true);
    for (const std::string_view coin : {"BG", "HG", "HD", "BD", "BG"})
        AjouterPoint(dessin, Par(matrice, PlacePoignee(boite, coin)));
    AjouterMarque(dessin, GenreMarque::Croix, Par(matrice, MilieuBoite(BoiteSelection)), TailleCroix, trait);
    for (const std::string_view nom : PoigneesMontrees(BoiteSelection, echelle)) {
        const bool survolee = survol.zone == ZoneBoite::Poignee && survol.HandleCourant == nom;
        AjouterMarque(dessin, GenreMarque::Poignee, Par(matrice, PlacePoignee(boite, nom)),
                      survolee ? TaillePoigneeSurvolee : TaillePoignee, survolee ? CouleurSurvol : trait);
    }
}

void DessinerTraceSurvole(Dessin& dessin, const Sequence& sequence) {
    if (sequence.Points.empty()) return;
    OuvrirTrait(dessin, CouleurSurvol, EpaisseurFine);
    dessin.points.reserve(dessin.points.size() + sequence.Points.size());
    for (const PointProfil& p : sequence.Points) AjouterPoint(dessin, Lieu(p));
}

void DessinerSegmentSurvole(Dessin& dessin, const Sequence& sequence, std::size_t segment,
                            PointDessin souris) {
    if (segment >= sequence.Points.size()) return;
    const PointDessin a = Lieu(sequence.Points[segment]);
    const PointDessin b = Lieu(sequence.Points[std::min(segment + 1, sequence.Points.size() - 1)]);
    AjouterLigne(dessin, a, b, CouleurSurvol, EpaisseurSurvol);
    const std::string_view coin = CoinSegment(a, b, souris);
    AjouterMarque(dessin, GenreMarque::Poignee, coin == CoinSegment(a, b, a) ? a : b, TaillePoignee,
                  CouleurSurvol);
}

void DessinerPointVise(Dessin& dessin, PointDessin ou) {
    AjouterMarque(dessin, GenreMarque::Croix, ou, 2 * TailleVise, CouleurSurvol);
    AjouterMarque(dessin, GenreMarque::PremierPoint, ou, TailleVise, CouleurSurvol);
}

void DessinerFilm(Dessin& dessin, const Film2D& film, const PlaceFil& place) {
    const std::vector<PointProfil>& points = film.points.Points;
    if (points.empty()) return;
    const std::size_t dernier = std::min(place.point, points.size() - 1);
    const PointDessin fil{place.X, place.Y};
    OuvrirTrait(dessin, CouleurDejaCoupe, EpaisseurDejaCoupe);
    for (std::size_t i = 0; i <= dernier; ++i) AjouterPoint(dessin, Lieu(points[i]));
    AjouterPoint(dessin, fil);
    if (dernier + 1 < points.size()) {
        const PointDessin a = Lieu(points[dernier]);
        const PointDessin b = Lieu(points[dernier + 1]);
        AjouterLigne(dessin, a, b, CouleurOmbre, EpaisseurOmbre);
        AjouterLigne(dessin, a, b, CouleurSegmentCoupe, EpaisseurSegmentCoupe);
    }
    // A ring: the segment under way is seldom longer than the wire's mark is wide, and shows through it.
    AjouterMarque(dessin, GenreMarque::PremierPoint, fil, TailleFil, CouleurDejaCoupe);
}

void DessinerDejaCoupe(Dessin& dessin, std::span<const PointDessin> points) {
    OuvrirTrait(dessin, CouleurDejaCoupe, EpaisseurFine);
    for (const PointDessin& p : points) AjouterPoint(dessin, p);
}

void DessinerSegmentEnCours(Dessin& dessin, PointDessin debut, PointDessin fil) {
    AjouterLigne(dessin, debut, fil, CouleurOmbre, EpaisseurOmbre);
    AjouterLigne(dessin, debut, fil, CouleurSegmentCoupe, EpaisseurSegmentCoupe);
    // A ring, as in the film.
    AjouterMarque(dessin, GenreMarque::PremierPoint, fil, TailleFil, CouleurDejaCoupe);
}

void DessinerTrajetRetour(Dessin& dessin, std::span<const PointDessin> points) {
    if (points.size() < 2) return;
    OuvrirTrait(dessin, CouleurDejaCoupe, EpaisseurFine, true);
    for (const PointDessin& p : points) AjouterPoint(dessin, p);
}

} // namespace tessarel
