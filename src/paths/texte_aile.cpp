// Reading of the key list of wing files, line by line.
#include "paths/texte_aile.h"

#include "app/texts/textes_programme.h"
#include "paths/import.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "platform/gabar/assemblage.h"
#include "platform/gabar/messages.h"
#include "platform/nombres.h"

#include <array>
#include <cmath>
#include <span>
#include <variant>

namespace tessarel {

namespace {

constexpr const char* CleNombre = "NombrePoints";
constexpr const char* CleFichier = "Fichier";
constexpr const char* CleNomFichier = "NomFichier";
constexpr const char* CleCommentaire = "Commentaire";
constexpr const char* ClePouces = "in";
constexpr const char* TexteVrai = "true";
// Keys without meaning here that the report tells apart.
constexpr std::size_t GenresMax = 50;

// Whose a value is when its key stands outside both sections.
enum class Portee { LesDeux, Saumon };

// A key of one profile.
struct CleProfil {
    const char* cle;
    std::variant<double ProfilAile::*, bool ProfilAile::*, std::optional<double> ProfilAile::*> membre;
    Portee portee;
};
constexpr std::array<CleProfil, 7> ClesProfil = {{
    {"xHauteur", &ProfilAile::xHauteur, Portee::LesDeux},
    {"MiroirVertical", &ProfilAile::MiroirVertical, Portee::LesDeux},
    {"MiroirHorizontal", &ProfilAile::MiroirHorizontal, Portee::LesDeux},
    {"MargeBA", &ProfilAile::MargeBA, Portee::LesDeux},
    {"MargeBF", &ProfilAile::MargeBF, Portee::LesDeux},
    // Both tell how the tip stands to the root.
    {"Vrillage", &ProfilAile::Vrillage, Portee::Saumon},
    {"Decalage", &ProfilAile::Decalage, Portee::Saumon},
}};

// A key of the whole wing, wherever it stands.
struct CleAile {
    const char* cle;
    std::optional<double> AileImportee::*membre;
};
constexpr std::array<CleAile, 4> ClesAile = {{
    {"FlecheBA", &AileImportee::FlecheBA},
    {"Epaisseur", &AileImportee::Epaisseur},
    {"MDessous", &AileImportee::MDessous},
    {"Envergure", &AileImportee::Envergure},
}};

struct Lecteur {
    AileImportee aile;
    const std::string& chemin;
    char separateur;
    long ligne = 0;
    ProfilAile* section = nullptr; // null outside both
    bool commentaire = false;      // one line of it was read
    std::array<std::optional<std::size_t>, 2> annonces = {};
};

[[noreturn]] void Refuser(const Lecteur& l, const std::string& raison) {
    throw FauteLecture(l.chemin, l.ligne, raison);
}

double LireNombre(const Lecteur& l, std::string_view cle, std::string_view valeur) {
    const auto nombre = LireDecimal(valeur);
    if (!nombre)
        Refuser(l, TexteRempli(TexteProgramme::LectureNombreCleAttendu, {Citation(cle), Citation(valeur)}));
    if (std::abs(*nombre) > CoordonneeMax)
        Refuser(l, TexteRempli(TexteProgramme::LectureValeurHorsLimites, {Citation(valeur)}));
    return *nombre;
}

bool EstVrai(std::string_view valeur) {
    return EgalSansCasse(valeur, TexteVrai);
}

// "[Saumon]", or the bare word.
bool OuvrirSection(Lecteur& l, std::string_view ligne) {
    std::string_view nom = ligne;
    const bool crochets = nom.starts_with('[') && nom.ends_with(']');
    if (crochets) nom = Rogner(nom.substr(1, nom.size() - 2));
    while (!crochets && (nom.ends_with(':') || nom.ends_with(l.separateur))) nom.remove_suffix(1);
    nom = Rogner(nom);
    if (EgalSansCasse(nom, SectionEmplanture))
        l.section = &l.aile.Emplanture;
    else if (EgalSansCasse(nom, SectionSaumon))
        l.section = &l.aile.Saumon;
    else if (crochets)
        l.section = nullptr;
    else
        return false;
    return true;
}

// "X;Y", "12=X;Y", with a point or a comma in the numbers; a colon parts them too.
bool LirePointAile(std::string_view ligne, PointProfil& point) {
    if (const std::size_t egal = ligne.find('='); egal != std::string_view::npos)
        ligne.remove_prefix(egal + 1);
    return LireXY(Decouper(ligne, ligne.find(';') != std::string_view::npos ? ";" : ":"), point);
}

void AjouterPointAile(Lecteur& l, std::string_view ligne) {
    PointProfil point;
    if (l.section == nullptr) RefuserSansSection(l.chemin, l.ligne);
    if (!LirePointAile(ligne, point))
        Refuser(l, TexteRempli(TexteProgramme::LecturePointAileAttendu, {Citation(ligne)}));
    if (std::abs(point.X) > CoordonneeMax || std::abs(point.Y) > CoordonneeMax)
        Refuser(l, TexteRempli(TexteProgramme::LectureCoordonneeHorsLimites, {Citation(ligne)}));
    // Lines beyond the count are no points of the profile.
    const auto& annonce = l.annonces[l.section == &l.aile.Saumon ? 1 : 0];
    if (annonce && l.section->Points.size() >= *annonce) return;
    l.section->Points.push_back(point);
}

// The profiles that a key of this reach is meant for.
std::array<ProfilAile*, 2> Destinataires(Lecteur& l, Portee portee) {
    if (l.section != nullptr) return {l.section, nullptr};
    if (portee == Portee::Saumon) return {&l.aile.Saumon, nullptr};
    return {&l.aile.Emplanture, &l.aile.Saumon};
}

bool PoserCleProfil(Lecteur& l, std::string_view cle, std::string_view valeur) {
    for (const CleProfil& c : ClesProfil) {
        if (!EgalSansCasse(cle, c.cle)) continue;
        for (ProfilAile* profil : Destinataires(l, c.portee)) {
            if (profil == nullptr) continue;
            if (const auto* drapeau = std::get_if<bool ProfilAile::*>(&c.membre))
                profil->** drapeau = EstVrai(valeur);
            else if (valeur.empty())
                continue; // an empty value is that of an absent key
            else if (const auto* reel = std::get_if<double ProfilAile::*>(&c.membre))
                profil->** reel = LireNombre(l, cle, valeur);
            else
                profil->*std::get<std::optional<double> ProfilAile::*>(c.membre) = LireNombre(l, cle, valeur);
        }
        return true;
    }
    return false;
}

bool PoserCleAile(Lecteur& l, std::string_view cle, std::string_view valeur) {
    for (const CleAile& c : ClesAile) {
        if (!EgalSansCasse(cle, c.cle)) continue;
        if (!valeur.empty()) l.aile.*c.membre = LireNombre(l, cle, valeur);
        return true;
    }
    return false;
}

void PoserNombrePoints(Lecteur& l, std::string_view valeur) {
    const double nombre = LireNombre(l, CleNombre, valeur);
    if (nombre < 0 || nombre != std::floor(nombre))
        Refuser(l, TexteRempli(TexteProgramme::LectureEntierAttendu, {Citation(valeur)}));
    if (l.section != nullptr)
        l.annonces[l.section == &l.aile.Saumon ? 1 : 0] = static_cast<std::size_t>(nombre);
}

void PoserCle(Lecteur& l, std::string_view cle, std::string_view valeur) {
    if (PoserCleProfil(l, cle, valeur) || PoserCleAile(l, cle, valeur)) return;
    if (EgalSansCasse(cle, CleNombre)) {
        PoserNombrePoints(l, valeur);
    } else if (EgalSansCasse(cle, CleFichier) || EgalSansCasse(cle, CleNomFichier)) {
        if (l.section != nullptr) l.section->Fichier = valeur;
    } else if (EgalSansCasse(cle, CleCommentaire)) {
        if (l.commentaire) l.aile.Commentaire += "\r\n";
        l.commentaire = true;
        l.aile.Commentaire += valeur;
    } else if (EgalSansCasse(cle, ClePouces)) {
        // The unit stands alone on its line, or as a flag.
        l.aile.Pouces = valeur.empty() || EstVrai(valeur);
    } else if (EgalSansCasse(valeur, ClePouces)) {
        l.aile.Pouces = true; // "Unite;in"
    } else {
        const std::string nom = Citation(cle);
        auto& ignores = l.aile.rapport.ignores;
        if (ignores.size() < GenresMax || ignores.contains(nom)) ++ignores[nom];
    }
}

void LireLigne(Lecteur& l, std::string_view ligne) {
    if (ligne.empty() || OuvrirSection(l, ligne)) return;
    if (EstLigneNumerique(ligne)) return AjouterPointAile(l, ligne);
    const std::size_t marque = ligne.find(l.separateur);
    const std::string_view cle = Rogner(ligne.substr(0, marque));
    if (cle.empty()) return;
    PoserCle(l, cle, marque == std::string_view::npos ? "" : Rogner(ligne.substr(marque + 1)));
}

void VerifierComptes(const Lecteur& l) {
    const std::array<const ProfilAile*, 2> profils = {&l.aile.Emplanture, &l.aile.Saumon};
    for (std::size_t i = 0; i < profils.size(); ++i) {
        const std::size_t presents = profils[i]->Points.size();
        if (l.annonces[i] && presents < *l.annonces[i])
            throw FauteLecture(l.chemin, 0,
                               TexteRempli(TexteProgramme::LectureNombrePoints,
                                           {std::to_string(*l.annonces[i]), std::to_string(presents)}));
    }
}

} // namespace

void RefuserSansSection(const std::string& chemin, long ligne) {
    throw FauteLecture(chemin, ligne,
                       TexteRempli(TexteProgramme::LectureAileAttendue, {SectionEmplanture, SectionSaumon}));
}

AileImportee LireListeAile(const std::string& texte, char separateur, const std::string& chemin) {
    if (texte.find('\0') != std::string::npos)
        throw FauteLecture(chemin, 0, Texte(TexteProgramme::LectureFichierBinaire));
    Lecteur l{{}, chemin, separateur};
    const std::string_view tout = texte;
    // A file with the line ends of old systems has no LF at all.
    const char fin = tout.find('\n') == std::string_view::npos ? '\r' : '\n';
    for (std::size_t debut = 0; debut < tout.size();) {
        const std::size_t suite = std::min(tout.find(fin, debut), tout.size());
        ++l.ligne;
        LireLigne(l, Rogner(tout.substr(debut, suite - debut)));
        debut = suite + 1;
    }
    VerifierComptes(l);
    if (l.aile.Pouces) ConvertirPouces(l.aile);
    return std::move(l.aile);
}

} // namespace tessarel
