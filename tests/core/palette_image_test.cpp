#include "palette_files/palette_image.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace cirrava {

namespace {

Bytes part(const Bytes& bytes, std::ptrdiff_t from, std::ptrdiff_t to) {
    return {bytes.begin() + from, bytes.begin() + to};
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

TEST(PaletteImage, ARowIsHeadersPixelsInBlueGreenRedAndPaddingOfZeros) {
    std::vector<Colour> cells(320, RGB(255, 2, 1));
    cells.back() = RGB(7, 8, 9);
    const Bytes thermal = row_image(cells);
    ASSERT_EQ(thermal.size(), 1014U);
    EXPECT_EQ(part(thermal, 0, 54), headers(0x40, 1, 1, 0));
    EXPECT_EQ(part(thermal, 1008, 1014), (Bytes{1, 2, 255, 9, 8, 7}));

    const Bytes sea = row_image(std::vector<Colour>(250, RGB(255, 255, 255)));
    ASSERT_EQ(sea.size(), 806U);
    EXPECT_EQ(part(sea, 0, 54), headers(250, 0, 1, 0));
    EXPECT_EQ(part(sea, 801, 806), (Bytes{255, 255, 255, 0, 0}));
}

TEST(PaletteImage, HvcRowsAreStoredFromTheDarkestUp) {
    const std::vector<Colour> below(100, RGB(200, 100, 0));
    const std::vector<Colour> above(100, RGB(200, 100, 1));
    const Bytes image = hvc_image(below, above);
    ASSERT_EQ(image.size(), 76854U);
    EXPECT_EQ(part(image, 0, 54), headers(100, 0, 0, 1));
    EXPECT_EQ(part(image, 54, 57), (Bytes{0, 0, 72}));
    EXPECT_EQ(part(image, 54 + 128 * 300 - 3, 54 + 128 * 300 + 3),
              (Bytes{0, 99, 199, 1, 100, 200}));
    EXPECT_EQ(part(image, 76851, 76854), (Bytes{128, 227, 255}));
}

TEST(PaletteReading, OnlyTheSizeInACompleteHeaderNamesThePalette) {
    const Bytes good = headers(0x40, 1, 1, 0);
    EXPECT_FALSE(is_bitmap(part(good, 0, 1)));
    EXPECT_FALSE(is_bitmap(Bytes{'b', 'M'}));
    const auto kind = [](const Bytes& bytes) {
        const auto layout = palette_layout(bytes);
        return layout ? std::optional(layout->kind) : std::nullopt;
    };
    EXPECT_EQ(kind(part(good, 0, 53)), std::nullopt);
    Bytes odd = good;
    std::fill(odd.begin() + 2, odd.begin() + 18, std::uint8_t{124});
    std::fill(odd.begin() + 26, odd.end(), std::uint8_t{8});
    EXPECT_EQ(kind(odd), ScaleKind::thermal);
    EXPECT_EQ(kind(headers(250, 0, 1, 0)), ScaleKind::sea);
    EXPECT_EQ(kind(headers(100, 0, 0, 1)), ScaleKind::hvc);
    std::fill(odd.begin() + 22, odd.begin() + 26, std::uint8_t{0xFF});
    EXPECT_EQ(kind(odd), std::nullopt); // stored top down, height -1
}

TEST(PaletteReading, PixelsStandInStepsOfFourBytesAfterTheHeaders) {
    const std::pair<std::int32_t, long> cases[]{
        {54, 54}, {-1, 54}, {57, 54}, {58, 58}, {138, 138}, {INT32_MAX, 2147483646},
    };
    for (const auto& [bfOffBits, offset] : cases) {
        Bytes bytes = headers(0x40, 1, 1, 0);
        for (int i = 0; i < 4; ++i)
            bytes[10U + i] = static_cast<std::uint8_t>(bfOffBits >> 8 * i);
        const auto layout = palette_layout(bytes);
        EXPECT_EQ(layout ? layout->pixels_offset : -1, offset) << bfOffBits;
    }
}

} // namespace cirrava
