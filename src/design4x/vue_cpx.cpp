// Projection, fit and zoom of the design view.
#include "vue_cpx.h"

#include "paths/tables_degres.h"
#include "platform/nombres.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace tessarel {

namespace {

constexpr int TourComplet = 360;
// Of the arrow beside the block, mm: how far it stands from the corner, its size, and how far beyond the
// planes.
constexpr double MarqueLoin = 10;
constexpr double MarquePres = 2;
constexpr double MarqueHaut = 8;
constexpr double MarqueAuDela = 5;
// A step of hscZoom in and out.
constexpr double PasZoomAvant = 1.1;
constexpr double PasZoomArriere = 0.9;
// Pixels of drag for a degree of turn.
constexpr double PixelsParDegre = 30;

// The factors of the two formulas, taken from the tables once for a whole pass.
struct Projection {
    double cx, cy;
    double sOmega, cOmega, sA, cA;

    Projection(const VueCPX& vue, const ProjetCPX& projet) {
        const TablesDegres& tables = TablesTrigonometriques();
        const auto omega = static_cast<std::size_t>(vue.Omega);
        const auto a = static_cast<std::size_t>(TourComplet - vue.Alpha);
        cx = (static_cast<double>(projet.XminGlobal) + static_cast<double>(projet.XmaxGlobal)) / 2;
        cy = (static_cast<double>(projet.YminGlobal) + static_cast<double>(projet.YmaxGlobal)) / 2;
        sOmega = tables.sinus[omega];
        cOmega = tables.cosinus[omega];
        sA = tables.sinus[a];
        cA = tables.cosinus[a];
    }

    [[nodiscard]] PointEspace Projeter(double x, double y, double z) const {
        return {(cx - x) * sOmega + z * cOmega, (cx - x) * cOmega * sA + (y - cy) * cA - z * sOmega * sA, z};
    }
};

template <typename Points>
void ProjeterTrace(TraceVue& trace, const Projection& projection, const Points& points, double z) {
    trace.Projete.resize(points.size());
    trace.Ecran.resize(points.size());
    std::size_t k = 0;
    for (const auto& p : points) trace.Projete[k++] = projection.Projeter(p.X, p.Y, z);
}

void VersEcran(const VueCPX& vue, TraceVue& trace) {
    for (std::size_t k = 0; k < trace.Projete.size(); ++k) trace.Ecran[k] = VersEcran(vue, trace.Projete[k]);
}

void ToutVersEcran(VueCPX& vue) {
    for (TraceVue* trace :
         {&vue.E, &vue.S, &vue.BlocE, &vue.BlocS, &vue.Intermediaire, &vue.MarqueE, &vue.MarqueS})
        VersEcran(vue, *trace);
}

// Extents in the projected plane.
struct Cadre {
    double xmin = 0, xmax = 0, ymin = 0, ymax = 0;
    bool vide = true;

    void Ajouter(const TraceVue& trace) {
        for (const PointEspace& p : trace.Projete) {
            if (vide) {
                xmin = xmax = p.X;
                ymin = ymax = p.Y;
                vide = false;
            }
            xmin = std::min(xmin, p.X);
            xmax = std::max(xmax, p.X);
            ymin = std::min(ymin, p.Y);
            ymax = std::max(ymax, p.Y);
        }
    }
};

void Recadrer(VueCPX& vue) {
    Cadre cadre;
    if (vue.chkAfficherProfil[0]) cadre.Ajouter(vue.E);
    if (vue.chkAfficherProfil[1]) cadre.Ajouter(vue.S);
    if (vue.chkVoirBlocCPX) {
        cadre.Ajouter(vue.BlocE);
        cadre.Ajouter(vue.BlocS);
    }
    if (cadre.vide) return;
    vue.CentreVueX = (cadre.xmin + cadre.xmax) / 2;
    vue.CentreVueY = (cadre.ymin + cadre.ymax) / 2;
    const double w = cadre.xmax - cadre.xmin;
    const double h = cadre.ymax - cadre.ymin;
    const double enHauteur = (vue.HauteurVue - 2 * vue.MargeVue) / h;
    const double enLargeur = (vue.LargeurVue - 2 * vue.MargeVue) / w;
    double echelle = 1;
    if (h != 0 && w != 0)
        echelle = std::min(enHauteur, enLargeur);
    else if (h != 0)
        echelle = enHauteur;
    else if (w != 0)
        echelle = enLargeur;
    // A picture no larger than its margins shows nothing; the scale must stay usable for the next size.
    vue.Echelle = echelle > 0 ? EnSimple(echelle) : 1;
}

std::int16_t AngleRamene(int angle) {
    if (angle < 0 || angle > TourComplet) angle = ((angle % TourComplet) + TourComplet) % TourComplet;
    return static_cast<std::int16_t>(angle);
}

std::size_t NombreBloc(const ProfilCPX& profil) {
    return profil.Points.empty() ? 0 : profil.Bloc.size();
}

} // namespace

void PlacerVue(VueCPX& vue, int omega, int alpha) {
    vue.Omega = AngleRamene(omega);
    vue.Alpha = AngleRamene(alpha);
}

bool EstVueCote(const VueCPX& vue) {
    return vue.Omega == VueCote.Omega && vue.Alpha == VueCote.Alpha;
}

void DimensionnerVue(VueCPX& vue, double largeur, double hauteur) {
    vue.LargeurVue = largeur;
    vue.HauteurVue = hauteur;
    vue.OrigineEcranX = largeur / 2;
    vue.OrigineEcranY = hauteur / 2;
}

PointEspace ProjeterPoint(const VueCPX& vue, const ProjetCPX& projet, double x, double y, double z) {
    return Projection(vue, projet).Projeter(x, y, z);
}

std::vector<PointEspace> MarqueEntree(const ProjetCPX& projet) {
    const ProfilCPX* bout = nullptr;
    for (const ProfilCPX* profil : {&projet.E, &projet.S})
        if (!profil->Points.empty() && (bout == nullptr || profil->Bloc[0].X < bout->Bloc[0].X))
            bout = profil;
    if (bout == nullptr) return {};
    const PointEspace& coin = bout->Bloc[0];
    return {{coin.X - MarqueLoin, coin.Y, 0},
            {coin.X - MarquePres, coin.Y, 0},
            {coin.X - MarquePres, coin.Y + MarqueHaut, 0}};
}

PointEcran VersEcran(const VueCPX& vue, const PointEspace& projete) {
    const double echelle = static_cast<double>(vue.Echelle);
    return {(projete.X - vue.CentreVueX) * echelle + vue.OrigineEcranX,
            vue.HauteurVue - ((projete.Y - vue.CentreVueY) * echelle + vue.OrigineEcranY)};
}

void CalculerCoordonneesPerspectiveCPX(VueCPX& vue, const ProjetCPX& projet, bool recadrer,
                                       const ProfilIntermediaire* intermediaire) {
    const Projection projection(vue, projet);
    const double h = static_cast<double>(projet.Ecartement) / 2;
    ProjeterTrace(vue.E, projection, projet.E.Points, h);
    ProjeterTrace(vue.S, projection, projet.S.Points, -h);
    ProjeterTrace(vue.BlocE, projection, std::span(projet.E.Bloc).first(NombreBloc(projet.E)), h);
    ProjeterTrace(vue.BlocS, projection, std::span(projet.S.Bloc).first(NombreBloc(projet.S)), -h);
    const std::vector<PointEspace> marque = MarqueEntree(projet);
    ProjeterTrace(vue.MarqueE, projection, marque, h + MarqueAuDela);
    ProjeterTrace(vue.MarqueS, projection, marque, -h - MarqueAuDela);
    if (intermediaire != nullptr && intermediaire->Present())
        ProjeterTrace(vue.Intermediaire, projection, intermediaire->Points,
                      h - static_cast<double>(intermediaire->DistanceIntermediaire));
    else
        ProjeterTrace(vue.Intermediaire, projection, std::span<const PointProfil>(), 0);
    if (recadrer) Recadrer(vue);
    ToutVersEcran(vue);
}

void ChangerZoom(VueCPX& vue, std::int32_t ancien, std::int32_t nouveau) {
    if (ancien == nouveau) return;
    // Deliberate: the number of steps is itself the factor; the bar is meant to move by single steps.
    const double facteur =
        nouveau > ancien ? PasZoomAvant * (nouveau - ancien) : PasZoomArriere * (ancien - nouveau);
    vue.Echelle = EnSimple(static_cast<double>(vue.Echelle) * facteur);
    ToutVersEcran(vue);
}

void ZoomerSurCadre(VueCPX& vue, PointEcran a, PointEcran b) {
    const double largeur = std::abs(b.X - a.X);
    const double hauteur = std::abs(b.Y - a.Y);
    if (largeur == 0 || hauteur == 0) return;
    const double echelle = static_cast<double>(vue.Echelle);
    vue.CentreVueX += ((a.X + b.X) / 2 - vue.OrigineEcranX) / echelle;
    vue.CentreVueY += (vue.HauteurVue - (a.Y + b.Y) / 2 - vue.OrigineEcranY) / echelle;
    vue.Echelle = EnSimple(echelle * std::min(vue.LargeurVue / largeur, vue.HauteurVue / hauteur));
    ToutVersEcran(vue);
}

void GlisserVue(VueCPX& vue, double dx, double dy) {
    const double echelle = static_cast<double>(vue.Echelle);
    vue.CentreVueX -= dx / echelle;
    vue.CentreVueY += dy / echelle;
    ToutVersEcran(vue);
}

void TournerVue(VueCPX& vue, double dx, double dy) {
    PlacerVue(vue, vue.Omega + ArrondiLong(dx / PixelsParDegre),
              vue.Alpha + ArrondiLong(dy / PixelsParDegre));
}

} // namespace tessarel
