// Our DXF reader against dxflib: the same numbers out of the same drawing, made at random.
#include "outils/dessins.h"
#include "outils/dossiers.h"

#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>
#include <gtest/gtest.h>

#include <cmath>
#include <fmt/format.h>
#include <fstream>
#include <random>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

struct Place {
    double X = 0;
    double Y = 0;
};

// What dxflib tells of a file: the ends of lines and of arcs, the vertices of polylines, as separate runs.
class Recueil : public DL_CreationAdapter {
public:
    std::vector<std::vector<Place>> traces;

    void addLine(const DL_LineData& l) override { traces.push_back({{l.x1, l.y1}, {l.x2, l.y2}}); }
    void addArc(const DL_ArcData& a) override {
        const auto bout = [&](double angle) {
            const double r = angle * M_PI / 180;
            return Place{a.cx + a.radius * std::cos(r), a.cy + a.radius * std::sin(r)};
        };
        traces.push_back({bout(a.angle1), bout(a.angle2)});
    }
    void addCircle(const DL_CircleData& c) override {
        traces.push_back({{c.cx + c.radius, c.cy}, {c.cx + c.radius, c.cy}});
    }
    void addPolyline(const DL_PolylineData&) override { traces.emplace_back(); }
    void addVertex(const DL_VertexData& v) override { traces.back().push_back({v.x, v.y}); }
};

std::string DessinAuHasard(unsigned graine) {
    std::mt19937 alea(graine);
    std::uniform_real_distribution<double> place(-500, 500);
    std::string entites;
    for (int i = 0; i < 60; ++i) {
        if (i > 0) entites += "|";
        switch (alea() % 4) {
        case 0:
            entites += fmt::format("0 LINE|8 0|10 {}|20 {}|11 {}|21 {}", place(alea), place(alea),
                                   place(alea), place(alea));
            break;
        case 1:
            entites +=
                fmt::format("0 ARC|8 0|10 {}|20 {}|40 {}|50 {}|51 {}", place(alea), place(alea),
                            1 + std::abs(place(alea)), std::abs(place(alea)) / 2, std::abs(place(alea)) / 2);
            break;
        case 2:
            entites += fmt::format("0 CIRCLE|8 0|10 {}|20 {}|40 {}", place(alea), place(alea),
                                   1 + std::abs(place(alea)));
            break;
        default:
            entites += "0 LWPOLYLINE|8 0|90 5|70 0";
            for (int k = 0; k < 5; ++k) entites += fmt::format("|10 {}|20 {}", place(alea), place(alea));
            break;
        }
    }
    return DxfAvecEntites(entites);
}

bool Proches(const PointSimple& p, const Place& q) {
    return std::hypot(p.X - q.X, p.Y - q.Y) < 1e-3;
}

} // namespace

TEST(Pairs, LesMemesTracesQueDxflib) {
    for (unsigned graine = 1; graine <= 20; ++graine) {
        const std::string texte = DessinAuHasard(graine);
        const DossierProvisoire dossier;
        const std::string chemin = dossier.Fichier("a.dxf");
        std::ofstream(chemin, std::ios::binary) << texte;
        Recueil recueil;
        DL_Dxf dxf;
        ASSERT_TRUE(dxf.in(chemin, &recueil));
        const DessinLu d = LireTexte(texte);
        ASSERT_EQ(d.polylignes.size(), recueil.traces.size()) << "seed " << graine;
        for (std::size_t i = 0; i < recueil.traces.size(); ++i) {
            const auto& attendu = recueil.traces[i];
            const auto& lu = d.polylignes[i];
            ASSERT_TRUE(Proches(lu.front(), attendu.front())) << "seed " << graine << ", path " << i;
            ASSERT_TRUE(Proches(lu.back(), attendu.back())) << "seed " << graine << ", path " << i;
            if (attendu.size() != 5) continue;
            ASSERT_EQ(lu.size(), 5U);
            for (std::size_t k = 0; k < 5; ++k) ASSERT_TRUE(Proches(lu[k], attendu[k]));
        }
    }
}
