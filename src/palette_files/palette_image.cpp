#include "palette_files/palette_image.h"

#include <cstdint>

namespace cirrava {

namespace {

constexpr std::int32_t headers_size = 14 + 40;

template <class Integer> void append_little_endian(Bytes& bytes, Integer value) {
    for (std::size_t i = 0; i < sizeof value; ++i)
        bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

void append_file_header(Bytes& bytes) {
    bytes.push_back('B'); // bfType
    bytes.push_back('M');
    append_little_endian<std::int32_t>(bytes, 0);            // bfSize: unused without compression
    append_little_endian<std::int16_t>(bytes, 0);            // bfReserved1
    append_little_endian<std::int16_t>(bytes, 0);            // bfReserved2
    append_little_endian<std::int32_t>(bytes, headers_size); // bfOffBits
}

void append_info_header(Bytes& bytes, std::int32_t biWidth, std::int32_t biHeight) {
    append_little_endian<std::int32_t>(bytes, 40); // biSize
    append_little_endian(bytes, biWidth);
    append_little_endian(bytes, biHeight);
    append_little_endian<std::int16_t>(bytes, 1);    // biPlanes
    append_little_endian<std::int16_t>(bytes, 24);   // biBitCount
    append_little_endian<std::int32_t>(bytes, 0);    // biCompression: none
    append_little_endian<std::int32_t>(bytes, 0);    // biSizeImage: may be 0 without compression
    append_little_endian<std::int32_t>(bytes, 2834); // biXPelsPerMeter: 72 dots per inch
    append_little_endian<std::int32_t>(bytes, 2834); // biYPelsPerMeter
    append_little_endian<std::int32_t>(bytes, 0);    // biClrUsed
    append_little_endian<std::int32_t>(bytes, 0);    // biClrImportant
}

void append_pixel(Bytes& bytes, Colour color) {
    const ChannelBytes channels = Data_byte_calc(color);
    bytes.push_back(channels.blue_byte);
    bytes.push_back(channels.green_byte);
    bytes.push_back(channels.red_byte);
}

} // namespace

Bytes row_image(std::span<const Colour> cells) {
    const std::size_t row_size = (cells.size() * 3 + 3) / 4 * 4;
    Bytes bytes;
    bytes.reserve(headers_size + row_size);
    append_file_header(bytes);
    append_info_header(bytes, static_cast<std::int32_t>(cells.size()), 1);
    for (const Colour color : cells)
        append_pixel(bytes, color);
    bytes.resize(headers_size + row_size);
    return bytes;
}

} // namespace cirrava
