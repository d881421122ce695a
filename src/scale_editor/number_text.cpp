#include "scale_editor/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace cirrava {

namespace {

constexpr int significant_digits = 15;

std::string fixed_text(double value, int decimals) {
    std::array<char, 400> buffer{}; // the largest double has 309 digits before the point
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                            std::chars_format::fixed, decimals);
    return {buffer.data(), end};
}

// 3 for 121.1, 0 for 0.5, -1 for 0.05.
int digits_before_point(double value) {
    return value == 0 ? 1 : static_cast<int>(std::floor(std::log10(std::fabs(value)))) + 1;
}

} // namespace

std::string plain_text(double value) {
    const int decimals = std::max(0, significant_digits - digits_before_point(value));
    std::string text = fixed_text(value, decimals);
    if (text.find('.') != std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.ends_with('.'))
            text.pop_back();
    }
    return text == "-0" ? "0" : text;
}

std::string one_decimal_text(double value) {
    const double rounded = std::round(value * 10.0) / 10.0;
    return fixed_text(rounded + 0.0, 1); // adding zero turns -0 into 0
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
