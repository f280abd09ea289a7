// The heat of the wire as the windows of this folder show it: off and on, the bar with its percentage, the
// warning.
#pragma once

#include <QString>

#include <array>

class QBoxLayout;
class QGroupBox;
class QLabel;
class QRadioButton;
class QScrollBar;

namespace tessarel {

class ConduiteManuelle;

struct ControlesChauffe {
    std::array<QRadioButton*, 2> options{}; // off, on
    QScrollBar* hscChauffeParam = nullptr;  // percent
    QLabel* lblChauffeParam = nullptr;
    QLabel* lblWarningChauffe = nullptr;
};

// Makes them; the options are called "nomOptions_0" and "_1". Gives the rows for the layout of `cadre`.
QBoxLayout* FaireControlesChauffe(QGroupBox* cadre, const char* nomOptions, ControlesChauffe& chauffe);

// A click lights or puts out, the bar changes the heat; the options and the warning show what is. `etat`,
// which outlives them as they do each other, tells a wire that was put out unasked.
void RelierChauffe(const ControlesChauffe& chauffe, ConduiteManuelle& conduite, QLabel& etat);

// Shows the percentage at which the bar stands.
void MontrerChauffe(const ControlesChauffe& chauffe);

} // namespace tessarel
