#pragma once

#include <optional>

#include "editor/Frame.h"
#include "editor/PenMark.h"
#include "ui/plan/Overlay.h"

namespace quillbrand {

/// The outline of the pen (`Pencil`), which follows the mouse.
class OutlineLayer : public Overlay {
  public:
    QRectF Bounds() const override;
    void Paint(QPainter& painter) const override;

    std::optional<PenOutline> outline;
};

/// The selection's frame.
class FrameLayer : public Overlay {
  public:
    QRectF Bounds() const override;
    void Paint(QPainter& painter) const override;

    std::optional<Frame> frame;
};

}  // namespace quillbrand
