// Searches the origin of the machine: to the switches, out of them, to the origin.
#include "link/recherche_origine.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "link/echange.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"
#include "platform/pompe.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace tessarel {

namespace {

// Travel beyond the machine's own, so that the switch is met from anywhere, mm.
constexpr double SurplusCourse = 200;
// Back-off step, mm; the longer one on machines with a travel above `CourseDesGrandes`.
constexpr double PetitRecul = 0.1;
constexpr double GrandRecul = 0.2;
constexpr std::int32_t CourseDesGrandes = 600;
// A switch that is not left after this way is not going to close, mm.
constexpr double ReculMaxi = 2;
constexpr int Essais = 3;
// Argument of O: switches stop motion, or those of the origin may open.
constexpr std::uint8_t ModeUsuel = 0;
constexpr std::uint8_t ModeOrigines = 1;
// The one machine whose X2 has an origin switch of its own.
constexpr const char* MachineAvecOrigineX2 = "QT4X v10";
// Rows of TextesDoubles.
constexpr int RangeeSansInterrupteurs = 30;
constexpr int RangeeNouvelEssai = 33;
constexpr int RangeeEchec = 34;

using Distances = std::array<double, 4>; // steps by Axe; 0: not sought, or done

struct Recherche {
    const TableMachine& table;
    const SuiviMarche& suivi;
    int rangeeAnnulation;
    Distances distances = {};
    FinOrigine fin = FinOrigine::Trouvee;
};

bool EstY(std::size_t axe) {
    return axe == AxeY1 || axe == AxeY2;
}

// An axis that no output steps neither moves nor has a switch.
bool EstPresent(const TableMachine& table, std::size_t axe) {
    return table.SortieStep[axe] != 0;
}

// +1 or -1: the way to the switch.
int Sens(const TableMachine& table, std::size_t axe) {
    return EstY(axe) && table.OrigineEnHaut ? 1 : -1;
}

double PasParMillimetre(const TableMachine& table, std::size_t axe, std::size_t axeDuMm) {
    return table.PasParTour[axe] == 0 ? 0.0
                                      : static_cast<double>(table.PasParTour[axe]) / table.MmParTour[axeDuMm];
}

double LongueDistance(const TableMachine& table, std::size_t axe) {
    const double course = (EstY(axe) ? table.CourseY : table.CourseX) + SurplusCourse;
    // Deliberate: Y1 is measured with the ratio of Y2 in this one place. On every known machine both are
    // equal, and the travel is too long on purpose anyway.
    const std::size_t axeDuMm = axe == AxeY1 ? static_cast<std::size_t>(AxeY2) : axe;
    return Sens(table, axe) * ArrondiLong(course * PasParMillimetre(table, axe, axeDuMm));
}

std::vector<std::size_t> AxesADegager(const TableMachine& table) {
    std::vector<std::size_t> axes = {AxeY1, AxeY2, AxeX1};
    if (table.Nom == MachineAvecOrigineX2) axes.push_back(AxeX2);
    return axes;
}

bool Terminer(Recherche& r, FinOrigine fin, int rangee = 0) {
    r.fin = fin;
    if (rangee != 0) AfficherExclamation(TextesDoubles(rangee, 1), TextesDoubles(rangee, 2));
    return false;
}

// A stop was heard, and is not to cut short what puts the box back in order.
bool Annuler(Recherche& r) {
    if (r.suivi.demandes != nullptr)
        r.suivi.demandes->StopDemande = r.suivi.demandes->FinOrigineDemandee = false;
    return Terminer(r, FinOrigine::Annulee, r.rangeeAnnulation);
}

// False, with the search ended and told, after a move that must not be followed by another.
bool MouvementUtilisable(Recherche& r, const ResultatMouvement& mouvement) {
    switch (mouvement.marche.fin) {
    case FinMarche::Finie:
        return !mouvement.marche.statut.ArretBoutonStop || Annuler(r);
    case FinMarche::StopAvantMouvement:
    case FinMarche::Arretee:
        return Annuler(r);
    case FinMarche::SansRaison:
    case FinMarche::SansDuree:
    case FinMarche::Abandonnee:
    case FinMarche::Impossible:
        break;
    }
    AnnoncerMarcheAnormale(mouvement.marche.fin);
    return Terminer(r, FinOrigine::MarcheImpossible);
}

ResultatMouvement Bouger(const Recherche& r, const Distances& pas) {
    std::array<float, 4> simples = {};
    for (std::size_t axe = 0; axe < pas.size(); ++axe) simples[axe] = EnSimple(pas[axe]);
    return MouvementSimple(r.table, simples, r.table.VitesseDecoupeParDefaut, r.suivi);
}

// To the first switch. False when the search ends here.
bool AllerAuxInterrupteurs(Recherche& r) {
    for (;;) {
        const ResultatMouvement mouvement = Bouger(r, r.distances);
        if (!MouvementUtilisable(r, mouvement)) return false;
        if (mouvement.marche.statut.OrigineOuverteEnMouvement) return true;
        if (mouvement.marche.statut.FinCourseOuverteEnMouvement) {
            AnnoncerCause(CauseFin::FinCourseOuverte);
            return Terminer(r, FinOrigine::FinDeCourse);
        }
        // At the end of the way without a switch: once more.
    }
}

// The loops as two replies in a row tell them: nothing on the wire tells a spoilt reply from a sound one, and
// an axis that counts as released by mistake would put the whole cut beside its place. False when the user
// gives up.
bool LireBoucles(Recherche& r, StatutZelko& statut) {
    for (bool deja = false;; deja = true) {
        if (!EnvoyerJusquaReponse(CommandeStatut, 0, r.suivi)) return Annuler(r);
        const StatutZelko avant = statut;
        statut = LireStatut(TamponEchange);
        if (deja && statut.OrigineOuverte == avant.OrigineOuverte &&
            statut.FinCourseOuverte == avant.FinCourseOuverte)
            return true;
        LaisserPasserEvenements();
        if (r.suivi.demandes != nullptr && r.suivi.demandes->ArretVoulu()) return Annuler(r);
    }
}

// Out of the switch of one axis, in homing mode. The axis is done when its steps have closed the loop; one
// that finds the loop closed was not on its switch. False when the search ends here.
bool DegagerAxe(Recherche& r, std::size_t axe) {
    StatutZelko boucles;
    if (!LireBoucles(r, boucles)) return false;
    if (!boucles.OrigineOuverte) return true;
    const double recul = r.table.CourseX > CourseDesGrandes ? GrandRecul : PetitRecul;
    Distances pas = {};
    pas[axe] = -Sens(r.table, axe) * recul * PasParMillimetre(r.table, axe, axe);
    // The last one begins at ReculMaxi.
    const std::int32_t reculs = ArrondiLong(ReculMaxi / recul) + 1;
    for (std::int32_t faits = 0; faits < reculs; ++faits) {
        ResultatMouvement mouvement = Bouger(r, pas);
        if (!MouvementUtilisable(r, mouvement)) return false;
        const StatutZelko statut = mouvement.marche.statut;
        if (!LireBoucles(r, boucles)) return false;
        if (boucles.FinCourseOuverte || statut.FinCourseOuverteEnMouvement) {
            AnnoncerCause(CauseFin::FinCourseOuverte);
            return Terminer(r, FinOrigine::FinDeCourse);
        }
        if (!statut.FinDeListe || boucles.OrigineOuverte) continue;
        mouvement = Bouger(r, pas); // one more, so that the switch is left for good
        if (!MouvementUtilisable(r, mouvement)) return false;
        r.distances[axe] = 0;
        return true;
    }
    return true;
}

bool ToutDegage(const Recherche& r) {
    return std::ranges::all_of(AxesADegager(r.table), [&](std::size_t axe) { return r.distances[axe] == 0; });
}

// The mode must be known: in homing mode no switch would stop the next travel. False when the user gives up.
bool ChangerMode(Recherche& r, std::uint8_t mode) {
    return EnvoyerJusquaReponse(CommandeOrigine, mode, r.suivi) || Annuler(r);
}

// One travel to the switches and out of them. False when the search ends here.
bool UnPassage(Recherche& r) {
    if (!AllerAuxInterrupteurs(r) || !ChangerMode(r, ModeOrigines)) return false;
    bool continuer = true;
    for (const std::size_t axe : AxesADegager(r.table)) {
        if (r.distances[axe] != 0) continuer = continuer && DegagerAxe(r, axe);
    }
    return continuer;
}

// One direction: passages until every axis is done. A loop that stays open is a try that failed; one that
// closed with an axis left is none, that axis only was not on its switch yet.
FinOrigine ChercherDirection(Recherche& r) {
    int essais = 0;
    while (!ToutDegage(r)) {
        const Distances avant = r.distances;
        StatutZelko boucles;
        bool continuer = UnPassage(r) && LireBoucles(r, boucles);
        if (continuer)
            continuer = ChangerMode(r, ModeUsuel);
        else
            EnvoyerJusquaReponse(CommandeOrigine, ModeUsuel, r.suivi); // what ended it has been told already
        if (!continuer) return r.fin;
        if (!boucles.OrigineOuverte && r.distances != avant) continue;
        if (++essais == Essais) {
            Terminer(r, FinOrigine::EncoreOuverts, RangeeEchec);
            return r.fin;
        }
        AfficherExclamation(TextesDoubles(RangeeNouvelEssai, 1), TextesDoubles(RangeeNouvelEssai, 2));
    }
    return FinOrigine::Trouvee;
}

} // namespace

FinOrigine RechercheOrigine(const TableMachine& table, AxesOrigine axes, const SuiviMarche& suivi,
                            int rangeeAnnulation) {
    if (!table.SwitchsActifs) {
        // No switch would ever end the travel: the carriages would push at their ends until somebody stops
        // it.
        AfficherExclamation(TextesDoubles(RangeeSansInterrupteurs, 1),
                            TextesDoubles(RangeeSansInterrupteurs, 2));
        return FinOrigine::SansInterrupteurs;
    }
    for (const bool directionY : {true, false}) {
        if (axes == (directionY ? AxesOrigine::X : AxesOrigine::Y)) continue;
        Recherche r{table, suivi, rangeeAnnulation};
        for (std::size_t axe = 0; axe < r.distances.size(); ++axe)
            if (EstY(axe) == directionY && EstPresent(table, axe))
                r.distances[axe] = LongueDistance(table, axe);
        const FinOrigine fin = ChercherDirection(r);
        if (fin != FinOrigine::Trouvee) return fin;
    }
    return FinOrigine::Trouvee;
}

ResultatMouvement AllerDesInterrupteursALOrigine(const TableMachine& table, AxesOrigine axes,
                                                 const SuiviMarche& suivi) {
    std::array<float, 4> pas = {};
    for (std::size_t axe = 0; axe < pas.size(); ++axe) {
        const bool voulu = axes == AxesOrigine::XetY || EstY(axe) == (axes == AxesOrigine::Y);
        if (voulu) pas[axe] = EnSimple(-Sens(table, axe) * table.PasToOrigine[axe]);
    }
    return MouvementSimple(table, pas, table.VitesseDecoupeParDefaut, suivi);
}

bool AnnoncerMarcheAnormale(FinMarche fin) {
    // Rows of TextesMessages.
    constexpr int sansDuree = 173;
    constexpr int mouvementsDesactives = 247;
    switch (fin) {
    case FinMarche::SansRaison:
        AfficherCritique(Texte(TexteProgramme::MarcheSansRaison),
                         Texte(TexteProgramme::MarcheSansRaisonTitre));
        return true;
    case FinMarche::Abandonnee:
        AfficherCritique(Texte(TexteProgramme::MarcheAbandonnee),
                         Texte(TexteProgramme::MarcheAbandonneeTitre));
        return true;
    case FinMarche::SansDuree:
        AfficherCritique(TextesMessages(sansDuree), TitresMessages(sansDuree));
        return true;
    case FinMarche::Impossible:
        AfficherExclamation(TextesMessages(mouvementsDesactives), TitresMessages(mouvementsDesactives));
        return true;
    case FinMarche::StopAvantMouvement:
    case FinMarche::Arretee:
    case FinMarche::Finie:
        break;
    }
    return false;
}

} // namespace tessarel
