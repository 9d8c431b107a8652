#pragma once

#include "base/Colours.h"
#include "editor/Pen.h"

namespace quillbrand {

/// What pens and tools are set to: the tab "Edit" holds it, the tools read it.
struct EditState {
    Pen pen;
    int depth = 5;            ///< of the stroke tools, 0..30 (`sldDepthEffects`)
    bool PickActive = false;  ///< the next left press takes over the height under the mouse
    Colour swatch = 0;        ///< of `Picture2` and of the marks that the pen leaves
};

}  // namespace quillbrand
