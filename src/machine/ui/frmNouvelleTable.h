// The small window that asks for the name of a new machine.
#pragma once

#include <QDialog>
#include <functional>
#include <string>

class QLineEdit;

namespace tessarel {

class frmNouvelleTable : public QDialog {
    Q_OBJECT
public:
    explicit frmNouvelleTable(QWidget* parent = nullptr);

    // Who makes the machine; it tells why a name is refused, and the window stays for another one.
    void Accepter(std::function<bool(const std::string&)> creer) { m_creer = std::move(creer); }

public slots:
    void accept() override;

private:
    std::function<bool(const std::string&)> m_creer;
    QLineEdit* txtNomTable = nullptr;
};

} // namespace tessarel
