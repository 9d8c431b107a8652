#pragma once

#include <QWidget>
#include <vector>

#include "base/Picture.h"
#include "ui/plan/Overlay.h"
#include "ui/plan/PlanMouse.h"
#include "ui/plan/ScaledRaster.h"

namespace quillbrand {

/// Shows a raster stretched over the whole widget, overlays above it, and turns mouse positions
/// into the picture's own units.
class PictureBox : public QWidget {
    Q_OBJECT

  public:
    explicit PictureBox(QWidget* parent = nullptr);

    /// The raster that is shown; without points, the back colour.
    const Picture& Raster() const { return raster_; }

    /// Shows another raster; the old one comes back, for its memory.
    Picture SetRaster(Picture raster);

    /// The raster to draw in. RasterChanged must follow before the next painting.
    Picture& EditRaster() { return raster_; }
    void RasterChanged();
    void RasterChanged(const QRect& points);

    /// The units across the widget, in both directions; 1 a pixel of the widget when 0.
    void SetUnits(double units);

    /// Where in the widget a place in units is.
    QPointF InPixels(QPointF place) const;

    /// What shows where there is no raster.
    void SetBackColor(QColor colour);

    /// What stands on the screen without the overlays.
    QImage Shown();

    /// Shows an overlay above those that are there, until it is removed. It must live till then.
    void Add(const Overlay& overlay);
    void Remove(const Overlay& overlay);

    /// Paints an overlay anew, and what it stood on before.
    void OverlayChanged(const Overlay& overlay);

  signals:
    /// Every button's press and release. A double click presses twice.
    void MouseDown(const PlanMouse& mouse);
    void MouseMove(const PlanMouse& mouse);
    void MouseUp(const PlanMouse& mouse);
    void DoubleClicked(const PlanMouse& mouse);
    void MouseLeft();

    /// The wheel, in eighths of a degree, away from the user.
    void WheelTurned(const PlanMouse& mouse, int angle);

    /// The left button went up above the picture.
    void Clicked();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    struct Layer {
        const Overlay* overlay;
        QRect shownAt;  ///< in pixels of the widget
    };

    QSizeF PixelsPerUnit() const;
    QPointF InUnits(QPointF place) const;
    PlanMouse MouseOf(const QMouseEvent& event) const;
    QRect PixelsOf(const Overlay& overlay) const;
    const QImage& Scaled();

    Picture raster_;
    ScaledRaster scaled_;
    std::vector<Layer> layers_;
    double units_ = 0;
    QColor back_ = Qt::black;
};

}  // namespace quillbrand
