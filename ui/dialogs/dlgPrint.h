#pragma once

#include <QDialog>
#include <QImage>
#include <QPrinter>

#include "shell/PrintPage.h"
#include "ui/Workplace.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace quillbrand {

class PictureBox;

/// Prints the height picture, the settings text, or both; shows beforehand what the page will be.
class dlgPrint : public QDialog {
    Q_OBJECT

  public:
    /// `picture` is the height picture as it stands on the screen.
    dlgPrint(Workplace& workplace, QImage picture);

    /// Where the page goes: the system's printer, or a PDF file.
    QPrinter& Printer() { return printer_; }

  private:
    QWidget* BuildPreview();
    QWidget* BuildChoices();
    QWidget* BuildButtons();

    PrintSettings Settings() const;
    void ShowPage();
    void ShowPrinterName();
    void Print();
    void cmdPrinter_Click();
    void OKButton_Click();

    Workplace& workplace_;
    QImage picture_;
    QPrinter printer_;
    PictureBox* PicPrint_;
    QCheckBox* Check1Terrain_;
    QCheckBox* Check1Settings_;
    QLabel* Label2_;
    QPushButton* cmdPrinter_;
    QPushButton* OKButton_;
    QPushButton* CancelButton_;
};

}  // namespace quillbrand
