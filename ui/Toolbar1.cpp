#include "ui/Toolbar1.h"

#include <QAction>
#include <cassert>
#include <utility>

#include "ui/controls/Icons.h"

namespace quillbrand {

Toolbar1::Toolbar1(std::vector<ToolButton> buttons, QWidget* parent)
    : QToolBar(parent), buttons_(std::move(buttons)) {
    setObjectName(QStringLiteral("Toolbar1"));
    setWindowTitle(QStringLiteral("Toolbar1"));
    setMovable(false);
    setIconSize(QSize(24, 24));
    for (const ToolButton& button : buttons_)
        Add(button);
    TintIcons(palette());
}

void Toolbar1::Add(const ToolButton& button) {
    const QString toolTip = QString::fromUtf8(button.toolTip);
    QAction* action = addAction(toolTip.isEmpty() ? QString::fromUtf8(button.key) : toolTip);
    action->setObjectName(QString::fromUtf8(button.key));
    action->setToolTip(toolTip);
    action->setShortcut(QKeySequence(QString::fromUtf8(button.shortcut)));
    action->setEnabled(bool(button.click));
    if (QWidget* widget = widgetForAction(action)) {
        widget->setObjectName(action->objectName());
        widget->setFocusPolicy(Qt::TabFocus);
    }
    if (button.click)
        connect(action, &QAction::triggered, this, button.click);
    if (button.endsGroup)
        addSeparator();
}

QAction* Toolbar1::Button(const QString& key) const {
    auto* button = findChild<QAction*>(key);
    assert(button != nullptr);
    return button;
}

void Toolbar1::EnableButton(const QString& key, bool enable) {
    for (const ToolButton& button : buttons_)
        if (QString::fromUtf8(button.key) == key)
            Button(key)->setEnabled(enable && button.click);
}

void Toolbar1::TintIcons(const QPalette& colours) {
    for (const ToolButton& button : buttons_)
        Button(QString::fromUtf8(button.key))
            ->setIcon(ThemedIcon(QString::fromUtf8(button.icon), colours));
}

}  // namespace quillbrand
