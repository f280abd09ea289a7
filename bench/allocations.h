// Counts what a benchmark program takes from the heap: included by the one source file of the program.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {
std::atomic<std::size_t> allocations{0};
}

// Not inlined, or the compiler takes the pair for a mismatch.
[[gnu::noinline]] void* operator new(std::size_t taille) {
    ++allocations;
    if (void* p = std::malloc(taille)) return p;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* p) noexcept {
    std::free(p);
}
[[gnu::noinline]] void operator delete(void* p, std::size_t) noexcept {
    std::free(p);
}
