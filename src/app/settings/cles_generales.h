// The general keys of the settings file, one row each: what a new file gets, what a read falls back on, how a
// number is written, and which parameter it fills.
#pragma once

#include "app/settings/parametres.h"

#include <span>
#include <string>
#include <variant>

namespace tessarel {

inline constexpr const char* SectionParametres = "Parametres";
inline constexpr const char* SectionFichiers = "Fichiers";
inline constexpr const char* CleDernierRepertoire = "DernierRepertoire";
inline constexpr const char* CleDernierProjet = "DernierProjet";

// The parameter that a key fills; none for a key that is read where it is used.
using ChampParametre = std::variant<std::monostate, std::string ParametresProgramme::*,
                                    float ParametresProgramme::*, int ParametresProgramme::*>;

struct CleGenerale {
    const char* cle;
    const char* ecrit;  // value in a new file; nullptr: not written there
    const char* lu;     // value of a read that finds no key
    const char* masque; // of a number; nullptr for a text
    ChampParametre champ;
};

// In the order in which a new file gets them; those that a new file has not stand last.
std::span<const CleGenerale> ClesGenerales();

// The text of a key of [Parametres], with its own fallback. FauteInterne for a key that the table has not.
std::string LireParametre(const std::string& cle);
// Writes one parameter, a number through the mask of its row.
bool EcrireParametre(const std::string& cle, const ParametresProgramme& parametres);
// Fills all parameters from the settings file. FauteDepassement when a number does not fit its field: that
// parameter then keeps its value, all others are filled.
void LireParametres(ParametresProgramme& parametres);

// "francais" gives "Francais"; "english" and "USA" give "English"; any other text is given back.
std::string NormaliserLangue(const std::string& valeur);

} // namespace tessarel
