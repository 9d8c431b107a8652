#include "ui/PictureBox.h"

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

void PictureBox::mouseMoveEvent(QMouseEvent* event) {
    const QPointF place = event->position();
    const bool scaled = units_ > 0;
    emit MouseMove(scaled ? place.x() * units_ / width() : place.x(),
                   scaled ? place.y() * units_ / height() : place.y());
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit Clicked();
}

void PictureBox::mouseDoubleClickEvent(QMouseEvent*) {
    emit DoubleClicked();
}

}  // namespace quillbrand
