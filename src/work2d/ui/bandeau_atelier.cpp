// The row of tools over the table.
#include "work2d/ui/bandeau_atelier.h"

#include "platform/nombres.h"
#include "work2d/ui/atelier_2d.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QToolButton>

#include <utility>

namespace tessarel {

namespace {

constexpr int CoteIcone = 22; // pixels
constexpr int CoteBouton = 33;
constexpr Masque MasqueTaille = "##0.00";

std::string TexteTaille(double largeur, double hauteur) {
    return FormaterNombre(largeur, MasqueTaille) + " mm x " + FormaterNombre(hauteur, MasqueTaille) + " mm";
}

} // namespace

BandeauAtelier::BandeauAtelier(QWidget* parent) : QFrame(parent) {
    setObjectName(QStringLiteral("bandeauAtelier"));
    auto* rangee = new QHBoxLayout(this);
    rangee->setContentsMargins(6, 3, 8, 3);
    rangee->setSpacing(1);
    cmdSelection = Ajouter("cmdSelection");
    cmdInsererPoint = Ajouter("cmdInsererPoint");
    cmdCouperTrace = Ajouter("cmdCouperTrace");
    auto* outils = new QButtonGroup(this);
    for (QToolButton* outil : {cmdSelection, cmdInsererPoint, cmdCouperTrace}) {
        outil->setCheckable(true);
        outils->addButton(outil);
    }
    cmdSelection->setChecked(true);
    Separer();
    cmdUndoTS2D = {Ajouter("cmdUndoTS2D_0"), Ajouter("cmdUndoTS2D_1")};
    Separer();
    cmdToutSelectionner = Ajouter("cmdToutSelectionner");
    cmdDupliquer = Ajouter("cmdDupliquer");
    cmdInverser = Ajouter("cmdInverser");
    cmdMiroir = {Ajouter("cmdMiroir_0"), Ajouter("cmdMiroir_1")};
    cmdPoubelle = Ajouter("cmdPoubelle");
    rangee->addStretch(1);
    lblDimensionSelection = new QLabel;
    lblDimensionSelection->setObjectName(QStringLiteral("lblDimensionSelection"));
    rangee->addWidget(lblDimensionSelection);
}

QToolButton* BandeauAtelier::Ajouter(const char* nom) {
    auto* bouton = new QToolButton;
    bouton->setObjectName(QString::fromLatin1(nom));
    bouton->setIconSize({CoteIcone, CoteIcone});
    bouton->setFixedSize(CoteBouton, CoteBouton);
    bouton->setAutoRaise(true);
    layout()->addWidget(bouton);
    return bouton;
}

void BandeauAtelier::Separer() {
    auto* filet = new QFrame;
    filet->setFrameShape(QFrame::VLine);
    filet->setFrameShadow(QFrame::Sunken);
    layout()->addWidget(filet);
}

void BandeauAtelier::Relier(Atelier2D& atelier) {
    m_atelier = &atelier;
    RelierOutils();
    for (std::size_t i = 0; i < cmdUndoTS2D.size(); ++i) {
        connect(cmdUndoTS2D[i], &QToolButton::clicked, m_atelier,
                [&atelier, i] { atelier.Reculer(static_cast<SensHistorique>(i)); });
        connect(cmdMiroir[i], &QToolButton::clicked, m_atelier,
                [&atelier, i] { atelier.Refleter(static_cast<AxeMiroir>(i)); });
    }
    // Keys of their own: a button's shortcut shows it pressed for a tenth of a second first, and keys held
    // down are lost meanwhile. Many hands know Ctrl+Shift+Z.
    const std::pair<QKeySequence, SensHistorique> touches[] = {
        {Qt::CTRL | Qt::Key_Z, SensHistorique::Arriere},
        {Qt::CTRL | Qt::Key_Y, SensHistorique::Avant},
        {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, SensHistorique::Avant}};
    for (const auto& [touche, sens] : touches) {
        auto* raccourci = new QShortcut(touche, this);
        connect(raccourci, &QShortcut::activated, m_atelier,
                [&atelier, sens = sens] { atelier.Reculer(sens); });
    }
    connect(cmdToutSelectionner, &QToolButton::clicked, m_atelier,
            [&atelier] { atelier.ToutSelectionner(true); });
    connect(cmdDupliquer, &QToolButton::clicked, m_atelier, &Atelier2D::Dupliquer);
    connect(cmdInverser, &QToolButton::clicked, m_atelier, &Atelier2D::Inverser);
    connect(cmdPoubelle, &QToolButton::clicked, m_atelier, &Atelier2D::Supprimer);
    connect(m_atelier, &Atelier2D::SelectionChangee, this, &BandeauAtelier::MontrerEtat);
    connect(m_atelier, &Atelier2D::TailleVivante, this, &BandeauAtelier::MontrerTaille);
    MontrerEtat();
}

void BandeauAtelier::RelierOutils() {
    Atelier2D& atelier = *m_atelier;
    const auto prendre = [this, &atelier](QToolButton* bouton, OutilAtelier outil) {
        connect(bouton, &QToolButton::clicked, m_atelier, [&atelier, outil] { atelier.ChoisirOutil(outil); });
        connect(m_atelier, &Atelier2D::OutilChoisi, bouton,
                [&atelier, bouton, outil] { bouton->setChecked(atelier.Outil() == outil); });
    };
    prendre(cmdSelection, OutilAtelier::Selection);
    prendre(cmdInsererPoint, OutilAtelier::InsererPoint);
    prendre(cmdCouperTrace, OutilAtelier::CouperTrace);
}

void BandeauAtelier::MontrerEtat() {
    cmdUndoTS2D[0]->setEnabled(PeutAnnuler(m_atelier->Historique()));
    cmdUndoTS2D[1]->setEnabled(PeutRefaire(m_atelier->Historique()));
    const bool choisi = m_atelier->NombreSelections() > 0;
    for (QToolButton* bouton : {cmdDupliquer, cmdInverser, cmdMiroir[0], cmdMiroir[1], cmdPoubelle})
        bouton->setEnabled(choisi);
    if (choisi) {
        const Sequence& boite = m_atelier->BoiteSelection();
        MontrerTaille(boite.Largeur, boite.Hauteur);
    } else {
        lblDimensionSelection->clear();
    }
}

void BandeauAtelier::MontrerTaille(double largeur, double hauteur) {
    lblDimensionSelection->setText(QString::fromStdString(TexteTaille(largeur, hauteur)));
}

} // namespace tessarel
