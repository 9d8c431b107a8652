#pragma once

#include <QStatusBar>
#include <array>
#include <string>

class QLabel;

namespace quillbrand {

/// The status bar `sBar` with its six panels.
class StatusPanels : public QStatusBar {
    Q_OBJECT

  public:
    explicit StatusPanels(QWidget* parent = nullptr);

    /// `panel` counts from 1.
    void SetPanel(int panel, const std::string& text);

  private:
    std::array<QLabel*, 6> panels_{};
};

}  // namespace quillbrand
