#pragma once

#include "platform/binary_file.h"
#include "scale_editor/colour.h"

#include <span>

// The image format of the palette files: uncompressed 24-bit BMP with the 14-byte file header and
// the 40-byte information header, rows stored bottom first, pixels as blue, green, red.
namespace cirrava {

// The image of a one-row palette (Thermal, Sea Surface): one pixel per cell, coldest first, the row
// padded with zeros to a multiple of 4 bytes.
Bytes row_image(std::span<const Colour> cells);

} // namespace cirrava
