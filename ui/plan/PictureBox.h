#pragma once

#include <QWidget>

#include "base/Picture.h"

namespace quillbrand {

/// Shows a picture stretched over the whole widget and turns mouse positions into the picture's
/// own units.
class PictureBox : public QWidget {
    Q_OBJECT

  public:
    explicit PictureBox(QWidget* parent = nullptr);

    /// The raster that is shown. After a change, call update().
    Picture& Raster() { return raster_; }
    const Picture& Raster() const { return raster_; }

    /// The units across the widget, in both directions; 1 a pixel of the widget when 0.
    void SetUnits(double units) { units_ = units; }

    /// What shows where there is no raster.
    void SetBackColor(QColor colour);

  signals:
    /// Places are in the units that were set. A double click presses twice.
    void MouseDown(double x, double y, Qt::MouseButton button);
    void MouseMove(double x, double y, Qt::MouseButtons held);
    void Clicked();
    void DoubleClicked();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    QPointF InUnits(QPointF place) const;

    Picture raster_;
    double units_ = 0;
    QColor back_ = Qt::black;
};

}  // namespace quillbrand
