#include "ui/Toolbar1.h"

#include <QAction>

#include "ui/controls/Icons.h"

namespace quillbrand {

struct Toolbar1::Spec {
    QString key;
    QString toolTip;
    QString icon;
    QString shortcut;
    bool built = true;  ///< false until its command exists
    bool endsGroup = false;
};

const QList<Toolbar1::Spec>& Toolbar1::Specs() {
    static const QList<Spec> specs = {
        {"Neu", "New", "new", "Ctrl+N"},
        {"Öffnen", "Open", "open", "Ctrl+O"},
        {"Speichern", "Save", "save", "Ctrl+S"},
        {"SpeichernAls", "Save as...", "save-as", "Ctrl+Shift+S", true, true},
        {"Print", "Print Terrain and Settings", "print", "Ctrl+P", true, true},
        {"Restore", "Restore Terrain", "restore", "Ctrl+Shift+B"},
        {"Backup", "Backup Terrain", "backup", "Ctrl+B", true, true},
        {"Eigenschaften", "Options", "options", "Ctrl+,"},
        {"Löschen", "Clear Terrain ", "clear", "Ctrl+Shift+N"},
        {"Hilfe", "About", "about", "F1", true, true},
        {"Zoom in", "Zoom x2", "zoom-in", "Ctrl++"},
        {"Zoom out", "Zoom /2", "zoom-out", "Ctrl+-"},
        {"Zoom100", "Zoom 100%", "zoom-100", "Ctrl+0", true, true},
        {"Terragen", "Start Terragen with actually terrain", "terragen", ""},
        {"View3d", "View Terrain 3D", "view3d", "", false},
        {"ObjectMaker", "ObjectMaker", "objectmaker", "", false, true},
        {"SavePerlin", "", "save-perlin", ""},
    };
    return specs;
}

Toolbar1::Toolbar1(QWidget* parent) : QToolBar(parent) {
    setObjectName(QStringLiteral("Toolbar1"));
    setWindowTitle(QStringLiteral("Toolbar1"));
    setMovable(false);
    setIconSize(QSize(24, 24));
    for (const Spec& spec : Specs()) {
        QAction* action = addAction(spec.toolTip.isEmpty() ? spec.key : spec.toolTip);
        action->setObjectName(spec.key);
        action->setToolTip(spec.toolTip);
        action->setShortcut(QKeySequence(spec.shortcut));
        action->setEnabled(spec.built);
        if (QWidget* button = widgetForAction(action)) {
            button->setObjectName(spec.key);
            button->setFocusPolicy(Qt::TabFocus);
        }
        connect(action, &QAction::triggered, this,
                [this, key = spec.key] { emit ButtonClick(key); });
        if (spec.endsGroup)
            addSeparator();
    }
    TintIcons(palette());
}

QAction* Toolbar1::Button(const QString& key) const {
    return findChild<QAction*>(key);
}

void Toolbar1::EnableButton(const QString& key, bool enable) {
    for (const Spec& spec : Specs())
        if (spec.key == key)
            Button(key)->setEnabled(enable && spec.built);
}

void Toolbar1::TintIcons(const QPalette& colours) {
    for (const Spec& spec : Specs())
        Button(spec.key)->setIcon(ThemedIcon(spec.icon, colours));
}

}  // namespace quillbrand
