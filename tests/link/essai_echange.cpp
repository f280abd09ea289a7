// The one exchange: what goes out for each command, what a failure leaves, and what never goes out while
// moves are disabled.
#include "boite_lien.h"

#include "link/commandes.h"

using namespace tessarel;

namespace {

class Echange : public essais::Lien {
protected:
    using Octets = std::vector<int>;

    void Echouer(std::int32_t code) {
        repondre = [code](Tampon&) { return code; };
    }
};

} // namespace

TEST_F(Echange, ChaqueCommandeTientDansTroisOctets) {
    repondre = [](Tampon& t) {
        t.fill(0);
        return 1;
    };
    ViderFile();
    EXPECT_EQ(DernierEnvoi(3), (Octets{0, 66, 0, 0}));
    FinDeListe();
    EXPECT_EQ(DernierEnvoi(3), (Octets{0, 68, 128, 0}));
    DemanderStatut();
    EXPECT_EQ(DernierEnvoi(3), (Octets{0, 73, 0, 0}));
    CouperMoteurs();
    EXPECT_EQ(DernierEnvoi(3), (Octets{0, 77, 0, 0}));
    AllumerMoteurs();
    EXPECT_EQ(DernierEnvoi(3), (Octets{0, 77, 1, 0}));
    ReglerDelaiMoteurs(7);
    EXPECT_EQ(DernierEnvoi(3), (Octets{0, 77, 3, 7}));
    ModeNormal();
    EXPECT_EQ(DernierEnvoi(3), (Octets{0, 79, 0, 0}));
    EnvoyerChauffe(0);
    EXPECT_EQ(DernierEnvoi(3), (Octets{0, 80, 1, 0}));
    CouperChauffe();
    EXPECT_EQ(DernierEnvoi(3), (Octets{0, 80, 0, 0}));
    ArreterMouvement();
    EXPECT_EQ(DernierEnvoi(3), (Octets{0, 83, 0, 0}));
    ChargerMemoireEnRam(2);
    EXPECT_EQ(DernierEnvoi(3), (Octets{0, 84, 1, 2}));
    EXPECT_EQ(envois.size(), 11U);
    EXPECT_TRUE(boites.boites.empty());
}

TEST_F(Echange, LeTamponEstEffaceAvantChaqueCommande) {
    TamponEchange.fill(0xAA);
    EnvoiBytes(73, 4, 5);
    EXPECT_EQ(DernierEnvoi(3), (Octets{0, 73, 4, 5}));
}

TEST_F(Echange, UnEchecDEnvoiBytesEstDitEtLeProgrammeContinue) {
    Echouer(-202);
    EnvoiBytes(66, 1, 0);
    EXPECT_EQ(DernierResultatZelko, -202);
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].icone, IconeBoite::Information);
    EXPECT_EQ(boites.boites[0].titre, "Problème de communication avec l'interpolateur.");
    EXPECT_EQ(boites.boites[0].texte,
              "Erreur -202 : une erreur s'est produite durant l'envoi des données à l'interpolateur.\r\n"
              "La communication avec l'interface USB pose problème\r\n"
              "- Vérifiez le branchement correct du câble USB et de l'alimentation électrique\r\n"
              "- Attention à ne pas mettre un câble USB trop long, trop fin ou de mauvaise qualité\r\n"
              "- Vérifiez qu'aucune autre application ne cherche à communiquer avec l'interface\r\n"
              "- Vérifiez que votre installation électrique n'envoie pas des parasites dans votre ordinateur "
              "(néon, moteur, frigo...)\r\n"
              "Procédure de l'erreur : EnvoiBytes");
}

TEST_F(Echange, UneReponsePerdueSeLitCommeUnRefus) {
    // What came in before the failure must not count.
    repondre = [](Tampon& t) {
        t.fill(1);
        t[12] = 130;
        return -203;
    };
    TamponEchange = {0, 68, 15};
    EXPECT_FALSE(Echanger());
    StatutZelko statut = LireStatut(TamponEchange);
    EXPECT_FALSE(statut.SalveAcceptee);
    EXPECT_FALSE(statut.Fini);

    statut = DemanderStatut();
    EXPECT_FALSE(statut.Recu);
    EXPECT_FALSE(statut.Fini);
    EXPECT_FALSE(statut.OrigineOuverte);
    EXPECT_FALSE(statut.FinCourseOuverte);

    for (int valeur = 0; valeur <= 255; ++valeur) {
        TamponEchange = {0, 80, 1, static_cast<std::uint8_t>(valeur)};
        EXPECT_FALSE(Echanger());
        EXPECT_NE(TamponEchange[4], valeur);
    }
    TamponEchange = {0, 80, 0, 0};
    EXPECT_FALSE(Echanger());
    EXPECT_NE(TamponEchange[2], 0);
    EXPECT_NE(TamponEchange[4], 0);
    EXPECT_FALSE(ModeNormal());
}

TEST_F(Echange, RienNeBougeNiNeChauffeQuandLesMouvementsSontInactifs) {
    MouvementsActifs = false;
    for (int code = 0; code <= 255; ++code) {
        for (const int arg : {0, 1, 2, 3, 4, 6, 7, 8, 64, 128, 255}) {
            envois.clear();
            TamponEchange = {0, static_cast<std::uint8_t>(code), static_cast<std::uint8_t>(arg), 9};
            const bool reussi = Echanger();
            const bool interdit = code == 68 || (code == 66 && arg == 128) || (code == 80 && arg != 0) ||
                                  (code == 77 && arg == 1);
            EXPECT_EQ(envois.empty(), interdit) << code << ' ' << arg;
            EXPECT_EQ(reussi, !interdit);
            EXPECT_EQ(DernierResultatZelko, interdit ? ResultatMouvementsInactifs : 1);
        }
    }
    EXPECT_EQ(EnvoyerChauffe(100), FinChauffe::Impossible);
    EXPECT_TRUE(boites.boites.empty());
}

TEST_F(Echange, LesTextesDesResultats) {
    EXPECT_EQ(TexteErreurInterface(-101), "Erreur -101 : can't lock the table.");
    EXPECT_EQ(TexteErreurInterface(-102), "Erreur -102 : table is too small.");
    EXPECT_EQ(TexteErreurInterface(-200), "Erreur -200 : l'interpolateur n'a pas été trouvé.");
    EXPECT_EQ(TexteErreurInterface(-201), "Erreur -201 : impossible d'ouvrir le canal.");
    EXPECT_EQ(TexteErreurInterface(-203),
              "Erreur -203 : une erreur s'est produite lors de la réception de la "
              "réponse de l'interpolateur.");
    EXPECT_EQ(TexteErreurInterface(-204),
              "Erreur -204 : problème de cohérence entre les informations envoyées "
              "à l'interpolateur et la réponse reçue.");
    EXPECT_EQ(TexteErreurInterface(-500),
              "Le fichier ZelkoCom.dll n'a pas été trouvé,\r\nveuillez l'installer "
              "sur votre ordinateur, à la bonne place.");
    EXPECT_EQ(TexteErreurInterface(0), "Erreur non répertoriée.");
    EXPECT_EQ(TexteErreurInterface(-1), "Erreur non répertoriée.");
}

TEST_F(Echange, LaBibliothequeAbsenteEstUnResultatOrdinaire) {
    LibererZelkoCom();
    EnvoiBytes(73, 0, 0);
    EXPECT_EQ(DernierResultatZelko, -500);
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(CouperChauffe(), FinChauffe::Impossible); // and does not loop
}

TEST_F(Echange, LUtilisateurEstPrevenuUneFoisEtDeNouveauApresUnRetour) {
    EchecsConsecutifs echecs;
    std::vector<int> avis;
    for (int i = 1; i <= 12; ++i) {
        if (NoterEchange(echecs, i == 7)) avis.push_back(i);
    }
    EXPECT_EQ(avis, (std::vector<int>{5, 12}));
}
