#pragma once

#include <cstdint>

namespace cirrava {

// A 24-bit colour: red in bits 0 to 7, green in 8 to 15, blue in 16 to 23, the rest 0.
using Colour = std::int32_t;

struct ChannelBytes {
    std::uint8_t red_byte = 0;
    std::uint8_t green_byte = 0;
    std::uint8_t blue_byte = 0;
};

// The colour of three channels, each 0 to 255.
constexpr Colour RGB(int red, int green, int blue) {
    return red | green << 8 | blue << 16;
}

// The three channels of `color`; its high byte is ignored.
constexpr ChannelBytes Data_byte_calc(Colour color) {
    return {.red_byte = static_cast<std::uint8_t>(color & 255),
            .green_byte = static_cast<std::uint8_t>((color >> 8) & 255),
            .blue_byte = static_cast<std::uint8_t>((color >> 16) & 255)};
}

} // namespace cirrava
