// Command lines in two languages.
#include "commun/ligne_de_commande.h"

#include "platform/fichiers.h"
#include "platform/nombres.h"
#include "platform/raisons.h"

#include <algorithm>
#include <fmt/format.h>
#include <limits>
#include <optional>
#include <vector>

namespace tessarel {

namespace {

constexpr double SansBorne = std::numeric_limits<double>::infinity();

std::string TexteAttendu(double min, double max, bool entier) {
    const std::string nombre =
        entier ? SelonLangue("nombre entier", "a whole number") : SelonLangue("nombre", "a number");
    const std::string attendu = SelonLangue("attendu : ", "expected: ") + nombre;
    if (min == -SansBorne) return attendu;
    return fmt::format("{} {} {} {} {}", attendu, SelonLangue("de", "from"), min, SelonLangue("à", "to"),
                       max);
}

// The option of that name, of the program or of the verb that was chosen.
const CLI::Option* ChercherOption(const CLI::App& programme, const std::string& nom) {
    if (const CLI::Option* option = programme.get_option_no_throw(nom)) return option;
    for (const CLI::App* verbe : programme.get_subcommands())
        if (const CLI::Option* option = ChercherOption(*verbe, nom)) return option;
    return nullptr;
}

std::string TexteNombreDeValeurs(const CLI::Option* option) {
    const int min = option != nullptr ? option->get_items_expected_min() : 1;
    const int max = option != nullptr ? option->get_items_expected_max() : 1;
    if (min == 1 && max == 1)
        return SelonLangue("une valeur et une seule est attendue", "exactly one value is expected");
    if (min == max)
        return fmt::format("{} {}", min, SelonLangue("valeurs sont attendues", "values are expected"));
    return fmt::format("{} {} {} {}", min, SelonLangue("à", "to"), max,
                       SelonLangue("valeurs sont attendues", "values are expected"));
}

// A verb that is none is among the words that nothing took.
std::string RaisonSansVerbe(const CLI::App& programme) {
    const std::vector<std::string> restes = programme.remaining();
    const auto mot =
        std::ranges::find_if(restes, [](const std::string& reste) { return !reste.starts_with('-'); });
    if (mot != restes.end()) return SelonLangue("verbe inconnu : ", "unknown verb: ") + *mot;
    if (!restes.empty()) return SelonLangue("inattendu : ", "unexpected: ") + restes.front();
    return SelonLangue("un verbe est attendu", "a verb is expected");
}

// What comes before a mark in the parser's sentence: the name of the option it is about.
std::string Avant(const std::string& phrase, std::string_view marque) {
    return phrase.substr(0, phrase.find(marque));
}

std::string Apres(const std::string& phrase, std::string_view marque) {
    const std::size_t place = phrase.find(marque);
    return place == std::string::npos ? "" : phrase.substr(place + marque.size());
}

// "Could not convert: --oui = abc": the numbers are checked before, so that it was a flag.
std::string RaisonConversion(const std::string& phrase) {
    const std::string apres = Apres(phrase, ": ");
    return Avant(apres, " = ") + SelonLangue(" : ", ": ") + Apres(apres, " = ") +
           SelonLangue(" (attendu : aucune valeur)", " (expected: no value)");
}

} // namespace

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

// The parser puts a colon after each of these; in French a blank comes before it.
void PreparerAide(CLI::App& programme) {
    const auto aide = programme.get_formatter();
    aide->column_width(34);
    aide->label("Usage", SelonLangue("Utilisation ", "Usage"));
    aide->label("OPTIONS", "OPTIONS");
    aide->label("SUBCOMMAND", SelonLangue("VERBE", "VERB"));
    aide->label("Positionals", SelonLangue("Arguments ", "Arguments"));
    aide->label("REQUIRED", SelonLangue("OBLIGATOIRE", "REQUIRED"));
    aide->label("Excludes", SelonLangue("Exclut ", "Excludes"));
    programme.option_defaults()->group(SelonLangue("Options ", "Options"));
}

void AjouterOptionAide(CLI::App& programme) {
    programme.set_help_flag("-h,--help,--aide",
                            SelonLangue("Affiche cette aide et s'arrête", "Prints this help and stops"));
}

void AjouterOptionVersion(CLI::App& programme, const std::string& nomProgramme) {
    programme.set_version_flag("--version",
                               fmt::format("{} {}.{}.{}", nomProgramme, TESSAREL_VERSION_MAJEURE,
                                           TESSAREL_VERSION_MINEURE, TESSAREL_VERSION_REVISION),
                               SelonLangue("Affiche la version et s'arrête", "Prints the version and stops"));
}

CLI::Validator Entre(double min, double max, bool entier) {
    return CLI::Validator(
        [=](std::string& texte) -> std::string {
            const std::optional<double> valeur = LireDecimal(texte);
            if (!valeur || *valeur < min || *valeur > max || (entier && *valeur != PartieEntiere(*valeur)))
                return texte + " (" + TexteAttendu(min, max, entier) + ")";
            texte = entier ? fmt::format("{:.0f}", *valeur) : VirguleVersPoint(std::string(Rogner(texte)));
            return "";
        },
        "");
}

CLI::Validator UnNombre() {
    return Entre(-SansBorne, SansBorne);
}

std::string RaisonUsage(const CLI::App& programme, const CLI::ParseError& erreur) {
    std::string phrase = erreur.what();
    if (dynamic_cast<const CLI::ExtrasError*>(&erreur) != nullptr)
        return SelonLangue("inattendu : ", "unexpected: ") + Apres(phrase, ": ");
    if (dynamic_cast<const CLI::RequiredError*>(&erreur) != nullptr) {
        if (programme.get_subcommands().empty()) return RaisonSansVerbe(programme);
        return Avant(phrase, " is required") + SelonLangue(" est attendu", " is expected");
    }
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&erreur) != nullptr) {
        const std::string nom = Avant(phrase, ":");
        return nom + SelonLangue(" : ", ": ") + TexteNombreDeValeurs(ChercherOption(programme, nom));
    }
    if (dynamic_cast<const CLI::ExcludesError*>(&erreur) != nullptr)
        return Avant(phrase, " excludes") + SelonLangue(" exclut ", " excludes ") +
               Apres(phrase, "excludes ");
    if (dynamic_cast<const CLI::ConversionError*>(&erreur) != nullptr) return RaisonConversion(phrase);
    if (dynamic_cast<const CLI::ValidationError*>(&erreur) != nullptr)
        return Avant(phrase, ": ") + SelonLangue(" : ", ": ") + Apres(phrase, ": ");
    return phrase;
}

} // namespace tessarel
