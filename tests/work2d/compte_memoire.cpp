// The counting operator new of this test program.
#include "compte_memoire.h"

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> g_pris = 0;
std::atomic<std::size_t> g_pic = 0;

// Stands before each block, and leaves what follows aligned for anything.
struct alignas(std::max_align_t) EnTete {
    std::size_t taille = 0;
};

void* Prendre(std::size_t taille) {
    void* bloc = std::malloc(sizeof(EnTete) + taille);
    if (bloc == nullptr) throw std::bad_alloc();
    const std::size_t pris = g_pris += taille;
    std::size_t pic = g_pic;
    while (pic < pris && !g_pic.compare_exchange_weak(pic, pris)) {
    }
    return new (bloc) EnTete{taille} + 1;
}

void Rendre(void* bloc) noexcept {
    if (bloc == nullptr) return;
    EnTete* enTete = static_cast<EnTete*>(bloc) - 1;
    g_pris -= enTete->taille;
    std::free(enTete);
}

} // namespace

void* operator new(std::size_t taille) {
    return Prendre(taille);
}
void* operator new[](std::size_t taille) {
    return Prendre(taille);
}
// Stable sorts ask this way; a sanitizer has one of its own, whose blocks have no head.
void* operator new(std::size_t taille, const std::nothrow_t&) noexcept {
    try {
        return Prendre(taille);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
void operator delete(void* bloc) noexcept {
    Rendre(bloc);
}
void operator delete[](void* bloc) noexcept {
    Rendre(bloc);
}
void operator delete(void* bloc, std::size_t) noexcept {
    Rendre(bloc);
}
void operator delete[](void* bloc, std::size_t) noexcept {
    Rendre(bloc);
}

namespace tessarel::essais {

std::size_t OctetsPris() {
    return g_pris;
}

std::size_t PicOctetsPris() {
    return g_pic;
}

void RemettrePic() {
    g_pic = g_pris.load();
}

} // namespace tessarel::essais
