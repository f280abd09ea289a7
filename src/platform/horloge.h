// Time, as tests can drive it.
#pragma once

#include <chrono>
#include <functional>

namespace tessarel {

using Instant = std::chrono::nanoseconds;
using SourceTemps = std::function<Instant()>;

// Time since an arbitrary start, never going back.
Instant Maintenant();
// Replaces the clock; returns the one replaced. An empty function restores the system's monotonic clock.
SourceTemps InstallerHorloge(SourceTemps source);
// Sleeps for that long. Does not while another clock is installed: its owner decides how time goes by.
void Patienter(Instant duree);

} // namespace tessarel
