#include "ui/WindowHost.h"

#include <QCoreApplication>

#include "ui/dialogs/Messages.h"

namespace quillbrand {

namespace {

constexpr int pumpEveryMs = 10;

}  // namespace

void WindowHost::Attach(QWidget* window, std::function<void(const std::string&)> showStatus,
                        std::function<void()> actualScreen, std::function<void()> keepInputOut) {
    window_ = window;
    showStatus_ = std::move(showStatus);
    actualScreen_ = std::move(actualScreen);
    keepInputOut_ = std::move(keepInputOut);
}

void WindowHost::Status(std::string_view text) {
    showStatus_(std::string(text));
}

void WindowHost::Busy(bool busy) {
    SessionHost::Busy(busy);
    if (busy)
        keepInputOut_();
}

void WindowHost::Yield() {
    if (sincePump_.elapsed() < pumpEveryMs)
        return;
    QCoreApplication::processEvents();
    sincePump_.restart();
}

void WindowHost::ActualScreen() {
    actualScreen_();
}

Answer WindowHost::Ask(const Question& question) {
    return AskUser(window_, question);
}

}  // namespace quillbrand
