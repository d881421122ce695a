#include "scale_editor/scale.h"

#include "scale_editor/number_text.h"

namespace cirrava {

std::string_view kind_text(ScaleKind kind) {
    switch (kind) {
    case ScaleKind::thermal:
        return "Thermal";
    case ScaleKind::sea:
        return "Sea";
    case ScaleKind::hvc:
        return "HVC";
    }
    return {};
}

int cell_count(ScaleKind kind) {
    switch (kind) {
    case ScaleKind::thermal:
        return 320;
    case ScaleKind::sea:
        return 250;
    case ScaleKind::hvc:
        return 100;
    }
    return 0;
}

double celsius(ScaleKind kind, int cell) {
    switch (kind) {
    case ScaleKind::thermal:
        return cell / 2.0 - 110.0;
    case ScaleKind::sea:
        return cell * 0.2 - 10.0;
    case ScaleKind::hvc:
        return cell - 60;
    }
    return 0;
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
