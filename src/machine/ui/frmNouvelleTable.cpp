// Entry of the name of a new machine.
#include "machine/ui/frmNouvelleTable.h"

#include "app/texts/textes.h"
#include "machine/saisie_machine.h"
#include "machine/ui/libelles_parametres.h"
#include "machine/ui/pose.h"

#include <QLineEdit>
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
    pose->addWidget(etiquette);
    pose->addWidget(txtNomTable);
    pose->addWidget(limite);
    pose->addLayout(FaireReponses(this));
    setMinimumWidth(420);
    AppliquerLibelles(*this, LibellesNouvelleTable(), LangueCourante());
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
