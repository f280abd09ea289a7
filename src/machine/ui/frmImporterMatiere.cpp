// Import of a material: the choice, its values, the name under which it comes in.
#include "machine/ui/frmImporterMatiere.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "machine/gestion_matieres.h"
#include "machine/ui/libelles_matieres.h"
#include "machine/ui/pose.h"
#include "platform/nombres.h"
#include "ui/boites_qt.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>

namespace tessarel {

namespace {

std::string Valeur(float valeur) {
    return PointVersSeparateur(FormaterNombre(valeur, "#####0.0#"));
}

} // namespace

frmImporterMatiere::frmImporterMatiere(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmImporterMatiere"));
    auto* pose = new QGridLayout(this);
    auto* lblMatieres = Nommer(new QLabel, "lblMatieresImport");
    comboMatieresImport = Nommer(new QComboBox, "comboMatieresImport");
    lblMatieres->setBuddy(comboMatieresImport);
    lblValeursImport = Nommer(new QLabel, "lblValeursImport");
    auto* lblNom = Nommer(new QLabel, "lblNouveauNom");
    txtNouveauNom = Nommer(new QLineEdit, "txtNouveauNom");
    lblNom->setBuddy(txtNouveauNom);
    auto* explication = Nommer(new QLabel, "lblExplicationImport");
    explication->setWordWrap(true);
    Discret(*explication);
    pose->addWidget(lblMatieres, 0, 0);
    pose->addWidget(comboMatieresImport, 0, 1);
    pose->addWidget(lblValeursImport, 1, 1);
    pose->addWidget(lblNom, 2, 0);
    pose->addWidget(txtNouveauNom, 2, 1);
    pose->addWidget(explication, 3, 0, 1, 2);
    pose->addLayout(FaireReponses(this), 4, 0, 1, 2);
    setMinimumWidth(480);
    AppliquerLibelles(*this, LibellesImporterMatiere(), LangueCourante());
    for (std::size_t i = 1; i < MatieresAutresMachines.size(); ++i) // the first is no material
        comboMatieresImport->addItem(
            QString::fromStdString(NomAfficheAvecMachine(MatieresAutresMachines[i])));
    connect(comboMatieresImport, &QComboBox::currentIndexChanged, this, &frmImporterMatiere::MontrerChoix);
    MontrerChoix(0);
}

void frmImporterMatiere::MontrerChoix(int rang) {
    const Matiere& matiere = MatieresAutresMachines[static_cast<std::size_t>(rang) + 1];
    txtNouveauNom->setText(QString::fromStdString(matiere.Nom));
    txtNouveauNom->selectAll();
    lblValeursImport->setText(TexteAffiche(TexteRempli(
        TexteProgramme::ValeursMatiere, {Valeur(matiere.ChauffeDecoupe), Valeur(matiere.VitesseDecoupe),
                                         Valeur(matiere.SaigneeVD), Valeur(matiere.SaigneeVDsur2)})));
}

void frmImporterMatiere::accept() {
    const auto rang = static_cast<std::size_t>(comboMatieresImport->currentIndex()) + 1;
    const Matiere source = MatieresAutresMachines[rang]; // a copy: the import rebuilds the array
    if (ImporterMatiere(source, txtNouveauNom->text().toStdString())) {
        QDialog::accept();
        return;
    }
    txtNouveauNom->setFocus();
    txtNouveauNom->selectAll();
}

} // namespace tessarel
