#include "tests/ui/WindowFixture.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTabWidget>
#include <QTimerEvent>
#include <QToolBar>

#include "shell/SubMain.h"
#include "tests/support/Grids.h"
#include "tests/support/NoiseSet.h"

namespace quillbrand {

namespace {

/// Of several users, one within an action of another, only the last acts.
QList<ModalUser*>& Users() {
    static QList<ModalUser*> users;
    return users;
}

}  // namespace

ModalUser::ModalUser(QList<Action> actions) : actions_(std::move(actions)) {
    Users().append(this);
    startTimer(1);
}

ModalUser::~ModalUser() {
    Users().removeLast();
}

void ModalUser::timerEvent(QTimerEvent* event) {
    // An action may open a window within this one. While a timer is being served it does not fire
    // again, so another one must be there for that window.
    killTimer(event->timerId());
    startTimer(1);
    QWidget* modal = QApplication::activeModalWidget();
    if (Users().last() != this || modal == nullptr || !modal->isVisible() || modal == inHand_)
        return;
    if (const auto* box = qobject_cast<QMessageBox*>(modal))
        seen += box->windowTitle() + ": " + box->text();
    if (actions_.isEmpty()) {
        // Nobody expected this window: close it, so that the test fails instead of hanging.
        seen += "unexpected " + modal->windowTitle();
        modal->close();
        return;
    }
    inHand_ = modal;
    actions_.takeFirst()(modal);
    inHand_ = nullptr;
}

ModalUser::Action Press(const QString& caption) {
    return [caption](QWidget* modal) {
        for (auto* button : modal->findChildren<QAbstractButton*>())
            if (button->text().remove('&') == caption) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        ADD_FAILURE() << "no button " << caption.toStdString();
        modal->close();
    };
}

ModalUser::Action ChoosePath(const std::filesystem::path& path) {
    return [path](QWidget* modal) {
        auto* dialog = qobject_cast<QFileDialog*>(modal);
        ASSERT_NE(dialog, nullptr);
        auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
        ASSERT_NE(name, nullptr);
        name->setText(QString::fromStdString(path.string()));
        QTest::keyClick(name, Qt::Key_Return);
    };
}

ModalUser::Action PressEscape() {
    return [](QWidget* modal) { QTest::keyClick(modal, Qt::Key_Escape); };
}

void WindowFixture::SetUp() {
    WriteNoiseSet(folder_ / "PS", "Test", 140);
}

bool WindowFixture::StartWindow(const std::string& startFile) {
    SubMain(session_, folder_.Path(), startFile, chance_);
    host_ = std::make_unique<WindowHost>(session_, chance_);
    window_ = std::make_unique<frmTer>(session_, *host_);
    window_->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(window_.get()));
    return window_->Form_Load();
}

void WindowFixture::WaitUntilReady() {
    const auto* tools = Find<QToolBar>("Toolbar1");
    EXPECT_TRUE(QTest::qWaitFor([tools] { return tools->isEnabled(); }));
}

/// As a user does: after a command the next heartbeat gives the controls back.
void WindowFixture::ClickWhenReady(QWidget* control) {
    ASSERT_TRUE(QTest::qWaitFor([control] { return control->isEnabled(); }));
    QTest::mouseClick(control, Qt::LeftButton);
}

void WindowFixture::Click(const char* name) {
    ClickWhenReady(Find<QWidget>(name));
}

void WindowFixture::ClickTool(const char* key) {
    auto* tools = window_->findChild<QToolBar*>("Toolbar1");
    auto* action = tools->findChild<QAction*>(QString::fromUtf8(key));
    ASSERT_NE(action, nullptr) << key;
    ClickWhenReady(tools->widgetForAction(action));
}

void WindowFixture::ShowTab(const char* caption) {
    auto* tabs = Find<QTabWidget>("SSTab1");
    for (int i = 0; i < tabs->count(); ++i)
        if (tabs->tabText(i) == caption)
            tabs->setCurrentIndex(i);
}

void WindowFixture::Produce(const char* seed) {
    ShowTab("Global");
    Click("optTerSize0");
    ShowTab("Generator");
    auto* text = Find<QLineEdit>("txtRandom");
    text->clear();
    QTest::keyClicks(text, seed);
    Click("cmdGenerator");
    WaitUntilReady();
}

std::vector<Height> WindowFixture::Heights() {
    return AllCells(session_.document.CurrentTerrain);
}

}  // namespace quillbrand
