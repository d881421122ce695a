#include "palette_files/palette_image.h"

#include "platform/failure.h"

#include <algorithm>

namespace cirrava {

namespace {

constexpr std::size_t pixel_size = 3;

constexpr int own_colours_row = 127; // of the HVC image, counted from the top

// The stored row, counted from the bottom, from which the cells of an HVC file are taken. It is two
// rows below the cells' own colours: they come back two levels darker than they were written. So
// users know it: what a file gives back is fixed as its bytes are.
constexpr std::size_t stored_cells_row = 126;

std::uint8_t shifted(int channel, int levels) {
    return static_cast<std::uint8_t>(std::clamp(channel + levels, 0, 255));
}

// Returns the headers of an image of so many rows, with memory reserved for the rows and their
// padding.
Bytes headers_of(std::span<const Colour> cells, int rows) {
    Bytes bytes;
    bytes.reserve(headers_size + (cells.size() + 1) * pixel_size * static_cast<std::size_t>(rows));
    append_headers(
        bytes, {.info = {.biWidth = static_cast<std::int32_t>(cells.size()), .biHeight = rows}});
    return bytes;
}

// Appends a row of the image in which each channel of the cells is `levels` higher.
void append_row(Bytes& bytes, std::span<const Colour> cells, int levels = 0) {
    for (const Colour color : cells) {
        const auto [red, green, blue] = Data_byte_calc(color);
        for (const std::uint8_t channel : {blue, green, red})
            bytes.push_back(shifted(channel, levels));
    }
}

std::optional<ScaleKind> kind_of_size(std::int32_t biWidth, std::int32_t biHeight) {
    for (const ScaleKind kind : {ScaleKind::thermal, ScaleKind::sea, ScaleKind::hvc})
        if (biWidth == cell_count(kind) && biHeight == (kind == ScaleKind::hvc ? hvc_rows : 1))
            return kind;
    return std::nullopt;
}

// Pixels are looked for in steps of 4 bytes after the headers, up to where bfOffBits puts them, or
// up to 3 bytes before it: this is fixed, too.
long pixels_offset(std::int32_t bfOffBits) {
    constexpr auto end_of_headers = static_cast<std::int32_t>(headers_size);
    return bfOffBits <= end_of_headers ? end_of_headers
                                       : bfOffBits - (bfOffBits - end_of_headers) % 4;
}

std::vector<Colour> colours_of(std::span<const std::uint8_t> pixels) {
    std::vector<Colour> colours;
    for (std::size_t i = 0; i + pixel_size <= pixels.size(); i += pixel_size)
        colours.push_back(RGB(pixels[i + 2], pixels[i + 1], pixels[i]));
    return colours;
}

} // namespace

Bytes row_image(std::span<const Colour> cells) {
    Bytes bytes = headers_of(cells, 1);
    append_row(bytes, cells);
    while ((bytes.size() - headers_size) % 4 != 0)
        bytes.push_back(0);
    return bytes;
}

// The levels are those of the image's row 128 + 4 * steps for steps above 0, and of 126 + 4 * steps
// for steps below.
int brightness_levels(int steps) {
    if (steps == 0)
        return 0;
    return steps > 0 ? -4 * steps - 1 : -4 * steps + 1;
}

std::vector<Colour> shift_brightness(std::span<const Colour> cells, int levels,
                                     const Range& range) {
    std::vector<Colour> colours(cells.begin(), cells.end());
    for (int cell = range.first; cell <= range.last; ++cell) {
        Colour& color = colours.at(static_cast<std::size_t>(cell));
        const auto [red, green, blue] = Data_byte_calc(color);
        color = RGB(shifted(red, levels), shifted(green, levels), shifted(blue, levels));
    }
    return colours;
}

Bytes hvc_image(std::span<const Colour> cells) {
    Bytes bytes = headers_of(cells, hvc_rows);
    for (int row = hvc_rows - 1; row >= 0; --row)
        append_row(bytes, cells, own_colours_row - row);
    return bytes;
}

bool is_bitmap(std::span<const std::uint8_t> headers) {
    return read_headers(headers).file.bfType == bmp_file_header{}.bfType;
}

std::optional<PaletteLayout> palette_layout(std::span<const std::uint8_t> headers) {
    if (headers.size() < headers_size || !is_bitmap(headers))
        return std::nullopt;
    const auto [file, info] = read_headers(headers);
    const auto kind = kind_of_size(info.biWidth, info.biHeight);
    if (!kind)
        return std::nullopt;
    const std::size_t rows = *kind == ScaleKind::hvc ? stored_cells_row + 1 : 1;
    const auto cells = static_cast<std::size_t>(cell_count(*kind));
    return PaletteLayout{*kind, pixels_offset(file.bfOffBits), rows * cells * pixel_size};
}

std::vector<Colour> palette_colours(const PaletteLayout& layout,
                                    std::span<const std::uint8_t> pixels) {
    if (layout.kind != ScaleKind::hvc)
        return colours_of(pixels);
    if (pixels.size() < layout.pixels_size)
        throw Failure{FailureNumber::past_end};
    const auto row_size = static_cast<std::size_t>(cell_count(ScaleKind::hvc)) * pixel_size;
    return colours_of(pixels.subspan(stored_cells_row * row_size, row_size));
}

} // namespace cirrava
