// Menus that a test must not stand before.
#pragma once

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <chrono>

namespace tessarel::essais {

// Closes what pops up, which would wait for ever, and tells that there was something.
class FermeurDeMenus {
public:
    FermeurDeMenus() {
        QObject::connect(&m_regard, &QTimer::timeout, [this] {
            while (QWidget* ouvert = QApplication::activePopupWidget()) {
                vu = true;
                if (!ouvert->close()) break;
            }
        });
        m_regard.start(std::chrono::milliseconds(20));
    }
    bool vu = false;

private:
    QTimer m_regard;
};

} // namespace tessarel::essais
