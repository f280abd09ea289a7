// ./run as a user starts it, on programs that are built: the samples and a cut on the virtual machine from
// the shell, the two windows of the demonstration; and that nothing of it is left whatever ended it.
#include "bout_en_bout/executer.h"
#include "outils/dossiers.h"
#include "platform/fichiers.h"

#include <gtest/gtest.h>

#include <string>

namespace tessarel::essais {
namespace {

const std::string RUN =
    std::string(TESSAREL_RACINE) + "/run --programmes " + TESSAREL_BIN + " --sortie \"$PWD/sortie\" ";
const std::string AVEC_MACHINE = std::string(TESSAREL_RACINE) + "/scripts/avec-machine ";
// Under the sanitizers leaks are judged in the engines only: the toolkit keeps some memory until its end.
const std::string RUN_DEMO = "env ASAN_OPTIONS=detect_leaks=0 " + RUN + "demo";
constexpr int Patience = 120; // s

// In a shell of its own temporary folder `tmp` and run folder `run`: what is started there is found again by
// its environment, wherever it went.
const std::string OUTILS = R"sh(
mkdir -p -m 700 run tmp
export XDG_RUNTIME_DIR="$PWD/run" HOME="$PWD"
marque=TMPDIR=$PWD/tmp
eux() { # processes, of one program where it is named
  for e in $(grep -lzxF "$marque" /proc/[0-9]*/environ 2>/dev/null); do
    p=${e%/environ}
    [ $# = 0 ] || [ "$(basename "$(readlink $p/exe)")" = "$1" ] || continue
    echo ${p#/proc/}
  done
}
jusqua() { # condition in words of the shell
  n=0; until eval "$@"; do n=$((n+1)); [ $n -lt 600 ] || { echo "never: $*"; exit 99; }; sleep 0.05; done
}
restes() { # what is left once all is over
  jusqua '[ -z "$(eux)" ]'
  ls -A tmp; ls -A run | grep -v '^tessarel.lock$' || true
}
)sh";

// With `signal` to stop it by, as a terminal gives it: not ignored from birth.
std::string EnFond(const std::string& commande) {
    return "env --default-signal=INT TMPDIR=\"$PWD/tmp\" " + commande + " >dit 2>erreurs & lance=$!\n";
}

class Demonstration : public testing::Test {
protected:
    void SetUp() override {
        if (!ProgrammePresent("bash") || !ProgrammePresent("setsid")) GTEST_SKIP() << "no bash or no setsid";
        if (!ProgrammePresent("zelko-simulateur")) GTEST_SKIP() << "built without the virtual machine";
    }
    Execution Faire(const std::string& suite) { return Executer(OUTILS + suite, travail.Chemin(), Patience); }
    // Both windows are up: the machine serves, the desktop program has asked it.
    static std::string LancerDemo(const std::string& avant = "") {
        return EnFond(avant + RUN_DEMO) +
               "jusqua '[ -n \"$(eux tessarel)\" ] && [ -n \"$(eux zelko-simulateur)\" ]'\n"
               "sleep 1\n";
    }
    DossierProvisoire travail;
};

class Demo : public Demonstration {
protected:
    void SetUp() override {
        Demonstration::SetUp();
        if (!ProgrammePresent("tessarel")) GTEST_SKIP() << "built without windows";
    }
};

constexpr const char* Fini =
    "machine disponible: Découpe terminée, fil en position de repos, chauffe coupée.\n";

TEST_F(Demonstration, SansEcranLesEchantillonsPuisUneDecoupeSurLaMachineVirtuelle) {
    const Execution e = Faire("TMPDIR=\"$PWD/tmp\" " + RUN + "\nrestes; ls sortie");
    EXPECT_EQ(e.statut, 0) << e.erreurs;
    EXPECT_TRUE(e.erreurs.ends_with(Fini)) << e.erreurs;
    EXPECT_EQ(e.erreurs.find('\r'), std::string::npos) << "a bar where nobody can see it move";
    EXPECT_TRUE(e.sortie.ends_with(
        "mouvements\naile.gcode\naile.png\naile.tsr\nconsole.gcode\nconsole.png\ndocuments\n"
        "etoile.gcode\netoile.png\nnaca2412.gcode\nnaca2412.png\n"))
        << e.sortie;
}

// The one that the user has at hand takes no part in it.
TEST_F(Demonstration, LaDecoupeSansEcranNeTouchePasUneInterfaceDejaLa) {
    const Execution e =
        Faire("zelko-simulateur --sans-fenetre --memoires m.json --journal j.tsv >pret & autre=$!\n"
              "jusqua '[ -s pret ]'\n"
              "TMPDIR=\"$PWD/tmp\" " +
              RUN +
              ">dit || echo statut $?\n"
              "jusqua '[ -z \"$(eux)\" ]'; kill $autre; wait $autre\n"
              "grep -c '\techange\t' j.tsv || true");
    EXPECT_EQ(e.sortie, "0\n") << e.erreurs;
    EXPECT_TRUE(e.erreurs.ends_with(Fini)) << e.erreurs;
}

TEST_F(Demonstration, UnDessinQuiNeSOuvrePasFinitMal) {
    const Execution e = Faire("TMPDIR=\"$PWD/tmp\" " + RUN + "absent.dxf || echo statut $?; restes");
    EXPECT_EQ(e.sortie, "\nstatut 1\n") << e.erreurs;
    const Execution u = Faire(RUN + "demo absent.dxf || echo statut $?; " + RUN + "--zut || echo statut $?");
    EXPECT_EQ(u.sortie, "statut 2\nstatut 2\n");
}

// The machine outlives what it is there for, however long that takes to hear the signal; the last word on its
// wire is cold.
TEST_F(Demonstration, CtrlCRefroiditLeFilAvantQueLaMachineSEnAille) {
    // Long enough to be under way still when a busy computer comes to the signal.
    EcrireTout(travail.Fichier("a.txt"), "A\r\n20:5\r\n220:5\r\n220:100\r\n20:100\r\n20:5\r\n");
    const std::string lancer =
        EnFond(AVEC_MACHINE + "--facteur 8 --documents doc --journal j.tsv tessarel-lot "
                              "--documents doc --langue en decouper a.txt --interface");
    for (const std::string signal : {"INT", "TERM", "HUP"}) {
        const Execution e = Faire(
            "rm -f j.tsv\n" + lancer +
            "jusqua 'grep -q \"debut-salve\t2\" j.tsv 2>/dev/null'\n"
            "lot=$(eux tessarel-lot); kill -STOP $lot; kill -" +
            signal +
            " $lance; sleep 0.4\n"
            "eux zelko-simulateur | wc -l; kill -CONT $lot\n"
            "s=0; wait $lance || s=$?; echo statut $s; restes\n"
            "grep -c '\tchauffe\t[1-9]' j.tsv; grep '\tchauffe\t' j.tsv | tail -n 1 | cut -f5; cat erreurs");
        EXPECT_EQ(e.sortie, "1\nstatut 1\n1\n0\n"
                            "Stopped in the working area: Warning: the wire is not in its rest position.\n")
            << signal << e.erreurs;
    }
}

TEST_F(Demonstration, LeStatutEstCeluiDuProgramme) {
    const Execution e =
        Faire("TMPDIR=\"$PWD/tmp\"; export TMPDIR; s=0; " + AVEC_MACHINE +
              "--documents doc tessarel-lot --documents doc decouper absent.dxf --interface || s=$?\n"
              "unset TMPDIR; echo statut $s; restes");
    EXPECT_EQ(e.sortie, "statut 1\n") << e.erreurs;
}

TEST_F(Demo, UnSignalFermeLesDeuxFenetres) {
    for (const char* signal : {"INT", "TERM"}) {
        const Execution e = Faire(LancerDemo() + "ls run/zelko.sock; kill -" + signal +
                                  " $lance; s=0; wait $lance || s=$?; echo statut $s; restes");
        EXPECT_EQ(e.sortie, "run/zelko.sock\nstatut 0\n")
            << signal << e.erreurs << LireTout(travail.Fichier("erreurs"));
    }
}

TEST_F(Demo, LaFinDeLUneEstCelleDeLAutre) {
    for (const char* programme : {"tessarel", "zelko-simulateur"}) {
        const Execution e = Faire(LancerDemo() + "kill $(eux " + programme +
                                  "); s=0; wait $lance || s=$?; echo statut $s; restes");
        EXPECT_EQ(e.sortie, "statut 0\n") << programme << e.erreurs << LireTout(travail.Fichier("erreurs"));
    }
}

// Whatever machine the settings name, a cut can start at once.
TEST_F(Demonstration, LaMachineDesReglagesEstDansLInterface) {
    const std::string interroger =
        AVEC_MACHINE + "--documents doc tessarel-lot --documents doc --langue en interface";
    const Execution e =
        Faire(interroger +
              " >a\n"
              "sed -i 's/^MachineUtilisee=.*/MachineUtilisee=QT4X-m1\\r/' doc/Tessarel/Datas/Tessarel.ini\n" +
              interroger + " >b\ngrep -h '^M' a b");
    EXPECT_EQ(e.sortie,
              "Machine       (Defaut)\nMemory 0      (Defaut), same parameters\nMemory 1      empty\n"
              "Memory 2      empty\nMoves         enabled by memory 0\n"
              "Machine       QT4X-m1\nMemory 0      QT4X-m1, same parameters\nMemory 1      empty\n"
              "Memory 2      empty\nMoves         enabled by memory 0\n")
        << e.erreurs;
}

// All that the guide tells of a cut can be played: its machine homes. What the user has configured stays his.
TEST_F(Demo, SaMachineChercheSonOrigineDansDesReglagesASoi) {
    EcrireTout(travail.Fichier("a.txt"), "A\r\n20:5\r\n30:5\r\n30:12\r\n20:5\r\n");
    const Execution e = Faire("mkdir -p config Documents/Tessarel/Datas; export "
                              "XDG_CONFIG_HOME=\"$PWD/config\"; echo a >config/theme\n"
                              "tessarel-lot machines >liste; sed -i 's/^Langue=.*/Langue=English\\r/' "
                              "Documents/Tessarel/Datas/*.ini\n"
                              "sum Documents/Tessarel/Datas/*.ini >avant\n" +
                              LancerDemo() +
                              "kill $lance; wait $lance; restes; ls sortie/demo/config\n"
                              "s=0; TMPDIR=\"$PWD/tmp\" " +
                              AVEC_MACHINE +
                              "--fenetre --facteur 100 --config \"$PWD/sortie/demo/config\" --journal j.tsv "
                              "tessarel-lot decouper a.txt --interface >dit 2>erreurs || s=$?\n"
                              "echo statut $s; grep '^Machine' dit; cat erreurs; restes\n"
                              "grep -o 'O origine\\|.chauffe.[0-9]*$' j.tsv | uniq\n"
                              "sum Documents/Tessarel/Datas/*.ini | cmp - avant");
    EXPECT_EQ(e.sortie, "theme\nuser-dirs.dirs\nstatut 0\nMachine       QT2d v12\n"
                        "machine available: Cut finished, wire in its rest position, heating off.\n"
                        "O origine\n\tchauffe\t166\n\tchauffe\t0\n")
        << e.erreurs << LireTout(travail.Fichier("erreurs"));
}

TEST_F(Demo, SansDossierDeSessionIlEnAUnASoi) {
    const Execution e =
        Faire(LancerDemo("env -u XDG_RUNTIME_DIR ") +
              "stat -c %a tmp/*; ls tmp/*/zelko.sock | wc -l; kill $lance; wait $lance; restes");
    EXPECT_EQ(e.sortie, "700\n1\n") << e.erreurs;
}

TEST_F(Demo, UneInterfaceDejaLaEstPrise) {
    const Execution e =
        Faire("zelko-simulateur --sans-fenetre --memoires m.json --journal j.tsv >pret & autre=$!\n"
              "jusqua '[ -s pret ]'\n" +
              EnFond(RUN_DEMO) +
              "jusqua 'grep -q \"T charger\" j.tsv'\n"
              "eux zelko-simulateur; kill $lance; s=0; wait $lance || s=$?; echo statut $s\n"
              "ls run; grep -c 'already' dit; kill $autre; wait $autre; restes");
    EXPECT_EQ(e.sortie, "statut 0\ntessarel.lock\nzelko.sock\n1\n")
        << e.erreurs << LireTout(travail.Fichier("dit"));
}

} // namespace
} // namespace tessarel::essais
