// Makes a 2D cut ready for the machine.
#include "work2d/preparation_decoupe.h"

#include "app/texts/textes.h"
#include "platform/dialogue.h"
#include "platform/erreurs.h"
#include "work2d/vitesses.h"

#include <algorithm>

namespace tessarel {

namespace {

constexpr int RangeeDureeIncalculable = 36; // of TextesDoubles

PointProfil PointArret(const PasAxes& position, const TableMachine& table) {
    PointProfil point;
    point.X = MillimetresDePas(table, AxeX1, position[AxeX1]);
    point.Y = MillimetresDePas(table, AxeY1, position[AxeY1]);
    return point;
}

bool AssezVite(const Sequence& SequenceDecoupe) {
    return std::ranges::all_of(SequenceDecoupe.Points,
                               [](const PointProfil& sommet) { return sommet.Vitesse >= VitesseMinimale; });
}

} // namespace

float CalculerSalvesEtDuree(const Sequence& SequenceDecoupe, std::int16_t tempo, float chauffe,
                            const TableMachine& table, ListeDeDecoupe& liste,
                            const std::optional<PasAxes>& depart) {
    try {
        liste = PreparerSalves(SequenceDecoupe.Points, tempo, chauffe, table, depart);
    } catch (const FauteDepassement&) {
        liste = {};
        return DureeIncalculable;
    }
    // A refused frame does nothing, and all that follows would be cut beside its place.
    const bool entiere =
        std::ranges::all_of(liste.salves, [](const Salve& salve) { return salve.Statut == StatutSucces; });
    return entiere && AssezVite(SequenceDecoupe) ? liste.duree : DureeIncalculable;
}

DecoupePreparee PreparerDecoupeTS2D(const Decoupe2D& decoupe, const OptionsDecoupe2D& options,
                                    const TableMachine& table, const std::string& nomMatiere,
                                    const std::optional<PasAxes>& depart) {
    DecoupePreparee preparee;
    preparee.TempoChauffeCourante = TempoChauffePourChauffe(options.chauffe, table);
    const float duree = CalculerSalvesEtDuree(decoupe.SequenceDecoupe, preparee.TempoChauffeCourante,
                                              options.chauffe, table, preparee.liste, depart);
    preparee.resume = PreparerResume(duree, options, table, nomMatiere);
    preparee.possible = duree != DureeIncalculable && decoupe.SequenceDecoupe.Points.size() > 1;
    if (duree == DureeIncalculable)
        AfficherExclamation(TextesDoubles(RangeeDureeIncalculable, 1),
                            TextesDoubles(RangeeDureeIncalculable, 2));
    return preparee;
}

Sequence SequenceDeReprise(const Sequence& SequenceDecoupe, std::int32_t k, const PasAxes& position,
                           float vitesse, const TableMachine& table) {
    const std::vector<PointProfil>& points = SequenceDecoupe.Points;
    if (k < 2 || static_cast<std::size_t>(k) > points.size())
        throw FauteInterne("SequenceDeReprise: k = " + std::to_string(k));
    // Vertex k - 1, counted from 1, becomes the stop point and the first of what is left.
    const std::ptrdiff_t avant = k - 2;
    Sequence reste = SequenceDecoupe;
    reste.Points.assign(points.begin() + avant, points.end());
    const PointProfil arret = PointArret(position, table);
    reste.Points.front().X = arret.X;
    reste.Points.front().Y = arret.Y;
    reste.Points.front().Rapide = false;
    // The wire starts from rest in the middle of a segment: at the speed of a rapid one the motors would lose
    // steps, and it may be in the foam.
    AppliquerVitesses(reste, vitesse, table.VitesseRapide);
    CalculerBornesSequence(reste);
    return reste;
}

Sequence SequenceDeRetour(std::int32_t k, const PasAxes& position, TrajetRetour trajet, float vitesse,
                          const TableMachine& table) {
    constexpr std::int32_t premierSegmentEloigne = 3;
    const PointProfil arret = PointArret(position, table);
    PointProfil origine;
    origine.Y = table.OrigineEnHaut ? table.CourseY : 0;
    Sequence retour;
    retour.Points = {arret, origine};
    if (k >= premierSegmentEloigne) {
        PointProfil milieu;
        const bool direct = trajet == TrajetRetour::Direct;
        milieu.X = direct ? (arret.X + origine.X) / 2 : 0;
        milieu.Y = direct ? (arret.Y + origine.Y) / 2 : arret.Y;
        retour.Points.insert(retour.Points.begin() + 1, milieu);
    }
    for (PointProfil& point : retour.Points) point.Vitesse = vitesse;
    CalculerBornesSequence(retour);
    return retour;
}

} // namespace tessarel
