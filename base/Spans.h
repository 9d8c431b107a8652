#pragma once

#include <QRect>
#include <vector>

namespace quillbrand {

/// A run of pixels in one row, both ends included. Requires: left <= right.
struct Span {
    int y;
    int left;
    int right;
};

/// A set of pixels, in any order, or the rows of a brush around its own pixel (0, 0).
using Spans = std::vector<Span>;

/// The pixels within a disc of a diameter of `width` pixels, 1 or more; of an even width one more
/// lies to the left and above than to the right and below.
Spans RoundBrush(int width);

/// A bar of one row, or of one column, `width` pixels long, placed as the disc is.
Spans FlatBrush(int width, bool isColumn);

/// All pixels of `clip` that `brush` covers as it goes along `trace`, sorted by row and place,
/// each once.
Spans Brushed(const Spans& trace, const Spans& brush, const QRect& clip);

/// The pixels of `spans` that `others` lack. Requires: both are sorted, each pixel once.
Spans Without(const Spans& spans, const Spans& others);

/// The smallest rectangle around all of them.
QRect Around(const Spans& spans);

}  // namespace quillbrand
