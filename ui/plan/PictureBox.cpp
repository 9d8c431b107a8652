#include "ui/plan/PictureBox.h"

#include <QMouseEvent>
#include <QPainter>

namespace quillbrand {

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureBox::SetBackColor(QColor colour) {
    back_ = colour;
    update();
}

void PictureBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (raster_.Width() == 0) {
        painter.fillRect(rect(), back_);
        return;
    }
    // Smooth where several points share a pixel, sharp points where one spans several.
    const bool shrinks = raster_.Width() > width() * devicePixelRatioF();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, shrinks);
    painter.drawImage(rect(), raster_.Image());
}

QPointF PictureBox::InUnits(QPointF place) const {
    if (units_ <= 0)
        return place;
    return {place.x() * units_ / width(), place.y() * units_ / height()};
}

void PictureBox::mousePressEvent(QMouseEvent* event) {
    const QPointF place = InUnits(event->position());
    emit MouseDown(place.x(), place.y(), event->button());
}

void PictureBox::mouseMoveEvent(QMouseEvent* event) {
    const QPointF place = InUnits(event->position());
    emit MouseMove(place.x(), place.y(), event->buttons());
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit Clicked();
}

void PictureBox::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
    emit DoubleClicked();
}

}  // namespace quillbrand
