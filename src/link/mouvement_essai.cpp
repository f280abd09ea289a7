// The part of a move that was done.
#include "mouvement_essai.h"

#include "platform/nombres.h"

#include <algorithm>

namespace tessarel {

PasAxes PasFaits(const ResultatMouvement& mouvement, const PasAxes& pas) {
    const ResultatMarche& marche = mouvement.marche;
    if (marche.fin == FinMarche::StopAvantMouvement || marche.fin == FinMarche::Impossible) return {};
    if (marche.fin == FinMarche::Finie && marche.statut.FinDeListe) return pas;
    const double nbrt = mouvement.NBRt;
    if (nbrt <= 0) return {};
    const double fait = std::clamp((nbrt - marche.statut.TicksRestants - 1) / nbrt, 0.0, 1.0);
    PasAxes faits = {};
    for (std::size_t axe = 0; axe < faits.size(); ++axe) faits[axe] = ArrondiLong(pas[axe] * fait);
    return faits;
}

} // namespace tessarel
