// The table of the tools of the design window: name of the control, what it takes, what it does.
#include "app/settings/parametres.h"
#include "design4x/aile.h"
#include "design4x/bloc.h"
#include "design4x/compteurs.h"
#include "design4x/conception_cpx.h"
#include "design4x/decaler.h"
#include "design4x/dupliquer.h"
#include "design4x/edition_points.h"
#include "design4x/intersection.h"
#include "design4x/lissage.h"
#include "design4x/mesurer.h"
#include "design4x/nettoyage.h"
#include "design4x/synchronisation.h"
#include "design4x/transformations.h"

#include <algorithm>
#include <array>

namespace tessarel {

namespace {

using C = ConceptionCPX;

bool ChoisirMode(C& c, int index, double) {
    c.ModeSelection = ModesSelection[static_cast<std::size_t>(index)];
    return true;
}

bool ChoisirCordes(C& c, int, double) {
    c.ModeSelection = DrapeauCorde;
    return true;
}

bool Mesurer(C& c, int, double) {
    c.lblStatusBarCPX = cmdMesurerCPX(c.projet, c.ModeSelection);
    return true;
}

// The cleaning asks what it needs, and a cleaning that finds nothing to do is done all the same.
bool Nettoyer(C& c, int, double) {
    cmdNettoyage(c.projet, Parametres.DistNettoyage);
    LimiterCompteurs(c.projet);
    return true;
}

bool Lisser(C& c, int, double) {
    cmdLisser(c.projet, Parametres.DistNettoyage);
    return true;
}

bool Synchroniser(C& c, int, double) {
    c.ModeSelection = DrapeauSynchro;
    if (!cmdSynchroOptimale(c.projet)) return false;
    InitialiserScrollbarsSuivantNbPoints(c.projet);
    return true;
}

// A field of the block window: the same routine for each, told apart by its name.
template <std::size_t N>
struct Nom {
    char texte[N] = {};
    constexpr Nom(const char (&t)[N]) { std::copy_n(t, N, texte); } // NOLINT: a name is written as its text
};
template <Nom controle>
constexpr OutilCPX ChampDuBloc() {
    OutilCPX outil{controle.texte, 0, true};
    outil.appliquer = [](C& c, int, double v) { return DefinirChampBloc(c.projet, controle.texte, v); };
    return outil;
}

constexpr bool Memo = true;
constexpr bool SansMemo = false;

constexpr auto Outils = std::to_array<OutilCPX>({
    // control, indices, takes a value, from which index on, snapshot before, snapshot after
    {"optSelection", 5, false, 0, SansMemo, SansMemo, ChoisirMode},
    {"chkSelectionPointsCordes", 0, false, 0, SansMemo, SansMemo, ChoisirCordes},
    {"cmdSelectAll", 2, false, 0, SansMemo, Memo,
     [](C& c, int i, double) { return cmdSelectAll(c.projet, i, c.ModeSelection); }},
    {"cmdRAZSelection", 2, false, 0, SansMemo, Memo,
     [](C& c, int i, double) { return cmdRAZSelection(c.projet, i, c.ModeSelection); }},
    {"cmdSelectionAuto", 4, false, 0, Memo, Memo,
     [](C& c, int i, double) { return cmdSelectionAuto(c.projet, i, c.ModeSelection); }},
    {"cmdSelectionAngle", 2, false, 0, SansMemo, Memo,
     [](C& c, int i, double) { return cmdSelectionAngle(c.projet, i, c.ModeSelection); }},
    {"txtDeplacer", 2, true, 0, SansMemo, Memo,
     [](C& c, int i, double v) { return txtDeplacer(c.projet, i, v); }},
    {"txtEtirer", 2, true, 0, SansMemo, Memo,
     [](C& c, int i, double v) { return txtEtirer(c.projet, i, v); }},
    {"txtTourner", 0, true, 0, SansMemo, Memo, [](C& c, int, double v) { return txtTourner(c.projet, v); }},
    {"cmdSymetrie", 2, false, 0, SansMemo, Memo,
     [](C& c, int i, double) { return cmdSymetrie(c.projet, i); }},
    {"cmdSupprimer", 0, false, 0, SansMemo, Memo, [](C& c, int, double) { return cmdSupprimer(c.projet); }},
    {"cmdInsererPoint", 0, false, 0, SansMemo, Memo,
     [](C& c, int, double) { return cmdInsererPoint(c.projet); }},
    {"cmdMesurerCPX", 0, false, 0, SansMemo, SansMemo, Mesurer},
    {"txtCorde", 2, true, 0, SansMemo, Memo, [](C& c, int i, double v) { return txtCorde(c.projet, i, v); }},
    {"txtEcartementZ", 0, true, 0, SansMemo, Memo,
     [](C& c, int, double v) { return txtEcartementZ(c.projet, v); }},
    {"txtFleche", 0, true, 0, SansMemo, Memo, [](C& c, int, double v) { return txtFleche(c.projet, v); }},
    {"cmdFleche", 3, false, 0, SansMemo, Memo, [](C& c, int i, double) { return cmdFleche(c.projet, i); }},
    {"txtDiedreMm", 0, true, 0, SansMemo, Memo, [](C& c, int, double v) { return txtDiedreMm(c.projet, v); }},
    {"cmdDiedre", 5, false, 0, SansMemo, Memo, [](C& c, int i, double) { return cmdDiedre(c.projet, i); }},
    {"txtDiedreDeg", 0, true, 0, SansMemo, Memo,
     [](C& c, int, double v) { return txtDiedreDeg(c.projet, v); }},
    {"cmdAligner", 0, false, 0, SansMemo, Memo, [](C& c, int, double) { return cmdAligner(c.projet); }},
    {"txtDecaler", 0, true, 0, SansMemo, Memo, [](C& c, int, double v) { return txtDecaler(c.projet, v); }},
    {"cmdInverserSelection", 0, false, 0, SansMemo, Memo,
     [](C& c, int, double) { return cmdInverserSelection(c.projet); }},
    {"cmdRenumeroter", 0, false, 0, SansMemo, Memo,
     [](C& c, int, double) { return cmdRenumeroter(c.projet); }},
    {"cmdInverserProfilsES", 0, false, 0, SansMemo, Memo,
     [](C& c, int, double) { return cmdInverserProfilsES(c.projet); }},
    {"cmdFermerProfil", 2, false, 0, SansMemo, Memo,
     [](C& c, int i, double) { return cmdFermerProfil(c.projet, i); }},
    {"cmdCopier", 0, false, 0, SansMemo, Memo,
     [](C& c, int, double) { return cmdCopier(c.projet, c.copie); }},
    {"cmdCouper", 0, false, 0, SansMemo, Memo,
     [](C& c, int, double) { return cmdCouper(c.projet, c.copie); }},
    {"cmdColler", 0, false, 0, Memo, Memo, [](C& c, int, double) { return cmdColler(c.projet, c.copie); }},
    {"cmdDupliquer", 2, true, 1, SansMemo, Memo,
     [](C& c, int i, double v) { return cmdDupliquer(c.projet, i, v); }},
    {"cmdSynchroOptimale", 0, false, 0, SansMemo, Memo, Synchroniser},
    {"cmdNettoyage", 0, false, 0, Memo, Memo, Nettoyer},
    {"cmdLisser", 0, false, 0, Memo, Memo, Lisser},
    {"cmdIntersection", 0, false, 0, Memo, Memo,
     [](C& c, int, double) { return cmdIntersection(c.projet) == IssueIntersection::Faite; }},
    {"cmdUndoCPX", 2, false, 0, SansMemo, SansMemo, [](C& c, int i, double) { return cmdUndoCPX(c, i); }},
    {"cmdBlocAuto", 6, false, 0, SansMemo, Memo,
     [](C& c, int i, double) { return cmdBlocAuto(c.projet, i); }},
    ChampDuBloc<"txtEpaisseurBloc">(),
    ChampDuBloc<"txtMargeBA_E">(),
    ChampDuBloc<"txtMargeBA_S">(),
    ChampDuBloc<"txtMargeBF_E">(),
    ChampDuBloc<"txtMargeBF_S">(),
    ChampDuBloc<"txtDistProfilDessous_E">(),
});

} // namespace

std::span<const OutilCPX> OutilsCPX() {
    return Outils;
}

const OutilCPX* TrouverOutilCPX(std::string_view controle) {
    const auto trouve =
        std::find_if(Outils.begin(), Outils.end(), [&](const OutilCPX& o) { return controle == o.controle; });
    return trouve == Outils.end() ? nullptr : &*trouve;
}

} // namespace tessarel
