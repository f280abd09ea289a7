// The moves of the slice test, their limits and their step counts.
#include "tranches.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"

namespace tessarel {

namespace {

// Rows of TextesMessages.
constexpr int RangeeVitesse = 96;
constexpr int RangeeDistance = 97;

// One move: the dimension it takes, and its direction.
struct MouvementTranche {
    std::size_t dimension;
    double x;
    double y;
};
constexpr std::array<MouvementTranche, NombreMouvementsTranches> Mouvements = {{
    {2, 0, 1},
    {2, 0, -1},
    {0, 1, 0},
    {1, 0, -1},
    {1, 0, 1},
    {0, -1, 0},
}};

// Up, a pass out, down, a pass back, down, a pass out, and back through the open kerf.
constexpr std::array<std::size_t, 7> Ordre = {0, 2, 3, 5, 3, 2, 5};

void Refuser(int rangee) {
    AfficherExclamation(TextesMessages(rangee), TitresMessages(rangee));
}

} // namespace

DeplacementFil DeplacementTranche(std::size_t mouvement, const DimensionsTranches& dimensions) {
    if (mouvement >= Mouvements.size()) return {};
    const MouvementTranche& m = Mouvements[mouvement];
    return {m.x * dimensions[m.dimension], m.y * dimensions[m.dimension]};
}

std::span<const std::size_t> OrdreDesTranches() {
    return Ordre;
}

float VitesseDuMouvement(VitesseTranche choix, float v, const TableMachine& table) {
    switch (choix) {
    case VitesseTranche::V:
        return v;
    case VitesseTranche::VSur2:
        return v / 2;
    case VitesseTranche::Rapide:
        return table.VitesseRapide;
    }
    return v;
}

RefusTranche ExaminerTranche(std::size_t mouvement, const DimensionsTranches& dimensions, float v,
                             const TableMachine& table) {
    if (!(v > 0 && v <= table.VmaxSansAccXY)) return RefusTranche::Vitesse;
    if (mouvement >= Mouvements.size()) return RefusTranche::Distance;
    const std::size_t dimension = Mouvements[mouvement].dimension;
    const double course = dimension == 0 ? table.CourseX : table.CourseY;
    return dimensions[dimension] > 0 && dimensions[dimension] <= course ? RefusTranche::Aucun
                                                                        : RefusTranche::Distance;
}

bool AccepterTranche(std::size_t mouvement, const DimensionsTranches& dimensions, float v,
                     const TableMachine& table) {
    switch (ExaminerTranche(mouvement, dimensions, v, table)) {
    case RefusTranche::Aucun:
        return true;
    case RefusTranche::Vitesse:
        Refuser(RangeeVitesse);
        break;
    case RefusTranche::Distance:
        Refuser(RangeeDistance);
        break;
    }
    return false;
}

std::array<std::int32_t, 4> PasDuDeplacement(const DeplacementFil& fin1, const DeplacementFil& fin2,
                                             const TableMachine& table) {
    const std::array<double, 4> mm = {fin1.X, fin1.Y, fin2.X, fin2.Y};
    std::array<std::int32_t, 4> pas = {};
    for (std::size_t axe = AxeX1; axe <= AxeY2; ++axe) {
        const double mmParTour = table.MmParTour[axe];
        pas[axe] = mmParTour == 0 ? 0 : ArrondiLong(table.PasParTour[axe] * mm[axe] / mmParTour);
    }
    return pas;
}

double SaigneeMesuree(double epaisseurDemandee, double epaisseurObtenue) {
    return epaisseurDemandee - epaisseurObtenue;
}

std::string TexteSaignee(double saignee) {
    return Texte(TexteProgramme::SaigneeYMoinsE) +
           PointVersSeparateur(FormaterNombre(saignee, "#####0.0##")) + " mm";
}

} // namespace tessarel
