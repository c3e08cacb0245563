// The screens of the menu overlay.
#pragma once

#include <cstdint>

namespace vorbel {

// `hidden`: no menu is open and the match has the keyboard.
enum class MenuScreen : std::uint8_t {
    main,
    country,
    bcClass,
    rules,
    about,
    diary,
    options,
    controls,
    leave,
    matchResult,
    hidden
};

} // namespace vorbel
