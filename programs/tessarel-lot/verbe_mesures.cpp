// `mesures`: what is measured on a 4-axis project, under its told names.
#include "langue_lot.h"
#include "projet4x_lot.h"
#include "resume_lot.h"
#include "verbes.h"

#include "design4x/mesures_cpx.h"
#include "platform/nombres.h"

#include <memory>
#include <nlohmann/json.hpp>

namespace tessarel::lot {

namespace {

// Masks of the windows: labels of the block, and everything else.
constexpr Masque MasqueEtiquette = "0.0#";
constexpr Masque MasqueMesure = "#####0.0##";

std::string Json(const std::vector<MesureCPX>& mesures) {
    nlohmann::ordered_json objet;
    for (const MesureCPX& m : mesures) {
        if (const auto* texte = std::get_if<std::string>(&m.valeur))
            objet[m.nom] = *texte;
        else if (const auto* entier = std::get_if<std::int32_t>(&m.valeur))
            objet[m.nom] = *entier;
        else
            objet[m.nom] = DecimalSimple(std::get<float>(m.valeur));
    }
    return objet.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}

std::string EnTexte(const MesureCPX& m) {
    if (const auto* texte = std::get_if<std::string>(&m.valeur)) return *texte;
    if (const auto* entier = std::get_if<std::int32_t>(&m.valeur)) return std::to_string(*entier);
    return FormaterNombre(std::get<float>(m.valeur),
                          m.nom.starts_with("lbl") ? MasqueEtiquette : MasqueMesure);
}

int Mesurer(const std::string& fichier, bool json) {
    Progression progression(1);
    const std::optional<Projet4x> projet = OuvrirProjet4x(fichier, progression);
    if (!projet) return StatutRefuse;
    Progression::Effacer();
    const std::vector<MesureCPX> mesures = MesuresCPX(projet->conception.projet);
    if (json) return Imprimer(Json(mesures));
    std::string texte;
    for (const MesureCPX& m : mesures) texte += m.nom + " = " + EnTexte(m) + "\n";
    return Imprimer(texte);
}

} // namespace

void DeclarerMesures(CLI::App& programme, const ChoisirAction& choisir) {
    CLI::App* verbe = AjouterVerbe(programme, "mesures",
                                   Dire("Dit tout ce qui se mesure sur un projet 4 axes",
                                        "Tells all that is measured on a 4-axis project"));
    const auto fichier = std::make_shared<std::string>();
    const auto json = std::make_shared<bool>(false);
    verbe->add_option("IN", *fichier, Dire("Projet 4 axes", "4-axis project"))->required()->type_name("");
    verbe->add_flag("--json", *json, Dire("Écrit un objet JSON", "Prints a JSON object"));
    verbe->callback(
        [fichier, json, choisir] { choisir([fichier, json] { return Mesurer(*fichier, *json); }); });
}

} // namespace tessarel::lot
