#pragma once

#include <string>

#include "base/Host.h"
#include "editor/AreaCommands.h"
#include "editor/Pen.h"
#include "editor/Resize.h"
#include "editor/Stroke.h"
#include "shell/Session.h"
#include "terrain/HeightsChange.h"

namespace quillbrand {

// What the mouse, the menu of the selection and "Resize" do to a document. Each is one step of its
// history; one that throws Fault leaves the document as it was. Showing the result is the caller's.

/// A stroke of the pen, from press to release. Left without End, by a fault, it puts back what the
/// press found. Document and chance must outlive it.
class PenStroke {
  public:
    static constexpr auto name = "Pen";

    PenStroke(Document& document, RandomSource& chance)
        : document_(document), chance_(chance), change_(document, name) {}

    void Press(const Pen& pen, const MousePoint& mouse) {
        PressPen(document_.CurrentTerrain, pen, mouse, chance_, document_.TerrainEmpty);
    }
    void Move(const Pen& pen, const MousePoint& mouse) {
        MovePen(document_.CurrentTerrain, pen, mouse, chance_);
    }

    /// The release. Nothing may follow.
    void End() { change_.Commit(); }

  private:
    Document& document_;
    RandomSource& chance_;
    HeightsChange change_;
};

/// How the user knows a tool: "up", "down", "Erode", "Noise" or "Smooth".
std::string NameOf(StrokeTool tool);

/// The release of a stroke tool; `seed` is the generator's, for "Erode". See RunStroke.
void StartStroke(Document& document, Tools& tools, const Settings& settings, const Stroke& stroke,
                 const StrokeMap& map, Host& host);

/// The commands of the selection's menu, see editor/AreaCommands.h.
void FillArea(Document& document, const Frame& frame, int height, Host& host);
void LiftArea(Document& document, const Frame& frame, int depth, Host& host);
void LowerArea(Document& document, const Frame& frame, int depth, Host& host);
void ReflectArea(Document& document, const Frame& frame, Reflection way, Host& host);

/// "Resize" to `size` intervals, see editor/Resize.h. An empty terrain, or one that has the size
/// already, is thrown away for a flat one; the text tells what happened.
std::string ResizeDocument(Document& document, int size, int resizeMode, int roughness, Host& host);

}  // namespace quillbrand
