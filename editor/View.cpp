#include "editor/View.h"

#include <algorithm>

#include "base/NumberText.h"
#include "base/Numbers.h"
#include "base/Stdio.h"

namespace quillbrand {

double NextZoom(double zoom, double factor, int size, double limit) {
    const double wanted = factor == 0 ? 1 : zoom * factor;
    const double clamped = STDIO::ClampValue(leastZoom, mostZoom, wanted);
    return size * clamped > limit ? limit / size : clamped;
}

int PictureSide(double zoom, int size) {
    return RoundTo32(zoom * (size + 4 - 1));
}

std::string ZoomText(double zoom, int size) {
    const std::string side = std::to_string(size);
    return side + " x " + side + "   Zoom =" + Format(size * zoom / size, "###.##%");
}

int LineWidth(int pixels, int size) {
    return RoundTo32(double(pixels) / size + 1);
}

int TrailWidth(double zoom) {
    return RoundTo32(zoom + 1);
}

int WidthInPoints(int width, int points, int pixels) {
    return std::max(1, RoundTo32(double(width) * points / pixels));
}

}  // namespace quillbrand
