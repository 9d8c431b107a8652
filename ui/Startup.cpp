#include "ui/Startup.h"

#include <QApplication>

#include "shell/ProgramFolder.h"
#include "shell/SubMain.h"
#include "shell/TerrainCommands.h"
#include "ui/Theme.h"
#include "ui/WindowHost.h"
#include "ui/dialogs/Messages.h"
#include "ui/dialogs/frmAbout.h"
#include "ui/frmTer.h"

namespace quillbrand {

namespace {

constexpr auto help =
    "Usage: quillbrand [FILE]\n"
    "Opens the editor, with the Terragen terrain FILE if one is named.\n\n"
    "  --help      this text\n"
    "  --version   the version\n";

/// Where all else fails to catch what ends a command, the event that it came from ends.
class Application : public QApplication {
  public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override {
        bool handled = false;
        RunStart(applicationName(), [&] { handled = QApplication::notify(receiver, event); });
        return handled;
    }
};

}  // namespace

StartArguments ParseArguments(int argc, char** argv) {
    StartArguments arguments;
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        if (word == "--help")
            arguments.answer = help;
        else if (word == "--version")
            arguments.answer = "quillbrand " QB_VERSION "\n";
        else
            arguments.file += (arguments.file.empty() ? "" : " ") + word;
    }
    return arguments;
}

bool HasDisplay(int argc, char** argv) {
    // The toolkit may be told of a platform that needs none.
    for (int i = 1; i < argc; ++i)
        if (std::string_view(argv[i]) == "-platform" || std::string_view(argv[i]) == "--platform")
            return true;
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (qEnvironmentVariableIsSet(name))
            return true;
    return false;
}

int RunEditor(int& argc, char** argv) {
    Application application(argc, argv);
    // Now without the options that belong to the toolkit.
    const StartArguments arguments = ParseArguments(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillbrand"));
    QApplication::setApplicationVersion(QStringLiteral(QB_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("quillbrand"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/quillbrand.svg")));
    ApplyStyle();

    Session session;
    RandomSource chance;
    const bool ready = RunStart(QStringLiteral("Quillbrand"), [&] {
        SubMain(session, FindProgramFolder(PlacesOfThisProcess("")), arguments.file, chance);
    });
    if (!ready)
        return 1;
    WindowHost host(session, chance);
    frmTer window(session, host);
    window.show();
    frmAbout splash(&window);
    splash.ShowAsSplash();
    if (!window.Form_Load()) {
        RemoveBackup(session);
        return 1;
    }
    return QApplication::exec();
}

}  // namespace quillbrand
