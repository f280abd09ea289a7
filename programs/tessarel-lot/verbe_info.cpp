// `info`: what a file holds, for a reader or, with --json, for a program.
#include "json_lot.h"
#include "langue_lot.h"
#include "resume_lot.h"
#include "verbes.h"

#include "platform/dialogue.h"
#include "platform/erreurs.h"
#include "platform/nombres.h"
#include "work2d/espace2d.h"

#include <cmath>
#include <memory>

namespace tessarel::lot {

namespace {

// First and last vertex nearer than this count as one: the tolerance at which pieces of a drawing are joined,
// mm.
constexpr double ToleranceFermeture = 0.001;
// Only points exactly on a line are put aside on reading, and counted all the same: what is told is the file.
constexpr float SansNettoyage = 0;

struct Constat {
    std::string type;
    std::size_t chemins = 0;
    std::size_t points = 0;
    std::size_t fermes = 0;
    Etendue etendue;
    RapportLecture rapport;
};

bool EstFermee(const Sequence& sequence) {
    if (sequence.Points.size() < 3) return false;
    const PointProfil& debut = sequence.Points.front();
    const PointProfil& fin = sequence.Points.back();
    return std::hypot(fin.X - debut.X, fin.Y - debut.Y) <= ToleranceFermeture;
}

Constat Examiner(const std::string& fichier) {
    ContenuFichier contenu = LireContenuFichier(fichier, SansNettoyage);
    Constat constat;
    constat.type = contenu.ouverture.typeFichier;
    constat.chemins = contenu.sequences.size();
    constat.points = contenu.ouverture.points + contenu.ouverture.pointsRetires;
    for (const Sequence& sequence : contenu.sequences) constat.fermes += EstFermee(sequence) ? 1 : 0;
    constat.etendue = CadrageSequences(contenu.sequences);
    constat.rapport = std::move(contenu.ouverture.rapport);
    return constat;
}

// A 32-bit value as the shortest decimal that stands for it, not its 17 digits as a double.
double CommeEcrit(float valeur) {
    return std::stod(FormaterNombre(valeur, "0.0#####"));
}

nlohmann::ordered_json ObjetJson(const Constat& constat) {
    nlohmann::ordered_json objet;
    objet["type"] = constat.type;
    objet["chemins"] = constat.chemins;
    objet["points"] = constat.points;
    objet["etendue"] = {CommeEcrit(constat.etendue.XMin), CommeEcrit(constat.etendue.YMin),
                        CommeEcrit(constat.etendue.XMax), CommeEcrit(constat.etendue.YMax)};
    objet["fermes"] = constat.fermes;
    objet["ignores"] = nlohmann::ordered_json::object();
    for (const auto& [genre, nombre] : constat.rapport.ignores) objet["ignores"][genre] = nombre;
    return objet;
}

std::string TexteConstat(const std::string& fichier, const Constat& constat) {
    const Etendue& e = constat.etendue;
    const Masque masque = "#####0.0##";
    std::string texte = LigneResume(Dire("Fichier", "File"), fichier);
    texte += LigneResume("Type", constat.type);
    texte += LigneResume(Dire("Tracés", "Paths"), std::to_string(constat.chemins) +
                                                      Dire(", dont fermés ", ", closed ") +
                                                      std::to_string(constat.fermes));
    texte += LigneResume("Points", std::to_string(constat.points));
    texte += LigneResume(Dire("Étendue", "Extent"),
                         "X " + FormaterNombre(e.XMin, masque) + Dire(" à ", " to ") +
                             FormaterNombre(e.XMax, masque) + ", Y " + FormaterNombre(e.YMin, masque) +
                             Dire(" à ", " to ") + FormaterNombre(e.YMax, masque) + " mm");
    const RapportLecture& rapport = constat.rapport;
    if (!rapport.lus.empty()) texte += LigneResume(Dire("Lu", "Read"), TexteComptes(rapport.lus));
    if (!rapport.couches.empty())
        texte += LigneResume(Dire("Calques", "Layers"), TexteComptes(rapport.couches));
    if (!rapport.ignores.empty())
        texte += LigneResume(Dire("Ignoré", "Skipped"), TexteComptes(rapport.ignores));
    for (const std::string& note : rapport.notes) texte += LigneResume("Note", note);
    return texte;
}

int Informer(const std::string& fichier, bool json) {
    Constat constat;
    try {
        constat = Examiner(fichier);
    } catch (const Faute& faute) {
        if (json) (void)Imprimer(TexteJson({{"erreur", faute.what()}}));
        DireErreurLecture(faute);
        return StatutRefuse;
    }
    const std::string texte = json ? TexteJson(ObjetJson(constat)) : TexteConstat(fichier, constat);
    return Imprimer(texte);
}

} // namespace

void DeclarerInfo(CLI::App& programme, const ChoisirAction& choisir) {
    CLI::App* verbe =
        AjouterVerbe(programme, "info",
                     Dire("Dit ce que contient un fichier : tracés, points, étendue, ce qui est ignoré",
                          "Tells what a file contains: paths, points, extent, what is skipped"));
    const auto fichier = std::make_shared<std::string>();
    const auto json = std::make_shared<bool>(false);
    verbe->add_option("FILE", *fichier, Dire("Dessin ou projet", "Drawing or project"))
        ->required()
        ->type_name("");
    verbe->add_flag("--json", *json, Dire("Écrit un objet JSON", "Prints a JSON object"));
    verbe->callback(
        [fichier, json, choisir] { choisir([fichier, json] { return Informer(*fichier, *json); }); });
}

} // namespace tessarel::lot
