#include "tools/sim/Simulator.h"

#include <iostream>

int main(int argumentCount, char** arguments) {
    const std::span<const char* const> all(arguments, static_cast<std::size_t>(argumentCount));
    return vorbel::sim::simulate(all.subspan(argumentCount > 0 ? 1 : 0), std::cout, std::cerr);
}
