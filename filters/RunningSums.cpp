#include <algorithm>
#include <cassert>

#include "base/VectorClones.h"
#include "filters/Bodies.h"

namespace quillbrand::mFilterG {

namespace {

/// What keeps all sums within 32 bits and all quotients exact.
constexpr int mostLevel = 1'000'000;

/// (centre * C + direct * the four direct neighbours + diagonal * the other four) / divisor, where
/// direct is diagonal or diagonal 0; divisor above 0.
struct Weights {
    int centre;
    int direct;
    int diagonal;
    int divisor;
};

/// numerator / divisor, cut to a whole number and limited to 0..255, by a multiplication that is
/// exact for divisors up to 2^20: below 256 * divisor its error stays under 1 / divisor.
class ByteQuotient {
  public:
    explicit ByteQuotient(int divisor)
        : most_(std::int64_t{256} * divisor - 1), factor_((one - 1) / divisor + 1) {}

    int operator()(std::int64_t numerator) const {
        const std::int64_t limited = std::clamp<std::int64_t>(numerator, 0, most_);
        return static_cast<int>(limited * factor_ >> shift);
    }

  private:
    static constexpr int shift = 48;
    static constexpr std::int64_t one = std::int64_t{1} << shift;
    std::int64_t most_;
    std::int64_t factor_;
};

/// The part of each pixel's sum that does not wait for its left neighbour.
QB_VECTOR_CLONES void SumWithoutLeft(const std::uint8_t* up, const std::uint8_t* mid,
                                     const std::uint8_t* down, std::ptrdiff_t begin,
                                     std::ptrdiff_t end, const Weights& weights,
                                     std::int32_t* __restrict sums) {
    const Weights w = weights;
    for (std::ptrdiff_t i = begin; i < end; ++i) {
        const int direct = up[i] + mid[i + channels] + down[i];
        const int diagonal =
            up[i - channels] + up[i + channels] + down[i - channels] + down[i + channels];
        sums[i] = w.centre * mid[i] + w.direct * direct + w.diagonal * diagonal;
    }
}

/// The chain from left to right that is left of a row.
template <int leftWeight>
void DivideInOrder(std::uint8_t* row, const std::int32_t* sums, int width,
                   const ByteQuotient& quotient) {
    int blue = row[0];
    int green = row[1];
    int red = row[2];
    for (std::ptrdiff_t i = channels; i < channels * (width - 1); i += channels) {
        blue = quotient(sums[i] + leftWeight * blue);
        green = quotient(sums[i + 1] + leftWeight * green);
        red = quotient(sums[i + 2] + leftWeight * red);
        row[i] = static_cast<std::uint8_t>(blue);
        row[i + 1] = static_cast<std::uint8_t>(green);
        row[i + 2] = static_cast<std::uint8_t>(red);
    }
}

using DivideRow = void (*)(std::uint8_t*, const std::int32_t*, int, const ByteQuotient&);

/// A multiplication in the chain would make each link a third longer.
DivideRow DivisionFor(int leftWeight) {
    switch (leftWeight) {
        case -2:
            return DivideInOrder<-2>;
        case -1:
            return DivideInOrder<-1>;
        case 1:
            return DivideInOrder<1>;
        default:
            assert(leftWeight == 2);
            return DivideInOrder<2>;
    }
}

void Run(Job& job, const Weights& weights) {
    const ByteQuotient quotient(weights.divisor);
    const DivideRow divide = DivisionFor(weights.direct);
    std::vector<std::int32_t> sums(job.RowBytes());
    const std::ptrdiff_t end = channels * (job.Width() - 1);
    for (int y = 1; y < job.Height() - 1; ++y) {
        std::uint8_t* row = job.Bytes(y);
        SumWithoutLeft(job.Bytes(y - 1), row, job.Bytes(y + 1), channels, end, weights,
                       sums.data());
        divide(row, sums.data(), job.Width(), quotient);
        job.RowDone(y);
    }
}

/// Weights of the level p that sum up to their divisor, p + `excess`.
void RunSharpening(Job& job, int neighbour, int excess) {
    if (job.Level() < -mostLevel || job.Level() > mostLevel || job.Level() == -excess)
        job.RefuseLevel("from -1000000 to 1000000 but not " + std::to_string(-excess));
    const int divisor = job.Level() + excess;
    const int sign = divisor < 0 ? -1 : 1;
    Run(job,
        {sign * (divisor + 8 * neighbour), -sign * neighbour, -sign * neighbour, sign * divisor});
}

}  // namespace

void Sharpen(Job& job) {
    RunSharpening(job, 2, 8);
}

void SharpenByLaplacian(Job& job) {
    RunSharpening(job, 1, 1);
}

void SmoothByEight(Job& job) {
    Run(job, {0, 1, 1, 8});
}

void SmoothByFive(Job& job) {
    Run(job, {1, 1, 0, 5});
}

}  // namespace quillbrand::mFilterG
