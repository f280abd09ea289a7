// Every command sequence of the run, broken at every exchange in turn: the wire ends cold and confirmed, or a
// box says that it may not be; nothing is lost, doubled or moved that should not be.
#include "link/commandes.h"
#include "link/echange.h"
#include "link/envoi_salves.h"
#include "link/recherche_origine.h"
#include "platform/pompe.h"

#include "outils/boites.h"
#include "outils_boite/boite_virtuelle.h"
#include "outils_boite/fil_froid.h"
#include "outils_boite/sommets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

using namespace tessarel;
using essais::Sommet;
using namespace tessarel::simulateur;
using namespace std::chrono_literals;

namespace {

// A box, a user who asks again for a stop when the box is gone for long, and a watch over the guard.
struct Scene {
    explicit Scene(const std::string& machine, Instant pas, std::size_t capacite)
        : poste(machine, capacite), anciennePompe(InstallerPompe([this] { Pomper(); })) {
        poste.PasParEchange = pas;
        suivi.demandes = &demandes;
        poste.AvantEchange = [this](const Tampon& t) {
            ++echanges;
            if (!MouvementsActifs && EstCommandeDeMouvement(t)) ++interdites;
        };
    }
    ~Scene() { InstallerPompe(anciennePompe); }
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    void Pomper() {
        if (stopA != 0 && echanges >= stopA && !stopFait) stopFait = demandes.StopDemande = true;
        if (!poste.boite.Branchee() && ++toursSansBoite % 25 == 0) demandes.StopDemande = true;
    }
    // The wire is off in the box's own record, or a critical box said that it may not be.
    void FilFroidOuDit() const {
        EXPECT_TRUE(essais::FilFroidOuDit(poste.boite, boites.boites));
        EXPECT_EQ(interdites, 0);
    }

    essais::BoitesEnregistrees boites;
    essais::BoiteVirtuelle poste;
    DemandesMarche demandes;
    SuiviMarche suivi;
    Pompe anciennePompe;
    std::uint64_t echanges = 0;
    std::uint64_t stopA = 0; // exchange after which the user stops; 0: never
    bool stopFait = false;
    int toursSansBoite = 0;
    int interdites = 0;
};

ListeDeDecoupe Liste() {
    std::vector<PointProfil> chemin = {Sommet(0, 0, 4, true), Sommet(0, 1, 8)};
    for (int i = 1; i <= 12; ++i) chemin.push_back(Sommet(0.2 * i, i % 2 == 0 ? 1 : 1.3, 4));
    return PreparerSalves(chemin, 1, 50, TableINI);
}

struct Coupe : Scene {
    Coupe() : Scene("(Defaut)", 10ms, 4), liste(Liste()) {}
    ResultatEnvoi Lancer() { return EnvoyerSalves(liste.salves, suivi); }
    // All axes on the last step of the path.
    void EstAuBout() const {
        EstEn({liste.trajet.bout1.back().X, liste.trajet.bout1.back().Y, liste.trajet.bout2.back().X,
               liste.trajet.bout2.back().Y});
    }
    void EstEn(const PasAxes& pas) const {
        for (std::size_t axe = 0; axe < pas.size(); ++axe)
            EXPECT_EQ(poste.boite.Position()[axe], pas[axe]) << axe;
    }
    ListeDeDecoupe liste;
};

std::uint64_t EchangesDUneCoupe() {
    Coupe coupe;
    coupe.Lancer();
    return coupe.echanges;
}

constexpr Panne PannesDEchange[] = {Panne::CommandePerdue,   Panne::ReponsePerdue, Panne::ReponseTardive,
                                    Panne::ReponseCorrompue, Panne::ReponseCourte, Panne::SalveRefusee};

} // namespace

TEST(PannesMarche, UnEchangePerduALaNiemePlaceNeChangeRienALaCoupe) {
    const std::uint64_t total = EchangesDUneCoupe();
    ASSERT_GT(total, 150U);
    for (const Panne panne : PannesDEchange) {
        for (std::uint64_t n = 1; n <= total; ++n) {
            SCOPED_TRACE("panne " + std::to_string(static_cast<int>(panne)) + " a l'echange " +
                         std::to_string(n));
            Coupe coupe;
            coupe.poste.boite.Programmer({.panne = panne, .echange = n});
            const ResultatEnvoi envoi = coupe.Lancer();
            EXPECT_EQ(envoi.marche.fin, FinMarche::Finie);
            EXPECT_TRUE(envoi.marche.statut.FinDeListe);
            EXPECT_TRUE(envoi.chauffeCoupee);
            EXPECT_EQ(coupe.poste.boite.Etat().pwmCommande, 0);
            EXPECT_EQ(coupe.poste.boite.Comptes().salvesFinies, coupe.liste.salves.size() - 1);
            coupe.EstAuBout();
            coupe.FilFroidOuDit();
            EXPECT_TRUE(coupe.boites.boites.empty());
            if (::testing::Test::HasFailure()) return;
        }
    }
}

TEST(PannesMarche, QuatrePertesDeSuiteNonPlus) {
    const std::uint64_t total = EchangesDUneCoupe();
    for (const Panne panne : PannesDEchange) {
        for (std::uint64_t n = 1; n <= total; n += 3) {
            SCOPED_TRACE("panne " + std::to_string(static_cast<int>(panne)) + " a l'echange " +
                         std::to_string(n));
            Coupe coupe;
            coupe.poste.boite.Programmer({.panne = panne, .echange = n, .fois = 4});
            EXPECT_EQ(coupe.Lancer().marche.fin, FinMarche::Finie);
            EXPECT_EQ(coupe.poste.boite.Comptes().salvesFinies, coupe.liste.salves.size() - 1);
            coupe.EstAuBout();
            coupe.FilFroidOuDit();
            if (::testing::Test::HasFailure()) return;
        }
    }
}

TEST(PannesMarche, UnStopAChaqueEchangeEstSuiviAuSuivant) {
    const std::uint64_t total = EchangesDUneCoupe();
    for (std::uint64_t n = 1; n < total; ++n) {
        SCOPED_TRACE("stop apres l'echange " + std::to_string(n));
        Coupe coupe;
        coupe.stopA = n;
        std::vector<std::uint8_t> apres;
        const auto avant = coupe.poste.AvantEchange;
        coupe.poste.AvantEchange = [&](const Tampon& t) {
            avant(t);
            if (coupe.stopFait) apres.push_back(t[1]);
        };
        const ResultatEnvoi envoi = coupe.Lancer();
        coupe.FilFroidOuDit();
        if (envoi.marche.fin == FinMarche::StopAvantMouvement) {
            EXPECT_EQ(apres.at(0), CommandeFile);
            EXPECT_EQ(coupe.poste.boite.Position(), PositionPas{});
        } else if (envoi.marche.fin == FinMarche::Arretee) {
            EXPECT_EQ(apres.at(0), CommandeArret);
            const PositionDuFil p =
                PositionAuStop(coupe.liste.trajet, coupe.liste.salves, envoi.marche.NumeroSalve,
                               envoi.marche.statut.TicksRestants);
            ASSERT_EQ(p.lecture, LecturePosition::Faite);
            coupe.EstEn(p.pas);
        } else {
            EXPECT_EQ(envoi.marche.fin, FinMarche::Finie);
        }
        if (::testing::Test::HasFailure()) return;
    }
}

TEST(PannesMarche, UnArretDontLesEchangesSePerdentAboutitQuandMeme) {
    for (const Panne panne : PannesDEchange) {
        for (std::uint64_t k = 1; k <= 4; ++k) { // S, I, P and what they need again
            SCOPED_TRACE("panne " + std::to_string(static_cast<int>(panne)) + ", " + std::to_string(k));
            Coupe coupe;
            coupe.stopA = 150;
            coupe.poste.boite.Programmer({.panne = panne, .echange = 150 + k, .fois = 3});
            const ResultatEnvoi envoi = coupe.Lancer();
            EXPECT_EQ(envoi.marche.fin, FinMarche::Arretee);
            EXPECT_TRUE(envoi.chauffeCoupee);
            EXPECT_EQ(coupe.poste.boite.Etat().pwmCommande, 0);
            const PositionDuFil p =
                PositionAuStop(coupe.liste.trajet, coupe.liste.salves, envoi.marche.NumeroSalve,
                               envoi.marche.statut.TicksRestants);
            coupe.EstEn(p.pas);
        }
    }
}

TEST(PannesMarche, DebrancheAChaqueEchangeEstDitOuRetabli) {
    const std::uint64_t total = EchangesDUneCoupe();
    for (const std::uint64_t retour : {0U, 2U, 9U}) {
        for (std::uint64_t n = 1; n <= total; n += 2) {
            SCOPED_TRACE("debranche a l'echange " + std::to_string(n) + ", rebranche apres " +
                         std::to_string(retour));
            Coupe coupe;
            coupe.poste.boite.Programmer(
                {.panne = Panne::Debranchement, .echange = n, .retablieApresEchanges = retour});
            const ResultatEnvoi envoi = coupe.Lancer();
            if (retour == 0) {
                EXPECT_FALSE(coupe.boites.boites.empty());
                if (ChauffePeutEtreActive()) {
                    EXPECT_EQ(coupe.boites.boites.back().icone, IconeBoite::Critique);
                }
            } else {
                EXPECT_EQ(envoi.marche.fin, FinMarche::Finie);
                coupe.EstAuBout();
                coupe.FilFroidOuDit();
            }
            EXPECT_EQ(coupe.interdites, 0);
            if (::testing::Test::HasFailure()) return;
        }
    }
}

TEST(PannesMarche, CeQuiArriveALaMachineAChaqueSalveLaisseUnFilFroid) {
    const std::size_t salves = Coupe().liste.salves.size();
    for (const Panne panne : {Panne::BoutonStop, Panne::OrigineOuverte, Panne::FinCourseOuverte,
                              Panne::CoupureCourant, Panne::ChauffeManu, Panne::ChauffeEteinte}) {
        for (std::uint32_t salve = 1; salve < salves; ++salve) {
            SCOPED_TRACE("panne " + std::to_string(static_cast<int>(panne)) + " a la salve " +
                         std::to_string(salve));
            Coupe coupe;
            TableMachine table = TableINI;
            table.SwitchsActifs = true;
            coupe.poste.PreparerMachine(table);
            coupe.poste.boite.Programmer(
                {.panne = panne, .salve = salve, .tick = 7, .retablieApresEchanges = 3});
            const ResultatEnvoi envoi = coupe.Lancer();
            EXPECT_EQ(coupe.poste.boite.Etat().file, EtatFile::Repos);
            EXPECT_EQ(coupe.poste.boite.Etat().pwmCommande, 0);
            EXPECT_TRUE(envoi.chauffeCoupee);
            if (panne == Panne::ChauffeManu || panne == Panne::ChauffeEteinte) coupe.EstAuBout();
            if (panne == Panne::CoupureCourant) {
                EXPECT_EQ(envoi.marche.fin, FinMarche::SansRaison);
            }
            if (panne == Panne::BoutonStop || panne == Panne::OrigineOuverte ||
                panne == Panne::FinCourseOuverte) {
                const PositionDuFil p =
                    PositionAuStop(coupe.liste.trajet, coupe.liste.salves, envoi.marche.NumeroSalve,
                                   envoi.marche.statut.TicksRestants);
                coupe.EstEn(p.pas);
            }
            if (::testing::Test::HasFailure()) return;
        }
    }
}

TEST(PannesMarche, UneChauffeChangeeALaNiemePlaceResisteAuxPertes) {
    for (const Panne panne : PannesDEchange) {
        for (std::uint64_t n = 150; n < 156; ++n) {
            Coupe coupe;
            coupe.poste.boite.Programmer({.panne = panne, .echange = n, .fois = 2});
            const Pompe surveillance = InstallerPompe({});
            InstallerPompe([&coupe, fait = false]() mutable {
                if (coupe.echanges < 149 || fait) return;
                fait = coupe.demandes.ChauffeModifiee = true;
                coupe.demandes.ChauffeVoulue = 30;
            });
            coupe.Lancer();
            EXPECT_TRUE(std::ranges::any_of(coupe.poste.boite.HistoireChauffe(),
                                            [](const NoteChauffe& h) { return h.pwm == 76; }));
            coupe.EstAuBout();
            coupe.FilFroidOuDit();
        }
    }
}

TEST(PannesMarche, UnMouvementSimpleResisteAChaquePerte) {
    const auto bouger = [](Scene& scene) {
        return MouvementSimple(TableINI, {320, -160, 32, 0}, 8, scene.suivi);
    };
    Scene sansPanne("(Defaut)", 10ms, 8);
    bouger(sansPanne);
    for (const Panne panne : PannesDEchange) {
        for (std::uint64_t n = 1; n <= sansPanne.echanges; ++n) {
            SCOPED_TRACE("panne " + std::to_string(static_cast<int>(panne)) + " a l'echange " +
                         std::to_string(n));
            Scene scene("(Defaut)", 10ms, 8);
            scene.poste.boite.Programmer({.panne = panne, .echange = n});
            const ResultatMouvement m = bouger(scene);
            EXPECT_EQ(m.cause, CauseFin::FinDeListe);
            EXPECT_EQ(scene.poste.boite.Position(), (PositionPas{320, -160, 32, 0}));
            scene.FilFroidOuDit();
        }
    }
}

TEST(PannesMarche, UneRechercheDOrigineNeSEgarePas) {
    const auto chercher = [](Scene& scene) {
        scene.poste.boite.PoserChariots({1600 * 3, 1600 * 254, 0, 1600 * 254});
        return RechercheOrigine(TableINI, AxesOrigine::XetY, scene.suivi);
    };
    Scene sansPanne("QT2d v12", 50ms, 8);
    ASSERT_EQ(chercher(sansPanne), FinOrigine::Trouvee);
    const std::uint64_t total = sansPanne.echanges;
    for (const Panne panne : PannesDEchange) {
        for (std::uint64_t n = 1; n <= total; ++n) {
            SCOPED_TRACE("panne " + std::to_string(static_cast<int>(panne)) + " a l'echange " +
                         std::to_string(n));
            Scene scene("QT2d v12", 50ms, 8);
            scene.poste.boite.Programmer({.panne = panne, .echange = n});
            const FinOrigine fin = chercher(scene);
            // A lost look at the switches may cost a try; the user has heard of it then.
            EXPECT_TRUE(fin == FinOrigine::Trouvee || !scene.boites.boites.empty());
            EXPECT_EQ(scene.poste.boite.Etat().file, EtatFile::Repos);
            scene.FilFroidOuDit();
            if (::testing::Test::HasFailure()) return;
        }
    }
    for (std::uint64_t n = 1; n < total; ++n) {
        SCOPED_TRACE("stop apres l'echange " + std::to_string(n));
        Scene scene("QT2d v12", 50ms, 8);
        scene.stopA = n;
        const FinOrigine fin = chercher(scene);
        EXPECT_TRUE(fin == FinOrigine::Annulee || (fin == FinOrigine::Trouvee && n + 4 > total)) << n;
        EXPECT_EQ(scene.poste.boite.Etat().file, EtatFile::Repos);
        if (::testing::Test::HasFailure()) return;
    }
}

TEST(PannesMarche, UneCommandeDeChauffeOuDeMoteursDebrancheeEstDite) {
    for (std::uint64_t n = 1; n <= 2; ++n) {
        Scene scene("(Defaut)", 10ms, 8);
        scene.poste.boite.Programmer({.panne = Panne::Debranchement, .echange = n});
        EnvoyerChauffe(100, {[&] { return scene.demandes.StopDemande; }, {}});
        scene.demandes.StopDemande = false;
        EXPECT_EQ(RefroidirFil(scene.suivi), false);
        ASSERT_FALSE(scene.boites.boites.empty());
        EXPECT_EQ(scene.boites.boites.back().icone, IconeBoite::Critique);
        DesactiverDelaiMoteurs(true, TableINI);
        EXPECT_EQ(scene.boites.boites.back().titre, "Problème de communication avec l'interpolateur.");
    }
}
