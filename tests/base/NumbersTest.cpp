#include "base/Numbers.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>

#include "base/Fault.h"
#include "base/NumberText.h"
#include "base/Stdio.h"

namespace quillbrand {
namespace {

TEST(Rounding, TakesHalvesToTheEvenNeighbourAndRefusesWhatDoesNotFit) {
    EXPECT_EQ(RoundTo32(2.5), 2);
    EXPECT_EQ(RoundTo32(3.5), 4);
    EXPECT_EQ(RoundTo32(-2.5), -2);
    EXPECT_EQ(RoundTo16(32767.4), 32767);
    EXPECT_THROW(RoundTo16(32767.5), Fault);
    EXPECT_EQ(RoundTo32(2147483647.4), 2147483647);
    EXPECT_THROW(RoundTo32(2147483647.5), Fault);
    EXPECT_THROW(RoundTo32(std::nan("")), Fault);
    EXPECT_THROW(NarrowTo16(-32769), Fault);
    EXPECT_THROW(NarrowToSingle(1e39), Fault);
}

TEST(PercentOf, CountsAWholeOfZeroAsDone) {
    EXPECT_EQ(PercentOf(5, 0), 100);
    EXPECT_EQ(PercentOf(3, 0, 50), 50);
    EXPECT_EQ(PercentOf(1, 8), 12);
}

TEST(Val, ReadsTheLongestLeadingNumberWithAPoint) {
    EXPECT_EQ(Val(" 42abc"), 42);
    EXPECT_EQ(Val("-1.5e2x"), -150);
    EXPECT_EQ(Val("+7"), 7);
    EXPECT_EQ(Val("1,5"), 1);
    for (const char* text : {"", "abc", "-", "+-3", "inf", "nan", "."})
        EXPECT_EQ(Val(text), 0);
}

TEST(NumberText, HasALeadingBlankOnlyInStr) {
    EXPECT_EQ(Str(5), " 5");
    EXPECT_EQ(Str(-5), "-5");
    EXPECT_EQ(ShortestText(30.0f), "30");
    EXPECT_EQ(ShortestText(0.1f), "0.1");
    EXPECT_EQ(Str(2.5), " 2.5");
}

TEST(Format, FollowsThePatternInEveryLocale) {
    EXPECT_EQ(Format(30, "#####.###"), "30.");
    EXPECT_EQ(Format(0.25, "#####.###"), ".25");
    EXPECT_EQ(Format(-300, "#######0"), "-300");
    EXPECT_EQ(Format(-0.2, "#######0"), "0");
    EXPECT_EQ(Format(1, "###.##%"), "100.%");
    EXPECT_EQ(Format(0.3505, "###.##%"), "35.05%");
    EXPECT_EQ(Format(37 / 100.0, "### %"), "37 %");
    EXPECT_EQ(Format(1234567, "###"), "1234567");
}

TEST(ClampValue, LetsTheUpperEndWinAndTiesTakeTheLast) {
    EXPECT_EQ(STDIO::ClampValue(0, 10, 11), 10);
    EXPECT_EQ(STDIO::ClampValue(5, 3, 4), 3);
    EXPECT_TRUE(std::signbit(STDIO::MinValue(0.0, -0.0)));
    EXPECT_TRUE(std::signbit(STDIO::MaxValue(0.0, -0.0)));
}

TEST(NumberFields, TakeDigitsOneCommaAndNoPoint) {
    EXPECT_TRUE(STDIO::NumericKeyFilter("12", ','));
    EXPECT_FALSE(STDIO::NumericKeyFilter("1,2", ','));
    EXPECT_FALSE(STDIO::NumericKeyFilter("12", '.'));
    for (const int key : {int{'0'}, int{'9'}, int{'-'}, 8, 13})
        EXPECT_TRUE(STDIO::NumericKeyFilter("1,2", key));
    std::string box = "123 metres";
    EXPECT_EQ(STDIO::ClampTextBox(box, 100, 1), 100);
    EXPECT_EQ(box, "100");
}

}  // namespace
}  // namespace quillbrand
