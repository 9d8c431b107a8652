#include "editor/ResizeRows.h"

#include <cmath>

#include "base/Numbers.h"
#include "base/VectorClones.h"

namespace quillbrand::QBTools2 {

namespace {

[[gnu::always_inline]] inline Height Rounded(double value) {
    return static_cast<Height>(std::rint(value));
}

/// (a + b) / 2, without a sum that could leave 32 bits.
[[gnu::always_inline]] inline Height Middle(Height a, Height b) {
    const Height floor = (a & b) + ((a ^ b) >> 1);
    const Height half = (a ^ b) & 1;
    return floor + (half & floor);
}

template <typename Round>
[[gnu::always_inline]] inline void Disturb(const RowPair& rows, const double* __restrict factors,
                                           std::ptrdiff_t count, const DoubledRows& doubled,
                                           Round round) {
    const Height* __restrict upper = rows.upper;
    const Height* __restrict lower = rows.lower;
    Height* __restrict first = doubled.first;
    Height* __restrict second = doubled.second;
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        const double f = factors[i];
        const double p = upper[i];
        first[2 * i] = round(f * p);
        first[2 * i + 1] = round(f * (p + upper[i + 1]) / 2);
        second[2 * i + 1] = round(f * (p + lower[i + 1]) / 2);
        second[2 * i] = round(f * (p + lower[i]) / 2);
    }
}

}  // namespace

QB_VECTOR_CLONES void HalveCells(const RowPair& rows, std::ptrdiff_t count, Height* target) {
    const Height* __restrict upper = rows.upper;
    const Height* __restrict lower = rows.lower;
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        const double sum =
            double(upper[2 * i]) + upper[2 * i + 1] + lower[2 * i + 1] + lower[2 * i];
        target[i] = Rounded(sum / 4);
    }
}

QB_VECTOR_CLONES void RepeatCells(const Height* row, std::ptrdiff_t count,
                                  const DoubledRows& doubled) {
    Height* __restrict first = doubled.first;
    Height* __restrict second = doubled.second;
    for (std::ptrdiff_t i = 0; i < count; ++i)
        first[2 * i] = first[2 * i + 1] = second[2 * i] = second[2 * i + 1] = row[i];
}

QB_VECTOR_CLONES void InterpolateCells(const RowPair& rows, std::ptrdiff_t count,
                                       const DoubledRows& doubled) {
    const Height* __restrict upper = rows.upper;
    const Height* __restrict lower = rows.lower;
    Height* __restrict first = doubled.first;
    Height* __restrict second = doubled.second;
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        const Height p = upper[i];
        first[2 * i] = p;
        first[2 * i + 1] = Middle(p, upper[i + 1]);
        second[2 * i + 1] = Middle(p, lower[i + 1]);
        second[2 * i] = Middle(p, lower[i]);
    }
}

QB_VECTOR_CLONES void DisturbCells(const RowPair& rows, const double* factors, std::ptrdiff_t count,
                                   const DoubledRows& doubled) {
    Disturb(rows, factors, count, doubled, Rounded);
}

void DisturbFarCells(const RowPair& rows, const double* factors, std::ptrdiff_t count,
                     const DoubledRows& doubled) {
    Disturb(rows, factors, count, doubled, RoundTo32);
}

QB_VECTOR_CLONES void MoveCells(const RowPair& rows, const Biases& biases, std::ptrdiff_t count,
                                const DoubledRows& doubled) {
    const Height* __restrict upper = rows.upper;
    const Height* __restrict lower = rows.lower;
    Height* __restrict first = doubled.first;
    Height* __restrict second = doubled.second;
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        const double p = upper[i];
        first[2 * i] = upper[i];
        first[2 * i + 1] = Rounded(p + (upper[i + 1] - p) / (2 + biases.right[i]));
        second[2 * i + 1] = Rounded(p + (lower[i + 1] - p) / (2 + biases.diagonal[i]));
        second[2 * i] = Rounded(p + (lower[i] - p) / (2 + biases.below[i]));
    }
}

}  // namespace quillbrand::QBTools2
