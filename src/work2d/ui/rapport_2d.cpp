// The window of the report.
#include "work2d/ui/rapport_2d.h"

#include "app/texts/textes_programme.h"
#include "ui/boites_qt.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tessarel {

namespace {

QDialog* Fenetre(QWidget& parent) {
    const QString nom = QStringLiteral("frmRapportOuverture");
    if (auto* deja = parent.findChild<QDialog*>(nom)) return deja;
    auto* fenetre = new QDialog(&parent);
    fenetre->setObjectName(nom);
    fenetre->setAttribute(Qt::WA_DeleteOnClose);
    fenetre->setWindowTitle(TexteAffiche(Texte(TexteProgramme::RapportTitre)));
    fenetre->resize(520, 420);
    auto* texte = new QPlainTextEdit;
    texte->setObjectName(QStringLiteral("txtRapportOuverture"));
    texte->setReadOnly(true);
    texte->setLineWrapMode(QPlainTextEdit::NoWrap);
    auto* boutons = new QDialogButtonBox;
    QPushButton* fermer =
        boutons->addButton(TexteAffiche(Texte(TexteProgramme::BoutonFermer)), QDialogButtonBox::RejectRole);
    fermer->setObjectName(QStringLiteral("cmdFermerRapport"));
    QObject::connect(boutons, &QDialogButtonBox::rejected, fenetre, &QDialog::reject);
    auto* colonne = new QVBoxLayout(fenetre);
    colonne->addWidget(texte);
    colonne->addWidget(boutons);
    return fenetre;
}

} // namespace

void MontrerRapport(QWidget& parent, const std::string& texte) {
    QDialog* fenetre = Fenetre(parent);
    fenetre->findChild<QPlainTextEdit*>()->setPlainText(TexteAffiche(texte));
    fenetre->show();
    fenetre->raise();
    fenetre->activateWindow();
}

} // namespace tessarel
