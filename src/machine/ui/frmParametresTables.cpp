// The parameter window: what its controls do, and what it shows of the machine and of the link.
#include "machine/ui/frmParametresTables.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "link/etat_interface.h"
#include "link/memoires.h"
#include "link/rafraichir.h"
#include "link/sauvegarde_machine.h"
#include "machine/champs_machine.h"
#include "machine/cles_machine.h"
#include "machine/dessin_sorties.h"
#include "machine/ui/frmNouvelleTable.h"
#include "machine/ui/libelles_parametres.h"
#include "machine/ui/panneau_essais.h"
#include "machine/ui/vue_dessin.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"
#include "platform/signaux_fin.h"
#include "ui/boites_qt.h"
#include "ui/icones.h"
#include "ui/theme.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStackedWidget>
#include <QTabWidget>
#include <QToolButton>
#include <algorithm>
#include <string_view>

namespace tessarel {

namespace {

// Rows of TextesMessages.
constexpr int RangeeQuitterSansValider = 221;
constexpr int RangeeAideLongueurFil = 222;
constexpr int RangeeAideEcartements = 223;
constexpr int RangeePasDInterface = 247;
constexpr int RangeeCorrespondance = 249;
constexpr int RangeeNePeutEtreEffacee = 237;

void Colorer(QWidget& controle, const QColor& couleur) {
    QPalette palette = controle.palette();
    palette.setColor(QPalette::WindowText, couleur);
    palette.setColor(QPalette::Text, couleur);
    controle.setPalette(palette);
}

// The axis that a field stands in, -1 for none: "txtMicroPas_2" is 2.
int AxeDuChamp(const char* controle) {
    const std::string_view nom = controle;
    return static_cast<int>(nom.back() - '0');
}

} // namespace

frmParametresTables::frmParametresTables(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmParametresTables"));
    setWindowIcon(IconeProgramme());
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    Disposer();
    AppliquerLibelles(*this, LibellesParametresTables(), LangueCourante());
    Relier();
    RemplirComboMachines();
    Rafraichir(QuestionMachine::PoseeUneFois);
}

SaisieMachine frmParametresTables::Saisie() const {
    SaisieMachine saisie;
    saisie.Nom = TableINI.Nom;
    for (const Champ& champ : m_champs) saisie.Textes[champ.rangee->cle] = TexteDuChamp(champ);
    return saisie;
}

std::string frmParametresTables::TexteDuChamp(const Champ& champ) {
    if (const auto* texte = qobject_cast<const QLineEdit*>(champ.controle))
        return texte->text().toStdString();
    if (const auto* coche = qobject_cast<const QCheckBox*>(champ.controle))
        return coche->isChecked() ? "1" : "0";
    if (const auto* liste = qobject_cast<const QComboBox*>(champ.controle))
        return std::to_string(liste->currentIndex());
    const auto* curseur = qobject_cast<const QSlider*>(champ.controle);
    return std::to_string(curseur->value() * FacteurCurseur(*champ.rangee));
}

void frmParametresTables::PoserTexteDuChamp(const Champ& champ, const std::string& texte) {
    const double nombre = NombreDepuisTexte(texte);
    if (auto* saisie = qobject_cast<QLineEdit*>(champ.controle)) {
        saisie->setText(QString::fromStdString(texte));
    } else if (auto* coche = qobject_cast<QCheckBox*>(champ.controle)) {
        coche->setChecked(nombre == 1);
    } else if (auto* liste = qobject_cast<QComboBox*>(champ.controle)) {
        const bool sortie = nombre >= 0 && nombre < liste->count();
        liste->setCurrentIndex(sortie ? static_cast<int>(nombre) : 0);
    } else if (auto* curseur = qobject_cast<QSlider*>(champ.controle)) {
        curseur->setValue(static_cast<int>(nombre) / FacteurCurseur(*champ.rangee));
    }
}

void frmParametresTables::RelierChamp(const Champ& champ) {
    const auto relire = [this] {
        if (!m_montre) RelireChamps();
    };
    if (const auto* texte = qobject_cast<const QLineEdit*>(champ.controle))
        connect(texte, &QLineEdit::textChanged, this, relire);
    if (const auto* coche = qobject_cast<const QCheckBox*>(champ.controle))
        connect(coche, &QCheckBox::toggled, this, relire);
    if (const auto* liste = qobject_cast<const QComboBox*>(champ.controle))
        connect(liste, &QComboBox::currentIndexChanged, this, relire);
    if (const auto* curseur = qobject_cast<const QSlider*>(champ.controle))
        connect(curseur, &QSlider::valueChanged, this, relire);
}

void frmParametresTables::Relier() {
    for (const Champ& champ : m_champs) RelierChamp(champ);
    connect(comboMachines, &QComboBox::activated, this, &frmParametresTables::ChangerMachine);
    connect(cmdNouvelleTable, &QPushButton::clicked, this, &frmParametresTables::DemanderNouvelleTable);
    connect(cmdEffacerTable, &QPushButton::clicked, this, &frmParametresTables::DemanderEffacement);
    connect(cmdRafraichirUsb, &QToolButton::clicked, this, [this] {
        if (!m_essais->FilChaud() || m_essais->CouperAvantDePartir()) Rafraichir(QuestionMachine::Posee);
    });
    connect(cmdValider[0], &QPushButton::clicked, this, [this] { Valider(false); });
    connect(cmdValider[1], &QPushButton::clicked, this, [this] { Valider(true); });
    connect(cmdQuitter, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_imageSorties, &VueDessinFixe::FondChange, this, &frmParametresTables::RelireChamps);
    for (std::size_t i = 0; i < optReglagesVersManu.size(); ++i) {
        connect(optReglagesVersManu[i], &QRadioButton::clicked, this,
                [this, i] { MontrerPage(static_cast<int>(i)); });
    }
    const auto aider = [this](const char* nom, int rangee) {
        connect(findChild<QToolButton*>(QString::fromLatin1(nom)), &QToolButton::clicked, this,
                [rangee] { AfficherInformation(TextesMessages(rangee), TitresMessages(rangee)); });
    };
    aider("cmdAideEcartements", RangeeAideEcartements);
    aider("cmdAideLongueurFil", RangeeAideLongueurFil);
    connect(m_essais, &PanneauEssais::LiaisonPerdue, this,
            &frmParametresTables::ActualiserNomsMemoiresEtAffichageMachineDansFrmParametres);
    connect(m_essais, &PanneauEssais::EnMouvement, this, [this](bool enMouvement) {
        if (enMouvement) {
            DesactiverCadreParametres();
            DesactiverCadreChoixMachine();
        } else {
            ActiverCadreParametres();
            ActiverCadreChoixMachine();
        }
    });
}

void frmParametresTables::RemplirComboMachines() {
    comboMachines->clear();
    for (const std::string& nom : TableauNomsMachines) comboMachines->addItem(QString::fromStdString(nom));
    const QString courante = QString::fromStdString(TableINI.Nom);
    if (comboMachines->findText(courante) < 0) comboMachines->addItem(courante); // a built-in one not listed
    comboMachines->setCurrentIndex(comboMachines->findText(courante));
}

// Shown values --------------------------------------------------------------------------------------

void frmParametresTables::MontrerMachine() {
    m_montre = true;
    const SaisieMachine saisie = SaisieDepuisTable(TableINI);
    for (const Champ& champ : m_champs) PoserTexteDuChamp(champ, saisie.Lire(champ.rangee->cle));
    m_montre = false;
    m_saisieMontree = Saisie();
    RelireChamps();
    const bool reservee = EstMachineIntegree(TableINI.Nom);
    lblNomReserve->setVisible(reservee);
    cmdEffacerTable->setEnabled(!reservee);
    cmdEffacerTable->setToolTip(TexteAffiche(reservee
                                                 ? TextesMessages(RangeeNePeutEtreEffacee) + TableINI.Nom +
                                                       TitresMessages(RangeeNePeutEtreEffacee)
                                                 : Texte(TexteProgramme::ParametresEffacerBulle)));
}

void frmParametresTables::RelireChamps() {
    const SaisieMachine saisie = Saisie();
    MontrerRemarques(RemarquesSaisie(saisie));
    MontrerCalculs(saisie);
    m_imageSorties->Montrer(DessinerSorties(saisie, m_imageSorties->FondSombre()));
    for (const Champ& champ : m_champs) {
        if (qobject_cast<QSlider*>(champ.controle) == nullptr) continue;
        // A slider says its value where the other fields have their unit alone.
        const auto* limites = ChampMachineSaisiDe(champ.rangee->cle);
        auto* unite = findChild<QLabel*>(QStringLiteral("lblUnite") + champ.controle->objectName());
        unite->setText(QString::fromStdString(TexteDuChamp(champ)) + u' ' +
                       QString::fromUtf8(limites->unite));
    }
    lblEtat->setText(Modifiee() ? TexteAffiche(Texte(TexteProgramme::ParametresModifies)) : QString());
}

void frmParametresTables::MontrerRemarques(const std::vector<RemarqueSaisie>& remarques) {
    std::array<QString, 5> parAxe;
    for (const Champ& champ : m_champs) {
        const auto place = std::ranges::find_if(
            remarques, [&champ](const RemarqueSaisie& r) { return r.Cle == champ.rangee->cle; });
        const bool remarque = place != remarques.end();
        QColor encre = palette().color(QPalette::Text);
        if (remarque) encre = place->Bloquante ? CouleurAlerte() : CouleurFil();
        Colorer(*champ.controle, encre);
        const QString texte = remarque ? TexteAffiche(place->Texte) : QString();
        if (champ.remarque != nullptr) {
            champ.remarque->setText(texte);
            Colorer(*champ.remarque, encre);
        } else if (remarque) {
            QString& ligne = parAxe[static_cast<std::size_t>(AxeDuChamp(champ.rangee->controle))];
            const QString mots = TexteAffiche(LangueCourante() == Langue::English ? champ.rangee->english
                                                                                  : champ.rangee->francais);
            ligne += (ligne.isEmpty() ? QString() : QStringLiteral(" · ")) + mots.section(u',', 1).trimmed() +
                     QStringLiteral(": ") + texte;
        }
    }
    for (std::size_t axe = 0; axe < parAxe.size(); ++axe) {
        lblRemarqueAxe[axe]->setText(parAxe[axe]);
        Colorer(*lblRemarqueAxe[axe], CouleurAlerte());
    }
}

void frmParametresTables::MontrerCalculs(const SaisieMachine& saisie) {
    const auto lire = [&saisie](const std::string& cle) { return NombreDepuisTexte(saisie.Lire(cle)); };
    constexpr std::array<const char*, 5> axes = {"X1", "Y1", "X2", "Y2", "A"};
    for (std::size_t axe = 0; axe < axes.size(); ++axe) {
        const std::string nom = axes[axe];
        const double parTour = lire((axe == AxeA ? "DegParTour" : "MmParTour") + nom);
        const double pas =
            parTour == 0 ? 0 : Arrondi(lire("MicroPas" + nom) * lire("PasParTourMoteur" + nom) / parTour);
        lblPasParMm[axe]->setText(QString::fromStdString(FormaterNombre(pas, "#####0")) +
                                  (axe == AxeA ? QStringLiteral(" /°") : QStringLiteral(" /mm")));
    }
    const double utile = lire("EcartementY1Y2") - lire("EcartementY1Plateau") - lire("EcartementPlateauY2");
    lblEcartementUtile->setText(
        TexteAffiche(TexteRempli(TexteProgramme::ParametresEcartementUtile,
                                 {PointVersSeparateur(FormaterNombre(utile, "#####0.0##"))})));
}

bool frmParametresTables::Modifiee() const {
    return Saisie().Textes != m_saisieMontree.Textes;
}

// Link ----------------------------------------------------------------------------------------------

// No exchange starts inside another: while a command is repeated the window is alive, and waits.
void frmParametresTables::Rafraichir(QuestionMachine question) {
    if (m_essais->MouvementEnCours()) return;
    RafraichirUsb("TABLES", question);
    MontrerMachine();
    ActualiserNomsMemoiresEtAffichageMachineDansFrmParametres();
}

void frmParametresTables::LireEtAfficherNom3TablesZelko() {
    if (InterfaceConnectee && !MachineLaissee) {
        for (int i = 0; i < NombreMemoires; ++i)
            LireMemoireZelko(MemoiresZelko[static_cast<std::size_t>(i)], i);
    }
    MontrerMemoires();
}

void frmParametresTables::MontrerMemoires() {
    const bool lues = InterfaceConnectee && !MachineLaissee;
    const std::string sinon =
        MachineLaissee ? Texte(TexteProgramme::LaisseeSansMouvements) : TextesMessages(RangeePasDInterface);
    for (std::size_t i = 0; i < optChoixMemoire.size(); ++i) {
        const TableMachine& memoire = MemoiresZelko[i];
        const QString nom =
            lues && !memoire.Nom.empty() ? QString::fromStdString(memoire.Nom) : QStringLiteral("–");
        optChoixMemoire[i]->setText(QStringLiteral("%1: %2").arg(i + 1).arg(nom));
        ssTabZelko->setTabText(static_cast<int>(i), optChoixMemoire[i]->text());
        lblContenuMemoire[i]->setText(lues ? TexteContenuMemoire(memoire, TableINI) : TexteAffiche(sinon));
        if (MouvementsActifs && TableINI.NumeroMemoire == i && m_memoires->checkedId() < 0)
            optChoixMemoire[i]->setChecked(true);
    }
    frameChoixMemoire->setEnabled(lues);
}

void frmParametresTables::ActualiserNomsMemoiresEtAffichageMachineDansFrmParametres() {
    MontrerMemoires();
    const bool sansBoite = !InterfaceConnectee;
    std::string etat = TextesMessages(RangeeCorrespondance); // no memory of that name, or another content
    if (sansBoite) etat = TextesMessages(RangeePasDInterface);
    if (MouvementsActifs)
        etat = TexteRempli(TexteProgramme::ParametresMouvementsActifs,
                           {std::to_string(TableINI.NumeroMemoire + 1)});
    const bool memeNom = std::ranges::any_of(
        MemoiresZelko, [](const TableMachine& memoire) { return memoire.Nom == TableINI.Nom; });
    if (!sansBoite && !MouvementsActifs && memeNom) etat = TitresMessages(RangeePasDInterface + 1);
    if (MachineLaissee) etat = Texte(TexteProgramme::LaisseeSansMouvements);
    lblEtatInterface->setText(TexteAffiche(etat));
    Colorer(*lblEtatInterface, MouvementsActifs ? CouleurAccord() : CouleurAlerte());
    optReglagesVersManu[1]->setEnabled(MouvementsActifs);
    if (MouvementsActifs) {
        ActiverCadreMouvements();
    } else {
        DesactiverCadreMouvements();
        optReglagesVersManu[0]->setChecked(true);
        MontrerPage(0);
    }
}

std::optional<int> frmParametresTables::MemoireChoisie() const {
    const int choisie = m_memoires->checkedId();
    return choisie < 0 ? std::nullopt : std::optional<int>(choisie);
}

void frmParametresTables::ActiverCadreParametres() {
    ssTabParametres->setEnabled(true);
    for (QPushButton* bouton : cmdValider) bouton->setEnabled(true);
}
void frmParametresTables::DesactiverCadreParametres() {
    ssTabParametres->setEnabled(false);
    for (QPushButton* bouton : cmdValider) bouton->setEnabled(false);
}
void frmParametresTables::ActiverCadreChoixMachine() {
    findChild<QWidget*>(QStringLiteral("frameChoixMachine"))->setEnabled(true);
    frameChoixMemoire->setEnabled(InterfaceConnectee && !MachineLaissee);
    for (QRadioButton* option : optReglagesVersManu) option->setEnabled(true);
}
void frmParametresTables::DesactiverCadreChoixMachine() {
    findChild<QWidget*>(QStringLiteral("frameChoixMachine"))->setEnabled(false);
    frameChoixMemoire->setEnabled(false);
    for (QRadioButton* option : optReglagesVersManu) option->setEnabled(false);
}
void frmParametresTables::ActiverCadreMouvements() {
    m_essais->setEnabled(MouvementsActifs);
    m_essais->MontrerMachine();
}
void frmParametresTables::DesactiverCadreMouvements() {
    m_essais->setEnabled(false);
}

void frmParametresTables::MontrerPage(int page) {
    if (page == 0 && !m_essais->CouperAvantDePartir()) {
        optReglagesVersManu[1]->setChecked(true);
        return;
    }
    m_pages->setCurrentIndex(page);
}

// Commands ------------------------------------------------------------------------------------------

// Each begins with a cold wire: what it loads brings other heats with it, and behind its questions the heat
// could not be put out.

bool frmParametresTables::AccepterAbandon() {
    return !Modifiee() || DemanderOuiNon(TexteRempli(TexteProgramme::ParametresAbandon, {TableINI.Nom}),
                                         TitresMessages(RangeeQuitterSansValider), IconeBoite::Exclamation);
}

void frmParametresTables::ChangerMachine(int rang) {
    const std::string nom = comboMachines->itemText(rang).toStdString();
    if (nom != TableINI.Nom && m_essais->CouperAvantDePartir() && AccepterAbandon()) {
        ChoisirMachine(nom);
        MontrerMachine();
        ActualiserNomsMemoiresEtAffichageMachineDansFrmParametres();
        emit MachineChangee();
    }
    RemplirComboMachines();
}

void frmParametresTables::DemanderNouvelleTable() {
    if (!m_essais->CouperAvantDePartir()) return;
    frmNouvelleTable demande(this);
    demande.Accepter([this](const std::string& nom) { return CreerMachine(Saisie(), nom); });
    if (demande.exec() != QDialog::Accepted) return;
    RemplirComboMachines();
    MontrerMachine();
    ActualiserNomsMemoiresEtAffichageMachineDansFrmParametres();
    emit MachineChangee();
}

void frmParametresTables::DemanderEffacement() {
    if (!m_essais->CouperAvantDePartir()) return;
    const auto chargement = [this] {
        lblEtat->setText(TexteAffiche(Texte(TexteProgramme::ParametresChargementDefaut)));
    };
    if (EffacerMachine(TableINI.Nom, chargement) != FinEffacement::Effacee) return;
    RemplirComboMachines();
    MontrerMachine();
    chargement();
    ActualiserNomsMemoiresEtAffichageMachineDansFrmParametres();
    emit MachineChangee();
}

void frmParametresTables::Valider(bool versMemoire) {
    if (!m_essais->CouperAvantDePartir()) return;
    std::optional<int> memoire;
    if (versMemoire) {
        const bool prete = InterfacePretePourMemoire();
        if (!prete) {
            LireEtAfficherNom3TablesZelko();
            ActualiserNomsMemoiresEtAffichageMachineDansFrmParametres();
            return;
        }
        memoire = MemoireChoisie();
        if (!memoire) {
            AfficherExclamation(Texte(TexteProgramme::ParametresChoisirMemoire),
                                Texte(TexteProgramme::TitreOperationImpossible));
            return;
        }
    }
    const FinSauvegarde fin = SauverParamMachineIniEtZelko(Saisie(), memoire);
    if (fin == FinSauvegarde::Refusee) return;
    if (fin == FinSauvegarde::FichierImpossible) {
        ActualiserNomsMemoiresEtAffichageMachineDansFrmParametres(); // moves may not be allowed any more
        return;
    }
    MontrerMachine();
    ActualiserNomsMemoiresEtAffichageMachineDansFrmParametres();
    const bool reservee = EstMachineIntegree(TableINI.Nom);
    if (fin == FinSauvegarde::EnregistreeEtEnvoyee)
        lblEtat->setText(TexteAffiche(
            TexteRempli(TexteProgramme::ParametresEnvoyes, {TableINI.Nom, std::to_string(*memoire + 1)})));
    else if (fin == FinSauvegarde::Enregistree && !reservee)
        lblEtat->setText(TexteAffiche(TexteRempli(TexteProgramme::ParametresEnregistres, {TableINI.Nom})));
    emit MachineChangee();
}

bool frmParametresTables::PeutFermer() {
    if (m_essais->MouvementEnCours()) {
        m_essais->DemanderArret();
        return false;
    }
    // Before anything is asked: the question may stand for hours. A signal does not wait for its answer.
    if (!m_essais->CouperAvantDePartir()) return false;
    return !Modifiee() || FinDemandee() ||
           DemanderOuiNon(TextesMessages(RangeeQuitterSansValider), TitresMessages(RangeeQuitterSansValider),
                          IconeBoite::Exclamation);
}

void frmParametresTables::reject() {
    if (PeutFermer()) QDialog::reject();
}

void frmParametresTables::closeEvent(QCloseEvent* evenement) {
    if (PeutFermer()) {
        QDialog::closeEvent(evenement);
    } else {
        evenement->ignore();
    }
}

} // namespace tessarel
