#include "terrain/HeightWriter.h"

#include <exception>

#include "terrain/ColumnKernels.h"
#include "terrain/RowKernels.h"

namespace quillbrand {

HeightWriter::HeightWriter(clsTerrain& terrain, const GridRect& rect)
    : terrain_(terrain), rect_(rect), exceptions_(std::uncaught_exceptions()) {
    assert(terrain.Cells().Contains(rect));
#ifndef NDEBUG
    before_.reserve(static_cast<std::size_t>(rect_.Columns()) *
                    static_cast<std::size_t>(rect_.Rows()));
    for (int y = rect_.y0; y <= rect_.y1 && !rect_.IsEmpty(); ++y) {
        const auto row = terrain_.Row(y, rect_);
        before_.insert(before_.end(), row.begin(), row.end());
    }
#endif
}

HeightWriter::~HeightWriter() {
    MeasureRow();
    assert(KnowsAllChanges());
    terrain_.extremes_.Widen(stored_);
}

void HeightWriter::StoreColumns(const GridRect& part, std::span<const Height> columns,
                                std::ptrdiff_t length) {
    assert(rect_.Contains(part) && HoldColumns(columns.size(), part, length));
    if (!part.IsEmpty())
        ColumnsToRows(columns.data(), length, part.Columns(),
                      terrain_.cells_.data() + terrain_.Index(part.x0, part.y0), terrain_.side_,
                      part.Rows());
}

void HeightWriter::MeasureRow() {
    if (measured_ != noRow)
        FindExtremes(terrain_.Row(measured_, rect_), stored_);
    measured_ = noRow;
}

bool HeightWriter::KnowsAllChanges() const {
    if (std::uncaught_exceptions() > exceptions_)
        return true;
    const Height* was = before_.data();
    for (int y = rect_.y0; y <= rect_.y1 && !rect_.IsEmpty(); ++y)
        for (const Height h : terrain_.Row(y, rect_))
            if (h != *was++ && (h < stored_.low || h > stored_.high))
                return false;
    return true;
}

}  // namespace quillbrand
