#include "ui/WindowHost.h"

#include <QCoreApplication>
#include <QWidget>
#include <cassert>
#include <utility>

#include "ui/dialogs/Messages.h"

namespace quillbrand {

namespace {

constexpr int pumpEveryMs = 10;

}  // namespace

WindowHost::WindowHost(Session& session, RandomSource& chance) : SessionHost(session, chance) {
    sincePump_.start();
    idle_.setSingleShot(true);
    QObject::connect(&idle_, &QTimer::timeout, [this] { RunWaiting(); });
}

void WindowHost::Attach(QWidget* window, std::function<void(const std::string&)> showStatus,
                        std::function<void()> actualScreen, std::function<void(bool)> takeInput) {
    window_ = window;
    showStatus_ = std::move(showStatus);
    actualScreen_ = std::move(actualScreen);
    takeInput_ = std::move(takeInput);
}

void WindowHost::WhenIdle(std::function<void()> action) {
    waiting_.push_back(std::move(action));
    if (!commandRuns_)
        idle_.start(0);
}

/// What an action starts may let events through, and so come here again.
void WindowHost::RunWaiting() {
    while (!commandRuns_ && !waiting_.empty()) {
        const auto action = std::move(waiting_.front());
        waiting_.erase(waiting_.begin());
        action();
    }
}

void WindowHost::Status(std::string_view text) {
    showStatus_(std::string(text));
}

void WindowHost::Busy(bool busy) {
    SessionHost::Busy(busy);
    if (busy)
        KeepInputOut();
}

void WindowHost::KeepInputOut() {
    inputIsOut_ = true;
    takeInput_(false);
}

void WindowHost::Yield() {
    if (sincePump_.elapsed() < pumpEveryMs)
        return;
    if (commandRuns_)
        KeepInputOut();
    QCoreApplication::processEvents();
    sincePump_.restart();
}

void WindowHost::ActualScreen() {
    actualScreen_();
}

Answer WindowHost::Ask(const Question& question) {
    return AskUser(window_, question);
}

void WindowHost::EndCommand() {
    if (inputIsOut_) {
        // What was clicked and typed while input was out goes to nobody.
        QCoreApplication::processEvents();
        inputIsOut_ = false;
        if (!TheSession().TerrainBusy)
            takeInput_(true);
    }
    commandRuns_ = false;
    if (!waiting_.empty())
        idle_.start(0);
}

CommandScope::CommandScope(WindowHost& host) : host_(host) {
    assert(!host.commandRuns_);
    host_.commandRuns_ = true;
}

CommandScope::~CommandScope() {
    host_.EndCommand();
}

}  // namespace quillbrand
