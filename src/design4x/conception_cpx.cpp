// A design session: loading, emptying, and running tools with their undo snapshots.
#include "conception_cpx.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "design4x/boites_cpx.h"
#include "design4x/compteurs.h"
#include "platform/dialogue.h"

#include <array>
#include <charconv>
#include <optional>
#include <utility>

namespace tessarel {

namespace {

// An index in decimal digits, from 0 to `nombre` - 1.
std::optional<int> LireIndice(const std::string& texte, int nombre) {
    int indice = 0;
    const char* fin = texte.data() + texte.size();
    const auto lu = std::from_chars(texte.data(), fin, indice);
    if (lu.ec != std::errc() || lu.ptr != fin || indice < 0 || indice >= nombre) return std::nullopt;
    return indice;
}

} // namespace

void ChargerProjetCPX(ConceptionCPX& conception, ProjetCPX projet) {
    conception.projet = std::move(projet);
    CalculerExtremesCPX(conception.projet);
    InitialiserScrollbarsSuivantNbPoints(conception.projet);
    conception.ProjetCharge = true;
    conception.historique = {};
    MemoPourUndo(conception);
}

void MemoPourUndo(ConceptionCPX& conception) {
    std::array<bool, 3>& options = conception.projet.Options.optSelection;
    for (std::size_t i = 0; i < options.size(); ++i)
        options[i] = conception.ModeSelection == ModesSelection[i];
    MemoPourUndo(conception.historique, conception.projet);
}

bool cmdUndoCPX(ConceptionCPX& conception, int index) {
    if (!cmdUndoCPX(conception.historique, conception.projet, index)) return false;
    const std::array<bool, 3>& options = conception.projet.Options.optSelection;
    for (std::size_t i = 0; i < options.size(); ++i)
        if (options[i]) conception.ModeSelection = ModesSelection[i];
    return true;
}

bool NouveauProjet4X(ConceptionCPX& conception, bool pourInsertion) {
    if (!pourInsertion && conception.ProjetCharge &&
        !DemanderOuiNon(TextesMessages(MessageViderEspace), TitresMessages(MessageViderEspace)))
        return false;
    ProjetCPX neuf;
    neuf.Options = conception.projet.Options;
    if (pourInsertion) {
        neuf.Ecartement = conception.projet.Ecartement;
        neuf.Epaisseur = conception.projet.Epaisseur;
        neuf.DistProfilDessousE = conception.projet.DistProfilDessousE;
        neuf.E.MargeBa = conception.projet.E.MargeBa;
        neuf.E.MargeBf = conception.projet.E.MargeBf;
        neuf.S.MargeBa = conception.projet.S.MargeBa;
        neuf.S.MargeBf = conception.projet.S.MargeBf;
    }
    conception.projet = std::move(neuf);
    conception.ProjetCharge = false;
    return true;
}

bool AppliquerOutilCPX(ConceptionCPX& conception, const OutilCPX& outil, int index, double valeur) {
    if (outil.memoAvant) MemoPourUndo(conception);
    const bool fait = outil.appliquer(conception, index, valeur);
    if (fait && outil.memoApres) MemoPourUndo(conception);
    return fait;
}

CommandeOutil LireCommandeOutil(std::span<const std::string> termes, std::string& raison) {
    raison.clear();
    const std::string controle = termes.empty() ? std::string() : termes.front();
    CommandeOutil commande;
    const OutilCPX* outil = TrouverOutilCPX(controle);
    if (outil == nullptr) {
        raison = TexteRempli(TexteProgramme::OutilInconnu, {controle});
        return commande;
    }
    std::size_t suivant = 1;
    if (outil->indices > 0) {
        if (suivant >= termes.size()) {
            raison = TexteRempli(TexteProgramme::OutilSansIndice, {controle});
            return commande;
        }
        const std::optional<int> indice = LireIndice(termes[suivant], outil->indices);
        if (!indice) {
            raison = TexteRempli(TexteProgramme::OutilIndice,
                                 {controle, std::to_string(outil->indices - 1), termes[suivant]});
            return commande;
        }
        commande.index = *indice;
        ++suivant;
    }
    if (outil->valeur && commande.index >= outil->valeurDepuis) {
        if (suivant >= termes.size()) {
            raison = TexteRempli(TexteProgramme::OutilValeur, {controle});
            return commande;
        }
        const std::optional<double> valeur = LireValeurSaisie(termes[suivant]);
        if (!valeur) return commande;
        commande.valeur = *valeur;
        ++suivant;
    }
    if (suivant < termes.size()) {
        raison = TexteRempli(TexteProgramme::OutilTropDeTermes, {controle, termes[suivant]});
        return commande;
    }
    commande.outil = outil;
    return commande;
}

} // namespace tessarel
