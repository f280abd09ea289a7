// The small window that copies a material of another machine to the current one.
#pragma once

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;

namespace tessarel {

class frmImporterMatiere : public QDialog {
    Q_OBJECT
public:
    // MatieresAutresMachines must hold more than its first, empty element.
    explicit frmImporterMatiere(QWidget* parent = nullptr);

public slots:
    void accept() override;

private:
    void MontrerChoix(int rang);

    QComboBox* comboMatieresImport = nullptr;
    QLineEdit* txtNouveauNom = nullptr;
    QLabel* lblValeursImport = nullptr;
};

} // namespace tessarel
