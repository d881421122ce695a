#include "scale_editor/number_text.h"

#include <gtest/gtest.h>

namespace cirrava {

TEST(NumberText, PlainTextIsShortAndHidesRoundingNoise) {
    EXPECT_EQ(plain_text(-166), "-166");
    EXPECT_EQ(plain_text(121.1), "121.1");
    EXPECT_EQ(plain_text(-0.5), "-0.5");
    EXPECT_EQ(plain_text(39.800000000000004), "39.8");
    EXPECT_EQ(plain_text(14.360000000000001), "14.36");
    EXPECT_EQ(plain_text(-0.199999999999999), "-0.199999999999999");
    EXPECT_EQ(plain_text(9.9999999999999996), "10");
    EXPECT_EQ(plain_text(100), "100");
    EXPECT_EQ(plain_text(-0.0), "0");
    EXPECT_EQ(plain_text(0.00001), "0.00001");
    EXPECT_EQ(plain_text(123456789012345), "123456789012345");
}

TEST(NumberText, OneDecimalRoundsHalvesAwayFromZero) {
    EXPECT_EQ(one_decimal_text(-110), "-110.0");
    EXPECT_EQ(one_decimal_text(0), "0.0");
    EXPECT_EQ(one_decimal_text(-0.199999999999999), "-0.2");
    EXPECT_EQ(one_decimal_text(0.25), "0.3");
    EXPECT_EQ(one_decimal_text(-0.25), "-0.3");
    EXPECT_EQ(one_decimal_text(-0.01), "0.0");
}

TEST(NumberText, OnlyOneWholeDecimalNumberIsNumeric) {
    EXPECT_EQ(numeric_value("-110.0"), -110.0);
    EXPECT_EQ(numeric_value("  39.8 "), 39.8);
    EXPECT_EQ(numeric_value("+5"), 5.0);
    EXPECT_EQ(numeric_value("1e2"), 100.0);
    for (const char* text : {"", " ", "   ", "-", "1 2", "12C", "1,5", "+-5", "++5", "inf", "nan"})
        EXPECT_EQ(numeric_value(text), std::nullopt) << '"' << text << '"';
}

} // namespace cirrava
