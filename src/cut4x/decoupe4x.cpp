// The conductor of the 4-axis cut: its stages, one after the other.
#include "cut4x/decoupe4x.h"
#include "cut4x/decalage4x.h"
#include "cut4x/entrees_sorties4x.h"
#include "cut4x/fautes_d4x.h"
#include "cut4x/outils_bloc4x.h"
#include "cut4x/placement4x.h"
#include "cut4x/vitesses4x.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "platform/dialogue.h"

namespace tessarel {

namespace {

// hscParcourir counts in 16 bits.
constexpr std::size_t PointsCurseur = 32768;

void ViderPaire(PaireD4X& paire) {
    paire.E.clear();
    paire.S.clear();
    paire.Ecartement = 0;
}

void RemettreResultats(DecoupeD4X& decoupe) {
    ViderPaire(decoupe.PaireBloc);
    ViderPaire(decoupe.PaireChariots);
    decoupe.bornesChariots = {};
    decoupe.premierProfil = decoupe.nombreProfil = 0;
    decoupe.coteE = decoupe.coteS = {};
}

// What PasserEnDecoupe has made sure of.
void VerifierPaire(const ProjetCPX& projet) {
    const std::size_t e = projet.E.Points.size();
    const std::size_t s = projet.S.Points.size();
    if (e == s && e >= 2) return;
    throw FauteProcedureD4X(
        NumeroErreur::IndiceHorsBornes,
        TexteRempli(TexteProgramme::IndiceHorsBornes, {std::to_string(e), std::to_string(s)}),
        "CalculerDecoupeD4X");
}

void PositionnerPaire(const ContexteD4X& contexte, DecoupeD4X& decoupe) {
    VerifierPaire(contexte.Projet);
    decoupe.PairePositionnee = contexte.Projet;
    if (contexte.Parametres.symetrie) SymetriserPaire(decoupe.PairePositionnee);
    PlacerProfilsSurBloc(contexte.Parametres, decoupe);
}

void CopierAuBloc(DecoupeD4X& decoupe) {
    const ProjetCPX& positionnee = decoupe.PairePositionnee;
    decoupe.PaireBloc.E = positionnee.E.Points;
    decoupe.PaireBloc.S = positionnee.S.Points;
}

void Decaler(const ContexteD4X& contexte, DecoupeD4X& decoupe) {
    const ParametresDecoupe4axes& parametres = contexte.Parametres;
    if (parametres.CoteDecalage == CoteDecalageD4X::Aucun) {
        const float demiSaignee = contexte.Matiere.SaigneeVD / 2;
        CalculerCotesBasses(parametres, {demiSaignee, demiSaignee}, false, decoupe);
    } else if (parametres.TypeAlgorithmeDecalage == AlgorithmeDecalageD4X::Simple) {
        DecalageSimple(contexte, decoupe);
    } else {
        DecalageVariable(contexte, decoupe);
    }
}

void CouperProfil(const ContexteD4X& contexte, DecoupeD4X& decoupe) {
    CopierAuBloc(decoupe);
    Decaler(contexte, decoupe);
    // The pair stays as it stands, for the drawing; there is nothing to run.
    if (!decoupe.DecoupePossible) return;
    CalculerEntreesSortiesD4X(contexte, decoupe);
    AjouterEntreesSortiesD4X(decoupe);
    AjouterSortiesIntermediaires(contexte.Parametres, decoupe);
    CalculerVitessesEtChariotsD4X(contexte, decoupe);
}

void Dresser(const ContexteD4X& contexte, DecoupeD4X& decoupe) {
    CalculerDressageD4X(contexte, decoupe);
    CalculerEntreesSortiesD4X(contexte, decoupe);
    AjouterEntreesSortiesD4X(decoupe);
    CalculerVitessesEtChariotsD4X(contexte, decoupe);
}

void Guillotiner(const ContexteD4X& contexte, DecoupeD4X& decoupe) {
    CalculerGuillotineD4X(contexte, contexte.Parametres.ZEmplanture, contexte.Parametres.ZSaumon, decoupe);
    CalculerVitessesEtChariotsD4X(contexte, decoupe);
}

// The guillotine needs no project: its wire spans the whole plateau.
void GuillotinerSansProjet(const ContexteD4X& contexte, DecoupeD4X& decoupe) {
    const float plateau = LargeurPlateau(contexte.Table);
    const double z = contexte.Table.EcartementY1Plateau;
    decoupe.PairePositionnee.Ecartement = plateau;
    decoupe.PaireBloc.Ecartement = plateau;
    CalculerGuillotineD4X(contexte, z + plateau, z, decoupe);
    CalculerVitessesEtChariotsD4X(contexte, decoupe);
}

void ReglerCurseur(DecoupeD4X& decoupe) {
    const std::size_t nombre = decoupe.PaireBloc.E.size();
    if (nombre < PointsCurseur)
        decoupe.maximumParcourir = static_cast<std::int32_t>(nombre);
    else
        AfficherInformation(TextesMessages(128), TitresMessages(128));
}

} // namespace

void CalculerDecoupeD4X(const ContexteD4X& contexte, DecoupeD4X& decoupe) {
    const ParametresDecoupe4axes& parametres = contexte.Parametres;
    RemettreResultats(decoupe);
    if (!decoupe.DecoupePossible) {
        if (parametres.chkGuillotine) GuillotinerSansProjet(contexte, decoupe);
        return;
    }
    PositionnerPaire(contexte, decoupe);
    decoupe.PaireBloc.Ecartement = contexte.Projet.Ecartement;
    if (parametres.chkGuillotine)
        Guillotiner(contexte, decoupe);
    else if (parametres.chkDresser)
        Dresser(contexte, decoupe);
    else
        CouperProfil(contexte, decoupe);
    if (decoupe.DecoupePossible) ReglerCurseur(decoupe);
}

} // namespace tessarel
