#include "ui/plan/PlanLayers.h"

namespace quillbrand {

namespace {

/// Lines that are seen on every colour: white dashes on black.
template <typename Draw>
void InTwoColours(QPainter& painter, Draw draw) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::black, 0));
    draw();
    QPen dashes(Qt::white, 0);
    dashes.setDashPattern({4, 4});
    painter.setPen(dashes);
    draw();
}

}  // namespace

QRectF OutlineLayer::Bounds() const {
    return outline ? QRectF(outline->left, outline->top, outline->side, outline->side) : QRectF();
}

void OutlineLayer::Paint(QPainter& painter) const {
    InTwoColours(painter, [&] {
        outline->isSquare ? painter.drawRect(Bounds()) : painter.drawEllipse(Bounds());
    });
}

QRectF FrameLayer::Bounds() const {
    if (!frame)
        return {};
    // A frame that has just been begun is a point, which must not count as nothing.
    constexpr double trace = 1e-3;
    return QRectF(QPointF(frame->left, frame->top), QPointF(frame->right, frame->bottom))
        .normalized()
        .adjusted(0, 0, trace, trace);
}

void FrameLayer::Paint(QPainter& painter) const {
    InTwoColours(painter, [&] { painter.drawRect(Bounds()); });
}

}  // namespace quillbrand
