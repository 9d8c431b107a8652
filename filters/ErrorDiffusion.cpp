#include <algorithm>
#include <bit>

#include "base/VectorClones.h"
#include "filters/Bodies.h"

namespace quillbrand::mFilterG {

namespace {

/// Who gets which share of an error: the pixels ahead in the row, and in the two rows below those
/// from two to the left to two to the right.
struct Pattern {
    std::array<int, 2> ahead;
    std::array<std::array<int, 5>, 2> below;
    int whole;
};

constexpr Pattern floydSteinberg{{7, 0}, {{{0, 3, 5, 1, 0}, {}}}, 16};
constexpr Pattern burkes{{8, 4}, {{{2, 4, 8, 4, 2}, {}}}, 32};
constexpr Pattern stucki{{8, 4}, {{{2, 4, 8, 4, 2}, {1, 2, 4, 2, 1}}}, 42};

/// Pixels of no error on either side of a row's errors, as far as shares reach.
constexpr std::ptrdiff_t margin = 2 * channels;

/// What becomes of a channel and of its error, for each sum of its value (0..255) and one share
/// (-255..255) that is still to be limited.
class Decisions {
  public:
    Decisions(const Pattern& pattern, int level) {
        for (int sum = -255; sum <= 510; ++sum) {
            const int value = std::clamp(sum, 0, 255);
            const int result = value > level ? 255 : 0;
            const int error = value - result;
            const auto place = static_cast<std::size_t>(sum + 255);
            next[place] = static_cast<std::int16_t>(error * pattern.ahead[0] / pattern.whole);
            afterNext[place] = static_cast<std::int16_t>(error * pattern.ahead[1] / pattern.whole);
            errors[place] = static_cast<std::int16_t>(error);
            results[place] = static_cast<std::uint8_t>(result);
        }
    }

    std::array<std::int16_t, 766> next;
    std::array<std::int16_t, 766> afterNext;
    std::array<std::int16_t, 766> errors;
    std::array<std::uint8_t, 766> results;
};

/// The chain along a row of one channel: what the pixels before hand on.
struct Carry {
    int near = 0;  ///< from the pixel before
    int far = 0;   ///< from the one before that
    int kept = 0;  ///< what will be `far` for the next

    /// Decides on a byte and notes its error.
    void Step(std::uint8_t& byte, std::int16_t& error, const Decisions& decisions) {
        const int value = std::clamp(byte + far, 0, 255);
        const auto place = static_cast<std::size_t>(value + near + 255);
        far = kept;
        near = decisions.next[place];
        kept = decisions.afterNext[place];
        byte = decisions.results[place];
        error = decisions.errors[place];
    }
};

void DecideRow(std::uint8_t* row, int width, const Decisions& decisions, std::int16_t* errors) {
    Carry blue;
    Carry green;
    Carry red;
    for (std::ptrdiff_t i = 0; i < channels * width; i += channels) {
        blue.Step(row[i], errors[i], decisions);
        green.Step(row[i + 1], errors[i + 1], decisions);
        red.Step(row[i + 2], errors[i + 2], decisions);
    }
}

/// product / whole, cut to a whole number. In 16 bits, which make twice as many lanes as 32.
template <int whole>
[[gnu::always_inline]] inline std::int16_t Quotient(std::int16_t product) {
    if (whole != 42)
        return static_cast<std::int16_t>(
            static_cast<std::int16_t>(product + (product >> 15 & (whole - 1))) >>
            std::countr_zero(static_cast<unsigned>(whole)));
    // Exact for the products of errors and shares, which lie within -2040..2040.
    const auto high = static_cast<std::int16_t>(product * 1561 >> 16);
    return static_cast<std::int16_t>(high - (product >> 15));
}

/// Hands a row's errors on to the row `lower` rows further down. Each byte gets its shares from
/// left to right, which is the order in which the pixels above were decided.
template <Pattern pattern, std::size_t lower>
[[gnu::always_inline]] inline void HandDown(const std::int16_t* errors, std::ptrdiff_t count,
                                            std::uint8_t* __restrict row) {
    constexpr auto& shares = pattern.below[lower];
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        std::int16_t value = row[i];
        for (std::ptrdiff_t from = -2; from <= 2; ++from) {
            const int share = shares[static_cast<std::size_t>(2 - from)];
            if (share == 0)
                continue;
            const auto product = static_cast<std::int16_t>(errors[i + from * channels] * share);
            value = static_cast<std::int16_t>(value + Quotient<pattern.whole>(product));
            value = std::min<std::int16_t>(std::max<std::int16_t>(value, 0), 255);
        }
        row[i] = static_cast<std::uint8_t>(value);
    }
}

using HandDownRow = void (*)(const std::int16_t*, std::ptrdiff_t, std::uint8_t*);

QB_VECTOR_CLONES void HandDownFloydSteinberg(const std::int16_t* errors, std::ptrdiff_t count,
                                             std::uint8_t* row) {
    HandDown<floydSteinberg, 0>(errors, count, row);
}

QB_VECTOR_CLONES void HandDownBurkes(const std::int16_t* errors, std::ptrdiff_t count,
                                     std::uint8_t* row) {
    HandDown<burkes, 0>(errors, count, row);
}

QB_VECTOR_CLONES void HandDownStucki(const std::int16_t* errors, std::ptrdiff_t count,
                                     std::uint8_t* row) {
    HandDown<stucki, 0>(errors, count, row);
}

QB_VECTOR_CLONES void HandFurtherDownStucki(const std::int16_t* errors, std::ptrdiff_t count,
                                            std::uint8_t* row) {
    HandDown<stucki, 1>(errors, count, row);
}

/// The rows below hold what they have gathered until their turn comes. The errors of fourth
/// channels are 0, so that they stay as they are.
void Run(Job& job, const Pattern& pattern, HandDownRow handDown, HandDownRow handFurtherDown) {
    const Decisions decisions(pattern, job.Level());
    std::vector<std::int16_t> padded(job.RowBytes() + 2 * margin);
    std::int16_t* errors = padded.data() + margin;
    const auto count = static_cast<std::ptrdiff_t>(job.RowBytes());
    for (int y = 0; y < job.Height(); ++y) {
        DecideRow(job.Bytes(y), job.Width(), decisions, errors);
        if (y + 1 < job.Height())
            handDown(errors, count, job.Bytes(y + 1));
        if (handFurtherDown != nullptr && y + 2 < job.Height())
            handFurtherDown(errors, count, job.Bytes(y + 2));
        job.RowDone(y);
    }
}

}  // namespace

void DiffuseFloydSteinberg(Job& job) {
    Run(job, floydSteinberg, HandDownFloydSteinberg, nullptr);
}

void DiffuseBurkes(Job& job) {
    Run(job, burkes, HandDownBurkes, nullptr);
}

void DiffuseStucki(Job& job) {
    Run(job, stucki, HandDownStucki, HandFurtherDownStucki);
}

}  // namespace quillbrand::mFilterG
