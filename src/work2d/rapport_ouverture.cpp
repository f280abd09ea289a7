// The words about a file that was read.
#include "work2d/rapport_ouverture.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "platform/fichiers.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

namespace tessarel {

namespace {

// Rows of the text tables.
constexpr int MessagesProfil = 193;
constexpr int MessagesProfils = 194; // its title: "Projet 2D"
constexpr int MessagesProjet4axes = 195;
constexpr int MessagesNettoyage = 196;

bool EstProjet4axes(const OuvertureFichier& ouverture) {
    return ouverture.typeFichier == "tsr4x";
}

std::size_t Total(const std::map<std::string, int>& comptes) {
    std::size_t total = 0;
    for (const auto& [genre, compte] : comptes) total += static_cast<std::size_t>(std::max(compte, 0));
    return total;
}

std::string EnLigne(const std::map<std::string, int>& comptes) {
    std::string texte;
    for (const auto& [genre, compte] : comptes)
        texte += (texte.empty() ? "" : ", ") + genre + " " + std::to_string(compte);
    return texte;
}

// The heading and a line for each kind, the most frequent first; nothing for none.
std::string EnColonne(TexteProgramme titre, const std::map<std::string, int>& comptes) {
    if (comptes.empty()) return "";
    std::vector<std::pair<std::string, int>> rangs(comptes.begin(), comptes.end());
    std::stable_sort(rangs.begin(), rangs.end(),
                     [](const auto& a, const auto& b) { return a.second > b.second; });
    std::string texte = "\n" + Texte(titre) + "\n";
    for (const auto& [genre, compte] : rangs) texte += "    " + genre + " : " + std::to_string(compte) + "\n";
    return texte;
}

std::string Compte(TexteProgramme cle, std::size_t nombre) {
    return TexteRempli(cle, {std::to_string(nombre)});
}

std::size_t EnPositif(int nombre) {
    return static_cast<std::size_t>(std::max(nombre, 0));
}

} // namespace

ResumeFichier ResumerFichier(const std::string& chemin, const OuvertureFichier& ouverture) {
    ResumeFichier resume;
    resume.nettoyage = TextesMessages(MessagesNettoyage) + std::to_string(ouverture.pointsRetires);
    resume.texte = ouverture.typeFichier;
    if (ouverture.estProjet2D) {
        resume.titre = TitresMessages(MessagesProfils);
        return resume;
    }
    if (EstProjet4axes(ouverture)) {
        resume.titre = TextesMessages(MessagesProjet4axes);
        return resume;
    }
    resume.texte =
        NomDuChemin(chemin) + " : " +
        (ouverture.sequences > 1 ? std::to_string(ouverture.sequences) + " " + TextesMessages(MessagesProfils)
                                 : TextesMessages(MessagesProfil));
    for (const std::string& note : ouverture.rapport.notes) resume.texte += "\n" + note;
    if (!ouverture.rapport.ignores.empty())
        resume.texte +=
            "\n" + TexteRempli(TexteProgramme::Fenetre2DIgnores, {EnLigne(ouverture.rapport.ignores)});
    return resume;
}

std::string PhraseOuverture(const std::string& chemin, const OuvertureFichier& ouverture) {
    const RapportLecture& rapport = ouverture.rapport;
    std::string phrase = TexteRempli(
        TexteProgramme::Fenetre2DEtatOuvert,
        {NomDuChemin(chemin), std::to_string(ouverture.sequences), std::to_string(ouverture.points)});
    const auto ajouter = [&phrase](TexteProgramme cle, std::size_t nombre) {
        if (nombre > 0) phrase += ", " + Compte(cle, nombre);
    };
    ajouter(TexteProgramme::OuvertureJoints, EnPositif(rapport.joints));
    ajouter(TexteProgramme::OuvertureRetournes, EnPositif(rapport.retournes));
    ajouter(TexteProgramme::OuverturePointsRetires, ouverture.pointsRetires);
    ajouter(TexteProgramme::OuvertureIgnores, Total(rapport.ignores));
    return phrase;
}

std::string RapportOuverture(const std::string& chemin, const OuvertureFichier& ouverture) {
    const RapportLecture& rapport = ouverture.rapport;
    const ResumeFichier resume = ResumerFichier(chemin, ouverture);
    std::string texte = TexteRempli(TexteProgramme::RapportFichier, {chemin}) + "\n";
    texte += TexteRempli(TexteProgramme::RapportGenre,
                         {resume.titre.empty() ? ouverture.typeFichier : resume.titre}) +
             "\n\n";
    texte += Compte(TexteProgramme::RapportTraces, ouverture.sequences) + "\n";
    texte += Compte(TexteProgramme::RapportPoints, ouverture.points) + "\n";
    if (!ouverture.estProjet2D && !EstProjet4axes(ouverture)) {
        texte += Compte(TexteProgramme::RapportPointsRetires, ouverture.pointsRetires) + "\n";
        texte += Compte(TexteProgramme::RapportJoints, EnPositif(rapport.joints)) + "\n";
        texte += Compte(TexteProgramme::RapportRetournes, EnPositif(rapport.retournes)) + "\n";
    }
    if (!rapport.notes.empty()) {
        texte += "\n" + Texte(TexteProgramme::RapportNotes) + "\n";
        for (const std::string& note : rapport.notes) texte += "    " + note + "\n";
    }
    texte += EnColonne(TexteProgramme::RapportLus, rapport.lus);
    texte += EnColonne(TexteProgramme::RapportCouches, rapport.couches);
    texte += EnColonne(TexteProgramme::RapportIgnores, rapport.ignores);
    return texte;
}

} // namespace tessarel
