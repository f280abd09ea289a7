// Turns a path into the frames of a run, and a stopped frame into a place of the wire.
#include "link/liste_salves.h"

#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "platform/nombres.h"

#include <algorithm>
#include <limits>

namespace tessarel {

namespace {

// The machine that has heating times of its own, by heat.
constexpr const char* MachineAuxTemposPropres = "QT2d v10";

std::int32_t Difference(std::int32_t de, std::int32_t a) {
    const std::int64_t difference = static_cast<std::int64_t>(a) - de;
    if (difference < std::numeric_limits<std::int32_t>::min() ||
        difference > std::numeric_limits<std::int32_t>::max()) {
        throw FauteDepassement(SelonLangue("Dépassement de capacité (32 bits)", "Overflow (32 bits)"));
    }
    return static_cast<std::int32_t>(difference);
}

PointPas EnPas(const TableMachine& table, Axe axeX, Axe axeY, const PointProfil& sommet) {
    PointPas point;
    point.X = PasDeMillimetres(table, axeX, sommet.X);
    point.Y = PasDeMillimetres(table, axeY, sommet.Y);
    point.Vitesse = sommet.Vitesse;
    point.Rapide = sommet.Rapide ? -1 : 0;
    return point;
}

PointPas Origine(const TableMachine& table, Axe axeY) {
    PointPas point;
    if (table.OrigineEnHaut) point.Y = PasDeMillimetres(table, axeY, table.CourseY);
    return point;
}

// The first vertex, to where the wire stands.
void Deplacer(TrajetPas& trajet, const PasAxes& pas) {
    trajet.bout1[1].X = pas[AxeX1];
    trajet.bout1[1].Y = pas[AxeY1];
    trajet.bout2[1].X = pas[AxeX2];
    trajet.bout2[1].Y = pas[AxeY2];
}

std::int32_t Interpoler(std::int32_t de, std::int32_t a, double fraction) {
    return ArrondiLong(de + Arrondi((static_cast<double>(a) - de) * fraction));
}

} // namespace

double MillimetresDePas(const TableMachine& table, Axe axe, double pas) {
    if (table.PasParTour[axe] == 0) return 0;
    return pas / table.PasParTour[axe] * table.MmParTour[axe];
}

std::int32_t PasDeMillimetres(const TableMachine& table, Axe axe, double mm) {
    if (table.PasParTour[axe] == 0) return 0;
    return ArrondiLong(table.PasParTour[axe] * mm / table.MmParTour[axe]);
}

TrajetPas CalculerTrajetPas(std::span<const PointProfil> chemin, const TableMachine& table) {
    TrajetPas trajet;
    trajet.bout1.reserve(chemin.size() + 1);
    trajet.bout2.reserve(chemin.size() + 1);
    trajet.bout1.push_back(Origine(table, AxeY1));
    trajet.bout2.push_back(Origine(table, AxeY2));
    for (const PointProfil& sommet : chemin) {
        trajet.bout1.push_back(EnPas(table, AxeX1, AxeY1, sommet));
        trajet.bout2.push_back(EnPas(table, AxeX2, AxeY2, sommet));
    }
    return trajet;
}

void ConstruireSalves(const TrajetPas& trajet, const TableMachine& table, TableauSalves& salves) {
    const ParametresSalve parametres = ParametresDeSalve(table);
    const std::vector<PointPas>& b1 = trajet.bout1;
    const std::vector<PointPas>& b2 = trajet.bout2;
    const std::size_t n = std::max<std::size_t>(b1.size(), 2) - 1;
    salves.resize(n + 1);
    for (std::size_t i = 1; i < n; ++i) {
        const PointPas& de1 = b1[i];
        const PointPas& a1 = b1[i + 1];
        const PasAxes pas = {Difference(de1.X, a1.X), Difference(de1.Y, a1.Y),
                             Difference(b2[i].X, b2[i + 1].X), Difference(b2[i].Y, b2[i + 1].Y)};
        // Deliberate: a vertex carries the speed of the segment that ends there, and it is the segment that
        // starts there which takes it. So the first segment after a rapid one still runs at the rapid speed
        // and comes down to the cutting speed at its end. Frames, durations and cuts that users know follow
        // from it.
        salves[i] = de1.Rapide != 0 ? ConstruireSalve(parametres, table.VmaxSansAccXY, table.VitesseRapide,
                                                      table.VmaxSansAccXY, pas)
                                    : ConstruireSalve(parametres, de1.Vitesse, de1.Vitesse, a1.Vitesse, pas);
    }
    salves[n] = ConstruireSalveFin();
}

ListeDeDecoupe PreparerSalves(std::span<const PointProfil> chemin, std::int16_t secondesDeChauffe,
                              float chauffe, const TableMachine& table,
                              const std::optional<PasAxes>& depart) {
    ListeDeDecoupe liste;
    liste.trajet = CalculerTrajetPas(chemin, table);
    if (depart && !chemin.empty()) Deplacer(liste.trajet, *depart);
    ConstruireSalves(liste.trajet, table, liste.salves);
    liste.salves.front() = ConstruireSalveTempo(ParametresDeSalve(table), secondesDeChauffe, chauffe);
    double duree = 0;
    for (std::size_t i = 1; i + 1 < liste.salves.size(); ++i) duree += liste.salves[i].Duree;
    liste.duree = EnSimple(duree);
    return liste;
}

std::int16_t TempoChauffePourChauffe(float chauffe, const TableMachine& table) {
    if (!EgalSansCasse(table.Nom, MachineAuxTemposPropres)) return table.TempoChauffe;
    struct Palier {
        float chauffeMaxi; // percent, the limit included
        std::int16_t secondes;
    };
    constexpr Palier paliers[] = {{45, 20}, {60, 25}, {70, 28}, {80, 30}};
    constexpr std::int16_t ailleurs = 35;
    if (!(chauffe > 0)) return ailleurs;
    for (const Palier& palier : paliers)
        if (chauffe <= palier.chauffeMaxi) return palier.secondes;
    return ailleurs;
}

std::optional<double> FractionFaite(const Salve& salve, std::uint32_t ticksRestants) {
    // Signed, as the box counts: what is not above zero can't be divided by.
    const auto nbrt = static_cast<std::int32_t>(NBRtDeSalve(salve));
    if (nbrt <= 0) return std::nullopt;
    return (static_cast<double>(nbrt) - ticksRestants - 1) / nbrt;
}

PositionDuFil PositionAuStop(const TrajetPas& trajet, const TableauSalves& salves, std::int32_t numero,
                             std::uint32_t ticksRestants) {
    PositionDuFil position;
    const auto k = static_cast<std::size_t>(std::max(numero, 0));
    if (k < 1 || k > salves.size() || k >= trajet.bout1.size() || k >= trajet.bout2.size()) return position;
    const std::optional<double> fraction = FractionFaite(salves[k - 1], ticksRestants);
    position.lecture = fraction ? LecturePosition::Faite : LecturePosition::SansDuree;
    if (!fraction) return position;
    const PointPas& de1 = trajet.bout1[k - 1];
    const PointPas& a1 = trajet.bout1[k];
    const PointPas& de2 = trajet.bout2[k - 1];
    const PointPas& a2 = trajet.bout2[k];
    position.pas = {Interpoler(de1.X, a1.X, *fraction), Interpoler(de1.Y, a1.Y, *fraction),
                    Interpoler(de2.X, a2.X, *fraction), Interpoler(de2.Y, a2.Y, *fraction)};
    return position;
}

} // namespace tessarel
