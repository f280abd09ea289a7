// Project files read: each into a fresh record, given out only when all of it was good.
#include "app/texts/textes_programme.h"
#include "paths/cles_projet.h"
#include "paths/fichier_projet.h"
#include "paths/points_projet.h"
#include "paths/texte_projet.h"
#include "platform/dialogue.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "platform/profil_prive.h"

#include <algorithm>
#include <string_view>
#include <type_traits>
#include <utility>

namespace tessarel {

namespace {

// Enough for the first section and the header of the second.
constexpr std::size_t TailleTete = 4096;
// Longest comment, in characters.
constexpr std::size_t LongueurCommentaireMax = 256;
// Of its width, how far beyond itself the copy of all paths is moved, so that the two stand apart.
constexpr double EcartEnsemble = 0.1;

std::vector<Sequence> LireSequences(const TexteProjet& texte, const std::string& prefixe) {
    const std::string section = prefixe + NomParametresSequences;
    const std::string_view annonce = texte.Valeur(section, CleNombreSequences);
    const std::int32_t nombre = texte.Entier(annonce);
    if (nombre < 0) texte.Refuser(annonce, TexteRempli(TexteProgramme::LectureEntierAttendu, {annonce}));
    const std::string nomSequence = prefixe + NomSequence;
    const std::size_t presentes = texte.CompterNumerotees(nomSequence, static_cast<std::uint32_t>(nombre));
    if (presentes < static_cast<std::size_t>(nombre))
        texte.Refuser(annonce, "[" + section + "] " +
                                   TexteRempli(TexteProgramme::LectureNombreSequences,
                                               {std::to_string(nombre), std::to_string(presentes)}));
    std::vector<Sequence> sequences;
    sequences.reserve(presentes);
    for (std::int32_t n = 1; n <= nombre; ++n)
        sequences.push_back(LireSequenceProjet(texte, nomSequence + std::to_string(n)));
    return sequences;
}

std::string Prefixe2D(bool ancien) {
    return ancien ? "" : PrefixeDecoupe2D;
}

struct CommentaireLu {
    std::string texte;
    bool coupe = false;
};

// The whole value counts here, not its first 255 characters: the comment has a limit of its own, which tells.
CommentaireLu LireCommentaire(std::string_view valeur) {
    CommentaireLu commentaire;
    if (valeur == "0") return commentaire;
    for (const char c : valeur) {
        if (c == ';')
            commentaire.texte += "\r\n";
        else
            commentaire.texte += c;
    }
    const std::size_t garde = PremiersCaracteres(commentaire.texte, LongueurCommentaireMax).size();
    if (garde < commentaire.texte.size()) {
        commentaire.coupe = true;
        commentaire.texte.resize(garde);
        if (commentaire.texte.back() == '\r') commentaire.texte.pop_back(); // half a line end
    }
    return commentaire;
}

// False for some other file under the name of a project.
bool ASectionsProjet4axes(const TexteProjet& texte) {
    return texte.Contient(SectionTypeProjet) ||
           std::any_of(ClesProjet4axes.begin(), ClesProjet4axes.end(),
                       [&](const Cle4axes& c) { return texte.Contient(c.section); });
}

} // namespace

std::string LireOngletProjet(const std::string& chemin) {
    const std::string tete = LireDebutFichier(chemin, TailleTete);
    if (tete.size() == TailleTete) {
        // What the head gives is the answer: the first section and the first key of a name count.
        const TexteProjet texte(tete.substr(0, tete.rfind('\n') + 1), chemin);
        const std::string_view onglet = texte.Valeur(SectionTypeProjet, CleOnglet);
        if (!onglet.empty()) return std::string(onglet);
    }
    const TexteProjet texte(tete.size() < TailleTete ? tete : LireFichierEntier(chemin), chemin);
    return std::string(texte.Valeur(SectionTypeProjet, CleOnglet));
}

Projet2D AnalyserProjet2D(std::string octets, const std::string& nom, bool ancien) {
    const TexteProjet texte(std::move(octets), nom);
    const std::string prefixe = Prefixe2D(ancien);
    Projet2D projet;
    projet.BlocX = static_cast<float>(texte.Reel(texte.Valeur(prefixe + NomBloc, "BlocX")));
    projet.BlocY = static_cast<float>(texte.Reel(texte.Valeur(prefixe + NomBloc, "BlocY")));
    projet.TableauSequences = LireSequences(texte, prefixe);
    for (const CleOption2D& option : OptionsProjet2D) {
        if (!option.relue) continue;
        projet.*option.membre = texte.Choix(texte.Valeur(prefixe + NomDecoupe, option.cle), option.maximum);
    }
    return projet;
}

Projet2D LireProjet2D(const std::string& chemin, bool ancien) {
    return AnalyserProjet2D(LireFichierEntier(chemin), chemin, ancien);
}

Projet4axes AnalyserProjet4axes(std::string octets, const std::string& nom) {
    const TexteProjet texte(std::move(octets), nom);
    Projet4axes projet;
    if (EgalSansCasse(texte.Valeur(SectionTypeProjet, CleOnglet), D4X)) projet.Onglet = D4X;
    for (const CleVersion& version : ClesVersion)
        projet.version.*version.membre = std::string(texte.Valeur(SectionParametresFichier, version.cle));
    // Only the presence of the major version decides; the numbers are never compared.
    const bool sansVersion = projet.version.majeure.empty();

    // The oldest names are used only where nothing but them names a profile.
    bool recentes = false;
    bool anciennes = false;
    for (const SectionProfil& profil : ProfilsProjet4axes) {
        recentes = recentes || texte.Contient(profil.section);
        anciennes = anciennes || texte.Contient(profil.ancienne);
    }
    const auto nomSection = [&](const char* section, const char* ancienne) {
        return recentes || !anciennes || ancienne == nullptr ? section : ancienne;
    };
    for (const SectionProfil& profil : ProfilsProjet4axes) {
        const char* section = nomSection(profil.section, profil.ancienne);
        ProfilProjet& lu = projet.*profil.membre;
        lu.NomFichier = std::string(texte.Valeur(section, CleNomFichier));
        lu.sequence = LireSequenceProjet(texte, section);
    }

    bool commentaireCoupe = false;
    for (const Cle4axes& c : ClesProjet4axes) {
        const char* section = nomSection(c.section, c.ancienne);
        const char* cle = sansVersion && c.avantVersions != nullptr ? c.avantVersions : c.cle;
        const std::string_view valeur = texte.Valeur(section, cle);
        switch (c.genre) {
        case GenreCle::Reel:
            projet.*std::get<double Projet4axes::*>(c.membre) = texte.Reel(valeur);
            break;
        case GenreCle::Angle:
        case GenreCle::Entier:
            projet.*std::get<int Projet4axes::*>(c.membre) = texte.Entier(valeur);
            break;
        case GenreCle::Choix:
            projet.*std::get<int Projet4axes::*>(c.membre) = texte.Choix(valeur, c.maximum);
            break;
        case GenreCle::Commentaire: {
            CommentaireLu lu = LireCommentaire(texte.ValeurEntiere(section, cle));
            commentaireCoupe = lu.coupe;
            projet.*std::get<std::string Projet4axes::*>(c.membre) = std::move(lu.texte);
            break;
        }
        }
    }
    if (!recentes && !anciennes && !ASectionsProjet4axes(texte))
        throw FauteLecture(nom, 0, Texte(TexteProgramme::LectureSansTrace));
    if (commentaireCoupe)
        AfficherExclamation(Texte(TexteProgramme::CommentaireTropLong),
                            Texte(TexteProgramme::CommentaireTropLongTitre));
    if (sansVersion)
        AfficherExclamation(Texte(TexteProgramme::AncienneVersion),
                            Texte(TexteProgramme::AncienneVersionTitre));
    return projet;
}

Projet4axes LireProjet4axes(const std::string& chemin) {
    return AnalyserProjet4axes(LireFichierEntier(chemin), chemin);
}

std::vector<Sequence> LireSequencesProjet(const std::string& chemin, bool ancien) {
    const TexteProjet texte(LireFichierEntier(chemin), chemin);
    std::vector<Sequence> sequences = LireSequences(texte, Prefixe2D(ancien));
    Sequence ensemble = ConcatenerSequences(sequences);
    const double largeur = ensemble.Largeur;
    for (PointProfil& p : ensemble.Points) p.X += largeur + EcartEnsemble * largeur;
    CalculerBornesSequence(ensemble);
    sequences.push_back(std::move(ensemble));
    return sequences;
}

} // namespace tessarel
