// The film of a cut.
#include "work2d/simulation.h"

#include "app/texts/textes.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"

#include <algorithm>
#include <cmath>

namespace tessarel {

namespace {

// "Nombre de points trop élevés pour le scrollbar de simulation..."
constexpr int MessagesTropDePoints = 128;

float Longueur(const PointProfil& a, const PointProfil& b) {
    return EnSimple(std::hypot(b.X - a.X, b.Y - a.Y));
}

// The points between a and b, which are `parts` steps apart.
void InsererEntre(std::vector<PointProfil>& points, const PointProfil& a, const PointProfil& b,
                  std::size_t parts, std::size_t maximum) {
    for (std::size_t k = 1; k < parts && points.size() <= maximum; ++k) {
        const double t = static_cast<double>(k) / static_cast<double>(parts);
        PointProfil p = a;
        p.X = static_cast<double>(EnSimple(a.X + (b.X - a.X) * t));
        p.Y = static_cast<double>(EnSimple(a.Y + (b.Y - a.Y) * t));
        p.Drapeaux = 0;
        p.Vitesse = b.Vitesse;
        points.push_back(p);
    }
}

PlaceFil Entre(const Film2D& film, std::size_t i, double instant) {
    const std::vector<PointProfil>& p = film.points.Points;
    PlaceFil place{i, p[i].X, p[i].Y, instant, p[i].Rapide, p[i].Vitesse};
    if (i + 1 >= p.size()) return place;
    place.vitesse = p[i + 1].Vitesse;
    const double duree = film.instants[i + 1] - film.instants[i];
    const double t = duree > 0 ? std::clamp((instant - film.instants[i]) / duree, 0.0, 1.0) : 0;
    place.X += (p[i + 1].X - p[i].X) * t;
    place.Y += (p[i + 1].Y - p[i].Y) * t;
    return place;
}

} // namespace

Sequence RedecouperSequence(const Sequence& sequence, float pas, std::size_t maximum) {
    Sequence fine = sequence;
    if (!(pas > 0) || !std::isfinite(pas) || sequence.Points.size() < 2) return fine;
    fine.Points.clear();
    fine.Points.push_back(sequence.Points.front());
    for (std::size_t i = 0; i + 1 < sequence.Points.size() && fine.Points.size() <= maximum; ++i) {
        const PointProfil& a = sequence.Points[i];
        const PointProfil& b = sequence.Points[i + 1];
        const double parts = std::ceil(static_cast<double>(Longueur(a, b)) / pas);
        if (parts > 1 && std::isfinite(parts))
            InsererEntre(fine.Points, a, b, static_cast<std::size_t>(parts), maximum);
        fine.Points.push_back(b);
    }
    CalculerBornesSequence(fine);
    return fine;
}

Film2D PreparerFilm(const Sequence& SequenceDecoupe) {
    Film2D film;
    film.points = RedecouperSequence(SequenceDecoupe, PasSimulation, PointsMaxDecoupe);
    if (film.points.Points.size() > PointsMaxDecoupe) {
        film.limite = true;
        film.points.Points.resize(PointsMaxDecoupe);
        CalculerBornesSequence(film.points);
        AfficherInformation(TextesMessages(MessagesTropDePoints), TitresMessages(MessagesTropDePoints));
    }
    const std::vector<PointProfil>& p = film.points.Points;
    film.instants.reserve(p.size());
    double instant = 0;
    for (std::size_t i = 0; i < p.size(); ++i) {
        // A segment without a speed takes no time: it is passed over, not waited for.
        if (i > 0 && p[i].Vitesse > 0)
            instant += static_cast<double>(Longueur(p[i - 1], p[i])) / p[i].Vitesse;
        film.instants.push_back(instant);
    }
    return film;
}

PlaceFil PlaceAInstant(const Film2D& film, double instant) {
    if (film.instants.empty()) return {};
    const double borne = instant > 0 ? std::min(instant, film.instants.back()) : 0;
    const auto apres = std::upper_bound(film.instants.begin(), film.instants.end(), borne);
    const auto i = static_cast<std::size_t>(std::max<std::ptrdiff_t>(apres - film.instants.begin() - 1, 0));
    return Entre(film, i, borne);
}

PlaceFil PlaceAuPoint(const Film2D& film, std::size_t point) {
    if (film.instants.empty()) return {};
    const std::size_t i = std::min(point, film.instants.size() - 1);
    return Entre(film, i, film.instants[i]);
}

double DureeFilm(const Film2D& film) {
    return film.instants.empty() ? 0 : film.instants.back();
}

std::string TexteInstant(double secondes) {
    const auto total = static_cast<long>(std::max(PartieEntiere(secondes), 0.0));
    const auto deux = [](long n) { return (n < 10 ? "0" : "") + std::to_string(n); };
    const std::string minutesSecondes = deux(total % 60);
    const long heures = total / 3600;
    const long minutes = total / 60 % 60;
    if (heures == 0) return std::to_string(minutes) + ":" + minutesSecondes;
    return std::to_string(heures) + ":" + deux(minutes) + ":" + minutesSecondes;
}

} // namespace tessarel
