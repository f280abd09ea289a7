// Writes the summary of a 2D cut.
#include "work2d/resume.h"

#include "app/texts/textes_programme.h"
#include "paths/durees.h"
#include "platform/nombres.h"

namespace tessarel {

namespace {

constexpr Masque MasqueVitesse = "##0.0";
constexpr Masque MasqueChauffe = "##0.0";
constexpr Masque MasqueDecalage = "#0.0";
constexpr Masque MasqueSaignee = "#####0.0#";

std::string TexteResume(const ResumeDecoupe2D& resume, bool modeExpert, const std::string& nomMatiere) {
    const std::string duree =
        resume.dureeSecondes == DureeInconnue ? "" : TexteDureeResume(resume.dureeSecondes);
    std::string texte =
        TexteRempli(TexteProgramme::ResumeVitesse, {FormaterNombre(resume.vitesse, MasqueVitesse), duree});
    texte += "\r\n";
    texte += TexteRempli(TexteProgramme::ResumeChauffe, {FormaterNombre(resume.chauffe, MasqueChauffe),
                                                         FormaterNombre(resume.decalage, MasqueDecalage)});
    texte += "\r\n";
    texte += TexteRempli(TexteProgramme::ResumeMatiere, {nomMatiere});
    if (!modeExpert)
        texte += TexteRempli(TexteProgramme::ResumeSaignee, {FormaterNombre(resume.saignee, MasqueSaignee)});
    return texte;
}

} // namespace

std::string TexteDureeResume(int secondes) {
    const DureeDecomposee d = DecomposerDuree(secondes);
    std::string texte;
    const auto ajouter = [&](TexteProgramme mot, int valeur, bool dernier) {
        if (valeur == 0 && texte.empty() && !dernier) return;
        if (!texte.empty()) texte += ' ';
        texte += TexteRempli(mot, {std::to_string(valeur)});
    };
    ajouter(TexteProgramme::DureeJours, d.jours, false);
    ajouter(TexteProgramme::DureeHeures, d.heures, false);
    ajouter(TexteProgramme::DureeMinutes, d.minutes, false);
    ajouter(TexteProgramme::DureeSecondes, d.secondes, true);
    return texte;
}

ResumeDecoupe2D PreparerResume(float duree, const OptionsDecoupe2D& options, const TableMachine& table,
                               const std::string& nomMatiere) {
    ResumeDecoupe2D resume;
    resume.dureeSecondes = duree < 0 ? DureeInconnue : ArrondiLong(duree);
    resume.vitesse = VitesseEnVigueur(options, table);
    resume.chauffe = options.chauffe;
    resume.decalage = DistanceDecalage(options, table);
    resume.saignee = SaigneeEnVigueur(options, table);
    resume.texte = TexteResume(resume, options.modeExpert, nomMatiere);
    return resume;
}

void ChangerChauffe(ResumeDecoupe2D& resume, float chauffe, const OptionsDecoupe2D& options,
                    const std::string& nomMatiere) {
    resume.chauffe = chauffe;
    resume.texte = TexteResume(resume, options.modeExpert, nomMatiere);
}

} // namespace tessarel
