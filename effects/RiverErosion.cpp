#include <algorithm>
#include <cassert>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "base/Fault.h"
#include "base/Files.h"
#include "base/NumberText.h"
#include "base/Numbers.h"
#include "base/VectorClones.h"
#include "effects/QBFilter.h"
#include "terrain/HeightWriter.h"
#include "terrain/ReliefPicture.h"

namespace quillbrand::QBFilter {

namespace {

/// Points per side that the picture is made for.
constexpr int pictureSide = 1025;

/// How far into the picture a terrain begins: smaller ones lie anywhere, by the first three
/// characters of the seed.
int OffsetOf(const std::string& seed, int size) {
    const double seedPart = Val(seed.substr(0, 3)) / 1000;
    return std::max<int>(RoundTo16((pictureSide - size) * seedPart), 0);
}

int DivisorOf(float strength) {
    const int divisor = RoundTo32(11.0 - strength);
    if (divisor == 0)
        throw Fault("division by zero: a strength of 11 is too much for river erosion");
    return divisor;
}

/// The whole part of each number's quotient, and `base`. Single floats find it: a quotient that is
/// not whole is further from the next whole number than their rounding reaches.
QB_VECTOR_CLONES void DivideRow(const std::uint16_t* __restrict numbers, std::ptrdiff_t count,
                                int divisor, Height base, Height* __restrict gains) {
    const auto by = static_cast<float>(divisor);
    for (std::ptrdiff_t i = 0; i < count; ++i)
        gains[i] = static_cast<Height>(static_cast<float>(numbers[i]) / by) + base;
}

/// cells[i] grows by gains[columns[i]].
QB_VECTOR_CLONES void Raise(std::span<Height> row, const int* __restrict columns,
                            const Height* __restrict gains) {
    Height* const __restrict cells = row.data();
    const auto count = static_cast<std::ptrdiff_t>(row.size());
    for (std::ptrdiff_t i = 0; i < count; ++i)
        cells[i] += gains[columns[i]];
}

/// The picture spread over a terrain: what each point of it gains.
class Gains {
  public:
    Gains(const ReliefPicture& picture, int size, int divisor)
        : picture_(picture),
          units_(size <= pictureSide ? pictureSide : size),
          divisor_(divisor),
          gains_(static_cast<std::size_t>(picture.Width()) + 1, outside) {}

    /// The pixel of each column from `first` on, one beyond the last for those outside.
    std::vector<int> Columns(int first, int count) const {
        std::vector<int> columns;
        for (int i = 0; i < count; ++i) {
            const int pixel = Pixel(std::int64_t{first} + i, picture_.Width());
            columns.push_back(pixel < 0 ? picture_.Width() : pixel);
        }
        return columns;
    }

    /// The gain for every pixel of a row, and behind them that of the outside.
    const Height* Row(std::int64_t y) {
        const int row = Pixel(y, picture_.Height());
        if (row != row_)
            FillRow(row);
        return gains_.data();
    }

  private:
    /// A point lies 3 higher even where the picture adds nothing.
    static constexpr Height outside = 32768 - 32765;

    /// floor(unit * side / units), or -1 outside the picture.
    int Pixel(std::int64_t unit, int side) const {
        if (unit < 0 || unit >= units_)
            return -1;
        return static_cast<int>(unit * side / units_);
    }

    void FillRow(int row) {
        row_ = row;
        const auto width = static_cast<std::size_t>(picture_.Width());
        if (row < 0)
            std::fill_n(gains_.begin(), width, outside);
        else
            DivideRow(picture_.Row(row), static_cast<std::ptrdiff_t>(width), divisor_, outside,
                      gains_.data());
    }

    const ReliefPicture& picture_;
    int units_;
    int divisor_;
    int row_ = -1;
    std::vector<Height> gains_;
};

/// Throws Fault where a height could leave 32 bits by `most`, what the picture adds at most.
void RequireRoom(const clsTerrain& terrain, const GridRect& rect, Height most) {
    const Height highest = terrain.Measure(rect).high;
    if (highest > INT32_MAX - most)
        throw Fault("the height " + std::to_string(highest) +
                    " leaves no room in 32 bits for what river erosion adds, up to " +
                    std::to_string(most));
}

}  // namespace

void FilterRiverErosion(clsTerrain& terrain, float& strength, const Area& area, RiverBed& bed,
                        Host& host) {
    assert(area.extent);
    const int extent = area.extent.value();
    host.Status("erode...");
    host.Busy(true);
    host.Progress(0);
    const int offset = OffsetOf(bed.seed, terrain.Size());
    host.Yield();
    if (bed.ErodePictureName.empty())
        bed.ErodePictureName = RiverBed::standardPicture;
    const auto picture = LoadReliefPicture(FindInFolder(bed.programFolder, bed.ErodePictureName));

    const GridRect rect = area.CutTo(terrain.Cells(), extent);
    const int divisor = DivisorOf(strength);
    Gains gains(*picture, terrain.Size(), divisor);
    const auto columns = gains.Columns(rect.x0 + offset, rect.Columns());
    RequireRoom(terrain, rect, std::abs(65535 / divisor) + 3);
    HeightWriter writer(terrain, rect);
    for (int y = rect.y0; y <= rect.y1; ++y) {
        Raise(writer.Row(y), columns.data(), gains.Row(std::int64_t{y} + offset));
        host.Progress(PercentOf(y, double{1} * extent + area.startY));
        host.Yield();
    }
    host.Progress(100);
    host.Yield();
}

}  // namespace quillbrand::QBFilter
