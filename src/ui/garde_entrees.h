// What the mouse and the keys may reach while a command drives the machine from inside an event handler, and
// clicks that come too late.
#pragma once

#include <functional>
#include <vector>

class QWidget;

namespace tessarel {

// A command that moves or heats is a loop in the handler of the button that started it: it goes on only when
// the handlers it lets run have returned. A menu, a drag or a dialog is a loop of its own, which would hold
// it up while the wire is hot and Stop is out of reach; a second command would start inside the first. So
// while a guard lives everything is closed to mouse and keys but what is named here, and message boxes.
class GardeEntrees {
public:
    // Open: `permis`, each with all that stands in it; none of them may open a menu or a box, or take text.
    // `arreter` is Escape, wherever the keyboard is, but in a message box; a key that is held counts once.
    // It sets flags, as the other handlers do.
    GardeEntrees(std::vector<const QWidget*> permis, std::function<void()> arreter);
    ~GardeEntrees();
    GardeEntrees(const GardeEntrees&) = delete;
    GardeEntrees& operator=(const GardeEntrees&) = delete;
};

// While it lives no button counts that was pressed by its key beforehand: for work that lets timers run and
// keeps input back.
class ClicsEcartes {
public:
    ClicsEcartes();
    ~ClicsEcartes();
    ClicsEcartes(const ClicsEcartes&) = delete;
    ClicsEcartes& operator=(const ClicsEcartes&) = delete;
};

// From here on the key of a button counts only if the button is still at hand when its click comes, a tenth
// of a second later: enabled, visible, not behind a dialog or a menu. The first guard sees to it too.
void InstallerFiltreEntrees();

} // namespace tessarel
