#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <functional>
#include <vector>

#include "shell/SessionHost.h"

class QWidget;

namespace quillbrand {

/// The editor's host: status texts go to the window, questions become message boxes, and pending
/// events are let through about every 10 milliseconds. It knows whether a command runs, which is
/// what keeps everything else out: the busy flag of the session only tells what is shown.
class WindowHost : public SessionHost {
  public:
    WindowHost(Session& session, RandomSource& chance);

    /// The window that shows the status, is brought into line, takes input or keeps it out, which
    /// it does while a command lets events through, and owns the message boxes.
    void Attach(QWidget* window, std::function<void(const std::string&)> showStatus,
                std::function<void()> actualScreen, std::function<void(bool)> takeInput);

    /// True from the first line of a command to its last, questions and dialogs included.
    bool CommandRuns() const { return commandRuns_; }

    /// Has the event loop call `action` as soon as no command runs, in the order in which actions
    /// came.
    void WhenIdle(std::function<void()> action);

    void Status(std::string_view text) override;
    void Busy(bool busy) override;
    void Yield() override;
    void ActualScreen() override;
    Answer Ask(const Question& question) override;

  private:
    friend class CommandScope;

    void KeepInputOut();
    void EndCommand();
    void RunWaiting();

    QWidget* window_ = nullptr;
    std::function<void(const std::string&)> showStatus_ = [](const std::string&) {};
    std::function<void()> actualScreen_ = [] {};
    std::function<void(bool)> takeInput_ = [](bool) {};
    QElapsedTimer sincePump_;
    bool commandRuns_ = false;
    bool inputIsOut_ = false;  ///< since the command that runs let events through
    std::vector<std::function<void()>> waiting_;
    QTimer idle_;  ///< runs what waits
};

/// A command runs as long as this lives. Requires: none runs yet.
class CommandScope {
  public:
    explicit CommandScope(WindowHost& host);
    CommandScope(const CommandScope&) = delete;
    CommandScope& operator=(const CommandScope&) = delete;
    ~CommandScope();

  private:
    WindowHost& host_;
};

}  // namespace quillbrand
