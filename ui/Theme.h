#pragma once

#include <QPalette>

namespace quillbrand {

/// The program's style, with the desktop's colours.
void ApplyStyle();

/// The style with light or dark colours of its own, where no desktop says.
void ApplyTheme(bool dark);

/// What a window of this colour sets of its palette: the colour, and others for texts and buttons
/// where the program's could not be read on it.
QPalette WindowColours(const QColor& window);

}  // namespace quillbrand
