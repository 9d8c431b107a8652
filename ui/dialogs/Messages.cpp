#include "ui/dialogs/Messages.h"

#include <QMessageBox>
#include <new>
#include <optional>

#include "base/Fault.h"

namespace quillbrand {

namespace {

QMessageBox::StandardButtons ButtonsOf(Buttons buttons) {
    switch (buttons) {
        case Buttons::OkCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case Buttons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case Buttons::YesNoCancel:
            break;
    }
    return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
}

/// Line breaks as the texts have them, without the carriage returns that a label would show.
QString Lines(const std::string& text) {
    return QString::fromStdString(text).remove(QLatin1Char('\r'));
}

struct Complaint {
    QString text;
    QString title;
};

/// What went wrong, or nothing.
std::optional<Complaint> Attempt(const QString& command, const std::function<void()>& action) {
    try {
        action();
        return std::nullopt;
    } catch (const Fault& fault) {
        const QString title = QString::fromStdString(fault.Title());
        return Complaint{Lines(fault.what()), title.isEmpty() ? command : title};
    } catch (const std::bad_alloc&) {
        return Complaint{QStringLiteral("not enough memory"), command};
    } catch (const std::exception& error) {
        return Complaint{QString::fromUtf8(error.what()), command};
    }
}

}  // namespace

Answer AskUser(QWidget* parent, const Question& question) {
    QMessageBox box(QMessageBox::Question, QString::fromStdString(question.title),
                    Lines(question.text), ButtonsOf(question.buttons), parent);
    switch (box.exec()) {
        case QMessageBox::Ok:
            return Answer::Ok;
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        default:
            return question.buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
    }
}

void TellUser(QWidget* parent, const QString& text, const QString& title) {
    QMessageBox(QMessageBox::Information, title, text, QMessageBox::Ok, parent).exec();
}

void WarnUser(QWidget* parent, const QString& text, const QString& title) {
    QMessageBox(QMessageBox::Critical, title, text, QMessageBox::Ok, parent).exec();
}

Ended RunCommand(QWidget* parent, WindowHost& host, const QString& command,
                 const std::function<void()>& action) {
    if (host.CommandRuns())
        return Ended::BeforeIt;
    const CommandScope scope(host);
    return RunPart(parent, host, command, action) ? Ended::Well : Ended::WithFault;
}

bool RunPart(QWidget* parent, Host& host, const QString& part,
             const std::function<void()>& action) {
    const std::optional<Complaint> complaint = Attempt(part, action);
    if (!complaint)
        return true;
    host.Busy(false);
    WarnUser(parent, complaint->text, complaint->title);
    return false;
}

bool RunStep(QWidget* parent, const QString& step, const std::function<void()>& action) {
    const std::optional<Complaint> complaint = Attempt(step, action);
    if (complaint)
        WarnUser(parent, complaint->text, complaint->title);
    return !complaint;
}

bool RunStart(const QString& command, const std::function<void()>& action) {
    return RunStep(nullptr, command, action);
}

}  // namespace quillbrand
