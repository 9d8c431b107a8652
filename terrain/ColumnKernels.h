#pragma once

#include <cstddef>
#include <cstdint>

#include "terrain/GridRect.h"

namespace quillbrand {

/// Whether `count` cells are enough for the columns of `rect`, one beginning `length` cells behind
/// the other.
inline bool HoldColumns(std::size_t count, const GridRect& rect, std::ptrdiff_t length) {
    return rect.IsEmpty() ||
           (rect.Rows() <= length &&
            static_cast<std::size_t>((rect.Columns() - 1) * length + rect.Rows()) <= count);
}

/// Turns `rowCount` rows of `count` cells, which begin `stride` cells apart, into columns that
/// begin `length` cells apart. Requires: the two do not overlap in memory.
void RowsToColumns(const std::int32_t* rows, std::ptrdiff_t stride, std::ptrdiff_t rowCount,
                   std::ptrdiff_t count, std::int32_t* columns, std::ptrdiff_t length);

/// Turns `count` columns back into rows.
void ColumnsToRows(const std::int32_t* columns, std::ptrdiff_t length, std::ptrdiff_t count,
                   std::int32_t* rows, std::ptrdiff_t stride, std::ptrdiff_t rowCount);

}  // namespace quillbrand
