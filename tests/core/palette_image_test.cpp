#include "palette_files/palette_image.h"

#include "platform/failure.h"

#include <algorithm>
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

// The pixel of an HVC image in a row counted from the top, as blue, green, red.
Bytes pixel(const Bytes& image, int row, int column) {
    const auto place = image.begin() + 54 + ((255 - row) * 100 + column) * 3;
    return {place, place + 3};
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

TEST(HvcImage, RowsLightenUpwardsFromTheCellsOwnColours) {
    std::vector<Colour> cells(100, RGB(0, 0, 0));
    cells[7] = RGB(200, 100, 0);
    const Bytes image = hvc_image(cells);
    EXPECT_EQ(image.size(), 76854U);
    EXPECT_EQ(first(image, 54), headers(100, 0, 0, 1));
    EXPECT_EQ(pixel(image, 255, 7), (Bytes{0, 0, 72}));
    EXPECT_EQ(pixel(image, 128, 7), (Bytes{0, 99, 199}));
    EXPECT_EQ(pixel(image, 127, 7), (Bytes{0, 100, 200}));
    EXPECT_EQ(pixel(image, 126, 7), (Bytes{1, 101, 201}));
    EXPECT_EQ(pixel(image, 0, 7), (Bytes{127, 227, 255}));
    EXPECT_EQ(pixel(image, 128, 8), (Bytes{0, 0, 0}));
    EXPECT_EQ(last(image, 3), (Bytes{127, 127, 127}));
}

TEST(HvcImage, ShiftsTheSelectedCellsAndStopsAtBothEnds) {
    const int levels[]{21, 17, 13, 9, 5, 0, -5, -9, -13, -17, -21};
    for (int steps = -5; steps <= 5; ++steps) {
        const int level = levels[steps + 5];
        ASSERT_EQ(brightness_levels(steps), level);
        std::vector<Colour> cells(100, RGB(250, 100, 3));
        hvc_image(cells, {.levels = level, .first = 10, .last = 19});
        EXPECT_EQ(cells[9], RGB(250, 100, 3));
        EXPECT_EQ(cells[10], RGB(std::min(250 + level, 255), 100 + level, std::max(3 + level, 0)));
        EXPECT_EQ(cells[19], cells[10]);
        EXPECT_EQ(cells[20], RGB(250, 100, 3));
    }
    const std::vector<Colour> before(100, RGB(1, 2, 3));
    for (const int start : {60, 100}) { // after the end, and beyond the scale
        std::vector<Colour> cells = before;
        hvc_image(cells, {.levels = -5, .first = start, .last = start == 60 ? 40 : 319});
        EXPECT_EQ(cells, before);
    }
}

TEST(HvcImage, ADarkerCellShowsFromRow127UpALighterOneInTheNextImage) {
    std::vector<Colour> cells(100, RGB(100, 100, 100));
    const Bytes darker = hvc_image(cells, {.levels = -5, .first = 0, .last = 0});
    EXPECT_EQ(pixel(darker, 128, 0), (Bytes{99, 99, 99}));
    EXPECT_EQ(pixel(darker, 127, 0), (Bytes{95, 95, 95}));
    EXPECT_EQ(pixel(darker, 126, 0), (Bytes{96, 96, 96}));
    EXPECT_EQ(pixel(darker, 127, 1), (Bytes{100, 100, 100}));

    const Bytes lighter = hvc_image(cells, {.levels = 5, .first = 0, .last = 0});
    EXPECT_EQ(lighter, [] {
        std::vector<Colour> as_before(100, RGB(100, 100, 100));
        as_before[0] = RGB(95, 95, 95);
        return hvc_image(as_before);
    }());
    EXPECT_EQ(cells[0], RGB(100, 100, 100));
}

TEST(PaletteReading, OnlyACompleteHeaderWithBMIsRead) {
    const Bytes good = headers(0x40, 1, 1, 0);
    EXPECT_TRUE(is_bitmap(good));
    EXPECT_TRUE(is_bitmap(first(good, 2)));
    EXPECT_FALSE(is_bitmap(first(good, 1)));
    EXPECT_TRUE(palette_layout(good));
    EXPECT_FALSE(palette_layout(first(good, 53)));
    for (const char* type : {"bm", "Bm", "MB", "BA"}) {
        Bytes other = good;
        std::copy_n(type, 2, other.begin());
        EXPECT_FALSE(is_bitmap(other)) << type;
    }
}

TEST(PaletteReading, OnlyTheSizeNamesThePalette) {
    Bytes odd = headers(0x40, 1, 1, 0);
    std::fill(odd.begin() + 2, odd.begin() + 10, std::uint8_t{0xAA}); // bfSize and what is reserved
    std::fill(odd.begin() + 14, odd.begin() + 18, std::uint8_t{124}); // biSize
    std::fill(odd.begin() + 26, odd.end(), std::uint8_t{0x08});       // 8 bits, compressed, ...
    ASSERT_TRUE(palette_layout(odd));
    EXPECT_EQ(palette_layout(odd)->kind, ScaleKind::thermal);
    EXPECT_EQ(palette_layout(headers(250, 0, 1, 0))->kind, ScaleKind::sea);
    EXPECT_EQ(palette_layout(headers(100, 0, 0, 1))->kind, ScaleKind::hvc);

    EXPECT_FALSE(palette_layout(headers(0x80, 2, 0xE0, 1))); // 640 x 480
    EXPECT_FALSE(palette_layout(headers(0x40, 1, 0, 1)));    // 320 x 256
    EXPECT_FALSE(palette_layout(headers(100, 0, 1, 0)));     // 100 x 1
    Bytes top_down = headers(0x40, 1, 0xFF, 0xFF);
    top_down[24] = top_down[25] = 0xFF;
    EXPECT_FALSE(palette_layout(top_down));
    Bytes huge = headers(0x40, 1, 1, 0);
    huge[21] = 0x01; // the width's high byte
    EXPECT_FALSE(palette_layout(huge));
}

TEST(PaletteReading, PixelsStandInStepsOfFourBytesAfterTheHeaders) {
    const std::pair<std::int32_t, long> cases[]{
        {54, 54}, {0, 54},  {-1, 54},   {INT32_MIN, 54},         {57, 54},
        {58, 58}, {61, 58}, {138, 138}, {INT32_MAX, 2147483646},
    };
    for (const auto& [bfOffBits, place] : cases) {
        Bytes bytes = headers(0x40, 1, 1, 0);
        for (std::size_t i = 0; i < 4; ++i)
            bytes[10 + i] =
                static_cast<std::uint8_t>(static_cast<std::uint32_t>(bfOffBits) >> (8 * i));
        EXPECT_EQ(palette_layout(bytes)->pixels_at, place) << bfOffBits;
    }
}

} // namespace cirrava
