// Block position: typing, limits, automatic choices, and the memo of its dimensions.
#include "cut4x/position_bloc4x.h"
#include "cut4x/controle4x.h"
#include "cut4x/vitesses4x.h"

#include "app/texts/textes.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace tessarel {

namespace {

constexpr float PositionAutoX = 10; // mm
constexpr float PositionAutoY = 0;
constexpr Masque MasqueMemo = "####0.0#";
constexpr const char* FinLigne = "\r\n";

double ResteDuPlateau(const ProjetCPX& projet, const TableMachine& table) {
    return double{LargeurPlateau(table)} - projet.Ecartement;
}

void PoserZ(double offset, const ProjetCPX& projet, const TableMachine& table,
            ParametresDecoupe4axes& parametres) {
    parametres.TypePositionZ = AlignementZ::Saisi;
    parametres.OffsetBlocZ = EnSimple(offset);
    AppliquerAlignementZ(projet.Ecartement, table, parametres);
}

void DireZHorsPlateau(int rangee, double valeur) {
    AfficherExclamation(TextesMessages(rangee) + FormaterSimple(EnSimple(valeur)) + TitresMessages(rangee),
                        TitresMessages(110));
}

// Heights of the two ends of the wire, parking place left out, laid out for one pass per position.
struct Hauteurs {
    std::vector<double> E;
    std::vector<double> S;
};
Hauteurs HauteursInterieures(const PaireD4X& bloc) {
    Hauteurs hauteurs;
    for (std::size_t i = 1; i + 1 < bloc.E.size(); ++i) {
        hauteurs.E.push_back(bloc.E[i].Y);
        hauteurs.S.push_back(bloc.S[i].Y);
    }
    return hauteurs;
}

double EcartDesEtendues(const Hauteurs& hauteurs, const ProjectionFil& fil) {
    constexpr double infini = std::numeric_limits<double>::infinity();
    double min1 = infini;
    double max1 = -infini;
    double min2 = infini;
    double max2 = -infini;
    for (std::size_t i = 0; i < hauteurs.E.size(); ++i) {
        const double y1 = fil.Chariot1(hauteurs.S[i], hauteurs.E[i]);
        const double y2 = fil.Chariot2(hauteurs.S[i], hauteurs.E[i]);
        min1 = std::min(min1, y1);
        max1 = std::max(max1, y1);
        min2 = std::min(min2, y2);
        max2 = std::max(max2, y2);
    }
    return std::fabs((max2 - min2) - (max1 - min1));
}

std::string LigneMemo(int rangee, double valeur) {
    return TextesMessages(rangee) + FormaterNombre(valeur, MasqueMemo) + " mm" + FinLigne;
}

} // namespace

double DistanceZ2(const ProjetCPX& projet, const TableMachine& table,
                  const ParametresDecoupe4axes& parametres) {
    return ResteDuPlateau(projet, table) - parametres.OffsetBlocZ;
}

void SaisirZ1(double z1, const ProjetCPX& projet, const TableMachine& table,
              ParametresDecoupe4axes& parametres) {
    const double reste = ResteDuPlateau(projet, table);
    if (z1 > reste) {
        DireZHorsPlateau(138, z1);
        z1 = reste;
    }
    PoserZ(z1, projet, table, parametres);
}

void SaisirZ2(double z2, const ProjetCPX& projet, const TableMachine& table,
              ParametresDecoupe4axes& parametres) {
    const double reste = ResteDuPlateau(projet, table);
    double offset = reste - z2;
    if (z2 > reste) {
        DireZHorsPlateau(139, z2);
        offset = 0;
    }
    PoserZ(offset, projet, table, parametres);
}

void VerifierPositionZ(const ProjetCPX& projet, const TableMachine& table,
                       ParametresDecoupe4axes& parametres) {
    if (parametres.TypePositionZ == AlignementZ::Saisi &&
        parametres.OffsetBlocZ > EnSimple(ResteDuPlateau(projet, table))) {
        AfficherExclamation(TextesMessages(110) + FormaterSimple(parametres.OffsetBlocZ) +
                                TextesMessages(111),
                            TitresMessages(110));
        parametres.TypePositionZ = AlignementZ::Bord2;
    }
    AppliquerAlignementZ(projet.Ecartement, table, parametres);
}

ParametresDecoupe4axes PositionAutomatiqueXY(const ContexteD4X& contexte, DecoupeD4X& decoupe) {
    ParametresDecoupe4axes parametres = contexte.Parametres;
    const ContexteD4X essai = {contexte.Projet, parametres, contexte.Matiere, contexte.Table};
    parametres.OffsetBlocX = PositionAutoX;
    parametres.OffsetBlocY = PositionAutoY;
    CalculerDecoupeD4X(essai, decoupe);
    const BornesD4X bornes = LimitesSequencesD4X(decoupe.PaireChariots);
    if (bornes.Xmin < 0)
        parametres.OffsetBlocX = EnSimple(parametres.OffsetBlocX - PartieEntiere(bornes.Xmin));
    if (bornes.Ymin < 0)
        parametres.OffsetBlocY = EnSimple(parametres.OffsetBlocY - PartieEntiere(bornes.Ymin));
    CalculerDecoupeD4X(essai, decoupe);
    return parametres;
}

int PlacementAutoBlocZ(const ContexteD4X& contexte, const DecoupeD4X& decoupe) {
    const TableMachine& table = contexte.Table;
    const Hauteurs hauteurs = HauteursInterieures(decoupe.PaireBloc);
    if (hauteurs.E.empty() || decoupe.PaireBloc.Ecartement == 0) return 0;
    const int fin = static_cast<int>(PartieEntiere(LargeurPlateau(table)));
    int meilleur = 0;
    double moindre = std::numeric_limits<double>::infinity();
    for (int k = 0; k <= fin; ++k) {
        const float ZSaumon = EnSimple(double{table.EcartementY1Plateau} + k);
        const double ecart =
            EcartDesEtendues(hauteurs, ProjectionDuFil(table, ZSaumon, decoupe.PaireBloc.Ecartement));
        if (ecart < moindre) {
            moindre = ecart;
            meilleur = k;
        }
    }
    return meilleur;
}

std::string TexteMemoBloc(const DecoupeD4X& decoupe) {
    const FaceBloc& un = decoupe.blocS;
    const FaceBloc& deux = decoupe.blocE;
    const double devant = std::min(un.Xbf, deux.Xbf);
    std::string texte = LigneMemo(113, decoupe.PairePositionnee.Ecartement);
    texte += LigneMemo(114, decoupe.PairePositionnee.Epaisseur);
    texte += LigneMemo(115, un.Xba - un.Xbf);
    texte += LigneMemo(116, deux.Xba - deux.Xbf);
    texte += LigneMemo(117, un.Xbf - devant);
    texte += LigneMemo(120, deux.Xbf - devant);
    texte += LigneMemo(119, std::max(un.Xba, deux.Xba) - devant);
    return texte + TextesMessages(118);
}

} // namespace tessarel
