#include "ui/plan/PictureBox.h"

#include <QMouseEvent>
#include <algorithm>
#include <cmath>
#include <utility>

namespace quillbrand {

namespace {

/// How far the lines of an overlay may leave its bounds, and a pixel for what rounding takes.
constexpr int lineMargin = 3;

/// The pixels that `count` points from `first` on touch, of `points` on `pixels` in all, and one on
/// either side.
std::pair<int, int> Touched(int first, int count, int points, int pixels) {
    const double scale = double(pixels) / points;
    return {static_cast<int>(std::floor(first * scale)) - 1,
            static_cast<int>(std::ceil((first + count) * scale)) + 1};
}

}  // namespace

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

Picture PictureBox::SetRaster(Picture raster) {
    std::swap(raster_, raster);
    RasterChanged();
    return raster;
}

void PictureBox::RasterChanged() {
    scaled_.Forget();
    update();
}

void PictureBox::RasterChanged(const QRect& points) {
    const QRect inside = points & QRect(0, 0, raster_.Width(), raster_.Height());
    if (inside.isEmpty())
        return;
    scaled_.Changed(inside);
    const auto [left, right] = Touched(inside.x(), inside.width(), raster_.Width(), width());
    const auto [top, bottom] = Touched(inside.y(), inside.height(), raster_.Height(), height());
    update(left, top, right - left, bottom - top);
}

void PictureBox::SetUnits(double units) {
    units_ = units;
    update();
}

void PictureBox::SetBackColor(QColor colour) {
    back_ = colour;
    update();
}

const QImage& PictureBox::Scaled() {
    return scaled_.Scale(raster_, size().expandedTo(QSize(1, 1)), devicePixelRatioF());
}

QImage PictureBox::Shown() {
    if (raster_.Width() > 0)
        return Scaled();
    const double ratio = devicePixelRatioF();
    QImage shown((QSizeF(size()) * ratio).toSize(), QImage::Format_RGB32);
    shown.setDevicePixelRatio(ratio);
    shown.fill(back_);
    return shown;
}

void PictureBox::Add(const Overlay& overlay) {
    layers_.push_back({&overlay, {}});
    OverlayChanged(overlay);
}

void PictureBox::Remove(const Overlay& overlay) {
    std::erase_if(layers_, [&](const Layer& layer) {
        if (layer.overlay != &overlay)
            return false;
        update(layer.shownAt);
        return true;
    });
}

void PictureBox::OverlayChanged(const Overlay& overlay) {
    for (Layer& layer : layers_)
        if (layer.overlay == &overlay) {
            update(std::exchange(layer.shownAt, PixelsOf(overlay)));
            update(layer.shownAt);
        }
}

QSizeF PictureBox::PixelsPerUnit() const {
    return units_ > 0 ? QSizeF(size()) / units_ : QSizeF(1, 1);
}

QRect PictureBox::PixelsOf(const Overlay& overlay) const {
    const QRectF bounds = overlay.Bounds();
    if (bounds.isEmpty())
        return {};
    const QSizeF scale = PixelsPerUnit();
    const QRectF pixels(bounds.x() * scale.width(), bounds.y() * scale.height(),
                        bounds.width() * scale.width(), bounds.height() * scale.height());
    const QRectF room = QRectF(rect()).adjusted(-lineMargin, -lineMargin, lineMargin, lineMargin);
    return (pixels & room)
        .toAlignedRect()
        .adjusted(-lineMargin, -lineMargin, lineMargin, lineMargin);
}

void PictureBox::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    if (raster_.Width() == 0)
        painter.fillRect(event->rect(), back_);
    else
        painter.drawImage(QPointF(), Scaled());
    const QSizeF scale = PixelsPerUnit();
    painter.scale(scale.width(), scale.height());
    for (Layer& layer : layers_) {
        layer.shownAt = PixelsOf(*layer.overlay);
        if (!event->region().intersects(layer.shownAt))
            continue;
        painter.save();
        layer.overlay->Paint(painter);
        painter.restore();
    }
}

QPointF PictureBox::InUnits(QPointF place) const {
    const QSizeF scale = PixelsPerUnit();
    return {place.x() / scale.width(), place.y() / scale.height()};
}

QPointF PictureBox::InPixels(QPointF place) const {
    const QSizeF scale = PixelsPerUnit();
    return {place.x() * scale.width(), place.y() * scale.height()};
}

PlanMouse PictureBox::MouseOf(const QMouseEvent& event) const {
    return {.place = InUnits(event.position()),
            .button = event.button(),
            .held = event.buttons(),
            .keys = event.modifiers(),
            .isDouble = event.type() == QEvent::MouseButtonDblClick};
}

void PictureBox::mousePressEvent(QMouseEvent* event) {
    emit MouseDown(MouseOf(*event));
}

void PictureBox::mouseMoveEvent(QMouseEvent* event) {
    emit MouseMove(MouseOf(*event));
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event) {
    emit MouseUp(MouseOf(*event));
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit Clicked();
}

void PictureBox::mouseDoubleClickEvent(QMouseEvent* event) {
    const PlanMouse mouse = MouseOf(*event);
    emit MouseDown(mouse);
    emit DoubleClicked(mouse);
}

void PictureBox::leaveEvent(QEvent* event) {
    emit MouseLeft();
    QWidget::leaveEvent(event);
}

void PictureBox::wheelEvent(QWheelEvent* event) {
    emit WheelTurned(
        {.place = InUnits(event->position()), .held = event->buttons(), .keys = event->modifiers()},
        event->angleDelta().y());
}

}  // namespace quillbrand
