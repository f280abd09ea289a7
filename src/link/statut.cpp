// Decoding of the status block.
#include "statut.h"

namespace tessarel {

namespace {

bool Bit(std::uint8_t octet, unsigned valeur) {
    return (octet & valeur) != 0;
}

std::uint32_t Valeur(const Tampon& tampon, std::size_t debut, std::size_t octets) {
    std::uint32_t valeur = 0;
    for (std::size_t i = 0; i < octets; ++i) valeur |= std::uint32_t{tampon[debut + i]} << (8 * i);
    return valeur;
}

} // namespace

StatutZelko LireStatut(const Tampon& tampon) {
    const std::uint8_t boucles = tampon[8];
    const std::uint8_t fin = tampon[12];
    StatutZelko s;
    s.Recu = true;
    s.SalveAcceptee = tampon[2] == 1;
    // A fourth byte of the number is not sent: it counts as 0.
    s.NumeroSalve = static_cast<std::int32_t>(Valeur(tampon, 4, 3));
    s.ChauffeActive = Bit(tampon[7], 16);
    s.OrigineOuverte = Bit(boucles, 2);
    s.FinCourseOuverte = Bit(boucles, 4);
    s.ChauffeSurOff = Bit(boucles, 8);
    s.ChauffeSurManu = !s.ChauffeSurOff && Bit(boucles, 1);
    s.Fini = Bit(fin, 2);
    s.FinDeListe = Bit(fin, 128);
    s.ArretDemande = Bit(fin, 4);
    s.ArretBoutonStop = Bit(fin, 64);
    s.OrigineOuverteEnMouvement = Bit(fin, 16);
    s.FinCourseOuverteEnMouvement = Bit(fin, 32);
    s.TicksRestants = Valeur(tampon, 13, 4);
    return s;
}

bool FinieParLaBoite(const StatutZelko& statut) {
    return statut.FinDeListe || statut.ArretBoutonStop || statut.OrigineOuverteEnMouvement ||
           statut.FinCourseOuverteEnMouvement;
}

} // namespace tessarel
