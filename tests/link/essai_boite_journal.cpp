// The log of the virtual box: every command told in words, its columns readable by a program; and faults as a
// user writes them.
#include "link/simulateur/journal.h"
#include "link/simulateur/pannes_texte.h"
#include "outils_boite/boite_virtuelle.h"
#include "outils_boite/trames.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"

#include <gtest/gtest.h>

#include <chrono>
#include <initializer_list>
#include <set>
#include <string>
#include <vector>

using namespace tessarel;
using namespace tessarel::simulateur;
using namespace tessarel::essais;
using namespace std::chrono_literals;

namespace {

Tampon Octets(std::initializer_list<int> octets) {
    Tampon t = {};
    std::size_t i = 1;
    for (const int o : octets) t[i++] = static_cast<std::uint8_t>(o);
    return t;
}

} // namespace

TEST(BoiteJournal, ChaqueCommandeEstDiteEnMots) {
    EXPECT_EQ(DecrireCommande(Octets({'B', 0, 0})), "B vider");
    EXPECT_EQ(DecrireCommande(Octets({'B', 1, 0})), "B ouvrir");
    EXPECT_EQ(DecrireCommande(Octets({'B', 128, 0})), "B lancer");
    EXPECT_EQ(DecrireCommande(Octets({'I', 0, 0})), "I statut");
    EXPECT_EQ(DecrireCommande(Octets({'M', 0, 0})), "M eteindre");
    EXPECT_EQ(DecrireCommande(Octets({'M', 1, 0})), "M allumer");
    EXPECT_EQ(DecrireCommande(Octets({'M', 3, 7})), "M delai 7");
    EXPECT_EQ(DecrireCommande(Octets({'O', 0, 0})), "O normal");
    EXPECT_EQ(DecrireCommande(Octets({'O', 1, 0})), "O origine");
    EXPECT_EQ(DecrireCommande(Octets({'P', 0, 0})), "P eteindre");
    EXPECT_EQ(DecrireCommande(Octets({'P', 1, 166})), "P chauffe 166");
    EXPECT_EQ(DecrireCommande(Octets({'S', 0, 0})), "S arret");
    EXPECT_EQ(DecrireCommande(Octets({'T', 1, 2})), "T charger 2");
    EXPECT_EQ(DecrireCommande(Octets({'T', 3, 0})), "T lire 0");
    EXPECT_EQ(DecrireCommande(Octets({'T', 4, 1})), "T ecrire-1 1");
    EXPECT_EQ(DecrireCommande(Octets({'T', 6, 1})), "T ecrire-2 1");
    EXPECT_EQ(DecrireCommande(Octets({'T', 7, 1})), "T fin-lecture 1");
    EXPECT_EQ(DecrireCommande(Octets({'T', 8, 1})), "T ecrire-3 1");
    EXPECT_EQ(DecrireCommande(Octets({'T', 9, 1})), "inconnue 84 9 1");
    EXPECT_EQ(DecrireCommande(Octets({0, 0, 0})), "inconnue 0 0 0");
    EXPECT_EQ(DecrireCommande(Octets({'D', 128, 0})), "D fin-de-liste");
    EXPECT_EQ(DecrireCommande(EnTampon({.drapeaux = 64, .ticks = 100000, .niveauDepart = 166})),
              "D pause NBRt=100000 chauffe=166");
    EXPECT_EQ(DecrireCommande(EnTampon({.drapeaux = 1, .ticks = 1200, .pas = {120, 40, 0, 7}})),
              "D trame NBRt=1200 X1=+120 Y1=-40 X2=0 Y2=-7");
    EXPECT_EQ(DecrireCommande(EnTampon({.drapeaux = 47,
                                        .ticks = 90,
                                        .pas = {1, 0, 0, 0},
                                        .niveauDepart = 150,
                                        .niveauFin = 151,
                                        .deceleration = -3})),
              "D trame NBRt=90 X1=+1 Y1=0 X2=0 Y2=0 rampe=150-151 ralentit=-3");
}

TEST(BoiteJournal, UneLigneParEchangeAvecSesOctets) {
    BoiteVirtuelle v;
    std::vector<std::string> lignes;
    v.boite.SurNote = [&](const NoteJournal& note) {
        if (note.estEchange) lignes.push_back(LigneJournal(note));
    };
    v.PasParEchange = 1500us;
    Tampon t = Octets({'P', 1, 10});
    Zelko_Send(t);
    t = Octets({'I', 0, 0});
    Zelko_Send(t);
    v.boite.Programmer({.panne = Panne::ReponsePerdue, .echange = 3});
    t = Octets({'P', 0, 0});
    Zelko_Send(t);
    v.boite.Programmer({.panne = Panne::ReponseCorrompue, .echange = 4});
    t = Octets({'I', 0, 0});
    Zelko_Send(t);
    ASSERT_EQ(lignes.size(), 4U);
    EXPECT_TRUE(lignes[3].starts_with("0.006000\t0.006000\techange\t4\t1\tI statut\tcorrompue\t49\t"));
    EXPECT_EQ(lignes[0],
              "0.001500\t0.001500\techange\t1\t1\tP chauffe 10\tallumee=1 valeur=10\t50010a\t50010a0a\n");
    EXPECT_EQ(lignes[1],
              "0.003000\t0.003000\techange\t2\t1\tI statut\tsalve=0 reste=0 chauffe=1 switchs=0 fin=2\t49\t"
              "4900000000001000000000"
              "02\n");
    EXPECT_EQ(lignes[2], "0.004500\t0.004500\techange\t3\t-203\tP eteindre\t-\t50\t50\n");
}

TEST(BoiteJournal, LesEvenementsOntLeurNomEtLeurValeur) {
    BoiteVirtuelle v;
    v.boite.FixerFacteur(10);
    std::string texte;
    v.boite.SurNote = [&](const NoteJournal& note) {
        if (!note.estEchange) AjouterLigneJournal(texte, note);
    };
    v.Attendre(2s);
    v.boite.Programmer({.panne = Panne::BoutonStop});
    Tampon t = Octets({'P', 1, 10});
    Zelko_Send(t);
    EXPECT_EQ(texte, "2.000000\t20.000000\tevenement\tpanne\tbouton-stop\n"
                     "2.001000\t20.010000\tevenement\tchauffe\t10\n");
}

TEST(BoiteJournal, LesNomsSontTousDifferentsEtSansBlanc) {
    std::set<std::string_view> noms;
    for (int i = 0; i <= static_cast<int>(Evenement::PaquetEcarte); ++i)
        noms.insert(NomEvenement(static_cast<Evenement>(i)));
    EXPECT_EQ(noms.size(), 16U);
    for (int i = 0; i < NombrePannes; ++i) noms.insert(NomPanne(static_cast<Panne>(i)));
    EXPECT_EQ(noms.size(), 16U + 13U);
    for (const std::string_view nom : noms) {
        EXPECT_FALSE(nom.empty());
        EXPECT_EQ(nom.find_first_of(" \t\n:="), std::string_view::npos) << nom;
    }
    EXPECT_EQ(NomEvenement(Evenement::PaquetEcarte), "paquet-ecarte");
    EXPECT_EQ(NomEvenement(Evenement::CommandeInconnue), "commande-inconnue");
    EXPECT_EQ(NomPanne(Panne::ChauffeEteinte), "chauffe-eteinte");
    EXPECT_EQ(NomPanne(Panne::SalveRefusee), "salve-refusee");
}

TEST(BoiteJournal, LEnteteNommeAutantDeColonnesQuUnEchange) {
    const std::string entete = EnteteJournal();
    NoteJournal note;
    note.estEchange = true;
    const std::string ligne = LigneJournal(note);
    EXPECT_EQ(Decouper(entete, "\t").size(), 9U);
    EXPECT_EQ(Decouper(ligne, "\t").size(), 9U);
    EXPECT_TRUE(entete.starts_with("#"));
}

TEST(BoitePannesTexte, UnePanneSeLitAvecTousSesReglages) {
    const PanneProgrammee p = LirePanne("reponse-tardive:echange=12:fois=3:retard=250:commande=P");
    EXPECT_EQ(p.panne, Panne::ReponseTardive);
    EXPECT_EQ(p.echange, 12U);
    EXPECT_EQ(p.fois, 3U);
    EXPECT_EQ(p.retard, Instant(250ms));
    EXPECT_EQ(p.commande, 'P');
    const PanneProgrammee q =
        LirePanne("debranchement:salve=5:tick=100:retablie-ms=2000:retablie-echanges=4");
    EXPECT_EQ(q.panne, Panne::Debranchement);
    EXPECT_EQ(q.salve, 5U);
    EXPECT_EQ(q.tick, 100U);
    EXPECT_EQ(q.retablieApres, Instant(2s));
    EXPECT_EQ(q.retablieApresEchanges, 4U);
    for (int i = 0; i < NombrePannes; ++i)
        EXPECT_EQ(LirePanne(NomPanne(static_cast<Panne>(i))).panne, static_cast<Panne>(i));
}

TEST(BoitePannesTexte, UneFauteEstDiteAvecCeQuiEtaitAttendu) {
    const auto raison = [](const char* texte) -> std::string {
        try {
            LirePanne(texte);
        } catch (const FauteConversion& f) {
            return f.what();
        }
        return "";
    };
    EXPECT_TRUE(
        raison("perdue").starts_with("perdue : panne inconnue ; connues : commande-perdue, reponse-perdue"));
    EXPECT_EQ(raison("bouton-stop:salve"), "bouton-stop:salve : réglage sous la forme clé=nombre attendu");
    EXPECT_EQ(raison("bouton-stop:salve=-1"),
              "bouton-stop:salve=-1 : nombre entier attendu, de 0 à 4294967295");
    EXPECT_EQ(raison("bouton-stop:salve=4294967296"),
              "bouton-stop:salve=4294967296 : nombre entier attendu, de 0 à 4294967295");
    EXPECT_EQ(raison("bouton-stop:salve=1x"),
              "bouton-stop:salve=1x : nombre entier attendu, de 0 à 4294967295");
    EXPECT_EQ(raison("bouton-stop:quand=1"), "bouton-stop:quand=1 : réglage inconnu : quand");
    EXPECT_EQ(raison("reponse-perdue:commande=PP"),
              "reponse-perdue:commande=PP : une lettre attendue après commande=");
}
