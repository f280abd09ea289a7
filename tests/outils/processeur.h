// Time of the processor, which a busy machine does not stretch.
#pragma once

#include <sys/resource.h>

namespace tessarel::essais {

// Seconds used by the child processes that have ended.
inline double SecondesDesEnfants() {
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto secondes = [](const timeval& t) {
        return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) * 1e-6;
    };
    return secondes(usage.ru_utime) + secondes(usage.ru_stime);
}

} // namespace tessarel::essais
