// A text field for one number: what may be typed, when it counts, and what happens to a text that is no
// number.
#pragma once

#include "platform/nombres.h"

#include <QLineEdit>

#include <string>

namespace tessarel {

// Takes digits, point, comma, sign and the editing keys. A typed value counts on Enter and on leaving the
// field, and only if the text was changed: a value shown through a coarse mask stays as it is held. Escape
// gives the shown value back.
class ChampNombre : public QLineEdit {
    Q_OBJECT
public:
    explicit ChampNombre(QWidget* parent = nullptr);

    // How the value shows; "##0.00" at first.
    void FixerMasque(Masque masque);
    // Shows a value without a signal; it is held as given.
    void FixerValeur(double valeur);
    // The box of a text that is no number, in place of the usual one.
    void FixerRefus(const std::string& texte, const std::string& titre);
    // The value as given or last typed, not as rounded by the mask.
    [[nodiscard]] double Valeur() const { return m_valeur; }

    // Takes a changed text now, as Enter does: for a button that reads the field. False when it was no
    // number.
    bool Valider();

signals:
    // The user typed another number and it counts from now on. The receiver may set a corrected value.
    void ValeurSaisie(double valeur);

protected:
    void keyPressEvent(QKeyEvent* evenement) override;
    void focusOutEvent(QFocusEvent* evenement) override;

private:
    void Montrer();

    Masque m_masque{"##0.00"};
    double m_valeur = 0;
    std::string m_refusTexte; // empty: the usual words, in the language of the moment
    std::string m_refusTitre;
};

} // namespace tessarel
