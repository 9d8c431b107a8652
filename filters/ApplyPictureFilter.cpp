#include <array>

#include "filters/Bodies.h"
#include "filters/mFilterG.h"

namespace quillbrand::mFilterG {

namespace {

using Body = void (*)(Job&);

/// By number, from 1.
constexpr std::array<Body, 32> bodies = {
    Sharpen,
    Negate,
    SmoothByEight,
    Diffuse,
    SmoothByFive,
    SharpenByLaplacian,
    Contour,
    ReliefToLowerRight,
    ReliefToRight,
    ReliefToUpperLeft,
    ReliefToLeft,
    Grey,
    DiagonalRelief,
    Brighten,
    Mosaic,
    SwapChannels,
    Contrast,
    ThresholdColours,
    EdgesOverMean,
    DitherOrdered,
    DiffuseFloydSteinberg,
    DiffuseBurkes,
    DiffuseStucki,
    Kuwahara,
    Dilate,
    Erode,
    LeastOfNine,
    StretchRange,
    AddNoise,
    Saturate,
    Gamma,
    Mask,
};
constexpr int maskId = 32;

/// Set while a filter runs: the events that it lets through must not start another.
bool busyMark = false;

class BusyMark {
  public:
    BusyMark() { busyMark = true; }
    BusyMark(const BusyMark&) = delete;
    BusyMark& operator=(const BusyMark&) = delete;
    ~BusyMark() { busyMark = false; }
};

}  // namespace

void ApplyPictureFilter(int filterId, Picture& picture, int parameter, Host& host) {
    if (busyMark || filterId < 1 || filterId > static_cast<int>(bodies.size()))
        return;
    const BusyMark mark;
    const bool silent = filterId == maskId;
    if (!silent)
        host.Progress(0);
    Job job(filterId, picture, parameter, silent, host);
    if (picture.Width() > 0)
        bodies[static_cast<std::size_t>(filterId) - 1](job);
    host.Progress(100);
}

void SplitColour(Colour colour, int& red, int& green, int& blue) {
    red = colour % 256;
    green = colour >> 8 & 255;
    blue = colour >> 16 & 255;
}

}  // namespace quillbrand::mFilterG
