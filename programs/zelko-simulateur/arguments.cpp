// Options, help and refusals of the command line, in two languages.
#include "arguments.h"

#include "reglages_utilisateur.h"

#include "app/texts/textes.h"
#include "link/simulateur/pannes_texte.h"
#include "platform/adresse_zelko.h"
#include "platform/dossiers.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "platform/flux_standards.h"
#include "platform/nombres.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <fmt/format.h>
#include <optional>
#include <string_view>

namespace tessarel::simulateur {

namespace {

constexpr const char* NomProgramme = "zelko-simulateur";
constexpr double FacteurMin = 0.01;
constexpr double FacteurMax = 1000000;
constexpr int CapaciteMax = 65536;
constexpr double CourseMax = 100000; // mm

// Value of an option in words not yet parsed, for what help and refusals must know already.
std::string ValeurBrute(int argc, char** argv, std::string_view nom) {
    for (int i = 1; i < argc; ++i) {
        const std::string_view mot = argv[i];
        if (mot == nom && i + 1 < argc) return argv[i + 1];
        if (mot.starts_with(nom) && mot.size() > nom.size() && mot[nom.size()] == '=')
            return std::string(mot.substr(nom.size() + 1));
    }
    return "";
}

Langue ChoisirLangue(int argc, char** argv) {
    const std::string langue = EnMinuscules(ValeurBrute(argc, argv, "--langue"));
    if (langue.starts_with("fr")) return Langue::Francais;
    if (langue.starts_with("en")) return Langue::English;
    return LangueDesReglages(ValeurBrute(argc, argv, "--documents"));
}

// A number between two bounds, told as such: the parser's own sentence is in English.
CLI::Validator Entre(double min, double max, bool entier = false) {
    return CLI::Validator(
        [=](std::string& texte) -> std::string {
            const std::optional<double> valeur = LireDecimal(texte);
            if (!valeur || *valeur < min || *valeur > max)
                return fmt::format("{}{}{} {} {}", texte,
                                   SelonLangue(" : nombre attendu, de ", ": number expected, from "), min,
                                   SelonLangue("à", "to"), max);
            if (entier && *valeur != PartieEntiere(*valeur))
                return texte + SelonLangue(" : nombre entier attendu", ": whole number expected");
            return "";
        },
        "");
}

void DeclarerOptions(CLI::App& programme, Arguments& a, std::string& langue,
                     std::vector<std::string>& pannes) {
    programme.get_formatter()->column_width(34);
    programme.get_formatter()->label("Usage", SelonLangue("Utilisation ", "Usage"));
    programme.get_formatter()->label("REQUIRED", SelonLangue("OBLIGATOIRE", "REQUIRED"));
    programme.set_help_flag("-h,--help,--aide",
                            SelonLangue("Affiche cette aide et s'arrête", "Prints this help and stops"));
    programme.set_version_flag("--version",
                               std::string(NomProgramme) + " " + std::to_string(TESSAREL_VERSION_MAJEURE) +
                                   "." + std::to_string(TESSAREL_VERSION_MINEURE) + "." +
                                   std::to_string(TESSAREL_VERSION_REVISION),
                               SelonLangue("Affiche la version et s'arrête", "Prints the version and stops"));
    programme.add_flag("--sans-fenetre", a.sansFenetre,
                       SelonLangue("Sans fenêtre, jusqu'à Ctrl+C", "Without a window, until Ctrl+C"));
    programme
        .add_option("--facteur", a.poste.facteur,
                    SelonLangue("Le temps de la machine, combien de fois le temps réel (1)",
                                "The machine's time, how many times real time (1)"))
        ->type_name("N")
        ->check(Entre(FacteurMin, FacteurMax));
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
        ->check(Entre(1, CourseMax));
    programme.add_option("--course-y", a.poste.courseY, SelonLangue("Course en Y, mm", "Travel in Y, mm"))
        ->type_name("MM")
        ->check(Entre(1, CourseMax));
    programme
        .add_option("--capacite", a.poste.capaciteFile,
                    SelonLangue("Salves que la file contient (128)", "Frames that the queue holds (128)"))
        ->type_name("N")
        ->check(Entre(static_cast<double>(CapaciteFileMinimale), CapaciteMax, true));
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

std::string RaisonUsage(const CLI::ParseError& erreur) {
    const std::string phrase = erreur.what();
    if (dynamic_cast<const CLI::ExtrasError*>(&erreur) != nullptr)
        return SelonLangue("inattendu : ", "unexpected: ") + phrase.substr(phrase.find(": ") + 2);
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&erreur) != nullptr)
        return phrase.substr(0, phrase.find(':')) +
               SelonLangue(" : une valeur et une seule est attendue", ": exactly one value is expected");
    return phrase;
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
            return RefuserUsage(a, std::string("--langue") +
                                       SelonLangue(" : fr ou en attendu", ": fr or en expected"));
        for (const std::string& texte : pannes) a.poste.pannes.push_back(LirePanne(texte));
    } catch (const CLI::Success& demande) {
        EcrireSortie(dynamic_cast<const CLI::CallForHelp*>(&demande) != nullptr ? programme.help()
                                                                                : programme.version() + "\n");
        return a;
    } catch (const CLI::ParseError& erreur) {
        return RefuserUsage(a, RaisonUsage(erreur));
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
