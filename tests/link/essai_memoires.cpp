// Stored tables byte by byte, worked out by hand; reading them back; and what a failure on the way leaves.
#include "boite_lien.h"
#include "boite_memoires.h"

#include "app/texts/textes.h"

#include <numeric>

using namespace tessarel;

namespace {

class Memoires : public essais::Lien {
protected:
    using Octets = std::vector<int>;

    Memoires() {
        repondre = [this](Tampon& tampon) { return m_boite.Envoyer(tampon); };
        EXPECT_EQ(ChargerMachine("(Defaut)"), StatutSucces);
    }
    static Octets Debut(const Tampon& tampon, std::size_t dernier) {
        for (std::size_t i = dernier + 1; i < tampon.size(); ++i) EXPECT_EQ(tampon[i], 0) << i;
        return {tampon.begin(), tampon.begin() + static_cast<std::ptrdiff_t>(dernier) + 1};
    }
    static int Paire(const Tampon& tampon, std::size_t i) { return tampon[i] + 256 * tampon[i + 1]; }

    essais::BoiteMemoires m_boite;
};

} // namespace

// 400 full steps by 32 for 40 mm: 320 steps per mm, 0140 in hex. 6 mm/s are 1920 steps per second, 0780; 10
// mm/s are 3200, 0C80. 80 % of 255 is 204. Output codes: 129 step X1, 1 direction X1, 131 and 3 X2, 130 step
// Y1, 66 direction Y1 inverted, 132 step Y2, 68 direction Y2 inverted.
TEST_F(Memoires, LaMachineParDefautOctetParOctet) {
    const MessagesTable m = ComposerMessagesTable(TableINI, 0);
    EXPECT_EQ(Debut(m.Partie1, 33), (Octets{0,  84, 4,   0,                               //
                                            40, 68, 101, 102, 97,  117, 116, 41,          // (Defaut)
                                            5,  9,  6,   10,  16,                         //
                                            0,  0,  129, 1,   131, 3,   130, 66, 132, 68, //
                                            5,  6,  204, 1,   4,                          //
                                            4,  0}));
    EXPECT_EQ(Debut(m.Partie2, 33), (Octets{0,   84, 6,   0,                          //
                                            64,  1,  64,  1,  64,  1,  64,  1,  0, 0, //
                                            128, 7,  128, 7,  128, 7,  128, 7,  0, 0, //
                                            128, 12, 128, 12, 128, 12, 128, 12, 0, 0}));
    EXPECT_EQ(Debut(m.Partie3, 13), (Octets{0, 84, 8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

// Seven characters and a blank; 40 and 80 mm/s at 320 steps per mm are 12800 (3200) and 25600 (6400).
TEST_F(Memoires, LaMachineQuatreAxesOctetParOctet) {
    ASSERT_EQ(ChargerMachine("QT4X-m1"), StatutSucces);
    const MessagesTable m = ComposerMessagesTable(TableINI, 2);
    EXPECT_EQ(Debut(m.Partie1, 33), (Octets{0,  84, 4,   2,                             //
                                            81, 84, 52,  88, 45,  109, 49,  32,         // QT4X-m1
                                            5,  9,  6,   10, 16,                        //
                                            0,  0,  129, 65, 131, 3,   130, 66, 132, 4, //
                                            5,  6,  204, 1,  4,                         //
                                            4,  0}));
    EXPECT_EQ(Debut(m.Partie2, 33), (Octets{0,  84,  6,  2,                           //
                                            64, 1,   64, 1,   64, 1,   64, 1,   0, 0, //
                                            0,  50,  0,  50,  0,  50,  0,  50,  0, 0, //
                                            0,  100, 0,  100, 0,  100, 0,  100, 0, 0}));
}

// 200 steps by 8 for 1 mm: 1600, 0640. 5 mm/s are 8000 (1F40), 8 mm/s 12800. 70 % of 255 is 178.5, to even
// 178. Switches active: flags 1 + 4. One millimetre from switch to origin: 1600 steps.
TEST_F(Memoires, LaMachineDeuxDAvecInterrupteursOctetParOctet) {
    ASSERT_EQ(ChargerMachine("QT2d v12"), StatutSucces);
    const MessagesTable m = ComposerMessagesTable(TableINI, 1);
    EXPECT_EQ(Debut(m.Partie1, 33), (Octets{0,   84, 4,   1,                              //
                                            81,  84, 50,  100, 32, 118, 49,  50,          // QT2d v12
                                            5,   9,  6,   10,  16,                        //
                                            129, 1,  0,   0,   0,  0,   130, 66, 132, 68, //
                                            5,   7,  178, 1,   5,                         //
                                            4,   0}));
    EXPECT_EQ(Debut(m.Partie2, 33), (Octets{0,  84, 6,  1,                        //
                                            64, 6,  64, 6,  64, 6,  64, 6,  0, 0, //
                                            64, 31, 64, 31, 64, 31, 64, 31, 0, 0, //
                                            0,  50, 0,  50, 0,  50, 0,  50, 0, 0}));
    EXPECT_EQ(Debut(m.Partie3, 13), (Octets{0, 84, 8, 1, 64, 6, 64, 6, 64, 6, 64, 6, 0, 0}));
}

TEST_F(Memoires, ChaqueAxeASaPlaceEtLAxeAResteNul) {
    TableINI.MmParTour = {1, 2, 3, 4};
    TableINI.MicroPas = {1, 1, 1, 1, 1};
    TableINI.PasParTourMoteur = {10, 40, 90, 160, 200}; // 10, 20, 30, 40 steps per mm
    TableINI.DegParTourA = 1;
    TableINI.VmaxSansAccXY = 2;
    TableINI.VmaxAvecAccXY = 3;
    TableINI.PasToOrigine = {1001, 1002, 1003, 1004};
    const MessagesTable m = ComposerMessagesTable(TableINI, 0);
    for (std::size_t axe = 0; axe < 4; ++axe) {
        const int pasParMm = 10 * (static_cast<int>(axe) + 1);
        EXPECT_EQ(Paire(m.Partie2, 4 + 2 * axe), pasParMm);
        EXPECT_EQ(Paire(m.Partie2, 14 + 2 * axe), 2 * pasParMm);
        EXPECT_EQ(Paire(m.Partie2, 24 + 2 * axe), 3 * pasParMm);
        EXPECT_EQ(Paire(m.Partie3, 4 + 2 * axe), 1001 + static_cast<int>(axe));
    }
    for (const std::size_t i : {12U, 22U, 32U}) EXPECT_EQ(Paire(m.Partie2, i), 0);
    EXPECT_EQ(Paire(m.Partie3, 12), 0);
}

TEST_F(Memoires, LesDrapeauxEtLesBornesDeLaPremierePartie) {
    TableINI.SwitchsActifs = true;
    TableINI.OrientationX = 1;
    TableINI.InversionSignalMoteurOnOff = false;
    EXPECT_EQ(ComposerMessagesTable(TableINI, 0).Partie1[31], 3);
    TableINI.OrientationX = 2; // only 1 counts
    EXPECT_EQ(ComposerMessagesTable(TableINI, 0).Partie1[31], 1);
    // A delay goes out as it stands, whatever AutoMoteursOff says.
    TableINI.AutoMoteursOff = false;
    TableINI.DelaiMoteursOff = 9;
    EXPECT_EQ(ComposerMessagesTable(TableINI, 0).Partie1[30], 9);
    TableINI.PWMmaxi0to255 = 300;
    EXPECT_EQ(ComposerMessagesTable(TableINI, 0).Partie1[29], 44);
}

TEST_F(Memoires, LesPasParMmSArrondissentAuPair) {
    TableINI.MicroPas = {1, 1, 1, 1, 1};
    TableINI.PasParTourMoteur = {5, 7, 9, 11, 0};
    TableINI.MmParTour = {2, 2, 2, 2};
    const MessagesTable m = ComposerMessagesTable(TableINI, 0);
    EXPECT_EQ(Paire(m.Partie2, 4), 2);  // 2.5
    EXPECT_EQ(Paire(m.Partie2, 6), 4);  // 3.5
    EXPECT_EQ(Paire(m.Partie2, 8), 4);  // 4.5
    EXPECT_EQ(Paire(m.Partie2, 10), 6); // 5.5
}

// 80 mm/s at 1280 steps per mm are 102400, 19000 in hex: 9000 goes out.
TEST_F(Memoires, UnProduitQuiDepasseSeizeBitsEstRangeTronque) {
    TableINI.MmParTour = {10, 10, 10, 10};
    TableINI.VmaxSansAccXY = 40;
    TableINI.VmaxAvecAccXY = 80;
    const MessagesTable m = ComposerMessagesTable(TableINI, 0);
    EXPECT_EQ(Paire(m.Partie2, 4), 1280);
    EXPECT_EQ(Paire(m.Partie2, 14), 51200);
    EXPECT_EQ(Paire(m.Partie2, 24), 0x9000);
    TableINI.PasToOrigine = {65536, 65537, -1, -65536};
    const MessagesTable n = ComposerMessagesTable(TableINI, 0);
    EXPECT_EQ(Paire(n.Partie3, 4), 0);
    EXPECT_EQ(Paire(n.Partie3, 6), 1);
    EXPECT_EQ(Paire(n.Partie3, 8), 0xFFFF);
    EXPECT_EQ(Paire(n.Partie3, 10), 0);
}

TEST_F(Memoires, MmParTourNulDonneZeroPasSansFaute) {
    TableINI.MmParTour = {0, 40, 0, 40};
    const MessagesTable m = ComposerMessagesTable(TableINI, 0);
    EXPECT_EQ(Paire(m.Partie2, 4), 0);
    EXPECT_EQ(Paire(m.Partie2, 6), 320);
    EXPECT_EQ(Paire(m.Partie2, 14), 0);
    EXPECT_EQ(Paire(m.Partie2, 24), 0);
}

TEST_F(Memoires, UneFrequenceHorsDesCinqDevientLeChiffreLePlusProche) {
    TableINI.Frequence = 15000;
    EXPECT_EQ(ComposerMessagesTable(TableINI, 0).Partie1[27], 2); // 1.5, to even
    TableINI.Frequence = 45000;
    EXPECT_EQ(ComposerMessagesTable(TableINI, 0).Partie1[27], 4);
    TableINI.Frequence = 0;
    EXPECT_EQ(ComposerMessagesTable(TableINI, 0).Partie1[27], 0);
}

TEST_F(Memoires, CeQuiNeTientPasEstDitEtRienNEstEnvoye) {
    TableINI.Frequence = 2560000;
    EXPECT_FALSE(EcrireTableDansZelkoEtChargerEnRam(0));
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].titre, "La table (Defaut) n'est pas envoyée");
    EXPECT_NE(boites.boites[0].texte.find("Frequence"), std::string::npos);

    TableINI.Frequence = 50000;
    TableINI.MicroPas[AxeX1] = 256; // 256 × 400 steps a turn
    EXPECT_FALSE(EcrireTableDansZelkoEtChargerEnRam(0));
    TableINI.MicroPas[AxeX1] = 32;
    TableINI.MmParTour[AxeX1] = 1e-9F;
    EXPECT_FALSE(EcrireTableDansZelkoEtChargerEnRam(0));
    EXPECT_EQ(boites.boites.size(), 3U);
    EXPECT_TRUE(envois.empty());
}

TEST_F(Memoires, UnNomDeVingtCaracteresEstCoupeEtNeCorrespondPlus) {
    TableINI.Nom = "MachineDeVingtLettre";
    ASSERT_TRUE(EcrireTableDansZelkoEtChargerEnRam(0));
    TableMachine lue;
    ASSERT_TRUE(LireMemoireZelko(lue, 0));
    EXPECT_EQ(lue.Nom, "MachineD");
    EXPECT_NE(lue.Nom, TableINI.Nom);
    EXPECT_TRUE(ComparerMachineEtZelko(TableINI, lue)); // the name alone is at fault
}

TEST_F(Memoires, UnNomCourtRevientSansSesBlancs) {
    for (const std::string nom : {"AB", "Huit 8ca", "A B", "Découpe", "X"}) {
        TableINI.Nom = nom;
        ASSERT_TRUE(EcrireTableDansZelkoEtChargerEnRam(1));
        EXPECT_EQ(TableINI.Nom, nom); // the machine keeps its name without blanks
        TableMachine lue;
        ASSERT_TRUE(LireMemoireZelko(lue, 1));
        EXPECT_EQ(lue.Nom, nom);
    }
    // One byte a character: "é" is 233.
    TableINI.Nom = "Découpes";
    const Tampon partie = ComposerMessagesTable(TableINI, 0).Partie1;
    EXPECT_EQ((Octets{partie.begin() + 4, partie.begin() + 12}),
              (Octets{68, 233, 99, 111, 117, 112, 101, 115}));
    TableINI.Nom = "机AB";
    EXPECT_EQ(ComposerMessagesTable(TableINI, 0).Partie1[4], '?');
}

TEST_F(Memoires, UneMemoireJamaisEcriteAUnNomVide) {
    TableMachine lue;
    for (const std::uint8_t octet : {0x00, 0xFF, 0x20}) {
        m_boite.memoires[0].fill(octet);
        ASSERT_TRUE(LireMemoireZelko(lue, 0));
        EXPECT_EQ(lue.Nom, "") << int{octet};
        EXPECT_FALSE(ComparerMachineEtZelko(TableINI, lue));
    }
    m_boite.memoires[0].fill(0xFF);
    ASSERT_TRUE(LireMemoireZelko(lue, 0));
    EXPECT_EQ(lue.Frequence, 2550000);
    EXPECT_EQ(lue.PenteAcceleration, 255);
    EXPECT_EQ(lue.OrientationX, 2);
    EXPECT_TRUE(lue.AutoMoteursOff);
}

TEST_F(Memoires, LectureEtEcritureSontInversesSurToutCeQuiPasse) {
    for (const char* nom : {"(Defaut)", "QT4X-m1", "QT2d v12", "QT2d v10"}) {
        ASSERT_EQ(ChargerMachine(nom), StatutSucces);
        ASSERT_TRUE(EcrireTableDansZelkoEtChargerEnRam(2));
        EXPECT_EQ(TableINI.NumeroMemoire, 2);
        EXPECT_EQ(m_boite.enRam, 2);
        TableMachine lue;
        ASSERT_TRUE(LireMemoireZelko(lue, 2));
        EXPECT_EQ(lue.Nom, nom);
        EXPECT_EQ(lue.CodesEntrees, TableINI.CodesEntrees);
        EXPECT_EQ(lue.NumeroMemoire, 2);
        std::string rapport;
        EXPECT_TRUE(ComparerMachineEtZelko(TableINI, lue, &rapport)) << rapport;
    }
}

TEST_F(Memoires, UnDelaiNulSeRelitSansArretAutomatique) {
    TableINI.DelaiMoteursOff = 0;
    TableINI.AutoMoteursOff = false;
    ASSERT_TRUE(EcrireTableDansZelkoEtChargerEnRam(0));
    TableMachine lue;
    ASSERT_TRUE(LireMemoireZelko(lue, 0));
    EXPECT_FALSE(lue.AutoMoteursOff);
    EXPECT_EQ(lue.DelaiMoteursOff, 0);
}

TEST_F(Memoires, LEcritureEnvoieTroisPartiesPuisCharge) {
    ASSERT_TRUE(EcrireTableDansZelkoEtChargerEnRam(1));
    ASSERT_EQ(envois.size(), 4U);
    const std::array<int, 4> sousCodes = {4, 6, 8, 1};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(envois[i][1], 84);
        EXPECT_EQ(envois[i][2], sousCodes[i]);
        EXPECT_EQ(envois[i][3], 1);
    }
}

TEST_F(Memoires, RienNEstEnvoyeApresUnEchecDEcriture) {
    for (int n = 1; n <= 4; ++n) {
        m_boite = {};
        m_boite.panne = essais::Panne::ReponsePerdue;
        m_boite.echangeEnPanne = n;
        envois.clear();
        boites.boites.clear();
        TableINI.NumeroMemoire = 7;
        EXPECT_FALSE(EcrireTableDansZelkoEtChargerEnRam(1));
        EXPECT_EQ(envois.size(), static_cast<std::size_t>(n));
        EXPECT_EQ(TableINI.NumeroMemoire, 7);
        ASSERT_EQ(boites.boites.size(), 1U);
        EXPECT_TRUE(boites.boites[0].texte.ends_with(
            "\r\nProcédure de l'erreur : EcrireTableDansZelkoEtChargerEnRam"));
        EXPECT_TRUE(boites.boites[0].texte.starts_with("Erreur -203 : "));
    }
}

TEST_F(Memoires, LaLectureEnvoieTroisPuisSeptEtEffaceLeTampon) {
    TableMachine lue;
    ASSERT_TRUE(LireMemoireZelko(lue, 2));
    ASSERT_EQ(envois.size(), 2U);
    EXPECT_EQ(Debut(envois[0], 3), (Octets{0, 84, 3, 2}));
    EXPECT_EQ(Debut(envois[1], 3), (Octets{0, 84, 7, 2}));
    EXPECT_EQ(TamponEchange, Tampon{});
}

TEST_F(Memoires, UneLectureEchoueeDitSonNomEtNeGardeRienDAncien) {
    TableMachine lue = TableINI;
    m_boite.panne = essais::Panne::ReponsePerdue;
    m_boite.echangeEnPanne = 1;
    EXPECT_FALSE(LireMemoireZelko(lue, 0));
    EXPECT_EQ(lue.Nom, "");
    EXPECT_EQ(envois.size(), 1U);
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_TRUE(boites.boites[0].texte.ends_with("\r\nProcédure de l'erreur : LireMemoireZelko"));
    EXPECT_EQ(boites.boites[0].titre, TextesDoubles(6, 2));
}

TEST_F(Memoires, LaReponseDeSeptNEstPasLue) {
    ASSERT_TRUE(EcrireTableDansZelkoEtChargerEnRam(0));
    m_boite.panne = essais::Panne::ReponsePerdue;
    m_boite.recus = 0;
    m_boite.echangeEnPanne = 2;
    TableMachine lue;
    EXPECT_TRUE(LireMemoireZelko(lue, 0));
    EXPECT_EQ(lue.Nom, "(Defaut)");
    EXPECT_TRUE(boites.boites.empty());
}
