// The variable offset: each segment shifted by half its own kerf, short links at the corners.
//
//                     u(i)            A = by how much the end of segment i grows along u(i)
//      ──────────────────►·  link     B = by how much the start of segment i+1 grows back along u(i+1)
//         segment i        ·          θ = corner from segment i to segment i+1, π when straight on
//                           ▲ u(i+1)
//                           │         The two neighbours have offsets of their own, so that their shifted
//                           │         lines do not meet where a mitre would: a link joins the two ends.
#include "cut4x/decalage4x.h"
#include "cut4x/fautes_d4x.h"
#include "cut4x/mesures_segments.h"
#include "cut4x/saignee.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "platform/dialogue.h"

#include <cmath>

namespace tessarel {

namespace {

// Angles this near to 0 or to a full turn are a turn straight back.
constexpr double ToleranceAngle = 0.0001;
constexpr double AngleMaximal = 6.28328530717958; // 2π and that tolerance
// Ends that still coincide are pulled apart by this along their segments (mm), so that every corner keeps a
// link with a direction.
constexpr double EcartLien = 0.0005;
constexpr Masque MasqueAngle = "###0.0##";

bool Confondus(double x1, double y1, double x2, double y2) {
    return EnSimple(std::fabs(x2 - x1)) < DistanceConfondus &&
           EnSimple(std::fabs(y2 - y1)) < DistanceConfondus;
}

// Deliberate: the box names the root for either side; users and support read the point numbers, which hold.
bool ProfilSansPointsConfondus(const std::vector<PointProfil>& points) {
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (!Confondus(points[i - 1].X, points[i - 1].Y, points[i].X, points[i].Y)) continue;
        DirePointsConfondus(i, i + 1, CoteProfil::Emplanture);
        return false;
    }
    return true;
}

void SupprimerDecalage(PointProfil& debut, const PointProfil& fin) {
    if ((debut.Drapeaux & fin.Drapeaux & DrapeauSansDecalage) != 0) debut.Decalage = 0;
}

// Decalage of the first point of each segment, both sides; the longer one runs at the cutting speed.
bool DefinirDecalages(PaireD4X& paire, double signe, const ValeursDecoupe& matiere) {
    const float pleine = DecalagePleineVitesse(signe, matiere);
    for (std::size_t i = 1; i < paire.E.size(); ++i) {
        PointProfil& e = paire.E[i - 1];
        PointProfil& s = paire.S[i - 1];
        const float L1 = LongueurSegment(e, paire.E[i]);
        const float L2 = LongueurSegment(s, paire.S[i]);
        if (L1 < DistanceConfondus || L2 < DistanceConfondus) {
            DirePointsConfondus(i, i + 1,
                                L1 < DistanceConfondus ? CoteProfil::Emplanture : CoteProfil::Saumon);
            return false;
        }
        e.Decalage = s.Decalage = pleine;
        if (L1 >= L2)
            s.Decalage = DecalageCoteLent(signe, EnSimple(double{matiere.Vitesse} * L2 / L1), matiere);
        else
            e.Decalage = DecalageCoteLent(signe, EnSimple(double{matiere.Vitesse} * L1 / L2), matiere);
        SupprimerDecalage(e, paire.E[i]);
        SupprimerDecalage(s, paire.S[i]);
    }
    return true;
}

// A segment of the source, and where its shifted twin runs.
struct SegmentDecalage {
    double X1 = 0, Y1 = 0, X2 = 0, Y2 = 0; // of the shifted segment
    double K = 0;                          // signed offset, mm
    double ux = 0, uy = 0;                 // direction of the source
    float angle = 0;                       // the same in radians
};

SegmentDecalage DecalerSegment(const PointProfil& p, const PointProfil& q) {
    SegmentDecalage segment;
    const double d = LongueurSegment(p, q);
    segment.K = p.Decalage;
    segment.ux = (q.X - p.X) / d;
    segment.uy = (q.Y - p.Y) / d;
    segment.angle = DirectionVecteur(p.X, p.Y, q.X, q.Y);
    const double nx = (q.Y - p.Y) / d;
    const double ny = (p.X - q.X) / d;
    segment.X1 = p.X - segment.K * nx;
    segment.Y1 = p.Y - segment.K * ny;
    segment.X2 = q.X - segment.K * nx;
    segment.Y2 = q.Y - segment.K * ny;
    return segment;
}

void TraiterCoin(SegmentDecalage& avant, SegmentDecalage& apres, Prolongements& prolongements) {
    prolongements = ProlongementsCoin(AngleCoin(avant.angle, apres.angle), avant.K, apres.K, prolongements);
    avant.X2 += prolongements.A * avant.ux;
    avant.Y2 += prolongements.A * avant.uy;
    apres.X1 -= prolongements.B * apres.ux;
    apres.Y1 -= prolongements.B * apres.uy;
    if (!Confondus(avant.X2, avant.Y2, apres.X1, apres.Y1)) return;
    avant.X2 -= EcartLien * avant.ux;
    avant.Y2 -= EcartLien * avant.uy;
    apres.X1 += EcartLien * apres.ux;
    apres.Y1 += EcartLien * apres.uy;
}

void AjouterSegment(std::vector<PointProfil>& chemin, const SegmentDecalage& segment) {
    PointProfil p;
    p.Decalage = EnSimple(segment.K);
    p.X = segment.X1;
    p.Y = segment.Y1;
    chemin.push_back(p);
    p.X = segment.X2;
    p.Y = segment.Y2;
    chemin.push_back(p);
}

// Flags of the stored pair, whose side keeps its name even when the cut is mirrored (deliberate, as in the
// simple offset): the end of the segment that arrives at an old point takes those of that point. Deliberate
// too: with a kerf of 0 the path was not doubled and has no such index; that breakdown is how users learn
// that the kerf of their material is missing.
void RendreDrapeaux(std::vector<PointProfil>& chemin, const std::vector<PointProfil>& enregistres) {
    chemin.front().Drapeaux = enregistres.front().Drapeaux;
    for (std::size_t i = 1; i < enregistres.size(); ++i) {
        if (2 * i - 1 >= chemin.size())
            throw FauteProcedureD4X(NumeroErreur::IndiceHorsBornes,
                                    TexteRempli(TexteProgramme::IndiceHorsBornes,
                                                {std::to_string(2 * i), std::to_string(chemin.size())}),
                                    "DecalageVariable");
        chemin[2 * i - 1].Drapeaux = enregistres[i].Drapeaux;
    }
}

} // namespace

double AngleCoin(float a1, float a2) {
    double theta = PiD4X - a1 + a2;
    if (theta > DeuxPiD4X) theta = -PiD4X - a1 + a2;
    if (theta < 0) theta += DeuxPiD4X;
    // Directions in 32 bits put a turn straight back on either side of 0; from the far side it would grow a
    // mitre of any length.
    if (theta <= ToleranceAngle || theta >= DeuxPiD4X - ToleranceAngle) return 0;
    return theta;
}

Prolongements ProlongementsCoin(double theta, double ki, double kj, const Prolongements& precedent) {
    const double q = theta / (PiD4X / 2);
    const double r = 1 - q;
    if (theta >= -ToleranceAngle && theta <= PiD4X / 4) return {r * kj + q * ki, r * ki + q * kj};
    // The rows do not meet at π/2: settled, and not to be smoothed.
    if (theta > PiD4X / 4 && theta <= PiD4X / 2) {
        const double s = 2 - theta / (PiD4X / 4);
        return {r * kj + q * ki, (kj + ki) * (s * 0.5)};
    }
    if (theta > PiD4X / 2 && theta <= PiD4X) {
        const double t = 1 - theta / PiD4X;
        return {t * ki, t * kj};
    }
    if (theta > PiD4X && theta <= AngleMaximal) {
        const double tangente = std::tan(PiD4X - theta / 2);
        Prolongements p = {-ki / tangente, -kj / tangente};
        if (theta > 3 * PiD4X / 2) {
            if (ki > kj) p.B = (p.A + p.B) / 2;
            if (ki < kj) p.A = (p.A + p.B) / 2;
        }
        return p;
    }
    AfficherCritique(TextesMessages(132) + FormaterNombre(theta * 180 / PiD4X, MasqueAngle) + "°",
                     TitresMessages(132));
    return precedent;
}

void DecalerTrajectoireD4Xvariable(float SaigneeVD, std::vector<PointProfil>& chemin,
                                   std::vector<PointProfil>& tampon) {
    if (SaigneeVD == 0 || chemin.size() < 2) return;
    tampon.clear();
    tampon.reserve(2 * (chemin.size() - 1));
    Prolongements prolongements;
    SegmentDecalage avant = DecalerSegment(chemin[0], chemin[1]);
    for (std::size_t i = 1; i + 1 < chemin.size(); ++i) {
        SegmentDecalage apres = DecalerSegment(chemin[i], chemin[i + 1]);
        TraiterCoin(avant, apres, prolongements);
        AjouterSegment(tampon, avant);
        avant = apres;
    }
    AjouterSegment(tampon, avant);
    chemin.swap(tampon);
}

void DecalageVariable(const ContexteD4X& contexte, DecoupeD4X& decoupe) {
    const double signe = contexte.Parametres.CoteDecalage == CoteDecalageD4X::Gauche ? 1 : -1;
    PaireD4X& paire = decoupe.PaireBloc;
    decoupe.DecoupePossible = ProfilSansPointsConfondus(paire.E) && ProfilSansPointsConfondus(paire.S) &&
                              DefinirDecalages(paire, signe, contexte.Matiere);
    if (!decoupe.DecoupePossible) return;
    std::vector<PointProfil>& tampon = decoupe.tampons.chemin;
    DecalerTrajectoireD4Xvariable(contexte.Matiere.SaigneeVD, paire.E, tampon);
    DecalerTrajectoireD4Xvariable(contexte.Matiere.SaigneeVD, paire.S, tampon);
    for (PointProfil& p : paire.E) p.Z = decoupe.PairePositionnee.E.Points.front().Z;
    for (PointProfil& p : paire.S) p.Z = decoupe.PairePositionnee.S.Points.front().Z;
    RendreDrapeaux(paire.E, contexte.Projet.E.Points);
    RendreDrapeaux(paire.S, contexte.Projet.S.Points);
    CalculerCotesBasses(contexte.Parametres, {}, true, decoupe);
}

} // namespace tessarel
