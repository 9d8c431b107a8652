#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QTest>
#include <functional>
#include <memory>

#include "terrain/HeightsChange.h"
#include "tests/support/TemporaryFolder.h"
#include "ui/frmTer.h"

namespace quillbrand {

/// Acts on the modal windows that a command opens, as a user would: each of the given actions runs
/// once, on the next modal window that is up, be it one that the last action opened. Everything
/// goes through the event loop; nothing waits for a time to pass.
class ModalUser : public QObject {
  public:
    using Action = std::function<void(QWidget*)>;

    explicit ModalUser(QList<Action> actions);
    ModalUser(const ModalUser&) = delete;
    ModalUser& operator=(const ModalUser&) = delete;
    ~ModalUser() override;

    /// The texts of the message boxes that came, "title: text".
    QStringList seen;

    bool IsDone() const { return actions_.isEmpty(); }

  protected:
    void timerEvent(QTimerEvent* event) override;

  private:
    QList<Action> actions_;
    QWidget* inHand_ = nullptr;  ///< what an action works on, which may let events through
};

/// Presses the button of a message box or dialog that has this caption, "&" apart.
ModalUser::Action Press(const QString& caption);

/// Accepts a file dialog with this path.
ModalUser::Action ChoosePath(const std::filesystem::path& path);

/// Closes by the Escape key.
ModalUser::Action PressEscape();

/// The main window over a small program folder with one Perlin set, and a fixed source of chance.
class WindowFixture : public ::testing::Test {
  protected:
    void SetUp() override;

    /// Opens the window; it has no Perlin sets when the folder was taken away.
    bool StartWindow(const std::string& startFile = "");

    template <typename Control = QWidget>
    Control* Find(const char* name) {
        auto* control = window_->findChild<Control*>(QString::fromUtf8(name));
        EXPECT_NE(control, nullptr) << name;
        return control;
    }

    /// Until the window takes input again after a command.
    void WaitUntilReady();

    static void ClickWhenReady(QWidget* control);

    /// A real click in the middle of a control, once it is enabled.
    void Click(const char* name);

    /// Presses a button of the tool bar by its key.
    void ClickTool(const char* key);

    /// Shows the tab with that caption.
    void ShowTab(const char* caption);

    /// Produces a relief of 128 intervals with the given seed by the controls.
    void Produce(const char* seed);

    std::vector<Height> Heights();

    /// Changes heights behind the window's back, as a step of the history.
    template <typename Change>
    void Edit(Change change) {
        HeightsChange step(session_.document, "Edit");
        change(session_.document.CurrentTerrain);
        step.Commit();
    }

    TemporaryFolder folder_;
    RandomSource chance_{5};
    Session session_;
    std::unique_ptr<WindowHost> host_;
    std::unique_ptr<frmTer> window_;
};

}  // namespace quillbrand
