#include "generator/DoubleGrid.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "base/Numbers.h"
#include "base/VectorClones.h"
#include "terrain/RowKernels.h"

namespace quillbrand::qbGenerator {

namespace {

/// Cells within -narrow..narrow can be summed and disturbed in 32 bits.
constexpr std::int32_t narrow = 1 << 29;

/// The four neighbours a, b / e, c of two rows and the two rows that they become.
struct RowPair {
    const std::int32_t* upper;
    const std::int32_t* lower;
    std::int32_t* firstOut;
    std::int32_t* secondOut;
};

RowPair Rows(const SquareArray& grid, SquareArray& result, int j) {
    return {grid.Row(j), grid.Row(j + 1), result.Row(2 * j), result.Row(2 * j + 1)};
}

/// (a + b) / 2 to nearest, halves to even.
inline std::int32_t Middle(std::int32_t a, std::int32_t b) {
    const std::int32_t sum = a + b;
    const std::int32_t floor = sum >> 1;
    return floor + (sum & floor & 1);
}

QB_VECTOR_CLONES void DoubleRowSmoothly(const RowPair& rows, int count) {
    const std::int32_t* __restrict upper = rows.upper;
    const std::int32_t* __restrict lower = rows.lower;
    std::int32_t* __restrict first = rows.firstOut;
    std::int32_t* __restrict second = rows.secondOut;
    for (int i = 0; i < count; ++i) {
        first[2 * i] = upper[i];
        first[2 * i + 1] = Middle(upper[i + 1], upper[i]);
        second[2 * i] = Middle(lower[i], upper[i]);
        second[2 * i + 1] = Middle(lower[i + 1], upper[i]);
    }
}

/// Into both rows of the pair.
QB_VECTOR_CLONES void RepeatRow(const RowPair& rows, int count) {
    const std::int32_t* __restrict upper = rows.upper;
    std::int32_t* __restrict first = rows.firstOut;
    std::int32_t* __restrict second = rows.secondOut;
    for (int i = 0; i < count; ++i) {
        first[2 * i] = upper[i];
        first[2 * i + 1] = upper[i];
        second[2 * i] = upper[i];
        second[2 * i + 1] = upper[i];
    }
}

/// The bilinear row with each cell's own disturbance, a factor near 1.
QB_VECTOR_CLONES void DoubleRowRoughly(const RowPair& rows, int from, int count,
                                       const float* __restrict disturbance) {
    const std::int32_t* __restrict upper = rows.upper + from;
    const std::int32_t* __restrict lower = rows.lower + from;
    std::int32_t* __restrict first = rows.firstOut + 2 * from;
    std::int32_t* __restrict second = rows.secondOut + 2 * from;
    for (int i = 0; i < count; ++i) {
        const double d = disturbance[i];
        const std::int32_t a = upper[i];
        const auto disturbed = [d](double mean) {
            return static_cast<std::int32_t>(std::rint(d * mean));
        };
        first[2 * i] = disturbed(a);
        first[2 * i + 1] = disturbed((upper[i + 1] + a) / 2.0);
        second[2 * i] = disturbed((lower[i] + a) / 2.0);
        second[2 * i + 1] = disturbed((lower[i + 1] + a) / 2.0);
    }
}

/// Random numbers are drawn down the columns while rows lie in memory: a strip of columns draws
/// its numbers ahead and turns them.
class DisturbanceStrip {
  public:
    static constexpr int width = 32;

    DisturbanceStrip(int rows, double roughness)
        : roughness_(roughness),
          drawn_(static_cast<std::size_t>(rows)),
          turned_(static_cast<std::size_t>(rows) * width) {}

    void Draw(int columns, RandomSource& chance) {
        for (int i = 0; i < columns; ++i) {
            chance.Fill(drawn_);
            for (std::size_t j = 0; j < drawn_.size(); ++j)
                turned_[j * width + static_cast<std::size_t>(i)] =
                    static_cast<float>(1 + roughness_ * drawn_[j]);
        }
    }

    const float* Row(int j) const { return turned_.data() + static_cast<std::size_t>(j) * width; }

  private:
    double roughness_;
    std::vector<double> drawn_;
    std::vector<float> turned_;
};

void DoubleRoughly(const SquareArray& grid, int n, double roughness, SquareArray& result,
                   Host& host) {
    DisturbanceStrip strip(n + 1, roughness);
    for (int from = 0; from <= n; from += DisturbanceStrip::width) {
        const int count = std::min(DisturbanceStrip::width, n + 1 - from);
        strip.Draw(count, host.Chance());
        for (int j = 0; j <= n; ++j)
            DoubleRowRoughly(Rows(grid, result, j), from, count, strip.Row(j));
        host.Yield();
    }
}

void DoubleSmoothly(const SquareArray& grid, int n, SquareArray& result, Host& host) {
    for (int j = 0; j <= n; ++j) {
        DoubleRowSmoothly(Rows(grid, result, j), n + 1);
        host.Yield();
    }
}

void RepeatPixels(const SquareArray& grid, int n, SquareArray& result, Host& host) {
    for (int j = 0; j <= n; ++j) {
        RepeatRow(Rows(grid, result, j), n + 1);
        host.Yield();
    }
}

/// Every mode, cell by cell in the order of the draws.
void DoubleCellByCell(const SquareArray& grid, int n, int mode, double roughness,
                      SquareArray& result, Host& host) {
    RandomSource& chance = host.Chance();
    for (int i = 0; i <= n; ++i) {
        for (int j = 0; j <= n; ++j) {
            const double a = grid(i, j);
            const double others[] = {double(grid(i + 1, j)), double(grid(i + 1, j + 1)),
                                     double(grid(i, j + 1))};
            std::int32_t* const cells[] = {&result(2 * i + 1, 2 * j), &result(2 * i + 1, 2 * j + 1),
                                           &result(2 * i, 2 * j + 1)};
            const double d = static_cast<float>(1 + roughness * chance.Uniform());
            result(2 * i, 2 * j) = RoundTo32(mode == Bilinear ? d * a : a);
            for (int k = 0; k < 3; ++k) {
                if (mode == Randomised) {
                    // What is drawn here becomes the roughness of all that follows.
                    roughness = d * (0.1 * chance.Uniform());
                    *cells[k] = RoundTo32(a + (others[k] - a) / (2 + roughness));
                } else {
                    *cells[k] = RoundTo32(mode == Bilinear ? d * ((others[k] + a) / 2) : a);
                }
            }
        }
        host.Yield();
    }
}

void FillResult(const SquareArray& grid, int n, int mode, double roughness, SquareArray& result,
                Host& host) {
    const auto drawn = static_cast<std::size_t>(n + 1) * static_cast<std::size_t>(n + 1);
    Extremes found;
    for (int j = 0; j <= n + 1; ++j)
        FindExtremes({grid.Row(j), static_cast<std::size_t>(n + 2)}, found);
    const bool isNarrow = found.low >= -narrow && found.high <= narrow;
    if (mode == Randomised || (mode == Bilinear && !isNarrow)) {
        DoubleCellByCell(grid, n, mode, roughness, result, host);
    } else if (mode == Bilinear && roughness != 0) {
        DoubleRoughly(grid, n, roughness, result, host);
    } else {
        host.Chance().Discard(drawn);
        if (mode == Bilinear)
            DoubleSmoothly(grid, n, result, host);
        else if (mode == PixelRepetition)
            RepeatPixels(grid, n, result, host);
        else
            std::fill_n(result.Row(0), 4 * drawn, 0);
    }
}

}  // namespace

void DoubleGrid(SquareArray& grid, int& n, int mode, int roughness, Host& host) {
    host.Status("Resize Terrain...");
    host.Busy(true);
    host.Chance().ReseedFromClock();
    SquareArray result(2 * n + 1);
    host.Yield();
    FillResult(grid, n, mode, roughness / 200.0, result, host);
    grid = std::move(result);
    n = grid.Upper() - 1;
    host.Busy(false);
    host.Yield();
}

}  // namespace quillbrand::qbGenerator
