// Any bytes as what a program sends to the virtual box, and when: whatever comes, it answers, its queue keeps
// to its size, and the wire is where the steps that it counted say.
#include "link/simulateur/boite.h"
#include "link/simulateur/journal.h"
#include "link/simulateur/memoires_machine.h"
#include "link/simulateur/vues_machine.h"
#include "platform/horloge.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

using namespace tessarel;
using namespace tessarel::simulateur;

namespace {

Instant temps{0};
constexpr std::size_t OctetsUtiles = 34; // of a command, its byte 0 left out

MemoiresBoite Memoires() {
    static const MemoiresBoite memoires = [] {
        MemoiresBoite m;
        TableMachine table;
        LireMachine("(Defaut)", table);
        m[0] = MemoireDeMachine(table);
        table.SwitchsActifs = true;
        m[1] = MemoireDeMachine(table);
        return m;
    }();
    return memoires;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    InstallerHorloge([] { return temps; });
    constexpr std::size_t capacite = 4;
    BoiteZelko boite(capacite);
    boite.EcrireMemoires(Memoires());
    boite.ChargerEnRam(0);
    std::string journal;
    boite.SurNote = [&](const NoteJournal& note) {
        journal.clear();
        AjouterLigneJournal(journal, note);
    };
    // A byte of time, a length, the command from its byte 1 on.
    while (taille >= 2) {
        temps += std::chrono::microseconds(1) * octets[0] * octets[0] * octets[0];
        const std::size_t longueur = std::min<std::size_t>({octets[1] % (OctetsUtiles + 1), taille - 2});
        Tampon tampon = {};
        std::copy_n(octets + 2, longueur, tampon.begin() + 1);
        const std::uint8_t code = tampon[1];
        if (boite.Echanger(tampon) != ResultatZelkoSucces || tampon[0] != 0 || tampon[1] != code)
            std::abort();
        octets += 2 + longueur;
        taille -= 2 + longueur;
        const EtatBoite e = boite.Etat();
        if (e.salvesEnFile > capacite || (e.ticksFaits > e.ticks)) std::abort();
    }
    const ComptesBoite& c = boite.Comptes();
    if (c.salvesFinies > c.salvesAcceptees) std::abort();
    SceneMachine scene;
    scene.ram = boite.Ram();
    (void)DessinerTrace(scene, boite.Trajet());
    return 0;
}
