// Made-up paths: squaring and guillotine.
#include "cut4x/outils_bloc4x.h"
#include "cut4x/mesures_segments.h"

#include <cmath>

namespace tessarel {

namespace {

PointProfil Point(double x, double y, double z) {
    PointProfil p;
    p.X = x;
    p.Y = y;
    p.Z = z;
    return p;
}

// Down and up along the trailing edge, across, down and up along the leading edge.
void TracerDressage(std::vector<PointProfil>& chemin, double xBf, double xBa, double y, double z,
                    bool retourRapide) {
    chemin.assign({Point(xBf, y, z), Point(xBf, 0, z), Point(xBf, y, z), Point(xBa, y, z), Point(xBa, 0, z),
                   Point(xBa, y, z)});
    chemin[2].Rapide = retourRapide;
}

void TracerGuillotine(std::vector<PointProfil>& chemin, const ContexteD4X& contexte, double z) {
    const ParametresDecoupe4axes& parametres = contexte.Parametres;
    const double angle = parametres.angleGuillotine;
    const double x = std::tan(PiD4X / 2 - angle * PiD4X / 180) * parametres.hauteurGuillotine;
    const double rangement = contexte.Table.DistanceRangementFilSousOrigine;
    PointProfil origine = Point(0, 0, z);
    const PointProfil retour = origine;
    origine.Rapide = parametres.chkMonteeRapide;
    PointProfil bout = Point(x, parametres.hauteurGuillotine, z);
    bout.Drapeaux = DrapeauArret;
    chemin.assign({origine, bout, retour});
    if (rangement == 0) return;
    const PointProfil parking = Point(0, -std::fabs(rangement), z);
    chemin.insert(chemin.begin(), parking);
    chemin.push_back(parking);
}

void RemettreProfil(DecoupeD4X& decoupe) {
    decoupe.premierProfil = 0;
    decoupe.nombreProfil = 0;
    decoupe.coteE = {};
    decoupe.coteS = {};
}

} // namespace

void CalculerDressageD4X(const ContexteD4X& contexte, DecoupeD4X& decoupe) {
    const ParametresDecoupe4axes& parametres = contexte.Parametres;
    const double w = double{contexte.Matiere.SaigneeVD} / 2;
    // One height for both sides, that of side E.
    const double y = parametres.chkSurfacer
                         ? decoupe.blocE.Yhaut + w
                         : decoupe.blocE.Yhaut + parametres.EpaisseurLests + contexte.Table.MargeFilBloc;
    // Without room before the block the wire runs along its end.
    const double recul = parametres.OffsetBlocX > w ? w : 0;
    const auto tracer = [&](std::vector<PointProfil>& chemin, const FaceBloc& bloc, double z) {
        TracerDressage(chemin, bloc.Xbf - recul, bloc.Xba + w, y, z, !parametres.chkSurfacer);
    };
    tracer(decoupe.PaireBloc.E, decoupe.blocE, parametres.ZEmplanture);
    tracer(decoupe.PaireBloc.S, decoupe.blocS, parametres.ZSaumon);
    RemettreProfil(decoupe);
}

void CalculerGuillotineD4X(const ContexteD4X& contexte, double zE, double zS, DecoupeD4X& decoupe) {
    TracerGuillotine(decoupe.PaireBloc.E, contexte, zE);
    TracerGuillotine(decoupe.PaireBloc.S, contexte, zS);
    RemettreProfil(decoupe);
}

} // namespace tessarel
