// Standard streams made fit for a program that is piped, closed and limited from outside.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tessarel {

// First act of the program: opens what the caller closed of streams 0 to 2, so that no output file lands on
// one of them, and turns the signals of a closed pipe and of a file size limit into errors of the write that
// met them.
void PreparerFlux();

// Writes on standard output and flushes. False when it could not be written; a closed pipe counts as written:
// the reader has seen all it wanted.
bool EcrireSortie(std::string_view texte);

// Writes on standard error what it takes at once, and gives the number of bytes: a terminal held up by
// Ctrl-S, or a pipe that nobody reads, keeps no one waiting.
std::size_t EcrireErreurSansAttendre(std::string_view texte);

// True when standard error is a terminal on which a line can be redrawn.
bool ErreurStandardRedessinable();

} // namespace tessarel
