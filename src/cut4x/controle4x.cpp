// Limit checks and their report.
#include "cut4x/controle4x.h"

#include "app/texts/textes.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace tessarel {

namespace {

// What a limit may be exceeded by (mm, mm/s).
constexpr double Tolerance = 0.00001;
constexpr const char* FinLigne = "\r\n";

void Etendre(BornesD4X& bornes, const PointProfil& p) {
    bornes.Xmin = std::min(bornes.Xmin, p.X);
    bornes.Xmax = std::max(bornes.Xmax, p.X);
    bornes.Ymin = std::min(bornes.Ymin, p.Y);
    bornes.Ymax = std::max(bornes.Ymax, p.Y);
}

std::span<const PointProfil> Interieurs(const std::vector<PointProfil>& points) {
    if (points.size() < 3) return {};
    return {points.data() + 1, points.size() - 2};
}

bool CoursesTenues(const BornesD4X& bornes, const TableMachine& table) {
    return bornes.Xmin >= -Tolerance && bornes.Ymin >= -Tolerance &&
           bornes.Xmax - table.CourseX <= Tolerance && bornes.Ymax - table.CourseY <= Tolerance;
}

bool TropRapide(const PointProfil& p, double limite) {
    return p.Vx - limite > Tolerance || p.Vy - limite > Tolerance;
}

double LongueurFil(const PointProfil& p1, const PointProfil& p2) {
    const double dx = p2.X - p1.X;
    const double dy = p2.Y - p1.Y;
    const double dz = p2.Z - p1.Z;
    return std::sqrt(dx * dx + dy * dy + dz * dz);
}

std::string LigneTropRapide(const DecoupeD4X& decoupe, const SegmentTropRapide& segment) {
    const PaireD4X& chariots = decoupe.PaireChariots;
    const PointProfil& p = (segment.emplanture ? chariots.E : chariots.S)[segment.indice];
    std::string ligne = chariots.E[segment.indice].Rapide ? "Vrapide - " : "Vdécoupe - ";
    ligne += segment.emplanture ? "E(" : "S(";
    ligne += std::to_string(segment.indice + 1) + ") à " + FormaterSimple(p.Vx) + "mm/s en X et " +
             FormaterSimple(p.Vy) + "mm/s en Y";
    return ligne + FinLigne;
}

int Resultat(const ConstatD4X& constat) {
    int resultat = 0;
    if (constat.coursesDepassees) resultat = ControleTropBasOuCourses;
    if (!constat.tropRapides.empty()) resultat = ControleVitesses;
    if (constat.filTropLong) resultat += ControleFil;
    return resultat == 0 ? ControleBon : resultat;
}

} // namespace

BornesD4X LimitesSequencesD4X(const PaireD4X& paire) {
    BornesD4X bornes;
    const auto e = Interieurs(paire.E);
    const auto s = Interieurs(paire.S);
    if (!e.empty() && !s.empty()) bornes = {e[0].X, e[0].Y, e[0].X, e[0].Y};
    for (const PointProfil& p : e) Etendre(bornes, p);
    for (const PointProfil& p : s) Etendre(bornes, p);
    return bornes;
}

ConstatD4X ConstaterDecoupeD4X(const ContexteD4X& contexte, const DecoupeD4X& decoupe) {
    const ParametresDecoupe4axes& parametres = contexte.Parametres;
    const TableMachine& table = contexte.Table;
    ConstatD4X constat;
    constat.sousLePlateau = !parametres.chkDresser && !parametres.chkGuillotine &&
                            LimitesSequencesD4X(decoupe.PaireBloc).Ymin < table.MargeFilPlateau;
    if (constat.sousLePlateau) return constat;
    const PaireD4X& chariots = decoupe.PaireChariots;
    constat.coursesDepassees = !CoursesTenues(LimitesSequencesD4X(chariots), table);
    for (std::size_t i = 0; i + 1 < chariots.E.size(); ++i) {
        const PointProfil& p2 = chariots.E[i];
        const PointProfil& p1 = chariots.S[i];
        const double limite = p2.Rapide ? table.VmaxAvecAccXY : table.VmaxSansAccXY;
        if (TropRapide(p2, limite)) constat.tropRapides.push_back({i, true});
        if (TropRapide(p1, limite)) constat.tropRapides.push_back({i, false});
        if (LongueurFil(p1, p2) - table.LongueurMaxiFil > Tolerance) constat.filTropLong = true;
    }
    return constat;
}

int ControlerDecoupeD4X(const ContexteD4X& contexte, const DecoupeD4X& decoupe) {
    const ConstatD4X constat = ConstaterDecoupeD4X(contexte, decoupe);
    if (constat.sousLePlateau) {
        AfficherCritique(TextesMessages(186), TitresMessages(186));
        return ControleTropBasOuCourses;
    }
    const int resultat = Resultat(constat);
    if (resultat == ControleBon) return resultat;
    std::string texte;
    if (constat.coursesDepassees) texte += TextesMessages(187);
    if (!constat.tropRapides.empty()) {
        texte += TitresMessages(187) + FinLigne + FinLigne + TextesMessages(185) + FinLigne;
        for (const SegmentTropRapide& segment : constat.tropRapides)
            texte += LigneTropRapide(decoupe, segment);
    }
    if (constat.filTropLong) texte += TextesMessages(188);
    AfficherCritique(texte, TitresMessages(188));
    return resultat;
}

} // namespace tessarel
