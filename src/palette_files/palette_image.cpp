#include "palette_files/palette_image.h"

#include "platform/failure.h"

#include <algorithm>

namespace cirrava {

namespace {

constexpr std::size_t pixel_size = 3;

constexpr int own_colours_row = 127; // of the HVC image, counted from the top

// The stored row, counted from the bottom, from which the cells of an HVC file are taken. It is two
// rows below the cells' own colours: they come back two levels darker than they were written.
constexpr std::size_t stored_cells_row = 126;

Bytes pixels_of(std::span<const Colour> cells) {
    Bytes bytes;
    bytes.reserve(cells.size() * pixel_size);
    for (const Colour color : cells) {
        const ChannelBytes channels = Data_byte_calc(color);
        bytes.push_back(channels.blue_byte);
        bytes.push_back(channels.green_byte);
        bytes.push_back(channels.red_byte);
    }
    return bytes;
}

// `color` with `levels` added to each channel, which stops at 0 and at 255.
Colour shifted(Colour color, int levels) {
    const ChannelBytes channels = Data_byte_calc(color);
    const auto shift = [levels](int value) { return std::clamp(value + levels, 0, 255); };
    return RGB(shift(channels.red_byte), shift(channels.green_byte), shift(channels.blue_byte));
}

// Rows `from` down to `to`, in the order of the file.
void append_hvc_rows(Bytes& bytes, std::span<const Colour> cells, int from, int to) {
    const Bytes own = pixels_of(cells);
    const std::ptrdiff_t size = std::ssize(own) * (from - to + 1);
    bytes.resize(bytes.size() + static_cast<std::size_t>(size));
    auto destination = bytes.end() - size;
    for (int row = from; row >= to; --row) {
        const int levels = own_colours_row - row;
        // Clamped to what stays a byte with `levels` added: in 8 bits compilers take many at once.
        const auto lowest = static_cast<std::uint8_t>(std::max(0, -levels));
        const auto highest = static_cast<std::uint8_t>(std::min(255, 255 - levels));
        destination = std::transform(own.begin(), own.end(), destination, [=](std::uint8_t value) {
            return static_cast<std::uint8_t>(std::clamp(value, lowest, highest) + levels);
        });
    }
}

std::optional<ScaleKind> kind_of_size(std::int32_t biWidth, std::int32_t biHeight) {
    if (biHeight == 1 && biWidth == cell_count(ScaleKind::thermal))
        return ScaleKind::thermal;
    if (biHeight == 1 && biWidth == cell_count(ScaleKind::sea))
        return ScaleKind::sea;
    if (biHeight == hvc_rows && biWidth == cell_count(ScaleKind::hvc))
        return ScaleKind::hvc;
    return std::nullopt;
}

// Pixels are looked for in steps of 4 bytes after the headers, up to where bfOffBits puts them.
long pixels_offset(std::int32_t bfOffBits) {
    constexpr auto end_of_headers = static_cast<std::int32_t>(headers_size);
    return bfOffBits <= end_of_headers ? end_of_headers
                                       : bfOffBits - (bfOffBits - end_of_headers) % 4;
}

std::vector<Colour> colours_of(std::span<const std::uint8_t> pixels) {
    std::vector<Colour> colours;
    colours.reserve(pixels.size() / pixel_size);
    for (std::size_t i = 0; i + pixel_size <= pixels.size(); i += pixel_size)
        colours.push_back(RGB(pixels[i + 2], pixels[i + 1], pixels[i]));
    return colours;
}

} // namespace

Bytes row_image(std::span<const Colour> cells) {
    Bytes bytes;
    append_headers(bytes,
                   {.info = {.biWidth = static_cast<std::int32_t>(cells.size()), .biHeight = 1}});
    const Bytes pixels = pixels_of(cells);
    bytes.insert(bytes.end(), pixels.begin(), pixels.end());
    bytes.resize(headers_size + (pixels.size() + 3) / 4 * 4);
    return bytes;
}

int brightness_levels(int steps) {
    if (steps == 0)
        return 0;
    return steps > 0 ? -4 * steps - 1 : -4 * steps + 1;
}

std::vector<Colour> shift_brightness(std::vector<Colour> cells, const BrightnessShift& shift) {
    const int last = std::min(shift.last, static_cast<int>(cells.size()) - 1);
    for (int cell = std::max(shift.first, 0); cell <= last; ++cell) {
        Colour& color = cells[static_cast<std::size_t>(cell)];
        color = shifted(color, shift.levels);
    }
    return cells;
}

Bytes hvc_image(std::span<const Colour> below, std::span<const Colour> above) {
    Bytes bytes;
    bytes.reserve(headers_size + below.size() * pixel_size * hvc_rows);
    append_headers(bytes, {.info = {.biWidth = static_cast<std::int32_t>(below.size()),
                                    .biHeight = hvc_rows}});
    append_hvc_rows(bytes, below, hvc_rows - 1, own_colours_row + 1);
    append_hvc_rows(bytes, above, own_colours_row, 0);
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
