// A 2D cut on the virtual machine: what is checked, what is said, where the wire is at each end, resume and
// return; and every exchange of it broken in turn.
#include "work2d/assemblage.h"
#include "work2d/decoupe_interface.h"

#include "link/commandes.h"
#include "link/echange.h"
#include "link/memoires.h"
#include "platform/pompe.h"

#include "work2d/poste_decoupe.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <string>
#include <utility>

using namespace tessarel;
using namespace tessarel::essais;
using namespace tessarel::simulateur;
using namespace std::chrono_literals;

namespace {

// Steps that a path asks of each axis, both ways.
std::array<std::uint64_t, 4> PasDuChemin(const TrajetPas& trajet) {
    std::array<std::uint64_t, 4> pas = {};
    const auto ecart = [](std::int32_t a, std::int32_t b) {
        return static_cast<std::uint64_t>(std::abs(std::int64_t{a} - b));
    };
    for (std::size_t i = 2; i < trajet.bout1.size(); ++i) {
        pas[0] += ecart(trajet.bout1[i].X, trajet.bout1[i - 1].X);
        pas[1] += ecart(trajet.bout1[i].Y, trajet.bout1[i - 1].Y);
        pas[2] += ecart(trajet.bout2[i].X, trajet.bout2[i - 1].X);
        pas[3] += ecart(trajet.bout2[i].Y, trajet.bout2[i - 1].Y);
    }
    return pas;
}

TableMachine TableDe320PasParMm() {
    TableMachine table;
    table.PasParTour = {12800, 12800, 12800, 12800, 0};
    table.MmParTour = {40, 40, 40, 40};
    table.Frequence = 50000;
    return table;
}

// Stops anywhere in the path and resumes. False where the stop was not in the cut.
bool ReprendreApres(std::uint64_t n) {
    Poste poste;
    poste.stopA = n;
    ResultatDecoupe r = poste.Lancer();
    if (r.fin != FinDecoupe::Arretee) return false;
    const auto voulus = PasDuChemin(poste.preparee.liste.trajet);
    EXPECT_EQ(r.PositionStop.pas, poste.Position());
    r = poste.Reprendre(r);
    EXPECT_EQ(r.fin, FinDecoupe::Terminee);
    EXPECT_EQ(poste.Position(), PasAxes{});
    EXPECT_EQ(poste.boite.boite.Comptes().pas, voulus);
    poste.FilFroidOuDit();
    return true;
}

} // namespace

TEST(DecoupeInterface, VaAuBoutEtLeDit) {
    Poste poste;
    const ResultatDecoupe r = poste.Lancer();
    EXPECT_EQ(r.fin, FinDecoupe::Terminee);
    EXPECT_TRUE(r.chauffeCoupee);
    EXPECT_EQ(poste.Position(), PasAxes{});
    EXPECT_EQ(poste.boite.boite.Comptes().pas, PasDuChemin(poste.preparee.liste.trajet));
    ASSERT_EQ(poste.boites.boites.size(), 1U);
    EXPECT_EQ(poste.boites.boites[0].texte, "Découpe terminée, fil en position de repos, chauffe coupée.");
    EXPECT_EQ(poste.boites.boites[0].titre, "machine disponible");
    EXPECT_EQ(poste.phases, (std::vector{PhaseDecoupe::Chauffe, PhaseDecoupe::Decoupe, PhaseDecoupe::Repos}));
}

TEST(DecoupeInterface, LAvanceeDonneLaChauffePuisLaPlaceDuFil) {
    Poste poste;
    poste.Lancer();
    const auto& a = poste.avancees;
    ASSERT_GT(a.size(), 100U);
    EXPECT_EQ(a.front().phase, PhaseDecoupe::Chauffe);
    EXPECT_EQ(a.front().secondesRestantes, 1);
    EXPECT_EQ(a.front().secondesChauffe, 1);
    EXPECT_EQ(a.front().sommets, 8);
    const auto milieu = std::ranges::find_if(
        a, [](const AvanceeDecoupe& v) { return v.NumSalveCourante == 3 && v.fraction > 0.5; });
    ASSERT_NE(milieu, a.end()); // from (0, 3) to (2, 3)
    EXPECT_EQ(milieu->phase, PhaseDecoupe::Decoupe);
    EXPECT_EQ(milieu->XDebut, 0);
    EXPECT_EQ(milieu->YDebut, 3);
    EXPECT_NEAR(milieu->X1, 2 * milieu->fraction, 1.0 / 320);
    EXPECT_EQ(milieu->Y1, 3);
    EXPECT_EQ(milieu->X2, milieu->X1);
}

// Whatever ramps there are, what is told to be left is what it then takes.
TEST(DecoupeInterface, LeTempsRestantEstCeluiQuIlFaut) {
    Poste poste;
    struct Dit {
        Instant quand;
        AvanceeDecoupe avancee;
    };
    std::vector<Dit> dits;
    poste.suivi.Avancer = [&](const AvanceeDecoupe& a) { dits.push_back({poste.boite.Temps(), a}); };
    poste.Lancer();
    const Instant fin = dits.back().quand;
    ASSERT_GT(dits.back().avancee.secondesTrajet, 2);
    EXPECT_NEAR(dits.back().avancee.PartFaite(), 1, 0.02);
    for (const Dit& dit : dits) {
        if (dit.avancee.NumSalveCourante < 2) {
            EXPECT_EQ(dit.avancee.secondesReste, dit.avancee.secondesTrajet);
            continue;
        }
        const double reste = std::chrono::duration<double>(fin - dit.quand).count();
        EXPECT_NEAR(dit.avancee.secondesReste, reste, 0.15) << dit.avancee.NumSalveCourante;
        EXPECT_NEAR(dit.avancee.PartFaite(), 1 - dit.avancee.secondesReste / dit.avancee.secondesTrajet,
                    1e-9);
    }
    AvanceeDecoupe avancee;
    avancee.secondesReste = 311.2;
    EXPECT_EQ(TexteTempsRestant(avancee), "Temps restant : 5 min. 12 s.");
    avancee.secondesReste = 0;
    EXPECT_EQ(TexteTempsRestant(avancee), "Temps restant : 0 s.");
}

TEST(DecoupeInterface, StopPendantLaChauffe) {
    for (const std::uint64_t n : {2U, 5U, 30U}) { // filling, filling, heating
        Poste poste;
        poste.stopA = n;
        const ResultatDecoupe r = poste.Lancer();
        EXPECT_EQ(r.fin, FinDecoupe::StopAvantDecoupe);
        ASSERT_EQ(poste.boites.boites.size(), 1U);
        EXPECT_EQ(poste.boites.boites[0].titre, "Arrêt pendant la chauffe");
        EXPECT_EQ(poste.boites.boites[0].texte,
                  "Le bouton Stop a été appuyé avant le début du mouvement.\r\nLa chauffe est coupée.");
        EXPECT_EQ(poste.Position(), PasAxes{});
        EXPECT_EQ(poste.phases.back(), PhaseDecoupe::Repos);
        poste.FilFroidOuDit();
    }
}

TEST(DecoupeInterface, UnStopPendantLaChauffeVideLaFileAvantDeCouper) {
    Poste poste;
    poste.stopA = 30;
    std::string envois; // after the stop was asked: letter and first argument
    const auto compter = poste.boite.AvantEchange;
    poste.boite.AvantEchange = [&](const Tampon& t) {
        compter(t);
        if (poste.stopA == 0) envois += static_cast<char>(t[1]) + std::to_string(t[2]) + ' ';
    };
    const ResultatDecoupe r = poste.Lancer();
    EXPECT_EQ(r.fin, FinDecoupe::StopAvantDecoupe);
    EXPECT_EQ(r.NumSalveCourante, 1);
    EXPECT_EQ(envois, "S0 I0 B0 P0 ");
}

// Hands press twice in a fright: that gives up neither the stop nor the heat-off over one reply that is lost.
TEST(DecoupeInterface, UnSecondStopNAbregePasLaCoupure) {
    for (const char perdue : {'S', 'I', 'P'}) {
        Poste poste;
        poste.stopA = 220;
        bool appuye = false;
        int pertes = 0; // exchanges of that command
        const auto compter = poste.boite.AvantEchange;
        poste.boite.AvantEchange = [&](const Tampon& t) {
            compter(t);
            if (t[1] == 'S' && !std::exchange(appuye, true))
                poste.boite.boite.Programmer({.panne = Panne::ReponsePerdue,
                                              .commande = static_cast<std::uint8_t>(perdue),
                                              .fois = 2});
            if (appuye && t[1] == perdue) ++pertes;
        };
        poste.SurPompe = [&] {
            if (appuye) poste.demandes.StopDemande = true;
        };
        const ResultatDecoupe r = poste.Lancer();
        EXPECT_EQ(r.fin, FinDecoupe::Arretee) << perdue;
        EXPECT_TRUE(r.chauffeCoupee) << perdue;
        EXPECT_EQ(r.PositionStop.pas, poste.Position()) << perdue;
        EXPECT_GE(pertes, perdue == 'S' ? 1 : 3) << perdue; // the status tells of the stop as well
        EXPECT_TRUE(poste.boites.boites.empty()) << perdue;
    }
}

TEST(DecoupeInterface, UnStopDansLaDecoupeNeVidePasLaFile) {
    Poste poste;
    poste.stopA = 220;
    bool videe = false;
    const auto compter = poste.boite.AvantEchange;
    poste.boite.AvantEchange = [&](const Tampon& t) {
        compter(t);
        videe = videe || (poste.stopA == 0 && t[1] == CommandeFile);
    };
    EXPECT_EQ(poste.Lancer().fin, FinDecoupe::Arretee);
    EXPECT_FALSE(videe);
}

TEST(DecoupeInterface, StopEnDecoupeAttendLOperateur) {
    Poste poste;
    poste.stopA = 220;
    const ResultatDecoupe r = poste.Lancer();
    EXPECT_EQ(r.fin, FinDecoupe::Arretee);
    EXPECT_GE(r.NumSalveCourante, 3);
    EXPECT_EQ(r.PositionStop.lecture, LecturePosition::Faite);
    EXPECT_EQ(r.PositionStop.pas, poste.Position());
    EXPECT_TRUE(poste.boites.boites.empty()); // the panel speaks, not a box
    EXPECT_EQ(poste.phases.back(), PhaseDecoupe::Arretee);
    poste.FilFroidOuDit();
    AnnulerReprise(poste.suivi);
    EXPECT_EQ(poste.DernierTitre(), "Arrêt dans la zone utile");
    EXPECT_EQ(poste.boites.boites.back().texte, "Attention, le fil n'est pas à sa position de repos.");
    EXPECT_EQ(poste.phases.back(), PhaseDecoupe::Repos);
}

TEST(DecoupeInterface, BoutonDeLaMachineEtInterrupteurs) {
    struct Cas {
        Panne panne;
        std::uint32_t salve;
        FinDecoupe fin;
        const char* titre;
    };
    for (const Cas& cas :
         {Cas{Panne::BoutonStop, 4, FinDecoupe::Arretee, "Arrêt en cours de découpe!"},
          Cas{Panne::BoutonStop, 1, FinDecoupe::StopAvantDecoupe, "Arrêt d'urgence"},
          Cas{Panne::OrigineOuverte, 4, FinDecoupe::SortieDesCourses, "Sortie des courses"},
          Cas{Panne::FinCourseOuverte, 4, FinDecoupe::SortieDesCourses, "Sortie des courses"},
          Cas{Panne::CoupureCourant, 4, FinDecoupe::Inexpliquee, "Arrêt inexpliqué"}}) {
        Poste poste;
        TableMachine table = TableINI;
        table.SwitchsActifs = true;
        poste.boite.PreparerMachine(table);
        poste.boite.boite.Programmer(
            {.panne = cas.panne, .salve = cas.salve, .tick = 300, .retablieApresEchanges = 4});
        const ResultatDecoupe r = poste.Lancer();
        EXPECT_EQ(r.fin, cas.fin) << cas.titre;
        EXPECT_EQ(poste.DernierTitre(), cas.titre);
        EXPECT_TRUE(r.chauffeCoupee);
        poste.FilFroidOuDit();
    }
}

TEST(DecoupeInterface, InterrupteurOuvertRefuseLaDecoupe) {
    Poste poste;
    TableMachine table = TableINI;
    table.SwitchsActifs = true;
    poste.boite.PreparerMachine(table);
    poste.boite.boite.FixerCommutateurs({.origineForcee = true});
    const ResultatDecoupe r = poste.Lancer();
    EXPECT_EQ(r.fin, FinDecoupe::Refusee);
    EXPECT_EQ(poste.DernierTitre(), "Impossible de faire la découpe.");
    EXPECT_EQ(poste.boite.boite.Comptes().salvesAcceptees, 0U);
}

TEST(DecoupeInterface, ChauffeChangeeEnRoute) {
    Poste poste;
    poste.SurPompe = [&poste, fait = false]() mutable {
        if (fait || poste.avancees.empty() || poste.avancees.back().NumSalveCourante < 3) return;
        fait = poste.demandes.ChauffeModifiee = true;
        poste.demandes.ChauffeVoulue = 51 / 2.0F; // the slider counts half percents
    };
    EXPECT_EQ(poste.Lancer().fin, FinDecoupe::Terminee);
    EXPECT_TRUE(std::ranges::any_of(poste.boite.boite.HistoireChauffe(),
                                    [](const NoteChauffe& n) { return n.pwm == 65; })); // 65.025
}

TEST(DecoupeInterface, UneListeImpossibleNePartPas) {
    Poste poste;
    TableMachine table = TableINI;
    table.MmParTour[AxeX1] = 0;
    poste.preparee = PreparerDecoupeTS2D(poste.decoupe, Options(), table, "Mousse");
    EXPECT_FALSE(poste.preparee.possible);
    EXPECT_EQ(poste.DernierTitre(), "Annulation");
    EXPECT_EQ(poste.boites.boites[0].texte, "Un problème est survenu lors du calcul du temps de découpe.");
    const ResultatDecoupe r = LancerDecoupeTS2D(poste.preparee, table, false, poste.suivi);
    EXPECT_EQ(r.fin, FinDecoupe::Refusee);
    EXPECT_EQ(poste.echanges, 0U);
}

TEST(DecoupeInterface, SansMouvementsActifsRefuseEtLeDit) {
    Poste poste;
    MouvementsActifs = false;
    EXPECT_EQ(poste.Lancer().fin, FinDecoupe::Refusee);
    EXPECT_EQ(poste.DernierTitre(), "Mouvements désactivés");
    EXPECT_EQ(poste.interdites, 0);
}

TEST(Reprise, GardeLaSuiteDuChemin) {
    const Decoupe2D d = PetiteDecoupe();
    TableMachine table = TableDe320PasParMm();
    // Frame 5 goes from vertex 4 to vertex 5, counted from 1.
    const Sequence s = SequenceDeReprise(d.SequenceDecoupe, 5, {640, 448, 640, 448}, 4, table);
    ASSERT_EQ(s.Points.size(), 5U); // 8 less 5 - 2
    EXPECT_EQ(s.Points[0].X, 2);
    EXPECT_DOUBLE_EQ(s.Points[0].Y, 1.4);
    EXPECT_FALSE(s.Points[0].Rapide);
    EXPECT_EQ(s.Points[1], d.SequenceDecoupe.Points[4]);
    // On the first segment the path keeps its length, and the first vertex is no longer rapid.
    const Sequence premier = SequenceDeReprise(d.SequenceDecoupe, 2, {0, 320, 0, 320}, 4, table);
    ASSERT_EQ(premier.Points.size(), 8U);
    EXPECT_EQ(premier.Points[0].Y, 1);
    EXPECT_FALSE(premier.Points[0].Rapide);
}

// Stopped on the second of two rapid segments, the wire stands still: the rest of it starts at the cutting
// speed, which no motor needs a ramp for, and the next rapid one has its own ramp.
TEST(Reprise, UnSegmentRapideRepartALaVitesseDeDecoupe) {
    TableMachine table = TableDe320PasParMm();
    table.VmaxSansAccXY = 5;
    table.VitesseRapide = 8;
    Sequence s;
    s.Points = {Sommet(0, 0, 4, true), Sommet(0, 20, 8, true), Sommet(20, 20, 8, true), Sommet(40, 20, 8),
                Sommet(40, 0, 4)};
    const PasAxes position = {3200, 6400, 3200, 6400}; // (10, 20)
    s = SequenceDeReprise(s, 3, position, 4, table);
    ASSERT_EQ(s.Points.size(), 4U);
    EXPECT_EQ(s.Points[0].Vitesse, 4);
    EXPECT_EQ(s.Points[1].Vitesse, 4);
    EXPECT_EQ(s.Points[2].Vitesse, 8);
    EXPECT_EQ(s.Points[3].Vitesse, 4);
    EXPECT_TRUE(s.Points[1].Rapide);
    const ListeDeDecoupe liste = PreparerSalves(s.Points, 1, 50, table, position);
    EXPECT_EQ(NBRtDeSalve(liste.salves[1]), 125000U); // 10 mm at 4 mm/s, 50 kHz
    EXPECT_FALSE(liste.salves[1].octets[0] & SalveRampe);
    EXPECT_TRUE(liste.salves[2].octets[0] & SalveRampe);
}

// 1 step a mm at one end, 320 at the other: the second end goes on from where it stands, not from where the
// first one's rounding would put it.
TEST(Reprise, DesBoutsDePasInegauxRestentChacunASaPlace) {
    Poste mesure;
    const auto inegaux = [](Poste& poste) {
        TableMachine table = TableINI;
        table.PasParTour[AxeX1] = table.PasParTour[AxeY1] = 200;
        poste.boite.PreparerMachine(table);
    };
    inegaux(mesure);
    ASSERT_EQ(mesure.Lancer().fin, FinDecoupe::Terminee);
    int reprises = 0;
    for (std::uint64_t n = 10; n < mesure.echanges; n += 7) {
        SCOPED_TRACE("stop apres l'echange " + std::to_string(n));
        Poste poste;
        inegaux(poste);
        poste.stopA = n;
        const ResultatDecoupe r = poste.Lancer();
        if (r.fin != FinDecoupe::Arretee) continue;
        ++reprises;
        ASSERT_EQ(r.PositionStop.pas, poste.Position());
        const auto faits = poste.boite.boite.Comptes().pas;
        ASSERT_EQ(poste.Reprendre(r).fin, FinDecoupe::Terminee);
        ASSERT_EQ(poste.Position(), PasAxes{});
        auto reste = PasDuChemin(poste.preparee.liste.trajet);
        for (std::size_t axe = 0; axe < reste.size(); ++axe) reste[axe] += faits[axe];
        ASSERT_EQ(poste.boite.boite.Comptes().pas, reste);
    }
    EXPECT_GT(reprises, 20);
}

TEST(Preparation, LaDureeEstLaSommeDesSalves) {
    TableMachine table = TableDe320PasParMm();
    table.TempoChauffe = 25;
    Decoupe2D retour;
    // From (30, 40) to its middle and on to the origin: 50 mm at 4 mm/s are 12.5 s, and half goes to even.
    // The heating is none of the motion, and nothing is timed from the origin.
    retour.SequenceDecoupe = SequenceDeRetour(5, {9600, 12800, 9600, 12800}, TrajetRetour::Direct, 4, table);
    const DecoupePreparee preparee = PreparerDecoupeTS2D(retour, Options(), table, "");
    EXPECT_TRUE(preparee.possible);
    EXPECT_FLOAT_EQ(preparee.liste.duree, 12.5F);
    EXPECT_EQ(preparee.resume.dureeSecondes, 12);
    // Many segments of less than half a second each count like one long one.
    Decoupe2D serree;
    for (int i = 0; i <= 400; ++i) serree.SequenceDecoupe.Points.push_back(Sommet(0.1 * i, 0, 4));
    EXPECT_EQ(PreparerDecoupeTS2D(serree, Options(), table, "").resume.dureeSecondes, 10); // 40 mm
}

TEST(Preparation, TropLentePourUnFilEstRefusee) {
    for (const auto& [vitesse, possible] : {std::pair{0.05F, true}, std::pair{0.04F, false}}) {
        Poste poste;
        for (PointProfil& p : poste.decoupe.SequenceDecoupe.Points) p.Vitesse = vitesse;
        EXPECT_EQ(poste.Preparer().possible, possible);
        EXPECT_EQ(poste.boites.boites.size(), possible ? 0U : 1U);
        EXPECT_EQ(poste.DernierTitre(), possible ? "" : "Annulation");
    }
}

// A list with nothing but the pause: its end is told by the box, and the number is still that of the pause.
TEST(DecoupeInterface, UnePauseSeuleFinitCommeUneDecoupe) {
    Poste poste;
    poste.decoupe.SequenceDecoupe.Points.resize(1);
    poste.preparee = poste.Preparer();
    EXPECT_FALSE(poste.preparee.possible); // no segment: the window never comes so far
    poste.preparee.possible = true;
    const ResultatDecoupe r = LancerDecoupeTS2D(poste.preparee, TableINI, false, poste.suivi);
    EXPECT_EQ(r.fin, FinDecoupe::Terminee);
    EXPECT_EQ(r.NumSalveCourante, 1);
    EXPECT_TRUE(r.chauffeCoupee);
    EXPECT_EQ(poste.DernierTitre(), "machine disponible");
    poste.FilFroidOuDit();
}

TEST(Reprise, RetourDirectOuParLeBord) {
    TableMachine table = TableDe320PasParMm();
    table.CourseY = 510;
    const PasAxes position = {3200, 6400, 3200, 6400}; // (10, 20)
    Sequence s = SequenceDeRetour(5, position, TrajetRetour::Direct, 4, table);
    ASSERT_EQ(s.Points.size(), 3U);
    EXPECT_EQ(s.Points[0].X, 10);
    EXPECT_EQ(s.Points[1].X, 5);
    EXPECT_EQ(s.Points[1].Y, 10);
    EXPECT_EQ(s.Points[2].X, 0);
    EXPECT_EQ(s.Points[2].Y, 0);
    EXPECT_EQ(s.Points[1].Vitesse, 4);
    s = SequenceDeRetour(3, position, TrajetRetour::ParLeBord, 4, table);
    EXPECT_EQ(s.Points[1].X, 0);
    EXPECT_EQ(s.Points[1].Y, 20);
    s = SequenceDeRetour(2, position, TrajetRetour::ParLeBord, 4, table);
    ASSERT_EQ(s.Points.size(), 2U);
    EXPECT_EQ(s.Points[1].Y, 0);
    table.OrigineEnHaut = true;
    s = SequenceDeRetour(5, position, TrajetRetour::Direct, 4, table);
    EXPECT_EQ(s.Points[2].Y, 510);
    EXPECT_EQ(s.Points[1].Y, 265);
}

TEST(Reprise, LeRetourRameneLeFilAuRepos) {
    for (const TrajetRetour trajet : {TrajetRetour::Direct, TrajetRetour::ParLeBord}) {
        Poste poste;
        poste.stopA = 220;
        const ResultatDecoupe r = poste.Lancer();
        ASSERT_EQ(r.fin, FinDecoupe::Arretee);
        poste.decoupe.SequenceDecoupe = SequenceDeRetour(r.NumSalveCourante, r.PositionStop.pas, trajet,
                                                         TableINI.VitesseDecoupeParDefaut, TableINI);
        EXPECT_EQ(poste.Lancer(false, GenreDecoupe::Retour).fin, FinDecoupe::Terminee);
        EXPECT_EQ(poste.Position(), PasAxes{});
        EXPECT_EQ(poste.boites.boites.back().texte, "Le fil est à la position de repos.");
        EXPECT_EQ(poste.DernierTitre(), "Retour effectué");
        EXPECT_TRUE(std::ranges::count(poste.phases, PhaseDecoupe::Retour) == 1);
        poste.FilFroidOuDit();
    }
}

TEST(Reprise, ApresUnStopAChaqueEchangeToutEstCoupeUneFois) {
    Poste mesure;
    mesure.Lancer();
    int reprises = 0;
    for (std::uint64_t n = 1; n < mesure.echanges; ++n) {
        SCOPED_TRACE("stop apres l'echange " + std::to_string(n));
        reprises += ReprendreApres(n) ? 1 : 0;
        if (::testing::Test::HasFailure()) return;
    }
    EXPECT_GT(reprises, 200);
}

TEST(DecoupeInterface, ChaquePanneAChaqueEchangeLaisseUnFilFroidOuLeDit) {
    Poste mesure;
    mesure.Lancer();
    for (const Panne panne :
         {Panne::CommandePerdue, Panne::ReponsePerdue, Panne::ReponseTardive, Panne::ReponseCorrompue,
          Panne::SalveRefusee, Panne::BoutonStop, Panne::OrigineOuverte, Panne::FinCourseOuverte,
          Panne::Debranchement, Panne::CoupureCourant, Panne::ChauffeManu}) {
        for (std::uint64_t n = 1; n < mesure.echanges; ++n) {
            SCOPED_TRACE("panne " + std::to_string(static_cast<int>(panne)) + " a l'echange " +
                         std::to_string(n));
            Poste poste;
            TableMachine table = TableINI;
            table.SwitchsActifs = true;
            poste.boite.PreparerMachine(table);
            poste.boite.boite.Programmer({.panne = panne, .echange = n, .retablieApresEchanges = 9});
            const ResultatDecoupe r = poste.Lancer();
            poste.FilFroidOuDit();
            EXPECT_FALSE(poste.boites.boites.empty() && r.fin != FinDecoupe::Arretee);
            if (r.fin == FinDecoupe::Terminee) {
                EXPECT_EQ(poste.Position(), PasAxes{});
                EXPECT_EQ(poste.boite.boite.Comptes().pas, PasDuChemin(poste.preparee.liste.trajet));
            } else if (r.PositionStop.lecture == LecturePosition::Faite && panne != Panne::CoupureCourant) {
                EXPECT_EQ(r.PositionStop.pas, poste.Position());
            }
            if (::testing::Test::HasFailure()) return;
        }
    }
}

TEST(DecoupeInterface, UneCoupureDeCourantPendantUnStopNeDonnePasDePosition) {
    Poste mesure;
    mesure.Lancer();
    int sansRaison = 0;
    for (std::uint64_t n = 1; n < mesure.echanges; ++n) {
        SCOPED_TRACE("coupure a l'echange " + std::to_string(n));
        Poste poste;
        poste.boite.boite.Programmer(
            {.panne = Panne::CoupureCourant, .echange = n, .retablieApresEchanges = 9});
        poste.stopA = n + 2; // while the box is silent
        const ResultatDecoupe r = poste.Lancer();
        poste.FilFroidOuDit();
        ASSERT_NE(r.fin, FinDecoupe::Arretee); // the motors held nothing meanwhile: nothing may be resumed
        if (r.fin != FinDecoupe::Inexpliquee) continue;
        ASSERT_EQ(poste.DernierTitre(), "Arrêt inexpliqué");
        ASSERT_FALSE(MouvementsActifs);
        ++sansRaison;
    }
    EXPECT_GT(sansRaison, 100);
}

TEST(DecoupeInterface, TrenteMilleSegmentsAuFacteurMille) {
    Poste poste(1ms, CapaciteFileUsuelle);
    poste.boite.boite.FixerFacteur(1000);
    poste.suivi.Avancer = {};
    Sequence& s = poste.decoupe.SequenceDecoupe;
    s.Points = {Sommet(0, 0, 4)};
    for (int i = 1; i <= 30000; ++i) s.Points.push_back(Sommet(0.01 * i, i % 2 == 0 ? 1 : 1.5, 4));
    const ResultatDecoupe r = poste.Lancer();
    EXPECT_EQ(r.fin, FinDecoupe::Terminee);
    EXPECT_EQ(poste.Position(), (PasAxes{96000, 320, 96000, 320}));
    EXPECT_EQ(poste.boite.boite.Comptes().salvesAcceptees, 30001U);
    EXPECT_EQ(poste.boite.boite.Comptes().salvesFinies, 30001U);
    EXPECT_EQ(poste.boite.boite.Comptes().pas, PasDuChemin(poste.preparee.liste.trajet));
}

TEST(DecoupeInterface, OrigineAutomatiqueAvantLaDecoupe) {
    Poste poste(20ms, 8, "QT2d v12");
    poste.boite.boite.PoserChariots({30 * 1600, 240 * 1600, 0, 240 * 1600});
    for (PointProfil& p : poste.decoupe.SequenceDecoupe.Points) p.Y = 256 - p.Y;
    const ResultatDecoupe r = poste.Lancer(true);
    EXPECT_EQ(r.fin, FinDecoupe::Terminee);
    EXPECT_EQ(poste.phases.front(), PhaseDecoupe::Origine);
    // One or two back-off steps of 0.1 mm inside the place where the switch closes, each way.
    const PasAxes p = poste.Position();
    EXPECT_GE(p[AxeX1], 160);
    EXPECT_LT(p[AxeX1], 320);
    EXPECT_GE(256 * 1600 - p[AxeY1], 160);
    EXPECT_LT(256 * 1600 - p[AxeY1], 320);

    Poste arrete(20ms, 8, "QT2d v12");
    arrete.boite.boite.PoserChariots({30 * 1600, 240 * 1600, 0, 240 * 1600});
    arrete.stopA = 40;
    EXPECT_EQ(arrete.Lancer(true).fin, FinDecoupe::Refusee);
    EXPECT_EQ(arrete.boites.boites.at(0).texte, "Le bouton STOP a été appuyé, opération annulée.");
    EXPECT_EQ(arrete.phases.back(), PhaseDecoupe::Repos);
    arrete.FilFroidOuDit();
}

TEST(AvantDecoupe, LiaisonEtInterrupteurs) {
    Poste poste;
    ChargerMachine("(Defaut)");
    poste.boite.PreparerMachine(TableINI);
    EXPECT_EQ(VerifierAvantDecoupe(), AvantDecoupe::Permise);
    EXPECT_TRUE(poste.boites.boites.empty());
    poste.boite.boite.Brancher(false);
    EXPECT_EQ(VerifierAvantDecoupe(), AvantDecoupe::SansInterface);
    EXPECT_EQ(poste.boites.boites.back().texte, "Pas d'interface détectée");
    EXPECT_EQ(poste.DernierTitre(), "Désactivation des mouvements");
    poste.boite.boite.Brancher(true);
    poste.boite.boite.EcrireMemoires({});
    poste.boites.reponses = {ReponseBoite::Oui};
    EXPECT_EQ(VerifierAvantDecoupe(), AvantDecoupe::OuvrirParametrage);
    EXPECT_EQ(
        poste.boites.boites.back().texte,
        "Pas de correspondance entre la table en mémoire et les tables de l'interface\r\n\r\nVoulez-vous "
        "ouvrir la fenêtre de paramétrage?");
    poste.boites.reponses = {ReponseBoite::Non};
    EXPECT_EQ(VerifierAvantDecoupe(), AvantDecoupe::SansCorrespondance);
    EXPECT_FALSE(MouvementsActifs);
}
