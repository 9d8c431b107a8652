#pragma once

#include "base/Picture.h"
#include "editor/ZView.h"
#include "shell/Session.h"

namespace quillbrand {

/// The highest place that the Z-view can cut; the lowest is 1.
int LastSection(const clsTerrain& terrain);

/// "Z-View" of a document: stretches the heights to the full range and draws the section into
/// `picture`. Throws Fault, with the heights as they were, for an empty terrain and a flat one.
/// Requires: the section is one of 1..LastSection.
void DrawZView(Picture& picture, Document& document, const Section& section);

}  // namespace quillbrand
