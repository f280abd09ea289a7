// Durations split into days, hours, minutes and seconds, and said in a G-code file.
#include "paths/durees.h"

#include "app/texts/textes.h"

namespace tessarel {

namespace {

constexpr int SecondesParHeure = 3600;
constexpr int SecondesParMinute = 60;

// A number as the program's style turns it into text: a blank stands where a minus would.
void AjouterChamp(std::string& texte, int valeur, const std::string& mot) {
    texte += ' ';
    texte += std::to_string(valeur);
    texte += mot;
}

} // namespace

DureeDecomposee DecomposerDuree(int secondes) {
    DureeDecomposee duree;
    duree.jours = secondes / SecondesParJour;
    secondes %= SecondesParJour;
    duree.heures = secondes / SecondesParHeure;
    secondes %= SecondesParHeure;
    duree.minutes = secondes / SecondesParMinute;
    duree.secondes = secondes % SecondesParMinute;
    return duree;
}

std::string TexteDureeGcode(int secondes) {
    const DureeDecomposee duree = DecomposerDuree(secondes);
    const bool jours = duree.jours > 0;
    const bool heures = jours || duree.heures > 0;
    const bool minutes = heures || duree.minutes > 0;
    std::string texte;
    if (jours) AjouterChamp(texte, duree.jours, TitresMessages(162));
    if (heures) AjouterChamp(texte, duree.heures, TextesMessages(163));
    if (minutes) AjouterChamp(texte, duree.minutes, TitresMessages(163));
    AjouterChamp(texte, duree.secondes, TextesMessages(164));
    return texte;
}

} // namespace tessarel
