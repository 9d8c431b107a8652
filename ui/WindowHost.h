#pragma once

#include <QElapsedTimer>
#include <functional>

#include "shell/SessionHost.h"

class QWidget;

namespace quillbrand {

/// The editor's host: status texts go to the window, questions become message boxes, and pending
/// events are let through about every 10 milliseconds.
class WindowHost : public SessionHost {
  public:
    WindowHost(Session& session, RandomSource& chance) : SessionHost(session, chance) {
        sincePump_.start();
    }

    /// The window that shows the status, is brought into line, keeps input out while the busy flag
    /// is set, and owns the message boxes.
    void Attach(QWidget* window, std::function<void(const std::string&)> showStatus,
                std::function<void()> actualScreen, std::function<void()> keepInputOut);

    void Status(std::string_view text) override;
    void Busy(bool busy) override;
    void Yield() override;
    void ActualScreen() override;
    Answer Ask(const Question& question) override;

  private:
    QWidget* window_ = nullptr;
    std::function<void(const std::string&)> showStatus_ = [](const std::string&) {};
    std::function<void()> actualScreen_ = [] {};
    std::function<void()> keepInputOut_ = [] {};
    QElapsedTimer sincePump_;
};

}  // namespace quillbrand
