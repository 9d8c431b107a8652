#pragma once

#include <QToolBar>
#include <functional>
#include <vector>

class QAction;

namespace quillbrand {

/// A button of a tool bar, and all that is known of it.
struct ToolButton {
    const char* key;  ///< its name among the buttons, and its objectName
    const char* toolTip;
    const char* icon;
    const char* shortcut;
    std::function<void()> click;  ///< empty for a button whose command does not exist yet
    bool endsGroup = false;
};

/// The main command strip.
class Toolbar1 : public QToolBar {
    Q_OBJECT

  public:
    explicit Toolbar1(std::vector<ToolButton> buttons, QWidget* parent = nullptr);

    /// The button of a key, which must exist.
    QAction* Button(const QString& key) const;

    /// Buttons without a command stay disabled whatever is asked.
    void EnableButton(const QString& key, bool enable);

    /// Draws the icons in these colours.
    void TintIcons(const QPalette& colours);

  private:
    void Add(const ToolButton& button);

    std::vector<ToolButton> buttons_;
};

}  // namespace quillbrand
