// The open and save dialogs behind one routine, so that a test can answer in the user's place.
#include "ui/choix_fichier.h"

#include "platform/fichiers.h"

#include <QApplication>
#include <QFileDialog>
#include <QStandardPaths>
#include <algorithm>
#include <cctype>
#include <utility>

namespace tessarel {

namespace {

std::string EnMajuscules(std::string texte) {
    for (char& c : texte) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return texte;
}

// "*.bmp; *.jpg" as the dialogs want it, "*.bmp *.BMP *.jpg *.JPG".
std::string MotifsPourDialogue(std::string_view motifs) {
    std::string sortie;
    for (const std::string_view brut : Decouper(motifs, ";")) {
        const std::string motif(Rogner(brut));
        if (motif.empty()) continue;
        if (!sortie.empty()) sortie += ' ';
        if (motif == "*.*") {
            sortie += '*';
            continue;
        }
        sortie += motif;
        if (const std::string majuscules = EnMajuscules(motif); majuscules != motif)
            sortie += ' ' + majuscules;
    }
    return sortie;
}

// The place of the filter in force, from 1; 0 for none. Some dialogs give it back whole, some without the
// patterns that they don't show.
int IndiceDuFiltre(const QStringList& filtres, const QString& choisi) {
    for (int i = 0; i < filtres.size(); ++i) {
        if (filtres.at(i) == choisi || filtres.at(i).startsWith(choisi + QStringLiteral(" ("))) return i + 1;
    }
    return 0;
}

FichiersChoisis DemanderParDialogue(const DemandeFichier& demande, QWidget* parent) {
    if (parent == nullptr) parent = QApplication::activeWindow();
    QString dossier = QString::fromStdString(demande.dossier);
    if (dossier.isEmpty() || !QDir(dossier).exists()) {
        dossier = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    }
    QFileDialog dialogue(parent, QString::fromStdString(demande.titre), dossier);
    if (demande.dossierSeul) {
        dialogue.setFileMode(QFileDialog::Directory);
        dialogue.setOption(QFileDialog::ShowDirsOnly);
    } else if (demande.enregistrer) {
        dialogue.setAcceptMode(QFileDialog::AcceptSave);
        dialogue.setFileMode(QFileDialog::AnyFile);
        if (!demande.extension.empty()) dialogue.setDefaultSuffix(QString::fromStdString(demande.extension));
    } else {
        dialogue.setFileMode(demande.plusieurs ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
    }
    QStringList filtres;
    for (const std::string& filtre : FiltresPourDialogue(demande.filtre)) {
        filtres << QString::fromStdString(filtre);
    }
    if (!filtres.isEmpty() && !demande.dossierSeul) {
        // The label tells the pattern already; what the dialog adds would only tell it twice.
        dialogue.setOption(QFileDialog::HideNameFilterDetails);
        dialogue.setNameFilters(filtres);
        const int indice = std::clamp(demande.indiceFiltre - 1, 0, static_cast<int>(filtres.size()) - 1);
        dialogue.selectNameFilter(filtres.at(indice));
    }
    if (!demande.nomPropose.empty()) dialogue.selectFile(QString::fromStdString(demande.nomPropose));
    if (dialogue.exec() != QDialog::Accepted) return {};
    FichiersChoisis choix;
    for (const QString& chemin : dialogue.selectedFiles()) choix.chemins.push_back(chemin.toStdString());
    choix.indiceFiltre = IndiceDuFiltre(filtres, dialogue.selectedNameFilter());
    return choix;
}

ChoisisseurFichier& ChoisisseurCourant() {
    static ChoisisseurFichier choisisseur = DemanderParDialogue;
    return choisisseur;
}

} // namespace

std::vector<std::string> FiltresPourDialogue(const std::string& filtre) {
    const std::vector<std::string_view> pieces = Decouper(filtre, "|");
    std::vector<std::string> filtres;
    for (std::size_t i = 0; i + 1 < pieces.size(); i += 2) {
        filtres.push_back(std::string(Rogner(pieces[i])) + " (" + MotifsPourDialogue(pieces[i + 1]) + ")");
    }
    return filtres;
}

FichiersChoisis ChoisirFichier(const DemandeFichier& demande, QWidget* parent) {
    return ChoisisseurCourant()(demande, parent);
}

ChoisisseurFichier InstallerChoisisseurFichier(ChoisisseurFichier choisisseur) {
    if (!choisisseur) choisisseur = DemanderParDialogue;
    return std::exchange(ChoisisseurCourant(), std::move(choisisseur));
}

} // namespace tessarel
