#pragma once

#include <cstddef>

#include "terrain/clsTerrain.h"

/// What resizing does to a stretch of a row. Heights and means round to nearest, halves to even.
namespace quillbrand::QBTools2 {

/// Two rows of a grid, one below the other, from the same column on.
struct RowPair {
    const Height* upper;
    const Height* lower;
};

/// target[i] becomes the mean of the columns 2 i and 2 i + 1 of both rows.
void HalveCells(const RowPair& rows, std::ptrdiff_t count, Height* target);

/// The 2 x 2 points that each of `count` points becomes, in two rows of 2 * count. The rows that
/// are read reach one column further.
struct DoubledRows {
    Height* first;
    Height* second;
};

void RepeatCells(const Height* row, std::ptrdiff_t count, const DoubledRows& doubled);

/// The point itself and its means with its neighbours.
void InterpolateCells(const RowPair& rows, std::ptrdiff_t count, const DoubledRows& doubled);

/// The same, the four of a point times its factor; they must fit into 32 bits.
void DisturbCells(const RowPair& rows, const double* factors, std::ptrdiff_t count,
                  const DoubledRows& doubled);

/// Throws Fault where one of them does not fit.
void DisturbFarCells(const RowPair& rows, const double* factors, std::ptrdiff_t count,
                     const DoubledRows& doubled);

/// How far from the middle the three new points of a cell lie: at 1 / (2 + e) of the way.
struct Biases {
    const double* right;
    const double* diagonal;
    const double* below;
};

void MoveCells(const RowPair& rows, const Biases& biases, std::ptrdiff_t count,
               const DoubledRows& doubled);

}  // namespace quillbrand::QBTools2
