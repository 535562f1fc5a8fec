#include "fuzz/invariant.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    winvrx::fuzz::tryBytes({reinterpret_cast<const char*>(data), size});
    return 0;
}
