#include "ui/controls/NumberField.h"

#include <QKeyEvent>

#include "base/Stdio.h"

namespace quillbrand {

namespace {

/// The character that the key would write, or nothing for a key that commands.
QChar Typed(const QKeyEvent& event) {
    const bool commands =
        event.modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (commands || event.text().isEmpty() || !event.text().front().isPrint())
        return {};
    return event.text().front();
}

bool IsTheUsers(const QFocusEvent& event) {
    switch (event.reason()) {
        case Qt::ActiveWindowFocusReason:
        case Qt::PopupFocusReason:
        case Qt::MenuBarFocusReason:
            return false;
        default:
            return true;
    }
}

}  // namespace

void NumberField::keyPressEvent(QKeyEvent* event) {
    const QChar typed = Typed(*event);
    if (!typed.isNull() && !STDIO::NumericKeyFilter(text().toStdString(), typed.unicode()))
        return;
    QLineEdit::keyPressEvent(event);
}

void NumberField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (IsTheUsers(*event))
        emit GotFocus();
}

void NumberField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (IsTheUsers(*event) && isEnabled())
        emit Left();
}

}  // namespace quillbrand
