// Options, help and refusals of the command line, in two languages.
#include "arguments.h"

#include "reglages_utilisateur.h"

#include "app/texts/textes.h"
#include "commun/ligne_de_commande.h"
#include "link/simulateur/pannes_texte.h"
#include "platform/adresse_zelko.h"
#include "platform/dossiers.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "platform/flux_standards.h"

#include <cstdio>

namespace tessarel::simulateur {

namespace {

constexpr const char* NomProgramme = "zelko-simulateur";
constexpr double FacteurMin = 0.01;
constexpr double FacteurMax = 1000000;
constexpr int CapaciteMax = 65536;
constexpr double CourseMax = 100000; // mm

Langue ChoisirLangue(int argc, char** argv) {
    const std::string langue = EnMinuscules(ValeurBrute(argc, argv, "--langue"));
    if (langue.starts_with("fr")) return Langue::Francais;
    if (langue.starts_with("en")) return Langue::English;
    return LangueDesReglages(ValeurBrute(argc, argv, "--documents"));
}

void DeclarerOptions(CLI::App& programme, Arguments& a, std::string& langue,
                     std::vector<std::string>& pannes) {
    PreparerAide(programme);
    AjouterOptionAide(programme);
    AjouterOptionVersion(programme, NomProgramme);
    programme.add_flag("--sans-fenetre", a.sansFenetre,
                       SelonLangue("Sans fenêtre, jusqu'à Ctrl+C", "Without a window, until Ctrl+C"));
    programme
        .add_option("--facteur", a.poste.facteur,
                    SelonLangue("Le temps de la machine, combien de fois le temps réel (1)",
                                "The machine's time, how many times real time (1)"))
        ->type_name("N")
        ->transform(Entre(FacteurMin, FacteurMax));
    programme
        .add_option("--memoires", a.poste.fichierMemoires,
                    SelonLangue("Fichier des trois mémoires ; sinon celui de la configuration",
                                "File of the three memories (default: that of the configuration)"))
        ->type_name("FILE");
    programme
        .add_option("--journal", a.poste.fichierJournal,
                    SelonLangue("Journal de chaque échange", "Log of every exchange"))
        ->type_name("FILE");
    programme
        .add_option("--machine", a.poste.machine,
                    SelonLangue("Machine posée sur le bureau ; sinon celle de la table active",
                                "Machine that stands on the desk (default: that of the active table)"))
        ->type_name("NAME");
    programme
        .add_option("--course-x", a.poste.courseX,
                    SelonLangue("Course en X, mm, au lieu de celle de la machine",
                                "Travel in X, mm, instead of the machine's"))
        ->type_name("MM")
        ->transform(Entre(1, CourseMax));
    programme.add_option("--course-y", a.poste.courseY, SelonLangue("Course en Y, mm", "Travel in Y, mm"))
        ->type_name("MM")
        ->transform(Entre(1, CourseMax));
    programme
        .add_option("--capacite", a.poste.capaciteFile,
                    SelonLangue("Salves que la file contient (128)", "Frames that the queue holds (128)"))
        ->type_name("N")
        ->transform(Entre(static_cast<double>(CapaciteFileMinimale), CapaciteMax, true));
    programme
        .add_option("--panne", pannes,
                    SelonLangue("Panne voulue, par exemple reponse-perdue:echange=12:fois=3 ; répétable",
                                "A fault to happen, such as reponse-perdue:echange=12:fois=3; repeatable"))
        ->type_name("SPEC");
    programme
        .add_option("--prise", a.poste.prise,
                    SelonLangue("Prise où écouter, au lieu de celle que le programme cherche",
                                "Socket to listen on, instead of the one that the program looks for"))
        ->type_name("PATH");
    programme
        .add_option("--documents", a.documents,
                    SelonLangue("Dossier qui tient lieu de Documents : celui qui contient Tessarel",
                                "Folder to use as Documents: the one that contains Tessarel"))
        ->type_name("DIR");
    programme.add_option("--langue", langue, SelonLangue("Langue des messages", "Language of the messages"))
        ->type_name("fr|en");
}

Arguments RefuserUsage(Arguments a, const std::string& raison) {
    const std::string aide = std::string(SelonLangue("Aide : ", "Help: ")) + NomProgramme + " --help\n";
    std::fputs((std::string(NomProgramme) + ": " + raison + "\n" + aide).c_str(), stderr);
    a.lancer = false;
    a.statut = StatutMauvaisUsage;
    return a;
}

} // namespace

Arguments LireArguments(int argc, char** argv) {
    Arguments a;
    const Langue choisie = ChoisirLangue(argc, argv);
    ChargerMessages(choisie);
    a.anglais = choisie == Langue::English;
    CLI::App programme(
        SelonLangue("Une interface Zelko virtuelle, avec sa machine : ce que Tessarel trouve quand "
                    "aucune interface n'est branchée.",
                    "A virtual Zelko interface with its machine: what Tessarel finds when no "
                    "interface is plugged in."),
        NomProgramme);
    std::string langue;
    std::vector<std::string> pannes;
    DeclarerOptions(programme, a, langue, pannes);
    try {
        programme.parse(argc, argv);
        if (!langue.empty() && langue != "fr" && langue != "en")
            return RefuserUsage(a, SelonLangue("--langue : ", "--langue: ") + langue +
                                       SelonLangue(" (attendu : fr ou en)", " (expected: fr or en)"));
        for (const std::string& texte : pannes) a.poste.pannes.push_back(LirePanne(texte));
    } catch (const CLI::Success& demande) {
        EcrireSortie(dynamic_cast<const CLI::CallForHelp*>(&demande) != nullptr ? programme.help()
                                                                                : programme.version() + "\n");
        return a;
    } catch (const CLI::ParseError& erreur) {
        return RefuserUsage(a, RaisonUsage(programme, erreur));
    } catch (const FauteConversion& faute) {
        return RefuserUsage(a, faute.what());
    }
    if (a.poste.fichierMemoires.empty())
        a.poste.fichierMemoires = JoindreChemin(DossierConfiguration(), "zelko-memoires.json");
    if (a.poste.prise.empty()) a.poste.prise = AdresseZelko(true);
    a.lancer = true;
    return a;
}

} // namespace tessarel::simulateur
