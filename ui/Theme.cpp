#include "ui/Theme.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <cmath>

namespace quillbrand {

namespace {

QPalette DarkPalette() {
    const QColor window(0x2b, 0x2e, 0x33);
    const QColor base(0x1f, 0x21, 0x25);
    const QColor text(0xe6, 0xe8, 0xeb);
    const QColor paleText(0x85, 0x8a, 0x92);
    QPalette palette(text, window, QColor(0x4a, 0x4e, 0x55), QColor(0x17, 0x19, 0x1c),
                     QColor(0x38, 0x3b, 0x41), text, base);
    palette.setColor(QPalette::Button, QColor(0x36, 0x39, 0x3f));
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, base);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0x8b, 0x6e));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, paleText);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, paleText);
    return palette;
}

/// How bright a colour looks, 0..1.
double Brightness(const QColor& colour) {
    return 0.2126 * colour.redF() + 0.7152 * colour.greenF() + 0.0722 * colour.blueF();
}

QColor Between(const QColor& a, const QColor& b) {
    return {(a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2};
}

/// How far the brightness of a text must be from that of its ground.
constexpr double leastContrast = 0.4;

}  // namespace

void ApplyStyle() {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
}

void ApplyTheme(bool dark) {
    ApplyStyle();
    QApplication::setPalette(dark ? DarkPalette() : QApplication::style()->standardPalette());
}

QPalette WindowColours(const QColor& window) {
    QPalette colours;
    colours.setColor(QPalette::Window, window);
    const double brightness = Brightness(window);
    const QColor usual = colours.color(QPalette::WindowText);
    if (std::abs(Brightness(usual) - brightness) >= leastContrast)
        return colours;
    const QColor text = brightness > 0.5 ? Qt::black : Qt::white;
    colours.setColor(QPalette::Button, window);
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText}) {
        colours.setColor(role, text);
        colours.setColor(QPalette::Disabled, role, Between(text, window));
    }
    return colours;
}

}  // namespace quillbrand
