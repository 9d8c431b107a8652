#pragma once

#include <QImage>
#include <QRegion>
#include <cstdint>
#include <vector>

#include "base/Picture.h"

namespace quillbrand {

/// A raster at the size of the screen, kept from one painting to the next. Only what changed is
/// scaled again, with the same result as if all of it were: each pixel is the mean of the points
/// under it where points share pixels, and one point where a point spans several.
class ScaledRaster {
  public:
    /// The raster is another one, or all of it has changed.
    void Forget() { image_ = QImage(); }

    /// These points have changed.
    void Changed(const QRect& points) { stale_ += points; }

    /// `raster` at the size of a widget with `ratio` pixels to each of its own.
    /// Requires: raster has points, and the widget too.
    const QImage& Scale(const Picture& raster, QSize widget, double ratio);

  private:
    /// How the points of one direction make its pixels.
    class Axis {
      public:
        Axis() = default;
        Axis(int points, int pixels);

        /// A pixel takes `count` points from `first` on, each by its weight; weights add up to 256.
        struct Share {
            int first;
            int count;
            const std::uint16_t* weights;
        };
        Share OfPixel(int pixel) const;

        /// The pixels that the points first..last take part in: the first one and the one behind.
        std::pair<int, int> PixelsOf(int first, int last) const;

      private:
        int points_ = 0;
        std::vector<int> first_;
        std::vector<int> start_;  ///< of a pixel's weights
        std::vector<std::uint16_t> weights_;
    };

    void Rescale(const Picture& raster, const QRect& points);
    void AddRows(const Picture& raster, const Axis::Share& rows, int from, int to);
    void MakeRow(QRgb* row, int from, int to, int firstColumn) const;

    QImage image_;
    QRegion stale_;  ///< in points
    QSize points_;
    Axis across_;
    Axis down_;
    std::vector<std::uint16_t> sums_;  ///< of a row's columns, four channels each, times 256
};

}  // namespace quillbrand
