#pragma once

#include <QString>
#include <functional>

#include "base/Host.h"

class QWidget;

namespace quillbrand {

/// The question as a message box with a question icon. Closing it answers Cancel where there is
/// such a button, else No.
Answer AskUser(QWidget* parent, const Question& question);

/// A message with an OK button.
void TellUser(QWidget* parent, const QString& text, const QString& title);

/// The same with a critical icon.
void WarnUser(QWidget* parent, const QString& text, const QString& title);

/// Runs what a button does. A Fault ends it with a message whose title is `command` unless the
/// fault has one of its own; so does running out of memory. The busy flag is clear after a fault.
/// Returns false then.
bool RunCommand(QWidget* parent, Host& host, const QString& command,
                const std::function<void()>& action);

/// The same for a part of a command, which goes on after a fault: the busy flag is left alone.
bool RunStep(QWidget* parent, const QString& step, const std::function<void()>& action);

/// The same where there is no window and no host; false after a fault.
bool RunStart(const QString& command, const std::function<void()>& action);

}  // namespace quillbrand
