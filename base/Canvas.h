#pragma once

#include <QPainter>

#include "base/Picture.h"

namespace quillbrand {

/// A picture with units of its own, drawn without anti-aliasing. The picture must outlive it.
class Canvas {
  public:
    explicit Canvas(Picture& picture);

    /// The units: the picture spans `width` from `left` and `height` from `top`.
    void Scale(double left, double top, double width, double height);

    /// The width of lines, in pixels, at least 1.
    void DrawWidth(int pixels) { drawWidth_ = pixels; }

    void Clear(Colour colour);

    /// A straight line, both ends included, in the canvas's units.
    void Line(double x1, double y1, double x2, double y2, Colour colour);

    /// Another picture over a rectangle of this one, each pixel the one of `source` at
    /// floor(pixel * source side / target side).
    void PaintStretched(const Picture& source, double x, double y, double width, double height);

  private:
    int PixelX(double x) const;
    int PixelY(double y) const;

    Picture& picture_;
    double left_ = 0;
    double top_ = 0;
    double width_;
    double height_;
    int drawWidth_ = 1;
    QPainter painter_;
};

}  // namespace quillbrand
