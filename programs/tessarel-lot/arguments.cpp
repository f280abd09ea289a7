// The command line: options of the program, its verbs, help and refusals in the user's language.
#include "arguments.h"

#include "langue_lot.h"
#include "session.h"

#include "platform/flux_standards.h"

#include <cstdio>
#include <string_view>

namespace tessarel::lot {

namespace {

std::optional<Langue> LireLangue(std::string_view texte) {
    if (texte == "fr" || texte == "francais" || texte == "Francais") return Langue::Francais;
    if (texte == "en" || texte == "english" || texte == "English") return Langue::English;
    return std::nullopt;
}

// Value of an option in words not yet parsed: "--nom valeur" or "--nom=valeur"; empty when absent.
std::string ValeurBrute(int argc, char** argv, std::string_view nom) {
    for (int i = 1; i < argc; ++i) {
        const std::string_view mot = argv[i];
        if (mot == "--") break;
        if (mot == nom && i + 1 < argc) return argv[i + 1];
        if (mot.starts_with(nom) && mot.size() > nom.size() && mot[nom.size()] == '=')
            return std::string(mot.substr(nom.size() + 1));
    }
    return "";
}

// Help and refusals speak before the command line is understood.
void ChoisirLangueDesMessages(int argc, char** argv) {
    const auto langue = LireLangue(ValeurBrute(argc, argv, "--langue"));
    ChargerMessages(langue ? *langue : LangueDesReglages(ValeurBrute(argc, argv, "--documents")));
}

void DeclarerOptions(CLI::App& programme, Commande& commande) {
    programme.get_formatter()->column_width(34);
    programme.get_formatter()->label("Usage", Dire("Utilisation ", "Usage"));
    programme.get_formatter()->label("OPTIONS", "OPTIONS");
    programme.get_formatter()->label("SUBCOMMAND", Dire("VERBE", "VERB"));
    programme.get_formatter()->label("Positionals", "Arguments");
    programme.set_help_flag("-h,--help,--aide",
                            Dire("Affiche cette aide et s'arrête", "Prints this help and stops"));
    programme.set_version_flag("--version",
                               std::string("tessarel-lot ") + std::to_string(TESSAREL_VERSION_MAJEURE) + "." +
                                   std::to_string(TESSAREL_VERSION_MINEURE) + "." +
                                   std::to_string(TESSAREL_VERSION_REVISION),
                               Dire("Affiche la version et s'arrête", "Prints the version and stops"));
    programme
        .add_option("--documents", commande.documents,
                    Dire("Dossier qui tient lieu de Documents : celui qui contient Tessarel",
                         "Folder to use as Documents: the one that contains Tessarel"))
        ->type_name("DIR");
    programme
        .add_option_function<std::string>(
            "--langue",
            [&commande](const std::string& texte) {
                commande.langue = LireLangue(texte);
                if (!commande.langue)
                    throw CLI::ValidationError("--langue", Dire("fr ou en attendu", "fr or en expected"));
            },
            Dire("Langue des messages ; sinon celle des réglages",
                 "Language of the messages (default: that of the settings)"))
        ->type_name("fr|en");
    programme.add_flag("--oui", commande.oui,
                       Dire("Répond Oui ou OK aux questions, au lieu de Non ou Annuler",
                            "Answers Yes or OK to questions, instead of No or Cancel"));
}

// What comes before a mark in the parser's English sentence: the name of the option it is about.
std::string Avant(const std::string& phrase, const char* marque) {
    return phrase.substr(0, phrase.find(marque));
}

std::string RaisonUsage(const CLI::App& programme, const CLI::ParseError& erreur) {
    const std::string phrase = erreur.what();
    if (dynamic_cast<const CLI::ExtrasError*>(&erreur) != nullptr)
        return Dire("inattendu : ", "unexpected: ") + phrase.substr(phrase.find(": ") + 2);
    if (dynamic_cast<const CLI::RequiredError*>(&erreur) != nullptr) {
        if (programme.get_subcommands().empty()) return Dire("un verbe est attendu", "a verb is expected");
        return Avant(phrase, " is required") + Dire(" est attendu", " is expected");
    }
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&erreur) != nullptr)
        return Avant(phrase, ":") +
               Dire(" : une valeur et une seule est attendue", ": exactly one value is expected");
    if (dynamic_cast<const CLI::ExcludesError*>(&erreur) != nullptr)
        return Avant(phrase, " excludes") + Dire(" exclut ", " excludes ") +
               phrase.substr(phrase.find("excludes ") + 9);
    return phrase;
}

int RefuserUsage(const std::string& raison) {
    const std::string texte = "tessarel-lot: " + raison + "\n" +
                              Dire("Aide : tessarel-lot --help, ou tessarel-lot VERBE --help\n",
                                   "Help: tessarel-lot --help, or tessarel-lot VERB --help\n");
    std::fputs(texte.c_str(), stderr);
    return StatutMauvaisUsage;
}

} // namespace

int Imprimer(std::string_view texte) {
    if (EcrireSortie(texte)) return StatutFait;
    std::fputs(Dire("tessarel-lot: la sortie standard n'a pas pu être écrite\n",
                    "tessarel-lot: standard output could not be written\n")
                   .c_str(),
               stderr);
    return StatutRefuse;
}

CLI::App* AjouterVerbe(CLI::App& programme, const std::string& nom, const std::string& description) {
    CLI::App* verbe = programme.add_subcommand(nom, description);
    verbe->group(Dire("Verbes", "Verbs"));
    verbe->fallthrough();
    verbe->set_help_flag("-h,--help,--aide",
                         Dire("Affiche cette aide et s'arrête", "Prints this help and stops"));
    return verbe;
}

CLI::Option* AjouterChoix(CLI::App& verbe, const std::string& option, int& valeur, const MotsChoix& mots,
                          const std::string& description) {
    std::string permis;
    for (const auto& synonymes : mots) permis += (permis.empty() ? "" : "|") + synonymes.front();
    return verbe
        .add_option_function<std::string>(
            option,
            [&valeur, mots, option, permis](const std::string& texte) {
                for (std::size_t i = 0; i < mots.size(); ++i)
                    for (const std::string& mot : mots[i])
                        if (mot == texte) {
                            valeur = static_cast<int>(i);
                            return;
                        }
                throw CLI::ValidationError(option,
                                           texte + " (" + Dire("attendu : ", "expected: ") + permis + ")");
            },
            description)
        ->type_name(permis);
}

Commande LireCommande(int argc, char** argv) {
    ChoisirLangueDesMessages(argc, argv);
    Commande commande;
    CLI::App programme(Dire("Tessarel depuis un terminal : du dessin au Gcode pour une machine à fil chaud.",
                            "Tessarel from a shell: from a drawing to Gcode for a hot-wire machine."),
                       "tessarel-lot");
    // The parser's own words for a group of options.
    programme.option_defaults()->group("Options");
    DeclarerOptions(programme, commande);
    const ChoisirAction choisir = [&commande](Action action) { commande.action = std::move(action); };
    DeclarerDecouper(programme, choisir);
    DeclarerSynchroniser(programme, choisir);
    DeclarerNettoyer(programme, choisir);
    DeclarerLisser(programme, choisir);
    DeclarerIntersection(programme, choisir);
    DeclarerConvertir(programme, choisir);
    DeclarerInfo(programme, choisir);
    DeclarerMachines(programme, choisir);
    DeclarerInterface(programme, choisir);
    DeclarerAile(programme, choisir);
    DeclarerOutil(programme, choisir);
    DeclarerIntermediaire(programme, choisir);
    DeclarerMesures(programme, choisir);
    programme.require_subcommand(1);
    try {
        programme.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        commande.action = nullptr;
        commande.statut = Imprimer(programme.help());
    } catch (const CLI::CallForVersion& version) {
        commande.action = nullptr;
        commande.statut = Imprimer(std::string(version.what()) + "\n");
    } catch (const CLI::ParseError& erreur) {
        commande.action = nullptr;
        commande.statut = RefuserUsage(RaisonUsage(programme, erreur));
    }
    return commande;
}

} // namespace tessarel::lot
