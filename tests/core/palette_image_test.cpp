#include "palette_files/palette_image.h"

#include <gtest/gtest.h>

namespace cirrava {

namespace {

Bytes first(const Bytes& bytes, std::size_t count) {
    return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count)};
}

Bytes last(const Bytes& bytes, std::size_t count) {
    return {bytes.end() - static_cast<std::ptrdiff_t>(count), bytes.end()};
}

// The 54 bytes before the pixels.
Bytes headers(std::uint8_t width_low, std::uint8_t width_high, std::uint8_t height_low,
              std::uint8_t height_high) {
    return {'B',        'M',         0, 0,  0, 0,    0,    0,         0,          0,    54,
            0,          0,           0, 40, 0, 0,    0,    width_low, width_high, 0,    0,
            height_low, height_high, 0, 0,  1, 0,    24,   0,         0,          0,    0,
            0,          0,           0, 0,  0, 0x12, 0x0B, 0,         0,          0x12, 0x0B,
            0,          0,           0, 0,  0, 0,    0,    0,         0,          0};
}

} // namespace

TEST(PaletteImage, ThermalIsHeadersAndPixelsInBlueGreenRed) {
    std::vector<Colour> cells(320, RGB(0, 0, 0));
    cells.front() = RGB(255, 2, 1);
    cells.back() = RGB(7, 8, 9);
    const Bytes image = row_image(cells);
    EXPECT_EQ(image.size(), 1014U);
    EXPECT_EQ(first(image, 54), headers(0x40, 1, 1, 0));
    EXPECT_EQ(Bytes(image.begin() + 54, image.begin() + 60), (Bytes{1, 2, 255, 0, 0, 0}));
    EXPECT_EQ(last(image, 3), (Bytes{9, 8, 7}));
}

TEST(PaletteImage, SeaSurfaceRowIsPaddedWithZeros) {
    const std::vector<Colour> white(250, RGB(255, 255, 255));
    const Bytes image = row_image(white);
    EXPECT_EQ(image.size(), 806U);
    EXPECT_EQ(first(image, 54), headers(250, 0, 1, 0));
    EXPECT_EQ(last(image, 5), (Bytes{255, 255, 255, 0, 0}));
}

} // namespace cirrava
