// Files of the 2D window: opening in all ways, saving, the DXF export.
#include "app/settings/cles_generales.h"
#include "app/settings/gestion_ini.h"
#include "app/settings/parametres.h"
#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "paths/import.h"
#include "platform/dialogue.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "platform/gabar/gabar.h"
#include "ui/attente.h"
#include "ui/boites_qt.h"
#include "ui/canevas.h"
#include "ui/choix_fichier.h"
#include "ui/en_arriere.h"
#include "ui/fichiers_recents.h"
#include "work2d/options_decoupe.h"
#include "work2d/ui/atelier_2d.h"
#include "work2d/ui/frmTessarel2D.h"
#include "work2d/ui/panneau_bibliotheque.h"

#include <QCheckBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QShortcut>
#include <QStatusBar>
#include <QToolButton>
#include <QUrl>

#include <algorithm>
#include <memory>
#include <optional>

namespace tessarel {

namespace {

// Rows of the text tables.
constexpr int DoublesNouveauProjet = 11;
constexpr int DoublesPasDeTraceDansLeBloc = 53;
constexpr int DoublesExportImpossible = 54;
constexpr int MessagesEnregistrerSous = 146;
constexpr int MessagesProjetSansNom = 192;
constexpr int MessagesProjetVide = 198;
constexpr int MessagesExporterDxf = 201;
constexpr int MessagesExtensionDxf = 202;

constexpr int DureeMessageEtat = 8000; // ms

std::string DernierRepertoire() {
    return LireIni(SectionFichiers, CleDernierRepertoire, DossiersProgramme.MesDecoupes);
}

void RetenirRepertoire(const std::string& chemin) {
    EcrireIni(SectionFichiers, CleDernierRepertoire, DossierDuChemin(chemin) + SeparateurChemin);
}

void RetenirProjet(const std::string& chemin) {
    EcrireIni(SectionFichiers, CleDernierProjet, chemin);
    RetenirFichierRecent(chemin);
}

// File name without folder and extension, to propose another.
std::string Souche(const std::string& chemin) {
    const std::string nom = NomDuChemin(chemin);
    const std::size_t point = nom.rfind('.');
    return point == std::string::npos || point == 0 ? nom : nom.substr(0, point);
}

std::vector<std::string> CheminsDeposes(const QMimeData& donnees) {
    std::vector<std::string> chemins;
    for (const QUrl& url : donnees.urls()) {
        if (url.isLocalFile()) chemins.push_back(url.toLocalFile().toStdString());
    }
    return chemins;
}

} // namespace

// A drawing is read beside the window, which stays alive; the user may give up, and then nothing is returned.
// A project is read at once: its reader may have to ask, and boxes belong to the window's own thread. A file
// without a point is refused: there is nothing to show, and no work is given up for it.
std::optional<ContenuFichier> frmTessarel2D::LireSansBloquer(const std::string& chemin, float tolerance) {
    std::optional<ContenuFichier> contenu = PrendreApercu(chemin, tolerance);
    if (contenu) return contenu;
    const std::string extension = ExtensionMinuscule(chemin);
    if (extension == "tsr" || extension == "qnt") {
        const Attente attente;
        contenu = LireContenuFichier(chemin, tolerance);
    } else {
        const auto resultat = std::make_shared<ContenuFichier>();
        const std::string quoi = TexteRempli(TexteProgramme::Fenetre2DLecture, {NomDuChemin(chemin)});
        const bool fini = FaireEnArriere(*this, quoi, [resultat, chemin, tolerance] {
            *resultat = LireContenuFichier(chemin, tolerance);
        });
        if (!fini) return std::nullopt;
        contenu = std::move(*resultat);
    }
    if (contenu->ouverture.points == 0)
        throw FauteLecture(chemin, 0, Texte(TexteProgramme::LectureSansTrace));
    return contenu;
}

bool frmTessarel2D::PeutRemplacerProjet() {
    if (m_espace.TableauSequences.empty()) return true;
    const ReponseBoite reponse =
        AfficherBoite({TextesDoubles(DoublesNouveauProjet, 1), TextesDoubles(DoublesNouveauProjet, 2),
                       IconeBoite::Question, BoutonsBoite::OuiNonAnnuler});
    if (reponse == ReponseBoite::Annuler) return false;
    return reponse == ReponseBoite::Non || Enregistrer();
}

void frmTessarel2D::NouveauProjet() {
    if (CourseOuverte() || !PeutRemplacerProjet()) return;
    FermerDecoupe();
    m_espace = NouvelEspace2D(TableINI);
    m_atelier->Recommencer();
    m_fichiersImportes.clear();
    EffacerResume();
    m_bibliotheque->RemplirArbreBibliotheque("");
    MontrerOptionsDecoupe();
    MontrerTout();
    pctSequTS2D->ZoomTout();
}

void frmTessarel2D::DemanderOuverture() {
    if (CourseOuverte()) return;
    DemandeFichier demande;
    demande.titre = Texte(TexteProgramme::OuvrirDessinTitre);
    demande.filtre = Texte(TexteProgramme::FiltreDessins);
    // The pair of all known files stands last but one: the one proposed.
    demande.indiceFiltre = static_cast<int>(ExtensionsConnues().size()) + 1;
    demande.dossier = DernierRepertoire();
    const FichiersChoisis choix = ChoisirFichier(demande, this);
    if (!choix.Annule()) OuvrirFichier(choix.Premier());
}

bool frmTessarel2D::OuvrirFichier(const std::string& chemin) {
    if (CourseOuverte()) return false; // nothing takes its path from under the wire
    // A 2D project takes the place of the present one; a drawing comes beside what is there.
    const std::string extension = ExtensionMinuscule(chemin);
    const bool projet = extension == "tsr" || extension == "qnt";
    if (projet && m_espace.modifie && !PeutRemplacerProjet()) return false;
    bool renonce = false;
    const LecteurContenu lecteur = [&](const std::string& fichier, float tolerance) {
        std::optional<ContenuFichier> contenu = LireSansBloquer(fichier, tolerance);
        renonce = !contenu;
        return contenu;
    };
    OuvertureFichier ouverture;
    const std::size_t avant = m_espace.TableauSequences.size();
    const bool retouche = m_apercu && m_apercu->retouche && m_apercu->chemin == chemin;
    if (!OuvrirFichier2D(m_espace, chemin, TableINI, Parametres.DistNettoyage, &ouverture, lecteur)) {
        if (!renonce) OublierFichierRecent(chemin);
        return false;
    }
    FermerDecoupe();
    RetenirRepertoire(chemin);
    if (ouverture.estProjet2D) {
        m_fichiersImportes.clear();
        m_atelier->Recommencer();
        m_espace.modifie = retouche; // the file does not hold what was turned over
        RetenirProjet(chemin);
    } else {
        RetenirFichierRecent(chemin);
        // What it brings stands behind what was there, and can be undone.
        m_atelier->Memoriser(avant);
        m_atelier->Annoncer(AjusterAuBloc(m_espace.TableauSequences, m_espace.bloc, Regles(), TableINI,
                                          m_espace.coeffTransf));
    }
    m_fichiersImportes.push_back(chemin);
    MontrerOptionsDecoupe();
    MontrerTout();
    MontrerOuverture(chemin, std::move(ouverture));
    if (!chkZoomProjet->isChecked()) pctSequTS2D->ZoomTout();
    return true;
}

void frmTessarel2D::PreparerMenuRecents() {
    menuRecents->clear();
    const std::vector<std::string> chemins = FichiersRecents();
    for (const std::string& chemin : chemins) {
        QString nom = QString::fromStdString(NomDuChemin(chemin));
        // A lone ampersand would underline the letter after it.
        QAction* action = menuRecents->addAction(nom.replace(QStringLiteral("&"), QStringLiteral("&&")));
        action->setToolTip(QString::fromStdString(chemin));
        action->setData(QString::fromStdString(chemin));
        connect(action, &QAction::triggered, this, [this, chemin] { OuvrirFichier(chemin); });
    }
    menuRecents->setToolTipsVisible(true);
    if (chemins.empty())
        menuRecents->addAction(TexteAffiche(Texte(TexteProgramme::Fenetre2DAucunRecent)))->setEnabled(false);
}

bool frmTessarel2D::SauverSous() {
    if (m_espace.TableauSequences.empty()) {
        AfficherExclamation(TextesMessages(MessagesProjetVide), TitresMessages(MessagesProjetVide));
        return false;
    }
    DemandeFichier demande;
    demande.titre = TextesMessages(MessagesEnregistrerSous);
    demande.filtre = Texte(TexteProgramme::FiltreProjet);
    demande.dossier = DernierRepertoire();
    demande.extension = "tsr";
    demande.enregistrer = true;
    if (!m_espace.cheminProjet.empty()) {
        demande.nomPropose = NomDuChemin(m_espace.cheminProjet);
    } else if (!m_fichiersImportes.empty()) {
        demande.nomPropose = Souche(m_fichiersImportes.front()) + ".tsr";
    }
    const FichiersChoisis choix = ChoisirFichier(demande, this);
    if (choix.Annule() || !EnregistrerEspace2D(m_espace, choix.Premier())) return false;
    RetenirRepertoire(choix.Premier());
    RetenirProjet(choix.Premier());
    m_bibliotheque->RemplirArbreBibliotheque(choix.Premier());
    MontrerEtat();
    statusBar()->showMessage(TexteAffiche(TexteRempli(TexteProgramme::Fenetre2DEtatSauve, {choix.Premier()})),
                             DureeMessageEtat);
    return true;
}

bool frmTessarel2D::ActualiserSauvegarde() {
    if (m_espace.cheminProjet.empty()) {
        AfficherCritique(TextesMessages(MessagesProjetSansNom), TitresMessages(MessagesProjetSansNom));
        return false;
    }
    const Attente attente;
    if (!EnregistrerEspace2D(m_espace, m_espace.cheminProjet)) return false;
    m_bibliotheque->RemplirArbreBibliotheque(m_espace.cheminProjet);
    MontrerEtat();
    statusBar()->showMessage(
        TexteAffiche(TexteRempli(TexteProgramme::Fenetre2DEtatSauve, {m_espace.cheminProjet})),
        DureeMessageEtat);
    return true;
}

bool frmTessarel2D::Enregistrer() {
    return m_espace.cheminProjet.empty() ? SauverSous() : ActualiserSauvegarde();
}

void frmTessarel2D::ExporterDxf() {
    // Without an open cut tab the path is made from the options as they stand.
    Decoupe2D decoupe;
    try {
        if (!m_espace.TableauSequences.empty()) {
            decoupe = AssemblerDecoupe2D(m_espace.TableauSequences,
                                         OptionsDepuisEspace(m_espace, m_decalage, m_valeurs, Parametres),
                                         TableINI);
        }
    } catch (const FauteDepassement& faute) {
        AfficherCritique(faute.what(), TextesDoubles(DoublesExportImpossible, 2));
        return;
    }
    if (!decoupe.decalagePossible) return;
    if (decoupe.SequenceDecalee.Points.empty()) {
        AfficherExclamation(TextesDoubles(DoublesPasDeTraceDansLeBloc, 1),
                            TextesDoubles(DoublesPasDeTraceDansLeBloc, 2));
        return;
    }
    DemandeFichier demande;
    demande.titre = TextesMessages(MessagesExporterDxf);
    demande.filtre = Texte(TexteProgramme::FiltreExportDxf);
    demande.dossier = DernierRepertoire();
    demande.extension = "dxf";
    demande.enregistrer = true;
    const FichiersChoisis choix = ChoisirFichier(demande, this);
    if (choix.Annule()) return;
    const std::string chemin = choix.Premier();
    if (ExtensionMinuscule(chemin) != "dxf") {
        AfficherExclamation(TextesMessages(MessagesExtensionDxf), TitresMessages(MessagesExtensionDxf));
        return;
    }
    if (std::any_of(m_fichiersImportes.begin(), m_fichiersImportes.end(),
                    [&](const std::string& source) { return MemeFichier(source, chemin); })) {
        AfficherExclamation(TexteRempli(TexteProgramme::SortieEgaleEntree, {chemin}),
                            TitresMessages(MessagesExtensionDxf));
        return;
    }
    RetenirRepertoire(chemin);
    try {
        const Attente attente;
        EcrireFichier(chemin, "dxf", PointsDepuisSequences({&decoupe.SequenceDecoupe, 1}));
    } catch (const Faute& faute) {
        AfficherCritique(TextesDoubles(DoublesExportImpossible, 1) + "\r\n" + faute.what(),
                         TextesDoubles(DoublesExportImpossible, 2));
        return;
    }
    statusBar()->showMessage(TexteAffiche(TexteRempli(TexteProgramme::Fenetre2DEtatExporte, {chemin})),
                             DureeMessageEtat);
}

void frmTessarel2D::dragEnterEvent(QDragEnterEvent* evenement) {
    if (CourseOuverte()) return;
    if (!CheminsDeposes(*evenement->mimeData()).empty()) evenement->acceptProposedAction();
}

void frmTessarel2D::dropEvent(QDropEvent* evenement) {
    const std::vector<std::string> chemins = CheminsDeposes(*evenement->mimeData());
    if (chemins.empty() || m_course.enCours || m_course.arretee) return; // it may have started meanwhile
    evenement->acceptProposedAction();
    for (const std::string& chemin : chemins) {
        if (!OuvrirFichier(chemin)) return;
    }
}

} // namespace tessarel
