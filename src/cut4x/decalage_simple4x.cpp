// The simple offset: one value per side, shifted segments joined where their lines cross.
#include "cut4x/decalage4x.h"
#include "cut4x/mesures_segments.h"
#include "cut4x/saignee.h"

#include "paths/geometrie.h"

#include <cmath>

namespace tessarel {

namespace {

// Lengths of both sides, added up in 32 bits; the count is that of side E.
struct Longueurs {
    float E = 0;
    float S = 0;
};
Longueurs LongueursDesCotes(const PaireD4X& paire) {
    Longueurs longueurs;
    for (std::size_t i = 1; i < paire.E.size(); ++i) {
        longueurs.E = EnSimple(double{longueurs.E} + LongueurSegment(paire.E[i - 1], paire.E[i]));
        longueurs.S = EnSimple(double{longueurs.S} + LongueurSegment(paire.S[i - 1], paire.S[i]));
    }
    return longueurs;
}

struct SegmentDecale {
    double x0 = 0, y0 = 0, x1 = 0, y1 = 0;
};

// The segment moved by `decalage`; one between two points without offset stays on the design line.
SegmentDecale DecalerSegment(const PointProfil& p, const PointProfil& q, float longueur, float decalage) {
    if ((p.Drapeaux & q.Drapeaux & DrapeauSansDecalage) != 0) return {p.X, p.Y, q.X, q.Y};
    const double vx = double{decalage} * EnSimple((q.Y - p.Y) / longueur);
    const double vy = double{decalage} * EnSimple((p.X - q.X) / longueur);
    return {p.X + vx, p.Y + vy, q.X + vx, q.Y + vy};
}

PointProfil Sommet(double x, double y) {
    PointProfil p;
    p.X = x;
    p.Y = y;
    return p;
}

// Where the lines of two neighbours cross, in 32 bits, on the segments or far beyond: a mitre has no limit.
PointProfil Raccord(const SegmentDecale& avant, const SegmentDecale& apres) {
    float x = 0;
    float y = 0;
    const Croisement croisement = IntersectionSegments(
        EnSimple(avant.x0), EnSimple(avant.y0), EnSimple(avant.x1), EnSimple(avant.y1), EnSimple(apres.x0),
        EnSimple(apres.y0), EnSimple(apres.x1), EnSimple(apres.y1), x, y);
    if (croisement == Croisement::Parallele)
        return Sommet((avant.x1 + apres.x0) / 2, (avant.y1 + apres.y0) / 2);
    return Sommet(x, y);
}

// Deliberate: Z of the positioned pair, but flags of the stored one, of the same name even when the cut is
// mirrored. Taking those of the mirrored side would move the stops of every project cut as a mirror image.
void RendreZetDrapeaux(std::vector<PointProfil>& chemin, double z,
                       const std::vector<PointProfil>& enregistres) {
    for (std::size_t i = 0; i < chemin.size(); ++i) {
        chemin[i].Z = z;
        chemin[i].Drapeaux = enregistres[i].Drapeaux;
    }
}

} // namespace

DecalagesSimples DecalageSimple(const ContexteD4X& contexte, DecoupeD4X& decoupe) {
    const ValeursDecoupe& matiere = contexte.Matiere;
    const double signe = contexte.Parametres.CoteDecalage == CoteDecalageD4X::Gauche ? -1 : 1;
    const auto [LE, LS] = LongueursDesCotes(decoupe.PaireBloc);
    const float pleine = DecalagePleineVitesse(signe, matiere);
    DecalagesSimples decalages = {pleine, pleine};
    if (LE < LS)
        decalages.E = DecalageCoteLent(signe, EnSimple(double{LE} * matiere.Vitesse / LS), matiere);
    else
        decalages.S = DecalageCoteLent(signe, EnSimple(double{LS} * matiere.Vitesse / LE), matiere);

    PaireD4X& paire = decoupe.PaireBloc;
    std::vector<PointProfil>& tampon = decoupe.tampons.chemin;
    decoupe.DecoupePossible =
        DecalerTrajectoireD4Xsimple(decalages.E, paire.E, CoteProfil::Emplanture, tampon) &&
        DecalerTrajectoireD4Xsimple(decalages.S, paire.S, CoteProfil::Saumon, tampon);
    if (!decoupe.DecoupePossible) return decalages;
    RendreZetDrapeaux(paire.E, decoupe.PairePositionnee.E.Points.front().Z, contexte.Projet.E.Points);
    RendreZetDrapeaux(paire.S, decoupe.PairePositionnee.S.Points.front().Z, contexte.Projet.S.Points);
    CalculerCotesBasses(contexte.Parametres, decalages, false, decoupe);
    return decalages;
}

bool DecalerTrajectoireD4Xsimple(float decalage, std::vector<PointProfil>& chemin, CoteProfil cote,
                                 std::vector<PointProfil>& tampon) {
    if (decalage == 0 || chemin.size() < 2) return true;
    tampon.clear();
    SegmentDecale avant;
    for (std::size_t i = 0; i + 1 < chemin.size(); ++i) {
        const PointProfil& p = chemin[i];
        const PointProfil& q = chemin[i + 1];
        const float longueur = LongueurSegment(p, q);
        if ((EnSimple(std::fabs(q.X - p.X)) < DistanceConfondus &&
             EnSimple(std::fabs(q.Y - p.Y)) < DistanceConfondus) ||
            longueur < DistanceConfondus) {
            DirePointsConfondus(i + 1, i + 2, cote);
            return false;
        }
        const SegmentDecale segment = DecalerSegment(p, q, longueur, decalage);
        tampon.push_back(i == 0 ? Sommet(segment.x0, segment.y0) : Raccord(avant, segment));
        avant = segment;
    }
    tampon.push_back(Sommet(avant.x1, avant.y1));
    chemin.swap(tampon);
    return true;
}

} // namespace tessarel
