// Faults of event handlers that run while a loop of an engine lets events go: they belong to that loop.
#pragma once

#include <exception>
#include <functional>
#include <string>

namespace tessarel {

// Where a fault came from, as the user is told.
struct OrigineFaute {
    std::string procedure;
    std::string fenetre;
};

// Runs `passer`, and throws what RetenirFaute was given meanwhile: the first of several.
void PasserEvenements(const std::function<void()>& passer);

// For whoever stands between a handler and the window system, which no fault may cross. True when a turn of
// PasserEvenements is under way: the fault will be thrown there, and whoever drives the machine stops it
// before anybody is told.
bool RetenirFaute(const std::exception_ptr& faute, OrigineFaute origine);

// Where `faute` came from, if it was the last one kept; `defaut` for any other.
OrigineFaute OrigineDe(const std::exception_ptr& faute, const OrigineFaute& defaut);

// For whoever lets a fault go on up that has left something behind: `dire` tells it, once the fault itself
// has been told.
void DireApresLaFaute(std::function<void()> dire);
// For whoever has just told one.
void DireLaSuiteDeLaFaute();

} // namespace tessarel
