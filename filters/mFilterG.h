#pragma once

#include "base/Host.h"
#include "base/Picture.h"

/// The picture filters, chosen by number. filters/Bodies.h tells what each of them does.
namespace quillbrand::mFilterG {

/// Runs the filter `filterId` (1..32) on the picture, in place; any other number changes nothing.
/// `parameter` is the filter's level, whose meaning is the filter's own. Pictures of any size and
/// shape will do; no filter touches the fourth channel of a pixel.
///
/// Tells the host the percent and lets events through once a row. While a filter runs, a further
/// call out of such an event returns at once and changes nothing.
///
/// Throws Fault, with the picture as it was, for a level that the filter cannot work with.
void ApplyPictureFilter(int filterId, Picture& picture, int parameter, Host& host);

/// The channels of a colour. `green` and `blue` are 0..255; `red` is what the division by 256
/// leaves over, -255..255, with the sign of the colour.
void SplitColour(Colour colour, int& red, int& green, int& blue);

}  // namespace quillbrand::mFilterG
