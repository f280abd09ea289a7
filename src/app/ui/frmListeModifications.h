// The window of the change list.
#pragma once

#include "app/texts/textes.h"

#include <QDialog>

class QLabel;
class QPushButton;
class QTextBrowser;

namespace tessarel {

class frmListeModifications : public QDialog {
public:
    explicit frmListeModifications(Langue langue, QWidget* parent = nullptr);

private:
    QLabel* m_lblEntete;
    QTextBrowser* m_txtModifications;
    QPushButton* m_cmdFermer;
};

// The change list of the program in a language, as Markdown: a heading for each version, and a rule between
// two.
QString ListeModifications(Langue langue);

} // namespace tessarel
