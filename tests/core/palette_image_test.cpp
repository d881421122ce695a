#include "palette_files/palette_image.h"

#include <gtest/gtest.h>

namespace cirrava {

namespace {

// A number in the headers: its first byte, its size in bytes, its value, and whether a file with
// another one is no palette.
struct Field {
    const char* name;
    std::size_t offset, size;
    std::int64_t value;
    bool matters = false;
};

Bytes with(Bytes bytes, const Field& field, std::int64_t value) {
    for (std::size_t i = 0; i < field.size; ++i)
        bytes.at(field.offset + i) = static_cast<std::uint8_t>(value >> (8 * i));
    return bytes;
}

Bytes part(const Bytes& bytes, std::ptrdiff_t from, std::ptrdiff_t to) {
    return {bytes.begin() + from, bytes.begin() + to};
}

const Bytes thermal = row_image(std::vector<Colour>(320, RGB(1, 2, 255)));
const Bytes sea = row_image(std::vector<Colour>(250, RGB(255, 255, 255)));
const Bytes hvc = hvc_image(std::vector<Colour>(100, RGB(200, 100, 1)));

} // namespace

TEST(PaletteImage, IsKnownByItsTypeAndSizeAmongItsHeaders) {
    const std::tuple<const Bytes&, ScaleKind, std::size_t, int, int> images[]{
        {thermal, ScaleKind::thermal, 1014, 320, 1},
        {sea, ScaleKind::sea, 806, 250, 1},
        {hvc, ScaleKind::hvc, 76854, 100, 256}};
    for (const auto& [image, kind, size, width, height] : images) {
        EXPECT_EQ(image.size(), size);
        EXPECT_EQ(palette_layout(image)->kind, kind);
        for (const Field& field : {Field{"bfType", 0, 2, 0x4D42, true},
                                   {"bfSize, bfReserved1, bfReserved2", 2, 8, 0},
                                   {"bfOffBits", 10, 4, 54},
                                   {"biSize", 14, 4, 40},
                                   {"biWidth", 18, 4, width, true},
                                   {"biHeight", 22, 4, height, true},
                                   {"biPlanes", 26, 2, 1},
                                   {"biBitCount", 28, 2, 24},
                                   {"biCompression, biSizeImage", 30, 8, 0},
                                   {"biXPelsPerMeter", 38, 4, 2834},
                                   {"biYPelsPerMeter", 42, 4, 2834},
                                   {"biClrUsed, biClrImportant", 46, 8, 0}}) {
            EXPECT_EQ(with(image, field, field.value), image) << field.name << " of " << size;
            EXPECT_NE(palette_layout(with(image, field, -1)).has_value(), field.matters)
                << field.name << " of " << size;
        }
    }
    EXPECT_FALSE(palette_layout(with(thermal, {"biHeight", 22, 4, 1}, 256))); // that of HVC
    EXPECT_FALSE(palette_layout(part(thermal, 0, 53)));
    EXPECT_FALSE(is_bitmap(part(thermal, 0, 1)));
}

TEST(PaletteImage, HasPixelsInBlueGreenRed) {
    EXPECT_EQ(part(thermal, 54, 57), (Bytes{255, 2, 1}));
    EXPECT_EQ(part(sea, 803, 806), (Bytes{255, 0, 0})); // padded with zeros
    // From the darkest row up to the lightest; row 127 has the cells' own colours.
    EXPECT_EQ(part(hvc, 54, 57), (Bytes{0, 0, 72}));
    EXPECT_EQ(part(hvc, hvc_row_127 - 3, hvc_row_127 + 3), (Bytes{0, 99, 199, 1, 100, 200}));
    EXPECT_EQ(part(hvc, 76851, 76854), (Bytes{128, 227, 255}));
}

TEST(PaletteImage, PixelsStandInStepsOfFourBytesAfterTheHeaders) {
    const std::pair<std::int64_t, long> cases[]{{54, 54}, {-1, 54},   {57, 54},
                                                {58, 58}, {138, 138}, {INT32_MAX, 2147483646}};
    for (const auto& [bfOffBits, offset] : cases) {
        const Bytes file = with(thermal, {"bfOffBits", 10, 4, 54}, bfOffBits);
        EXPECT_EQ(palette_layout(file)->pixels_offset, offset) << bfOffBits;
    }
}

} // namespace cirrava
