// The wire's heat by hand, without a window: what goes out beside a move, what is taken back, what a box that
// does not answer leaves behind.
#include "boite_lien.h"

#include "link/chauffe_manuelle.h"
#include "link/commandes.h"

#include "app/texts/textes_programme.h"

using namespace tessarel;

namespace {

// A box that echoes the heat, says in its status what it does, and may be deaf.
class FilALaMain : public essais::Lien {
protected:
    FilALaMain() {
        repondre = [this](Tampon& t) {
            if (sourdes > 0) {
                --sourdes;
                return std::int32_t{-203};
            }
            const Tampon commande = t;
            t.fill(0);
            if (commande[1] == CommandeChauffe) {
                pwm = commande[2] == 0 ? 0 : commande[3];
                t[2] = commande[2];
                t[4] = static_cast<std::uint8_t>(pwm);
            } else if (commande[1] == CommandeStatut) {
                t[7] = pwm > 0 || bouton ? 16 : 0;
                t[8] = interrupteurs;
            }
            return ResultatZelkoSucces;
        };
        suivi.Permise = [this] { return permise; };
        suivi.Changee = [this](bool chaude) { changements.push_back(chaude); };
        suivi.Prevenir = [this](const std::function<void()>& renoncer) {
            ++avertissements;
            if (renonce) renoncer();
        };
        suivi.FinPrevenir = [this] { ++fins; };
    }
    ~FilALaMain() override {
        sourdes = 0;
        CouperChauffe(); // what one case leaves hot is no matter of the next
    }
    // Bytes of heat sent so far, 0 for off.
    [[nodiscard]] std::vector<int> Envoyees() const {
        std::vector<int> octets;
        for (const Tampon& t : envois)
            if (t[1] == CommandeChauffe) octets.push_back(t[2] == 0 ? 0 : t[3]);
        return octets;
    }

    ChauffeManuelle fil;
    SuiviChauffeManuelle suivi;
    std::vector<bool> changements;
    int sourdes = 0; // exchanges still unanswered
    int pwm = 0;
    bool bouton = false; // the knob of a box on MANU heats the wire
    std::uint8_t interrupteurs = 0;
    bool permise = true;
    bool renonce = false;
    int avertissements = 0;
    int fins = 0;
};

} // namespace

TEST_F(FilALaMain, SAllumeSeChangeEtSEteint) {
    EXPECT_TRUE(AllumerFil(fil, 60, suivi));
    ChangerChauffeFil(fil, 40, suivi);
    ChangerChauffeFil(fil, 40, suivi); // once more, to make sure
    EXPECT_TRUE(EteindreFil(fil, suivi));
    EXPECT_EQ(Envoyees(), (std::vector<int>{153, 102, 102, 0}));
    EXPECT_EQ(changements, (std::vector<bool>{true, false}));
    EXPECT_FALSE(fil.chaude || fil.incertaine || fil.occupee);
}

TEST_F(FilALaMain, UnFilFroidNeSuitPasLaBarre) {
    ChangerChauffeFil(fil, 40, suivi);
    EXPECT_TRUE(EteindreFilSiChaud(fil, suivi));
    EXPECT_TRUE(envois.empty());
}

TEST_F(FilALaMain, CeQuiNEstPasPermisNEnvoieRien) {
    permise = false;
    EXPECT_FALSE(AllumerFil(fil, 60, suivi));
    permise = true;
    MouvementsActifs = false;
    EXPECT_FALSE(AllumerFil(fil, 60, suivi));
    EXPECT_TRUE(envois.empty());
    EXPECT_TRUE(changements.empty());
}

TEST_F(FilALaMain, PendantUnMouvementLesDemandesPassentParLui) {
    ASSERT_TRUE(AllumerFil(fil, 60, suivi));
    DemandesMarche demandes;
    {
        const FilEnMarche marche(fil, demandes);
        ChangerChauffeFil(fil, 40, suivi);
        EXPECT_TRUE(demandes.ChauffeModifiee);
        EXPECT_EQ(demandes.ChauffeVoulue, 40.0F);
        EXPECT_FALSE(EteindreFil(fil, suivi)); // noted, not confirmed
        EXPECT_EQ(demandes.ChauffeVoulue, 0.0F);
        EXPECT_TRUE(fil.coupureVoulue);
        ChangerChauffeFil(fil, 50, suivi); // a bar must not light it again
        EXPECT_EQ(demandes.ChauffeVoulue, 0.0F);
        EXPECT_EQ(VeillerSurFil(fil, suivi), VeilleFil::Calme);
    }
    EXPECT_FALSE(fil.coupureVoulue);
    EXPECT_EQ(Envoyees(), std::vector<int>{153}); // the move sends the rest, between two of its exchanges
}

TEST_F(FilALaMain, UneCoupureDemandeePendantLeMouvementSeReprend) {
    ASSERT_TRUE(AllumerFil(fil, 60, suivi));
    DemandesMarche demandes;
    const FilEnMarche marche(fil, demandes);
    EteindreFil(fil, suivi);
    EXPECT_TRUE(AllumerFil(fil, 55, suivi));
    EXPECT_FALSE(fil.coupureVoulue);
    EXPECT_EQ(demandes.ChauffeVoulue, 55.0F);
}

TEST_F(FilALaMain, UnFilFroidNeSAllumePasPendantUnMouvement) {
    DemandesMarche demandes;
    const FilEnMarche marche(fil, demandes);
    EXPECT_FALSE(AllumerFil(fil, 60, suivi));
    EXPECT_FALSE(demandes.ChauffeModifiee);
}

TEST_F(FilALaMain, UneChauffeSansReponseFinitFroideEtDite) {
    sourdes = EchecsAvantAvertissement;
    EXPECT_FALSE(AllumerFil(fil, 60, suivi));
    EXPECT_EQ(pwm, 0);
    EXPECT_FALSE(fil.chaude || fil.incertaine);
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_NE(boites.boites[0].texte.find("-203"), std::string::npos);
}

TEST_F(FilALaMain, UneCoupureSansReponseSeRepeteEtLePrevient) {
    ASSERT_TRUE(AllumerFil(fil, 60, suivi));
    sourdes = EchecsAvantAvertissement + 3;
    EXPECT_TRUE(EteindreFil(fil, suivi));
    EXPECT_EQ(avertissements, 1);
    EXPECT_EQ(fins, 1);
    EXPECT_EQ(pwm, 0);
    EXPECT_TRUE(boites.boites.empty());
}

TEST_F(FilALaMain, AbandonneeElleResteIncertainePuisSeConfirmeSeule) {
    ASSERT_TRUE(AllumerFil(fil, 60, suivi));
    sourdes = 1000;
    renonce = true;
    EXPECT_FALSE(EteindreFil(fil, suivi));
    EXPECT_TRUE(fil.incertaine);
    EXPECT_FALSE(fil.chaude);
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].icone, IconeBoite::Critique);
    EXPECT_EQ(VeillerSurFil(fil, suivi), VeilleFil::Calme); // still deaf
    EXPECT_TRUE(fil.incertaine);
    sourdes = 0;
    EXPECT_EQ(VeillerSurFil(fil, suivi), VeilleFil::Coupee);
    EXPECT_FALSE(fil.incertaine);
    EXPECT_EQ(pwm, 0);
    EXPECT_EQ(boites.boites.size(), 1U);
}

TEST_F(FilALaMain, QuelquesReponsesPerduesNEteignentRien) {
    ASSERT_TRUE(AllumerFil(fil, 60, suivi));
    for (int tour = 0; tour < 5; ++tour) {
        sourdes = EchecsAvantAvertissement - 1;
        for (int i = 0; i < EchecsAvantAvertissement; ++i)
            EXPECT_EQ(VeillerSurFil(fil, suivi), VeilleFil::Calme);
    }
    EXPECT_EQ(pwm, 153);
    EXPECT_TRUE(MouvementsActifs);
}

TEST_F(FilALaMain, LaBoitePerdueFinitParUneCoupureEtSansMouvements) {
    ASSERT_TRUE(AllumerFil(fil, 60, suivi));
    sourdes = EchecsAvantAvertissement + 2;
    VeilleFil vu = VeilleFil::Calme;
    for (int i = 0; i < EchecsAvantAvertissement; ++i) vu = VeillerSurFil(fil, suivi);
    EXPECT_EQ(vu, VeilleFil::Perdue);
    EXPECT_EQ(pwm, 0);
    EXPECT_FALSE(MouvementsActifs);
}

TEST_F(FilALaMain, LaBoiteQuiNeChauffePlusLeDitDeuxFois) {
    ASSERT_TRUE(AllumerFil(fil, 60, suivi));
    pwm = 0; // its STOP button
    EXPECT_EQ(VeillerSurFil(fil, suivi), VeilleFil::Calme);
    pwm = 153; // the reply was noise
    EXPECT_EQ(VeillerSurFil(fil, suivi), VeilleFil::Calme);
    pwm = 0;
    EXPECT_EQ(VeillerSurFil(fil, suivi), VeilleFil::Calme);
    EXPECT_TRUE(fil.chaude);
    EXPECT_EQ(VeillerSurFil(fil, suivi), VeilleFil::Coupee);
    EXPECT_FALSE(fil.chaude);
    EXPECT_EQ(Envoyees().back(), 0);
}

TEST_F(FilALaMain, SurManuLeBoutonDecideEtLaVeilleSeTait) {
    ASSERT_TRUE(AllumerFil(fil, 60, suivi));
    interrupteurs = 1; // PC/MANU on MANU, ON/OFF on ON
    pwm = 0;           // the knob at its lowest
    for (int i = 0; i < 4; ++i) EXPECT_EQ(VeillerSurFil(fil, suivi), VeilleFil::Calme);
    EXPECT_TRUE(fil.chaude);
}

// No command puts out what the knob heats: it is told once, and the wire is none that is known to be cold
// until the box says so.
TEST_F(FilALaMain, CeQueLeBoutonChauffeNEstPasFroid) {
    ASSERT_TRUE(AllumerFil(fil, 60, suivi));
    interrupteurs = 1;
    bouton = true;
    EXPECT_FALSE(EteindreFil(fil, suivi));
    EXPECT_EQ(Envoyees().back(), 0);
    EXPECT_TRUE(fil.incertaine);
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].titre, Texte(TexteProgramme::FilChaudSurManuTitre));
    EXPECT_EQ(boites.boites[0].icone, IconeBoite::Critique);
    EXPECT_EQ(VeillerSurFil(fil, suivi), VeilleFil::Calme);
    EXPECT_FALSE(EteindreFilSiChaud(fil, suivi));
    EXPECT_EQ(boites.boites.size(), 1U);
    bouton = false; // its switch back on PC
    interrupteurs = 0;
    EXPECT_EQ(VeillerSurFil(fil, suivi), VeilleFil::Coupee);
    EXPECT_FALSE(fil.incertaine || fil.surManu);
    EXPECT_TRUE(EteindreFilSiChaud(fil, suivi));
}

// Nor does the emergency call cold what the knob heats; and a box that went silent is not taken for cold.
TEST_F(FilALaMain, LeSecoursNePrendPasPourFroidCeQueLeBoutonChauffe) {
    ASSERT_TRUE(AllumerFil(fil, 60, suivi));
    interrupteurs = 1;
    bouton = true;
    SecourirFil(fil, suivi);
    EXPECT_TRUE(fil.incertaine);
    sourdes = 1000;
    EXPECT_EQ(VeillerSurFil(fil, suivi), VeilleFil::Calme);
    EXPECT_TRUE(fil.incertaine);
    sourdes = 0;
    bouton = false;
    EXPECT_EQ(VeillerSurFil(fil, suivi), VeilleFil::Coupee);
    EXPECT_FALSE(fil.incertaine);
}

TEST_F(FilALaMain, AZeroPourCentRienNEstASurveiller) {
    ASSERT_TRUE(AllumerFil(fil, 0, suivi));
    for (int i = 0; i < 4; ++i) EXPECT_EQ(VeillerSurFil(fil, suivi), VeilleFil::Calme);
    EXPECT_TRUE(fil.chaude);
}

TEST_F(FilALaMain, LaBarreNeRallumePasCeQueLaMachineACoupe) {
    ASSERT_TRUE(AllumerFil(fil, 60, suivi));
    pwm = 0; // its STOP button
    EXPECT_FALSE(ChangerChauffeFil(fil, 40, suivi));
    EXPECT_EQ(Envoyees(), (std::vector<int>{153, 0}));
    EXPECT_EQ(pwm, 0);
    EXPECT_FALSE(fil.chaude || fil.incertaine);
    EXPECT_TRUE(boites.boites.empty());
}

// Nor what it has put out after a move in which the bar was raised from nothing.
TEST_F(FilALaMain, CeQuiAChangePendantUnMouvementCompte) {
    ASSERT_TRUE(AllumerFil(fil, 0, suivi));
    DemandesMarche demandes;
    const auto enMouvement = [&](double pourcent) {
        const FilEnMarche marche(fil, demandes);
        ChangerChauffeFil(fil, pourcent, suivi);
        demandes.ChauffeModifiee = false; // sent between two exchanges
        pwm = ValeurPWM(pourcent);
    };
    enMouvement(60);
    enMouvement(0);
    EXPECT_TRUE(ChangerChauffeFil(fil, 0, suivi)); // cold because it was told to be
    enMouvement(60);
    pwm = 0; // its STOP button
    EXPECT_FALSE(ChangerChauffeFil(fil, 40, suivi));
    EXPECT_EQ(pwm, 0);
    EXPECT_FALSE(fil.chaude || fil.incertaine);
}

TEST_F(FilALaMain, UnFilMisAZeroRepartAvecLaBarre) {
    ASSERT_TRUE(AllumerFil(fil, 60, suivi));
    EXPECT_TRUE(ChangerChauffeFil(fil, 0, suivi));
    EXPECT_TRUE(ChangerChauffeFil(fil, 40, suivi)); // cold because it was told to be
    EXPECT_EQ(pwm, 102);
    EXPECT_TRUE(fil.chaude);
}

TEST_F(FilALaMain, LaBarreAttendQueLaBoiteReponde) {
    ASSERT_TRUE(AllumerFil(fil, 60, suivi));
    sourdes = EchecsAvantAvertissement - 1;
    EXPECT_TRUE(ChangerChauffeFil(fil, 40, suivi));
    EXPECT_EQ(pwm, 102);
    sourdes = EchecsAvantAvertissement;
    EXPECT_TRUE(ChangerChauffeFil(fil, 50, suivi)); // given up, but not for what the machine did
    EXPECT_EQ(pwm, 0);
    EXPECT_FALSE(fil.chaude || fil.incertaine);
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_NE(boites.boites[0].texte.find("-203"), std::string::npos);
}
