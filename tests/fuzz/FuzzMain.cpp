// The door through which libFuzzer comes in. Which reader it leads to is the build's to say.
#include "tests/fuzz/FuzzTargets.h"

#include <cstddef>
#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    vorbel::VORBEL_FUZZED(text);
    return 0;
}
