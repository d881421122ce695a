#pragma once

#include <string>
#include <string_view>

// The three temperature scales and the texts that name their temperatures.
namespace cirrava {

enum class ScaleKind { thermal, sea, hvc };

// The name of a scale, as the window shows it: "Thermal", "Sea" or "HVC".
std::string_view kind_text(ScaleKind kind);

// How many cells a scale has: 320, 250 or 100. Its cells are numbered from 0, the coldest.
int cell_count(ScaleKind kind);

// The temperature of a cell in degrees Celsius: Thermal -110 to 49.5 in steps of 0.5, Sea Surface
// -10 to 39.8 in steps of 0.2, HVC -60 to 39 in steps of 1. May carry the noise of double
// arithmetic in its last digits; the texts below hide most of it.
double celsius(ScaleKind kind, int cell);

// How much warmer each cell is than the one before it: 0.5, 0.2 or 1 degrees Celsius.
double celsius_step(ScaleKind kind);

// A cell's Celsius value as the range boxes show it: with one decimal, on HVC with none.
std::string celsius_text(ScaleKind kind, int cell);

// The same in degrees Fahrenheit, with as many decimals as it has.
std::string fahrenheit_text(ScaleKind kind, int cell);

// "0C/32F", for the label under a cell.
std::string tick_text(ScaleKind kind, int cell);

// "(221) 0.0Celcius / 32Farenheit", for the tooltip of a cell; the cells are counted from 1.
std::string tooltip_text(ScaleKind kind, int cell);

// "cell 221, 0.0 C, 32 F", the name of a cell for screen readers; counted from 1, too.
std::string spoken_text(ScaleKind kind, int cell);

} // namespace cirrava
