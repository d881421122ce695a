#include "palette_files/palette_image.h"
#include "platform/failure.h"

#include <algorithm>
#include <cstdlib>

// Takes any bytes for a palette file and reads them as the program does.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace cirrava;
    const std::span file(data, size);
    const auto headers = file.first(std::min(size, headers_size));
    const auto layout = palette_layout(headers);
    if (!layout)
        return 0;
    const auto pixels =
        file.subspan(std::min(static_cast<std::size_t>(layout->pixels_offset), size));
    const auto wanted = pixels.first(std::min(pixels.size(), layout->pixels_size));
    try {
        const auto colours = palette_colours(*layout, wanted);
        if (std::ssize(colours) > cell_count(layout->kind) || layout->pixels_offset < 54)
            std::abort();
    } catch (const Failure&) {
        if (wanted.size() == layout->pixels_size)
            std::abort(); // only a short file fails
    }
    return 0;
}
