// Writes both carriages' paths as timed moves, with the stop points between them.
#include "cut4x/export_gcode4x.h"

#include "app/texts/textes.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"

namespace tessarel {

namespace {

// A line is written once that much time (s) has gathered, strictly more.
constexpr double DureeMinimaleLigne = 0.01;
constexpr double SecondesParMinute = 60;

std::string EnCommentaire(const std::string& texte) {
    return "(" + texte + ")";
}

// The chords are those of the stored pair, also when the cut is mirrored.
EnteteGcode EnteteGcode4axes(const ContexteD4X& contexte, const std::string& cheminProjet) {
    const TableMachine& table = contexte.Table;
    const auto largeur = [](const ProfilCPX& profil) {
        return EnSimple(double{profil.Extremes.Xmax} - profil.Extremes.Xmin);
    };
    EnteteGcode entete;
    entete.cheminProjet = cheminProjet;
    entete.nomMachine = table.Nom;
    entete.corde1 = largeur(contexte.Projet.E);
    entete.corde2 = largeur(contexte.Projet.S);
    entete.masqueCordes = std::nullopt;
    entete.lignesProjet = {
        EnCommentaire(TitresMessages(179) + FormaterSimple(contexte.Projet.Ecartement) + "mm")};
    entete.chauffe = contexte.Matiere.Chauffe;
    entete.tempoChauffe = table.TempoChauffe;
    entete.lettres = {table.NomAxeGcodeX1, table.NomAxeGcodeY1, table.NomAxeGcodeX2, table.NomAxeGcodeY2};
    return entete;
}

void AjouterPointArret(FichierGcode& fichier) {
    fichier.AjouterLigne(EnCommentaire(TextesMessages(159)));
    fichier.AjouterLigne("M0");
    fichier.AjouterLigne(EnCommentaire(TitresMessages(159)));
}

// Time is that of carriage 1, added up in 32 bits; moves too short for a line join the next. Deliberate: what
// is left at the end gets no line, and a stop inside such a stretch keeps its place without one.
std::size_t AjouterMouvements(FichierGcode& fichier, const PaireD4X& chariots, double rangement) {
    std::size_t mouvements = 0;
    float cumul = 0;
    bool premier = true;
    for (const EtendueTroncon& troncon : EtenduesTroncons(chariots)) {
        if (!premier) AjouterPointArret(fichier);
        premier = false;
        for (std::size_t p = troncon.premier; p < troncon.dernier; ++p) {
            cumul = EnSimple(double{cumul} + chariots.S[p].Duree);
            if (!(cumul > DureeMinimaleLigne)) continue;
            const PointProfil& p1 = chariots.S[p + 1];
            const PointProfil& p2 = chariots.E[p + 1];
            fichier.AjouterMouvement(p1.X, rangement + p1.Y, p2.X, rangement + p2.Y,
                                     SecondesParMinute / cumul);
            cumul = 0;
            ++mouvements;
        }
    }
    return mouvements;
}

} // namespace

ExportGcode4axes ConstruireGcode4axes(const ContexteD4X& contexte, const DecoupeD4X& decoupe,
                                      const std::string& cheminProjet) {
    ExportGcode4axes resultat;
    resultat.preparation = PreparerSalvesD4X(contexte, decoupe, true);
    if (resultat.preparation.Resultat != PreparationBonne) return resultat;
    FichierGcode fichier;
    fichier.EcrireEntete(EnteteGcode4axes(contexte, cheminProjet));
    fichier.Reserver(decoupe.PaireChariots.E.size());
    resultat.mouvements =
        AjouterMouvements(fichier, decoupe.PaireChariots, contexte.Table.DistanceRangementFilSousOrigine);
    fichier.Terminer();
    resultat.contenu = fichier.Texte(LigneResumeGcode(resultat.preparation.resume));
    return resultat;
}

void AnnoncerExportGcode4axes(const std::string& chemin, const ResumeGcode& resume) {
    AfficherInformation(TextesMessages(168) + chemin + "\r\n" + TexteResumeGcode(resume), "");
}

} // namespace tessarel
