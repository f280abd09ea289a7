// What undo holds of paths that only follow the block.
#include "outils_decoupe.h"
#include "work2d/historique2d.h"
#include "work2d/placement.h"

#include <gtest/gtest.h>

using namespace tessarel;
using namespace tessarel::essais;

TEST(HistoriquePlacement, CentBlocsAvecCentrageSurCentMillePointsTiennentEn64Mo) {
    std::vector<Sequence> sequences(100);
    for (std::size_t i = 0; i < sequences.size(); ++i) {
        for (int k = 0; k < 1000; ++k) {
            PointProfil p;
            p.X = 1.0 / 3 + static_cast<double>(i) + 0.01 * k;
            p.Y = 0.7 * (k % 37);
            sequences[i].Points.push_back(p);
        }
        CalculerBornesSequence(sequences[i]);
    }
    const std::vector<Sequence> depart = sequences;
    const TableMachine table = MachineEssai();
    const ReglesPlacement regles{false, true, true, 5, 5};
    Bloc bloc{300, 200};
    float coeff = 1;
    Historique2D historique;
    for (int i = 0; i < 100; ++i) {
        MemoriserTransformation(historique, sequences, bloc, coeff);
        bloc.BlocX += 0.1F * static_cast<float>(i + 1);
        AnnoncerTransformation(historique, AjusterAuBloc(sequences, bloc, regles, table, coeff));
    }
    EXPECT_LT(MemoireHistorique(historique), std::size_t{64} << 20U);
    while (PeutAnnuler(historique))
        ASSERT_TRUE(cmdUndoTS2D(historique, SensHistorique::Arriere, sequences, bloc, coeff));
    EXPECT_EQ(sequences, depart);
}
