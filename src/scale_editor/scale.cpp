#include "scale_editor/scale.h"

#include <array>
#include <charconv>

namespace cirrava {

namespace {

struct Scale {
    std::string_view name;
    int cells;
    double first; // degrees Celsius
    double step;
};

// In the order of `ScaleKind`.
constexpr Scale scales[]{
    {"Thermal", 320, -110, 0.5},
    {"Sea", 250, -10, 0.2},
    {"HVC", 100, -60, 1},
};

const Scale& scale(ScaleKind kind) {
    return scales[static_cast<std::size_t>(kind)];
}

// Writes a number as no locale changes it.
std::string text_of(double value, std::chars_format format, int precision) {
    std::array<char, 32> buffer{};
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, precision);
    return {buffer.data(), end};
}

// Writes at most 15 significant digits, which hide most of the noise: 14.360000000000001 gives
// 14.36, but -18 degrees Celsius are -0.399999999999999 in Fahrenheit.
std::string plain_text(double value) {
    return text_of(value, std::chars_format::general, 15);
}

} // namespace

std::string_view kind_text(ScaleKind kind) {
    return scale(kind).name;
}

int cell_count(ScaleKind kind) {
    return scale(kind).cells;
}

double celsius(ScaleKind kind, int cell) {
    return cell * scale(kind).step + scale(kind).first;
}

double celsius_step(ScaleKind kind) {
    return scale(kind).step;
}

std::string celsius_text(ScaleKind kind, int cell) {
    const double value = celsius(kind, cell);
    return kind == ScaleKind::hvc ? plain_text(value) : text_of(value, std::chars_format::fixed, 1);
}

std::string fahrenheit_text(ScaleKind kind, int cell) {
    return plain_text(celsius(kind, cell) * 9.0 / 5.0 + 32.0);
}

std::string tick_text(ScaleKind kind, int cell) {
    return plain_text(celsius(kind, cell)) + "C/" + fahrenheit_text(kind, cell) + "F";
}

// Spelt as users know it.
std::string tooltip_text(ScaleKind kind, int cell) {
    return std::string("(") + std::to_string(cell + 1) + ") " + celsius_text(kind, cell) +
           "Celcius / " + fahrenheit_text(kind, cell) + "Farenheit";
}

std::string spoken_text(ScaleKind kind, int cell) {
    return std::string("cell ") + std::to_string(cell + 1) + ", " + celsius_text(kind, cell) +
           " C, " + fahrenheit_text(kind, cell) + " F";
}

} // namespace cirrava
