// Speeds at the block, projection of the wire, speeds at the carriages, rapid limit.
#include "cut4x/vitesses4x.h"
#include "cut4x/controle4x.h"
#include "cut4x/fautes_d4x.h"
#include "cut4x/mesures_segments.h"

#include "app/texts/textes_programme.h"

#include <cmath>

namespace tessarel {

namespace {

// Below this a segment has no length (mm).
constexpr float Epsilon = 0.00001F;

// How the two lengths of a segment compare: told once, for the block and for the carriages alike.
enum class Rapport { Immobiles, SaumonImmobile, EmplantureImmobile, EmplantureMene, SaumonMene };
Rapport RapportDesCotes(float LE, float LS) {
    if (LE < Epsilon && LS < Epsilon) return Rapport::Immobiles;
    if (LS < Epsilon && LE > Epsilon) return Rapport::SaumonImmobile;
    if (LE < Epsilon && LS >= Epsilon) return Rapport::EmplantureImmobile;
    return LE >= LS ? Rapport::EmplantureMene : Rapport::SaumonMene;
}

struct Segment {
    float LE = 0;
    float LS = 0;
    Rapport rapport = Rapport::Immobiles;
};

void Regler(PointProfil& p, double vitesse, double duree) {
    p.Vitesse = EnSimple(vitesse);
    p.Duree = EnSimple(duree);
}

void VitessesAuBloc(const Segment& segment, float vr, PointProfil& e, PointProfil& s) {
    const double LE = segment.LE;
    const double LS = segment.LS;
    switch (segment.rapport) {
    case Rapport::Immobiles:
        Regler(e, 0, 0);
        Regler(s, 0, 0);
        break;
    case Rapport::SaumonImmobile:
        Regler(e, vr, LE / vr);
        Regler(s, 0, 0);
        break;
    case Rapport::EmplantureImmobile:
        // Deliberate: the duration is that of the length of E, next to nothing. Timing S by its own length
        // would slow down paths that machines have run for years.
        Regler(e, 0, 0);
        Regler(s, vr, LE / vr);
        break;
    case Rapport::EmplantureMene:
        Regler(e, vr, LE / vr);
        Regler(s, vr * LS / LE, LE / vr);
        break;
    case Rapport::SaumonMene:
        Regler(s, vr, LS / vr);
        Regler(e, vr * LE / LS, LS / vr);
        break;
    }
}

// Speeds of the carriages from those at the block, `e` and `s`; L2E and L2S are the lengths there.
void VitessesDesChariots(const Segment& segment, const PointProfil& e, const PointProfil& s, float L2E,
                         float L2S, PointProfil& p2, PointProfil& p1) {
    const double vE = e.Vitesse;
    const double vS = s.Vitesse;
    switch (segment.rapport) {
    case Rapport::Immobiles:
        p2.Vitesse = p1.Vitesse = 0;
        break;
    case Rapport::SaumonImmobile:
        p2.Vitesse = EnSimple(vE * L2E / segment.LE);
        p1.Vitesse = 0;
        break;
    case Rapport::EmplantureImmobile:
        p2.Vitesse = 0;
        p1.Vitesse = EnSimple(vS * L2S / segment.LS);
        break;
    case Rapport::EmplantureMene:
        p2.Vitesse = EnSimple(vE * L2E / segment.LE);
        p1.Vitesse = EnSimple(vE * L2S / segment.LE);
        break;
    case Rapport::SaumonMene:
        p2.Vitesse = EnSimple(vS * L2E / segment.LS);
        p1.Vitesse = EnSimple(vS * L2S / segment.LS);
        break;
    }
}

void VitessesDesAxes(PointProfil& p, const PointProfil& suivant) {
    if (p.Duree == 0) {
        p.Vx = p.Vy = 0;
        return;
    }
    p.Vx = EnSimple(std::fabs(suivant.X - p.X) / p.Duree);
    p.Vy = EnSimple(std::fabs(suivant.Y - p.Y) / p.Duree);
}

// A rapid segment is brought down to what its axes can do, each carriage by itself.
void LimiterRapide(PointProfil& p, float vmax) {
    if (!p.Rapide || (p.Vx <= vmax && p.Vy <= vmax)) return;
    float& grande = p.Vx <= p.Vy ? p.Vy : p.Vx;
    float& autre = p.Vx <= p.Vy ? p.Vx : p.Vy;
    p.Duree = EnSimple(double{grande} * p.Duree / vmax);
    autre = EnSimple(double{vmax} * autre / grande);
    grande = vmax;
    p.Vitesse = EnSimple(std::sqrt(double{p.Vx} * p.Vx + double{p.Vy} * p.Vy));
}

PointProfil Projeter(const PointProfil& modele, double x, double y, double z) {
    PointProfil p = modele;
    p.X = x;
    p.Y = y;
    p.Z = z;
    return p;
}

void ArreterDernier(PointProfil& p) {
    p.Vitesse = p.Vx = p.Vy = 0;
    p.Duree = 0;
}

[[noreturn]] void RefuserDivision(TexteProgramme raison) {
    throw FauteProcedureD4X(NumeroErreur::DivisionParZero, Texte(raison), "CalculerDecoupeD4X");
}

} // namespace

ProjectionFil ProjectionDuFil(const TableMachine& table, float ZSaumon, float ecartement) {
    return {double{table.EcartementY1Y2} - ZSaumon, double{ZSaumon} + ecartement, ecartement};
}

void CalculerVitessesEtChariotsD4X(const ContexteD4X& contexte, DecoupeD4X& decoupe) {
    const TableMachine& table = contexte.Table;
    PaireD4X& bloc = decoupe.PaireBloc;
    PaireD4X& chariots = decoupe.PaireChariots;
    if (bloc.Ecartement == 0) RefuserDivision(TexteProgramme::Decoupe4axesSansEcartement);
    if (!(contexte.Matiere.Vitesse > 0)) RefuserDivision(TexteProgramme::Decoupe4axesSansVitesse);
    const ProjectionFil fil = ProjectionDuFil(table, contexte.Parametres.ZSaumon, bloc.Ecartement);
    const std::size_t nombre = bloc.E.size();
    chariots.Ecartement = table.EcartementY1Y2;
    chariots.E.resize(nombre);
    chariots.S.resize(nombre);
    const auto projeter = [&](std::size_t i) {
        const PointProfil& e = bloc.E[i];
        const PointProfil& s = bloc.S[i];
        chariots.E[i] = Projeter(e, fil.Chariot2(s.X, e.X), fil.Chariot2(s.Y, e.Y), table.EcartementY1Y2);
        chariots.S[i] = Projeter(s, fil.Chariot1(s.X, e.X), fil.Chariot1(s.Y, e.Y), 0);
    };
    if (nombre == 0) return;
    projeter(0);
    for (std::size_t i = 0; i + 1 < nombre; ++i) {
        PointProfil& e = bloc.E[i];
        PointProfil& s = bloc.S[i];
        const float LE = LongueurSegment(e, bloc.E[i + 1]);
        const float LS = LongueurSegment(s, bloc.S[i + 1]);
        const Segment segment = {LE, LS, RapportDesCotes(LE, LS)};
        // Only side E tells whether the segment is rapid.
        VitessesAuBloc(segment, e.Rapide ? table.VitesseRapide : contexte.Matiere.Vitesse, e, s);
        projeter(i + 1);
        PointProfil& p2 = chariots.E[i];
        PointProfil& p1 = chariots.S[i];
        p2.Duree = e.Duree;
        p1.Duree = s.Duree;
        VitessesDesChariots(segment, e, s, LongueurSegment(p2, chariots.E[i + 1]),
                            LongueurSegment(p1, chariots.S[i + 1]), p2, p1);
        VitessesDesAxes(p2, chariots.E[i + 1]);
        VitessesDesAxes(p1, chariots.S[i + 1]);
        LimiterRapide(p2, table.VmaxAvecAccXY);
        LimiterRapide(p1, table.VmaxAvecAccXY);
    }
    for (PaireD4X* paire : {&bloc, &chariots}) {
        ArreterDernier(paire->E.back());
        ArreterDernier(paire->S.back());
    }
    decoupe.bornesChariots = LimitesSequencesD4X(chariots);
}

} // namespace tessarel
