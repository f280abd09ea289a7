// What both kerf offsets share: the box of points that are one, and the dimension of the lowest point.
#include "cut4x/decalage4x.h"

#include "app/texts/textes.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"

#include <cmath>

namespace tessarel {

namespace {

CoteBasse CoteDuPlusBas(const std::vector<PointProfil>& points, float decalage, bool variable, float cale) {
    CoteBasse cote;
    if (points.empty()) return cote;
    const PointProfil* bas = &points.front();
    for (const PointProfil& p : points)
        if (EnSimple(p.Y) < EnSimple(bas->Y)) bas = &p;
    const double o = std::fabs(variable ? bas->Decalage : decalage);
    cote.haut = {bas->X, bas->Y - o, bas->Z};
    cote.bas = {bas->X, cale, bas->Z};
    return cote;
}

} // namespace

void DirePointsConfondus(std::size_t i, std::size_t j, CoteProfil cote) {
    const int rangee = cote == CoteProfil::Emplanture ? 130 : 131;
    AfficherCritique(TextesMessages(129) + std::to_string(i) + TitresMessages(129) + std::to_string(j) +
                         TextesMessages(rangee),
                     TitresMessages(rangee));
}

void CalculerCotesBasses(const ParametresDecoupe4axes& parametres, DecalagesSimples decalages, bool variable,
                         DecoupeD4X& decoupe) {
    decoupe.coteE = CoteDuPlusBas(decoupe.PaireBloc.E, decalages.E, variable, parametres.OffsetBlocY);
    decoupe.coteS = CoteDuPlusBas(decoupe.PaireBloc.S, decalages.S, variable, parametres.OffsetBlocY);
}

} // namespace tessarel
