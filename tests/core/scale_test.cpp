#include "scale_editor/scale.h"

#include <gtest/gtest.h>

namespace cirrava {

using enum ScaleKind;

TEST(Scale, NamesTheTemperaturesOfItsCells) {
    const struct {
        ScaleKind kind;
        int cell;
        const char* celsius;
        const char* tick;
        const char* tooltip;
    } cases[]{
        {thermal, 0, "-110.0", "-110C/-166F", "(1) -110.0Celcius / -166Farenheit"},
        {thermal, 219, "-0.5", "-0.5C/31.1F", "(220) -0.5Celcius / 31.1Farenheit"},
        {thermal, 220, "0.0", "0C/32F", "(221) 0.0Celcius / 32Farenheit"},
        {thermal, 319, "49.5", "49.5C/121.1F", "(320) 49.5Celcius / 121.1Farenheit"},
        {sea, 1, "-9.8", "-9.8C/14.36F", "(2) -9.8Celcius / 14.36Farenheit"},
        {sea, 50, "0.0", "0C/32F", "(51) 0.0Celcius / 32Farenheit"},
        {sea, 249, "39.8", "39.8C/103.64F", "(250) 39.8Celcius / 103.64Farenheit"},
        {hvc, 0, "-60", "-60C/-76F", "(1) -60Celcius / -76Farenheit"},
        {hvc, 99, "39", "39C/102.2F", "(100) 39Celcius / 102.2Farenheit"},
    };
    for (const auto& expected : cases) {
        EXPECT_EQ(celsius_text(expected.kind, expected.cell), expected.celsius);
        EXPECT_EQ(tick_text(expected.kind, expected.cell), expected.tick);
        EXPECT_EQ(tooltip_text(expected.kind, expected.cell), expected.tooltip);
    }
}

TEST(Scale, ShowsTheSameFahrenheitInBoxAndTooltip) {
    for (const ScaleKind kind : all_scales)
        for (int cell = 0; cell < cell_count(kind); ++cell) {
            const std::string fahrenheit = fahrenheit_text(celsius_text(kind, cell));
            EXPECT_NE(tooltip_text(kind, cell).find(" / " + fahrenheit + "F"), std::string::npos)
                << tooltip_text(kind, cell);
            // Fifteen digits hide all rounding noise but that of -18 degrees, next to 0 Fahrenheit.
            EXPECT_TRUE(fahrenheit.size() <= 6 || fahrenheit == "-0.399999999999999") << fahrenheit;
        }
}

} // namespace cirrava
