#include "data/perlin/Shapes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "data/perlin/Workbench.h"

namespace quillbrand::perlin {
namespace {

/// The x coordinate as height: a source whose values are known.
class Ramp : public Module {
  public:
    Ramp() : Module(0) {}
    int GetSourceModuleCount() const override { return 0; }
    double GetValue(double x, double, double) const override { return x; }
};

/// Greatest change of height from one point to the next on a walk across several cells, in both
/// directions, in steps of a hundredth of a pixel.
double GreatestJump(const Module& shape) {
    double greatest = 0.0;
    for (const double across : {3.0, 47.0, 61.5, 122.25}) {
        for (int i = 0; i < 40000; ++i) {
            const double along = -150.0 + 0.01 * i;
            greatest = std::max({greatest,
                                 std::abs(shape.GetValue(along + 0.01, across, 0.0) -
                                          shape.GetValue(along, across, 0.0)),
                                 std::abs(shape.GetValue(across, along + 0.01, 0.0) -
                                          shape.GetValue(across, along, 0.0))});
        }
    }
    return greatest;
}

TEST(Shapes, HaveNoTearsWhereTheirCellsMeet) {
    Workbench make(5000, 75.0);
    const Module& source = make.Fractal(75.0, 0.4, 20.0);
    EXPECT_LT(GreatestJump(make.Cones(source, 60.0, 0.25)), 0.002);
    EXPECT_LT(GreatestJump(make.Broken(source, 20.0, 60.0, 0.25)), 0.005);
    EXPECT_LT(GreatestJump(make.Carved(source, {.spacing = 24.0, .depth = 0.2, .steep = 0.01})),
              0.002);
}

TEST(Remembered, GivesTheSourcesValueHoweverOneWalks) {
    const Ramp ramp;
    const Remembered remembered(ramp);
    // Points that share a slot: far apart, in the same row or two rows further, beyond the corner.
    for (const double x : {10.0, 4106.0, 10.25, -10.0, 10.0}) {
        for (const double y : {0.0, 2.0, -3.0, 0.0}) {
            EXPECT_EQ(remembered.GetValue(x, y, 0.0), x);
        }
    }
}

TEST(Profile, RunsThroughItsKnotsAndStaysBetweenThem) {
    const Ramp ramp;
    const Profile profile(ramp, {{-1.0, 0.0}, {0.0, 0.1}, {0.2, 1.0}, {1.0, -0.5}});
    EXPECT_DOUBLE_EQ(profile.GetValue(0.0, 0.0, 0.0), 0.1);
    EXPECT_DOUBLE_EQ(profile.GetValue(0.2, 0.0, 0.0), 1.0);
    for (double x = -1.0; x <= 1.0; x += 0.001) {
        const double height = profile.GetValue(x, 0.0, 0.0);
        EXPECT_GE(height, x < 0.2 ? 0.0 : -0.5);
        EXPECT_LE(height, x < 0.0 ? 0.1 : 1.0);
    }
    EXPECT_NEAR(profile.GetValue(-3.0, 0.0, 0.0), -0.2, 1e-9) << "goes on straight";
}

TEST(Terraces, AreLevelOnTheirTreadsAndKeepTheTotalRise) {
    const Ramp ramp;
    const Terraces terraces(ramp, 10.0, 1.0);
    for (const double x : {-20.0, 0.0, 30.0}) {
        EXPECT_NEAR(terraces.GetValue(x, 0.0, 0.0), x, 1e-9);
        EXPECT_NEAR(terraces.GetValue(x + 4.0, 0.0, 0.0), x, 1e-9);
        EXPECT_NEAR(terraces.GetValue(x + 9.0, 0.0, 0.0), x + 10.0, 1e-9);
    }
}

}  // namespace
}  // namespace quillbrand::perlin
