#include "scale_editor/scale.h"

#include "scale_editor/number_text.h"

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
        {sea, 249, "39.8", "39.8C/103.64F", "(250) 39.8Celcius / 103.64Farenheit"},
        {hvc, 99, "39", "39C/102.2F", "(100) 39Celcius / 102.2Farenheit"},
    };
    for (const auto& expected : cases) {
        EXPECT_EQ(celsius_text(expected.kind, expected.cell), expected.celsius);
        EXPECT_EQ(tick_text(expected.kind, expected.cell), expected.tick);
        EXPECT_EQ(tooltip_text(expected.kind, expected.cell), expected.tooltip);
    }
}

TEST(Scale, OnlyOneWholeDecimalNumberIsNumeric) {
    EXPECT_EQ(numeric_value("  39.8 "), 39.8);
    for (const char* text : {"", "   ", "-", "1 2", "12C", "1,5", "+-5", "inf", "nan"})
        EXPECT_EQ(numeric_value(text), std::nullopt) << '"' << text << '"';
}

} // namespace cirrava
