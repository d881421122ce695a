#include "scale_editor/number_text.h"

#include <gtest/gtest.h>

namespace cirrava {

TEST(NumberText, OnlyOneWholeDecimalNumberIsNumeric) {
    EXPECT_EQ(numeric_value("  39.8 "), 39.8);
    for (const char* text : {"", "   ", "-", "1 2", "12C", "1,5", "+-5", "inf", "nan"})
        EXPECT_EQ(numeric_value(text), std::nullopt) << '"' << text << '"';
}

} // namespace cirrava
