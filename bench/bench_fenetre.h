// The start of a benchmark of windows: without a display, unless a platform is asked for by name.
#pragma once

#include <QApplication>
#include <benchmark/benchmark.h>

namespace tessarel::bancs {

inline int LancerSansEcran(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

} // namespace tessarel::bancs
