// What a cut from the shell does to its paths before they are placed.
#include "transformations_lot.h"

#include "arguments.h"
#include "langue_lot.h"

#include "app/texts/textes.h"
#include "commun/ligne_de_commande.h"
#include "platform/dialogue.h"
#include "work2d/edition.h"
#include "work2d/selection.h"

#include <optional>

namespace tessarel::lot {

namespace {

// "L'opération demandée est impossible, une dimension est égale à zéro."
constexpr int DoublesDimensionNulle = 16;

// One step on all paths; nothing is asked where `t` has no value and `voulue` is false.
bool Appliquer(std::vector<Sequence>& sequences, bool voulue, const std::optional<Transformation>& t) {
    if (!voulue) return true;
    if (!t || !TransformationPossible(CalculerBoiteSelection(sequences), *t)) {
        AfficherExclamation(TextesDoubles(DoublesDimensionNulle, 1), TextesDoubles(DoublesDimensionNulle, 2));
        return false;
    }
    TransformerSelection(sequences, *t);
    return true;
}

bool ToutAppliquer(const TransformationsLot& demande, std::vector<Sequence>& sequences) {
    const auto boite = [&] { return CalculerBoiteSelection(sequences); };
    const auto axe = demande.miroir == 1 ? AxeMiroir::Y : AxeMiroir::X;
    Transformation sens;
    sens.genre = GenreTransformation::Sens;
    return Appliquer(sequences, demande.miroir >= 0, Miroir(boite(), axe)) &&
           Appliquer(sequences, demande.tourner != 0, Rotation(MilieuBoite(boite()), demande.tourner)) &&
           Appliquer(sequences, demande.largeur != 0,
                     EchelleSaisie(boite(), 0, demande.largeur, "BG", true)) &&
           Appliquer(sequences, demande.hauteur != 0,
                     EchelleSaisie(boite(), 1, demande.hauteur, "BG", true)) &&
           Appliquer(sequences, demande.inverser, sens);
}

} // namespace

void DeclarerTransformations(CLI::App& verbe, TransformationsLot& demande) {
    AjouterChoix(verbe, "--miroir", demande.miroir, {{"x"}, {"y"}},
                 Dire("Retourne les tracés de gauche à droite (x) ou de haut en bas (y)",
                      "Flips the paths left to right (x) or top to bottom (y)"));
    verbe
        .add_option(
            "--tourner", demande.tourner,
            Dire("Tourne les tracés, en degrés vers la gauche", "Turns the paths, in degrees to the left"))
        ->type_name("DEG")
        ->transform(Entre(-360, 360));
    const auto taille = [&](const char* option, double& valeur, const std::string& mots) {
        verbe.add_option(option, valeur, mots)->type_name("MM")->transform(Entre(0.01, 100000));
    };
    taille("--largeur", demande.largeur,
           Dire("Met les tracés à cette largeur, proportions gardées",
                "Scales the paths to this width, proportions kept"));
    taille("--hauteur", demande.hauteur,
           Dire("Met les tracés à cette hauteur, proportions gardées",
                "Scales the paths to this height, proportions kept"));
    verbe.add_flag("--inverser", demande.inverser,
                   Dire("Parcourt les tracés dans l'autre sens", "Runs along the paths the other way"));
}

bool TransformerTout(const TransformationsLot& demande, std::vector<Sequence>& sequences) {
    std::vector<Sequence> essai = sequences;
    ToutSelectionner(essai, true);
    if (!ToutAppliquer(demande, essai)) return false;
    ToutSelectionner(essai, false);
    sequences = std::move(essai);
    return true;
}

} // namespace tessarel::lot
