// The layout of the parameter window: choice of the machine on top, tabs of fields or the test moves in the
// middle, memories and the ways to store below.
#include "machine/champs_machine.h"
#include "machine/dessin_sorties.h"
#include "machine/ui/frmParametresTables.h"
#include "machine/ui/panneau_essais.h"
#include "machine/ui/pose.h"
#include "machine/ui/vue_dessin.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSlider>
#include <QStackedWidget>
#include <QTabWidget>
#include <QToolButton>

namespace tessarel {

namespace {

constexpr int LargeurChamp = 92; // pixels
constexpr int LargeurEtiquette = 180;
constexpr int LargeurSortie = 68;
constexpr int LargeurCurseur = 200;
constexpr int NombreSorties = 10;
constexpr const char* NomsAxes[] = {"X1", "Y1", "X2", "Y2", "A"};

// Columns of the grid of axes: the first word of the name, in the order shown.
constexpr const char* ColonnesAxes[] = {"comboDirOut",   "chkInversionDir", "comboStepOut", "chkInversionPas",
                                        "txtPasParTour", "txtMicroPas",     "txtMmParTour"};

QSlider* FaireCurseur(const ChampFenetre& champ) {
    auto* curseur = new QSlider(Qt::Horizontal);
    const ChampMachineSaisi* limites = ChampMachineSaisiDe(champ.cle);
    const int facteur = FacteurCurseur(champ);
    curseur->setRange(static_cast<int>(limites->minimum) / facteur,
                      static_cast<int>(limites->maximum) / facteur);
    curseur->setPageStep(facteur == 1 ? 5 : 1);
    curseur->setMinimumWidth(LargeurCurseur);
    return curseur;
}

} // namespace

void frmParametresTables::Disposer() {
    setMinimumSize(980, 600);
    resize(1240, 760);
    auto* pose = new QVBoxLayout(this);
    pose->setSpacing(8);
    pose->addWidget(DisposerEntete());
    m_pages = new QStackedWidget;
    m_pages->addWidget(DisposerReglages());
    m_essais = new PanneauEssais;
    m_pages->addWidget(m_essais);
    pose->addWidget(m_pages, 1);
    pose->addWidget(DisposerPied());
}

QWidget* frmParametresTables::DisposerEntete() {
    auto* entete = Nommer(new QWidget, "frameChoixMachine");
    auto* rangee = new QHBoxLayout(entete);
    rangee->setContentsMargins(0, 0, 0, 0);
    auto* lblMachines = Nommer(new QLabel, "lblMachines");
    comboMachines = Nommer(new QComboBox, "comboMachines");
    comboMachines->setMinimumWidth(190);
    lblMachines->setBuddy(comboMachines);
    cmdNouvelleTable = Nommer(new QPushButton, "cmdNouvelleTable");
    cmdEffacerTable = Nommer(new QPushButton, "cmdEffacerTable");
    lblNomReserve = Nommer(new QLabel, "lblNomReserve");
    lblNomReserve->setWordWrap(true);
    QSizePolicy place = lblNomReserve->sizePolicy();
    place.setRetainSizeWhenHidden(true); // the row keeps its shape from one machine to the next
    lblNomReserve->setSizePolicy(place);
    lblEtatInterface = Nommer(new QLabel, "lblEtatInterface");
    lblEtatInterface->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    cmdRafraichirUsb = Nommer(new QToolButton, "cmdRafraichirUsb");
    for (QPushButton* bouton : {cmdNouvelleTable, cmdEffacerTable}) bouton->setAutoDefault(false);
    rangee->addWidget(lblMachines);
    rangee->addWidget(comboMachines);
    rangee->addWidget(cmdNouvelleTable);
    rangee->addWidget(cmdEffacerTable);
    rangee->addWidget(lblNomReserve, 1);
    rangee->addWidget(lblEtatInterface);
    rangee->addWidget(cmdRafraichirUsb);
    auto* tout = new QWidget;
    auto* colonne = new QVBoxLayout(tout);
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->addWidget(entete);
    auto* choix = new QHBoxLayout;
    auto* pages = new QButtonGroup(this);
    for (std::size_t i = 0; i < optReglagesVersManu.size(); ++i) {
        optReglagesVersManu[i] = Nommer(new QRadioButton, "optReglagesVersManu", i);
        pages->addButton(optReglagesVersManu[i], static_cast<int>(i));
        choix->addWidget(optReglagesVersManu[i]);
    }
    optReglagesVersManu[0]->setChecked(true);
    choix->addStretch(1);
    colonne->addLayout(choix);
    return tout;
}

QWidget* frmParametresTables::DisposerReglages() {
    ssTabParametres = Nommer(new QTabWidget, "ssTabParametres");
    ssTabParametres->setUsesScrollButtons(false);
    ssTabParametres->addTab(PageDefilante(DisposerMoteurs()), {});
    for (int onglet = OngletVitesses; onglet <= OngletGcode; ++onglet)
        ssTabParametres->addTab(PageDefilante(DisposerGroupes(onglet)), {});
    ssTabParametres->addTab(PageDefilante(DisposerMemoires()), {});
    return ssTabParametres;
}

QWidget* frmParametresTables::FaireControle(const ChampFenetre& champ) {
    const QString nom = QString::fromLatin1(champ.controle);
    QWidget* controle = nullptr;
    if (nom.startsWith(QStringLiteral("combo"))) {
        auto* liste = new QComboBox;
        liste->addItem(QStringLiteral("–"));
        for (int sortie = 1; sortie <= NombreSorties; ++sortie) liste->addItem(QString::number(sortie));
        liste->setFixedWidth(LargeurSortie);
        controle = liste;
    } else if (nom.startsWith(QStringLiteral("chk"))) {
        controle = new QCheckBox;
    } else if (nom.startsWith(QStringLiteral("slid"))) {
        controle = FaireCurseur(champ);
    } else {
        auto* saisie = new QLineEdit;
        saisie->setFixedWidth(LargeurChamp);
        if (ChampMachineSaisiDe(champ.cle) != nullptr)
            saisie->setAlignment(Qt::AlignRight);
        else
            saisie->setMaxLength(4); // letters of an axis
        controle = saisie;
    }
    return Nommer(controle, champ.controle);
}

// Caption, field and unit, the remark; below the caption its explanation.
void frmParametresTables::DisposerRangee(QGridLayout* pose, int rang, const ChampFenetre& champ) {
    const QString nom = QString::fromLatin1(champ.controle);
    QWidget* controle = FaireControle(champ);
    auto* remarque = Nommer(new QLabel, "lblRemarque" + nom);
    remarque->setWordWrap(true);
    Petit(*remarque);
    auto* aide = Nommer(new QLabel, "lblAide" + nom);
    Discret(*aide);
    if (qobject_cast<QCheckBox*>(controle) != nullptr) {
        pose->addWidget(controle, rang, 0, 1, 3);
    } else {
        auto* etiquette = Nommer(new QLabel, "lbl" + nom);
        etiquette->setBuddy(controle);
        auto* unite = Nommer(new QLabel, "lblUnite" + nom);
        const ChampMachineSaisi* limites = ChampMachineSaisiDe(champ.cle);
        if (limites != nullptr) unite->setText(QString::fromUtf8(limites->unite));
        pose->addWidget(etiquette, rang, 0);
        pose->addWidget(controle, rang, 1);
        pose->addWidget(unite, rang, 2);
        unite->setMinimumWidth(unite->fontMetrics().horizontalAdvance(QStringLiteral("50000 Hz")) + 8);
    }
    pose->addWidget(remarque, rang, 3);
    pose->addWidget(aide, rang + 1, 0, 1, 4);
    pose->setColumnStretch(3, 1);
    pose->setColumnMinimumWidth(0, LargeurEtiquette);
    pose->setColumnMinimumWidth(3, 100);
    m_champs.push_back({&champ, controle, remarque});
}

QGroupBox* frmParametresTables::DisposerGroupe(const GroupeFenetre& groupe) {
    auto* cadre = Nommer(new QGroupBox, groupe.cadre);
    auto* pose = new QGridLayout(cadre);
    pose->setVerticalSpacing(2);
    pose->setHorizontalSpacing(8);
    int rang = 0;
    for (const ChampFenetre& champ : groupe.champs) {
        DisposerRangee(pose, rang, champ);
        pose->setRowMinimumHeight(rang + 2, 6);
        rang += 3;
    }
    return cadre;
}

// Groups side by side, in two columns.
QWidget* frmParametresTables::DisposerGroupes(int onglet) {
    auto* page = new QWidget;
    auto* colonnes = new QHBoxLayout(page);
    std::array<QVBoxLayout*, 2> poses{};
    for (QVBoxLayout*& pose : poses) {
        pose = new QVBoxLayout;
        colonnes->addLayout(pose, 1);
    }
    std::size_t rang = 0;
    for (const GroupeFenetre& groupe : GroupesDeLOnglet(onglet)) {
        poses[std::min<std::size_t>(rang, 1)]->addWidget(DisposerGroupe(groupe));
        ++rang;
    }
    if (onglet == OngletGeometrie) DecorerGeometrie(poses[0]);
    for (QVBoxLayout* pose : poses) pose->addStretch(1);
    return page;
}

// What the useful width comes to, and how to measure.
void frmParametresTables::DecorerGeometrie(QVBoxLayout* pose) {
    lblEcartementUtile = Nommer(new QLabel, "lblEcartementUtile");
    pose->addWidget(lblEcartementUtile);
    for (const char* nom : {"cmdAideEcartements", "cmdAideLongueurFil"}) {
        auto* aide = Nommer(new QToolButton, nom);
        aide->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        pose->addWidget(aide);
    }
}

QWidget* frmParametresTables::DisposerGrilleAxes() {
    auto* cadre = Nommer(new QGroupBox, "frameAxes");
    auto* pose = new QGridLayout(cadre);
    pose->setHorizontalSpacing(8);
    pose->setVerticalSpacing(3);
    for (std::size_t colonne = 0; colonne < std::size(ColonnesAxes) + 2; ++colonne) {
        auto* titre = Nommer(new QLabel, "lblColonne", colonne);
        titre->setAlignment(Qt::AlignCenter);
        Petit(*titre);
        pose->addWidget(titre, 0, static_cast<int>(colonne));
    }
    const std::span<const ChampFenetre> champs = ChampsDesMoteurs();
    for (std::size_t axe = 0; axe < lblPasParMm.size(); ++axe) {
        const int rang = 1 + 2 * static_cast<int>(axe);
        auto* nom = Nommer(new QLabel, "lblAxe", axe);
        nom->setText(QString::fromLatin1(NomsAxes[axe]));
        pose->addWidget(nom, rang, 0, Qt::AlignCenter);
        for (std::size_t colonne = 0; colonne < std::size(ColonnesAxes); ++colonne) {
            const QString cherche =
                QStringLiteral("%1_%2").arg(QLatin1String(ColonnesAxes[colonne])).arg(axe);
            for (const ChampFenetre& champ : champs) {
                if (cherche != QLatin1String(champ.controle)) continue;
                QWidget* controle = FaireControle(champ);
                pose->addWidget(controle, rang, static_cast<int>(colonne) + 1, Qt::AlignCenter);
                m_champs.push_back({&champ, controle, nullptr});
            }
        }
        lblPasParMm[axe] = Nommer(new QLabel, "lblPasParMm", axe);
        pose->addWidget(lblPasParMm[axe], rang, static_cast<int>(std::size(ColonnesAxes)) + 1);
        lblRemarqueAxe[axe] = Nommer(new QLabel, "lblRemarqueAxe", axe);
        Petit(*lblRemarqueAxe[axe]);
        pose->addWidget(lblRemarqueAxe[axe], rang + 1, 1, 1, static_cast<int>(std::size(ColonnesAxes)) + 1);
    }
    return cadre;
}

QWidget* frmParametresTables::DisposerMoteurs() {
    auto* page = new QWidget;
    auto* rangee = new QHBoxLayout(page);
    auto* gauche = new QVBoxLayout;
    gauche->addWidget(DisposerGrilleAxes());
    auto* moteurs = Nommer(new QGroupBox, "frameMoteurs");
    auto* pose = new QGridLayout(moteurs);
    pose->setVerticalSpacing(2);
    int rang = 0;
    for (const ChampFenetre& champ : ChampsDesMoteurs().first(3)) {
        DisposerRangee(pose, rang, champ);
        rang += 2;
    }
    gauche->addWidget(moteurs);
    gauche->addStretch(1);
    rangee->addLayout(gauche, 3);
    auto* sorties = Nommer(new QGroupBox, "frameSorties");
    auto* cadre = new QVBoxLayout(sorties);
    m_imageSorties = Nommer(new VueDessinFixe(CadreSorties(), {430, 400}), "pctSorties");
    cadre->addWidget(m_imageSorties);
    rangee->addWidget(sorties, 2);
    return page;
}

QWidget* frmParametresTables::DisposerMemoires() {
    auto* page = new QWidget;
    auto* pose = new QVBoxLayout(page);
    auto* explication = Nommer(new QLabel, "lblExplicationMemoires");
    explication->setWordWrap(true);
    pose->addWidget(explication);
    ssTabZelko = Nommer(new QTabWidget, "ssTabZelko");
    for (std::size_t i = 0; i < lblContenuMemoire.size(); ++i) {
        lblContenuMemoire[i] = Nommer(new QLabel, "lblContenuMemoire", i);
        lblContenuMemoire[i]->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        lblContenuMemoire[i]->setTextFormat(Qt::RichText);
        lblContenuMemoire[i]->setMargin(10);
        ssTabZelko->addTab(lblContenuMemoire[i], {});
    }
    pose->addWidget(ssTabZelko, 1);
    return page;
}

QWidget* frmParametresTables::DisposerPied() {
    auto* pied = new QWidget;
    auto* rangee = new QHBoxLayout(pied);
    rangee->setContentsMargins(0, 0, 0, 0);
    frameChoixMemoire = Nommer(new QGroupBox, "frameChoixMemoire");
    auto* memoires = new QHBoxLayout(frameChoixMemoire);
    m_memoires = new QButtonGroup(this);
    for (std::size_t i = 0; i < optChoixMemoire.size(); ++i) {
        optChoixMemoire[i] = Nommer(new QRadioButton, "optChoixMemoire", i);
        m_memoires->addButton(optChoixMemoire[i], static_cast<int>(i));
        memoires->addWidget(optChoixMemoire[i]);
    }
    rangee->addWidget(frameChoixMemoire);
    lblEtat = Nommer(new QLabel, "lblEtat");
    lblEtat->setWordWrap(true);
    rangee->addWidget(lblEtat, 1);
    for (std::size_t i = 0; i < cmdValider.size(); ++i) {
        cmdValider[i] = Nommer(new QPushButton, "cmdValider", i);
        cmdValider[i]->setAutoDefault(false);
        cmdValider[i]->setMinimumHeight(36);
        rangee->addWidget(cmdValider[i]);
    }
    cmdQuitter = Nommer(new QPushButton, "cmdQuitter");
    cmdQuitter->setAutoDefault(false);
    cmdQuitter->setMinimumHeight(36);
    rangee->addWidget(cmdQuitter);
    return pied;
}

} // namespace tessarel
