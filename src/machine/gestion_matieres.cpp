// New materials, values stored, deletion and import, in the arrays and in the settings file.
#include "gestion_matieres.h"

#include "app/settings/cles_generales.h"
#include "app/settings/cles_matiere.h"
#include "app/settings/gestion_ini.h"
#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "platform/dialogue.h"
#include "platform/fichiers.h"
#include "platform/nombres.h"
#include "platform/profil_prive.h"

#include <algorithm>

namespace tessarel {

namespace {

// Rows of TextesDoubles.
constexpr int RangeeNomPris = 18;
constexpr int RangeeLigneProtegee = 19;
constexpr int RangeeValiderEffacement = 20;
constexpr int RangeeRienAImporter = 62;
// Rows of TextesMessages.
constexpr int RangeeParDefaut = 105;
constexpr int RangeeChauffeImportee = 210;
constexpr int RangeeChauffeRamenee = 211;
constexpr int RangeeMachine = 212;

constexpr const char* NomParDefaut = "Par defaut"; // of the default line, in every language

void Refuser(int rangee) {
    AfficherExclamation(TextesDoubles(rangee, 1), TextesDoubles(rangee, 2));
}

bool Porte(const std::vector<Matiere>& matieres, const std::string& nom) {
    return std::ranges::any_of(matieres,
                               [&nom](const Matiere& matiere) { return EgalSansCasse(matiere.Nom, nom); });
}

// The name without blanks at its ends, where it may be used.
std::optional<std::string> NomAccepte(const std::string& nom) {
    std::string rogne(Rogner(nom));
    if (rogne.empty()) return std::nullopt;
    if (rogne.find_first_of("[]") != std::string::npos) {
        AfficherExclamation(Texte(TexteProgramme::NomMatiereImpossible), TextesDoubles(RangeeNomPris, 2));
        return std::nullopt;
    }
    if (NomMatierePris(rogne)) {
        Refuser(RangeeNomPris);
        return std::nullopt;
    }
    return rogne;
}

void Ecrire(const Matiere& matiere) {
    EcrireMatiere(matiere.Nom, matiere.ChauffeDecoupe, matiere.VitesseDecoupe, matiere.SaigneeVD,
                  matiere.SaigneeVDsur2, matiere.Machine);
}

void PoserValeurs(Matiere& matiere, const ValeursDecoupe& valeurs) {
    matiere.ChauffeDecoupe = valeurs.Chauffe;
    matiere.VitesseDecoupe = valeurs.Vitesse;
    matiere.SaigneeVD = valeurs.SaigneeVD;
    matiere.SaigneeVDsur2 = valeurs.SaigneeVDsur2;
}

std::optional<std::size_t> RangDe(const std::string& nom) {
    const Matiere* matiere = TrouverMatiere(nom);
    if (matiere == nullptr) return std::nullopt;
    return static_cast<std::size_t>(matiere - MatieresMachine.data());
}

float ChauffeImportee(float chauffe) {
    const auto maximum = static_cast<float>(TableINI.ChauffeMaxiSur100);
    if (!(chauffe > maximum)) return chauffe;
    const auto pourcent = [](float valeur) { return PointVersSeparateur(FormaterNombre(valeur, "##0.#")); };
    AfficherExclamation(TextesMessages(RangeeChauffeImportee) + pourcent(chauffe) +
                            TitresMessages(RangeeChauffeImportee) + pourcent(maximum) + "%).\r\n" +
                            TextesMessages(RangeeChauffeRamenee),
                        TitresMessages(RangeeChauffeRamenee));
    return maximum;
}

} // namespace

bool NomMatierePris(const std::string& nom) {
    return Porte(MatieresMachine, nom) || Porte(MatieresAutresMachines, nom) ||
           EgalSansCasse(nom, NomParDefaut) || EgalSansCasse(nom, TextesMessages(RangeeParDefaut));
}

std::optional<std::size_t> NouvelleMatiere(const std::string& nom, const ValeursDecoupe& valeurs) {
    const std::optional<std::string> accepte = NomAccepte(nom);
    if (!accepte) return std::nullopt;
    Matiere matiere;
    matiere.Nom = *accepte;
    matiere.Machine = TableINI.Nom;
    PoserValeurs(matiere, valeurs);
    MatieresMachine.push_back(matiere);
    Ecrire(matiere);
    ChoisirEtRetenirMatiere(matiere);
    return MatieresMachine.size() - 1;
}

bool SauverMatiere(std::size_t rang, const ValeursDecoupe& valeurs) {
    if (rang == 0 || rang >= MatieresMachine.size()) return false;
    Matiere& matiere = MatieresMachine[rang];
    PoserValeurs(matiere, valeurs);
    Ecrire(matiere);
    ChoisirEtRetenirMatiere(matiere);
    return true;
}

bool EffacerMatiere(std::size_t rang) {
    if (rang == 0) {
        Refuser(RangeeLigneProtegee);
        return false;
    }
    if (rang >= MatieresMachine.size() ||
        !DemanderOuiNon(TextesDoubles(RangeeValiderEffacement, 1), TextesDoubles(RangeeValiderEffacement, 2)))
        return false;
    const std::string section = PrefixeMatiere + MatieresMachine[rang].Nom;
    {
        EcrituresGroupees ensemble(DossiersProgramme.FichierIni);
        EffacerSection(section);
        SupprimerLigneContenant("[" + section + "]");
    }
    ChargerBaseMatieres();
    ChoisirEtRetenirMatiere(MatieresMachine.front());
    return true;
}

bool ImportPossible() {
    if (MatieresAutresMachines.size() > 1) return true;
    Refuser(RangeeRienAImporter);
    return false;
}

std::optional<std::size_t> ImporterMatiere(const Matiere& source, const std::string& nouveauNom) {
    const std::optional<std::string> nom = NomAccepte(nouveauNom);
    if (!nom) return std::nullopt;
    Matiere copie = source;
    copie.Nom = *nom;
    copie.Machine = TableINI.Nom;
    copie.ChauffeDecoupe = ChauffeImportee(copie.ChauffeDecoupe);
    Ecrire(copie);
    ChargerBaseMatieres();
    const std::optional<std::size_t> rang = RangDe(*nom);
    if (rang) ChoisirEtRetenirMatiere(MatieresMachine[*rang]);
    return rang;
}

void ChoisirEtRetenirMatiere(const Matiere& matiere) {
    ChoisirMatiere(matiere);
    EcrireIni(SectionParametres, "MatiereUtilisee", matiere.Nom);
}

std::string NomAfficheMatiere(const Matiere& matiere) {
    return matiere.Nom == NomParDefaut ? TextesMessages(RangeeParDefaut) : matiere.Nom;
}

std::string NomAfficheAvecMachine(const Matiere& matiere) {
    return matiere.Nom + TextesMessages(RangeeMachine) + matiere.Machine + ")";
}

} // namespace tessarel
