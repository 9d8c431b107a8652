#pragma once

#include <QPointF>
#include <Qt>

namespace quillbrand {

/// The mouse over a picture.
struct PlanMouse {
    QPointF place;  ///< in the picture's units; beyond the picture while a button is held
    Qt::MouseButton button = Qt::NoButton;        ///< that went down or up; none in a move
    Qt::MouseButtons held = Qt::NoButton;         ///< that are down after the event
    Qt::KeyboardModifiers keys = Qt::NoModifier;  ///< Shift, Ctrl and the like
    bool isDouble = false;                        ///< the second press of a double click
};

}  // namespace quillbrand
