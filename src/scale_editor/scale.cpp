#include "scale_editor/scale.h"

#include "scale_editor/number_text.h"

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

double fahrenheit(double celsius) {
    return celsius * 9.0 / 5.0 + 32.0;
}

std::string celsius_text(ScaleKind kind, int cell) {
    const double value = celsius(kind, cell);
    return kind == ScaleKind::hvc ? plain_text(value) : one_decimal_text(value);
}

std::string fahrenheit_text(std::string_view celsius_text) {
    const auto value = numeric_value(celsius_text);
    return value ? plain_text(fahrenheit(*value)) : " ";
}

std::string tick_text(ScaleKind kind, int cell) {
    const double value = celsius(kind, cell);
    return plain_text(value) + "C/" + plain_text(fahrenheit(value)) + "F";
}

std::string tooltip_text(ScaleKind kind, int cell) {
    std::string text = "(";
    text += std::to_string(cell + 1) + ") " + celsius_text(kind, cell) + "Celcius / ";
    text += plain_text(fahrenheit(celsius(kind, cell))) + "Farenheit";
    return text;
}

std::string spoken_text(ScaleKind kind, int cell) {
    std::string text = "cell ";
    text += std::to_string(cell + 1) + ", " + celsius_text(kind, cell) + " C, ";
    text += plain_text(fahrenheit(celsius(kind, cell))) + " F";
    return text;
}

} // namespace cirrava
