#pragma once

#include <QPainter>
#include <QRectF>

namespace quillbrand {

/// Something that stands above the raster of a PictureBox and never touches it.
class Overlay {
  public:
    virtual ~Overlay() = default;

    /// Where there is something to see, in the picture's units; empty when there is nothing. Lines
    /// may leave it by two pixels.
    virtual QRectF Bounds() const = 0;

    /// Paints in the picture's units; lines want a cosmetic pen, whose width is in pixels.
    virtual void Paint(QPainter& painter) const = 0;
};

}  // namespace quillbrand
