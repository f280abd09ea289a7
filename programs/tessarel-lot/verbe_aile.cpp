// `aile`: from two profile files to a 4-axis project that is ready to cut.
#include "langue_lot.h"
#include "projet4x_lot.h"
#include "resume_lot.h"
#include "verbes.h"

#include "app/settings/parametres.h"
#include "app/texts/textes.h"
#include "commun/ligne_de_commande.h"
#include "cut4x/parametres_decoupe4x.h"
#include "design4x/aile_neuve.h"
#include "design4x/synchronisation.h"
#include "machine/table_machine.h"
#include "paths/import.h"
#include "platform/dialogue.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "platform/nombres.h"
#include "work2d/espace2d.h"

#include <memory>

namespace tessarel::lot {

namespace {

struct DemandeAile {
    std::string emplanture;
    std::string saumon; // empty: the root
    PlanAile plan;
    std::optional<double> cordeSaumon; // that of the root without it
    bool synchroniser = false;
    std::string sortie;
};

// Angles of the perspective that the design window starts with.
constexpr int OmegaPerspective = 120;
constexpr int AlphaPerspective = 217;

// The first path of a drawing; nothing after a box.
std::optional<ProfilLu> LireProfil(const std::string& fichier, Progression& progression) {
    progression.Etape(Dire("lecture de ", "reading ") + NomDuChemin(fichier));
    try {
        DessinImporte dessin = LireDessin(fichier, Parametres.DistNettoyage);
        for (Sequence& s : dessin.sequences)
            if (s.Points.size() >= 2) return ProfilLu{NomDuChemin(fichier), std::move(s.Points)};
    } catch (const Faute& faute) {
        DireErreurLecture(faute);
        return std::nullopt;
    }
    AfficherExclamation(fichier + Dire(" : aucun profil", ": no profile"), TitresMessages(175));
    return std::nullopt;
}

// The cut that suits the wing: the kerf goes to the side away from the foam that is kept.
void ReglerDecoupe(const ProjetCPX& conception, Projet4axes& stocke) {
    ParametresDecoupe4axes parametres = ParametresDecoupe4axesInitiaux(TableINI);
    parametres.CoteDecalage =
        TourneADroite(conception.E.Points) ? CoteDecalageD4X::Gauche : CoteDecalageD4X::Droite;
    AppliquerAlignementZ(conception.Ecartement, TableINI, parametres);
    ReporterParametresProjet(parametres, stocke);
}

std::string TexteProfil(const ProfilCPX& profil) {
    return profil.NomFichier + ", " + FormaterNombre(profil.Corde, "#####0.0##") +
           Dire(" mm de corde", " mm of chord");
}

std::string TexteMesures(const ProjetCPX& p) {
    const Masque masque = "#####0.0##";
    return LigneResume(Dire("Emplanture", "Root"), TexteProfil(p.E)) +
           LigneResume(Dire("Saumon", "Tip"), TexteProfil(p.S)) +
           LigneResume(Dire("Écartement", "Spacing"), FormaterNombre(p.Ecartement, masque) + " mm") +
           LigneResume(Dire("Flèche", "Sweep"), FormaterNombre(p.Fleche, masque) + " mm") +
           LigneResume(Dire("Dièdre", "Dihedral"), FormaterNombre(p.DiedreMm, masque) + " mm") +
           LigneResume("Points", TexteComptes4x(p));
}

int Construire(const DemandeAile& demande) {
    const std::string& saumon = demande.saumon.empty() ? demande.emplanture : demande.saumon;
    if (!SortieProjet4xPermise(demande.sortie, {demande.emplanture, saumon})) return StatutRefuse;
    Progression progression(4);
    const std::optional<ProfilLu> luE = LireProfil(demande.emplanture, progression);
    if (!luE) return StatutRefuse;
    const std::optional<ProfilLu> luS = demande.saumon.empty() ? luE : LireProfil(saumon, progression);
    if (!luS) return StatutRefuse;

    Projet4x projet;
    ProjetCPX& conception = projet.conception.projet;
    PlanAile plan = demande.plan;
    plan.CordeSaumon = demande.cordeSaumon.value_or(plan.Corde);
    if (!ConstruireAile(*luE, *luS, plan, conception)) return StatutRefuse;
    if (demande.synchroniser) {
        progression.Etape(Dire("synchronisation", "synchronising"));
        PreparerSynchronisation(conception);
        if (!cmdSynchroOptimale(conception)) return StatutRefuse;
    }
    projet.stocke.Onglet = C4X;
    projet.stocke.Omega = OmegaPerspective;
    projet.stocke.Alpha = AlphaPerspective;
    ReglerDecoupe(conception, projet.stocke);
    if (!EcrireProjet4x(projet, demande.sortie, progression)) return StatutRefuse;
    Progression::Effacer();
    return Imprimer(TexteMesures(conception) + LigneResume(Dire("Écrit", "Written"), demande.sortie));
}

void DeclarerFichiers(CLI::App& verbe, DemandeAile& demande) {
    verbe.add_option("--emplanture,--root", demande.emplanture, Dire("Profil d'emplanture", "Root profile"))
        ->required()
        ->type_name("A.dat");
    verbe
        .add_option(
            "--saumon,--tip", demande.saumon,
            Dire("Profil de saumon ; sinon celui d'emplanture", "Tip profile (default: that of the root)"))
        ->type_name("B.dat");
    verbe.add_option("OUT", demande.sortie, Dire("Projet à écrire", "Project to write"))
        ->required()
        ->type_name("");
}

void DeclarerDimensions(CLI::App& verbe, DemandeAile& demande) {
    PlanAile& plan = demande.plan;
    const auto nombre = [&](const char* option, auto& valeur, const std::string& description) {
        return verbe.add_option(option, valeur, description)->transform(UnNombre());
    };
    const auto longueur = [&](const char* option, auto& valeur, const char* francais, const char* english) {
        return nombre(option, valeur, Dire(francais, english))->type_name("MM");
    };
    longueur("--corde,--chord", plan.Corde, "Corde d'emplanture", "Chord of the root")->required();
    longueur("--corde-saumon,--tip-chord", demande.cordeSaumon, "Corde de saumon ; sinon celle d'emplanture",
             "Chord of the tip (default: that of the root)");
    longueur("--ecartement,--spacing", plan.Ecartement, "Distance entre les deux profils",
             "Distance between the two profiles")
        ->required();
    longueur("--fleche,--sweep", plan.Fleche, "Recul du bord d'attaque du saumon ; 0 sinon",
             "How far the tip's leading edge stands back (default: 0)");
    longueur("--diedre,--dihedral", plan.DiedreMm,
             "Hauteur du point bas du saumon sur celui de l'emplanture ; sinon les cordes restent à la "
             "hauteur où elles sont dessinées",
             "Height of the tip's lowest point over the root's (default: chords stay as drawn)");
    nombre("--vrillage,--twist", plan.Vrillage,
           Dire("Vrillage du saumon autour de son bord d'attaque, positif nez vers le haut",
                "Twist of the tip about its leading edge, positive nose up"))
        ->type_name("DEG");
    verbe
        .add_option(
            "--bloc-auto,--auto-block", plan.BlocAuto,
            Dire("Bloc : 0 rectangulaire, 1 marges à 10 mm, 2 marges proportionnelles, 3 marges à 5 mm, 4 "
                 "hauteurs à 5 mm, 5 hauteurs à 10 mm",
                 "Block: 0 rectangular, 1 margins of 10 mm, 2 proportional margins, 3 margins of 5 mm, 4 "
                 "heights at 5 mm, 5 heights at 10 mm"))
        ->transform(Entre(0, 5, true))
        ->type_name("N");
}

} // namespace

void DeclarerAile(CLI::App& programme, const ChoisirAction& choisir) {
    CLI::App* verbe = AjouterVerbe(programme, "aile",
                                   Dire("Fait d'un ou deux profils un projet 4 axes prêt à découper",
                                        "Makes one or two profiles a 4-axis project, ready to cut"));
    const auto demande = std::make_shared<DemandeAile>();
    DeclarerFichiers(*verbe, *demande);
    DeclarerDimensions(*verbe, *demande);
    verbe->add_flag("--synchroniser,--synchronise", demande->synchroniser,
                    Dire("Fait correspondre les points des deux profils, bord d'attaque à bord d'attaque",
                         "Makes the points of the two profiles correspond, nose to nose"));
    verbe->callback([demande, choisir] { choisir([demande] { return Construire(*demande); }); });
}

} // namespace tessarel::lot
