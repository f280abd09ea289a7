// Machine records into memories of the virtual box.
#include "link/simulateur/memoires_machine.h"

#include "platform/nombres.h"

#include <algorithm>
#include <cmath>

namespace tessarel::simulateur {

namespace {

constexpr std::size_t LongueurNom = 8;
constexpr std::uint8_t Constante = 4; // last byte but one of part 1
constexpr std::int32_t HzParDizaineDeKilo = 10000;

// Appends bytes to a part, in the order of the wire.
class Ecrivain {
public:
    explicit Ecrivain(Partie& partie) : m_partie(partie) { m_partie.fill(0); }
    void Octet(long long valeur) { m_partie.at(m_place++) = static_cast<std::uint8_t>(valeur); }
    void Mot(double valeur) {
        const long long entier = std::llround(Arrondi(valeur));
        Octet(entier & 0xFF);
        Octet((entier >> 8) & 0xFF);
    }

private:
    Partie& m_partie;
    std::size_t m_place = 0;
};

} // namespace

MemoireBoite MemoireDeMachine(const TableMachine& table) {
    MemoireBoite memoire;
    Ecrivain p1(memoire.parties[0]);
    for (std::size_t i = 0; i < LongueurNom; ++i) p1.Octet(i < table.Nom.size() ? table.Nom[i] : ' ');
    for (const std::uint8_t code : table.CodesEntrees) p1.Octet(code);
    for (const std::uint8_t code : table.CodeDefinitionSortie) p1.Octet(code);
    p1.Octet(table.Frequence / HzParDizaineDeKilo);
    p1.Octet(table.PenteAcceleration);
    p1.Octet(table.PWMmaxi0to255);
    p1.Octet(table.DelaiMoteursOff);
    p1.Octet((table.SwitchsActifs ? 1 : 0) | (table.OrientationX == 1 ? 2 : 0) |
             (table.InversionSignalMoteurOnOff ? 4 : 0));
    p1.Octet(Constante);

    std::array<double, NombreAxes> pasParMm = {};
    for (std::size_t a = 0; a < NombreAxes; ++a) {
        if (table.MmParTour[a] != 0)
            pasParMm[a] = Arrondi(double{table.PasParTourMoteur[a]} * table.MicroPas[a] / table.MmParTour[a]);
    }
    Ecrivain p2(memoire.parties[1]);
    for (const double vitesse : {1.0, double{table.VmaxSansAccXY}, double{table.VmaxAvecAccXY}}) {
        for (const double pas : pasParMm) p2.Mot(vitesse * pas);
        p2.Mot(0); // axis A
    }
    Ecrivain p3(memoire.parties[2]);
    for (const double pas : table.PasToOrigine) p3.Mot(pas);
    return memoire;
}

Mecanique MecaniqueDeMachine(const TableMachine& table) {
    Mecanique m;
    m.courseX = table.CourseX;
    m.courseY = table.CourseY;
    m.origineEnHaut = table.OrigineEnHaut;
    if (table.EcartementY1Y2 > 0) m.ecartement = table.EcartementY1Y2;
    return m;
}

} // namespace tessarel::simulateur
