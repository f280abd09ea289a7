// The rows of the general keys, and their reading and writing through them.
#include "cles_generales.h"

#include "gestion_ini.h"
#include "platform/erreurs.h"
#include "platform/nombres.h"
#include "platform/raisons.h"

#include <array>
#include <optional>

namespace tessarel {

namespace {

using P = ParametresProgramme;

constexpr std::array<CleGenerale, 15> Table = {{
    {"MatiereUtilisee", "Par defaut", "", nullptr, {}},
    {"MachineUtilisee", "(Defaut)", "", nullptr, {}},
    {"Langue", "Francais", "Francais", nullptr, &P::Langue},
    {"ModeNormalExpert", "Normal", "", nullptr, &P::ModeNormalExpert},
    {"DistNettoyage", "0.020", "0.020", "0.000", &P::DistNettoyage},
    {"EpaisseurLests", "30", "30", "#####0", &P::EpaisseurLests},
    {"MargesInterieuresBlocX", "5", "5", "#####0.0", &P::MargesInterieuresBlocX},
    {"MargesInterieuresBlocY", "5", "5", "#####0.0", &P::MargesInterieuresBlocY},
    {"SaigneeMaxiSoft", "6", "6", "#####0", &P::SaigneeMaxiSoft},
    {"OngletActif", "C4X", "", nullptr, &P::OngletActif},
    // Written at closing only, so that the container opens maximised the first time.
    {"WindowState", nullptr, "2", "#####0", {}},
    {"FenetreLeft", nullptr, "", "#####0", {}},
    {"FenetreTop", nullptr, "", "#####0", {}},
    {"FenetreWidth", nullptr, "", "#####0", {}},
    {"FenetreHeight", nullptr, "", "#####0", {}},
}};

const CleGenerale& Rangee(const std::string& cle) {
    for (const CleGenerale& rangee : Table)
        if (cle == rangee.cle) return rangee;
    throw FauteInterne(
        SelonLangue("clé inconnue de la table des paramètres : ", "key unknown to the table of settings: ") +
        cle);
}

std::string Lire(const CleGenerale& rangee) {
    return LireIni(SectionParametres, rangee.cle, rangee.lu);
}

struct Remplir {
    P& parametres;
    std::string texte;
    void operator()(std::monostate) const {}
    void operator()(std::string P::*champ) const { parametres.*champ = texte; }
    void operator()(float P::*champ) const { parametres.*champ = SimpleDepuisTexte(texte); }
    void operator()(int P::*champ) const { parametres.*champ = ArrondiLong(NombreDepuisTexte(texte)); }
};

struct Ecrire {
    const P& parametres;
    const char* masque;
    std::string operator()(std::monostate) const {
        throw FauteInterne(
            SelonLangue("cette clé n'est portée par aucun paramètre", "no setting carries this key"));
    }
    std::string operator()(std::string P::*champ) const { return parametres.*champ; }
    std::string operator()(float P::*champ) const { return FormaterNombre(parametres.*champ, masque); }
    std::string operator()(int P::*champ) const {
        return FormaterNombre(static_cast<double>(parametres.*champ), masque);
    }
};

} // namespace

std::span<const CleGenerale> ClesGenerales() {
    return Table;
}

std::string LireParametre(const std::string& cle) {
    return Lire(Rangee(cle));
}

bool EcrireParametre(const std::string& cle, const ParametresProgramme& parametres) {
    const CleGenerale& rangee = Rangee(cle);
    return EcrireIni(SectionParametres, cle, std::visit(Ecrire{parametres, rangee.masque}, rangee.champ));
}

void LireParametres(ParametresProgramme& parametres) {
    std::optional<FauteDepassement> premiere;
    for (const CleGenerale& rangee : Table) {
        try {
            std::visit(Remplir{parametres, Lire(rangee)}, rangee.champ);
        } catch (const FauteDepassement& faute) {
            if (!premiere) premiere = faute;
        }
    }
    if (premiere) throw FauteDepassement(*premiere);
}

std::string NormaliserLangue(const std::string& valeur) {
    if (valeur == "francais") return "Francais";
    if (valeur == "english" || valeur == "USA") return "English";
    return valeur;
}

} // namespace tessarel
