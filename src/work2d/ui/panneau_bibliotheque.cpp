// The library's tree, its commands, and the watch over its folders.
#include "work2d/ui/panneau_bibliotheque.h"

#include "app/settings/gestion_ini.h"
#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "paths/bibliotheque.h"
#include "paths/import.h"
#include "platform/corbeille.h"
#include "platform/dialogue.h"
#include "platform/dossiers.h"
#include "platform/fichiers.h"
#include "ui/attente.h"
#include "ui/boites_qt.h"
#include "ui/choix_fichier.h"
#include "ui/icones.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QSet>
#include <QShortcut>
#include <QSignalBlocker>
#include <QToolButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <utility>

namespace tessarel {

namespace {

// Rows of the text tables.
constexpr int MessagesChoisirFichiers = 204;
constexpr int MessagesRienASupprimer = 205;
constexpr int MessagesJete = 206;
constexpr int MessagesJeteEnVain = 207;
constexpr int MessagesChoisirDossier = 208;
constexpr int DoublesCopieAnnulee = 50;
constexpr int DoublesCopieFaite = 51;
// "Erreur de saisie": the title of a command given without what it acts on.
constexpr int TitreErreurDeSaisie = 218;

constexpr int RoleChemin = Qt::UserRole;      // bytes of the full path
constexpr int RoleFichier = Qt::UserRole + 1; // true for a file
constexpr int DelaiChangement = 300;          // ms
constexpr int DossiersSurveillesMax = 2000;   // the system's watches are few; F5 reaches all
constexpr int CoteIcone = 18;                 // pixels
constexpr const char* NomRacine = "Bibliotheque";

QByteArray EnOctets(const std::string& chemin) {
    return QByteArray::fromStdString(chemin);
}

bool EstFichier(const QTreeWidgetItem* noeud) {
    return noeud != nullptr && noeud->data(0, RoleFichier).toBool();
}

QByteArray CheminDe(const QTreeWidgetItem* noeud) {
    return noeud->data(0, RoleChemin).toByteArray();
}

QToolButton* Bouton(const char* nom) {
    auto* bouton = new QToolButton;
    bouton->setObjectName(QString::fromLatin1(nom));
    bouton->setAutoRaise(true);
    bouton->setIconSize({CoteIcone, CoteIcone});
    return bouton;
}

QTreeWidgetItem* Noeud(const std::string& nom, const std::string& chemin, bool fichier, const QIcon& icone) {
    auto* noeud = new QTreeWidgetItem({QString::fromStdString(nom)});
    noeud->setData(0, RoleChemin, EnOctets(chemin));
    noeud->setData(0, RoleFichier, fichier);
    noeud->setIcon(0, icone);
    noeud->setToolTip(0, QString::fromStdString(chemin));
    return noeud;
}

QSet<QByteArray> CheminsOuverts(QTreeWidget& arbre) {
    QSet<QByteArray> ouverts;
    for (QTreeWidgetItemIterator i(&arbre); *i != nullptr; ++i) {
        if ((*i)->isExpanded()) ouverts.insert(CheminDe(*i));
    }
    return ouverts;
}

void ListerDossiers(const DossierBibliotheque& dossier, QStringList& chemins) {
    if (chemins.size() >= DossiersSurveillesMax) return;
    chemins << QString::fromStdString(dossier.chemin);
    for (const DossierBibliotheque& suivant : dossier.dossiers) ListerDossiers(suivant, chemins);
}

} // namespace

PanneauBibliotheque::PanneauBibliotheque(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("frameBibliotheque"));
    m_iconeDossier = Icone(QStringLiteral("dossier"));
    m_iconeProjet = Icone(QStringLiteral("projet"));
    m_iconeDessin = Icone(QStringLiteral("dessin"));
    Disposer();
    Relier();
}

void PanneauBibliotheque::Disposer() {
    auto* titre = new QLabel;
    titre->setObjectName(QStringLiteral("lblBibliotheque"));
    QFont police = titre->font();
    police.setBold(true);
    titre->setFont(police);
    cmdRafraichir = Bouton("cmdRafraichir");
    cmdImporterProfil = Bouton("cmdImporterProfil");
    cmdEffacerFichier = Bouton("cmdEffacerFichier");
    auto* entete = new QHBoxLayout;
    entete->setSpacing(0);
    entete->addWidget(titre, 1);
    for (QToolButton* bouton : {cmdRafraichir, cmdImporterProfil, cmdEffacerFichier})
        entete->addWidget(bouton);

    TreeBibliothequeTS2D = new QTreeWidget;
    TreeBibliothequeTS2D->setObjectName(QStringLiteral("TreeBibliothequeTS2D"));
    TreeBibliothequeTS2D->setHeaderHidden(true);
    TreeBibliothequeTS2D->setUniformRowHeights(true);
    TreeBibliothequeTS2D->setIconSize({CoteIcone, CoteIcone});
    TreeBibliothequeTS2D->setIndentation(CoteIcone);
    TreeBibliothequeTS2D->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    TreeBibliothequeTS2D->header()->setStretchLastSection(false);
    TreeBibliothequeTS2D->installEventFilter(this);

    lblFichierExterieur = new QLabel;
    lblFichierExterieur->setObjectName(QStringLiteral("lblFichierExterieur"));
    lblFichierExterieur->setWordWrap(true);

    auto* colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(4, 6, 4, 6);
    colonne->setSpacing(4);
    colonne->addLayout(entete);
    colonne->addWidget(TreeBibliothequeTS2D, 1);
    colonne->addWidget(lblFichierExterieur);
}

void PanneauBibliotheque::Relier() {
    connect(cmdRafraichir, &QToolButton::clicked, this,
            [this] { RemplirArbreBibliotheque(m_fichierCourant); });
    connect(cmdImporterProfil, &QToolButton::clicked, this, &PanneauBibliotheque::ImporterProfil);
    connect(cmdEffacerFichier, &QToolButton::clicked, this, &PanneauBibliotheque::EffacerFichier);
    auto* suppression = new QShortcut(QKeySequence(QKeySequence::Delete), TreeBibliothequeTS2D);
    suppression->setContext(Qt::WidgetShortcut);
    connect(suppression, &QShortcut::activated, this, &PanneauBibliotheque::EffacerFichier);
    connect(TreeBibliothequeTS2D, &QTreeWidget::itemClicked, this,
            [this](QTreeWidgetItem* noeud) { TreeBibliothequeTS2D_NodeClick(noeud); });
    // The arrow keys look at files too; a click says so itself once the button is up.
    connect(TreeBibliothequeTS2D, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* noeud) {
        if (QApplication::mouseButtons() == Qt::NoButton) TreeBibliothequeTS2D_NodeClick(noeud);
    });
    connect(TreeBibliothequeTS2D, &QTreeWidget::itemDoubleClicked, this,
            [this](QTreeWidgetItem* noeud) { Choisir(noeud); });
    m_attenteChangement.setSingleShot(true);
    m_attenteChangement.setInterval(DelaiChangement);
    connect(&m_surveillance, &QFileSystemWatcher::directoryChanged, this, [this] {
        if (!m_attenteChangement.isActive()) m_attenteChangement.start();
    });
    connect(&m_attenteChangement, &QTimer::timeout, this, [this] {
        const std::string garde = FichierSelectionne();
        RemplirArbreBibliotheque(m_fichierCourant);
        // What the user was looking at stays selected.
        const QSignalBlocker muet(TreeBibliothequeTS2D);
        if (QTreeWidgetItem* noeud = garde.empty() ? nullptr : NoeudDuFichier(garde))
            TreeBibliothequeTS2D->setCurrentItem(noeud);
    });
}

bool PanneauBibliotheque::eventFilter(QObject* objet, QEvent* evenement) {
    if (objet == TreeBibliothequeTS2D && evenement->type() == QEvent::KeyPress) {
        const int touche = static_cast<QKeyEvent*>(evenement)->key();
        QTreeWidgetItem* noeud = TreeBibliothequeTS2D->currentItem();
        if ((touche == Qt::Key_Return || touche == Qt::Key_Enter) && noeud != nullptr) {
            if (EstFichier(noeud)) {
                Choisir(noeud);
            } else {
                noeud->setExpanded(!noeud->isExpanded());
            }
            return true;
        }
    }
    return QWidget::eventFilter(objet, evenement);
}

void PanneauBibliotheque::RemplirArbreBibliotheque(const std::string& nomFichierCourant) {
    m_fichierCourant = nomFichierCourant;
    const ContenuBibliotheque contenu = LireBibliotheque(DossiersProgramme.Bibliotheque);
    const QSignalBlocker muet(TreeBibliothequeTS2D);
    const QSet<QByteArray> ouverts = CheminsOuverts(*TreeBibliothequeTS2D);
    TreeBibliothequeTS2D->clear();
    auto* racine = Noeud(NomRacine, contenu.racine.chemin, false, Icone(QStringLiteral("bibliotheque")));
    TreeBibliothequeTS2D->addTopLevelItem(racine);
    AjouterDossierArbre(contenu.racine, *racine);
    for (QTreeWidgetItemIterator i(TreeBibliothequeTS2D); *i != nullptr; ++i) {
        if (ouverts.contains(CheminDe(*i))) (*i)->setExpanded(true);
    }
    racine->setExpanded(true);
    Surveiller(contenu);

    std::string avis;
    if (!contenu.complet) avis = Texte(TexteProgramme::BibliothequeTropGrande);
    if (!nomFichierCourant.empty()) {
        if (QTreeWidgetItem* noeud = NoeudDuFichier(nomFichierCourant)) {
            TreeBibliothequeTS2D->setCurrentItem(noeud);
            TreeBibliothequeTS2D->scrollToItem(noeud);
        } else {
            avis = Texte(TexteProgramme::BibliothequeFichierExterieur);
        }
    }
    lblFichierExterieur->setText(TexteAffiche(avis));
    lblFichierExterieur->setVisible(!avis.empty());
}

void PanneauBibliotheque::AjouterDossierArbre(const DossierBibliotheque& dossier, QTreeWidgetItem& noeud) {
    QList<QTreeWidgetItem*> enfants;
    enfants.reserve(qsizetype(dossier.dossiers.size()) + qsizetype(dossier.fichiers.size()));
    for (const DossierBibliotheque& suivant : dossier.dossiers) {
        enfants << Noeud(suivant.nom, suivant.chemin, false, m_iconeDossier);
        AjouterDossierArbre(suivant, *enfants.back());
    }
    for (const std::string& nom : dossier.fichiers) {
        const std::string extension = ExtensionMinuscule(nom);
        const bool projet = extension == "tsr" || extension == "qnt";
        enfants << Noeud(nom, JoindreChemin(dossier.chemin, nom), true,
                         projet ? m_iconeProjet : m_iconeDessin);
    }
    noeud.addChildren(enfants);
}

void PanneauBibliotheque::Surveiller(const ContenuBibliotheque& contenu) {
    QStringList voulus;
    if (DossierExiste(contenu.racine.chemin)) ListerDossiers(contenu.racine, voulus);
    const QStringList presents = m_surveillance.directories();
    const QSet<QString> garder(voulus.begin(), voulus.end());
    const QSet<QString> deja(presents.begin(), presents.end());
    const QStringList finis = (deja - garder).values();
    const QStringList nouveaux = (garder - deja).values();
    if (!finis.isEmpty()) m_surveillance.removePaths(finis);
    if (!nouveaux.isEmpty()) m_surveillance.addPaths(nouveaux);
}

QTreeWidgetItem* PanneauBibliotheque::NoeudDuFichier(const std::string& chemin) const {
    const QByteArray octets = EnOctets(chemin);
    const QString nom = QString::fromStdString(NomDuChemin(chemin));
    QTreeWidgetItem* meme = nullptr;
    for (QTreeWidgetItemIterator i(TreeBibliothequeTS2D); *i != nullptr; ++i) {
        if (!EstFichier(*i)) continue;
        if (CheminDe(*i) == octets) return *i;
        // The same file by another way, through a link.
        if (meme == nullptr && (*i)->text(0) == nom && MemeFichier(CheminDe(*i).toStdString(), chemin))
            meme = *i;
    }
    return meme;
}

std::string PanneauBibliotheque::FichierSelectionne() const {
    const QList<QTreeWidgetItem*> choisis = TreeBibliothequeTS2D->selectedItems();
    return choisis.isEmpty() || !EstFichier(choisis.front()) ? "" : CheminDe(choisis.front()).toStdString();
}

// The signal waits until the tree has done with the click: what it starts may fill the tree anew.
void PanneauBibliotheque::TreeBibliothequeTS2D_NodeClick(QTreeWidgetItem* noeud) {
    if (!EstFichier(noeud)) return;
    QMetaObject::invokeMethod(
        this, [this, chemin = CheminDe(noeud)] { emit FichierRegarde(chemin); }, Qt::QueuedConnection);
}

void PanneauBibliotheque::Choisir(QTreeWidgetItem* noeud) {
    if (!EstFichier(noeud)) return;
    QMetaObject::invokeMethod(
        this, [this, chemin = CheminDe(noeud)] { emit FichierChoisi(chemin); }, Qt::QueuedConnection);
}

void PanneauBibliotheque::EffacerFichier() {
    const std::string chemin = FichierSelectionne();
    if (chemin.empty()) {
        AfficherExclamation(TextesMessages(MessagesRienASupprimer), TitresMessages(TitreErreurDeSaisie));
        return;
    }
    if (!FichierDansCorbeille(chemin)) {
        AfficherCritique(TextesMessages(MessagesJeteEnVain), TitresMessages(MessagesJeteEnVain));
        return;
    }
    emit FichierJete(EnOctets(chemin));
    AfficherInformation(TextesMessages(MessagesJete), TitresMessages(MessagesJete));
    RemplirArbreBibliotheque(m_fichierCourant == chemin ? std::string() : m_fichierCourant);
}

void PanneauBibliotheque::ImporterProfil() {
    DemandeFichier fichiers;
    fichiers.titre = TextesMessages(MessagesChoisirFichiers);
    fichiers.filtre = Texte(TexteProgramme::FiltreDessins);
    // The pair of all known files stands last but one: the one proposed.
    fichiers.indiceFiltre = static_cast<int>(ExtensionsConnues().size()) + 1;
    fichiers.dossier = DossierDocumentsUtilisateur();
    fichiers.plusieurs = true;
    const FichiersChoisis choisis = ChoisirFichier(fichiers, window());
    if (choisis.Annule()) return;
    DemandeFichier dossier;
    dossier.titre = TextesMessages(MessagesChoisirDossier);
    dossier.dossier = DossiersProgramme.Bibliotheque;
    dossier.dossierSeul = true;
    const FichiersChoisis cible = ChoisirFichier(dossier, window());
    if (cible.Annule()) {
        AfficherInformation(TextesDoubles(DoublesCopieAnnulee, 1), TextesDoubles(DoublesCopieAnnulee, 2));
        return;
    }
    std::vector<std::string> echecs;
    {
        const Attente attente;
        echecs = CopierDansBibliotheque(choisis.chemins, cible.Premier());
    }
    if (echecs.empty()) {
        AfficherInformation(TextesDoubles(DoublesCopieFaite, 1), TextesDoubles(DoublesCopieFaite, 2));
    } else {
        std::string texte = Texte(TexteProgramme::BibliothequeCopieImpossible);
        for (const std::string& echec : echecs) texte += "\r\n" + echec;
        AfficherCritique(texte, TextesDoubles(DoublesCopieFaite, 2));
    }
    RemplirArbreBibliotheque(m_fichierCourant);
}

} // namespace tessarel
