#include "palette_files/palette_image.h"
#include "platform/failure.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

// Takes any bytes for a palette file and reads them as the program does.
namespace {

void require(bool holds, const char* what) {
    if (holds)
        return;
    std::fprintf(stderr, "not so: %s\n", what);
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace cirrava;
    const std::span file(data, size);
    const auto headers = file.first(std::min(size, headers_size));
    if (!is_bitmap(headers))
        return 0;
    const auto layout = palette_layout(headers);
    if (!layout)
        return 0;
    require(layout->pixels_at >= 54, "the pixels come after the headers");

    const auto pixels = file.subspan(std::min(static_cast<std::size_t>(layout->pixels_at), size));
    const auto wanted = pixels.first(std::min(pixels.size(), layout->pixels_size));
    const auto cells = static_cast<std::size_t>(cell_count(layout->kind));
    try {
        const std::vector<Colour> colours = palette_colours(*layout, wanted);
        require(colours.size() == std::min(wanted.size() / 3, cells), "each pixel is one cell");
        require(std::ranges::all_of(colours, [](Colour colour) { return colour >> 24 == 0; }),
                "a colour has 24 bits");
    } catch (const Failure& failure) {
        require(failure.number == FailureNumber::past_end && wanted.size() < layout->pixels_size,
                "only a short file fails");
    }
    return 0;
}
