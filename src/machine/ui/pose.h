// Small helpers of the layouts: small print, options, buttons, pages that scroll.
#pragma once

#include "ui/nommer.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QDialog>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>

#include <array>

namespace tessarel {

inline void Petit(QWidget& controle) {
    QFont police = controle.font();
    police.setPointSizeF(police.pointSizeF() * 0.88);
    controle.setFont(police);
}

// Small print that stands back behind the caption above it; it follows the theme.
inline void Discret(QLabel& etiquette) {
    Petit(etiquette);
    etiquette.setForegroundRole(QPalette::PlaceholderText);
}

// Options "nom_0", "nom_1"... of which one is set, the first to begin with.
template <std::size_t N>
void FaireOptions(QWidget* parent, QBoxLayout* pose, const char* nom, std::array<QRadioButton*, N>& options) {
    auto* groupe = new QButtonGroup(parent);
    for (std::size_t i = 0; i < N; ++i) {
        options[i] = Nommer(new QRadioButton, nom, i);
        groupe->addButton(options[i], static_cast<int>(i));
        pose->addWidget(options[i]);
    }
    options[0]->setChecked(true);
}

// A button that Enter in a field of its dialog does not press.
inline QPushButton* FaireBouton(const char* nom) {
    auto* bouton = Nommer(new QPushButton, nom);
    bouton->setAutoDefault(false);
    return bouton;
}

// The end of a question, "cmdAnnuler" and "cmdValider": Enter accepts. The dialog's own accept and reject are
// called.
inline QBoxLayout* FaireReponses(QDialog* question) {
    auto* pose = new QHBoxLayout;
    auto* annuler = FaireBouton("cmdAnnuler");
    auto* valider = Nommer(new QPushButton, "cmdValider");
    valider->setDefault(true);
    pose->addStretch(1);
    pose->addWidget(annuler);
    pose->addWidget(valider);
    QObject::connect(annuler, &QPushButton::clicked, question, &QDialog::reject);
    QObject::connect(valider, &QPushButton::clicked, question, &QDialog::accept);
    return pose;
}

// A page that scrolls where the screen is too low for it.
inline QScrollArea* PageDefilante(QWidget* contenu) {
    auto* page = new QScrollArea;
    page->setWidget(contenu);
    page->setWidgetResizable(true);
    page->setFrameShape(QFrame::NoFrame);
    return page;
}

} // namespace tessarel
