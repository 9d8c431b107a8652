#include "data/perlin/Shapes.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <numbers>
#include <utility>

#include "data/perlin/Scatter.h"

namespace quillbrand::perlin {

namespace {

constexpr double fullTurn = 2.0 * std::numbers::pi;

double SmoothStep(double low, double high, double value) {
    const double t = std::clamp((value - low) / (high - low), 0.0, 1.0);
    return t * t * (3.0 - 2.0 * t);
}

/// Height of a volcano with the crater's rim at `rim`, where the cone ends at 1.
double Cone(double away, double rim) {
    const double flank = (1.0 - away) * (1.0 - away) * (1.0 - 0.35 * away);
    const double rimHeight = (1.0 - rim) * (1.0 - rim) * (1.0 - 0.35 * rim);
    const double inside = away / rim;
    const double bowl = rimHeight * (0.45 + 0.55 * inside * inside);
    // The lower of the two, rounded where they meet. That takes this much off the rim; all but the
    // foot gets it back.
    constexpr double rounding = 0.0224;
    const double apart = flank - bowl;
    return (flank + bowl - std::sqrt(apart * apart + 4.0 * rounding * rounding)) / 2.0 +
           rounding * SmoothStep(1.0, 0.8, away);
}

struct Vector {
    double x;
    double y;
};

struct Stripes {
    double height;  ///< -1..1
    double climb;   ///< how much it changes over a radian of the stripes, in their direction
};

/// Parallel waves at (x, y) that follow each other in the direction `across`. Each cell has its own
/// wave, highest at its scattered point; where cells meet they blend. The cells lie `turned`
/// radians askew.
Stripes StripesAt(double x, double y, Vector across, double spacing, double turned, int seed) {
    const double cosine = std::cos(turned);
    const double sine = std::sin(turned);
    const double waveX = fullTurn * (cosine * across.x - sine * across.y);
    const double waveY = fullTurn * (sine * across.x + cosine * across.y);
    double weights = 0.0;
    double height = 0.0;
    double climb = 0.0;
    ForEachNear((cosine * x - sine * y) / spacing, (sine * x + cosine * y) / spacing, seed,
                [&](const Scattered& cell) {
                    const double weight = cell.Weight();
                    if (weight > 0.0) {
                        const double phase = cell.dx * waveX + cell.dy * waveY;
                        weights += weight;
                        height += weight * std::cos(phase);
                        climb -= weight * std::sin(phase);
                    }
                });
    return {height / weights, climb / weights};
}

}  // namespace

double Remembered::GetValue(double x, double y, double z) const {
    const auto column = static_cast<std::size_t>(static_cast<long>(x)) % keptColumns;
    const auto row = static_cast<std::size_t>(static_cast<long>(y)) % 2;
    Slot& slot = slots_[row * keptColumns + column];
    if (slot.x != x || slot.y != y || slot.z != z)
        slot = {x, y, z, Source(x, y, z)};
    return slot.value;
}

Profile::Profile(const Module& source, std::vector<Knot> knots)
    : Shape(source), knots_(std::move(knots)) {
    assert(knots_.size() >= 2);
    const auto slopeFrom = [this](std::size_t i) {
        return (knots_[i + 1].newHeight - knots_[i].newHeight) /
               (knots_[i + 1].height - knots_[i].height);
    };
    slopes_.push_back(slopeFrom(0));
    for (std::size_t i = 1; i + 1 < knots_.size(); ++i) {
        const double before = slopeFrom(i - 1);
        const double after = slopeFrom(i);
        // The harmonic mean keeps the curve between its knots; a turning point is level.
        slopes_.push_back(before * after > 0.0 ? 2.0 * before * after / (before + after) : 0.0);
    }
    slopes_.push_back(slopeFrom(knots_.size() - 2));
}

double Profile::GetValue(double x, double y, double z) const {
    const double height = Source(x, y, z);
    if (height <= knots_.front().height)
        return knots_.front().newHeight + slopes_.front() * (height - knots_.front().height);
    if (height >= knots_.back().height)
        return knots_.back().newHeight + slopes_.back() * (height - knots_.back().height);
    std::size_t i = 1;
    while (knots_[i].height < height)
        ++i;
    const Knot& low = knots_[i - 1];
    const Knot& high = knots_[i];
    const double width = high.height - low.height;
    const double t = (height - low.height) / width;
    const double u = 1.0 - t;
    return u * u * (1.0 + 2.0 * t) * low.newHeight + t * t * (1.0 + 2.0 * u) * high.newHeight +
           width * t * u * (u * slopes_[i - 1] - t * slopes_[i]);
}

double Terraces::GetValue(double x, double y, double z) const {
    const double steps = Source(x, y, z) / step_;
    const double tread = std::floor(steps);
    const double onTread = steps - tread;
    const double riser = SmoothStep(0.5 * flat_, 1.0 - 0.35 * flat_, onTread);
    return step_ * (tread + onTread + flat_ * (riser - onTread));
}

double Gullies::GetValue(double x, double y, double z) const {
    double height = Source(x, y, z);
    Vector slope{Source(x + 1.0, y, z) - height, Source(x, y + 1.0, z) - height};
    const double rise = slope.x * slope.x + slope.y * slope.y;

    double depth = cut_.depth * rise / (rise + cut_.steep * cut_.steep);
    int octave = 0;
    for (double spacing = cut_.spacing; spacing >= cut_.finest; spacing /= 2.0) {
        const double steepness = std::sqrt(slope.x * slope.x + slope.y * slope.y) + 1e-9;
        const Vector across{-slope.y / steepness, slope.x / steepness};
        // Each octave's cells lie in another direction, lest their rows show.
        const double turned = 0.5 + 1.1 * octave;
        const Stripes spurs = StripesAt(x, y, across, spacing, turned, seed_ + octave);
        const double climb = depth * spurs.climb * fullTurn / spacing;
        height += depth * spurs.height;
        slope = {slope.x + climb * across.x, slope.y + climb * across.y};
        depth *= cut_.gain;
        ++octave;
    }
    return height;
}

double Leaning::GetValue(double x, double y, double z) const {
    const double first = Source(x, y, z);
    const double second = Source(x - lean_ * first, y, z);
    const double third = Source(x - lean_ * (first + second) / 2.0, y, z);
    return Source(x - lean_ * (second + third) / 2.0, y, z);
}

double Volcanoes::GetValue(double x, double y, double z) const {
    const double fray = 1.0 + 0.12 * std::clamp(Source(x, y, z), -1.0, 1.0);
    double fourthPowers = 0.0;
    ForEachNear(x / spacing_, y / spacing_, seed_, [&](const Scattered& cell) {
        // The widest cone, frayed, still ends within the reach of the scatter.
        const double size = 0.35 + 0.65 * cell.Chance(1);
        const double away = std::sqrt(cell.Distance2()) * fray / (0.85 * scatterReach * size);
        if (away < 1.0) {
            const double height = size * Cone(away, crater_ * (0.5 + cell.Chance(2)));
            fourthPowers += height * height * height * height;
        }
    });
    // About the highest of them, without a crease where two cones meet.
    return std::sqrt(std::sqrt(fourthPowers));
}

double Blocks::GetValue(double x, double y, double z) const {
    // The source at a far place serves for the second direction.
    const double column = (x + reach_ * Source(x, y, z)) / spacing_;
    const double row = (y + reach_ * Source(x + 9773.0, y - 6137.0, z)) / spacing_;
    double nearest = 2.0;
    ForEachNear(column, row, seed_,
                [&](const Scattered& cell) { nearest = std::min(nearest, cell.Distance2()); });
    double weights = 0.0;
    double height = 0.0;
    ForEachNear(column, row, seed_, [&](const Scattered& cell) {
        const double closeness = 1.0 - (cell.Distance2() - nearest) / cliff_;
        if (closeness > 0.0) {
            const double weight = closeness * closeness;
            const double tiltX = 0.7 * (cell.Chance(2) - 0.5);
            const double tiltY = 0.7 * (cell.Chance(3) - 0.5);
            weights += weight;
            height += weight * (1.6 * cell.Chance(1) - 0.8 + tiltX * cell.dx + tiltY * cell.dy);
        }
    });
    return height / weights;
}

}  // namespace quillbrand::perlin
