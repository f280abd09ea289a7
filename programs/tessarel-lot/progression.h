// A bar on the terminal for work that takes time; silent anywhere else.
#pragma once

#include <string>

namespace tessarel::lot {

// Announces the steps of a run on standard error, where it is a terminal. One at a time; whoever writes on
// the terminal meanwhile calls Effacer() first, so that no line is mixed with the bar.
class Progression {
public:
    explicit Progression(int etapes);
    ~Progression();
    Progression(const Progression&) = delete;
    Progression& operator=(const Progression&) = delete;

    // Begins the next step.
    void Etape(const std::string& nom);
    // A bar filled to `part`, 0 to 1, for work whose steps are not counted. Redrawn as often as it is called.
    static void Montrer(double part, const std::string& texte);
    // Takes away the bar of the one that is under way, if any.
    static void Effacer();

private:
    int m_etapes;
    int m_faites = 0;
    bool m_terminal;
};

} // namespace tessarel::lot
