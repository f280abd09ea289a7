// Loading of a machine: built-in column or section of the settings file, with the repairs; and its writing.
#include "app/settings/gestion_ini.h"
#include "app/texts/textes_programme.h"
#include "cles_machine.h"
#include "machines_integrees.h"
#include "platform/dialogue.h"
#include "platform/erreurs.h"
#include "platform/nombres.h"
#include "platform/profil_prive.h"
#include "platform/raisons.h"

#include <limits>

namespace tessarel {

namespace {

constexpr std::int16_t TempoChauffeMinimale = 1; // s

template <typename Entier>
Entier EntierDepuis(double valeur, const char* cle) {
    if (!(valeur >= std::numeric_limits<Entier>::min() && valeur <= std::numeric_limits<Entier>::max()))
        throw FauteDepassement(SelonLangue("Dépassement de capacité : ", "Overflow: ") + std::string(cle));
    return static_cast<Entier>(valeur);
}

// Puts the text of a key into its field, as the field's width takes it.
struct Poser {
    TableMachine& table;
    const CleMachine& cle;
    const std::string& texte;

    template <typename Entier>
    void operator()(AccesChamp<Entier> champ) const {
        const double lu = NombreDepuisTexte(texte);
        const double valeur = cle.regle == RegleCle::PartieEntiere ? PartieEntiere(lu) : Arrondi(lu);
        champ(table) = EntierDepuis<Entier>(valeur, cle.cle);
    }
    void operator()(AccesChamp<float> champ) const { champ(table) = SimpleDepuisTexte(texte); }
    void operator()(AccesChamp<bool> champ) const { champ(table) = NombreDepuisTexte(texte) == 1; }
    void operator()(AccesChamp<std::string> champ) const { champ(table) = texte; }
};

struct EstZero {
    TableMachine& table;
    template <typename Nombre>
    bool operator()(AccesChamp<Nombre> champ) const {
        return champ(table) == Nombre{};
    }
};

struct EnTexte {
    TableMachine& table;
    const char* masque;
    template <typename Entier>
    std::string operator()(AccesChamp<Entier> champ) const {
        return FormaterNombre(static_cast<double>(champ(table)), masque);
    }
    std::string operator()(AccesChamp<float> champ) const { return FormaterNombre(champ(table), masque); }
    std::string operator()(AccesChamp<bool> champ) const { return champ(table) ? "1" : "0"; }
    std::string operator()(AccesChamp<std::string> champ) const { return champ(table); }
};

void Reparer(const std::string& section, const CleMachine& cle, TableMachine& table) {
    const bool selonEcartement = std::string(cle.siZero) == "=";
    std::string valeur = cle.siZero;
    std::string texte;
    if (selonEcartement) {
        valeur = FormaterNombre(table.EcartementY1Y2, "#####0.0#");
        texte = Texte(TexteProgramme::ReparationLongueurFil);
    } else {
        texte = TexteRempli(TexteProgramme::ReparationTexte,
                            {cle.cle, FormaterNombre(NombreDepuisTexte(valeur), "#####0")});
    }
    AfficherInformation(texte, TexteRempli(TexteProgramme::ReparationTitre, {cle.cle}));
    EcrireIni(section, cle.cle, valeur);
    std::visit(Poser{table, cle, valeur}, cle.champ);
}

// From this version on a file machine never has its origin at the top: the user is told once.
void RefuserOrigineEnHaut(const std::string& section, const CleMachine& cle, TableMachine& table) {
    if (!table.OrigineEnHaut) return;
    AfficherInformation(
        TexteRempli(TexteProgramme::OrigineEnHautTexte, {table.Nom, TESSAREL_SITE_TESSAREL2D}),
        Texte(TexteProgramme::OrigineEnHautTitre));
    EcrireIni(section, cle.cle, "0");
    table.OrigineEnHaut = false;
}

void LireCles(std::span<const CleMachine> cles, const std::string& section, TableMachine& table) {
    for (const CleMachine& cle : cles) {
        if (cle.regle == RegleCle::EcriteSeulement) continue;
        std::visit(Poser{table, cle, LireIni(section, cle.cle, cle.defaut)}, cle.champ);
        if (cle.siZero != nullptr && std::visit(EstZero{table}, cle.champ)) Reparer(section, cle, table);
        if (cle.regle == RegleCle::ToujoursFausse) RefuserOrigineEnHaut(section, cle, table);
    }
}

// The motors first: a table whose ratios overflow is refused before anything is mended in the file.
void LireMachineDuFichier(const std::string& nom, TableMachine& table) {
    const std::string section = PrefixeMachine + nom;
    const EcrituresGroupees ensemble(DossiersProgramme.FichierIni);
    table.Nom = nom;
    LireCles(ClesMoteurs(), section, table);
    CalculerChampsMoteurs(table);
    LireCles(ClesGeometrie(), section, table);
    if (table.TempoChauffe < TempoChauffeMinimale) table.TempoChauffe = TempoChauffeMinimale;
    CalculerChampsGeometrie(table);
}

} // namespace

void PoserTexteDeCle(TableMachine& table, const CleMachine& cle, const std::string& texte) {
    std::visit(Poser{table, cle, texte}, cle.champ);
}

int LireMachine(const std::string& nom, TableMachine& table) {
    if (LireMachineIntegree(nom, table)) return StatutSucces;
    try {
        TableMachine lue;
        lue.NumeroMemoire = table.NumeroMemoire;
        LireMachineDuFichier(nom, lue);
        table = lue;
        return StatutSucces;
    } catch (const Faute&) {
        AfficherCritique(TexteRempli(TexteProgramme::ChargementMachineImpossible, {nom}),
                         Texte(TexteProgramme::TitreErreur));
        return StatutRefus;
    }
}

int ChargerMachine(const std::string& nom) {
    return LireMachine(nom, TableINI);
}

std::string TexteDeCle(const CleMachine& cle, const TableMachine& table) {
    auto& lue = const_cast<TableMachine&>(table); // NOLINT: a row gives its field to read and to write
    return std::visit(EnTexte{lue, cle.masque}, cle.champ);
}

bool EcrireMachine(const TableMachine& table) {
    if (EstMachineIntegree(table.Nom)) return false;
    const std::string section = PrefixeMachine + table.Nom;
    EcrituresGroupees ensemble(DossiersProgramme.FichierIni);
    bool ecrit = true;
    for (const CleMachine& cle : ClesMachine())
        ecrit = EcrireIni(section, cle.cle, TexteDeCle(cle, table)) && ecrit;
    return ensemble.Valider() && ecrit;
}

} // namespace tessarel
