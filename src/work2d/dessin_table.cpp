// Draws the machine table, the block and the paths as strokes, marks and labels in mm.
#include "work2d/dessin_table.h"

#include "platform/nombres.h"
#include "platform/tracer_dessin.h"
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

// Lengths around the table, in hundredths of its longer side.
constexpr double TraitLong = 1.6;
constexpr double TraitCourt = 0.8;
constexpr double PlaceTexteX = 3.2; // labels below the ruler, by their middle
constexpr double PlaceTexteY = 2.2; // beside it, by their right end
constexpr double MargeRegle = 7;
constexpr double MargeLibre = 4;
constexpr double BoutAxe = 1; // of an axis beyond the table
constexpr double NomAxe = 3;  // its letter, from the table

const PaletteTable& PaletteDe(const OptionsDessin& options) {
    return PaletteDuFond(options.sombre);
}

void AjouterRectangle(Dessin& dessin, const CadreDessin& r, Couleur couleur, float epaisseur, bool tirets) {
    OuvrirTrait(dessin, couleur, epaisseur, tirets);
    AjouterPoint(dessin, {r.XMin, r.YMin});
    AjouterPoint(dessin, {r.XMin, r.YMax});
    AjouterPoint(dessin, {r.XMax, r.YMax});
    AjouterPoint(dessin, {r.XMax, r.YMin});
    AjouterPoint(dessin, {r.XMin, r.YMin});
}

void AjouterSurface(Dessin& dessin, const CadreDessin& r, Couleur couleur) {
    AjouterRectangle(dessin, r, couleur, 0, false);
    dessin.traits.back().genre = GenreTrait::Surface;
}

double Unite(const TableMachine& table) {
    return std::max({table.CourseX, table.CourseY, 1}) / 100.0;
}

// A ruler along one axis, outside the table. `placer(s, recul)` gives the place at `s` mm along it, `recul`
// mm away from the table; labels stand `reculTexte` away.
template <typename Placer>
void DessinerRegle(Dessin& dessin, double course, double unite, double reculTexte,
                   const PaletteTable& palette, AncreTexte ancre, Placer placer) {
    const double pas = PasGraduation(course);
    const double fin = pas / SousGraduations;
    const auto nombre = static_cast<int>(std::floor(course / fin + 1e-6));
    const auto principale = [](int i) { return i % SousGraduations == 0; };
    for (int i = 0; i <= nombre; ++i) {
        const PointDessin a = placer(i * fin, 0.0);
        const PointDessin b = placer(i * fin, (principale(i) ? TraitLong : TraitCourt) * unite);
        AjouterLigne(dessin, a, b, palette.regle, EpaisseurNormale);
    }
    for (int i = 0; i <= nombre; i += SousGraduations) {
        const PointDessin t = placer(i * fin, reculTexte);
        AjouterTexte(dessin, t, FormaterNombre(i * fin, MasqueRegle), palette.texte, ancre);
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
            AjouterMarque(dessin, GenreMarque::Fleche, {points[i].X + dx * t, points[i].Y + dy * t},
                          TailleFleche, couleur);
            dessin.marques.back().angle = std::atan2(dy, dx);
            ++suivante;
        }
        parcouru += l;
    }
}

void AjouterPoints(Dessin& dessin, std::span<const PointProfil> points, Couleur couleur) {
    for (const PointProfil& p : points)
        AjouterMarque(dessin, GenreMarque::Point, {p.X, p.Y}, TaillePoint, couleur);
}

void AjouterPolyligne(Dessin& dessin, std::span<const PointProfil> points, Couleur couleur, float epaisseur,
                      bool tirets) {
    if (points.empty()) return;
    OuvrirTrait(dessin, couleur, epaisseur, tirets);
    for (const PointProfil& p : points) AjouterPoint(dessin, {p.X, p.Y});
}

// Segments of one part of the cut; runs of the same thickness are one stroke.
void DessinerPartie(Dessin& dessin, std::span<const PointProfil> points, Couleur couleur) {
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        if (i == 0 || points[i].Rapide != points[i - 1].Rapide) {
            OuvrirTrait(dessin, couleur, points[i].Rapide ? EpaisseurRapide : EpaisseurNormale);
            AjouterPoint(dessin, {points[i].X, points[i].Y});
        }
        AjouterPoint(dessin, {points[i + 1].X, points[i + 1].Y});
    }
}

void DessinerProvisoire(Dessin& dessin, const Decoupe2D& decoupe, bool sombre) {
    AjouterPolyligne(dessin, decoupe.TrajetEntreeProvisoire.Points, CouleurSurFond(CouleurEntree, sombre),
                     EpaisseurNormale, true);
    AjouterPolyligne(dessin, decoupe.SequenceAssemblee.Points,
                     CouleurSurFond(CouleurPremiereSequence, sombre), EpaisseurNormale, false);
    AjouterPolyligne(dessin, decoupe.TrajetSortieProvisoire.Points, CouleurSurFond(CouleurSortie, sombre),
                     EpaisseurNormale, true);
}

// One axis beyond its end of the table, from `bout` towards (dx, dy), with its letter.
void DessinerAxe(Dessin& dessin, PointDessin bout, double dx, double dy, double unite, const char* nom,
                 const PaletteTable& palette) {
    const double x = bout.X + dx * BoutAxe * unite;
    const double y = bout.Y + dy * BoutAxe * unite;
    AjouterLigne(dessin, bout, {x, y}, palette.regle, EpaisseurNormale);
    AjouterMarque(dessin, GenreMarque::Fleche, {x, y}, TailleFleche, palette.regle);
    dessin.marques.back().angle = std::atan2(dy, dx);
    AjouterTexte(dessin, {bout.X + dx * NomAxe * unite, bout.Y + dy * NomAxe * unite}, nom, palette.texte,
                 AncreTexte::Centre);
}

void DessinerRegles(Dessin& dessin, double courseX, double courseY, double unite,
                    const PaletteTable& palette) {
    DessinerRegle(dessin, courseX, unite, PlaceTexteX * unite, palette, AncreTexte::Centre,
                  [](double s, double recul) {
                      return PointDessin{s, -recul};
                  });
    DessinerRegle(dessin, courseY, unite, PlaceTexteY * unite, palette, AncreTexte::Droite,
                  [](double s, double recul) {
                      return PointDessin{-recul, s};
                  });
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

CadreDessin CadreTable(const TableMachine& table, bool regles) {
    const double u = Unite(table);
    const double debut = -(regles ? MargeRegle : MargeLibre) * u;
    return {debut, table.CourseX + MargeLibre * u, debut, table.CourseY + MargeLibre * u};
}

void DessinerTable(Dessin& dessin, const TableMachine& table, const Bloc& bloc,
                   const OptionsDessin& options) {
    const PaletteTable& palette = PaletteDe(options);
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
    AjouterMarque(dessin, GenreMarque::Point, {0, table.OrigineEnHaut ? courseY : 0}, 2 * TaillePoint,
                  palette.bordTable);

    const double u = Unite(table);
    if (options.regles) DessinerRegles(dessin, courseX, courseY, u, palette);
    DessinerAxe(dessin, {courseX, 0}, 1, 0, u, "X", palette);
    DessinerAxe(dessin, {0, courseY}, 0, 1, u, "Y", palette);
}

void DessinerSequences(Dessin& dessin, std::span<const Sequence> sequences, const OptionsDessin& options,
                       PartieSequences partie) {
    std::size_t selections = 0;
    for (std::size_t i = 0; i < sequences.size(); ++i) {
        const Sequence& sequence = sequences[i];
        const bool choisie = (sequence.Selection & SelectionSequence) != 0;
        Couleur couleur = i == 0 ? CouleurPremiereSequence
                                 : CouleursAutresSequences[(i - 1) % CouleursAutresSequences.size()];
        couleur =
            options.couleurProfils ? CouleurSurFond(couleur, options.sombre) : PaletteDe(options).traceUni;
        if (choisie) couleur = CouleursSelection[selections++ % CouleursSelection.size()];
        if (sequence.Points.empty()) continue;
        if (partie != PartieSequences::Toutes && choisie != (partie == PartieSequences::Selectionnees))
            continue;
        AjouterPolyligne(dessin, sequence.Points, couleur, EpaisseurNormale, false);
        AjouterFleches(dessin, sequence.Points, options.voirSens ? FlechesDuSens : 1, couleur);
        const PointProfil& premier = sequence.Points.front();
        AjouterMarque(dessin, GenreMarque::PremierPoint, {premier.X, premier.Y}, TaillePremierPoint, couleur);
        if (options.voirPoints) AjouterPoints(dessin, sequence.Points, couleur);
    }
}

void DessinerDecoupe(Dessin& dessin, const Decoupe2D& decoupe, const OptionsDessin& options) {
    const std::span<const PointProfil> points = decoupe.SequenceDecoupe.Points;
    if (points.empty()) {
        DessinerProvisoire(dessin, decoupe, options.sombre);
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
    const Couleur entrer = CouleurSurFond(CouleurEntree, options.sombre);
    const Couleur couper = CouleurSurFond(CouleurPremiereSequence, options.sombre);
    const Couleur sortir = CouleurSurFond(CouleurSortie, options.sombre);
    DessinerPartie(dessin, avant, entrer);
    DessinerPartie(dessin, milieu, couper);
    DessinerPartie(dessin, apres, sortir);
    AjouterFleches(dessin, avant, 1, entrer);
    AjouterFleches(dessin, milieu, FlechesDuChemin, couper);
    AjouterFleches(dessin, apres, 1, sortir);
    AjouterMarque(dessin, GenreMarque::PremierPoint, {points[contact].X, points[contact].Y},
                  TaillePremierPoint, couper);
    if (options.voirPoints) AjouterPoints(dessin, milieu, couper);
}

} // namespace tessarel
