// What the summary of a cut says.
#include "work2d/resume.h"

#include "outils/boites.h"
#include "outils_decoupe.h"
#include "work2d/export_gcode.h"

using namespace tessarel;
using namespace tessarel::essais;

namespace {

Decoupe2D Direct(double longueur) {
    Decoupe2D decoupe;
    decoupe.SequenceDecoupe = Chemin({{0, 0}, {longueur, 0}});
    return decoupe;
}

} // namespace

TEST(Resume, EnNormalIlDitAussiLaSaignee) {
    OptionsDecoupe2D options = OptionsEssai();
    options.decalage = CoteDecalage2D::Gauche;
    const ResumeDecoupe2D r = PreparerResume(Direct(20), options, MachineEssai(), "Polystyrene");
    EXPECT_EQ(r.dureeSecondes, 7); // 2 + 20 / 4
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
    const ResumeDecoupe2D r = PreparerResume(Direct(20), options, MachineEssai(), "EPP");
    EXPECT_EQ(r.dureeSecondes, 12);
    EXPECT_EQ(r.saignee, 1.25F);
    EXPECT_EQ(r.texte, "Vitesse : 2.0mm/s - 12 s.\r\nChauffe : 25.5% - Décalage : 0.6mm\r\nMatière : EPP");
}

TEST(Resume, LesChampsNulsDeTeteManquentPasCeuxDuMilieu) {
    const auto duree = [](int secondes) {
        const std::string texte =
            PreparerResume(Direct(4.0 * (secondes - 2)), OptionsEssai(), MachineEssai(), "").texte;
        const auto debut = texte.find(" - ") + 3;
        return texte.substr(debut, texte.find("\r\n") - debut);
    };
    EXPECT_EQ(duree(59), "59 s.");
    EXPECT_EQ(duree(60), "1 min. 0 s.");
    EXPECT_EQ(duree(3605), "1 h. 0 min. 5 s.");
    EXPECT_EQ(duree(84600), "1 j. 0 h. 0 min. 0 s.");
    EXPECT_EQ(duree(84599), "23 h. 29 min. 59 s.");
}

TEST(Resume, LaDureeEstCelleDuFichierGcode) {
    OptionsDecoupe2D options = OptionsEssai();
    options.approcheRapide = options.retourRapide = true;
    options.TypeSortie = 2;
    const std::vector<Sequence> sequences = {CarreDe20()};
    const Decoupe2D decoupe = AssemblerDecoupe2D(sequences, options, MachineEssai());
    EXPECT_EQ(PreparerResume(decoupe, options, MachineEssai(), "").dureeSecondes,
              ConstruireGcode2D(decoupe, options, MachineEssai(), "").dureeSecondes);
}

TEST(Resume, UneDureeIncalculableMontreLaBoite) {
    OptionsDecoupe2D options = OptionsEssai();
    options.modeExpert = true;
    BoitesEnregistrees boites;
    const ResumeDecoupe2D r = PreparerResume(Direct(20), options, MachineEssai(), "");
    EXPECT_EQ(r.dureeSecondes, -1);
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].texte, "Un problème est survenu lors du calcul du temps de découpe.");
    EXPECT_EQ(boites.boites[0].titre, "Annulation");
}

TEST(Resume, SansTraceIlNYARienAChronometrer) {
    BoitesEnregistrees boites;
    EXPECT_EQ(PreparerResume({}, OptionsEssai(), MachineEssai(), "").dureeSecondes, 0);
    EXPECT_TRUE(boites.boites.empty());
}
