#include "terrain/Doubling.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

#include "base/Numbers.h"
#include "base/VectorClones.h"
#include "terrain/ColumnKernels.h"
#include "terrain/RowKernels.h"

namespace quillbrand {

namespace {

using Cell = std::int32_t;

/// A row or column of a grid, the next one, and the two that they become. The first two hold a cell
/// more than are doubled, the others two for each.
struct Lines {
    const Cell* line;
    const Cell* next;
    Cell* first;
    Cell* second;
};

/// (a + b) / 2 to nearest, halves to even, without a sum that could leave 32 bits.
[[gnu::always_inline]] inline Cell Middle(Cell a, Cell b) {
    const Cell floor = (a & b) + ((a ^ b) >> 1);
    const Cell half = (a ^ b) & 1;
    return floor + (half & floor);
}

QB_VECTOR_CLONES void Interpolate(const Lines& lines, std::ptrdiff_t count) {
    const Cell* __restrict line = lines.line;
    const Cell* __restrict next = lines.next;
    Cell* __restrict first = lines.first;
    Cell* __restrict second = lines.second;
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        first[2 * i] = line[i];
        first[2 * i + 1] = Middle(line[i], line[i + 1]);
        second[2 * i] = Middle(line[i], next[i]);
        second[2 * i + 1] = Middle(line[i], next[i + 1]);
    }
}

QB_VECTOR_CLONES void Repeat(const Lines& lines, std::ptrdiff_t count) {
    const Cell* __restrict line = lines.line;
    Cell* __restrict first = lines.first;
    Cell* __restrict second = lines.second;
    for (std::ptrdiff_t i = 0; i < count; ++i)
        first[2 * i] = first[2 * i + 1] = second[2 * i] = second[2 * i + 1] = line[i];
}

[[gnu::always_inline]] inline Cell Rounded(double value) {
    return static_cast<Cell>(std::rint(value));
}

/// The means, the four of a cell times its factor.
template <typename Round>
[[gnu::always_inline]] inline void DisturbWith(const Lines& lines, std::ptrdiff_t count,
                                               const double* __restrict factors, Round round) {
    const Cell* __restrict line = lines.line;
    const Cell* __restrict next = lines.next;
    Cell* __restrict first = lines.first;
    Cell* __restrict second = lines.second;
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        const double f = factors[i];
        const double p = line[i];
        first[2 * i] = round(f * p);
        first[2 * i + 1] = round(f * (p + line[i + 1]) / 2);
        second[2 * i] = round(f * (p + next[i]) / 2);
        second[2 * i + 1] = round(f * (p + next[i + 1]) / 2);
    }
}

/// The results must fit into 32 bits.
QB_VECTOR_CLONES void Disturb(const Lines& lines, std::ptrdiff_t count, const double* factors) {
    DisturbWith(lines, count, factors, Rounded);
}

/// Throws Fault where one does not.
void DisturbFar(const Lines& lines, std::ptrdiff_t count, const double* factors) {
    DisturbWith(lines, count, factors, RoundTo32);
}

/// How far from the middle the three new cells lie: at 1 / (2 + e) of the way.
struct Biases {
    const double* along;
    const double* across;
    const double* diagonal;
};

QB_VECTOR_CLONES void Bias(const Lines& lines, std::ptrdiff_t count, const Biases& biases) {
    const Cell* __restrict line = lines.line;
    const Cell* __restrict next = lines.next;
    Cell* __restrict first = lines.first;
    Cell* __restrict second = lines.second;
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        const double p = line[i];
        first[2 * i] = line[i];
        first[2 * i + 1] = Rounded(p + (line[i + 1] - p) / (2 + biases.along[i]));
        second[2 * i] = Rounded(p + (next[i] - p) / (2 + biases.across[i]));
        second[2 * i + 1] = Rounded(p + (next[i + 1] - p) / (2 + biases.diagonal[i]));
    }
}

/// Doubles by columns, down which random numbers are drawn, a strip of them at a time.
class ColumnDoubling {
  public:
    ColumnDoubling(const SquareArray& grid, int n, const Doubling& doubling, SquareArray& result,
                   RandomSource& chance)
        : grid_(grid),
          n_(n),
          doubling_(doubling),
          result_(result),
          chance_(chance),
          length_(OddLines(n + 2)),
          columns_(static_cast<std::size_t>((width + 1) * length_)),
          doubled_(static_cast<std::size_t>(2 * width * 2 * length_)) {}

    void Run(const std::function<void(int)>& done) {
        if (doubling_.mode == Randomised) {
            RunStrips([this](const Lines& lines) { BiasColumn(lines); }, done);
        } else {
            const auto disturb = IsNarrow() ? Disturb : DisturbFar;
            RunStrips([&](const Lines& lines) { DisturbColumn(lines, disturb); }, done);
        }
    }

  private:
    static constexpr int width = 32;

    /// An odd number of cache lines keeps columns from falling into the same places of a cache.
    static std::ptrdiff_t OddLines(int cells) {
        constexpr int line = 16;
        return ((cells + line - 1) / line | 1) * line;
    }

    /// Whether no factor can lead a cell out of 32 bits.
    bool IsNarrow() const {
        Extremes found;
        for (int j = 0; j <= n_ + 1; ++j)
            FindExtremes({grid_.Row(j), static_cast<std::size_t>(n_ + 2)}, found);
        const double most = std::max(std::fabs(found.low), std::fabs(found.high));
        return most * (1 + 1.001 * doubling_.roughness) < INT32_MAX;
    }

    template <typename DoubleColumn>
    void RunStrips(DoubleColumn doubleColumn, const std::function<void(int)>& done) {
        const std::ptrdiff_t doubledLength = 2 * length_;
        for (int from = 0; from <= n_; from += width) {
            const int count = std::min(width, n_ + 1 - from);
            RowsToColumns(grid_.Row(0) + from, grid_.Upper() + 1, n_ + 2, count + 1,
                          columns_.data(), length_);
            for (int i = 0; i < count; ++i) {
                const Cell* const column = columns_.data() + i * length_;
                Cell* const doubled = doubled_.data() + 2 * i * doubledLength;
                doubleColumn(Lines{column, column + length_, doubled, doubled + doubledLength});
            }
            const int side = result_.Upper() + 1;
            ColumnsToRows(doubled_.data(), doubledLength, std::min(2 * count, side - 2 * from),
                          result_.Row(0) + 2 * from, side, side);
            for (int i = from; i < from + count; ++i)
                done(i);
        }
    }

    double Factor(double roughness, double random) const {
        const double factor = 1 + roughness * random;
        return doubling_.singleFactors ? static_cast<float>(factor) : factor;
    }

    void DisturbColumn(const Lines& lines,
                       void (*disturb)(const Lines&, std::ptrdiff_t, const double*)) {
        drawn_.resize(static_cast<std::size_t>(n_) + 1);
        chance_.Fill(drawn_);
        for (double& number : drawn_)
            number = Factor(doubling_.roughness, number);
        disturb(lines, std::ssize(drawn_), drawn_.data());
    }

    void BiasColumn(const Lines& lines) {
        const std::size_t cells = static_cast<std::size_t>(n_) + 1;
        const std::size_t each = doubling_.drawsForAll ? 5 : 4;
        drawn_.resize(each * cells);
        chance_.Fill(drawn_);
        along_.resize(cells);
        across_.resize(cells);
        diagonal_.resize(cells);
        double roughness = doubling_.roughness;
        for (std::size_t i = 0; i < cells; ++i) {
            // The last three count for the new cells, the first for the factor.
            const double* const u = &drawn_[each * i + each - 3];
            const double f = Factor(roughness, drawn_[each * i]);
            across_[i] = f * (u[0] * 0.1);
            diagonal_[i] = f * (u[1] * 0.1);
            // What comes last becomes the roughness of the next cell.
            along_[i] = roughness = f * (u[2] * 0.1);
        }
        doubling_.roughness = roughness;
        Bias(lines, static_cast<std::ptrdiff_t>(cells),
             {along_.data(), across_.data(), diagonal_.data()});
    }

    const SquareArray& grid_;
    int n_;
    Doubling doubling_;
    SquareArray& result_;
    RandomSource& chance_;
    std::ptrdiff_t length_;      ///< from one column to the next; twice that for doubled ones
    std::vector<Cell> columns_;  ///< of the strip, and one more
    std::vector<Cell> doubled_;
    std::vector<double> drawn_;
    std::vector<double> along_;
    std::vector<double> across_;
    std::vector<double> diagonal_;
};

void DoubleByRows(const SquareArray& grid, int n,
                  void (*doubleLine)(const Lines& lines, std::ptrdiff_t count), SquareArray& result,
                  const std::function<void(int)>& done) {
    // Where the result has no place for the second half of the last cells, that goes here.
    std::vector<Cell> beyond(2 * (static_cast<std::size_t>(n) + 1));
    const int pairs = (result.Upper() + 1) / 2;
    for (int j = 0; j <= n; ++j) {
        const Lines lines{grid.Row(j), grid.Row(j + 1), result.Row(2 * j),
                          2 * j < result.Upper() ? result.Row(2 * j + 1) : beyond.data()};
        doubleLine(lines, pairs);
        if (pairs <= n) {
            Cell first[2];
            Cell second[2];
            doubleLine({lines.line + n, lines.next + n, first, second}, 1);
            lines.first[2 * n] = first[0];
            lines.second[2 * n] = second[0];
        }
        done(j);
    }
}

}  // namespace

void DoubleCells(const SquareArray& grid, int n, const Doubling& doubling, SquareArray& result,
                 RandomSource& chance, const std::function<void(int)>& done) {
    assert(doubling.mode >= Randomised && doubling.mode <= PixelRepetition);
    assert(grid.Upper() > n && (result.Upper() == 2 * n || result.Upper() == 2 * n + 1));
    if (doubling.mode == Randomised || (doubling.mode == Bilinear && doubling.roughness != 0))
        return ColumnDoubling(grid, n, doubling, result, chance).Run(done);
    // No number counts, but all are drawn.
    chance.Discard(static_cast<std::size_t>(n + 1) * static_cast<std::size_t>(n + 1));
    DoubleByRows(grid, n, doubling.mode == Bilinear ? Interpolate : Repeat, result, done);
}

void qbGenerator::DoubleGrid(SquareArray& grid, int& n, int mode, int roughness, Host& host) {
    assert(n >= 0 && grid.Upper() > n);
    host.Status("Resize Terrain...");
    host.Busy(true);
    RandomSource& chance = host.Chance();
    chance.ReseedFromClock();
    SquareArray result(2 * n + 1);
    host.Yield();
    if (mode >= Randomised && mode <= PixelRepetition) {
        DoubleCells(grid, n, {.mode = mode, .roughness = roughness / 200.0}, result, chance,
                    [&host](int) { host.Yield(); });
    } else {
        const auto cells = static_cast<std::size_t>(n + 1) * static_cast<std::size_t>(n + 1);
        chance.Discard(cells);
        std::fill_n(result.Row(0), 4 * cells, 0);
    }
    grid = std::move(result);
    n = grid.Upper() - 1;
    host.Busy(false);
    host.Yield();
}

}  // namespace quillbrand
