#include <algorithm>

#include "base/VectorClones.h"
#include "filters/Bodies.h"
#include "filters/Grey.h"
#include "filters/mFilterG.h"

namespace quillbrand::mFilterG {

namespace {

struct Limits {
    int blue;
    int green;
    int red;
};

constexpr Pixel BlackOrWhite(Pixel pixel, bool isWhite) {
    return (pixel & ~white) | (isWhite ? white : 0);
}

QB_VECTOR_CLONES void ThresholdRow(Pixel* row, int width, const Limits& limits) {
    const auto [blue, green, red] = limits;
    for (int x = 0; x < width; ++x) {
        const Pixel p = row[x];
        const int most = std::max(std::max(Blue(p) - blue, Green(p) - green), Red(p) - red);
        row[x] = BlackOrWhite(p, most >= 0);
    }
}

QB_VECTOR_CLONES void MaskRow(Pixel* row, int width, int level) {
    for (int x = 0; x < width; ++x) {
        const Pixel p = row[x];
        row[x] = BlackOrWhite(p, std::min(std::min(Blue(p), Green(p)), Red(p)) > level);
    }
}

/// `needed` is the least white sum of the three channels at each pixel.
QB_VECTOR_CLONES void DitherRow(Pixel* __restrict row, int width, const int* __restrict needed) {
    for (int x = 0; x < width; ++x)
        row[x] = BlackOrWhite(row[x], SumOf(row[x]) >= needed[x]);
}

}  // namespace

void ThresholdColours(Job& job) {
    Limits limits{};
    SplitColour(job.Level(), limits.red, limits.green, limits.blue);
    for (int y = 0; y < job.Height(); ++y) {
        ThresholdRow(job.Row(y), job.Width(), limits);
        job.RowDone(y);
    }
}

void DitherOrdered(Job& job) {
    constexpr std::size_t side = 4;
    constexpr std::array<std::array<int, side>, side> matrix = {
        {{1, 9, 3, 11}, {13, 5, 15, 7}, {4, 12, 2, 10}, {16, 8, 14, 6}}};
    // sum / 3 / 16 + 1 > m, with whole parts, is sum >= 48 * m.
    std::array<std::vector<int>, side> needed;
    for (std::size_t row = 0; row < side; ++row)
        for (std::size_t x = 0; x < static_cast<std::size_t>(job.Width()); ++x)
            needed[row].push_back(48 * matrix[row][x % side]);
    for (int y = 0; y < job.Height(); ++y) {
        DitherRow(job.Row(y), job.Width(), needed[static_cast<std::size_t>(y) % side].data());
        job.RowDone(y);
    }
}

void Mask(Job& job) {
    for (int y = 0; y < job.Height(); ++y) {
        MaskRow(job.Row(y), job.Width(), job.Level());
        job.RowDone(y);
    }
}

}  // namespace quillbrand::mFilterG
