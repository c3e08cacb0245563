#include "app/command_line/Speed.h"

#include <charconv>
#include <cstdlib>
#include <string_view>

namespace vorbel {

double speedFromEnvironment() {
    constexpr double slowest = 0.1;
    constexpr double fastest = 100;
    const char* variable = std::getenv("VORBEL_SPEED");
    const std::string_view text = variable == nullptr ? "" : variable;
    const char* textEnd = text.data() + text.size();
    double speed = 1;
    const auto [end, error] = std::from_chars(text.data(), textEnd, speed); // knows no locale
    return error == std::errc() && end == textEnd && speed >= slowest && speed <= fastest ? speed : 1;
}

} // namespace vorbel
