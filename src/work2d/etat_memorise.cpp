// Taking a state up: where each path comes from; and giving it back.
#include "work2d/etat_memorise.h"

#include "paths/bornes.h"

#include <algorithm>
#include <bit>
#include <unordered_map>

namespace tessarel {

namespace {

// A beginning and an end of fewer points than this are not worth a run of their own.
constexpr std::size_t PartageMini = 16;

// Bytes of tables that any state may have.
constexpr std::size_t TablesMini = 65536;

using Points = std::span<const PointProfil>;

bool TousMemesBits(Points a, Points b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), MemesBits);
}

// Compares what stands in a state from a place on with points that are there.
bool Egaux(LecteurPoints& lecteur, std::size_t place, Points points) {
    while (!points.empty()) {
        const Points lus = lecteur.Lire(place, points.size());
        if (lus.empty() || !TousMemesBits(lus, points.first(lus.size()))) return false;
        place += lus.size();
        points = points.subspan(lus.size());
    }
    return true;
}

bool EgauxInverses(LecteurPoints& lecteur, std::size_t fin, Points points) {
    while (!points.empty()) {
        const Points lus = lecteur.LireAvant(fin, points.size());
        if (lus.empty()) return false;
        if (!std::equal(lus.rbegin(), lus.rend(), points.begin(), MemesBits)) return false;
        fin -= lus.size();
        points = points.subspan(lus.size());
    }
    return true;
}

// How many points at the beginning are those from `place` on.
std::size_t DebutCommun(LecteurPoints& lecteur, std::size_t place, Points points) {
    std::size_t communs = 0;
    while (communs < points.size()) {
        const Points lus = lecteur.Lire(place + communs, points.size() - communs);
        const Points ici = points.subspan(communs);
        const auto ecart = std::mismatch(lus.begin(), lus.end(), ici.begin(), MemesBits).first;
        communs += static_cast<std::size_t>(ecart - lus.begin());
        if (ecart != lus.end() || lus.empty()) break;
    }
    return communs;
}

// How many at the end are those before `fin`.
std::size_t FinCommune(LecteurPoints& lecteur, std::size_t fin, Points points) {
    std::size_t communs = 0;
    while (communs < points.size()) {
        const Points lus = lecteur.LireAvant(fin - communs, points.size() - communs);
        const Points ici = points.first(points.size() - communs);
        const auto ecart = std::mismatch(lus.rbegin(), lus.rend(), ici.rbegin(), MemesBits).first;
        communs += static_cast<std::size_t>(ecart - lus.rbegin());
        if (ecart != lus.rend() || lus.empty()) break;
    }
    return communs;
}

std::size_t Empreinte(std::size_t nombre, const PointProfil& premier, const PointProfil& dernier) {
    std::uint64_t h = nombre;
    for (const double valeur : {premier.X, premier.Y, dernier.X, dernier.Y}) {
        h ^= std::bit_cast<std::uint64_t>(valeur);
        h *= 0x9E3779B97F4A7C15; // spreads what differs in few bits
        h ^= h >> 32U;
    }
    return h;
}

// The state before, path by path.
class TracesAvant {
public:
    explicit TracesAvant(const EtatTransformations& etat) : m_etat(etat), m_lecteur(*etat.points) {
        m_places.reserve(Nombre());
        std::size_t place = 0;
        for (const std::uint32_t longueur : *etat.longueurs) {
            m_places.push_back(place);
            place += longueur;
        }
    }

    [[nodiscard]] std::size_t Nombre() const { return m_etat.longueurs->size(); }
    [[nodiscard]] std::size_t Longueur(std::size_t rang) const { return (*m_etat.longueurs)[rang]; }
    [[nodiscard]] std::size_t Place(std::size_t rang) const { return m_places[rang]; }
    LecteurPoints& Lecteur() { return m_lecteur; }

    // The path that a transformation would have made into the one at `rang` of the new state: the one at the
    // same place, or the selected one whose copy would stand there.
    std::size_t SourceDe(std::size_t rang) {
        if (rang < Nombre()) return rang;
        if (!m_choisies) {
            m_choisies.emplace();
            for (std::size_t i = 0; i < Nombre(); ++i)
                if (((*m_etat.selections)[i] & SelectionSequence) != 0) m_choisies->push_back(i);
        }
        const std::size_t copie = rang - Nombre();
        return copie < m_choisies->size() ? (*m_choisies)[copie] : Nombre();
    }

    // The first path with these points, the number of paths where there is none.
    std::size_t Chercher(Points points) {
        if (points.empty()) return Nombre();
        if (!m_parEmpreinte) Indexer();
        const auto [debut, fin] =
            m_parEmpreinte->equal_range(Empreinte(points.size(), points.front(), points.back()));
        for (auto trace = debut; trace != fin; ++trace) {
            const std::size_t rang = trace->second;
            if (Longueur(rang) == points.size() && Egaux(m_lecteur, Place(rang), points)) return rang;
        }
        return Nombre();
    }

private:
    void Indexer() {
        m_parEmpreinte.emplace();
        m_parEmpreinte->reserve(Nombre());
        for (std::size_t i = 0; i < Nombre(); ++i) {
            if (Longueur(i) == 0) continue;
            const PointProfil premier = m_lecteur.Point(Place(i));
            const PointProfil dernier = m_lecteur.Point(Place(i) + Longueur(i) - 1);
            m_parEmpreinte->emplace(Empreinte(Longueur(i), premier, dernier), i);
        }
    }

    const EtatTransformations& m_etat;
    LecteurPoints m_lecteur;
    std::vector<std::size_t> m_places;
    std::optional<std::vector<std::size_t>> m_choisies;
    std::optional<std::unordered_multimap<std::size_t, std::size_t>> m_parEmpreinte;
};

// Finds for each path, in the order of the list, where its points come from.
class Preneur {
public:
    Preneur(TracesAvant* avant, const std::optional<Transformation>& derniere)
        : m_avant(avant), m_derniere(derniere),
          m_ecrivain(avant != nullptr ? &avant->Lecteur() : nullptr, derniere) {}

    void Prendre(std::size_t rang, Points points) {
        const bool partage =
            m_avant != nullptr &&
            (EssayerEgale(m_suivante, points) || EssayerTransformee(rang, points) ||
             EssayerAilleurs(points) || EssayerRaccord(m_suivante, points) ||
             (m_suivante > 0 && EssayerRaccord(m_suivante - 1, points)) || EssayerRaccord(rang, points));
        if (!partage) m_ecrivain.Tenir(points);
    }

    PointsMemorises Finir() { return m_ecrivain.Finir(); }

private:
    bool EssayerEgale(std::size_t source, Points points) {
        if (source >= m_avant->Nombre() || m_avant->Longueur(source) != points.size()) return false;
        if (!Egaux(m_avant->Lecteur(), m_avant->Place(source), points)) return false;
        Partager(source, points);
        return true;
    }

    bool EssayerAilleurs(Points points) {
        const std::size_t source = m_avant->Chercher(points);
        if (source == m_avant->Nombre()) return false;
        Partager(source, points);
        return true;
    }

    void Partager(std::size_t source, Points points) {
        m_ecrivain.Partager(m_avant->Place(source), points.size());
        m_suivante = source + 1;
    }

    bool EssayerTransformee(std::size_t rang, Points points) {
        if (!m_derniere) return false;
        const std::size_t source = m_avant->SourceDe(rang);
        if (source >= m_avant->Nombre() || m_avant->Longueur(source) != points.size()) return false;
        if (!EgauxTransformes(m_avant->Place(source), points)) return false;
        m_suivante = source + 1; // also where it is held anew: the next one stands after it
        if (!m_ecrivain.Transformer(m_avant->Place(source), points.size())) m_ecrivain.Tenir(points);
        return true;
    }

    bool EgauxTransformes(std::size_t place, Points points) {
        LecteurPoints& lecteur = m_avant->Lecteur();
        if (m_derniere->genre == GenreTransformation::Sens)
            return EgauxInverses(lecteur, place + points.size(), points);
        while (!points.empty()) {
            const Points lus = lecteur.Lire(place, points.size());
            m_tampon.assign(lus.begin(), lus.end());
            TransformerPoints(m_tampon, *m_derniere);
            if (lus.empty() || !TousMemesBits(m_tampon, points.first(lus.size()))) return false;
            place += lus.size();
            points = points.subspan(lus.size());
        }
        return true;
    }

    // A path whose beginning and end are those of another, with other points between, or none.
    bool EssayerRaccord(std::size_t source, Points points) {
        if (source >= m_avant->Nombre()) return false;
        const std::size_t communs = std::min(m_avant->Longueur(source), points.size());
        if (communs < PartageMini) return false;
        LecteurPoints& lecteur = m_avant->Lecteur();
        const std::size_t place = m_avant->Place(source);
        const std::size_t fin = place + m_avant->Longueur(source);
        // Most paths that are tried share neither end; finding that out must not cost a block.
        if (!MemesBits(lecteur.Point(place), points.front()) &&
            !MemesBits(lecteur.Point(fin - 1), points.back()))
            return false;
        const std::size_t debut = DebutCommun(lecteur, place, points.first(communs));
        const std::size_t queue = FinCommune(lecteur, fin, points.last(communs - debut));
        if (debut + queue < PartageMini) return false;
        m_troncons.clear();
        lecteur.Extraire(place, debut, m_troncons);
        lecteur.Extraire(fin - queue, queue, m_troncons);
        if (m_troncons.size() + 1 > TronconsPermis(points.size())) return false;
        m_ecrivain.Partager(place, debut);
        m_ecrivain.Tenir(points.subspan(debut, points.size() - debut - queue));
        m_ecrivain.Partager(fin - queue, queue);
        m_suivante = source + 1;
        return true;
    }

    TracesAvant* m_avant;
    const std::optional<Transformation>& m_derniere;
    EcrivainPoints m_ecrivain;
    std::size_t m_suivante = 0; // path of the state before that is the next to be expected
    std::vector<PointProfil> m_tampon;
    std::vector<TronconPoints> m_troncons;
};

// The table of the state before where it is the same, else a new one.
template <typename Table>
std::shared_ptr<const Table> Partagee(const std::shared_ptr<const Table>& avant, Table&& table) {
    if (avant && *avant == table) return avant;
    return std::make_shared<const Table>(std::forward<Table>(table));
}

bool MemesBornes(const Sequence& a, const Sequence& b) {
    const auto meme = [](float x, float y) {
        return std::bit_cast<std::uint32_t>(x) == std::bit_cast<std::uint32_t>(y);
    };
    return meme(a.XMin, b.XMin) && meme(a.XMax, b.XMax) && meme(a.YMin, b.YMin) && meme(a.YMax, b.YMax) &&
           meme(a.Largeur, b.Largeur) && meme(a.Hauteur, b.Hauteur);
}

// Boxes that giving back would not find again by itself.
std::shared_ptr<const std::vector<Sequence>> PrendreBornes(std::span<const Sequence> sequences) {
    const bool calculees = std::all_of(sequences.begin(), sequences.end(), [](const Sequence& s) {
        return MemesBornes(s, BornesDesPoints(s.Points));
    });
    if (calculees) return nullptr;
    std::vector<Sequence> bornes(sequences.size());
    for (std::size_t i = 0; i < sequences.size(); ++i) CopierBornes(sequences[i], bornes[i]);
    return std::make_shared<const std::vector<Sequence>>(std::move(bornes));
}

// Room that a longer path left behind is given up: it would stay for as long as the project.
void ViderPour(std::vector<PointProfil>& points, std::size_t nombre) {
    if (points.capacity() / 2 > nombre) points = std::vector<PointProfil>();
    points.clear();
    points.reserve(nombre);
}

template <typename Partage>
std::size_t MemoirePartagee(const std::shared_ptr<const Partage>& partage, std::size_t contenu,
                            std::unordered_set<const void*>& vus) {
    // Two counters stand before what is shared.
    return vus.insert(partage.get()).second ? sizeof(Partage) + 2 * sizeof(void*) + contenu : 0;
}

template <typename Element>
std::size_t Octets(const std::vector<Element>& table) {
    return table.capacity() * sizeof(Element);
}

std::size_t MemoirePoints(const PointsMemorises& points, std::unordered_set<const void*>& vus) {
    std::size_t octets = 0;
    for (const auto& reserve : points.reserves)
        octets += MemoirePartagee(reserve, Octets(reserve->places) + Octets(reserve->entiers), vus);
    for (const auto& suite : points.suites) {
        for (const auto* s = &suite; *s != nullptr; s = &(*s)->avant) octets += MemoirePartagee(*s, 0, vus);
    }
    return octets;
}

// What naming the points of a state costs, beside the points themselves.
std::size_t MemoireTables(const PointsMemorises& points) {
    constexpr std::size_t OctetsSuite = sizeof(SuiteTransformations) + 2 * sizeof(void*);
    return Octets(points.reserves) + Octets(points.suites) + points.suites.size() * OctetsSuite +
           Octets(points.troncons);
}

PointsMemorises ToutTenir(std::span<const Sequence> sequences) {
    EcrivainPoints ecrivain(nullptr, std::nullopt);
    for (const Sequence& s : sequences) ecrivain.Tenir(s.Points);
    return ecrivain.Finir();
}

} // namespace

EtatTransformations PrendreEtat(const EtatTransformations* avant,
                                const std::optional<Transformation>& derniere,
                                std::span<const Sequence> sequences, Bloc bloc, float coeffTransf) {
    EtatTransformations etat;
    etat.bloc = bloc;
    etat.coeffTransf = coeffTransf;
    etat.bornes = PrendreBornes(sequences);
    std::vector<std::uint32_t> longueurs(sequences.size());
    std::vector<std::uint8_t> selections(sequences.size());
    std::optional<TracesAvant> traces;
    if (avant != nullptr) traces.emplace(*avant);
    Preneur preneur(traces ? &*traces : nullptr, derniere);
    std::size_t nombre = 0;
    for (std::size_t i = 0; i < sequences.size(); ++i) {
        longueurs[i] = static_cast<std::uint32_t>(sequences[i].Points.size());
        selections[i] = sequences[i].Selection;
        nombre += longueurs[i];
        preneur.Prendre(i, sequences[i].Points);
    }
    PointsMemorises points = preneur.Finir();
    // Thousands of tiny paths, each with a past of its own: at some point they are cheaper whole.
    if (MemoireTables(points) > nombre * sizeof(PointDessin) / 2 + TablesMini) points = ToutTenir(sequences);
    const EtatTransformations rien;
    const EtatTransformations& ancien = avant != nullptr ? *avant : rien;
    etat.points = Partagee(ancien.points, std::move(points));
    etat.longueurs = Partagee(ancien.longueurs, std::move(longueurs));
    etat.selections = Partagee(ancien.selections, std::move(selections));
    return etat;
}

void RendreEtat(const EtatTransformations& etat, std::vector<Sequence>& sequences, Bloc& bloc,
                float& coeffTransf) {
    LecteurPoints lecteur(*etat.points);
    const std::vector<std::uint32_t>& longueurs = *etat.longueurs;
    sequences.resize(longueurs.size());
    std::size_t place = 0;
    for (std::size_t i = 0; i < longueurs.size(); ++i) {
        std::vector<PointProfil>& points = sequences[i].Points;
        ViderPour(points, longueurs[i]);
        while (points.size() < longueurs[i]) {
            const Points lus = lecteur.Lire(place, longueurs[i] - points.size());
            points.insert(points.end(), lus.begin(), lus.end());
            place += lus.size();
        }
        CopierBornes(etat.bornes ? (*etat.bornes)[i] : BornesDesPoints(points), sequences[i]);
        sequences[i].Selection = (*etat.selections)[i];
    }
    bloc = etat.bloc;
    coeffTransf = etat.coeffTransf;
}

bool MemesTraces(const EtatTransformations& etat, std::span<const Sequence> sequences, Bloc bloc) {
    if (etat.bloc.BlocX != bloc.BlocX || etat.bloc.BlocY != bloc.BlocY) return false;
    if (etat.longueurs->size() != sequences.size()) return false;
    LecteurPoints lecteur(*etat.points);
    std::size_t place = 0;
    for (std::size_t i = 0; i < sequences.size(); ++i) {
        const Points points = sequences[i].Points;
        if ((*etat.longueurs)[i] != points.size() || !Egaux(lecteur, place, points)) return false;
        place += points.size();
    }
    return true;
}

std::size_t MemoireEtat(const EtatTransformations& etat, std::unordered_set<const void*>& vus) {
    std::size_t octets = sizeof(EtatTransformations);
    if (etat.points != nullptr) {
        const PointsMemorises& points = *etat.points;
        octets += MemoirePartagee(
            etat.points, Octets(points.reserves) + Octets(points.suites) + Octets(points.troncons), vus);
        octets += MemoirePoints(points, vus);
    }
    if (etat.longueurs) octets += MemoirePartagee(etat.longueurs, Octets(*etat.longueurs), vus);
    if (etat.selections) octets += MemoirePartagee(etat.selections, Octets(*etat.selections), vus);
    if (etat.bornes) octets += MemoirePartagee(etat.bornes, Octets(*etat.bornes), vus);
    return octets;
}

} // namespace tessarel
