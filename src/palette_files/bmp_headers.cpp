#include "palette_files/bmp_headers.h"

#include <type_traits>

namespace cirrava {

namespace {

// Calls `visit` with every field in the order of the file.
template <class Headers, class Visit> void for_each_field(Headers& headers, Visit visit) {
    const auto visit_all = [&visit](auto&... fields) { (visit(fields), ...); };
    auto& [file, info] = headers;
    visit_all(file.bfType, file.bfSize, file.bfReserved1, file.bfReserved2, file.bfOffBits);
    visit_all(info.biSize, info.biWidth, info.biHeight, info.biPlanes, info.biBitCount,
              info.biCompression, info.biSizeImage, info.biXPelsPerMeter, info.biYPelsPerMeter,
              info.biClrUsed, info.biClrImportant);
}

} // namespace

void append_headers(std::vector<std::uint8_t>& bytes, const BmpHeaders& headers) {
    for_each_field(headers, [&bytes](auto field) {
        for (std::size_t i = 0; i < sizeof field; ++i)
            bytes.push_back(static_cast<std::uint8_t>(field >> (8 * i)));
    });
}

BmpHeaders read_headers(std::span<const std::uint8_t> bytes) {
    BmpHeaders headers;
    std::size_t offset = 0;
    for_each_field(headers, [&](auto& field) {
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < sizeof field; ++i, ++offset)
            value |= (offset < bytes.size() ? bytes[offset] : 0U) << (8 * i);
        field = static_cast<std::remove_reference_t<decltype(field)>>(value);
    });
    return headers;
}

} // namespace cirrava
