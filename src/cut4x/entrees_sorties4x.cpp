// Entry and exit lists of a 4-axis cut.
#include "cut4x/entrees_sorties4x.h"
#include "cut4x/mesures_segments.h"

#include <algorithm>
#include <cmath>

namespace tessarel {

namespace {

// First and last moves are rapid from this X offset of the block on (mm).
constexpr float OffsetXRapide = 1;
// A horizontal approach slows down this far before the block, where there is that much room (mm).
constexpr double RecueilAvantBloc = 5;
constexpr double XbfPourRecueil = 6;
// An approach along a segment needs a margin above this (mm) and a slope up to this (radians, 70 degrees).
constexpr float MargeMinimale = 0.1F;
constexpr double PenteMaximale = 1.222;

struct Plan {
    const ContexteD4X& contexte;
    const DecoupeD4X& decoupe;
    HauteurDegagement degagement;
    double parking = 0;      // Y of the parking place
    bool bordRapide = false; // the moves between parking place and block are rapid
};

// One side as an entry or an exit sees it.
struct CoteTrajet {
    const std::vector<PointProfil>& chemin;
    const FaceBloc& bloc;
    double z = 0;
};

PointProfil Point(double x, double y, double z, bool rapide) {
    PointProfil p;
    p.X = x;
    p.Y = y;
    p.Z = z;
    p.Rapide = rapide;
    return p;
}

double Xecart(double Xbf) {
    return Xbf >= XbfPourRecueil ? Xbf - RecueilAvantBloc : 0;
}

double XDerriereBloc(const Plan& plan, const FaceBloc& bloc) {
    const TableMachine& table = plan.contexte.Table;
    return std::min<double>(table.CourseX, double{table.MargeFilBloc} + bloc.Xba);
}

// Slope of the first segment, that an approach or return by the trailing edge follows; negative where the
// segment doesn't run forwards and upwards.
float PentePremierSegment(const std::vector<PointProfil>& chemin) {
    if (chemin.size() < 2) return -1;
    const PointProfil& p = chemin[0];
    const PointProfil& q = chemin[1];
    if (!(q.X > p.X && q.Y >= p.Y)) return -1;
    return DirectionVecteur(p.X, p.Y, q.X, q.Y);
}

// The same of the last one, which must run backwards and upwards.
float PenteDernierSegment(const std::vector<PointProfil>& chemin) {
    if (chemin.size() < 2) return -1;
    const PointProfil& p = chemin[chemin.size() - 2];
    const PointProfil& q = chemin.back();
    if (!(q.X < p.X && q.Y >= p.Y)) return -1;
    return EnSimple(std::atan((q.Y - p.Y) / (p.X - q.X)));
}

bool PentePermise(float pente) {
    return pente >= 0 && pente <= PenteMaximale;
}

// By how much Y changes from the trailing edge to `x` along the slope that the type follows, per side;
// `possible` is false when the segments of either side don't allow it.
struct Pentes {
    bool possible = true;
    float E = 0;
    float S = 0;
};
Pentes PentesDuType(TypeApprocheD4X type, const DecoupeD4X& decoupe) {
    Pentes pentes;
    if (type == TypeApprocheD4X::Horizontale) return pentes;
    const auto pente = type == TypeApprocheD4X::PremierSegment ? PentePremierSegment : PenteDernierSegment;
    pentes.E = pente(decoupe.PaireBloc.E);
    pentes.S = pente(decoupe.PaireBloc.S);
    pentes.possible = decoupe.PairePositionnee.E.MargeBf > MargeMinimale &&
                      decoupe.PairePositionnee.S.MargeBf > MargeMinimale && PentePermise(pentes.E) &&
                      PentePermise(pentes.S);
    return pentes;
}

// Y of A, B and C for the end `bout` of the path.
double YHorsDuBloc(TypeApprocheD4X type, const PointProfil& bout, double Xbf, float pente) {
    const double montee = (bout.X - Xbf) * std::tan(static_cast<double>(pente));
    switch (type) {
    case TypeApprocheD4X::PremierSegment:
        return bout.Y - montee;
    case TypeApprocheD4X::DernierSegment:
        return montee + bout.Y;
    case TypeApprocheD4X::Horizontale:
        break;
    }
    return bout.Y;
}

// A at X = 0, B short of the block, C at the block. Deliberate: where the segments allow no such line the
// three stay at the origin, and the wire goes there and straight to the profile.
struct PointsBordDeFuite {
    PointProfil A, B, C;
};
PointsBordDeFuite PointsParBordDeFuite(TypeApprocheD4X type, const CoteTrajet& cote, const PointProfil& bout,
                                       const Pentes& pentes, float pente) {
    PointsBordDeFuite points = {Point(0, 0, cote.z, false), Point(0, 0, cote.z, false),
                                Point(0, 0, cote.z, false)};
    if (!pentes.possible) return points;
    const double y = YHorsDuBloc(type, bout, cote.bloc.Xbf, pente);
    points.A.Y = y;
    points.B = Point(Xecart(cote.bloc.Xbf), y, cote.z, false);
    if (type == TypeApprocheD4X::Horizontale)
        points.C = Point(bout.X, bout.Y, cote.z, false);
    else
        points.C = Point(cote.bloc.Xbf, y, cote.z, false);
    return points;
}

using Liste = std::array<PointProfil, PointsEntreeSortie>;

Liste EntreeParBordDeFuite(const Plan& plan, const CoteTrajet& cote, const Pentes& pentes, float pente) {
    const ParametresDecoupe4axes& parametres = plan.contexte.Parametres;
    const PointProfil& premier = cote.chemin.front();
    PointsBordDeFuite p = PointsParBordDeFuite(parametres.TypeApprocheBF, cote, premier, pentes, pente);
    p.A.Rapide = parametres.chkBlocDresse &&
                 (plan.decoupe.blocS.Xbf >= XbfPourRecueil || plan.decoupe.blocE.Xbf >= XbfPourRecueil);
    return {Point(0, plan.parking, cote.z, plan.bordRapide), p.A, p.B, p.C,
            Point(premier.X, premier.Y, cote.z, false)};
}

Liste SortieParBordDeFuite(const Plan& plan, const CoteTrajet& cote, const Pentes& pentes, float pente) {
    const ParametresDecoupe4axes& parametres = plan.contexte.Parametres;
    const PointProfil& dernier = cote.chemin.back();
    PointsBordDeFuite p = PointsParBordDeFuite(parametres.TypeRetourBF, cote, dernier, pentes, pente);
    p.B.Rapide = parametres.chkBlocDresse && cote.bloc.Xbf >= XbfPourRecueil;
    p.A.Rapide = plan.bordRapide;
    return {Point(dernier.X, dernier.Y, cote.z, false), p.C, p.B, p.A, Point(0, plan.parking, cote.z, false)};
}

Liste EntreeParDessus(const Plan& plan, const CoteTrajet& cote) {
    const PointProfil& premier = cote.chemin.front();
    const PointProfil haut = Point(0, plan.degagement.Yhaut, cote.z, !plan.degagement.limitee);
    return {Point(0, plan.parking, cote.z, plan.bordRapide), haut, haut,
            Point(premier.X, plan.degagement.Yhaut, cote.z, false),
            Point(premier.X, premier.Y, cote.z, false)};
}

Liste SortieVersLeHaut(const Plan& plan, const CoteTrajet& cote) {
    const PointProfil& dernier = cote.chemin.back();
    const PointProfil haut = Point(dernier.X, plan.degagement.Yhaut, cote.z, !plan.degagement.limitee);
    return {Point(dernier.X, dernier.Y, cote.z, false), haut, haut,
            Point(0, plan.degagement.Yhaut, cote.z, plan.bordRapide), Point(0, plan.parking, cote.z, false)};
}

Liste EntreeParBordDAttaque(const Plan& plan, const CoteTrajet& cote) {
    const PointProfil& premier = cote.chemin.front();
    const double x = XDerriereBloc(plan, cote.bloc);
    const double y = plan.degagement.Yhaut;
    return {Point(0, plan.parking, cote.z, plan.bordRapide), Point(0, y, cote.z, !plan.degagement.limitee),
            Point(x, y, cote.z, plan.contexte.Parametres.chkBlocDresse), Point(x, premier.Y, cote.z, false),
            Point(premier.X, premier.Y, cote.z, false)};
}

Liste SortieParBordDAttaque(const Plan& plan, const CoteTrajet& cote) {
    const PointProfil& dernier = cote.chemin.back();
    const double x = XDerriereBloc(plan, cote.bloc);
    const double y = plan.degagement.Yhaut;
    return {Point(dernier.X, dernier.Y, cote.z, false),
            Point(x, dernier.Y, cote.z, plan.contexte.Parametres.chkBlocDresse),
            Point(x, y, cote.z, !plan.degagement.limitee), Point(0, y, cote.z, plan.bordRapide),
            Point(0, plan.parking, cote.z, false)};
}

Liste Entree(const Plan& plan, const CoteTrajet& cote, const Pentes& pentes, float pente) {
    switch (plan.contexte.Parametres.TypeEntree) {
    case TypeEntreeD4X::Dessus:
        return EntreeParDessus(plan, cote);
    case TypeEntreeD4X::BordDAttaque:
        return EntreeParBordDAttaque(plan, cote);
    case TypeEntreeD4X::BordDeFuite:
        break;
    }
    return EntreeParBordDeFuite(plan, cote, pentes, pente);
}

Liste Sortie(const Plan& plan, const CoteTrajet& cote, const Pentes& pentes, float pente) {
    switch (plan.contexte.Parametres.TypeSortie) {
    case TypeEntreeD4X::Dessus:
        return SortieVersLeHaut(plan, cote);
    case TypeEntreeD4X::BordDAttaque:
        return SortieParBordDAttaque(plan, cote);
    case TypeEntreeD4X::BordDeFuite:
        break;
    }
    return SortieParBordDeFuite(plan, cote, pentes, pente);
}

void EntourerChemin(std::vector<PointProfil>& chemin, const Liste& entree, const Liste& sortie) {
    chemin.insert(chemin.begin(), entree.begin(), entree.end() - 1);
    chemin.insert(chemin.end(), sortie.begin() + 1, sortie.end());
}

// Places in the cut path, from 0, of profile point `p` counted from 1: the entry put 4 points before it, the
// variable offset made each point two.
std::size_t IndiceDuPoint(std::int32_t p, bool variable) {
    const auto numero = static_cast<std::size_t>(p);
    return variable ? 2 * numero + 2 : numero + 3;
}

// Out of the leading edge, a stop, and back to the point: two more points after it.
void AjouterSortie(std::vector<PointProfil>& chemin, std::size_t indice, double Xba, double z) {
    constexpr double degagement = 10; // mm beyond the block
    if (indice >= chemin.size()) return;
    const PointProfil retour = chemin[indice];
    PointProfil dehors = Point(Xba + degagement, retour.Y, z, false);
    dehors.Drapeaux = DrapeauArret;
    const std::array<PointProfil, 2> ajoutes = {dehors, retour};
    chemin.insert(chemin.begin() + static_cast<std::ptrdiff_t>(indice) + 1, ajoutes.begin(), ajoutes.end());
}

} // namespace

HauteurDegagement CalculerYhaut(const ContexteD4X& contexte) {
    const ParametresDecoupe4axes& parametres = contexte.Parametres;
    const float voulue = EnSimple(double{contexte.Projet.Epaisseur} + parametres.OffsetBlocY +
                                  parametres.EpaisseurLests + contexte.Table.MargeFilBloc);
    const auto course = EnSimple(contexte.Table.CourseY);
    return {std::min(voulue, course), voulue > course};
}

void CalculerEntreesSortiesD4X(const ContexteD4X& contexte, DecoupeD4X& decoupe) {
    const ParametresDecoupe4axes& parametres = contexte.Parametres;
    const Plan plan = {contexte, decoupe, CalculerYhaut(contexte),
                       -std::fabs(double{contexte.Table.DistanceRangementFilSousOrigine}),
                       parametres.OffsetBlocX >= OffsetXRapide};
    const CoteTrajet e = {decoupe.PaireBloc.E, decoupe.blocE, parametres.ZEmplanture};
    const CoteTrajet s = {decoupe.PaireBloc.S, decoupe.blocS, parametres.ZSaumon};
    const Pentes aller = PentesDuType(parametres.TypeApprocheBF, decoupe);
    const Pentes retour = PentesDuType(parametres.TypeRetourBF, decoupe);
    decoupe.entree = {Entree(plan, e, aller, aller.E), Entree(plan, s, aller, aller.S)};
    decoupe.sortie = {Sortie(plan, e, retour, retour.E), Sortie(plan, s, retour, retour.S)};
}

void AjouterEntreesSortiesD4X(DecoupeD4X& decoupe) {
    decoupe.premierProfil = PointsEntreeSortie - 1;
    decoupe.nombreProfil = decoupe.PaireBloc.E.size();
    EntourerChemin(decoupe.PaireBloc.E, decoupe.entree.E, decoupe.sortie.E);
    EntourerChemin(decoupe.PaireBloc.S, decoupe.entree.S, decoupe.sortie.S);
}

void AjouterSortiesIntermediaires(const ParametresDecoupe4axes& parametres, DecoupeD4X& decoupe) {
    if (parametres.SortieIntermediaire == SortieIntermediaireD4X::Aucune) return;
    const auto dernier = static_cast<std::int32_t>(decoupe.PairePositionnee.E.Points.size());
    const auto borner = [&](std::int32_t curseur) { return std::clamp(curseur, 1, dernier); };
    const std::int32_t premier = borner(parametres.CurseurSortieIntermediaire);
    const std::int32_t second = borner(parametres.CurseurSortieIntermediaire2);
    const bool variable = parametres.DecalageVariableActif();
    const auto ajouter = [&](std::size_t indice) {
        AjouterSortie(decoupe.PaireBloc.E, indice, decoupe.blocE.Xba, parametres.ZEmplanture);
        AjouterSortie(decoupe.PaireBloc.S, indice, decoupe.blocS.Xba, parametres.ZSaumon);
        decoupe.nombreProfil += 2;
    };
    if (parametres.SortieIntermediaire == SortieIntermediaireD4X::Une) {
        ajouter(IndiceDuPoint(premier, variable));
        return;
    }
    ajouter(IndiceDuPoint(std::min(premier, second), variable));
    // The two points just added stand before the second exit.
    ajouter(IndiceDuPoint(std::max(premier, second), variable) + 2);
}

} // namespace tessarel
