#pragma once

#include <string>

#include "editor/Pen.h"

namespace quillbrand {

// What the tab "Edit" shows of the pen's height. "?" stands for a number that the terrain's scale
// makes too large.

/// The palette index of the swatch `Picture2` for a height counted from the bottom of the 16-bit
/// range: `Slider2` alone when the pen is taken up, with `sliderFineHeight` added when one of the
/// two moves.
int SwatchIndex(int height);

/// `lblPickHeigh`: the pen's height in metres, fine tuning included.
std::string PenHeightText(const clsTerrain& terrain, const Pen& pen);

/// `lblHeight` after a move of `Slider2`: its height in metres, to a tenth, without fine tuning.
std::string SliderHeightText(const clsTerrain& terrain, const Pen& pen);

/// `lblFineHeight`: the fine tuning in metres, by what `txtMaxTerrain` and `txtMinTerrain` show.
std::string FineHeightText(const Pen& pen, double txtMaxTerrain, double txtMinTerrain);

/// A height taken over from the terrain ("Pick").
struct PickedHeight {
    int height;  ///< for `Slider2`, limited to its range
    std::string lblHeight;
    std::string lblPickHeigh;  ///< to a tenth, unlike PenHeightText
    int swatch;                ///< palette index
};

/// The height at the grid point nearest to the mouse; `pen` tells the fine tuning.
PickedHeight PickHeight(const clsTerrain& terrain, const Pen& pen, const MousePoint& mouse);

}  // namespace quillbrand
