// The warning that stands beside a loop which goes on trying, with the one button that makes it give up.
#pragma once

#include <QPointer>
#include <functional>
#include <string>

class QMessageBox;
class QWidget;

namespace tessarel {

// Opened over `fenetre` under the title of the heat that is not off, and not waited for. Its button calls
// `abandonner`, and so do Escape and its cross. Whoever opened it deletes it when the loop has ended.
QPointer<QMessageBox> OuvrirAlerte(QWidget* fenetre, const std::string& texte,
                                   std::function<void()> abandonner);

// Beside such a loop: at its end, whichever way it ends, the warning of that moment is closed.
class FinAlerte {
public:
    explicit FinAlerte(QPointer<QMessageBox>& alerte) : m_alerte(alerte) {}
    ~FinAlerte();
    FinAlerte(const FinAlerte&) = delete;
    FinAlerte& operator=(const FinAlerte&) = delete;

private:
    QPointer<QMessageBox>& m_alerte;
};

} // namespace tessarel
