// The stack of states: how one is taken up, what it shares with the one before, how it is given back.
#include "work2d/historique2d.h"

#include "app/texts/textes_programme.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"

#include <algorithm>
#include <functional>
#include <unordered_map>
#include <unordered_set>

namespace tessarel {

namespace {

// Only X and Y count in 2D as long as no record says otherwise: a third of the room.
bool SansAutreChamp(std::span<const PointProfil> points) {
    return std::all_of(points.begin(), points.end(), [](const PointProfil& p) {
        PointProfil nu;
        nu.X = p.X;
        nu.Y = p.Y;
        return p == nu;
    });
}

std::shared_ptr<const PointsPartages> TenirEntiers(std::span<const PointProfil> points) {
    auto tenus = std::make_shared<PointsPartages>();
    tenus->nombre = points.size();
    if (SansAutreChamp(points)) {
        tenus->places.reserve(points.size());
        for (const PointProfil& p : points) tenus->places.push_back({p.X, p.Y});
    } else {
        tenus->entiers.assign(points.begin(), points.end());
    }
    return tenus;
}

// Writes the points into `points`, in room it already has where there is enough.
void Rendre(const PointsPartages& tenus, std::vector<PointProfil>& points) {
    if (tenus.source) {
        Rendre(*tenus.source, points);
        TransformerPoints(points, tenus.transformation);
    } else if (!tenus.entiers.empty()) {
        points = tenus.entiers;
    } else {
        points.assign(tenus.places.size(), PointProfil());
        for (std::size_t i = 0; i < points.size(); ++i) {
            points[i].X = tenus.places[i].X;
            points[i].Y = tenus.places[i].Y;
        }
    }
}

// Compares what is held with what is there, field by field; `tampon` is room for a chain that has to be
// played.
bool Egaux(const PointsPartages& tenus, std::span<const PointProfil> points,
           std::vector<PointProfil>& tampon) {
    if (tenus.nombre != points.size()) return false;
    Rendre(tenus, tampon);
    return std::equal(points.begin(), points.end(), tampon.begin());
}

// A first look that costs nothing: the same number of points in the same box.
bool MemesBornes(const Sequence& a, const Sequence& b) {
    return a.XMin == b.XMin && a.XMax == b.XMax && a.YMin == b.YMin && a.YMax == b.YMax;
}

Sequence SansPoints(const Sequence& s) {
    Sequence bornes;
    bornes.XMin = s.XMin;
    bornes.XMax = s.XMax;
    bornes.YMin = s.YMin;
    bornes.YMax = s.YMax;
    bornes.Largeur = s.Largeur;
    bornes.Hauteur = s.Hauteur;
    bornes.Selection = s.Selection;
    return bornes;
}

using Points = std::shared_ptr<const PointsPartages>;

// Takes a state up against the one before: what stands at the same place there, what the announced
// transformation made of it, or what has moved up in the list.
class Preneur {
public:
    Preneur(const EtatTransformations* avant, const std::optional<Transformation>& derniere)
        : m_avant(avant), m_derniere(derniere) {}

    SequenceMemorisee Prendre(const Sequence& s, std::size_t rang) {
        SequenceMemorisee prise{nullptr, SansPoints(s)};
        if (m_avant != nullptr) {
            prise.points = EssayerEgale(s, m_suivante);
            if (!prise.points) prise.points = EssayerTransformation(s, rang);
            if (!prise.points) prise.points = ChercherEgale(s);
        }
        if (!prise.points) prise.points = TenirEntiers(s.Points);
        return prise;
    }

private:
    Points EssayerEgale(const Sequence& s, std::size_t i) {
        if (i >= m_avant->sequences.size()) return nullptr;
        const SequenceMemorisee& autre = m_avant->sequences[i];
        if (autre.points->nombre != s.Points.size() || !MemesBornes(autre.bornes, s)) return nullptr;
        if (!Egaux(*autre.points, s.Points, m_tampon)) return nullptr;
        m_suivante = i + 1;
        return autre.points;
    }

    Points EssayerTransformation(const Sequence& s, std::size_t rang) {
        if (!m_derniere || rang >= m_avant->sequences.size()) return nullptr;
        const Points& source = m_avant->sequences[rang].points;
        if (source->nombre != s.Points.size() || source->profondeur >= ProfondeurMaxi) return nullptr;
        auto tenus = std::make_shared<PointsPartages>();
        tenus->source = source;
        tenus->transformation = *m_derniere;
        tenus->nombre = source->nombre;
        tenus->profondeur = source->profondeur + 1;
        if (!Egaux(*tenus, s.Points, m_tampon)) return nullptr;
        m_suivante = rang + 1;
        return tenus;
    }

    Points ChercherEgale(const Sequence& s) {
        if (m_places.empty()) {
            for (std::size_t i = 0; i < m_avant->sequences.size(); ++i)
                m_places.emplace(Empreinte(m_avant->sequences[i].bornes), i);
        }
        const auto [debut, fin] = m_places.equal_range(Empreinte(s));
        for (auto place = debut; place != fin; ++place) {
            if (const Points egale = EssayerEgale(s, place->second)) return egale;
        }
        return nullptr;
    }

    static std::size_t Empreinte(const Sequence& s) {
        std::size_t h = 0;
        for (const float bord : {s.XMin, s.XMax, s.YMin, s.YMax}) h = h * 31 + std::hash<float>()(bord);
        return h;
    }

    const EtatTransformations* m_avant;
    const std::optional<Transformation>& m_derniere;
    std::size_t m_suivante = 0;
    std::unordered_multimap<std::size_t, std::size_t> m_places; // of the state before, by box
    std::vector<PointProfil> m_tampon;
};

std::size_t Position(const Historique2D& historique) {
    return static_cast<std::size_t>(std::max(Arrondi(historique.NbTransf), 1.0));
}

// The present state into the stack, at its position, where it is not there yet.
void Reprendre(Historique2D& historique, std::span<const Sequence> sequences, Bloc bloc, float coeffTransf) {
    const std::size_t position = Position(historique);
    const bool presente = historique.PileTransformations.size() >= position;
    if (presente && !historique.aReprendre) return;
    const EtatTransformations* avant = nullptr;
    if (position >= 2) avant = &historique.PileTransformations[position - 2];
    EtatTransformations etat;
    etat.bloc = bloc;
    etat.coeffTransf = coeffTransf;
    etat.sequences.reserve(sequences.size());
    Preneur preneur(avant, historique.derniere);
    for (std::size_t i = 0; i < sequences.size(); ++i)
        etat.sequences.push_back(preneur.Prendre(sequences[i], i));
    historique.PileTransformations.resize(position);
    historique.PileTransformations[position - 1] = std::move(etat);
    historique.aReprendre = false;
    historique.derniere.reset();
}

void RendreEtat(const EtatTransformations& etat, std::vector<Sequence>& sequences, Bloc& bloc,
                float& coeffTransf) {
    sequences.resize(etat.sequences.size());
    for (std::size_t i = 0; i < sequences.size(); ++i) {
        std::vector<PointProfil> points = std::move(sequences[i].Points);
        Rendre(*etat.sequences[i].points, points);
        sequences[i] = etat.sequences[i].bornes;
        sequences[i].Points = std::move(points);
    }
    bloc = etat.bloc;
    coeffTransf = etat.coeffTransf;
}

} // namespace

void MemoriserTransformation(Historique2D& historique, std::span<const Sequence> TableauSequences, Bloc bloc,
                             float coeffTransf) {
    // A selection made since the state was given back belongs to it: it is taken up anew, at no cost.
    historique.aReprendre = true;
    const std::size_t position = Position(historique);
    std::vector<EtatTransformations>& pile = historique.PileTransformations;
    historique.ecartes.clear();
    if (pile.size() > position) {
        const auto suite = pile.begin() + static_cast<std::ptrdiff_t>(position);
        historique.ecartes.assign(std::make_move_iterator(suite), std::make_move_iterator(pile.end()));
        pile.resize(position);
    }
    Reprendre(historique, TableauSequences, bloc, coeffTransf);
    historique.NbTransf = EnSimple(static_cast<double>(position) + 1);
    historique.aReprendre = true;
}

void AnnoncerTransformation(Historique2D& historique, const Transformation& transformation) {
    historique.derniere = transformation;
}

void OublierMemorisation(Historique2D& historique, std::span<const Sequence> TableauSequences, Bloc bloc) {
    const std::size_t position = Position(historique);
    if (position < 2 || historique.PileTransformations.size() + 1 != position) return;
    const EtatTransformations& avant = historique.PileTransformations.back();
    if (avant.bloc.BlocX != bloc.BlocX || avant.bloc.BlocY != bloc.BlocY) return;
    if (avant.sequences.size() != TableauSequences.size()) return;
    std::vector<PointProfil> tampon;
    for (std::size_t i = 0; i < TableauSequences.size(); ++i) {
        const Sequence& s = TableauSequences[i];
        if (!MemesBornes(avant.sequences[i].bornes, s)) return;
        if (!Egaux(*avant.sequences[i].points, s.Points, tampon)) return;
    }
    historique.NbTransf = EnSimple(static_cast<double>(position) - 1);
    // What the deed had dropped can be gone forward to again; the state before it is held as it stands.
    if (historique.ecartes.empty()) return;
    historique.PileTransformations.insert(historique.PileTransformations.end(),
                                          std::make_move_iterator(historique.ecartes.begin()),
                                          std::make_move_iterator(historique.ecartes.end()));
    historique.ecartes.clear();
    historique.aReprendre = false;
}

bool PeutAnnuler(const Historique2D& historique) {
    return historique.NbTransf >= 2;
}

bool PeutRefaire(const Historique2D& historique) {
    return Position(historique) < historique.PileTransformations.size();
}

bool cmdUndoTS2D(Historique2D& historique, SensHistorique sens, std::vector<Sequence>& TableauSequences,
                 Bloc& bloc, float& coeffTransf) {
    if (historique.NbTransf < 0) {
        AfficherCritique(Texte(TexteProgramme::PileTransformations), Texte(TexteProgramme::TitreErreur));
        TableauSequences.clear();
        historique = {};
        return true;
    }
    if (sens == SensHistorique::Arriere ? !PeutAnnuler(historique) : !PeutRefaire(historique)) return false;
    if (sens == SensHistorique::Arriere) Reprendre(historique, TableauSequences, bloc, coeffTransf);
    historique.NbTransf += sens == SensHistorique::Arriere ? -1.0F : 1.0F;
    RendreEtat(historique.PileTransformations[Position(historique) - 1], TableauSequences, bloc, coeffTransf);
    historique.aReprendre = false;
    return true;
}

std::size_t MemoireHistorique(const Historique2D& historique) {
    std::unordered_set<const PointsPartages*> vus;
    std::size_t octets = 0;
    const auto compter = [&](const PointsPartages* points) {
        for (; points != nullptr && vus.insert(points).second; points = points->source.get()) {
            octets += sizeof(PointsPartages) + points->places.capacity() * sizeof(PointDessin) +
                      points->entiers.capacity() * sizeof(PointProfil);
        }
    };
    for (const auto* etats : {&historique.PileTransformations, &historique.ecartes}) {
        for (const EtatTransformations& etat : *etats) {
            octets += sizeof(EtatTransformations) + etat.sequences.capacity() * sizeof(SequenceMemorisee);
            for (const SequenceMemorisee& sequence : etat.sequences) compter(sequence.points.get());
        }
    }
    return octets;
}

} // namespace tessarel
