#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

// The two header records of an uncompressed 24-bit BMP file, with the values of a palette file. All
// fields are stored in little-endian order, without gaps.
namespace cirrava {

struct bmp_file_header {
    std::uint16_t bfType = 0x4D42; // "BM"
    std::int32_t bfSize = 0;       // of the file; Cirrava's palettes leave it 0
    std::int16_t bfReserved1 = 0;
    std::int16_t bfReserved2 = 0;
    std::int32_t bfOffBits = 54; // of the pixels, from the start of the file
};

struct bmp_info_header {
    std::int32_t biSize = 40; // of this record
    std::int32_t biWidth = 0; // in pixels
    std::int32_t biHeight = 0;
    std::int16_t biPlanes = 1;
    std::int16_t biBitCount = 24;
    std::int32_t biCompression = 0;      // none
    std::int32_t biSizeImage = 0;        // may be 0 without compression
    std::int32_t biXPelsPerMeter = 2834; // 72 dots per inch
    std::int32_t biYPelsPerMeter = 2834;
    std::int32_t biClrUsed = 0;
    std::int32_t biClrImportant = 0;
};

struct BmpHeaders {
    bmp_file_header file = {};
    bmp_info_header info = {};
};

inline constexpr std::size_t headers_size = 14 + 40; // in bytes

void append_headers(std::vector<std::uint8_t>& bytes, const BmpHeaders& headers);

// The headers at the start of `bytes`; what is missing there counts as zeros.
BmpHeaders read_headers(std::span<const std::uint8_t> bytes);

} // namespace cirrava
