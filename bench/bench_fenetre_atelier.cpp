// The workshop of the 2D window: a step of a drag with its repaint, what lies under the pointer, undo, and
// the opening of the cut tab, on large projects.
#include "bench_fenetre.h"

#include "app/settings/gestion_ini.h"
#include "app/settings/parametres.h"
#include "machine/matieres.h"
#include "machine/table_machine.h"
#include "ui/canevas.h"
#include "work2d/edition.h"
#include "work2d/index_points.h"
#include "work2d/selection.h"
#include "work2d/ui/atelier_2d.h"
#include "work2d/ui/frmTessarel2D.h"

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <benchmark/benchmark.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <random>

using namespace tessarel;

namespace {

constexpr QSize Ecran(1280, 800);

// Outlines of a thousand points each, all over the table.
std::vector<Sequence> Contours(int points) {
    std::vector<Sequence> sequences(static_cast<std::size_t>(points / 1000));
    for (std::size_t c = 0; c < sequences.size(); ++c) {
        for (int i = 0; i < 1000; ++i) {
            const double a = i * 2 * 3.14159265358979 / 999;
            const double r = 30 + 6 * std::sin(7 * a);
            PointProfil p;
            p.X = 50 + static_cast<double>(c % 10) * 90 + r * std::cos(a);
            p.Y = 40 + static_cast<double>(c / 10 % 8) * 60 + r * std::sin(a);
            sequences[c].Points.push_back(p);
        }
        CalculerBornesSequence(sequences[c]);
    }
    return sequences;
}

// One path whose every step is seen.
std::vector<Sequence> Gribouillis(int points) {
    std::vector<Sequence> sequences(1);
    std::mt19937 hasard(7);
    std::normal_distribution<double> pas(0, 4);
    PointProfil p;
    p.X = 490;
    p.Y = 255;
    for (int i = 0; i < points; ++i) {
        p.X = std::clamp(p.X + pas(hasard), 0.0, 980.0);
        p.Y = std::clamp(p.Y + pas(hasard), 0.0, 510.0);
        sequences[0].Points.push_back(p);
    }
    CalculerBornesSequence(sequences[0]);
    return sequences;
}

void Envoyer(Canevas& canevas, QEvent::Type type, QPointF ou, Qt::MouseButtons boutons) {
    QMouseEvent evenement(type, ou, canevas.mapToGlobal(ou),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, boutons, Qt::NoModifier);
    QApplication::sendEvent(&canevas, &evenement);
}

// The hand holds all paths and moves them step by step; each step is painted whole.
template <typename Faire>
void PasDeGeste(benchmark::State& etat, Faire faire, const char* poignee) {
    Canevas canevas;
    canevas.resize(Ecran);
    canevas.FixerCadreComplet({-60, 1040, -60, 570});
    Espace2D espace;
    espace.TableauSequences = faire(50000);
    Atelier2D atelier(canevas, espace, nullptr);
    ToutSelectionner(espace.TableauSequences, true);
    atelier.Actualiser();
    Dessin choisies;
    DessinerSequences(choisies, espace.TableauSequences, {}, PartieSequences::Selectionnees);
    canevas.Montrer(Canevas::CoucheSelection, std::move(choisies));
    QImage image(Ecran, QImage::Format_ARGB32_Premultiplied);
    const Sequence boite = BoiteAffichee(atelier.BoiteSelection(), canevas.Vue().echelle);
    const QPointF depart = canevas.EnPixels(PlacePoignee(boite, poignee));
    Envoyer(canevas, QEvent::MouseMove, depart, Qt::NoButton);
    Envoyer(canevas, QEvent::MouseButtonPress, depart, Qt::LeftButton);
    int n = 0;
    for (auto _ : etat) {
        ++n;
        const QPointF ici = depart - QPointF(10 + n % 40, 10 + n % 23);
        Envoyer(canevas, QEvent::MouseMove, ici, Qt::LeftButton);
        QPainter peintre(&image);
        canevas.Peindre(peintre);
        benchmark::ClobberMemory();
    }
    etat.counters["sommets"] = static_cast<double>(canevas.DernierCompte().sommets);
}

void DeplacerContours50000(benchmark::State& etat) {
    PasDeGeste(etat, Contours, "");
}
void RedimensionnerContours50000(benchmark::State& etat) {
    PasDeGeste(etat, Contours, "HD");
}
void DeplacerGribouillis50000(benchmark::State& etat) {
    PasDeGeste(etat, Gribouillis, "");
}

void Chercher(benchmark::State& etat, const std::vector<Sequence>& sequences) {
    const IndexPoints index = IndexerPoints(sequences);
    std::mt19937 hasard(3);
    std::uniform_real_distribution<double> x(0, 980);
    std::uniform_real_distribution<double> y(0, 510);
    for (auto _ : etat) benchmark::DoNotOptimize(ChercherSegment(index, sequences, x(hasard), y(hasard), 6));
}
void ChercherContours100000(benchmark::State& etat) {
    Chercher(etat, Contours(100000));
}
void ChercherGribouillis100000(benchmark::State& etat) {
    Chercher(etat, Gribouillis(100000));
}
void Indexer100000(benchmark::State& etat) {
    const std::vector<Sequence> sequences = Contours(100000);
    for (auto _ : etat) benchmark::DoNotOptimize(IndexerPoints(sequences));
}

// The pointer along a path of 100 000 points, without the repaint.
void SurvolerGribouillis100000(benchmark::State& etat) {
    Canevas canevas;
    canevas.resize(Ecran);
    canevas.FixerCadreComplet({-60, 1040, -60, 570});
    Espace2D espace;
    espace.TableauSequences = Gribouillis(100000);
    const Atelier2D atelier(canevas, espace, nullptr);
    const std::vector<PointProfil>& p = espace.TableauSequences[0].Points;
    std::size_t i = 0;
    for (auto _ : etat) {
        i = (i + 1) % p.size();
        Envoyer(canevas, QEvent::MouseMove, canevas.EnPixels({p[i].X, p[i].Y}), Qt::NoButton);
    }
}

// From the click on the button to the painted tab.
void OuvrirOngletDecoupe32000(benchmark::State& etat) {
    const std::string dossier = std::filesystem::temp_directory_path() / "tessarel-banc";
    std::filesystem::create_directories(dossier);
    DossiersProgramme = {};
    DossiersProgramme.Documents = dossier + "/";
    DossiersProgramme.Datas = DossiersProgramme.MesDecoupes = dossier;
    DossiersProgramme.FichierIni = dossier + "/Tessarel.ini";
    std::ofstream(DossiersProgramme.FichierIni) << "[Parametres]\r\nMatiereUtilisee=Par defaut\r\n";
    std::ofstream fichier(dossier + "/banc.txt");
    for (const Sequence& s : Contours(32000)) {
        fichier << "Contour\r\n";
        for (const PointProfil& p : s.Points) fichier << std::fixed << p.X << ':' << p.Y << "\r\n";
    }
    fichier.close();
    Parametres = {};
    Parametres.DistNettoyage = 0;
    ChargerMachine("(Defaut)");
    ChargerBaseMatieres();
    ChoisirMatiere(MatieresMachine.front());
    frmTessarel2D fenetre;
    fenetre.setWindowState(Qt::WindowNoState);
    fenetre.resize(Ecran);
    fenetre.show();
    fenetre.OuvrirFichier(dossier + "/banc.txt");
    auto* ouvrir = fenetre.findChild<QPushButton*>(QStringLiteral("cmdDecouper"));
    auto* fermer = fenetre.findChild<QPushButton*>(QStringLiteral("cmdAnnulerDecoupe"));
    for (auto _ : etat) {
        ouvrir->click();
        benchmark::DoNotOptimize(fenetre.grab());
        etat.PauseTiming();
        fermer->click();
        QApplication::processEvents();
        etat.ResumeTiming();
    }
    ouvrir->click();
    etat.counters["points"] = static_cast<double>(fenetre.DecoupeMontree().SequenceDecoupe.Points.size());
    std::filesystem::remove_all(dossier);
}

BENCHMARK(DeplacerContours50000)->Unit(benchmark::kMillisecond);
BENCHMARK(RedimensionnerContours50000)->Unit(benchmark::kMillisecond);
BENCHMARK(DeplacerGribouillis50000)->Unit(benchmark::kMillisecond);
BENCHMARK(ChercherContours100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(ChercherGribouillis100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(SurvolerGribouillis100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(Indexer100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(OuvrirOngletDecoupe32000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    return bancs::LancerSansEcran(argc, argv);
}
