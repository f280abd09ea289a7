// Defaults of the 4-axis cut, its exchange with a project, and where the block stands along the wire.
#include "cut4x/parametres_decoupe4x.h"

#include "platform/nombres.h"

namespace tessarel {

ParametresDecoupe4axes ParametresD4X;

float LargeurPlateau(const TableMachine& table) {
    return EnSimple(double{table.EcartementY1Y2} - table.EcartementY1Plateau - table.EcartementPlateauY2);
}

ParametresDecoupe4axes ParametresDecoupe4axesInitiaux(const TableMachine& table) {
    ParametresDecoupe4axes parametres;
    parametres.OffsetBlocX = table.MargeOrigineBloc;
    // A block of no width at the far edge of the plateau, until a project says better.
    parametres.OffsetBlocZ = LargeurPlateau(table);
    parametres.ZSaumon = EnSimple(double{table.EcartementY1Plateau} + parametres.OffsetBlocZ);
    parametres.ZEmplanture = parametres.ZSaumon;
    return parametres;
}

void InitialiserParametresDecoupe4axes() {
    ParametresD4X = ParametresDecoupe4axesInitiaux(TableINI);
}

void ReprendreParametresProjet(const Projet4axes& projet, const TableMachine& table,
                               ParametresDecoupe4axes& parametres) {
    parametres.TypeEntree = static_cast<TypeEntreeD4X>(projet.TypeEntree);
    parametres.TypeApprocheBF = static_cast<TypeApprocheD4X>(projet.TypeApprocheBF);
    parametres.TypeSortie = static_cast<TypeEntreeD4X>(projet.TypeSortie);
    parametres.TypeRetourBF = static_cast<TypeApprocheD4X>(projet.TypeRetourBF);
    parametres.SortieIntermediaire = static_cast<SortieIntermediaireD4X>(projet.SortieIntermediaire);
    parametres.CurseurSortieIntermediaire = projet.CurseurSortieIntermediaire;
    parametres.CurseurSortieIntermediaire2 = projet.CurseurSortieIntermediaire2;
    parametres.TypePositionZ = static_cast<AlignementZ>(projet.TypePositionZ);
    parametres.CoteDecalage = static_cast<CoteDecalageD4X>(projet.CoteDecalage);
    parametres.TypeAlgorithmeDecalage = static_cast<AlgorithmeDecalageD4X>(projet.TypeAlgorithmeDecalage);
    parametres.EpaisseurLests = EnSimple(projet.EpaisseurLests);
    parametres.OffsetBlocX = EnSimple(projet.OffsetBlocX);
    parametres.OffsetBlocY = EnSimple(projet.OffsetBlocY);
    parametres.OffsetBlocZ = EnSimple(projet.OffsetBlocZ);
    AppliquerAlignementZ(EnSimple(projet.Ecartement), table, parametres);
}

void ReporterParametresProjet(const ParametresDecoupe4axes& parametres, Projet4axes& projet) {
    projet.TypeEntree = static_cast<int>(parametres.TypeEntree);
    projet.TypeApprocheBF = static_cast<int>(parametres.TypeApprocheBF);
    projet.TypeSortie = static_cast<int>(parametres.TypeSortie);
    projet.TypeRetourBF = static_cast<int>(parametres.TypeRetourBF);
    projet.SortieIntermediaire = static_cast<int>(parametres.SortieIntermediaire);
    projet.CurseurSortieIntermediaire = parametres.CurseurSortieIntermediaire;
    projet.CurseurSortieIntermediaire2 = parametres.CurseurSortieIntermediaire2;
    projet.TypePositionZ = static_cast<int>(parametres.TypePositionZ);
    projet.CoteDecalage = static_cast<int>(parametres.CoteDecalage);
    projet.TypeAlgorithmeDecalage = static_cast<int>(parametres.TypeAlgorithmeDecalage);
    projet.EpaisseurLests = DecimalSimple(parametres.EpaisseurLests);
    projet.OffsetBlocX = DecimalSimple(parametres.OffsetBlocX);
    projet.OffsetBlocY = DecimalSimple(parametres.OffsetBlocY);
    projet.OffsetBlocZ = DecimalSimple(parametres.OffsetBlocZ);
}

void AppliquerAlignementZ(float ecartement, const TableMachine& table, ParametresDecoupe4axes& parametres) {
    const double plateau = LargeurPlateau(table);
    const double bord = table.EcartementY1Plateau;
    switch (parametres.TypePositionZ) {
    case AlignementZ::Bord1:
        parametres.OffsetBlocZ = 0;
        parametres.ZSaumon = table.EcartementY1Plateau;
        break;
    case AlignementZ::Bord2:
        parametres.OffsetBlocZ = EnSimple(plateau - ecartement);
        parametres.ZSaumon = EnSimple(plateau + bord - ecartement);
        break;
    case AlignementZ::Centre:
        parametres.OffsetBlocZ = EnSimple((plateau - ecartement) / 2);
        parametres.ZSaumon = EnSimple(bord + (plateau - ecartement) / 2);
        break;
    case AlignementZ::Saisi:
        parametres.ZSaumon = EnSimple(bord + parametres.OffsetBlocZ);
        break;
    }
    parametres.ZEmplanture = EnSimple(double{parametres.ZSaumon} + ecartement);
}

} // namespace tessarel
