#pragma once

#include <QToolBar>

class QAction;

namespace quillbrand {

/// The main command strip: seventeen buttons, each known by its key, which is its objectName too.
class Toolbar1 : public QToolBar {
    Q_OBJECT

  public:
    explicit Toolbar1(QWidget* parent = nullptr);

    /// The button of a key, which must exist.
    QAction* Button(const QString& key) const;

    /// Buttons whose commands are not built yet stay disabled whatever is asked.
    void EnableButton(const QString& key, bool enable);

    /// Draws the icons in these colours.
    void TintIcons(const QPalette& colours);

  signals:
    /// A button was pressed, by mouse or by its shortcut.
    void ButtonClick(const QString& key);

  private:
    struct Spec;
    static const QList<Spec>& Specs();
};

}  // namespace quillbrand
