// The cut from the shell: check what is asked, open, place, assemble, and only then write.
#include "decoupe_lot.h"

#include "decoupe4x_lot.h"
#include "decoupe_machine.h"
#include "langue_lot.h"
#include "machine_lot.h"
#include "progression.h"
#include "resume_lot.h"
#include "sorties.h"
#include "verbes.h"

#include "app/settings/parametres.h"
#include "app/texts/textes.h"
#include "machine/matieres.h"
#include "paths/import.h"
#include "platform/dialogue.h"
#include "platform/fichiers.h"
#include "platform/gabar/gabar.h"
#include "platform/images/images.h"
#include "work2d/dessin_table.h"
#include "work2d/espace2d.h"
#include "work2d/export_gcode.h"
#include "work2d/options_decoupe.h"
#include "work2d/resume.h"

#include <cmath>

namespace tessarel::lot {

namespace {

// Rows of the text tables.
constexpr int DoublesPasDeTrace = 37;
constexpr int DoublesRienDansLeBloc = 53;
constexpr int MessagesExtensionGcode = 175;
constexpr int MessagesExtensionDxf = 202;

constexpr int LargeurApercu = 1600; // pixels
constexpr Couleur FondApercu = {255, 255, 255, 255};

bool EstProjet(const std::string& chemin) {
    const std::string extension = ExtensionMinuscule(chemin);
    return extension == "tsr" || extension == "qnt";
}

bool ExtensionRefusee(const std::string& chemin, const char* extension, const std::string& texte,
                      const std::string& titre) {
    if (chemin.empty() || ExtensionMinuscule(chemin) == extension) return false;
    AfficherExclamation(texte + " (" + chemin + ")", titre);
    return true;
}

// Everything that can be refused before any work is done.
bool DemandeAcceptable(const DemandeDecoupe& demande) {
    if (demande.fichiers.size() > 1)
        for (const std::string& fichier : demande.fichiers)
            if (EstProjet(fichier))
                throw MauvaisUsage(Dire("un projet se découpe seul, sans autre fichier : ",
                                        "a project is cut on its own, without other files: ") +
                                   fichier);
    return SortiesAcceptables(demande);
}

bool OuvrirTout(const std::vector<std::string>& fichiers, Espace2D& espace, LectureLot& lecture,
                Progression& progression) {
    for (const std::string& fichier : fichiers) {
        progression.Etape(Dire("lecture de ", "reading ") + NomDuChemin(fichier));
        OuvertureFichier ouverture;
        if (!OuvrirFichier2D(espace, fichier, TableINI, Parametres.DistNettoyage, &ouverture)) return false;
        lecture.Ajouter(ouverture);
    }
    return true;
}

void Placer(const DemandeDecoupe& demande, Espace2D& espace) {
    const ReglesPlacement regles = ReglesAvecMarges(demande.regles.ajuster, demande.regles.centrerX,
                                                    demande.regles.centrerY, Parametres);
    if (demande.bloc) espace.bloc = LimiterBlocSaisi(*demande.bloc, TableINI);
    if (demande.blocAuto)
        espace.bloc = BlocAuto(espace.TableauSequences, regles, TableINI, espace.coeffTransf).bloc;
    else if (regles.ajuster || regles.centrerX || regles.centrerY)
        AjusterAuBloc(espace.TableauSequences, espace.bloc, regles, TableINI, espace.coeffTransf);
    if (demande.entree >= 0) espace.TypeEntree = demande.entree;
    if (demande.sortie >= 0) espace.TypeSortie = demande.sortie;
    espace.VitesseApproche = demande.approche;
    espace.VitesseRetour = demande.retour;
}

OptionsDecoupe2D OptionsDeDecoupe(const DemandeDecoupe& demande, const Espace2D& espace) {
    const ValeursDecoupe valeurs =
        LimiterValeurs(DecoupeCourante, TableINI, static_cast<float>(Parametres.SaigneeMaxiSoft));
    return OptionsDepuisEspace(espace, static_cast<CoteDecalage2D>(demande.decalage), valeurs, Parametres);
}

void EcrireApercu(const std::string& chemin, const Espace2D& espace, const Decoupe2D& decoupe) {
    const OptionsDessin options;
    Dessin dessin;
    DessinerTable(dessin, TableINI, espace.bloc, options);
    DessinerSequences(dessin, espace.TableauSequences, options);
    DessinerDecoupe(dessin, decoupe, options);
    const CadreDessin cadre = CadreTable(TableINI);
    const double forme = (cadre.YMax - cadre.YMin) / (cadre.XMax - cadre.XMin);
    EcrireApercuPng(chemin, dessin, cadre, LargeurApercu, static_cast<int>(std::ceil(LargeurApercu * forme)),
                    FondApercu);
}

void EcrireDxf(const std::string& chemin, const Decoupe2D& decoupe) {
    EcrireFichier(chemin, "dxf", PointsDepuisSequences({&decoupe.SequenceDecoupe, 1}));
}

} // namespace

bool SortiesAcceptables(const DemandeDecoupe& demande) {
    if (ExtensionRefusee(demande.gcode, "gcode", TextesMessages(MessagesExtensionGcode),
                         TitresMessages(MessagesExtensionGcode)) ||
        ExtensionRefusee(demande.dxf, "dxf", TextesMessages(MessagesExtensionDxf),
                         TitresMessages(MessagesExtensionDxf)) ||
        ExtensionRefusee(demande.apercu, "png",
                         Dire("L'extension de fichier n'est pas correcte, l'aperçu se fait en .png",
                              "The file extension is wrong; the preview is saved as .png"),
                         TitresMessages(MessagesExtensionDxf)))
        return false;
    for (const std::string* sortie : {&demande.gcode, &demande.dxf, &demande.apercu})
        if (SortieEstUneEntree(*sortie, demande.fichiers)) return false;
    return true;
}

std::string Demande4axes::OptionDonnee() const {
    if (!cles.empty()) return "--" + cles.front().first;
    const std::pair<bool, const char*> drapeaux[] = {{symetrie, "--symetrie"},
                                                     {blocDresse, "--bloc-dresse"},
                                                     {dresser, "--dresser"},
                                                     {surfacer, "--surfacer"},
                                                     {guillotine.has_value(), "--guillotine"},
                                                     {armementRapide, "--armement-rapide"},
                                                     {autoXY, "--auto-xy"},
                                                     {autoZ, "--auto-z"}};
    for (const auto& [donne, nom] : drapeaux)
        if (donne) return nom;
    return "";
}

int Decouper(const DemandeDecoupe& demande) {
    if (EstDecoupe4axes(demande)) return Decouper4axes(demande);
    if (const std::string option = demande.quatreAxes.OptionDonnee(); !option.empty())
        throw MauvaisUsage(option + Dire(" va avec un projet 4 axes", " goes with a 4-axis project"));
    if (!DemandeAcceptable(demande)) return StatutRefuse;
    if (!ChoisirMachine(demande.machine) || !ChoisirMatiereNommee(demande.matiere)) return StatutRefuse;
    if (demande.interface && !MachinePrete()) return StatutRefuse;

    Progression progression(static_cast<int>(demande.fichiers.size()) + 5);
    Espace2D espace = NouvelEspace2D(TableINI);
    LectureLot lecture;
    if (!OuvrirTout(demande.fichiers, espace, lecture, progression)) return StatutRefuse;
    if (espace.TableauSequences.empty()) {
        AfficherExclamation(TextesDoubles(DoublesPasDeTrace, 1), TextesDoubles(DoublesPasDeTrace, 2));
        return StatutRefuse;
    }

    progression.Etape(Dire("assemblage", "assembly"));
    if (!TransformerTout(demande.transformations, espace.TableauSequences)) return StatutRefuse;
    Placer(demande, espace);
    const OptionsDecoupe2D options = OptionsDeDecoupe(demande, espace);
    const Decoupe2D decoupe = AssemblerDecoupe2D(espace.TableauSequences, options, TableINI);
    if (!decoupe.decalagePossible) return StatutRefuse;
    if (decoupe.SequenceDecalee.Points.empty()) {
        AfficherExclamation(TextesDoubles(DoublesRienDansLeBloc, 1), TextesDoubles(DoublesRienDansLeBloc, 2));
        return StatutRefuse;
    }

    // Everything that can fail for a reason of its own comes before the first output.
    progression.Etape("Gcode");
    const ExportGcode2D gcode = ConstruireGcode2D(decoupe, options, TableINI, espace.cheminProjet);
    if (gcode.contenu.empty()) return StatutRefuse;

    Sorties sorties;
    sorties.Ajouter(demande.gcode,
                    [&](const std::string& chemin) { EcrireFichierAtomique(chemin, gcode.contenu); });
    sorties.Ajouter(demande.dxf, [&](const std::string& chemin) { EcrireDxf(chemin, decoupe); });
    sorties.Ajouter(demande.apercu,
                    [&](const std::string& chemin) { EcrireApercu(chemin, espace, decoupe); });
    if (!sorties.Ecrire(progression)) return StatutRefuse;

    Progression::Effacer();
    const int resume =
        ImprimerResume(demande.fichiers, lecture, espace, decoupe, options, gcode, sorties.Chemins());
    if (resume != StatutFait || !demande.interface) return resume;
    return CouperSurMachine(decoupe, options, NomAffiche(MatiereCourante));
}

} // namespace tessarel::lot
