// How shared points are read back, and how those of a new state are put together.
#include "work2d/points_memorises.h"

#include <algorithm>
#include <bit>

namespace tessarel {

namespace {

// Points brought in at a time: few enough to stay in the cache while a chain is played on them.
constexpr std::size_t PointsParBloc = 512;
// A path may have this many runs, and no more than one for so many of its points: past that, reading it back
// and naming the runs in each state costs more than holding it.
constexpr std::size_t TronconsMaxi = 64;
constexpr std::size_t PointsParTroncon = 4;

constexpr std::uint32_t PasEncore = 0xFFFFFFFF;

// The bits in which two numbers differ.
std::uint64_t Ecart(double a, double b) {
    return std::bit_cast<std::uint64_t>(a) ^ std::bit_cast<std::uint64_t>(b);
}

std::uint32_t Ecart(float a, float b) {
    return std::bit_cast<std::uint32_t>(a) ^ std::bit_cast<std::uint32_t>(b);
}

// Only X and Y count in 2D as long as no record says otherwise: a third of the room.
bool SansAutreChamp(std::span<const PointProfil> points) {
    return std::all_of(points.begin(), points.end(), [](const PointProfil& p) {
        PointProfil nu;
        nu.X = p.X;
        nu.Y = p.Y;
        return MemesBits(p, nu);
    });
}

std::size_t Longueur(const TronconPoints& troncon) {
    return static_cast<std::size_t>(std::abs(static_cast<std::int64_t>(troncon.nombre)));
}

// The part of a run from its `saut`-th point on.
TronconPoints Partie(TronconPoints troncon, std::size_t saut, std::size_t nombre) {
    const bool inverse = troncon.nombre < 0;
    const std::size_t decalage = inverse ? Longueur(troncon) - saut - nombre : saut;
    troncon.debut += static_cast<std::uint32_t>(decalage);
    troncon.nombre = static_cast<std::int32_t>(nombre);
    if (inverse) troncon.nombre = -troncon.nombre;
    return troncon;
}

void Copier(const PointDessin& place, PointProfil& point) {
    point = PointProfil();
    point.X = place.X;
    point.Y = place.Y;
}

void Copier(const PointProfil& tenu, PointProfil& point) {
    point = tenu;
}

template <typename Tenu>
void Copier(std::span<const Tenu> tenus, bool inverse, std::span<PointProfil> points) {
    const std::size_t nombre = tenus.size();
    for (std::size_t i = 0; i < nombre; ++i) Copier(tenus[inverse ? nombre - 1 - i : i], points[i]);
}

void Copier(const ReservePoints& reserve, const TronconPoints& troncon, std::span<PointProfil> points) {
    const bool inverse = troncon.nombre < 0;
    if (reserve.entiers.empty()) {
        Copier(std::span(reserve.places).subspan(troncon.debut, points.size()), inverse, points);
    } else {
        Copier(std::span(reserve.entiers).subspan(troncon.debut, points.size()), inverse, points);
    }
}

void Jouer(const SuiteTransformations* suite, std::span<PointProfil> points) {
    if (suite == nullptr) return;
    Jouer(suite->avant.get(), points);
    TransformerPoints(points, suite->transformation);
}

// Makes one run of two that follow each other in the same reserve, in the same direction.
bool Joindre(TronconPoints& a, const TronconPoints& b) {
    if (a.reserve != b.reserve || a.suite != b.suite) return false;
    const bool inverse = a.nombre < 0;
    if (inverse != (b.nombre < 0)) return false;
    if (inverse ? b.debut + Longueur(b) != a.debut : a.debut + Longueur(a) != b.debut) return false;
    if (inverse) a.debut = b.debut;
    a.nombre += b.nombre;
    return true;
}

} // namespace

std::size_t TronconsPermis(std::size_t points) {
    return std::clamp<std::size_t>(points / PointsParTroncon, 1, TronconsMaxi);
}

bool MemesBits(const PointProfil& a, const PointProfil& b) {
    // Without a branch for each field: nearly always all of them have to be looked at.
    const std::uint64_t doubles = Ecart(a.X, b.X) | Ecart(a.Y, b.Y) | Ecart(a.Z, b.Z);
    const std::uint32_t simples = Ecart(a.Vitesse, b.Vitesse) | Ecart(a.Vx, b.Vx) | Ecart(a.Vy, b.Vy) |
                                  Ecart(a.Duree, b.Duree) | Ecart(a.Decalage, b.Decalage);
    return (doubles | simples) == 0 && a.Drapeaux == b.Drapeaux && a.Rapide == b.Rapide;
}

LecteurPoints::LecteurPoints(const PointsMemorises& points) : m_points(points) {
    m_debuts.reserve(points.troncons.size() + 1);
    std::size_t place = 0;
    for (const TronconPoints& troncon : points.troncons) {
        m_debuts.push_back(place);
        place += Longueur(troncon);
    }
    m_debuts.push_back(place);
}

std::size_t LecteurPoints::TronconDe(std::size_t place) const {
    const auto apres = std::upper_bound(m_debuts.begin(), m_debuts.end(), place);
    return static_cast<std::size_t>(apres - m_debuts.begin()) - 1;
}

void LecteurPoints::Charger(std::size_t place) {
    m_debutBloc = place / PointsParBloc * PointsParBloc;
    m_bloc.resize(PointsParBloc);
    m_dansBloc = std::min(PointsParBloc, Nombre() - m_debutBloc);
    const std::size_t fin = m_debutBloc + m_dansBloc;
    std::size_t rang = TronconDe(m_debutBloc);
    std::size_t aJouer = m_debutBloc; // from here on the points wait for the chain of their runs
    for (std::size_t ici = m_debutBloc; ici < fin; ici = m_debuts[++rang]) {
        const TronconPoints& troncon = m_points.troncons[rang];
        const std::size_t nombre = std::min(fin, m_debuts[rang + 1]) - ici;
        Copier(*m_points.reserves[troncon.reserve], Partie(troncon, ici - m_debuts[rang], nombre),
               std::span(m_bloc).subspan(ici - m_debutBloc, nombre));
        const std::size_t apres = ici + nombre;
        if (apres < fin && m_points.troncons[rang + 1].suite == troncon.suite) continue;
        Jouer(m_points.suites[troncon.suite].get(),
              std::span(m_bloc).subspan(aJouer - m_debutBloc, apres - aJouer));
        aJouer = apres;
    }
}

PointProfil LecteurPoints::Point(std::size_t place) const {
    const std::size_t rang = TronconDe(place);
    const TronconPoints troncon = Partie(m_points.troncons[rang], place - m_debuts[rang], 1);
    PointProfil point;
    Copier(*m_points.reserves[troncon.reserve], troncon, {&point, 1});
    Jouer(m_points.suites[troncon.suite].get(), {&point, 1});
    return point;
}

bool LecteurPoints::EstDansBloc(std::size_t place) const {
    return place >= m_debutBloc && place < m_debutBloc + m_dansBloc;
}

std::span<const PointProfil> LecteurPoints::Lire(std::size_t place, std::size_t nombre) {
    nombre = std::min(nombre, Nombre() - std::min(place, Nombre()));
    if (nombre == 0) return {};
    if (!EstDansBloc(place)) Charger(place);
    const auto reste = std::span<const PointProfil>(m_bloc).first(m_dansBloc).subspan(place - m_debutBloc);
    return reste.first(std::min(nombre, reste.size()));
}

std::span<const PointProfil> LecteurPoints::LireAvant(std::size_t fin, std::size_t nombre) {
    if (nombre == 0 || fin == 0 || fin > Nombre()) return {};
    if (!EstDansBloc(fin - 1)) Charger(fin - 1);
    const auto lus = std::span<const PointProfil>(m_bloc).first(fin - m_debutBloc);
    return lus.last(std::min(nombre, lus.size()));
}

void LecteurPoints::Extraire(std::size_t place, std::size_t nombre,
                             std::vector<TronconPoints>& troncons) const {
    const std::size_t fin = place + nombre;
    std::size_t rang = nombre == 0 ? 0 : TronconDe(place);
    for (std::size_t ici = place; ici < fin; ici = m_debuts[++rang]) {
        const std::size_t pris = std::min(fin, m_debuts[rang + 1]) - ici;
        troncons.push_back(Partie(m_points.troncons[rang], ici - m_debuts[rang], pris));
    }
}

EcrivainPoints::EcrivainPoints(const LecteurPoints* source,
                               const std::optional<Transformation>& transformation)
    : m_source(source), m_transformation(transformation) {
    if (source == nullptr) return;
    m_reserves.assign(source->Source().reserves.size(), PasEncore);
    m_suites.assign(source->Source().suites.size(), PasEncore);
    m_suitesAllongees = m_suites;
}

std::uint32_t EcrivainPoints::Reserve(std::uint32_t rang) {
    std::uint32_t& ici = m_reserves[rang];
    if (ici == PasEncore) {
        ici = static_cast<std::uint32_t>(m_faits.reserves.size());
        m_faits.reserves.push_back(m_source->Source().reserves[rang]);
    }
    return ici;
}

std::uint32_t EcrivainPoints::Suite(std::uint32_t rang) {
    const auto& suite = m_source->Source().suites[rang];
    std::uint32_t& ici = m_suites[rang];
    if (ici != PasEncore) return ici;
    if (suite == nullptr && m_sansSuite) return ici = *m_sansSuite;
    ici = static_cast<std::uint32_t>(m_faits.suites.size());
    m_faits.suites.push_back(suite);
    if (suite == nullptr) m_sansSuite = ici;
    return ici;
}

std::uint32_t EcrivainPoints::SuiteAllongee(std::uint32_t rang) {
    std::uint32_t& ici = m_suitesAllongees[rang];
    if (ici == PasEncore) {
        auto suite = std::make_shared<SuiteTransformations>();
        suite->avant = m_source->Source().suites[rang];
        suite->transformation = *m_transformation;
        suite->profondeur = suite->avant ? suite->avant->profondeur + 1 : 1;
        ici = static_cast<std::uint32_t>(m_faits.suites.size());
        m_faits.suites.push_back(std::move(suite));
    }
    return ici;
}

void EcrivainPoints::Ajouter(TronconPoints troncon) {
    if (m_faits.troncons.empty() || !Joindre(m_faits.troncons.back(), troncon))
        m_faits.troncons.push_back(troncon);
}

void EcrivainPoints::Partager(std::size_t place, std::size_t nombre) {
    m_extraits.clear();
    m_source->Extraire(place, nombre, m_extraits);
    for (TronconPoints troncon : m_extraits) {
        troncon.reserve = Reserve(troncon.reserve);
        troncon.suite = Suite(troncon.suite);
        Ajouter(troncon);
    }
}

bool EcrivainPoints::Transformer(std::size_t place, std::size_t nombre) {
    m_extraits.clear();
    m_source->Extraire(place, nombre, m_extraits);
    const bool sens = m_transformation->genre == GenreTransformation::Sens;
    for (const TronconPoints& troncon : m_extraits) {
        const SuiteTransformations* suite = m_source->Source().suites[troncon.suite].get();
        if (!sens && suite != nullptr && suite->profondeur >= ProfondeurMaxi) return false;
    }
    if (sens) std::reverse(m_extraits.begin(), m_extraits.end());
    for (TronconPoints troncon : m_extraits) {
        troncon.reserve = Reserve(troncon.reserve);
        troncon.suite = sens ? Suite(troncon.suite) : SuiteAllongee(troncon.suite);
        if (sens) troncon.nombre = -troncon.nombre;
        Ajouter(troncon);
    }
    return true;
}

void EcrivainPoints::Tenir(std::span<const PointProfil> points) {
    if (points.empty()) return;
    Nouveaux& nouveaux = SansAutreChamp(points) ? m_places : m_entiers;
    if (!nouveaux.reserve) {
        nouveaux.reserve = static_cast<std::uint32_t>(m_faits.reserves.size());
        m_faits.reserves.push_back(nullptr);
    }
    if (!m_sansSuite) {
        m_sansSuite = static_cast<std::uint32_t>(m_faits.suites.size());
        m_faits.suites.push_back(nullptr);
    }
    Ajouter({*nouveaux.reserve, *m_sansSuite, static_cast<std::uint32_t>(nouveaux.nombre),
             static_cast<std::int32_t>(points.size())});
    nouveaux.points.push_back(points);
    nouveaux.nombre += points.size();
}

PointsMemorises EcrivainPoints::Finir() {
    if (m_places.reserve) {
        auto reserve = std::make_shared<ReservePoints>();
        reserve->places.reserve(m_places.nombre);
        for (const auto points : m_places.points)
            for (const PointProfil& p : points) reserve->places.push_back({p.X, p.Y});
        m_faits.reserves[*m_places.reserve] = std::move(reserve);
    }
    if (m_entiers.reserve) {
        auto reserve = std::make_shared<ReservePoints>();
        reserve->entiers.reserve(m_entiers.nombre);
        for (const auto points : m_entiers.points)
            reserve->entiers.insert(reserve->entiers.end(), points.begin(), points.end());
        m_faits.reserves[*m_entiers.reserve] = std::move(reserve);
    }
    m_faits.reserves.shrink_to_fit();
    m_faits.suites.shrink_to_fit();
    m_faits.troncons.shrink_to_fit();
    return std::move(m_faits);
}

} // namespace tessarel
