// The stack of states: where in it the work stands, what a deed drops, when the present state is taken up.
#include "work2d/historique2d.h"

#include "app/texts/textes_programme.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"

#include <algorithm>
#include <unordered_set>

namespace tessarel {

namespace {

std::size_t Position(const Historique2D& historique) {
    return static_cast<std::size_t>(std::max(Arrondi(historique.NbTransf), 1.0));
}

// The present state into the stack, at its position, where it is not there yet. One that is there is taken up
// beside itself: only the selection can be another.
void Reprendre(Historique2D& historique, std::span<const Sequence> sequences, Bloc bloc, float coeffTransf) {
    const std::size_t position = Position(historique);
    std::vector<EtatTransformations>& pile = historique.PileTransformations;
    const bool presente = pile.size() >= position;
    if (presente && !historique.aReprendre) return;
    const EtatTransformations* avant = nullptr;
    if (presente) {
        avant = &pile[position - 1];
        historique.derniere.reset();
    } else if (position >= 2) {
        avant = &pile[position - 2];
    }
    EtatTransformations etat = PrendreEtat(avant, historique.derniere, sequences, bloc, coeffTransf);
    pile.resize(position);
    pile[position - 1] = std::move(etat);
    historique.aReprendre = false;
    historique.derniere.reset();
}

} // namespace

void MemoriserTransformation(Historique2D& historique, std::span<const Sequence> TableauSequences, Bloc bloc,
                             float coeffTransf) {
    // A selection made since the state was given back belongs to it.
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
    if (!MemesTraces(historique.PileTransformations.back(), TableauSequences, bloc)) return;
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
    std::unordered_set<const void*> vus;
    std::size_t octets = 0;
    for (const auto* etats : {&historique.PileTransformations, &historique.ecartes}) {
        octets += (etats->capacity() - etats->size()) * sizeof(EtatTransformations);
        for (const EtatTransformations& etat : *etats) octets += MemoireEtat(etat, vus);
    }
    return octets;
}

} // namespace tessarel
