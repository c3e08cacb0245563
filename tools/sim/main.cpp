#include "tools/sim/Simulator.h"

#include <iostream>

#include <unistd.h>

int main(int argumentCount, char** arguments) {
    const std::span<const char* const> all(arguments, static_cast<std::size_t>(argumentCount));
    return vorbel::sim::simulate(all.subspan(argumentCount > 0 ? 1 : 0), std::cout, std::cerr,
                                 isatty(STDERR_FILENO) != 0 ? &std::cerr : nullptr);
}
