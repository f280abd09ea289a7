// Writes the cut path as a G-code file: both ends of the wire at the same place, each move timed.
#include "work2d/export_gcode.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "paths/durees.h"
#include "paths/gcode.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"
#include "work2d/vitesses.h"

namespace tessarel {

namespace {

// A line is written once that much travel (s) has gathered, strictly more.
constexpr double DureeMinimaleLigne = 0.01;
constexpr double SecondesParMinute = 60;

EnteteGcode EnteteGcodeTS2D(const Decoupe2D& decoupe, const OptionsDecoupe2D& options,
                            const TableMachine& table, const std::string& cheminProjet) {
    EnteteGcode entete;
    entete.cheminProjet = cheminProjet;
    entete.nomMachine = table.Nom;
    entete.corde1 = decoupe.SequenceAssemblee.Largeur;
    entete.corde2 = decoupe.SequenceAssemblee.Largeur;
    entete.lignesProjet = {"(Projet 2D)"}; // the same in every language
    entete.chauffe = options.chauffe;
    entete.tempoChauffe = table.TempoChauffe;
    entete.lettres = {table.NomAxeGcodeX1, table.NomAxeGcodeY1, table.NomAxeGcodeX2, table.NomAxeGcodeY2};
    return entete;
}

// Stretches too short for a line of their own join the next one. Deliberate: what is left at the end gets no
// line, the file ends up to 0.01 s of travel short.
std::size_t AjouterMouvements(FichierGcode& fichier, const std::vector<PointProfil>& points,
                              const std::vector<float>& durees, float rangement) {
    std::size_t mouvements = 0;
    double cumul = 0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        cumul += durees[i];
        if (!(cumul > DureeMinimaleLigne)) continue;
        const double y = points[i].Y + rangement;
        fichier.AjouterMouvement(points[i].X, y, points[i].X, y, SecondesParMinute / cumul);
        cumul = 0;
        ++mouvements;
    }
    return mouvements;
}

} // namespace

ExportGcode2D ConstruireGcode2D(const Decoupe2D& decoupe, const OptionsDecoupe2D& options,
                                const TableMachine& table, const std::string& cheminProjet) {
    const std::vector<PointProfil>& points = decoupe.SequenceDecoupe.Points;
    if (points.empty()) {
        AfficherExclamation(TextesDoubles(53, 1), TextesDoubles(53, 2));
        return {};
    }
    const float vitesse = VitesseEnVigueur(options, table);
    const auto durees = ChronometrerSegments(decoupe.SequenceDecoupe, vitesse, table.VitesseRapide);
    if (!durees) {
        AfficherExclamation(Texte(TexteProgramme::VitesseTropBasse),
                            Texte(TexteProgramme::TitreOperationImpossible));
        return {};
    }
    FichierGcode fichier;
    fichier.EcrireEntete(EnteteGcodeTS2D(decoupe, options, table, cheminProjet));
    fichier.Reserver(points.size());
    ExportGcode2D resultat;
    resultat.mouvements = AjouterMouvements(fichier, points, *durees, table.DistanceRangementFilSousOrigine);
    fichier.Terminer();
    resultat.dureeSecondes = DureeTotale(*durees, table.TempoChauffe);
    const ResumeGcode resume = {resultat.dureeSecondes, vitesse, options.chauffe};
    resultat.contenu = fichier.Texte(LigneResumeGcode(resume));
    resultat.resume = TexteResumeGcode(resume);
    return resultat;
}

} // namespace tessarel
