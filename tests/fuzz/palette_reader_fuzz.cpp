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
    const auto pixels = file.subspan(std::min(static_cast<std::size_t>(layout->pixels_at), size));
    const auto wanted = pixels.first(std::min(pixels.size(), layout->pixels_size));
    const auto cells = static_cast<std::size_t>(cell_count(layout->kind));
    bool as_it_must_be = layout->pixels_at >= 54;
    try {
        const std::vector<Colour> colours = palette_colours(*layout, wanted);
        as_it_must_be &=
            colours.size() == std::min(wanted.size() / 3, cells) &&
            std::ranges::all_of(colours, [](Colour colour) { return colour >> 24 == 0; });
    } catch (const Failure& failure) {
        as_it_must_be &=
            failure.number == FailureNumber::past_end && wanted.size() < layout->pixels_size;
    }
    if (!as_it_must_be)
        std::abort();
    return 0;
}
