#include "base/RandomSource.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace quillbrand {
namespace {

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
    bool changed = false;
    for (int i = 0; i < 3 && !changed; ++i) {
        free.ReseedFromClock();
        changed = free.Uniform() != before;
    }
    EXPECT_TRUE(changed);
}

}  // namespace
}  // namespace quillbrand
