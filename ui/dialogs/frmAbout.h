#pragma once

#include <QDialog>

namespace quillbrand {

/// The about window, which is the splash of the start too. It goes by itself after a moment; a
/// click or a key closes it at once.
class frmAbout : public QDialog {
    Q_OBJECT

  public:
    explicit frmAbout(QWidget* parent = nullptr);

    /// Shows it without a frame and returns.
    void ShowAsSplash();

  protected:
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace quillbrand
