// The exported file, byte for byte, and the rules of its lines.
#include "app/texts/textes.h"
#include "outils/boites.h"
#include "outils_decoupe.h"
#include "paths/durees.h"
#include "paths/gcode.h"
#include "platform/fichiers.h"
#include "work2d/export_gcode.h"

using namespace tessarel;
using namespace tessarel::essais;

namespace {

// The language a test chose, and French again after it.
struct LangueEssai {
    explicit LangueEssai(Langue langue) { ChargerMessages(langue); }
    ~LangueEssai() { ChargerMessages(Langue::Francais); }
    LangueEssai(const LangueEssai&) = delete;
    LangueEssai& operator=(const LangueEssai&) = delete;
};

void Remplacer(std::string& texte, const std::string& marque, const std::string& valeur) {
    for (auto i = texte.find(marque); i != std::string::npos; i = texte.find(marque, i + valeur.size()))
        texte.replace(i, marque.size(), valeur);
}

// A file written by hand; what depends on the build stands as a mark in it.
std::string FichierAttendu(const std::string& nom) {
    std::string texte = LireFichierEntier(std::string(TESSAREL_RACINE) + "/tests/work2d/donnees/" + nom);
    Remplacer(texte, "@VERSION@",
              std::to_string(TESSAREL_VERSION_MAJEURE) + "." + std::to_string(TESSAREL_VERSION_MINEURE) +
                  "." + std::to_string(TESSAREL_VERSION_REVISION));
    Remplacer(texte, "@SITE@", TESSAREL_SITE_SUPPORT);
    return texte;
}

std::vector<std::string> Lignes(const std::string& fichier) {
    std::vector<std::string> lignes;
    for (const auto l : Decouper(fichier, "\r\n")) lignes.emplace_back(l);
    return lignes;
}

std::vector<std::string> Mouvements(const std::string& fichier) {
    std::vector<std::string> lignes;
    for (const std::string& l : Lignes(fichier))
        if (l.starts_with("G01")) lignes.push_back(l);
    return lignes;
}

// A cut path as it stands, without the road to it.
Decoupe2D DecoupeDirecte(const Sequence& chemin) {
    Decoupe2D decoupe;
    decoupe.SequenceDecoupe = chemin;
    return decoupe;
}

Decoupe2D DecoupeDuCarre(const OptionsDecoupe2D& options, const TableMachine& table) {
    const std::vector<Sequence> sequences = {CarreDe20()};
    return AssemblerDecoupe2D(sequences, options, table);
}

OptionsDecoupe2D OptionsRapides() {
    OptionsDecoupe2D options = OptionsEssai();
    options.approcheRapide = options.retourRapide = true;
    return options;
}

} // namespace

// Slow sides of 20 mm at 4 mm/s: 5 s, F12. Rapid ones at 8: 2.5 s, F24. Total: 2 + 2.5 -> 4, then 9 to 34 in
// six steps, 36.5 -> 36.
TEST(Gcode, LeCarreDonneLeFichierEcritALaMainEnFrancais) {
    TableMachine table = MachineEssai();
    table.DistanceRangementFilSousOrigine = 5;
    const OptionsDecoupe2D options = OptionsRapides();
    const ExportGcode2D e = ConstruireGcode2D(DecoupeDuCarre(options, table), options, table, "");
    EXPECT_EQ(e.contenu, FichierAttendu("carre_fr.gcode"));
    EXPECT_EQ(e.dureeSecondes, 36);
    EXPECT_EQ(e.mouvements, 8U);
    EXPECT_EQ(e.resume, "Durée de la découpe : 36s\r\nVitesse découpe max : 4.0 mm/s\r\nChauffe : 25.5 %");
}

TEST(Gcode, LeCarreDonneLeFichierEcritALaMainEnAnglais) {
    const LangueEssai anglais(Langue::English);
    TableMachine table = MachineEssai();
    table.Nom = "(Defaut)";
    table.NomAxeGcodeX1 = "U";
    table.NomAxeGcodeY1 = "V";
    table.NomAxeGcodeX2 = "X2=";
    table.NomAxeGcodeY2 = "Y2=";
    OptionsDecoupe2D options = OptionsEssai();
    options.chauffe = 100;
    options.decalage = CoteDecalage2D::Gauche;
    const ExportGcode2D e =
        ConstruireGcode2D(DecoupeDuCarre(options, table), options, table, "/projects/square.tsr");
    EXPECT_EQ(e.contenu, FichierAttendu("carre_en.gcode"));
    EXPECT_EQ(e.resume, "Cutting time : 42s\r\nMax cutting speed : 4.0 mm/s\r\nHeating : 100.0 %");
}

TEST(Gcode, LaChauffeEstEnDixiemesDePourcent) {
    for (const auto& [chauffe, ligne] :
         {std::pair{25.5F, "M3 S255"}, {100.0F, "M3 S1000"}, {0.0F, "M3 S0"}}) {
        OptionsDecoupe2D options = OptionsEssai();
        options.chauffe = chauffe;
        const ExportGcode2D e =
            ConstruireGcode2D(DecoupeDuCarre(options, MachineEssai()), options, MachineEssai(), "");
        EXPECT_EQ(Lignes(e.contenu)[14], ligne);
    }
}

TEST(Gcode, LaTempoEstCelleDeLaMachine) {
    TableMachine table = MachineEssai();
    table.TempoChauffe = 25;
    const ExportGcode2D e =
        ConstruireGcode2D(DecoupeDuCarre(OptionsEssai(), table), OptionsEssai(), table, "");
    EXPECT_EQ(Lignes(e.contenu)[16], "G4 P25.0");
}

TEST(Gcode, LeRangementDuFilRemonteLesDeuxAxesVerticaux) {
    TableMachine table = MachineEssai();
    table.DistanceRangementFilSousOrigine = 5;
    const Decoupe2D decoupe = DecoupeDirecte(Chemin({{0, 0}, {12, 10}}));
    const ExportGcode2D e = ConstruireGcode2D(decoupe, OptionsEssai(), table, "");
    ASSERT_EQ(e.mouvements, 1U);
    EXPECT_NE(Mouvements(e.contenu)[0].find(" Y15.0000 A12.0000 Z15.0000 F"), std::string::npos);
}

TEST(Gcode, DesLettresChoisiesSuiventPartout) {
    TableMachine table = MachineEssai();
    table.NomAxeGcodeX1 = "U";
    table.NomAxeGcodeY1 = "V";
    table.NomAxeGcodeX2 = "W";
    table.NomAxeGcodeY2 = "B";
    const Decoupe2D decoupe = DecoupeDirecte(Chemin({{0, 0}, {20, 0}}));
    const ExportGcode2D e = ConstruireGcode2D(decoupe, OptionsEssai(), table, "");
    EXPECT_EQ(Lignes(e.contenu)[21], "(Point de depart: U0 V0 W0 B0 - Peut se situer sous le niveau du "
                                     "plateau si le fil se range dans une "
                                     "saignee)");
    EXPECT_EQ(Mouvements(e.contenu)[0], "G01 U20.0000 V0.0000 W20.0000 B0.0000 F12.000000");
}

TEST(Gcode, LesPetitsSegmentsSeFondentEtLeurTempsResteCompte) {
    // At 4 mm/s: 0.03125 mm lasts 0.0078125 s, exact in binary. Two of them pass 0.01 s: 0.015625 s, F3840.
    Sequence chemin;
    for (int i = 0; i <= 8; ++i) {
        PointProfil p;
        p.X = 0.03125 * i;
        chemin.Points.push_back(p);
    }
    const ExportGcode2D e = ConstruireGcode2D(DecoupeDirecte(chemin), OptionsEssai(), MachineEssai(), "");
    EXPECT_EQ(Mouvements(e.contenu), (std::vector<std::string>{
                                         "G01 X0.0625 Y0.0000 A0.0625 Z0.0000 F3840.000000",
                                         "G01 X0.1250 Y0.0000 A0.1250 Z0.0000 F3840.000000",
                                         "G01 X0.1875 Y0.0000 A0.1875 Z0.0000 F3840.000000",
                                         "G01 X0.2500 Y0.0000 A0.2500 Z0.0000 F3840.000000",
                                     }));
    EXPECT_EQ(e.dureeSecondes, 2) << "none of them counts in whole seconds";
}

TEST(Gcode, UnCentiemeJusteNeSuffitPasPourUneLigne) {
    // 0.04 mm at 4 mm/s: the single nearest to 0.01 s lies below 0.01.
    const ExportGcode2D juste =
        ConstruireGcode2D(DecoupeDirecte(Chemin({{0, 0}, {0.04, 0}})), OptionsEssai(), MachineEssai(), "");
    EXPECT_EQ(juste.mouvements, 0U);
    const ExportGcode2D plus =
        ConstruireGcode2D(DecoupeDirecte(Chemin({{0, 0}, {0.0401, 0}})), OptionsEssai(), MachineEssai(), "");
    EXPECT_EQ(plus.mouvements, 1U);
}

TEST(Gcode, LaFinSousUnCentiemeNALaPasDeLigne) {
    const Decoupe2D decoupe = DecoupeDirecte(Chemin({{0, 0}, {20, 0}, {20.02, 0}}));
    const ExportGcode2D e = ConstruireGcode2D(decoupe, OptionsEssai(), MachineEssai(), "");
    EXPECT_EQ(Mouvements(e.contenu),
              (std::vector<std::string>{"G01 X20.0000 Y0.0000 A20.0000 Z0.0000 F12.000000"}));
    EXPECT_EQ(Lignes(e.contenu)[23], "(Arret de la chauffe)");
}

TEST(Gcode, OrigineEnHautLePremierTrajetSeChronometreDepuisZero) {
    Sequence chemin = Chemin({{0, 200}, {0, 192}, {12, 192}});
    chemin.Points[0].Rapide = true;
    const ExportGcode2D e = ConstruireGcode2D(DecoupeDirecte(chemin), OptionsEssai(), MachineEssai(), "");
    // 192 mm at 8 mm/s: 24 s.
    EXPECT_EQ(Mouvements(e.contenu)[0], "G01 X0.0000 Y192.0000 A0.0000 Z192.0000 F2.500000");
}

TEST(Gcode, EnModeExpertLaVitesseEstCelleDeLaMatiere) {
    OptionsDecoupe2D options = OptionsEssai();
    options.modeExpert = true;
    options.vitesseMatiere = 2;
    const ExportGcode2D e =
        ConstruireGcode2D(DecoupeDirecte(Chemin({{0, 0}, {20, 0}})), options, MachineEssai(), "");
    EXPECT_EQ(Mouvements(e.contenu)[0], "G01 X20.0000 Y0.0000 A20.0000 Z0.0000 F6.000000");
    EXPECT_EQ(Lignes(e.contenu)[7],
              "(Duree de la decoupe :  12s, Vitesse découpe max : 2.0 mm/s, Chauffe : 25.5 %)");
}

TEST(Gcode, UneVitesseTropBasseEstRefuseeAvecSaBoite) {
    OptionsDecoupe2D options = OptionsEssai();
    options.modeExpert = true;
    options.vitesseMatiere = 0.049F;
    BoitesEnregistrees boites;
    const ExportGcode2D e =
        ConstruireGcode2D(DecoupeDirecte(Chemin({{0, 0}, {20, 0}})), options, MachineEssai(), "");
    EXPECT_TRUE(e.contenu.empty());
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].texte, "ATTENTION, vitesse < 0.05mm/s, découpe impossible");
}

TEST(Gcode, SansTraceIlNYAPasDeFichier) {
    BoitesEnregistrees boites;
    EXPECT_TRUE(ConstruireGcode2D({}, OptionsEssai(), MachineEssai(), "").contenu.empty());
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].texte, "Pas de tracé dans le bloc.");
    EXPECT_EQ(boites.boites[0].titre, "Opération impossible");
}

TEST(Gcode, UneValeurNegativeEtUneCordeAUneDecimale) {
    Decoupe2D decoupe = DecoupeDirecte(Chemin({{0, 0}, {-20, 0}}));
    decoupe.SequenceAssemblee = Chemin({{0, 0}, {123.45F, 0}});
    const ExportGcode2D e = ConstruireGcode2D(decoupe, OptionsEssai(), MachineEssai(), "");
    EXPECT_EQ(Mouvements(e.contenu)[0], "G01 X-20.0000 Y0.0000 A-20.0000 Z0.0000 F12.000000");
    EXPECT_EQ(Lignes(e.contenu)[4], "(Corde Cote 1 : 123.5mm)");
    EXPECT_EQ(Lignes(e.contenu)[5], "(Corde Cote 2 : 123.5mm)");
}

TEST(Gcode, UneFinDeLigneDansUnNomNeDevientPasUneCommande) {
    TableMachine table = MachineEssai();
    table.Nom = "Atelier\nG28";
    const Decoupe2D decoupe = DecoupeDirecte(Chemin({{0, 0}, {20, 0}}));
    const ExportGcode2D e = ConstruireGcode2D(decoupe, OptionsEssai(), table, "/a\r\nM3 S1000/b.tsr");
    EXPECT_EQ(Lignes(e.contenu)[2], "(Fichier Tessarel du projet : /a  M3 S1000/b.tsr)");
    EXPECT_EQ(Lignes(e.contenu)[3], "(Table de découpe : Atelier G28)");
}

TEST(FichierGcode, LesQuatreAxesDUneDecoupeConique) {
    EnteteGcode entete;
    entete.nomMachine = "Essai";
    entete.corde1 = 123.4567F;
    entete.corde2 = 120;
    entete.masqueCordes.reset();
    entete.lignesProjet = {"(Distance Cote1<-->Cote2 : 500mm)"};
    FichierGcode fichier;
    fichier.EcrireEntete(entete);
    fichier.AjouterMouvement(1, 2.5, 3.25, -4.12345, 600);
    fichier.AjouterLigne("M0");
    fichier.Terminer();
    const std::vector<std::string> lignes = Lignes(fichier.Texte("(resume)"));
    EXPECT_EQ(lignes[4], "(Corde Cote 1 : 123.4567mm)");
    EXPECT_EQ(lignes[5], "(Corde Cote 2 : 120mm)");
    EXPECT_EQ(lignes[6], "(Distance Cote1<-->Cote2 : 500mm)");
    EXPECT_EQ(lignes[7], "(resume)");
    EXPECT_EQ(lignes[22], "G01 X1.0000 Y2.5000 A3.2500 Z-4.1235 F600.000000");
    EXPECT_EQ(lignes[23], "M0");
    EXPECT_EQ(lignes[24], "(Arret de la chauffe)");
    EXPECT_EQ(lignes[27], "M2");
    EXPECT_EQ(lignes[28], "") << "the last line ends with CR LF too";
    EXPECT_EQ(lignes.size(), 29U);
}

TEST(DureeGcode, UnJourCompte84600Secondes) {
    EXPECT_EQ(TexteDureeGcode(0), " 0s");
    EXPECT_EQ(TexteDureeGcode(59), " 59s");
    EXPECT_EQ(TexteDureeGcode(60), " 1min 0s");
    EXPECT_EQ(TexteDureeGcode(3599), " 59min 59s");
    EXPECT_EQ(TexteDureeGcode(3605), " 1h 0min 5s");
    EXPECT_EQ(TexteDureeGcode(84599), " 23h 29min 59s");
    EXPECT_EQ(TexteDureeGcode(84600), " 1j 0h 0min 0s");
    EXPECT_EQ(TexteDureeGcode(2 * 84600 + 3600 + 120 + 3), " 2j 1h 2min 3s");
    const LangueEssai anglais(Langue::English);
    EXPECT_EQ(TexteDureeGcode(84600 + 61), " 1d 0h 1min 1s");
}
