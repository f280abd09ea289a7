// The report of the last opening, in a window of its own beside the work.
#pragma once

#include <string>

class QWidget;

namespace tessarel {

// Shows `texte` over `parent`, without stopping the work; a report that is still open takes the new text.
void MontrerRapport(QWidget& parent, const std::string& texte);

} // namespace tessarel
