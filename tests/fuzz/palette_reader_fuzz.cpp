#include "palette_files/palette_image.h"
#include "platform/failure.h"

#include <algorithm>
#include <cstdlib>

// Takes any bytes for a palette file and reads them as the program does.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace cirrava;
    const std::span file(data, size);
    const auto layout = palette_layout(file.first(std::min(size, headers_size)));
    if (!layout)
        return 0;
    const auto offset = std::min(static_cast<std::size_t>(layout->pixels_offset), size);
    const auto pixels = file.subspan(offset, std::min(size - offset, layout->pixels_size));
    try {
        if (std::ssize(palette_colours(*layout, pixels)) > cell_count(layout->kind))
            std::abort();
    } catch (const Failure&) {
        if (pixels.size() == layout->pixels_size)
            std::abort(); // only a short file fails
    }
    return 0;
}
