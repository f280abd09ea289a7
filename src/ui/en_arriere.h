// Work that takes its time, done beside the window system: the window stays alive and the user may give up.
#pragma once

#include <functional>
#include <string>

class QWidget;

namespace tessarel {

// Runs `travail` and returns when it has ended: true. After 0.3 s a small window over `fenetre` says `quoi`
// and offers to cancel; then the answer is false, the work ends unseen, and whatever it makes must be its own
// to keep. Other windows take no input meanwhile. A fault of the work comes out here. The work must show no
// box.
bool FaireEnArriere(QWidget& fenetre, const std::string& quoi, std::function<void()> travail);

} // namespace tessarel
