#pragma once

#include "palette_files/bmp_headers.h"
#include "platform/binary_file.h"
#include "scale_editor/colour.h"
#include "scale_editor/range.h"
#include "scale_editor/scale.h"

#include <optional>
#include <span>
#include <vector>

// The image format of the palette files: uncompressed 24-bit BMP with the 14-byte file header and
// the 40-byte information header, rows stored bottom first, pixels as blue, green, red. All
// functions work on bytes and know nothing of files.
namespace cirrava {

// The image of a one-row palette (Thermal, Sea Surface): one pixel per cell, coldest first, the row
// padded with zeros to a multiple of 4 bytes.
Bytes row_image(std::span<const Colour> cells);

// By how many levels a number of steps of the brightness slider changes each channel: steps above 0
// darken, by 5, 9, 13, 17 and 21 levels for 1 to 5 steps; steps below 0 lighten by as much.
int brightness_levels(int steps);

// `cells` with so many levels added to each channel of those in `range`, stopping at 0 and at 255.
std::vector<Colour> shift_brightness(std::span<const Colour> cells, int levels, const Range& range);

inline constexpr int hvc_rows = 256;

// The image of the HVC palette: one column per cell, 256 rows. Row 127 from the top has the cells'
// own colours; each row below is one level darker per channel and each above one level lighter,
// stopping at 0 and at 255.
Bytes hvc_image(std::span<const Colour> cells);

// Where the bytes of its row 127 start: above 128 rows of 100 pixels.
inline constexpr int hvc_row_127 = int{headers_size} + 128 * 100 * 3;

// Where the headers of a palette file say that its colours are.
struct PaletteLayout {
    ScaleKind kind;
    long pixels_offset = 0;      // bytes from the start of the file; may lie past its end
    std::size_t pixels_size = 0; // how many bytes from there matter, at the most
};

// Whether a file that begins with `headers` claims to be a bitmap at all.
bool is_bitmap(std::span<const std::uint8_t> headers);

// What `headers`, the first 54 bytes of a file, say; nothing when they are incomplete, or those of
// no bitmap, or of one whose size is that of none of the three palettes. Nothing but the size and
// the offset of the pixels is looked at.
std::optional<PaletteLayout> palette_layout(std::span<const std::uint8_t> headers);

// The colours for the first cells of the scale from `pixels`, the bytes that `layout` asks for or
// as many as the file has. A short one-row palette gives fewer colours; a short HVC palette throws
// Failure{past_end}.
std::vector<Colour> palette_colours(const PaletteLayout& layout,
                                    std::span<const std::uint8_t> pixels);

} // namespace cirrava
