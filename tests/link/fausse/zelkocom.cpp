// A link library for tests: its version and the presence of a box are set when it is built. A send answers
// with the bytes it got, one higher, so that a test sees that they went there and back.
#include <cstdint>

extern "C" {

std::int32_t Zelko_Dll_Version() {
    return FAUSSE_VERSION;
}
std::int32_t Zelko_Open() {
    return 1;
}
std::int32_t Zelko_Close() {
    return 1;
}
#ifndef FAUSSE_INCOMPLETE
std::int32_t Zelko_IsConnected() {
    return FAUSSE_BRANCHEE;
}
#endif

std::int32_t Zelko_Send(std::uint8_t* tampon, std::int32_t* reserve) {
    if (*reserve != 0) return -204;
    for (int i = 1; i < 65; ++i) tampon[i] = static_cast<std::uint8_t>(tampon[i] + 1);
    return 1;
}

} // extern "C"
