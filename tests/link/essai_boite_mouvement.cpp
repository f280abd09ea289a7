// Motion of the virtual box: every step counted, whatever the list, the clock's slices and the speed factor.
#include "link/salves.h"
#include "link/simulateur/boite.h"
#include "link/table_rampe.h"
#include "outils_boite/boite_virtuelle.h"
#include "outils_boite/trames.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <random>
#include <span>
#include <vector>

using namespace tessarel;
using namespace tessarel::simulateur;
using namespace tessarel::essais;
using namespace std::chrono_literals;

namespace {

SalveBoite EnSalve(const TrameEssai& trame) {
    const Tampon t = EnTampon(trame);
    return LireSalve(std::span<const std::uint8_t, TailleSalve>(t.data() + 2, TailleSalve));
}

std::uint64_t Duree(const TrameEssai& trame, int frequence, int pente) {
    DeroulementSalve d;
    d.Preparer(EnSalve(trame), frequence, pente);
    return d.Duree();
}

// Tick by tick, as the machine lives it.
std::vector<std::uint64_t> InstantsDesTicks(const TrameEssai& trame, int frequence, int pente) {
    const std::uint64_t niveauDure = std::uint64_t{1} << (pente + 8);
    std::vector<std::uint64_t> instants;
    std::uint64_t t = 0;
    std::uint64_t depuis = 0;
    unsigned niveau = trame.niveauDepart;
    const std::int64_t deceleration = std::max<std::int64_t>(trame.deceleration, 0);
    for (std::int64_t i = 0; i < trame.ticks; ++i) {
        if (i == deceleration) {
            if (niveau > trame.niveauFin) niveau = std::min(niveau, 254U);
            depuis = t;
        }
        const bool ralentit = i >= deceleration;
        while (t - depuis >= niveauDure && (ralentit ? niveau > trame.niveauFin : niveau < 255)) {
            ralentit ? --niveau : ++niveau;
            depuis += niveauDure;
        }
        t += static_cast<std::uint64_t>(TableRampe(static_cast<int>(niveau), frequence));
        instants.push_back(t);
    }
    return instants;
}

TrameEssai TrameAuHasard(std::mt19937& hasard) {
    const auto tirer = [&](unsigned a, unsigned b) {
        return std::uniform_int_distribution<unsigned>(a, b)(hasard);
    };
    TrameEssai t;
    t.ticks = tirer(1, 3000);
    for (std::uint32_t& pas : t.pas) pas = tirer(0, 3) == 0 ? 0 : tirer(0, t.ticks);
    t.drapeaux = tirer(0, 15);
    if (tirer(0, 3) == 0) {
        t.drapeaux |= 32;
        t.niveauDepart = tirer(0, 255);
        t.niveauFin = tirer(0, 255);
        t.deceleration = std::int64_t{tirer(0, t.ticks + 100)} - 100;
    }
    return t;
}

struct Poste : BoiteVirtuelle {
    explicit Poste(std::size_t capacite = 128) : BoiteVirtuelle("(Defaut)", capacite) { PasParEchange = 0ms; }
    std::uint8_t Envoyer(const TrameEssai& trame) {
        Tampon t = EnTampon(trame);
        EXPECT_EQ(Zelko_Send(t), 1);
        return t[2];
    }
    void Envoyer(int a, int b) {
        Tampon t = {};
        t[1] = static_cast<std::uint8_t>(a);
        t[2] = static_cast<std::uint8_t>(b);
        EXPECT_EQ(Zelko_Send(t), 1);
    }
    // Streams a whole list as a program does, `pas` of time between exchanges.
    void Derouler(const std::vector<TrameEssai>& liste, Instant pas) {
        Envoyer('B', 0);
        Envoyer('B', 1);
        std::size_t i = 0;
        while (i < liste.size() && Envoyer(liste[i]) == 1) ++i;
        Envoyer('B', 128);
        while (i < liste.size()) {
            Attendre(pas);
            if (Envoyer(liste[i]) == 1) ++i;
        }
        while (Envoyer(TrameEssai{.drapeaux = 128}) != 1) Attendre(pas);
        for (int tours = 0; boite.Etat().file == EtatFile::EnMarche && tours < 1000000; ++tours) {
            Attendre(pas);
            boite.Actualiser();
        }
    }
};

PositionPas Somme(const std::vector<TrameEssai>& liste, std::size_t nombre) {
    PositionPas p = {};
    for (std::size_t i = 0; i < nombre; ++i)
        for (std::size_t a = 0; a < 4; ++a)
            p[a] += (liste[i].drapeaux >> a & 1U) != 0 ? std::int64_t{liste[i].pas[a]}
                                                       : -std::int64_t{liste[i].pas[a]};
    return p;
}

} // namespace

TEST(BoiteMouvement, UneTrameSeLitAuxPlacesDites) {
    const SalveBoite s = EnSalve({.drapeaux = 0x25,
                                  .ticks = 0x04030201,
                                  .pas = {0x11, 0x1234, 0x7FFFFFFF, 0},
                                  .niveauDepart = 200,
                                  .niveauFin = 17,
                                  .deceleration = -2});
    EXPECT_EQ(s.ticks, 0x04030201U);
    EXPECT_EQ(s.doublePas, (std::array<std::uint32_t, 4>{0x22, 0x2468, 0xFFFFFFFE, 0}));
    EXPECT_EQ(s.Pas(2), 0x7FFFFFFFU);
    EXPECT_EQ(s.Sens(0), 1);
    EXPECT_EQ(s.Sens(1), -1);
    EXPECT_EQ(s.Sens(2), 1);
    EXPECT_EQ(s.Sens(3), -1);
    EXPECT_EQ(s.niveauDepart, 200);
    EXPECT_EQ(s.niveauFin, 17);
    EXPECT_EQ(s.tickDeceleration, 0xFFFFFFFEU);
    EXPECT_FALSE(s.EstPause());
    EXPECT_TRUE(EnSalve({.drapeaux = 64}).EstPause());
    EXPECT_TRUE(EnSalve({.drapeaux = 128}).EstFinDeListe());
}

TEST(BoiteMouvement, LesPasSontRepartisEtLeDernierTombeALaFin) {
    // 3 steps in 8 ticks: due at 8/6, 24/6 and 40/6 ticks, so after ticks 2, 4 and 7.
    const std::vector<std::uint32_t> faits = {0, 0, 1, 1, 2, 2, 2, 3, 3};
    for (std::uint32_t i = 0; i <= 8; ++i) EXPECT_EQ(PasFaits(6, i, 8), faits[i]) << i;
    EXPECT_EQ(TickDuPas(6, 1, 8), 2U);
    EXPECT_EQ(TickDuPas(6, 2, 8), 4U);
    EXPECT_EQ(TickDuPas(6, 3, 8), 7U);
    const std::uint32_t grand = 0xFFFFFFFE;
    EXPECT_EQ(PasFaits(grand, 0xFFFFFFFF, 0xFFFFFFFF), 0x7FFFFFFFU);
    EXPECT_EQ(TickDuPas(grand, 0x7FFFFFFF, 0xFFFFFFFF), 0xFFFFFFFEU);
}

TEST(BoiteMouvement, LeTickDUnPasEstLePremierOuIlEstFait) {
    std::mt19937 hasard(20261);
    for (int i = 0; i < 3000; ++i) {
        const std::uint32_t ticks = 1 + hasard() % 5000;
        const std::uint32_t pas = 1 + hasard() % 6000;
        const std::uint32_t c = 1 + hasard() % pas;
        const std::uint32_t tick = TickDuPas(2 * pas, c, ticks);
        ASSERT_GE(PasFaits(2 * pas, tick, ticks), c);
        if (tick > 0) {
            ASSERT_LT(PasFaits(2 * pas, tick - 1, ticks), c);
        }
        ASSERT_LE(tick, ticks);
    }
}

TEST(BoiteMouvement, SansRampeUnTickDureUneFrequence) {
    EXPECT_EQ(Duree({.drapeaux = 15, .ticks = 100}, 1, 6), 60000U);
    EXPECT_EQ(Duree({.drapeaux = 15, .ticks = 100}, 5, 6), 12000U);
    // Levels without the flag mean nothing; the heat of a pause is no level.
    EXPECT_EQ(Duree({.drapeaux = 15, .ticks = 100, .niveauDepart = 3}, 5, 6), 12000U);
    EXPECT_EQ(Duree({.drapeaux = 64 | 32, .ticks = 100, .niveauDepart = 3}, 5, 6), 12000U);
}

TEST(BoiteMouvement, LaRampeMonteDUnNiveauParDuree) {
    // Slope 2: a level lasts 1024 clocks. At 10 kHz level 254 has a period of 602: its ticks begin at 0 and
    // 602, the next would at 1204; then full rate, 600.
    EXPECT_EQ(TableRampe(254, 1), 602);
    EXPECT_EQ(
        Duree({.drapeaux = 32, .ticks = 10, .niveauDepart = 254, .niveauFin = 255, .deceleration = 10}, 1, 2),
        2 * 602U + 8 * 600U);
    // Down again on the last three ticks: level 254 for two of them, level 253 (605) for the third.
    EXPECT_EQ(TableRampe(253, 1), 605);
    EXPECT_EQ(
        Duree({.drapeaux = 32, .ticks = 10, .niveauDepart = 254, .niveauFin = 100, .deceleration = 7}, 1, 2),
        2 * 602U + 5 * 600U + 2 * 602U + 605U);
    // Arrived at its end level the frame stays there.
    EXPECT_EQ(
        Duree({.drapeaux = 32, .ticks = 10, .niveauDepart = 255, .niveauFin = 254, .deceleration = 5}, 1, 2),
        5 * 600U + 5 * 602U);
    // Deceleration below 0: from the first tick.
    EXPECT_EQ(
        Duree({.drapeaux = 32, .ticks = 4, .niveauDepart = 255, .niveauFin = 254, .deceleration = -5}, 1, 2),
        4 * 602U);
}

TEST(BoiteMouvement, LesPhasesValentLesTicksUnParUn) {
    std::mt19937 hasard(7);
    for (int i = 0; i < 2000; ++i) {
        TrameEssai t = TrameAuHasard(hasard);
        t.drapeaux |= 32;
        t.niveauDepart = hasard() % 256;
        t.niveauFin = hasard() % 256;
        const int frequence = 1 + static_cast<int>(hasard() % 5);
        const int pente = static_cast<int>(hasard() % 16);
        const auto instants = InstantsDesTicks(t, frequence, pente);
        DeroulementSalve d;
        d.Preparer(EnSalve(t), frequence, pente);
        ASSERT_EQ(d.Duree(), instants.back()) << i;
        std::uint64_t passe = 0;
        while (d.Ticks() < t.ticks) {
            const std::uint64_t tranche = hasard() % 20000;
            const std::uint64_t pris = d.Avancer(tranche, t.ticks);
            passe += pris;
            const auto attendus =
                std::upper_bound(instants.begin(), instants.end(), passe) - instants.begin();
            ASSERT_EQ(d.Ticks(), attendus) << i << " at " << passe;
            if (pris < tranche) {
                ASSERT_EQ(passe, instants.back());
            }
        }
    }
}

// What the builder estimates and what the box takes: they count levels and the last tick of a level each in
// its own way, so that they agree to a few levels, and in a frame without a ramp to a tick.
TEST(BoiteMouvement, UneTrameDureCeQueSonConstructeurEstime) {
    std::mt19937 hasard(11);
    const auto tirer = [&](double a, double b) {
        return std::uniform_real_distribution<double>(a, b)(hasard);
    };
    int rampes = 0;
    for (int i = 0; i < 4000; ++i) {
        TableMachine t;
        LireMachine("(Defaut)", t);
        t.Frequence = 10000 * (1 + static_cast<int>(hasard() % 5));
        t.PenteAcceleration = static_cast<std::uint8_t>(hasard() % 10);
        const double v0 = tirer(1, 8);
        const double v1 = i % 3 == 0 ? v0 : v0 * tirer(1, 4);
        const auto pas = static_cast<std::int32_t>(tirer(1, 30000));
        const Salve s = ConstruireSalve(ParametresDeSalve(t), static_cast<float>(v0), static_cast<float>(v1),
                                        static_cast<float>(v0), {pas, -pas / 2, pas / 3, 0});
        ASSERT_EQ(s.Statut, StatutSucces);
        const SalveBoite boite =
            LireSalve(std::span<const std::uint8_t, TailleSalve>(s.octets.data(), TailleSalve));
        const int f = t.Frequence / 10000;
        DeroulementSalve d;
        d.Preparer(boite, f, t.PenteAcceleration);
        const double duree = static_cast<double>(d.Duree()) / HorlogeBoite;
        const bool rampe = (boite.drapeaux & DrapeauRampe) != 0;
        rampes += rampe ? 1 : 0;
        const double niveau = std::exp2(t.PenteAcceleration + 8) / HorlogeBoite;
        const double tick = TableRampe(std::min(boite.niveauDepart, boite.niveauFin), f) / HorlogeBoite;
        ASSERT_NEAR(duree, s.Duree, rampe ? 6 * niveau + 4 * tick : 1.0 / t.Frequence)
            << i << " slope " << int{t.PenteAcceleration} << " steps " << pas << " from " << v0 << " to "
            << v1;
    }
    EXPECT_GT(rampes, 1000);
}

TEST(BoiteMouvement, UnAvanceSArreteAuTickDemande) {
    DeroulementSalve d;
    d.Preparer(EnSalve({.drapeaux = 15, .ticks = 100}), 1, 6);
    EXPECT_EQ(d.Avancer(1000000, 40), 40 * 600U);
    EXPECT_EQ(d.Ticks(), 40U);
    EXPECT_EQ(d.Avancer(700, 100), 700U);
    EXPECT_EQ(d.Ticks(), 41U);
    EXPECT_EQ(d.Avancer(1000000, 42), 500U);
}

TEST(BoiteMouvement, ChaqueAxeFinitSurSonDernierPasPourDesListesAuHasard) {
    for (unsigned graine = 1; graine <= 40; ++graine) {
        std::mt19937 hasard(graine);
        std::vector<TrameEssai> liste(1 + hasard() % 300);
        for (TrameEssai& t : liste) t = TrameAuHasard(hasard);
        Poste p(2 + hasard() % 100);
        p.Derouler(liste, std::chrono::microseconds(100 + hasard() % 30000));
        ASSERT_EQ(p.boite.Position(), Somme(liste, liste.size())) << "seed " << graine;
        ASSERT_EQ(p.boite.Etat().fin, FinMouvement::FinDeListe);
        ASSERT_EQ(p.boite.Comptes().salvesFinies, liste.size());
        // Every corner of the path: each frame's end once, in order.
        std::size_t k = 0;
        for (const PointTrajet& c : p.boite.Trajet()) {
            if (c.genre != PointTrajet::Genre::FinSalve) continue;
            ++k;
            ASSERT_EQ(c.salve, k);
            ASSERT_EQ(c.pas, Somme(liste, k)) << "seed " << graine << " frame " << k;
        }
        ASSERT_EQ(k, liste.size());
    }
}

TEST(BoiteMouvement, LeFacteurEtLesTranchesNeChangentRienAuxPositions) {
    std::mt19937 hasard(99);
    std::vector<TrameEssai> liste(100);
    for (TrameEssai& t : liste) t = TrameAuHasard(hasard);
    std::vector<double> durees;
    std::vector<std::vector<PositionPas>> releves;
    for (const double facteur : {1.0, 10.0, 1000.0}) {
        Poste p;
        p.boite.FixerFacteur(facteur);
        p.Envoyer('B', 1);
        for (const TrameEssai& t : liste) p.Envoyer(t);
        p.Envoyer(TrameEssai{.drapeaux = 128});
        p.Envoyer('B', 128);
        std::vector<PositionPas> positions;
        // Every 20 ms of the box's time, reached in one slice or in seven.
        for (int i = 0; i < 400; ++i) {
            const Instant tranche(static_cast<long>(20e6 / facteur));
            const long parts = facteur == 10 ? 5 : 1;
            for (long k = 0; k < parts; ++k) {
                p.Attendre(tranche / parts);
                p.boite.Actualiser();
            }
            positions.push_back(p.boite.Position());
        }
        p.Attendre(10min);
        p.boite.Actualiser();
        EXPECT_EQ(p.boite.Etat().fin, FinMouvement::FinDeListe) << facteur;
        EXPECT_EQ(p.boite.Position(), Somme(liste, liste.size()));
        releves.push_back(positions);
    }
    EXPECT_EQ(releves[0], releves[1]);
    EXPECT_EQ(releves[0], releves[2]);
}

TEST(BoiteMouvement, UnArretAuHasardTombeSurLaPositionQueLeStatutFaitCalculer) {
    for (unsigned graine = 1; graine <= 300; ++graine) {
        std::mt19937 hasard(graine);
        std::vector<TrameEssai> liste(2 + hasard() % 20);
        for (TrameEssai& t : liste) t = TrameAuHasard(hasard);
        Poste p;
        p.Envoyer('B', 1);
        for (const TrameEssai& t : liste) p.Envoyer(t);
        p.Envoyer(TrameEssai{.drapeaux = 128});
        p.Envoyer('B', 128);
        p.Attendre(std::chrono::microseconds(hasard() % 400000));
        p.Envoyer('S', 0);
        Tampon r = {};
        r[1] = 'I';
        ASSERT_EQ(Zelko_Send(r), 1);
        if ((r[12] & 4) == 0) continue; // it was over before
        const std::size_t n = r[4] | r[5] << 8U | r[6] << 16U;
        const double reste = r[13] + 256.0 * r[14] + 65536.0 * r[15] + 16777216.0 * r[16];
        const TrameEssai& t = liste.at(n - 1);
        const double part = (t.ticks - reste - 1) / t.ticks;
        const PositionPas avant = Somme(liste, n - 1);
        const PositionPas apres = Somme(liste, n);
        for (std::size_t a = 0; a < 4; ++a) {
            const double calculee =
                static_cast<double>(avant[a]) + static_cast<double>(apres[a] - avant[a]) * part;
            ASSERT_LE(std::abs(calculee - static_cast<double>(p.boite.Position()[a])), 0.5 + 1e-9)
                << "seed " << graine << " axis " << a;
        }
        ASSERT_EQ(p.boite.Trajet().back().pas, p.boite.Position());
        ASSERT_EQ(p.boite.Trajet().back().fin, FinMouvement::Commande);
    }
}

TEST(BoiteMouvement, TrenteMilleSalvesSansUnePerdueNiDoublee) {
    std::mt19937 hasard(30000);
    std::vector<TrameEssai> liste(30000);
    for (TrameEssai& t : liste) t = TrameAuHasard(hasard);
    Poste p;
    p.boite.FixerFacteur(1000);
    p.Derouler(liste, 20us);
    EXPECT_EQ(p.boite.Position(), Somme(liste, liste.size()));
    EXPECT_EQ(p.boite.Comptes().salvesAcceptees, 30000U);
    EXPECT_EQ(p.boite.Comptes().salvesFinies, 30000U);
    EXPECT_EQ(p.boite.Etat().salve, 30000U);
    EXPECT_EQ(p.boite.Etat().fin, FinMouvement::FinDeListe);
    std::array<std::uint64_t, 4> pas = {};
    for (const TrameEssai& t : liste)
        for (std::size_t a = 0; a < 4; ++a) pas[a] += t.pas[a];
    EXPECT_EQ(p.boite.Comptes().pas, pas);
}

TEST(BoiteMouvement, DesTranchesPlusCourtesQuUneHorlogeSAdditionnent) {
    Poste p; // a clock lasts 166.7 ns, a tick at 50 kHz 20 microseconds
    p.Envoyer('B', 1);
    p.Envoyer(TrameEssai{.drapeaux = 15, .ticks = 100, .pas = {100, 0, 0, 0}});
    p.Envoyer('B', 128);
    for (int i = 0; i < 10050; ++i) {
        p.Attendre(100ns);
        p.boite.Actualiser();
    }
    EXPECT_EQ(p.boite.Position()[0], 50);
}

TEST(BoiteMouvement, PlusDUnPasParTickSeDitSansPerdreDePas) {
    Poste p;
    p.Envoyer('B', 1);
    p.Envoyer(TrameEssai{.drapeaux = 15, .ticks = 10, .pas = {11, 10, 0, 0}});
    p.Envoyer(TrameEssai{.drapeaux = 128});
    int dits = 0;
    p.boite.SurNote = [&](const NoteJournal& n) {
        if (!n.estEchange && n.evenement == Evenement::VitesseImpossible) ++dits;
    };
    p.Envoyer('B', 128);
    p.Attendre(1s);
    p.boite.Actualiser();
    EXPECT_EQ(dits, 1);
    EXPECT_EQ(p.boite.Position()[0], 11);
}

TEST(BoiteMouvement, LaFileEnAnneauGardeLOrdreEnChangeantDeTaille) {
    Poste p(4);
    p.Envoyer('B', 1);
    const auto trame = [](std::uint32_t pas) {
        return TrameEssai{.drapeaux = 15, .ticks = 100, .pas = {pas, 0, 0, 0}};
    };
    for (std::uint32_t i = 1; i <= 4; ++i) p.Envoyer(trame(i));
    p.Envoyer('B', 128);
    p.Attendre(2ms + 1us); // 50 kHz: 2 ms a frame
    EXPECT_EQ(p.Envoyer(trame(5)), 1);
    EXPECT_EQ(p.Envoyer(trame(6)), 1);
    EXPECT_EQ(p.Envoyer(trame(7)), 0);
    p.boite.FixerCapaciteFile(8);
    EXPECT_EQ(p.Envoyer(trame(7)), 1);
    p.Envoyer(TrameEssai{.drapeaux = 128});
    p.Attendre(1s);
    p.boite.Actualiser();
    std::vector<std::int64_t> positions;
    for (const PointTrajet& c : p.boite.Trajet())
        if (c.genre == PointTrajet::Genre::FinSalve) positions.push_back(c.pas[0]);
    EXPECT_EQ(positions, (std::vector<std::int64_t>{1, 3, 6, 10, 15, 21, 28}));
}
