// The library beside the table: the tree of the user's files and the commands on it.
#pragma once

#include <QFileSystemWatcher>
#include <QIcon>
#include <QTimer>
#include <QWidget>
#include <string>

class QByteArray;
class QLabel;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace tessarel {

struct ContenuBibliotheque;
struct DossierBibliotheque;

// Shows DossiersProgramme.Bibliotheque. It opens nothing itself: it says which file was looked at or chosen.
// Its folders are watched, so that what other programs save there appears by itself.
class PanneauBibliotheque : public QWidget {
    Q_OBJECT
public:
    explicit PanneauBibliotheque(QWidget* parent = nullptr);

    // Reads the library anew. The current file, if a name is given, is selected and made visible; one that is
    // not in the library is said to be outside. Folders that were open stay open.
    void RemplirArbreBibliotheque(const std::string& nomFichierCourant);

    // Full path of the selected file; empty for a folder or nothing.
    [[nodiscard]] std::string FichierSelectionne() const;

signals:
    // These come once the tree's own handling is over. A path is the file's bytes.
    void FichierRegarde(const QByteArray& chemin);
    void FichierChoisi(const QByteArray& chemin);
    void FichierJete(const QByteArray& chemin);

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    void Disposer();
    void Relier();
    void AjouterDossierArbre(const DossierBibliotheque& dossier, QTreeWidgetItem& noeud);
    void Surveiller(const ContenuBibliotheque& contenu);
    [[nodiscard]] QTreeWidgetItem* NoeudDuFichier(const std::string& chemin) const;
    void TreeBibliothequeTS2D_NodeClick(QTreeWidgetItem* noeud);
    void Choisir(QTreeWidgetItem* noeud);
    void EffacerFichier();
    void ImporterProfil();

    QTreeWidget* TreeBibliothequeTS2D = nullptr;
    QToolButton* cmdRafraichir = nullptr;
    QToolButton* cmdImporterProfil = nullptr;
    QToolButton* cmdEffacerFichier = nullptr;
    QLabel* lblFichierExterieur = nullptr;
    QIcon m_iconeDossier;
    QIcon m_iconeProjet;
    QIcon m_iconeDessin;
    QFileSystemWatcher m_surveillance;
    QTimer m_attenteChangement; // a burst of changes is one
    std::string m_fichierCourant;
};

} // namespace tessarel
