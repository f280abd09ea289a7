// Draws the box, its ten output terminals and the motors' signals that leave from them.
#include "dessin_sorties.h"

#include "app/texts/textes_programme.h"
#include "platform/crayon.h"
#include "platform/nombres.h"

#include <array>

namespace tessarel {

namespace {

constexpr std::array<const char*, 5> NomsAxes = {"X1", "Y1", "X2", "Y2", "A"};
// One colour per axis, told apart on a light and on a dark ground.
constexpr std::array<Couleur, 5> CouleursAxes = {
    {{31, 119, 210}, {25, 150, 85}, {140, 90, 210}, {200, 130, 0}, {110, 120, 130}}};
constexpr Couleur CouleurDouble = {214, 40, 40};

struct Tons {
    Couleur boitier;
    Couleur bord;
    Couleur texte;
    Couleur discret;
    Couleur borneLibre;
};
constexpr Tons TonsClairs = {
    {226, 231, 238}, {120, 130, 145}, {40, 46, 56}, {120, 128, 140}, {250, 250, 252}};
constexpr Tons TonsSombres = {{52, 60, 72}, {140, 150, 165}, {230, 234, 240}, {150, 158, 170}, {36, 42, 50}};

// Places, mm of the picture.
constexpr double BoitierGauche = 0;
constexpr double BoitierDroite = 46;
constexpr double PasBornes = 10;
constexpr double HautBornes = 95; // middle of output 1
constexpr double DemiBorne = 3.2;
constexpr double FinFil = 62;
constexpr CadreDessin Cadre = {-2, 122, -2, 106};

double HauteurBorne(std::size_t sortie) {
    return HautBornes - PasBornes * static_cast<double>(sortie);
}

void DessinerBoitier(Crayon& crayon, const Tons& tons) {
    const CadreDessin boitier = {BoitierGauche, BoitierDroite, 0, 104};
    crayon.Encre(tons.boitier).Plein(boitier);
    crayon.Encre(tons.bord, 2).Rectangle(boitier);
    crayon.Encre(tons.texte).Texte({18, 84}, "Zelko", 17);
    crayon.Encre(tons.discret).Texte({18, 74}, "USB", 10);
    // The plug of the computer, on the left side.
    crayon.Encre(tons.bord, 2).Rectangle({BoitierGauche, 8, 70, 78});
}

void DessinerBorne(Crayon& crayon, const Tons& tons, std::size_t sortie, const EmploiSortie& emploi) {
    const double y = HauteurBorne(sortie);
    const CadreDessin borne = {BoitierDroite - 5 - DemiBorne, BoitierDroite - 5 + DemiBorne, y - DemiBorne,
                               y + DemiBorne};
    Couleur couleur = CouleursAxes[emploi.Axe];
    if (emploi.EnDouble()) couleur = CouleurDouble;
    if (emploi.Libre()) couleur = tons.borneLibre;
    crayon.Encre(couleur).Plein(borne);
    crayon.Encre(tons.bord).Rectangle(borne);
    crayon.Encre(tons.texte).Texte({borne.XMin - 4, y}, std::to_string(sortie + 1), 11);
    if (emploi.Libre()) {
        crayon.Encre(tons.discret)
            .Texte({BoitierDroite + 4, y}, Texte(TexteProgramme::SortieLibre), 10, AncreTexte::Gauche);
        return;
    }
    crayon.Encre(couleur, 2.5F).Ligne({{borne.XMax, y}, {FinFil, y}});
    crayon.Fleche({FinFil, y}, 0, 8);
    std::string fonctions;
    for (const std::string& fonction : emploi.Fonctions)
        fonctions += (fonctions.empty() ? "" : " + ") + fonction;
    crayon.Encre(emploi.EnDouble() ? CouleurDouble : tons.texte)
        .Texte({FinFil + 4, y}, fonctions, 12, AncreTexte::Gauche);
}

// A signal of an axis goes to the output that its key names.
void Brancher(std::vector<EmploiSortie>& emplois, const SaisieMachine& saisie, std::size_t axe, bool pas) {
    const std::string nom = NomsAxes[axe];
    const std::string signal = pas ? "Step" : "Dir";
    const std::optional<double> sortie = LireDecimal(saisie.Lire("Sortie" + signal + nom));
    if (!sortie || *sortie < 1 || *sortie > static_cast<double>(emplois.size())) return;
    EmploiSortie& emploi = emplois[static_cast<std::size_t>(*sortie) - 1];
    std::string fonction =
        TexteRempli(pas ? TexteProgramme::SortiePas : TexteProgramme::SortieDirection, {nom});
    if (saisie.Lire("InvSignalSortie" + signal + nom) == "1")
        fonction = TexteRempli(TexteProgramme::SortieInversee, {fonction});
    emploi.Fonctions.push_back(fonction);
    emploi.Axe = axe;
}

} // namespace

std::vector<EmploiSortie> EmploisDesSorties(const SaisieMachine& saisie) {
    std::vector<EmploiSortie> emplois(NombreSortiesZelko);
    for (std::size_t axe = 0; axe < NomsAxes.size(); ++axe) {
        Brancher(emplois, saisie, axe, false);
        Brancher(emplois, saisie, axe, true);
    }
    return emplois;
}

CadreDessin CadreSorties() {
    return Cadre;
}

Dessin DessinerSorties(const SaisieMachine& saisie, bool sombre) {
    Dessin dessin;
    Crayon crayon(dessin);
    const Tons& tons = sombre ? TonsSombres : TonsClairs;
    DessinerBoitier(crayon, tons);
    const std::vector<EmploiSortie> emplois = EmploisDesSorties(saisie);
    for (std::size_t sortie = 0; sortie < emplois.size(); ++sortie)
        DessinerBorne(crayon, tons, sortie, emplois[sortie]);
    return dessin;
}

} // namespace tessarel
