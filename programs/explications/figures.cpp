// Draws the figures of the explanation documents.
#include "figures.h"

#include "machine/dessin_tranches.h"
#include "platform/crayon.h"

namespace tessarel::explications {

namespace {

constexpr Couleur Encre = {40, 46, 56};
constexpr Couleur Trait = {70, 90, 120};
constexpr Couleur Mousse = {255, 236, 190};
constexpr Couleur BordMousse = {186, 140, 58};
constexpr Couleur Fil = {232, 89, 12};
constexpr Couleur Blanc = {255, 255, 255};

// The wire moving to the right through the foam, with the slot behind it.
Figure Fente(bool english) {
    Figure figure{{}, {-4, 104, -2, 44}};
    Crayon crayon(figure.dessin);
    crayon.Encre(Mousse).Plein({0, 100, 2, 38});
    crayon.Encre(BordMousse, 1.5F).Rectangle({0, 100, 2, 38});
    crayon.Encre(Blanc).Plein({0, 62, 15, 25});
    crayon.Disque({62, 20}, 5);
    crayon.Encre(Fil).Disque({62, 20}, 2.2);
    crayon.Encre(Fil, 2).Ligne({{69, 20}, {82, 20}});
    crayon.Fleche({82, 20}, 0, 10);
    crayon.Encre(Encre).Texte({62, 31}, english ? "wire" : "fil", 13);
    crayon.Encre(Trait, 1.2F).Ligne({{22, 15}, {22, 25}});
    crayon.Fleche({22, 15}, -std::numbers::pi / 2, 8);
    crayon.Fleche({22, 25}, std::numbers::pi / 2, 8);
    crayon.Encre(Encre).Texte({26, 20}, english ? "kerf" : "saignée", 13, AncreTexte::Gauche);
    crayon.Texte({84, 7}, english ? "foam" : "mousse", 13);
    return figure;
}

// A kerf that falls as the speed rises, with the two points that are measured.
Figure Courbe(bool english) {
    constexpr double largeur = 90;
    constexpr double hauteur = 38;
    const auto saignee = [](double x) { return 6 + 420 / (x + 14); };
    Figure figure{{}, {-16, 104, -9, 47}};
    Crayon crayon(figure.dessin);
    crayon.Encre(Encre, 1.5F).Ligne({{0, 0}, {largeur, 0}});
    crayon.Fleche({largeur, 0}, 0, 9);
    crayon.Ligne({{0, 0}, {0, hauteur}});
    crayon.Fleche({0, hauteur}, std::numbers::pi / 2, 9);
    crayon.Texte({largeur + 3, -5}, english ? "speed" : "vitesse", 13, AncreTexte::Droite);
    crayon.Texte({2, hauteur + 4}, english ? "kerf" : "saignée", 13);
    std::vector<PointDessin> courbe;
    for (int x = 4; x <= 86; x += 2) courbe.push_back({double(x), saignee(x)});
    crayon.Encre(Fil, 2.5F).Ligne(courbe);
    for (const auto& [x, nom] : {std::pair{30.0, "V / 2"}, std::pair{60.0, "V"}}) {
        crayon.Encre(Trait, 1, true).Ligne({{x, 0}, {x, saignee(x)}, {0, saignee(x)}});
        crayon.Encre(Fil).Disque({x, saignee(x)}, 1.3);
        crayon.Encre(Encre).Texte({x, -5}, nom, 13);
    }
    return figure;
}

Figure Tranches() {
    VueTranches vue;
    vue.Dimensions = {200, 20, 60};
    const auto ordre = OrdreDesTranches();
    vue.Mouvements.assign(ordre.begin(), ordre.end() - 1); // the two slices, before the way back
    return {DessinerTranches(vue), CadreTranches()};
}

} // namespace

Figure FaireFigure(const std::string& nom, bool english) {
    if (nom == "fente") return Fente(english);
    if (nom == "courbe") return Courbe(english);
    if (nom == "tranches") return Tranches();
    return {};
}

} // namespace tessarel::explications
