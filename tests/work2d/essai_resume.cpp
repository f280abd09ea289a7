// What the summary of a cut says.
#include "work2d/resume.h"

#include "outils_decoupe.h"

using namespace tessarel;
using namespace tessarel::essais;

TEST(Resume, EnNormalIlDitAussiLaSaignee) {
    OptionsDecoupe2D options = OptionsEssai();
    options.decalage = CoteDecalage2D::Gauche;
    const ResumeDecoupe2D r = PreparerResume(7.25F, options, MachineEssai(), "Polystyrene");
    EXPECT_EQ(r.dureeSecondes, 7);
    EXPECT_EQ(r.vitesse, 4);
    EXPECT_EQ(r.decalage, -0.5F);
    EXPECT_EQ(r.saignee, 1);
    EXPECT_EQ(r.texte, "Vitesse : 4.0mm/s - 7 s.\r\nChauffe : 25.5% - Décalage : -0.5mm\r\n"
                       "Matière : Polystyrene - Saignée : 1.0");
}

TEST(Resume, EnExpertLaVitesseEtLaSaigneeSontCellesDeLaMatiere) {
    OptionsDecoupe2D options = OptionsEssai();
    options.modeExpert = true;
    options.vitesseMatiere = 2;
    options.saigneeMatiere = 1.25F;
    options.decalage = CoteDecalage2D::Droite;
    const ResumeDecoupe2D r = PreparerResume(12, options, MachineEssai(), "EPP");
    EXPECT_EQ(r.dureeSecondes, 12);
    EXPECT_EQ(r.saignee, 1.25F);
    EXPECT_EQ(r.texte, "Vitesse : 2.0mm/s - 12 s.\r\nChauffe : 25.5% - Décalage : 0.6mm\r\nMatière : EPP");
}

TEST(Resume, LesChampsNulsDeTeteManquentPasCeuxDuMilieu) {
    const auto duree = [](int secondes) {
        const std::string texte =
            PreparerResume(static_cast<float>(secondes), OptionsEssai(), MachineEssai(), "").texte;
        const auto debut = texte.find(" - ") + 3;
        return texte.substr(debut, texte.find("\r\n") - debut);
    };
    EXPECT_EQ(duree(59), "59 s.");
    EXPECT_EQ(duree(60), "1 min. 0 s.");
    EXPECT_EQ(duree(3605), "1 h. 0 min. 5 s.");
    EXPECT_EQ(duree(84600), "1 j. 0 h. 0 min. 0 s.");
    EXPECT_EQ(duree(84599), "23 h. 29 min. 59 s.");
}

TEST(Resume, UneDureeInconnueManque) {
    const ResumeDecoupe2D r = PreparerResume(-1, OptionsEssai(), MachineEssai(), "");
    EXPECT_EQ(r.dureeSecondes, DureeInconnue);
    EXPECT_TRUE(r.texte.starts_with("Vitesse : 4.0mm/s - \r\n")) << r.texte;
}
