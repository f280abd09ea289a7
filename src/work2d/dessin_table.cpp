// Draws the machine table, the block and the paths as strokes, marks and labels in mm.
#include "work2d/dessin_table.h"

#include "platform/nombres.h"
#include "work2d/depassements.h"

#include <algorithm>
#include <cmath>

namespace tessarel {

namespace {

constexpr float EpaisseurNormale = 1; // pixels
constexpr float EpaisseurRapide = 2;
constexpr float TaillePoint = 4;
constexpr float TaillePremierPoint = 5;
constexpr float TailleFleche = 7;
constexpr int FlechesDuChemin = 6;
constexpr int FlechesDuSens = 8;
constexpr int SousGraduations = 5;
constexpr double GraduationsVoulues = 12; // at most about that many labels on an axis
constexpr Masque MasqueBloc = "##0.0";
constexpr Masque MasqueRegle = "###0.##";

// On a dark ground the darkest of the told colours get a light edge. Past this many points it would be a
// smear, and cost more than the lines.
constexpr double LuminanceSombre = 0.18;
constexpr std::size_t PointsMaxLisere = 20000;
constexpr Couleur CouleurLisere = {255, 255, 255, 120};
constexpr float EpaisseurLisere = 3;

// Lengths around the table, in hundredths of its longer side.
constexpr double TraitLong = 1.6;
constexpr double TraitCourt = 0.8;
constexpr double PlaceTexteX = 3.2; // labels below the ruler, by their middle
constexpr double PlaceTexteY = 2.2; // beside it, by their right end
constexpr double MargeRegle = 7;
constexpr double MargeLibre = 3;

// What a background asks for. The paths keep their colours on both; on a dark one the foam is dim enough for
// the light ones, and the dark ones have an edge.
struct Palette {
    Couleur fondTable;
    Couleur bordTable;
    Couleur fondBloc;
    Couleur bordBloc;
    Couleur zone;
    Couleur regle;
    Couleur texte;
    Couleur traceUni;
};
constexpr Palette PaletteClaire = {{110, 110, 219, 26}, CouleurTable,    {255, 238, 196, 235}, {186, 140, 58},
                                   {128, 128, 140},     {110, 110, 130}, {70, 70, 90},         {40, 40, 48}};
constexpr Palette PaletteSombre = {{110, 110, 219, 46}, {150, 150, 240}, {92, 84, 64, 235}, {214, 172, 92},
                                   {150, 150, 165},     {165, 165, 185}, {205, 205, 220},   {225, 225, 232}};

const Palette& PaletteDe(const OptionsDessin& options) {
    return options.sombre ? PaletteSombre : PaletteClaire;
}

double Lineaire(std::uint8_t valeur) {
    const double v = valeur / 255.0;
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}

double Luminance(Couleur c) {
    return 0.2126 * Lineaire(c.rouge) + 0.7152 * Lineaire(c.vert) + 0.0722 * Lineaire(c.bleu);
}

bool VeutLisere(Couleur couleur, std::size_t points, const OptionsDessin& options) {
    return options.sombre && points <= PointsMaxLisere && Luminance(couleur) < LuminanceSombre;
}

// Arrows and first points have no edge: where their path needs one they are lighter instead.
Couleur CouleurMarques(Couleur couleur, std::size_t points, const OptionsDessin& options) {
    if (!VeutLisere(couleur, points, options)) return couleur;
    const auto eclaircir = [](std::uint8_t v) { return static_cast<std::uint8_t>((v + 255) / 2); };
    return {eclaircir(couleur.rouge), eclaircir(couleur.vert), eclaircir(couleur.bleu), couleur.opacite};
}

void OuvrirTrait(Dessin& dessin, Couleur couleur, float epaisseur, bool tirets = false) {
    TraitDessin trait;
    trait.premier = static_cast<std::uint32_t>(dessin.points.size());
    trait.couleur = couleur;
    trait.epaisseur = epaisseur;
    trait.tirets = tirets;
    dessin.traits.push_back(trait);
}

void AjouterPoint(Dessin& dessin, double x, double y) {
    dessin.points.push_back({x, y});
    ++dessin.traits.back().nombre;
}

void AjouterLigne(Dessin& dessin, double x0, double y0, double x1, double y1, Couleur couleur) {
    OuvrirTrait(dessin, couleur, EpaisseurNormale);
    AjouterPoint(dessin, x0, y0);
    AjouterPoint(dessin, x1, y1);
}

void AjouterRectangle(Dessin& dessin, const CadreDessin& r, Couleur couleur, float epaisseur, bool tirets) {
    OuvrirTrait(dessin, couleur, epaisseur, tirets);
    AjouterPoint(dessin, r.XMin, r.YMin);
    AjouterPoint(dessin, r.XMin, r.YMax);
    AjouterPoint(dessin, r.XMax, r.YMax);
    AjouterPoint(dessin, r.XMax, r.YMin);
    AjouterPoint(dessin, r.XMin, r.YMin);
}

void AjouterSurface(Dessin& dessin, const CadreDessin& r, Couleur couleur) {
    AjouterRectangle(dessin, r, couleur, 0, false);
    dessin.traits.back().genre = GenreTrait::Surface;
}

void AjouterMarque(Dessin& dessin, GenreMarque genre, double x, double y, float taille, Couleur couleur) {
    MarqueDessin marque;
    marque.ou = {x, y};
    marque.genre = genre;
    marque.taille = taille;
    marque.couleur = couleur;
    dessin.marques.push_back(marque);
}

void AjouterTexte(Dessin& dessin, double x, double y, std::string texte, Couleur couleur, AncreTexte ancre) {
    TexteDessin t;
    t.ou = {x, y};
    t.texte = std::move(texte);
    t.couleur = couleur;
    t.ancre = ancre;
    dessin.textes.push_back(std::move(t));
}

double Unite(const TableMachine& table) {
    return std::max({table.CourseX, table.CourseY, 1}) / 100.0;
}

// A ruler along one axis, outside the table. `placer(s, recul)` gives the place at `s` mm along it, `recul`
// mm away from the table; labels stand `reculTexte` away.
template <typename Placer>
void DessinerRegle(Dessin& dessin, double course, double unite, double reculTexte, const Palette& palette,
                   AncreTexte ancre, Placer placer) {
    const double pas = PasGraduation(course);
    const double fin = pas / SousGraduations;
    const auto nombre = static_cast<int>(std::floor(course / fin + 1e-6));
    const auto principale = [](int i) { return i % SousGraduations == 0; };
    for (int i = 0; i <= nombre; ++i) {
        const PointDessin a = placer(i * fin, 0.0);
        const PointDessin b = placer(i * fin, (principale(i) ? TraitLong : TraitCourt) * unite);
        AjouterLigne(dessin, a.X, a.Y, b.X, b.Y, palette.regle);
    }
    for (int i = 0; i <= nombre; i += SousGraduations) {
        const PointDessin t = placer(i * fin, reculTexte);
        AjouterTexte(dessin, t.X, t.Y, FormaterNombre(i * fin, MasqueRegle), palette.texte, ancre);
    }
}

// Arrows in the direction of travel, spread evenly along the path; none on a path without length.
void AjouterFleches(Dessin& dessin, std::span<const PointProfil> points, int nombre, Couleur couleur) {
    const auto longueur = [&](std::size_t i) {
        return std::hypot(points[i + 1].X - points[i].X, points[i + 1].Y - points[i].Y);
    };
    double total = 0;
    for (std::size_t i = 0; i + 1 < points.size(); ++i) total += longueur(i);
    if (!(total > 0)) return;
    double parcouru = 0;
    int suivante = 0;
    for (std::size_t i = 0; i + 1 < points.size() && suivante < nombre; ++i) {
        const double l = longueur(i);
        while (suivante < nombre && total * (suivante + 0.5) / nombre <= parcouru + l) {
            const double t = l > 0 ? (total * (suivante + 0.5) / nombre - parcouru) / l : 0;
            const double dx = points[i + 1].X - points[i].X;
            const double dy = points[i + 1].Y - points[i].Y;
            AjouterMarque(dessin, GenreMarque::Fleche, points[i].X + dx * t, points[i].Y + dy * t,
                          TailleFleche, couleur);
            dessin.marques.back().angle = std::atan2(dy, dx);
            ++suivante;
        }
        parcouru += l;
    }
}

void AjouterPoints(Dessin& dessin, std::span<const PointProfil> points, Couleur couleur) {
    for (const PointProfil& p : points)
        AjouterMarque(dessin, GenreMarque::Point, p.X, p.Y, TaillePoint, couleur);
}

void AjouterPolyligne(Dessin& dessin, std::span<const PointProfil> points, Couleur couleur, float epaisseur,
                      bool tirets) {
    if (points.empty()) return;
    OuvrirTrait(dessin, couleur, epaisseur, tirets);
    for (const PointProfil& p : points) AjouterPoint(dessin, p.X, p.Y);
}

// Segments of one part of the cut; runs of the same thickness are one stroke.
void DessinerPartie(Dessin& dessin, std::span<const PointProfil> points, Couleur couleur,
                    const OptionsDessin& options) {
    if (VeutLisere(couleur, points.size(), options))
        AjouterPolyligne(dessin, points, CouleurLisere, EpaisseurLisere, false);
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        if (i == 0 || points[i].Rapide != points[i - 1].Rapide) {
            OuvrirTrait(dessin, couleur, points[i].Rapide ? EpaisseurRapide : EpaisseurNormale);
            AjouterPoint(dessin, points[i].X, points[i].Y);
        }
        AjouterPoint(dessin, points[i + 1].X, points[i + 1].Y);
    }
}

void DessinerProvisoire(Dessin& dessin, const Decoupe2D& decoupe) {
    AjouterPolyligne(dessin, decoupe.TrajetEntreeProvisoire.Points, CouleurEntree, EpaisseurNormale, true);
    AjouterPolyligne(dessin, decoupe.SequenceAssemblee.Points, CouleurPremiereSequence, EpaisseurNormale,
                     false);
    AjouterPolyligne(dessin, decoupe.TrajetSortieProvisoire.Points, CouleurSortie, EpaisseurNormale, true);
}

} // namespace

double PasGraduation(double course) {
    const double vise = std::max(course, 1.0) / GraduationsVoulues;
    double pas = std::pow(10, std::floor(std::log10(vise)));
    for (const double facteur : {1.0, 2.0, 5.0})
        if (pas * facteur >= vise) return pas * facteur;
    return pas * 10;
}

std::string TexteDimensionsBloc(const Bloc& bloc) {
    return FormaterNombre(bloc.BlocX, MasqueBloc) + " mm x " + FormaterNombre(bloc.BlocY, MasqueBloc) + " mm";
}

CadreDessin CadreTable(const TableMachine& table) {
    const double u = Unite(table);
    return {-MargeRegle * u, table.CourseX + MargeLibre * u, -MargeRegle * u, table.CourseY + MargeLibre * u};
}

void DessinerTable(Dessin& dessin, const TableMachine& table, const Bloc& bloc,
                   const OptionsDessin& options) {
    const Palette& palette = PaletteDe(options);
    const double courseX = table.CourseX;
    const double courseY = table.CourseY;
    const CadreDessin plateau = {0, courseX, 0, courseY};
    const CadreDessin mousse = {table.MargeOrigineBloc,
                                static_cast<double>(table.MargeOrigineBloc) + bloc.BlocX, 0, bloc.BlocY};
    const ZoneUtile zone = ZoneUtileMachine(table);
    AjouterSurface(dessin, plateau, palette.fondTable);
    AjouterSurface(dessin, mousse, palette.fondBloc);
    AjouterRectangle(dessin, {zone.xMin, zone.xMax, zone.yMin, zone.yMax}, palette.zone, EpaisseurNormale,
                     true);
    AjouterRectangle(dessin, mousse, palette.bordBloc, EpaisseurNormale, false);
    const CadreDessin utile = {mousse.XMin + options.margeX, mousse.XMax - options.margeX,
                               mousse.YMin + options.margeY, mousse.YMax - options.margeY};
    const bool marges = options.margeX > 0 || options.margeY > 0;
    if (marges && utile.XMin < utile.XMax && utile.YMin < utile.YMax)
        AjouterRectangle(dessin, utile, palette.bordBloc, EpaisseurNormale, true);
    AjouterRectangle(dessin, plateau, palette.bordTable, EpaisseurRapide, false);
    AjouterMarque(dessin, GenreMarque::Point, 0, table.OrigineEnHaut ? courseY : 0, 2 * TaillePoint,
                  palette.bordTable);

    const double u = Unite(table);
    DessinerRegle(dessin, courseX, u, PlaceTexteX * u, palette, AncreTexte::Centre,
                  [](double s, double recul) {
                      return PointDessin{s, -recul};
                  });
    DessinerRegle(dessin, courseY, u, PlaceTexteY * u, palette, AncreTexte::Droite,
                  [](double s, double recul) {
                      return PointDessin{-recul, s};
                  });
}

void DessinerSequences(Dessin& dessin, std::span<const Sequence> sequences, const OptionsDessin& options,
                       PartieSequences partie) {
    std::size_t selections = 0;
    std::size_t points = 0;
    for (const Sequence& sequence : sequences) points += sequence.Points.size();
    for (std::size_t i = 0; i < sequences.size(); ++i) {
        const Sequence& sequence = sequences[i];
        const bool choisie = (sequence.Selection & SelectionSequence) != 0;
        Couleur couleur = i == 0 ? CouleurPremiereSequence
                                 : CouleursAutresSequences[(i - 1) % CouleursAutresSequences.size()];
        if (!options.couleurProfils) couleur = PaletteDe(options).traceUni;
        if (choisie) couleur = CouleursSelection[selections++ % CouleursSelection.size()];
        if (sequence.Points.empty()) continue;
        if (partie != PartieSequences::Toutes && choisie != (partie == PartieSequences::Selectionnees))
            continue;
        if (VeutLisere(couleur, points, options))
            AjouterPolyligne(dessin, sequence.Points, CouleurLisere, EpaisseurLisere, false);
        AjouterPolyligne(dessin, sequence.Points, couleur, EpaisseurNormale, false);
        const Couleur marques = CouleurMarques(couleur, points, options);
        AjouterFleches(dessin, sequence.Points, options.voirSens ? FlechesDuSens : 1, marques);
        const PointProfil& premier = sequence.Points.front();
        AjouterMarque(dessin, GenreMarque::PremierPoint, premier.X, premier.Y, TaillePremierPoint, marques);
        if (options.voirPoints) AjouterPoints(dessin, sequence.Points, marques);
    }
}

void DessinerDecoupe(Dessin& dessin, const Decoupe2D& decoupe, const OptionsDessin& options) {
    const std::span<const PointProfil> points = decoupe.SequenceDecoupe.Points;
    if (points.empty()) {
        DessinerProvisoire(dessin, decoupe);
        return;
    }
    // The parts share their end vertices.
    const std::size_t entree = decoupe.TrajetEntree.Points.size();
    const std::size_t sortie = decoupe.TrajetSortie.Points.size();
    const std::size_t contact = entree > 0 ? entree - 1 : 0;
    const std::size_t depart = points.size() - std::min(points.size(), std::max<std::size_t>(sortie, 1));
    const auto avant = points.first(std::min(contact + 1, points.size()));
    const auto apres = points.subspan(depart);
    const auto milieu = points.subspan(contact, depart >= contact ? depart - contact + 1 : 0);
    DessinerPartie(dessin, avant, CouleurEntree, options);
    DessinerPartie(dessin, milieu, CouleurPremiereSequence, options);
    DessinerPartie(dessin, apres, CouleurSortie, options);
    AjouterFleches(dessin, avant, 1, CouleurEntree);
    const Couleur marques = CouleurMarques(CouleurPremiereSequence, milieu.size(), options);
    AjouterFleches(dessin, milieu, FlechesDuChemin, marques);
    AjouterFleches(dessin, apres, 1, CouleurSortie);
    AjouterMarque(dessin, GenreMarque::PremierPoint, points[contact].X, points[contact].Y, TaillePremierPoint,
                  marques);
    if (options.voirPoints) AjouterPoints(dessin, milieu, marques);
}

} // namespace tessarel
