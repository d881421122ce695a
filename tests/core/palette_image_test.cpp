#include "palette_files/palette_image.h"

#include <gtest/gtest.h>

namespace cirrava {

namespace {

// Made without this program.
Bytes golden(const char* name) {
    return BinaryFile(std::string(GOLDEN "/") + name, FileAccess::read).read(100'000);
}

// Black but for those from `first` to `last`.
std::vector<Colour> cells(ScaleKind kind, int first, int last, Colour colour) {
    std::vector<Colour> colours(static_cast<std::size_t>(cell_count(kind)), 0);
    std::fill(colours.begin() + first, colours.begin() + last + 1, colour);
    return colours;
}

} // namespace

TEST(PaletteImage, IsRightToTheByte) {
    EXPECT_EQ(row_image(cells(ScaleKind::thermal, 220, 259, RGB(255, 0, 0))),
              golden("thermal.bmp"));
    EXPECT_EQ(row_image(cells(ScaleKind::sea, 1, 249, RGB(1, 2, 3))), golden("sea.bmp"));
    EXPECT_EQ(hvc_image(cells(ScaleKind::hvc, 20, 39, RGB(250, 0, 0))), golden("hvc.bmp"));
}

TEST(PaletteImage, IsKnownByItsTypeAndSizeAmongItsHeaders) {
    for (const auto& [name, kind] : {std::pair("thermal.bmp", ScaleKind::thermal),
                                     {"sea.bmp", ScaleKind::sea},
                                     {"hvc.bmp", ScaleKind::hvc}}) {
        const Bytes image = golden(name);
        EXPECT_EQ(palette_layout(image)->kind, kind);
        for (std::size_t i = 0; i < headers_size; ++i) {
            Bytes other = image;
            other[i] ^= 0xFF;
            const bool matters = i < 2 || (i >= 18 && i < 26); // bfType, biWidth, biHeight
            EXPECT_NE(palette_layout(other).has_value(), matters) << name << " " << i;
        }
        EXPECT_FALSE(palette_layout(std::span(image).first(headers_size - 1)));
    }
    EXPECT_FALSE(is_bitmap(Bytes{'B'}));
}

TEST(PaletteImage, PixelsStandInStepsOfFourBytesAfterTheHeaders) {
    for (const auto& [bfOffBits, offset] :
         {std::pair(-1, 54L), {57, 54}, {58, 58}, {138, 138}, {INT32_MAX, 2147483646}}) {
        Bytes file = golden("thermal.bmp");
        for (std::size_t i = 0; i < 4; ++i)
            file[10 + i] = static_cast<std::uint8_t>(bfOffBits >> (8 * i)); // where it stands
        EXPECT_EQ(palette_layout(file)->pixels_offset, offset) << bfOffBits;
    }
}

} // namespace cirrava
