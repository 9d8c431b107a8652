#include "editor/PenMark.h"

#include "base/Numbers.h"
#include "base/Stdio.h"

namespace quillbrand {

namespace {

bool LiesInGrid(const MousePoint& mouse, int size) {
    const auto lies = [last = size + 2](float at) {
        const double cell = RoundHalfEven(at);
        return cell >= 0 && cell <= last;
    };
    return lies(mouse.x) && lies(mouse.y);
}

std::vector<PenMark::Dot> DotsAround(double x, double y, int size, RandomSource& chance) {
    std::vector<PenMark::Dot> dots;
    for (int i = 0; i < size; ++i) {
        const double first = chance.Uniform();
        const double second = chance.Uniform();
        dots.push_back({x - size + 2 * first * size, y - size + 2 * second * size});
    }
    return dots;
}

PenMark MarkOf(const Pen& pen, const MousePoint& mouse, int size, double drawWidth,
               RandomSource& chance) {
    if (pen.shape == PenShape::None || !LiesInGrid(mouse, size))
        return {};
    const MousePoint at = pen.PlaceOf(mouse);
    PenMark mark{.shape = pen.shape, .drawWidth = RoundTo32(drawWidth), .x = at.x, .y = at.y};
    if (pen.shape == PenShape::Noise) {
        mark.drawWidth = 1;
        mark.dots = DotsAround(at.x, at.y, pen.size, chance);
    } else {
        mark.reach = pen.shape == PenShape::Round ? pen.size + 1 : pen.size;
    }
    return mark;
}

}  // namespace

PenMark MarkOfPress(const Pen& pen, const MousePoint& mouse, int size, double ViewZoom,
                    RandomSource& chance) {
    return MarkOf(pen, mouse, size, ViewZoom + 1, chance);
}

PenMark MarkOfMove(const Pen& pen, const MousePoint& mouse, int size, double ViewZoom,
                   RandomSource& chance) {
    return MarkOf(pen, mouse, size, STDIO::MaxValue(1.0, ViewZoom) + 1.5, chance);
}

PenOutline OutlineOf(const Pen& pen, const MousePoint& mouse, StrokeTool ToolCode) {
    return {.left = double{mouse.x} - pen.size - 1,
            .top = double{mouse.y} - pen.size - 1,
            .side = 2.0 * pen.size + 2,
            .isSquare = pen.shape == PenShape::Square && ToolCode <= StrokeTool::Up};
}

}  // namespace quillbrand
