#pragma once

#include <QDialog>

namespace quillbrand {

/// The about window, which is the splash of the start too. A click or a key closes it at once.
class frmAbout : public QDialog {
    Q_OBJECT

  public:
    explicit frmAbout(QWidget* parent = nullptr);

    /// Shows it without a frame and returns; it goes by itself after a moment.
    void ShowAsSplash();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace quillbrand
