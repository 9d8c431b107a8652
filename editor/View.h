#pragma once

#include <string>

namespace quillbrand {

/// The zoom limits: screen pixels per grid interval.
constexpr double leastZoom = 0.25;
constexpr double mostZoom = 4;

/// The zoom after a step of `factor` (0 goes back to 1) for a picture of `size` intervals whose
/// side may have `limit` pixels at most. Where the limit lowers it, it is lowered for good.
double NextZoom(double zoom, double factor, int size, double limit);

/// The side of the picture on the screen, in pixels, rounded.
int PictureSide(double zoom, int size);

/// What the first panel of the status bar says, e.g. "257 x 257   Zoom =100.%".
std::string ZoomText(double zoom, int size);

/// The width of lines drawn on a picture of `pixels` pixels that shows `size` intervals.
int LineWidth(int pixels, int size);

/// The width of the trail that strokes of tools leave, in pixels of the screen.
int TrailWidth(double zoom);

/// How many points wide a line must be drawn on a raster of `points` points that is shown in
/// `pixels` pixels, to be `width` pixels wide there; at least 1.
int WidthInPoints(int width, int points, int pixels);

}  // namespace quillbrand
