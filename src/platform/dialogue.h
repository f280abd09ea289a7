// Message boxes as seen from below: a text, a title, an icon, buttons, and an answer. Who shows them is
// chosen by the program: a window in the desktop program, a line on standard error in the batch one, a list
// in tests.
#pragma once

#include <functional>
#include <string>

namespace tessarel {

enum class IconeBoite { Aucune, Information, Exclamation, Critique, Question };
enum class BoutonsBoite { Ok, OkAnnuler, OuiNon, OuiNonAnnuler };
enum class ReponseBoite { Ok, Annuler, Oui, Non };

// UTF-8 texts; lines of `texte` are separated by CR LF or LF.
struct Boite {
    std::string texte;
    std::string titre;
    IconeBoite icone = IconeBoite::Information;
    BoutonsBoite boutons = BoutonsBoite::Ok;
};

using AfficheurBoite = std::function<ReponseBoite(const Boite&)>;

// Replaces the one who shows boxes; returns the one replaced. An empty function restores the default, which
// writes "title: text" on standard error and answers by ReponseSansPersonne.
AfficheurBoite InstallerAfficheurBoite(AfficheurBoite afficheur);

// What a box answers where nobody is there to choose: No, or Cancel, or Ok where there is no choice.
ReponseBoite ReponseSansPersonne(BoutonsBoite boutons);

// Shows a box and waits for its answer, which is always one that the buttons offer.
ReponseBoite AfficherBoite(const Boite& boite);

// Shorthands for the commonest shapes.
void AfficherInformation(const std::string& texte, const std::string& titre);
void AfficherExclamation(const std::string& texte, const std::string& titre);
void AfficherCritique(const std::string& texte, const std::string& titre);
// True when the user answers Yes.
bool DemanderOuiNon(const std::string& texte, const std::string& titre,
                    IconeBoite icone = IconeBoite::Question);

// One line "title: text" for a stream or a log: line ends become single blanks, an empty title drops the
// colon.
std::string BoiteEnUneLigne(const Boite& boite);

} // namespace tessarel
