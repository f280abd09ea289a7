// The design part of a project file against the record of the design.
#include "conversion_projet.h"

#include "platform/nombres.h"

#include <array>

namespace tessarel {

namespace {

// A real value of the project and where the record holds it.
struct Correspondance {
    double Projet4axes::*stocke;
    float ProjetCPX::*champ = nullptr;
    ProfilCPX ProjetCPX::*profil = nullptr;
    float ProfilCPX::*champProfil = nullptr;
};

constexpr std::array<Correspondance, 7> Longueurs = {{
    {&Projet4axes::Ecartement, &ProjetCPX::Ecartement},
    {&Projet4axes::Epaisseur, &ProjetCPX::Epaisseur},
    {&Projet4axes::DistProfilDessousE, &ProjetCPX::DistProfilDessousE},
    {&Projet4axes::MargeBaE, nullptr, &ProjetCPX::E, &ProfilCPX::MargeBa},
    {&Projet4axes::MargeBaS, nullptr, &ProjetCPX::S, &ProfilCPX::MargeBa},
    {&Projet4axes::MargeBfE, nullptr, &ProjetCPX::E, &ProfilCPX::MargeBf},
    {&Projet4axes::MargeBfS, nullptr, &ProjetCPX::S, &ProfilCPX::MargeBf},
}};

template <typename Projet>
auto& Champ(Projet& projet, const Correspondance& c) {
    if (c.champ != nullptr) return projet.*c.champ;
    return projet.*c.profil.*c.champProfil;
}

} // namespace

ProjetCPX ProjetCPXDepuis(const Projet4axes& projet, const std::string& nom) {
    ProjetCPX conception;
    conception.NomProjet = nom;
    conception.E.NomFichier = projet.Emplanture.NomFichier;
    conception.E.Points = projet.Emplanture.sequence.Points;
    conception.S.NomFichier = projet.Saumon.NomFichier;
    conception.S.Points = projet.Saumon.sequence.Points;
    for (const Correspondance& c : Longueurs) Champ(conception, c) = EnSimple(projet.*c.stocke);
    EcrireZ(conception);
    CalculerExtremesCPX(conception);
    return conception;
}

void PorterDansProjet4axes(const ProjetCPX& conception, Projet4axes& projet) {
    projet.Emplanture.NomFichier = conception.E.NomFichier;
    projet.Emplanture.sequence.Points = conception.E.Points;
    projet.Saumon.NomFichier = conception.S.NomFichier;
    projet.Saumon.sequence.Points = conception.S.Points;
    CalculerBornesSequence(projet.Emplanture.sequence);
    CalculerBornesSequence(projet.Saumon.sequence);
    for (const Correspondance& c : Longueurs) projet.*c.stocke = DecimalSimple(Champ(conception, c));
}

} // namespace tessarel
