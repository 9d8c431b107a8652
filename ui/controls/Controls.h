#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

/// Short ways to make controls; each is known by its objectName.
namespace quillbrand {

/// The rhythm of all layouts, in pixels.
constexpr int gap = 8;

template <typename Control>
Control* Named(Control* control, const char* name, const char* toolTip = "") {
    control->setObjectName(QLatin1String(name));
    control->setToolTip(QString::fromUtf8(toolTip));
    return control;
}

inline QPushButton* MakeButton(const char* name, const char* caption, const char* toolTip = "") {
    return Named(new QPushButton(QString::fromUtf8(caption)), name, toolTip);
}

inline QCheckBox* MakeCheck(const char* name, const char* caption, const char* toolTip = "") {
    return Named(new QCheckBox(QString::fromUtf8(caption)), name, toolTip);
}

inline QLineEdit* MakeText(const char* name, const char* text, const char* toolTip = "") {
    return Named(new QLineEdit(QString::fromUtf8(text)), name, toolTip);
}

/// A label that belongs to a control: its mnemonic goes there.
inline QLabel* MakeLabel(const char* text, QWidget* buddy) {
    auto* label = new QLabel(QString::fromUtf8(text));
    label->setBuddy(buddy);
    return label;
}

/// Makes the Tab key visit the widgets, which share a window, in this order.
inline void OrderTabs(const QList<QWidget*>& widgets) {
    for (qsizetype i = 1; i < widgets.size(); ++i)
        QWidget::setTabOrder(widgets[i - 1], widgets[i]);
}

/// A frame with a caption.
inline QGroupBox* MakeFrame(const char* caption) {
    return new QGroupBox(QString::fromUtf8(caption));
}

}  // namespace quillbrand
