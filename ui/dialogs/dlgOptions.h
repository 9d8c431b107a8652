#pragma once

#include <QDialog>
#include <QPalette>
#include <array>
#include <optional>

#include "shell/MdlFolder.h"
#include "shell/Options.h"
#include "ui/Workplace.h"

class QButtonGroup;
class QLineEdit;
class QListWidget;
class QSpinBox;

namespace quillbrand {

/// Shows the settings and stores them with "Save". The window behind takes its new colour at once
/// and gives it back on "Cancel"; a chosen folder is stored at once and stays.
class dlgOptions : public QDialog {
    Q_OBJECT

  public:
    /// Throws Fault for settings that cannot be read.
    explicit dlgOptions(Workplace& workplace);

    void reject() override;

  private:
    QWidget* BuildProgram();
    QWidget* BuildSizes();
    QWidget* BuildResizeModes();
    QWidget* BuildPalettes();
    QWidget* BuildWindowColour();
    QWidget* BuildHistory();
    QWidget* BuildFolders();
    QLayout* BuildButtons();

    void OKButton_Click();
    void cmdSelectColor_Click();
    void chkRegTERFile_Click();
    void ChooseFolder(const MdlFolder::Target& target);

    Workplace& workplace_;
    OptionsSettings settings_;     ///< as the dialog opened, with a newly chosen colour
    const QPalette windowBefore_;  ///< of the main window
    QButtonGroup* Option1_;
    QButtonGroup* Option2_;
    QListWidget* List1_;
    QSpinBox* spnHistory_;
};

}  // namespace quillbrand
