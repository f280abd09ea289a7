// `convertir`: from any file that can be read to any that can be written.
#include "langue_lot.h"
#include "resume_lot.h"
#include "sorties.h"
#include "verbes.h"

#include "app/settings/parametres.h"
#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "paths/export_texte.h"
#include "paths/fichier_projet.h"
#include "paths/import.h"
#include "platform/dialogue.h"
#include "platform/fichiers.h"
#include "platform/gabar/gabar.h"
#include "platform/nombres.h"
#include "work2d/espace2d.h"

#include <memory>

namespace tessarel::lot {

namespace {

// Row of the text tables whose title heads a refusal.
constexpr int MessagesOperationImpossible = 175;
// Row of the box for profiles that do not correspond.
constexpr int MessagesDxf3DNombresDifferents = 14;

// Both profiles of a wing and the surface between them; false after the box that says why not.
bool PeutSEcrireEnRelief(const std::string& entree, const std::string& extension,
                         const ContenuFichier& contenu) {
    if (extension != "dxf" || !contenu.projet4axes) {
        AfficherExclamation(entree + Dire(" : --3d écrit un projet 4 axes en .dxf, rien d'autre",
                                          ": --3d writes a 4-axis project as .dxf, nothing else"),
                            TitresMessages(MessagesOperationImpossible));
        return false;
    }
    const Projet4axes& projet = *contenu.projet4axes;
    const std::size_t points = projet.Emplanture.sequence.Points.size();
    if (points > 0 && points == projet.Saumon.sequence.Points.size()) return true;
    AfficherExclamation(TextesMessages(MessagesDxf3DNombresDifferents),
                        TitresMessages(MessagesDxf3DNombresDifferents));
    return false;
}

void EcrireEnRelief(const std::string& sortie, const Projet4axes& projet) {
    const auto points = [](const ProfilProjet& profil) {
        return PointsDepuisSequences({&profil.sequence, 1});
    };
    EcrireFichier3D(sortie, "dxf", points(projet.Emplanture), points(projet.Saumon),
                    EnSimple(projet.Ecartement));
}

void RefuserExtension(const std::string& sortie) {
    AfficherExclamation(sortie + Dire(" : l'extension de la sortie doit être .tsr, .dxf, .dat ou .txt",
                                      ": the extension of the output must be .tsr, .dxf, .dat or .txt"),
                        TitresMessages(MessagesOperationImpossible));
}

// A drawing becomes a project as the 2D window would save it at once after opening it.
void EcrireProjet(const std::string& sortie, ContenuFichier& contenu) {
    if (contenu.projet4axes) {
        EcrireProjet4axes(sortie, *contenu.projet4axes);
        return;
    }
    Projet2D projet =
        contenu.projet2D ? std::move(*contenu.projet2D) : ProjetDepuisEspace(NouvelEspace2D(TableINI));
    projet.TableauSequences = contenu.sequences;
    EcrireProjet2D(sortie, projet);
}

int Convertir(const std::string& entree, const std::string& sortie, bool relief) {
    const std::string extension = ExtensionMinuscule(sortie);
    if (extension != "tsr" && extension != "dxf" && extension != "dat" && extension != "txt") {
        RefuserExtension(sortie);
        return StatutRefuse;
    }
    if (SortieEstUneEntree(sortie, {entree})) return StatutRefuse;

    Progression progression(2);
    progression.Etape(Dire("lecture de ", "reading ") + NomDuChemin(entree));
    ContenuFichier contenu;
    try {
        contenu = LireContenuFichier(entree, Parametres.DistNettoyage);
    } catch (const Faute& faute) {
        DireErreurLecture(faute);
        return StatutRefuse;
    }
    if (contenu.sequences.empty()) {
        AfficherExclamation(entree + " : " + Texte(TexteProgramme::LectureSansTrace),
                            TitresMessages(MessagesOperationImpossible));
        return StatutRefuse;
    }
    if (relief && !PeutSEcrireEnRelief(entree, extension, contenu)) return StatutRefuse;
    if (extension == "tsr" && !PeutEtreRemplace(sortie, contenu.projet4axes.has_value())) return StatutRefuse;

    Sorties sorties;
    sorties.Ajouter(sortie, [&](const std::string& chemin) {
        if (extension == "tsr")
            EcrireProjet(chemin, contenu);
        else if (relief)
            EcrireEnRelief(chemin, *contenu.projet4axes);
        else if (extension == "txt")
            EcrireCoordonneesTexte(chemin, contenu.sequences);
        else
            EcrireFichier(chemin, extension, PointsDepuisSequences(contenu.sequences));
    });
    if (!sorties.Ecrire(progression)) return StatutRefuse;
    Progression::Effacer();

    LectureLot lecture;
    lecture.Ajouter(contenu.ouverture);
    return Imprimer(TexteConversion(entree, lecture, sortie));
}

} // namespace

void DeclarerConvertir(CLI::App& programme, const ChoisirAction& choisir) {
    CLI::App* verbe = AjouterVerbe(programme, "convertir",
                                   Dire("Convertit un dessin ou un projet en .tsr, .dxf, .dat ou .txt",
                                        "Converts a drawing or a project to .tsr, .dxf, .dat or .txt"));
    const auto entree = std::make_shared<std::string>();
    const auto sortie = std::make_shared<std::string>();
    verbe->add_option("IN", *entree, Dire("Fichier à lire", "File to read"))->required()->type_name("");
    verbe->add_option("OUT", *sortie, Dire("Fichier à écrire", "File to write"))->required()->type_name("");
    const auto relief = std::make_shared<bool>(false);
    verbe->add_flag("--3d", *relief,
                    Dire("Écrit les deux profils d'un projet 4 axes et leur surface dans un .dxf en relief",
                         "Writes both profiles of a 4-axis project and their surface as a 3D .dxf"));
    verbe->callback([entree, sortie, relief, choisir] {
        choisir([entree, sortie, relief] { return Convertir(*entree, *sortie, *relief); });
    });
}

} // namespace tessarel::lot
