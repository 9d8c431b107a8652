#include "editor/PointTexts.h"

#include "base/NumberText.h"
#include "base/Numbers.h"

namespace quillbrand {

std::optional<std::array<std::string, 5>> PointTexts(const clsTerrain& terrain, double x,
                                                     double y) {
    const double size = terrain.Size();
    if (!(0 < x && x < size && 0 < y && y < size))
        return std::nullopt;
    const int column = RoundTo32(x);
    const int row = RoundTo32(y);
    return std::array{
        ShownText([&] { return Format(terrain.GetPointTU(column, row), "#####.## TU"); }),
        Format(terrain.GetPoint(column, row), "####### Pixel"), "X=" + Format(x, "####"),
        "Y=" + Format(size - y, "####"),
        ShownText([&] { return Format(terrain.GetPointMeters(column, row), "######.### m"); })};
}

}  // namespace quillbrand
