// DXF reader: the sections of the file, in one pass over its text.
//
// The text is walked as it stands in memory; entities go straight into the points of the drawing. Blocks are
// not kept as records: each insertion reads the block's text again, which costs no memory and, at tens of
// nanoseconds a pair of lines, little time.
#include "lecture.h"

#include "dxf_dessin.h"
#include "messages.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fmt/format.h>

namespace tessarel {

namespace {

// Millimetres in a unit of $INSUNITS. 0 is "no unit" and read as millimetres.
constexpr std::array<double, 25> UnitesMm = {1,
                                             25.4,
                                             304.8,
                                             1609344,
                                             1,
                                             10,
                                             1000,
                                             1e6,
                                             25.4e-6,
                                             0.0254,
                                             914.4,
                                             1e-7,
                                             1e-6,
                                             1e-3,
                                             100,
                                             1e4,
                                             1e5,
                                             1e12,
                                             1.495978707e14,
                                             9.4607304725808e18,
                                             3.0856775814913673e19,
                                             1200000.0 / 3937,
                                             100000.0 / 3937,
                                             3600000.0 / 3937,
                                             6336000000.0 / 3937};

constexpr std::int32_t CalqueGele = 1;
constexpr std::int32_t BlocExterne = 4;

// Past this the 32 bits of a coordinate are coarser than the cut.
constexpr double CoordonneeFine = 1e5;

void PasserSection(LecteurCodes& l, std::string_view nom) {
    while (!EstMot(l, "ENDSEC")) LirePaireExigee(l, nom);
}

void LireEnTete(LecteurCodes& l, DessinDxf& dessin) {
    bool unites = false;
    while (!EstMot(l, "ENDSEC")) {
        if (l.code == 9) unites = EgalSansCasse(l.valeur, "$INSUNITS");
        if (l.code == 70 && unites) {
            const std::int32_t unite = ValeurEntiere(l);
            if (unite >= 0 && unite < static_cast<std::int32_t>(UnitesMm.size()))
                dessin.unite = UnitesMm[static_cast<std::size_t>(unite)];
        }
        LirePaireExigee(l, "HEADER");
    }
}

// One LAYER of the tables; leaves the next opening pair current.
void LireCalque(LecteurCodes& l, DessinDxf& dessin) {
    std::string_view nom;
    CalqueDxf calque;
    LirePaireExigee(l, "LAYER");
    while (l.code != 0) {
        if (l.code == 2) nom = l.valeur;
        if (l.code == 62) calque.eteint = ValeurEntiere(l) < 0;
        if (l.code == 70) calque.gele = (ValeurEntiere(l) & CalqueGele) != 0;
        LirePaireExigee(l, "LAYER");
    }
    CalqueDxf& connu = dessin.calques[static_cast<std::size_t>(RangCalque(dessin, nom))];
    connu.eteint = calque.eteint;
    connu.gele = calque.gele;
}

void LireTables(LecteurCodes& l, DessinDxf& dessin) {
    while (!EstMot(l, "ENDSEC")) {
        if (EstMot(l, "LAYER")) {
            LireCalque(l, dessin);
        } else {
            LirePaireExigee(l, "TABLES");
        }
    }
}

// One BLOCK: its name and base, and where its entities begin; leaves its ENDBLK behind.
void LireBloc(LecteurCodes& l, DessinDxf& dessin) {
    BlocDxf bloc;
    std::string_view nom;
    LirePaireExigee(l, "BLOCK");
    while (l.code != 0) {
        switch (l.code) {
        case 2:
            nom = l.valeur;
            break;
        case 10:
            bloc.base.X = ValeurReelle(l);
            break;
        case 20:
            bloc.base.Y = ValeurReelle(l);
            break;
        case 30:
            bloc.base.Z = ValeurReelle(l);
            break;
        case 70:
            bloc.externe = (ValeurEntiere(l) & BlocExterne) != 0;
            break;
        default:
            break;
        }
        LirePaireExigee(l, "BLOCK");
    }
    bloc.contenu = l;
    while (!EstMot(l, "ENDBLK") && !EstMot(l, "ENDSEC")) LirePaireExigee(l, "BLOCK");
    if (nom.empty()) return; // nothing can insert it
    if (dessin.nomsBlocs.rangs.emplace(EnMinuscules(nom), static_cast<int>(dessin.blocs.size())).second)
        dessin.blocs.push_back(bloc);
}

void LireBlocs(LecteurCodes& l, DessinDxf& dessin) {
    while (!EstMot(l, "ENDSEC")) {
        if (EstMot(l, "BLOCK")) {
            LireBloc(l, dessin);
        } else {
            LirePaireExigee(l, "BLOCKS");
        }
    }
}

void LireEntites(LecteurCodes& l, DessinDxf& dessin) {
    EntiteDxf entite;
    Cadre cadre;
    cadre.placement = Echelle(dessin.unite, dessin.unite, dessin.unite);
    while (l.code != 0) LirePaireExigee(l, "ENTITIES");
    while (!EstMot(l, "ENDSEC") && !EstMot(l, "EOF")) {
        LireEntite(l, entite);
        PoserEntite(dessin, entite, cadre);
    }
}

void LireSections(LecteurCodes& l, DessinDxf& dessin) {
    while (LirePaire(l)) {
        if (EstMot(l, "EOF")) return;
        if (l.code != 0 || EstMot(l, "ENDSEC")) continue;
        if (!EstMot(l, "SECTION")) {
            // Entities without a section around them: some programs write no more than that.
            LireEntites(l, dessin);
            return;
        }
        LirePaireExigee(l, "SECTION");
        const std::string_view nom = l.valeur;
        LirePaireExigee(l, nom);
        if (EgalSansCasse(nom, "HEADER")) {
            LireEnTete(l, dessin);
        } else if (EgalSansCasse(nom, "TABLES")) {
            LireTables(l, dessin);
        } else if (EgalSansCasse(nom, "BLOCKS")) {
            LireBlocs(l, dessin);
        } else if (EgalSansCasse(nom, "ENTITIES")) {
            LireEntites(l, dessin);
            return; // what follows describes no geometry
        } else {
            PasserSection(l, nom);
        }
    }
}

std::string ListerGenres(const std::map<std::string_view, int>& genres) {
    constexpr int genresMax = 8;
    std::string liste;
    int n = 0;
    for (const auto& [genre, compte] : genres) {
        if (n++ == genresMax) return liste + ", ...";
        liste += fmt::format("{}{} {}", liste.empty() ? "" : ", ", Citation(genre), compte);
    }
    return liste;
}

[[noreturn]] void RefuserVide(const DessinDxf& d) {
    std::string francais = "rien à découper dans ce dessin";
    std::string anglais = "nothing to cut in this drawing";
    const auto ajouter = [&](const std::string& f, const std::string& a) {
        francais += " ; " + f;
        anglais += "; " + a;
    };
    if (!d.ignores.empty())
        ajouter("entités qui ne sont pas des tracés : " + ListerGenres(d.ignores),
                "entities that are not paths: " + ListerGenres(d.ignores));
    if (d.surPapier > 0)
        ajouter(fmt::format("{} entités dans l'espace papier", d.surPapier),
                fmt::format("{} entities in paper space", d.surPapier));
    if (d.surCalquesCaches > 0)
        ajouter(fmt::format("{} entités sur des calques éteints ou gelés", d.surCalquesCaches),
                fmt::format("{} entities on layers that are off or frozen", d.surCalquesCaches));
    if (d.invisibles > 0)
        ajouter(fmt::format("{} entités invisibles", d.invisibles),
                fmt::format("{} invisible entities", d.invisibles));
    if (!d.blocsInconnus.empty())
        ajouter("blocs absents du fichier : " + ListerGenres(d.blocsInconnus),
                "blocks missing from the file: " + ListerGenres(d.blocsInconnus));
    throw FauteLecture(*d.chemin, 0, Bilingue(francais, anglais));
}

void NoterMesures(const DessinDxf& d, RapportLecture& r) {
    if (d.unite != 1)
        r.notes.push_back(Bilingue(fmt::format("unité du dessin : {:g} mm", d.unite),
                                   fmt::format("drawing unit: {:g} mm", d.unite)));
    double loin = 0;
    for (const PointSimple& p : d.assemblage.points)
        loin = std::max(loin, static_cast<double>(std::max(std::abs(p.X), std::abs(p.Y))));
    if (loin > CoordonneeFine) {
        const double pas = std::ldexp(1.0, std::ilogb(loin) - 23);
        r.notes.push_back(
            Bilingue(fmt::format("dessin loin de l'origine : coordonnées arrondies à {:g} mm", pas),
                     fmt::format("drawing far from the origin: coordinates rounded to {:g} mm", pas)));
    }
}

void RemplirRapport(const DessinDxf& d, RapportLecture& r) {
    for (const auto& [genre, compte] : d.lus) r.lus[Citation(genre)] += compte;
    for (const auto& [genre, compte] : d.ignores) r.ignores[Citation(genre)] += compte;
    for (const CalqueDxf& calque : d.calques)
        if (calque.entites > 0) r.couches[EnUtf8(std::string(calque.nom))] += calque.entites;
    r.joints = d.assemblage.joints;
    r.retournes = d.assemblage.retournes;
    NoterMesures(d, r);
    const auto noter = [&](int compte, const char* francais, const char* anglais) {
        if (compte > 0)
            r.notes.push_back(
                Bilingue(fmt::format("{} {}", compte, francais), fmt::format("{} {}", compte, anglais)));
    };
    noter(d.insertions, "copies de blocs développées", "block copies expanded");
    noter(d.surPapier, "entités de l'espace papier laissées", "paper space entities skipped");
    noter(d.surCalquesCaches, "entités sur des calques éteints ou gelés laissées",
          "entities skipped on layers that are off or frozen");
    noter(d.invisibles, "entités invisibles laissées", "invisible entities skipped");
    if (!d.blocsInconnus.empty())
        r.notes.push_back(Bilingue("blocs absents du fichier : " + ListerGenres(d.blocsInconnus),
                                   "blocks missing from the file: " + ListerGenres(d.blocsInconnus)));
}

// What must be settled before the walk: an empty file, a binary one, line ends by CR alone.
void PreparerTexte(std::string& texte, const std::string& chemin) {
    if (texte.find_first_not_of(" \t\r\n") == std::string::npos)
        throw FauteLecture(chemin, 0, Bilingue("le fichier est vide", "the file is empty"));
    constexpr std::size_t tete = 64;
    if (std::string_view(texte).substr(0, tete).find('\0') != std::string_view::npos)
        throw FauteLecture(chemin, 0,
                           Bilingue("DXF binaire ou fichier d'un autre genre : enregistrez-le en DXF ASCII",
                                    "binary DXF, or another kind of file: save it as an ASCII DXF"));
    if (texte.find('\n') == std::string::npos) std::replace(texte.begin(), texte.end(), '\r', '\n');
}

} // namespace

void LireDxf(std::vector<PointSimple>& points, std::string texte, const std::string& chemin,
             RapportLecture& rapport) {
    PreparerTexte(texte, chemin);
    DessinDxf dessin;
    dessin.chemin = &chemin;
    dessin.assemblage.chemin = &chemin;
    LecteurCodes lecteur = OuvrirCodes(texte, chemin);
    LireSections(lecteur, dessin);
    TerminerAssemblage(dessin.assemblage);
    if (dessin.assemblage.points.empty()) RefuserVide(dessin);
    RemplirRapport(dessin, rapport);
    points = std::move(dessin.assemblage.points);
}

} // namespace tessarel
