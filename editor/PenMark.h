#pragma once

#include <vector>

#include "editor/Pen.h"
#include "editor/Stroke.h"

namespace quillbrand {

/// What a print of the pen draws on the height picture, in the pen's colour. It shows where the
/// print went and not quite how wide it is: that is the picture's next rebuild.
struct PenMark {
    struct Dot {
        double x;
        double y;
    };

    PenShape shape = PenShape::None;  ///< without one nothing is drawn
    int drawWidth = 1;                ///< in pixels
    double x = 0;                     ///< the middle, in grid units
    double y = 0;
    double reach = 0;  ///< half the side of the filled square, or the filled circle's radius
    std::vector<Dot> dots = {};  ///< of the noise shape
};

/// The mark of the print for the mouse at `mouse` on a picture of `size` intervals at `ViewZoom`.
/// Outside the grid nothing is drawn. The dots of the noise shape take two numbers each from
/// `chance`, which is not the source of the print itself.
PenMark MarkOfPress(const Pen& pen, const MousePoint& mouse, int size, double ViewZoom,
                    RandomSource& chance);
PenMark MarkOfMove(const Pen& pen, const MousePoint& mouse, int size, double ViewZoom,
                   RandomSource& chance);

/// The shape that follows the mouse (`Pencil`), in grid units.
struct PenOutline {
    double left;
    double top;
    double side;
    bool isSquare;  ///< else a circle
};

/// The outline for the mouse at `mouse` of the pen, or of a stroke tool of its size. Only the pen
/// and "up" show a square.
PenOutline OutlineOf(const Pen& pen, const MousePoint& mouse, StrokeTool ToolCode);

}  // namespace quillbrand
