// The virtual box put together: its socket, its memories in their file, its log, its machine.
#include "link/simulateur/memoires_machine.h"
#include "link/simulateur/poste_virtuel.h"
#include "machine/machines_integrees.h"
#include "outils/dossiers.h"
#include "outils_boite/trames.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "platform/horloge.h"
#include "platform/memoires_zelko.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstring>
#include <memory>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>
#include <vector>

using namespace tessarel;
using namespace tessarel::simulateur;
using namespace tessarel::essais;
using namespace std::chrono_literals;

namespace {

struct Bureau {
    Bureau() : ancienne(InstallerHorloge([this] { return temps; })) {
        options.prise = dossier.Fichier("zelko.sock");
        options.fichierMemoires = dossier.Fichier("config/memoires.json");
        options.chercherMachine = [](const std::string& nom, TableMachine& t) {
            return LireMachineIntegree(nom, t);
        };
        options.avertir = [this](const std::string& texte) { avertissements.push_back(texte); };
    }
    ~Bureau() {
        if (client >= 0) ::close(client);
        poste.reset();
        InstallerHorloge(ancienne);
    }
    Bureau(const Bureau&) = delete;
    Bureau& operator=(const Bureau&) = delete;

    void Ouvrir() { poste = std::make_unique<PosteVirtuel>(options); }
    void Connecter() {
        client = ::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0);
        sockaddr_un adresse{};
        adresse.sun_family = AF_UNIX;
        std::memcpy(adresse.sun_path, options.prise.c_str(), options.prise.size() + 1);
        ASSERT_EQ(::connect(client, reinterpret_cast<const sockaddr*>(&adresse), sizeof adresse), 0);
    }
    // Bytes that came back: 65, less when cut short, -1 for none, 0 for hung up.
    ssize_t Echanger(Tampon& t) {
        EXPECT_EQ(::send(client, t.data(), t.size(), MSG_NOSIGNAL), 65);
        poste->Servir(0ms); // the knock
        poste->Servir(0ms);
        return ::recv(client, t.data(), t.size(), MSG_DONTWAIT);
    }
    static Tampon Commande(std::uint8_t a, std::uint8_t b, std::uint8_t c) {
        Tampon t = {};
        t[1] = a;
        t[2] = b;
        t[3] = c;
        return t;
    }

    DossierProvisoire dossier;
    Instant temps{0};
    SourceTemps ancienne;
    OptionsPoste options;
    std::vector<std::string> avertissements;
    std::unique_ptr<PosteVirtuel> poste;
    int client = -1;
};

} // namespace

TEST(PosteVirtuel, SansFichierLaMemoireZeroTientLaMachineParDefaut) {
    Bureau b;
    b.Ouvrir();
    EXPECT_EQ(b.poste->Boite().Ram().nom, "(Defaut)");
    EXPECT_EQ(b.poste->Boite().MecaniqueEnPlace().courseX, 980);
    EXPECT_FALSE(FichierExiste(b.options.fichierMemoires)) << "nothing is written before a table is saved";
    EXPECT_EQ(b.poste->PhrasePrete(),
              "prêt sur " + b.options.prise + " ; facteur 1 ; mémoires : (Defaut), -, -");
}

TEST(PosteVirtuel, UneTableEnregistreeRevientAuProchainLancement) {
    Bureau b;
    b.Ouvrir();
    b.Connecter();
    TableMachine machine;
    LireMachine("QT2d v12", machine);
    const MemoireBoite memoire = MemoireDeMachine(machine);
    for (std::size_t p = 0; p < 3; ++p) {
        Tampon t = Bureau::Commande('T', static_cast<std::uint8_t>(4 + 2 * p), 1);
        std::copy(memoire.parties[p].begin(), memoire.parties[p].end(), t.begin() + 4);
        EXPECT_EQ(b.Echanger(t), 65);
    }
    b.poste.reset();
    EXPECT_EQ(LireMemoiresZelko(b.options.fichierMemoires)[1], memoire.parties);
    b.Ouvrir();
    EXPECT_EQ(b.poste->Boite().Memoires()[1], memoire);
    // Loaded to RAM, its machine stands on the desk.
    b.poste->Boite().ChargerEnRam(1);
    EXPECT_EQ(b.poste->Boite().MecaniqueEnPlace().courseX, 304);
    EXPECT_TRUE(b.poste->Boite().MecaniqueEnPlace().origineEnHaut);
}

TEST(PosteVirtuel, LaMachineNommeeEntreDansLaPremiereMemoireLibre) {
    Bureau b;
    b.options.machine = "QT2d v12";
    b.Ouvrir();
    EXPECT_EQ(b.poste->Boite().Ram().nom, "QT2d v12");
    b.poste.reset();
    OctetsMemoires pleines;
    for (auto& m : pleines)
        for (auto& p : m) p.fill(1);
    CreerDossier(DossierDuChemin(b.options.fichierMemoires));
    EcrireMemoiresZelko(b.options.fichierMemoires, pleines);
    b.options.courseX = 77;
    b.Ouvrir();
    EXPECT_EQ(LireMemoiresZelko(b.options.fichierMemoires), pleines) << "what the user has saved stays";
    EXPECT_EQ(b.avertissements.size(), 1U);
    EXPECT_EQ(b.poste->Boite().MecaniqueEnPlace().courseX, 77);
    EXPECT_EQ(b.poste->Boite().MecaniqueEnPlace().courseY, 256);
    pleines[1][0].fill(0xFF);
    pleines[1][1].fill(0xFF);
    pleines[1][2].fill(0xFF);
    b.poste.reset();
    EcrireMemoiresZelko(b.options.fichierMemoires, pleines);
    b.Ouvrir();
    EXPECT_EQ(NomMemoire(b.poste->Boite().Memoires()[1]), "QT2d v12");
    EXPECT_EQ(b.poste->Boite().Memoires()[0].parties, pleines[0]);
    b.options.machine = "absente";
    b.poste.reset();
    EXPECT_THROW(b.Ouvrir(), FauteConversion);
}

TEST(PosteVirtuel, UnFichierDeMemoiresIllisibleEmpecheDeCommencer) {
    Bureau b;
    CreerDossier(DossierDuChemin(b.options.fichierMemoires));
    EcrireFichierAtomique(b.options.fichierMemoires, "{");
    EXPECT_THROW(b.Ouvrir(), FauteLecture);
    EXPECT_EQ(LireFichierEntier(b.options.fichierMemoires), "{") << "and stays as it is";
    EXPECT_FALSE(FichierExiste(b.options.prise));
}

TEST(PosteVirtuel, LeJournalTientChaqueEchange) {
    Bureau b;
    b.options.fichierJournal = b.dossier.Fichier("journal.tsv");
    b.Ouvrir();
    b.Connecter();
    Tampon t = Bureau::Commande('P', 1, 30);
    EXPECT_EQ(b.Echanger(t), 65);
    EXPECT_EQ(t[4], 30);
    for (const std::size_t taille : {64UL, 66UL}) {
        const std::vector<char> paquet(taille, 0);
        EXPECT_GT(::send(b.client, paquet.data(), paquet.size(), MSG_NOSIGNAL), 0);
        b.poste->Servir(0ms);
    }
    b.temps += 1s;
    b.poste->Servir(0ms); // the log goes to disk by itself
    const std::string texte = LireFichierEntier(b.options.fichierJournal);
    EXPECT_NE(texte.find("\techange\t1\t1\tP chauffe 30\tallumee=1 valeur=30\t50011e\t50011e1e\n"),
              std::string::npos)
        << texte;
    EXPECT_NE(texte.find("\tevenement\tchauffe\t30\n"), std::string::npos);
    EXPECT_NE(texte.find("\tevenement\tpaquet-ecarte\t64\n"), std::string::npos);
    EXPECT_NE(texte.find("\tevenement\tpaquet-ecarte\t66\n"), std::string::npos);
    EXPECT_TRUE(texte.starts_with("# s\t"));
}

TEST(PosteVirtuel, UnJournalImpossibleEmpecheDeCommencer) {
    Bureau b;
    b.options.fichierJournal = b.dossier.Fichier("absent/journal.tsv");
    EXPECT_THROW(b.Ouvrir(), FauteFichier);
    b.options.fichierJournal = "/dev/full";
    b.Ouvrir();
    EXPECT_EQ(b.avertissements.size(), 1U) << "a full disk is told, and the box serves on";
    b.Connecter();
    Tampon t = Bureau::Commande('I', 0, 0);
    EXPECT_EQ(b.Echanger(t), 65);
}

TEST(PosteVirtuel, LesPannesPassentSurLaPrise) {
    Bureau b;
    b.options.pannes = {{.panne = Panne::ReponsePerdue, .echange = 1},
                        {.panne = Panne::ReponseCourte, .echange = 2},
                        {.panne = Panne::ReponseCorrompue, .echange = 3},
                        {.panne = Panne::CommandePerdue, .echange = 4},
                        {.panne = Panne::Debranchement, .echange = 6, .retablieApres = 5s}};
    b.Ouvrir();
    b.Connecter();
    Tampon t = Bureau::Commande('P', 1, 30);
    EXPECT_EQ(b.Echanger(t), -1);
    EXPECT_EQ(b.poste->Boite().Etat().pwmCommande, 30);
    t = Bureau::Commande('P', 1, 31);
    EXPECT_EQ(b.Echanger(t), 40);
    t = Bureau::Commande('P', 1, 32);
    EXPECT_EQ(b.Echanger(t), 65);
    EXPECT_NE(t[1], 'P');
    t = Bureau::Commande('P', 1, 33);
    EXPECT_EQ(b.Echanger(t), -1);
    EXPECT_EQ(b.poste->Boite().Etat().pwmCommande, 32);
    t = Bureau::Commande('I', 0, 0);
    EXPECT_EQ(b.Echanger(t), 65);
    EXPECT_EQ(b.Echanger(t), 0) << "hung up";
    EXPECT_FALSE(b.poste->Prise().Branchee());
    EXPECT_FALSE(FichierExiste(b.options.prise));
    b.temps += 6s;
    b.poste->Servir(0ms);
    EXPECT_TRUE(b.poste->Prise().Branchee());
    ::close(b.client);
    b.Connecter();
    t = Bureau::Commande('I', 0, 0);
    EXPECT_EQ(b.Echanger(t), 65);
}

TEST(PosteVirtuel, UnePriseReprisePendantLeDebranchementEstDite) {
    Bureau b;
    b.Ouvrir();
    b.poste->Boite().Brancher(false);
    b.poste->Servir(0ms);
    Bureau autre;
    autre.options.prise = b.options.prise;
    autre.Ouvrir();
    b.poste->Boite().Brancher(true);
    for (int i = 0; i < 3; ++i) b.poste->Servir(0ms);
    EXPECT_EQ(b.avertissements.size(), 1U) << "once, not at each try";
    EXPECT_FALSE(b.poste->Prise().Branchee());
    autre.poste.reset();
    b.poste->Servir(0ms);
    EXPECT_TRUE(b.poste->Prise().Branchee());
}
