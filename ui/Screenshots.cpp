// Writes a picture of every tab, view and dialog of the editor, for people to look at.
// Usage: qb_screenshots FOLDER PROGRAM_FOLDER [dark]; QT_SCALE_FACTOR gives other scales.

#include <QAbstractButton>
#include <QApplication>
#include <QEventLoop>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QSlider>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTimer>
#include <cstdio>

#include "base/Fault.h"
#include "shell/GeneratorCommands.h"
#include "shell/SubMain.h"
#include "ui/Theme.h"
#include "ui/WindowHost.h"
#include "ui/dialogs/FolderDialog.h"
#include "ui/dialogs/dlgFltErosion.h"
#include "ui/dialogs/dlgGenModify.h"
#include "ui/dialogs/dlgOptions.h"
#include "ui/dialogs/dlgPreview.h"
#include "ui/dialogs/dlgPrint.h"
#include "ui/dialogs/dlgSaveAs.h"
#include "ui/dialogs/dlgSavePerlinsetNew.h"
#include "ui/dialogs/frmAbout.h"
#include "ui/dialogs/frmElevator.h"
#include "ui/frmTer.h"
#include "ui/plan/PlanView.h"

namespace quillbrand {
namespace {

/// Shows windows one after the other and stores what they look like.
class Photographer {
  public:
    Photographer(QString folder, QString suffix)
        : folder_(std::move(folder)), suffix_(std::move(suffix)) {}

    void Take(QWidget& widget, const QString& name) const {
        widget.show();
        // The heartbeat gives the controls back after a command.
        QEventLoop heartbeat;
        QTimer wait;
        QObject::connect(&wait, &QTimer::timeout, &heartbeat, &QEventLoop::quit);
        wait.start(250);
        heartbeat.exec();
        const QString path = folder_ + '/' + name + suffix_ + ".png";
        if (!widget.grab().save(path))
            throw Fault("cannot write " + path.toStdString());
        std::printf("%s\n", path.toUtf8().constData());
    }

  private:
    QString folder_;
    QString suffix_;
};

void TakeWindow(frmTer& window, const Photographer& photographer) {
    auto* tabs = window.findChild<QTabWidget*>("SSTab1");
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        photographer.Take(window, "tab-" + tabs->tabText(i).toLower());
    }
    tabs->setCurrentIndex(1);
    window.findChild<QAbstractButton*>("optZView")->click();
    window.findChild<QSlider*>("sldXView")->setValue(300);
    photographer.Take(window, "z-view");
    window.findChild<QAbstractButton*>("chkRealViewZ")->click();
    photographer.Take(window, "z-view-real");
    window.findChild<QAbstractButton*>("OptXYView")->click();
}

void TakeDialogs(frmTer& window, Session& session, WindowHost& host,
                 const Photographer& photographer) {
    dlgSaveAs saveAs(&window);
    photographer.Take(saveAs, "save-as");
    dlgGenModify modify(session.tools.ModifyMode, &window);
    photographer.Take(modify, "modify");
    dlgSavePerlinsetNew perlinSet(window);
    photographer.Take(perlinSet, "save-perlin-set");
    frmAbout about(&window);
    photographer.Take(about, "about");
    dlgFltErosion erosion(window);
    photographer.Take(erosion, "erosion");
    frmElevator elevator(window);
    photographer.Take(elevator, "elevator");
    auto* sets = elevator.findChild<QListWidget*>("List1");
    sets->setCurrentRow(sets->count() / 2);
    photographer.Take(elevator, "elevator-set");
    GeneratorSettings settings;
    settings.seed = "500500";
    clsTerrain terrain = PreviewTerrain(session.document, session.tools,
                                        session.settings.ResizeMode, settings, host);
    dlgPreview preview(&window);
    preview.ShowHeights(terrain, 5, host);
    photographer.Take(preview, "preview");
    dlgPrint print(window, window.findChild<PlanView*>()->PrintPicture());
    photographer.Take(print, "print");
}

void TakeOptions(frmTer& window, const Session& session, const Photographer& photographer) {
    dlgOptions options(window);
    photographer.Take(options, "options-programm");
    options.findChild<QTabWidget*>()->setCurrentIndex(1);
    photographer.Take(options, "options-directories");
    FolderDialog folder(QString::fromUtf8(MdlFolder::targets[2].title.data()),
                        session.settings.ProgramFolder, &options);
    photographer.Take(folder, "options-folder");
}

void TakeAll(const QString& folder, const std::string& programFolder, bool dark) {
    ApplyTheme(dark);
    Session session;
    RandomSource chance(1);
    SubMain(session, programFolder, "", chance);
    session.settings.PaletteRow = 5;
    WindowHost host(session, chance);
    frmTer window(session, host);
    window.resize(1280, 800);
    window.show();
    const Photographer photographer(folder, dark ? "-dark" : "");
    if (!window.Form_Load())
        throw Fault("no Perlin sets in " + programFolder);
    photographer.Take(window, "start");
    session.settings.ResizeMode = 1;
    GeneratorSettings settings;
    settings.iterations = 3;
    settings.seed = "314159";
    settings.finerStructures = true;
    settings.clearTerrain = true;
    ProduceTerrain(session.document, session.tools, session.settings.ResizeMode, 1024, settings,
                   host);
    window.ResizePicture();
    window.RebuildPicture();
    host.Busy(false);
    host.ActualScreen();
    TakeWindow(window, photographer);
    TakeDialogs(window, session, host, photographer);
    TakeOptions(window, session, photographer);
}

}  // namespace
}  // namespace quillbrand

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: qb_screenshots FOLDER PROGRAM_FOLDER [dark]\n");
        return 2;
    }
    QApplication application(argc, argv);
    QApplication::setApplicationVersion(QB_VERSION);
    try {
        quillbrand::TakeAll(argv[1], argv[2], argc > 3 && std::string(argv[3]) == "dark");
    } catch (const quillbrand::Fault& fault) {
        std::fprintf(stderr, "qb_screenshots: %s\n", fault.what());
        return 1;
    }
    return 0;
}
