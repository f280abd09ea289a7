// A machine as it is typed: what is read, corrected with a box, refused with a box, and what a name may be.
#include "machine/saisie_machine.h"

#include "app/settings/parametres.h"
#include "app/texts/textes.h"
#include "machine/champs_machine.h"
#include "machine/cles_machine.h"
#include "machine/dessin_sorties.h"
#include "outils/boites.h"
#include "platform/nombres.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace tessarel;

namespace {

class Saisie : public ::testing::Test {
protected:
    void SetUp() override {
        ChargerMessages(Langue::Francais);
        Parametres = {};
        TableMachine table;
        ASSERT_EQ(LireMachine("(Defaut)", table), StatutSucces);
        m_saisie = SaisieDepuisTable(table);
        m_saisie.Nom = "Atelier";
    }
    void TearDown() override { TableauNomsMachines.clear(); }

    void Taper(const char* cle, const char* texte) { m_saisie.Textes[cle] = texte; }
    // The remark beside a field, "" for none.
    std::string Remarque(const std::string& cle) const {
        for (const RemarqueSaisie& remarque : RemarquesSaisie(m_saisie))
            if (remarque.Cle == cle) return remarque.Texte;
        return "";
    }
    void AttendreBoite(const std::string& titre, const std::string& texte) {
        ASSERT_EQ(m_boites.boites.size(), 1U);
        EXPECT_EQ(m_boites.boites[0].titre, titre);
        EXPECT_EQ(m_boites.boites[0].texte, texte);
    }

    SaisieMachine m_saisie;
    essais::BoitesEnregistrees m_boites;
};

constexpr const char* Erreur = "Erreur de saisie";
constexpr const char* RemplacePar1 = "Valeur nulle impossible, la valeur va être remplacée par 1";
constexpr const char* RemplacePar200 = "Valeur nulle impossible, la valeur va être remplacée par 200";

} // namespace

TEST_F(Saisie, UneMachineIntegreeSeRelitSansUnMot) {
    for (const char* nom : {"(Defaut)", "QT4X-m1", "QT2d v12", "QT2d v10"}) {
        TableMachine table;
        LireMachine(nom, table);
        const SaisieMachine saisie = SaisieDepuisTable(table);
        EXPECT_TRUE(RemarquesSaisie(saisie).empty()) << nom << ": " << RemarquesSaisie(saisie).front().Cle;
        const std::optional<TableMachine> relue = ControlerSaisie(saisie);
        ASSERT_TRUE(relue) << nom;
        EXPECT_EQ(relue->Nom, nom);
        EXPECT_EQ(relue->CodeDefinitionSortie, table.CodeDefinitionSortie);
        EXPECT_EQ(relue->PasParTour, table.PasParTour);
        EXPECT_EQ(relue->MmParTour, table.MmParTour);
        EXPECT_EQ(relue->PWMmaxi0to255, table.PWMmaxi0to255);
        EXPECT_EQ(relue->NomAxeGcodeX2, "A");
        EXPECT_EQ(relue->CourseX, table.CourseX);
        EXPECT_EQ(relue->PasToOrigine, table.PasToOrigine);
        EXPECT_EQ(relue->EcartementUtile, table.EcartementUtile);
        EXPECT_FALSE(relue->OrigineEnHaut) << "a machine that users enter never has it";
    }
    EXPECT_TRUE(m_boites.boites.empty());
}

TEST_F(Saisie, ChaqueNombreASesLimitesEtChaqueLigneSaCle) {
    for (const ChampMachineSaisi& champ : ChampsMachineSaisis()) {
        EXPECT_NE(CleMachineDe(champ.cle), nullptr) << champ.cle;
        EXPECT_LT(champ.minimum, champ.maximum) << champ.cle;
    }
    for (const CleMachine& cle : ClesMachine()) {
        const bool nombre = cle.masque != nullptr && cle.regle != RegleCle::EcriteSeulement;
        EXPECT_EQ(ChampMachineSaisiDe(cle.cle) != nullptr, nombre) << cle.cle;
    }
}

TEST_F(Saisie, LaVirguleEtLePointSeValent) {
    Taper("MmParTourX1", " 12,7 ");
    Taper("VitesseRapide", "7.5");
    const std::optional<TableMachine> table = ControlerSaisie(m_saisie);
    ASSERT_TRUE(table);
    EXPECT_EQ(table->MmParTour[AxeX1], 12.7F);
    EXPECT_EQ(table->VitesseRapide, 7.5F);
}

TEST_F(Saisie, UnTexteQuiNEstPasUnNombreEstRefuse) {
    for (const char* texte : {"", "douze", "12 mm", "1.2.3", "nan", "inf"}) {
        m_boites.boites.clear();
        Taper("MmParTourX1", texte);
        EXPECT_EQ(Remarque("MmParTourX1"), "un nombre est attendu") << texte;
        EXPECT_FALSE(ControlerSaisie(m_saisie)) << texte;
        AttendreBoite(Erreur, "Le format d'un nombre pose problème.");
    }
}

TEST_F(Saisie, LesZerosImpossiblesSontDitsEtRemplaces) {
    struct Cas {
        const char* cle;
        const char* texte;
        double valeur;
    };
    const Cas cas[] = {
        {"MmParTourY2", RemplacePar1, 1},
        {"MicroPasX1", RemplacePar1, 1},
        {"VmaxAvecAccXY", RemplacePar1, 1},
        {"PasParTourMoteurX2", RemplacePar200, 200},
        {"CourseX", "Course X égale à zéro. C'est impossible, elle sera forcée à 300", 300},
        {"CourseY", "Course Y égale à zéro. C'est impossible, elle sera forcée à 300", 300},
    };
    for (const Cas& c : cas) {
        m_boites.boites.clear();
        SetUp();
        Taper("VitesseRapide", "1"); // not above the speed that becomes 1
        Taper(c.cle, "0");
        const std::optional<TableMachine> table = ControlerSaisie(m_saisie);
        ASSERT_TRUE(table) << c.cle;
        AttendreBoite(Erreur, c.texte);
        EXPECT_EQ(NombreDepuisTexte(TexteDeCle(*CleMachineDe(c.cle), *table)), c.valeur) << c.cle;
    }
}

TEST_F(Saisie, LAxeASansSortiePeutResterAZero) {
    Taper("PasParTourMoteurA", "0");
    Taper("MicroPasA", "0");
    Taper("DegParTourA", "0");
    ASSERT_TRUE(ControlerSaisie(m_saisie));
    EXPECT_TRUE(m_boites.boites.empty());
    Taper("SortieDirA", "1");
    const std::optional<TableMachine> table = ControlerSaisie(m_saisie);
    ASSERT_TRUE(table);
    EXPECT_EQ(m_boites.boites.size(), 3U);
    EXPECT_EQ(table->PasParTourMoteur[AxeA], 200);
    EXPECT_EQ(table->MicroPas[AxeA], 1);
    EXPECT_EQ(table->DegParTourA, 1);
}

TEST_F(Saisie, UneVitesseDeDecoupeNulleDevient4SansUnMot) {
    Taper("VitesseDecoupeParDefaut", "0");
    const std::optional<TableMachine> table = ControlerSaisie(m_saisie);
    ASSERT_TRUE(table);
    EXPECT_EQ(table->VitesseDecoupeParDefaut, 4);
    EXPECT_TRUE(m_boites.boites.empty());
}

TEST_F(Saisie, DeuxFonctionsSurUneSortieSontRefusees) {
    Taper("SortieDirX1", "7"); // step Y1 stands there
    EXPECT_EQ(SortiesEnDouble(m_saisie), std::vector<int>{7});
    EXPECT_EQ(Remarque("SortieDirX1"), "sortie déjà utilisée");
    EXPECT_EQ(Remarque("SortieStepY1"), "sortie déjà utilisée");
    EXPECT_EQ(Remarque("SortieStepX1"), "");
    EXPECT_FALSE(ControlerSaisie(m_saisie));
    AttendreBoite(Erreur, "Validation impossible : deux sorties 'out' identiques sont utilisées pour des "
                          "fonctions différentes.");
}

TEST_F(Saisie, ZeroSurDeuxAxesEstAccepte) {
    for (const char* cle : {"SortieDirX1", "SortieStepX1", "SortieDirX2", "SortieStepX2"}) Taper(cle, "0");
    EXPECT_TRUE(SortiesEnDouble(m_saisie).empty());
    const std::optional<TableMachine> table = ControlerSaisie(m_saisie);
    ASSERT_TRUE(table);
    EXPECT_EQ(table->CodeDefinitionSortie,
              (std::array<std::uint8_t, 10>{0, 0, 0, 0, 0, 0, 130, 66, 132, 68}));
    EXPECT_TRUE(m_boites.boites.empty());
}

TEST_F(Saisie, HorsLimitesEstRefuseAvecSesLimites) {
    Taper("PenteAcceleration", "16");
    EXPECT_EQ(Remarque("PenteAcceleration"), "la valeur doit être comprise entre 0 et 15 ");
    EXPECT_FALSE(ControlerSaisie(m_saisie));
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(m_boites.boites[0].titre, Erreur);
}

TEST_F(Saisie, UnProduitDePasQuiDeborde16BitsEstRefuse) {
    Taper("MicroPasX1", "81");
    EXPECT_EQ(Remarque("MicroPasX1"), "") << "400 x 81 = 32400 fits";
    Taper("MicroPasX1", "82"); // 32800
    EXPECT_EQ(Remarque("MicroPasX1"), "micro-pas × pas par tour dépasse 32767");
    EXPECT_FALSE(ControlerSaisie(m_saisie));
    ASSERT_EQ(m_boites.boites.size(), 1U);
    EXPECT_EQ(m_boites.boites[0].texte, "MicroPasX1 : micro-pas × pas par tour dépasse 32767");
}

TEST_F(Saisie, LesValeursLieesSontRameneesAvecLeurBoite) {
    Taper("ChauffeParDefaut", "95");         // heat maximum 80
    Taper("ChauffeNettoyage", "81");         // the same
    Taper("VitesseDecoupeParDefaut", "6.5"); // 6 without ramp
    Taper("VitesseRapide", "11");            // 10 with ramp
    Taper("SaigneeVDsur2ParDefaut", "6.1");  // 6 in the preferences
    EXPECT_EQ(Remarque("ChauffeParDefaut"), "sera ramené à 80");
    EXPECT_EQ(Remarque("VitesseDecoupeParDefaut"), "sera ramené à 6");
    const std::optional<TableMachine> table = ControlerSaisie(m_saisie);
    ASSERT_TRUE(table);
    EXPECT_EQ(table->ChauffeParDefaut, 80);
    EXPECT_EQ(table->ChauffeNettoyage, 80);
    EXPECT_EQ(table->VitesseDecoupeParDefaut, 6);
    EXPECT_EQ(table->VitesseRapide, 10);
    EXPECT_EQ(table->SaigneeVDsur2ParDefaut, 6);
    std::vector<std::string> titres;
    for (const Boite& boite : m_boites.boites) titres.push_back(boite.titre);
    EXPECT_EQ(titres, (std::vector<std::string>{"Valeur de chauffe trop élevée",
                                                "Valeur de chauffe trop élevée", "Contrôle des valeurs",
                                                "Contrôle des valeurs", "Contrôle des valeurs"}));
}

TEST_F(Saisie, LArretDesMoteursEtSonDelaiDisentLaMemeChose) {
    Taper("AutoMoteursOff", "0");
    Taper("DelaiAutoMoteursOff", "9");
    EXPECT_EQ(ControlerSaisie(m_saisie)->DelaiMoteursOff, 0) << "the interface reads any other delay as on";
    Taper("AutoMoteursOff", "1");
    Taper("DelaiAutoMoteursOff", "0");
    EXPECT_EQ(ControlerSaisie(m_saisie)->DelaiMoteursOff, 1) << "the interface reads 0 as never";
}

TEST_F(Saisie, DesTextesQuelconquesNeFontJamaisTomber) {
    std::mt19937 hasard(20240501);
    const std::vector<std::string> textes = {"",  "0",  "-1",  "1e9",   "99999999999999999999",
                                             "7", "10", "é€",  "0.001", "32768",
                                             "-", ",",  "255", "1,5"};
    for (int essai = 0; essai < 400; ++essai) {
        SetUp();
        for (auto& [cle, texte] : m_saisie.Textes)
            if (hasard() % 4 == 0) texte = textes[hasard() % textes.size()];
        const std::vector<RemarqueSaisie> remarques = RemarquesSaisie(m_saisie);
        const bool bloque =
            std::ranges::any_of(remarques, [](const RemarqueSaisie& r) { return r.Bloquante; });
        EXPECT_EQ(ControlerSaisie(m_saisie).has_value(), !bloque) << "what is said beside a field holds";
    }
}

TEST_F(Saisie, LesNomsRefuses) {
    TableauNomsMachines = {"(Defaut)", "QT4X-m1", "Atelier"};
    struct Cas {
        const char* nom;
        const char* titre;
        const char* texte;
    };
    const Cas cas[] = {
        {"", Erreur, "Pour valider, il faut d'abord saisir un nom de table"},
        {"   ", Erreur, "Pour valider, il faut d'abord saisir un nom de table"},
        {"(Defaut)", "Nom invalide", "Ce nom est réservé, vous ne pouvez pas l'utiliser"},
        {"(defaut)", "Nom invalide", "Ce nom est réservé, vous ne pouvez pas l'utiliser"},
        {"QT2d v12", "Nom invalide", "Ce nom est réservé, vous ne pouvez pas l'utiliser"},
        {"QT2D V12", "Nom invalide", "Ce nom est réservé, vous ne pouvez pas l'utiliser"},
        {"QT2d v10", "Nom invalide", "Ce nom est réservé, vous ne pouvez pas l'utiliser"},
        {"QT2D V10", "Nom invalide", "Ce nom est réservé, vous ne pouvez pas l'utiliser"},
        {"QT4X-m1", "Nom invalide", "Ce nom est réservé, vous ne pouvez pas l'utiliser"},
        {"QT4X-M1", "Nom invalide", "Ce nom est réservé, vous ne pouvez pas l'utiliser"},
        {"Atelier", "Nom invalide", "Le nom de cette table existe déjà, impossible de l'utiliser"},
        {" atelier ", "Nom invalide", "Le nom de cette table existe déjà, impossible de l'utiliser"},
        {"Grande table de vingt", "Nom invalide",
         "Les mémoires de l'interface ne gardent que 8 caractères du nom."},
        {"A]B", "Nom invalide",
         "Le nom ne peut contenir que des lettres sans accent, des chiffres, des espaces et des signes, sauf "
         "les crochets."},
    };
    for (const Cas& c : cas) {
        m_boites.boites.clear();
        EXPECT_FALSE(AccepterNomMachine(c.nom)) << c.nom;
        AttendreBoite(c.titre, c.texte);
    }
    m_boites.boites.clear();
    EXPECT_TRUE(AccepterNomMachine("Huit car"));
    EXPECT_TRUE(AccepterNomMachine("AB"));
    EXPECT_TRUE(m_boites.boites.empty());
}

TEST_F(Saisie, LImageDitCeQueChaqueSortieFait) {
    std::vector<EmploiSortie> emplois = EmploisDesSorties(m_saisie);
    ASSERT_EQ(emplois.size(), 10U);
    EXPECT_TRUE(emplois[0].Libre());
    EXPECT_EQ(emplois[2].Fonctions, std::vector<std::string>{"X1 pas"});
    EXPECT_EQ(emplois[7].Fonctions, std::vector<std::string>{"Y1 sens, inversé"});
    Taper("SortieDirX2", "3");
    emplois = EmploisDesSorties(m_saisie);
    EXPECT_EQ(emplois[2].Fonctions, (std::vector<std::string>{"X1 pas", "X2 sens"}));
    EXPECT_TRUE(emplois[2].EnDouble());
    EXPECT_TRUE(emplois[5].Libre());
    // Red is drawn where, and only where, an output serves twice.
    const auto rouges = [](const Dessin& dessin) {
        return std::ranges::count_if(dessin.traits, [](const TraitDessin& t) {
            return t.couleur == Couleur{214, 40, 40};
        });
    };
    EXPECT_GT(rouges(DessinerSorties(m_saisie, false)), 0);
    Taper("SortieDirX2", "6");
    EXPECT_EQ(rouges(DessinerSorties(m_saisie, true)), 0);
}
