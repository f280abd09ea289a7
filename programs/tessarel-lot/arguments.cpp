// The command line: options of the program, its verbs, help and refusals in the user's language.
#include "arguments.h"

#include "langue_lot.h"
#include "session.h"

#include "commun/ligne_de_commande.h"
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

// Help and refusals speak before the command line is understood.
void ChoisirLangueDesMessages(int argc, char** argv) {
    const auto langue = LireLangue(ValeurBrute(argc, argv, "--langue"));
    ChargerMessages(langue ? *langue : LangueDesReglages(ValeurBrute(argc, argv, "--documents")));
}

void DeclarerOptions(CLI::App& programme, Commande& commande) {
    PreparerAide(programme);
    AjouterOptionAide(programme);
    AjouterOptionVersion(programme, "tessarel-lot");
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
                    throw CLI::ValidationError(
                        "--langue", texte + Dire(" (attendu : fr ou en)", " (expected: fr or en)"));
            },
            Dire("Langue des messages ; sinon celle des réglages",
                 "Language of the messages (default: that of the settings)"))
        ->type_name("fr|en");
    programme.add_flag("--oui", commande.oui,
                       Dire("Répond Oui ou OK aux questions, au lieu de Non ou Annuler",
                            "Answers Yes or OK to questions, instead of No or Cancel"));
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
    verbe->group(Dire("Verbes ", "Verbs"));
    verbe->fallthrough();
    AjouterOptionAide(*verbe);
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
