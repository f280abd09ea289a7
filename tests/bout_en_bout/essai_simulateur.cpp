// The virtual box as a program: it says when it is there, serves the others, and leaves nothing behind.
#include "bout_en_bout/executer.h"
#include "outils/dossiers.h"
#include "platform/fichiers.h"

#include <gtest/gtest.h>

#include <string>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

// Starts it in the background and waits until it says that it is there; $p is its process.
const std::string LANCER = R"(
export XDG_RUNTIME_DIR="$PWD/run"
mkdir -p -m 700 run
lancer() {
  : >pret
  zelko-simulateur --sans-fenetre --memoires m.json "$@" >pret 2>erreurs & p=$!
  i=0
  until grep -q "zelko.sock" pret; do
    i=$((i+1)); [ $i -lt 200 ] || { cat erreurs; exit 9; }
    sleep 0.05
  done
}
finir() { kill -"$1" $p; wait $p && s=0 || s=$?; echo "statut $s"; [ -e run/zelko.sock ] && echo reste || echo parti; }
)";

} // namespace

TEST(Simulateur, IlDitQuIlEstPretEtFinitProprement) {
    for (const char* signal : {"TERM", "INT", "HUP"}) {
        const DossierProvisoire dossier;
        const Execution e = Executer(LANCER + "lancer --facteur 100 --langue en\ncat pret\nfinir " + signal,
                                     dossier.Chemin());
        EXPECT_EQ(e.sortie, "zelko-simulateur: ready on " + dossier.Chemin() +
                                "/run/zelko.sock; factor 100; memories: (Defaut), -, -\nstatut 0\nparti\n")
            << e.erreurs;
        EXPECT_EQ(e.statut, 0);
    }
}

TEST(Simulateur, LeProgrammeEnLigneDeCommandeLeTrouveEtPeutBouger) {
    const DossierProvisoire dossier;
    const Execution e = Executer(
        LANCER + "lancer --facteur 100 --journal j.tsv\n"
                 "tessarel-lot --documents doc --langue en interface | sed 1d\nfinir TERM >/dev/null\n"
                 "cut -f3,6 j.tsv | grep '^echange' | cut -f2 | tr '\\n' ';'",
        dossier.Chemin());
    EXPECT_NE(e.sortie.find("(Defaut), same parameters"), std::string::npos) << e.sortie << e.erreurs;
    EXPECT_NE(e.sortie.find(
                  "T lire 0;T fin-lecture 0;T lire 1;T fin-lecture 1;T lire 2;T fin-lecture 2;T charger 0;"),
              std::string::npos)
        << e.sortie;
}

TEST(Simulateur, UneInterfaceBrancheeDejaEnRefuseUneSeconde) {
    const DossierProvisoire dossier;
    const Execution e =
        Executer(LANCER + "lancer\nzelko-simulateur --sans-fenetre --langue fr && echo 0 || echo $?\n"
                          "finir TERM",
                 dossier.Chemin());
    EXPECT_EQ(e.sortie, "1\nstatut 0\nparti\n");
    EXPECT_EQ(e.erreurs, "zelko-simulateur: " + dossier.Chemin() +
                             "/run/zelko.sock : une autre interface virtuelle y est déjà branchée\n");
}

TEST(Simulateur, LaPriseDUnProgrammeTueEstReprise) {
    const DossierProvisoire dossier;
    const Execution e = Executer(LANCER + "lancer\nfinir KILL\nlancer\nfinir TERM", dossier.Chemin());
    EXPECT_EQ(e.sortie, "statut 137\nreste\nstatut 0\nparti\n") << e.erreurs;
}

TEST(Simulateur, UnMauvaisUsageEstDit) {
    const DossierProvisoire dossier;
    const auto refus = [&](const std::string& options) {
        const Execution e = Executer("zelko-simulateur --langue fr " + options, dossier.Chemin());
        EXPECT_EQ(e.statut, 2) << options;
        EXPECT_EQ(e.sortie, "") << options;
        return e.erreurs.substr(0, e.erreurs.find('\n'));
    };
    EXPECT_EQ(refus("--facteur 0"), "zelko-simulateur: --facteur : 0 (attendu : nombre de 0.01 à 1000000)");
    EXPECT_EQ(refus("--facteur dix"),
              "zelko-simulateur: --facteur : dix (attendu : nombre de 0.01 à 1000000)");
    EXPECT_EQ(refus("--capacite 1"),
              "zelko-simulateur: --capacite : 1 (attendu : nombre entier de 2 à 65536)");
    EXPECT_EQ(refus("--capacite 2.5"),
              "zelko-simulateur: --capacite : 2.5 (attendu : nombre entier de 2 à 65536)");
    EXPECT_EQ(refus("--zut"), "zelko-simulateur: inattendu : --zut");
    EXPECT_EQ(refus("--panne bouton-stop:x=1"), "zelko-simulateur: bouton-stop:x=1 : réglage inconnu : x");
    EXPECT_EQ(refus("--langue fr"), "zelko-simulateur: --langue : une valeur et une seule est attendue");
    const Execution e = Executer("zelko-simulateur --langue de", dossier.Chemin());
    EXPECT_EQ(e.statut, 2);
    EXPECT_EQ(e.erreurs,
              "zelko-simulateur: --langue : de (attendu : fr ou en)\nAide : zelko-simulateur --help\n");
}

TEST(Simulateur, CeQuiEmpecheDeCommencerEstDit) {
    const DossierProvisoire dossier;
    EcrireFichierAtomique(dossier.Fichier("m.json"), "rien\n");
    const auto refus = [&](const std::string& options) {
        const Execution e =
            Executer("export XDG_RUNTIME_DIR=\"$PWD/run\"; mkdir -p -m 700 run; env -u DISPLAY -u "
                     "WAYLAND_DISPLAY -u QT_QPA_PLATFORM zelko-simulateur --langue en " +
                         options,
                     dossier.Chemin());
        EXPECT_EQ(e.statut, 1) << options;
        return e.erreurs;
    };
    EXPECT_EQ(refus("--sans-fenetre --memoires m.json"),
              "zelko-simulateur: m.json, line 1: this is not JSON\n");
    EXPECT_EQ(refus("--sans-fenetre --machine absente"), "zelko-simulateur: absente: unknown machine\n");
    EXPECT_EQ(refus("--sans-fenetre --journal absent/j"),
              "zelko-simulateur: absent/j: no such file or folder\n");
    EXPECT_NE(refus("").find("--sans-fenetre"), std::string::npos)
        << "no display, and no window in some builds";
}
