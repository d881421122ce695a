#include "scale_editor/number_text.h"

#include <array>
#include <charconv>
#include <cmath>

namespace cirrava {

namespace {

std::string text_of(double value, std::chars_format format, int precision) {
    std::array<char, 32> buffer{};
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, precision);
    return {buffer.data(), end};
}

} // namespace

std::string plain_text(double value) {
    return text_of(value, std::chars_format::general, 15);
}

std::string one_decimal_text(double value) {
    return text_of(value, std::chars_format::fixed, 1);
}

std::optional<double> numeric_value(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return std::nullopt;
    text = text.substr(first, text.find_last_not_of(' ') - first + 1);
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1); // from_chars knows the minus sign only

    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

} // namespace cirrava
