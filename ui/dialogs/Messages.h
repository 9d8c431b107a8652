#pragma once

#include <QString>
#include <functional>

#include "base/Host.h"
#include "ui/WindowHost.h"

class QWidget;

namespace quillbrand {

/// The question as a message box with a question icon. Closing it answers Cancel where there is
/// such a button, else No.
Answer AskUser(QWidget* parent, const Question& question);

/// A message with an OK button.
void TellUser(QWidget* parent, const QString& text, const QString& title);

/// The same with a critical icon.
void WarnUser(QWidget* parent, const QString& text, const QString& title);

/// How a command came to its end.
enum class Ended {
    Well,
    WithFault,  ///< after a message
    BeforeIt    ///< it was not run at all, because another command runs
};

/// Runs what a control does as a command: none is started inside another one. A Fault ends it with
/// a message whose title is `command` unless the fault has one of its own; so does running out of
/// memory. The busy flag is clear after a fault.
Ended RunCommand(QWidget* parent, WindowHost& host, const QString& command,
                 const std::function<void()>& action);

/// The same for a part of the command that runs, such as a button of its dialog. False after a
/// fault.
bool RunPart(QWidget* parent, Host& host, const QString& part, const std::function<void()>& action);

/// The same for a part that leaves the busy flag alone.
bool RunStep(QWidget* parent, const QString& step, const std::function<void()>& action);

/// The same where there is no window and no host; false after a fault.
bool RunStart(const QString& command, const std::function<void()>& action);

}  // namespace quillbrand
