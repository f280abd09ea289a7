// The G-code writer that 2D and 4-axis cuts share: a list of lines in one dialect, inverse time, four axes.
#pragma once

#include "platform/nombres.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessarel {

// Letters of the four axes.
struct LettresAxes {
    std::string X1 = "X", Y1 = "Y", X2 = "A", Y2 = "Z";
};

// What the head of a file says; texts come from the tables, values from machine, project and cut.
struct EnteteGcode {
    std::string cheminProjet; // empty: not saved
    std::string nomMachine;
    float corde1 = 0; // mm
    float corde2 = 0;
    std::optional<Masque> masqueCordes = Masque("###0.0"); // none: plain numbers, at most seven digits
    std::vector<std::string> lignesProjet; // lines after the chords, with their parentheses: "(Projet 2D)"
    float chauffe = 0;                     // percent
    int tempoChauffe = 0;                  // s
    LettresAxes lettres;
};

// What the summary of a file says.
struct ResumeGcode {
    int dureeSecondes = 0;
    float vitesse = 0; // mm/s, the cutting speed in force
    float chauffe = 0; // percent
};
// The summary's line, parentheses included.
std::string LigneResumeGcode(const ResumeGcode& resume);
// The same on lines of its own, CR LF between them, for the box that ends an export.
std::string TexteResumeGcode(const ResumeGcode& resume);

// A G-code file in the making: text of lines ended by CR LF, with the place of the summary kept free.
class FichierGcode {
public:
    // Head of the file up to the starting point, the summary still empty.
    void EcrireEntete(const EnteteGcode& entete);
    // "G01 X.. Y.. A.. Z.. F.." to a point of each side, `f` in inverse minutes. Allocates nothing per line
    // once `Reserver` gave room.
    void AjouterMouvement(double x1, double y1, double x2, double y2, double f);
    void Reserver(std::size_t mouvements);
    // A line as it stands (stop points of a 4-axis file and the like).
    void AjouterLigne(std::string_view ligne);
    // The four closing lines.
    void Terminer();
    // Puts the summary, parentheses included, in its place and returns the whole file.
    [[nodiscard]] std::string Texte(const std::string& resume) const;

private:
    std::string m_avant; // up to the summary's line
    std::string m_apres; // after it
    LettresAxes m_lettres;
};

} // namespace tessarel
