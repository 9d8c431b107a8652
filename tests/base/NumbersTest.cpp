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

TEST(Val, ReadsTheLongestLeadingNumberWithAPoint) {
    EXPECT_EQ(Val(" 42abc"), 42);
    EXPECT_EQ(Val("-1.5e2x"), -150);
    EXPECT_EQ(Val("+7"), 7);
    EXPECT_EQ(Val("1,5"), 1);
    for (const char* text : {"", "abc", "-", "--5", "+-5", "-+5", "+ 5", "inf", "nan", "."})
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
    const std::tuple<double, const char*, std::string> cases[] = {
        {30, "#####.###", "30."}, {0.25, "#####.###", ".25"}, {-300, "#######0", "-300"},
        {-0.2, "#######0", "0"},  {1, "###.##%", "100.%"},    {0.3505, "###.##%", "35.05%"},
        {0.37, "### %", "37 %"},  {1234567, "###", "1234567"}};
    for (const auto& [value, pattern, text] : cases)
        EXPECT_EQ(Format(value, pattern), text);
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

TEST(RandomSource, IgnoresTheClockWhenFixed) {
    RandomSource fixed(7);
    RandomSource twin(7);
    fixed.ReseedFromClock();
    EXPECT_EQ(fixed.Uniform(), twin.Uniform());
}

}  // namespace
}  // namespace quillbrand
