// Mirror and placing of the pair.
#include "cut4x/placement4x.h"

#include "platform/nombres.h"

#include <algorithm>
#include <utility>

namespace tessarel {

namespace {

void DeplacerProfil(std::vector<PointProfil>& points, double dx, double dy, double apresX, double apresY,
                    double z) {
    for (PointProfil& p : points) {
        p.X = p.X - dx + apresX;
        p.Y = p.Y - dy + apresY;
        p.Z = z;
    }
}

} // namespace

FaceBloc FaceDuBloc(const std::array<PointEspace, 5>& contour) {
    // Foot left, foot right, top right, top left, foot left again.
    return {contour[0].X, contour[1].X, contour[0].Y, contour[2].Y};
}

void SymetriserPaire(ProjetCPX& paire) {
    // The height difference before the exchange: the foot of the block stays where it is.
    paire.DistProfilDessousE = EnSimple(double{paire.DistProfilDessousE} + paire.DiedreMm);
    std::swap(paire.E.Points, paire.S.Points);
    std::swap(paire.E.MargeBa, paire.S.MargeBa);
    std::swap(paire.E.MargeBf, paire.S.MargeBf);
}

void PlacerProfilsSurBloc(const ParametresDecoupe4axes& parametres, DecoupeD4X& decoupe) {
    ProjetCPX& paire = decoupe.PairePositionnee;
    // The outlines are those of the stored pair: one foot for both faces, and the lesser end of the two,
    // whichever side they are called by.
    const double bas = FaceDuBloc(paire.E.Bloc).Ybas;
    const double gauche = std::min(FaceDuBloc(paire.E.Bloc).Xbf, FaceDuBloc(paire.S.Bloc).Xbf);
    DeplacerProfil(paire.E.Points, gauche, bas, parametres.OffsetBlocX, parametres.OffsetBlocY,
                   parametres.ZEmplanture);
    DeplacerProfil(paire.S.Points, gauche, bas, parametres.OffsetBlocX, parametres.OffsetBlocY,
                   parametres.ZSaumon);
    CalculerExtremesCPX(paire);
    decoupe.blocE = FaceDuBloc(paire.E.Bloc);
    decoupe.blocS = FaceDuBloc(paire.S.Bloc);
}

} // namespace tessarel
