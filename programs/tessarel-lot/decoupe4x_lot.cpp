// The 4-axis cut from the shell: project and options, placing, the computation, its checks, the files.
#include "decoupe4x_lot.h"

#include "langue_lot.h"
#include "machine_lot.h"
#include "progression.h"
#include "resume_lot.h"
#include "sorties.h"
#include "verbes.h"

#include "app/settings/parametres.h"
#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "cut4x/dessin_decoupe4x.h"
#include "cut4x/export_gcode4x.h"
#include "cut4x/fautes_d4x.h"
#include "cut4x/passage.h"
#include "cut4x/position_bloc4x.h"
#include "design4x/conversion_projet.h"
#include "machine/matieres.h"
#include "paths/cles_projet.h"
#include "paths/durees.h"
#include "paths/fichier_projet.h"
#include "platform/dialogue.h"
#include "platform/fichiers.h"
#include "platform/images/images.h"
#include "platform/nombres.h"

#include <cmath>

namespace tessarel::lot {

namespace {

constexpr int MessagesPasDInterface = 108;
constexpr int LargeurApercu = 1800; // pixels
constexpr Couleur FondApercu = {255, 255, 255, 255};

// What a cut is made from and what it became.
struct Decoupe4axes {
    ProjetCPX projet;
    ParametresDecoupe4axes parametres;
    ValeursDecoupe matiere;
    DecoupeD4X decoupe;
    [[nodiscard]] ContexteD4X Contexte() const { return {projet, parametres, matiere, TableINI}; }
};

bool EstProjet4axes(const std::string& chemin) {
    if (ExtensionMinuscule(chemin) != "tsr" || !FichierExiste(chemin)) return false;
    const std::string onglet = LireOngletProjet(chemin);
    return onglet == C4X || onglet == D4X;
}

// A value for a key of the project, or the sentence that says what was expected.
std::string PoserValeur(const Cle4axes& cle, const std::string& texte, Projet4axes& projet) {
    const auto valeur = LireDecimal(texte);
    if (!valeur) return Dire("nombre attendu", "number expected");
    if (cle.genre == GenreCle::Reel) {
        projet.*std::get<double Projet4axes::*>(cle.membre) = *valeur;
        return "";
    }
    const bool entier = PartieEntiere(*valeur) == *valeur && std::fabs(*valeur) <= 1e9;
    const bool choix = cle.genre == GenreCle::Choix;
    if (!entier || (choix && (*valeur < 0 || *valeur > cle.maximum)))
        return choix ? Dire("attendu : 0 à ", "expected: 0 to ") + std::to_string(cle.maximum)
                     : Dire("nombre entier attendu", "whole number expected");
    projet.*std::get<int Projet4axes::*>(cle.membre) = static_cast<int>(*valeur);
    return "";
}

void DeclarerCles(CLI::App& verbe, Demande4axes& demande) {
    for (const Cle4axes& cle : ClesProjet4axes) {
        if (std::string_view(cle.section) != SectionDecoupe4axes) continue;
        const std::string option = std::string("--") + cle.cle;
        verbe
            .add_option_function<std::string>(
                option,
                [&demande, &cle, option](const std::string& texte) {
                    Projet4axes essai;
                    const std::string raison = PoserValeur(cle, texte, essai);
                    if (!raison.empty()) throw CLI::ValidationError(option, texte + " (" + raison + ")");
                    demande.cles.emplace_back(cle.cle, texte);
                },
                Dire("4 axes : au lieu de la valeur du projet", "4 axes: instead of the project's value"))
            ->type_name(cle.genre == GenreCle::Choix ? "0-" + std::to_string(cle.maximum) : "N");
    }
}

void DeclarerOutils(CLI::App& verbe, Demande4axes& demande) {
    verbe.add_flag("--symetrie", demande.symetrie,
                   Dire("4 axes : échange les deux côtés", "4 axes: exchanges the two sides"));
    verbe.add_flag("--bloc-dresse", demande.blocDresse,
                   Dire("4 axes : le bloc est déjà dressé", "4 axes: the block is squared already"));
    verbe.add_flag("--dresser", demande.dresser,
                   Dire("4 axes : dresse le bloc au lieu de couper les profils",
                        "4 axes: squares the block instead of cutting the profiles"));
    verbe.add_flag("--surfacer", demande.surfacer,
                   Dire("Avec --dresser : le dessus aussi", "With --dresser: the top too"));
    verbe
        .add_option_function<std::vector<std::string>>(
            "--guillotine",
            [&demande](const std::vector<std::string>& textes) {
                const auto hauteur = LireDecimal(textes.at(0));
                const auto angle = LireDecimal(textes.at(1));
                if (!hauteur || !angle)
                    throw CLI::ValidationError("--guillotine",
                                               Dire("deux nombres attendus", "two numbers expected"));
                demande.guillotine = {*hauteur, *angle};
            },
            Dire("4 axes : coupe droite, hauteur en mm et angle en degrés ; sans projet",
                 "4 axes: a straight cut, height in mm and angle in degrees; needs no project"))
        ->type_name("H ANGLE")
        ->expected(2);
    verbe.add_flag(
        "--armement-rapide", demande.armementRapide,
        Dire("Avec --guillotine : première montée en rapide", "With --guillotine: first rise in rapid"));
    verbe.add_flag("--auto-xy", demande.autoXY,
                   Dire("4 axes : place le bloc en X et Y", "4 axes: places the block in X and Y"));
    verbe.add_flag("--auto-z", demande.autoZ,
                   Dire("4 axes : place le bloc le long du fil", "4 axes: places the block along the wire"));
}

void VerifierAccords(const DemandeDecoupe& demande) {
    const Demande4axes& quatre = demande.quatreAxes;
    if (!demande.option2D.empty())
        throw MauvaisUsage(demande.option2D +
                           Dire(" ne va pas avec une découpe 4 axes", " does not go with a 4-axis cut"));
    if (quatre.guillotine && quatre.dresser)
        throw MauvaisUsage(Dire("--dresser et --guillotine s'excluent", "--dresser and --guillotine exclude "
                                                                        "each other"));
    if (quatre.surfacer && !quatre.dresser)
        throw MauvaisUsage(Dire("--surfacer va avec --dresser", "--surfacer goes with --dresser"));
    if (quatre.armementRapide && !quatre.guillotine)
        throw MauvaisUsage(
            Dire("--armement-rapide va avec --guillotine", "--armement-rapide goes with --guillotine"));
    if (demande.fichiers.size() > 1)
        throw MauvaisUsage(Dire("un projet se découpe seul, sans autre fichier : ",
                                "a project is cut on its own, without other files: ") +
                           demande.fichiers[1]);
}

void RegleParOptions(const Demande4axes& demande, ParametresDecoupe4axes& parametres) {
    parametres.symetrie = demande.symetrie;
    parametres.chkBlocDresse = demande.blocDresse;
    parametres.chkDresser = demande.dresser;
    parametres.chkSurfacer = demande.surfacer;
    parametres.chkGuillotine = demande.guillotine.has_value();
    parametres.chkMonteeRapide = demande.armementRapide;
    if (!demande.guillotine) return;
    parametres.hauteurGuillotine = demande.guillotine->first;
    parametres.angleGuillotine = demande.guillotine->second;
}

// Reads the project and passes it on to the cut; false after the box of one that can't be cut.
bool OuvrirProjet(const DemandeDecoupe& demande, Decoupe4axes& d) {
    const std::string& chemin = demande.fichiers.front();
    Projet4axes stocke = LireProjet4axes(chemin);
    for (const auto& [nom, texte] : demande.quatreAxes.cles)
        for (const Cle4axes& cle : ClesProjet4axes)
            if (std::string_view(cle.section) == SectionDecoupe4axes && nom == cle.cle)
                PoserValeur(cle, texte, stocke);
    d.projet = ProjetCPXDepuis(stocke, NomDuChemin(chemin));
    ReprendreParametresProjet(stocke, TableINI, d.parametres);
    const PassageD4X passage = PasserEnDecoupe(d.projet, true, TableINI);
    d.decoupe.DecoupePossible = passage.DecoupePossible;
    if (passage.DecoupePossible) {
        VerifierPositionZ(d.projet, TableINI, d.parametres);
        return true;
    }
    if (d.parametres.chkGuillotine) return true;
    AfficherCritique(passage.raison, passage.titre);
    return false;
}

void Calculer(const Demande4axes& demande, Decoupe4axes& d) {
    CalculerDecoupeD4X(d.Contexte(), d.decoupe);
    if (demande.autoZ && d.decoupe.DecoupePossible) {
        SaisirZ1(PlacementAutoBlocZ(d.Contexte(), d.decoupe), d.projet, TableINI, d.parametres);
        CalculerDecoupeD4X(d.Contexte(), d.decoupe);
    }
    if (demande.autoXY && d.decoupe.DecoupePossible)
        d.parametres = PositionAutomatiqueXY(d.Contexte(), d.decoupe);
}

void EcrireApercu4x(const std::string& chemin, const Decoupe4axes& d) {
    Dessin dessin;
    DessinerDecoupe4x(dessin, d.Contexte(), d.decoupe, {});
    const CadreDessin cadre = CadreDecoupe4x(TableINI, d.decoupe);
    const double forme = (cadre.YMax - cadre.YMin) / (cadre.XMax - cadre.XMin);
    EcrireApercuPng(chemin, dessin, cadre, LargeurApercu, static_cast<int>(std::ceil(LargeurApercu * forme)),
                    FondApercu);
}

std::string Millimetres(double valeur) {
    return FormaterNombre(valeur, "###0.0##") + " mm";
}

std::string TexteBloc4x(const Decoupe4axes& d) {
    const FaceBloc& e = d.decoupe.blocE;
    const FaceBloc& s = d.decoupe.blocS;
    return FormaterNombre(e.Xba - e.Xbf, "###0.0##") + " / " + FormaterNombre(s.Xba - s.Xbf, "###0.0##") +
           " x " + FormaterNombre(d.projet.Epaisseur, "###0.0##") + " x " + Millimetres(d.projet.Ecartement);
}

std::string TexteDecalage4x(const ParametresDecoupe4axes& parametres) {
    if (parametres.CoteDecalage == CoteDecalageD4X::Aucun) return Dire("aucun", "none");
    return (parametres.TypeAlgorithmeDecalage == AlgorithmeDecalageD4X::Simple
                ? Dire("simple", "simple")
                : Dire("variable", "variable")) +
           (parametres.CoteDecalage == CoteDecalageD4X::Gauche ? Dire(" à gauche", " to the left")
                                                               : Dire(" à droite", " to the right"));
}

int ImprimerResume4x(const DemandeDecoupe& demande, const Decoupe4axes& d, const ExportGcode4axes& gcode,
                     const std::vector<std::string>& ecrits) {
    std::string texte;
    for (const std::string& fichier : demande.fichiers)
        texte += LigneResume(Dire("Fichier", "File"), fichier);
    texte += LigneResume("Machine", TableINI.Nom);
    texte += LigneResume(Dire("Matière", "Material"), NomAffiche(MatiereCourante));
    if (d.decoupe.DecoupePossible) {
        texte += LigneResume(Dire("Bloc", "Block"), TexteBloc4x(d));
        texte += LigneResume("Position", FormaterNombre(d.parametres.OffsetBlocX, "###0.0##") + ", " +
                                             FormaterNombre(d.parametres.OffsetBlocY, "###0.0##") + ", " +
                                             Millimetres(d.parametres.OffsetBlocZ));
    }
    texte += LigneResume(Dire("Durée", "Duration"),
                         std::string(Rogner(TexteDureeGcode(gcode.preparation.resume.dureeSecondes))));
    texte += LigneResume(Dire("Vitesse", "Speed"), FormaterNombre(d.matiere.Vitesse, "##0.0") + " mm/s");
    texte += LigneResume(Dire("Chauffe", "Heating"), FormaterNombre(d.matiere.Chauffe, "##0.0") + " %");
    texte += LigneResume(Dire("Saignée", "Kerf"), FormaterNombre(d.matiere.SaigneeVD, "##0.0##") + " / " +
                                                      Millimetres(d.matiere.SaigneeVDsur2));
    if (!d.parametres.chkDresser && !d.parametres.chkGuillotine)
        texte += LigneResume(Dire("Décalage", "Offset"), TexteDecalage4x(d.parametres));
    texte += LigneResume("Points", std::to_string(d.decoupe.PaireChariots.E.size()) +
                                       Dire(" dans le trajet, ", " in the path, ") +
                                       std::to_string(gcode.mouvements) + Dire(" mouvements, ", " moves, ") +
                                       std::to_string(gcode.preparation.TronconsD4X.size()) +
                                       Dire(" section(s)", " section(s)"));
    for (const std::string& ecrit : ecrits) texte += LigneResume(Dire("Écrit", "Written"), ecrit);
    return Imprimer(texte);
}

int DecouperSur4axes(const DemandeDecoupe& demande) {
    VerifierAccords(demande);
    if (demande.interface) {
        AfficherExclamation(TextesMessages(MessagesPasDInterface), TitresMessages(MessagesPasDInterface));
        return StatutRefuse;
    }
    if (!SortiesAcceptables(demande)) return StatutRefuse;
    if (!ChoisirMachine(demande.machine) || !ChoisirMatiereNommee(demande.matiere)) return StatutRefuse;
    if (!MachineAcceptee4axes(TableINI)) return StatutRefuse;

    Progression progression(5);
    Decoupe4axes d;
    d.parametres = ParametresDecoupe4axesInitiaux(TableINI);
    d.matiere = LimiterValeurs(DecoupeCourante, TableINI, static_cast<float>(Parametres.SaigneeMaxiSoft));
    RegleParOptions(demande.quatreAxes, d.parametres);
    if (!demande.fichiers.empty()) {
        progression.Etape(Dire("lecture de ", "reading ") + NomDuChemin(demande.fichiers.front()));
        if (!OuvrirProjet(demande, d)) return StatutRefuse;
    }
    progression.Etape(Dire("calcul", "computation"));
    Calculer(demande.quatreAxes, d);
    progression.Etape("Gcode");
    const std::string projet = demande.fichiers.empty() ? "" : demande.fichiers.front();
    const ExportGcode4axes gcode = ConstruireGcode4axes(d.Contexte(), d.decoupe, projet);

    // A path that the machine can't follow is drawn all the same: the picture shows where. Nothing else is
    // written of it.
    const bool bonne = gcode.preparation.Resultat == PreparationBonne;
    Sorties sorties;
    if (bonne)
        sorties.Ajouter(demande.gcode,
                        [&](const std::string& chemin) { EcrireFichierAtomique(chemin, gcode.contenu); });
    if (bonne || gcode.preparation.Resultat == PreparationRefusee)
        sorties.Ajouter(demande.apercu, [&](const std::string& chemin) { EcrireApercu4x(chemin, d); });
    if (!sorties.Ecrire(progression) || !bonne) return StatutRefuse;
    Progression::Effacer();
    return ImprimerResume4x(demande, d, gcode, sorties.Chemins());
}

} // namespace

void DeclarerOptions4axes(CLI::App& verbe, Demande4axes& demande) {
    DeclarerCles(verbe, demande);
    DeclarerOutils(verbe, demande);
}

bool EstDecoupe4axes(const DemandeDecoupe& demande) {
    if (demande.quatreAxes.guillotine) return true;
    for (const std::string& fichier : demande.fichiers)
        if (EstProjet4axes(fichier)) return true;
    return false;
}

int Decouper4axes(const DemandeDecoupe& demande) {
    try {
        return DecouperSur4axes(demande);
    } catch (const FauteProcedureD4X& faute) {
        AfficherCritique(faute.what() + std::string("\r\n") +
                             TexteRempli(TexteProgramme::ProcedureErreur, {faute.Procedure()}),
                         Texte(TexteProgramme::TitreErreur));
        return StatutRefuse;
    }
}

} // namespace tessarel::lot
