// The cut tab of the 2D window: every option recomputes the cut and redraws it; the end is a G-code file.
#include "app/settings/cles_generales.h"
#include "app/settings/gestion_ini.h"
#include "app/settings/parametres.h"
#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "platform/dialogue.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "ui/boites_qt.h"
#include "ui/canevas.h"
#include "ui/choix_fichier.h"
#include "ui/icones.h"
#include "work2d/export_gcode.h"
#include "work2d/options_decoupe.h"
#include "work2d/resume.h"
#include "work2d/ui/frmTessarel2D.h"
#include "work2d/ui/panneau_simulation.h"
#include "work2d/ui/trace_course.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolButton>

namespace tessarel {

namespace {

// Rows of the text tables.
constexpr int DoublesZoneDepassee = 17;
constexpr int DoublesPasDeTrace = 37;
constexpr int DoublesPasDeTraceDansLeBloc = 53;
constexpr int MessagesParDefaut = 105;
constexpr int MessagesExporte = 168;
constexpr int MessagesGcodeSous = 174;
constexpr int MessagesExtensionGcode = 175;
constexpr int MessagesDecouperExporter = 253; // the text is "Découper", the title "Exporter"

// What the told routine gives when the user gives up.
constexpr const char* ChoixAnnule = "-100";

template <std::size_t N>
int OptionMise(const std::array<QToolButton*, N>& options) {
    for (std::size_t i = 0; i < N; ++i) {
        if (options[i]->isChecked()) return static_cast<int>(i);
    }
    return 0;
}

template <std::size_t N>
void MettreOption(const std::array<QToolButton*, N>& options, int rang) {
    if (rang >= 0 && rang < static_cast<int>(N)) options[static_cast<std::size_t>(rang)]->setChecked(true);
}

} // namespace

bool frmTessarel2D::DecoupeOuverte() const {
    return m_vues->currentIndex() == PageDecoupe;
}

void frmTessarel2D::RemplirMatieres() {
    comboMatieres->clear();
    int choisie = 0;
    for (std::size_t i = 0; i < MatieresMachine.size(); ++i) {
        // The default line bears the machine's values, not a name of the base.
        const std::string& nom = i == 0 ? TextesMessages(MessagesParDefaut) : MatieresMachine[i].Nom;
        comboMatieres->addItem(Icone(QStringLiteral("matiere")), QString::fromStdString(nom));
        if (MatieresMachine[i].Nom == MatiereCourante.Nom) choisie = static_cast<int>(i);
    }
    comboMatieres->setCurrentIndex(choisie);
    m_valeurs = DecoupeCourante;
}

void frmTessarel2D::PrendreMatiere(int rang) {
    if (rang < 0 || rang >= static_cast<int>(MatieresMachine.size())) return;
    ChoisirMatiere(MatieresMachine[static_cast<std::size_t>(rang)]);
    m_valeurs = LimiterValeurs(DecoupeCourante, TableINI, static_cast<float>(Parametres.SaigneeMaxiSoft));
    EcrireIni(SectionParametres, "MatiereUtilisee", MatiereCourante.Nom);
}

void frmTessarel2D::OuvrirDecoupe() {
    if (CourseOuverte()) return;
    if (m_espace.TableauSequences.empty()) {
        AfficherExclamation(TextesDoubles(DoublesPasDeTrace, 1), TextesDoubles(DoublesPasDeTrace, 2));
        return;
    }
    m_valeurs = LimiterValeurs(DecoupeCourante, TableINI, static_cast<float>(Parametres.SaigneeMaxiSoft));
    m_annoncerDepassement = true;
    MontrerOptionsDecoupe();
    m_pages->setCurrentIndex(PageDecoupe);
    m_vues->setCurrentIndex(PageDecoupe);
    pctDecoupe->ZoomTout();
    CalculerDecoupe();
    pctDecoupe->setFocus();
}

void frmTessarel2D::FermerDecoupe() {
    m_simulation->Charger(nullptr);
    m_decoupe = {};
    m_trace->Effacer();
    for (const Canevas::Couche couche : {Canevas::CoucheFond, Canevas::CoucheTrace}) {
        pctDecoupe->Montrer(couche, {});
    }
    m_pages->setCurrentIndex(PageProjet);
    m_vues->setCurrentIndex(PageProjet);
    pctSequTS2D->setFocus();
}

void frmTessarel2D::ChangerOptionsDecoupe() {
    m_espace.TypeEntree = OptionMise(optEntrerBloc);
    m_espace.TypeSortie = OptionMise(optSortirBloc);
    m_espace.VitesseApproche = OptionMise(optApproche);
    m_espace.VitesseRetour = OptionMise(optRetour);
    m_decalage = static_cast<CoteDecalage2D>(OptionMise(optDecalage));
    MarquerModifie();
    CalculerDecoupe();
}

void frmTessarel2D::CalculerDecoupe() {
    m_options = OptionsDepuisEspace(m_espace, m_decalage, m_valeurs, Parametres);
    m_simulation->Charger(nullptr);
    m_decoupe = {};
    std::string information;
    try {
        m_decoupe = AssemblerDecoupe2D(m_espace.TableauSequences, m_options, TableINI);
    } catch (const FauteDepassement& faute) {
        information = faute.what();
        AfficherCritique(information, Texte(TexteProgramme::TitreOperationImpossible));
    }
    if (m_decoupe.DepassementDetecte && m_annoncerDepassement) {
        m_annoncerDepassement = false;
        AfficherExclamation(TextesDoubles(DoublesZoneDepassee, 1), TextesDoubles(DoublesZoneDepassee, 2));
    }
    const bool rien = m_decoupe.SequenceDecalee.Points.empty();
    if (!rien) {
        const std::string matiere = comboMatieres->currentText().toStdString();
        information = PreparerDecoupeTS2D(m_decoupe, m_options, TableINI, matiere).resume.texte;
    } else if (information.empty() && m_decoupe.decalagePossible) {
        information = TextesDoubles(DoublesPasDeTraceDansLeBloc, 1);
    }
    lblInformationDecoupe->setText(TexteAffiche(information));
    m_simulation->Charger(&m_decoupe.SequenceDecoupe);
    TraceDecoupe();
}

void frmTessarel2D::TraceDecoupe() {
    if (!DecoupeOuverte()) return;
    const OptionsDessin options = OptionsAffichage(*pctDecoupe);
    Dessin table;
    DessinerTable(table, TableINI, m_espace.bloc, options);
    pctDecoupe->Montrer(Canevas::CoucheFond, std::move(table));
    Dessin trajet;
    DessinerDecoupe(trajet, m_decoupe, options);
    pctDecoupe->Montrer(Canevas::CoucheTrace, std::move(trajet));
    if (!chkZoomDecoupe->isChecked() || m_decoupe.SequenceDecoupe.Points.empty()) return;
    Sequence vue = m_decoupe.SequenceDecoupe;
    CalculerBornesSequence(vue);
    pctDecoupe->Cadrer({vue.XMin, vue.XMax, vue.YMin, vue.YMax});
}

void frmTessarel2D::MontrerOptionsDecoupe() {
    MettreOption(optEntrerBloc, m_espace.TypeEntree);
    MettreOption(optSortirBloc, m_espace.TypeSortie);
    MettreOption(optApproche, m_espace.VitesseApproche);
    MettreOption(optRetour, m_espace.VitesseRetour);
    MettreOption(optDecalage, static_cast<int>(m_decalage));
    const bool gcode = chkExportGcode2D->isChecked();
    const std::string& mot =
        gcode ? TitresMessages(MessagesDecouperExporter) : TextesMessages(MessagesDecouperExporter);
    // Another word on a button takes its keys away.
    const QKeySequence touches = cmdLancerLaDecoupeTS2D->shortcut();
    cmdLancerLaDecoupeTS2D->setText(QString::fromStdString(mot));
    cmdLancerLaDecoupeTS2D->setShortcut(touches);
    cmdLancerLaDecoupeTS2D->setIcon(Icone(gcode ? QStringLiteral("gcode") : QStringLiteral("decouper")));
}

void frmTessarel2D::LancerDecoupe() {
    if (m_decoupe.SequenceDecalee.Points.empty()) {
        AfficherExclamation(TextesDoubles(DoublesPasDeTraceDansLeBloc, 1),
                            TextesDoubles(DoublesPasDeTraceDansLeBloc, 2));
        return;
    }
    if (chkExportGcode2D->isChecked()) {
        ExporterGcode();
        return;
    }
    DecouperSurMachine();
}

// The told save dialog: the path, "-100" on Cancel, an empty text after a refusal.
std::string frmTessarel2D::ChoisirFichierGcodeTS2D() {
    DemandeFichier demande;
    demande.titre = TextesMessages(MessagesGcodeSous);
    demande.filtre = Texte(TexteProgramme::FiltreGcode);
    demande.dossier = LireIni(SectionFichiers, CleDernierRepertoire, DossiersProgramme.Datas);
    demande.extension = "gcode";
    demande.enregistrer = true;
    const FichiersChoisis choix = ChoisirFichier(demande, this);
    if (choix.Annule()) return ChoixAnnule;
    std::string chemin = choix.Premier();
    if (ExtensionMinuscule(chemin) != "gcode") {
        AfficherExclamation(TextesMessages(MessagesExtensionGcode), TitresMessages(MessagesExtensionGcode));
        return "";
    }
    EcrireIni(SectionFichiers, CleDernierRepertoire, DossierDuChemin(chemin) + SeparateurChemin);
    return chemin;
}

void frmTessarel2D::ExporterGcode() {
    const std::string chemin = ChoisirFichierGcodeTS2D();
    if (chemin == ChoixAnnule || chemin.empty()) return;
    const ExportGcode2D gcode = ConstruireGcode2D(m_decoupe, m_options, TableINI, m_espace.cheminProjet);
    if (gcode.contenu.empty()) return;
    try {
        EcrireFichierAtomique(chemin, gcode.contenu);
    } catch (const Faute& faute) {
        AfficherCritique(faute.what(),
                         TexteRempli(TexteProgramme::ProcedureErreurTitre, {"cmdLancerLaDecoupeTS2D"}));
        return;
    }
    AfficherInformation(TextesMessages(MessagesExporte) + chemin + "\r\n" + gcode.resume,
                        TitresMessages(MessagesExporte));
}

} // namespace tessarel
