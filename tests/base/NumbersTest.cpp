#include "base/Numbers.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <random>
#include <tuple>

#include "base/Fault.h"
#include "base/NumberText.h"
#include "base/RandomSource.h"
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
    for (const char* text : {"", "abc", "-", "--5", "+-5", "-+5", "+ 5", "inf", "nan", "."})
        EXPECT_EQ(Val(text), 0);
}

TEST(ClampedVal, RoundsAndTakesAnyNumber) {
    EXPECT_EQ(ClampedVal("2.5x", 0, 9), 2);
    EXPECT_EQ(ClampedVal("-0.6", 0, 9), 0);
    EXPECT_EQ(ClampedVal("1e20"), INT32_MAX);
    EXPECT_EQ(ClampedVal("-1e20"), INT32_MIN);
    EXPECT_EQ(ClampedVal("none", 3, 9), 3);
}

TEST(ShownText, IsAQuestionMarkForWhatCannotBeShown) {
    EXPECT_EQ(ShownText([] { return Format(1, "0"); }), "1");
    EXPECT_EQ(ShownText([] { return Format(std::nan(""), "0"); }), "?");
}

TEST(NumberText, HasALeadingBlankOnlyInStr) {
    EXPECT_EQ(Str(5), " 5");
    EXPECT_EQ(Str(-5), "-5");
    EXPECT_EQ(ShortestText(30.0f), "30");
    EXPECT_EQ(ShortestText(0.1f), "0.1");
    EXPECT_EQ(Str(2.5), " 2.5");
}

TEST(Format, FollowsThePatternInEveryLocale) {
    const std::tuple<double, const char*, std::string> cases[] = {
        {30, "#####.###", "30."}, {0.25, "#####.###", ".25"}, {-300, "#######0", "-300"},
        {-0.2, "#######0", "0"},  {1, "###.##%", "100.%"},    {0.3505, "###.##%", "35.05%"},
        {0.37, "### %", "37 %"},  {1234567, "###", "1234567"}};
    for (const auto& [value, pattern, text] : cases)
        EXPECT_EQ(Format(value, pattern), text);
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

TEST(RandomSource, GivesTheTwistersOwnSequenceHoweverItIsDrawn) {
    std::mt19937 twister(123456);
    RandomSource source(123456);
    const auto expected = [&] { return static_cast<double>(twister()) / 4294967296.0; };
    // Draws of all kinds, across the borders of several blocks.
    for (const std::size_t count : {1u, 623u, 624u, 2000u, 5u, 1248u, 0u, 700u}) {
        EXPECT_EQ(source.Uniform(), expected());
        std::vector<double> drawn(count);
        source.Fill(drawn);
        for (std::size_t i = 0; i < count; ++i)
            ASSERT_EQ(drawn[i], expected());
        source.Discard(count);
        twister.discard(count);
    }
}

TEST(RandomSource, IgnoresTheClockOnlyWhenFixed) {
    RandomSource fixed(7);
    RandomSource twin(7);
    fixed.ReseedFromClock();
    EXPECT_EQ(fixed.Uniform(), twin.Uniform());

    RandomSource free;
    const double before = free.Uniform();
    free.ReseedFromClock();
    const double once = free.Uniform();
    free.ReseedFromClock();
    EXPECT_TRUE(once != before || free.Uniform() != before);
}

}  // namespace
}  // namespace quillbrand
