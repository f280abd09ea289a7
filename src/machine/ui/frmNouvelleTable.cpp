// Entry of the name of a new machine.
#include "machine/ui/frmNouvelleTable.h"

#include "app/texts/textes.h"
#include "machine/saisie_machine.h"
#include "machine/ui/libelles_parametres.h"
#include "machine/ui/pose.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tessarel {

frmNouvelleTable::frmNouvelleTable(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmNouvelleTable"));
    auto* pose = new QVBoxLayout(this);
    auto* etiquette = Nommer(new QLabel, "lblNomTable");
    txtNomTable = Nommer(new QLineEdit, "txtNomTable");
    txtNomTable->setMaxLength(static_cast<int>(LongueurNomMachine));
    etiquette->setBuddy(txtNomTable);
    auto* limite = Nommer(new QLabel, "lblLimiteNom");
    limite->setWordWrap(true);
    Discret(*limite);
    auto* boutons = new QHBoxLayout;
    auto* annuler = Nommer(new QPushButton, "cmdAnnuler");
    auto* valider = Nommer(new QPushButton, "cmdValider");
    valider->setDefault(true);
    annuler->setAutoDefault(false);
    boutons->addStretch(1);
    boutons->addWidget(annuler);
    boutons->addWidget(valider);
    pose->addWidget(etiquette);
    pose->addWidget(txtNomTable);
    pose->addWidget(limite);
    pose->addLayout(boutons);
    setMinimumWidth(420);
    AppliquerLibelles(*this, LibellesNouvelleTable(), LangueCourante());
    connect(valider, &QPushButton::clicked, this, &frmNouvelleTable::accept);
    connect(annuler, &QPushButton::clicked, this, &QDialog::reject);
}

void frmNouvelleTable::accept() {
    if (m_creer && !m_creer(txtNomTable->text().toStdString())) {
        txtNomTable->setFocus();
        txtNomTable->selectAll();
        return;
    }
    QDialog::accept();
}

} // namespace tessarel
