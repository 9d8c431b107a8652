#include <algorithm>
#include <cmath>

#include "base/Numbers.h"
#include "base/VectorClones.h"
#include "filters/Bodies.h"

namespace quillbrand::mFilterG {

namespace {

/// random * range - half, rounded.
QB_VECTOR_CLONES void RoundSteps(const double* __restrict randoms, std::ptrdiff_t count,
                                 double range, double half, std::int32_t* __restrict steps) {
    for (std::ptrdiff_t i = 0; i < count; ++i)
        steps[i] = static_cast<std::int32_t>(std::rint(randoms[i] * range - half));
}

/// place + step, or place where that lies outside 0..count - 1.
int StepInside(int place, int step, int count) {
    const std::int64_t target = std::int64_t{place} + step;
    return target >= 0 && target < count ? static_cast<int>(target) : place;
}

/// random * range - level, with room for a fourth channel.
QB_VECTOR_CLONES void SpreadNoise(const double* __restrict randoms, int width, double range,
                                  double level, double* __restrict noise) {
    for (std::ptrdiff_t x = 0; x < width; ++x)
        for (std::ptrdiff_t c = 0; c < 3; ++c)
            noise[channels * x + c] = randoms[3 * x + c] * range - level;
}

QB_VECTOR_CLONES void AddRounded(const std::uint8_t* row, std::ptrdiff_t count,
                                 const double* __restrict noise, std::uint8_t* __restrict out) {
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        const double sum = std::min(std::max(noise[i] + row[i], 0.0), 255.0);
        out[i] = static_cast<std::uint8_t>(static_cast<std::int32_t>(std::rint(sum)));
    }
}

}  // namespace

void Diffuse(Job& job) {
    const double half = RoundHalfEven(job.Level() / 2.0);
    const auto width = static_cast<std::size_t>(job.Width());
    std::vector<double> randoms(2 * width);
    std::vector<std::int32_t> steps(2 * width);
    for (int y = 0; y < job.Height(); ++y) {
        job.Chance().Fill(randoms);
        RoundSteps(randoms.data(), 2 * job.Width(), job.Level(), half, steps.data());
        Pixel* row = job.Row(y);
        for (int x = 0; x < job.Width(); ++x) {
            const std::int32_t* step = &steps[2 * static_cast<std::size_t>(x)];
            const int fromX = StepInside(x, step[0], job.Width());
            const int fromY = StepInside(y, step[1], job.Height());
            row[x] = Recoloured(row[x], job.Row(fromY)[fromX]);
        }
        job.RowDone(y);
    }
}

void AddNoise(Job& job) {
    const double range = 2.0 * job.Level() + 1;
    std::vector<double> randoms(3 * static_cast<std::size_t>(job.Width()));
    std::vector<double> noise(job.RowBytes());
    std::vector<Pixel> out(static_cast<std::size_t>(job.Width()));
    const auto count = static_cast<std::ptrdiff_t>(job.RowBytes());
    for (int y = 0; y < job.Height(); ++y) {
        job.Chance().Fill(randoms);
        SpreadNoise(randoms.data(), job.Width(), range, job.Level(), noise.data());
        AddRounded(job.Bytes(y), count, noise.data(), BytesOf(out.data()));
        Recolour(job.Row(y), out.data(), 0, job.Width());
        job.RowDone(y);
    }
}

}  // namespace quillbrand::mFilterG
