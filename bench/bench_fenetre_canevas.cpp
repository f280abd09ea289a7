// Pan and zoom steps of the canvas over 100 000 points, painted into an image as the window system would.
#include "bench_fenetre.h"

#include "ui/canevas.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <benchmark/benchmark.h>

#include <cmath>
#include <random>

using namespace tessarel;

namespace {

constexpr int NombrePoints = 100000;
constexpr QSize Ecran(1280, 800);

void AjouterTrait(Dessin& dessin, std::size_t premier, float epaisseur) {
    TraitDessin trait;
    trait.premier = static_cast<std::uint32_t>(premier);
    trait.nombre = static_cast<std::uint32_t>(dessin.points.size() - premier);
    trait.epaisseur = epaisseur;
    trait.couleur = {0, 122, 11, 255};
    dessin.traits.push_back(trait);
}

// An ordinary drawing: a hundred smooth outlines of a thousand points.
Dessin Contours(float epaisseur) {
    Dessin dessin;
    for (int c = 0; c < 100; ++c) {
        const std::size_t premier = dessin.points.size();
        for (int i = 0; i < NombrePoints / 100; ++i) {
            const double a = i * 2 * 3.14159265358979 / (NombrePoints / 100 - 1);
            const double r = 30 + 6 * std::sin(7 * a);
            dessin.points.push_back(
                {50 + (c % 10) * 90 + r * std::cos(a), 40 + (c / 10) * 60 + r * std::sin(a)});
        }
        AjouterTrait(dessin, premier, epaisseur);
    }
    return dessin;
}

// The hardest one: a walk whose every step is seen, all over the table.
Dessin Gribouillis() {
    Dessin dessin;
    std::mt19937 hasard(7);
    std::uniform_real_distribution<double> x(0, 1000);
    std::uniform_real_distribution<double> y(0, 600);
    std::normal_distribution<double> pas(0, 4);
    PointDessin p{x(hasard), y(hasard)};
    for (int i = 0; i < NombrePoints; ++i) {
        p.X = std::clamp(p.X + pas(hasard), 0.0, 1000.0);
        p.Y = std::clamp(p.Y + pas(hasard), 0.0, 600.0);
        dessin.points.push_back(p);
    }
    AjouterTrait(dessin, 0, 1);
    return dessin;
}

Dessin AvecPoints(Dessin dessin) {
    for (const PointDessin& p : dessin.points) {
        MarqueDessin marque;
        marque.ou = p;
        dessin.marques.push_back(marque);
    }
    return dessin;
}

template <typename Pas>
void Mesurer(benchmark::State& etat, Dessin dessin, double zoom, Pas pas) {
    Canevas canevas;
    canevas.resize(Ecran);
    canevas.Montrer(Canevas::CoucheTrace, std::move(dessin));
    canevas.FixerCadreComplet({0, 1000, 0, 600});
    canevas.Zoomer(zoom);
    QImage image(Ecran, QImage::Format_ARGB32_Premultiplied);
    int n = 0;
    for (auto _ : etat) {
        pas(canevas, n++);
        QPainter peintre(&image);
        canevas.Peindre(peintre);
        benchmark::ClobberMemory();
    }
    etat.counters["sommets"] = static_cast<double>(canevas.DernierCompte().sommets);
}

void PasDeVue(Canevas& canevas, int n) {
    canevas.Deplacer(n % 2 == 0 ? 7 : -7, n % 2 == 0 ? 3 : -3);
}
void PasDeZoom(Canevas& canevas, int n) {
    canevas.Zoomer(n % 2 == 0 ? 1.25 : 0.8);
}

void DeplacerContours(benchmark::State& etat) {
    Mesurer(etat, Contours(1), 1, PasDeVue);
}
void DeplacerContoursEpais(benchmark::State& etat) {
    Mesurer(etat, Contours(2), 1, PasDeVue);
}
void ZoomerContours(benchmark::State& etat) {
    Mesurer(etat, Contours(1), 1, PasDeZoom);
}
void DeplacerContoursDePres(benchmark::State& etat) {
    Mesurer(etat, Contours(1), 40, PasDeVue);
}
void DeplacerContoursEtPoints(benchmark::State& etat) {
    Mesurer(etat, AvecPoints(Contours(1)), 1, PasDeVue);
}
void DeplacerGribouillis(benchmark::State& etat) {
    Mesurer(etat, Gribouillis(), 1, PasDeVue);
}

BENCHMARK(DeplacerContours)->Unit(benchmark::kMillisecond);
BENCHMARK(DeplacerContoursEpais)->Unit(benchmark::kMillisecond);
BENCHMARK(ZoomerContours)->Unit(benchmark::kMillisecond);
BENCHMARK(DeplacerContoursDePres)->Unit(benchmark::kMillisecond);
BENCHMARK(DeplacerContoursEtPoints)->Unit(benchmark::kMillisecond);
BENCHMARK(DeplacerGribouillis)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    return bancs::LancerSansEcran(argc, argv);
}
