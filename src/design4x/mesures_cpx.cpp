// The record of the design as a list of names and values.
#include "mesures_cpx.h"

#include "design4x/bloc.h"

#include <initializer_list>
#include <utility>

namespace tessarel {

namespace {

class ListeMesures {
public:
    void Ajouter(std::string nom, std::variant<std::string, std::int32_t, float> valeur) {
        liste.push_back({std::move(nom), std::move(valeur)});
    }

    // The four extents with the points that give them: "XminE", "IndiceXminE", or "XminCordeE" and so on.
    void Etendue(const ExtremesProfil& x, const std::string& suffixe, bool vide) {
        const std::initializer_list<std::pair<const char*, std::pair<float, std::int32_t>>> bornes = {
            {"Xmin", {x.Xmin, x.IndiceXmin}},
            {"Xmax", {x.Xmax, x.IndiceXmax}},
            {"Ymin", {x.Ymin, x.IndiceYmin}},
            {"Ymax", {x.Ymax, x.IndiceYmax}},
        };
        for (const auto& [nom, borne] : bornes) {
            Ajouter(nom + suffixe, borne.first);
            Ajouter("Indice" + (nom + suffixe), vide ? 0 : borne.second + 1);
        }
    }

    std::vector<MesureCPX> liste;
};

void AjouterProfil(ListeMesures& m, const ProfilCPX& p, const std::string& cote) {
    m.Etendue(p.Extremes, cote, p.Points.empty());
    m.Ajouter("Corde" + cote, p.Corde);
    m.Ajouter("Hauteur" + cote, p.Hauteur);
    m.Ajouter("YauBA" + cote, p.YauBA);
    m.Ajouter("YauBF" + cote, p.YauBF);
}

void AjouterAlignement(ListeMesures& m, const ProfilCPX& p, const std::string& cote) {
    m.Ajouter("XmoyenAlign" + cote, p.XmoyenAlign);
    m.Ajouter("YmoyenAlign" + cote, p.YmoyenAlign);
    m.Ajouter("NbAlign" + cote, p.NbAlign);
}

} // namespace

std::vector<MesureCPX> MesuresCPX(const ProjetCPX& projet) {
    ListeMesures m;
    const std::initializer_list<std::pair<const char*, const ProfilCPX*>> profils = {{"E", &projet.E},
                                                                                     {"S", &projet.S}};
    for (const auto& [cote, p] : profils) m.Ajouter(std::string("NomFichier") + cote, p->NomFichier);
    for (const auto& [cote, p] : profils)
        m.Ajouter(std::string("NbPoints") + cote, static_cast<std::int32_t>(p->Points.size()));
    m.Ajouter("XminGlobal", projet.XminGlobal);
    m.Ajouter("XmaxGlobal", projet.XmaxGlobal);
    m.Ajouter("YminGlobal", projet.YminGlobal);
    m.Ajouter("YmaxGlobal", projet.YmaxGlobal);
    for (const auto& [cote, p] : profils) AjouterProfil(m, *p, cote);
    for (const auto& [cote, p] : profils) AjouterAlignement(m, *p, cote);
    m.Ajouter("Ecartement", projet.Ecartement);
    m.Ajouter("Fleche", projet.Fleche);
    m.Ajouter("FlecheBF", projet.FlecheBF);
    m.Ajouter("DiedreMm", projet.DiedreMm);
    m.Ajouter("DiedreDeg", projet.DiedreDeg);
    m.Ajouter("Epaisseur", projet.Epaisseur);
    for (const auto& [cote, p] : profils) m.Ajouter(std::string("MargeBa") + cote, p->MargeBa);
    for (const auto& [cote, p] : profils) m.Ajouter(std::string("MargeBf") + cote, p->MargeBf);
    m.Ajouter("DistProfilDessousE", projet.DistProfilDessousE);
    for (const auto& [cote, p] : profils)
        m.Etendue(p->ExtremesCorde, std::string("Corde") + cote, p->Points.empty());
    for (const EtiquetteBloc& e : EtiquettesBloc(projet)) m.Ajouter(e.controle, e.valeur);
    return m.liste;
}

} // namespace tessarel
