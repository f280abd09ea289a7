// The layout of the material window: the base on the left, the slice test with its picture on the right.
#include "machine/dessin_tranches.h"
#include "machine/ui/frmD4X_matieres.h"
#include "machine/ui/pose.h"
#include "machine/ui/vue_dessin.h"
#include "ui/champ_nombre.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QToolButton>

namespace tessarel {

namespace {

constexpr int LargeurBase = 340; // pixels
constexpr int LargeurChamp = 84;
constexpr int HauteurMouvement = 32;
// Steps of the scroll bars.
constexpr double PasChauffe = 0.5; // percent
constexpr double PasFin = 0.01;    // mm/s and mm

} // namespace

void frmD4X_matieres::Disposer() {
    setMinimumSize(980, 640);
    resize(1160, 740);
    auto* pose = new QHBoxLayout(this);
    QWidget* base = DisposerBase();
    base->setFixedWidth(LargeurBase);
    pose->addWidget(base);
    pose->addWidget(DisposerTest(), 1);
}

QWidget* frmD4X_matieres::DisposerBase() {
    auto* base = new QWidget;
    auto* pose = new QVBoxLayout(base);
    pose->setContentsMargins(0, 0, 0, 0);
    pose->addWidget(DisposerListe());
    pose->addWidget(DisposerValeurs());
    auto* definir = Nommer(new QToolButton, "cmdDefinir");
    definir->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    pose->addWidget(definir);
    cmdExplications = FaireBouton("cmdExplications");
    pose->addWidget(cmdExplications);
    pose->addStretch(1);
    cmdQuitter = FaireBouton("cmdQuitter");
    cmdQuitter->setMinimumHeight(HauteurMouvement);
    pose->addWidget(cmdQuitter);
    return base;
}

QGroupBox* frmD4X_matieres::DisposerListe() {
    auto* cadre = Nommer(new QGroupBox, "frameBase");
    auto* pose = new QGridLayout(cadre);
    pose->addWidget(Nommer(new QLabel, "lblMachineMatieres"), 0, 0, 1, 2);
    comboMatieresBDD = Nommer(new QComboBox, "comboMatieresBDD");
    cmdAideMatieres = Nommer(new QToolButton, "cmdAideMatieres");
    auto* choix = new QHBoxLayout;
    choix->addWidget(comboMatieresBDD, 1);
    choix->addWidget(cmdAideMatieres);
    pose->addLayout(choix, 1, 0, 1, 2);
    for (std::size_t i = 0; i < cmdGestionMatiere.size(); ++i) {
        cmdGestionMatiere[i] = FaireBouton("");
        Nommer(cmdGestionMatiere[i], "cmdGestionMatiere", i);
        pose->addWidget(cmdGestionMatiere[i], 2 + static_cast<int>(i) / 2, static_cast<int>(i) % 2);
    }
    return cadre;
}

frmD4X_matieres::Curseur frmD4X_matieres::FaireCurseur(QGroupBox* cadre, int rang, const char* nom,
                                                       double unite) {
    const QString base = QString::fromLatin1(nom);
    Curseur curseur;
    curseur.unite = unite;
    curseur.barre = Nommer(new QScrollBar(Qt::Horizontal), "hsc" + base);
    curseur.barre->setFocusPolicy(Qt::StrongFocus);
    curseur.valeur = Nommer(new QLabel, "lblValeur" + base);
    curseur.valeur->setAlignment(Qt::AlignRight);
    auto* pose = static_cast<QGridLayout*>(cadre->layout());
    pose->addWidget(Nommer(new QLabel, "lbl" + base), 2 * rang, 0);
    pose->addWidget(curseur.valeur, 2 * rang, 1);
    pose->addWidget(curseur.barre, 2 * rang + 1, 0, 1, 2);
    return curseur;
}

QGroupBox* frmD4X_matieres::DisposerValeurs() {
    auto* cadre = Nommer(new QGroupBox, "frameValeurs");
    auto* pose = new QGridLayout(cadre);
    pose->setVerticalSpacing(4);
    m_chauffe = FaireCurseur(cadre, 0, "ChauffeBDD", PasChauffe);
    m_vitesse = FaireCurseur(cadre, 1, "VitesseBDD", PasFin);
    m_saignee = FaireCurseur(cadre, 2, "SaigneeBDD", PasFin);
    m_saigneeVsur2 = FaireCurseur(cadre, 3, "SaigneeVsur2BDD", PasFin);
    for (Curseur* fin : {&m_vitesse, &m_saignee, &m_saigneeVsur2}) {
        fin->barre->setSingleStep(5);
        fin->barre->setPageStep(50);
    }
    return cadre;
}

QWidget* frmD4X_matieres::DisposerTest() {
    auto* cadre = Nommer(new QGroupBox, "frameTranches");
    auto* pose = new QVBoxLayout(cadre);
    m_imageTranches = Nommer(new VueDessinFixe(CadreTranches(), {620, 330}), "pctTranches");
    pose->addWidget(m_imageTranches, 1);
    auto* image = new QHBoxLayout;
    cmdAnimer = Nommer(new QToolButton, "cmdAnimer");
    cmdAnimer->setCheckable(true);
    cmdEffacerImage = Nommer(new QToolButton, "cmdEffacerImage");
    for (QToolButton* bouton : {cmdAnimer, cmdEffacerImage}) {
        bouton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        image->addWidget(bouton);
    }
    lblEtatTranches = Nommer(new QLabel, "lblEtatTranches");
    image->addWidget(lblEtatTranches, 1);
    pose->addLayout(image);
    auto* bas = new QHBoxLayout;
    bas->addWidget(DisposerParametresTest());
    bas->addWidget(DisposerMouvements(), 1);
    auto* droite = new QVBoxLayout;
    droite->addWidget(DisposerChauffe());
    droite->addWidget(DisposerMesure());
    bas->addLayout(droite, 1);
    pose->addLayout(bas);
    return cadre;
}

QWidget* frmD4X_matieres::DisposerParametresTest() {
    auto* page = new QWidget;
    auto* pose = new QGridLayout(page);
    pose->setContentsMargins(0, 0, 0, 0);
    const auto rangee = [&](int rang, QLabel* etiquette, QLineEdit* champ, QLabel* unite) {
        champ->setFixedWidth(LargeurChamp);
        etiquette->setBuddy(champ);
        pose->addWidget(etiquette, rang, 0);
        pose->addWidget(champ, rang, 1);
        pose->addWidget(unite, rang, 2);
    };
    for (std::size_t i = 0; i < txtDimensionsTranches.size(); ++i) {
        txtDimensionsTranches[i] = Nommer(new ChampNombre, "txtDimensionsTranches", i);
        txtDimensionsTranches[i]->FixerMasque("#####0.0##");
        rangee(static_cast<int>(i), Nommer(new QLabel, "lblDimensionsTranches", i), txtDimensionsTranches[i],
               Nommer(new QLabel, "lblUniteDimensions", i));
    }
    txtVitesseTranches = Nommer(new QLineEdit, "txtVitesseTranches");
    txtVitesseTranches->setAlignment(Qt::AlignRight);
    rangee(3, Nommer(new QLabel, "lblVitesseTranches"), txtVitesseTranches,
           Nommer(new QLabel, "lblUniteVitesseTranches"));
    auto* vitesse = Nommer(new QGroupBox, "frameVitesseMouvement");
    auto* options = new QHBoxLayout(vitesse);
    FaireOptions(vitesse, options, "optVitesseManuMatieres", optVitesseManuMatieres);
    pose->addWidget(vitesse, 4, 0, 1, 3);
    pose->setRowStretch(5, 1);
    return page;
}

// Up and down on the left, the passes in the middle, as the wire goes.
QWidget* frmD4X_matieres::DisposerMouvements() {
    auto* cadre = Nommer(new QGroupBox, "frameMvtTranches");
    auto* pose = new QGridLayout(cadre);
    constexpr std::array<std::pair<int, int>, NombreMouvementsTranches> places = {
        {{0, 0}, {0, 1}, {1, 1}, {2, 1}, {2, 0}, {1, 0}}};
    for (std::size_t i = 0; i < cmdMvtTranches.size(); ++i) {
        cmdMvtTranches[i] = FaireBouton("");
        Nommer(cmdMvtTranches[i], "cmdMvtTranches", i);
        cmdMvtTranches[i]->setMinimumHeight(HauteurMouvement);
        pose->addWidget(cmdMvtTranches[i], places[i].first, places[i].second);
    }
    cmdStopTranches = FaireBouton("cmdStopTranches");
    cmdStopTranches->setMinimumHeight(HauteurMouvement);
    pose->addWidget(cmdStopTranches, 3, 0, 1, 2);
    pose->setRowStretch(4, 1);
    return cadre;
}

QGroupBox* frmD4X_matieres::DisposerChauffe() {
    auto* cadre = Nommer(new QGroupBox, "frameChauffeMatieres");
    auto* pose = new QVBoxLayout(cadre);
    pose->addLayout(FaireControlesChauffe(cadre, "optChauffeMatieres", m_controlesChauffe));
    auto* moteurs = new QHBoxLayout;
    chkDesactiverTimeOutMoteurs = Nommer(new QCheckBox, "chkDesactiverTimeOutMoteurs");
    moteurs->addWidget(chkDesactiverTimeOutMoteurs, 1);
    moteurs->addWidget(Nommer(new QToolButton, "cmdAideTimeOut"));
    pose->addLayout(moteurs);
    return cadre;
}

QGroupBox* frmD4X_matieres::DisposerMesure() {
    auto* cadre = Nommer(new QGroupBox, "frameMesure");
    auto* pose = new QGridLayout(cadre);
    auto* etiquette = Nommer(new QLabel, "lblEpaisseurObtenue");
    txtEpaisseurObtenue = Nommer(new ChampNombre, "txtEpaisseurObtenue");
    txtEpaisseurObtenue->FixerMasque("#####0.0##");
    txtEpaisseurObtenue->setFixedWidth(LargeurChamp);
    etiquette->setBuddy(txtEpaisseurObtenue);
    lblSaignee = Nommer(new QLabel, "lblSaignee");
    cmdEnvoyerSaignee = FaireBouton("cmdEnvoyerSaignee");
    pose->addWidget(etiquette, 0, 0);
    pose->addWidget(txtEpaisseurObtenue, 0, 1);
    pose->addWidget(Nommer(new QLabel, "lblUniteEpaisseur"), 0, 2);
    pose->addWidget(lblSaignee, 1, 0, 1, 3);
    pose->addWidget(cmdEnvoyerSaignee, 2, 0, 1, 3);
    pose->setColumnStretch(0, 1);
    return cadre;
}

} // namespace tessarel
