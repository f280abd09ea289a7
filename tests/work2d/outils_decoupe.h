// Small machines, paths and comparisons for the tests of the 2D cut.
#pragma once

#include "machine/table_machine.h"
#include "paths/points.h"
#include "work2d/decoupe2d.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

namespace tessarel::essais {

struct Lieu {
    double x = 0;
    double y = 0;
    friend bool operator==(const Lieu&, const Lieu&) = default;
};
inline std::ostream& operator<<(std::ostream& flux, const Lieu& l) {
    return flux << '(' << l.x << ", " << l.y << ')';
}

// A point of an entry or an exit: its place, and whether the segment that starts there is rapid.
struct Jalon {
    double x = 0;
    double y = 0;
    bool rapide = false;
    friend bool operator==(const Jalon&, const Jalon&) = default;
};
inline std::ostream& operator<<(std::ostream& flux, const Jalon& j) {
    return flux << '(' << j.x << ", " << j.y << (j.rapide ? ", R)" : ")");
}

// Travel 300 x 200, zone from (5, 1), margin of the wire to the block 15.
inline TableMachine MachineEssai() {
    TableMachine table;
    table.Nom = "Essai";
    table.CourseX = 300;
    table.CourseY = 200;
    table.MargeFilPlateau = 1;
    table.MargeFilBloc = 15;
    table.MargeOrigineBloc = 5;
    table.VitesseDecoupeParDefaut = 4;
    table.VitesseRapide = 8;
    table.SaigneeVDParDefaut = 1;
    table.TempoChauffe = 2;
    return table;
}

inline Sequence Chemin(std::initializer_list<Lieu> lieux) {
    Sequence sequence;
    for (const Lieu& l : lieux) {
        PointProfil point;
        point.X = l.x;
        point.Y = l.y;
        sequence.Points.push_back(point);
    }
    CalculerBornesSequence(sequence);
    return sequence;
}

// 20 mm square from its lower left corner at (20, 20), upwards first.
inline Sequence CarreDe20() {
    return Chemin({{20, 20}, {20, 40}, {40, 40}, {40, 20}, {20, 20}});
}

inline OptionsDecoupe2D OptionsEssai() {
    OptionsDecoupe2D options;
    options.BlocX = 60;
    options.BlocY = 60;
    options.chauffe = 25.5F;
    return options;
}

inline std::vector<Lieu> Lieux(const Sequence& sequence) {
    std::vector<Lieu> lieux;
    for (const PointProfil& p : sequence.Points) lieux.push_back({p.X, p.Y});
    return lieux;
}

inline std::vector<Jalon> Jalons(const Sequence& sequence) {
    std::vector<Jalon> jalons;
    for (const PointProfil& p : sequence.Points) jalons.push_back({p.X, p.Y, p.Rapide});
    return jalons;
}

inline void AttendreProche(const Sequence& obtenue, const std::vector<Lieu>& attendus, double ecart) {
    ASSERT_EQ(obtenue.Points.size(), attendus.size());
    for (std::size_t i = 0; i < attendus.size(); ++i) {
        EXPECT_NEAR(obtenue.Points[i].X, attendus[i].x, ecart) << "point " << i;
        EXPECT_NEAR(obtenue.Points[i].Y, attendus[i].y, ecart) << "point " << i;
    }
}

} // namespace tessarel::essais
