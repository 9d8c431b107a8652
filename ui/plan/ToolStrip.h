#pragma once

#include <QToolBar>

#include "editor/Pen.h"

namespace quillbrand {

/// The strip beside the picture: `Toolbar2` with the tools and, under it, `ToolBarPen` with the pen
/// shapes. Of each, one button is down.
class ToolStrip : public QWidget {
    Q_OBJECT

  public:
    static constexpr auto firstTool = "Pfeil";

    explicit ToolStrip(QWidget* parent = nullptr);

    /// Presses a tool's button without a signal.
    void ShowTool(const QString& key);

    void EnablePens(bool enable);

    /// Draws the icons in these colours.
    void TintIcons(const QPalette& colours);

  signals:
    void Toolbar2_ButtonClick(const QString& key);
    void ToolBarPen_ButtonClick(PenShape shape);

  private:
    QToolBar* Toolbar2_;
    QToolBar* ToolBarPen_;
};

}  // namespace quillbrand
