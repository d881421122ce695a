#pragma once

#include <optional>
#include <string>
#include <string_view>

// Numbers as the window shows them. No locale changes any of it: the decimal point is ".".
namespace cirrava {

// The shortest decimal text of `value` with at most 15 significant digits, which hides most
// rounding noise of double arithmetic: 14.360000000000001 gives 14.36. For 0 and for magnitudes
// from 0.0001 to 1e15; others would be written with an exponent.
std::string plain_text(double value);

// `value` rounded to one decimal digit: -110 gives -110.0. For magnitudes below 1e15.
std::string one_decimal_text(double value);

// The value of a text that is one decimal number (sign, fraction and exponent optional, blanks
// around it allowed), or nothing: in particular for a text of blanks only.
std::optional<double> numeric_value(std::string_view text);

} // namespace cirrava
