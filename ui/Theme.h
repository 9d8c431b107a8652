#pragma once

namespace quillbrand {

/// The program's style, with the desktop's colours.
void ApplyStyle();

/// The style with light or dark colours of its own, where no desktop says.
void ApplyTheme(bool dark);

}  // namespace quillbrand
