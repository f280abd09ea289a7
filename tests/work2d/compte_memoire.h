// What the test program has on the heap, byte by byte, and the most it had.
#pragma once

#include <cstddef>

namespace tessarel::essais {

// Bytes that operator new has given and not had back.
std::size_t OctetsPris();
// The most there were since the last call of RemettrePic.
std::size_t PicOctetsPris();
void RemettrePic();

} // namespace tessarel::essais
