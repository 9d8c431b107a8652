#pragma once

#include <QToolBar>

namespace quillbrand {

/// The strip beside the picture: `Toolbar2` with the tools and, under it, `ToolBarPen` with the pen
/// shapes. The tools are not built yet, so that both are disabled.
class ToolStrip : public QWidget {
    Q_OBJECT

  public:
    explicit ToolStrip(QWidget* parent = nullptr);

    /// Draws the icons in these colours.
    void TintIcons(const QPalette& colours);

  private:
    QToolBar* Toolbar2_;
    QToolBar* ToolBarPen_;
};

}  // namespace quillbrand
