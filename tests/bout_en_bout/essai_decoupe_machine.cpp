// The batch program and the virtual machine as two programs on one socket: a cut to its end, and Ctrl-C in
// the middle of one.
#include "bout_en_bout/executer.h"
#include "outils/dossiers.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace tessarel::essais {
namespace {

class DecoupeMachine : public testing::Test {
protected:
    void SetUp() override { EcrireTout(travail.Fichier("a.txt"), "A\r\n20:5\r\n30:5\r\n30:12\r\n20:5\r\n"); }

    // The simulator for as long as `suite` runs; it ends with the script.
    Execution AvecMachine(const std::string& facteur, const std::string& suite) {
        return Executer("zelko-simulateur --documents sim --memoires memoires.json --journal journal.txt "
                        "--sans-fenetre --facteur " +
                            facteur +
                            " > sim.log 2>&1 & sim=$!\n"
                            "trap 'kill $sim; wait $sim || true' EXIT\n"
                            "n=0; while [ ! -S \"$XDG_RUNTIME_DIR/zelko.sock\" ]; do\n"
                            "  n=$((n+1)); [ $n -lt 200 ] || exit 99; sleep 0.05; done\n" +
                            suite,
                        travail.Chemin());
    }

    DossierProvisoire travail;
};

TEST_F(DecoupeMachine, VaAuBout) {
    const Execution lot = AvecMachine("200", "tessarel-lot --documents doc decouper a.txt --interface");
    EXPECT_EQ(lot.statut, 0) << lot.erreurs << LireTout(travail.Fichier("sim.log"));
    EXPECT_EQ(lot.erreurs,
              "machine disponible: Découpe terminée, fil en position de repos, chauffe coupée.\n");
}

// Every key by which a terminal ends or suspends a program is Stop: the queue of the box would run on.
TEST_F(DecoupeMachine, UneToucheDeFinArreteRefroiditEtDitOuEstLeFil) {
    for (const std::string signal : {"INT", "QUIT", "TSTP"}) {
        const Execution lot =
            AvecMachine("8", "tessarel-lot --documents doc --langue en decouper a.txt --interface & lot=$!\n"
                             "n=0; until grep -q 'B lancer' journal.txt; do\n"
                             "  n=$((n+1)); [ $n -lt 400 ] || exit 98; sleep 0.05; done\n"
                             "sleep 0.7; kill -" +
                                 signal +
                                 " $lot\n"
                                 "statut=0; wait $lot || statut=$?\n"
                                 "exit $statut");
        EXPECT_EQ(lot.statut, 1) << signal << lot.erreurs;
        EXPECT_NE(lot.sortie.find("Stopped at segment no. "), std::string::npos) << lot.sortie << lot.erreurs;
        EXPECT_NE(lot.sortie.find(", wire at X "), std::string::npos) << lot.sortie;
        EXPECT_TRUE(lot.sortie.ends_with(" mm\nHeating off\n")) << lot.sortie;
        EXPECT_EQ(lot.erreurs,
                  "Stopped in the working area: Warning: the wire is not in its rest position.\n");
    }
}

// Letters of the commands that the box heard, but for frames and status requests; one T for several.
std::string CommandesEntendues(const std::string& journal) {
    std::string lettres;
    std::istringstream lignes(journal);
    for (std::string ligne; std::getline(lignes, ligne);) {
        std::istringstream colonnes(ligne);
        std::string colonne;
        for (int i = 0; i < 6; ++i) std::getline(colonnes, colonne, '\t');
        if (ligne.find("\techange\t") == std::string::npos || colonne[0] == 'I' || colonne[0] == 'D')
            continue;
        if (colonne[0] != 'T' || !lettres.ends_with('T')) lettres += colonne[0];
    }
    return lettres;
}

// Nobody can switch the heat off for a program that was killed: the box goes on. The next one that looks says
// so, leaves it in peace unless told otherwise, and does not cut behind a stop.
TEST_F(DecoupeMachine, UnProgrammeTueLaisseUneMachineQueLeSuivantTrouve) {
    const Execution lot = AvecMachine(
        "8", "tessarel-lot --documents doc decouper a.txt --interface >/dev/null 2>&1 & lot=$!\n"
             "n=0; until grep -q 'debut-salve.2' journal.txt; do\n"
             "  n=$((n+1)); [ $n -lt 400 ] || exit 98; sleep 0.05; done\n"
             "kill -9 $lot; wait $lot || true\n"
             "dire() { statut=0; tessarel-lot --documents doc \"$@\" >/dev/null 2>dit.txt || statut=$?\n"
             "  echo \"$statut $(sed 's/:.*//' dit.txt | tr '\\n' ',')\"; }\n"
             "dire interface\n"
             "dire decouper a.txt --interface\n"
             "dire --oui decouper a.txt --interface\n"
             "dire decouper a.txt --interface\n");
    EXPECT_EQ(lot.sortie, "0 Machine en marche,\n"
                          "1 Machine en marche,\n"
                          "1 Machine en marche,Machine arrêtée,\n"
                          "0 machine disponible,\n")
        << lot.statut << lot.erreurs;
    // A cut that was not ended; nothing from the two that left it; the stop and the table; a cut to its end.
    EXPECT_EQ(CommandesEntendues(LireTout(travail.Fichier("journal.txt"))), "TBBB"
                                                                            "SPT"
                                                                            "BBBP");
}

// A terminal that is held up shows nothing; the cut goes on to its end, and the wire is cold before anybody
// lets the terminal go again.
TEST_F(DecoupeMachine, CtrlSNeRetientPasLaMachine) {
    if (!ProgrammePresent("python3")) GTEST_SKIP() << "python3 is not installed";
    EcrireTout(travail.Fichier("terminal.py"), R"(import os, pty, select, sys, time
pid, fd = pty.fork()
if pid == 0:
    os.environ["TERM"] = "xterm"
    os.execvp("tessarel-lot", "tessarel-lot --documents doc decouper a.txt --interface".split())
vu = b""
def lire(secondes):
    global vu
    pret, _, _ = select.select([fd], [], [], secondes)
    if pret:
        try:
            vu += os.read(fd, 65536)
        except OSError:
            return False
    return True
fin = time.time() + 40
while b"segment n" not in vu and time.time() < fin:
    lire(0.1)
os.write(fd, b"\x13")
retenu = False
while time.time() < fin:
    lire(0.1)
    journal = open("journal.txt", errors="replace").read()
    if "P eteindre" in journal.split("B lancer")[-1]:
        retenu = os.waitpid(pid, os.WNOHANG) == (0, 0) # still about to say it
        break
print("cold while held up:", retenu)
os.write(fd, b"\x11")
while lire(0.5) and time.time() < fin:
    pass
print("status:", os.waitstatus_to_exitcode(os.waitpid(pid, 0)[1]))
)");
    const Execution lot = AvecMachine("8", "python3 terminal.py");
    EXPECT_EQ(lot.sortie, "cold while held up: True\nstatus: 0\n")
        << lot.erreurs << LireTout(travail.Fichier("journal.txt"));
}

TEST_F(DecoupeMachine, UnTerminalVoitLeDecompteEtLaBarre) {
    if (!ProgrammePresent("script")) GTEST_SKIP() << "script (Debian package bsdutils) is not installed";
    const Execution lot = AvecMachine(
        "8", "TERM=xterm script -qec 'tessarel-lot --documents doc decouper a.txt --interface' /dev/null");
    EXPECT_EQ(lot.statut, 0) << lot.sortie;
    EXPECT_NE(lot.sortie.find("Mise en température du fil 2/2 s"), std::string::npos) << lot.sortie;
    EXPECT_NE(lot.sortie.find("Découpe segment n°2/"), std::string::npos) << lot.sortie;
}

TEST_F(DecoupeMachine, UneMachineInconnueDeLInterfaceNeBougePas) {
    const Execution lot = AvecMachine(
        "200", "tessarel-lot --documents doc decouper a.txt --machine QT4X-m1 --interface --gcode a.gcode");
    EXPECT_EQ(lot.statut, 1);
    EXPECT_NE(lot.erreurs.find("Pas de correspondance entre la table"), std::string::npos) << lot.erreurs;
    EXPECT_EQ(lot.sortie, ""); // refused before anything was read or written
}

} // namespace
} // namespace tessarel::essais
