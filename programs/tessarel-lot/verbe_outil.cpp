// `outil`: tools of the design window, one after the other, on a 4-axis project.
#include "langue_lot.h"
#include "projet4x_lot.h"
#include "resume_lot.h"
#include "verbes.h"

#include "commun/ligne_de_commande.h"
#include "design4x/compteurs.h"
#include "platform/dialogue.h"
#include "platform/fichiers.h"

#include <array>
#include <memory>
#include <utility>

namespace tessarel::lot {

namespace {

// Bounds of what is typed as a whole number; whether it fits is told by who uses it.
constexpr double PointMaximal = 1e9;
constexpr double DrapeauMaximal = 65535;

struct DemandeOutil {
    std::vector<std::string> termes; // control, its index and value, then the two files
    std::vector<std::string> suite;  // --puis
    std::vector<int> courant;        // --courant
    int mode = DrapeauOutil;
};

using Termes = std::vector<std::string>;

// Counts the boxes shown while it lives: a tool that did nothing without one had nothing to do.
class CompteBoites {
public:
    CompteBoites() : m_ancien(InstallerAfficheurBoite({})) {
        InstallerAfficheurBoite([this](const Boite& boite) {
            ++m_nombre;
            return m_ancien(boite);
        });
    }
    ~CompteBoites() { InstallerAfficheurBoite(m_ancien); }
    CompteBoites(const CompteBoites&) = delete;
    CompteBoites& operator=(const CompteBoites&) = delete;
    [[nodiscard]] int Nombre() const { return m_nombre; }

private:
    AfficheurBoite m_ancien;
    int m_nombre = 0;
};

Termes EnTermes(const std::string& texte) {
    Termes termes;
    std::string_view reste = texte;
    while (!(reste = Rogner(reste)).empty()) {
        const std::size_t fin = std::min(reste.find_first_of(" \t"), reste.size());
        termes.emplace_back(reste.substr(0, fin));
        reste.remove_prefix(fin);
    }
    return termes;
}

std::string EnPhrase(const Termes& termes) {
    std::string phrase;
    for (const std::string& terme : termes) phrase += (phrase.empty() ? "" : " ") + terme;
    return phrase;
}

// All commands are understood before the first is run; nothing after the box of a value that is no number.
std::optional<std::vector<CommandeOutil>> LireCommandes(const std::vector<Termes>& commandes) {
    std::vector<CommandeOutil> lues;
    for (const Termes& termes : commandes) {
        std::string raison;
        lues.push_back(LireCommandeOutil(termes, raison));
        if (!raison.empty()) throw MauvaisUsage(raison);
        if (lues.back().outil == nullptr) return std::nullopt;
    }
    return lues;
}

// False after a box: no such points.
bool PlacerCompteurs(ProjetCPX& projet, const std::vector<int>& courant) {
    if (courant.empty()) return true;
    for (const std::size_t cote : {std::size_t{0}, std::size_t{1}}) {
        ProfilCPX& profil = cote == 0 ? projet.E : projet.S;
        const int point = courant[cote];
        if (point < 1 || static_cast<std::size_t>(point) > profil.Points.size()) {
            AfficherExclamation(
                "--courant: " + std::to_string(point) +
                    Dire(" n'est pas un point d'un profil qui en a ", " is no point of a profile that has ") +
                    std::to_string(profil.Points.size()),
                TitresMessages(175));
            return false;
        }
        profil.PointCourant = point - 1;
    }
    return true;
}

// One tool. False when it refused: it has told why.
bool Appliquer(ConceptionCPX& conception, const CommandeOutil& commande, const std::string& phrase,
               std::string& resume) {
    CompteBoites boites;
    conception.lblStatusBarCPX.clear();
    const bool fait = AppliquerOutilCPX(conception, *commande.outil, commande.index, commande.valeur);
    if (!fait && boites.Nombre() > 0) return false;
    resume += LigneResume(Dire("Outil", "Tool"),
                          phrase + (fait ? "" : Dire(" (rien à faire)", " (nothing to do)")));
    if (!conception.lblStatusBarCPX.empty())
        resume += LigneResume(Dire("Mesure", "Measure"), conception.lblStatusBarCPX);
    return true;
}

int Outiller(const DemandeOutil& demande) {
    if (!EstModeSelection(demande.mode))
        throw MauvaisUsage(
            Dire("--mode : 1, 2, 4, 8, 16 ou 32 est attendu", "--mode: 1, 2, 4, 8, 16 or 32 is expected"));
    const std::string& entree = demande.termes[demande.termes.size() - 2];
    const std::string& sortie = demande.termes.back();
    std::vector<Termes> commandes = {Termes(demande.termes.begin(), demande.termes.end() - 2)};
    for (const std::string& suite : demande.suite) commandes.push_back(EnTermes(suite));
    const auto lues = LireCommandes(commandes);
    if (!lues) return StatutRefuse;
    if (!SortieProjet4xPermise(sortie, {entree})) return StatutRefuse;

    Progression progression(2);
    std::optional<Projet4x> projet = OuvrirProjet4x(entree, progression);
    if (!projet || !PlacerCompteurs(projet->conception.projet, demande.courant)) return StatutRefuse;
    projet->conception.ModeSelection = static_cast<std::uint16_t>(demande.mode);

    std::string resume = LigneResume(Dire("Fichier", "File"), entree);
    for (std::size_t k = 0; k < lues->size(); ++k)
        if (!Appliquer(projet->conception, (*lues)[k], EnPhrase(commandes[k]), resume)) return StatutRefuse;
    if (!EcrireProjet4x(*projet, sortie, progression)) return StatutRefuse;
    Progression::Effacer();
    resume += LigneResume("Points", TexteComptes4x(projet->conception.projet));
    resume += LigneResume(Dire("Écrit", "Written"), sortie);
    return Imprimer(resume);
}

} // namespace

void DeclarerOutil(CLI::App& programme, const ChoisirAction& choisir) {
    CLI::App* verbe = AjouterVerbe(programme, "outil",
                                   Dire("Applique des outils de conception à un projet 4 axes",
                                        "Applies design tools to a 4-axis project"));
    const auto demande = std::make_shared<DemandeOutil>();
    verbe
        ->add_option(
            "TERMES", demande->termes,
            Dire("CONTROLE [INDICE] [VALEUR] IN.tsr OUT.tsr, par exemple : txtDeplacer 0 5.0 a.tsr b.tsr",
                 "CONTROL [INDEX] [VALUE] IN.tsr OUT.tsr, for instance: txtDeplacer 0 5.0 a.tsr b.tsr"))
        ->required()
        ->expected(3, 6)
        ->type_name("");
    verbe
        ->add_option(
            "--puis,--then", demande->suite,
            Dire("Encore un outil, en un seul terme : --puis \"cmdDiedre 1\" (plusieurs fois possible)",
                 "One more tool, in one term: --puis \"cmdDiedre 1\" (may be given several times)"))
        ->expected(1)
        ->type_name("\"...\"")
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    verbe
        ->add_option("--courant,--current", demande->courant,
                     Dire("Compteurs de points, emplanture et saumon", "Point counters, root and tip"))
        ->expected(2)
        ->transform(Entre(0, PointMaximal, true))
        ->type_name("E S");
    verbe
        ->add_option("--mode", demande->mode,
                     Dire("Mode de sélection : 1 outils, 2 alignement, 4 synchronisation, 8 arrêts, 16 sans "
                          "décalage, 32 corde",
                          "Selection mode: 1 tools, 2 alignment, 4 synchronisation, 8 stops, 16 no offset, "
                          "32 chord"))
        ->transform(Entre(0, DrapeauMaximal, true))
        ->type_name("N");
    verbe->callback([demande, choisir] { choisir([demande] { return Outiller(*demande); }); });
}

} // namespace tessarel::lot
