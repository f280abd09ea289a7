// The sign of a wire that is hot, or may be: it blinks, and is gone while the wire is cold.
#pragma once

#include <QLabel>
#include <QTimer>

namespace tessarel {

enum class EtatFil {
    Froid,
    Chaud,
    Incertain // switched off, and nobody confirmed it
};

class SigneFil : public QLabel {
    Q_OBJECT
public:
    // The names of the label and of its timer. It shows a cold wire.
    SigneFil(const char* nom, const char* nomMinuterie, QWidget* parent = nullptr);

    void Montrer(EtatFil fil);

signals:
    // With each turn: whoever lit the wire looks after it.
    void Battement();

private:
    void Peindre();

    EtatFil m_fil = EtatFil::Froid;
    bool m_plein = false; // which of its two faces it shows
    QTimer m_minuterie{this};
};

} // namespace tessarel
