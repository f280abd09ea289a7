// `decouper`: drawings or a project, placed in the block, become the path of the wire, a G-code file, a DXF,
// a picture.
#include "decoupe4x_lot.h"
#include "decoupe_lot.h"
#include "langue_lot.h"
#include "resume_lot.h"
#include "verbes.h"

#include "app/settings/parametres.h"
#include "machine/matieres.h"
#include "platform/dialogue.h"
#include "platform/fichiers.h"
#include "platform/nombres.h"
#include "progression.h"

#include <memory>
#include <string>

namespace tessarel::lot {

namespace {

// "300x200": width and height, mm.
bool LireBloc(const std::string& texte, Bloc& bloc) {
    const auto croix = texte.find_first_of("xX");
    if (croix == std::string::npos) return false;
    const auto largeur = LireDecimal(std::string_view(texte).substr(0, croix));
    const auto hauteur = LireDecimal(std::string_view(texte).substr(croix + 1));
    if (!largeur || !hauteur || *largeur <= 0 || *hauteur <= 0) return false;
    bloc = {EnSimple(*largeur), EnSimple(*hauteur)};
    return true;
}

void DeclarerEntrees(CLI::App& verbe, DemandeDecoupe& demande) {
    verbe
        .add_option("FILE", demande.fichiers,
                    Dire("Dessins, ajoutés l'un après l'autre, ou un seul projet .tsr ou .qnt",
                         "Drawings, added one after the other, or a single .tsr or .qnt project"))
        ->type_name("");
    verbe
        .add_option(
            "--machine", demande.machine,
            Dire("Machine, au lieu de celle des réglages", "Machine to use (default: that of the settings)"))
        ->type_name("M");
    verbe
        .add_option("--matiere", demande.matiere,
                    Dire("Matière de cette machine", "Material of this machine"))
        ->type_name("M");
}

void DeclarerPlacement(CLI::App& verbe, DemandeDecoupe& demande) {
    verbe
        .add_option_function<std::string>(
            "--bloc",
            [&demande](const std::string& texte) {
                demande.blocAuto = texte == "auto";
                Bloc bloc;
                if (!demande.blocAuto && !LireBloc(texte, bloc))
                    throw CLI::ValidationError("--bloc", texte + Dire(" (attendu : LxH en mm, ou auto)",
                                                                      " (expected: LxH in mm, or auto)"));
                if (!demande.blocAuto) demande.bloc = bloc;
            },
            Dire("Bloc en mm, ou auto : à la taille des tracés",
                 "Block in mm, or auto: the size of the paths"))
        ->type_name("LxH");
    verbe.add_flag("--ajuster", demande.regles.ajuster,
                   Dire("Met les tracés à l'échelle du bloc", "Scales the paths to the block"));
    verbe.add_flag("--centrer-x", demande.regles.centrerX,
                   Dire("Centre les tracés en largeur", "Centers the paths across the width of the block"));
    verbe.add_flag("--centrer-y", demande.regles.centrerY,
                   Dire("Centre les tracés en hauteur", "Centers the paths over the height of the block"));
}

void DeclarerCoupe(CLI::App& verbe, DemandeDecoupe& demande) {
    AjouterChoix(verbe, "--decalage", demande.decalage,
                 {{"aucun", "none"}, {"gauche", "left"}, {"droite", "right"}},
                 Dire("Côté du décalage d'une demi-saignée, dans le sens du parcours",
                      "Side of the offset by half the kerf, in the direction of travel"));
    const MotsChoix types = {{"0"}, {"1"}, {"2"}};
    AjouterChoix(verbe, "--entree", demande.entree, types,
                 Dire("Entrée dans le bloc : 0 côté origine, 1 dessus, 2 côté opposé",
                      "Entry into the block: 0 from the origin side, 1 from above, 2 from the far side"));
    AjouterChoix(verbe, "--sortie", demande.sortie, types,
                 Dire("Sortie du bloc, de même", "Exit from the block, likewise"));
    AjouterChoix(verbe, "--approche", demande.approche,
                 {{"lente", "lent", "slow"}, {"rapide", "rapid", "fast"}},
                 Dire("Vitesse jusqu'au bloc", "Approach speed"));
    AjouterChoix(verbe, "--retour", demande.retour, {{"lent", "lente", "slow"}, {"rapide", "rapid", "fast"}},
                 Dire("Vitesse du retour", "Return speed"));
}

void DeclarerSorties(CLI::App& verbe, DemandeDecoupe& demande) {
    verbe.add_option("--gcode", demande.gcode, Dire("Écrit le Gcode", "Writes the Gcode"))
        ->type_name("OUT.gcode");
    verbe
        .add_option("--dxf", demande.dxf,
                    Dire("Écrit le trajet complet en DXF", "Writes the whole path as DXF"))
        ->type_name("OUT.dxf");
    verbe
        .add_option(
            "--apercu", demande.apercu,
            Dire("Dessine table, bloc et trajet en PNG", "Draws the table, the block and the path as a PNG"))
        ->type_name("OUT.png");
    verbe.add_flag("--interface", demande.interface,
                   Dire("Découpe avec la machine branchée", "Cuts on the machine that is plugged in"));
}

std::string Option2DDonnee(const CLI::App& verbe) {
    for (const char* nom :
         {"--bloc", "--ajuster", "--centrer-x", "--centrer-y", "--decalage", "--entree", "--sortie",
          "--approche", "--retour", "--dxf", "--miroir", "--tourner", "--largeur", "--hauteur", "--inverser"})
        if (verbe.get_option(nom)->count() > 0) return nom;
    return "";
}

} // namespace

void DeclarerDecouper(CLI::App& programme, const ChoisirAction& choisir) {
    CLI::App* verbe = AjouterVerbe(programme, "decouper",
                                   Dire("Prépare une découpe 2D ou 4 axes : résumé, Gcode, DXF, aperçu",
                                        "Prepares a 2D or 4-axis cut: summary, Gcode, DXF, preview"));
    const auto demande = std::make_shared<DemandeDecoupe>();
    DeclarerEntrees(*verbe, *demande);
    DeclarerTransformations(*verbe, demande->transformations);
    DeclarerPlacement(*verbe, *demande);
    DeclarerCoupe(*verbe, *demande);
    DeclarerSorties(*verbe, *demande);
    DeclarerOptions4axes(*verbe, demande->quatreAxes);
    verbe->callback([verbe, demande, choisir] {
        // The guillotine alone needs nothing to read.
        if (demande->fichiers.empty() && !demande->quatreAxes.guillotine) throw CLI::RequiredError("FILE");
        demande->option2D = Option2DDonnee(*verbe);
        choisir([demande] { return Decouper(*demande); });
    });
}

} // namespace tessarel::lot
