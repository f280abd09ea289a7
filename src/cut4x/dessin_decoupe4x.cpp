// Strokes, marks and labels of the two views of a 4-axis cut.
#include "cut4x/dessin_decoupe4x.h"
#include "cut4x/controle4x.h"

#include "app/texts/textes_programme.h"
#include "platform/nombres.h"
#include "platform/tracer_dessin.h"

#include <algorithm>
#include <initializer_list>
#include <set>
#include <span>

namespace tessarel {

namespace {

// Pixels.
constexpr float TraitFin = 1;
constexpr float TraitProfil = 2;
constexpr float TraitCourse = 3;
constexpr float TraitGras = 5;
constexpr float TailleTitre = 15;
constexpr float TailleLibelle = 12;
constexpr float TaillePoint = 3;
constexpr float TailleDepart = 5;
constexpr float TailleArret = 8;

constexpr std::size_t FilsMontres = 9;
// Room around and between the views, in parts of the greater travel.
constexpr double Marge = 0.09;
constexpr double Intervalle = 0.14;
constexpr Masque MasqueMesure = "###0.#";

struct Palette {
    Couleur table, bordTable, plateau, mousse, bordMousse, texte, fil;
};
constexpr Palette Claire = {{110, 110, 219, 20}, {95, 95, 205}, {110, 110, 219, 34}, {255, 238, 196, 200},
                            {186, 140, 58},      {60, 60, 80},  {240, 136, 0, 150}};
constexpr Palette Sombre = {{110, 110, 219, 40}, {150, 150, 240}, {110, 110, 219, 60}, {166, 156, 128, 170},
                            {214, 172, 92},      {205, 205, 220}, {240, 136, 0, 170}};

const Palette& PaletteDe(const OptionsDessin4x& options) {
    return options.sombre ? Sombre : Claire;
}

// The same colour, fainter: a carriage's path beside that of its side at the block.
Couleur Estompee(Couleur couleur) {
    couleur.opacite = 120;
    return couleur;
}

// Greater side of the views, by which room and labels are measured.
double Unite(const TableMachine& table, const EtendueVue& vue) {
    return std::max({vue.X, vue.Y, double{table.EcartementY1Y2}, 1.0});
}

void AjouterContour(Dessin& dessin, std::initializer_list<PointDessin> coins, Couleur couleur,
                    float epaisseur) {
    OuvrirTrait(dessin, couleur, epaisseur, false, epaisseur == 0 ? GenreTrait::Surface : GenreTrait::Ligne);
    for (const PointDessin& coin : coins) AjouterPoint(dessin, coin);
    AjouterPoint(dessin, *coins.begin());
}

void AjouterRectangle(Dessin& dessin, const CadreDessin& r, Couleur couleur, float epaisseur) {
    AjouterContour(dessin, {{r.XMin, r.YMin}, {r.XMin, r.YMax}, {r.XMax, r.YMax}, {r.XMax, r.YMin}}, couleur,
                   epaisseur);
}

void AjouterChemin(Dessin& dessin, std::span<const PointProfil> points, Couleur couleur, float epaisseur) {
    if (points.empty()) return;
    OuvrirTrait(dessin, couleur, epaisseur);
    for (const PointProfil& p : points) AjouterPoint(dessin, {p.X, p.Y});
}

// The travel of the machine as far as the view shows it: an end beyond it is left open.
void DessinerTable(Dessin& dessin, const TableMachine& table, const EtendueVue& vue, const Palette& palette) {
    const double x = std::min<double>(table.CourseX, vue.X);
    const double y = std::min<double>(table.CourseY, vue.Y);
    AjouterRectangle(dessin, {0, x, 0, y}, palette.table, 0);
    AjouterLigne(dessin, {0, 0}, {x, 0}, palette.bordTable, TraitFin);
    AjouterLigne(dessin, {0, 0}, {0, y}, palette.bordTable, TraitFin);
    if (table.CourseX <= vue.X) AjouterLigne(dessin, {x, 0}, {x, y}, palette.bordTable, TraitFin);
    if (table.CourseY <= vue.Y) AjouterLigne(dessin, {0, y}, {x, y}, palette.bordTable, TraitFin);
}

// Entry and exit thin, what lies between them bolder.
void DessinerCote(Dessin& dessin, const std::vector<PointProfil>& points, const DecoupeD4X& decoupe,
                  Couleur couleur, const OptionsDessin4x& options) {
    AjouterChemin(dessin, points, couleur, TraitFin);
    const std::size_t premier = std::min(decoupe.premierProfil, points.size());
    const std::size_t nombre = std::min(decoupe.nombreProfil, points.size() - premier);
    const std::span<const PointProfil> profil(points.data() + premier, nombre);
    AjouterChemin(dessin, profil, couleur, TraitProfil);
    if (!profil.empty())
        AjouterMarque(dessin, GenreMarque::PremierPoint, {profil[0].X, profil[0].Y}, TailleDepart, couleur);
    for (const PointProfil& p : points) {
        if (options.voirPoints) AjouterMarque(dessin, GenreMarque::Point, {p.X, p.Y}, TaillePoint, couleur);
        if ((p.Drapeaux & DrapeauArret) != 0)
            AjouterMarque(dessin, GenreMarque::Point, {p.X, p.Y}, TailleArret, CouleurFaute);
    }
}

void DessinerFace(Dessin& dessin, const FaceBloc& face, Couleur bord, const Palette& palette) {
    if (face.Xba == face.Xbf) return;
    const CadreDessin cadre = {face.Xbf, face.Xba, face.Ybas, face.Yhaut};
    AjouterRectangle(dessin, cadre, palette.mousse, 0);
    AjouterRectangle(dessin, cadre, bord, TraitFin);
}

const std::vector<PointProfil>& ListeFautive(const DecoupeD4X& decoupe, const SegmentTropRapide& segment) {
    return segment.emplanture ? decoupe.PaireChariots.E : decoupe.PaireChariots.S;
}

void DessinerFautes(Dessin& dessin, const ConstatD4X& constat, const DecoupeD4X& decoupe) {
    for (const SegmentTropRapide& segment : constat.tropRapides) {
        const PointProfil& p = ListeFautive(decoupe, segment)[segment.indice];
        const PointProfil& q = ListeFautive(decoupe, segment)[segment.indice + 1];
        AjouterLigne(dessin, {p.X, p.Y}, {q.X, q.Y}, CouleurFaute, TraitGras);
    }
}

// Indices of the wires shown from above: evenly along the path, and where a carriage is at an end of its way.
std::set<std::size_t> FilsDuPlan(const PaireD4X& chariots) {
    std::set<std::size_t> indices;
    const std::size_t nombre = chariots.E.size();
    if (nombre < 3) return indices;
    for (std::size_t i = 0; i < FilsMontres; ++i) indices.insert(1 + (nombre - 3) * i / (FilsMontres - 1));
    const auto extremes = [&](const std::vector<PointProfil>& points) {
        const auto [bas, haut] =
            std::minmax_element(points.begin() + 1, points.end() - 1,
                                [](const PointProfil& a, const PointProfil& b) { return a.X < b.X; });
        indices.insert(static_cast<std::size_t>(bas - points.begin()));
        indices.insert(static_cast<std::size_t>(haut - points.begin()));
    };
    extremes(chariots.E);
    extremes(chariots.S);
    return indices;
}

// The view from above: mm along the wire and from the front of the table, set down at a corner.
struct Plan {
    PointDessin origine;
    [[nodiscard]] PointDessin Lieu(double z, double x) const { return {origine.X + z, origine.Y + x}; }
};

void DessinerCourseChariot(Dessin& dessin, const Plan& plan, const std::vector<PointProfil>& points, double z,
                           double course, Couleur couleur, const Palette& palette) {
    AjouterLigne(dessin, plan.Lieu(z, 0), plan.Lieu(z, course), palette.bordTable, TraitFin);
    if (points.empty()) return;
    const auto [bas, haut] = std::ranges::minmax(points, {}, &PointProfil::X);
    AjouterLigne(dessin, plan.Lieu(z, bas.X), plan.Lieu(z, haut.X), couleur, TraitCourse);
}

void DessinerBlocEnPlan(Dessin& dessin, const Plan& plan, const ContexteD4X& contexte,
                        const DecoupeD4X& decoupe, const Palette& palette) {
    if (!decoupe.DecoupePossible) return;
    const double zS = contexte.Parametres.ZSaumon;
    const double zE = contexte.Parametres.ZEmplanture;
    const FaceBloc& s = decoupe.blocS;
    const FaceBloc& e = decoupe.blocE;
    for (const float epaisseur : {0.0F, TraitFin})
        AjouterContour(
            dessin, {plan.Lieu(zS, s.Xbf), plan.Lieu(zS, s.Xba), plan.Lieu(zE, e.Xba), plan.Lieu(zE, e.Xbf)},
            epaisseur == 0 ? palette.mousse : palette.bordMousse, epaisseur);
    AjouterLigne(dessin, plan.Lieu(zS, s.Xbf), plan.Lieu(zS, s.Xba), CouleurSaumon, TraitProfil);
    AjouterLigne(dessin, plan.Lieu(zE, e.Xbf), plan.Lieu(zE, e.Xba), CouleurEmplanture, TraitProfil);
}

void NommerPlan(Dessin& dessin, const Plan& plan, const TableMachine& table, const EtendueVue& vue,
                const Palette& palette) {
    const double u = Unite(table, vue);
    const double dessus = vue.X + 0.02 * u;
    const double dessous = -0.03 * u;
    const double fin = table.EcartementY1Y2;
    AjouterTexte(dessin, plan.Lieu(fin / 2, dessus), Texte(TexteProgramme::Apercu4xPlan), palette.texte,
                 AncreTexte::Centre, TailleTitre);
    AjouterTexte(dessin, plan.Lieu(0, dessous), Texte(TexteProgramme::Apercu4xChariot1), palette.texte,
                 AncreTexte::Centre, TailleLibelle);
    AjouterTexte(dessin, plan.Lieu(fin, dessous), Texte(TexteProgramme::Apercu4xChariot2), palette.texte,
                 AncreTexte::Centre, TailleLibelle);
    AjouterTexte(dessin, plan.Lieu(fin / 2, dessous),
                 FormaterNombre(table.EcartementY1Y2, MasqueMesure) + " mm", palette.texte,
                 AncreTexte::Centre, TailleLibelle);
}

// Lowest place of the wire, parking included.
double BasDuTrajet(const DecoupeD4X& decoupe) {
    double bas = 0;
    for (const auto* liste : {&decoupe.PaireBloc.E, &decoupe.PaireChariots.E, &decoupe.PaireChariots.S})
        for (const PointProfil& p : *liste) bas = std::min(bas, p.Y);
    return bas;
}

} // namespace

EtendueVue EtendueDesVues(const TableMachine& table, const DecoupeD4X& decoupe) {
    constexpr double aise = 1.12;
    EtendueVue vue;
    if (decoupe.DecoupePossible) {
        vue = {std::max(decoupe.blocE.Xba, decoupe.blocS.Xba),
               std::max(decoupe.blocE.Yhaut, decoupe.blocS.Yhaut)};
    }
    for (const PaireD4X* paire : {&decoupe.PaireBloc, &decoupe.PaireChariots})
        for (const auto* liste : {&paire->E, &paire->S})
            for (const PointProfil& p : *liste) vue = {std::max(vue.X, p.X), std::max(vue.Y, p.Y)};
    // A path gone astray must not shrink the rest to a dot; an empty one shows the table.
    const double limite = 2.0 * std::max({table.CourseX, table.CourseY, 1});
    vue = {std::min(vue.X * aise, limite), std::min(vue.Y * aise, limite)};
    if (vue.X <= 0) vue.X = table.CourseX;
    if (vue.Y <= 0) vue.Y = table.CourseY;
    return vue;
}

void DessinerVueDeCote(Dessin& dessin, const ContexteD4X& contexte, const DecoupeD4X& decoupe,
                       const OptionsDessin4x& options) {
    const Palette& palette = PaletteDe(options);
    const TableMachine& table = contexte.Table;
    const EtendueVue vue = EtendueDesVues(table, decoupe);
    const double u = Unite(table, vue);
    DessinerTable(dessin, table, vue, palette);
    if (decoupe.DecoupePossible) {
        DessinerFace(dessin, decoupe.blocE, CouleurEmplanture, palette);
        DessinerFace(dessin, decoupe.blocS, CouleurSaumon, palette);
    }
    if (options.voirChariots) {
        AjouterChemin(dessin, decoupe.PaireChariots.E, Estompee(CouleurEmplanture), TraitFin);
        AjouterChemin(dessin, decoupe.PaireChariots.S, Estompee(CouleurSaumon), TraitFin);
    }
    DessinerCote(dessin, decoupe.PaireBloc.E, decoupe, CouleurEmplanture, options);
    DessinerCote(dessin, decoupe.PaireBloc.S, decoupe, CouleurSaumon, options);
    DessinerFautes(dessin, ConstaterDecoupeD4X(contexte, decoupe), decoupe);
    const double dessous = std::min(0.0, BasDuTrajet(decoupe)) - 0.035 * u;
    AjouterTexte(dessin, {vue.X / 2, vue.Y + 0.02 * u}, Texte(TexteProgramme::Apercu4xCote), palette.texte,
                 AncreTexte::Centre, TailleTitre);
    AjouterTexte(dessin, {0, dessous}, Texte(TexteProgramme::Apercu4xSaumon), CouleurSaumon,
                 AncreTexte::Gauche, TailleLibelle);
    AjouterTexte(dessin, {vue.X, dessous}, Texte(TexteProgramme::Apercu4xEmplanture), CouleurEmplanture,
                 AncreTexte::Droite, TailleLibelle);
    AjouterTexte(dessin, {vue.X / 2, dessous - 0.035 * u},
                 FormaterNombre(double(table.CourseX), MasqueMesure) + " x " +
                     FormaterNombre(double(table.CourseY), MasqueMesure) + " mm",
                 palette.texte, AncreTexte::Centre, TailleLibelle);
}

void DessinerPlan(Dessin& dessin, const ContexteD4X& contexte, const DecoupeD4X& decoupe, PointDessin origine,
                  const OptionsDessin4x& options) {
    const Palette& palette = PaletteDe(options);
    const TableMachine& table = contexte.Table;
    const Plan plan = {origine};
    const double fin = table.EcartementY1Y2;
    const double bord2 = fin - table.EcartementPlateauY2;
    const PointDessin bas = plan.Lieu(table.EcartementY1Plateau, 0);
    const EtendueVue vue = EtendueDesVues(table, decoupe);
    const double fond = std::min<double>(table.CourseX, vue.X);
    const PointDessin haut = plan.Lieu(bord2, fond);
    AjouterRectangle(dessin, {bas.X, haut.X, bas.Y, haut.Y}, palette.plateau, 0);
    AjouterRectangle(dessin, {bas.X, haut.X, bas.Y, haut.Y}, palette.bordTable, TraitFin);
    DessinerBlocEnPlan(dessin, plan, contexte, decoupe, palette);
    const PaireD4X& chariots = decoupe.PaireChariots;
    for (const std::size_t i : FilsDuPlan(chariots))
        AjouterLigne(dessin, plan.Lieu(0, chariots.S[i].X), plan.Lieu(fin, chariots.E[i].X), palette.fil,
                     TraitFin);
    DessinerCourseChariot(dessin, plan, chariots.S, 0, fond, CouleurSaumon, palette);
    DessinerCourseChariot(dessin, plan, chariots.E, fin, fond, CouleurEmplanture, palette);
    for (const SegmentTropRapide& segment : ConstaterDecoupeD4X(contexte, decoupe).tropRapides) {
        const double z = segment.emplanture ? fin : 0;
        const std::vector<PointProfil>& liste = ListeFautive(decoupe, segment);
        AjouterLigne(dessin, plan.Lieu(z, liste[segment.indice].X), plan.Lieu(z, liste[segment.indice + 1].X),
                     CouleurFaute, TraitGras);
    }
    NommerPlan(dessin, plan, table, vue, palette);
}

void DessinerDecoupe4x(Dessin& dessin, const ContexteD4X& contexte, const DecoupeD4X& decoupe,
                       const OptionsDessin4x& options) {
    const TableMachine& table = contexte.Table;
    const EtendueVue vue = EtendueDesVues(table, decoupe);
    DessinerVueDeCote(dessin, contexte, decoupe, options);
    DessinerPlan(dessin, contexte, decoupe, {vue.X + Intervalle * Unite(table, vue), 0}, options);
}

CadreDessin CadreDecoupe4x(const TableMachine& table, const DecoupeD4X& decoupe) {
    const EtendueVue vue = EtendueDesVues(table, decoupe);
    const double u = Unite(table, vue);
    const double largeur = vue.X + Intervalle * u + table.EcartementY1Y2;
    const double bas = std::min(0.0, BasDuTrajet(decoupe));
    return {-Marge * u, largeur + Marge * u, bas - 1.3 * Marge * u, std::max(vue.X, vue.Y) + Marge * u};
}

} // namespace tessarel
