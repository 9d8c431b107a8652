#include "shell/RendererLink.h"
#include "ui/dialogs/Messages.h"
#include "ui/dialogs/dlgOptions.h"
#include "ui/dialogs/dlgPrint.h"
#include "ui/dialogs/dlgSavePerlinsetNew.h"
#include "ui/dialogs/frmAbout.h"
#include "ui/frmTer.h"
#include "ui/panels/GlobalPanel.h"
#include "ui/plan/EditTools.h"
#include "ui/plan/PlanView.h"

// What the buttons of the tool bar do.
namespace quillbrand {

namespace {

/// A command that always ends with the steps that commands end with.
template <typename Work>
std::function<bool()> Always(Work work) {
    return [work] {
        work();
        return true;
    };
}

}  // namespace

std::vector<ToolButton> frmTer::Buttons() {
    const auto button = [this](const char* key, const char* toolTip, const char* icon,
                               const char* shortcut, std::function<bool()> work,
                               bool endsGroup = false) {
        std::function<void()> click;
        if (work)
            click = [this, key, work = std::move(work)] {
                Toolbar1_ButtonClick(QString::fromUtf8(key), work);
            };
        return ToolButton{key, toolTip, icon, shortcut, std::move(click), endsGroup};
    };
    const auto zoom = [this](double factor) {
        return Always([this, factor] { ResizePicture(factor); });
    };
    return {
        button("Neu", "New", "new", "Ctrl+N", Always([this] { document_.Neu(); })),
        button("Öffnen", "Open", "open", "Ctrl+O", [this] { return document_.Oeffnen(); }),
        button("Speichern", "Save", "save", "Ctrl+S", [this] { return document_.Speichern(); }),
        button(
            "SpeichernAls", "Save as...", "save-as", "Ctrl+Shift+S",
            [this] { return document_.SpeichernAls(); }, true),
        button("Print", "Print Terrain and Settings", "print", "Ctrl+P",
               Always([this] { dlgPrint(*this, planView_->PrintPicture()).exec(); }), true),
        button("Restore", "Restore Terrain", "restore", "Ctrl+Shift+B",
               [this] { return document_.Restore(); }),
        button("Backup", "Backup Terrain", "backup", "Ctrl+B",
               Always([this] { document_.Backup(); }), true),
        {"Undo", "Undo", "undo", "Ctrl+Z", [this] { StepBack(); }},
        {"Redo", "Redo", "redo", "Ctrl+Shift+Z", [this] { StepForward(); }, true},
        button("Eigenschaften", "Options", "options", "Ctrl+,",
               Always([this] { dlgOptions(*this).exec(); })),
        button("Löschen", "Clear Terrain ", "clear", "Ctrl+Shift+N",
               Always([this] { document_.Loeschen(); })),
        button("Hilfe", "About", "about", "F1", Always([this] { frmAbout(this).exec(); }), true),
        button("Zoom in", "Zoom x2", "zoom-in", "Ctrl++", zoom(2)),
        button("Zoom out", "Zoom /2", "zoom-out", "Ctrl+-", zoom(0.5)),
        button("Zoom100", "Zoom 100%", "zoom-100", "Ctrl+0", zoom(0), true),
        button("Terragen", "Start Terragen with actually terrain", "terragen", "", Always([this] {
                   StartTerragen(session_.document, session_.settings, host_,
                                 [this] { document_.FileSave(1); });
               })),
        button("View3d", "View Terrain 3D", "view3d", "", {}),
        button("ObjectMaker", "ObjectMaker", "objectmaker", "", {}, true),
        button("SavePerlin", "", "save-perlin", "",
               Always([this] { dlgSavePerlinsetNew(*this).exec(); })),
    };
}

void frmTer::Toolbar1_ButtonClick(const QString& key, const std::function<bool()>& work) {
    if (host_.CommandRuns())
        return;
    const CommandScope scope(host_);
    session_.document.CurrentTerrain.CRAD(static_cast<float>(globalPanel_->PlanetRadius()));
    session_.document.CurrentTerrain.CRVM(globalPanel_->Curved() ? 1 : 0);
    editTools_->DeactEdit();
    ShowPlanView();
    bool commonEnd = true;
    RunPart(this, host_, toolbar_->Button(key)->text(), [&] { commonEnd = work(); });
    if (commonEnd)
        CommonEnd();
}

}  // namespace quillbrand
