// The picture of table, block, paths and cut: what stands where, in which colour.
#include "work2d/dessin_table.h"

#include "outils_decoupe.h"

#include <algorithm>
#include <cmath>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

std::vector<Lieu> PointsDuTrait(const Dessin& dessin, const TraitDessin& trait) {
    std::vector<Lieu> lieux;
    for (std::uint32_t i = 0; i < trait.nombre; ++i) {
        const PointDessin& p = dessin.points.at(trait.premier + i);
        lieux.push_back({p.X, p.Y});
    }
    return lieux;
}

std::vector<TraitDessin> TraitsDeCouleur(const Dessin& dessin, Couleur couleur) {
    std::vector<TraitDessin> traits;
    std::copy_if(dessin.traits.begin(), dessin.traits.end(), std::back_inserter(traits),
                 [&](const TraitDessin& t) { return t.couleur == couleur; });
    return traits;
}

std::vector<MarqueDessin> Marques(const Dessin& dessin, GenreMarque genre) {
    std::vector<MarqueDessin> marques;
    std::copy_if(dessin.marques.begin(), dessin.marques.end(), std::back_inserter(marques),
                 [&](const MarqueDessin& m) { return m.genre == genre; });
    return marques;
}

bool Contient(const CadreDessin& cadre, const PointDessin& p) {
    return p.X >= cadre.XMin && p.X <= cadre.XMax && p.Y >= cadre.YMin && p.Y <= cadre.YMax;
}

using Liste = std::vector<Lieu>;

} // namespace

TEST(DessinTable, LaTableEtLeBlocSontALEchelleEtALeurPlace) {
    Dessin dessin;
    DessinerTable(dessin, MachineEssai(), {60, 40}, {});
    const auto surfaces = [&] {
        std::vector<Liste> s;
        for (const TraitDessin& t : dessin.traits)
            if (t.genre == GenreTrait::Surface) s.push_back(PointsDuTrait(dessin, t));
        return s;
    }();
    ASSERT_EQ(surfaces.size(), 2U);
    EXPECT_EQ(surfaces[0], (Liste{{0, 0}, {0, 200}, {300, 200}, {300, 0}, {0, 0}}));
    EXPECT_EQ(surfaces[1], (Liste{{5, 0}, {5, 40}, {65, 40}, {65, 0}, {5, 0}}));
    const auto bords = TraitsDeCouleur(dessin, {110, 110, 219});
    ASSERT_EQ(bords.size(), 1U);
    EXPECT_EQ(PointsDuTrait(dessin, bords[0]), surfaces[0]);
    const auto zone =
        std::find_if(dessin.traits.begin(), dessin.traits.end(), [](const auto& t) { return t.tirets; });
    ASSERT_NE(zone, dessin.traits.end());
    EXPECT_EQ(PointsDuTrait(dessin, *zone), (Liste{{5, 1}, {5, 200}, {300, 200}, {300, 1}, {5, 1}}));
}

TEST(DessinTable, LesReglesDisentLesMillimetresDuneGraduationRonde) {
    EXPECT_EQ(PasGraduation(980), 100);
    EXPECT_EQ(PasGraduation(510), 50);
    EXPECT_EQ(PasGraduation(200), 20);
    EXPECT_EQ(PasGraduation(2400), 200);
    EXPECT_EQ(PasGraduation(0), PasGraduation(1));
    for (int course = 1; course < 5000; ++course) {
        const double labels = std::floor(course / PasGraduation(course)) + 1;
        EXPECT_GE(labels, 5) << course;
        EXPECT_LE(labels, 13) << course;
    }
    Dessin dessin;
    DessinerTable(dessin, MachineEssai(), {60, 40}, {});
    const auto place = [&](const std::string& texte, AncreTexte ancre) {
        for (const TexteDessin& t : dessin.textes)
            if (t.texte == texte && t.ancre == ancre) return t.ou;
        return PointDessin{-1, -1};
    };
    EXPECT_EQ(place("250", AncreTexte::Centre).X, 250);
    EXPECT_LT(place("250", AncreTexte::Centre).Y, 0);
    EXPECT_EQ(place("180", AncreTexte::Droite).Y, 180);
    EXPECT_LT(place("180", AncreTexte::Droite).X, 0);
    EXPECT_EQ(dessin.textes.front().texte, "0");
    EXPECT_EQ(dessin.textes[1].texte, "50");
}

TEST(DessinTable, LeCadreContientToutCeQuiEstDessine) {
    for (const auto& [x, y] : {std::pair{300, 200}, {980, 510}, {100, 2000}}) {
        TableMachine table = MachineEssai();
        table.CourseX = x;
        table.CourseY = y;
        Dessin dessin;
        DessinerTable(dessin, table, {50, 50}, {});
        const CadreDessin cadre = CadreTable(table);
        for (const PointDessin& p : dessin.points) EXPECT_TRUE(Contient(cadre, p)) << p.X << ", " << p.Y;
        for (const TexteDessin& t : dessin.textes) EXPECT_TRUE(Contient(cadre, t.ou)) << t.texte;
    }
}

TEST(DessinTable, SansReglesSeulsLesAxesRestentAutourDeLaTable) {
    OptionsDessin options;
    options.regles = false;
    Dessin dessin;
    DessinerTable(dessin, MachineEssai(), {60, 40}, options);
    ASSERT_EQ(dessin.textes.size(), 2U);
    EXPECT_EQ(dessin.textes[0].texte, "X");
    EXPECT_GT(dessin.textes[0].ou.X, 300);
    EXPECT_EQ(dessin.textes[0].ou.Y, 0);
    EXPECT_EQ(dessin.textes[1].texte, "Y");
    EXPECT_EQ(dessin.textes[1].ou.X, 0);
    EXPECT_GT(dessin.textes[1].ou.Y, 200);
    const auto fleches = Marques(dessin, GenreMarque::Fleche);
    ASSERT_EQ(fleches.size(), 2U);
    EXPECT_EQ(fleches[0].angle, 0);
    EXPECT_DOUBLE_EQ(fleches[1].angle, std::acos(-1.0) / 2);
    const CadreDessin cadre = CadreTable(MachineEssai(), false);
    EXPECT_GT(cadre.XMin, CadreTable(MachineEssai()).XMin) << "no room is kept for rulers that are not there";
    for (const TexteDessin& t : dessin.textes) EXPECT_TRUE(Contient(cadre, t.ou)) << t.texte;
}

TEST(DessinTable, LeCadreDeLaTableAToujoursLaCouleurDite) {
    for (const bool sombre : {false, true}) {
        OptionsDessin options;
        options.sombre = sombre;
        Dessin dessin;
        DessinerTable(dessin, MachineEssai(), {60, 40}, options);
        EXPECT_EQ(TraitsDeCouleur(dessin, {110, 110, 219}).size(), 1U);
    }
}

TEST(DessinTable, LesMargesInterieuresSontEnTirets) {
    OptionsDessin options;
    Dessin sans;
    DessinerTable(sans, MachineEssai(), {60, 40}, options);
    options.margeX = 5;
    options.margeY = 4;
    Dessin avec;
    DessinerTable(avec, MachineEssai(), {60, 40}, options);
    ASSERT_EQ(avec.traits.size(), sans.traits.size() + 1);
    std::vector<Lieu> marge;
    for (const TraitDessin& t : avec.traits) {
        const std::vector<Lieu> lieux = PointsDuTrait(avec, t);
        if (t.tirets && lieux[0] == Lieu{10, 4}) marge = lieux;
    }
    // The block stands 5 mm from the origin: from (10, 4) to (60, 36).
    EXPECT_EQ(marge, (std::vector<Lieu>{{10, 4}, {10, 36}, {60, 36}, {60, 4}, {10, 4}}));
    options.margeX = 30; // nothing is left between the margins
    DessinerTable(avec = {}, MachineEssai(), {60, 40}, options);
    EXPECT_EQ(avec.traits.size(), sans.traits.size());
}

TEST(DessinSequences, LesCouchesSePartagentLesTracesSansChangerDeCouleur) {
    std::vector<Sequence> sequences(4, CarreDe20());
    sequences[1].Selection = SelectionSequence;
    sequences[3].Selection = SelectionSequence;
    Dessin autres;
    DessinerSequences(autres, sequences, {}, PartieSequences::Autres);
    ASSERT_EQ(autres.traits.size(), 2U);
    EXPECT_EQ(autres.traits[0].couleur, (Couleur{144, 0, 82}));
    EXPECT_EQ(autres.traits[1].couleur, (Couleur{112, 0, 105}));
    Dessin choisies;
    DessinerSequences(choisies, sequences, {}, PartieSequences::Selectionnees);
    ASSERT_EQ(choisies.traits.size(), 2U);
    EXPECT_EQ(choisies.traits[1].couleur, (Couleur{230, 61, 61}));
}

TEST(DessinSequences, ChacuneASaCouleurEtLesChoisiesSontRouges) {
    std::vector<Sequence> sequences(7, CarreDe20());
    sequences[2].Selection = SelectionSequence;
    sequences[3].Selection = SelectionSequence;
    Dessin dessin;
    DessinerSequences(dessin, sequences, {});
    const std::vector<Couleur> attendues = {{144, 0, 82},   {0, 122, 11}, {255, 107, 107}, {230, 61, 61},
                                            {156, 86, 228}, {0, 122, 11}, {112, 0, 105}};
    ASSERT_EQ(dessin.traits.size(), attendues.size());
    for (std::size_t i = 0; i < attendues.size(); ++i) EXPECT_EQ(dessin.traits[i].couleur, attendues[i]) << i;
    EXPECT_EQ(PointsDuTrait(dessin, dessin.traits[6]), Lieux(CarreDe20()));
    EXPECT_EQ(Marques(dessin, GenreMarque::PremierPoint).size(), 7U);
}

TEST(DessinSequences, SansCouleursToutesSontPareilles) {
    OptionsDessin options;
    options.couleurProfils = false;
    const std::vector<Sequence> sequences(3, CarreDe20());
    Dessin dessin;
    DessinerSequences(dessin, sequences, options);
    EXPECT_EQ(dessin.traits[0].couleur, dessin.traits[1].couleur);
    EXPECT_EQ(dessin.traits[0].couleur, dessin.traits[2].couleur);
}

TEST(DessinSequences, LesPointsSeVoientSurDemandeEtLaFlecheDitLeSens) {
    const std::vector<Sequence> sequences = {Chemin({{0, 0}, {0, 100}, {10, 100}}), Sequence()};
    Dessin dessin;
    DessinerSequences(dessin, sequences, {});
    EXPECT_TRUE(Marques(dessin, GenreMarque::Point).empty());
    const auto fleches = Marques(dessin, GenreMarque::Fleche);
    ASSERT_EQ(fleches.size(), 1U);
    EXPECT_EQ(fleches[0].ou.X, 0);
    EXPECT_DOUBLE_EQ(fleches[0].ou.Y, 55); // half of 110 mm
    EXPECT_DOUBLE_EQ(fleches[0].angle, std::acos(-1.0) / 2);
    OptionsDessin options;
    options.voirPoints = true;
    DessinerSequences(dessin = {}, sequences, options);
    EXPECT_EQ(Marques(dessin, GenreMarque::Point).size(), 3U);
    // Points on one spot have no direction.
    DessinerSequences(dessin = {}, std::vector<Sequence>{Chemin({{5, 5}, {5, 5}})}, {});
    EXPECT_TRUE(Marques(dessin, GenreMarque::Fleche).empty());
}

TEST(DessinDecoupe, EntreeCheminEtSortieOntLeurCouleurEtLeRapideEstEpais) {
    OptionsDecoupe2D options = OptionsEssai();
    options.approcheRapide = options.retourRapide = true;
    options.TypeEntree = 1;
    const std::vector<Sequence> sequences = {CarreDe20()};
    Dessin dessin;
    DessinerDecoupe(dessin, AssemblerDecoupe2D(sequences, options, MachineEssai()), {});
    const auto entree = TraitsDeCouleur(dessin, {255, 0, 0});
    ASSERT_EQ(entree.size(), 2U) << "runs of one thickness are one stroke";
    EXPECT_EQ(PointsDuTrait(dessin, entree[0]), (Liste{{0, 0}, {0, 75}, {20, 75}}));
    EXPECT_EQ(entree[0].epaisseur, 2);
    EXPECT_EQ(PointsDuTrait(dessin, entree[1]), (Liste{{20, 75}, {20, 20}}));
    EXPECT_EQ(entree[1].epaisseur, 1);
    const auto chemin = TraitsDeCouleur(dessin, {144, 0, 82});
    ASSERT_EQ(chemin.size(), 1U);
    EXPECT_EQ(PointsDuTrait(dessin, chemin[0]), Lieux(CarreDe20()));
    EXPECT_EQ(chemin[0].epaisseur, 1);
    const auto sortie = TraitsDeCouleur(dessin, {0, 144, 61});
    ASSERT_EQ(sortie.size(), 2U);
    EXPECT_EQ(PointsDuTrait(dessin, sortie[0]), (Liste{{20, 20}, {0, 20}}));
    EXPECT_EQ(sortie[0].epaisseur, 1);
    EXPECT_EQ(PointsDuTrait(dessin, sortie[1]), (Liste{{0, 20}, {0, 0}}));
    EXPECT_EQ(sortie[1].epaisseur, 2);
    EXPECT_EQ(dessin.traits.size(), 5U);
    EXPECT_EQ(Marques(dessin, GenreMarque::Fleche).size(), 8U);
    EXPECT_EQ(Marques(dessin, GenreMarque::PremierPoint).size(), 1U);
}

TEST(DessinDecoupe, UnSeulPointDecoupeSeDessineAussi) {
    const std::vector<Sequence> sequences = {Chemin({{20, 30}})};
    Dessin dessin;
    OptionsDessin options;
    options.voirPoints = true;
    DessinerDecoupe(dessin, AssemblerDecoupe2D(sequences, OptionsEssai(), MachineEssai()), options);
    EXPECT_EQ(TraitsDeCouleur(dessin, CouleurEntree).size(), 1U);
    EXPECT_EQ(TraitsDeCouleur(dessin, CouleurSortie).size(), 1U);
    EXPECT_EQ(Marques(dessin, GenreMarque::Point).size(), 1U);
}

TEST(DessinDecoupe, SansDecoupeLeProvisoireEstEnTirets) {
    Decoupe2D decoupe;
    decoupe.SequenceAssemblee = Chemin({{20, 30}, {40, 50}});
    decoupe.TrajetEntreeProvisoire = Chemin({{0, 0}, {0, 30}, {20, 30}});
    decoupe.TrajetSortieProvisoire = Chemin({{40, 50}, {0, 50}, {0, 0}});
    Dessin dessin;
    DessinerDecoupe(dessin, decoupe, {});
    ASSERT_EQ(dessin.traits.size(), 3U);
    EXPECT_TRUE(dessin.traits[0].tirets);
    EXPECT_EQ(dessin.traits[0].couleur, CouleurEntree);
    EXPECT_FALSE(dessin.traits[1].tirets);
    EXPECT_TRUE(dessin.traits[2].tirets);
    DessinerDecoupe(dessin = {}, {}, {});
    EXPECT_TRUE(dessin.traits.empty());
}

TEST(DessinTable, LesDimensionsDuBlocSeLisentAUneDecimale) {
    EXPECT_EQ(TexteDimensionsBloc({60, 40.25F}), "60.0 mm x 40.3 mm");
}
