#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "ui/Workplace.h"
#include "ui/plan/PlanLayers.h"

namespace quillbrand {

class Canvas;
class PictureBox;

/// The plan view: the height picture `Picture1` on black, its zoom, and what the status bar says of
/// the point under the mouse.
///
/// Three things are kept apart: the raster, with one pixel a grid point in the colours of the
/// heights and the marks that pens leave; overlays above it; and the widget, which shows both. The
/// unit of all three is the grid interval.
class PlanView : public QWidget {
    Q_OBJECT

  public:
    explicit PlanView(Workplace& workplace, QWidget* parent = nullptr);

    /// Height picture and marks, without overlays.
    const Picture& Raster() const;

    /// The same as it stands on the screen.
    QImage PrintPicture() const;

    /// The widget, for overlays and marks.
    PictureBox& Box() { return *Picture1_; }

    /// What shows before there is a raster.
    void SetBackColor(Colour colour);

    /// `ResizePic` to the terrain's size; the zoom is multiplied by `factor`, 0 goes back to 1. The
    /// picture gets at most `limit` pixels a side. The old raster stands in until the next Rebuild.
    void Resize(double factor, double limit);

    /// `BuildHeightPicture`. What is shown changes when the new raster is whole. The busy flag
    /// stays set for the caller to clear.
    void Rebuild();

    /// `Picture1_DblClick`: the true heights, without marks. Nothing while a command runs.
    void Redraw();

    /// Fills the status panels 2 to 6 for a place in grid units.
    void ShowPoint(QPointF place);

    /// Draws marks into the raster, in grid units; `draw` returns the pixels it touched.
    void Draw(const std::function<QRect(Canvas&)>& draw);

    /// The width on the raster of a line that is `pixels` wide on the screen.
    int WidthInRaster(int pixels) const;

    /// What stands above the raster: the outline that follows the mouse, and the selection's frame.
    void ShowOutline(const std::optional<PenOutline>& outline);
    void ShowFrame(const std::optional<Frame>& frame);

    /// Where on the screen a place in grid units is.
    QPoint OnScreen(QPointF place) const;

  signals:
    /// A text for the status bar; `panel` counts from 1.
    void PanelText(int panel, const std::string& text);

  private:
    Workplace& workplace_;
    PictureBox* Picture1_;
    OutlineLayer Pencil_;
    FrameLayer frame_;
    Colour back_ = ColourOf(0, 0, 0);
    Picture spare_;  ///< that the next raster is built in
};

}  // namespace quillbrand
