// A cut of 30 000 segments driven from the 2D window, offscreen: how fast it talks to a virtual box on its
// socket beside a bare ping-pong on the same socket, and what one step of its display costs.
#include "bench_fenetre.h"

#include "app/settings/gestion_ini.h"
#include "app/settings/parametres.h"
#include "app/texts/textes.h"
#include "link/etat_interface.h"
#include "link/rafraichir.h"
#include "link/simulateur/boite.h"
#include "link/simulateur/memoires_machine.h"
#include "machine/matieres.h"
#include "machine/table_machine.h"
#include "platform/dialogue.h"
#include "platform/horloge.h"
#include "platform/pompe.h"
#include "platform/prise_zelko.h"
#include "ui/canevas.h"
#include "ui/pompe_qt.h"
#include "work2d/ui/frmTessarel2D.h"
#include "work2d/ui/panneau_course.h"
#include "work2d/ui/trace_course.h"

#include <QApplication>
#include <QPushButton>
#include <QStackedWidget>
#include <benchmark/benchmark.h>

#include <atomic>
#include <cmath>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <thread>

using namespace tessarel;

namespace {

constexpr QSize Ecran(1280, 800);
constexpr int Segments = 30000;

// A scribble that fills the block: every part of it is seen.
void EcrireTrace(const std::string& chemin) {
    std::ofstream fichier(chemin);
    fichier << "Rosace\r\n" << std::fixed;
    for (int i = 0; i < Segments; ++i) {
        const double a = i * 2 * 3.14159265358979 / (Segments - 1);
        const double r = 100 + 90 * std::sin(149 * a);
        fichier << 300 + 1.4 * r * std::cos(2 * a) << ':' << 220 + r * std::sin(3 * a) << "\r\n";
    }
}

// Settings and folders of its own, and the window with its cut tab open on that path.
struct Poste {
    std::string dossier = std::filesystem::temp_directory_path() / "tessarel-banc-course";
    std::unique_ptr<frmTessarel2D> fenetre;
    Poste() {
        std::filesystem::create_directories(dossier);
        DossiersProgramme = {};
        DossiersProgramme.Documents = dossier + "/";
        DossiersProgramme.Datas = DossiersProgramme.MesDecoupes = dossier;
        DossiersProgramme.FichierIni = dossier + "/Tessarel.ini";
        std::ofstream(DossiersProgramme.FichierIni) << "[Parametres]\r\nMatiereUtilisee=Par defaut\r\n";
        ChargerMessages(Langue::Francais);
        Parametres = {};
        Parametres.DistNettoyage = 0;
        ChargerMachine("(Defaut)");
        ChargerBaseMatieres();
        ChoisirMatiere(MatieresMachine.front());
        EcrireTrace(dossier + "/rosace.txt");
        InstallerPompeQt();
        fenetre = std::make_unique<frmTessarel2D>();
        fenetre->setWindowState(Qt::WindowNoState);
        fenetre->resize(Ecran);
        fenetre->show();
        if (!fenetre->OuvrirFichier(dossier + "/rosace.txt")) throw std::runtime_error("no path");
        Bouton("cmdDecouper").click();
        QApplication::processEvents();
    }
    ~Poste() { std::filesystem::remove_all(dossier); }
    Poste(const Poste&) = delete;
    Poste& operator=(const Poste&) = delete;
    [[nodiscard]] QPushButton& Bouton(const char* nom) const {
        return *fenetre->findChild<QPushButton*>(QString::fromLatin1(nom));
    }
};

// Time as the run sees it: it stands still during the turns of the bare ping-pong.
std::atomic<std::int64_t> horsCourse = 0; // ns
Instant HorlogeCourse() {
    return std::chrono::steady_clock::now().time_since_epoch() - std::chrono::nanoseconds(horsCourse.load());
}

// The virtual box on its socket, in a thread, with the machine of the program in memory 0.
struct BoitierSurPrise {
    simulateur::BoiteZelko boite;
    std::atomic<std::uint64_t> echanges = 0;
    std::atomic<std::uint64_t> refusees = 0;
    std::string dossier = std::filesystem::temp_directory_path() / "tessarel-banc-prise";
    std::atomic<bool> fin = false;
    std::thread serveur;
    explicit BoitierSurPrise(double facteur) {
        simulateur::MemoiresBoite memoires;
        memoires[0] = simulateur::MemoireDeMachine(TableINI);
        boite.EcrireMemoires(memoires);
        boite.ChargerEnRam(0);
        boite.FixerMecanique(simulateur::MecaniqueDeMachine(TableINI));
        boite.FixerFacteur(facteur);
        std::filesystem::create_directories(dossier);
        ::setenv("XDG_RUNTIME_DIR", dossier.c_str(), 1);
        auto prise = std::make_unique<PriseZelko>(dossier + "/zelko.sock", [this](const Tampon& t) {
            ReponsePrise reponse;
            reponse.octets = boite.Traiter(t).octets;
            ++echanges;
            if (t[1] == 'D' && reponse.octets[2] != 1) ++refusees;
            return reponse;
        });
        serveur = std::thread([this, prise = std::move(prise)] {
            while (!fin) prise->Servir(std::chrono::milliseconds(20));
        });
        if (ChargerZelkoCom(DossiersZelkoCom()) != EtatBibliotheque::Presente)
            throw std::runtime_error("no link library beside the program");
    }
    ~BoitierSurPrise() {
        fin = true;
        serveur.join();
        LibererZelkoCom();
        ReinitialiserEtatInterface();
        std::filesystem::remove_all(dossier);
    }
    BoitierSurPrise(const BoitierSurPrise&) = delete;
    BoitierSurPrise& operator=(const BoitierSurPrise&) = delete;
};

double Processeur() {
    timespec t{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return static_cast<double>(t.tv_sec) + 1e-9 * static_cast<double>(t.tv_nsec);
}
double Heure() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

struct Part {
    double secondes = 0;
    double processeur = 0;
    std::uint64_t echanges = 0;
};

// Takes turns between the run and the bare ping-pong, each of so many exchanges.
class Tours {
public:
    explicit Tours(BoitierSurPrise& boitier) : m_boitier(boitier) { Reprendre(); }
    // Between two exchanges of the run.
    void Passer() {
        if (++m_vus < ParTour) return;
        m_vus = 0;
        Noter(course);
        const double debut = Heure();
        Tampon t{};
        Reprendre();
        for (std::uint64_t i = 0; i < ParTour; ++i) {
            t.fill(0);
            t[1] = 'I';
            benchmark::DoNotOptimize(Zelko_Send(t));
        }
        Noter(nue);
        horsCourse += static_cast<std::int64_t>((Heure() - debut) * 1e9);
        Reprendre();
    }
    Part course;
    Part nue;

private:
    static constexpr std::uint64_t ParTour = 500;
    void Reprendre() {
        m_debutEchanges = m_boitier.echanges;
        m_heure = Heure();
        m_processeur = Processeur();
    }
    void Noter(Part& part) {
        part.secondes += Heure() - m_heure;
        part.processeur += Processeur() - m_processeur;
        part.echanges += m_boitier.echanges - m_debutEchanges;
    }
    BoitierSurPrise& m_boitier;
    std::uint64_t m_vus = 0; // exchanges of the run in this turn
    std::uint64_t m_debutEchanges = 0;
    double m_heure = 0;
    double m_processeur = 0;
};

// From the press on the button to the last box, at so many times the machine's speed. `visible`: a hidden
// window draws nothing, for comparison.
void CouperDepuisLaFenetre(benchmark::State& etat, bool visible) {
    Poste poste;
    const SourceTemps avant = InstallerHorloge(HorlogeCourse);
    {
        BoitierSurPrise boitier(static_cast<double>(etat.range(0)));
        int boites = 0;
        std::string derniere;
        auto ancien = InstallerAfficheurBoite([&](const Boite& boite) {
            ++boites;
            derniere = boite.texte;
            return ReponseBoite::Ok;
        });
        if (!visible) poste.fenetre->hide();
        Part course;
        Part nue;
        std::uint64_t refusees = 0;
        for ([[maybe_unused]] auto tour : etat) {
            Tours tours(boitier);
            Pompe qt = InstallerPompe({});
            InstallerPompe([&] {
                tours.Passer();
                qt();
            });
            boitier.refusees = 0;
            poste.Bouton("cmdLancerLaDecoupeTS2D").click();
            InstallerPompe(qt);
            course = {course.secondes + tours.course.secondes, course.processeur + tours.course.processeur,
                      course.echanges + tours.course.echanges};
            nue = {nue.secondes + tours.nue.secondes, nue.processeur + tours.nue.processeur,
                   nue.echanges + tours.nue.echanges};
            refusees += boitier.refusees;
            if (derniere.rfind("Découpe terminée", 0) != 0) {
                etat.SkipWithError(derniere.c_str());
                break;
            }
        }
        const auto us = [](double s, const Part& p) { return s / static_cast<double>(p.echanges) * 1e6; };
        etat.counters["course_us"] = us(course.secondes, course);
        etat.counters["nue_us"] = us(nue.secondes, nue);
        etat.counters["course_cpu_us"] = us(course.processeur, course);
        etat.counters["nue_cpu_us"] = us(nue.processeur, nue);
        etat.counters["rapport"] = us(nue.secondes, nue) / us(course.secondes, course);
        etat.counters["echanges"] = static_cast<double>(course.echanges);
        etat.counters["file_pleine"] =
            static_cast<double>(refusees) / static_cast<double>(course.echanges + nue.echanges);
        InstallerAfficheurBoite(ancien);
    }
    InstallerHorloge(avant);
}
void CouperFenetreOuverte(benchmark::State& etat) {
    CouperDepuisLaFenetre(etat, true);
}
void CouperFenetreCachee(benchmark::State& etat) {
    CouperDepuisLaFenetre(etat, false);
}

// One step of the display in the window, painted: the wire goes on by so many segments.
void UnPas(benchmark::State& etat) {
    const Poste poste;
    const Sequence& sequence = poste.fenetre->DecoupeMontree().SequenceDecoupe;
    auto& canevas = *poste.fenetre->findChild<Canevas*>(QStringLiteral("pctDecoupe"));
    auto& panneau = *poste.fenetre->findChild<PanneauCourse*>();
    panneau.parentWidget()->setEnabled(true);
    qobject_cast<QStackedWidget*>(panneau.parentWidget())->setCurrentWidget(&panneau);
    Instant temps{0};
    const SourceTemps avant = InstallerHorloge([&temps] { return temps; });
    TraceCourse trace(canevas);
    panneau.Commencer({GenreDecoupe::Decoupe, 40, 100, "Vitesse : 4.0 mm/s"});
    trace.Commencer(sequence, GenreDecoupe::Decoupe, false);
    panneau.MontrerPhase(PhaseDecoupe::Decoupe);
    const auto sommets = static_cast<std::int32_t>(sequence.Points.size());
    const auto pas = static_cast<std::int32_t>(etat.range(0));
    const auto montrer = [&](std::int32_t k, double fraction) {
        const PointProfil& a = sequence.Points[static_cast<std::size_t>(k) - 2];
        const PointProfil& b = sequence.Points[static_cast<std::size_t>(k) - 1];
        AvanceeDecoupe avancee;
        avancee.phase = PhaseDecoupe::Decoupe;
        avancee.NumSalveCourante = k;
        avancee.sommets = sommets;
        avancee.fraction = fraction;
        avancee.XDebut = a.X;
        avancee.YDebut = a.Y;
        avancee.X1 = a.X + (b.X - a.X) * fraction;
        avancee.Y1 = a.Y + (b.Y - a.Y) * fraction;
        temps += std::chrono::milliseconds(50);
        if (trace.Avancer(avancee)) panneau.MontrerAvancee(avancee);
        for (int i = 0; i < 3; ++i) QApplication::processEvents();
    };
    // Nearly all is cut already: that is what the step has to paint again.
    const std::int32_t depart = sommets - 6000;
    for (std::int32_t k = 2; k < depart; k += 1000) montrer(k, 0.5);
    std::int32_t k = depart;
    double pire = 0;
    for ([[maybe_unused]] auto tour : etat) {
        const double debut = Processeur();
        montrer(k, 0.5);
        pire = std::max(pire, Processeur() - debut);
        k = std::min(k + pas, sommets);
    }
    etat.counters["pire_ms"] = pire * 1e3;
    etat.counters["sommets"] = static_cast<double>(canevas.DernierCompte().sommets);
    InstallerHorloge(avant);
}

} // namespace

// As many steps as there is path left to cut.
BENCHMARK(UnPas)->Arg(1)->Iterations(4000)->Unit(benchmark::kMicrosecond);
BENCHMARK(UnPas)->Arg(20)->Iterations(280)->Unit(benchmark::kMicrosecond);
BENCHMARK(UnPas)->Arg(200)->Iterations(28)->Unit(benchmark::kMicrosecond);
BENCHMARK(CouperFenetreOuverte)->Arg(1000)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(CouperFenetreCachee)->Arg(1000)->Iterations(1)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    return bancs::LancerSansEcran(argc, argv);
}
