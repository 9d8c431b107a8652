#pragma once

#include <QLineEdit>

namespace quillbrand {

/// A text field that takes the keys of a number only, and tells when the user comes and goes. The
/// window's own coming and going does not count, as for a message box, nor does being disabled.
class NumberField : public QLineEdit {
    Q_OBJECT

  public:
    using QLineEdit::QLineEdit;

  signals:
    void GotFocus();
    void Left();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

}  // namespace quillbrand
