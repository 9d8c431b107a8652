#include "base/Canvas.h"

#include <algorithm>
#include <cmath>

#include "base/Numbers.h"

namespace quillbrand {

namespace {

QColor ColorOf(Colour colour) {
    return {colour & 255, (colour >> 8) & 255, (colour >> 16) & 255};
}

/// A place on the raster; far ones are limited, because lines are cut at the picture anyway.
int Place(double pixel) {
    constexpr double far = 1 << 20;
    if (std::isnan(pixel))
        return -static_cast<int>(far);
    return static_cast<int>(std::floor(std::clamp(pixel, -far, far)));
}

}  // namespace

Canvas::Canvas(Picture& picture)
    : picture_(picture),
      width_(picture.Width()),
      height_(picture.Height()),
      painter_(&picture.Image()) {}

void Canvas::Scale(double left, double top, double width, double height) {
    left_ = left;
    top_ = top;
    width_ = width;
    height_ = height;
}

int Canvas::PixelX(double x) const {
    return Place((x - left_) / width_ * picture_.Width());
}

int Canvas::PixelY(double y) const {
    return Place((y - top_) / height_ * picture_.Height());
}

void Canvas::Clear(Colour colour) {
    painter_.fillRect(0, 0, picture_.Width(), picture_.Height(), ColorOf(colour));
}

void Canvas::Line(double x1, double y1, double x2, double y2, Colour colour) {
    // A thin line with flat ends would lack its last pixel.
    const auto ends = drawWidth_ > 1 ? Qt::FlatCap : Qt::SquareCap;
    const QPen pen(ColorOf(colour), std::max(drawWidth_, 1), Qt::SolidLine, ends);
    painter_.setPen(pen);
    painter_.drawLine(PixelX(x1), PixelY(y1), PixelX(x2), PixelY(y2));
}

void Canvas::PaintStretched(const Picture& source, double x, double y, double width,
                            double height) {
    const int fromX = PixelX(x);
    const int fromY = PixelY(y);
    const int wide = PixelX(x + width) - fromX;
    const int high = PixelY(y + height) - fromY;
    for (int j = std::max(0, -fromY); j < std::min(high, picture_.Height() - fromY); ++j) {
        const QRgb* from = source.Row(static_cast<int>(std::int64_t{j} * source.Height() / high));
        QRgb* to = picture_.Row(fromY + j) + fromX;
        for (int i = std::max(0, -fromX); i < std::min(wide, picture_.Width() - fromX); ++i)
            to[i] = from[std::int64_t{i} * source.Width() / wide];
    }
}

}  // namespace quillbrand
