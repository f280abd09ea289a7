// `intermediaire`: the profile between root and tip takes the place of one of them.
#include "langue_lot.h"
#include "projet4x_lot.h"
#include "resume_lot.h"
#include "verbes.h"

#include "commun/ligne_de_commande.h"
#include "design4x/intermediaire.h"
#include "platform/nombres.h"

#include <memory>

namespace tessarel::lot {

namespace {

struct DemandeIntermediaire {
    double distance = 0; // mm from the root
    int vers = -1;       // 0 root, 1 tip
    std::string entree;
    std::string sortie;
};

int Remplacer(const DemandeIntermediaire& demande) {
    if (!SortieProjet4xPermise(demande.sortie, {demande.entree})) return StatutRefuse;
    Progression progression(2);
    std::optional<Projet4x> projet = OuvrirProjet4x(demande.entree, progression);
    if (!projet) return StatutRefuse;
    ProjetCPX& conception = projet->conception.projet;
    ProfilIntermediaire intermediaire;
    if (!CalculerProfilIntermediaire(conception, demande.distance, intermediaire)) return StatutRefuse;
    const bool fait = demande.vers == 0 ? cmdIntermediaireToEmplanture(conception, intermediaire)
                                        : cmdIntermediaireToSaumon(conception, intermediaire);
    // A distance of 0 leaves the project as it is; any other refusal has told why.
    if (!fait && intermediaire.DistanceIntermediaire != 0) return StatutRefuse;
    if (!EcrireProjet4x(*projet, demande.sortie, progression)) return StatutRefuse;
    Progression::Effacer();
    return Imprimer(LigneResume(Dire("Fichier", "File"), demande.entree) +
                    LigneResume(Dire("Écartement", "Spacing"),
                                FormaterNombre(conception.Ecartement, "#####0.0##") + " mm") +
                    LigneResume("Points", TexteComptes4x(conception)) +
                    LigneResume(Dire("Écrit", "Written"), demande.sortie));
}

} // namespace

void DeclarerIntermediaire(CLI::App& programme, const ChoisirAction& choisir) {
    CLI::App* verbe =
        AjouterVerbe(programme, "intermediaire",
                     Dire("Coupe une aile en deux : le profil à D mm de l'emplanture remplace un bout",
                          "Cuts a wing in two: the profile D mm from the root replaces one end"));
    const auto demande = std::make_shared<DemandeIntermediaire>();
    verbe
        ->add_option("D", demande->distance,
                     Dire("Distance à l'emplanture, mm", "Distance from the root, mm"))
        ->required()
        ->transform(UnNombre())
        ->type_name("");
    AjouterChoix(*verbe, "--vers", demande->vers, {{"emplanture", "root"}, {"saumon", "tip"}},
                 Dire("Le bout qu'il remplace", "The end that it replaces"))
        ->required();
    verbe->add_option("IN", demande->entree, Dire("Projet 4 axes à lire", "4-axis project to read"))
        ->required()
        ->type_name("");
    verbe->add_option("OUT", demande->sortie, Dire("Projet à écrire", "Project to write"))
        ->required()
        ->type_name("");
    verbe->callback([demande, choisir] { choisir([demande] { return Remplacer(*demande); }); });
}

} // namespace tessarel::lot
