// Opening, starting anew and saving the 2D workspace.
#include "work2d/espace2d.h"

#include "app/texts/textes.h"
#include "paths/fichier_projet.h"
#include "platform/dialogue.h"
#include "platform/fichiers.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tessarel {

namespace {

// Rows of the text tables.
constexpr int DoublesErreurLecture = 10;
constexpr int DoublesExtensionInconnue = 12;
constexpr int MessagesExtensionProjet = 148;
constexpr int MessagesRemplacer2D = 149;
constexpr int MessagesProjetVide = 198;
constexpr int MessagesRemplacer4axes = 200;
constexpr int MessagesErreurEnregistrement = 203;

ContenuFichier LireProjet(const std::string& chemin, bool ancien) {
    ContenuFichier contenu;
    contenu.ouverture.typeFichier = ancien ? "qnt" : "tsr2d";
    contenu.ouverture.estProjet2D = true;
    contenu.projet2D = LireProjet2D(chemin, ancien);
    contenu.sequences = std::move(contenu.projet2D->TableauSequences);
    contenu.projet2D->TableauSequences.clear();
    return contenu;
}

ContenuFichier LireProfils4axes(const std::string& chemin) {
    ContenuFichier contenu;
    contenu.ouverture.typeFichier = "tsr4x";
    contenu.projet4axes = LireProjet4axes(chemin);
    for (const ProfilProjet* profil : {&contenu.projet4axes->Emplanture, &contenu.projet4axes->Saumon}) {
        if (profil->sequence.Points.empty()) continue;
        contenu.sequences.push_back(profil->sequence);
        CalculerBornesSequence(contenu.sequences.back());
    }
    return contenu;
}

ContenuFichier LireSelonExtension(const std::string& chemin, float distNettoyage) {
    const std::string extension = ExtensionMinuscule(chemin);
    if (extension == "qnt") return LireProjet(chemin, true);
    if (extension == "tsr")
        return LireOngletProjet(chemin) == TS2D ? LireProjet(chemin, false) : LireProfils4axes(chemin);
    DessinImporte dessin = LireDessin(chemin, distNettoyage);
    ContenuFichier contenu;
    contenu.ouverture.typeFichier = extension;
    contenu.ouverture.pointsRetires = dessin.pointsRetires;
    contenu.ouverture.rapport = std::move(dessin.rapport);
    contenu.sequences = std::move(dessin.sequences);
    return contenu;
}

void RemplacerParProjet(Espace2D& espace, ContenuFichier& contenu, const TableMachine& table,
                        const std::string& chemin) {
    espace.TableauSequences = std::move(contenu.sequences);
    espace.bloc = LimiterBlocOuvert({contenu.projet2D->BlocX, contenu.projet2D->BlocY}, table);
    espace.TypeEntree = contenu.projet2D->TypeEntree.value_or(espace.TypeEntree);
    espace.TypeSortie = contenu.projet2D->TypeSortie.value_or(espace.TypeSortie);
    espace.coeffTransf = 1;
    espace.cheminProjet = contenu.ouverture.typeFichier == "qnt" ? "" : chemin;
    espace.modifie = false;
}

} // namespace

bool PeutEtreRemplace(const std::string& chemin, bool par4axes) {
    if (!FichierExiste(chemin)) return true;
    std::string onglet;
    try {
        onglet = LireOngletProjet(chemin);
    } catch (const Faute&) {
        return true; // no project to lose there, and the write tells what is wrong with the file
    }
    const bool est4axes = onglet == C4X || onglet == D4X;
    if (onglet != TS2D && !est4axes) return true;
    if (est4axes == par4axes) return true;
    const int rangee = par4axes ? MessagesRemplacer2D : MessagesRemplacer4axes;
    return DemanderOuiNon(TextesMessages(rangee), TitresMessages(rangee));
}

ContenuFichier LireContenuFichier(const std::string& chemin, float distNettoyage) {
    ContenuFichier contenu = LireSelonExtension(chemin, distNettoyage);
    contenu.ouverture.sequences = contenu.sequences.size();
    for (const Sequence& sequence : contenu.sequences) contenu.ouverture.points += sequence.Points.size();
    return contenu;
}

void DireErreurLecture(const Faute& faute) {
    AfficherCritique(TextesDoubles(DoublesErreurLecture, 1) + "\r\n" + faute.what(),
                     TextesDoubles(DoublesErreurLecture, 2));
}

Espace2D NouvelEspace2D(const TableMachine& table) {
    Espace2D espace;
    espace.bloc = BlocParDefaut(table);
    return espace;
}

bool OuvrirFichier2D(Espace2D& espace, const std::string& chemin, const TableMachine& table,
                     float distNettoyage, OuvertureFichier* ouverture, const LecteurContenu& lecteur) {
    const std::string extension = ExtensionMinuscule(chemin);
    const auto& connues = ExtensionsConnues();
    const bool present = FichierExiste(chemin) || DossierExiste(chemin);
    if (present && std::find(connues.begin(), connues.end(), extension) == connues.end()) {
        AfficherExclamation(TextesDoubles(DoublesExtensionInconnue, 1) + "\r\n" + chemin,
                            TextesDoubles(DoublesExtensionInconnue, 2));
        return false;
    }
    ContenuFichier contenu;
    try {
        std::optional<ContenuFichier> lu = lecteur(chemin, distNettoyage);
        if (!lu) return false;
        contenu = std::move(*lu);
    } catch (const Faute& faute) {
        DireErreurLecture(faute);
        return false;
    }
    if (contenu.ouverture.estProjet2D) {
        RemplacerParProjet(espace, contenu, table, chemin);
    } else {
        espace.TableauSequences.insert(espace.TableauSequences.end(),
                                       std::make_move_iterator(contenu.sequences.begin()),
                                       std::make_move_iterator(contenu.sequences.end()));
        espace.modifie = true;
    }
    if (ouverture != nullptr) *ouverture = std::move(contenu.ouverture);
    return true;
}

Projet2D ProjetDepuisEspace(const Espace2D& espace) {
    Projet2D projet;
    projet.TableauSequences = espace.TableauSequences;
    projet.BlocX = espace.bloc.BlocX;
    projet.BlocY = espace.bloc.BlocY;
    projet.TypeEntree = espace.TypeEntree;
    projet.TypeSortie = espace.TypeSortie;
    projet.VitesseApproche = espace.VitesseApproche;
    projet.VitesseRetour = espace.VitesseRetour;
    return projet;
}

bool EnregistrerEspace2D(Espace2D& espace, const std::string& chemin) {
    if (espace.TableauSequences.empty()) {
        AfficherExclamation(TextesMessages(MessagesProjetVide), TitresMessages(MessagesProjetVide));
        return false;
    }
    if (ExtensionMinuscule(chemin) != "tsr") {
        AfficherExclamation(TextesMessages(MessagesExtensionProjet), TitresMessages(MessagesExtensionProjet));
        return false;
    }
    if (!PeutEtreRemplace(chemin, false)) return false;
    try {
        EcrireProjet2D(chemin, ProjetDepuisEspace(espace));
    } catch (const Faute& faute) {
        AfficherCritique(TextesMessages(MessagesErreurEnregistrement) + "\r\n" + faute.what(),
                         TitresMessages(MessagesErreurEnregistrement));
        return false;
    }
    espace.cheminProjet = chemin;
    espace.modifie = false;
    return true;
}

} // namespace tessarel
