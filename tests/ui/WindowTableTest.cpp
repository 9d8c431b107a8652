#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTabWidget>
#include <QToolBar>
#include <fstream>
#include <sstream>

#include "tests/ui/WindowFixture.h"

// Everything that stands in the main window, held by a table that is data: window-table.txt. A line
// is a control or button with what it shows, its tool tip, its range, and whether it is enabled at
// the start, with a terrain, and with the pen chosen ("y" or "-" for each).
namespace quillbrand {
namespace {

QString Quoted(QString text) {
    return '"' + text.replace('\n', QLatin1String("\\n")) + '"';
}

QString Shown(const QWidget* control) {
    if (const auto* slider = qobject_cast<const QSlider*>(control))
        return QStringLiteral("%1..%2 at %3, steps %4 and %5, ticks %6")
            .arg(slider->minimum())
            .arg(slider->maximum())
            .arg(slider->value())
            .arg(slider->singleStep())
            .arg(slider->pageStep())
            .arg(slider->tickInterval());
    if (const auto* button = qobject_cast<const QAbstractButton*>(control))
        return Quoted(button->text()) + (button->isChecked() ? " ticked" : "");
    if (const auto* label = qobject_cast<const QLabel*>(control))
        return Quoted(label->text());
    if (const auto* field = qobject_cast<const QLineEdit*>(control))
        return Quoted(field->text()) + (field->isReadOnly() ? " read only" : "");
    return {};
}

/// The controls that have names of their own, and the actions of the tool bars, in the order in
/// which they were made.
class Table {
  public:
    explicit Table(QWidget* window) {
        for (auto* tools : window->findChildren<QToolBar*>())
            for (auto* action : tools->actions())
                if (!action->isSeparator() && action->isVisible())
                    Add(tools->objectName() + '/' + action->objectName(), action->toolTip(),
                        action->shortcut().toString(),
                        [tools, action] { return tools->isEnabled() && action->isEnabled(); });
        for (auto* control : window->findChildren<QWidget*>()) {
            const QString name = control->objectName();
            if (name.isEmpty() || name.startsWith("qt_") || name.startsWith("Scroll") || Find(name))
                continue;
            Add(name, control->toolTip(), Shown(control),
                [control] { return control->isEnabled(); });
        }
        for (auto* frame : window->findChildren<QGroupBox*>())
            Add("frame", "", Quoted(frame->title()), [] { return true; });
        const auto* tabs = window->findChild<QTabWidget*>("SSTab1");
        for (int i = 0; i < tabs->count(); ++i)
            Add("tab", "", Quoted(tabs->tabText(i)) + (i == tabs->currentIndex() ? " shown" : ""),
                [] { return true; });
    }

    /// Notes for each line whether it is enabled now.
    void Note() {
        for (Line& line : lines_)
            line.states += line.isEnabled() ? 'y' : '-';
    }

    std::string Text() const {
        std::ostringstream text;
        for (const Line& line : lines_)
            text << line.states << ' ' << line.name.toStdString() << " | "
                 << line.shown.toStdString() << " | " << line.toolTip.toStdString() << '\n';
        return text.str();
    }

  private:
    struct Line {
        QString name, toolTip, shown;
        std::function<bool()> isEnabled;
        std::string states;
    };

    void Add(const QString& name, const QString& toolTip, const QString& shown,
             std::function<bool()> isEnabled) {
        lines_.push_back({name, toolTip, shown, std::move(isEnabled), {}});
    }

    /// A button of a tool bar stands in it as an action already.
    bool Find(const QString& name) const {
        return std::any_of(lines_.begin(), lines_.end(),
                           [&](const Line& line) { return line.name.section('/', 1) == name; });
    }

    std::vector<Line> lines_;
};

using WindowTable = WindowFixture;

TEST_F(WindowTable, ShowsAndOffersWhatTheTableSays) {
    ASSERT_TRUE(StartWindow());
    QTest::qWait(250);
    Table table(window_.get());
    table.Note();
    Produce("4711");
    table.Note();
    Find<QToolBar>("Toolbar2")->findChild<QAction*>("Pen")->trigger();
    table.Note();

    std::ifstream file(QB_WINDOW_TABLE);
    std::stringstream expected;
    expected << file.rdbuf();
    if (table.Text() != expected.str())
        std::ofstream(QB_WINDOW_TABLE ".actual") << table.Text();
    EXPECT_EQ(table.Text(), expected.str()) << "what is there now: " QB_WINDOW_TABLE ".actual";
}

}  // namespace
}  // namespace quillbrand
