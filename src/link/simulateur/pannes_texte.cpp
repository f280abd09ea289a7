// The reading of a fault written on a command line.
#include "link/simulateur/pannes_texte.h"

#include "link/simulateur/journal.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"

#include <charconv>
#include <limits>

namespace tessarel::simulateur {

namespace {

[[noreturn]] void Refuser(std::string_view texte, const std::string& raison) {
    throw FauteConversion(std::string(texte) + SelonLangue(" : ", ": ") + raison);
}

std::uint64_t LireNombre(std::string_view texte, std::string_view valeur, std::uint64_t maximum) {
    std::uint64_t n = 0;
    const auto [fin, erreur] = std::from_chars(valeur.data(), valeur.data() + valeur.size(), n);
    if (erreur != std::errc() || fin != valeur.data() + valeur.size() || n > maximum)
        Refuser(texte, SelonLangue("nombre entier attendu, de 0 à ", "whole number expected, from 0 to ") +
                           std::to_string(maximum));
    return n;
}

Panne LireNom(std::string_view texte, std::string_view nom) {
    for (int i = 0; i < NombrePannes; ++i)
        if (NomPanne(static_cast<Panne>(i)) == nom) return static_cast<Panne>(i);
    Refuser(texte, SelonLangue("panne inconnue ; connues : ", "unknown fault; known: ") + NomsDesPannes());
}

void LireReglage(std::string_view texte, std::string_view cle, std::string_view valeur,
                 PanneProgrammee& panne) {
    constexpr std::uint64_t grand = std::numeric_limits<std::uint32_t>::max();
    constexpr std::uint64_t unJour = 86400000; // ms
    const auto duree = [&] { return std::chrono::milliseconds(LireNombre(texte, valeur, unJour)); };
    if (cle == "echange") {
        panne.echange = LireNombre(texte, valeur, grand);
    } else if (cle == "salve") {
        panne.salve = static_cast<std::uint32_t>(LireNombre(texte, valeur, grand));
    } else if (cle == "tick") {
        panne.tick = static_cast<std::uint32_t>(LireNombre(texte, valeur, grand));
    } else if (cle == "fois") {
        panne.fois = LireNombre(texte, valeur, grand);
    } else if (cle == "retard") {
        panne.retard = duree();
    } else if (cle == "retablie-echanges") {
        panne.retablieApresEchanges = LireNombre(texte, valeur, grand);
    } else if (cle == "retablie-ms") {
        panne.retablieApres = duree();
    } else if (cle == "commande") {
        if (valeur.size() != 1)
            Refuser(texte, SelonLangue("une lettre attendue après commande=",
                                       "one letter expected after commande="));
        panne.commande = static_cast<std::uint8_t>(valeur[0]);
    } else {
        Refuser(texte, SelonLangue("réglage inconnu : ", "unknown setting: ") + std::string(cle));
    }
}

} // namespace

std::string NomsDesPannes() {
    std::string noms;
    for (int i = 0; i < NombrePannes; ++i) {
        if (i > 0) noms += ", ";
        noms += NomPanne(static_cast<Panne>(i));
    }
    return noms;
}

PanneProgrammee LirePanne(std::string_view texte) {
    PanneProgrammee panne;
    bool premier = true;
    for (const std::string_view morceau : Decouper(texte, ":")) {
        if (premier) {
            panne.panne = LireNom(texte, morceau);
            premier = false;
            continue;
        }
        const std::size_t egal = morceau.find('=');
        if (egal == std::string_view::npos)
            Refuser(texte, SelonLangue("réglage sous la forme clé=nombre attendu",
                                       "setting as key=number expected"));
        LireReglage(texte, morceau.substr(0, egal), morceau.substr(egal + 1), panne);
    }
    return panne;
}

} // namespace tessarel::simulateur
