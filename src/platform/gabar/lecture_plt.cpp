// PLT reader: HPGL plotter files, in one pass over their text.
#include "lecture.h"

#include "messages.h"
#include "plt_dessin.h"
#include "plt_encode.h"
#include "plt_texte.h"

#include "platform/erreurs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fmt/format.h>

namespace tessarel {

namespace {

// Instructions that set up a plotter, write text or ask it for something: known, and of no effect on paths.
constexpr std::string_view SansTrace =
    "AC AD AF AH AP AS BF BP CA CC CM CP CR CS CT CV DC DI DL DP DR DS DV EC ES FI FN FR FS FT GC GM GP HS "
    "IM "
    "IV IW KY LA LM LO LT MC MG MT ND NP NR OA OB OC OD OE OF OG OH OI OK OL OO OP OS OT OW PB PC PG PP PT "
    "PW QC QL RF RP RQ SA SB SD SF SI SL SR SS ST SV TD TL TR UC UF UL UR US VA VN VS WU XT YT";

constexpr std::array<bool, 26UL * 26UL> ConstruireSansTrace() {
    std::array<bool, 26UL * 26UL> connus = {};
    for (std::size_t i = 0; i + 1 < SansTrace.size(); i += 3)
        connus[static_cast<std::size_t>(SansTrace[i] - 'A') * 26 +
               static_cast<std::size_t>(SansTrace[i + 1] - 'A')] = true;
    return connus;
}
constexpr auto ConnusSansTrace = ConstruireSansTrace();

bool EstSansTrace(std::uint16_t code) {
    return ConnusSansTrace[static_cast<std::size_t>((code >> 8U) - 'A') * 26 +
                           static_cast<std::size_t>((code & 0xFFU) - 'A')];
}

struct LecturePlt {
    LecteurPlt texte;
    DessinPlt dessin;
    int instructions = 0;
    int inconnues = 0;
    std::map<std::string, int> parInconnue;
    int etiquettes = 0;
    int reglagesRefuses = 0;
    bool echelleSansCadre = false;
};

constexpr int NombresMax = 8; // of an instruction that has a fixed list

Point2 Vise(const DessinPlt& d, double x, double y, bool relatif) {
    return relatif ? Point2{d.ici.X + x, d.ici.Y + y} : Point2{x, y};
}

void Parcourir(LecturePlt& p) {
    DessinPlt& d = p.dessin;
    double x = 0;
    double y = 0;
    while (LirePairePlt(p.texte, x, y)) {
        const Point2 but = Vise(d, x, y, d.relatif);
        Avancer(d, but.X, but.Y);
    }
}

// The map changes under the pen, which stays on its place of the sheet.
void Regler(LecturePlt& p, bool (*regler)(ReperePlt&, const double*, int)) {
    DessinPlt& d = p.dessin;
    double v[NombresMax] = {};
    const int nombre = LireNombresPlt(p.texte, v, NombresMax);
    const Point2 mm = Projeter(d.repere.mm, d.ici.X, d.ici.Y, 0);
    if (!regler(d.repere, v, nombre)) ++p.reglagesRefuses;
    if (d.repere.echelle && d.repere.genreEchelle != 2 && !d.repere.cadreDonne) p.echelleSansCadre = true;
    d.ici = DepuisMm(d.repere, mm);
}

void TracerArcPlt(LecturePlt& p, bool relatif) {
    double v[NombresMax] = {};
    if (LireNombresPlt(p.texte, v, 4) < 3) return;
    SuivreArc(p.dessin, Vise(p.dessin, v[0], v[1], relatif), v[2]);
}

void TracerArcParPoints(LecturePlt& p, bool relatif) {
    double v[NombresMax] = {};
    while (LireNombresPlt(p.texte, v, 4) == 4)
        SuivreArcParPoints(p.dessin, Vise(p.dessin, v[0], v[1], relatif),
                           Vise(p.dessin, v[2], v[3], relatif));
}

void TracerBezier(LecturePlt& p, bool relatif) {
    double v[NombresMax] = {};
    while (LireNombresPlt(p.texte, v, 6) == 6)
        SuivreBezier(p.dessin, Vise(p.dessin, v[0], v[1], relatif), Vise(p.dessin, v[2], v[3], relatif),
                     Vise(p.dessin, v[4], v[5], relatif));
}

void TracerRectanglePlt(LecturePlt& p, bool relatif, GenrePlt genre) {
    double x = 0;
    double y = 0;
    if (LirePairePlt(p.texte, x, y)) TracerRectangle(p.dessin, Vise(p.dessin, x, y, relatif), genre);
}

void TracerSecteurPlt(LecturePlt& p, GenrePlt genre) {
    double v[NombresMax] = {};
    if (LireNombresPlt(p.texte, v, 4) >= 3) TracerSecteur(p.dessin, v[0], v[1], v[2], genre);
}

void ChangerMode(LecturePlt& p) {
    double mode = 0;
    LireNombrePlt(p.texte, mode);
    if (mode == 0) {
        OuvrirPolygone(p.dessin);
    } else if (mode == 1) {
        FermerSousPolygone(p.dessin);
    } else {
        FermerPolygone(p.dessin);
    }
}

// Movements of the pen; false when the instruction is none.
bool ExecuterPlume(LecturePlt& p, std::uint16_t code) {
    DessinPlt& d = p.dessin;
    switch (code) {
    case CodePlt("PU"):
        Lever(d);
        break;
    case CodePlt("PD"):
        Baisser(d);
        break;
    case CodePlt("PA"):
        d.relatif = false;
        break;
    case CodePlt("PR"):
        d.relatif = true;
        break;
    case CodePlt("PE"):
        TracerPE(p.texte, d);
        return true;
    default:
        return false;
    }
    Parcourir(p);
    return true;
}

bool ExecuterFigure(LecturePlt& p, std::uint16_t code) {
    double rayon = 0;
    switch (code) {
    case CodePlt("AA"):
    case CodePlt("AR"):
        TracerArcPlt(p, code == CodePlt("AR"));
        return true;
    case CodePlt("AT"):
    case CodePlt("RT"):
        TracerArcParPoints(p, code == CodePlt("RT"));
        return true;
    case CodePlt("BZ"):
    case CodePlt("BR"):
        TracerBezier(p, code == CodePlt("BR"));
        return true;
    case CodePlt("CI"):
        if (LireNombrePlt(p.texte, rayon)) TracerCerclePlt(p.dessin, rayon);
        return true;
    case CodePlt("EA"):
    case CodePlt("ER"):
        TracerRectanglePlt(p, code == CodePlt("ER"), GenrePlt::Rectangle);
        return true;
    case CodePlt("RA"):
    case CodePlt("RR"):
        TracerRectanglePlt(p, code == CodePlt("RR"), GenrePlt::Remplissage);
        return true;
    case CodePlt("EW"):
    case CodePlt("WG"):
        TracerSecteurPlt(p, code == CodePlt("EW") ? GenrePlt::Secteur : GenrePlt::Remplissage);
        return true;
    case CodePlt("PM"):
        ChangerMode(p);
        return true;
    case CodePlt("EP"):
    case CodePlt("FP"):
        TracerPolygone(p.dessin, code == CodePlt("EP") ? GenrePlt::Contour : GenrePlt::Remplissage);
        return true;
    default:
        return false;
    }
}

// DF: the drawing modes as at the start; pen, scaling points and rotation stay.
void RemettreModes(LecturePlt& p) {
    p.dessin.relatif = false;
    p.texte.finEtiquette = FinEtiquetteDefaut;
    Regler(p, [](ReperePlt& r, const double*, int) { return ReglerSC(r, nullptr, 0); });
}

bool ExecuterReglage(LecturePlt& p, std::uint16_t code) {
    double numero = 0;
    switch (code) {
    case CodePlt("IN"):
    case CodePlt("BP"):
        Initialiser(p.dessin);
        p.texte.finEtiquette = FinEtiquetteDefaut;
        return true;
    case CodePlt("DF"):
        RemettreModes(p);
        return true;
    case CodePlt("SP"):
        LireNombrePlt(p.texte, numero);
        ChoisirPlume(p.dessin, static_cast<int>(std::clamp(numero, 0.0, static_cast<double>(PlumesMax))));
        return true;
    case CodePlt("IP"):
        Regler(p, ReglerIP);
        return true;
    case CodePlt("IR"):
        Regler(p, ReglerIR);
        return true;
    case CodePlt("PS"):
        Regler(p, ReglerPS);
        return true;
    case CodePlt("SC"):
        Regler(p, ReglerSC);
        return true;
    case CodePlt("RO"):
        Regler(p, ReglerRO);
        return true;
    default:
        return false;
    }
}

bool PasserTexte(LecturePlt& p, std::uint16_t code) {
    switch (code) {
    case CodePlt("LB"):
    case CodePlt("BL"):
    case CodePlt("WD"):
        ++p.etiquettes;
        PasserEtiquette(p.texte);
        return true;
    case CodePlt("DT"):
        LireFinEtiquette(p.texte);
        return true;
    case CodePlt("SM"):
        PasserSymbole(p.texte);
        return true;
    case CodePlt("CO"):
        PasserCommentaire(p.texte);
        return true;
    default:
        return EstSansTrace(code);
    }
}

void Executer(LecturePlt& p) {
    DessinPlt& d = p.dessin;
    d.assemblage.entite = p.texte.mot;
    d.assemblage.ligne = p.texte.ligne;
    d.tampon.entite = p.texte.mot;
    d.tampon.ligne = p.texte.ligne;
    ++p.instructions;
    const std::uint16_t code = CodePlt(p.texte.mot);
    if (!ExecuterPlume(p, code) && !ExecuterFigure(p, code) && !ExecuterReglage(p, code) &&
        !PasserTexte(p, code)) {
        ++p.inconnues;
        ++p.parInconnue[std::string{static_cast<char>(code >> 8U), static_cast<char>(code & 0xFFU)}];
    }
    PasserArguments(p.texte);
}

std::string Enumerer(const std::map<std::string, int>& comptes) {
    constexpr std::size_t genresMax = 8;
    std::string liste;
    std::size_t n = 0;
    for (const auto& [genre, compte] : comptes) {
        if (n++ == genresMax) return liste + ", ...";
        liste += fmt::format("{}{} {}", liste.empty() ? "" : ", ", genre, compte);
    }
    return liste;
}

// A text or a picture has letters too, and now and then two of them make an instruction.
void VerifierGenre(const LecturePlt& p, std::size_t taille) {
    const std::string& chemin = *p.texte.chemin;
    if (p.instructions == 0)
        throw FauteLecture(chemin, 0,
                           Bilingue("ce n'est pas un fichier HPGL : aucune instruction",
                                    "this is not an HPGL file: no instruction in it"));
    if (2 * p.inconnues > p.instructions || 2 * p.texte.horsSujet > taille)
        throw FauteLecture(
            chemin, 0,
            Bilingue(fmt::format("ce n'est pas un fichier HPGL : {} instructions inconnues sur {}",
                                 p.inconnues, p.instructions),
                     fmt::format("this is not an HPGL file: {} of {} instructions are unknown", p.inconnues,
                                 p.instructions)));
}

[[noreturn]] void RefuserVide(const LecturePlt& p) {
    std::string francais = "rien à découper : aucun trait plume baissée";
    std::string anglais = "nothing to cut: no stroke with the pen down";
    const auto ajouter = [&](const std::string& f, const std::string& a) {
        francais += " ; " + f;
        anglais += "; " + a;
    };
    if (p.etiquettes > 0)
        ajouter(fmt::format("{} textes", p.etiquettes), fmt::format("{} labels", p.etiquettes));
    if (p.texte.etiquetteOuverte > 0)
        ajouter(fmt::format("le texte ouvert à la ligne {} n'a pas de fin", p.texte.etiquetteOuverte),
                fmt::format("the label opened in line {} has no end", p.texte.etiquetteOuverte));
    if (p.dessin.points > 0)
        ajouter(fmt::format("{} points isolés", p.dessin.points), fmt::format("{} dots", p.dessin.points));
    if (p.inconnues > 0)
        ajouter("instructions inconnues : " + Enumerer(p.parInconnue),
                "unknown instructions: " + Enumerer(p.parInconnue));
    throw FauteLecture(*p.texte.chemin, 0, Bilingue(francais, anglais));
}

void Noter(const LecturePlt& p, RapportLecture& r) {
    const auto noter = [&](bool vrai, const std::string& francais, const std::string& anglais) {
        if (vrai) r.notes.push_back(Bilingue(francais, anglais));
    };
    const ReperePlt& repere = p.dessin.repere;
    noter(p.echelleSansCadre,
          fmt::format("échelle (SC) sans points d'échelle (IP) : étirée sur un cadre de {:g} x {:g} mm",
                      repere.page.X * UniteTraceur, repere.page.Y * UniteTraceur),
          fmt::format("scaling (SC) without scaling points (IP): stretched to a frame of {:g} x {:g} mm",
                      repere.page.X * UniteTraceur, repere.page.Y * UniteTraceur));
    noter(p.reglagesRefuses > 0, fmt::format("{} réglages d'échelle sans effet", p.reglagesRefuses),
          fmt::format("{} scaling instructions without effect", p.reglagesRefuses));
    noter(p.texte.illisibles > 0, fmt::format("{} nombres illisibles laissés", p.texte.illisibles),
          fmt::format("{} unreadable numbers skipped", p.texte.illisibles));
    noter(p.texte.etiquetteOuverte > 0,
          fmt::format("le texte ouvert à la ligne {} n'a pas de fin : la suite du fichier est laissée",
                      p.texte.etiquetteOuverte),
          fmt::format("the label opened in line {} has no end: the rest of the file is skipped",
                      p.texte.etiquetteOuverte));
    noter(p.inconnues > 0, "instructions inconnues laissées : " + Enumerer(p.parInconnue),
          "unknown instructions skipped: " + Enumerer(p.parInconnue));
}

void RemplirRapport(const LecturePlt& p, RapportLecture& r) {
    // Named by the instruction that a person would write for it.
    constexpr std::array<const char*, static_cast<std::size_t>(GenrePlt::Nombre)> noms = {"PD", "CI", "EA",
                                                                                          "EW", "EP", "FP"};
    for (std::size_t i = 0; i < noms.size(); ++i)
        if (p.dessin.lus[i] > 0) r.lus[noms[i]] = p.dessin.lus[i];
    for (const auto& [plume, compte] : p.dessin.parPlume)
        if (compte > 0) r.couches[plume] = compte;
    if (p.etiquettes > 0) r.ignores["LB"] = p.etiquettes;
    if (p.dessin.points > 0) r.ignores["PD"] = p.dessin.points; // dots
    r.joints = p.dessin.assemblage.joints;
    r.retournes = p.dessin.assemblage.retournes;
    Noter(p, r);
}

} // namespace

void LirePlt(std::vector<PointSimple>& points, const std::string& texte, const std::string& chemin,
             RapportLecture& rapport) {
    if (texte.find_first_not_of(std::string_view(" \t\r\n\0", 5)) == std::string::npos)
        throw FauteLecture(chemin, 0, Bilingue("le fichier est vide", "the file is empty"));
    LecturePlt p;
    p.texte = OuvrirPlt(texte, chemin);
    CommencerDessinPlt(p.dessin, chemin);
    try {
        while (LireMotPlt(p.texte)) Executer(p);
    } catch (const FauteLecture&) {
        // What looks wrong in a file of another kind matters less than its kind.
        VerifierGenre(p, p.texte.place);
        throw;
    }
    FinirTrait(p.dessin);
    VerifierGenre(p, texte.size());
    TerminerAssemblage(p.dessin.assemblage);
    if (p.dessin.assemblage.points.empty()) RefuserVide(p);
    RemplirRapport(p, rapport);
    points = std::move(p.dessin.assemblage.points);
}

} // namespace tessarel
