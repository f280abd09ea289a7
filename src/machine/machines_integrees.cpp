// The columns of the built-in machines.
#include "machines_integrees.h"

#include "platform/fichiers.h"

#include <algorithm>

namespace tessarel {

namespace {

// In the order of their names below.
enum class Integree { Defaut, Qt4xM1, Qt2dV12, Qt2dV10, Aucune };

Integree Reconnaitre(const std::string& nom) {
    const std::vector<std::string>& noms = NomsMachinesIntegrees();
    const auto trouve =
        std::ranges::find_if(noms, [&](const std::string& integree) { return EgalSansCasse(nom, integree); });
    return static_cast<Integree>(trouve - noms.begin());
}

// What all columns agree on.
TableMachine Commune() {
    TableMachine t;
    t.MicroPas[AxeA] = 1;
    t.InversionSignalMoteurOnOff = true;
    t.Frequence = 50000;
    t.AutoMoteursOff = true;
    t.DelaiMoteursOff = 1;
    t.TempoChauffe = 2;
    t.ChauffeParDefaut = 65;
    t.VitesseDecoupeParDefaut = 4;
    t.SaigneeVDParDefaut = 1;
    t.SaigneeVDsur2ParDefaut = 2;
    t.AttenteNettoyage = 6;
    return t;
}

// The two machines with four axes.
TableMachine QuatreAxes() {
    TableMachine t = Commune();
    t.SortieDir = {4, 8, 6, 10, 0};
    t.SortieStep = {3, 7, 5, 9, 0};
    t.PasParTourMoteur = {400, 400, 400, 400, 0};
    t.MicroPas = {32, 32, 32, 32, 1};
    t.MmParTour = {40, 40, 40, 40};
    t.PenteAcceleration = 6;
    t.ChauffeMaxiSur100 = 80;
    t.CourseX = 980;
    t.MargeFilPlateau = 1;
    t.EcartementY1Y2 = 520;
    t.EcartementY1Plateau = 10;
    t.EcartementPlateauY2 = 10;
    t.LongueurMaxiFil = 660;
    t.ChauffeNettoyage = 80;
    t.DecalageNettoyage = 30;
    t.RangementSuivantX = 900;
    t.RangementSuivantY = 500;
    return t;
}

TableMachine Defaut() {
    TableMachine t = QuatreAxes();
    t.InvSignalSortieDir = {false, true, false, true, false};
    t.VmaxSansAccXY = 6;
    t.VmaxAvecAccXY = 10;
    t.CourseY = 510;
    t.MargeFilBloc = 15;
    t.MargeOrigineBloc = 5;
    t.VitesseRapide = 8;
    return t;
}

TableMachine Qt4xM1() {
    TableMachine t = QuatreAxes();
    t.InvSignalSortieDir = {true, true, false, false, false};
    t.VmaxSansAccXY = 40;
    t.VmaxAvecAccXY = 80;
    t.CourseY = 505;
    t.MargeFilBloc = 20;
    t.MargeOrigineBloc = 10;
    t.VitesseRapide = 20;
    return t;
}

TableMachine Qt2d(const TableMachine& ancienne, std::int16_t chauffeMaxi, std::int16_t tempo) {
    TableMachine t = Commune();
    t.SortieDir = {2, 8, 0, 10, 0};
    t.SortieStep = {1, 7, 0, 9, 0};
    t.InvSignalSortieDir = {false, true, false, true, false};
    t.PasParTourMoteur = {200, 200, 200, 200, 0};
    t.MicroPas = {8, 8, 8, 8, 1};
    t.MmParTour = {1, 1, 1, 1};
    t.VmaxSansAccXY = 5;
    t.VmaxAvecAccXY = 8;
    t.PenteAcceleration = 7;
    t.ChauffeMaxiSur100 = chauffeMaxi;
    t.CourseX = 304;
    t.CourseY = 256;
    t.OrigineEnHaut = true;
    t.MargeFilPlateau = 2;
    t.MargeFilBloc = 2;
    t.MargeOrigineBloc = 2;
    t.TempoChauffe = tempo;
    t.VitesseRapide = 8;
    t.EcartementY1Y2 = 165;
    t.EcartementY1Plateau = 5;
    t.EcartementPlateauY2 = 5;
    // Deliberate: this column has no wire lengths, those of the machine before it stay.
    t.LongueurMaxiFil = ancienne.LongueurMaxiFil;
    t.DistanceRangementFilSousOrigine = ancienne.DistanceRangementFilSousOrigine;
    t.ChauffeNettoyage = chauffeMaxi;
    t.SwitchsActifs = true;
    t.OrigineAutomatique = true;
    t.MmToOrigine = {1, 1, 1, 1};
    t.ActiverRangementAuto = true;
    t.RangementSuivantX = 150;
    return t;
}

} // namespace

const std::vector<std::string>& NomsMachinesIntegrees() {
    static const std::vector<std::string> noms = {"(Defaut)", "QT4X-m1", "QT2d v12", "QT2d v10"};
    return noms;
}

bool EstMachineIntegree(const std::string& nom) {
    return Reconnaitre(nom) != Integree::Aucune;
}

bool LireMachineIntegree(const std::string& nom, TableMachine& table) {
    TableMachine t;
    switch (Reconnaitre(nom)) {
    case Integree::Aucune:
        return false;
    case Integree::Defaut:
        t = Defaut();
        break;
    case Integree::Qt4xM1:
        t = Qt4xM1();
        break;
    case Integree::Qt2dV12:
        t = Qt2d(table, 70, 2);
        break;
    case Integree::Qt2dV10:
        t = Qt2d(table, 80, 25);
        break;
    }
    t.Nom = nom;
    t.NumeroMemoire = table.NumeroMemoire;
    CalculerChampsDerives(t);
    table = t;
    return true;
}

} // namespace tessarel
