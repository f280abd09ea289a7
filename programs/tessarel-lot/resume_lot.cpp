// The summary of a cut as text: duration, speed, heat, offset, kerf, counts of points.
#include "resume_lot.h"

#include "langue_lot.h"
#include "machine_lot.h"
#include "verbes.h"

#include "machine/matieres.h"
#include "paths/durees.h"
#include "platform/fichiers.h"
#include "platform/nombres.h"

#include <cmath>

namespace tessarel::lot {

namespace {

constexpr std::size_t LargeurLibelle = 14; // columns

// Characters of a UTF-8 text, as columns of a terminal for the letters used here.
std::size_t Colonnes(const std::string& texte) {
    std::size_t n = 0;
    for (const char c : texte)
        if ((static_cast<unsigned char>(c) & 0xC0U) != 0x80U) ++n;
    return n;
}

std::string Millimetres(float valeur, Masque masque) {
    return FormaterNombre(valeur, masque) + " mm";
}

std::string TexteLecture(const LectureLot& lecture) {
    std::string texte = std::to_string(lecture.sequences) + Dire(" tracé(s), ", " path(s), ") +
                        std::to_string(lecture.points) + " points";
    if (lecture.pointsRetires > 0)
        texte += Dire(" (", " (") + std::to_string(lecture.pointsRetires) +
                 Dire(" retirés au nettoyage)", " removed by the cleanup)");
    return texte;
}

std::string LignesLecture(const LectureLot& lecture) {
    std::string texte = LigneResume(Dire("Lu", "Read"), TexteLecture(lecture));
    if (!lecture.ignores.empty())
        texte += LigneResume(Dire("Ignoré", "Skipped"), TexteComptes(lecture.ignores));
    for (const std::string& note : lecture.notes) texte += LigneResume("Note", note);
    return texte;
}

std::string TexteDecalage(const OptionsDecoupe2D& options) {
    const float distance = DistanceDecalage(options, TableINI);
    const std::string valeur = Millimetres(std::fabs(distance), "##0.0##");
    switch (options.decalage) {
    case CoteDecalage2D::Gauche:
        return valeur + Dire(" à gauche", " to the left");
    case CoteDecalage2D::Droite:
        return valeur + Dire(" à droite", " to the right");
    case CoteDecalage2D::Aucun:
        break;
    }
    return Dire("aucun", "none");
}

std::string TextePoints(const Decoupe2D& decoupe, const ExportGcode2D& gcode) {
    return std::to_string(decoupe.SequenceAssemblee.Points.size()) + Dire(" assemblés, ", " assembled, ") +
           std::to_string(decoupe.SequenceDecoupe.Points.size()) +
           Dire(" dans le trajet, ", " in the path, ") + std::to_string(gcode.mouvements) +
           Dire(" mouvements", " moves");
}

} // namespace

void LectureLot::Ajouter(const OuvertureFichier& ouverture) {
    sequences += ouverture.sequences;
    points += ouverture.points;
    pointsRetires += ouverture.pointsRetires;
    for (const auto& [genre, nombre] : ouverture.rapport.ignores) ignores[genre] += nombre;
    notes.insert(notes.end(), ouverture.rapport.notes.begin(), ouverture.rapport.notes.end());
}

std::string TexteComptes(const std::map<std::string, int>& comptes) {
    std::string texte;
    for (const auto& [genre, nombre] : comptes)
        texte += (texte.empty() ? "" : ", ") + std::to_string(nombre) + " " + genre;
    return texte;
}

std::string LigneResume(const std::string& libelle, const std::string& valeur) {
    const std::size_t colonnes = Colonnes(libelle);
    const std::size_t blancs = colonnes < LargeurLibelle ? LargeurLibelle - colonnes : 1;
    return libelle + std::string(blancs, ' ') + valeur + "\n";
}

std::string TexteConversion(const std::string& entree, const LectureLot& lecture, const std::string& sortie) {
    std::string texte = LigneResume(Dire("Fichier", "File"), entree);
    return texte + LignesLecture(lecture) + LigneResume(Dire("Écrit", "Written"), sortie);
}

int ImprimerResume(const std::vector<std::string>& fichiers, const LectureLot& lecture,
                   const Espace2D& espace, const Decoupe2D& decoupe, const OptionsDecoupe2D& options,
                   const ExportGcode2D& gcode, const std::vector<std::string>& ecrits) {
    std::string texte;
    for (const std::string& fichier : fichiers) texte += LigneResume(Dire("Fichier", "File"), fichier);
    texte += LignesLecture(lecture);
    texte += LigneResume("Machine", TableINI.Nom);
    texte += LigneResume(Dire("Matière", "Material"), NomAffiche(MatiereCourante));
    texte += LigneResume(Dire("Bloc", "Block"), FormaterNombre(espace.bloc.BlocX, "#####0.##") + " x " +
                                                    Millimetres(espace.bloc.BlocY, "#####0.##"));
    texte +=
        LigneResume(Dire("Durée", "Duration"), std::string(Rogner(TexteDureeGcode(gcode.dureeSecondes))));
    texte += LigneResume(Dire("Vitesse", "Speed"),
                         FormaterNombre(VitesseEnVigueur(options, TableINI), "##0.0") + " mm/s");
    texte += LigneResume(Dire("Chauffe", "Heating"), FormaterNombre(options.chauffe, "##0.0") + " %");
    texte +=
        LigneResume(Dire("Saignée", "Kerf"), Millimetres(SaigneeEnVigueur(options, TableINI), "##0.0##"));
    texte += LigneResume(Dire("Décalage", "Offset"), TexteDecalage(options));
    texte += LigneResume("Points", TextePoints(decoupe, gcode));
    for (const std::string& ecrit : ecrits) texte += LigneResume(Dire("Écrit", "Written"), ecrit);
    return Imprimer(texte);
}

} // namespace tessarel::lot
