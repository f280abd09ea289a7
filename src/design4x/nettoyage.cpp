// Cleaning of the profiles, total and synchronous.
#include "nettoyage.h"

#include "app/texts/textes.h"
#include "paths/geometrie.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"

namespace tessarel {

namespace {

constexpr int MessagesConserverSynchrones = 26;
constexpr int MessagesNombresDifferents = 27;
constexpr auto EffacerConserve = static_cast<std::uint16_t>(~DrapeauConserve);

void NettoyerProfil(std::vector<PointProfil>& points, float distNettoyage) {
    std::vector<PointSimple> simples(points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        simples[i].X = EnSimple(points[i].X);
        simples[i].Y = EnSimple(points[i].Y);
    }
    ReductionPointsAlignes(simples, distNettoyage);
    points.resize(simples.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        points[i].X = simples[i].X;
        points[i].Y = simples[i].Y;
    }
}

} // namespace

void NettoyageTotal(ProjetCPX& projet, float distNettoyage) {
    NettoyerProfil(projet.E.Points, distNettoyage);
    NettoyerProfil(projet.S.Points, distNettoyage);
}

bool NettoyageSynchrone(ProjetCPX& projet) {
    std::vector<PointProfil>& e = projet.E.Points;
    std::vector<PointProfil>& s = projet.S.Points;
    if (e.size() != s.size()) {
        AfficherCritique(TextesMessages(MessagesNombresDifferents),
                         TitresMessages(MessagesNombresDifferents));
        return false;
    }
    MarquerPointsConserves(e, ToleranceNettoyageSynchrone);
    MarquerPointsConserves(s, ToleranceNettoyageSynchrone);
    std::size_t gardes = 0;
    for (std::size_t i = 0; i < e.size(); ++i) {
        if (((e[i].Drapeaux | s[i].Drapeaux) & DrapeauConserve) == 0) continue;
        e[gardes] = e[i];
        s[gardes] = s[i];
        e[gardes].Drapeaux &= EffacerConserve;
        s[gardes].Drapeaux &= EffacerConserve;
        ++gardes;
    }
    e.resize(gardes);
    s.resize(gardes);
    return true;
}

void cmdNettoyage(ProjetCPX& projet, float distNettoyage) {
    CalculerExtremesCPX(projet);
    const bool synchrone = projet.E.Points.size() == projet.S.Points.size() &&
                           DemanderOuiNon(TextesMessages(MessagesConserverSynchrones),
                                          TitresMessages(MessagesConserverSynchrones));
    if (synchrone) {
        NettoyageSynchrone(projet);
    } else {
        NettoyageTotal(projet, distNettoyage);
    }
    CalculerExtremesCPX(projet);
}

} // namespace tessarel
