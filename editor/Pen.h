#pragma once

#include "base/RandomSource.h"
#include "terrain/clsTerrain.h"

namespace quillbrand {

/// The form of the pen's prints; there is none until the user chooses one.
enum class PenShape { None = 0, Square = 1, Round = 2, Noise = 3 };

/// A place on the height picture in grid units, as the mouse tells it.
struct MousePoint {
    float x;
    float y;
};

/// What the pen is set to.
struct Pen {
    PenShape shape = PenShape::None;
    int size = 10;       ///< 1..60 (`Slider1`)
    int height = 32768;  ///< 1..65534 (`Slider2`)
    int fine = 0;        ///< -1000..1000, added to the height (`sliderFineHeight`)
    bool snap = false;   ///< prints tile the terrain (`SnapActive`)

    /// The raw height that it writes.
    Height Z() const { return height - 32768 + fine; }

    /// Where it prints with the mouse at `mouse`: there, or with `snap` in the middle of the tile,
    /// 2 * size wide.
    MousePoint PlaceOf(const MousePoint& mouse) const;
};

// The prints of a stroke of the pen: a press, then a move for each further place. Without a shape
// nothing is written. The noise shape draws two random numbers a dot.

/// The first print, one point wider than those that follow. It clears `TerrainEmpty` even without
/// a shape.
void PressPen(clsTerrain& terrain, const Pen& pen, const MousePoint& mouse, RandomSource& chance,
              bool& TerrainEmpty);

/// A further print. With Shift held the pen moves without printing: the caller does not call.
void MovePen(clsTerrain& terrain, const Pen& pen, const MousePoint& mouse, RandomSource& chance);

}  // namespace quillbrand
