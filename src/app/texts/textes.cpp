// The tables of numbered texts in the language in use.
#include "app/texts/textes.h"

#include "app/texts/rangees.h"
#include "platform/raisons.h"

#include <array>

namespace tessarel {
namespace {

struct RangeeChargee {
    std::string texte;
    std::string titre;
};

// All tables of one language; element 0 of each stays empty, for rows count from 1.
struct JeuTextes {
    std::array<RangeeChargee, RangeesMessages + 1> messages;
    std::array<RangeeChargee, RangeesDoubles + 1> doubles;
    std::array<RangeeChargee, RangeesEtats + 1> etats;
};

template <std::size_t Taille>
void Remplir(std::array<RangeeChargee, Taille>& table, std::span<const RangeeTexte> rangees, Langue langue) {
    for (const RangeeTexte& r : rangees) {
        RangeeChargee& ici = table.at(static_cast<std::size_t>(r.rangee));
        ici.texte = langue == Langue::English ? r.texteEnglish : r.texteFrancais;
        ici.titre = langue == Langue::English ? r.titreEnglish : r.titreFrancais;
    }
}

JeuTextes ConstruireJeu(Langue langue) {
    JeuTextes jeu;
    for (const auto& rangees : PlagesMessages()) Remplir(jeu.messages, rangees, langue);
    Remplir(jeu.doubles, Doubles01a64(), langue);
    Remplir(jeu.etats, RangeesDesEtats(), langue);
    return jeu;
}

// Both sets are built once and kept, so that a text once handed out stays valid.
const JeuTextes& JeuFrancais() {
    static const JeuTextes jeu = ConstruireJeu(Langue::Francais);
    return jeu;
}

const JeuTextes& JeuEnglish() {
    static const JeuTextes jeu = ConstruireJeu(Langue::English);
    return jeu;
}

Langue langueEnUsage = Langue::Francais;

const JeuTextes& JeuCourant() {
    return langueEnUsage == Langue::English ? JeuEnglish() : JeuFrancais();
}

template <std::size_t Taille>
const RangeeChargee& Rangee(const std::array<RangeeChargee, Taille>& table, int rangee) {
    const bool dehors = rangee < 1 || static_cast<std::size_t>(rangee) >= Taille;
    return table[dehors ? 0 : static_cast<std::size_t>(rangee)];
}

} // namespace

Langue LangueDepuisTexte(const std::string& valeur) {
    return valeur == "English" ? Langue::English : Langue::Francais;
}

void ChargerMessages(Langue langue) {
    langueEnUsage = langue;
    DireRaisonsEnAnglais(langue == Langue::English);
}

Langue LangueCourante() {
    return langueEnUsage;
}

const std::string& TextesMessages(int rangee) {
    return Rangee(JeuCourant().messages, rangee).texte;
}

const std::string& TitresMessages(int rangee) {
    return Rangee(JeuCourant().messages, rangee).titre;
}

const std::string& TextesDoubles(int rangee, int colonne) {
    static const std::string vide;
    const RangeeChargee& r = Rangee(JeuCourant().doubles, rangee);
    if (colonne == 1) return r.texte;
    return colonne == 2 ? r.titre : vide;
}

const std::string& TextesEtats(int rangee) {
    return Rangee(JeuCourant().etats, rangee).texte;
}

} // namespace tessarel
