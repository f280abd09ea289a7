// Whether a designed project can be cut.
#include "cut4x/passage.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "platform/dialogue.h"

namespace tessarel {

namespace {

// A spacing may exceed the plateau by that much (mm): what the sum of 32-bit distances can err.
constexpr double ToleranceEcartement = 0.0001;

PassageD4X Refuser(const std::string& raison) {
    return {false, raison, TitresMessages(47)};
}

} // namespace

PassageD4X PasserEnDecoupe(const ProjetCPX& projet, bool projetOuvert, const TableMachine& table) {
    if (!projetOuvert) return {};
    const std::size_t e = projet.E.Points.size();
    const std::size_t s = projet.S.Points.size();
    if (double{projet.Ecartement} - table.EcartementUtile > ToleranceEcartement)
        return Refuser(TextesMessages(47));
    if (e != s) return Refuser(TextesMessages(48));
    // The wire is extended along the line through both faces: faces in one plane give none.
    if (!(projet.Ecartement > 0)) return Refuser(Texte(TexteProgramme::Decoupe4axesSansEcartement));
    if (e < 2) return Refuser(Texte(TexteProgramme::Decoupe4axesSansSegment));
    return {true, "", ""};
}

bool MachineAcceptee4axes(const TableMachine& table) {
    if (!table.OrigineEnHaut) return true;
    AfficherCritique(TextesMessages(49), TitresMessages(49));
    return false;
}

} // namespace tessarel
